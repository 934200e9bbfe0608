#include "DemoCommands.h"
#include "DemoCustomizeWindow.h"
#include "DemoDocument.h"
#include "DemoFiles.h"
#include "DemoMenus.h"
#include "DemoQuickSearch.h"
#include "DemoSettings.h"
#include "DemoToolBars.h"
#include "DemoTranslations.h"
#include "DemoWindow.h"

#include "common/demostart.h"
#include "common/treeclicks.h"

#include <tessaro/CommandsRegistry.h>
#include <tessaro/menuTreeModel.h>
#include <tessaro/MenuTreeWidget.h>
#include <tessaro/QCustomizeDlg.h>
#include <tessaro/QRibbonTreeWidget.h>
#include <tessaro/QToolBarPage.h>
#include <tessaro/QuickSearch.h>
#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QJsonDocument>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSplitter>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

using C = DemoCommands;

namespace {

ui::RibbonBar* ribbonOf(DemoWindow& window)
{
    return qobject_cast<ui::RibbonBar*>(window.ribbonBar());
}

Qtitan::RibbonGroup* group(DemoWindow& window, const QString& page, const QString& title)
{
    for (Qtitan::RibbonPage* p : ribbonOf(window)->pages()) {
        if (p->title() != page)
            continue;
        for (Qtitan::RibbonGroup* g : p->groups()) {
            if (g->title() == title)
                return g;
        }
    }
    return nullptr;
}

QList<QAction*> quickActions(DemoWindow& window)
{
    QList<QAction*> visible;
    for (QAction* action : ribbonOf(window)->quickAccessBar()->actions()) {
        if (action->isVisible())
            visible << action;
    }
    return visible;
}

void flushDeletes()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QModelIndex findAction(const QAbstractItemModel& model, const QAction* action, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (MenuTreeModel::actionForIndex(index) == action)
            return index;
        const QModelIndex inner = findAction(model, action, index);
        if (inner.isValid())
            return inner;
    }
    return {};
}

// The row of the ribbon tree whose path of texts is @p path (page, group, ...).
QModelIndex findRow(const QAbstractItemModel& model, const QStringList& path, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() != path.first())
            continue;
        return path.size() == 1 ? index : findRow(model, path.mid(1), index);
    }
    return {};
}

void click(QTreeView* view, const QModelIndex& index)
{
    testcommon::clickRow(view, index);
    flushDeletes();
}

void doubleClick(QTreeView* view, const QModelIndex& index)
{
    testcommon::doubleClickRow(view, index);
    flushDeletes();
}

