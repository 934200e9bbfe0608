#include "DemoRuler.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>

DemoRuler::DemoRuler(QTextEdit* editor)
    : QWidget(editor)
    , m_editor(editor)
{
    QFont small = font();
    small.setPixelSize(9);
    setFont(small);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(editor, &QTextEdit::cursorPositionChanged, this, qOverload<>(&QWidget::update));
    connect(editor->horizontalScrollBar(), &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
}

void DemoRuler::setZoom(int zoom)
{
    m_zoom = zoom;
    update();
}

QSize DemoRuler::sizeHint() const
{
    return QSize(200, 20);
}

void DemoRuler::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const QColor background(0xf4, 0xf6, 0xf9);
    p.fillRect(rect(), background);
    const qreal origin = m_editor->document()->documentMargin() - m_editor->horizontalScrollBar()->value();
    const qreal textWidth = m_editor->viewport()->width() - 2 * m_editor->document()->documentMargin();
    // The writable width in white, the margins in the background colour.
    p.fillRect(QRectF(origin, 3, qMax<qreal>(0, textWidth), height() - 6), Qt::white);
    p.setPen(QColor(0xc3, 0xcb, 0xd6));
    p.drawLine(0, height() - 1, width(), height() - 1);

    const qreal cm = logicalDpiX() / 2.54 * m_zoom / 100.0;
    p.setPen(QColor(0x55, 0x60, 0x70));
    for (int half = 1; origin + half * cm / 2 < width(); ++half) {
        const qreal x = qRound(origin + half * cm / 2) + 0.5;
        if (half % 2 == 0) {
            const QString label = QString::number(half / 2);
            const QRectF box(x - 10, 2, 20, height() - 4);
            p.drawText(box, Qt::AlignCenter, label);
        } else {
            p.drawLine(QPointF(x, height() / 2.0 - 2), QPointF(x, height() / 2.0 + 2));
        }
    }
    // The cursor's position, as a small marker on the lower edge.
    const int cursorX = m_editor->cursorRect().x();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2f, 0x6f, 0xd0));
    const QPointF tip(cursorX, height() - 2);
    p.drawPolygon(QPolygonF() << tip << tip + QPointF(-4, -5) << tip + QPointF(4, -5));
}
