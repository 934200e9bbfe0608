#pragma once

class DemoCommands;
class QMenu;
class QWidget;

namespace Qtitan {
class RibbonBar;
}

namespace demo {

/// Builds the demo's ribbon from its commands: the File system menu and the
/// Home, Insert and View pages. @p panelsMenu and @p styleMenu open from
/// buttons of the View page.
Qtitan::RibbonBar* createRibbon(DemoCommands* commands, QMenu* panelsMenu, QMenu* styleMenu, QWidget* parent);

} // namespace demo