void clickButton(QAbstractButton* button)
{
    QVERIFY(button);
    QVERIFY(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    flushDeletes();
}

// The parts of an open Customize window a user reaches.
struct Form
{
    explicit Form(DemoCustomizeWindow* window)
        : window(window)
        , dialog(window->customizeDialog())
        , tabs(dialog->findChild<QTabWidget*>(QStringLiteral("tabWidget")))
        , ribbonMenuTree(dialog->findChild<MenuTreeWidget*>(QStringLiteral("menuTreeWidget")))
        , quickMenuTree(dialog->findChild<MenuTreeWidget*>(QStringLiteral("menuTreeQuickPanelWidget")))
        , ribbonView(dialog->getRibbonTreeWidget()
                         ? dialog->getRibbonTreeWidget()->findChild<QTreeView*>(QStringLiteral("ribbonTreeView"))
                         : nullptr)
        , quickView(nullptr)
        , page(window->toolBarPage())
        , commands(window->toolBarCommands())
    {
        if (auto* quick = dialog->findChild<QWidget*>(QStringLiteral("ribbonTreeQuickPanelWidget")))
            quickView = quick->findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    }

    void showTab(int index) const
    {
        QTabBar* bar = tabs->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
        QCOMPARE(tabs->currentIndex(), index);
    }
    QAbstractButton* button(QDialogButtonBox::StandardButton which) const
    {
        return window->buttons()->button(which);
    }
    QToolButton* pageButton(const char* name) const
    {
        return page->findChild<QToolButton*>(QString::fromLatin1(name));
    }

    DemoCustomizeWindow* window;
    ui::QCustomizeDlg* dialog;
    QTabWidget* tabs;
    MenuTreeWidget* ribbonMenuTree;
    MenuTreeWidget* quickMenuTree;
    QTreeView* ribbonView;
    QTreeView* quickView;
    ui::QToolBarPage* page;
    MenuTreeWidget* commands;
};

DemoCustomizeWindow* openCustomize(DemoWindow& window)
{
    window.commands()->action(C::ToolsCustomize)->trigger();
    auto* customize = window.findChild<DemoCustomizeWindow*>();
    return customize && QTest::qWaitForWindowExposed(customize) ? customize : nullptr;
}

QStringList titles(const QList<QToolBar*>& toolBars)
{
    QStringList texts;
    for (QToolBar* toolBar : toolBars)
        texts << toolBar->windowTitle();
    return texts;
}

// Each command by name; a group command by its type and its commands.
QString describeAction(QAction* action, const QString& type)
{
    if (action->isSeparator())
        return QStringLiteral("separator");
    QString text = action->objectName();
    if (text.isEmpty())
        text = QStringLiteral("group command");
    if (QMenu* menu = action->menu()) {
        QStringList entries;
        for (QAction* entry : menu->actions())
            entries << describeAction(entry, QString());
        text += QStringLiteral(" %1 [%2]").arg(type, entries.join(QStringLiteral(", ")));
    }
    return text;
}

// What the user reshapes in Customize, as text: the stored form also holds
// the commands' current texts, which change with the document.
QStringList layoutOf(DemoWindow& window)
{
    QStringList lines;
    if (ui::RibbonBar* ribbon = ribbonOf(window)) {
        for (Qtitan::RibbonPage* page : ribbon->pages()) {
            lines << QStringLiteral("page ") + page->title();
            for (Qtitan::RibbonGroup* group : page->groups()) {
                lines << QStringLiteral(" group ") + group->title();
                for (QAction* action : group->actions())
                    lines << QStringLiteral("  ") + describeAction(action, QString::number(ui::getGroupButtonType(group, action)));
            }
        }
        for (QAction* action : quickActions(window))
            lines << QStringLiteral("quick ") + describeAction(action, QString());
    }
    lines << QString::fromUtf8(QJsonDocument::fromVariant(DemoToolBars::save(window)).toJson(QJsonDocument::Compact));
    return lines;
}

// The layout of a window that starts from fresh settings.
QStringList builtLayout()
{
    QTemporaryDir dir;
    DemoWindow fresh(dir.filePath(QStringLiteral("settings.dat")));
    return layoutOf(fresh);
}

// The texts of the quick search's results for @p text; the popup stays open.
QStringList searchResults(DemoWindow& window, const QString& text)
{
    ui::QuickSearchWidget* box = window.quickSearch()->box();
    box->setFocus();
    box->clear();
    QTest::keyClicks(box, text);
    auto* popup = box->findChild<QMenu*>();
    if (!popup || !QTest::qWaitFor([popup] { return popup->isVisible(); }))
        return {};
    QStringList results;
    for (QAction* entry : popup->actions())
        results << entry->text();
    return results;
}

QRadioButton* radioNamed(QWidget* parent, const QString& text)
{
    for (QRadioButton* radio : parent->findChildren<QRadioButton*>()) {
        // Labels too wide for the parameters box are broken into lines.
        if (radio->text().simplified() == text && radio->isVisible())
            return radio;
    }
    return nullptr;
}

} // namespace

class tst_DemoCustomize : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opensFromToolsAndSystemMenu();
    void classicModeOffersOnlyToolBars();
    void toolBarsTabHoldsThePageBesideTheCommands();
    void toolBarAddedOnThePageJoinsTheWindowAtOnce();
    void cancelPutsBackWhatWasThereAtOpening();
    void escapeCancelsToo();
    void resetReturnsToTheDemoDefaults();
    void removedToolBarStaysRemovedAndResetBringsItBack();
    void journeySurvivesARestart();
    void malformedToolBarSettingsChangeNothing_data();
    void malformedToolBarSettingsChangeNothing();
    void toolBarEntriesNamingNothingAreSkipped();
    void screenshots();

