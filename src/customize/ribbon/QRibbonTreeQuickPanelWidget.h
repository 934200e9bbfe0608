#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QModelIndexList>
#include <QWidget>

class QAction;
class QItemSelection;
class QPoint;
class RibbonQuickPanelTreeModel;

namespace Ui {
class ribbonTreeQuickPanelWidget;
}

namespace ui {
class RibbonBar;
}

/// The quick access page of the customization dialog: a tree of the ribbon's
/// quick access bar with buttons to add the command chosen in the dialog,
/// create a group command, add a separator, move and delete rows, and a
/// "Параметры" box with the parameter editor of the selected rows. Every
/// change goes straight into the live quick access bar.
///
/// @code
/// auto* page = new QRibbonTreeQuickPanelWidget(tabs);
/// page->updateModel(ribbon);          // shows the ribbon's quick access bar
/// page->setMenuAction(pickedCommand); // whenever the dialog's pick changes
/// @endcode
class TESSARO_EXPORT QRibbonTreeQuickPanelWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds the form with an empty tree.
    explicit QRibbonTreeQuickPanelWidget(QWidget* parent = nullptr);
    /// Deletes the form; the ribbon and the chosen command are not owned.
    ~QRibbonTreeQuickPanelWidget() override;

    /// Makes @p action (not owned; may be null) the command that "addItem" adds.
    void setMenuAction(QAction* action);
    /// Shows the quick access bar of @p ribbon (not owned) and forgets the
    /// chosen command and the current editor.
    void updateModel(ui::RibbonBar* ribbon);
    /// The ribbon whose quick access bar is shown, or null.
    ui::RibbonBar* getRibbonBar() const;

public slots:
    /// Chooses @p action and adds it as onAddItem() does.
    void addItem(QAction* action);
    /// Repaints the rows of the selected items after an editor changed them.
    void paramChanged();
    /// Enables the buttons that fit the current row, the selection and the
    /// chosen command.
    void updateStateUI();
    /// Adds the chosen command after the current row (into it for a group
    /// command, at the end without one) unless the bar already has a command
    /// of its object name.
    void onAddItem();
    /// Makes a new group command. A contiguous run of two or more sibling
    /// rows is moved into a new group command at the end of their level;
    /// otherwise the new one goes after (or into) the first selected row.
    void onAddGroupItem();
    /// Adds a separator after the current row.
    void onAddSeparator();
    /// Removes the selected rows, the lowest first.
    void onDel();
    /// Moves the single selected row up; a contiguous run of commands of one
    /// group command is taken out of it, to the end of the level above.
    void onUp();
    /// Moves the single selected row down.
    void onDown();
    /// Keeps the selection to siblings and shows the editor of the selection.
    void onRibbonTreeSelectionChanged(const QItemSelection& selected);
    /// Calls the context menu hook of the single selected row at @p pos
    /// (viewport coordinates of the tree) and rebuilds the editor.
    void onRibbonTreeContextMenu(const QPoint& pos);

private:
    void createEditor();

    QModelIndexList m_selection;
    QAction* m_menuAction;
    ui::RibbonBar* m_ribbon;
    RibbonQuickPanelTreeModel* m_model;
    QWidget* m_editor;
    Ui::ribbonTreeQuickPanelWidget* m_ui;
};
