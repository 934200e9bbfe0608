#pragma once

class DemoCommands;
class QMenu;
class QWidget;

namespace ui {
class RibbonBar;
}

namespace demo {

/// Builds the demo's ribbon from its commands, offering every command of the
/// menus: the system menu with the File commands (Recent Files as a submenu)
/// and Options (the keyboard shortcuts window) and Exit in its bottom bar;
/// the Home, Insert, View, Tools and Help pages, which show every kind of
/// button (large and small, group commands of the three kinds, a separator,
/// the font family and size boxes); and the quick access bar. @p panelsMenu
/// and @p styleMenu open from buttons of the View page.
ui::RibbonBar* createRibbon(DemoCommands* commands, QMenu* panelsMenu, QMenu* styleMenu, QWidget* parent);

} // namespace demo
