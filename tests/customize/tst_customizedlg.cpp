// The customize dialog driven as a user drives it: tabs clicked, commands
// picked and double-clicked in its menu trees, items picked in its ribbon and
// quick access editors. With TESSARO_SCREENSHOT_DIR set it also saves a
// picture of each tab there.
#include <tessaro/Tessaro.h>

#include "common/treeclicks.h"

#include <QtitanRibbon.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QSignalSpy>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

QIcon colourIcon(const QColor& colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

// A host: a command menu with three categories (one command standing in two
// of them, a nested category, a separator), a ribbon with two groups and a
// quick access bar, and the commands owned by the host object.
//
// The menu tree identifies a row by its action, so a command's second place
// in the menu is drawn with the first place's parent: the pictures leave it out.
struct Host
{
    QObject owner;
    QMenu menu{QStringLiteral("Команды")};
    ui::RibbonBar ribbon{QStringLiteral("tst_customizedlg")};
    Qtitan::RibbonGroup* fileGroup = nullptr;
    Qtitan::RibbonGroup* editGroup = nullptr;

    QAction* open = nullptr;
    QAction* save = nullptr;
    QAction* separator = nullptr;
    QAction* print = nullptr;
    QAction* undo = nullptr;
    QAction* copy = nullptr;
    QAction* table = nullptr;
    QAction* ruler = nullptr;

    // @p shareCommand puts the print command into a second category too.
    explicit Host(bool shareCommand = true)
    {
        QMenu* file = menu.addMenu(QStringLiteral("&Файл"));
        open = command(file, "open", "&Открыть", Qt::darkBlue, {QKeySequence(QStringLiteral("Ctrl+O"))});
        save = command(file, "save", "&Сохранить", Qt::darkGreen,
                       {QKeySequence(QStringLiteral("Ctrl+S")), QKeySequence(QStringLiteral("Ctrl+Shift+S"))});
        separator = file->addSeparator();
        print = command(file, "print", "&Печать", Qt::darkMagenta, {QKeySequence(QStringLiteral("Ctrl+P"))});
        QMenu* edit = menu.addMenu(QStringLiteral("&Правка"));
        undo = command(edit, "undo", "&Отменить", Qt::darkCyan, {QKeySequence(QStringLiteral("Ctrl+Z"))});
        copy = command(edit, "copy", "&Копировать", Qt::darkYellow, {QKeySequence(QStringLiteral("Ctrl+C"))});
        if (shareCommand)
            edit->addAction(print);
        QMenu* insert = edit->addMenu(QStringLiteral("&Вставка"));
        table = command(insert, "table", "&Таблица", Qt::darkRed, {});
        QMenu* view = menu.addMenu(QStringLiteral("&Вид"));
        ruler = command(view, "ruler", "&Линейка", Qt::gray, {});

        Qtitan::RibbonPage* home = ribbon.addPage(QStringLiteral("&Главная"));
        fileGroup = home->addGroup(QStringLiteral("Файл"));
        fileGroup->addAction(open, Qt::ToolButtonTextUnderIcon);
        fileGroup->addAction(save, Qt::ToolButtonTextUnderIcon);
        editGroup = home->addGroup(QStringLiteral("Правка"));
        editGroup->addAction(undo, Qt::ToolButtonTextUnderIcon);
        ribbon.addQuickAction(save);
    }

    QAction* command(QMenu* category, const char* name, const char* text, const QColor& colour,
                     const QList<QKeySequence>& shortcuts)
    {
        auto* action = new QAction(colourIcon(colour), QString::fromUtf8(text), &owner);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcuts(shortcuts);
        category->addAction(action);
        return action;
    }

    QList<QAction*> quickActions()
    {
        QList<QAction*> visible;
        const QList<QAction*> actions = ribbon.quickAccessBar()->actions();
        for (QAction* action : actions) {
            if (ribbon.quickAccessBar()->isActionVisible(action))
                visible.append(action);
        }
        return visible;
    }
};

// A handler that logs every call into the host's log and can run a probe
// when the dialog asks for the menu or the ribbon.
class LoggingHandler : public ui::IMenuDataHandler
{
public:
    LoggingHandler(const QString& name, QMenu* menu, ui::RibbonBar* ribbon, QStringList* log)
        : m_name(name)
        , m_menu(menu)
        , m_ribbon(ribbon)
        , m_log(log)
    {
    }
    ~LoggingHandler() override { record(QStringLiteral("destroyed")); }

    QMenu* menu() override
    {
        record(QStringLiteral("menu"));
        if (onMenu)
            onMenu();
        return m_menu;
    }
    ui::RibbonBar* ribbon() override
    {
        record(QStringLiteral("ribbon"));
        if (onRibbon)
            onRibbon();
        return m_ribbon;
    }
    QList<QToolBar*> toolBars() const override
    {
        record(QStringLiteral("toolBars"));
        return {};
    }
    void applyLayout() override { record(QStringLiteral("applyLayout")); }
    void resetLayout() override { record(QStringLiteral("resetLayout")); }
    KeyValueStorage* settings() const override
    {
        record(QStringLiteral("settings"));
        return nullptr;
    }

    std::function<void()> onMenu;
    std::function<void()> onRibbon;

private:
    void record(const QString& call) const { m_log->append(m_name + QLatin1Char('.') + call); }

    QString m_name;
    QMenu* m_menu;
    ui::RibbonBar* m_ribbon;
    QStringList* m_log;
};

QModelIndex findAction(const QAbstractItemModel& model, const QAction* action, const QModelIndex& parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (MenuTreeModel::actionForIndex(index) == action)
            return index;
        const QModelIndex inner = findAction(model, action, index);
        if (inner.isValid())
            return inner;
    }
    return QModelIndex();
}

void flushDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void click(QTreeView* view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    testcommon::clickRow(view, index, modifiers);
    flushDeletes();
}

void doubleClick(QTreeView* view, const QModelIndex& index)
{
    testcommon::doubleClickRow(view, index);
    flushDeletes();
}

QStringList tabTexts(const QTabWidget* tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts << tabs->tabText(i);
    return texts;
}

QStringList childTexts(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts << model.index(row, 0, parent).data().toString();
    return texts;
}

