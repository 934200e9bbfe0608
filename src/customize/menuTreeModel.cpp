#include <tessaro/menuTreeModel.h>

#include "TessaroTranslate_p.h"

#include <QAction>
#include <QFont>
#include <QHash>
#include <QMenu>
#include <QPointer>
#include <QSet>

namespace {

bool isDynamicMenu(const QAction* action)
{
    const QVariant value = action->property("isDynamic");
    return value.isValid() && value.toBool();
}

// A submenu that the tree expands (a dynamic menu is shown as a leaf).
bool isCategory(const QAction* action)
{
    return action->menu() && !isDynamicMenu(action);
}

QString plainText(const QAction* action)
{
    QString text = action->text();
    text.remove(QLatin1Char('&'));
    return text;
}

// Depth first from menu: the first menu that holds action, and its position
// there. The parent action is that menu's menuAction().
QMenu* findHolder(const QAction* action, QMenu* menu, int* row)
{
    const QList<QAction*> actions = menu->actions();
    for (int i = 0; i < actions.size(); ++i) {
        QAction* entry = actions.at(i);
        if (entry == action) {
            *row = i;
            return menu;
        }
        if (QMenu* sub = entry->menu()) {
            if (QMenu* found = findHolder(action, sub, row))
                return found;
        }
    }
    return nullptr;
}

} // namespace

// Views ask parent() for every painted or selected row, and a walk from the
// root costs the whole menu in front of the item. The cache remembers where
// each action was first met; every answer is checked against the live menu
// (the holder still has the action at that row) and falls back to the walk
// when the menu has changed since.
struct MenuTreeModel::ParentCache
{
    struct Place
    {
        QPointer<QMenu> holder;
        int row;
    };
    QHash<const QAction*, Place> places;
    bool dirty = true;

    void rebuild(QMenu* root)
    {
        places.clear();
        QSet<const QMenu*> visited;
        if (root)
            add(root, visited);
        dirty = false;
    }

    void add(QMenu* menu, QSet<const QMenu*>& visited)
    {
        if (visited.contains(menu))
            return;
        visited.insert(menu);
        const QList<QAction*> actions = menu->actions();
        for (int i = 0; i < actions.size(); ++i) {
            QAction* entry = actions.at(i);
            // The walk stops at the first place, so only that one counts.
            if (!places.contains(entry))
                places.insert(entry, Place{menu, i});
            if (QMenu* sub = entry->menu())
                add(sub, visited);
        }
    }
};

MenuTreeModel::MenuTreeModel(QMenu* menu, QObject* parent)
    : QAbstractItemModel(parent)
    , m_menu(menu)
    , m_cache(new ParentCache)
{
}

MenuTreeModel::~MenuTreeModel() = default;

void MenuTreeModel::setMenu(QMenu* menu)
{
    beginResetModel();
    m_menu = menu;
    m_cache->places.clear();
    m_cache->dirty = true;
    endResetModel();
}

bool MenuTreeModel::locate(const QAction* action, QMenu** holder, int* row) const
{
    if (m_cache->dirty)
        m_cache->rebuild(m_menu);
    const auto it = m_cache->places.constFind(action);
    if (it != m_cache->places.cend()) {
        QMenu* menu = it->holder.data();
        if (menu && menu->actions().value(it->row) == action) {
            *holder = menu;
            *row = it->row;
            return true;
        }
    }
    *holder = findHolder(action, m_menu, row);
    // Found by the walk but not by the cache: the menu changed, so relearn it
    // on the next lookup.
    if (*holder || it != m_cache->places.cend())
        m_cache->dirty = true;
    return *holder != nullptr;
}

QMenu* MenuTreeModel::menu() const
{
    return m_menu;
}

QAction* MenuTreeModel::actionForIndex(const QModelIndex& index)
{
    return index.isValid() ? static_cast<QAction*>(index.internalPointer()) : nullptr;
}

QModelIndex MenuTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    QAction* parentAction = parent.isValid() ? actionForIndex(parent) : m_menu->menuAction();
    QAction* child = parentAction->menu()->actions().value(row);
    if (!child)
        return QModelIndex();
    return createIndex(row, column, child);
}

QModelIndex MenuTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || !m_menu)
        return QModelIndex();
    QMenu* holder = nullptr;
    int row = -1;
    if (!locate(actionForIndex(index), &holder, &row))
        return QModelIndex();
    QAction* parentAction = holder->menuAction();
    if (parentAction->menu() == m_menu)
        return QModelIndex();
    QMenu* grandHolder = nullptr;
    if (!locate(parentAction, &grandHolder, &row))
        row = -1;
    return createIndex(row, 0, parentAction);
}

int MenuTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!m_menu || parent.column() > 0)
        return 0;
    const QAction* action = parent.isValid() ? actionForIndex(parent) : m_menu->menuAction();
    if (!isCategory(action))
        return 0;
    return action->menu()->actions().size();
}

int MenuTreeModel::columnCount(const QModelIndex& parent) const
{
    Q_UNUSED(parent)
    return 1;
}

QVariant MenuTreeModel::data(const QModelIndex& index, int role) const
{
    const QAction* action = actionForIndex(index);
    if (!action)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        if (action->isSeparator())
            return TESSARO_TR("menuTreeModel.cpp", "< Р А З Д Е Л И Т Е Л Ь >");
        return plainText(action);
    case Qt::DecorationRole:
        return action->icon();
    case Qt::StatusTipRole:
        return action->isSeparator() ? QString() : plainText(action);
    case Qt::FontRole:
        if (!action->isSeparator() && isCategory(action)) {
            QFont font;
            font.setWeight(75);
            return font;
        }
        return QVariant();
    default:
        return QVariant();
    }
}

Qt::ItemFlags MenuTreeModel::flags(const QModelIndex& index) const
{
    const QAction* action = actionForIndex(index);
    if (!action || action->isSeparator() || isCategory(action))
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

QVariant MenuTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    Q_UNUSED(section)
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || !m_menu)
        return QVariant();
    return m_menu->menuAction()->text();
}
