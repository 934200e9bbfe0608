#include "RibbonKeyTipLabel_p.h"

#include "RibbonPaint_p.h"

#include <QPainter>
#include <QPainterPath>

namespace Qtitan {
namespace detail {

RibbonKeyTipLabel::RibbonKeyTipLabel(const QString& tip, QWidget* target, QWidget* parent)
    : QLabel(tip, parent)
{
    setObjectName(QStringLiteral("qtitan_KeyTip"));
    setBuddy(target);
    setAttribute(Qt::WA_TransparentForMouseEvents, true);
    setFocusPolicy(Qt::NoFocus);
    resize(sizeHint());
}

QSize RibbonKeyTipLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int height = metrics.height() + 2;
    return QSize(qMax(height, metrics.horizontalAdvance(text()) + 8), height);
}

void RibbonKeyTipLabel::centreOn(const QPoint& point)
{
    QRect rect(QPoint(0, 0), size());
    rect.moveCenter(point);
    if (const QWidget* parent = parentWidget()) {
        rect.moveRight(qMin(rect.right(), parent->width() - 1));
        rect.moveBottom(qMin(rect.bottom(), parent->height() - 1));
        rect.moveLeft(qMax(rect.left(), 0));
        rect.moveTop(qMax(rect.top(), 0));
    }
    move(rect.topLeft());
}

void RibbonKeyTipLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const RibbonColors colors = colorsFor(this);
    QPainterPath path;
    path.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2.5, 2.5);
    painter.fillPath(path, colors.menuBackground);
    painter.setPen(colors.menuBorder);
    painter.drawPath(path);
    painter.setPen(colors.menuText);
    painter.drawText(rect(), Qt::AlignCenter, QLabel::text());
}

} // namespace detail
} // namespace Qtitan
