#include <tessaro/menuTreeModel.h>

#include "TessaroTranslate_p.h"

#include <QAction>
#include <QActionEvent>
#include <QFont>
#include <QHash>
#include <QMenu>
#include <QPointer>

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

} // namespace

// Views ask parent() for every painted or selected row, and a walk from the
// root costs the whole menu in front of the item. The cache holds the walk's
// answer for every action under the root (the first menu that holds it, depth
// first, and its row there), learned in one pass. It watches every menu it
// went through and forgets it all as soon as one of them changes in a way
// that can move an answer: an action added or removed, an action given
// another submenu, a menu deleted. So it answers as the walk would at every
// moment, also when the host changes the menu without calling setMenu().
class MenuTreeModel::ParentCache : public QObject
{
public:
    // The menu that holds action, and its row there; false when the action
    // is not under root.
    bool locate(QMenu* root, const QAction* action, QMenu** holder, int* row)
    {
        if (!m_learned)
            learn(root);
        const auto it = m_places.constFind(action);
        if (it == m_places.cend())
            return false;
        *holder = it->holder;
        *row = it->row;
        return true;
    }

    void forget()
    {
        for (const QPointer<QObject>& menu : qAsConst(m_watched)) {
            if (menu) {
                menu->removeEventFilter(this);
                disconnect(menu, nullptr, this, nullptr);
            }
        }
        m_watched.clear();
        m_places.clear();
        m_learned = false;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ActionAdded:
        case QEvent::ActionRemoved:
            forget();
            break;
        case QEvent::ActionChanged:
            if (submenuChanged(static_cast<QActionEvent*>(event)->action()))
                forget();
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    struct Place
    {
        QMenu* holder;
        int row;
        const QMenu* submenu; // the action's submenu when learned
    };

    bool submenuChanged(const QAction* action) const
    {
        const auto it = m_places.constFind(action);
        return it == m_places.cend() || it->submenu != action->menu();
    }

    void learn(QMenu* root)
    {
        if (root)
            learnMenu(root);
        m_learned = true;
    }

    // Depth first, in menu order, as the walk goes; a menu met again adds
    // nothing (its actions were placed on the first visit).
    void learnMenu(QMenu* menu)
    {
        if (m_watched.contains(menu))
            return;
        watch(menu);
        const QList<QAction*> actions = menu->actions();
        for (int i = 0; i < actions.size(); ++i) {
            QAction* entry = actions.at(i);
            QMenu* sub = entry->menu();
            // The walk stops at the first place, so only that one counts.
            if (!m_places.contains(entry))
                m_places.insert(entry, Place{menu, i, sub});
            if (sub)
                learnMenu(sub);
        }
    }

    void watch(QMenu* menu)
    {
        m_watched.insert(menu, menu);
        menu->installEventFilter(this);
        connect(menu, &QObject::destroyed, this, [this] { forget(); });
    }

    QHash<const QAction*, Place> m_places;
    // Held as QObject: forget() also runs from a menu's destroyed signal,
    // when only its QWidget part is left.
    QHash<const QMenu*, QPointer<QObject>> m_watched;
    bool m_learned = false;
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
    m_cache->forget();
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
    QMenu* holder = nullptr;
    int row = -1;
    if (!m_cache->locate(m_menu, actionForIndex(index), &holder, &row))
        return QModelIndex();
    QAction* parentAction = holder->menuAction();
    if (parentAction->menu() == m_menu)
        return QModelIndex();
    QMenu* grandHolder = nullptr;
    if (!m_cache->locate(m_menu, parentAction, &grandHolder, &row))
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
