#include <QtitanRibbon.h>

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

using namespace Qtitan;

namespace {

QStringList titles(const RibbonBar& bar)
{
    QStringList result;
    for (RibbonPage* page : bar.pages())
        result << page->title();
    return result;
}

void sendWheel(QWidget* widget, const QPoint& pos, int delta)
{
    QWheelEvent event(QPointF(pos), QPointF(widget->mapToGlobal(pos)), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

// What the platform sends for a real double click: press, release, double click, release.
void doubleClick(QWidget* widget, const QPoint& pos)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, pos);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(pos), QPointF(widget->mapToGlobal(pos)), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, pos);
}

// A ribbon with pages "A" to "D", shown at a fixed width.
struct Fixture
{
    RibbonBar bar;
    Fixture()
    {
        for (const char* title : {"A", "B", "C", "D"})
            bar.addPage(QString::fromLatin1(title));
        bar.resize(800, bar.heightForWidth(800));
        bar.show();
    }
};

} // namespace

class tst_QtitanRibbonPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addPageByTitle()
    {
        RibbonBar bar;
        QCOMPARE(bar.pageCount(), 0);
        QCOMPARE(bar.currentPageIndex(), -1);
        QVERIFY(!bar.page(0));
        QSignalSpy spy(&bar, &RibbonBar::currentPageIndexChanged);

        RibbonPage* home = bar.addPage(QStringLiteral("Главная"));
        QVERIFY(home);
        QCOMPARE(home->title(), QStringLiteral("Главная"));
        QCOMPARE(home->parentWidget(), static_cast<QWidget*>(&bar));
        QCOMPARE(bar.pageCount(), 1);
        QCOMPARE(bar.page(0), home);
        // The first page becomes the current one.
        QCOMPARE(bar.currentPageIndex(), 0);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 0);

        RibbonPage* view = bar.addPage(QStringLiteral("Вид"));
        QCOMPARE(bar.pages(), (QList<RibbonPage*>{home, view}));
        QCOMPARE(bar.currentPageIndex(), 0);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!bar.page(2));
        QVERIFY(!bar.page(-1));
    }

    void insertPageKeepsTheCurrentPage()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(1);
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);
        RibbonPage* b = f.bar.page(1);

        RibbonPage* first = f.bar.insertPage(0, QStringLiteral("First"));
        QCOMPARE(titles(f.bar), (QStringList{"First", "A", "B", "C", "D"}));
        QCOMPARE(f.bar.page(0), first);
        QCOMPARE(f.bar.currentPageIndex(), 2);
        QCOMPARE(f.bar.page(f.bar.currentPageIndex()), b);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 2);

        // After the current page nothing changes.
        f.bar.insertPage(4, QStringLiteral("Late"));
        QCOMPARE(titles(f.bar), (QStringList{"First", "A", "B", "C", "Late", "D"}));
        QCOMPARE(f.bar.currentPageIndex(), 2);
        QCOMPARE(spy.count(), 1);

        // Out of range appends.
        f.bar.insertPage(99, QStringLiteral("End"));
        f.bar.insertPage(-1, QStringLiteral("Tail"));
        QCOMPARE(titles(f.bar).mid(6), (QStringList{"End", "Tail"}));
    }

    // Inserting at exactly the current page's index puts the new page in
    // front of it: the page that was current stays current (and shown), one
    // index further on.
    void insertPageAtTheCurrentIndexKeepsTheCurrentPage()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(2);
        RibbonPage* c = f.bar.page(2);
        QTRY_VERIFY(c->isVisible());
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);

        RibbonPage* inserted = f.bar.insertPage(2, QStringLiteral("New"));
        QCOMPARE(titles(f.bar), (QStringList{"A", "B", "New", "C", "D"}));
        QCOMPARE(f.bar.currentPageIndex(), 3);
        QCOMPARE(f.bar.page(3), c);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 3);
        QVERIFY(c->isVisible());
        QVERIFY(!inserted->isVisible());

        // The same for a page object, and at the front while the first page is current.
        f.bar.setCurrentPageIndex(0);
        RibbonPage* a = f.bar.page(0);
        spy.clear();
        auto* front = new RibbonPage;
        front->setTitle(QStringLiteral("Front"));
        f.bar.insertPage(0, front);
        QCOMPARE(f.bar.page(0), front);
        QCOMPARE(f.bar.currentPageIndex(), 1);
        QCOMPARE(f.bar.page(1), a);
        QCOMPARE(spy.count(), 1);
        QVERIFY(a->isVisible());
        QVERIFY(!front->isVisible());

        // Into an empty ribbon the page becomes the current one.
        RibbonBar empty;
        QSignalSpy emptySpy(&empty, &RibbonBar::currentPageIndexChanged);
        RibbonPage* only = empty.insertPage(0, QStringLiteral("Only"));
        QCOMPARE(empty.currentPageIndex(), 0);
        QCOMPARE(empty.page(0), only);
        QCOMPARE(emptySpy.count(), 1);
    }

    void insertPageObjectTakesOwnership()
    {
        Fixture f;
        auto* page = new RibbonPage;
        page->setTitle(QStringLiteral("Own"));
        QVERIFY(!page->parentWidget());
        f.bar.insertPage(2, page);
        QCOMPARE(page->parentWidget(), static_cast<QWidget*>(&f.bar));
        QCOMPARE(f.bar.page(2), page);
        QCOMPARE(f.bar.pageCount(), 5);
        // Adding it again does not duplicate it.
        f.bar.addPage(page);
        QCOMPARE(f.bar.pageCount(), 5);

        auto* other = new RibbonPage;
        other->setTitle(QStringLiteral("Last"));
        f.bar.addPage(other);
        QCOMPARE(f.bar.page(5), other);
        f.bar.addPage(static_cast<RibbonPage*>(nullptr));
        QCOMPARE(f.bar.pageCount(), 6);
    }

    void pagesGoWithTheBar()
    {
        QPointer<RibbonPage> page;
        {
            RibbonBar bar;
            page = new RibbonPage;
            bar.addPage(page);
        }
        QVERIFY(page.isNull());
    }

    void pageConstructedForABar()
    {
        RibbonBar bar;
        auto* page = new RibbonPage(&bar, QStringLiteral("Made"));
        bar.addPage(page);
        QCOMPARE(bar.pageCount(), 1);
        QCOMPARE(bar.page(0)->title(), QStringLiteral("Made"));
    }

    void movePageByIndex()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(1); // B
        RibbonPage* b = f.bar.page(1);
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);

        f.bar.movePage(0, 3);
        QCOMPARE(titles(f.bar), (QStringList{"B", "C", "D", "A"}));
        QCOMPARE(f.bar.currentPageIndex(), 0);
        QCOMPARE(f.bar.page(0), b);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.last().at(0).toInt(), 0);

        f.bar.movePage(0, 2);
        QCOMPARE(titles(f.bar), (QStringList{"C", "D", "B", "A"}));
        QCOMPARE(f.bar.currentPageIndex(), 2);

        // Moving pages around the current one leaves it alone.
        spy.clear();
        f.bar.movePage(0, 1);
        QCOMPARE(titles(f.bar), (QStringList{"D", "C", "B", "A"}));
        QCOMPARE(f.bar.currentPageIndex(), 2);
        QCOMPARE(spy.count(), 0);

        // Bad indexes: the source is ignored, the target is clamped.
        f.bar.movePage(7, 0);
        f.bar.movePage(-1, 0);
        QCOMPARE(titles(f.bar), (QStringList{"D", "C", "B", "A"}));
        f.bar.movePage(0, 99);
        QCOMPARE(titles(f.bar), (QStringList{"C", "B", "A", "D"}));
        QCOMPARE(f.bar.page(f.bar.currentPageIndex()), b);
    }

    void movePageByObject()
    {
        Fixture f;
        RibbonPage* d = f.bar.page(3);
        f.bar.movePage(d, 0);
        QCOMPARE(titles(f.bar), (QStringList{"D", "A", "B", "C"}));
        QCOMPARE(f.bar.currentPageIndex(), 1); // A stays current
        RibbonPage stranger;
        f.bar.movePage(&stranger, 0);
        QCOMPARE(titles(f.bar), (QStringList{"D", "A", "B", "C"}));
    }

    void removePageDeletes()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(2); // C
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);
        QPointer<RibbonPage> a = f.bar.page(0);

        f.bar.removePage(0);
        QVERIFY(a.isNull());
        QCOMPARE(titles(f.bar), (QStringList{"B", "C", "D"}));
        QCOMPARE(f.bar.currentPageIndex(), 1);
        QCOMPARE(f.bar.page(1)->title(), QStringLiteral("C"));
        QCOMPARE(spy.count(), 1);

        // Removing the current page makes the next one current.
        QPointer<RibbonPage> c = f.bar.page(1);
        f.bar.removePage(c.data());
        QVERIFY(c.isNull());
        QCOMPARE(titles(f.bar), (QStringList{"B", "D"}));
        QCOMPARE(f.bar.currentPageIndex(), 1);
        QCOMPARE(f.bar.page(1)->title(), QStringLiteral("D"));
        QCOMPARE(spy.count(), 2);
        QVERIFY(f.bar.page(1)->isVisible());

        // The last page current and removed: the one before takes over.
        f.bar.removePage(1);
        QCOMPARE(titles(f.bar), (QStringList{"B"}));
        QCOMPARE(f.bar.currentPageIndex(), 0);

        // A page after the current one: no change.
        f.bar.addPage(QStringLiteral("E"));
        spy.clear();
        f.bar.removePage(1);
        QCOMPARE(f.bar.currentPageIndex(), 0);
        QCOMPARE(spy.count(), 0);

        f.bar.removePage(5);
        f.bar.removePage(-1);
        QCOMPARE(f.bar.pageCount(), 1);

        f.bar.removePage(0);
        QCOMPARE(f.bar.pageCount(), 0);
        QCOMPARE(f.bar.currentPageIndex(), -1);
        QCOMPARE(spy.last().at(0).toInt(), -1);
    }

    void detachPageHandsItOver()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(1);
        QPointer<RibbonPage> b = f.bar.page(1);
        f.bar.detachPage(b);
        QVERIFY(!b.isNull());
        QVERIFY(!b->parentWidget());
        QVERIFY(!b->isVisible());
        QCOMPARE(titles(f.bar), (QStringList{"A", "C", "D"}));
        QCOMPARE(f.bar.currentPageIndex(), 1);
        QCOMPARE(f.bar.page(1)->title(), QStringLiteral("C"));

        // A detached page can go to another ribbon.
        RibbonBar other;
        other.addPage(b);
        QCOMPARE(other.page(0), b.data());
        QCOMPARE(b->parentWidget(), static_cast<QWidget*>(&other));

        // Given to a ribbon while on another, it moves over.
        RibbonPage* a = f.bar.page(0);
        other.addPage(a);
        QCOMPARE(titles(f.bar), (QStringList{"C", "D"}));
        QCOMPARE(titles(other), (QStringList{"B", "A"}));

        f.bar.detachPage(nullptr);
        QCOMPARE(f.bar.pageCount(), 2);
    }

    void clearPagesDeletesAll()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(3);
        QList<QPointer<RibbonPage>> guards;
        for (RibbonPage* page : f.bar.pages())
            guards << page;
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);
        f.bar.clearPages();
        QCOMPARE(f.bar.pageCount(), 0);
        QCOMPARE(f.bar.currentPageIndex(), -1);
        QCOMPARE(spy.count(), 1);
        for (const auto& guard : guards)
            QVERIFY(guard.isNull());
        f.bar.clearPages();
        QCOMPARE(spy.count(), 1);
        // The ribbon is usable afterwards.
        f.bar.addPage(QStringLiteral("Again"));
        QCOMPARE(f.bar.currentPageIndex(), 0);
    }

    void pageDeletedElsewhereLeavesTheRibbon()
    {
        Fixture f;
        f.bar.setCurrentPageIndex(3);
        delete f.bar.page(1);
        QCOMPARE(titles(f.bar), (QStringList{"A", "C", "D"}));
        QCOMPARE(f.bar.currentPageIndex(), 2);
    }

    void setCurrentPageIndex()
    {
        Fixture f;
        QVERIFY(QTest::qWaitForWindowExposed(&f.bar));
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);
        f.bar.setCurrentPageIndex(2);
        QCOMPARE(f.bar.currentPageIndex(), 2);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 2);
        f.bar.setCurrentPageIndex(2);
        f.bar.setCurrentPageIndex(4);
        f.bar.setCurrentPageIndex(-1);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(f.bar.currentPageIndex(), 2);
        QVERIFY(f.bar.property("currentPageIndex").toInt() == 2);

        // Only the current page shows, across the bar's width, below the tabs.
        for (int i = 0; i < f.bar.pageCount(); ++i)
            QCOMPARE(f.bar.page(i)->isVisible(), i == 2);
        RibbonPage* page = f.bar.page(2);
        QCOMPARE(page->width(), f.bar.width());
        QVERIFY(page->geometry().top() > f.bar.tabRect(2).bottom());
        QVERIFY(page->geometry().bottom() < f.bar.height());
    }

    void clickOnATabSelectsIt()
    {
        Fixture f;
        QVERIFY(QTest::qWaitForWindowExposed(&f.bar));
        const QRect tab = f.bar.tabRect(2);
        QVERIFY(tab.isValid());
        QVERIFY(tab.left() > f.bar.tabRect(1).right());
        QTest::mouseClick(&f.bar, Qt::LeftButton, Qt::NoModifier, tab.center());
        QCOMPARE(f.bar.currentPageIndex(), 2);
        // Clicking the page area does not switch pages.
        QTest::mouseClick(&f.bar, Qt::LeftButton, Qt::NoModifier, QPoint(tab.center().x(), f.bar.height() - 10));
        QCOMPARE(f.bar.currentPageIndex(), 2);
    }

    void tabsFollowTitles()
    {
        Fixture f;
        const int before = f.bar.tabRect(0).width();
        f.bar.page(0)->setTitle(QStringLiteral("A much longer page title"));
        QVERIFY(f.bar.tabRect(0).width() > before);
        QVERIFY(f.bar.tabRect(1).left() > f.bar.tabRect(0).right());
    }

    void tabsNarrowToFitTheRow()
    {
        RibbonBar bar;
        bar.addSystemButton(QStringLiteral("File"));
        const QStringList names{QStringLiteral("Главная страница"), QStringLiteral("Вставка объектов"),
                                QStringLiteral("Разметка страницы"), QStringLiteral("Рецензирование")};
        for (const QString& name : names)
            bar.addPage(name);
        bar.resize(1200, bar.heightForWidth(1200));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        const int wideTab = bar.tabRect(0).width();
        QVERIFY(wideTab > bar.fontMetrics().horizontalAdvance(names.first()));

        bar.resize(360, bar.heightForWidth(360));
        QTRY_COMPARE(bar.width(), 360);
        QVERIFY(bar.tabRect(0).width() < wideTab);
        QVERIFY(bar.tabRect(0).left() > bar.systemButton()->geometry().right());
        for (int i = 0; i < names.size(); ++i) {
            const QRect tab = bar.tabRect(i);
            QVERIFY(tab.width() > 0);
            QVERIFY(tab.right() < bar.width());
            if (i > 0)
                QVERIFY(tab.left() > bar.tabRect(i - 1).right());
            QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, tab.center());
            QCOMPARE(bar.currentPageIndex(), i);
        }

        bar.resize(1200, bar.heightForWidth(1200));
        QTRY_COMPARE(bar.tabRect(0).width(), wideTab);
    }

    void wheelOverTheTabsSwitchesPages()
    {
        Fixture f;
        QVERIFY(QTest::qWaitForWindowExposed(&f.bar));
        QSignalSpy spy(&f.bar, &RibbonBar::currentPageIndexChanged);
        const QPoint overTabs(f.bar.width() - 20, f.bar.tabRect(0).center().y());
        sendWheel(&f.bar, overTabs, -120);
        QCOMPARE(f.bar.currentPageIndex(), 1);
        sendWheel(&f.bar, overTabs, -120);
        QCOMPARE(f.bar.currentPageIndex(), 2);
        sendWheel(&f.bar, overTabs, 120);
        QCOMPARE(f.bar.currentPageIndex(), 1);
        QCOMPARE(spy.count(), 3);
        // No wrapping at the ends.
        sendWheel(&f.bar, overTabs, 120);
        sendWheel(&f.bar, overTabs, 120);
        QCOMPARE(f.bar.currentPageIndex(), 0);
        f.bar.setCurrentPageIndex(3);
        sendWheel(&f.bar, overTabs, -120);
        QCOMPARE(f.bar.currentPageIndex(), 3);
        // Over the page area the wheel does nothing to the tabs.
        sendWheel(&f.bar, QPoint(20, f.bar.height() - 10), 120);
        QCOMPARE(f.bar.currentPageIndex(), 3);
    }

    void doubleClickMinimisesAndRestores()
    {
        RibbonMainWindow window;
        auto* bar = new RibbonBar;
        window.setRibbonBar(bar);
        for (const char* title : {"A", "B"})
            bar->addPage(QString::fromLatin1(title))->addGroup(QStringLiteral("Group"))->addAction(QIcon(), QStringLiteral("Go"), Qt::ToolButtonTextUnderIcon);
        window.setCentralWidget(new QWidget);
        window.resize(700, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(bar->height(), bar->heightForWidth(bar->width()));
        const int fullHeight = bar->height();
        QSignalSpy spy(bar, &RibbonBar::minimizationChanged);

        doubleClick(bar, bar->tabRect(1).center());
        QVERIFY(bar->isMinimized());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), true);
        QCOMPARE(bar->currentPageIndex(), 1);
        QVERIFY(!bar->page(1)->isVisible());
        QTRY_VERIFY(bar->height() < fullHeight - 40);
        QVERIFY(bar->height() > bar->tabRect(1).bottom());

        // A single click on a tab while minimised drops its page over the
        // workspace; the ribbon stays minimised.
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(0).center());
        QCOMPARE(bar->currentPageIndex(), 0);
        QVERIFY(bar->isMinimized());
        QCOMPARE(spy.count(), 1);
        QVERIFY(bar->page(0)->isVisible());
        QVERIFY(bar->page(0)->window() != &window);
        QApplication::activePopupWidget()->close();

        // A double click restores the page area.
        doubleClick(bar, bar->tabRect(0).center());
        QVERIFY(!bar->isMinimized());
        QCOMPARE(spy.count(), 2);
        QTRY_COMPARE(bar->height(), fullHeight);
        QVERIFY(bar->page(0)->isVisible());
        QCOMPARE(bar->page(0)->window(), &window);

        // A double click minimises again, and a double click restores.
        doubleClick(bar, bar->tabRect(0).center());
        QVERIFY(bar->isMinimized());
        doubleClick(bar, bar->tabRect(0).center());
        QVERIFY(!bar->isMinimized());
        QCOMPARE(spy.count(), 4);
        QCOMPARE(spy.last().at(0).toBool(), false);
        QTRY_COMPARE(bar->height(), fullHeight);

        // Double-clicking outside the tabs does nothing.
        doubleClick(bar, QPoint(bar->width() - 5, bar->height() - 5));
        QVERIFY(!bar->isMinimized());

        bar->setMinimized(true);
        QVERIFY(bar->property("minimized").toBool());
        QCOMPARE(spy.count(), 5);
    }

    void ribbonIsTallEnoughForItsPages()
    {
        RibbonBar bar;
        RibbonPage* page = bar.addPage(QStringLiteral("Home"));
        RibbonGroup* group = page->addGroup(QStringLiteral("Clipboard"));
        group->addAction(QIcon(), QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon);
        group->addAction(QIcon(), QStringLiteral("Cut"), Qt::ToolButtonTextBesideIcon);
        bar.resize(900, bar.heightForWidth(900));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QVERIFY(page->height() >= page->sizeHint().height());
        QVERIFY(group->geometry().bottom() < page->height());
    }
};

QTEST_MAIN(tst_QtitanRibbonPages)
#include "tst_qtitanribbonpages.moc"
