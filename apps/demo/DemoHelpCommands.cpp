#include "DemoHelpCommands.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoFiles.h"
#include "DemoMenus.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QAction>
#include <QApplication>
#include <QMenu>

#include <functional>

namespace {

using C = DemoCommands;
using G = IconPainter;
using T = DemoHelpCommands;

// One table row per visible command of the menu, submenus walked into.
QString referenceRows(QMenu* menu, const QString& prefix)
{
    QString html;
    for (QAction* a : menu->actions()) {
        if (a->isSeparator() || !a->isVisible())
            continue;
        const QString text = prefix + a->text().remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0);
        if (a->menu()) {
            html += referenceRows(a->menu(), text + QStringLiteral(" \u203a "));
            continue;
        }
        html += QStringLiteral("<tr><td>%1</td><td><b>%2</b></td></tr>")
                    .arg(text.toHtmlEscaped(), a->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped());
    }
    return html;
}

void openKeyboardReference(DemoCommands& c)
{
    QString html = T::tr("<h2>Keyboard reference</h2><p>Every command of the demo, by menu.</p>");
    for (QMenu* menu : c.menus().categories()) {
        html += QStringLiteral("<h3>%1</h3><table cellpadding=\"3\">").arg(menu->title().remove(QLatin1Char('&')));
        html += referenceRows(menu, QString());
        html += QStringLiteral("</table>");
    }
    DemoDocument* doc = c.files()->newDocument();
    doc->setContent(html);
    doc->setUntitledTitle(T::tr("Keyboard Reference"));
    doc->setReadOnly(true);
}

} // namespace

void DemoHelpCommands::registerCommands(DemoCommands& c)
{
    c.add(C::HelpContents, G::Help, tr("&Keyboard Reference"), QKeySequence::HelpContents,
          tr("Open a document listing every command and its shortcut"), true);
    c.add(C::HelpAbout, G::About, tr("&About Tessaro Demo"), QKeySequence(), tr("Show the version"), true);
    c.add(C::HelpAboutQt, G::AboutQt, tr("About &Qt"), QKeySequence(), tr("Show the Qt version"), true);

    ui::CommandsRegistry* registry = c.registry();
    registry->ConnectCommand(C::HelpContents, [&c] { openKeyboardReference(c); });
    registry->ConnectCommand(C::HelpAbout, [registry, window = c.window()] {
        window->information(tr("About Tessaro Demo"),
                            tr("Tessaro Demo %1\n\nA sample host of the Tessaro library: %2 commands "
                               "registered in one command registry, with run and update handlers.")
                                .arg(QApplication::applicationVersion())
                                .arg(registry->getActions().size()));
    });
    registry->ConnectCommand(C::HelpAboutQt, [] { QApplication::aboutQt(); });
}
