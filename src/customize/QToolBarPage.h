#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QList>
#include <QMap>
#include <QWidget>

class QAction;
class QListWidgetItem;
class QMenu;
class QPoint;
class QToolBar;
class QTreeWidgetItem;

namespace Ui {
class QToolBarPage;
}

namespace ui {

/// Editor of a host's classic toolbars.
///
/// On the left the page lists the toolbars: each row carries the toolbar's
/// title (edit it to rename the toolbar; at most 255 characters) and a check
/// box that enables or disables it. On the right it shows the contents of the
/// selected toolbar as a tree: commands, separators and command groups (a
/// "Группа команд" row in bold whose children are the commands of the group
/// button's drop-down menu). The buttons beside the tree add the command
/// chosen with setCurrentCommand(), add it to a group, insert groups and
/// separators, remove entries and move them up or down; a right click on a
/// command or group sets its button style. The buttons under the list add,
/// remove and rename toolbars.
///
/// The page edits the live QToolBar objects and their actions at once; there
/// is no apply step. Commands removed from a toolbar are never deleted (they
/// belong to the host); separators removed from it are.
///
/// Ownership: removeToolbar() deletes the toolbar of the row, whoever made
/// it. Toolbars made by addToolbar() have no parent and are titled
/// "Custom ToolBar", with the smallest free positive integer as object name;
/// collect them with toolBars() and give them a home (for instance
/// QMainWindow::addToolBar()) or delete them. The listed toolbars must stay
/// alive while they are listed: call setToolBars() again after deleting one
/// elsewhere.
///
/// The page is one self-contained widget. In the toolbars tab of
/// ui::QCustomizeDlg it goes into getLayout(); the tab's left side, beside it
/// across getSplitter(), is the place for the commands to choose from, for
/// instance a MenuTreeWidget in place of getTreeWidget():
/// @code
/// ui::QToolBarPage* page = new ui::QToolBarPage;
/// page->setToolBars(mainWindow->findChildren<QToolBar*>());
/// dialog->getLayout()->addWidget(page);
///
/// MenuTreeWidget* commands = new MenuTreeWidget(nullptr, handler->menu());
/// commands->setHeaderHidden(true);
/// QWidget* left = dialog->getTreeWidget()->parentWidget();
/// left->layout()->replaceWidget(dialog->getTreeWidget(), commands);
/// dialog->getTreeWidget()->hide();
/// QObject::connect(commands, &MenuTreeWidget::currentActionChanged,
///                  page, &ui::QToolBarPage::setCurrentCommand);
/// QObject::connect(commands, &MenuTreeWidget::actionDoubleClicked,
///                  page, &ui::QToolBarPage::fromDoubleClick);
/// // ... when the user confirms, dock the toolbars added on the page:
/// for (QToolBar* toolBar : page->toolBars())
///     if (!toolBar->parent())
///         mainWindow->addToolBar(toolBar);
/// @endcode
/// The form's parts keep working wherever they are put: a host that wants the
/// toolbar list itself on the tab's left side can move the page's child
/// widget "toolBarPanel" (the list with its three buttons) there, for
/// instance with QSplitter::insertWidget() on getSplitter().
class TESSARO_EXPORT QToolBarPage : public QWidget
{
    Q_OBJECT

public:
    /// Builds the page with no toolbars and no current command.
    explicit QToolBarPage(QWidget* parent = nullptr);
    ~QToolBarPage() override;

    /// Lists @p toolBars in that order (not owned), one editable, checkable
    /// row each with the toolbar's window title, checked when the toolbar is
    /// enabled. Replaces the rows listed before.
    void setToolBars(const QList<QToolBar*>& toolBars);
    /// The listed toolbars in list order, including those added on the page.
    QList<QToolBar*> toolBars() const;

    /// Makes @p command (may be null) the command that the add buttons and
    /// fromDoubleClick() insert, then updates the buttons.
    void setCurrentCommand(QAction* command);

public slots:
    /// Adds the current command to the toolbar if Add command is enabled,
    /// else to the group if Add to group is; meant for a double-click on the
    /// command in the host's command tree.
    void fromDoubleClick();
    /// Inserts the current command into the toolbar after the selected entry
    /// (first when none is selected).
    void addAction();
    /// Inserts the current command into the selected group, after the
    /// selected child or last; the group's menu is made on the first add.
    void addActionToGroup();
    /// Takes the selected entry out of its toolbar or group; deletes it if it
    /// is a separator.
    void removeAction();
    /// Moves the selected entry one place up among its siblings.
    void upAction();
    /// Moves the selected entry one place down among its siblings.
    void downAction();
    /// Inserts a separator after the selected entry, inside the group when a
    /// group or one of its children is selected.
    void addSeparator();
    /// Inserts an empty command group (a drop-down button) into the toolbar
    /// after the selected entry.
    void addGroup();
    /// Adds a new toolbar "Custom ToolBar" at the end of the list and selects it.
    void addToolbar();
    /// Deletes the selected toolbar and its row.
    void removeToolbar();
    /// Starts editing the title of the selected toolbar.
    void renameToolbar();
    /// Takes over the edited row @p item: a new title of at most 255
    /// characters renames the toolbar (a longer one is reverted); with the
    /// title unchanged the check box enables or disables the toolbar.
    void toolbarRenamed(QListWidgetItem* item);
    /// Shows the contents of the toolbar of row @p item (none for null).
    void toolbarChanged(QListWidgetItem* item);
    /// Enables each button when its edit applies to the current selection.
    void updateButtons();
    /// Offers the five button styles for the selected command or group
    /// (at @p pos, in the contents tree's viewport) and applies the choice.
    void onContextMenu(const QPoint& pos);

private:
    QTreeWidgetItem* newCommandItem(QAction* action) const;
    QTreeWidgetItem* newGroupItem() const;
    QTreeWidgetItem* newSeparatorItem() const;
    bool isGroupItem(const QTreeWidgetItem* item) const;
    QTreeWidgetItem* selectedGroupItem() const;
    QMenu* groupMenu(QTreeWidgetItem* groupItem, bool create) const;
    QAction* actionOfItem(QTreeWidgetItem* item) const;
    bool canAddCommand() const;
    bool canAddCommandToGroup() const;
    bool commandIsOnToolBar() const;
    void moveSelectedItem(int offset);
    void fillTree();
    void finishEdit(QTreeWidgetItem* item);

    Ui::QToolBarPage* m_ui;
    QMap<QListWidgetItem*, QToolBar*> m_toolBars;
    QAction* m_command;
    QToolBar* m_toolBar;
};

} // namespace ui
