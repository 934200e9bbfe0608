#pragma once

#include "DemoCustomLayout.h"
#include "DemoDocks.h"
#include "DemoShellOptions.h"

#include <tessaro/MainWindow.h>


#include <memory>

class DemoCommands;
class DemoDocument;
class DemoFindBar;
class DemoQuickSearch;
class DemoSettings;
class QLabel;
class QTimer;
class QToolBar;

namespace demo {
class StyleMenu;
}
namespace ui {
class DockListMenu;
class MdiArea;
}

/// The demo's main window: the ribbon (or, in classic mode, the menu bar of
/// the command categories), two tool bars, the dock panels, the tabbed
/// document area, a find bar and a status bar. It owns the settings (read when
/// it is created, written when it closes) and the command set.
///
/// Documents are reached only through activeDocument(), documents(),
/// addDocument(), activateDocument() and removeDocument(), so that the
/// document area can change without touching the commands.
class DemoWindow : public ui::MainWindow
{
    Q_OBJECT

public:
    /// \a settingsFile overrides the default settings location; \a shell picks
    /// the ribbon or the classic menu bar and the style to start with.
    explicit DemoWindow(const QString& settingsFile = QString(), QWidget* parent = nullptr,
                        const demo::ShellOptions& shell = demo::ShellOptions());
    ~DemoWindow() override;

    DemoSettings& settings() const { return *m_settings; }
    DemoCommands* commands() const { return m_commands; }

    // The document area.
    DemoDocument* activeDocument() const;
    QList<DemoDocument*> documents() const;
    /// Takes ownership of \a document, shows it and makes it active.
    void addDocument(DemoDocument* document);
    void activateDocument(DemoDocument* document);
    /// Takes the document out of the area and deletes it (no questions asked).
    void removeDocument(DemoDocument* document);

    DemoFindBar* findBar() const { return m_findBar; }
    /// The quick search box in the status bar.
    DemoQuickSearch* quickSearch() const { return m_quickSearch; }
    /// The built-in tool bars; null once the user removed them in Customize.
    QToolBar* standardToolBar() const;
    QToolBar* formatToolBar() const;
    /// Every classic tool bar of the window, the built-in ones first, then
    /// those the user added in Customize, in the order they were made.
    QList<QToolBar*> toolBars() const;
    /// The ribbon, quick access bar and tool bars as built, before the
    /// settings gave the user's; what Reset in Customize returns to.
    const DemoCustomLayout& defaultLayout() const { return m_defaultLayout; }
    /// Opens the Customize window (or raises the one open) at the ribbon's
    /// tab, or at the toolbars tab in classic mode.
    void customize();
    void showMessage(const QString& text, int timeout = 4000);
    /// A non-blocking message box.
    void information(const QString& title, const QString& text);

    /// Makes the window open with the welcome document (done when nothing else is opened).
    void openWelcomeDocument();

    // The shell: the ribbon or the classic menu bar, the panels and the style.
    bool isClassic() const { return m_classic; }
    ui::MdiArea* documentArea() const { return m_area; }
    const demo::DemoDocks& docks() const { return m_docks; }
    ui::DockListMenu* panelsMenu() const { return m_panelsMenu; }
    demo::StyleMenu* styleMenu() const { return m_styleMenu; }
    std::vector<ui::MainWindow::Style> supportedStyles() { return getSupportedStyles(); }
    /// Switches the application style and remembers it in the settings.
    void chooseStyle(int style);

signals:
    void activeDocumentChanged(DemoDocument* document);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createDocumentArea();
    void createMenus();
    void applyInitialStyle(const demo::ShellOptions& shell);
    void createShell();
    void createToolBars();
    void createStatusBar();
    void saveSettings();
    void onCurrentTabChanged();
    void updateTitle();
    void updateStatus();

    std::unique_ptr<DemoSettings> m_settings;
    DemoCommands* m_commands = nullptr;
    ui::MdiArea* m_area = nullptr;
    bool m_classic = false;
    demo::DemoDocks m_docks;
    ui::DockListMenu* m_panelsMenu = nullptr;
    demo::StyleMenu* m_styleMenu = nullptr;
    DemoFindBar* m_findBar = nullptr;
    DemoQuickSearch* m_quickSearch = nullptr;
    DemoCustomLayout m_defaultLayout;
    QLabel* m_positionLabel = nullptr;
    QLabel* m_wordsLabel = nullptr;
    QLabel* m_zoomLabel = nullptr;
    QTimer* m_statusTimer = nullptr;
    DemoDocument* m_connectedDocument = nullptr;
};
