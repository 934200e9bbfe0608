#include <tessaro/ribbonQuickPanelTreeModel.h>

#include <tessaro/RibbonBar.h>

#include "TessaroTranslate_p.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QFont>
#include <QMenu>
#include <QWidgetAction>

#include <algorithm>

namespace {

bool isSet(const QAction* action, const char* property)
{
    const QVariant value = action->property(property);
    return value.isValid() && value.toBool();
}

QString newGroupCommandText()
{
    return TESSARO_TR("ribbonQuickPanelTreeModel.cpp", "Новая Групповая команда");
}

} // namespace

// ---------------------------------------------------------------------------
// QuickPanelTreeItem

QuickPanelTreeItem::QuickPanelTreeItem(QuickPanelTreeItem* parent, QObject* data)
    : m_parent(parent)
    , m_data(data)
{
}

QuickPanelTreeItem::~QuickPanelTreeItem()
{
    qDeleteAll(m_children);
}

QIcon QuickPanelTreeItem::icon() const
{
    return QIcon();
}

void QuickPanelTreeItem::setIcon(const QIcon& icon)
{
    Q_UNUSED(icon)
}

void QuickPanelTreeItem::moveUp(int row)
{
    if (!canMove(row, row - 1))
        return;
    cacheThrough(row);
    m_children.move(row, row - 1);
}

void QuickPanelTreeItem::moveDown(int row)
{
    if (!canMove(row, row + 1))
        return;
    cacheThrough(row + 1);
    m_children.move(row, row + 1);
}

void QuickPanelTreeItem::removeChild(int row)
{
    QuickPanelTreeItem* item = child(row);
    if (!item)
        return;
    m_children.removeOne(item);
    delete item;
}

void QuickPanelTreeItem::insertChild(int row, QAction* action)
{
    Q_UNUSED(action)
    cacheThrough(row - 1);
    if (row < 0 || row > m_children.size())
        return;
    if (QuickPanelTreeItem* item = createChild(row))
        m_children.insert(row, item);
}

void QuickPanelTreeItem::showContextMenu(const QPoint& globalPos)
{
    Q_UNUSED(globalPos)
}

QuickPanelTreeItem* QuickPanelTreeItem::child(int row)
{
    if (row < 0)
        return nullptr;
    if (row < m_children.size())
        return m_children.at(row);
    cacheThrough(row);
    return m_children.value(row);
}

QuickPanelTreeItem* QuickPanelTreeItem::parent() const
{
    return m_parent;
}

int QuickPanelTreeItem::cachedRow(const QuickPanelTreeItem* item) const
{
    return m_children.indexOf(const_cast<QuickPanelTreeItem*>(item));
}

QObject* QuickPanelTreeItem::data() const
{
    return m_data;
}

// Views ask for rows in order, so the cache grows in row order; a row asked
// for out of order fills the rows before it first, and every structural
// change fills the cache up to the rows it touches before it changes the
// wrapped object, so that a cache position is always a row number.
void QuickPanelTreeItem::cacheThrough(int row)
{
    const int count = childCount();
    while (m_children.size() <= row && m_children.size() < count) {
        QuickPanelTreeItem* item = createChild(m_children.size());
        if (!item)
            return;
        m_children.append(item);
    }
}

bool QuickPanelTreeItem::canMove(int row, int target) const
{
    const int count = childCount();
    return row >= 0 && row < count && target >= 0 && target < count;
}

// Puts each item where the other one was, under the other one's parent.
void QuickPanelTreeItem::exchangePlaces(QuickPanelTreeItem* a, QuickPanelTreeItem* b)
{
    QuickPanelTreeItem* parentOfA = a->m_parent;
    QuickPanelTreeItem* parentOfB = b->m_parent;
    const int rowOfA = parentOfA->m_children.indexOf(a);
    const int rowOfB = parentOfB->m_children.indexOf(b);
    parentOfA->m_children[rowOfA] = b;
    parentOfB->m_children[rowOfB] = a;
    a->m_parent = parentOfB;
    b->m_parent = parentOfA;
}

