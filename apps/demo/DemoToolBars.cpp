#include "DemoToolBars.h"

#include "DemoCommands.h"
#include "DemoWindow.h"

#include <tessaro/RibbonControls.h>

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

const QString DemoToolBars::settingsKey = QStringLiteral("toolbars/contents");

namespace {

const QString nameKey = QStringLiteral("name");
const QString titleKey = QStringLiteral("title");
const QString enabledKey = QStringLiteral("enabled");
const QString entriesKey = QStringLiteral("entries");
const QString idKey = QStringLiteral("id");
const QString styleKey = QStringLiteral("style");
const QString typeKey = QStringLiteral("type");
const QString childrenKey = QStringLiteral("children");

const QString separatorId = QStringLiteral("-");
const QString groupId = QStringLiteral("group");
const QString commandPrefix = QStringLiteral("cmd.");
const QString windowPrefix = QStringLiteral("toolbar.");

// The id of a command or of one of the window's own actions; empty for others.
QString actionId(DemoWindow& window, QAction* action)
{
    if (action->isSeparator())
        return separatorId;
    const int id = action->data().toInt();
    if (id > 0 && window.commands()->action(id) == action)
        return commandPrefix + QString::number(id);
    if (action->objectName().startsWith(windowPrefix) && action->parent() == &window)
        return action->objectName();
    return QString();
}

QAction* actionOf(DemoWindow& window, const QString& id)
{
    if (id.startsWith(commandPrefix)) {
        const int command = id.mid(commandPrefix.size()).toInt();
        return command > 0 ? window.commands()->action(command) : nullptr;
    }
    if (id.startsWith(windowPrefix))
        return window.findChild<QAction*>(id, Qt::FindDirectChildrenOnly);
    return nullptr;
}

QToolButton* buttonOf(QToolBar* toolBar, QAction* action)
{
    return qobject_cast<QToolButton*>(toolBar->widgetForAction(action));
}

QStringList childIds(DemoWindow& window, const QMenu* menu)
{
    QStringList ids;
    for (QAction* child : menu->actions()) {
        const QString id = actionId(window, child);
        if (!id.isEmpty())
            ids << id;
    }
    return ids;
}

QVariantMap entryOf(DemoWindow& window, QToolBar* toolBar, QAction* action)
{
    QVariantMap entry;
    const bool group = !action->isSeparator() && action->menu() && actionId(window, action).isEmpty();
    entry.insert(idKey, group ? groupId : actionId(window, action));
    if (QToolButton* button = buttonOf(toolBar, action))
        entry.insert(styleKey, int(button->toolButtonStyle()));
    if (group) {
        entry.insert(typeKey, int(ui::getGroupButtonType(buttonOf(toolBar, action))));
        entry.insert(childrenKey, childIds(window, action->menu()));
    }
    return entry;
}

QVariantMap toolBarOf(DemoWindow& window, QToolBar* toolBar)
{
    QVariantList entries;
    for (QAction* action : toolBar->actions()) {
        const QVariantMap entry = entryOf(window, toolBar, action);
        if (!entry.value(idKey).toString().isEmpty())
            entries << entry;
    }
    return {{nameKey, toolBar->objectName()},
            {titleKey, toolBar->windowTitle()},
            {enabledKey, !toolBar->testAttribute(Qt::WA_ForceDisabled)},
            {entriesKey, entries}};
}

// Takes everything off the toolbar; what was made for it (separators, groups
// and their menus) goes, commands stay with their owners.
void clear(QToolBar* toolBar)
{
    for (QAction* action : toolBar->actions()) {
        toolBar->removeAction(action);
        if (action->parent() != toolBar)
            continue;
        if (QMenu* menu = action->menu(); menu && menu->parent() == toolBar)
            delete menu;
        delete action;
    }
}

QAction* groupAction(DemoWindow& window, QToolBar* toolBar, const QStringList& children)
{
    auto* group = new QAction(toolBar);
    auto* menu = new QMenu(toolBar);
    for (const QString& id : children) {
        if (id == separatorId)
            menu->addSeparator();
        else if (QAction* child = actionOf(window, id))
            menu->addAction(child);
    }
    group->setMenu(menu);
    return group;
}

void addEntry(DemoWindow& window, QToolBar* toolBar, const QVariantMap& entry)
{
    const QString id = entry.value(idKey).toString();
    QAction* action = nullptr;
    if (id == separatorId)
        action = toolBar->addSeparator();
    else if (id == groupId)
        action = groupAction(window, toolBar, entry.value(childrenKey).toStringList());
    else
        action = actionOf(window, id);
    if (!action)
        return;
    if (!action->isSeparator() && !toolBar->actions().contains(action))
        toolBar->addAction(action);
    QToolButton* button = buttonOf(toolBar, action);
    if (button && entry.contains(styleKey))
        button->setToolButtonStyle(Qt::ToolButtonStyle(qBound(0, entry.value(styleKey).toInt(), 4)));
    if (button && id == groupId)
        ui::setGroupButtonType(button, ui::GroupButtonType(qBound(0, entry.value(typeKey).toInt(), 2)));
}

QToolBar* toolBarNamed(DemoWindow& window, const QString& name, const QString& title)
{
    for (QToolBar* toolBar : window.toolBars()) {
        if (toolBar->objectName() == name)
            return toolBar;
    }
    QToolBar* toolBar = window.addToolBar(title);
    toolBar->setObjectName(name);
    return toolBar;
}

} // namespace

QVariant DemoToolBars::save(DemoWindow& window)
{
    QVariantList toolBars;
    for (QToolBar* toolBar : window.toolBars())
        toolBars << toolBarOf(window, toolBar);
    return toolBars;
}

void DemoToolBars::restore(DemoWindow& window, const QVariant& state)
{
    if (state.userType() != QMetaType::QVariantList)
        return;
    const QVariantList toolBars = state.toList();
    QStringList names;
    for (const QVariant& value : toolBars) {
        const QString name = value.toMap().value(nameKey).toString();
        if (name.isEmpty() || names.contains(name))
            return;
        names << name;
    }
    for (QToolBar* toolBar : window.toolBars()) {
        if (!names.contains(toolBar->objectName()))
            delete toolBar;
    }
    for (const QVariant& value : toolBars) {
        const QVariantMap map = value.toMap();
        QToolBar* toolBar = toolBarNamed(window, map.value(nameKey).toString(), map.value(titleKey).toString());
        toolBar->setWindowTitle(map.value(titleKey).toString().left(255));
        toolBar->setEnabled(map.value(enabledKey, true).toBool());
        clear(toolBar);
        for (const QVariant& entry : map.value(entriesKey).toList())
            addEntry(window, toolBar, entry.toMap());
    }
}
