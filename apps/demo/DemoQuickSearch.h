#pragma once

#include <QObject>

#include <memory>

class DemoWindow;
class QMenu;

namespace ui {
class QuickSearchWidget;
}

/// The demo's quick search: a box at the right end of the status bar, where
/// its result popup has room to open above it, wide enough to show its whole
/// placeholder. It searches the commands where the window shows them: the
/// ribbon's File menu, pages and groups, or the menus of the classic menu
/// bar, so that the path of a result is one the user can follow.
class DemoQuickSearch : public QObject
{
    Q_OBJECT

public:
    /// Puts the box into the window's status bar; refresh() gives it the commands.
    explicit DemoQuickSearch(DemoWindow* window);
    ~DemoQuickSearch() override;

    /// The search box.
    ui::QuickSearchWidget* box() const { return m_box; }
    /// Reads the commands again, for instance after the ribbon's layout changed.
    void refresh();

    /// Fits the box to its placeholder again when the style or the font changes.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitPlaceholder();
    void buildRibbonSource();

    DemoWindow* m_window;
    ui::QuickSearchWidget* m_box;
    // The ribbon's commands arranged as menus by page and group, only for the search.
    std::unique_ptr<QMenu> m_ribbonSource;
};
