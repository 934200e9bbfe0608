#pragma once

// The parameter editors of the items selected in the ribbon editor widgets.
// An editor is made for one selection, builds its widget once, writes every
// change straight to the ribbon and announces it with paramChanged(). The
// owner widget makes the editor's widget the editor's QObject parent, so
// deleting the widget deletes the editor.

#include <tessaro/RibbonControls.h>
#include <tessaro/TessaroGlobal.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;
class QLineEdit;

// ---------------------------------------------------------------------------
// Editors of the ribbon tree (QRibbonTreeWidget)

class QRibbonTreeWidget;
class RibbonTreeItem;

namespace ui {
class RibbonBar;
}

/// The base of the editors of ribbon tree items (RibbonTreeItem). It holds the
/// selected items (not owned) and the owner's ribbon bar, and its
/// paramChanged() signal reaches the owner's paramChanged() slot.
///
/// @code
/// // What QRibbonTreeWidget does when the selection changes:
/// AbstractEditor* editor = new GroupItemEditor(selectedItems, treeWidget);
/// if (QWidget* widget = editor->editorWidget()) {
///     editor->setParent(widget);   // the widget owns the editor
///     parametersLayout->addWidget(widget);
/// } else {
///     delete editor;               // nothing to edit
/// }
/// @endcode
class TESSARO_EXPORT AbstractEditor : public QObject
{
    Q_OBJECT

public:
    /// An editor of @p items for @p owner (may be null); the ribbon bar is the
    /// owner's current one.
    AbstractEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);
    ~AbstractEditor() override;

    /// Builds the editor's widget on the first call and returns the same one
    /// afterwards; null when the selection has nothing to edit.
    virtual QWidget* editorWidget() = 0;

    /// The selected items.
    QList<RibbonTreeItem*> items() const;
    /// The editor widget that made this editor.
    QRibbonTreeWidget* owner() const;
    /// The ribbon bar the items belong to.
    ui::RibbonBar* ribbonBar() const;

signals:
    /// A parameter of the items was changed on the ribbon.
    void paramChanged();

protected:
    /// The widget of a name editor (ItemNameEditor) of @p items, which owns
    /// the editor.
    static QWidget* createNameEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);
    /// The widget of a button style editor (ToolButtonStyleEditor) of
    /// @p items, which owns the editor.
    static QWidget* createButtonStyleEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);
    /// A plain widget whose vertical layout, without margins, holds
    /// @p children top to bottom.
    static QWidget* stack(const QList<QWidget*>& children);

    /// The editor widget that made this editor (may be null).
    QRibbonTreeWidget* m_owner;
    /// The selected items, not owned.
    QList<RibbonTreeItem*> m_items;
    /// The owner's ribbon bar when the editor was made.
    ui::RibbonBar* m_ribbonBar;
    /// The built widget, null until editorWidget() builds it.
    QPointer<QWidget> m_widget;
};

/// Edits the name of the first item in a line edit of at most 50 characters.
///
/// @code
/// auto* editor = new ItemNameEditor({model->item(index)}, treeWidget);
/// QWidget* field = editor->editorWidget();   // a QLineEdit with the item's name
/// editor->setParent(field);
/// @endcode
class TESSARO_EXPORT ItemNameEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// A name editor of the first of @p items.
    ItemNameEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// A QLineEdit holding the first item's name.
    QWidget* editorWidget() override;

public slots:
    /// Renames the first item to the typed text (when it was changed), lays
    /// the current page out again and emits paramChanged().
    void editingFinished();

private:
    QPointer<QLineEdit> m_edit;
};

/// Chooses the button look of commands inside ribbon groups: icon only, text
/// only, text beside or under the icon.
///
/// @code
/// auto* editor = new ToolButtonStyleEditor(commandsInGroups, treeWidget);
/// QWidget* box = editor->editorWidget();   // "Вид кнопки" with four radio buttons
/// editor->setParent(box);
/// editor->buttonClicked(Qt::ToolButtonTextUnderIcon);   // as if the user chose it
/// @endcode
class TESSARO_EXPORT ToolButtonStyleEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// A style editor of @p items, commands whose parent items are groups.
    ToolButtonStyleEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// A group box "Вид кнопки" of four radio buttons; the common style of the
    /// items is checked, none when they differ.
    QWidget* editorWidget() override;

public slots:
    /// Gives every item the style @p id (a Qt::ToolButtonStyle), lays the
    /// current page out again and emits paramChanged().
    void buttonClicked(int id);

private slots:
    void onButtonClicked(QAbstractButton* button);

private:
    QPointer<QButtonGroup> m_buttons;
};

