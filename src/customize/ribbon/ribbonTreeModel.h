#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QAbstractItemModel>
#include <QIcon>
#include <QList>
#include <QModelIndexList>

class QAction;
class QMenu;
class QPoint;

namespace Qtitan {
class RibbonBar;
class RibbonGroup;
class RibbonPage;
} // namespace Qtitan

namespace ui {
class RibbonBar;
}

/// The kinds of items of the ribbon tree, as RibbonTreeItem::type() reports
/// them. The editor widget chooses the parameter editor by them.
enum class RibbonItemType : int {
    Root = 0,              ///< the ribbon bar
    Panel = 1,             ///< a ribbon page
    Group = 2,             ///< a group of a page
    Action = 3,            ///< a plain command
    ActionGroup = 4,       ///< a command with a drop-down menu (a group command)
    Separator = 5,         ///< a separator
    WidgetAction = 6,      ///< a QWidgetAction
    PopupWidgetAction = 7, ///< a command marked "isPopupWidgetAction"
    DynamicAction = 8      ///< a command marked "isDynamic" (its menu is filled at run time)
};

/// One item of the ribbon tree: it wraps a live object of the ribbon (the bar,
/// a page, a group or an action) without owning it.
///
/// Children are made on first access (child()) and kept in a list in row
/// order; counts are read from the wrapped object. Every structural change
/// goes through moveUp(), moveDown(), removeChild() and insertChild(), which
/// change the ribbon and the list together, so that rows stay the positions
/// of the children both in the ribbon object and in the list.
///
/// @code
/// RibbonTreeItem* item = model->item(view->currentIndex());
/// if (item->type() == int(RibbonItemType::Group))
///     qDebug() << item->name() << "holds" << item->childCount() << "actions";
/// @endcode
class TESSARO_EXPORT RibbonTreeItem
{
public:
    /// An item for @p object (not owned) under @p parent (null for the root).
    RibbonTreeItem(QObject* object, RibbonTreeItem* parent);
    /// Deletes the child items; never the wrapped object.
    virtual ~RibbonTreeItem();

    /// The item's kind, a RibbonItemType value.
    virtual int type() const = 0;
    /// The name the tree shows (before "&" is removed).
    virtual QString name() const = 0;
    /// Renames the wrapped object; false when the item has no name to set.
    virtual bool setName(const QString& name) = 0;
    /// The icon the tree shows; empty in the base.
    virtual QIcon icon() const;
    /// Sets the wrapped object's icon; nothing in the base.
    virtual void setIcon(const QIcon& icon);
    /// The number of children of the wrapped object.
    virtual int childCount() const = 0;
    /// Moves the child at @p row one place up; the base moves the list entry.
    virtual void moveUp(int row);
    /// Moves the child at @p row one place down; the base moves the list entry.
    virtual void moveDown(int row);
    /// Removes the child at @p row; the base deletes its list entry (rows out
    /// of range are ignored).
    virtual void removeChild(int row);
    /// Inserts a child at @p row for @p action (a separator when null, where
    /// commands are inserted); the base lists the new item made by createChild().
    virtual void insertChild(int row, QAction* action = nullptr);
    /// A hook for a context menu of the item at @p globalPos; does nothing.
    virtual void showContextMenu(const QPoint& globalPos);
    /// Whether @p action may be inserted here; true in the base.
    virtual bool canInsert(QAction* action) const;

    /// The child at @p row, made and listed on first access; null when out of range.
    RibbonTreeItem* child(int row);
    /// The parent item, null for the root.
    RibbonTreeItem* parent() const;
    /// The position of @p item in this item's list of children, -1 if absent.
    int indexOfChild(const RibbonTreeItem* item) const;
    /// The number of children made so far.
    int listedChildCount() const;
    /// The wrapped object.
    QObject* object() const;
    /// The nearest ancestor item of kind @p type, null if there is none.
    RibbonTreeItem* ancestorOfType(RibbonItemType type) const;

protected:
    /// Makes a new, unlisted item for the wrapped object's child at @p row,
    /// with this item as its parent.
    virtual RibbonTreeItem* createChild(int row) = 0;

