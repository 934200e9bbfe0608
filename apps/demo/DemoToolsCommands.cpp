#include "DemoToolsCommands.h"

#include "DemoAutoSave.h"
#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoMenus.h"
#include "DemoShortcutsDialog.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

namespace {

using C = DemoCommands;
using G = IconPainter;
using T = DemoToolsCommands;

void addToolsCommands(DemoCommands& c)
{
    c.add(C::ToolsWordCount, G::WordCount, T::tr("&Word Count"), QKeySequence(T::tr("Ctrl+Shift+C")),
          T::tr("Count the words of the document"));
    c.add(C::ToolsSortLines, G::SortLines, T::tr("&Sort Lines"), QKeySequence(T::tr("F9")),
          T::tr("Sort the selected paragraphs alphabetically"));
    c.add(C::ToolsTrimSpaces, G::TrimSpaces, T::tr("&Trim Trailing Spaces"), QKeySequence(),
          T::tr("Remove blanks at the end of lines"));
    c.add(C::ToolsAutoSave, G::AutoSave, T::tr("&Auto Save"), QKeySequence(),
          T::tr("Save documents that have a file every 30 seconds"), true);
    c.add(C::ToolsKeyboardShortcuts, G::Keyboard, T::tr("&Keyboard Shortcuts…"), QKeySequence(),
          T::tr("Change the key combinations of the commands"));
    c.add(C::ToolsCustomize, G::Customize, T::tr("&Customize…"), QKeySequence(),
          T::tr("Arrange the ribbon, the quick access bar and the toolbars"));
}

void countWords(DemoWindow* window, DemoDocument* doc)
{
    QString scope = T::tr("document");
    int words = doc->wordCount();
    if (doc->hasSelection()) {
        words = DemoDocument::countWords(doc->textCursor().selectedText());
        scope = T::tr("selection");
    }
    window->information(T::tr("Word Count"), T::tr("The %1 has %n word(s).", nullptr, words).arg(scope));
}

} // namespace

void DemoToolsCommands::registerCommands(DemoCommands& c)
{
    addToolsCommands(c);
    DemoWindow* window = c.window();
    c.onDocument(C::ToolsWordCount, [window](DemoDocument* doc) { countWords(window, doc); });
    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    c.onDocument(C::ToolsSortLines, [](DemoDocument* doc) { doc->sortLines(); }, editable);
    c.onDocument(C::ToolsTrimSpaces, [window](DemoDocument* doc) {
        window->showMessage(tr("%n line(s) trimmed", nullptr, doc->trimTrailingSpaces()));
    }, editable);
    DemoAutoSave* autoSave = c.autoSave();
    c.registry()->ConnectCommand(C::ToolsAutoSave, [autoSave] { autoSave->setOn(!autoSave->isOn()); });
    c.registry()->ConnectCommandUI(C::ToolsAutoSave,
                                   [autoSave](ui::CommandState& state) { state.setChecked(autoSave->isOn()); });
    c.registry()->ConnectCommand(C::ToolsKeyboardShortcuts, [&c, window] {
        DemoShortcutsDialog::editShortcuts(c.menus().root(), window->settings(), window);
    });
    c.registry()->ConnectCommand(C::ToolsCustomize, [window] { window->customize(); });
}
