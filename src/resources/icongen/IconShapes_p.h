#pragma once

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>

class QPainter;

// The palette and the shapes that the resource icons and the command icons
// are drawn with.
namespace iconshapes {

const QColor ink(0x3b, 0x47, 0x58);
const QColor paper(0xff, 0xff, 0xff);
const QColor paperShade(0xe9, 0xee, 0xf5);
const QColor blue(0x2f, 0x6f, 0xd0);
const QColor blueDark(0x1d, 0x4a, 0x94);
const QColor blueLight(0xc9, 0xdc, 0xf8);
const QColor green(0x2f, 0xa0, 0x50);
const QColor greenDark(0x1c, 0x74, 0x37);
const QColor red(0xd9, 0x45, 0x3b);
const QColor redDark(0x9e, 0x2c, 0x25);
const QColor orange(0xf0, 0x8c, 0x2e);
const QColor yellow(0xf6, 0xc8, 0x3c);
const QColor teal(0x1f, 0xa3, 0xa0);
const QColor grey(0x9a, 0xa5, 0xb4);

/// A square-capped, mitred pen.
QPen pen(const QColor& color, qreal width = 2);
/// A round-capped, round-joined pen.
QPen roundPen(const QColor& color, qreal width = 2);
/// Fills the rectangle without an outline.
void fill(QPainter& p, qreal x, qreal y, qreal w, qreal h, const QColor& color);

// Pixel-exact shapes for the 32-pixel resource icons.

/// A rectangle whose edges fall on pixel centres: stroked with a 1 px pen it
/// covers pixels x..x+w-1, y..y+h-1.
QRectF cell(int x, int y, int w, int h);
/// Fills \a path and strokes it with a 1 px pen.
void outline(QPainter& p, const QPainterPath& path, const QColor& fill, const QColor& line);
/// An outlined rectangle on the pixel grid, with rounded corners for \a radius > 0.
void box(QPainter& p, int x, int y, int w, int h, const QColor& fill, const QColor& line, qreal radius = 0);

// Shapes of the command icons, on the 32-unit grid with 2-unit strokes.

/// A sheet of paper with a folded corner; x, y, w, h are the outline's centre line.
void page(QPainter& p, qreal x = 7, qreal y = 3, qreal w = 18, qreal h = 26, const QColor& background = paper);
/// \a count bars of text, \a step apart.
void textLines(QPainter& p, qreal x, qreal y, qreal w, int count, const QColor& color = grey, qreal step = 4);
void folder(QPainter& p);
/// A floppy disk, moved by (dx, dy) and scaled by s.
void disk(QPainter& p, qreal dx = 0, qreal dy = 0, qreal s = 1);
void magnifier(QPainter& p, qreal cx = 13, qreal cy = 13, qreal r = 8);
/// A small filled arrow head pointing along \a angle (degrees, 0 = right).
void arrowHead(QPainter& p, QPointF tip, qreal angle, qreal size, const QColor& color);
void straightArrow(QPainter& p, QPointF from, QPointF to, const QColor& color, qreal width = 3);
/// The undo arrow, mirrored for redo.
void curvedArrow(QPainter& p, bool forward, const QColor& color);
/// \a text centred in \a box, as filled outlines of DejaVu Sans.
void letters(QPainter& p, const QString& text, const QRectF& box, const QColor& color, int weight = QFont::Bold,
             bool italic = false, qreal pixelSize = 22);
void crossMark(QPainter& p, QPointF centre, qreal half, const QColor& color, qreal width = 3);
void alignLines(QPainter& p, Qt::Alignment align);
void clock(QPainter& p, QPointF c, qreal r);
void calendar(QPainter& p);
void gear(QPainter& p, QPointF c, qreal r);
/// A window with a title bar of colour \a bar.
void windowFrame(QPainter& p, const QColor& bar = blue);

} // namespace iconshapes
