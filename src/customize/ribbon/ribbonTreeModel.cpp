#include <tessaro/ribbonTreeModel.h>

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include "TessaroTranslate_p.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QBrush>
#include <QFont>
#include <QLinearGradient>
#include <QMenu>
#include <QWidgetAction>

#include <functional>

namespace {

bool isMarked(const QObject* object, const char* property)
{
    // Views ask for every row's kind many times over. A plain QAction
    // declares no such property, and most carry no dynamic one: no need to
    // look the name up among QAction's declared properties.
    if (object->metaObject() == &QAction::staticMetaObject && object->dynamicPropertyNames().isEmpty())
        return false;
    const QVariant value = object->property(property);
    return value.isValid() && value.toBool();
}

int kind(RibbonItemType type)
{
    return static_cast<int>(type);
}

QString untitled()
{
    return TESSARO_TR("ribbonTreeModel.cpp", "< Без названия >");
}

QString newGroupCommandText()
{
    return TESSARO_TR("ribbonTreeModel.cpp", "Новая Групповая команда");
}

// The action at @p row, null past the end (QWidget::insertAction then appends).
QAction* actionAt(const QList<QAction*>& actions, int row)
{
    return row >= 0 && row < actions.size() ? actions.at(row) : nullptr;
}

// Runs @p relayout, which rebuilds the group's buttons keeping only their
// styles (ui::updateGroup, ui::moveAction), and gives every group command back
// its kind and popup mode: a dynamic button would silently turn into a plain
// menu button.
void keepingGroupButtons(Qtitan::RibbonGroup* group, const std::function<void()>& relayout)
{
    struct Look
    {
        QAction* action;
        ui::GroupButtonType type;
        QToolButton::ToolButtonPopupMode popupMode;
    };
    QList<Look> looks;
    const QList<QAction*> actions = group->actions();
    for (QAction* action : actions) {
        if (!action->menu() || action->isSeparator() || qobject_cast<QWidgetAction*>(action))
            continue;
        QToolButton* button = ui::findActionButton(group, action);
        if (!button)
            continue;
        // A button never made a group button (the tool button's default mode)
        // opens its menu only after a long press; a simple group command
        // opens it at once.
        const QToolButton::ToolButtonPopupMode mode = button->popupMode();
        looks.append({action, ui::getGroupButtonType(button),
                      mode == QToolButton::DelayedPopup ? QToolButton::InstantPopup : mode});
    }
    relayout();
    for (const Look& look : qAsConst(looks)) {
        if (look.type != ui::Simple)
            ui::setGroupButtonType(group, look.action, look.type);
        else
            ui::setPopupMode(group, look.action, look.popupMode);
    }
}

QBrush panelBackground()
{
    QLinearGradient gradient(0, 0, 0, 30);
    gradient.setColorAt(0.0, QColor(255, 255, 255));
    gradient.setColorAt(0.8, QColor(192, 192, 192));
    gradient.setColorAt(1.0, QColor(255, 255, 255));
    return QBrush(gradient);
}

} // namespace

// ---------------------------------------------------------------------------
// RibbonTreeItem

RibbonTreeItem::RibbonTreeItem(QObject* object, RibbonTreeItem* parent)
    : m_parent(parent)
    , m_object(object)
{
}

RibbonTreeItem::~RibbonTreeItem()
{
    qDeleteAll(m_children);
}

QIcon RibbonTreeItem::icon() const
{
    return QIcon();
}

void RibbonTreeItem::setIcon(const QIcon&)
{
}

void RibbonTreeItem::moveUp(int row)
{
    if (row > 0 && row < m_children.size())
        m_children.move(row, row - 1);
}

void RibbonTreeItem::moveDown(int row)
{
    if (row >= 0 && row + 1 < m_children.size())
        m_children.move(row, row + 1);
}

void RibbonTreeItem::removeChild(int row)
{
    if (row >= 0 && row < m_children.size())
        delete m_children.takeAt(row);
}

void RibbonTreeItem::insertChild(int row, QAction*)
{
    listChildrenBefore(row);
    m_children.insert(qBound(0, row, m_children.size()), createChild(row));
}

void RibbonTreeItem::showContextMenu(const QPoint&)
{
}

