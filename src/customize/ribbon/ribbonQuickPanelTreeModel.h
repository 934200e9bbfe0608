#pragma once

#include <tessaro/RibbonControls.h>
#include <tessaro/TessaroGlobal.h>

#include <QAbstractItemModel>
#include <QIcon>
#include <QList>

class QAction;
class QObject;
class QPoint;

namespace Qtitan {
class RibbonQuickAccessBar;
} // namespace Qtitan

namespace ui {
class RibbonBar;
} // namespace ui

/// The kinds of the items of the quick access tree, as reported by
/// QuickPanelTreeItem::type() and RibbonQuickPanelTreeModel::itemType(). The
/// numbering is that of the quick access tree, not that of the ribbon tree.
enum class QuickPanelItemType : int {
    /// The quick access bar itself.
    Root = 0,
    /// A plain command.
    Action = 1,
    /// A group command: an action with a drop-down menu of further commands.
    ActionGroup = 2,
    /// A separator.
    Separator = 3,
    /// A QWidgetAction.
    WidgetAction = 4,
    /// An action marked by the dynamic property "isPopupWidgetAction".
    PopupWidgetAction = 5,
    /// An action marked by the dynamic property "isDynamic": its menu is
    /// filled at run time, so it is shown without children.
    DynamicAction = 6
};

/// One row of the quick access tree. Items wrap live objects (the quick
/// access bar, its actions) without owning them and apply every edit to them
/// at once. Children are created the first time they are asked for and kept
/// in the item's child cache, which the item owns; every structural change of
/// the wrapped object must therefore go through the item operations.
///
/// @code
/// QuickPanelTreeItem* item = model->itemForIndex(view->currentIndex());
/// if (item->type() == int(QuickPanelItemType::ActionGroup))
///     qDebug() << item->name() << "opens" << item->childCount() << "commands";
/// @endcode
class TESSARO_EXPORT QuickPanelTreeItem
{
public:
    /// An item under @p parent (null for the root) that shows @p data.
    QuickPanelTreeItem(QuickPanelTreeItem* parent, QObject* data);
    QuickPanelTreeItem(const QuickPanelTreeItem&) = delete;
    QuickPanelTreeItem& operator=(const QuickPanelTreeItem&) = delete;
    /// Deletes the items of the child cache; never the wrapped object.
    virtual ~QuickPanelTreeItem();

    /// The item's kind, a QuickPanelItemType value.
    virtual int type() const = 0;
    /// The text shown for the item.
    virtual QString name() = 0;
    /// Renames the wrapped object; false when the item cannot be renamed.
    virtual bool setName(const QString& name) = 0;
    /// The icon shown for the item; the base has none.
    virtual QIcon icon() const;
    /// Gives the wrapped object an icon; the base does nothing.
    virtual void setIcon(const QIcon& icon);
    /// The number of children of the wrapped object.
    virtual int childCount() const = 0;
    /// Moves the child at @p row one place up.
    virtual void moveUp(int row);
    /// Moves the child at @p row one place down.
    virtual void moveDown(int row);
    /// Removes the child at @p row and deletes its item.
    virtual void removeChild(int row);
    /// Inserts @p action (a new separator when null) as the child at @p row.
    virtual void insertChild(int row, QAction* action);
    /// A hook for a context menu of the item at @p globalPos; does nothing.
    virtual void showContextMenu(const QPoint& globalPos);
    /// Makes a new item, not yet cached, for the wrapped object's child at
    /// @p row; null when there is no such child.
    virtual QuickPanelTreeItem* createChild(int row) = 0;

    /// The item of the child at @p row: the cached one, else one created now
    /// and appended to the cache; null when there is no such child.
    QuickPanelTreeItem* child(int row);
    /// The parent item; null for the root.
    QuickPanelTreeItem* parent() const;
    /// The position of @p item in this item's child cache, -1 when absent.
    int cachedRow(const QuickPanelTreeItem* item) const;

protected:
    /// The shown object.
    QObject* data() const;
    /// Fills the child cache in row order up to and including @p row (as far
    /// as there are children), so that cache positions are row numbers.
    void cacheThrough(int row);
    /// Whether both @p row and @p target are child rows of this item.
    bool canMove(int row, int target) const;

private:
    friend class RibbonQuickPanelTreeModel;
    static void exchangePlaces(QuickPanelTreeItem* a, QuickPanelTreeItem* b);

