#include "DemoCustomizeHandler.h"

#include "DemoCommands.h"
#include "DemoMenus.h"
#include "DemoSettings.h"
#include "DemoWindow.h"

#include <tessaro/RibbonBar.h>

DemoCustomizeHandler::DemoCustomizeHandler(DemoWindow* window)
    : m_window(window)
{
}

QMenu* DemoCustomizeHandler::menu()
{
    return m_window->commands()->menus().root();
}

ui::RibbonBar* DemoCustomizeHandler::ribbon()
{
    return qobject_cast<ui::RibbonBar*>(m_window->ribbonBar());
}

QList<QToolBar*> DemoCustomizeHandler::toolBars() const
{
    return m_window->toolBars();
}

void DemoCustomizeHandler::applyLayout()
{
    DemoCustomLayout::of(*m_window).store(m_window->settings());
}

void DemoCustomizeHandler::resetLayout()
{
    m_window->defaultLayout().applyTo(*m_window);
}

KeyValueStorage* DemoCustomizeHandler::settings() const
{
    return &m_window->settings().storage();
}
