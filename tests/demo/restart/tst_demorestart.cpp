#include "DemoCommands.h"
#include "DemoDocks.h"
#include "DemoDocument.h"
#include "DemoMenus.h"
#include "DemoShortcutsDialog.h"
#include "DemoStyles.h"
#include "DemoWindow.h"

#include "common/demostart.h"

#include <tessaro/CommandsRegistry.h>
#include <tessaro/MenuTreeWidget.h>
#include <tessaro/QtKeySequenceEdit.h>
#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

#include <memory>

using C = DemoCommands;

namespace {

const QKeySequence chosenShortcut(Qt::CTRL | Qt::ALT | Qt::Key_K);
const QRect chosenGeometry(120, 90, 900, 640);
const int chosenStyle = 52;

ui::RibbonBar* ribbonOf(DemoWindow& window)
{
    return qobject_cast<ui::RibbonBar*>(window.ribbonBar());
}

Qtitan::RibbonGroup* group(DemoWindow& window, const QString& title)
{
    for (Qtitan::RibbonPage* page : ribbonOf(window)->pages()) {
        for (Qtitan::RibbonGroup* g : page->groups()) {
            if (g->title() == title)
                return g;
        }
    }
    return nullptr;
}

QModelIndex findIndex(const QAbstractItemModel* model, const QAction* action, const QModelIndex& parent = {})
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (index.internalPointer() == action)
            return index;
        const QModelIndex found = findIndex(model, action, index);
        if (found.isValid())
            return found;
    }
    return {};
}

// The shortcuts window the ribbon's File › Options opened.
DemoShortcutsDialog* openShortcutsFromOptions(DemoWindow& window)
{
    QAction* options = ribbonOf(window)->findChild<QAction*>(QStringLiteral("ribbon.options"));
    if (!options)
        return nullptr;
    options->trigger();
    auto* dialog = window.findChild<DemoShortcutsDialog*>();
    return dialog && QTest::qWaitForWindowExposed(dialog) ? dialog : nullptr;
}

// What the shortcuts window lists for lower case.
QStringList listedShortcutsOfLowerCase(DemoWindow& window)
{
    DemoShortcutsDialog* dialog = openShortcutsFromOptions(window);
    if (!dialog)
        return {QStringLiteral("no window")};
    dialog->page()->setAction(window.commands()->action(C::EditLowerCase));
    QStringList listed;
    auto* list = dialog->page()->findChild<QListWidget*>(QStringLiteral("listWidget"));
    for (int row = 0; row < list->count(); ++row)
        listed << list->item(row)->text();
    dialog->reject();
    delete dialog;
    return listed;
}

enum class CloseBy { ExitCommand, CloseButton, AltF4 };

void closeWindow(DemoWindow& window, CloseBy how)
{
    switch (how) {
    case CloseBy::ExitCommand:
        window.commands()->action(C::FileExit)->trigger();
        break;
    case CloseBy::CloseButton: {
        // What the window manager sends for the title bar's close button.
        QCloseEvent close;
        QApplication::sendEvent(window.windowHandle(), &close);
        break;
    }
    case CloseBy::AltF4:
        // Pressed while the window is the active one, as a user would.
        QApplication::setActiveWindow(&window);
        if (QTest::qWaitForWindowActive(&window))
            QTest::keyClick(&window, Qt::Key_F4, Qt::AltModifier);
        break;
    }
}

} // namespace

Q_DECLARE_METATYPE(CloseBy)

class tst_DemoRestart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everythingArrangedSurvivesARestart_data();
    void everythingArrangedSurvivesARestart();
    void classicToolBarsStayInClassicMode();
    void nothingIsKeptWhenTheCloseIsCancelled();

private:
    std::unique_ptr<DemoWindow> start(bool classic = false, bool reset = false)
    {
        return testcommon::startDemo(settingsFile(), classic, reset);
    }
    QString settingsFile() const { return m_dir->filePath(QStringLiteral("settings.dat")); }
    void arrangeEverything(DemoWindow& window);
    void verifyArranged(DemoWindow& window);
    void verifyAsBuilt(DemoWindow& window);

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_DemoRestart::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void tst_DemoRestart::cleanup()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    m_dir.reset();
}

