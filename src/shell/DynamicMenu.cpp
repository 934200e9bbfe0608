#include <tessaro/DynamicMenu.h>

namespace ui {

DynamicMenu::DynamicMenu(QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &DynamicMenu::updateContents);
}

DynamicMenu::DynamicMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
    connect(this, &QMenu::aboutToShow, this, &DynamicMenu::updateContents);
}

DynamicMenu::~DynamicMenu() = default;

void DynamicMenu::updateContents()
{
    const QList<QAction*> entries = actions();
    for (QAction* action : entries) {
        QMenu* submenu = action->menu();
        if (!submenu)
            continue;
        // Nested dynamic menus fill themselves first so that their
        // emptiness is known before this menu shows.
        if (auto* dynamic = qobject_cast<DynamicMenu*>(submenu))
            dynamic->updateContents();
        action->setVisible(!submenu->isEmpty());
    }
}

} // namespace ui