// The dialog in a host window, shown, with the parts the tests drive.
struct Dialog
{
    QWidget window;
    ui::QCustomizeDlg* dialog;
    QTabWidget* tabs;
    MenuTreeWidget* ribbonMenuTree;
    MenuTreeWidget* quickMenuTree;
    QRibbonTreeWidget* ribbonEditor;
    QRibbonTreeQuickPanelWidget* quickEditor;
    QTreeView* ribbonView;
    QTreeView* quickView;
    QWidget* hotKeyPanel;

    Dialog()
        : dialog(new ui::QCustomizeDlg(&window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(dialog);
        tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        ribbonMenuTree = dialog->findChild<MenuTreeWidget*>(QStringLiteral("menuTreeWidget"));
        quickMenuTree = dialog->findChild<MenuTreeWidget*>(QStringLiteral("menuTreeQuickPanelWidget"));
        ribbonEditor = dialog->findChild<QRibbonTreeWidget*>(QStringLiteral("ribbonTreeWidget"));
        quickEditor = dialog->findChild<QRibbonTreeQuickPanelWidget*>(QStringLiteral("ribbonTreeQuickPanelWidget"));
        ribbonView = ribbonEditor->findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
        quickView = quickEditor->findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
        hotKeyPanel = dialog->findChild<QWidget*>(QStringLiteral("hotKeyPanel"));
        window.resize(1000, 640);
    }

    void show()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    void clickTab(int index)
    {
        QTabBar* bar = tabs->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
    }

    QList<ui::QHotKeyPage*> hotKeyPages() const
    {
        return hotKeyPanel->findChildren<ui::QHotKeyPage*>(QString(), Qt::FindDirectChildrenOnly);
    }

    QToolButton* ribbonButton(const char* name) const
    {
        return ribbonEditor->findChild<QToolButton*>(QString::fromLatin1(name));
    }

    QToolButton* quickButton(const char* name) const
    {
        return quickEditor->findChild<QToolButton*>(QString::fromLatin1(name));
    }

    // The ribbon editor's row of a group of the first page.
    QModelIndex ribbonGroupRow(int group) const
    {
        const QAbstractItemModel* model = ribbonView->model();
        return model->index(group, 0, model->index(0, 0));
    }

    QModelIndex menuRow(MenuTreeWidget* tree, const QAction* action) const
    {
        return findAction(*tree->model(), action);
    }
};

// The form's own object of that name: the editors' forms reuse some names.
template <typename T>
T* formChild(QWidget* dialog, const char* name)
{
    const QList<QWidget*> editors{dialog->findChild<QWidget*>(QStringLiteral("ribbonTreeWidget")),
                                  dialog->findChild<QWidget*>(QStringLiteral("ribbonTreeQuickPanelWidget"))};
    T* found = nullptr;
    const QList<T*> candidates = dialog->findChildren<T*>(QString::fromLatin1(name));
    for (T* candidate : candidates) {
        QObject* ancestor = candidate->parent();
        bool inEditor = false;
        for (; ancestor; ancestor = ancestor->parent())
            inEditor = inEditor || editors.contains(qobject_cast<QWidget*>(ancestor));
        if (inEditor)
            continue;
        if (found)
            return nullptr; // not unique
        found = candidate;
    }
    return found;
}

QStringList hotKeyList(ui::QHotKeyPage* page)
{
    QStringList texts;
    auto* list = page->findChild<QListWidget*>(QStringLiteral("listWidget"));
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}

bool hasLogEntry(const QStringList& log, const QString& suffix)
{
    for (const QString& entry : log) {
        if (entry.endsWith(suffix))
            return true;
    }
    return false;
}

// Records the key presses that reach it.
class KeyRecorder : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        keys.append(event->key());
        event->accept();
    }
};

} // namespace

class tst_CustomizeDlg : public QObject
{
    Q_OBJECT

private slots:
    void formWidgetTreeAndNames();
    void formLayoutsSizesAndTexts();
    void toolbarsTabGetters();
    void setHandlerStepsInOrder();
    void tabsWithRibbon();
    void tabsWithoutRibbon();
    void withoutRibbonDoubleClickInsertsNothing();
    void withoutRibbonSelectionOnlyUpdatesHotKeyPage();
    void ribbonTabSelectionFeedsHotKeysAndRibbonEditor();
    void quickTabSelectionFeedsOnlyQuickEditor();
    void doubleClickAddsToSelectedRibbonGroup();
    void doubleClickAddsToQuickAccessBar();
    void secondHandlerDeletesFirstAndConnectsAgain();
    void sameHandlerAgainIsKept();
    void commandInTwoCategoriesListedOnce();
    void shortcutTableTakenWhenHandlerIsSet();
    void nullMenuGivesEmptyTreesAndTable();
    void keyPressGoesOnToParent();
    void keyPressBeforeHandlerGoesOnToParent();
    void handlerOnlyAskedForMenuAndRibbon();
    void dialogDeletesItsHandler();
    void toolBarPageInToolbarsTab();
    void screenshots();
};

