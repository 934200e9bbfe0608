#pragma once

#include <tessaro/QHotKeyPage.h>

#include <QDialog>
#include <QVariantMap>

class DemoSettings;
class DemoWindow;
class MenuTreeWidget;
class QAction;
class QMenu;

namespace ui {
class CommandsRegistry;
}

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

private:
    MenuTreeWidget* m_tree;
    ui::QHotKeyPage* m_page;
};

/// Keeps the user's shortcuts between runs: a map from a command's key (its
/// id, or its object name) to its shortcuts in portable text.
namespace DemoShortcutSettings {

/// The settings key of the map.
extern const QString settingsKey;

/// "id:<n>" for a registered command, "name:<objectName>" for a named
/// action, empty for anything else (such actions are not kept).
QString commandKey(const QAction* action);
/// \a saved with the current shortcuts of \a changed merged in.
QVariantMap merge(QVariantMap saved, const QList<QAction*>& changed);
/// Gives the actions under \a menu the shortcuts \a saved holds for them;
/// returns how many actions were changed.
int restore(const QVariantMap& saved, QMenu* menu);

} // namespace DemoShortcutSettings

/// The demo's glue: the Tools command that opens the window, and the saved
/// shortcuts applied on start.
namespace DemoShortcuts {

/// Registers "Keyboard Shortcuts…" under \a id; running it opens the window
/// over the window's command menu.
QAction* registerCommand(ui::CommandsRegistry* registry, DemoWindow* window, int id);
/// Opens the window (application modal, deleted when closed) over \a commands.
/// On OK the edits go to the actions and into \a settings.
DemoShortcutsDialog* open(QMenu* commands, DemoSettings& settings, QWidget* parent);
/// Gives the commands under \a commands the shortcuts kept in \a settings;
/// returns how many changed.
int restore(const DemoSettings& settings, QMenu* commands);

} // namespace DemoShortcuts
