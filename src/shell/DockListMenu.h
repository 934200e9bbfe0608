#pragma once

#include <tessaro/DynamicMenu.h>

class QMainWindow;

namespace ui {

/// The "Panels" menu: lists the dock widgets of a main window with their
/// show/hide toggles, rebuilt each time the menu opens.
///
/// Docks are listed in creation order; a dock that is in no dock area
/// (for example after QMainWindow::removeDockWidget()) is left out.
///
/// @code
/// viewMenu->addMenu(new ui::DockListMenu(mainWindow));
/// @endcode
class TESSARO_EXPORT DockListMenu : public DynamicMenu
{
    Q_OBJECT
public:
    /// Creates the menu for @p window, which also becomes its parent.
    explicit DockListMenu(QMainWindow* window);
    ~DockListMenu() override;

private:
    void updateContents() override;
};

} // namespace ui