    /// Lists the children of rows below @p row that are not listed yet, so
    /// that the list's positions are the ribbon's rows up to @p row.
    void listChildrenBefore(int row);

private:
    Q_DISABLE_COPY(RibbonTreeItem)

    QList<RibbonTreeItem*> m_children;
    RibbonTreeItem* m_parent;
    QObject* m_object;
};

/// The root of the ribbon tree: the ribbon bar, whose children are its pages
/// ("panels").
///
/// @code
/// auto* root = static_cast<RootItem*>(model->item(QModelIndex()));   // the invisible root
/// Qtitan::RibbonBar* shown = root->ribbonBar();
/// @endcode
class TESSARO_EXPORT RootItem : public RibbonTreeItem
{
public:
    /// The root for @p ribbonBar; a null bar gives a root without children.
    explicit RootItem(Qtitan::RibbonBar* ribbonBar);

    /// RibbonItemType::Root.
    int type() const override;
    /// "Панели" (panels), translated.
    QString name() const override;
    /// The root has no name to set: false.
    bool setName(const QString& name) override;
    /// The number of pages, 0 without a bar.
    int childCount() const override;
    /// Moves the page at @p row one place to the left.
    void moveUp(int row) override;
    /// Moves the page at @p row one place to the right.
    void moveDown(int row) override;
    /// Removes and deletes the page at @p row.
    void removeChild(int row) override;
    /// Inserts a new page "Новая Панель" (new panel) at @p row; @p action is not used.
    void insertChild(int row, QAction* action = nullptr) override;

    /// The wrapped ribbon bar.
    Qtitan::RibbonBar* ribbonBar() const;

protected:
    RibbonTreeItem* createChild(int row) override;
};

/// A page of the ribbon ("panel"), whose children are its groups.
///
/// @code
/// const QModelIndex index = model->findAncestor(view->currentIndex(), int(RibbonItemType::Panel));
/// if (index.isValid()) {
///     auto* panel = static_cast<PanelItem*>(model->item(index));
///     ribbon->setCurrentPageIndex(ribbon->pages().indexOf(panel->page()));   // show the page
/// }
/// @endcode
class TESSARO_EXPORT PanelItem : public RibbonTreeItem
{
public:
    /// An item for @p page under @p parent.
    PanelItem(Qtitan::RibbonPage* page, RibbonTreeItem* parent);

    /// RibbonItemType::Panel.
    int type() const override;
    /// The page title, or "< Без названия >" (untitled) when it is empty.
    QString name() const override;
    /// Sets the page title; true.
    bool setName(const QString& name) override;
    /// The number of groups of the page.
    int childCount() const override;
    /// Moves the group at @p row one place to the left.
    void moveUp(int row) override;
    /// Moves the group at @p row one place to the right.
    void moveDown(int row) override;
    /// Removes and deletes the group at @p row, and lays the page out again.
    void removeChild(int row) override;
    /// Inserts a new group "Новая Группа" (new group) at @p row; @p action is not used.
    void insertChild(int row, QAction* action = nullptr) override;

    /// The wrapped page.
    Qtitan::RibbonPage* page() const;

protected:
    RibbonTreeItem* createChild(int row) override;
};

/// A group of a ribbon page, whose children are its actions.
///
/// @code
/// const QModelIndex index = model->findAncestor(view->currentIndex(), int(RibbonItemType::Group));
/// if (index.isValid()) {
///     auto* item = static_cast<GroupItem*>(model->item(index));
///     item->group()->setControlsCentering(true);
///     item->updateGroup();   // lays it out again, keeping its group commands' kinds
/// }
/// @endcode
class TESSARO_EXPORT GroupItem : public RibbonTreeItem
{
public:
    /// An item for @p group under @p parent.
    GroupItem(Qtitan::RibbonGroup* group, RibbonTreeItem* parent);

