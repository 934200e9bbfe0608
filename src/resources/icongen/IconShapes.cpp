#include "IconShapes_p.h"

#include <QPainter>
#include <QPolygonF>
#include <QTransform>

namespace iconshapes {

QRectF cell(int x, int y, int w, int h)
{
    return QRectF(x + 0.5, y + 0.5, w - 1, h - 1);
}

void outline(QPainter& p, const QPainterPath& path, const QColor& fill, const QColor& line)
{
    p.setPen(QPen(line, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.setBrush(fill);
    p.drawPath(path);
}

void box(QPainter& p, int x, int y, int w, int h, const QColor& fill, const QColor& line, qreal radius)
{
    QPainterPath path;
    if (radius > 0)
        path.addRoundedRect(cell(x, y, w, h), radius, radius);
    else
        path.addRect(cell(x, y, w, h));
    outline(p, path, fill, line);
}

QPen pen(const QColor& color, qreal width)
{
    return QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

QPen roundPen(const QColor& color, qreal width)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void fill(QPainter& p, qreal x, qreal y, qreal w, qreal h, const QColor& color)
{
    p.fillRect(QRectF(x, y, w, h), color);
}

void page(QPainter& p, qreal x, qreal y, qreal w, qreal h, const QColor& background)
{
    const qreal fold = 6;
    QPainterPath path;
    path.moveTo(x, y);
    path.lineTo(x + w - fold, y);
    path.lineTo(x + w, y + fold);
    path.lineTo(x + w, y + h);
    path.lineTo(x, y + h);
    path.closeSubpath();
    p.setPen(pen(ink));
    p.setBrush(background);
    p.drawPath(path);
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF() << QPointF(x + w - fold, y) << QPointF(x + w - fold, y + fold) << QPointF(x + w, y + fold));
}

void textLines(QPainter& p, qreal x, qreal y, qreal w, int count, const QColor& color, qreal step)
{
    for (int i = 0; i < count; ++i)
        fill(p, x, y + i * step, w, 2, color);
}

void folder(QPainter& p)
{
    QPainterPath back;
    back.moveTo(3, 7);
    back.lineTo(11, 7);
    back.lineTo(14, 10);
    back.lineTo(27, 10);
    back.lineTo(27, 25);
    back.lineTo(3, 25);
    back.closeSubpath();
    p.setPen(pen(ink));
    p.setBrush(QColor(0xf3, 0xc6, 0x5e));
    p.drawPath(back);
    QPainterPath front;
    front.moveTo(3, 25);
    front.lineTo(7, 14);
    front.lineTo(31, 14);
    front.lineTo(27, 25);
    front.closeSubpath();
    p.setBrush(yellow);
    p.drawPath(front);
}

void disk(QPainter& p, qreal dx, qreal dy, qreal s)
{
    p.save();
    p.translate(dx, dy);
    p.scale(s, s);
    QPainterPath body;
    body.moveTo(5, 5);
    body.lineTo(23, 5);
    body.lineTo(27, 9);
    body.lineTo(27, 27);
    body.lineTo(5, 27);
    body.closeSubpath();
    p.setPen(pen(ink));
    p.setBrush(blue);
    p.drawPath(body);
    fill(p, 10, 6, 12, 7, paper);
    fill(p, 18, 7, 2, 4, ink);
    fill(p, 9, 17, 14, 9, paper);
    textLines(p, 11, 19, 10, 2, grey, 3);
    p.restore();
}

void magnifier(QPainter& p, qreal cx, qreal cy, qreal r)
{
    p.setPen(roundPen(ink, 2));
    p.setBrush(QColor(0xe8, 0xf1, 0xfd));
    p.drawEllipse(QPointF(cx, cy), r, r);
    p.setPen(roundPen(ink, 4));
    const qreal d = r * 0.72;
    p.drawLine(QPointF(cx + d + 1.5, cy + d + 1.5), QPointF(cx + d + 8, cy + d + 8));
}

void arrowHead(QPainter& p, QPointF tip, qreal angle, qreal size, const QColor& color)
{
    p.save();
    p.translate(tip);
    p.rotate(angle);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPolygon(QPolygonF() << QPointF(0, 0) << QPointF(-size, -size * 0.8) << QPointF(-size, size * 0.8));
    p.restore();
}

void straightArrow(QPainter& p, QPointF from, QPointF to, const QColor& color, qreal width)
{
    const QLineF line(from, to);
    QLineF shaft(line);
    shaft.setLength(line.length() - 5);
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(shaft);
    arrowHead(p, to, -line.angle(), 7, color);
}

void curvedArrow(QPainter& p, bool forward, const QColor& color)
{
    p.save();
    if (forward) {
        p.translate(32, 0);
        p.scale(-1, 1);
    }
    QPainterPath path;
    path.moveTo(10, 12);
    path.lineTo(20, 12);
    path.cubicTo(29, 12, 29, 26, 20, 26);
    path.lineTo(13, 26);
    p.setPen(QPen(color, 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    arrowHead(p, QPointF(3, 12), 180, 9, color);
    p.restore();
}

void letters(QPainter& p, const QString& text, const QRectF& box, const QColor& color, int weight, bool italic,
             qreal pixelSize)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(int(pixelSize));
    font.setWeight(weight);
    font.setItalic(italic);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF bounds = path.boundingRect();
    const QPointF shift = box.center() - bounds.center();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPath(path.translated(shift));
}

void crossMark(QPainter& p, QPointF centre, qreal half, const QColor& color, qreal width)
{
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centre + QPointF(-half, -half), centre + QPointF(half, half));
    p.drawLine(centre + QPointF(-half, half), centre + QPointF(half, -half));
}

void alignLines(QPainter& p, Qt::Alignment align)
{
    const qreal widths[] = {24, 16, 24, 12, 20};
    for (int i = 0; i < 5; ++i) {
        qreal w = widths[i];
        if (align == Qt::AlignJustify)
            w = i == 4 ? 14 : 24;
        qreal x = 4;
        if (align == Qt::AlignRight)
            x = 28 - w;
        else if (align == Qt::AlignHCenter)
            x = 16 - w / 2;
        fill(p, x, 5 + i * 5, w, 2, ink);
    }
}

void clock(QPainter& p, QPointF c, qreal r)
{
    p.setPen(pen(ink));
    p.setBrush(paper);
    p.drawEllipse(c, r, r);
    p.setPen(roundPen(blue, 2));
    p.drawLine(c, c + QPointF(0, -r * 0.62));
    p.drawLine(c, c + QPointF(r * 0.5, 0));
}

void calendar(QPainter& p)
{
    p.setPen(pen(ink));
    p.setBrush(paper);
    p.drawRect(QRectF(5, 7, 22, 20));
    fill(p, 6, 8, 21, 5, red);
    fill(p, 10, 4, 2, 6, ink);
    fill(p, 20, 4, 2, 6, ink);
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 4; ++col)
            fill(p, 8 + col * 5, 15 + row * 4, 3, 2, row == 1 && col == 2 ? blue : grey);
}

void gear(QPainter& p, QPointF c, qreal r)
{
    QPainterPath teeth;
    for (int i = 0; i < 8; ++i) {
        QPainterPath tooth;
        tooth.addRect(QRectF(-2.5, -r - 3, 5, 6));
        teeth.addPath(QTransform().translate(c.x(), c.y()).rotate(i * 45).map(tooth));
    }
    QPainterPath body;
    body.addEllipse(c, r, r);
    QPainterPath hole;
    hole.addEllipse(c, r * 0.38, r * 0.38);
    const QPainterPath shape = body.united(teeth).subtracted(hole);
    p.setPen(pen(ink, 1.5));
    p.setBrush(grey);
    p.drawPath(shape);
}

void windowFrame(QPainter& p, const QColor& bar)
{
    p.setPen(pen(ink));
    p.setBrush(paper);
    p.drawRect(QRectF(3, 5, 26, 22));
    fill(p, 4, 6, 25, 5, bar);
}

} // namespace iconshapes