// Everything a user changes, each the way a user would.
void tst_DemoRestart::arrangeEverything(DemoWindow& window)
{
    // File › Options: lower case gets Ctrl+Alt+K.
    DemoShortcutsDialog* dialog = openShortcutsFromOptions(window);
    QVERIFY(dialog);
    QAction* lowerCase = window.commands()->action(C::EditLowerCase);
    MenuTreeWidget* tree = dialog->tree();
    const QModelIndex index = findIndex(tree->model(), lowerCase);
    QVERIFY(index.isValid());
    tree->scrollTo(index);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(index).center());
    QCOMPARE(dialog->page()->action(), lowerCase);
    QTest::keyClick(dialog->page()->findChild<QtKeySequenceEdit*>(), Qt::Key_K, Qt::ControlModifier | Qt::AltModifier);
    QTest::mouseClick(dialog->page()->findChild<QToolButton*>(QStringLiteral("addButton")), Qt::LeftButton);
    QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QVERIFY(lowerCase->shortcuts().contains(chosenShortcut));

    // View › Toolbars › Standard Toolbar, and two panels rearranged.
    window.commands()->action(C::ViewToolBarStandard)->trigger();
    QVERIFY(window.standardToolBar()->isVisible());
    window.docks().log->close();
    window.addDockWidget(Qt::RightDockWidgetArea, window.docks().outline);

    window.chooseStyle(chosenStyle);

    // The ribbon: Find moved to the end of its group, New off the quick
    // access bar, and the ribbon minimised by a double click on a tab.
    ui::RibbonBar* ribbon = ribbonOf(window);
    Qtitan::RibbonGroup* editing = group(window, QStringLiteral("Editing"));
    QVERIFY(editing);
    ui::moveAction(editing, 0, editing->actions().size() - 1);
    QCOMPARE(editing->actions().last(), ribbon->findChild<QAction*>(QStringLiteral("ribbon.find")));
    ribbon->removeQuickAction(window.commands()->action(C::FileNew));
    QTest::mouseDClick(ribbon, Qt::LeftButton, Qt::NoModifier, ribbon->tabRect(0).center());
    QVERIFY(ribbon->isMinimized());

    window.setGeometry(chosenGeometry);
    QTRY_COMPARE(window.geometry().size(), chosenGeometry.size());
}

void tst_DemoRestart::verifyArranged(DemoWindow& window)
{
    QAction* lowerCase = window.commands()->action(C::EditLowerCase);
    QVERIFY(lowerCase->shortcuts().contains(chosenShortcut));
    QVERIFY(listedShortcutsOfLowerCase(window).contains(chosenShortcut.toString(QKeySequence::PortableText)));

    QVERIFY(window.standardToolBar()->isVisible());
    QVERIFY(!window.formatToolBar()->isVisible());
    QVERIFY(!window.docks().log->isVisible());
    QCOMPARE(window.dockWidgetArea(window.docks().outline), Qt::RightDockWidgetArea);

    QCOMPARE(int(window.currentStyle()), chosenStyle);

    ui::RibbonBar* ribbon = ribbonOf(window);
    QCOMPARE(group(window, QStringLiteral("Editing"))->actions().last(),
             ribbon->findChild<QAction*>(QStringLiteral("ribbon.find")));
    QVERIFY(!ribbon->quickAccessBar()->actions().contains(window.commands()->action(C::FileNew)));
    QVERIFY(ribbon->quickAccessBar()->actions().contains(window.commands()->action(C::FileSave)));
    QVERIFY(ribbon->isMinimized());

    QCOMPARE(window.geometry().size(), chosenGeometry.size());
    QCOMPARE(window.geometry().topLeft(), chosenGeometry.topLeft());
}

