// The library's resource icons: crisp at 32 pixels, with axis-aligned edges
// on half-pixel coordinates stroked with a 1 px pen.

#include "IconGlyphs_p.h"
#include "IconShapes_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>

using namespace iconshapes;

namespace {

// The shared "add" mark: a green disc with a white plus, bottom right.
void addBadge(QPainter& p)
{
    p.setPen(Qt::NoPen);
    p.setBrush(paper);
    p.drawEllipse(QRectF(15, 15, 17, 17));
    p.setPen(QPen(greenDark, 1.0));
    p.setBrush(green);
    p.drawEllipse(QRectF(16.5, 16.5, 14, 14));
    fill(p, 22, 19, 3, 9, paper);
    fill(p, 19, 22, 9, 3, paper);
}

QPainterPath plusPath(int centre, int arm, int half)
{
    // Cross of two bars, `half` pixels either side of the centre line.
    QPainterPath v, h;
    v.addRect(cell(centre - half, centre - arm, 2 * half, 2 * arm));
    h.addRect(cell(centre - arm, centre - half, 2 * arm, 2 * half));
    return v.united(h).simplified();
}

void drawPlus(QPainter& p)
{
    outline(p, plusPath(16, 13, 4), green, greenDark);
    // A lighter top-left rim gives the flat glyph a little body.
    p.setPen(QPen(QColor(0x6c, 0xc4, 0x85), 1.0));
    p.drawLine(QPointF(13.5, 4.5), QPointF(18.5, 4.5));
    p.drawLine(QPointF(4.5, 13.5), QPointF(4.5, 18.5));
}

void drawLogo(QPainter& p)
{
    // A 3x3 mosaic of tiles; the strong tiles spell a T, the rest stay faint.
    const QColor strong[3][3] = {
        {blue, teal, orange},
        {QColor(), blueDark, QColor()},
        {QColor(), blue, QColor()},
    };
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            const int x = 2 + col * 10;
            const int y = 2 + row * 10;
            if (strong[row][col].isValid()) {
                box(p, x, y, 8, 8, strong[row][col], strong[row][col].darker(135), 1.5);
                p.setPen(QPen(QColor(255, 255, 255, 110), 1.0));
                p.drawLine(QPointF(x + 1.5, y + 1.5), QPointF(x + 6.5, y + 1.5));
            } else {
                box(p, x, y, 8, 8, QColor(0xc9, 0xdc, 0xf8, 120), QColor(0x9d, 0xb8, 0xe0, 170), 1.5);
            }
        }
    }
}

void drawAddPanel(QPainter& p)
{
    // A ribbon page: a tab on top, a body with two groups.
    box(p, 4, 3, 11, 6, blue, blueDark);
    box(p, 1, 8, 28, 20, paper, ink);
    fill(p, 5, 8, 9, 1, blue);
    fill(p, 2, 9, 26, 3, blueLight);
    box(p, 4, 14, 10, 11, paperShade, grey);
    box(p, 16, 14, 10, 11, paperShade, grey);
    fill(p, 5, 22, 8, 2, grey);
    fill(p, 17, 22, 8, 2, grey);
    addBadge(p);
}

void drawAddGroup(QPainter& p)
{
    // A ribbon group: buttons above a caption bar.
    box(p, 2, 3, 25, 24, paperShade, ink, 1.5);
    box(p, 5, 6, 9, 11, blue, blueDark);
    fill(p, 7, 9, 5, 1, paper);
    fill(p, 7, 12, 5, 1, paper);
    fill(p, 16, 7, 8, 2, grey);
    fill(p, 16, 11, 8, 2, grey);
    fill(p, 16, 15, 5, 2, grey);
    fill(p, 3, 21, 23, 5, blueLight);
    fill(p, 3, 20, 23, 1, QColor(0x9d, 0xb8, 0xe0));
    fill(p, 9, 23, 11, 1, blueDark);
    addBadge(p);
}

