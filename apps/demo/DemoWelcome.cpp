#include "DemoWelcome.h"

namespace {

enum Path { UndoPath, ZoomLevelsPath, FontSizesPath, RulerPath, ShortcutsPath, CustomizePath };

QString shown(const QStringList& path)
{
    return QStringLiteral("<b>%1</b>").arg(path.join(QStringLiteral(" &rsaquo; ")));
}

} // namespace

QString DemoWelcome::title()
{
    return tr("Welcome");
}

QList<QStringList> DemoWelcome::paths(bool classic)
{
    if (classic) {
        return {{tr("Edit"), tr("Undo")},
                {tr("View"), tr("Zoom")},
                {tr("Format"), tr("Font Size")},
                {tr("View"), tr("Hide Ruler")},
                {tr("Tools"), tr("Keyboard Shortcuts…")},
                {tr("Tools"), tr("Customize…")}};
    }
    return {{tr("Home"), tr("Undo"), tr("Undo")},
            {tr("View"), tr("Zoom"), tr("Zoom Level")},
            {tr("Home"), tr("Font"), tr("Font Size")},
            {tr("View"), tr("Show"), tr("Hide Ruler")},
            {tr("File"), tr("Options")},
            {tr("Tools"), tr("Customize"), tr("Customize…")}};
}

QString DemoWelcome::html(bool classic)
{
    const QList<QStringList> path = paths(classic);
    const QString where = classic ? tr("menu") : tr("ribbon");
    return tr("<h1>Welcome to the Tessaro demo</h1>"
              "<p>This window is a small rich-text editor built on the <b>Tessaro</b> command registry. "
              "Every %1 entry and toolbar button is a <i>command</i>: an id bound to an action, a run handler "
              "and an update handler that enables, checks or renames it whenever the event loop wakes up.</p>")
               .arg(where)
           + tr("<h3>Things to try</h3><ul>"
                "<li>Select a word: <b>Cut</b> and <b>Copy</b> become available, and <b>Bold</b> shows the "
                "word's format.</li>"
                "<li>Type something, then point at %1: its tool tip tells what it will undo.</li>"
                "<li>%2 and %3 are id ranges served by one handler each.</li>"
                "<li>%4 renames itself to Show Ruler once the ruler is hidden.</li>"
                "<li>Type a few letters of any command into the search box at the right of the status bar "
                "(<b>Ctrl+Q</b>) and pick it from the list.</li>"
                "<li>Give a command a new key in %5. The shortcuts, tool bars, panels, style and ribbon are "
                "kept for the next start; <b>--reset-layout</b> forgets them.</li>"
                "<li>%6</li></ul>")
                 .arg(shown(path.at(UndoPath)), shown(path.at(ZoomLevelsPath)), shown(path.at(FontSizesPath)),
                      shown(path.at(RulerPath)), shown(path.at(ShortcutsPath)),
                      (classic ? tr("Reshape the tool bars in %1: the window shows each change at once.")
                               : tr("Reshape the ribbon, the quick access bar and the tool bars in %1: the window "
                                    "shows each change at once."))
                          .arg(shown(path.at(CustomizePath))))
           + (classic ? tr("<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"60%\">"
                           "<tr><th>Menu</th><th>Examples</th></tr>"
                           "<tr><td>File</td><td>New, Open, Recent Files, Export, Properties</td></tr>"
                           "<tr><td>Insert</td><td>Date, Table, Image Placeholder, Symbol</td></tr>"
                           "<tr><td>Format</td><td>Font, Bold, Paragraph, Font Size, Text Colour</td></tr>"
                           "</table>")
                      : tr("<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"60%\">"
                           "<tr><th>Tab</th><th>Examples</th></tr>"
                           "<tr><td>Home</td><td>Paste, Font, Text Color, Paragraph, Find</td></tr>"
                           "<tr><td>Insert</td><td>Table, Image Placeholder, Date, Symbol</td></tr>"
                           "<tr><td>View</td><td>Panels, Toolbars, Style, Zoom Level</td></tr>"
                           "</table>"))
           + tr("<p>Settings such as the window geometry, zoom and recent files are kept in a key/value store "
                "in the user's configuration folder.</p>");
}
