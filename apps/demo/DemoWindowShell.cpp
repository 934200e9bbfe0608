// The window shell of the demo: style, document panels, the View menu's
// panels and styles, and the ribbon or the classic menu bar.

#include "DemoWindow.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoIcons.h"
#include "DemoRibbon.h"
#include "DemoSettings.h"
#include "DemoStyles.h"

#include <tessaro/DockListMenu.h>
#include <tessaro/MdiArea.h>
#include <tessaro/MenuBar.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QMenu>

void DemoWindow::applyInitialStyle(const demo::ShellOptions& shell)
{
    const int style = demo::initialStyle(shell, m_settings->value(demo::styleKey), getSupportedStyles());
    demo::applyStyle(style);
}

void DemoWindow::chooseStyle(int style)
{
    demo::applyStyle(style);
    m_settings->setValue(demo::styleKey, style);
    const QString label = demo::styleLabel(currentStyle());
    demo::appendLog(m_docks, tr("Style: %1").arg(label));
    showMessage(tr("Style: %1").arg(label));
}

void DemoWindow::createShell()
{
    demo::keepTabTextReadable(m_area);
    demo::activateCurrentOnShow(m_area);
    m_docks = demo::createDocks(this);
    demo::appendLog(m_docks, tr("Started with %1 (%2).")
                                 .arg(demo::styleLabel(currentStyle()))
                                 .arg(m_classic ? tr("classic menu bar") : tr("ribbon")));

    // The View menu lists the panels and the styles; both are rebuilt each time they open.
    m_panelsMenu = new ui::DockListMenu(this);
    m_panelsMenu->menuAction()->setProperty("isDynamic", true);
    m_styleMenu = new demo::StyleMenu(this, getSupportedStyles(), this);
    m_styleMenu->menuAction()->setProperty("isDynamic", true);
    connect(m_styleMenu, &demo::StyleMenu::styleChosen, this, &DemoWindow::chooseStyle);
    QMenu* view = m_commands->categoryMenu(DemoCommands::View);
    view->addSeparator();
    view->addMenu(m_panelsMenu);
    view->addMenu(m_styleMenu);

    if (m_classic) {
        QList<QAction*> corner;
        for (int id : {DemoCommands::ViewPreviousDocument, DemoCommands::ViewNextDocument, DemoCommands::FileClose,
                       DemoCommands::HelpContents}) {
            if (QAction* action = m_commands->action(id))
                corner << action;
        }
        demo::installClassicMenuBar(this, m_commands->categoryMenus(), corner);
    } else {
        // A menu shown by a ribbon button takes that button's action as its own,
        // so the ribbon gets menus of its own.
        auto* ribbonStyles = new demo::StyleMenu(this, getSupportedStyles(), this);
        connect(ribbonStyles, &demo::StyleMenu::styleChosen, this, &DemoWindow::chooseStyle);
        setRibbonBar(demo::createRibbon(m_commands, new ui::DockListMenu(this), ribbonStyles, this));
    }
}
