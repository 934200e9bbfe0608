#pragma once

class DemoCommands;
class QMenu;
class QWidget;

namespace ui {
class RibbonBar;
}

namespace demo {

/// Builds the demo's ribbon from its commands: the system menu with the File
/// commands and Options (the keyboard shortcuts window) and Exit in its bottom
/// bar; the Home, Insert, View and
/// Tools pages, which show every kind of button (large and small, group
/// commands of the three kinds, a separator and a font size box); and the quick
/// access bar. @p panelsMenu and @p styleMenu open from buttons of the View
/// page.
ui::RibbonBar* createRibbon(DemoCommands* commands, QMenu* panelsMenu, QMenu* styleMenu, QWidget* parent);

} // namespace demo