void tst_CustomizeDlg::formWidgetTreeAndNames()
{
    ui::QCustomizeDlg dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("MainWindowSettingsWidget"));

    // object name, class, parent widget, in the form's order
    struct Expected
    {
        const char* name;
        const char* className;
        const char* parentName;
    };
    const Expected widgets[] = {
        {"splitter", "QSplitter", "MainWindowSettingsWidget"},
        {"tabWidget", "QTabWidget", "splitter"},
        {"panel1", "QWidget", "qt_tabwidget_stackedwidget"},
        {"toolBarPanel", "QWidget", "panel1"},
        {"panelSplitter", "QSplitter", "toolBarPanel"},
        {"widget1", "QWidget", "panelSplitter"},
        {"treeWidget", "QTreeWidget", "widget1"},
        {"widget", "QWidget", "panelSplitter"},
        {"tab", "QWidget", "qt_tabwidget_stackedwidget"},
        {"splitter_2", "QSplitter", "tab"},
        {"menuTreeWidget", "MenuTreeWidget", "splitter_2"},
        {"ribbonTreeWidget", "QRibbonTreeWidget", "splitter_2"},
        {"tabQuickPanelSettings", "QWidget", "qt_tabwidget_stackedwidget"},
        {"splitter_3", "QSplitter", "tabQuickPanelSettings"},
        {"menuTreeQuickPanelWidget", "MenuTreeWidget", "splitter_3"},
        {"ribbonTreeQuickPanelWidget", "QRibbonTreeQuickPanelWidget", "splitter_3"},
        {"panel2", "QWidget", "qt_tabwidget_stackedwidget"},
        {"hotKeyPanel", "QWidget", "panel2"},
    };
    for (const Expected& expected : widgets) {
        auto* widget = formChild<QWidget>(&dialog, expected.name);
        QVERIFY2(widget, expected.name);
        QCOMPARE(widget->metaObject()->className(), expected.className);
        QVERIFY2(widget->parentWidget(), expected.name);
        QCOMPARE(widget->parentWidget()->objectName(), QString::fromLatin1(expected.parentName));
    }
    for (const char* name : {"splitter", "panelSplitter", "splitter_2", "splitter_3"})
        QCOMPARE(dialog.findChild<QSplitter*>(QString::fromLatin1(name))->orientation(), Qt::Horizontal);

    // Left and right of each splitter, tabs in the order 0 to 3.
    auto* panelSplitter = dialog.findChild<QSplitter*>(QStringLiteral("panelSplitter"));
    QCOMPARE(panelSplitter->count(), 2);
    QCOMPARE(panelSplitter->widget(0)->objectName(), QStringLiteral("widget1"));
    QCOMPARE(panelSplitter->widget(1)->objectName(), QStringLiteral("widget"));
    auto* splitter2 = dialog.findChild<QSplitter*>(QStringLiteral("splitter_2"));
    QCOMPARE(splitter2->widget(0)->objectName(), QStringLiteral("menuTreeWidget"));
    QCOMPARE(splitter2->widget(1)->objectName(), QStringLiteral("ribbonTreeWidget"));
    auto* splitter3 = dialog.findChild<QSplitter*>(QStringLiteral("splitter_3"));
    QCOMPARE(splitter3->widget(0)->objectName(), QStringLiteral("menuTreeQuickPanelWidget"));
    QCOMPARE(splitter3->widget(1)->objectName(), QStringLiteral("ribbonTreeQuickPanelWidget"));
    auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    QCOMPARE(tabs->count(), 4);
    const char* pages[] = {"panel1", "tab", "tabQuickPanelSettings", "panel2"};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(tabs->widget(i)->objectName(), QString::fromLatin1(pages[i]));

    // The menu trees start without a menu; the tool bar list's header is hidden.
    for (const char* name : {"menuTreeWidget", "menuTreeQuickPanelWidget"}) {
        auto* tree = dialog.findChild<MenuTreeWidget*>(QString::fromLatin1(name));
        QVERIFY(!tree->menu());
        QCOMPARE(tree->model()->rowCount(), 0);
    }
    auto* treeWidget = dialog.findChild<QTreeWidget*>(QStringLiteral("treeWidget"));
    QVERIFY(treeWidget->isHeaderHidden());
    QCOMPARE(treeWidget->headerItem()->text(0), QStringLiteral("1"));
}

void tst_CustomizeDlg::formLayoutsSizesAndTexts()
{
    ui::QCustomizeDlg dialog;
    QCOMPARE(dialog.size(), QSize(738, 562));
    QCOMPARE(dialog.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(dialog.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(dialog.sizePolicy().horizontalStretch(), 0);
    QCOMPARE(dialog.sizePolicy().verticalStretch(), 0);
    QCOMPARE(dialog.sizePolicy().hasHeightForWidth(), dialog.hasHeightForWidth());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Form"));

    // layout name, class, the widget it stands on ("" when nested), spacing (-1: not set), margins
    struct Expected
    {
        const char* name;
        const char* className;
        const char* owner;
        int spacing;
        int margin;
    };
    const Expected layouts[] = {
        {"verticalLayout_3", "QVBoxLayout", "MainWindowSettingsWidget", -1, 0},
        {"verticalLayout_2", "QVBoxLayout", "panel1", 6, 9},
        {"horizontalLayout_2", "QHBoxLayout", "toolBarPanel", -1, 0},
        {"leftLayout", "QVBoxLayout", "widget1", -1, 0},
        {"horizontalLayout", "QHBoxLayout", "widget", -1, 0},
        {"horizontalLayout_4", "QHBoxLayout", "tab", 6, 9},
        {"horizontalLayout_3", "QHBoxLayout", "tabQuickPanelSettings", 6, 9},
        {"verticalLayout", "QVBoxLayout", "panel2", 6, 9},
    };
    for (const Expected& expected : layouts) {
        auto* layout = formChild<QLayout>(&dialog, expected.name);
        QVERIFY2(layout, expected.name);
        QCOMPARE(layout->metaObject()->className(), expected.className);
        QVERIFY2(layout->parentWidget(), expected.name);
        QCOMPARE(layout->parentWidget()->objectName(), QString::fromLatin1(expected.owner));
        QCOMPARE(layout->parentWidget()->layout(), layout);
        if (expected.spacing >= 0)
            QCOMPARE(layout->spacing(), expected.spacing);
        const int m = expected.margin;
        QCOMPARE(layout->contentsMargins(), QMargins(m, m, m, m));
    }
    // The toolbars tab's slot for editing widgets: nested, without spacing.
    auto* slot = formChild<QVBoxLayout>(&dialog, "layout");
    QVERIFY(slot);
    QCOMPARE(slot->spacing(), 0);
    QCOMPARE(slot->parent(), formChild<QHBoxLayout>(&dialog, "horizontalLayout"));
    QCOMPARE(slot->count(), 0);

    // The placement inside the layouts.
    auto placedIn = [&dialog](const char* widget, const char* layout) {
        return formChild<QLayout>(&dialog, layout)->indexOf(formChild<QWidget>(&dialog, widget)) >= 0;
    };
    QVERIFY(placedIn("splitter", "verticalLayout_3"));
    QVERIFY(placedIn("toolBarPanel", "verticalLayout_2"));
    QVERIFY(placedIn("panelSplitter", "horizontalLayout_2"));
    QVERIFY(placedIn("treeWidget", "leftLayout"));
    QVERIFY(placedIn("splitter_2", "horizontalLayout_4"));
    QVERIFY(placedIn("splitter_3", "horizontalLayout_3"));
    QVERIFY(placedIn("hotKeyPanel", "verticalLayout"));

    auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    QCOMPARE(tabTexts(tabs), QStringList({QString::fromUtf8("Панели инструментов"), QString::fromUtf8("Лента команд"),
                                          QString::fromUtf8("Панель быстрого доступа"),
                                          QString::fromUtf8("Горячие клавиши")}));
    QCOMPARE(tabs->currentIndex(), 1);
    QCOMPARE(dialog.currentTabIndex(), 1);
    // No hot key page before a handler is set.
    QVERIFY(dialog.findChildren<ui::QHotKeyPage*>().isEmpty());
}

void tst_CustomizeDlg::toolbarsTabGetters()
{
    ui::QCustomizeDlg dialog;
    QCOMPARE(dialog.getTreeWidget(), dialog.findChild<QTreeWidget*>(QStringLiteral("treeWidget")));
    QCOMPARE(dialog.getLayout(), dialog.findChild<QLayout*>(QStringLiteral("layout")));
    QCOMPARE(dialog.getSplitter(), dialog.findChild<QSplitter*>(QStringLiteral("panelSplitter")));
    QCOMPARE(dialog.getRibbonTreeWidget(), dialog.findChild<QRibbonTreeWidget*>(QStringLiteral("ribbonTreeWidget")));
    // The list on the left of the splitter, the layout on its right.
    QVERIFY(dialog.getSplitter()->widget(0)->isAncestorOf(dialog.getTreeWidget()));
    QCOMPARE(dialog.getLayout()->parentWidget(), dialog.getSplitter()->widget(1));
}

void tst_CustomizeDlg::setHandlerStepsInOrder()
{
    Host host;
    QStringList log;
    Dialog d;
    auto* handler = new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log);
    QVERIFY(!d.ribbonMenuTree->isHeaderHidden());
    QVERIFY(!d.quickMenuTree->isHeaderHidden());

    // Asked for its menu: the headers are hidden and the hot key page exists.
    int pagesAtMenu = -1;
    bool headersHiddenAtMenu = false;
    handler->onMenu = [&] {
        pagesAtMenu = d.hotKeyPages().size();
        headersHiddenAtMenu = d.ribbonMenuTree->isHeaderHidden() && d.quickMenuTree->isHeaderHidden();
    };
    // Asked for its ribbon the first time: the menu trees show the menu, the
    // tabs are all there and the shortcut table is not built yet.
    bool firstRibbonCall = true;
    QMenu* ribbonTreeMenu = nullptr;
    QMenu* quickTreeMenu = nullptr;
    int tabsAtRibbon = -1;
    int tableAtRibbon = -1;
    handler->onRibbon = [&] {
        if (!firstRibbonCall)
            return;
        firstRibbonCall = false;
        ribbonTreeMenu = d.ribbonMenuTree->menu();
        quickTreeMenu = d.quickMenuTree->menu();
        tabsAtRibbon = d.tabs->count();
        tableAtRibbon = d.hotKeyPages().value(0) ? d.hotKeyPages().first()->shortcuts().size() : -1;
    };

    d.dialog->setHandler(handler);
    QCOMPARE(pagesAtMenu, 1);
    QVERIFY(headersHiddenAtMenu);
    QCOMPARE(ribbonTreeMenu, &host.menu);
    QCOMPARE(quickTreeMenu, &host.menu);
    QCOMPARE(tabsAtRibbon, 4);
    QCOMPARE(tableAtRibbon, 0);
    QCOMPARE(log.first(), QStringLiteral("h.menu"));
    QCOMPARE(log.at(1), QStringLiteral("h.ribbon"));
    // The ribbon decides the tabs, the editors and both connections.
    QVERIFY(log.count(QStringLiteral("h.ribbon")) >= 3);

    // Finally the table is there and the trees are connected.
    ui::QHotKeyPage* page = d.hotKeyPages().first();
    QVERIFY(!page->shortcuts().isEmpty());
    d.show();
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.open));
    QCOMPARE(page->action(), host.open);
    QCOMPARE(d.ribbonEditor->getRibbonBar(), &host.ribbon);
    QCOMPARE(d.quickEditor->getRibbonBar(), &host.ribbon);
}

