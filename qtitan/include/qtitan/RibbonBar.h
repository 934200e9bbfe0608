#pragma once

#include "QtitanGlobal.h"

#include <QIcon>
#include <QList>
#include <QMenuBar>

namespace Qtitan {

class RibbonPage;
class RibbonQuickAccessBar;
class RibbonSystemButton;

/// The ribbon: a row of tabs, one per page, over the current page's groups,
/// with the system button at the left of the tabs and the quick access bar
/// above them (or beside the window title while the frame theme is on).
///
/// A click on a tab shows its page; the mouse wheel over the tabs steps
/// through the pages; a double click on a tab minimises the page area to the
/// tab row, or brings it back. A RibbonMainWindow carries the bar as its menu
/// bar.
///
/// @code
/// auto* ribbon = new Qtitan::RibbonBar;
/// window->setRibbonBar(ribbon);
/// Qtitan::RibbonPage* home = ribbon->addPage(QStringLiteral("Home"));
/// home->addGroup(QStringLiteral("Clipboard"))->addAction(pasteIcon, QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon);
/// ribbon->addSystemButton(QStringLiteral("File"))->menu()->addAction(openAction);
/// ribbon->quickAccessBar()->addAction(saveAction);
/// ribbon->setFrameThemeEnabled(true);   // title and quick access bar share one strip
/// @endcode
class QTITAN_EXPORT RibbonBar : public QMenuBar
{
    Q_OBJECT
    Q_PROPERTY(int currentPageIndex READ currentPageIndex WRITE setCurrentPageIndex NOTIFY currentPageIndexChanged)
    Q_PROPERTY(bool minimized READ isMinimized WRITE setMinimized NOTIFY minimizationChanged)
public:
    /// Creates a ribbon without pages, system button or quick access actions.
    explicit RibbonBar(QWidget* parent = nullptr);
    ~RibbonBar() override;

    /// Creates a page with a tab titled @p text at the right end of the tab row.
    /// The first page of a ribbon becomes the current one.
    RibbonPage* addPage(const QString& text);
    /// Puts a page at the right end; the ribbon takes ownership and takes the
    /// page from another ribbon that has it. A page already here stays where it is.
    void addPage(RibbonPage* page);
    /// Creates a page at a position; a bad index means the right end.
    RibbonPage* insertPage(int index, const QString& text);
    /// Puts a page at a position (a bad index means the right end); the
    /// current page stays current.
    void insertPage(int index, RibbonPage* page);
    /// Moves the page at @p from to @p to (clamped to the tab row); the
    /// current page stays current.
    void movePage(int from, int to);
    /// Moves a page of the ribbon to a position.
    void movePage(RibbonPage* page, int index);
    /// Removes and deletes a page.
    void removePage(int index);
    /// Removes and deletes a page of the ribbon.
    void removePage(RibbonPage* page);
    /// Takes a page off the ribbon without deleting it; the caller owns it.
    void detachPage(RibbonPage* page);
    /// Removes and deletes every page.
    void clearPages();

    /// The page at a position, or null for a bad index.
    RibbonPage* page(int index) const;
    /// The number of pages.
    int pageCount() const;
    /// The pages in tab order.
    QList<RibbonPage*> pages() const;
    /// The position of the page shown, -1 without pages.
    int currentPageIndex() const;
    /// The tab of a page in the bar's coordinates; empty for a bad index.
    QRect tabRect(int index) const;

    /// Creates the system button at the left of the tabs, with an empty
    /// RibbonSystemMenu, and returns its action (whose menu() is that menu). A
    /// second call only changes the icon and the text.
    QAction* addSystemButton(const QIcon& icon, const QString& text);
    /// addSystemButton() without an icon.
    QAction* addSystemButton(const QString& text);
    /// The system button, or null before addSystemButton(); its defaultAction()
    /// carries the RibbonSystemMenu.
    RibbonSystemButton* systemButton() const;

    /// The quick access bar; every ribbon has one.
    RibbonQuickAccessBar* quickAccessBar() const;

    /// Whether the ribbon stands in for the native window frame (see setFrameThemeEnabled()).
    bool isFrameThemeEnabled() const;
    /// While the page area is minimised only the tabs show.
    bool isMinimized() const;
    /// Whether Alt or F10 shows key tips (on by default).
    bool isKeyTipsEnabled() const;
    /// Turns key tips on or off. Alt or F10 then shows a letter badge on each
    /// tab, the system button and the quick access bar's buttons; typing a
    /// tab's letters opens it and badges its controls, and typing a control's
    /// letters runs its command or opens its menu. Escape steps back a level.
    /// An action, page or group may choose its letters with the dynamic
    /// property "keyTip".
    void setKeyTipsEnabled(bool enabled);

    /// Wide enough for the tabs and the current page at full size; as high as
    /// the title strip, the tabs and the page area.
    QSize sizeHint() const override;
    /// The full height at a small width: groups shrink, the height does not.
    QSize minimumSizeHint() const override;
    /// The same height at every width.
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Shows the page at @p index; a bad index or the current one does nothing.
    void setCurrentPageIndex(int index);
    /// With the frame theme on, the window that shows the ribbon loses its
    /// native frame: the ribbon draws the caption (window icon, quick access
    /// bar, centred title, minimise, maximise/restore and close buttons), a drag
    /// on it moves the window, a double click maximises or restores it, and the
    /// window's edges resize it. Turned off, the native frame comes back.
    void setFrameThemeEnabled(bool enabled = true);
    /// Minimises the page area to the tab row, or brings it back.
    void setMinimized(bool minimized);

Q_SIGNALS:
    /// Another page became the current one.
    void currentPageIndexChanged(int index);
    /// The page area was minimised or brought back.
    void minimizationChanged(bool minimized);

protected:
    /// Lays the ribbon out again on request and after font, style and palette
    /// changes; shows the whole title of an elided tab as a tool tip.
    bool event(QEvent* event) override;
    /// Drops the tab highlight when the mouse moves straight onto a child, and
    /// keeps QMenuBar's Alt handling away from the key tips.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Draws the frame, the title strip, the tabs and the page area.
    void paintEvent(QPaintEvent* event) override;
    /// Lays the tabs, the system button, the quick access bar and the page out.
    void resizeEvent(QResizeEvent* event) override;
    /// A click on a tab shows its page; while minimised, it drops the page
    /// over the workspace.
    void mousePressEvent(QMouseEvent* event) override;
    /// A double click on a tab minimises the page area, or brings it back.
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    /// Highlights the tab under the mouse.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// Ends a drag of the caption.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Drops the highlight of the tab that was under the mouse.
    void leaveEvent(QEvent* event) override;
    /// Over the tab row, steps to the page before or after the current one.
    void wheelEvent(QWheelEvent* event) override;
    /// Swallows the event: the ribbon has no context menu, and the main
    /// window's tool bar menu must not open over it.
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