bool RibbonTreeItem::canInsert(QAction*) const
{
    return true;
}

RibbonTreeItem* RibbonTreeItem::child(int row)
{
    if (row < 0)
        return nullptr;
    if (row < m_children.size() && m_children.at(row))
        return m_children.at(row);
    if (row >= childCount())
        return nullptr;
    if (row < m_children.size()) {
        m_children[row] = createChild(row);
        return m_children.at(row);
    }
    // Views ask for rows in ascending order; should one skip ahead, the rows
    // in between are listed first, so that list positions stay ribbon rows.
    listChildrenBefore(row);
    m_children.append(createChild(row));
    return m_children.last();
}

RibbonTreeItem* RibbonTreeItem::parent() const
{
    return m_parent;
}

int RibbonTreeItem::indexOfChild(const RibbonTreeItem* item) const
{
    return m_children.indexOf(const_cast<RibbonTreeItem*>(item));
}

int RibbonTreeItem::listedChildCount() const
{
    return m_children.size();
}

QObject* RibbonTreeItem::object() const
{
    return m_object;
}

RibbonTreeItem* RibbonTreeItem::ancestorOfType(RibbonItemType type) const
{
    for (RibbonTreeItem* item = m_parent; item; item = item->parent()) {
        if (item->type() == kind(type))
            return item;
    }
    return nullptr;
}

void RibbonTreeItem::listChildrenBefore(int row)
{
    const int count = qMin(row, childCount());
    while (m_children.size() < count)
        m_children.append(createChild(m_children.size()));
}

// ---------------------------------------------------------------------------
// RootItem

RootItem::RootItem(Qtitan::RibbonBar* ribbonBar)
    : RibbonTreeItem(ribbonBar, nullptr)
{
}

int RootItem::type() const
{
    return kind(RibbonItemType::Root);
}

QString RootItem::name() const
{
    return TESSARO_TR("ribbonTreeModel.cpp", "Панели");
}

bool RootItem::setName(const QString&)
{
    return false;
}

int RootItem::childCount() const
{
    return ribbonBar() ? ribbonBar()->pageCount() : 0;
}

void RootItem::moveUp(int row)
{
    listChildrenBefore(row + 1);
    ribbonBar()->movePage(row, row - 1);
    RibbonTreeItem::moveUp(row);
}

void RootItem::moveDown(int row)
{
    listChildrenBefore(row + 2);
    ribbonBar()->movePage(row, row + 1);
    RibbonTreeItem::moveDown(row);
}

void RootItem::removeChild(int row)
{
    ribbonBar()->removePage(row);
    RibbonTreeItem::removeChild(row);
}

void RootItem::insertChild(int row, QAction* action)
{
    ribbonBar()->insertPage(row, TESSARO_TR("ribbonTreeModel.cpp", "Новая Панель"));
    RibbonTreeItem::insertChild(row, action);
}

Qtitan::RibbonBar* RootItem::ribbonBar() const
{
    return static_cast<Qtitan::RibbonBar*>(object());
}

RibbonTreeItem* RootItem::createChild(int row)
{
    return new PanelItem(ribbonBar()->page(row), this);
}

// ---------------------------------------------------------------------------
// PanelItem

PanelItem::PanelItem(Qtitan::RibbonPage* page, RibbonTreeItem* parent)
    : RibbonTreeItem(page, parent)
{
}

int PanelItem::type() const
{
    return kind(RibbonItemType::Panel);
}

QString PanelItem::name() const
{
    const QString title = page()->title();
    return title.isEmpty() ? untitled() : title;
}

bool PanelItem::setName(const QString& name)
{
    page()->setTitle(name);
    return true;
}

int PanelItem::childCount() const
{
    return page()->groupCount();
}

void PanelItem::moveUp(int row)
{
    listChildrenBefore(row + 1);
    Qtitan::RibbonGroup* group = page()->groupAt(row);
    page()->detachGroup(group);
    page()->insertGroup(row - 1, group);
    RibbonTreeItem::moveUp(row);
}

void PanelItem::moveDown(int row)
{
    listChildrenBefore(row + 2);
    Qtitan::RibbonGroup* group = page()->groupAt(row);
    page()->detachGroup(group);
    page()->insertGroup(row + 1, group);
    RibbonTreeItem::moveDown(row);
}

