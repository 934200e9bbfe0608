#pragma once

#include <tessaro/MainWindow.h>

#include <QIcon>
#include <QList>
#include <QStringList>

#include <functional>
#include <vector>

class QAction;
class QMainWindow;
class QMdiArea;
class QMenu;

namespace ui {
class MenuBar;
}

namespace demo {

/// The shell options of the command line.
struct ShellOptions
{
    bool classic = false;   ///< --classic: a menu bar instead of the ribbon
    bool hasStyle = false;  ///< --style VALUE was given
    int style = -1;         ///< its value, a ui::MainWindow::Style
    QString error;          ///< set when an option could not be read
};

/// Reads --classic and --style VALUE (also --style=VALUE) from the arguments.
ShellOptions parseShellOptions(const QStringList& arguments);

/// Reads the shell options and removes them from argv, before QApplication
/// sees them (it would take --style for the name of a Qt style).
ShellOptions takeShellOptions(int& argc, char** argv);

/// The settings key under which the chosen style is kept.
extern const QString styleKey;

/// Picks the style to start with: the command line's, else the saved one,
/// else Office 2016 Colorful; values the window does not offer are skipped.
int initialStyle(const ShellOptions& options, const QVariant& saved,
                 const std::vector<ui::MainWindow::Style>& supported);

/// A round "?" icon for the help command.
QIcon helpIcon();

/// Window commands over an MDI area.
struct WindowActions
{
    QAction* closeActive = nullptr;
    QAction* closeAll = nullptr;
    QAction* next = nullptr;
    QAction* previous = nullptr;

    QList<QAction*> all() const { return {previous, next, closeActive, closeAll}; }
    /// The ones with icons, for the corner of the classic menu bar.
    QList<QAction*> corner() const { return {previous, next, closeActive}; }
};

/// Creates the window commands for @p area; they are enabled only while
/// the area holds documents. The area stays in its tabbed view.
WindowActions createWindowActions(QMdiArea* area, QObject* parent);

/// Gives the tabs of @p area dark text for good: their sheet paints them
/// light grey and white whatever the style, which dark themes would write on
/// in light text.
void keepTabTextReadable(QMdiArea* area);

/// Sub-windows cannot be activated while the area is hidden, and a window
/// that becomes active does not activate one by itself: once the area shows
/// or its window is activated, this activates the sub-window that was made
/// current last (or the newest one).
void activateCurrentOnShow(QMdiArea* area);

/// Puts a ui::MenuBar holding @p menus into @p window (as its menu widget),
/// with @p cornerActions as small buttons at its right end.
ui::MenuBar* installClassicMenuBar(QMainWindow* window, const QList<QMenu*>& menus,
                                   const QList<QAction*>& cornerActions);

} // namespace demo