    /// RibbonItemType::Group.
    int type() const override;
    /// The group title, or "< Без названия >" (untitled) when it is empty.
    QString name() const override;
    /// Sets the group title and lays its page out again; true.
    bool setName(const QString& name) override;
    /// The group's icon.
    QIcon icon() const override;
    /// The number of the group's actions.
    int childCount() const override;
    /// Moves the action at @p row one place to the left.
    void moveUp(int row) override;
    /// Moves the action at @p row one place to the right.
    void moveDown(int row) override;
    /// Takes the action at @p row out of the group (it is not deleted).
    void removeChild(int row) override;
    /// Inserts @p action (a new separator when null) at @p row, text beside
    /// icon; an action the group already holds is not inserted again.
    void insertChild(int row, QAction* action = nullptr) override;
    /// False when @p action is already one of the group's actions.
    bool canInsert(QAction* action) const override;

    /// The wrapped group.
    Qtitan::RibbonGroup* group() const;
    /// Lays the group out again (ui::updateGroup), then gives every group
    /// command back the kind and popup mode it had, which the re-layout drops.
    /// A group command that had no button yet becomes a simple one.
    void updateGroup();

protected:
    RibbonTreeItem* createChild(int row) override;
};

/// An action: a command, a group command (whose children are the actions of
/// its menu), a separator, a widget, popup widget or dynamic command.
///
/// @code
/// const QModelIndex index = view->currentIndex();
/// if (model->itemType(index) == int(RibbonItemType::Action)) {
///     auto* item = static_cast<ActionItem*>(model->item(index));
///     item->setIcon(starIcon);          // the live action's icon
///     model->notifyChanged({index});    // repaint the row
/// }
/// @endcode
class TESSARO_EXPORT ActionItem : public RibbonTreeItem
{
public:
    /// An item for @p action under @p parent.
    ActionItem(QAction* action, RibbonTreeItem* parent);

    /// The kind, tested in this order: "isPopupWidgetAction" gives
    /// PopupWidgetAction, "isDynamic" DynamicAction, then Separator,
    /// WidgetAction, ActionGroup (the action has a menu), else Action.
    int type() const override;
    /// The action's text; "< Р А З Д Е Л И Т Е Л Ь >" for a separator. An
    /// untitled group command of a group shows "< Динамическая группа >" when
    /// its button is dynamic; a simple one is named "Новая Групповая команда"
    /// for good the first time its name is read.
    QString name() const override;
    /// Sets the action's text and icon text; true.
    bool setName(const QString& name) override;
    /// The action's icon.
    QIcon icon() const override;
    /// Sets the action's icon.
    void setIcon(const QIcon& icon) override;
    /// The number of the menu's actions; 0 without a menu or for "isDynamic".
    int childCount() const override;
    /// Moves the menu's action at @p row one place up.
    void moveUp(int row) override;
    /// Moves the menu's action at @p row one place down.
    void moveDown(int row) override;
    /// Takes the menu's action at @p row out of the menu (it is not deleted).
    void removeChild(int row) override;
    /// Inserts @p action (a new separator when null) into the menu at @p row,
    /// giving the action a menu first if it has none.
    void insertChild(int row, QAction* action = nullptr) override;
    /// For a group command: false when @p action is already in its menu.
    /// Other commands ask their parent item.
    bool canInsert(QAction* action) const override;

    /// The wrapped action.
    QAction* action() const;
    /// The group that holds the action, directly or through menus; null if none.
    Qtitan::RibbonGroup* ownerGroup() const;

protected:
    RibbonTreeItem* createChild(int row) override;

private:
    void applyGroupIconRule();
    void redrawParentGroup() const;
};

