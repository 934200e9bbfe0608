#include "RibbonHover_p.h"

#include <QApplication>
#include <QCursor>
#include <QHoverEvent>
#include <QWidget>

namespace Qtitan {
namespace detail {

namespace {

bool cursorOver(const QWidget* widget, const QPoint& global)
{
    if (!widget->isVisible())
        return false;
    const QWidget* top = QApplication::widgetAt(global);
    return top && (top == widget || widget->isAncestorOf(top));
}

void leave(QWidget* widget, const QPoint& global)
{
    widget->setAttribute(Qt::WA_UnderMouse, false);
    QEvent leaveEvent(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &leaveEvent);
    if (widget->testAttribute(Qt::WA_Hover)) {
        QHoverEvent hover(QEvent::HoverLeave, QPointF(-1, -1), widget->mapFromGlobal(global));
        QCoreApplication::sendEvent(widget, &hover);
    }
    widget->update();
}

} // namespace

void syncUnderMouse(QWidget* root)
{
    if (!root)
        return;
    const QPoint global = QCursor::pos();
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : qAsConst(widgets)) {
        if (widget->underMouse() && !cursorOver(widget, global))
            leave(widget, global);
    }
}

} // namespace detail
} // namespace Qtitan