void tst_CustomizeDlg::tabsWithRibbon()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    d.show();
    QCOMPARE(tabTexts(d.tabs), QStringList({QString::fromUtf8("Панели инструментов"), QString::fromUtf8("Лента команд"),
                                            QString::fromUtf8("Панель быстрого доступа")}));
    // The ribbon tab stays current; the hot keys page lives on, hidden.
    QCOMPARE(d.dialog->currentTabIndex(), 1);
    QCOMPARE(d.tabs->currentWidget()->objectName(), QStringLiteral("tab"));
    QVERIFY(d.ribbonMenuTree->isVisible());
    QCOMPARE(d.hotKeyPages().size(), 1);
    QVERIFY(!d.hotKeyPages().first()->isVisible());
    QCOMPARE(d.tabs->indexOf(d.hotKeyPanel->parentWidget()), -1);

    d.dialog->setCurrentTabIndex(2);
    QCOMPARE(d.dialog->currentTabIndex(), 2);
    QCOMPARE(d.tabs->currentWidget()->objectName(), QStringLiteral("tabQuickPanelSettings"));
    QVERIFY(d.quickEditor->isVisible());
    QVERIFY(!d.ribbonEditor->isVisible());

    // The tab bar itself.
    d.clickTab(0);
    QCOMPARE(d.dialog->currentTabIndex(), 0);
    QVERIFY(d.dialog->getTreeWidget()->isVisible());
    d.clickTab(1);
    QCOMPARE(d.dialog->currentTabIndex(), 1);
    QVERIFY(d.ribbonEditor->isVisible());

    // Both trees show the host's categories.
    for (MenuTreeWidget* tree : {d.ribbonMenuTree, d.quickMenuTree}) {
        QCOMPARE(tree->menu(), &host.menu);
        QCOMPARE(childTexts(*tree->model(), QModelIndex()),
                 QStringList({QString::fromUtf8("Файл"), QString::fromUtf8("Правка"), QString::fromUtf8("Вид")}));
    }
}

void tst_CustomizeDlg::tabsWithoutRibbon()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, nullptr, &log));
    d.show();
    QCOMPARE(tabTexts(d.tabs), QStringList({QString::fromUtf8("Панели инструментов")}));
    QCOMPARE(d.dialog->currentTabIndex(), 0);
    QCOMPARE(d.tabs->currentWidget()->objectName(), QStringLiteral("panel1"));
    QVERIFY(d.dialog->getTreeWidget()->isVisible());
    d.dialog->setCurrentTabIndex(2);
    QCOMPARE(d.dialog->currentTabIndex(), 0);
    // The editors were never given a ribbon.
    QVERIFY(!d.ribbonEditor->getRibbonBar());
    QVERIFY(!d.quickEditor->getRibbonBar());
    // The hot key page is still built and fed.
    QCOMPARE(d.hotKeyPages().size(), 1);
    QVERIFY(d.hotKeyPages().first()->shortcuts().contains(host.open));
}

