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
class QTITAN_EXPORT RibbonBar : public QMenuBar
{
    Q_OBJECT
    Q_PROPERTY(int currentPageIndex READ currentPageIndex WRITE setCurrentPageIndex NOTIFY currentPageIndexChanged)
    Q_PROPERTY(bool minimized READ isMinimized WRITE setMinimized NOTIFY minimizationChanged)
public:
    explicit RibbonBar(QWidget* parent = nullptr);
    ~RibbonBar() override;

    RibbonPage* addPage(const QString& text);
    void addPage(RibbonPage* page);
    RibbonPage* insertPage(int index, const QString& text);
    void insertPage(int index, RibbonPage* page);
    void movePage(int from, int to);
    void movePage(RibbonPage* page, int index);
    /// Removes and deletes a page.
    void removePage(int index);
    void removePage(RibbonPage* page);
    /// Takes a page off the ribbon without deleting it; the caller owns it.
    void detachPage(RibbonPage* page);
    void clearPages();

    RibbonPage* page(int index) const;
    int pageCount() const;
    QList<RibbonPage*> pages() const;
    int currentPageIndex() const;
    /// The tab of a page in the bar's coordinates; empty for a bad index.
    QRect tabRect(int index) const;

    QAction* addSystemButton(const QIcon& icon, const QString& text);
    QAction* addSystemButton(const QString& text);
    /// The system button, or null before addSystemButton(); its defaultAction()
    /// carries the RibbonSystemMenu.
    RibbonSystemButton* systemButton() const;

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

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

public Q_SLOTS:
    void setCurrentPageIndex(int index);
    /// With the frame theme on, the window that shows the ribbon loses its
    /// native frame: the ribbon draws the caption (window icon, quick access
    /// bar, centred title, minimise, maximise/restore and close buttons), a drag
    /// on it moves the window, a double click maximises or restores it, and the
    /// window's edges resize it. Turned off, the native frame comes back.
    void setFrameThemeEnabled(bool enabled = true);
    void setMinimized(bool minimized);

Q_SIGNALS:
    void currentPageIndexChanged(int index);
    void minimizationChanged(bool minimized);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