// ---------------------------------------------------------------------------
// QuickPanelRootItem

QuickPanelRootItem::QuickPanelRootItem(Qtitan::RibbonQuickAccessBar* bar)
    : QuickPanelTreeItem(nullptr, bar)
{
}

int QuickPanelRootItem::type() const
{
    return int(QuickPanelItemType::Root);
}

QString QuickPanelRootItem::name()
{
    return TESSARO_TR("ribbonQuickPanelTreeModel.cpp", "Панель");
}

bool QuickPanelRootItem::setName(const QString& name)
{
    Q_UNUSED(name)
    return false;
}

int QuickPanelRootItem::childCount() const
{
    return bar() ? bar()->visibleCount() : 0;
}

void QuickPanelRootItem::moveUp(int row)
{
    moveVisible(row, row - 1);
    QuickPanelTreeItem::moveUp(row);
}

void QuickPanelRootItem::moveDown(int row)
{
    moveVisible(row, row + 1);
    QuickPanelTreeItem::moveDown(row);
}

void QuickPanelRootItem::removeChild(int row)
{
    QAction* action = visibleAction(row);
    if (!action)
        return;
    cacheThrough(row);
    bar()->removeAction(action);
    QuickPanelTreeItem::removeChild(row);
    bar()->setVisible(true);
}

void QuickPanelRootItem::insertChild(int row, QAction* action)
{
    Qtitan::RibbonQuickAccessBar* quickBar = bar();
    if (!quickBar || (action && quickBar->isActionVisible(action)))
        return;
    cacheThrough(row - 1);
    // The bar owns what the editor creates, so removed separators and group
    // commands go with the ribbon instead of leaking.
    if (!action) {
        action = new QAction(quickBar);
        action->setSeparator(true);
    } else if (!action->parent()) {
        action->setParent(quickBar);
    }
    quickBar->insertAction(visibleAction(row), action);
    QuickPanelTreeItem::insertChild(row, action);
}

QuickPanelTreeItem* QuickPanelRootItem::createChild(int row)
{
    QAction* action = visibleAction(row);
    return action ? new QuickActionItem(this, action) : nullptr;
}

Qtitan::RibbonQuickAccessBar* QuickPanelRootItem::bar() const
{
    return static_cast<Qtitan::RibbonQuickAccessBar*>(data());
}

QAction* QuickPanelRootItem::visibleAction(int row) const
{
    Qtitan::RibbonQuickAccessBar* quickBar = bar();
    if (!quickBar || row < 0)
        return nullptr;
    const QList<QAction*> actions = quickBar->actions();
    for (QAction* action : actions) {
        if (!quickBar->isActionVisible(action))
            continue;
        if (row-- == 0)
            return action;
    }
    return nullptr;
}

// The target row is counted after the action has left the bar.
void QuickPanelRootItem::moveVisible(int row, int target)
{
    if (!canMove(row, target))
        return;
    cacheThrough(qMax(row, target));
    QAction* action = visibleAction(row);
    bar()->removeAction(action);
    bar()->insertAction(visibleAction(target), action);
}

// ---------------------------------------------------------------------------
// QuickActionItem

QuickActionItem::QuickActionItem(QuickPanelTreeItem* parent, QAction* action)
    : QuickPanelTreeItem(parent, action)
{
}

int QuickActionItem::type() const
{
    QAction* wrapped = action();
    if (isSet(wrapped, "isPopupWidgetAction"))
        return int(QuickPanelItemType::PopupWidgetAction);
    if (isSet(wrapped, "isDynamic"))
        return int(QuickPanelItemType::DynamicAction);
    if (wrapped->isSeparator())
        return int(QuickPanelItemType::Separator);
    if (qobject_cast<QWidgetAction*>(wrapped))
        return int(QuickPanelItemType::WidgetAction);
    if (wrapped->menu())
        return int(QuickPanelItemType::ActionGroup);
    return int(QuickPanelItemType::Action);
}

