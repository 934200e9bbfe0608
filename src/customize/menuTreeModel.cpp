#include "menuTreeModel.h"

#include "TessaroTranslate_p.h"

#include <QAction>
#include <QFont>
#include <QMenu>

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

// Depth first from menu: the menuAction() of the first menu that holds action.
QAction* findParentAction(const QAction* action, const QMenu* menu)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* entry : actions) {
        if (entry == action)
            return menu->menuAction();
        if (const QMenu* sub = entry->menu()) {
            if (QAction* found = findParentAction(action, sub))
                return found;
        }
    }
    return nullptr;
}

} // namespace

MenuTreeModel::MenuTreeModel(QMenu* menu, QObject* parent)
    : QAbstractItemModel(parent)
    , m_menu(menu)
{
}

void MenuTreeModel::setMenu(QMenu* menu)
{
    beginResetModel();
    m_menu = menu;
    endResetModel();
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
    QAction* parentAction = findParentAction(actionForIndex(index), m_menu);
    if (!parentAction || parentAction->menu() == m_menu)
        return QModelIndex();
    const QAction* grandParent = findParentAction(parentAction, m_menu);
    const int row = grandParent && grandParent->menu()
        ? grandParent->menu()->actions().indexOf(parentAction) : -1;
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
            return TESSARO_TR("< Р А З Д Е Л И Т Е Л Ь >");
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