void tst_CustomizeDlg::withoutRibbonDoubleClickInsertsNothing()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, nullptr, &log));
    d.show();
    // Give the editors a ribbon behind the dialog's back and pick a group:
    // a connected double-click would now add there.
    d.ribbonEditor->updateModel(&host.ribbon);
    d.quickEditor->updateModel(&host.ribbon);
    for (QWidget* page : {d.ribbonMenuTree->parentWidget()->parentWidget(), d.quickMenuTree->parentWidget()->parentWidget()}) {
        page->resize(d.tabs->size());
        page->show();
    }
    click(d.ribbonView, d.ribbonGroupRow(1));
    QCOMPARE(d.ribbonView->currentIndex(), d.ribbonGroupRow(1));
    const QList<QAction*> groupBefore = host.editGroup->actions();
    const QList<QAction*> quickBefore = host.quickActions();

    doubleClick(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.copy));
    QCOMPARE(d.ribbonMenuTree->currentIndex(), d.menuRow(d.ribbonMenuTree, host.copy));
    doubleClick(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.copy));
    QCOMPARE(d.quickMenuTree->currentIndex(), d.menuRow(d.quickMenuTree, host.copy));
    QCOMPARE(host.editGroup->actions(), groupBefore);
    QCOMPARE(host.quickActions(), quickBefore);
    QCOMPARE(d.ribbonView->model()->rowCount(d.ribbonGroupRow(1)), groupBefore.size());
}

void tst_CustomizeDlg::withoutRibbonSelectionOnlyUpdatesHotKeyPage()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, nullptr, &log));
    d.show();
    d.ribbonEditor->updateModel(&host.ribbon);
    d.quickEditor->updateModel(&host.ribbon);
    for (QWidget* page : {d.ribbonMenuTree->parentWidget()->parentWidget(), d.quickMenuTree->parentWidget()->parentWidget()}) {
        page->resize(d.tabs->size());
        page->show();
    }
    click(d.ribbonView, d.ribbonGroupRow(1));
    QToolButton* ribbonAdd = d.ribbonButton("addItem");
    QToolButton* quickAdd = d.quickButton("addItem");
    QVERIFY(!ribbonAdd->isEnabled());
    QVERIFY(!quickAdd->isEnabled());

    ui::QHotKeyPage* page = d.hotKeyPages().first();
    QVERIFY(!page->isVisible());
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.save));
    QCOMPARE(page->action(), host.save);
    QCOMPARE(hotKeyList(page), QStringList({QStringLiteral("Ctrl+S"), QStringLiteral("Ctrl+Shift+S")}));
    // Offered to the ribbon editor, the command would enable its add button.
    QVERIFY(!ribbonAdd->isEnabled());

    click(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.copy));
    QVERIFY(!quickAdd->isEnabled());
    QCOMPARE(page->action(), host.save);
}

void tst_CustomizeDlg::ribbonTabSelectionFeedsHotKeysAndRibbonEditor()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    d.show();
    ui::QHotKeyPage* page = d.hotKeyPages().first();
    QToolButton* add = d.ribbonButton("addItem");

    click(d.ribbonView, d.ribbonGroupRow(1));
    QVERIFY(!add->isEnabled());
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.copy));
    QCOMPARE(page->action(), host.copy);
    QCOMPARE(hotKeyList(page), QStringList({QStringLiteral("Ctrl+C")}));
    QVERIFY(add->isEnabled());

    // A command the group already holds cannot be added.
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.undo));
    QCOMPARE(page->action(), host.undo);
    QVERIFY(!add->isEnabled());

    // The editor's add button inserts the picked command into the live group.
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.table));
    QCOMPARE(page->action(), host.table);
    QVERIFY(hotKeyList(page).isEmpty());
    QVERIFY(add->isEnabled());
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(host.editGroup->actions(), QList<QAction*>({host.undo, host.table}));
}

void tst_CustomizeDlg::quickTabSelectionFeedsOnlyQuickEditor()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    d.show();
    d.clickTab(2);
    ui::QHotKeyPage* page = d.hotKeyPages().first();
    QToolButton* add = d.quickButton("addItem");
    QVERIFY(!add->isEnabled());

    click(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.print));
    QVERIFY(add->isEnabled());
    // The hot key page is not told.
    QVERIFY(!page->action());
    // A command already on the bar is not offered.
    click(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.save));
    QVERIFY(!add->isEnabled());
    click(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.print));
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save, host.print}));
    QVERIFY(!page->action());
}

void tst_CustomizeDlg::doubleClickAddsToSelectedRibbonGroup()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    d.show();
    QAbstractItemModelTester tester(d.ribbonView->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);

    click(d.ribbonView, d.ribbonGroupRow(0));
    doubleClick(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.print));
    QCOMPARE(host.fileGroup->actions(), QList<QAction*>({host.open, host.save, host.print}));
    const QModelIndex group = d.ribbonGroupRow(0);
    QCOMPARE(childTexts(*d.ribbonView->model(), group),
             QStringList({QString::fromUtf8("Открыть"), QString::fromUtf8("Сохранить"), QString::fromUtf8("Печать")}));
    // The new row is current, so the next double-click goes after it.
    QCOMPARE(d.ribbonView->currentIndex(), d.ribbonView->model()->index(2, 0, group));
    doubleClick(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.ruler));
    QCOMPARE(host.fileGroup->actions(), QList<QAction*>({host.open, host.save, host.print, host.ruler}));
    // Nothing went to the other group or the quick access bar.
    QCOMPARE(host.editGroup->actions(), QList<QAction*>({host.undo}));
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save}));
    // The live ribbon has a control for each.
    QVERIFY(host.fileGroup->controlByAction(host.print));
    QVERIFY(host.fileGroup->controlByAction(host.ruler));
}

void tst_CustomizeDlg::doubleClickAddsToQuickAccessBar()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    d.show();
    d.dialog->setCurrentTabIndex(2);
    QAbstractItemModelTester tester(d.quickView->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);

    doubleClick(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.undo));
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save, host.undo}));
    QCOMPARE(childTexts(*d.quickView->model(), QModelIndex()),
             QStringList({QString::fromUtf8("Сохранить"), QString::fromUtf8("Отменить")}));
    // After the current row: select the first one and add another.
    click(d.quickView, d.quickView->model()->index(0, 0));
    doubleClick(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.table));
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save, host.table, host.undo}));
    // Twice the same command: the bar holds it once.
    doubleClick(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.table));
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save, host.table, host.undo}));
    QCOMPARE(host.fileGroup->actions(), QList<QAction*>({host.open, host.save}));
}