private:
    std::unique_ptr<DemoWindow> start(bool classic = false, bool reset = false)
    {
        return testcommon::startDemo(settingsFile(), classic, reset);
    }
    QString settingsFile() const { return m_dir->filePath(QStringLiteral("settings.dat")); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_DemoCustomize::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void tst_DemoCustomize::cleanup()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    m_dir.reset();
}

void tst_DemoCustomize::opensFromToolsAndSystemMenu()
{
    auto window = start();
    QVERIFY(window);
    QAction* customize = window->commands()->action(C::ToolsCustomize);
    QVERIFY(customize);
    // On the Tools menu, on the ribbon's Tools page and along the system menu's bottom.
    QVERIFY(window->commands()->menus().category(DemoMenus::Tools)->actions().contains(customize));
    QVERIFY(group(*window, QStringLiteral("Tools"), QStringLiteral("Customize"))->actions().contains(customize));
    auto* systemMenu = qobject_cast<Qtitan::RibbonSystemMenu*>(
        ribbonOf(*window)->systemButton()->defaultAction()->menu());
    QVERIFY(systemMenu);
    QVERIFY(systemMenu->popupBarActions().contains(customize));

    DemoCustomizeWindow* opened = openCustomize(*window);
    QVERIFY(opened);
    QCOMPARE(opened->windowModality(), Qt::WindowModal);
    // The offscreen screen has no room below the ribbon for the window (the
    // classic test sees it placed below the tool bars): it stays on the screen.
    window->setGeometry(0, 0, 800, 580);
    opened->resize(700, 560);
    opened->placeBelowBars();
    QVERIFY(opened->screen()->availableGeometry().contains(opened->frameGeometry()));
    Form form(opened);
    // The ribbon tab first; the hot keys tab stays out.
    QCOMPARE(form.tabs->count(), 3);
    QCOMPARE(form.dialog->currentTabIndex(), 1);
    QVERIFY(form.button(QDialogButtonBox::Ok));
    QVERIFY(form.button(QDialogButtonBox::Cancel));
    QVERIFY(form.button(QDialogButtonBox::Reset));
    // A second time raises the same window.
    customize->trigger();
    QCOMPARE(window->findChildren<DemoCustomizeWindow*>().size(), 1);
    clickButton(form.button(QDialogButtonBox::Cancel));
    QVERIFY(!window->findChild<DemoCustomizeWindow*>());
}

void tst_DemoCustomize::classicModeOffersOnlyToolBars()
{
    auto window = start(true);
    QVERIFY(window);
    DemoCustomizeWindow* opened = openCustomize(*window);
    QVERIFY(opened);
    Form form(opened);
    QCOMPARE(form.tabs->count(), 1);
    // Below the tool bars it edits, the first one's contents shown.
    window->setGeometry(0, 0, 800, 580);
    opened->resize(700, 380);
    opened->placeBelowBars();
    QToolBar* standard = window->standardToolBar();
    QVERIFY(opened->frameGeometry().top() >= standard->mapToGlobal(QPoint(0, standard->height())).y());
    auto* list = form.page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    QCOMPARE(list->currentRow(), 0);
    auto* contents = form.page->findChild<QTreeWidget*>(QStringLiteral("contentsTree"));
    QVERIFY(contents);
    QCOMPARE(contents->topLevelItemCount(), standard->actions().size());
    QVERIFY(form.tabs->widget(0)->isAncestorOf(form.page));
    QCOMPARE(form.page->toolBars(), window->toolBars());
    clickButton(form.button(QDialogButtonBox::Cancel));
}

