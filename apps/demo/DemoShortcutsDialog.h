#pragma once

#include <QHotKeyPage.h>

#include <QDialog>
#include <QVariantMap>

class MenuTreeWidget;
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
