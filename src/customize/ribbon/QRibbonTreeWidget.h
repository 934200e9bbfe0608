#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QModelIndexList>
#include <QPointer>
#include <QWidget>

class QAction;
class QItemSelection;
class RibbonTreeModel;

namespace Ui {
class ribbonTreeWidget;
}

namespace ui {
class RibbonBar;
}

/// The ribbon editor: a tree of the live ribbon (RibbonTreeModel) with tool
/// buttons to add pages, groups, commands, group commands and separators, to
/// move and delete items, and a "Параметры" (parameters) box that shows the
/// parameter editor (AbstractEditor) of the selection. Every change is
/// applied to the ribbon at once; selecting an item shows its page.
///
/// A selection always consists of siblings. The command to add comes from
/// outside, usually the command picked in a MenuTreeWidget.
///
/// @code
/// QRibbonTreeWidget* editor = new QRibbonTreeWidget(page);
/// editor->updateModel(ribbonBar);
/// QObject::connect(menuTree, &MenuTreeWidget::currentActionChanged,
///                  editor, &QRibbonTreeWidget::setMenuAction);
/// @endcode
class TESSARO_EXPORT QRibbonTreeWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds the form with an empty tree (no ribbon bar yet).
    explicit QRibbonTreeWidget(QWidget* parent = nullptr);
    ~QRibbonTreeWidget() override;

    /// Shows @p ribbonBar (not owned; may be null): resets the tree, drops the
    /// editor and the offered command, and expands every item.
    void updateModel(ui::RibbonBar* ribbonBar);
    /// The ribbon bar shown, or null.
    ui::RibbonBar* getRibbonBar() const;
    /// Offers @p action (not owned; may be null) as the command to add.
    void setMenuAction(QAction* action);
    /// Clears the selection and the current index.
    void clearSelection();

public slots:
    /// Offers @p action and adds it at the current item, as the add command
    /// button does; a slot, so that a command tree's double-click can reach it.
    void addItem(QAction* action);
    /// Repaints the rows of the selected items after an editor changed them.
    void paramChanged();

private slots:
    void onAddPanel();
    void onAddGroup();
    void onAddItem();
    void onAddGroupItem();
    void onAddSeparator();
    void onDel();
    void onUp();
    void onDown();
    void onRibbonTreeSelectionChanged(const QItemSelection& selected);
    void onRibbonTreeContextMenu(const QPoint& pos);

private:
    void createEditor();
    void updateStateUI();
    void expandBranches();
    void select(const QModelIndex& index);
    void retireEditorWidget();
    QModelIndex currentIndex() const;
    QModelIndexList selectedIndexes() const;
    int itemType(const QModelIndex& index) const;

    QModelIndexList m_selection;
    QAction* m_menuAction;
    ui::RibbonBar* m_ribbonBar;
    RibbonTreeModel* m_model;
    QPointer<QWidget> m_editorWidget;
    Ui::ribbonTreeWidget* m_ui;
};
