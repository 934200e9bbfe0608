#include "DemoClassicMenuBar.h"

#include <tessaro/MenuBar.h>

#include <QMainWindow>
#include <QMenu>

namespace demo {

ui::MenuBar* installClassicMenuBar(QMainWindow* window, const QList<QMenu*>& menus,
                                   const QList<QAction*>& cornerActions)
{
    auto* bar = new ui::MenuBar(window);
    for (QMenu* menu : menus)
        bar->addAction(menu->menuAction());
    for (QAction* action : cornerActions)
        bar->addRightCornerAction(action);
    window->setMenuWidget(bar);
    return bar;
}

} // namespace demo