void tst_CustomizeDlg::secondHandlerDeletesFirstAndConnectsAgain()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("first"), &host.menu, &host.ribbon, &log));
    d.show();
    ui::QHotKeyPage* firstPage = d.hotKeyPages().first();
    auto* firstList = firstPage->findChild<QListWidget*>(QStringLiteral("listWidget"));
    QSignalSpy firstRefills(firstList->model(), &QAbstractItemModel::modelReset);
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.open));
    QCOMPARE(firstPage->action(), host.open);
    QCOMPARE(firstRefills.count(), 1);

    // The second handler offers another menu over the same ribbon.
    QMenu second(QStringLiteral("Другие"));
    QMenu* tools = second.addMenu(QStringLiteral("Сервис"));
    QAction* options = tools->addAction(QStringLiteral("Параметры"));
    options->setObjectName(QStringLiteral("options"));
    options->setShortcut(QKeySequence(QStringLiteral("F9")));
    QAction* spelling = tools->addAction(QStringLiteral("Орфография"));
    spelling->setObjectName(QStringLiteral("spelling"));
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("second"), &second, &host.ribbon, &log));
    QVERIFY(log.contains(QStringLiteral("first.destroyed")));
    QVERIFY(!log.contains(QStringLiteral("second.destroyed")));
    // The old handler goes before the new one is asked anything.
    QVERIFY(log.indexOf(QStringLiteral("first.destroyed")) < log.indexOf(QStringLiteral("second.menu")));

    // A second page over the first, fed from the second menu; the first one
    // keeps what it had (the new page was made before the trees were reset).
    const QList<ui::QHotKeyPage*> pages = d.hotKeyPages();
    QCOMPARE(pages.size(), 2);
    QCOMPARE(pages.first(), firstPage);
    ui::QHotKeyPage* secondPage = pages.last();
    QCOMPARE(firstPage->action(), host.open);
    QVERIFY(firstPage->shortcuts().contains(host.open));
    QCOMPARE(secondPage->shortcuts().keys(), (QList<QAction*>{qMin(options, spelling), qMax(options, spelling)}));
    QCOMPARE(d.tabs->count(), 3);
    QCOMPARE(d.ribbonMenuTree->menu(), &second);

    // Each selection now reaches the dialog twice: the new page's list is
    // refilled twice; the first page hears nothing more.
    auto* secondList = secondPage->findChild<QListWidget*>(QStringLiteral("listWidget"));
    QSignalSpy secondRefills(secondList->model(), &QAbstractItemModel::modelReset);
    firstRefills.clear();
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, options));
    QCOMPARE(secondPage->action(), options);
    QCOMPARE(hotKeyList(secondPage), QStringList({QStringLiteral("F9")}));
    QCOMPARE(secondRefills.count(), 2);
    QCOMPARE(firstRefills.count(), 0);
    QCOMPARE(firstPage->action(), host.open);

    // A double-click is delivered twice too: the second delivery finds the
    // command in the group already, so it is added once.
    click(d.ribbonView, d.ribbonGroupRow(1));
    secondRefills.clear();
    doubleClick(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, spelling));
    QCOMPARE(host.editGroup->actions(), QList<QAction*>({host.undo, spelling}));
    QCOMPARE(secondRefills.count(), 2);
    d.dialog->setCurrentTabIndex(2);
    doubleClick(d.quickMenuTree, d.menuRow(d.quickMenuTree, spelling));
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save, spelling}));
}

void tst_CustomizeDlg::sameHandlerAgainIsKept()
{
    Host host;
    QStringList log;
    Dialog d;
    auto* handler = new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log);
    d.dialog->setHandler(handler);
    d.dialog->setHandler(handler);
    QVERIFY(!log.contains(QStringLiteral("h.destroyed")));
    d.show();
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.print));
    QCOMPARE(d.hotKeyPages().last()->action(), host.print);
    QCOMPARE(d.hotKeyPages().size(), 2);
}

void tst_CustomizeDlg::commandInTwoCategoriesListedOnce()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    d.show();
    ui::QHotKeyPage* page = d.hotKeyPages().first();
    const ui::QHotKeyPage::ShortcutTable table = page->shortcuts();

    // Every action that is not a category, separators included, once.
    QList<QAction*> expected{host.open, host.save, host.separator, host.print, host.undo, host.copy, host.table, host.ruler};
    std::sort(expected.begin(), expected.end());
    QCOMPARE(table.keys(), expected);
    QCOMPARE(table.keys().count(host.print), 1);
    QCOMPARE(table.value(host.print), QList<QKeySequence>({QKeySequence(QStringLiteral("Ctrl+P"))}));
    QCOMPARE(table.value(host.save), host.save->shortcuts());
    QVERIFY(table.contains(host.separator));
    QVERIFY(table.value(host.separator).isEmpty());
    QVERIFY(table.value(host.table).isEmpty());

    // Picked in either category, it shows its one shortcut once.
    const QModelIndex file = d.ribbonMenuTree->model()->index(0, 0);
    const QModelIndex edit = d.ribbonMenuTree->model()->index(1, 0);
    click(d.ribbonMenuTree, d.ribbonMenuTree->model()->index(3, 0, file));
    QCOMPARE(page->action(), host.print);
    QCOMPARE(hotKeyList(page), QStringList({QStringLiteral("Ctrl+P")}));
    click(d.ribbonMenuTree, d.ribbonMenuTree->model()->index(0, 0, edit));
    click(d.ribbonMenuTree, d.ribbonMenuTree->model()->index(2, 0, edit));
    QCOMPARE(page->action(), host.print);
    QCOMPARE(hotKeyList(page), QStringList({QStringLiteral("Ctrl+P")}));

    // Its shortcut belongs to one owner: typed for another command it is refused.
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.ruler));
    auto* edit2 = page->findChild<QtKeySequenceEdit*>();
    QVERIFY(edit2);
    QTest::keyClick(edit2, Qt::Key_P, Qt::ControlModifier);
    auto* owner = page->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
    QCOMPARE(owner->text(), QString::fromUtf8("Печать"));
    QVERIFY(!page->findChild<QToolButton*>(QStringLiteral("addButton"))->isEnabled());
}

