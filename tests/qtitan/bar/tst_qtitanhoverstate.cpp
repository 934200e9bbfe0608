#include <QtitanRibbon.h>

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using namespace Qtitan;

namespace {

// A window with a ribbon whose buttons open menus, over a workspace far from them.
struct HoverRibbon
{
    HoverRibbon()
    {
        bar = new RibbonBar;
        window.setRibbonBar(bar);
        systemAction = bar->addSystemButton(QStringLiteral("File"));
        systemAction->menu()->addAction(QStringLiteral("New"));
        systemAction->menu()->addAction(QStringLiteral("Open"));
        RibbonPage* view = bar->addPage(QStringLiteral("View"));
        RibbonGroup* window_ = view->addGroup(QStringLiteral("Window"));
        styleMenu = new QMenu(&window);
        for (const char* name : {"Office 2007", "Office 2010", "Office 2016"})
            styleMenu->addAction(QLatin1String(name));
        style = window_->addAction(QIcon(), QStringLiteral("Style"), Qt::ToolButtonTextUnderIcon, styleMenu,
                                   QToolButton::InstantPopup);
        splitMenu = new QMenu(&window);
        splitMenu->addAction(QStringLiteral("Paste Special"));
        splitMenu->addAction(QStringLiteral("Paste Text"));
        paste = window_->addAction(QIcon(), QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon, splitMenu,
                                   QToolButton::MenuButtonPopup);
        RibbonGroup* zoom = view->addGroup(QStringLiteral("Zoom"));
        zoomIn = zoom->addAction(QIcon(), QStringLiteral("Zoom In"), Qt::ToolButtonTextBesideIcon);
        zoom->addAction(QIcon(), QStringLiteral("Zoom Out"), Qt::ToolButtonTextBesideIcon);
        // A page of one wide group, to collapse on its own in a narrow window.
        arrange = bar->addPage(QStringLiteral("Layout"))->addGroup(QStringLiteral("Arrange"));
        forward = arrange->addAction(QIcon(), QStringLiteral("Bring Forward"), Qt::ToolButtonTextBesideIcon);
        for (int i = 0; i < 14; ++i)
            arrange->addAction(QIcon(), QStringLiteral("Step %1").arg(i), Qt::ToolButtonTextBesideIcon);
        workspace = new QPushButton(QStringLiteral("Workspace"));
        window.setCentralWidget(workspace);
        window.resize(900, 600);
        window.show();
    }

    QToolButton* buttonOf(QAction* action) const
    {
        const QList<QToolButton*> buttons = window.findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            if (button->defaultAction() == action && button->isVisible())
                return button;
        }
        return nullptr;
    }

    void moveAway() { QTest::mouseMove(workspace, QPoint(workspace->width() / 2, workspace->height() - 10)); }

    RibbonMainWindow window;
    RibbonBar* bar = nullptr;
    QAction* systemAction = nullptr;
    QMenu* styleMenu = nullptr;
    QMenu* splitMenu = nullptr;
    QAction* style = nullptr;
    QAction* paste = nullptr;
    QAction* zoomIn = nullptr;
    RibbonGroup* arrange = nullptr;
    QAction* forward = nullptr;
    QPushButton* workspace = nullptr;
};

