#include "RibbonPaint_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace Qtitan {
namespace detail {

RibbonMetrics RibbonMetrics::forFont(const QFontMetrics& fm)
{
    RibbonMetrics m;
    m.lineHeight = fm.height();
    const int largeButton = 3 + LargeIconSize + 2 + 2 * m.lineHeight + 2;
    const int row = qMax(22, m.lineHeight + 6);
    m.contentHeight = qMax(3 * row, largeButton);
    m.rowHeight = m.contentHeight / 3;
    m.titleHeight = m.lineHeight + 4;
    m.groupHeight = GroupTopMargin + m.contentHeight + 1 + m.titleHeight;
    return m;
}

RibbonMetrics RibbonMetrics::forWidget(const QWidget* widget)
{
    return forFont(widget->fontMetrics());
}

RibbonColors colorsFor(const QWidget* widget)
{
    return RibbonColors::forWidget(widget);
}

void drawButtonFace(QPainter* painter, const QRect& rect, const RibbonColors& colors,
                    Highlight highlight)
{
    QColor fill;
    QColor border;
    switch (highlight) {
    case Highlight::None:
        return;
    case Highlight::Hover:
        fill = colors.buttonHoverBackground;
        border = colors.buttonHoverBorder;
        break;
    case Highlight::HoverLight:
        fill = colors.buttonHoverBackground;
        fill.setAlphaF(fill.alphaF() * 0.45);
        border = colors.buttonHoverBorder;
        break;
    case Highlight::Pressed:
    case Highlight::CheckedHover:
        fill = colors.buttonPressedBackground;
        border = colors.buttonPressedBorder;
        break;
    case Highlight::Checked:
        fill = colors.buttonCheckedBackground;
        border = colors.buttonCheckedBorder;
        break;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    QPainterPath path;
    path.addRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
    painter->fillPath(path, fill);
    painter->setPen(border);
    painter->drawPath(path);
    painter->restore();
}

void drawDownArrow(QPainter* painter, const QPoint& center, const QColor& color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    const QPointF c(center.x() + 0.5, center.y() + 0.5);
    const QPointF points[3] = {QPointF(c.x() - 3.0, c.y() - 1.5), QPointF(c.x() + 3.0, c.y() - 1.5),
                               QPointF(c.x(), c.y() + 1.5)};
    painter->drawPolygon(points, 3);
    painter->restore();
}

QString labelText(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&')) {
            if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&')) {
                result += QLatin1Char('&');
                ++i;
            }
            continue;
        }
        result += text.at(i);
    }
    return result;
}

void splitLabel(const QFontMetrics& fm, const QString& text, int secondLineExtra,
                QString* first, QString* second)
{
    // Break at the space that makes the wider of the two lines narrowest.
    int best = -1;
    int bestWidth = fm.horizontalAdvance(text);
    if (secondLineExtra > 0)
        bestWidth = qMax(bestWidth, secondLineExtra);
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char(' '))
            continue;
        const int w1 = fm.horizontalAdvance(text.left(i));
        const int w2 = fm.horizontalAdvance(text.mid(i + 1)) + secondLineExtra;
        const int w = qMax(w1, w2);
        if (w < bestWidth) {
            bestWidth = w;
            best = i;
        }
    }
    if (best < 0) {
        *first = text;
        second->clear();
    } else {
        *first = text.left(best);
        *second = text.mid(best + 1);
    }
}

} // namespace detail
} // namespace Qtitan