QString QuickActionItem::name()
{
    QAction* wrapped = action();
    if (wrapped->text().isEmpty() && type() == int(QuickPanelItemType::ActionGroup))
        wrapped->setText(newGroupCommandText());
    if (wrapped->isSeparator())
        return TESSARO_TR("ribbonQuickPanelTreeModel.cpp", "< Р А З Д Е Л И Т Е Л Ь >");
    return wrapped->text();
}

bool QuickActionItem::setName(const QString& name)
{
    action()->setText(name);
    action()->setIconText(name);
    return true;
}

QIcon QuickActionItem::icon() const
{
    return action()->icon();
}

void QuickActionItem::setIcon(const QIcon& icon)
{
    action()->setIcon(icon);
}

int QuickActionItem::childCount() const
{
    QMenu* menu = action()->menu();
    if (!menu || isSet(action(), "isDynamic"))
        return 0;
    return menu->actions().size();
}

void QuickActionItem::moveUp(int row)
{
    if (!canMove(row, row - 1))
        return;
    moveInMenu(row, row - 1);
    QuickPanelTreeItem::moveUp(row);
    refreshGroupIcon();
}

void QuickActionItem::moveDown(int row)
{
    if (!canMove(row, row + 1))
        return;
    moveInMenu(row, row + 1);
    QuickPanelTreeItem::moveDown(row);
    refreshGroupIcon();
}

void QuickActionItem::removeChild(int row)
{
    QMenu* menu = action()->menu();
    QAction* removed = menu ? menu->actions().value(row) : nullptr;
    if (!removed)
        return;
    cacheThrough(row);
    menu->removeAction(removed);
    QuickPanelTreeItem::removeChild(row);
    refreshGroupIcon();
}

void QuickActionItem::insertChild(int row, QAction* inserted)
{
    QMenu* menu = action()->menu();
    if (!menu) {
        QuickPanelTreeItem* root = this;
        while (root->parent())
            root = root->parent();
        menu = new QMenu(static_cast<QuickPanelRootItem*>(root)->bar());
        action()->setMenu(menu);
    }
    if (!inserted) {
        inserted = new QAction(menu);
        inserted->setSeparator(true);
    } else if (!inserted->parent()) {
        inserted->setParent(menu);
    }
    if (menu->actions().contains(inserted))
        return;
    cacheThrough(row - 1);
    menu->insertAction(menu->actions().value(row), inserted);
    QuickPanelTreeItem::insertChild(row, inserted);
    refreshGroupIcon();
}

QuickPanelTreeItem* QuickActionItem::createChild(int row)
{
    QMenu* menu = action()->menu();
    QAction* entry = menu ? menu->actions().value(row) : nullptr;
    return entry ? new QuickActionItem(this, entry) : nullptr;
}

QAction* QuickActionItem::action() const
{
    return static_cast<QAction*>(data());
}

Qtitan::RibbonQuickAccessBar* QuickActionItem::bar() const
{
    QuickPanelTreeItem* holder = parent();
    if (!holder || holder->type() != int(QuickPanelItemType::Root))
        return nullptr;
    return static_cast<QuickPanelRootItem*>(holder)->bar();
}

Qt::ToolButtonStyle QuickActionItem::buttonStyle() const
{
    return ui::actionButtonStyle(bar(), action());
}

void QuickActionItem::setButtonStyle(Qt::ToolButtonStyle style)
{
    ui::setActionButtonStyle(bar(), action(), style);
}

ui::GroupButtonType QuickActionItem::groupButtonType() const
{
    return ui::getGroupButtonType(bar(), action());
}

void QuickActionItem::setGroupButtonType(ui::GroupButtonType type)
{
    ui::setGroupButtonType(bar(), action(), type);
}

// The target row is counted after the action has left the menu.
void QuickActionItem::moveInMenu(int row, int target)
{
    cacheThrough(qMax(row, target));
    QMenu* menu = action()->menu();
    QAction* moved = menu->actions().at(row);
    menu->removeAction(moved);
    menu->insertAction(menu->actions().value(target), moved);
}

