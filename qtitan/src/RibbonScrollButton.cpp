#include "RibbonScrollButton_p.h"

#include "RibbonPaint_p.h"

#include <QPainter>

namespace Qtitan {
namespace detail {

RibbonScrollButton::RibbonScrollButton(QWidget* parent, Qt::ArrowType arrow, Surface surface)
    : QToolButton(parent)
    , m_surface(surface)
{
    setArrowType(arrow);
    setAttribute(Qt::WA_Hover, true);
    setAutoRepeat(true);
    setFocusPolicy(Qt::NoFocus);
}

void RibbonScrollButton::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const RibbonColors colors = colorsFor(this);
    const bool hover = isEnabled() && testAttribute(Qt::WA_UnderMouse);
    const bool onFrame = m_surface == OnFrame;
    QColor fill;
    if (onFrame)
        fill = isDown() || hover ? colors.tabHoverBackground : colors.frameBackground;
    else
        fill = isDown() ? colors.buttonPressedBackground : hover ? colors.buttonHoverBackground : colors.pageBackgroundTop;
    fill.setAlpha(255);
    p.fillRect(rect(), fill);
    if (!onFrame) {
        p.setPen(hover ? colors.buttonHoverBorder : colors.pageBorder);
        p.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    QColor arrow = onFrame ? colors.tabText : colors.buttonText;
    if (!isEnabled())
        arrow.setAlphaF(0.35);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(Qt::NoPen);
    p.setBrush(arrow);
    const QPointF c = QRectF(rect()).center();
    const qreal d = arrowType() == Qt::LeftArrow ? -1.0 : 1.0;
    const QPointF points[3] = {QPointF(c.x() - 2.0 * d, c.y() - 4.0), QPointF(c.x() - 2.0 * d, c.y() + 4.0),
                               QPointF(c.x() + 2.0 * d, c.y())};
    p.drawPolygon(points, 3);
}

} // namespace detail
} // namespace Qtitan
