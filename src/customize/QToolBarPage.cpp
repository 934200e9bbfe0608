#include <tessaro/QToolBarPage.h>

#include <tessaro/RibbonControls.h>
#include "TessaroTranslate_p.h"
#include "common/LazyIconEngine_p.h"
#include "ui_QToolBarPage.h"

#include <QAction>
#include <QFont>
#include <QListWidgetItem>
#include <QMenu>
#include <QPointer>
#include <QSet>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidgetItem>
#include <QVector>

namespace ui {

namespace {

const int maxTitleLength = 255;

QString separatorText()
{
    return QStringLiteral("-------------");
}

QString groupText()
{
    return TESSARO_TR("QToolBarPage.cpp", "Группа команд");
}

struct StyleChoice
{
    Qt::ToolButtonStyle style;
    QString text;
};

QVector<StyleChoice> styleChoices()
{
    // Qt::ToolButtonFollowStyle is the "default" entry: the button follows the style.
    return {
        {Qt::ToolButtonIconOnly, TESSARO_TR("QToolBarPage.cpp", "Только иконка")},
        {Qt::ToolButtonTextOnly, TESSARO_TR("QToolBarPage.cpp", "Только текст")},
        {Qt::ToolButtonTextBesideIcon, TESSARO_TR("QToolBarPage.cpp", "Текст возле иконки")},
        {Qt::ToolButtonTextUnderIcon, TESSARO_TR("QToolBarPage.cpp", "Текст под иконкой")},
        {Qt::ToolButtonFollowStyle, TESSARO_TR("QToolBarPage.cpp", "По умолчанию")},
    };
}

// Inserts @p action before the entry now at @p index, or last when @p index is past the end.
void insertActionAt(QWidget* container, int index, QAction* action)
{
    container->insertAction(container->actions().value(index), action);
}

QToolButton* buttonOf(QToolBar* toolBar, QAction* action)
{
    return qobject_cast<QToolButton*>(toolBar->widgetForAction(action));
}

int siblingIndex(QTreeWidgetItem* item)
{
    if (const QTreeWidgetItem* parent = item->parent())
        return parent->indexOfChild(item);
    return item->treeWidget()->indexOfTopLevelItem(item);
}

int siblingCount(const QTreeWidgetItem* item)
{
    if (const QTreeWidgetItem* parent = item->parent())
        return parent->childCount();
    return item->treeWidget()->topLevelItemCount();
}

// A toolbar makes a new button whenever an action is inserted again; these
// are the parts of the old button's look that the page itself may have set.
struct ButtonLook
{
    bool valid = false;
    Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly;
    QSize iconSize;
    QToolButton::ToolButtonPopupMode popupMode = QToolButton::DelayedPopup;
};

ButtonLook lookOf(QToolButton* button)
{
    ButtonLook look;
    if (button) {
        look.valid = true;
        look.style = button->toolButtonStyle();
        look.iconSize = button->iconSize();
        look.popupMode = button->popupMode();
    }
    return look;
}

void applyLook(QToolButton* button, const ButtonLook& look)
{
    if (!button || !look.valid)
        return;
    button->setToolButtonStyle(look.style);
    button->setIconSize(look.iconSize);
    button->setPopupMode(look.popupMode);
}

} // namespace

QToolBarPage::QToolBarPage(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::QToolBarPage)
    , m_command(nullptr)
    , m_toolBar(nullptr)
{
    m_ui->setupUi(this);
    LazyIconEngine::setIcons({
        {m_ui->addToolbarButton, ":/Tessaro/add-toolbar.png"},
        {m_ui->removeToolbarButton, ":/Tessaro/remove-toolbar.png"},
        {m_ui->renameToolbarButton, ":/Tessaro/rename-toolbar.png"},
        {m_ui->addActionButton, ":/Tessaro/go-top-icone-5674-32.png"},
        {m_ui->addActionToGroupButton, ":/Tessaro/add-to-group.png"},
        {m_ui->removeActionButton, ":/Tessaro/1remove.png"},
        {m_ui->addGroupButton, ":/Tessaro/add-group-action.png"},
        {m_ui->addSeparatorButton, ":/Tessaro/add-separator.png"},
        {m_ui->upButton, ":/Tessaro/1uparrow.png"},
        {m_ui->downButton, ":/Tessaro/1downarrow.png"},
    });
    m_ui->splitter->setStretchFactor(1, 2);
    updateButtons();
}

QToolBarPage::~QToolBarPage()
{
    delete m_ui;
}

void QToolBarPage::setToolBars(const QList<QToolBar*>& toolBars)
{
    // Forget the old rows first, so that the signals of clearing them find no toolbar.
    m_toolBars.clear();
    m_ui->toolBarList->clear();
    for (QToolBar* toolBar : toolBars) {
        if (!toolBar)
            continue;
        auto* item = new QListWidgetItem(toolBar->windowTitle());
        item->setFlags(item->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
        // The toolbar's own state: a disabled main window must not uncheck its toolbars.
        item->setCheckState(toolBar->testAttribute(Qt::WA_ForceDisabled) ? Qt::Unchecked : Qt::Checked);
        m_ui->toolBarList->addItem(item);
        m_toolBars.insert(item, toolBar);
    }
}

QList<QToolBar*> QToolBarPage::toolBars() const
{
    QList<QToolBar*> result;
    for (int row = 0; row < m_ui->toolBarList->count(); ++row) {
        if (QToolBar* toolBar = m_toolBars.value(m_ui->toolBarList->item(row)))
            result.append(toolBar);
    }
    return result;
}

void QToolBarPage::setCurrentCommand(QAction* command)
{
    m_command = command;
    updateButtons();
}

void QToolBarPage::fromDoubleClick()
{
    if (m_ui->addActionButton->isEnabled())
        addAction();
    else if (m_ui->addActionToGroupButton->isEnabled())
        addActionToGroup();
}

void QToolBarPage::addAction()
{
    if (!canAddCommand())
        return;
    QTreeWidget* tree = m_ui->contentsTree;
    const int index = tree->indexOfTopLevelItem(tree->currentItem()) + 1;
    QTreeWidgetItem* item = newCommandItem(m_command);
    tree->insertTopLevelItem(index, item);
    insertActionAt(m_toolBar, index, m_command);
    finishEdit(item);
}

void QToolBarPage::addActionToGroup()
{
    if (!canAddCommandToGroup())
        return;
    QTreeWidgetItem* current = m_ui->contentsTree->currentItem();
    QTreeWidgetItem* group = selectedGroupItem();
    QMenu* menu = groupMenu(group, true);
    // A menu holds an action once; adding it again would only move it.
    if (!menu || menu->actions().contains(m_command))
        return;
    const int index = current->parent() ? group->indexOfChild(current) + 1 : group->childCount();
    QTreeWidgetItem* item = newCommandItem(m_command);
    group->insertChild(index, item);
    insertActionAt(menu, index, m_command);
    group->setExpanded(true);
    finishEdit(item);
}

void QToolBarPage::removeAction()
{
    QTreeWidget* tree = m_ui->contentsTree;
    QTreeWidgetItem* current = tree->currentItem();
    if (!m_toolBar || !current)
        return;
    QAction* action = actionOfItem(current);
    if (QTreeWidgetItem* group = current->parent()) {
        if (QMenu* menu = groupMenu(group, false))
            menu->removeAction(action);
        delete group->takeChild(group->indexOfChild(current));
    } else {
        m_toolBar->removeAction(action);
        delete tree->takeTopLevelItem(tree->indexOfTopLevelItem(current));
    }
    // Commands and groups belong to the host; separators were made for this spot only.
    if (action && action->isSeparator())
        delete action;
    updateButtons();
}

void QToolBarPage::upAction()
{
    moveSelectedItem(-1);
}

void QToolBarPage::downAction()
{
    moveSelectedItem(+1);
}

void QToolBarPage::addSeparator()
{
    if (!m_toolBar)
        return;
    QTreeWidget* tree = m_ui->contentsTree;
    QTreeWidgetItem* current = tree->currentItem();
    QTreeWidgetItem* item = newSeparatorItem();
    if (QTreeWidgetItem* group = selectedGroupItem()) {
        QMenu* menu = groupMenu(group, true);
        const int index = current->parent() ? group->indexOfChild(current) + 1 : group->childCount();
        menu->insertSeparator(menu->actions().value(index));
        group->insertChild(index, item);
        group->setExpanded(true);
    } else {
        const int index = tree->indexOfTopLevelItem(current) + 1;
        m_toolBar->insertSeparator(m_toolBar->actions().value(index));
        tree->insertTopLevelItem(index, item);
    }
    finishEdit(item);
}

void QToolBarPage::addGroup()
{
    QTreeWidget* tree = m_ui->contentsTree;
    QTreeWidgetItem* current = tree->currentItem();
    if (!m_toolBar || (current && current->parent()))
        return;
    const int index = tree->indexOfTopLevelItem(current) + 1;
    auto* action = new QAction(m_toolBar);
    insertActionAt(m_toolBar, index, action);
    // The menu comes with the first command (addActionToGroup).
    setGroupButtonType(buttonOf(m_toolBar, action), Simple);
    QTreeWidgetItem* item = newGroupItem();
    tree->insertTopLevelItem(index, item);
    finishEdit(item);
}

void QToolBarPage::addToolbar()
{
    QSet<int> usedNumbers;
    for (QToolBar* toolBar : qAsConst(m_toolBars))
        usedNumbers.insert(toolBar->objectName().toInt());
    int number = 1;
    while (usedNumbers.contains(number))
        ++number;

    auto* toolBar = new QToolBar(QStringLiteral("Custom ToolBar"));
    toolBar->setObjectName(QString::number(number));
    QListWidget* list = m_ui->toolBarList;
    auto* item = new QListWidgetItem(toolBar->windowTitle(), list);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    item->setCheckState(Qt::Unchecked);
    m_toolBars.insert(item, toolBar);
    list->setCurrentRow(list->count() - 1);
    updateButtons();
}

void QToolBarPage::removeToolbar()
{
    QListWidget* list = m_ui->toolBarList;
    QListWidgetItem* item = list->currentItem();
    if (!item)
        return;
    QToolBar* toolBar = m_toolBars.take(item);
    // Taking the row moves the list's current row on, which shows the next toolbar.
    delete list->takeItem(list->row(item));
    if (m_toolBar == toolBar)
        toolbarChanged(list->currentItem());
    delete toolBar;
    updateButtons();
}

void QToolBarPage::renameToolbar()
{
    if (QListWidgetItem* item = m_ui->toolBarList->currentItem())
        m_ui->toolBarList->editItem(item);
}

void QToolBarPage::toolbarRenamed(QListWidgetItem* item)
{
    QToolBar* toolBar = m_toolBars.value(item);
    if (!toolBar)
        return;
    if (item->text().size() > maxTitleLength)
        item->setText(toolBar->windowTitle());
    // An unchanged title means that the check box changed.
    if (item->text() == toolBar->windowTitle())
        toolBar->setEnabled(item->checkState() == Qt::Checked);
    else
        toolBar->setWindowTitle(item->text());
}

void QToolBarPage::toolbarChanged(QListWidgetItem* item)
{
    m_toolBar = item ? m_toolBars.value(item) : nullptr;
    fillTree();
    updateButtons();
}

void QToolBarPage::updateButtons()
{
    QTreeWidgetItem* item = m_ui->contentsTree->currentItem();
    const bool hasToolBar = m_toolBar != nullptr;
    m_ui->removeToolbarButton->setEnabled(hasToolBar);
    m_ui->renameToolbarButton->setEnabled(hasToolBar);
    m_ui->addActionButton->setEnabled(canAddCommand());
    m_ui->addActionToGroupButton->setEnabled(canAddCommandToGroup());
    m_ui->addGroupButton->setEnabled(hasToolBar && (!item || !item->parent()));
    m_ui->upButton->setEnabled(item && siblingIndex(item) > 0);
    m_ui->downButton->setEnabled(item && siblingIndex(item) < siblingCount(item) - 1);
    m_ui->removeActionButton->setEnabled(hasToolBar && item);
    m_ui->addSeparatorButton->setEnabled(hasToolBar);
}

void QToolBarPage::onContextMenu(const QPoint& pos)
{
    QTreeWidget* tree = m_ui->contentsTree;
    QTreeWidgetItem* current = tree->currentItem();
    if (!m_toolBar || !current)
        return;
    QAction* action = actionOfItem(current);
    if (!action || action->isSeparator())
        return;
    // Only the toolbar's own entries have a button; commands inside a group have none.
    QPointer<QToolButton> button = buttonOf(m_toolBar, action);
    if (!button)
        return;

    const Qt::ToolButtonStyle style = actionButtonStyle(button);
    QMenu menu(tree);
    for (const StyleChoice& choice : styleChoices()) {
        QAction* entry = menu.addAction(choice.text);
        entry->setCheckable(true);
        entry->setData(int(choice.style));
        entry->setChecked(choice.style == style);
    }
    const QAction* chosen = menu.exec(tree->viewport()->mapToGlobal(pos));
    if (!chosen || !button)
        return;
    setActionButtonStyle(button, Qt::ToolButtonStyle(chosen->data().toInt()));

    const int topIndex = tree->indexOfTopLevelItem(current->parent() ? current->parent() : current);
    fillTree();
    finishEdit(tree->topLevelItem(topIndex));
}

QTreeWidgetItem* QToolBarPage::newCommandItem(QAction* action) const
{
    auto* item = new QTreeWidgetItem;
    QString text = action->text();
    text.remove(QLatin1Char('&'));
    item->setText(0, text);
    item->setIcon(0, action->icon());
    item->setData(0, Qt::UserRole, action->data().toUInt());
    return item;
}

QTreeWidgetItem* QToolBarPage::newGroupItem() const
{
    auto* item = new QTreeWidgetItem;
    item->setText(0, groupText());
    QFont font = item->font(0);
    font.setWeight(QFont::Bold);
    item->setFont(0, font);
    return item;
}

QTreeWidgetItem* QToolBarPage::newSeparatorItem() const
{
    auto* item = new QTreeWidgetItem;
    item->setText(0, separatorText());
    return item;
}

bool QToolBarPage::isGroupItem(const QTreeWidgetItem* item) const
{
    return item && item->text(0) == groupText();
}

QTreeWidgetItem* QToolBarPage::selectedGroupItem() const
{
    QTreeWidgetItem* current = m_ui->contentsTree->currentItem();
    if (current && current->parent())
        current = current->parent();
    return isGroupItem(current) ? current : nullptr;
}

QMenu* QToolBarPage::groupMenu(QTreeWidgetItem* groupItem, bool create) const
{
    QAction* group = m_toolBar->actions().value(m_ui->contentsTree->indexOfTopLevelItem(groupItem));
    if (!group)
        return nullptr;
    if (!group->menu() && create)
        group->setMenu(new QMenu(m_toolBar));
    return group->menu();
}

QAction* QToolBarPage::actionOfItem(QTreeWidgetItem* item) const
{
    if (QTreeWidgetItem* group = item->parent()) {
        const QMenu* menu = groupMenu(group, false);
        return menu ? menu->actions().value(group->indexOfChild(item)) : nullptr;
    }
    return m_toolBar->actions().value(m_ui->contentsTree->indexOfTopLevelItem(item));
}

bool QToolBarPage::commandIsOnToolBar() const
{
    return m_toolBar->actions().contains(m_command);
}

bool QToolBarPage::canAddCommand() const
{
    const QTreeWidgetItem* item = m_ui->contentsTree->currentItem();
    return m_toolBar && m_command && !commandIsOnToolBar() && !(item && item->parent());
}

bool QToolBarPage::canAddCommandToGroup() const
{
    QTreeWidgetItem* item = m_ui->contentsTree->currentItem();
    if (!m_toolBar || !m_command || commandIsOnToolBar() || !item)
        return false;
    if (isGroupItem(item))
        return true;
    QTreeWidgetItem* group = item->parent();
    if (!isGroupItem(group))
        return false;
    const QMenu* menu = groupMenu(group, false);
    return !menu || !menu->actions().contains(m_command);
}

void QToolBarPage::moveSelectedItem(int offset)
{
    QTreeWidget* tree = m_ui->contentsTree;
    QTreeWidgetItem* current = tree->currentItem();
    if (!m_toolBar || !current)
        return;
    const int from = siblingIndex(current);
    const int to = from + offset;
    if (to < 0 || to >= siblingCount(current))
        return;

    QTreeWidgetItem* group = current->parent();
    QWidget* container = group ? static_cast<QWidget*>(groupMenu(group, false)) : m_toolBar;
    QAction* action = container ? container->actions().value(from) : nullptr;
    if (action) {
        const ButtonLook look = lookOf(group ? nullptr : buttonOf(m_toolBar, action));
        container->removeAction(action);
        insertActionAt(container, to, action);
        applyLook(group ? nullptr : buttonOf(m_toolBar, action), look);
    }

    const bool expanded = current->isExpanded();
    if (group) {
        group->takeChild(from);
        group->insertChild(to, current);
    } else {
        tree->takeTopLevelItem(from);
        tree->insertTopLevelItem(to, current);
        current->setExpanded(expanded);
    }
    finishEdit(current);
}

void QToolBarPage::fillTree()
{
    QTreeWidget* tree = m_ui->contentsTree;
    tree->clear();
    if (!m_toolBar)
        return;
    for (QAction* action : m_toolBar->actions()) {
        QTreeWidgetItem* item = nullptr;
        if (action->isSeparator()) {
            item = newSeparatorItem();
        } else if (const QMenu* menu = action->menu()) {
            item = newGroupItem();
            for (QAction* command : menu->actions())
                item->addChild(command->isSeparator() ? newSeparatorItem() : newCommandItem(command));
        } else {
            item = newCommandItem(action);
        }
        tree->addTopLevelItem(item);
    }
    tree->expandAll();
}

void QToolBarPage::finishEdit(QTreeWidgetItem* item)
{
    if (item)
        m_ui->contentsTree->setCurrentItem(item);
    updateButtons();
}

} // namespace ui
