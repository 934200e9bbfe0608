#include <tessaro/DockListMenu.h>

#include "common/faketranslator.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>
#include <QtTest>

namespace {

void openAndClose(QMenu* menu)
{
    menu->popup(QPoint(10, 10));
    QTRY_VERIFY(menu->isVisible());
    menu->hide();
}

QDockWidget* addDock(QMainWindow* window, const QString& title, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, window);
    dock->setObjectName(title);
    dock->setWidget(new QWidget(dock));
    window->addDockWidget(area, dock);
    return dock;
}

} // namespace

class tst_DockListMenu : public QObject
{
    Q_OBJECT

private slots:
    void titleAndParent();
    void titleTranslatedInSourceFileContext();
    void docksListedInCreationOrder();
    void removedDockNotListed();
    void reopeningDoesNotDuplicate();
    void newDocksAppearAtNextOpening();
    void toolBarsNotListed();
    void toggleActionsShowAndHideDocks();
    void docksOfNestedMainWindowListed();
};

void tst_DockListMenu::titleAndParent()
{
    QMainWindow window;
    ui::DockListMenu menu(&window);
    QCOMPARE(menu.title(), QStringLiteral("Панели"));
    QCOMPARE(menu.parentWidget(), &window);
    QVERIFY(qobject_cast<ui::DynamicMenu*>(&menu));
}

void tst_DockListMenu::titleTranslatedInSourceFileContext()
{
    testcommon::FakeTranslator translator(testcommon::FakeTranslator::OnlyAddedTexts);
    translator.add(QStringLiteral("DockListMenu.cpp"), QStringLiteral("Панели"), QStringLiteral("Panels"));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QMainWindow window;
    ui::DockListMenu menu(&window);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(menu.title(), QStringLiteral("Panels"));
    QVERIFY(translator.contexts().contains(QStringLiteral("DockListMenu.cpp")));
}

void tst_DockListMenu::docksListedInCreationOrder()
{
    QMainWindow window;
    window.setCentralWidget(new QWidget);
    auto* menu = new ui::DockListMenu(&window);
    // Placed in a different order than they were created.
    auto* outline = new QDockWidget(QStringLiteral("Outline"), &window);
    auto* properties = new QDockWidget(QStringLiteral("Properties"), &window);
    auto* log = new QDockWidget(QStringLiteral("Log"), &window);
    window.addDockWidget(Qt::BottomDockWidgetArea, log);
    window.addDockWidget(Qt::RightDockWidgetArea, properties);
    window.addDockWidget(Qt::LeftDockWidgetArea, outline);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    openAndClose(menu);
    const QList<QAction*> expected{outline->toggleViewAction(), properties->toggleViewAction(),
                                   log->toggleViewAction()};
    QCOMPARE(menu->actions(), expected);
}

