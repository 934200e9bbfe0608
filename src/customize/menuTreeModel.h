#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QAbstractItemModel>

#include <memory>

class QAction;
class QMenu;

/// Read-only tree model over a live QMenu: submenus are categories, other
/// actions are commands.
///
/// Every index carries the QAction it stands for as its internal pointer; the
/// invisible root stands for the root menu's menuAction(). Nothing is copied:
/// queries read the menu's current actions, so after changing the menu's
/// structure the host calls setMenu() again to reset the model.
///
/// An action whose dynamic property "isDynamic" is true is a menu the host
/// fills at run time; it is shown as a selectable leaf, like a command.
/// Categories (non-dynamic submenus) and separators carry no item flags, so
/// they can be neither selected nor made current.
///
/// @code
/// auto* view = new QTreeView(dialog);
/// auto* model = new MenuTreeModel(commandsMenu, view);
/// view->setModel(model);
/// view->expandAll();
/// QAction* picked = MenuTreeModel::actionForIndex(view->currentIndex());
/// @endcode
class TESSARO_EXPORT MenuTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Creates a model over @p menu (not owned; may be null).
    explicit MenuTreeModel(QMenu* menu, QObject* parent = nullptr);
    ~MenuTreeModel() override;

    /// Resets the model onto @p menu (not owned; may be null).
    void setMenu(QMenu* menu);
    /// The root menu, or null.
    QMenu* menu() const;

    /// The action an index stands for (its internal pointer); null for an invalid index.
    static QAction* actionForIndex(const QModelIndex& index);

    /// The child at @p row of @p parent's submenu; invalid when out of range.
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    /// The index of the action whose submenu holds @p index's action.
    QModelIndex parent(const QModelIndex& index) const override;
    /// The number of actions of the parent's submenu; 0 for commands,
    /// dynamic menus, separators and when there is no menu.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Always 1.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Text (every "&" removed), icon, status tip and, for categories, a bold font.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Selectable and enabled for commands and dynamic menus; nothing otherwise.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The root menu's title for the horizontal display role.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QMenu* m_menu;
    class ParentCache;
    std::unique_ptr<ParentCache> m_cache;
};