void PanelItem::removeChild(int row)
{
    page()->removeGroupByIndex(row);
    page()->updateLayout();
    RibbonTreeItem::removeChild(row);
}

void PanelItem::insertChild(int row, QAction* action)
{
    page()->insertGroup(row, TESSARO_TR("ribbonTreeModel.cpp", "Новая Группа"));
    RibbonTreeItem::insertChild(row, action);
}

Qtitan::RibbonPage* PanelItem::page() const
{
    return static_cast<Qtitan::RibbonPage*>(object());
}

RibbonTreeItem* PanelItem::createChild(int row)
{
    return new GroupItem(page()->groupAt(row), this);
}

// ---------------------------------------------------------------------------
// GroupItem

GroupItem::GroupItem(Qtitan::RibbonGroup* group, RibbonTreeItem* parent)
    : RibbonTreeItem(group, parent)
{
}

int GroupItem::type() const
{
    return kind(RibbonItemType::Group);
}

QString GroupItem::name() const
{
    const QString title = group()->title();
    return title.isEmpty() ? untitled() : title;
}

bool GroupItem::setName(const QString& name)
{
    group()->setTitle(name);
    ui::redrawPage(group());
    return true;
}

QIcon GroupItem::icon() const
{
    return group()->icon();
}

int GroupItem::childCount() const
{
    return group()->actions().size();
}

void GroupItem::moveUp(int row)
{
    listChildrenBefore(row + 1);
    keepingGroupButtons(group(), [this, row]() { ui::moveAction(group(), row, row - 1); });
    RibbonTreeItem::moveUp(row);
}

void GroupItem::moveDown(int row)
{
    listChildrenBefore(row + 2);
    keepingGroupButtons(group(), [this, row]() { ui::moveAction(group(), row, row + 1); });
    RibbonTreeItem::moveDown(row);
}

void GroupItem::removeChild(int row)
{
    group()->removeAction(actionAt(group()->actions(), row));
    RibbonTreeItem::removeChild(row);
    updateGroup();
}

void GroupItem::insertChild(int row, QAction* action)
{
    Qtitan::RibbonGroup* group = this->group();
    if (!action) {
        action = new QAction(group);
        action->setSeparator(true);
    }
    if (!action->parent())
        action->setParent(group);
    if (group->actions().contains(action)) {
        updateGroup();
        return;
    }
    group->insertAction(actionAt(group->actions(), row), action);
    if (!qobject_cast<QWidgetAction*>(action))
        ui::setActionButtonStyle(group, action, Qt::ToolButtonTextBesideIcon);
    RibbonTreeItem::insertChild(row, action);
    updateGroup();
}

bool GroupItem::canInsert(QAction* action) const
{
    return !group()->actions().contains(action);
}

Qtitan::RibbonGroup* GroupItem::group() const
{
    return static_cast<Qtitan::RibbonGroup*>(object());
}

void GroupItem::updateGroup()
{
    keepingGroupButtons(group(), [this]() { ui::updateGroup(group()); });
}

RibbonTreeItem* GroupItem::createChild(int row)
{
    return new ActionItem(group()->actions().value(row), this);
}

// ---------------------------------------------------------------------------
// ActionItem

ActionItem::ActionItem(QAction* action, RibbonTreeItem* parent)
    : RibbonTreeItem(action, parent)
{
}

int ActionItem::type() const
{
    const QAction* action = this->action();
    if (isMarked(action, "isPopupWidgetAction"))
        return kind(RibbonItemType::PopupWidgetAction);
    if (isMarked(action, "isDynamic"))
        return kind(RibbonItemType::DynamicAction);
    if (action->isSeparator())
        return kind(RibbonItemType::Separator);
    if (qobject_cast<const QWidgetAction*>(action))
        return kind(RibbonItemType::WidgetAction);
    if (action->menu())
        return kind(RibbonItemType::ActionGroup);
    return kind(RibbonItemType::Action);
}