void drawAddCommand(QPainter& p)
{
    // An arrow carrying a command into a list, aimed at the highlighted row.
    box(p, 13, 3, 17, 26, paper, ink);
    for (int i = 0; i < 4; ++i) {
        const int y = 7 + i * 5;
        if (i == 2) {
            fill(p, 14, y - 1, 15, 4, blueLight);
            fill(p, 16, y, 11, 2, blue);
        } else {
            fill(p, 16, y, 11, 2, grey);
        }
    }
    QPainterPath arrow;
    arrow.moveTo(1.5, 15.5);
    arrow.lineTo(10.5, 15.5);
    arrow.lineTo(10.5, 11.5);
    arrow.lineTo(18.5, 18.0);
    arrow.lineTo(10.5, 24.5);
    arrow.lineTo(10.5, 20.5);
    arrow.lineTo(1.5, 20.5);
    arrow.closeSubpath();
    outline(p, arrow, green, greenDark);
}

void drawAddGroupAction(QPainter& p)
{
    // A split button with its drop-down menu open below it.
    box(p, 1, 2, 30, 13, paper, ink, 1.5);
    box(p, 4, 5, 7, 7, blue, blueDark);
    fill(p, 13, 7, 7, 2, grey);
    fill(p, 22, 3, 1, 11, grey);
    QPolygonF arrow;
    arrow << QPointF(24, 7) << QPointF(30, 7) << QPointF(27, 10.5);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawPolygon(arrow);
    box(p, 6, 15, 23, 15, paper, ink);
    fill(p, 7, 15, 21, 1, paperShade);
    fill(p, 9, 18, 3, 3, blue);
    fill(p, 14, 19, 11, 1, ink);
    fill(p, 7, 23, 21, 5, blueLight);
    fill(p, 9, 24, 3, 3, orange);
    fill(p, 14, 25, 11, 1, ink);
}

void drawAddSeparator(QPainter& p)
{
    // Two buttons parted by a separator line.
    box(p, 2, 8, 10, 16, blueLight, blue, 1.5);
    box(p, 20, 8, 10, 16, blueLight, blue, 1.5);
    fill(p, 5, 12, 4, 4, blue);
    fill(p, 23, 12, 4, 4, blue);
    fill(p, 4, 19, 6, 2, blue);
    fill(p, 22, 19, 6, 2, blue);
    fill(p, 15, 3, 2, 26, ink);
    fill(p, 13, 3, 6, 1, ink);
    fill(p, 13, 28, 6, 1, ink);
}

QPainterPath upArrow()
{
    QPainterPath path;
    path.moveTo(16.0, 2.5);
    path.lineTo(28.5, 15.5);
    path.lineTo(20.5, 15.5);
    path.lineTo(20.5, 28.5);
    path.lineTo(11.5, 28.5);
    path.lineTo(11.5, 15.5);
    path.lineTo(3.5, 15.5);
    path.closeSubpath();
    return path;
}

void drawUp(QPainter& p)
{
    outline(p, upArrow(), blue, blueDark);
}

void drawDown(QPainter& p)
{
    // The same arrow turned over the horizontal middle line, so both stay on the pixel grid.
    const QTransform flip(1, 0, 0, -1, 0, 31);
    outline(p, flip.map(upArrow()), blue, blueDark);
}

void drawRemove(QPainter& p)
{
    QPainterPath bar;
    bar.addRoundedRect(QRectF(-13, -3.5, 26, 7), 2, 2);
    QTransform a;
    a.translate(16, 16);
    a.rotate(45);
    QTransform b;
    b.translate(16, 16);
    b.rotate(-45);
    const QPainterPath cross = a.map(bar).united(b.map(bar)).simplified();
    outline(p, cross, red, redDark);
}

