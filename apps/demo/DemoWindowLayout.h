#pragma once

#include <QString>

class DemoSettings;
class DemoWindow;

/// What the user arranges in the demo's window, kept in the settings between
/// runs: the window's geometry, where its tool bars and panels stand (kept
/// apart for the ribbon and for the classic menu bar, which start with
/// different tool bars), what the ribbon, its quick access bar and the tool
/// bars hold (DemoCustomLayout), and the ribbon's minimised state.
///
/// The style and the shortcuts are kept where the user chooses them
/// (DemoStyles, DemoShortcutSettings); reset() forgets those as well, so that
/// --reset-layout starts the window exactly as built.
class DemoWindowLayout
{
public:
    static const QString geometryKey;
    static const QString ribbonWindowStateKey;
    static const QString classicWindowStateKey;
    static const QString ribbonMinimizedKey;

    /// Gives the window what the settings kept, or its first-start size.
    static void restore(DemoWindow& window);
    /// Writes the window's arrangement to its settings.
    static void save(DemoWindow& window);
    /// Forgets everything the user arranged: geometry, tool bars, panels,
    /// style, ribbon, quick access bar, minimised state and shortcuts.
    static void reset(DemoSettings& settings);
};