QString ActionItem::name() const
{
    QAction* action = this->action();
    if (action->text().isEmpty() && type() == kind(RibbonItemType::ActionGroup) && parent()
        && parent()->type() == kind(RibbonItemType::Group)) {
        auto* group = static_cast<GroupItem*>(parent())->group();
        if (ui::getGroupButtonType(group, action) != ui::Simple)
            return TESSARO_TR("ribbonTreeModel.cpp", "< Динамическая группа >");
        // Reading the name of an unnamed simple group command names it for good.
        action->setText(newGroupCommandText());
    }
    if (action->isSeparator())
        return TESSARO_TR("ribbonTreeModel.cpp", "< Р А З Д Е Л И Т Е Л Ь >");
    return action->text();
}

bool ActionItem::setName(const QString& name)
{
    action()->setText(name);
    action()->setIconText(name);
    redrawParentGroup();
    return true;
}

QIcon ActionItem::icon() const
{
    return action()->icon();
}

void ActionItem::setIcon(const QIcon& icon)
{
    action()->setIcon(icon);
    redrawParentGroup();
}

int ActionItem::childCount() const
{
    QMenu* menu = action()->menu();
    if (!menu || isMarked(action(), "isDynamic"))
        return 0;
    return menu->actions().size();
}

void ActionItem::moveUp(int row)
{
    QMenu* menu = action()->menu();
    if (!menu)
        return;
    listChildrenBefore(row + 1);
    QAction* moved = actionAt(menu->actions(), row);
    menu->removeAction(moved);
    menu->insertAction(actionAt(menu->actions(), row - 1), moved);
    RibbonTreeItem::moveUp(row);
    applyGroupIconRule();
}

void ActionItem::moveDown(int row)
{
    QMenu* menu = action()->menu();
    if (!menu)
        return;
    listChildrenBefore(row + 2);
    QAction* moved = actionAt(menu->actions(), row);
    menu->removeAction(moved);
    menu->insertAction(actionAt(menu->actions(), row + 1), moved);
    RibbonTreeItem::moveDown(row);
    applyGroupIconRule();
}

void ActionItem::removeChild(int row)
{
    QMenu* menu = action()->menu();
    if (!menu)
        return;
    menu->removeAction(actionAt(menu->actions(), row));
    RibbonTreeItem::removeChild(row);
    applyGroupIconRule();
}

void ActionItem::insertChild(int row, QAction* action)
{
    QMenu* menu = this->action()->menu();
    if (!menu) {
        menu = new QMenu(ownerGroup());
        this->action()->setMenu(menu);
    }
    if (!action) {
        action = new QAction(menu);
        action->setSeparator(true);
    } else if (!action->parent()) {
        action->setParent(menu);
    }
    if (menu->actions().contains(action))
        return;
    menu->insertAction(actionAt(menu->actions(), row), action);
    RibbonTreeItem::insertChild(row, action);
    applyGroupIconRule();
}

bool ActionItem::canInsert(QAction* action) const
{
    if (type() == kind(RibbonItemType::ActionGroup)) {
        QMenu* menu = this->action()->menu();
        return !menu || !menu->actions().contains(action);
    }
    return parent() ? parent()->canInsert(action) : true;
}

QAction* ActionItem::action() const
{
    return static_cast<QAction*>(object());
}

Qtitan::RibbonGroup* ActionItem::ownerGroup() const
{
    RibbonTreeItem* group = ancestorOfType(RibbonItemType::Group);
    return group ? static_cast<GroupItem*>(group)->group() : nullptr;
}

RibbonTreeItem* ActionItem::createChild(int row)
{
    return new ActionItem(action()->menu()->actions().value(row), this);
}

void ActionItem::applyGroupIconRule()
{
    // A simple group command shows the icon of its menu's first command;
    // a dynamic one shows that of its active command, set by its handler.
    QMenu* menu = action()->menu();
    if (!menu || ui::getGroupButtonType(ownerGroup(), action()) != ui::Simple)
        return;
    const QList<QAction*> actions = menu->actions();
    setIcon(actions.isEmpty() ? QIcon() : actions.first()->icon());
}

void ActionItem::redrawParentGroup() const
{
    if (parent() && parent()->type() == kind(RibbonItemType::Group))
        ui::redrawPage(static_cast<GroupItem*>(parent())->group());
}

// ---------------------------------------------------------------------------
// RibbonTreeModel