void tst_DemoCustomize::toolBarsTabHoldsThePageBesideTheCommands()
{
    auto window = start();
    QVERIFY(window);
    Form form(openCustomize(*window));
    form.showTab(0);
    // The page in the tab's layout, the demo's commands where the tab's list was.
    QVERIFY(form.dialog->getSplitter()->isAncestorOf(form.page));
    QVERIFY(form.dialog->getSplitter()->isAncestorOf(form.commands));
    QVERIFY(!form.dialog->getTreeWidget()->isVisible());
    QVERIFY(form.commands->isVisible() && form.page->isVisible());
    QVERIFY(form.commands->mapToGlobal(QPoint(0, 0)).x() < form.page->mapToGlobal(QPoint(0, 0)).x());
    QCOMPARE(titles(form.page->toolBars()), QStringList({QStringLiteral("Standard"), QStringLiteral("Formatting")}));

    // A double-click on a command adds it to the selected tool bar, live.
    auto* list = form.page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    list->setCurrentRow(1);
    QToolBar* format = window->formatToolBar();
    QAction* sortLines = window->commands()->action(C::ToolsSortLines);
    QVERIFY(!format->actions().contains(sortLines));
    doubleClick(form.commands, findAction(*form.commands->model(), sortLines));
    // Nothing of the tool bar is selected: the command goes first.
    QCOMPARE(format->actions().first(), sortLines);
    clickButton(form.button(QDialogButtonBox::Cancel));
    QVERIFY(!format->actions().contains(sortLines));
}

void tst_DemoCustomize::toolBarAddedOnThePageJoinsTheWindowAtOnce()
{
    auto window = start();
    QVERIFY(window);
    Form form(openCustomize(*window));
    form.showTab(0);
    clickButton(form.pageButton("addToolbarButton"));
    QToolBar* added = nullptr;
    QTRY_VERIFY((added = window->findChild<QToolBar*>(QStringLiteral("1"), Qt::FindDirectChildrenOnly)));
    QVERIFY(added->isVisible());
    QVERIFY(added->isEnabled());
    QCOMPARE(window->toolBarArea(added), Qt::TopToolBarArea);
    // Its row says so.
    auto* list = form.page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    QTRY_COMPARE(list->item(list->count() - 1)->checkState(), Qt::Checked);
    // Unchecking it disables it, as for any tool bar.
    list->item(list->count() - 1)->setCheckState(Qt::Unchecked);
    QVERIFY(!added->isEnabled());
    QCOMPARE(window->toolBars().last(), added);
    clickButton(form.button(QDialogButtonBox::Cancel));
    QVERIFY(!window->findChild<QToolBar*>(QStringLiteral("1")));
}

