#include "DemoRibbonSerializer.h"

#include "DemoCommands.h"

#include <tessaro/RibbonBar.h>

#include <QAction>

namespace demo {

// Layouts kept by builds whose ribbon lacked commands of the menus are set aside.
const QString DemoRibbonSerializer::layoutKey = QStringLiteral("ribbon/layout2");
const QString DemoRibbonSerializer::quickBarKey = QStringLiteral("ribbon/quickBar");

namespace {

const QString commandPrefix = QStringLiteral("cmd.");
const QString ribbonPrefix = QStringLiteral("ribbon.");

} // namespace

DemoRibbonSerializer::DemoRibbonSerializer(ui::RibbonBar* ribbon, DemoCommands* commands)
    : ui::RibbonSerializer(ribbon)
    , m_ribbon(ribbon)
    , m_commands(commands)
{
}

QString DemoRibbonSerializer::getActionID(QAction* action)
{
    const int id = action->data().toInt();
    if (id > 0 && m_commands->action(id) == action)
        return commandPrefix + QString::number(id);
    if (action->objectName().startsWith(ribbonPrefix) && action->parent() == m_ribbon)
        return action->objectName();
    return QString();
}

QAction* DemoRibbonSerializer::getAction(const QString& id) const
{
    if (id.startsWith(commandPrefix)) {
        bool ok = false;
        const int command = id.mid(commandPrefix.size()).toInt(&ok);
        return ok && command > 0 ? m_commands->action(command) : nullptr;
    }
    if (id.startsWith(ribbonPrefix))
        return m_ribbon->findChild<QAction*>(id, Qt::FindDirectChildrenOnly);
    return nullptr;
}

} // namespace demo