/// The editor of pages: a name field when one page is selected, nothing for several.
///
/// @code
/// auto* editor = new PanelItemEditor({model->item(pageIndex)}, treeWidget);
/// QWidget* widget = editor->editorWidget();   // null when several pages are selected
/// editor->setParent(widget);
/// @endcode
class TESSARO_EXPORT PanelItemEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// An editor of the pages @p items.
    PanelItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// A name editor for one page; null for several.
    QWidget* editorWidget() override;
};

/// The editor of groups: a name field when one group is selected, and the
/// centering of the groups' controls.
///
/// @code
/// auto* editor = new GroupItemEditor(selectedGroups, treeWidget);
/// QWidget* widget = editor->editorWidget();   // name field (one group) and "Центровка"
/// editor->setParent(widget);
/// editor->centering(true);                    // as if the box were checked
/// @endcode
class TESSARO_EXPORT GroupItemEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// An editor of the groups @p items.
    GroupItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// A name editor (one group only) above the check box "Центровка",
    /// checked when every group centres its controls.
    QWidget* editorWidget() override;

public slots:
    /// Centres the controls of every group (or not) and lays them out again.
    void centering(bool checked);
};

/// The editor of commands and dynamic commands: their button look when all
/// of them stand in groups, nothing otherwise.
///
/// @code
/// auto* editor = new ActionItemEditor(selectedCommands, treeWidget);
/// QWidget* widget = editor->editorWidget();   // the button style box when all stand in groups
/// editor->setParent(widget);
/// @endcode
class TESSARO_EXPORT ActionItemEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// An editor of the commands @p items.
    ActionItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// A widget holding a button style editor when every item's parent is a
    /// group; an empty widget otherwise.
    QWidget* editorWidget() override;
};

/// The editor of popup widget commands; it behaves as ActionItemEditor.
///
/// @code
/// auto* editor = new PopupWidgetActionItemEditor(selectedCommands, treeWidget);
/// editor->setParent(editor->editorWidget());
/// @endcode
class TESSARO_EXPORT PopupWidgetActionItemEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// An editor of the popup widget commands @p items.
    PopupWidgetActionItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// As ActionItemEditor::editorWidget().
    QWidget* editorWidget() override;
};

/// The editor of group commands: the name of a single one and the kind of
/// their buttons (ui::GroupButtonType).
///
/// @code
/// auto* editor = new ActionGroupItemEditor(selectedGroupCommands, treeWidget);
/// QWidget* widget = editor->editorWidget();   // name field and "Тип кнопки"
/// editor->setParent(widget);
/// editor->setDynamic(true);                   // as if "dynamic" were checked
/// @endcode
class TESSARO_EXPORT ActionGroupItemEditor : public AbstractEditor
{
    Q_OBJECT

public:
    /// An editor of the group commands @p items.
    ActionGroupItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner);

    /// For group commands of groups: a name field (one item only, enabled for
    /// simple buttons) and the group box "Тип кнопки" of three radio buttons.
    /// For group commands inside menus only the name field of a single one.
    QWidget* editorWidget() override;

public slots:
    /// Makes every item a simple group button when @p checked.
    void setSimple(bool checked);
    /// Makes every item a dynamic group button when @p checked.
    void setDynamic(bool checked);
    /// Makes every item a "first is active" group button when @p checked.
    void setDynamicLite(bool checked);

private:
    void setType(ui::GroupButtonType type);

    QPointer<QWidget> m_nameWidget;
};

// ---------------------------------------------------------------------------
// Editors of the quick access tree (QRibbonTreeQuickPanelWidget)

class QuickPanelTreeItem;
class QRibbonTreeQuickPanelWidget;

/// Base of the parameter editors of the quick access tree. An editor is made
/// for one selection of quick access items (not owned), builds its widget
/// once, writes every change straight to the bar's actions and announces it
/// with paramChanged(), which reaches the owner's paramChanged() slot. The
/// owner makes the editor a child of its widget, so deleting the widget
/// deletes the editor.
///
/// @code
/// // What QRibbonTreeQuickPanelWidget does when the selection changes:
/// QuickPanelAbstractEditor* editor = new QuickPanelActionGroupItemEditor(selectedItems, quickPage);
/// QWidget* widget = editor->editorWidget();
/// editor->setParent(widget);   // the widget owns the editor
/// parametersLayout->addWidget(widget);
/// @endcode
class TESSARO_EXPORT QuickPanelAbstractEditor : public QObject
{
    Q_OBJECT

public:
    /// An editor of @p items for @p owner.
    QuickPanelAbstractEditor(const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner);
    /// Leaves the items and the widget alone; the widget owns the editor.
    ~QuickPanelAbstractEditor() override;

    /// Builds the editor's widget on the first call and returns the same
    /// widget on later calls.
    virtual QWidget* editorWidget() = 0;

