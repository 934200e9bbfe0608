#pragma once

#include <tessaro/TessaroGlobal.h>
#include <tessaro/CommandState.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QIcon>

#include <functional>
#include <map>
#include <vector>

class QAction;

namespace ui {

/// Binds integer command ids to QActions and to handler functions.
///
/// Every command gets one QAction, owned by the registry, carrying its id in
/// QAction::data(). Run handlers and update handlers are kept in two tables
/// keyed by id ranges. Triggering an action runs its command; every wake-up of
/// the event loop refreshes every action through its update handler. Ids below
/// 1 are never run or refreshed.
///
/// A refresh pass walks the action list in order and refreshes each action
/// once. An update handler may change the list while the pass runs:
/// - a command removed during the pass (removeCommand(), clearCommands()) is
///   not refreshed after its removal;
/// - a command added during the pass is appended to the list and refreshed in
///   that same pass, after the commands that were listed before it;
/// - every other command is refreshed exactly once: none is skipped or
///   repeated because the list changed around it.
/// A handler that lets the event loop run starts a nested pass of its own; the
/// outer pass then goes on by the same rules.
///
/// Create the registry on the GUI thread after the QApplication: it connects to
/// the awake() signal of the thread's event dispatcher.
///
/// @code
/// auto* commands = new ui::CommandsRegistry(&window);
/// QAction* save = commands->addCommand(saveIcon, QStringLiteral("Save"), ID_SAVE);
/// fileMenu->addAction(save);
/// commands->ConnectCommand(ID_SAVE, [&document] { document.save(); });
/// commands->ConnectCommandUI(ID_SAVE, [&document](ui::CommandState& state) {
///     state.setEnabled(document.isModified());
/// });
/// @endcode
class TESSARO_EXPORT CommandsRegistry : public QObject
{
    Q_OBJECT

public:
    /// Creates an empty registry and hooks it to the current thread's event dispatcher.
    explicit CommandsRegistry(QObject* parent = nullptr);
    /// Releases the handler tables; the actions go with the registry's children.
    ~CommandsRegistry() override;

    /// Creates an action for command @p id with @p icon and @p text (also its
    /// icon text), connects it to the registry and appends it to the action list.
    /// Duplicate ids are accepted: the new action shares the handlers.
    QAction* addCommand(const QIcon& icon, const QString& text, int id);
    /// addCommand() without an icon.
    QAction* addCommand(const QString& text, int id);
    /// addCommand() that also marks the action with the @c persistent property,
    /// so that clearCommands() keeps it.
    QAction* addPersistentCommand(const QIcon& icon, const QString& text, int id);
    /// addPersistentCommand() without an icon.
    QAction* addPersistentCommand(const QString& text, int id);

    /// Sets the run handler of the single command @p id.
    void ConnectCommand(int id, const std::function<void()>& handler);
    /// Sets the run handler of the ids from @p first to @p last (bounds in either
    /// order, inclusive). A handler already set for exactly this range is replaced.
    /// The handler receives the id that was run.
    void ConnectCommand(int first, int last, const std::function<void(int)>& handler);
    /// Sets the update handler of the single command @p id.
    void ConnectCommandUI(int id, const std::function<void(ui::CommandState&)>& handler);
    /// Sets the update handler of the ids from @p first to @p last (bounds in
    /// either order, inclusive), replacing one set for exactly this range.
    void ConnectCommandUI(int first, int last, const std::function<void(int, ui::CommandState&)>& handler);
    /// Removes from both tables the range that serves @p id: the whole range
    /// goes, even when @p id is only one id inside it.
    void DisconnectCommand(int id);

    /// Takes the first action with @p id out of the action list and disconnects
    /// it from the registry. The action is not deleted and the handlers stay.
    /// Safe in an update handler: see the class notes on refresh passes.
    void removeCommand(int id);
    /// Deletes (later) every action without a @c persistent property. Handlers
    /// stay. Safe in an update handler: see the class notes on refresh passes.
    void clearCommands();

    /// Runs the handler of @p id now, on the calling thread. Ids below 1 and ids
    /// without a handler are ignored; exceptions from the handler pass through.
    void RunCommand(int id);
    /// Runs the handler of @p id once control returns to the event loop.
    void PostRunCommand(int id);

    /// The registry's actions, in creation order.
    QList<QAction*> getActions() const;
    /// The first action of the list with command @p id, or null.
    QAction* getCommandAction(int id) const;

protected:
    /// Runs the commands posted by PostRunCommand().
    bool event(QEvent* event) override;
    /// Runs the command of @p action without checking whether it is enabled.
    void runAction(QAction* action);
    /// Calls the update handler of @p action, if its id has one.
    void updateAction(QAction* action);

private slots:
    void onCommand();
    void onUpdateUI();

private:
    // Upper bound first so that a lookup by (id, 0) lands on the smallest range
    // ending at or above id.
    struct Range
    {
        Range(int first, int last);
        int upper;
        int lower;
        bool operator<(const Range& other) const
        {
            return upper != other.upper ? upper < other.upper : lower < other.lower;
        }
    };

    using CommandHandler = std::function<void(int)>;
    using UpdateHandler = std::function<void(int, ui::CommandState&)>;

    template <typename Table>
    static typename Table::iterator lookup(Table& table, int id);

    void takeActionAt(int index);

    std::map<Range, CommandHandler> m_commands;
    std::map<Range, UpdateHandler> m_updates;
    QList<QAction*> m_actions;
    // Where each running refresh pass stands in m_actions (innermost last);
    // removals move them back so that no action is skipped or repeated.
    std::vector<int*> m_passPositions;
};

} // namespace ui
