// The demo's command icons: drawn on the 32-unit grid with 2-unit strokes
// whose centre lines lie on odd coordinates and fills that start on even
// ones, so that the 16 px rendering (scale 0.5) lands on whole pixels as well
// as the 32 px one.

#include "IconGlyphs_p.h"
#include "IconShapes_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>

using namespace iconshapes;

void paintCommandGlyph(QPainter& p, IconPainter::Glyph glyph, const QColor& accent)
{
    using G = IconPainter;
    switch (glyph) {
    case G::New:
        page(p);
        textLines(p, 11, 14, 10, 3);
        break;
    case G::Open:
        folder(p);
        break;
    case G::Save:
        disk(p);
        break;
    case G::SaveAs:
        disk(p, 0, 0, 0.85);
        p.setPen(QPen(orange, 4, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(18, 29), QPointF(29, 18));
        p.setPen(QPen(ink, 4, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(27.5, 19.5), QPointF(29.5, 17.5));
        arrowHead(p, QPointF(15, 31), 135, 4, ink);
        break;
    case G::SaveAll:
        disk(p, 6, 0, 0.8);
        disk(p, 0, 6, 0.8);
        break;
    case G::Revert:
        page(p);
        curvedArrow(p, false, green);
        break;
    case G::Close:
        page(p);
        textLines(p, 11, 12, 10, 2);
        crossMark(p, QPointF(22, 22), 5, red, 3.5);
        break;
    case G::CloseAll:
        page(p, 3, 1, 16, 22);
        page(p, 9, 7, 16, 22);
        crossMark(p, QPointF(23, 23), 5, red, 3.5);
        break;
    case G::ExportHtml:
        page(p);
        letters(p, QStringLiteral("</>"), QRectF(7, 12, 18, 12), blue, QFont::Bold, false, 10);
        straightArrow(p, QPointF(18, 26), QPointF(31, 26), green);
        break;
    case G::ExportText:
        page(p);
        textLines(p, 11, 11, 10, 3);
        straightArrow(p, QPointF(18, 26), QPointF(31, 26), green);
        break;
    case G::Properties:
        page(p);
        textLines(p, 11, 11, 10, 2);
        gear(p, QPointF(22, 22), 5);
        break;
    case G::Recent:
        page(p, 3, 3, 18, 24);
        textLines(p, 7, 11, 10, 2);
        clock(p, QPointF(22, 22), 8);
        break;
    case G::ClearRecent:
        clock(p, QPointF(14, 14), 10);
        crossMark(p, QPointF(24, 24), 5, red, 3.5);
        break;
    case G::Exit:
        p.setPen(pen(ink));
        p.setBrush(paperShade);
        p.drawRect(QRectF(5, 3, 14, 26));
        fill(p, 14, 15, 2, 3, ink);
        straightArrow(p, QPointF(13, 16), QPointF(31, 16), red, 4);
        break;
    case G::Undo:
        curvedArrow(p, false, blue);
        break;
    case G::Redo:
        curvedArrow(p, true, blue);
        break;
    case G::Cut: {
        p.setPen(roundPen(ink, 2.5));
        p.drawLine(QPointF(10, 3), QPointF(21, 20));
        p.drawLine(QPointF(22, 3), QPointF(11, 20));
        p.setPen(pen(red, 3));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QPointF(9, 24), 4.5, 4.5);
        p.drawEllipse(QPointF(23, 24), 4.5, 4.5);
        break;
    }
    case G::Copy:
        page(p, 3, 1, 16, 22, paperShade);
        page(p, 13, 9, 16, 22);
        textLines(p, 16, 17, 10, 3);
        break;
    case G::Paste:
    case G::PastePlain:
        p.setPen(pen(ink));
        p.setBrush(QColor(0xc8, 0x9a, 0x62));
        p.drawRect(QRectF(5, 5, 20, 24));
        p.setBrush(grey);
        p.drawRect(QRectF(11, 3, 8, 5));
        page(p, 13, 13, 16, 18);
        if (glyph == G::PastePlain)
            letters(p, QStringLiteral("A"), QRectF(14, 17, 14, 12), ink, QFont::Normal, false, 12);
        else
            textLines(p, 16, 20, 9, 3, grey, 3);
        break;
    case G::Delete:
        crossMark(p, QPointF(16, 16), 10, red, 5);
        break;
    case G::SelectAll:
        fill(p, 4, 4, 24, 24, blueLight);
        p.setPen(QPen(blue, 2, Qt::DashLine, Qt::FlatCap));
        p.setBrush(Qt::NoBrush);
        p.drawRect(QRectF(3, 3, 26, 26));
        textLines(p, 8, 9, 16, 4, ink, 4);
        break;
    case G::Find:
        magnifier(p);
        break;
    case G::FindNext:
        magnifier(p, 11, 11, 7);
        straightArrow(p, QPointF(20, 28), QPointF(31, 28), green, 3);
        break;
    case G::FindPrevious:
        magnifier(p, 11, 11, 7);
        straightArrow(p, QPointF(31, 28), QPointF(20, 28), green, 3);
        break;
    case G::Replace:
        letters(p, QStringLiteral("a"), QRectF(2, 2, 12, 12), ink, QFont::Bold, false, 16);
        letters(p, QStringLiteral("b"), QRectF(18, 17, 12, 13), blue, QFont::Bold, false, 16);
        p.setPen(roundPen(green, 2.5));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(8, 6, 16, 16), 30 * 16, -120 * 16);
        arrowHead(p, QPointF(16, 23), 170, 6, green);
        break;
    case G::DuplicateLine:
        fill(p, 4, 6, 24, 6, blueLight);
        fill(p, 6, 8, 18, 2, ink);
        fill(p, 4, 20, 24, 6, blueLight);
        fill(p, 6, 22, 18, 2, ink);
        straightArrow(p, QPointF(16, 12), QPointF(16, 20), green, 3);
        break;
    case G::UpperCase:
        letters(p, QStringLiteral("AB"), QRectF(0, 4, 32, 24), ink, QFont::Bold, false, 18);
        break;
    case G::LowerCase:
        letters(p, QStringLiteral("ab"), QRectF(0, 6, 32, 24), ink, QFont::Bold, false, 20);
        break;
    case G::ZoomIn:
    case G::ZoomOut:
        magnifier(p);
        fill(p, 9, 12, 8, 2, ink);
        if (glyph == G::ZoomIn)
            fill(p, 12, 9, 2, 8, ink);
        break;
    case G::ZoomReset:
        magnifier(p);
        letters(p, QStringLiteral("1"), QRectF(7, 7, 12, 12), ink, QFont::Bold, false, 11);
        break;
    case G::Zoom:
        magnifier(p);
        letters(p, QStringLiteral("%"), QRectF(7, 7, 12, 12), ink, QFont::Bold, false, 10);
        break;
    case G::WordWrap: {
        fill(p, 4, 6, 24, 2, ink);
        fill(p, 4, 24, 10, 2, ink);
        QPainterPath path;
        path.moveTo(4, 15);
        path.lineTo(22, 15);
        path.cubicTo(30, 15, 30, 25, 22, 25);
        path.lineTo(21, 25);
        p.setPen(QPen(blue, 2.5, Qt::SolidLine, Qt::FlatCap));
        p.setBrush(Qt::NoBrush);
        p.drawPath(path);
        arrowHead(p, QPointF(16, 25), 180, 6, blue);
        break;
    }
    case G::Ruler:
        p.setPen(pen(ink));
        p.setBrush(QColor(0xf6, 0xe2, 0x9c));
        p.drawRect(QRectF(1, 9, 30, 14));
        for (int x = 5; x < 30; x += 4)
            fill(p, x, 10, 2, (x - 5) % 8 == 0 ? 7 : 4, ink);
        break;
    case G::ReadOnly:
        page(p);
        textLines(p, 11, 10, 10, 2);
        p.setPen(pen(ink));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(17, 13, 10, 12), 0, 180 * 16);
        p.setBrush(orange);
        p.drawRect(QRectF(15, 19, 14, 11));
        break;
    case G::ToolBar:
        windowFrame(p);
        for (int i = 0; i < 4; ++i)
            fill(p, 6 + i * 6, 13, 4, 4, i == 0 ? blue : grey);
        break;
    case G::Panels:
        // Docked panels on both sides of the document.
        windowFrame(p);
        fill(p, 4, 11, 7, 15, blueLight);
        fill(p, 22, 11, 7, 15, blueLight);
        textLines(p, 5, 13, 5, 3, blue, 4);
        textLines(p, 23, 13, 5, 3, blue, 4);
        break;
    case G::StatusBar:
        windowFrame(p);
        fill(p, 4, 21, 25, 5, blueLight);
        fill(p, 6, 23, 8, 2, ink);
        break;
    case G::FullScreen:
        p.setPen(pen(ink, 3));
        p.setBrush(Qt::NoBrush);
        p.drawPolyline(QPolygonF() << QPointF(4, 12) << QPointF(4, 4) << QPointF(12, 4));
        p.drawPolyline(QPolygonF() << QPointF(20, 4) << QPointF(28, 4) << QPointF(28, 12));
        p.drawPolyline(QPolygonF() << QPointF(28, 20) << QPointF(28, 28) << QPointF(20, 28));
        p.drawPolyline(QPolygonF() << QPointF(12, 28) << QPointF(4, 28) << QPointF(4, 20));
        fill(p, 10, 10, 12, 12, blueLight);
        break;
    case G::NextDocument:
    case G::PreviousDocument:
        windowFrame(p, grey);
        fill(p, 4, 6, 10, 5, blue);
        straightArrow(p, glyph == G::NextDocument ? QPointF(8, 20) : QPointF(24, 20),
                      glyph == G::NextDocument ? QPointF(25, 20) : QPointF(7, 20), green, 3);
        break;
    case G::Date:
        calendar(p);
        break;
    case G::Time:
        clock(p, QPointF(16, 16), 12);
        break;
    case G::Table:
        p.setPen(pen(ink));
        p.setBrush(paper);
        p.drawRect(QRectF(3, 5, 26, 22));
        fill(p, 4, 6, 25, 6, blueLight);
        p.drawLine(QPointF(3, 13), QPointF(29, 13));
        p.drawLine(QPointF(3, 20), QPointF(29, 20));
        p.drawLine(QPointF(11, 5), QPointF(11, 27));
        p.drawLine(QPointF(21, 5), QPointF(21, 27));
        break;
    case G::Image: {
        p.setPen(pen(ink));
        p.setBrush(QColor(0xdd, 0xee, 0xfb));
        p.drawRect(QRectF(3, 5, 26, 22));
        p.setPen(Qt::NoPen);
        p.setBrush(yellow);
        p.drawEllipse(QPointF(22, 11), 3, 3);
        p.setBrush(green);
        p.drawPolygon(QPolygonF() << QPointF(4, 26) << QPointF(12, 14) << QPointF(19, 23) << QPointF(22, 19)
                                  << QPointF(28, 26));
        break;
    }
    case G::HorizontalLine:
        textLines(p, 4, 4, 24, 2, grey);
        fill(p, 2, 15, 28, 3, blue);
        textLines(p, 4, 24, 24, 2, grey);
        break;
    case G::BulletList:
    case G::NumberedList:
        for (int i = 0; i < 3; ++i) {
            const qreal y = 6 + i * 9;
            if (glyph == G::BulletList) {
                p.setPen(Qt::NoPen);
                p.setBrush(blue);
                p.drawEllipse(QPointF(6, y + 1), 3, 3);
            } else {
                letters(p, QString::number(i + 1), QRectF(1, y - 4, 10, 10), blue, QFont::Bold, false, 10);
            }
            fill(p, 12, y, 17, 2, ink);
        }
        break;
    case G::Link: {
        p.setPen(roundPen(blue, 3));
        p.setBrush(Qt::NoBrush);
        p.save();
        p.translate(16, 16);
        p.rotate(-45);
        p.drawRoundedRect(QRectF(-13, -4.5, 14, 9), 4.5, 4.5);
        p.drawRoundedRect(QRectF(-1, -4.5, 14, 9), 4.5, 4.5);
        p.restore();
        break;
    }
    case G::Symbol:
        letters(p, QString(QChar(0x03A9)), QRectF(2, 2, 28, 28), ink, QFont::Bold, false, 24);
        break;
    case G::Bold:
        letters(p, QStringLiteral("B"), QRectF(2, 2, 28, 28), ink, QFont::Black, false, 26);
        break;
    case G::Italic:
        letters(p, QStringLiteral("I"), QRectF(2, 2, 28, 28), ink, QFont::Bold, true, 26);
        break;
    case G::Underline:
        letters(p, QStringLiteral("U"), QRectF(2, 0, 28, 26), ink, QFont::Bold, false, 22);
        fill(p, 6, 27, 20, 2, blue);
        break;
    case G::StrikeOut:
        letters(p, QStringLiteral("S"), QRectF(2, 2, 28, 28), ink, QFont::Bold, false, 24);
        fill(p, 3, 15, 26, 2, red);
        break;
    case G::Superscript:
    case G::Subscript:
        letters(p, QStringLiteral("x"), QRectF(1, 6, 20, 22), ink, QFont::Bold, false, 22);
        letters(p, QStringLiteral("2"), glyph == G::Superscript ? QRectF(20, 1, 10, 12) : QRectF(20, 19, 10, 12),
                blue, QFont::Bold, false, 12);
        break;
    case G::AlignLeft:
        alignLines(p, Qt::AlignLeft);
        break;
    case G::AlignCenter:
        alignLines(p, Qt::AlignHCenter);
        break;
    case G::AlignRight:
        alignLines(p, Qt::AlignRight);
        break;
    case G::AlignJustify:
        alignLines(p, Qt::AlignJustify);
        break;
    case G::Indent:
    case G::Outdent:
        fill(p, 4, 4, 24, 2, ink);
        fill(p, 14, 11, 14, 2, ink);
        fill(p, 14, 18, 14, 2, ink);
        fill(p, 4, 25, 24, 2, ink);
        p.setPen(Qt::NoPen);
        p.setBrush(blue);
        if (glyph == G::Indent)
            p.drawPolygon(QPolygonF() << QPointF(4, 10) << QPointF(11, 15.5) << QPointF(4, 21));
        else
            p.drawPolygon(QPolygonF() << QPointF(11, 10) << QPointF(4, 15.5) << QPointF(11, 21));
        break;
    case G::GrowFont:
    case G::ShrinkFont:
        letters(p, QStringLiteral("A"), QRectF(0, 4, 22, 26), ink, QFont::Bold, false, glyph == G::GrowFont ? 24 : 16);
        p.setPen(Qt::NoPen);
        p.setBrush(glyph == G::GrowFont ? green : red);
        if (glyph == G::GrowFont)
            p.drawPolygon(QPolygonF() << QPointF(21, 10) << QPointF(26, 3) << QPointF(31, 10));
        else
            p.drawPolygon(QPolygonF() << QPointF(21, 4) << QPointF(26, 11) << QPointF(31, 4));
        break;
    case G::FontSize:
        letters(p, QStringLiteral("A"), QRectF(0, 8, 16, 22), ink, QFont::Bold, false, 20);
        letters(p, QStringLiteral("a"), QRectF(16, 14, 14, 16), blue, QFont::Bold, false, 14);
        break;
    case G::Font:
        // The font window: a dialog frame around a serif letter.
        windowFrame(p);
        letters(p, QStringLiteral("A"), QRectF(6, 12, 20, 14), ink, QFont::Bold, false, 15);
        break;
    case G::ClearFormat:
        letters(p, QStringLiteral("A"), QRectF(0, 2, 22, 24), ink, QFont::Bold, false, 22);
        p.save();
        p.translate(22, 22);
        p.rotate(-45);
        p.setPen(pen(ink, 1.5));
        p.setBrush(QColor(0xf3, 0x9a, 0xb4));
        p.drawRect(QRectF(-8, -4, 16, 8));
        p.setBrush(paper);
        p.drawRect(QRectF(-8, -4, 6, 8));
        p.restore();
        break;
    case G::Highlight: {
        const QColor mark = accent.isValid() ? accent : yellow;
        fill(p, 2, 24, 28, 6, mark);
        p.save();
        p.translate(17, 13);
        p.rotate(45);
        p.setPen(pen(ink, 1.5));
        p.setBrush(grey);
        p.drawRect(QRectF(-4, -12, 8, 15));
        p.setBrush(mark);
        p.drawPolygon(QPolygonF() << QPointF(-4, 3) << QPointF(4, 3) << QPointF(2, 9) << QPointF(-2, 9));
        p.restore();
        break;
    }
    case G::TextColor:
        letters(p, QStringLiteral("A"), QRectF(2, 0, 28, 24), ink, QFont::Bold, false, 22);
        fill(p, 3, 25, 26, 5, accent.isValid() ? accent : red);
        break;
    case G::WordCount:
        page(p);
        letters(p, QStringLiteral("123"), QRectF(7, 10, 18, 14), blue, QFont::Bold, false, 9);
        break;
    case G::SortLines:
        letters(p, QStringLiteral("A"), QRectF(1, 1, 14, 14), ink, QFont::Bold, false, 13);
        letters(p, QStringLiteral("Z"), QRectF(1, 17, 14, 14), ink, QFont::Bold, false, 13);
        straightArrow(p, QPointF(23, 3), QPointF(23, 29), blue, 3);
        break;
    case G::TrimSpaces:
        fill(p, 10, 6, 12, 2, ink);
        fill(p, 10, 12, 12, 2, ink);
        fill(p, 10, 18, 12, 2, ink);
        p.setPen(QPen(grey, 2, Qt::DotLine, Qt::FlatCap));
        p.drawLine(QPointF(22, 25), QPointF(31, 25));
        straightArrow(p, QPointF(1, 25), QPointF(10, 25), red, 2.5);
        straightArrow(p, QPointF(31, 13), QPointF(24, 13), red, 2.5);
        break;
    case G::AutoSave:
        disk(p, 0, 0, 0.85);
        clock(p, QPointF(23, 23), 7);
        break;
    case G::Keyboard:
        // A rounded body with two rows of keys and a space bar.
        p.save();
        p.scale(2, 2);
        p.setPen(QPen(QColor(0x44, 0x55, 0x66), 1));
        p.setBrush(QColor(0xf4, 0xf6, 0xf8));
        p.drawRoundedRect(QRectF(0.5, 3.5, 15, 9), 1.5, 1.5);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0x44, 0x55, 0x66));
        for (int row = 0; row < 2; ++row) {
            for (int col = 0; col < 6; ++col)
                p.drawRect(QRectF(2 + col * 2 + row, 5 + row * 2, 1.2, 1.2));
        }
        p.drawRect(QRectF(4, 9.5, 8, 1.3));
        p.restore();
        break;
    case G::Customize:
        // A window whose ribbon strip is being rearranged with a pencil.
        windowFrame(p);
        fill(p, 4, 11, 25, 6, blueLight);
        fill(p, 6, 12, 6, 4, blue);
        fill(p, 14, 12, 6, 4, grey);
        p.save();
        p.translate(22, 22);
        p.rotate(45);
        fill(p, -2.5, -10, 5, 13, orange);
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        p.drawPolygon(QPolygonF({QPointF(-2.5, 3), QPointF(2.5, 3), QPointF(0, 8)}));
        p.restore();
        break;
    case G::Help:
    case G::About:
        p.setPen(Qt::NoPen);
        p.setBrush(glyph == G::Help ? blue : green);
        p.drawEllipse(QPointF(16, 16), 14, 14);
        letters(p, glyph == G::Help ? QStringLiteral("?") : QStringLiteral("i"), QRectF(2, 2, 28, 28), paper,
                QFont::Bold, false, 22);
        break;
    case G::AboutQt:
        p.setPen(pen(ink));
        p.setBrush(paperShade);
        p.drawRoundedRect(QRectF(3, 5, 26, 22), 3, 3);
        letters(p, QStringLiteral("Qt"), QRectF(3, 5, 26, 22), green, QFont::Bold, false, 15);
        break;
    default:
        break;
    }
}