RibbonTreeModel::RibbonTreeModel(ui::RibbonBar* ribbonBar, QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(new RootItem(ribbonBar))
{
}

RibbonTreeModel::~RibbonTreeModel()
{
    delete m_root;
}

QModelIndex RibbonTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    RibbonTreeItem* child = item(parent)->child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex RibbonTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return QModelIndex();
    RibbonTreeItem* parentItem = item(index)->parent();
    if (!parentItem || parentItem == m_root)
        return QModelIndex();
    RibbonTreeItem* grandParent = parentItem->parent();
    const int row = grandParent ? grandParent->indexOfChild(parentItem) : 0;
    return createIndex(row, 0, parentItem);
}

int RibbonTreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    return item(parent)->childCount();
}

int RibbonTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant RibbonTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role > Qt::BackgroundRole)
        return QVariant();
    RibbonTreeItem* item = this->item(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return item->name().remove(QLatin1Char('&'));
    case Qt::DecorationRole:
        return item->icon();
    case Qt::FontRole: {
        const int type = item->type();
        if (type != kind(RibbonItemType::Panel) && type != kind(RibbonItemType::Group)
            && type != kind(RibbonItemType::ActionGroup))
            return QVariant();
        QFont font;
        font.setWeight(QFont::Bold);
        font.setItalic(type == kind(RibbonItemType::ActionGroup));
        return font;
    }
    case Qt::TextAlignmentRole:
        if (item->type() == kind(RibbonItemType::Panel))
            return int(Qt::AlignHCenter | Qt::AlignVCenter);
        return QVariant();
    case Qt::BackgroundRole:
        if (item->type() == kind(RibbonItemType::Panel))
            return panelBackground();
        return QVariant();
    default:
        return QVariant();
    }
}

bool RibbonTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    return item(index)->setName(value.toString());
}

QVariant RibbonTreeModel::headerData(int, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_root->name();
    return QVariant();
}

Qt::ItemFlags RibbonTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const int type = item(index)->type();
    if (type == kind(RibbonItemType::Action) || type == kind(RibbonItemType::Separator))
        return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
}

void RibbonTreeModel::setRibbonBar(ui::RibbonBar* ribbonBar)
{
    beginResetModel();
    delete m_root;
    m_root = new RootItem(ribbonBar);
    endResetModel();
}

RibbonTreeItem* RibbonTreeModel::item(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<RibbonTreeItem*>(index.internalPointer()) : m_root;
}

int RibbonTreeModel::itemType(const QModelIndex& index) const
{
    return index.isValid() ? item(index)->type() : kind(RibbonItemType::Root);
}

QModelIndex RibbonTreeModel::findAncestor(const QModelIndex& index, int type) const
{
    for (QModelIndex at = index; at.isValid(); at = at.parent()) {
        if (itemType(at) == type)
            return at;
    }
    return QModelIndex();
}

QModelIndex RibbonTreeModel::addPanel(const QModelIndex& index)
{
    if (!m_root->ribbonBar())
        return QModelIndex();
    int row;
    QModelIndex parent;
    if (index.isValid() && itemType(index) != kind(RibbonItemType::Root)) {
        const QModelIndex panel = findAncestor(index, kind(RibbonItemType::Panel));
        row = panel.row() + 1;
        parent = panel.parent();
    } else {
        row = rowCount(index);
        parent = index;
    }
    beginInsertRows(parent, row, row);
    m_root->insertChild(row);
    endInsertRows();
    return this->index(row, 0, parent);
}

QModelIndex RibbonTreeModel::addGroup(const QModelIndex& index)
{
    int row;
    QModelIndex parent;
    if (itemType(index) == kind(RibbonItemType::Panel)) {
        row = rowCount(index);
        parent = index;
    } else {
        const QModelIndex group = findAncestor(index, kind(RibbonItemType::Group));
        row = group.row() + 1;
        parent = group.parent();
    }
    beginInsertRows(parent, row, row);
    item(parent)->insertChild(row);
    endInsertRows();
    return this->index(row, 0, parent);
}

