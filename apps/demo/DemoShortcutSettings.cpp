#include "DemoShortcutSettings.h"

#include "DemoSettings.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QSet>

#include <functional>

namespace {

void walk(QMenu* menu, QSet<QMenu*>& seen, const std::function<void(QAction*)>& visit)
{
    if (seen.contains(menu))
        return;
    seen.insert(menu);
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (QMenu* sub = action->menu())
            walk(sub, seen, visit);
        else
            visit(action);
    }
}

} // namespace

namespace DemoShortcutSettings {

const QString settingsKey = QStringLiteral("keyboardShortcuts");

QString commandKey(const QAction* action)
{
    bool ok = false;
    const int id = action->data().toInt(&ok);
    if (ok && id > 0)
        return QStringLiteral("id:%1").arg(id);
    if (!action->objectName().isEmpty())
        return QStringLiteral("name:") + action->objectName();
    return QString();
}

QVariantMap merge(QVariantMap saved, const QList<QAction*>& changed)
{
    for (const QAction* action : changed) {
        const QString key = commandKey(action);
        if (key.isEmpty())
            continue;
        QStringList texts;
        for (const QKeySequence& sequence : action->shortcuts())
            texts << sequence.toString(QKeySequence::PortableText);
        saved.insert(key, texts);
    }
    return saved;
}

int restore(const QVariantMap& saved, QMenu* menu)
{
    if (!menu || saved.isEmpty())
        return 0;
    int count = 0;
    QSet<QMenu*> seen;
    walk(menu, seen, [&saved, &count](QAction* action) {
        const auto it = saved.constFind(commandKey(action));
        if (action->isSeparator() || it == saved.cend())
            return;
        QList<QKeySequence> shortcuts;
        for (const QString& text : it.value().toStringList()) {
            const QKeySequence sequence(text, QKeySequence::PortableText);
            if (!sequence.isEmpty())
                shortcuts << sequence;
        }
        if (action->shortcuts() != shortcuts) {
            action->setShortcuts(shortcuts);
            ++count;
        }
    });
    return count;
}

void keep(DemoSettings& settings, const QList<QAction*>& changed)
{
    if (changed.isEmpty())
        return;
    settings.setValue(settingsKey, merge(settings.value(settingsKey).toMap(), changed));
}

int restore(const DemoSettings& settings, QMenu* commands)
{
    return restore(settings.value(settingsKey).toMap(), commands);
}

} // namespace DemoShortcutSettings