QImage look(QWidget* widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Once @p menu is up, moves the mouse onto its entry @p index and clicks it, as a user does.
void chooseWhenShown(QMenu* menu, int index)
{
    auto* poll = new QTimer(menu);
    poll->setInterval(10);
    QObject::connect(poll, &QTimer::timeout, menu, [menu, index, poll]() {
        if (!menu->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        const QPoint entry = menu->actionGeometry(menu->actions().at(index)).center();
        QTest::mouseMove(menu, entry);
        QTest::mouseClick(menu, Qt::LeftButton, {}, entry);
    });
    poll->start();
}

} // namespace

class tst_QtitanHoverState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    void largeMenuButtonLooksPlainAfterAnEntryIsChosen()
    {
        HoverRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QToolButton* button = r.buttonOf(r.style);
        QVERIFY(button);
        r.moveAway();
        const QImage plain = look(button);
        QTest::mouseMove(button);
        QVERIFY(button->underMouse());
        QVERIFY(look(button) != plain);

        QSignalSpy chosen(r.styleMenu, &QMenu::triggered);
        chooseWhenShown(r.styleMenu, 2);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(chosen.count(), 1);
        // The mouse rests on the spot of the closed menu's entry, below the button.
        QVERIFY(!button->rect().contains(button->mapFromGlobal(QCursor::pos())));
        QVERIFY(!button->isDown());
        QVERIFY(!button->underMouse());
        QCOMPARE(look(button), plain);

        // Hovering still works afterwards.
        QTest::mouseMove(button);
        QVERIFY(button->underMouse());
        QVERIFY(look(button) != plain);
    }

    void splitButtonLooksPlainAfterAnEntryIsChosen()
    {
        HoverRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        QToolButton* button = r.buttonOf(r.paste);
        QVERIFY(button);
        r.moveAway();
        const QImage plain = look(button);
        // The drop-down part of a large split button is its lower half.
        const QPoint arrow(button->width() / 2, button->height() - 6);
        QTest::mouseMove(button, arrow);
        QVERIFY(look(button) != plain);
        QSignalSpy chosen(r.splitMenu, &QMenu::triggered);
        chooseWhenShown(r.splitMenu, 1);
        QTest::mouseClick(button, Qt::LeftButton, {}, arrow);
        QCOMPARE(chosen.count(), 1);
        QVERIFY(!button->underMouse());
        QCOMPARE(look(button), plain);
    }

    void systemButtonLooksPlainAfterItsMenuCloses()
    {
        HoverRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        RibbonSystemButton* button = r.bar->systemButton();
        r.moveAway();
        const QImage plain = look(button);
        QTest::mouseMove(button);
        QVERIFY(look(button) != plain);
        QSignalSpy chosen(r.systemAction->menu(), &QMenu::triggered);
        chooseWhenShown(r.systemAction->menu(), 1);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(chosen.count(), 1);
        QVERIFY(!button->underMouse());
        QCOMPARE(look(button), plain);
    }

    void collapsedGroupLooksPlainAfterACommandRunsInItsPopup()
    {
        HoverRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.bar->setCurrentPageIndex(1);
        // Narrow enough that the group collapses to its single button.
        RibbonGroup* group = r.arrange;
        for (int width = 400; width > 40 && group->currentSize() != RibbonControlSizeDefinition::GroupPopup; width -= 5) {
            r.window.resize(width, 600);
            QCoreApplication::processEvents();
        }
        QCOMPARE(group->currentSize(), RibbonControlSizeDefinition::GroupPopup);
        auto* groupButton = group->findChild<QAbstractButton*>(QStringLiteral("qtitan_ribbongroup_button"));
        QVERIFY(groupButton && groupButton->isVisible());
        r.moveAway();
        const QImage plain = look(groupButton);
        QTest::mouseMove(groupButton);
        QVERIFY(groupButton->underMouse());
        QVERIFY(look(groupButton) != plain);
        QTest::mouseClick(groupButton, Qt::LeftButton);
        QWidget* popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QToolButton* forward = r.buttonOf(r.forward);
        QVERIFY(forward && forward->window() == popup);
        QTest::mouseMove(forward);
        QVERIFY(forward->underMouse());
        QSignalSpy ran(r.forward, &QAction::triggered);
        QTest::mouseClick(forward, Qt::LeftButton);
        QCOMPARE(ran.count(), 1);
        QVERIFY(!popup->isVisible());
        QVERIFY(!groupButton->underMouse());
        QCOMPARE(look(groupButton), plain);

        // Opened again, the command that ran is not drawn hovered: the mouse is not on it.
        r.moveAway();
        QTest::mouseClick(groupButton, Qt::LeftButton);
        QVERIFY(popup->isVisible());
        QVERIFY(!forward->underMouse());
    }

    void tabLooksPlainOnceTheMouseGoesOntoTheControlsBelow()
    {
        HoverRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.moveAway();
        const QRect tab = r.bar->tabRect(1);
        const QImage plain = r.bar->grab(tab).toImage();
        QTest::mouseMove(r.bar, tab.center());
        QVERIFY(r.bar->grab(tab).toImage() != plain);
        // Straight down from the tab onto a button of the page, as a quick hand
        // goes: the ribbon itself sees no move past its tab.
        QTest::mouseMove(r.buttonOf(r.zoomIn));
        QCOMPARE(r.bar->grab(tab).toImage(), plain);
        // And from there onto the tab again.
        QTest::mouseMove(r.bar, tab.center());
        QVERIFY(r.bar->grab(tab).toImage() != plain);
    }

    void commandInTheDroppedPageLooksPlainNextTime()
    {
        HoverRibbon r;
        QVERIFY(QTest::qWaitForWindowExposed(&r.window));
        r.bar->setMinimized(true);
        QCoreApplication::processEvents();
        r.moveAway();
        const QPoint tab = r.bar->mapTo(&r.window, r.bar->tabRect(0).center());
        QTest::mouseClick(r.window.windowHandle(), Qt::LeftButton, {}, tab);
        QWidget* popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QToolButton* zoomIn = r.buttonOf(r.zoomIn);
        QVERIFY(zoomIn);
        const QImage plain = look(zoomIn);
        QTest::mouseMove(zoomIn);
        QVERIFY(zoomIn->underMouse());
        QTest::mouseClick(zoomIn, Qt::LeftButton);
        QVERIFY(!popup->isVisible());
        QVERIFY(!zoomIn->underMouse());

        r.moveAway();
        QTest::mouseClick(r.window.windowHandle(), Qt::LeftButton, {}, tab);
        QVERIFY(popup->isVisible());
        QVERIFY(!zoomIn->underMouse());
        QCOMPARE(look(zoomIn), plain);
    }
};

QTEST_MAIN(tst_QtitanHoverState)
#include "tst_qtitanhoverstate.moc"