    QList<QuickPanelTreeItem*> m_children;
    QuickPanelTreeItem* m_parent;
    QObject* m_data;
};

/// The invisible root of the quick access tree: the quick access bar, whose
/// visible actions are its children. Hidden actions of the bar are not rows,
/// and every row number counts visible actions only.
///
/// @code
/// auto* root = static_cast<QuickPanelRootItem*>(model->itemForIndex(QModelIndex()));
/// QAction* first = root->visibleAction(0);   // the first visible action of the bar
/// @endcode
class TESSARO_EXPORT QuickPanelRootItem : public QuickPanelTreeItem
{
public:
    /// The root over @p bar (may be null: no children).
    explicit QuickPanelRootItem(Qtitan::RibbonQuickAccessBar* bar);

    /// QuickPanelItemType::Root.
    int type() const override;
    /// "Панель" (the panel), translated.
    QString name() override;
    /// Changes nothing and returns false.
    bool setName(const QString& name) override;
    /// The number of visible actions of the bar.
    int childCount() const override;
    /// Moves the visible action at @p row before the one above it.
    void moveUp(int row) override;
    /// Moves the visible action at @p row after the one below it.
    void moveDown(int row) override;
    /// Removes the visible action at @p row from the bar; the bar stays shown.
    void removeChild(int row) override;
    /// Inserts @p action before the visible action at @p row (at the end when
    /// there is none); a null action inserts a new separator. An action that
    /// is already visible on the bar is left where it is.
    void insertChild(int row, QAction* action) override;
    /// An item for the visible action at @p row.
    QuickPanelTreeItem* createChild(int row) override;

    /// The quick access bar, or null.
    Qtitan::RibbonQuickAccessBar* bar() const;
    /// The visible action at @p row, or null.
    QAction* visibleAction(int row) const;

private:
    void moveVisible(int row, int target);
};

/// An action of the quick access bar or of a group command's menu.
///
/// @code
/// const QModelIndex index = view->currentIndex();
/// if (model->itemType(index) == int(QuickPanelItemType::ActionGroup)) {
///     auto* item = static_cast<QuickActionItem*>(model->itemForIndex(index));
///     item->setGroupButtonType(ui::Dynamic);   // the face shows the command last used
/// }
/// @endcode
class TESSARO_EXPORT QuickActionItem : public QuickPanelTreeItem
{
public:
    /// An item for @p action under @p parent.
    QuickActionItem(QuickPanelTreeItem* parent, QAction* action);

    /// The kind, tested in this order: popup widget action, dynamic action,
    /// separator, widget action, group command, plain command.
    int type() const override;
    /// The separator label for a separator, else the action's text. An
    /// unnamed group command is named "Новая Групповая команда" for good.
    QString name() override;
    /// Sets the action's text and icon text; true.
    bool setName(const QString& name) override;
    /// The action's icon.
    QIcon icon() const override;
    /// Sets the action's icon.
    void setIcon(const QIcon& icon) override;
    /// The number of actions of the action's menu; 0 without a menu or for a
    /// dynamic action.
    int childCount() const override;
    /// Moves the menu action at @p row up, then refreshes the group icon.
    void moveUp(int row) override;
    /// Moves the menu action at @p row down, then refreshes the group icon.
    void moveDown(int row) override;
    /// Removes the menu action at @p row from the menu (the action itself is
    /// kept), then refreshes the group icon.
    void removeChild(int row) override;
    /// Inserts @p action into the menu before the action at @p row, creating
    /// the menu when the action has none; a null action inserts a new
    /// separator. Nothing happens when the action is already in the menu.
    void insertChild(int row, QAction* action) override;
    /// An item for the menu action at @p row.
    QuickPanelTreeItem* createChild(int row) override;

