#pragma once

#include <QString>
#include <QVariant>

class DemoWindow;

/// The demo's classic toolbars as the user arranges them in Customize: which
/// toolbars there are, in order, with their titles, whether each is enabled,
/// and their commands, separators and command groups with each button's
/// style. QMainWindow::saveState() keeps only where toolbars stand; this keeps
/// what they hold, as a value the settings store.
///
/// Entries name commands "cmd.<id>" and the window's own actions (the font
/// family box) by their object name "toolbar.<name>"; anything else a toolbar
/// may hold is not kept.
class DemoToolBars
{
public:
    /// The settings key of the kept toolbars.
    static const QString settingsKey;

    /// The window's toolbars (DemoWindow::toolBars()) as a value.
    static QVariant save(DemoWindow& window);
    /// Makes the window's toolbars those of \a state: toolbars it does not
    /// name are deleted, the missing ones are made and docked, and each gets
    /// its title, its enabled state and its entries. An invalid or malformed
    /// \a state changes nothing.
    static void restore(DemoWindow& window, const QVariant& state);
};