void tst_CustomizeDlg::shortcutTableTakenWhenHandlerIsSet()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    host.open->setShortcut(QKeySequence(QStringLiteral("F2")));
    ui::QHotKeyPage* page = d.hotKeyPages().first();
    QCOMPARE(page->shortcuts().value(host.open), QList<QKeySequence>({QKeySequence(QStringLiteral("Ctrl+O"))}));
    // And nothing is written back to the actions.
    d.show();
    click(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.copy));
    auto* edit = page->findChild<QtKeySequenceEdit*>();
    QTest::keyClick(edit, Qt::Key_K, Qt::ControlModifier);
    QTest::mouseClick(page->findChild<QToolButton*>(QStringLiteral("addButton")), Qt::LeftButton);
    QCOMPARE(page->shortcuts().value(host.copy).size(), 2);
    QCOMPARE(host.copy->shortcuts(), QList<QKeySequence>({QKeySequence(QStringLiteral("Ctrl+C"))}));
}

void tst_CustomizeDlg::nullMenuGivesEmptyTreesAndTable()
{
    Host host;
    QStringList log;
    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), nullptr, &host.ribbon, &log));
    d.show();
    QCOMPARE(d.ribbonMenuTree->model()->rowCount(), 0);
    QCOMPARE(d.quickMenuTree->model()->rowCount(), 0);
    QVERIFY(!d.ribbonMenuTree->menu());
    QVERIFY(d.hotKeyPages().first()->shortcuts().isEmpty());
    // The ribbon still decides the tabs and feeds the editors.
    QCOMPARE(d.tabs->count(), 3);
    QCOMPARE(d.ribbonView->model()->rowCount(), host.ribbon.pages().size());
    QCOMPARE(d.quickView->model()->rowCount(), 1);
}

