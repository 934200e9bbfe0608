#include <QtitanRibbon.h>

#include <QHelpEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QToolTip>
#include <QtTest>

using namespace Qtitan;

namespace {

// Space left and right of a title once the tabs have shrunk as far as they go.
const int MinimumTabPadding = 5;

// A box like the demo's quick search: 150 px wide when there is room, and a
// fixed size policy (which the ribbon reads as "give it its width if you can").
class SearchBox : public QLineEdit
{
public:
    SearchBox() { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }
    QSize sizeHint() const override { return QSize(150, QLineEdit::sizeHint().height()); }
};

struct RibbonWindow
{
    explicit RibbonWindow(const QStringList& titles, bool withCorner)
    {
        bar = new RibbonBar;
        window.setRibbonBar(bar);
        bar->addSystemButton(QStringLiteral("File"));
        for (const QString& title : titles)
            bar->addPage(title);
        if (withCorner) {
            corner = new SearchBox;
            bar->setCornerWidget(corner, Qt::TopRightCorner);
        }
        window.setCentralWidget(new QWidget);
        window.resize(1600, 500);
        window.show();
    }

    void resize(int width)
    {
        window.resize(width, 500);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    QToolButton* arrow(const char* name) const { return bar->findChild<QToolButton*>(QLatin1String(name)); }

    bool scrolls() const
    {
        QToolButton* right = arrow("qtitan_ribbon_tabscrollright");
        return right && right->isVisible();
    }

    // The stretch of the tab row where tabs may be seen.
    int leftLimit() const
    {
        QToolButton* left = arrow("qtitan_ribbon_tabscrollleft");
        if (left && left->isVisible())
            return left->geometry().right() + 1;
        return bar->systemButton()->geometry().right() + 1;
    }

    int rightLimit() const
    {
        if (scrolls())
            return arrow("qtitan_ribbon_tabscrollright")->geometry().left() - 1;
        if (corner && corner->isVisible() && corner->width() > 0)
            return corner->geometry().left() - 1;
        return bar->width() - 1;
    }

    bool inSight(int index) const
    {
        const QRect tab = bar->tabRect(index);
        return tab.left() >= leftLimit() && tab.right() <= rightLimit();
    }

    QString toolTipAt(int index)
    {
        const QPoint pos = bar->tabRect(index).center();
        QHelpEvent help(QEvent::ToolTip, pos, bar->mapToGlobal(pos));
        QCoreApplication::sendEvent(bar, &help);
        // A tool tip fades out over a while; an ignored event means none for this tab.
        return help.isAccepted() && QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    int naturalTextWidth(int index) const
    {
        return bar->fontMetrics().horizontalAdvance(bar->page(index)->title());
    }

    bool atMinimum(int index) const
    {
        const QString title = bar->page(index)->title();
        const QFontMetrics metrics = bar->fontMetrics();
        const int text = qMin(metrics.horizontalAdvance(title), metrics.horizontalAdvance(title.left(2) + QChar(0x2026)));
        return bar->tabRect(index).width() <= text + 1 + 2 * MinimumTabPadding;
    }

    RibbonMainWindow window;
    RibbonBar* bar = nullptr;
    SearchBox* corner = nullptr;
};

const QStringList demoPages = {QStringLiteral("Home"), QStringLiteral("Insert"), QStringLiteral("View"),
                               QStringLiteral("Tools")};

} // namespace

class tst_QtitanTabRow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QToolTip::hideText(); }

