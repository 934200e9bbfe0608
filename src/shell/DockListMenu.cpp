#include "DockListMenu.h"

#include "TessaroTranslate_p.h"

#include <QDockWidget>
#include <QMainWindow>

namespace ui {

DockListMenu::DockListMenu(QMainWindow* window)
    : DynamicMenu(TESSARO_TR("DockListMenu.cpp", "Панели"), window)
{
}

DockListMenu::~DockListMenu() = default;

void DockListMenu::updateContents()
{
    clear();
    auto* window = qobject_cast<QMainWindow*>(parentWidget());
    if (!window)
        return;
    const QList<QDockWidget*> docks = window->findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks) {
        auto* owner = qobject_cast<QMainWindow*>(dock->parentWidget());
        if (!owner)
            continue;
        if (owner->dockWidgetArea(dock) != Qt::NoDockWidgetArea)
            addAction(dock->toggleViewAction());
    }
}

} // namespace ui