    /// The wrapped action.
    QAction* action() const;
    /// The quick access bar that shows this action's button: the parent's bar
    /// for a top-level item, null inside a menu.
    Qtitan::RibbonQuickAccessBar* bar() const;
    /// The tool button style of the action's button on the bar.
    Qt::ToolButtonStyle buttonStyle() const;
    /// Sets the tool button style of the action's button on the bar.
    void setButtonStyle(Qt::ToolButtonStyle style);
    /// The group button type of the action's button on the bar.
    ui::GroupButtonType groupButtonType() const;
    /// Sets the group button type of the action's button on the bar.
    void setGroupButtonType(ui::GroupButtonType type);

private:
    void moveInMenu(int row, int target);
    void refreshGroupIcon();
};

/// A one-column tree of the quick access bar of a ui::RibbonBar: its visible
/// actions and, under each group command, the actions of its drop-down menu.
/// Every edit goes straight into the live bar, its actions and their menus;
/// the model keeps no copy. Removing a row never deletes the QAction.
///
/// @code
/// auto* model = new RibbonQuickPanelTreeModel(ribbon, view);
/// view->setModel(model);
/// const QModelIndex group = model->addActionGroup(QModelIndex());   // at the end of the bar
/// model->insertAction(group, copyAction);                           // into its menu
/// @endcode
class TESSARO_EXPORT RibbonQuickPanelTreeModel : public QAbstractItemModel
{
public:
    /// A model over the quick access bar of @p ribbon (may be null).
    RibbonQuickPanelTreeModel(ui::RibbonBar* ribbon, QObject* parent = nullptr);
    /// Deletes the items; the bar and its actions stay.
    ~RibbonQuickPanelTreeModel() override;

    /// The index of @p parent's child at @p row; invalid when there is none.
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    /// The index of the item that holds @p index's item; invalid at top level.
    QModelIndex parent(const QModelIndex& index) const override;
    /// The number of children of @p parent's item.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Always 1.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The name without "&" (display and edit roles), the icon, and a bold
    /// italic font for group commands.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Renames the item for the edit role; emits no change signal.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    /// Always empty.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Selectable and enabled for a valid index; items are not edited in place.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Resets the model onto the quick access bar of @p ribbon and shows the bar.
    void setRibbonBar(ui::RibbonBar* ribbon);
    /// The item of @p index; the root for an invalid index.
    QuickPanelTreeItem* itemForIndex(const QModelIndex& index) const;
    /// The kind of @p index's item; 0 for an invalid index.
    int itemType(const QModelIndex& index) const;

    /// Inserts @p action (a new separator when null): at the end of the bar
    /// for an invalid index, at the end of a group command's menu, else right
    /// after @p at. Returns the new row, or an invalid index when that level
    /// already holds the action.
    QModelIndex insertAction(const QModelIndex& at, QAction* action);
    /// Inserts a new group command "Новая Групповая команда" with an empty
    /// menu, placed as insertAction() places it.
    QModelIndex addActionGroup(const QModelIndex& at);
    /// Inserts a new separator, placed as insertAction() places it.
    QModelIndex addSeparator(const QModelIndex& at);
    /// Removes the row of @p index; its action is kept.
    void removeItem(const QModelIndex& index);
    /// Moves @p index one row up; nothing for the first row.
    void moveUp(const QModelIndex& index);
    /// Moves @p index one row down; nothing for the last row.
    void moveDown(const QModelIndex& index);
    /// Moves the rows of @p indexes, one contiguous run of siblings, to the
    /// end of @p destination, keeping their order. Nothing happens for rows
    /// that are not contiguous or for a destination among or under them.
    void moveRows(const QModelIndex& destination, const QModelIndexList& indexes);
    // Qt's own moveRows() stays callable beside this one.
    using QAbstractItemModel::moveRows;
    /// Calls the context menu hook of @p index's item between layout change
    /// notices.
    void showContextMenu(const QModelIndex& index, const QPoint& globalPos);

private:
    QuickPanelRootItem* m_root;
};