// A group command shows the icon of its first command, as it does after a restore.
void QuickActionItem::refreshGroupIcon()
{
    QMenu* menu = action()->menu();
    const QList<QAction*> entries = menu ? menu->actions() : QList<QAction*>();
    setIcon(entries.isEmpty() ? QIcon() : entries.first()->icon());
}

// ---------------------------------------------------------------------------
// RibbonQuickPanelTreeModel

namespace {

// Whether the level of @p holder already shows @p action.
bool levelHolds(QuickPanelTreeItem* holder, QAction* action)
{
    if (!action)
        return false;
    if (holder->type() == int(QuickPanelItemType::Root)) {
        Qtitan::RibbonQuickAccessBar* bar = static_cast<QuickPanelRootItem*>(holder)->bar();
        return bar && bar->isActionVisible(action);
    }
    QMenu* menu = static_cast<QuickActionItem*>(holder)->action()->menu();
    return menu && menu->actions().contains(action);
}

Qtitan::RibbonQuickAccessBar* quickBarOf(ui::RibbonBar* ribbon)
{
    return ribbon ? ribbon->quickAccessBar() : nullptr;
}

} // namespace

RibbonQuickPanelTreeModel::RibbonQuickPanelTreeModel(ui::RibbonBar* ribbon, QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(new QuickPanelRootItem(quickBarOf(ribbon)))
{
}

RibbonQuickPanelTreeModel::~RibbonQuickPanelTreeModel()
{
    delete m_root;
}

QModelIndex RibbonQuickPanelTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    QuickPanelTreeItem* item = itemForIndex(parent)->child(row);
    return item ? createIndex(row, column, item) : QModelIndex();
}

QModelIndex RibbonQuickPanelTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return QModelIndex();
    QuickPanelTreeItem* holder = itemForIndex(index)->parent();
    if (!holder || holder == m_root)
        return QModelIndex();
    QuickPanelTreeItem* grandHolder = holder->parent();
    const int row = grandHolder ? grandHolder->cachedRow(holder) : 0;
    return createIndex(row, 0, holder);
}

int RibbonQuickPanelTreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    return itemForIndex(parent)->childCount();
}

int RibbonQuickPanelTreeModel::columnCount(const QModelIndex& parent) const
{
    Q_UNUSED(parent)
    return 1;
}

QVariant RibbonQuickPanelTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    QuickPanelTreeItem* item = itemForIndex(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return item->name().remove(QLatin1Char('&'));
    case Qt::DecorationRole:
        return item->icon();
    case Qt::FontRole:
        if (item->type() == int(QuickPanelItemType::ActionGroup)) {
            QFont font;
            font.setWeight(QFont::Bold);
            font.setItalic(true);
            return font;
        }
        return QVariant();
    default:
        return QVariant();
    }
}

bool RibbonQuickPanelTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    return itemForIndex(index)->setName(value.toString());
}

QVariant RibbonQuickPanelTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    Q_UNUSED(section)
    Q_UNUSED(orientation)
    Q_UNUSED(role)
    return QVariant();
}

Qt::ItemFlags RibbonQuickPanelTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void RibbonQuickPanelTreeModel::setRibbonBar(ui::RibbonBar* ribbon)
{
    beginResetModel();
    delete m_root;
    m_root = new QuickPanelRootItem(quickBarOf(ribbon));
    if (Qtitan::RibbonQuickAccessBar* bar = quickBarOf(ribbon))
        bar->setVisible(true);
    endResetModel();
}

QuickPanelTreeItem* RibbonQuickPanelTreeModel::itemForIndex(const QModelIndex& index) const
{
    if (!index.isValid())
        return m_root;
    return static_cast<QuickPanelTreeItem*>(index.internalPointer());
}

int RibbonQuickPanelTreeModel::itemType(const QModelIndex& index) const
{
    return index.isValid() ? itemForIndex(index)->type() : int(QuickPanelItemType::Root);
}