void tst_DemoRestart::verifyAsBuilt(DemoWindow& window)
{
    QAction* lowerCase = window.commands()->action(C::EditLowerCase);
    QCOMPARE(lowerCase->shortcuts(), QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+Alt+U"))});
    QCOMPARE(listedShortcutsOfLowerCase(window), QStringList{QStringLiteral("Ctrl+Alt+U")});

    QVERIFY(!window.standardToolBar()->isVisible());
    QVERIFY(window.docks().log->isVisible());
    QCOMPARE(window.dockWidgetArea(window.docks().outline), Qt::LeftDockWidgetArea);

    QCOMPARE(int(window.currentStyle()), int(ui::MainWindow::Office2016Colorful));

    ui::RibbonBar* ribbon = ribbonOf(window);
    QCOMPARE(group(window, QStringLiteral("Editing"))->actions().first(),
             ribbon->findChild<QAction*>(QStringLiteral("ribbon.find")));
    QVERIFY(ribbon->quickAccessBar()->actions().contains(window.commands()->action(C::FileNew)));
    QVERIFY(!ribbon->isMinimized());

    // The first start's size: most of the screen.
    const QSize available = window.screen()->availableGeometry().size();
    QCOMPARE(window.geometry().size(), available * 0.8);
}

void tst_DemoRestart::everythingArrangedSurvivesARestart_data()
{
    QTest::addColumn<CloseBy>("closeBy");
    QTest::newRow("File > Exit") << CloseBy::ExitCommand;
    QTest::newRow("close button") << CloseBy::CloseButton;
    QTest::newRow("Alt+F4") << CloseBy::AltF4;
}

void tst_DemoRestart::everythingArrangedSurvivesARestart()
{
    QFETCH(CloseBy, closeBy);
    {
        std::unique_ptr<DemoWindow> window = start();
        QVERIFY(window);
        verifyAsBuilt(*window);
        arrangeEverything(*window);
        if (QTest::currentTestFailed())
            return;
        closeWindow(*window, closeBy);
        QTRY_VERIFY(!window->isVisible());
    }
    // A plain style in between, so that the restart has to bring the chosen one back.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    {
        std::unique_ptr<DemoWindow> window = start();
        QVERIFY(window);
        verifyArranged(*window);
        if (QTest::currentTestFailed())
            return;
        closeWindow(*window, closeBy);
        QTRY_VERIFY(!window->isVisible());
    }
    // Kept across a second restart as well.
    {
        std::unique_ptr<DemoWindow> window = start();
        QVERIFY(window);
        verifyArranged(*window);
    }
    // --reset-layout: everything as built, and it stays so.
    {
        std::unique_ptr<DemoWindow> window = start(false, true);
        QVERIFY(window);
        verifyAsBuilt(*window);
    }
    std::unique_ptr<DemoWindow> window = start();
    QVERIFY(window);
    verifyAsBuilt(*window);
}

void tst_DemoRestart::classicToolBarsStayInClassicMode()
{
    {
        std::unique_ptr<DemoWindow> window = start(true);
        QVERIFY(window);
        QVERIFY(window->standardToolBar()->isVisible());
        window->commands()->action(C::ViewToolBarFormat)->trigger();
        QVERIFY(!window->formatToolBar()->isVisible());
        closeWindow(*window, CloseBy::ExitCommand);
    }
    {
        // The ribbon starts with its own arrangement: no tool bars.
        std::unique_ptr<DemoWindow> window = start();
        QVERIFY(window);
        QVERIFY(!window->standardToolBar()->isVisible());
        QVERIFY(!window->formatToolBar()->isVisible());
        closeWindow(*window, CloseBy::ExitCommand);
    }
    {
        std::unique_ptr<DemoWindow> window = start(true);
        QVERIFY(window);
        QVERIFY(window->standardToolBar()->isVisible());
        QVERIFY(!window->formatToolBar()->isVisible());
    }
    std::unique_ptr<DemoWindow> window = start(true, true);
    QVERIFY(window);
    QVERIFY(window->formatToolBar()->isVisible());
}

void tst_DemoRestart::nothingIsKeptWhenTheCloseIsCancelled()
{
    std::unique_ptr<DemoWindow> window = start();
    QVERIFY(window);
    window->commands()->action(C::ViewToolBarStandard)->trigger();
    // An unsaved document whose question is answered with Cancel keeps the window open.
    DemoDocument* doc = window->activeDocument();
    QVERIFY(doc);
    QTest::keyClicks(doc, QStringLiteral("unsaved"));
    QTimer::singleShot(0, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Cancel)->click();
    });
    closeWindow(*window, CloseBy::ExitCommand);
    QVERIFY(window->isVisible());
    window.reset();
    std::unique_ptr<DemoWindow> restarted = start();
    QVERIFY(restarted);
    QVERIFY(!restarted->standardToolBar()->isVisible());
}

QTEST_MAIN(tst_DemoRestart)
#include "tst_demorestart.moc"
