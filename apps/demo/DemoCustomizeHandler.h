#pragma once

#include <tessaro/IMenuDataHandler.h>

class DemoWindow;

/// What the demo hands to the customize dialog: its command menu, its ribbon
/// (none in classic mode), its tool bars, and how the layout the user edits is
/// kept (in the demo's settings) or returned to the window's first state.
class DemoCustomizeHandler : public ui::IMenuDataHandler
{
public:
    explicit DemoCustomizeHandler(DemoWindow* window);

    QMenu* menu() override;
    ui::RibbonBar* ribbon() override;
    QList<QToolBar*> toolBars() const override;
    /// Keeps the ribbon, quick access bar and tool bars as they are now in the settings.
    void applyLayout() override;
    /// Gives the window its ribbon, quick access bar and tool bars as built.
    void resetLayout() override;
    KeyValueStorage* settings() const override;

private:
    DemoWindow* m_window;
};