QModelIndex RibbonQuickPanelTreeModel::insertAction(const QModelIndex& at, QAction* action)
{
    if (!m_root->bar())
        return QModelIndex();
    QModelIndex parent;
    int row = 0;
    if (!at.isValid()) {
        row = rowCount(parent);
    } else if (itemType(at) == int(QuickPanelItemType::ActionGroup)) {
        parent = at;
        row = rowCount(at);
    } else {
        parent = at.parent();
        row = at.row() + 1;
    }
    QuickPanelTreeItem* holder = itemForIndex(parent);
    // Announcing a row that would not appear would break the views.
    if (levelHolds(holder, action))
        return QModelIndex();
    beginInsertRows(parent, row, row);
    holder->insertChild(row, action);
    endInsertRows();
    return index(row, 0, parent);
}

QModelIndex RibbonQuickPanelTreeModel::addActionGroup(const QModelIndex& at)
{
    Qtitan::RibbonQuickAccessBar* bar = m_root->bar();
    if (!bar)
        return QModelIndex();
    auto* action = new QAction(newGroupCommandText());
    action->setMenu(new QMenu(bar));
    return insertAction(at, action);
}

QModelIndex RibbonQuickPanelTreeModel::addSeparator(const QModelIndex& at)
{
    return insertAction(at, nullptr);
}

void RibbonQuickPanelTreeModel::removeItem(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const QModelIndex parent = index.parent();
    const int row = index.row();
    beginRemoveRows(parent, row, row);
    itemForIndex(parent)->removeChild(row);
    endRemoveRows();
}

void RibbonQuickPanelTreeModel::moveUp(const QModelIndex& index)
{
    if (!index.isValid() || index.row() < 1)
        return;
    const QModelIndex parent = index.parent();
    const int row = index.row();
    if (!beginMoveRows(parent, row, row, parent, row - 1))
        return;
    itemForIndex(parent)->moveUp(row);
    endMoveRows();
}

void RibbonQuickPanelTreeModel::moveDown(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const QModelIndex parent = index.parent();
    const int row = index.row();
    if (row + 1 >= rowCount(parent) || !beginMoveRows(parent, row, row, parent, row + 2))
        return;
    itemForIndex(parent)->moveDown(row);
    endMoveRows();
}

// The commands are appended to the destination, and announced there, so that
// views and persistent indexes follow them to where they really go.
void RibbonQuickPanelTreeModel::moveRows(const QModelIndex& destination, const QModelIndexList& indexes)
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
    const QModelIndex source = indexes.first().parent();
    if (source == destination)
        return;
    QuickPanelTreeItem* target = itemForIndex(destination);
    QModelIndexList ordered = indexes;
    std::sort(ordered.begin(), ordered.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    QList<QuickActionItem*> moved;
    for (const QModelIndex& index : ordered) {
        if (!index.isValid() || index.parent() != source)
            return;
        auto* item = static_cast<QuickActionItem*>(itemForIndex(index));
        if (levelHolds(target, item->action()))
            return;
        moved.append(item);
    }
    if (!beginMoveRows(source, least, greatest, destination, target->childCount()))
        return;
    for (QuickActionItem* item : moved) {
        QuickPanelTreeItem* holder = item->parent();
        if (!holder)
            continue;
        const int last = target->childCount();
        target->insertChild(last, item->action());
        // Views keep the moved item in their persistent indexes, so the item
        // itself moves to the new row and the one just made for it there is
        // the one that the old place drops.
        QuickPanelTreeItem* made = target->child(last);
        if (made && made != item && static_cast<QuickActionItem*>(made)->action() == item->action())
            QuickPanelTreeItem::exchangePlaces(item, made);
        for (int row = 0; row < holder->childCount(); ++row) {
            QuickPanelTreeItem* entry = holder->child(row);
            if (entry == item || entry == made) {
                holder->removeChild(row);
                break;
            }
        }
    }
    endMoveRows();
}

void RibbonQuickPanelTreeModel::showContextMenu(const QModelIndex& index, const QPoint& globalPos)
{
    emit layoutAboutToBeChanged();
    itemForIndex(index)->showContextMenu(globalPos);
    emit layoutChanged();
}
