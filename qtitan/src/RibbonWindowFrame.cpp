#include "RibbonWindowFrame_p.h"

#include "RibbonCaptionButton_p.h"
#include "RibbonHover_p.h"
#include "qtitan/RibbonBar.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>
#include <QWindow>

namespace Qtitan {
namespace detail {

namespace {

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (horizontal && vertical) {
        const bool falling = (edges & Qt::TopEdge) ? bool(edges & Qt::LeftEdge) : bool(edges & Qt::RightEdge);
        return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    }
    return horizontal ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

// Whether a ribbon in the window still wants it without a native frame.
bool ribbonKeepsFrameTheme(const QWidget* window)
{
    const QList<RibbonBar*> bars = window->findChildren<RibbonBar*>();
    for (const RibbonBar* bar : bars) {
        if (bar->isFrameThemeEnabled() && !(bar->isHidden() && bar->testAttribute(Qt::WA_WState_ExplicitShowHide)))
            return true;
    }
    return false;
}

} // namespace

RibbonWindowFrame::RibbonWindowFrame(QWidget* bar)
    : QObject(bar)
    , m_bar(bar)
    , m_minimize(new RibbonCaptionButton(RibbonCaptionButton::Minimize, bar))
    , m_maximize(new RibbonCaptionButton(RibbonCaptionButton::Maximize, bar))
    , m_close(new RibbonCaptionButton(RibbonCaptionButton::Close, bar))
{
    for (RibbonCaptionButton* button : {m_minimize, m_maximize, m_close})
        button->hide();
    connect(m_minimize, &QAbstractButton::clicked, this, [this]() {
        if (m_window)
            m_window->showMinimized();
    });
    connect(m_maximize, &QAbstractButton::clicked, this, &RibbonWindowFrame::toggleMaximized);
    connect(m_close, &QAbstractButton::clicked, this, [this]() {
        if (m_window)
            m_window->close();
    });
}

RibbonWindowFrame::~RibbonWindowFrame()
{
    showEdgeCursor({});
    if (m_handle)
        m_handle->removeEventFilter(this);
    if (!m_window)
        return;
    m_window->removeEventFilter(this);
    if (!m_addedFrameless)
        return;
    QPointer<QWidget> window = m_window;
    QMetaObject::invokeMethod(
        window,
        [window]() {
            if (!window || !(window->windowFlags() & Qt::FramelessWindowHint) || ribbonKeepsFrameTheme(window))
                return;
            const bool visible = window->isVisible();
            window->setWindowFlags(window->windowFlags() & ~Qt::FramelessWindowHint);
            if (visible)
                window->show();
        },
        Qt::QueuedConnection);
}

QWidget* RibbonWindowFrame::window() const
{
    return m_window;
}

void RibbonWindowFrame::attach(QWidget* window)
{
    if (window == m_bar)
        window = nullptr;
    if (window == m_window)
        return;
    if (m_window) {
        showEdgeCursor({});
        m_drag = Drag::None;
        m_window->removeEventFilter(this);
        if (m_handle)
            m_handle->removeEventFilter(this);
        m_handle = nullptr;
        if (m_addedFrameless)
            setFrameless(false);
    }
    m_window = window;
    if (m_window) {
        m_window->installEventFilter(this);
        setFrameless(true);
        hookWindowHandle();
    }
    updateButtons();
}

void RibbonWindowFrame::setFrameless(bool frameless)
{
    const Qt::WindowFlags flags = m_window->windowFlags();
    if (frameless == bool(flags & Qt::FramelessWindowHint)) {
        // A host that made the window frameless itself keeps it so.
        if (frameless)
            m_addedFrameless = false;
        return;
    }
    const bool visible = m_window->isVisible();
    m_window->setWindowFlags(flags ^ Qt::FramelessWindowHint);
    m_addedFrameless = frameless;
    if (visible)
        m_window->show();
}

// The edges are watched on the window's QWindow, which sees the mouse before
// any widget of the window does; it comes and goes with the native window.
void RibbonWindowFrame::hookWindowHandle()
{
    QWindow* handle = m_window ? m_window->windowHandle() : nullptr;
    if (handle == m_handle)
        return;
    if (m_handle)
        m_handle->removeEventFilter(this);
    m_handle = handle;
    if (m_handle)
        m_handle->installEventFilter(this);
}

void RibbonWindowFrame::updateButtons()
{
    if (!m_window) {
        for (RibbonCaptionButton* button : {m_minimize, m_maximize, m_close})
            button->hide();
        return;
    }
    const Qt::WindowStates state = m_window->windowState();
    const bool active = m_window->isActiveWindow();
    for (RibbonCaptionButton* button : {m_minimize, m_maximize, m_close}) {
        button->setWindowState(state);
        button->setWindowActive(active);
    }
}

int RibbonWindowFrame::placeButtons(const QRect& strip)
{
    if (!m_window)
        return strip.right() + 1;
    const Qt::WindowFlags flags = m_window->windowFlags();
    const bool customized = flags & Qt::CustomizeWindowHint;
    const bool fixedSize = m_window->minimumSize() == m_window->maximumSize();
    const bool showMinimize = !customized || (flags & Qt::WindowMinimizeButtonHint);
    const bool showMaximize = !fixedSize && (!customized || (flags & Qt::WindowMaximizeButtonHint));
    const bool showClose = !customized || (flags & Qt::WindowCloseButtonHint);
    const int height = strip.height();
    const int width = height * 3 / 2;
    int x = strip.right() + 1;
    for (auto [button, shown] : {std::pair<RibbonCaptionButton*, bool>{m_close, showClose},
                                 {m_maximize, showMaximize}, {m_minimize, showMinimize}}) {
        button->setVisible(shown);
        if (!shown)
            continue;
        x -= width;
        button->setGeometry(x, strip.top(), width, height);
        button->raise();
    }
    return x;
}

void RibbonWindowFrame::toggleMaximized()
{
    if (!m_window)
        return;
    if (m_window->isMaximized())
        m_window->showNormal();
    else
        m_window->showMaximized();
}

// The move waits until the mouse has gone further than a double click may
// stray: a window system that moves the window holds the mouse until the
// button is let go, and the second press of a double click would never reach
// the ribbon. (Catching the window up with the mouse before handing it over
// races with the window system, which may start from the old place.)
void RibbonWindowFrame::titlePressed(const QPoint& globalPos)
{
    m_drag = Drag::None;
    // A maximised window stays where it is.
    if (!m_window || m_window->isMaximized() || m_window->isFullScreen())
        return;
    m_drag = Drag::Pressed;
    m_pressGlobal = globalPos;
    m_startGeometry = m_window->geometry();
}

void RibbonWindowFrame::titleDragged(const QPoint& globalPos)
{
    if (m_drag == Drag::Pressed) {
        if ((globalPos - m_pressGlobal).manhattanLength() <= QGuiApplication::styleHints()->mouseDoubleClickDistance())
            return;
        hookWindowHandle();
        m_drag = m_handle && m_handle->startSystemMove() ? Drag::None : Drag::Moving;
    }
    if (m_drag == Drag::Moving)
        follow(globalPos);
}

void RibbonWindowFrame::titleReleased()
{
    m_drag = Drag::None;
}

// Moves or resizes the window by hand, for window systems that cannot.
void RibbonWindowFrame::follow(const QPoint& globalPos)
{
    const QPoint delta = globalPos - m_pressGlobal;
    if (m_drag == Drag::Moving) {
        m_window->move(m_startGeometry.topLeft() + delta);
        return;
    }
    const QSize minimum = m_window->minimumSize().expandedTo(m_window->minimumSizeHint());
    QRect geometry = m_startGeometry;
    if (m_dragEdges & Qt::LeftEdge)
        geometry.setLeft(qMin(geometry.left() + delta.x(), geometry.right() + 1 - minimum.width()));
    if (m_dragEdges & Qt::RightEdge)
        geometry.setRight(qMax(geometry.right() + delta.x(), geometry.left() - 1 + minimum.width()));
    if (m_dragEdges & Qt::TopEdge)
        geometry.setTop(qMin(geometry.top() + delta.y(), geometry.bottom() + 1 - minimum.height()));
    if (m_dragEdges & Qt::BottomEdge)
        geometry.setBottom(qMax(geometry.bottom() + delta.y(), geometry.top() - 1 + minimum.height()));
    m_window->setGeometry(geometry);
}

bool RibbonWindowFrame::canResize() const
{
    const Qt::WindowStates state = m_window->windowState();
    return !(state & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized))
           && m_window->minimumSize() != m_window->maximumSize();
}

Qt::Edges RibbonWindowFrame::edgesAt(const QPoint& pos) const
{
    Qt::Edges edges;
    if (!canResize())
        return edges;
    if (pos.x() < BorderWidth)
        edges |= Qt::LeftEdge;
    else if (pos.x() >= m_window->width() - BorderWidth)
        edges |= Qt::RightEdge;
    if (pos.y() < BorderWidth)
        edges |= Qt::TopEdge;
    else if (pos.y() >= m_window->height() - BorderWidth)
        edges |= Qt::BottomEdge;
    return edges;
}

// Over an edge the resize cursor overrides whatever the widget below shows.
void RibbonWindowFrame::showEdgeCursor(Qt::Edges edges)
{
    if (edges == m_cursorEdges)
        return;
    if (!m_cursorEdges)
        QGuiApplication::setOverrideCursor(QCursor(cursorFor(edges)));
    else if (!edges)
        QGuiApplication::restoreOverrideCursor();
    else
        QGuiApplication::changeOverrideCursor(QCursor(cursorFor(edges)));
    m_cursorEdges = edges;
}

bool RibbonWindowFrame::windowMouseEvent(QMouseEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (m_drag == Drag::Resizing) {
            follow(event->globalPos());
            return true;
        }
        if (event->buttons() == Qt::NoButton)
            showEdgeCursor(edgesAt(event->pos()));
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const Qt::Edges edges = event->button() == Qt::LeftButton ? edgesAt(event->pos()) : Qt::Edges();
        if (!edges)
            return false;
        if (!m_handle->startSystemResize(edges)) {
            m_drag = Drag::Resizing;
            m_dragEdges = edges;
            m_pressGlobal = event->globalPos();
            m_startGeometry = m_window->geometry();
        }
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (m_drag != Drag::Resizing)
            return false;
        m_drag = Drag::None;
        showEdgeCursor(edgesAt(event->pos()));
        return true;
    default:
        return false;
    }
}

bool RibbonWindowFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_handle) {
        switch (event->type()) {
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
            return windowMouseEvent(static_cast<QMouseEvent*>(event));
        case QEvent::Leave:
            if (m_drag != Drag::Resizing)
                showEdgeCursor({});
            break;
        default:
            break;
        }
        return false;
    }
    if (watched == m_window) {
        switch (event->type()) {
        case QEvent::Show:
        case QEvent::WinIdChange:
            hookWindowHandle();
            break;
        case QEvent::WindowStateChange:
            showEdgeCursor({});
            updateButtons();
            break;
        case QEvent::Move:
        case QEvent::Resize:
            // Maximising or restoring carries the buttons away from a mouse
            // that stays put, and no Leave comes for that.
            for (RibbonCaptionButton* button : {m_minimize, m_maximize, m_close})
                syncUnderMouse(button);
            break;
        case QEvent::ActivationChange:
            updateButtons();
            m_bar->update();
            break;
        default:
            break;
        }
    }
    return false;
}

} // namespace detail
} // namespace Qtitan
