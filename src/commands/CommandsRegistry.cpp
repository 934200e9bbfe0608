#include <tessaro/CommandsRegistry.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QScopeGuard>
#include <QtCore/QVariant>
#include <QtWidgets/QAction>

#include <algorithm>

namespace {

// Registered once per process, when the library is loaded.
const QEvent::Type runCommandEventType = static_cast<QEvent::Type>(QEvent::registerEventType());

const char persistentProperty[] = "persistent";

class RunCommandEvent : public QEvent
{
public:
    explicit RunCommandEvent(int id)
        : QEvent(runCommandEventType)
        , m_id(id)
    {
    }

    int id() const { return m_id; }

private:
    int m_id;
};

int actionId(const QAction* action)
{
    // Runs for every action on every wake-up: skip the conversion machinery
    // for the int that addCommand() stores.
    const QVariant data = action->data();
    if (data.userType() == QMetaType::Int)
        return *static_cast<const int*>(data.constData());
    return static_cast<int>(data.toUInt());
}

} // namespace

namespace ui {

CommandsRegistry::Range::Range(int first, int last)
    : upper(std::max(first, last))
    , lower(std::min(first, last))
{
}

template <typename Table>
typename Table::iterator CommandsRegistry::lookup(Table& table, int id)
{
    // Only the first range ending at or above id is considered, even when a
    // later, wider one would contain it.
    const auto it = table.lower_bound(Range(id, 0));
    if (it != table.end() && it->first.lower <= id)
        return it;
    return table.end();
}

CommandsRegistry::CommandsRegistry(QObject* parent)
    : QObject(parent)
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
            this, &CommandsRegistry::onUpdateUI);
}

CommandsRegistry::~CommandsRegistry() = default;

QAction* CommandsRegistry::addCommand(const QIcon& icon, const QString& text, int id)
{
    auto* action = new QAction(icon, text, this);
    action->setIconText(text);
    action->setData(QVariant(id));
    connect(action, &QAction::triggered, this, &CommandsRegistry::onCommand);
    m_actions.append(action);
    return action;
}

QAction* CommandsRegistry::addCommand(const QString& text, int id)
{
    return addCommand(QIcon(), text, id);
}

QAction* CommandsRegistry::addPersistentCommand(const QIcon& icon, const QString& text, int id)
{
    QAction* action = addCommand(icon, text, id);
    action->setProperty(persistentProperty, QVariant(true));
    return action;
}

QAction* CommandsRegistry::addPersistentCommand(const QString& text, int id)
{
    return addPersistentCommand(QIcon(), text, id);
}

void CommandsRegistry::ConnectCommand(int id, const std::function<void()>& handler)
{
    ConnectCommand(id, id, [handler](int) { handler(); });
}

void CommandsRegistry::ConnectCommand(int first, int last, const std::function<void(int)>& handler)
{
    m_commands[Range(first, last)] = handler;
}

void CommandsRegistry::ConnectCommandUI(int id, const std::function<void(ui::CommandState&)>& handler)
{
    ConnectCommandUI(id, id, [handler](int, ui::CommandState& state) { handler(state); });
}

void CommandsRegistry::ConnectCommandUI(int first, int last,
                                        const std::function<void(int, ui::CommandState&)>& handler)
{
    m_updates[Range(first, last)] = handler;
}

void CommandsRegistry::DisconnectCommand(int id)
{
    const auto command = lookup(m_commands, id);
    if (command != m_commands.end())
        m_commands.erase(command);
    const auto update = lookup(m_updates, id);
    if (update != m_updates.end())
        m_updates.erase(update);
}

void CommandsRegistry::removeCommand(int id)
{
    QAction* action = getCommandAction(id);
    if (!action)
        return;
    for (int i = m_actions.size() - 1; i >= 0; --i) {
        if (m_actions.at(i) == action)
            takeActionAt(i);
    }
    QObject::disconnect(action, nullptr, this, nullptr);
}

void CommandsRegistry::takeActionAt(int index)
{
    m_actions.removeAt(index);
    for (int* position : m_passPositions) {
        if (index <= *position)
            --*position;
    }
}

void CommandsRegistry::clearCommands()
{
    const QList<QAction*> listed = m_actions;
    m_actions.clear();
    // keptThrough[i]: how many of the first i + 1 listed actions stay.
    std::vector<int> keptThrough(listed.size());
    for (int i = 0; i < listed.size(); ++i) {
        QAction* action = listed.at(i);
        // The mark's presence counts, not its value.
        if (action->property(persistentProperty).isValid())
            m_actions.append(action);
        else
            action->deleteLater();
        keptThrough[i] = m_actions.size();
    }
    for (int* position : m_passPositions) {
        if (*position >= 0)
            *position = keptThrough[*position] - 1;
    }
}

void CommandsRegistry::RunCommand(int id)
{
    if (id < 1)
        return;
    const auto it = lookup(m_commands, id);
    if (it == m_commands.end())
        return;
    // A copy, so that a handler may reconnect or disconnect its own range.
    const CommandHandler handler = it->second;
    handler(id);
}

void CommandsRegistry::PostRunCommand(int id)
{
    QCoreApplication::postEvent(this, new RunCommandEvent(id), Qt::NormalEventPriority);
}

QList<QAction*> CommandsRegistry::getActions() const
{
    return m_actions;
}

QAction* CommandsRegistry::getCommandAction(int id) const
{
    for (QAction* action : m_actions) {
        if (actionId(action) == id)
            return action;
    }
    return nullptr;
}

bool CommandsRegistry::event(QEvent* event)
{
    if (event->type() == runCommandEventType) {
        RunCommand(static_cast<RunCommandEvent*>(event)->id());
        return true;
    }
    return QObject::event(event);
}

void CommandsRegistry::runAction(QAction* action)
{
    RunCommand(actionId(action));
}

void CommandsRegistry::updateAction(QAction* action)
{
    const int id = actionId(action);
    if (id < 1)
        return;
    const auto it = lookup(m_updates, id);
    if (it == m_updates.end())
        return;
    const UpdateHandler handler = it->second;
    CommandState state(action);
    handler(id, state);
}

void CommandsRegistry::onCommand()
{
    auto* action = qobject_cast<QAction*>(sender());
    if (!action)
        return;
    // The update handler gets the last word on whether the command may run.
    updateAction(action);
    if (action->isEnabled())
        RunCommand(actionId(action));
}

void CommandsRegistry::onUpdateUI()
{
    // Indexed on the live list, so that commands added by a handler are
    // refreshed too; removals move the position back (takeActionAt(),
    // clearCommands()). Cleared actions are only deleted later.
    int position = 0;
    m_passPositions.push_back(&position);
    const auto passDone = qScopeGuard([this] { m_passPositions.pop_back(); });
    for (; position < m_actions.size(); ++position)
        updateAction(m_actions.at(position));
}

} // namespace ui
