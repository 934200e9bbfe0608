#include "DemoWelcome.h"

QString DemoWelcome::title()
{
    return tr("Welcome");
}

QString DemoWelcome::html()
{
    return tr(
        "<h1>Welcome to the Tessaro demo</h1>"
        "<p>This window is a small rich-text editor built on the <b>Tessaro</b> command registry. "
        "Every menu entry and toolbar button is a <i>command</i>: an id bound to an action, a run handler "
        "and an update handler that enables, checks or renames it whenever the event loop wakes up.</p>"
        "<h3>Things to try</h3>"
        "<ul>"
        "<li>Select a word: <b>Cut</b> and <b>Copy</b> become available, and <b>Bold</b> shows the word's format.</li>"
        "<li>Type something, then open the <b>Edit</b> menu: Undo tells what it will undo.</li>"
        "<li><b>View &rsaquo; Zoom</b> and <b>Format &rsaquo; Font Size</b> are id ranges served by one handler each.</li>"
        "<li><b>View &rsaquo; Hide Ruler</b> renames itself to Show Ruler once the ruler is hidden.</li>"
        "</ul>"
        "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"60%\">"
        "<tr><th>Menu</th><th>Examples</th></tr>"
        "<tr><td>File</td><td>New, Open, Recent Files, Export, Properties</td></tr>"
        "<tr><td>Insert</td><td>Date, Table, Image Placeholder, Symbol</td></tr>"
        "<tr><td>Format</td><td>Bold, Alignment, Font Size, Text Colour</td></tr>"
        "</table>"
        "<p>Settings such as the window geometry, zoom and recent files are kept in a key/value store "
        "in the user's configuration folder.</p>");
}
