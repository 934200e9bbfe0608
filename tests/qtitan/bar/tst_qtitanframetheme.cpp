#include <QtitanRibbon.h>

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QtTest>

using namespace Qtitan;

namespace {

class ClosableWindow : public RibbonMainWindow
{
public:
    bool mayClose = true;

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(mayClose); }
};

struct FramedRibbon
{
    explicit FramedRibbon(bool frameTheme = true)
    {
        bar = new RibbonBar;
        bar->setFrameThemeEnabled(frameTheme);
        window.setRibbonBar(bar);
        bar->addSystemButton(QStringLiteral("File"));
        bar->addPage(QStringLiteral("Home"));
        bar->addPage(QStringLiteral("Insert"));
        bar->quickAccessBar()->addAction(QStringLiteral("Save"));
        bar->quickAccessBar()->show();
        window.setWindowTitle(QStringLiteral("Report - Tessaro"));
        window.setCentralWidget(new QPushButton(QStringLiteral("Workspace")));
        window.setGeometry(100, 100, 800, 500);
        window.show();
    }

    QAbstractButton* caption(const char* name) const { return bar->findChild<QAbstractButton*>(QLatin1String(name)); }
    QAbstractButton* minimize() const { return caption("qtitan_caption_minimize"); }
    QAbstractButton* maximize() const { return caption("qtitan_caption_maximize"); }
    QAbstractButton* close() const { return caption("qtitan_caption_close"); }

    int titleStripHeight() const { return bar->tabRect(0).top() - 3; }
    QWindow* handle() const { return window.windowHandle(); }
    QPoint inWindow(QWidget* widget, const QPoint& pos) const { return widget->mapTo(&window, pos); }

    // An empty spot of the title strip: right of the quick access bar, left of the title.
    QPoint emptyTitleSpot() const { return QPoint(bar->quickAccessBar()->geometry().right() + 20, titleStripHeight() / 2); }

    ClosableWindow window;
    RibbonBar* bar = nullptr;
};

// Presses at @p local, drags the mouse by @p delta on the screen and lets go
// there, as a hand would (the window may move under the mouse meanwhile).
void drag(QWindow* window, const QPoint& local, const QPoint& delta)
{
    const QPoint target = window->mapToGlobal(local) + delta;
    QTest::mousePress(window, Qt::LeftButton, {}, local);
    QTest::mouseMove(window, window->mapFromGlobal(target));
    QTest::mouseRelease(window, Qt::LeftButton, {}, window->mapFromGlobal(target));
}

void waitForMaximized(QWidget* window)
{
    QTRY_VERIFY(window->isMaximized());
    QTRY_COMPARE(window->geometry(), window->screen()->availableGeometry());
}

QImage look(QWidget* widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The columns of the title strip where something other than the frame colour is drawn.
QVector<int> inkColumns(RibbonBar* bar, int top, int bottom, int from, int to)
{
    const QImage image = bar->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb frame = image.pixel(from, top);
    QVector<int> columns;
    for (int x = from; x < to; ++x) {
        for (int y = top; y < bottom; ++y) {
            if (image.pixel(x, y) != frame) {
                columns.append(x);
                break;
            }
        }
    }
    return columns;
}

} // namespace

