#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

class DemoSettings;
class QAction;
class QMenu;

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

/// Merges the current shortcuts of \a changed into the map kept in \a settings.
void keep(DemoSettings& settings, const QList<QAction*>& changed);
/// Gives the commands under \a commands the shortcuts kept in \a settings;
/// returns how many changed.
int restore(const DemoSettings& settings, QMenu* commands);

} // namespace DemoShortcutSettings
