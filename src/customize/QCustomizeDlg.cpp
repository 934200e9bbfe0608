#include <tessaro/QCustomizeDlg.h>

#include <tessaro/IMenuDataHandler.h>
#include <tessaro/QHotKeyPage.h>

#include "ui_QCustomizeDlg.h"

#include <QKeyEvent>
#include <QMenu>
#include <QSet>

namespace ui {

namespace {

// Depth first through @p menu: a submenu is descended into, every other
// action (separators too) is entered with its shortcuts. An action met a
// second time keeps its first entry: entering it again stores the same
// shortcuts, and spares a lookup for every action met once.
void collectShortcuts(const QMenu* menu, QHotKeyPage::ShortcutTable* table, QSet<const QMenu*>* visited)
{
    // A menu met again adds nothing new; a menu inside itself would never end.
    if (!menu || visited->contains(menu))
        return;
    visited->insert(menu);
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->menu())
            collectShortcuts(action->menu(), table, visited);
        else
            table->insert(action, action->shortcuts());
    }
}

QHotKeyPage::ShortcutTable shortcutTable(const QMenu* menu)
{
    QHotKeyPage::ShortcutTable table;
    QSet<const QMenu*> visited;
    collectShortcuts(menu, &table, &visited);
    return table;
}

// keyPressEvent() is protected: named through a class derived from QWidget,
// it can be called on any widget, with the usual virtual dispatch.
struct KeyPressForwarder : QWidget
{
    static void forward(QWidget* target, QKeyEvent* event) { (target->*&KeyPressForwarder::keyPressEvent)(event); }
};

} // namespace

QCustomizeDlg::QCustomizeDlg(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::MainWindowSettingsWidget)
    , m_hotKeyPage(nullptr)
    , m_handler(nullptr)
{
    m_ui->setupUi(this);
}

QCustomizeDlg::~QCustomizeDlg()
{
    delete m_handler;
    delete m_ui;
}

void QCustomizeDlg::setHandler(IMenuDataHandler* handler)
{
    if (m_handler != handler)
        delete m_handler;
    m_handler = handler;

    m_ui->menuTreeWidget->setHeaderHidden(true);
    m_ui->menuTreeQuickPanelWidget->setHeaderHidden(true);

    // A page made by an earlier call stays, hidden under the new one.
    m_hotKeyPage = new QHotKeyPage(m_ui->hotKeyPanel);

    QMenu* menu = m_handler->menu();
    m_ui->menuTreeWidget->setMenu(menu);
    m_ui->menuTreeQuickPanelWidget->setMenu(menu);

    // The hot keys tab goes in both cases: shortcuts are not edited here.
    if (m_handler->ribbon()) {
        m_ui->tabWidget->removeTab(3);
        m_ui->ribbonTreeWidget->updateModel(m_handler->ribbon());
        m_ui->ribbonTreeQuickPanelWidget->updateModel(m_handler->ribbon());
    } else {
        m_ui->tabWidget->removeTab(3);
        m_ui->tabWidget->removeTab(2);
        m_ui->tabWidget->removeTab(1);
    }

    m_hotKeyPage->setShortcuts(shortcutTable(menu));

    // Each call connects again: after a second call every signal reaches its
    // slot twice.
    connect(m_ui->menuTreeWidget, SIGNAL(currentActionChanged(QAction*)),
            this, SLOT(onMenuTreeViewCurrentChanged(QAction*)));
    if (m_handler->ribbon()) {
        connect(m_ui->menuTreeWidget, SIGNAL(actionDoubleClicked(QAction*)),
                m_ui->ribbonTreeWidget, SLOT(addItem(QAction*)));
    }
    connect(m_ui->menuTreeQuickPanelWidget, SIGNAL(currentActionChanged(QAction*)),
            this, SLOT(onMenuQuickPanelTreeViewCurrentChanged(QAction*)));
    if (m_handler->ribbon()) {
        connect(m_ui->menuTreeQuickPanelWidget, SIGNAL(actionDoubleClicked(QAction*)),
                m_ui->ribbonTreeQuickPanelWidget, SLOT(addItem(QAction*)));
    }
}

int QCustomizeDlg::currentTabIndex() const
{
    return m_ui->tabWidget->currentIndex();
}

void QCustomizeDlg::setCurrentTabIndex(int index)
{
    m_ui->tabWidget->setCurrentIndex(index);
}

QTreeWidget* QCustomizeDlg::getTreeWidget() const
{
    return m_ui->treeWidget;
}

QLayout* QCustomizeDlg::getLayout() const
{
    return m_ui->layout;
}

QSplitter* QCustomizeDlg::getSplitter() const
{
    return m_ui->panelSplitter;
}

QRibbonTreeWidget* QCustomizeDlg::getRibbonTreeWidget() const
{
    return m_ui->ribbonTreeWidget;
}

void QCustomizeDlg::keyPressEvent(QKeyEvent* event)
{
    // The page keeps the plain widget behaviour: the event is ignored and
    // goes on to this dialog's parent.
    if (m_hotKeyPage)
        KeyPressForwarder::forward(m_hotKeyPage, event);
    else
        event->ignore();
}

void QCustomizeDlg::onMenuTreeViewCurrentChanged(QAction* action)
{
    m_hotKeyPage->setAction(action);
    if (m_handler->ribbon())
        m_ui->ribbonTreeWidget->setMenuAction(action);
}

void QCustomizeDlg::onMenuQuickPanelTreeViewCurrentChanged(QAction* action)
{
    if (m_handler->ribbon())
        m_ui->ribbonTreeQuickPanelWidget->setMenuAction(action);
}

} // namespace ui
