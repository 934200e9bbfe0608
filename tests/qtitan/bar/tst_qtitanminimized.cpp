#include <QtitanRibbon.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace Qtitan;

namespace {

// A main window with a minimised ribbon over a workspace button that counts its clicks.
struct MinimizedRibbon
{
    MinimizedRibbon()
    {
        bar = new RibbonBar;
        window.setRibbonBar(bar);
        RibbonPage* home = bar->addPage(QStringLiteral("Home"));
        RibbonGroup* clipboard = home->addGroup(QStringLiteral("Clipboard"));
        paste = clipboard->addAction(QIcon(), QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon);
        cut = clipboard->addAction(QIcon(), QStringLiteral("Cut"), Qt::ToolButtonTextBesideIcon);
        RibbonPage* insert = bar->addPage(QStringLiteral("Insert"));
        table = insert->addGroup(QStringLiteral("Tables"))->addAction(QIcon(), QStringLiteral("Table"),
                                                                      Qt::ToolButtonTextUnderIcon);
        workspace = new QPushButton(QStringLiteral("Workspace"));
        window.setCentralWidget(workspace);
        window.resize(900, 600);
        window.show();
        bar->setMinimized(true);
        QCoreApplication::processEvents();
    }

    QWindow* handle() const { return window.windowHandle(); }

    // Where a tab is, in the window's coordinates: clicks go through the window
    // as the window system delivers them, so an open popup sees them first.
    QPoint tabInWindow(int index) const { return bar->mapTo(&window, bar->tabRect(index).center()); }

    void clickTab(int index) { QTest::mouseClick(handle(), Qt::LeftButton, {}, tabInWindow(index)); }

    QWidget* popup() const
    {
        QWidget* active = QApplication::activePopupWidget();
        return active && active->objectName() == QLatin1String("qtitan_ribbon_pagepopup") ? active : nullptr;
    }

    QToolButton* buttonOf(QAction* action) const
    {
        const QList<QToolButton*> buttons = window.findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            if (button->defaultAction() == action)
                return button;
        }
        return nullptr;
    }

    RibbonMainWindow window;
    RibbonBar* bar = nullptr;
    QAction* paste = nullptr;
    QAction* cut = nullptr;
    QAction* table = nullptr;
    QPushButton* workspace = nullptr;
};

} // namespace

