#pragma once

#include "DemoCustomLayout.h"

#include <QDialog>

class DemoWindow;
class MenuTreeWidget;
class QDialogButtonBox;

namespace ui {
class QCustomizeDlg;
class QToolBarPage;
}

/// The "Customize" window: the library's customize dialog over the demo's
/// ribbon, quick access bar and tool bars, with a toolbars page in its
/// toolbars tab (the demo's commands on the left, the page on the right).
///
/// Every edit shows in the main window at once. OK keeps the layout in the
/// settings; Cancel (or Escape, or closing the window) puts back what was
/// there when the window opened; Reset returns to the ribbon, quick access
/// bar and tool bars as the demo builds them. Window modal; deleted when
/// closed.
class DemoCustomizeWindow : public QDialog
{
    Q_OBJECT

public:
    /// Opens the window over \a window at the ribbon tab (the toolbars tab in
    /// classic mode), or raises the one already open.
    static DemoCustomizeWindow* showFor(DemoWindow* window);

    explicit DemoCustomizeWindow(DemoWindow* window);
    ~DemoCustomizeWindow() override;

    /// The embedded dialog; a new one after Reset.
    ui::QCustomizeDlg* customizeDialog() const { return m_customize; }
    /// The toolbars page in the dialog's toolbars tab.
    ui::QToolBarPage* toolBarPage() const { return m_toolBarPage; }
    /// The commands beside the toolbars page.
    MenuTreeWidget* toolBarCommands() const { return m_toolBarCommands; }
    QDialogButtonBox* buttons() const { return m_buttons; }

    /// Keeps the edited layout, then closes.
    void accept() override;
    /// Puts back the layout of the window's opening, then closes.
    void reject() override;
    /// Returns the main window to the demo's first layout; the dialog shows it.
    void reset();

    /// Moves the window below the main window's ribbon and top tool bars,
    /// centred on it, as far as the screen allows; showFor() does it first.
    void placeBelowBars();

private:
    void buildDialog(int tab);
    void dropDialog();
    void placeToolBarPage();
    void dockNewToolBars();

    DemoWindow* m_window;
    DemoCustomLayout m_opened;
    QByteArray m_openedState;
    ui::QCustomizeDlg* m_customize = nullptr;
    ui::QToolBarPage* m_toolBarPage = nullptr;
    MenuTreeWidget* m_toolBarCommands = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
};