void tst_CustomizeDlg::keyPressGoesOnToParent()
{
    Host host;
    QStringList log;
    KeyRecorder parent;
    auto* layout = new QVBoxLayout(&parent);
    auto* dialog = new ui::QCustomizeDlg;
    layout->addWidget(dialog);
    dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    ui::QHotKeyPage* page = dialog->findChild<ui::QHotKeyPage*>();
    auto* edit = page->findChild<QtKeySequenceEdit*>();

    QTest::keyClick(dialog, Qt::Key_F5);
    QTest::keyClick(dialog, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(parent.keys, QList<int>({Qt::Key_F5, Qt::Key_Control, Qt::Key_S}));
    // The hot key page took nothing from them.
    QVERIFY(edit->text().isEmpty());
    QVERIFY(edit->keySequence().isEmpty());

    // A dialog that is a window of its own leaves the event ignored.
    ui::QCustomizeDlg window;
    window.setHandler(new LoggingHandler(QStringLiteral("w"), &host.menu, &host.ribbon, &log));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    event.accept();
    QCoreApplication::sendEvent(&window, &event);
    QVERIFY(!event.isAccepted());
}

void tst_CustomizeDlg::keyPressBeforeHandlerGoesOnToParent()
{
    KeyRecorder parent;
    auto* layout = new QVBoxLayout(&parent);
    auto* dialog = new ui::QCustomizeDlg;
    layout->addWidget(dialog);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QTest::keyClick(dialog, Qt::Key_F6);
    QCOMPARE(parent.keys, QList<int>({Qt::Key_F6}));
}

void tst_CustomizeDlg::handlerOnlyAskedForMenuAndRibbon()
{
    Host host;
    QStringList log;
    {
        Dialog d;
        d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
        d.show();
        click(d.ribbonView, d.ribbonGroupRow(1));
        doubleClick(d.ribbonMenuTree, d.menuRow(d.ribbonMenuTree, host.copy));
        d.dialog->setCurrentTabIndex(2);
        doubleClick(d.quickMenuTree, d.menuRow(d.quickMenuTree, host.copy));
        QTest::keyClick(d.dialog, Qt::Key_F5);
        QCOMPARE(host.editGroup->actions(), QList<QAction*>({host.undo, host.copy}));
        QCOMPARE(host.quickActions(), QList<QAction*>({host.save, host.copy}));
    }
    for (const char* call : {"toolBars", "applyLayout", "resetLayout", "settings"})
        QVERIFY2(!hasLogEntry(log, QString::fromLatin1(call)), call);
    QVERIFY(log.contains(QStringLiteral("h.menu")));
    QVERIFY(log.contains(QStringLiteral("h.ribbon")));
}

void tst_CustomizeDlg::dialogDeletesItsHandler()
{
    Host host;
    QStringList log;
    auto* dialog = new ui::QCustomizeDlg;
    dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    QVERIFY(!log.contains(QStringLiteral("h.destroyed")));
    delete dialog;
    QCOMPARE(log.last(), QStringLiteral("h.destroyed"));
    QCOMPARE(log.count(QStringLiteral("h.destroyed")), 1);
    // A dialog without a handler deletes nothing.
    delete new ui::QCustomizeDlg;
}

void tst_CustomizeDlg::toolBarPageInToolbarsTab()
{
    Host host;
    QStringList log;
    QMainWindow mainWindow;
    QToolBar* standard = mainWindow.addToolBar(QStringLiteral("Стандартная"));
    standard->setObjectName(QStringLiteral("standard"));
    standard->addAction(host.open);
    standard->addAction(host.save);
    QToolBar* editing = mainWindow.addToolBar(QStringLiteral("Правка"));
    editing->setObjectName(QStringLiteral("editing"));
    editing->addAction(host.undo);

    Dialog d;
    d.dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    // As a host does it: the page in the tab's layout, a command tree in place
    // of the tab's list on the other side of the splitter.
    auto* page = new ui::QToolBarPage;
    page->setToolBars({standard, editing});
    d.dialog->getLayout()->addWidget(page);
    auto* commands = new MenuTreeWidget(nullptr, &host.menu);
    commands->setHeaderHidden(true);
    QTreeWidget* list = d.dialog->getTreeWidget();
    QWidget* left = list->parentWidget();
    delete left->layout()->replaceWidget(list, commands);
    list->hide();
    QObject::connect(commands, &MenuTreeWidget::currentActionChanged, page, &ui::QToolBarPage::setCurrentCommand);
    QObject::connect(commands, &MenuTreeWidget::actionDoubleClicked, page, &ui::QToolBarPage::fromDoubleClick);
    d.dialog->getSplitter()->setSizes({260, 700});
    d.dialog->setCurrentTabIndex(0);
    d.show();

    QVERIFY(page->isVisible());
    QVERIFY(commands->isVisible());
    QCOMPARE(d.dialog->getSplitter()->indexOf(left), 0);
    QVERIFY(d.dialog->getSplitter()->widget(1)->isAncestorOf(page));
    QVERIFY(commands->geometry().right() < left->width());
    QVERIFY(page->mapTo(d.dialog, QPoint(0, 0)).x() > left->mapTo(d.dialog, QPoint(0, 0)).x() + 200);

    // Pick the editing toolbar and double-click a command into it.
    auto* toolBarList = page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    QTest::mouseClick(toolBarList->viewport(), Qt::LeftButton, Qt::NoModifier,
                      toolBarList->visualItemRect(toolBarList->item(1)).center());
    QCOMPARE(toolBarList->currentRow(), 1);
    // Nothing is selected in its contents: the command goes first.
    doubleClick(commands, findAction(*commands->model(), host.copy));
    QCOMPARE(editing->actions(), QList<QAction*>({host.copy, host.undo}));
    auto* contents = page->findChild<QTreeWidget*>(QStringLiteral("contentsTree"));
    QCOMPARE(contents->topLevelItemCount(), 2);
    QCOMPARE(contents->topLevelItem(0)->text(0), QString::fromUtf8("Копировать"));
    QCOMPARE(contents->currentItem(), contents->topLevelItem(0));
    // Then after the selected one.
    doubleClick(commands, findAction(*commands->model(), host.table));
    QCOMPARE(editing->actions(), QList<QAction*>({host.copy, host.table, host.undo}));
    QCOMPARE(page->toolBars(), QList<QToolBar*>({standard, editing}));
    // The ribbon tabs are untouched by it.
    QCOMPARE(host.editGroup->actions(), QList<QAction*>({host.undo}));
}

void tst_CustomizeDlg::screenshots()
{
    const QString directory = qEnvironmentVariable("TESSARO_SCREENSHOT_DIR");
    if (directory.isEmpty())
        QSKIP("TESSARO_SCREENSHOT_DIR is not set");
    QVERIFY(QDir().mkpath(directory));

    Host host(false);
    QStringList log;
    host.ribbon.resize(980, 160);
    host.ribbon.show();
    QWidget window;
    window.setWindowTitle(QStringLiteral("Tessaro"));
    auto* layout = new QVBoxLayout(&window);
    auto* dialog = new ui::QCustomizeDlg;
    layout->addWidget(dialog);
    QMainWindow toolBarHost;
    QToolBar* standard = toolBarHost.addToolBar(QString::fromUtf8("Стандартная"));
    standard->setObjectName(QStringLiteral("standard"));
    standard->addAction(host.open);
    standard->addAction(host.save);
    standard->addSeparator();
    standard->addAction(host.print);
    QToolBar* editing = toolBarHost.addToolBar(QString::fromUtf8("Правка"));
    editing->setObjectName(QStringLiteral("editing"));
    editing->addAction(host.undo);
    editing->addAction(host.copy);
    dialog->setHandler(new LoggingHandler(QStringLiteral("h"), &host.menu, &host.ribbon, &log));
    auto* page = new ui::QToolBarPage;
    page->setToolBars({standard, editing});
    dialog->getLayout()->addWidget(page);
    auto* commands = new MenuTreeWidget(nullptr, &host.menu);
    commands->setHeaderHidden(true);
    QObject::connect(commands, &MenuTreeWidget::currentActionChanged, page, &ui::QToolBarPage::setCurrentCommand);
    QTreeWidget* list = dialog->getTreeWidget();
    delete list->parentWidget()->layout()->replaceWidget(list, commands);
    list->hide();
    dialog->getSplitter()->setSizes({240, 720});
    window.resize(980, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(QTest::qWaitForWindowExposed(&host.ribbon));

    auto* tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    auto* ribbonMenuTree = dialog->findChild<MenuTreeWidget*>(QStringLiteral("menuTreeWidget"));
    auto* quickMenuTree = dialog->findChild<MenuTreeWidget*>(QStringLiteral("menuTreeQuickPanelWidget"));
    auto* ribbonView = dialog->getRibbonTreeWidget()->findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    auto* quickView = dialog->findChild<QRibbonTreeQuickPanelWidget*>()->findChild<QTreeView*>(
        QStringLiteral("ribbonTreeView"));
    // The live ribbon above the dialog, as the host shows them.
    auto save = [&](const char* name) {
        QCoreApplication::processEvents();
        flushDeletes();
        const QPixmap top = host.ribbon.grab();
        const QPixmap bottom = window.grab();
        QImage image(qMax(top.width(), bottom.width()), top.height() + bottom.height() + 12, QImage::Format_RGB32);
        image.fill(QColor(0xE8, 0xE8, 0xE8));
        QPainter painter(&image);
        painter.drawPixmap(0, 0, top);
        painter.drawPixmap(0, top.height() + 12, bottom);
        painter.end();
        QVERIFY(image.save(QDir(directory).filePath(QString::fromLatin1(name))));
    };

    // Ribbon tab: the table command picked, added to the edit group.
    tabs->tabBar()->setCurrentIndex(1);
    click(ribbonView, ribbonView->model()->index(1, 0, ribbonView->model()->index(0, 0)));
    doubleClick(ribbonMenuTree, findAction(*ribbonMenuTree->model(), host.table));
    QCOMPARE(host.editGroup->actions(), QList<QAction*>({host.undo, host.table}));
    save("customize-ribbon-tab.png");

    // Quick access tab: print added after save.
    tabs->tabBar()->setCurrentIndex(2);
    click(quickView, quickView->model()->index(0, 0));
    doubleClick(quickMenuTree, findAction(*quickMenuTree->model(), host.print));
    QCOMPARE(host.quickActions(), QList<QAction*>({host.save, host.print}));
    save("customize-quickpanel-tab.png");

    // Toolbars tab: the standard toolbar's contents, copy picked.
    tabs->tabBar()->setCurrentIndex(0);
    auto* toolBarList = page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    toolBarList->setCurrentRow(0);
    click(commands, findAction(*commands->model(), host.copy));
    save("customize-toolbars-tab.png");
}

QTEST_MAIN(tst_CustomizeDlg)
#include "tst_customizedlg.moc"