class tst_QtitanMinimized : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    void clickOnATabDropsThePageOverTheWorkspace()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        const QRect workspaceBefore = r.workspace->geometry();
        const int barHeight = r.bar->height();
        QVERIFY(!r.bar->page(1)->isVisible());

        r.clickTab(1);
        QWidget* popup = r.popup();
        QVERIFY(popup);
        QCOMPARE(r.bar->currentPageIndex(), 1);
        RibbonPage* insert = r.bar->page(1);
        QVERIFY(insert->isVisible());
        QCOMPARE(insert->window(), popup);
        // Below the tabs, over the workspace, which stays where it was.
        const QRect pageOnScreen(insert->mapToGlobal(QPoint(0, 0)), insert->size());
        const QRect workspaceOnScreen(r.workspace->mapToGlobal(QPoint(0, 0)), r.workspace->size());
        QVERIFY(pageOnScreen.top() >= r.bar->mapToGlobal(r.bar->tabRect(1).bottomLeft()).y());
        QVERIFY(pageOnScreen.intersects(workspaceOnScreen));
        QVERIFY(pageOnScreen.width() >= r.bar->width() - 2);
        QVERIFY(r.bar->isMinimized());
        QCoreApplication::processEvents();
        QCOMPARE(r.workspace->geometry(), workspaceBefore);
        QCOMPARE(r.bar->height(), barHeight);
    }

    void popupClosesAfterACommandRuns()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(0);
        QWidget* popup = r.popup();
        QVERIFY(popup);
        QVERIFY(QTest::qWaitForWindowExposed(popup));
        QSignalSpy pasted(r.paste, &QAction::triggered);
        QToolButton* button = r.buttonOf(r.paste);
        QVERIFY(button && button->isVisible());
        QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, button->mapTo(popup, button->rect().center()));
        QCOMPARE(pasted.count(), 1);
        QTRY_VERIFY(!popup->isVisible());
        QVERIFY(!r.popup());
        // The page is back on the ribbon, hidden; the ribbon stays minimised.
        QCOMPARE(r.bar->page(0)->parentWidget(), static_cast<QWidget*>(r.bar));
        QVERIFY(!r.bar->page(0)->isVisible());
        QVERIFY(r.bar->isMinimized());
        // And it drops down again on the next click.
        r.clickTab(0);
        QVERIFY(r.popup());
        QVERIFY(r.bar->page(0)->isVisible());
    }

    void escapeClosesThePopup()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(0);
        QVERIFY(r.popup());
        QTest::keyClick(r.handle(), Qt::Key_Escape);
        QVERIFY(!r.popup());
        QVERIFY(!r.bar->page(0)->isVisible());
        QVERIFY(r.bar->isMinimized());
    }

    void clickOutsideClosesThePopup()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(0);
        QVERIFY(r.popup());
        // Low in the workspace, below the dropped page. (Whether the press then
        // reaches the workspace is the window system's choice: Qt replays it
        // where the popup could grab the mouse, not on the offscreen platform.)
        const QPoint where = r.workspace->mapTo(&r.window, QPoint(r.workspace->width() / 2, r.workspace->height() - 20));
        QTest::mouseClick(r.handle(), Qt::LeftButton, {}, where);
        QVERIFY(!r.popup());
        QVERIFY(r.bar->isMinimized());
        QVERIFY(!r.bar->page(0)->isVisible());
        QCOMPARE(r.bar->page(0)->parentWidget(), static_cast<QWidget*>(r.bar));
    }

    void clickOnTheSameTabClosesThePopup()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(0);
        QVERIFY(r.popup());
        r.clickTab(0);
        QVERIFY(!r.popup());
        // The press does not come back to open it again.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QVERIFY(!r.popup());
        QVERIFY(r.bar->isMinimized());
    }

    void clickOnAnotherTabDropsThatPage()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(0);
        QVERIFY(r.popup());
        r.clickTab(1);
        QTRY_VERIFY(r.popup());
        QCOMPARE(r.bar->currentPageIndex(), 1);
        QVERIFY(r.bar->page(1)->isVisible());
        QVERIFY(!r.bar->page(0)->isVisible());
        QCOMPARE(r.bar->page(0)->parentWidget(), static_cast<QWidget*>(r.bar));
    }

    void doubleClickOnATabTogglesMinimization()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QSignalSpy changes(r.bar, &RibbonBar::minimizationChanged);
        const int minimizedHeight = r.bar->height();
        // Minimised: the first press drops the page, the second click of the pair brings the page area back.
        QTest::mouseDClick(r.handle(), Qt::LeftButton, {}, r.tabInWindow(1));
        QVERIFY(!r.bar->isMinimized());
        QCOMPARE(changes.count(), 1);
        QVERIFY(!r.popup());
        QCOMPARE(r.bar->currentPageIndex(), 1);
        QCOMPARE(r.bar->page(1)->parentWidget(), static_cast<QWidget*>(r.bar));
        QTRY_VERIFY(r.bar->page(1)->isVisible());
        QTRY_VERIFY(r.bar->height() > minimizedHeight);
        // The page area pushes the workspace down again.
        QTRY_VERIFY(r.workspace->geometry().top() >= r.bar->geometry().bottom());

        QTest::mouseDClick(r.handle(), Qt::LeftButton, {}, r.tabInWindow(1));
        QVERIFY(r.bar->isMinimized());
        QCOMPARE(changes.count(), 2);
        QVERIFY(!r.popup());
        QTRY_COMPARE(r.bar->height(), minimizedHeight);
    }

    void ctrlF1TogglesMinimization()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&r.window));
        QTest::keyClick(r.handle(), Qt::Key_F1, Qt::ControlModifier);
        QVERIFY(!r.bar->isMinimized());
        QTest::keyClick(r.handle(), Qt::Key_F1, Qt::ControlModifier);
        QVERIFY(r.bar->isMinimized());
        // With the page dropped down, it brings the page area back.
        r.clickTab(0);
        QVERIFY(r.popup());
        QTest::keyClick(r.handle(), Qt::Key_F1, Qt::ControlModifier);
        QVERIFY(!r.bar->isMinimized());
        QVERIFY(!r.popup());
        QVERIFY(r.bar->page(0)->isVisible());
        QCOMPARE(r.bar->page(0)->parentWidget(), static_cast<QWidget*>(r.bar));
    }

    void unminimizingTakesThePageBack()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(1);
        QVERIFY(r.popup());
        r.bar->setMinimized(false);
        QVERIFY(!r.popup());
        QCOMPARE(r.bar->page(1)->parentWidget(), static_cast<QWidget*>(r.bar));
        QVERIFY(r.bar->page(1)->isVisible());
        QVERIFY(!r.bar->page(0)->isVisible());
    }

    void pageRemovedWhileDroppedDown()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(1);
        QVERIFY(r.popup());
        QPointer<RibbonPage> insert = r.bar->page(1);
        r.bar->removePage(1);
        QVERIFY(!insert);
        QVERIFY(!r.popup());
        QCOMPARE(r.bar->pageCount(), 1);

        // Deleted by someone else while dropped down.
        r.clickTab(0);
        QVERIFY(r.popup());
        delete r.bar->page(0);
        QVERIFY(!r.popup());
        QCOMPARE(r.bar->pageCount(), 0);
    }

    void ribbonDeletedWhileDroppedDown()
    {
        MinimizedRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.clickTab(0);
        QVERIFY(r.popup());
        QPointer<RibbonPage> home = r.bar->page(0);
        delete r.bar;
        QVERIFY(!home);
        QVERIFY(!QApplication::activePopupWidget());
    }
};

QTEST_MAIN(tst_QtitanMinimized)
#include "tst_qtitanminimized.moc"