    /// The edited items.
    QList<QuickPanelTreeItem*> items() const;
    /// The editor widget that made this editor.
    QRibbonTreeQuickPanelWidget* owner() const;

signals:
    /// A parameter of the items was changed.
    void paramChanged();

protected:
    /// The editor widget that made this editor; may be null.
    QRibbonTreeQuickPanelWidget* m_owner;
    /// The selected items (not owned).
    QList<QuickPanelTreeItem*> m_items;
    /// The built widget; null until editorWidget() is first called.
    QWidget* m_widget;
};

/// Edits the name of the first item in a line edit of at most 50 characters.
///
/// @code
/// auto* editor = new QuickPanelItemNameEditor({model->itemForIndex(index)}, quickPage);
/// QWidget* field = editor->editorWidget();   // a QLineEdit with the item's name
/// editor->setParent(field);
/// @endcode
class TESSARO_EXPORT QuickPanelItemNameEditor : public QuickPanelAbstractEditor
{
    Q_OBJECT

public:
    /// A name editor of the first of @p items.
    QuickPanelItemNameEditor(const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner);

    /// A QLineEdit holding the first item's name.
    QWidget* editorWidget() override;

public slots:
    /// Renames the first item to the line edit's text.
    void editingFinished();
};

/// Chooses the tool button style of the items' buttons on the quick access
/// bar. The quick access editor never makes one: the bar gives its buttons
/// their look.
///
/// @code
/// auto* editor = new QuickPanelToolButtonStyleEditor(selectedItems, quickPage);
/// editor->setParent(editor->editorWidget());
/// editor->buttonClicked(Qt::ToolButtonIconOnly);   // as if the user chose it
/// @endcode
class TESSARO_EXPORT QuickPanelToolButtonStyleEditor : public QuickPanelAbstractEditor
{
    Q_OBJECT

public:
    /// A button style editor of @p items.
    QuickPanelToolButtonStyleEditor(const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner);

    /// A "Вид кнопки" box of four radio buttons; the items' common style is checked.
    QWidget* editorWidget() override;

public slots:
    /// Gives every item the Qt::ToolButtonStyle @p id.
    void buttonClicked(int id);

private slots:
    void onButtonClicked(QAbstractButton* button);

private:
    QButtonGroup* m_buttons;
};

/// The editor of plain and dynamic commands of the quick access bar: they
/// have no parameters, so its widget is empty.
///
/// @code
/// auto* editor = new QuickPanelActionItemEditor(selectedItems, quickPage);
/// editor->setParent(editor->editorWidget());   // an empty widget
/// @endcode
class TESSARO_EXPORT QuickPanelActionItemEditor : public QuickPanelAbstractEditor
{
    Q_OBJECT

public:
    /// An editor of @p items.
    QuickPanelActionItemEditor(const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner);

    /// An empty widget.
    QWidget* editorWidget() override;
};

/// The editor of popup widget commands of the quick access bar; it behaves
/// as QuickPanelActionItemEditor.
///
/// @code
/// auto* editor = new QuickPanelPopupWidgetActionItemEditor(selectedItems, quickPage);
/// editor->setParent(editor->editorWidget());   // an empty widget
/// @endcode
class TESSARO_EXPORT QuickPanelPopupWidgetActionItemEditor : public QuickPanelAbstractEditor
{
    Q_OBJECT

public:
    /// An editor of @p items.
    QuickPanelPopupWidgetActionItemEditor(const QList<QuickPanelTreeItem*>& items,
                                          QRibbonTreeQuickPanelWidget* owner);

    /// An empty widget.
    QWidget* editorWidget() override;
};

/// The editor of group commands of the quick access bar: the name of a single
/// group command (editable only while it is a simple one) and its button type.
///
/// @code
/// auto* editor = new QuickPanelActionGroupItemEditor(selectedItems, quickPage);
/// QWidget* widget = editor->editorWidget();   // name field and "Тип кнопки"
/// editor->setParent(widget);
/// editor->setDynamicLite(true);               // the face is always the first command
/// @endcode
class TESSARO_EXPORT QuickPanelActionGroupItemEditor : public QuickPanelAbstractEditor
{
    Q_OBJECT

public:
    /// An editor of @p items.
    QuickPanelActionGroupItemEditor(const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner);

    /// A name field for a single item, then a "Тип кнопки" box of three radio
    /// buttons with the items' common type checked (simple when they differ).
    QWidget* editorWidget() override;

public slots:
    /// Makes every item a simple group command (its button only opens the menu).
    void setSimple(bool checked);
    /// Makes every item a split button that remembers the last command used.
    void setDynamic(bool checked);
    /// Makes every item a split button whose face is always the first command.
    void setDynamicLite(bool checked);

private:
    void applyType(ui::GroupButtonType type);

    QWidget* m_nameWidget;
};
