#pragma once

#include <QByteArray>
#include <QVariant>

class DemoSettings;
class DemoWindow;

/// What the user reshapes in Customize: the ribbon, its quick access bar and
/// the classic toolbars, taken from a window as values so that it can be put
/// back (Cancel), returned to the first state (Reset) or kept in the settings.
class DemoCustomLayout
{
public:
    /// The window's layout as it is now (no ribbon in classic mode).
    static DemoCustomLayout of(DemoWindow& window);
    /// The layout kept in \a settings; parts never kept are empty.
    static DemoCustomLayout stored(const DemoSettings& settings);

    /// Gives the window this layout; empty parts leave theirs as they are.
    /// The ribbon keeps its current page where it still has it.
    void applyTo(DemoWindow& window) const;
    /// Keeps this layout in \a settings.
    void store(DemoSettings& settings) const;
    /// Forgets the layout kept in \a settings.
    static void forget(DemoSettings& settings);

    QByteArray ribbon;
    QByteArray quickBar;
    QVariant toolBars;
};