void tst_DemoCustomize::cancelPutsBackWhatWasThereAtOpening()
{
    auto window = start();
    QVERIFY(window);
    const QStringList before = layoutOf(*window);
    // The classic toolbars shown, so that where they stand counts.
    window->commands()->action(C::ViewToolBarStandard)->trigger();
    window->commands()->action(C::ViewToolBarFormat)->trigger();
    window->addToolBarBreak();
    window->addToolBar(window->formatToolBar());
    QTRY_VERIFY(window->formatToolBar()->isVisible());
    QCoreApplication::processEvents();
    const QRect formatBefore = window->formatToolBar()->geometry();
    QVERIFY(formatBefore.top() > window->standardToolBar()->geometry().top());
    Form form(openCustomize(*window));
    QAbstractItemModelTester tester(form.ribbonView->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAction* wordCount = window->commands()->action(C::ToolsWordCount);
    // The ribbon: Word Count into Home › Undo; the quick access bar: Word Count.
    click(form.ribbonView, findRow(*form.ribbonView->model(), {QStringLiteral("Home"), QStringLiteral("Undo")}));
    doubleClick(form.ribbonMenuTree, findAction(*form.ribbonMenuTree->model(), wordCount));
    QVERIFY(group(*window, QStringLiteral("Home"), QStringLiteral("Undo"))->actions().contains(wordCount));
    form.showTab(2);
    doubleClick(form.quickMenuTree, findAction(*form.quickMenuTree->model(), wordCount));
    QVERIFY(quickActions(*window).contains(wordCount));
    // The tool bars: one added, Formatting removed.
    form.showTab(0);
    clickButton(form.pageButton("addToolbarButton"));
    auto* list = form.page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    list->setCurrentRow(1);
    clickButton(form.pageButton("removeToolbarButton"));
    QVERIFY(!window->formatToolBar());
    QVERIFY(layoutOf(*window) != before);

    clickButton(form.button(QDialogButtonBox::Cancel));
    QVERIFY(!window->findChild<DemoCustomizeWindow*>());
    QCOMPARE(layoutOf(*window), before);
    QVERIFY(!group(*window, QStringLiteral("Home"), QStringLiteral("Undo"))->actions().contains(wordCount));
    QVERIFY(!quickActions(*window).contains(wordCount));
    QCOMPARE(titles(window->toolBars()), QStringList({QStringLiteral("Standard"), QStringLiteral("Formatting")}));
    QVERIFY(window->formatToolBar());
    // Formatting, made again, stands where it stood (a row of its own), shown.
    QTRY_VERIFY(window->formatToolBar()->isVisible());
    QCOMPARE(window->toolBarArea(window->formatToolBar()), Qt::TopToolBarArea);
    QTRY_COMPARE(window->formatToolBar()->geometry(), formatBefore);
    // Nothing of it reached the settings: a restart shows the ribbon as built.
    window->close();
    window.reset();
    window = start();
    QVERIFY(window);
    QCOMPARE(layoutOf(*window), builtLayout());
}

void tst_DemoCustomize::escapeCancelsToo()
{
    auto window = start();
    QVERIFY(window);
    const QStringList before = layoutOf(*window);
    DemoCustomizeWindow* opened = openCustomize(*window);
    QVERIFY(opened);
    Form form(opened);
    form.showTab(2);
    QAction* sortLines = window->commands()->action(C::ToolsSortLines);
    doubleClick(form.quickMenuTree, findAction(*form.quickMenuTree->model(), sortLines));
    QVERIFY(quickActions(*window).contains(sortLines));
    QTest::keyClick(form.quickMenuTree, Qt::Key_Escape);
    flushDeletes();
    QVERIFY(!window->findChild<DemoCustomizeWindow*>());
    QCOMPARE(layoutOf(*window), before);
}

void tst_DemoCustomize::resetReturnsToTheDemoDefaults()
{
    auto window = start();
    QVERIFY(window);
    // A layout of the user's, kept.
    Form form(openCustomize(*window));
    QAction* sortLines = window->commands()->action(C::ToolsSortLines);
    click(form.ribbonView, findRow(*form.ribbonView->model(), {QStringLiteral("Home"), QStringLiteral("Clipboard")}));
    doubleClick(form.ribbonMenuTree, findAction(*form.ribbonMenuTree->model(), sortLines));
    form.showTab(2);
    doubleClick(form.quickMenuTree, findAction(*form.quickMenuTree->model(), sortLines));
    form.showTab(0);
    clickButton(form.pageButton("addToolbarButton"));
    clickButton(form.button(QDialogButtonBox::Ok));
    QVERIFY(layoutOf(*window) != builtLayout());
    window->close();
    window.reset();

    window = start();
    QVERIFY(window);
    sortLines = window->commands()->action(C::ToolsSortLines);
    QVERIFY(group(*window, QStringLiteral("Home"), QStringLiteral("Clipboard"))->actions().contains(sortLines));
    DemoCustomizeWindow* opened = openCustomize(*window);
    QVERIFY(opened);
    Form kept(opened);
    kept.showTab(2);
    clickButton(kept.button(QDialogButtonBox::Reset));
    // The window as the demo builds it, shown by a new dialog on the same tab.
    QCOMPARE(layoutOf(*window), builtLayout());
    QVERIFY(!group(*window, QStringLiteral("Home"), QStringLiteral("Clipboard"))->actions().contains(sortLines));
    QVERIFY(!quickActions(*window).contains(sortLines));
    QVERIFY(!window->findChild<QToolBar*>(QStringLiteral("1")));
    Form reset(opened);
    QVERIFY(reset.dialog != nullptr);
    QCOMPARE(reset.dialog->currentTabIndex(), 2);
    QCOMPARE(reset.page->toolBars(), window->toolBars());
    // The new dialog shows the reset ribbon.
    const QModelIndex clipboard =
        findRow(*reset.ribbonView->model(), {QStringLiteral("Home"), QStringLiteral("Clipboard")});
    QVERIFY(clipboard.isValid());
    QCOMPARE(reset.ribbonView->model()->rowCount(clipboard),
             group(*window, QStringLiteral("Home"), QStringLiteral("Clipboard"))->actions().size());
    // The reset ribbon can be edited at once.
    QAction* wordCount = window->commands()->action(C::ToolsWordCount);
    reset.showTab(1);
    click(reset.ribbonView, findRow(*reset.ribbonView->model(), {QStringLiteral("Home"), QStringLiteral("Undo")}));
    doubleClick(reset.ribbonMenuTree, findAction(*reset.ribbonMenuTree->model(), wordCount));
    QVERIFY(group(*window, QStringLiteral("Home"), QStringLiteral("Undo"))->actions().contains(wordCount));
    clickButton(reset.button(QDialogButtonBox::Reset));
    clickButton(Form(opened).button(QDialogButtonBox::Ok));
    window->close();
    window.reset();

    // Kept as reset.
    window = start();
    QVERIFY(window);
    QCOMPARE(layoutOf(*window), builtLayout());
}

void tst_DemoCustomize::removedToolBarStaysRemovedAndResetBringsItBack()
{
    auto window = start(true);
    QVERIFY(window);
    Form form(openCustomize(*window));
    auto* list = form.page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    list->setCurrentRow(0);
    clickButton(form.pageButton("removeToolbarButton"));
    QVERIFY(!window->standardToolBar());
    clickButton(form.button(QDialogButtonBox::Ok));
    // Its View command has nothing left to show.
    QAction* showStandard = window->commands()->action(C::ViewToolBarStandard);
    QTRY_VERIFY(!showStandard->isEnabled());
    showStandard->trigger();
    window->close();
    window.reset();

    window = start(true);
    QVERIFY(window);
    QCOMPARE(titles(window->toolBars()), QStringList({QStringLiteral("Formatting")}));
    window->close();
    window.reset();

    // --reset-layout brings it back.
    window = start(true, true);
    QVERIFY(window);
    QCOMPARE(titles(window->toolBars()), QStringList({QStringLiteral("Standard"), QStringLiteral("Formatting")}));
    QVERIFY(window->standardToolBar()->isVisible());
}

// The user's journey: the ribbon, the quick access bar and a tool bar
// arranged in Customize, kept across a restart, then a command run from the
// quick search.
void tst_DemoCustomize::journeySurvivesARestart()
{
    auto window = start();
    QVERIFY(window);
    QAction* date = window->commands()->action(C::InsertDate);
    QAction* upper = window->commands()->action(C::EditUpperCase);
    QAction* lower = window->commands()->action(C::EditLowerCase);
    QAction* wordCount = window->commands()->action(C::ToolsWordCount);
    QAction* bold = window->commands()->action(C::FormatBold);
    QAction* italic = window->commands()->action(C::FormatItalic);
    {
        Form form(openCustomize(*window));
        QVERIFY(form.window);
        QAbstractItemModelTester ribbonTester(form.ribbonView->model(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        // A command into Tools › Text.
        const QStringList text{QStringLiteral("Tools"), QStringLiteral("Text")};
        click(form.ribbonView, findRow(*form.ribbonView->model(), text));
        doubleClick(form.ribbonMenuTree, findAction(*form.ribbonMenuTree->model(), date));
        Qtitan::RibbonGroup* textGroup = group(*window, text.at(0), text.at(1));
        QCOMPARE(textGroup->actions().last(), date);

        // A group command of upper and lower case after it, remembering the one run last.
        clickButton(form.dialog->getRibbonTreeWidget()->findChild<QToolButton*>(QStringLiteral("addGroupItem")));
        const QModelIndex groupCommand = form.ribbonView->currentIndex();
        QVERIFY(groupCommand.isValid());
        QCOMPARE(groupCommand.parent().data().toString(), text.at(1));
        doubleClick(form.ribbonMenuTree, findAction(*form.ribbonMenuTree->model(), upper));
        doubleClick(form.ribbonMenuTree, findAction(*form.ribbonMenuTree->model(), lower));
        QAction* groupAction = textGroup->actions().last();
        QVERIFY(groupAction->menu());
        QCOMPARE(groupAction->menu()->actions(), QList<QAction*>({upper, lower}));
        click(form.ribbonView, findRow(*form.ribbonView->model(), text + QStringList(groupCommand.data().toString())));
        const QString remember =
            QCoreApplication::translate("RibbonTreeItemsEditor.cpp", "Запоминать активную");
        QRadioButton* dynamic = radioNamed(form.dialog->getRibbonTreeWidget(), remember);
        QVERIFY(dynamic);
        clickButton(dynamic);
        QVERIFY(dynamic->isChecked());
        QCOMPARE(ui::getGroupButtonType(textGroup, groupAction), ui::Dynamic);

        // Word Count onto the quick access bar.
        form.showTab(2);
        doubleClick(form.quickMenuTree, findAction(*form.quickMenuTree->model(), wordCount));
        QCOMPARE(quickActions(*window).last(), wordCount);

        // A tool bar of bold and italic.
        form.showTab(0);
        clickButton(form.pageButton("addToolbarButton"));
        doubleClick(form.commands, findAction(*form.commands->model(), bold));
        doubleClick(form.commands, findAction(*form.commands->model(), italic));
        QToolBar* added = window->findChild<QToolBar*>(QStringLiteral("1"), Qt::FindDirectChildrenOnly);
        QVERIFY(added);
        QCOMPARE(added->actions(), QList<QAction*>({bold, italic}));
        QVERIFY(added->isVisible());

        clickButton(form.button(QDialogButtonBox::Ok));
        QVERIFY(!window->findChild<DemoCustomizeWindow*>());
    }
    // The quick search finds the command at its new place at once.
    const QString newPlace = QString::fromUtf8("Tools \u2192 Text \u2192 Date");
    QVERIFY(searchResults(*window, QStringLiteral("date")).contains(newPlace));
    QTest::keyClick(window->quickSearch()->box(), Qt::Key_Escape);
    window->close();
    window.reset();

    window = start();
    QVERIFY(window);
    date = window->commands()->action(C::InsertDate);
    upper = window->commands()->action(C::EditUpperCase);
    lower = window->commands()->action(C::EditLowerCase);
    wordCount = window->commands()->action(C::ToolsWordCount);
    bold = window->commands()->action(C::FormatBold);
    italic = window->commands()->action(C::FormatItalic);
    Qtitan::RibbonGroup* textGroup = group(*window, QStringLiteral("Tools"), QStringLiteral("Text"));
    QVERIFY(textGroup);
    const QList<QAction*> actions = textGroup->actions();
    QVERIFY(actions.size() >= 2);
    QCOMPARE(actions.at(actions.size() - 2), date);
    QAction* groupAction = actions.last();
    QVERIFY(groupAction->menu());
    QCOMPARE(groupAction->menu()->actions(), QList<QAction*>({upper, lower}));
    QCOMPARE(ui::getGroupButtonType(textGroup, groupAction), ui::Dynamic);
    QCOMPARE(quickActions(*window).last(), wordCount);
    QToolBar* added = window->findChild<QToolBar*>(QStringLiteral("1"), Qt::FindDirectChildrenOnly);
    QVERIFY(added);
    QCOMPARE(added->windowTitle(), QStringLiteral("Custom ToolBar"));
    QCOMPARE(added->actions(), QList<QAction*>({bold, italic}));
    QVERIFY(added->isVisible());

    // The quick search runs a command at its new place.
    DemoDocument* doc = window->commands()->files()->newDocument();
    QVERIFY(doc->toPlainText().isEmpty());
    const QStringList offered = searchResults(*window, QStringLiteral("date"));
    QVERIFY2(offered.contains(newPlace), qPrintable(offered.join(", ")));
    QTest::keyClick(window->quickSearch()->box()->findChild<QMenu*>(), Qt::Key_Return);
    QTRY_VERIFY(!doc->toPlainText().isEmpty());
}

void tst_DemoCustomize::malformedToolBarSettingsChangeNothing_data()
{
    QTest::addColumn<QVariant>("stored");
    const auto toolBar = [](const QVariant& name, const QVariant& entries) {
        return QVariantMap{{QStringLiteral("name"), name},
                           {QStringLiteral("title"), QStringLiteral("T")},
                           {QStringLiteral("entries"), entries}};
    };
    QTest::newRow("not a list") << QVariant(42);
    QTest::newRow("list of numbers") << QVariant(QVariantList{1, 2, 3});
    QTest::newRow("unnamed toolbar") << QVariant(QVariantList{toolBar(QString(), QVariantList())});
    QTest::newRow("same name twice")
        << QVariant(QVariantList{toolBar(QStringLiteral("a"), QVariantList()), toolBar(QStringLiteral("a"), QVariantList())});
}

// A settings file holding nonsense where the toolbars are kept gives the
// toolbars as built, and nothing breaks.
void tst_DemoCustomize::malformedToolBarSettingsChangeNothing()
{
    QFETCH(QVariant, stored);
    {
        DemoSettings settings(settingsFile());
        settings.setValue(DemoToolBars::settingsKey, stored);
    }
    auto window = start();
    QVERIFY(window);
    QCOMPARE(titles(window->toolBars()), QStringList({QStringLiteral("Standard"), QStringLiteral("Formatting")}));
    QVERIFY(window->standardToolBar()->actions().size() > 10);
}

void tst_DemoCustomize::toolBarEntriesNamingNothingAreSkipped()
{
    const auto entry = [](const QString& id, const QVariant& style = QVariant()) {
        QVariantMap map{{QStringLiteral("id"), id}};
        if (style.isValid())
            map.insert(QStringLiteral("style"), style);
        return QVariant(map);
    };
    QVariantMap group = entry(QStringLiteral("group")).toMap();
    group.insert(QStringLiteral("children"), 5);
    group.insert(QStringLiteral("type"), -3);
    const QVariantList entries{entry(QStringLiteral("cmd.999999")), entry(QStringLiteral("nonsense")),
                               entry(QStringLiteral("-")), entry(QStringLiteral("cmd.101"), 99), group, 17};
    {
        DemoSettings settings(settingsFile());
        settings.setValue(DemoToolBars::settingsKey,
                          QVariantList{QVariantMap{{QStringLiteral("name"), QStringLiteral("standardToolBar")},
                                                   {QStringLiteral("title"), QStringLiteral("Mine")},
                                                   {QStringLiteral("entries"), entries}}});
    }
    auto window = start(true);
    QVERIFY(window);
    // What the settings name is there; what they do not name is not.
    QCOMPARE(titles(window->toolBars()), QStringList({QStringLiteral("Mine")}));
    QVERIFY(!window->formatToolBar());
    const QList<QAction*> actions = window->standardToolBar()->actions();
    QCOMPARE(actions.size(), 3);
    QVERIFY(actions.at(0)->isSeparator());
    QCOMPARE(actions.at(1), window->commands()->action(C::FileNew));
    QVERIFY(actions.at(2)->menu() && actions.at(2)->menu()->isEmpty());
}

void tst_DemoCustomize::screenshots()
{
    const QString directory = qEnvironmentVariable("TESSARO_SCREENSHOT_DIR");
    if (directory.isEmpty())
        QSKIP("TESSARO_SCREENSHOT_DIR is not set");
    QVERIFY(QDir().mkpath(directory));
    // In English, as the demo starts.
    QObject translations;
    QVERIFY(DemoTranslations::install(QStringLiteral("en"), &translations));
    auto window = start();
    QVERIFY(window);
    window->resize(1200, 700);
    DemoCustomizeWindow* opened = openCustomize(*window);
    QVERIFY(opened);
    Form form(opened);
    // The demo's window with the Customize window over its lower part.
    const auto save = [&](const char* name) {
        flushDeletes();
        QImage image(window->size(), QImage::Format_RGB32);
        QPainter painter(&image);
        painter.drawPixmap(0, 0, window->grab());
        painter.drawPixmap(120, window->height() - opened->height() - 20, opened->grab());
        painter.end();
        QVERIFY(image.save(QDir(directory).filePath(QString::fromLatin1(name))));
    };
    opened->resize(960, 500);
    click(form.ribbonView, findRow(*form.ribbonView->model(), {QStringLiteral("Home"), QStringLiteral("Undo")}));
    doubleClick(form.ribbonMenuTree, findAction(*form.ribbonMenuTree->model(),
                                                window->commands()->action(C::ToolsWordCount)));
    save("demo-customize-ribbon.png");
    form.showTab(2);
    save("demo-customize-quick-access.png");
    form.showTab(0);
    form.page->findChild<QListWidget*>(QStringLiteral("toolBarList"))->setCurrentRow(0);
    save("demo-customize-toolbars.png");
}

QTEST_MAIN(tst_DemoCustomize)
#include "tst_democustomize.moc"