void drawAddToGroup(QPainter& p)
{
    // An arrow carrying a command into the open drop-down menu of a group button.
    box(p, 12, 1, 19, 9, paper, ink, 1.5);
    box(p, 14, 3, 5, 5, blue, blueDark);
    fill(p, 24, 2, 1, 7, grey);
    QPolygonF drop;
    drop << QPointF(25.5, 4.5) << QPointF(30, 4.5) << QPointF(27.75, 7);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawPolygon(drop);
    box(p, 12, 9, 19, 21, paper, ink);
    fill(p, 16, 12, 11, 2, grey);
    fill(p, 13, 16, 17, 5, blueLight);
    fill(p, 18, 17, 9, 3, blue);
    fill(p, 16, 24, 11, 2, grey);
    QPainterPath arrow;
    arrow.moveTo(1.5, 16.5);
    arrow.lineTo(8.5, 16.5);
    arrow.lineTo(8.5, 12.5);
    arrow.lineTo(16.5, 18.5);
    arrow.lineTo(8.5, 24.5);
    arrow.lineTo(8.5, 20.5);
    arrow.lineTo(1.5, 20.5);
    arrow.closeSubpath();
    outline(p, arrow, green, greenDark);
}

// A classic toolbar across the top half: a grip and three buttons.
void toolBarStrip(QPainter& p)
{
    box(p, 1, 3, 30, 13, paperShade, ink, 1.5);
    for (int y = 6; y <= 12; y += 2)
        fill(p, 3, y, 2, 1, grey);
    box(p, 7, 6, 7, 7, blue, blueDark);
    box(p, 15, 6, 7, 7, teal, teal.darker(135));
    box(p, 23, 6, 6, 7, orange, orange.darker(135));
}

void drawAddToolBar(QPainter& p)
{
    toolBarStrip(p);
    addBadge(p);
}

void drawRemoveToolBar(QPainter& p)
{
    // The strip with a red "minus" disc where the add mark sits.
    toolBarStrip(p);
    p.setPen(Qt::NoPen);
    p.setBrush(paper);
    p.drawEllipse(QRectF(15, 15, 17, 17));
    p.setPen(QPen(redDark, 1.0));
    p.setBrush(red);
    p.drawEllipse(QRectF(16.5, 16.5, 14, 14));
    fill(p, 19, 22, 9, 3, paper);
}

void drawRenameToolBar(QPainter& p)
{
    // The strip above a title field, with a pencil writing in it.
    toolBarStrip(p);
    box(p, 1, 19, 22, 10, paper, ink);
    fill(p, 4, 23, 9, 2, ink);
    fill(p, 14, 21, 1, 6, blueDark);
    QTransform pencil;
    pencil.translate(22.5, 24.5);
    pencil.rotate(135);
    QPainterPath body;
    body.addRect(QRectF(-7, -2.5, 10, 5));
    outline(p, pencil.map(body), orange, orange.darker(150));
    QPainterPath eraser;
    eraser.addRect(QRectF(-9, -2.5, 2, 5));
    outline(p, pencil.map(eraser), red, redDark);
    QPainterPath tip;
    tip.moveTo(3, -2.5);
    tip.lineTo(7, 0);
    tip.lineTo(3, 2.5);
    tip.closeSubpath();
    outline(p, pencil.map(tip), QColor(0xf3, 0xd9, 0xb1), ink);
}

} // namespace

void paintResourceGlyph(QPainter& p, IconPainter::Glyph glyph)
{
    using G = IconPainter;
    switch (glyph) {
    case G::Plus:
        drawPlus(p);
        break;
    case G::Logo:
        drawLogo(p);
        break;
    case G::AddPage:
        drawAddPanel(p);
        break;
    case G::AddGroup:
        drawAddGroup(p);
        break;
    case G::AddCommand:
        drawAddCommand(p);
        break;
    case G::AddGroupCommand:
        drawAddGroupAction(p);
        break;
    case G::AddSeparator:
        drawAddSeparator(p);
        break;
    case G::MoveUp:
        drawUp(p);
        break;
    case G::MoveDown:
        drawDown(p);
        break;
    case G::Remove:
        drawRemove(p);
        break;
    case G::AddToGroup:
        drawAddToGroup(p);
        break;
    case G::AddToolBar:
        drawAddToolBar(p);
        break;
    case G::RemoveToolBar:
        drawRemoveToolBar(p);
        break;
    case G::RenameToolBar:
        drawRenameToolBar(p);
        break;
    default:
        break;
    }
}