QModelIndex RibbonTreeModel::insertAction(const QModelIndex& index, QAction* action)
{
    int row;
    QModelIndex parent;
    const int type = itemType(index);
    if (type == kind(RibbonItemType::Group) || type == kind(RibbonItemType::ActionGroup)) {
        row = rowCount(index);
        parent = index;
    } else {
        row = index.row() + 1;
        parent = index.parent();
    }
    RibbonTreeItem* container = item(parent);
    // A command is held once per group or menu; announcing a row that is
    // not added would put views out of step.
    if (!container->canInsert(action))
        return QModelIndex();
    beginInsertRows(parent, row, row);
    container->insertChild(row, action);
    endInsertRows();
    return this->index(row, 0, parent);
}

QModelIndex RibbonTreeModel::addSeparator(const QModelIndex& index)
{
    return insertAction(index, nullptr);
}

QModelIndex RibbonTreeModel::addActionGroup(const QModelIndex& index)
{
    auto* action = new QAction(newGroupCommandText(), nullptr);
    Qtitan::RibbonGroup* group = nullptr;
    for (RibbonTreeItem* at = index.isValid() ? item(index) : nullptr; at; at = at->parent()) {
        if (at->type() == kind(RibbonItemType::Group)) {
            group = static_cast<GroupItem*>(at)->group();
            break;
        }
    }
    auto* menu = new QMenu(group);
    action->setMenu(menu);
    const QModelIndex added = insertAction(index, action);
    if (!action->parent()) {
        // Taken by no group or menu: nothing refers to it.
        delete menu;
        delete action;
    }
    return added;
}

void RibbonTreeModel::removeItem(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const QModelIndex parent = index.parent();
    beginRemoveRows(parent, index.row(), index.row());
    item(parent)->removeChild(index.row());
    endRemoveRows();
}

void RibbonTreeModel::moveUp(const QModelIndex& index)
{
    // The first row stays where it is: the ribbon would wrap a group's first
    // command round to its end, and the tree would not follow.
    if (!index.isValid() || index.row() < 1)
        return;
    const QModelIndex parent = index.parent();
    const int row = index.row();
    if (!beginMoveRows(parent, row, row, parent, row - 1))
        return;
    item(parent)->moveUp(row);
    endMoveRows();
}

void RibbonTreeModel::moveDown(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const QModelIndex parent = index.parent();
    const int row = index.row();
    if (row + 1 >= rowCount(parent))
        return;
    if (!beginMoveRows(parent, row, row, parent, row + 2))
        return;
    item(parent)->moveDown(row);
    endMoveRows();
}

void RibbonTreeModel::moveRows(const QModelIndex& destination, const QModelIndexList& indexes)
{
    if (indexes.isEmpty())
        return;
    int least = 10000;
    int greatest = 0;
    for (const QModelIndex& index : indexes) {
        least = qMin(least, index.row());
        greatest = qMax(greatest, index.row());
    }
    if (greatest - least != indexes.size() - 1)
        return;
    const int destinationType = itemType(destination);
    if (destinationType == kind(RibbonItemType::Root) || destinationType == kind(RibbonItemType::Panel))
        return;
    const QModelIndex source = indexes.first().parent();
    RibbonTreeItem* target = item(destination);
    QList<RibbonTreeItem*> moved;
    for (const QModelIndex& index : indexes) {
        auto* action = qobject_cast<QAction*>(item(index)->object());
        if (index.parent() != source || !action || !target->canInsert(action))
            return;
        moved.append(item(index));
    }
    // The commands are appended to the destination; that is the row announced.
    if (!beginMoveRows(source, least, greatest, destination, target->childCount()))
        return;
    for (RibbonTreeItem* entry : qAsConst(moved)) {
        RibbonTreeItem* oldParent = entry->parent();
        if (!oldParent)
            continue;
        target->insertChild(target->childCount(), static_cast<QAction*>(entry->object()));
        int row = 0;
        while (oldParent->child(row) && oldParent->child(row) != entry)
            ++row;
        oldParent->removeChild(row);
    }
    endMoveRows();
}

void RibbonTreeModel::showItemContextMenu(const QModelIndex& index, const QPoint& globalPos)
{
    emit layoutAboutToBeChanged();
    item(index)->showContextMenu(globalPos);
    emit layoutChanged();
}

void RibbonTreeModel::notifyChanged(const QModelIndexList& indexes)
{
    for (const QModelIndex& index : indexes)
        emit dataChanged(index, index, {});
}
