#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>

class QMouseEvent;
class QWindow;

namespace Qtitan {
namespace detail {

class RibbonCaptionButton;

/// What the frame theme does to the window that shows the ribbon: it takes
/// the native frame away and stands in for it. The caption buttons sit at the
/// right end of the ribbon's title strip; a drag on the strip moves the window
/// and a double click maximises or restores it; a drag on the window's edges
/// resizes it. Moving and resizing go through the window system
/// (QWindow::startSystemMove, QWindow::startSystemResize), or follow the
/// mouse where the window system cannot.
class RibbonWindowFrame : public QObject
{
    Q_OBJECT
public:
    /// @p bar is the ribbon; the caption buttons become its children.
    explicit RibbonWindowFrame(QWidget* bar);
    /// Gives the native frame back, once the window has settled (it may be on its way down).
    ~RibbonWindowFrame() override;

    /// Takes the native frame away from @p window; null gives it back to the window it had.
    void attach(QWidget* window);
    QWidget* window() const;

    /// Puts the caption buttons at the right end of @p strip; returns the x where they begin.
    int placeButtons(const QRect& strip);

    /// A press of the left button on the empty part of the title strip.
    void titlePressed(const QPoint& globalPos);
    /// The mouse moved with the left button held since titlePressed(): past
    /// the drag distance the window moves.
    void titleDragged(const QPoint& globalPos);
    void titleReleased();
    void toggleMaximized();

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// How close to an edge of the window a press resizes it.
    static constexpr int BorderWidth = 5;

private:
    void setFrameless(bool frameless);
    void hookWindowHandle();
    void updateButtons();
    bool canResize() const;
    Qt::Edges edgesAt(const QPoint& pos) const;
    void showEdgeCursor(Qt::Edges edges);
    bool windowMouseEvent(QMouseEvent* event);
    void follow(const QPoint& globalPos);

    enum class Drag {
        None,
        Pressed, ///< on the title strip, not yet dragged far enough to move
        Moving,  ///< the window follows the mouse by hand
        Resizing
    };

    QWidget* m_bar;
    QPointer<QWidget> m_window;
    QPointer<QWindow> m_handle;
    bool m_addedFrameless = false;
    RibbonCaptionButton* m_minimize;
    RibbonCaptionButton* m_maximize;
    RibbonCaptionButton* m_close;
    Drag m_drag = Drag::None;
    Qt::Edges m_dragEdges;
    QPoint m_pressGlobal;
    QRect m_startGeometry;
    Qt::Edges m_cursorEdges; ///< the edges whose resize cursor is shown
};

} // namespace detail
} // namespace Qtitan