void tst_DockListMenu::removedDockNotListed()
{
    QMainWindow window;
    auto* menu = new ui::DockListMenu(&window);
    QDockWidget* outline = addDock(&window, QStringLiteral("Outline"), Qt::LeftDockWidgetArea);
    QDockWidget* properties = addDock(&window, QStringLiteral("Properties"), Qt::RightDockWidgetArea);
    QDockWidget* log = addDock(&window, QStringLiteral("Log"), Qt::BottomDockWidgetArea);
    // Created but never placed: not listed either.
    auto* loose = new QDockWidget(QStringLiteral("Loose"), &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    openAndClose(menu);
    QCOMPARE(menu->actions(), (QList<QAction*>{outline->toggleViewAction(),
                                               properties->toggleViewAction(),
                                               log->toggleViewAction()}));

    window.removeDockWidget(properties);
    QCOMPARE(properties->parentWidget(), &window); // still a child, just in no area
    openAndClose(menu);
    QCOMPARE(menu->actions(), (QList<QAction*>{outline->toggleViewAction(), log->toggleViewAction()}));
    QVERIFY(!menu->actions().contains(loose->toggleViewAction()));

    // Placed again: listed again, still in creation order.
    window.addDockWidget(Qt::RightDockWidgetArea, properties);
    openAndClose(menu);
    QCOMPARE(menu->actions(), (QList<QAction*>{outline->toggleViewAction(),
                                               properties->toggleViewAction(),
                                               log->toggleViewAction()}));
}

void tst_DockListMenu::reopeningDoesNotDuplicate()
{
    QMainWindow window;
    auto* menu = new ui::DockListMenu(&window);
    addDock(&window, QStringLiteral("Outline"), Qt::LeftDockWidgetArea);
    addDock(&window, QStringLiteral("Log"), Qt::BottomDockWidgetArea);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    openAndClose(menu);
    const QList<QAction*> first = menu->actions();
    QCOMPARE(first.size(), 2);
    openAndClose(menu);
    openAndClose(menu);
    QCOMPARE(menu->actions(), first);
}

void tst_DockListMenu::newDocksAppearAtNextOpening()
{
    QMainWindow window;
    auto* menu = new ui::DockListMenu(&window);
    QDockWidget* outline = addDock(&window, QStringLiteral("Outline"), Qt::LeftDockWidgetArea);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    openAndClose(menu);
    QCOMPARE(menu->actions(), QList<QAction*>{outline->toggleViewAction()});

    QDockWidget* log = addDock(&window, QStringLiteral("Log"), Qt::BottomDockWidgetArea);
    openAndClose(menu);
    QCOMPARE(menu->actions(), (QList<QAction*>{outline->toggleViewAction(), log->toggleViewAction()}));

    delete outline;
    openAndClose(menu);
    QCOMPARE(menu->actions(), QList<QAction*>{log->toggleViewAction()});
}

void tst_DockListMenu::toolBarsNotListed()
{
    QMainWindow window;
    auto* menu = new ui::DockListMenu(&window);
    QToolBar* tools = window.addToolBar(QStringLiteral("Tools"));
    QDockWidget* log = addDock(&window, QStringLiteral("Log"), Qt::BottomDockWidgetArea);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    openAndClose(menu);
    QCOMPARE(menu->actions(), QList<QAction*>{log->toggleViewAction()});
    QVERIFY(!menu->actions().contains(tools->toggleViewAction()));
}

void tst_DockListMenu::toggleActionsShowAndHideDocks()
{
    QMainWindow window;
    window.setCentralWidget(new QWidget);
    auto* menu = new ui::DockListMenu(&window);
    QDockWidget* outline = addDock(&window, QStringLiteral("Outline"), Qt::LeftDockWidgetArea);
    QDockWidget* log = addDock(&window, QStringLiteral("Log"), Qt::BottomDockWidgetArea);
    window.resize(600, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(outline->isVisible());

    openAndClose(menu);
    const QList<QAction*> entries = menu->actions();
    QCOMPARE(entries.size(), 2);
    for (QAction* entry : entries) {
        QVERIFY(entry->isCheckable());
        QVERIFY(entry->isChecked());
    }
    QCOMPARE(entries.at(0)->text(), QStringLiteral("Outline"));

    // Choosing the entry hides its dock; choosing it again shows it.
    entries.at(0)->trigger();
    QVERIFY(!outline->isVisible());
    QVERIFY(log->isVisible());
    openAndClose(menu);
    QCOMPARE(menu->actions(), entries); // a hidden dock is still in its area
    QVERIFY(!menu->actions().at(0)->isChecked());
    menu->actions().at(0)->trigger();
    QVERIFY(outline->isVisible());
    QVERIFY(entries.at(0)->isChecked());

    // Closing the dock by hand unchecks its entry.
    log->close();
    QVERIFY(!entries.at(1)->isChecked());
}

void tst_DockListMenu::docksOfNestedMainWindowListed()
{
    QMainWindow window;
    auto* inner = new QMainWindow;
    window.setCentralWidget(inner);
    auto* menu = new ui::DockListMenu(&window);
    QDockWidget* outer = addDock(&window, QStringLiteral("Outer"), Qt::LeftDockWidgetArea);
    QDockWidget* nested = addDock(inner, QStringLiteral("Nested"), Qt::RightDockWidgetArea);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    openAndClose(menu);
    // Object-tree order: the inner window (and its dock) was created first.
    QCOMPARE(menu->actions(), (QList<QAction*>{nested->toggleViewAction(), outer->toggleViewAction()}));
}

QTEST_MAIN(tst_DockListMenu)
#include "tst_docklistmenu.moc"
