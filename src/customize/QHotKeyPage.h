#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QKeySequence>
#include <QList>
#include <QMap>
#include <QWidget>

class QAction;
class QtKeySequenceEdit;

namespace Ui {
class QHotKeyPage;
}

namespace ui {

/// Editor of the keyboard shortcuts of one command at a time.
///
/// The page works on a shortcut table (command -> its shortcuts, in the order
/// entered) handed over with setShortcuts(). It lists the shortcuts of the
/// current command, captures a new combination, shows which other command
/// already owns that combination (and then refuses it), and adds or deletes
/// entries. It never writes a shortcut back to an action: read the edited
/// table with shortcuts() and apply it yourself.
///
/// @code
/// ui::QHotKeyPage* page = new ui::QHotKeyPage(panel);   // fills panel
/// page->setShortcuts(table);
/// page->setAction(command);
/// // ... after the user confirmed:
/// const auto edited = page->shortcuts();
/// for (auto it = edited.cbegin(); it != edited.cend(); ++it)
///     it.key()->setShortcuts(it.value());
/// @endcode
class TESSARO_EXPORT QHotKeyPage : public QWidget
{
    Q_OBJECT

public:
    /// The shortcut table: each command's shortcuts, ordered by action pointer.
    using ShortcutTable = QMap<QAction*, QList<QKeySequence>>;

    /// Builds the page and puts it into a new zero-margin vertical layout on
    /// @p parent, so it fills the parent (or into the parent's layout if it has one).
    explicit QHotKeyPage(QWidget* parent);
    ~QHotKeyPage() override;

    /// Replaces the table and refreshes the current command's list.
    void setShortcuts(const ShortcutTable& shortcuts);
    /// The table as edited so far.
    ShortcutTable shortcuts() const;

    /// Makes @p action (may be null) the current command and lists its shortcuts.
    void setAction(QAction* action);
    /// The current command, or null.
    QAction* action() const;

public slots:
    /// Adds the typed combination to the current command.
    void addShortcut();
    /// Deletes the selected combination of the current command.
    void delShortcut();
    /// Refreshes the owner field and the enabled state of the buttons.
    void updateGUI();

private:
    Ui::QHotKeyPage* m_ui;
    QAction* m_action;
    QtKeySequenceEdit* m_edit;
    ShortcutTable m_shortcuts;
};

} // namespace ui
