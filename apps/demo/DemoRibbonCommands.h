#pragma once

class DemoCommands;
class QWidget;

namespace ui {
class RibbonBar;
}

namespace demo {

/// Puts on \a ribbon what shows its kinds of buttons: on the Home page a
/// Paste group command that always shows its first entry, a Text Color group
/// command that remembers the last colour, a separator and a font size box;
/// a Symbol menu button on the Insert page; a Tools page of large and small
/// buttons; the quick access bar; and the system menu with the File commands
/// and Options and Exit in its bottom bar. \a window parents the Options window.
void addRibbonCommands(ui::RibbonBar* ribbon, DemoCommands* commands, QWidget* window);

} // namespace demo
