#pragma once

#include <tessaro/QHotKeyPage.h>

#include <QDialog>

class DemoSettings;
class MenuTreeWidget;
class QLabel;
class QAction;
class QMenu;

/// The "Keyboard Shortcuts" window: every command of the host's command menu
/// in a tree, beside a hot keys page fed with the commands' shortcuts. Nothing
/// changes until the user confirms; then apply() writes the edited table back
/// to the actions.
class DemoShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    using Table = ui::QHotKeyPage::ShortcutTable;

    /// Shows the commands of \a commands (its submenus are the categories).
    explicit DemoShortcutsDialog(QMenu* commands, QWidget* parent = nullptr);
    ~DemoShortcutsDialog() override;

    MenuTreeWidget* tree() const { return m_tree; }
    ui::QHotKeyPage* page() const { return m_page; }
    /// The label in front of the page's box that names the command owning the
    /// typed combination; shown with that box.
    QLabel* ownerLabel() const { return m_ownerLabel; }
    /// The table as the user has edited it so far.
    Table editedShortcuts() const;

    /// Gives every action of the edited table whose shortcuts changed its new
    /// list; returns those actions.
    QList<QAction*> apply() const;

    /// Each action of \a menu once, depth first (submenus descended into,
    /// separators included), with its current shortcuts.
    static Table collectShortcuts(QMenu* menu);
    /// Sets the shortcuts of every action of \a table that differ; returns those actions.
    static QList<QAction*> applyShortcuts(const Table& table);

    /// Opens the window (application modal, deleted when closed) over
    /// \a commands. On OK the edits go to the actions and into \a settings.
    static DemoShortcutsDialog* editShortcuts(QMenu* commands, DemoSettings& settings, QWidget* parent);

    /// Shows and hides the owner label together with the page's owner box.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void labelConflictOwner();

    MenuTreeWidget* m_tree;
    ui::QHotKeyPage* m_page;
    QLabel* m_ownerLabel = nullptr;
};
