#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QWidget>

class QAction;
class QMenuBar;

namespace ui {

class RightCornerWidget;

/// A menu bar with a strip of small tool buttons at its right end.
///
/// The widget lays out a real QMenuBar and a corner tool bar side by side;
/// the corner strip paints itself as the menu bar's empty area so that both
/// read as a single bar. Put it in a window with QMainWindow::setMenuWidget().
///
/// @code
/// auto* bar = new ui::MenuBar(&window);
/// bar->addAction(fileMenu->menuAction());
/// bar->addAction(viewMenu->menuAction());
/// bar->addRightCornerAction(helpAction);   // a 16x16 tool button at the right end
/// window.setMenuWidget(bar);
/// @endcode
class TESSARO_EXPORT MenuBar : public QWidget
{
    Q_OBJECT
public:
    /// Creates an empty menu bar with an empty corner strip.
    explicit MenuBar(QWidget* parent = nullptr);
    /// Creates a menu bar holding the actions (menus) of @p source, in order.
    /// @p source itself is left untouched.
    MenuBar(QMenuBar* source, QWidget* parent = nullptr);
    /// Clears the menu bar before the widget goes.
    ~MenuBar() override;

    /// Adds an action (usually a menu's action) to the menu bar.
    void addAction(QAction* action);
    /// Adds an action to the right-corner strip, shown as a 16x16 tool button.
    void addRightCornerAction(QAction* action);
    /// Removes every action from the menu bar; the right-corner actions stay.
    void clear();

private:
    QMenuBar* m_menuBar;
    RightCornerWidget* m_rightCornerWidget;
};

} // namespace ui