/// A one-column tree model over the live ribbon of a ui::RibbonBar: pages
/// ("panels"), their groups, the groups' commands and the commands of the
/// group commands' menus.
///
/// The model holds no copy: items wrap the ribbon's objects, and every edit
/// (rename, insert, remove, move) is applied to the ribbon at once. It does
/// not follow changes made to the ribbon elsewhere; reset it with
/// setRibbonBar() then.
///
/// @code
/// RibbonTreeModel* model = new RibbonTreeModel(ribbonBar, view);
/// view->setModel(model);
/// QModelIndex group = model->addGroup(model->index(0, 0));  // a group on the first page
/// model->insertAction(group, command);
/// @endcode
class TESSARO_EXPORT RibbonTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// A model over @p ribbonBar (not owned; null gives an empty tree).
    explicit RibbonTreeModel(ui::RibbonBar* ribbonBar, QObject* parent = nullptr);
    ~RibbonTreeModel() override;

    /// The child at @p row of @p parent's item (made on first access).
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    /// The index of the item's parent; invalid for pages.
    QModelIndex parent(const QModelIndex& index) const override;
    /// The number of children of @p parent's item; 0 past column 0.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Always 1.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The name (every "&" removed), icon, bold panels and groups, bold italic
    /// group commands, and centred panels on a grey gradient.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Renames the item for Qt::EditRole; emits no dataChanged().
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    /// The root's name for the horizontal display role.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Selectable and enabled; editable too except plain commands and separators.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Shows @p ribbonBar (not owned; may be null) instead: resets the model.
    void setRibbonBar(ui::RibbonBar* ribbonBar);
    /// The item of @p index; the root for an invalid index.
    RibbonTreeItem* item(const QModelIndex& index) const;
    /// The kind of @p index's item; 0 for an invalid index.
    int itemType(const QModelIndex& index) const;
    /// @p index itself when it is of kind @p type, else its nearest ancestor
    /// of that kind; invalid when there is none.
    QModelIndex findAncestor(const QModelIndex& index, int type) const;

    /// Adds a page "Новая Панель" right after the page that holds @p index,
    /// or at the end when @p index is invalid; returns its index.
    QModelIndex addPanel(const QModelIndex& index);
    /// Adds a group "Новая Группа" at the end of the page @p index, or right
    /// after the group that holds @p index; returns its index.
    QModelIndex addGroup(const QModelIndex& index);
    /// Inserts @p action at the end of the group or group command @p index, or
    /// right after @p index; a null action inserts a new separator. Returns the
    /// new index; an action already held there is not inserted (invalid index).
    QModelIndex insertAction(const QModelIndex& index, QAction* action);
    /// Inserts a new separator as insertAction() does.
    QModelIndex addSeparator(const QModelIndex& index);
    /// Inserts a new group command "Новая Групповая команда" with an empty
    /// menu, as insertAction() does.
    QModelIndex addActionGroup(const QModelIndex& index);
    /// Removes the item of @p index from the ribbon (commands are not deleted).
    void removeItem(const QModelIndex& index);
    /// Moves the item of @p index one row up; nothing for the first row.
    void moveUp(const QModelIndex& index);
    /// Moves the item of @p index one row down; nothing for the last row.
    void moveDown(const QModelIndex& index);
    /// Moves the commands of @p indexes (one contiguous run of siblings) to
    /// the end of @p destination, in the given order; nothing when the rows
    /// are not contiguous or @p destination already holds one of them.
    void moveRows(const QModelIndex& destination, const QModelIndexList& indexes);
    // Qt's own moveRows() stays callable beside this one.
    using QAbstractItemModel::moveRows;
    /// Lets the item of @p index show its context menu at @p globalPos.
    void showItemContextMenu(const QModelIndex& index, const QPoint& globalPos);
    /// Emits dataChanged() for each index of @p indexes, in order.
    void notifyChanged(const QModelIndexList& indexes);

private:
    RootItem* m_root;
};
