#pragma once

#include <QList>
#include <QString>

class QMainWindow;
class QMenu;

namespace ui {
class QuickSearchWidget;
}

namespace demo {

/// Creates the quick search box over every command of @p menus (the menu-bar
/// categories) and puts it into @p window with placeQuickSearch().
ui::QuickSearchWidget* createQuickSearch(QMainWindow* window, const QList<QMenu*>& menus);

/// Puts @p box at the right end of the ribbon's tab row when the window's menu
/// widget is a ribbon bar, else at the right end of its menu bar, else in a
/// tool bar of its own. Call it again after the menu widget changes.
void placeQuickSearch(QMainWindow* window, ui::QuickSearchWidget* box);

} // namespace demo
