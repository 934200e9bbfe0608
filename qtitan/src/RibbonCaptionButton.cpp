#include "RibbonCaptionButton_p.h"

#include "RibbonColors_p.h"
#include "qtitan/CommonStyle.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionTitleBar>

namespace Qtitan {
namespace detail {

namespace {

const QColor CloseHover(0xE8, 0x11, 0x23);
const QColor ClosePressed(0xF1, 0x70, 0x7A);

QStyle::SubControl subControlOf(RibbonCaptionButton::Kind kind, Qt::WindowStates state)
{
    switch (kind) {
    case RibbonCaptionButton::Minimize:
        return QStyle::SC_TitleBarMinButton;
    case RibbonCaptionButton::Maximize:
        return state & Qt::WindowMaximized ? QStyle::SC_TitleBarNormalButton : QStyle::SC_TitleBarMaxButton;
    case RibbonCaptionButton::Close:
        break;
    }
    return QStyle::SC_TitleBarCloseButton;
}

const char* objectNameOf(RibbonCaptionButton::Kind kind)
{
    switch (kind) {
    case RibbonCaptionButton::Minimize:
        return "qtitan_caption_minimize";
    case RibbonCaptionButton::Maximize:
        return "qtitan_caption_maximize";
    case RibbonCaptionButton::Close:
        break;
    }
    return "qtitan_caption_close";
}

// What the button does, as its tool tip and accessible name say it; the
// maximise button restores while the window is maximised.
QString purposeOf(RibbonCaptionButton::Kind kind, Qt::WindowStates state)
{
    switch (kind) {
    case RibbonCaptionButton::Minimize:
        return QCoreApplication::translate("RibbonCaptionButton.cpp", "Свернуть");
    case RibbonCaptionButton::Maximize:
        return state & Qt::WindowMaximized ? QCoreApplication::translate("RibbonCaptionButton.cpp", "Восстановить")
                                           : QCoreApplication::translate("RibbonCaptionButton.cpp", "Развернуть");
    case RibbonCaptionButton::Close:
        break;
    }
    return QCoreApplication::translate("RibbonCaptionButton.cpp", "Закрыть");
}

// The glyph, 10 px across, centred in the button, drawn on pixel centres.
void drawGlyph(QPainter* painter, QStyle::SubControls control, const QRect& rect, const QColor& color)
{
    const qreal last = 9.0; // the glyph's last pixel column and row
    const QPointF o(qRound(rect.center().x() - last / 2) + 0.5, qRound(rect.center().y() - last / 2) + 0.5);
    painter->save();
    painter->setPen(QPen(color, 1.0));
    painter->setBrush(Qt::NoBrush);
    if (control & QStyle::SC_TitleBarMinButton) {
        painter->drawLine(QPointF(o.x(), o.y() + 5), QPointF(o.x() + last, o.y() + 5));
    } else if (control & QStyle::SC_TitleBarMaxButton) {
        painter->drawRect(QRectF(o, QSizeF(last, last)));
    } else if (control & QStyle::SC_TitleBarNormalButton) {
        // Two windows, the back one showing above and right of the front one.
        painter->drawRect(QRectF(o + QPointF(0, 2), QSizeF(last - 2, last - 2)));
        painter->drawPolyline(QPolygonF({o + QPointF(2, 2), o + QPointF(2, 0), o + QPointF(last, 0),
                                         o + QPointF(last, last - 2), o + QPointF(last - 2, last - 2)}));
    } else {
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->drawLine(o, o + QPointF(last, last));
        painter->drawLine(o + QPointF(last, 0), o + QPointF(0, last));
    }
    painter->restore();
}

} // namespace

RibbonCaptionButton::RibbonCaptionButton(Kind kind, QWidget* parent)
    : QAbstractButton(parent)
    , m_kind(kind)
{
    setObjectName(QLatin1String(objectNameOf(kind)));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover, true);
    describe();
}

void RibbonCaptionButton::describe()
{
    const QString purpose = purposeOf(m_kind, m_windowState);
    setToolTip(purpose);
    setAccessibleName(purpose);
}

void RibbonCaptionButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        describe();
    QAbstractButton::changeEvent(event);
}

void RibbonCaptionButton::setWindowState(Qt::WindowStates state)
{
    if (m_windowState == state)
        return;
    m_windowState = state;
    describe();
    update();
}

void RibbonCaptionButton::setWindowActive(bool active)
{
    if (m_windowActive == active)
        return;
    m_windowActive = active;
    update();
}

QSize RibbonCaptionButton::sizeHint() const
{
    // The caption buttons people know: about one and a half times as wide as the strip is high.
    const int height = qMax(fontMetrics().height() + 14, 30);
    return QSize(height * 3 / 2, height);
}

void RibbonCaptionButton::paintFace(QPainter* painter, const QStyleOptionTitleBar& option, const RibbonColors& colors)
{
    const bool close = option.subControls & QStyle::SC_TitleBarCloseButton;
    const bool sunken = option.state & QStyle::State_Sunken;
    const bool hover = option.state & QStyle::State_MouseOver;
    QColor glyph = colors.titleText;
    // At rest the button shows the frame painted under it, gradient or glass alike.
    if (close && (hover || sunken)) {
        painter->fillRect(option.rect, sunken ? ClosePressed : CloseHover);
        glyph = Qt::white;
    } else if (sunken) {
        painter->fillRect(option.rect, Scheme::mix(colors.tabHoverBackground,
                                                   Scheme::isDark(colors.frameBackground) ? Qt::white : Qt::black, 0.14));
    } else if (hover) {
        painter->fillRect(option.rect, colors.tabHoverBackground);
    }
    if (!(option.state & QStyle::State_Active) && !hover && !sunken)
        glyph.setAlphaF(glyph.alphaF() * 0.55);
    drawGlyph(painter, option.subControls, option.rect, glyph);
}

void RibbonCaptionButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionTitleBar option;
    option.initFrom(this);
    option.subControls = subControlOf(m_kind, m_windowState);
    option.titleBarState = int(m_windowState);
    option.titleBarFlags = window()->windowFlags();
    option.state.setFlag(QStyle::State_Active, m_windowActive);
    option.state.setFlag(QStyle::State_MouseOver, underMouse());
    option.state.setFlag(QStyle::State_Sunken, isDown());
    if (isDown())
        option.activeSubControls = option.subControls;
    const auto element = static_cast<QStyle::PrimitiveElement>(CommonStyle::PE_CaptionButton);
    if (qobject_cast<const CommonStyle*>(style()))
        style()->drawPrimitive(element, &option, &painter, this);
    else
        paintFace(&painter, option, RibbonColors::forWidget(this));
}

} // namespace detail
} // namespace Qtitan