    void layoutInvariants_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("withCorner");
        for (int width : {1600, 1000, 700, 450, 350}) {
            QTest::addRow("%d px", width) << width << false;
            QTest::addRow("%d px, corner widget", width) << width << true;
        }
    }

    void layoutInvariants()
    {
        QFETCH(int, width);
        QFETCH(bool, withCorner);
        RibbonWindow w(demoPages, withCorner);
        QVERIFY(QTest::qWaitForWindowExposed(&w.window));
        w.resize(width);
        QCOMPARE(w.bar->width(), width);
        RibbonBar* bar = w.bar;

        // Tabs run left to right without overlapping, beside the system button.
        for (int i = 0; i < bar->pageCount(); ++i) {
            const QRect tab = bar->tabRect(i);
            QVERIFY(tab.isValid());
            QVERIFY(tab.left() > bar->systemButton()->geometry().right());
            if (i > 0)
                QVERIFY2(tab.left() > bar->tabRect(i - 1).right(), qPrintable(QStringLiteral("tab %1").arg(i)));
        }
        // The demo's four pages never need to scroll, down to 350 px with the
        // search box beside them: every tab is wholly in sight.
        QVERIFY(!w.scrolls());
        for (int i = 0; i < bar->pageCount(); ++i)
            QVERIFY2(w.inSight(i), qPrintable(QStringLiteral("%1 at %2 px").arg(bar->page(i)->title()).arg(width)));

        if (withCorner) {
            // The corner widget sits on the tab row, right of the last tab, and never under a tab.
            const QRect corner = w.corner->geometry();
            QVERIFY(w.corner->isVisible());
            QVERIFY(corner.top() >= bar->tabRect(0).top() - 4);
            QVERIFY(corner.bottom() <= bar->tabRect(0).bottom() + 4);
            QVERIFY(corner.right() < bar->width());
            QVERIFY(corner.left() > bar->tabRect(bar->pageCount() - 1).right());
            QVERIFY(corner.width() >= w.corner->minimumSizeHint().width());
            QVERIFY(corner.width() <= 150);
            // It gives way only after every tab has shrunk as far as it goes.
            if (corner.width() < 150) {
                for (int i = 0; i < bar->pageCount(); ++i)
                    QVERIFY2(w.atMinimum(i), qPrintable(bar->page(i)->title()));
            }
        }

        // A shortened tab tells its whole title in a tool tip; a whole one shows none.
        // (Titles are shortened only once the padding is down to its minimum.)
        for (int i = 0; i < bar->pageCount(); ++i) {
            const bool elided = bar->tabRect(i).width() < w.naturalTextWidth(i) + 2 * MinimumTabPadding;
            QCOMPARE(w.toolTipAt(i), elided ? bar->page(i)->title() : QString());
        }
        if (width == 1600) {
            for (int i = 0; i < bar->pageCount(); ++i)
                QVERIFY(bar->tabRect(i).width() >= w.naturalTextWidth(i) + 2 * 14);
            if (withCorner)
                QCOMPARE(w.corner->width(), 150);
        }
    }

    void cornerWidgetShrinksOnlyAfterTheTabs()
    {
        RibbonWindow w(demoPages + QStringList{QStringLiteral("Page Layout"), QStringLiteral("References")}, true);
        QVERIFY(QTest::qWaitForWindowExposed(&w.window));
        // Step down a pixel at a time: while any tab can still shrink, the corner keeps its width.
        bool sawShrunkCorner = false;
        bool sawScrolling = false;
        for (int width = 900; width >= 250; width -= 5) {
            w.resize(width);
            sawShrunkCorner = sawShrunkCorner || w.corner->width() < 150;
            sawScrolling = sawScrolling || w.scrolls();
            bool tabsAtMinimum = true;
            for (int i = 0; i < w.bar->pageCount(); ++i)
                tabsAtMinimum = tabsAtMinimum && w.atMinimum(i);
            if (!tabsAtMinimum)
                QVERIFY2(w.corner->width() == 150, qPrintable(QStringLiteral("at %1 px").arg(width)));
            // Tabs scroll only once the corner widget is down to its minimum.
            if (w.scrolls()) {
                QVERIFY(tabsAtMinimum);
                QVERIFY2(w.corner->width() == w.corner->minimumSizeHint().width(),
                         qPrintable(QStringLiteral("at %1 px").arg(width)));
            } else {
                for (int i = 0; i < w.bar->pageCount(); ++i)
                    QVERIFY2(w.inSight(i), qPrintable(QStringLiteral("at %1 px").arg(width)));
            }
        }
        // The walk went through every stage.
        QVERIFY(sawShrunkCorner);
        QVERIFY(sawScrolling);
    }

    void cornerWidgetSetOnAShownRibbonLandsOnTheTabRow()
    {
        RibbonWindow w(demoPages, false);
        QVERIFY(QTest::qWaitForWindowExposed(&w.window));
        w.bar->quickAccessBar()->addAction(QStringLiteral("Save"));
        w.bar->quickAccessBar()->show();
        auto* box = new SearchBox;
        w.bar->setCornerWidget(box, Qt::TopRightCorner);
        box->show();
        QTRY_VERIFY(box->geometry().top() >= w.bar->tabRect(0).top() - 4);
        QCOMPARE(box->geometry().right(), w.bar->width() - 5);
        // Hidden by the host, it leaves its room to the tabs.
        w.resize(450);
        const int before = w.bar->tabRect(w.bar->pageCount() - 1).right();
        box->hide();
        QTRY_VERIFY(w.bar->tabRect(w.bar->pageCount() - 1).right() > before);
        box->show();
        QTRY_COMPARE(w.bar->tabRect(w.bar->pageCount() - 1).right(), before);
    }

    void cornerWidgetGoesOnlyWhenNotEvenOneTabFitsBesideIt()
    {
        QStringList titles;
        for (int i = 0; i < 12; ++i)
            titles << QStringLiteral("Page %1").arg(i + 1);
        RibbonWindow w(titles, true);
        w.corner->setMinimumWidth(120);
        QVERIFY(QTest::qWaitForWindowExposed(&w.window));
        w.resize(400);
        QVERIFY(w.scrolls());
        QCOMPARE(w.corner->width(), 120);
        // Beside 120 px of box there is no room for the arrows and one tab.
        w.resize(250);
        QVERIFY(w.scrolls());
        QVERIFY(!w.corner->isVisible());
        QVERIFY(w.inSight(w.bar->currentPageIndex()));
        QCOMPARE(w.rightLimit(), w.arrow("qtitan_ribbon_tabscrollright")->geometry().left() - 1);
        QVERIFY(w.arrow("qtitan_ribbon_tabscrollright")->geometry().right() < w.bar->width());
        w.resize(400);
        QVERIFY(w.corner->isVisible());
        QCOMPARE(w.corner->width(), 120);
        // Hidden by the host, it stays hidden whatever the room.
        w.corner->hide();
        w.resize(1600);
        QVERIFY(!w.corner->isVisible());
        QVERIFY(!w.scrolls());
    }

    void manyTabsScrollWithArrows_data()
    {
        QTest::addColumn<bool>("withCorner");
        QTest::addRow("no corner widget") << false;
        QTest::addRow("corner widget") << true;
    }

    void manyTabsScrollWithArrows()
    {
        QFETCH(bool, withCorner);
        QStringList titles;
        for (int i = 0; i < 12; ++i)
            titles << QStringLiteral("Page %1").arg(i + 1);
        RibbonWindow w(titles, withCorner);
        QVERIFY(QTest::qWaitForWindowExposed(&w.window));
        w.resize(1600);
        QVERIFY(!w.scrolls());
        w.resize(350);
        RibbonBar* bar = w.bar;
        QVERIFY(w.scrolls());
        if (withCorner) {
            // The corner widget has given way as far as it may, but it is still there.
            QVERIFY(w.corner->isVisible());
            QCOMPARE(w.corner->width(), w.corner->minimumSizeHint().width());
            QVERIFY(w.corner->geometry().left() > w.arrow("qtitan_ribbon_tabscrollright")->geometry().right());
        }
        for (int i = 0; i < bar->pageCount(); ++i)
            QVERIFY(w.atMinimum(i));
        QVERIFY(w.inSight(0));
        QVERIFY(!w.inSight(bar->pageCount() - 1));
        QToolButton* left = w.arrow("qtitan_ribbon_tabscrollleft");
        QToolButton* right = w.arrow("qtitan_ribbon_tabscrollright");
        QVERIFY(!left->isEnabled());
        QVERIFY(right->isEnabled());

        // The right arrow brings every tab into sight in turn.
        int clicks = 0;
        while (!w.inSight(bar->pageCount() - 1) && clicks < 20) {
            QTest::mouseClick(right, Qt::LeftButton);
            ++clicks;
        }
        QVERIFY(w.inSight(bar->pageCount() - 1));
        QVERIFY(!right->isEnabled());
        QVERIFY(left->isEnabled());
        // A click on a tab in sight selects it.
        const int last = bar->pageCount() - 1;
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(last).center());
        QCOMPARE(bar->currentPageIndex(), last);

        // Selecting a tab out of sight scrolls it in.
        bar->setCurrentPageIndex(0);
        QVERIFY(w.inSight(0));
        // A click on the arrows never selects the tab that lies under them.
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(w.leftLimit() - 3, bar->tabRect(0).center().y()));
        QCOMPARE(bar->currentPageIndex(), 0);

        // Wide again, the arrows go and every tab is back in sight.
        w.resize(1600);
        QVERIFY(!w.scrolls());
        for (int i = 0; i < bar->pageCount(); ++i)
            QVERIFY(w.inSight(i));
    }
};

QTEST_MAIN(tst_QtitanTabRow)
#include "tst_qtitantabrow.moc"