class tst_QtitanFrameTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frameThemeTakesTheNativeFrameAway()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QVERIFY(r.window.windowFlags() & Qt::FramelessWindowHint);
        r.bar->setFrameThemeEnabled(false);
        QVERIFY(!(r.window.windowFlags() & Qt::FramelessWindowHint));
        // Still on screen after the frame changed.
        QVERIFY(r.window.isVisible());
        QVERIFY(!r.minimize()->isVisible());
        r.bar->setFrameThemeEnabled(true);
        QVERIFY(r.window.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(r.window.isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
    }

    void aHostsOwnFramelessWindowStaysFrameless()
    {
        RibbonMainWindow window;
        window.setWindowFlag(Qt::FramelessWindowHint);
        auto* bar = new RibbonBar;
        window.setRibbonBar(bar);
        bar->setFrameThemeEnabled(true);
        bar->setFrameThemeEnabled(false);
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
    }

    void nativeFrameComesBackWhenTheRibbonLeaves()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        // The host swaps the ribbon for a classic menu bar.
        r.window.setMenuWidget(new QMenuBar);
        QVERIFY(!(r.window.windowFlags() & Qt::FramelessWindowHint));
        QTRY_VERIFY(r.window.isVisible());

        // A ribbon deleted outright gives the frame back once the window has settled.
        auto* bar = new RibbonBar;
        r.window.setRibbonBar(bar);
        bar->setFrameThemeEnabled(true);
        QVERIFY(r.window.windowFlags() & Qt::FramelessWindowHint);
        delete bar;
        QTRY_VERIFY(!(r.window.windowFlags() & Qt::FramelessWindowHint));
    }

    void ribbonDeletedWithItsWindow()
    {
        auto* window = new RibbonMainWindow;
        auto* bar = new RibbonBar;
        bar->setFrameThemeEnabled(true);
        window->setRibbonBar(bar);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        // Nothing may reach back into the window once it is gone.
        QPointer<RibbonBar> guard(bar);
        delete window;
        QVERIFY(!guard);
        QCoreApplication::processEvents();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void captionButtonsSitAtTheRightOfTheTitleStrip()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QAbstractButton* buttons[] = {r.minimize(), r.maximize(), r.close()};
        for (QAbstractButton* button : buttons) {
            QVERIFY(button);
            QVERIFY(button->isVisible());
            QCOMPARE(button->y(), 0);
            QCOMPARE(button->height(), r.titleStripHeight());
            QVERIFY(button->width() > button->height());
        }
        QCOMPARE(r.close()->geometry().right(), r.bar->width() - 1);
        QCOMPARE(r.maximize()->geometry().right() + 1, r.close()->x());
        QCOMPARE(r.minimize()->geometry().right() + 1, r.maximize()->x());
        // The quick access bar stays left of them, on the title strip.
        QVERIFY(r.bar->quickAccessBar()->geometry().bottom() < r.titleStripHeight());
        QVERIFY(r.bar->quickAccessBar()->geometry().right() < r.minimize()->x());
    }

    void titleIsCentredAndKeepsClearOfTheButtons()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        const int strip = r.titleStripHeight();
        const int left = r.bar->quickAccessBar()->geometry().right() + 1;
        QVector<int> ink = inkColumns(r.bar, 2, strip - 2, left + 4, r.minimize()->x());
        QVERIFY(!ink.isEmpty());
        const int middle = (ink.first() + ink.last()) / 2;
        QVERIFY2(qAbs(middle - r.bar->width() / 2) <= 3, qPrintable(QString::number(middle)));

        // A title too long for the strip is shortened before the buttons.
        r.window.setWindowTitle(QString(200, QLatin1Char('W')));
        ink = inkColumns(r.bar, 2, strip - 2, left + 4, r.minimize()->x());
        QVERIFY(!ink.isEmpty());
        QVERIFY(ink.last() < r.minimize()->x() - 4);
    }

    void captionButtonsActOnTheWindow()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        const QImage maximizeGlyph = look(r.maximize());
        QTest::mouseClick(r.maximize(), Qt::LeftButton);
        QTRY_VERIFY(r.window.isMaximized());
        // The same button now restores, and shows it.
        QTRY_VERIFY(look(r.maximize()) != maximizeGlyph);
        QTest::mouseClick(r.maximize(), Qt::LeftButton);
        QTRY_VERIFY(!r.window.isMaximized());
        QTRY_COMPARE(look(r.maximize()), maximizeGlyph);

        QTest::mouseClick(r.minimize(), Qt::LeftButton);
        QTRY_VERIFY(r.window.isMinimized());
        r.window.showNormal();
        QTRY_VERIFY(!r.window.isMinimized());

        // Close asks the window, which may refuse.
        r.window.mayClose = false;
        QTest::mouseClick(r.close(), Qt::LeftButton);
        QVERIFY(r.window.isVisible());
        r.window.mayClose = true;
        QTest::mouseClick(r.close(), Qt::LeftButton);
        QVERIFY(!r.window.isVisible());
    }

    // Tool tips and screen readers say what each button does, the maximise
    // button what it will do in the window's present state.
    void captionButtonsSayWhatTheyDo()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        const QString minimize = QString::fromUtf8("Свернуть");
        const QString maximize = QString::fromUtf8("Развернуть");
        const QString restore = QString::fromUtf8("Восстановить");
        const QString close = QString::fromUtf8("Закрыть");
        QCOMPARE(r.minimize()->toolTip(), minimize);
        QCOMPARE(r.minimize()->accessibleName(), minimize);
        QCOMPARE(r.close()->toolTip(), close);
        QCOMPARE(r.close()->accessibleName(), close);
        QCOMPARE(r.maximize()->toolTip(), maximize);
        QTest::mouseClick(r.maximize(), Qt::LeftButton);
        QTRY_COMPARE(r.maximize()->toolTip(), restore);
        QCOMPARE(r.maximize()->accessibleName(), restore);
        QTest::mouseClick(r.maximize(), Qt::LeftButton);
        QTRY_COMPARE(r.maximize()->toolTip(), maximize);
    }

    void maximizeButtonLooksPlainOnceTheWindowMovesItAway()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        // The mouse stays where the button was; the maximised window puts the button elsewhere.
        QTest::mouseMove(r.maximize());
        QVERIFY(r.maximize()->underMouse());
        QTest::mouseClick(r.maximize(), Qt::LeftButton);
        waitForMaximized(&r.window);
        QVERIFY(!r.maximize()->rect().contains(r.maximize()->mapFromGlobal(QCursor::pos())));
        QVERIFY(!r.maximize()->underMouse());
        const QImage plain = look(r.maximize());
        // Hovering it again, on the way from the workspace, lights it up.
        QTest::mouseMove(&r.window, QPoint(r.window.width() / 2, r.window.height() - 40));
        QTest::mouseMove(r.maximize());
        QVERIFY(r.maximize()->underMouse());
        QVERIFY(look(r.maximize()) != plain);
    }

    void captionButtonStates()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QTest::mouseMove(&r.window, QPoint(r.window.width() / 2, r.window.height() - 40));
        for (QAbstractButton* button : {r.minimize(), r.maximize(), r.close()}) {
            const QImage plain = look(button);
            QTest::mouseMove(button);
            QVERIFY(button->underMouse());
            const QImage hovered = look(button);
            QVERIFY(hovered != plain);
            button->setDown(true);
            const QImage pressed = look(button);
            button->setDown(false);
            QVERIFY(pressed != hovered);
            QVERIFY(pressed != plain);
            QTest::mouseMove(&r.window, QPoint(r.window.width() / 2, r.window.height() - 40));
            QCOMPARE(look(button), plain);
        }
        // Close lights up red under the mouse, as people know it.
        QTest::mouseMove(r.close());
        const QColor hot = look(r.close()).pixelColor(3, 3);
        QVERIFY2(hot.red() > 180 && hot.green() < 80 && hot.blue() < 80, qPrintable(hot.name()));
    }

    void captionButtonsFollowTheStyle()
    {
        // A frame shaded from top to bottom shows whether the buttons leave it visible.
        Office2007Style style(Office2007Style::Blue);
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.bar->setStyle(&style);
        for (QAbstractButton* button : r.bar->findChildren<QAbstractButton*>())
            button->setStyle(&style);
        QTest::mouseMove(&r.window, QPoint(r.window.width() / 2, r.window.height() - 40));
        const QImage bar = look(r.bar);
        const QRect minimize = r.minimize()->geometry();
        // At rest a button is the frame under it, row by row, up to its glyph.
        QVERIFY(bar.pixelColor(minimize.left() - 2, 1) != bar.pixelColor(minimize.left() - 2, minimize.bottom() - 1));
        for (int y = minimize.top(); y <= minimize.bottom(); ++y)
            QCOMPARE(bar.pixelColor(minimize.left() + 1, y), bar.pixelColor(minimize.left() - 2, y));
        // The glyph takes the title's colour.
        const QImage image = bar.copy(minimize);
        int glyph = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                glyph += image.pixelColor(x, y) == style.ribbonColors().titleText ? 1 : 0;
        }
        // The minimise glyph: one line, ten pixels long.
        QCOMPARE(glyph, 10);
        r.bar->setStyle(nullptr);
        for (QAbstractButton* button : r.bar->findChildren<QAbstractButton*>())
            button->setStyle(nullptr);
    }

    void doubleClickOnTheTitleMaximizesAndRestores()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QTest::mouseDClick(r.handle(), Qt::LeftButton, {}, r.inWindow(r.bar, r.emptyTitleSpot()));
        QTRY_VERIFY(r.window.isMaximized());
        QTest::mouseDClick(r.handle(), Qt::LeftButton, {}, r.inWindow(r.bar, r.emptyTitleSpot()));
        QTRY_VERIFY(!r.window.isMaximized());
        // A double click on a tab is the tab's, not the title's.
        QTest::mouseDClick(r.handle(), Qt::LeftButton, {}, r.inWindow(r.bar, r.bar->tabRect(1).center()));
        QVERIFY(!r.window.isMaximized());
        QVERIFY(r.bar->isMinimized());
    }

    void dragOnTheTitleMovesTheWindow()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        const QPoint before = r.window.pos();
        const QPoint spot = r.inWindow(r.bar, r.emptyTitleSpot());
        // A hand that twitches while it clicks (or clicks twice) moves nothing:
        // a window system moving the window would swallow the second click.
        QTest::mousePress(r.handle(), Qt::LeftButton, {}, spot);
        QTest::mouseMove(r.handle(), spot + QPoint(1, 1));
        QTest::mouseRelease(r.handle(), Qt::LeftButton, {}, spot + QPoint(1, 1));
        QCOMPARE(r.window.pos(), before);
        // Past the drag distance the window follows the mouse (the offscreen
        // platform cannot move it itself).
        QTest::mousePress(r.handle(), Qt::LeftButton, {}, spot);
        QTest::mouseMove(r.handle(), spot + QPoint(20, 10));
        QTRY_COMPARE(r.window.pos(), before + QPoint(20, 10));
        QTest::mouseMove(r.handle(), r.handle()->mapFromGlobal(r.handle()->mapToGlobal(spot) + QPoint(40, 30)));
        QTRY_COMPARE(r.window.pos(), before + QPoint(60, 40));
        QTest::mouseRelease(r.handle(), Qt::LeftButton, {}, spot);
        // Once let go, moving the mouse leaves the window alone.
        QTest::mouseMove(r.handle(), spot + QPoint(50, 50));
        QCOMPARE(r.window.pos(), before + QPoint(60, 40));
        // A press on the title does not reach the tabs.
        QCOMPARE(r.bar->currentPageIndex(), 0);

        // A maximised window stays where it is.
        r.window.showMaximized();
        waitForMaximized(&r.window);
        const QPoint maximized = r.window.pos();
        drag(r.handle(), spot, QPoint(60, 40));
        QCoreApplication::processEvents();
        QCOMPARE(r.window.pos(), maximized);
    }

    void edgesResizeTheWindow()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        const QRect before = r.window.geometry();
        // The right edge, halfway down.
        const QPoint right(r.window.width() - 2, r.window.height() / 2);
        QTest::mouseMove(r.handle(), right);
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
        drag(r.handle(), right, QPoint(40, 0));
        QTRY_COMPARE(r.window.geometry(), before.adjusted(0, 0, 40, 0));

        // The bottom left corner: wider to the left and taller.
        const QRect middle = r.window.geometry();
        const QPoint corner(1, r.window.height() - 2);
        QTest::mouseMove(r.handle(), corner);
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeBDiagCursor);
        drag(r.handle(), corner, QPoint(-30, 20));
        QTRY_COMPARE(r.window.geometry(), middle.adjusted(-30, 0, 0, 20));

        // Never below the window's minimum size.
        const QPoint left(1, r.window.height() / 2);
        drag(r.handle(), left, QPoint(2000, 0));
        QTRY_COMPARE(r.window.width(), r.window.minimumSizeHint().expandedTo(r.window.minimumSize()).width());

        // Away from the edges the cursor is the widgets' own again.
        QTest::mouseMove(r.handle(), QPoint(r.window.width() / 2, r.window.height() / 2));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void edgesOfAMaximizedWindowBelongToItsWidgets()
    {
        FramedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.window.showMaximized();
        waitForMaximized(&r.window);
        auto* workspace = static_cast<QPushButton*>(r.window.centralWidget());
        QSignalSpy clicked(workspace, &QPushButton::clicked);
        const QRect geometry = r.window.geometry();
        const QPoint edge(r.window.width() - 1, r.window.height() / 2);
        QTest::mouseMove(r.handle(), edge);
        QVERIFY(!QGuiApplication::overrideCursor());
        QTest::mouseClick(r.handle(), Qt::LeftButton, {}, edge);
        QCOMPARE(r.window.geometry(), geometry);
        QCOMPARE(clicked.count(), 1);
    }

    void withoutFrameThemeNoSecondTitle()
    {
        FramedRibbon r(false);
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QVERIFY(!(r.window.windowFlags() & Qt::FramelessWindowHint));
        QVERIFY(!r.minimize());
        // The strip above the tabs holds the quick access bar and nothing else.
        const int strip = r.bar->tabRect(0).top() - 3;
        QVERIFY(strip > 0);
        const int left = r.bar->quickAccessBar()->geometry().right() + 4;
        QVERIFY(inkColumns(r.bar, 1, strip - 1, left, r.bar->width() - 1).isEmpty());
        // And a press there does not move the window.
        const QPoint before = r.window.pos();
        drag(r.handle(), r.inWindow(r.bar, QPoint(r.bar->width() / 2, strip / 2)), QPoint(60, 40));
        QCOMPARE(r.window.pos(), before);
    }
};

QTEST_MAIN(tst_QtitanFrameTheme)
#include "tst_qtitanframetheme.moc"
