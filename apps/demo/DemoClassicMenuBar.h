#pragma once

#include <QList>

class QAction;
class QMainWindow;
class QMenu;

namespace ui {
class MenuBar;
}

namespace demo {

/// Puts a ui::MenuBar holding @p menus into @p window (as its menu widget),
/// with @p cornerActions as small buttons at its right end.
ui::MenuBar* installClassicMenuBar(QMainWindow* window, const QList<QMenu*>& menus,
                                   const QList<QAction*>& cornerActions);

} // namespace demo
