#include "qtitan/RibbonWidgetControl.h"

#include "RibbonPaint_p.h"

#include <QEvent>
#include <QPointer>
#include <QWidgetAction>

namespace Qtitan {

class RibbonWidgetControl::Private
{
public:
    QPointer<QWidget> widget;
    // A QObject pointer: while the action is being destroyed it is no longer
    // a QWidgetAction, and a QPointer<QWidgetAction> would cast it to one.
    QPointer<QObject> owner;

    void release()
    {
        // During the action's own destruction it is no longer a QWidgetAction
        // and has already deleted its widgets.
        auto* action = qobject_cast<QWidgetAction*>(owner.data());
        if (action && widget)
            action->releaseWidget(widget);
        widget = nullptr;
        owner = nullptr;
    }
};

RibbonWidgetControl::RibbonWidgetControl(RibbonGroup* parent)
    : RibbonControl(parent), d(new Private)
{
}

RibbonWidgetControl::~RibbonWidgetControl()
{
    d->release();
    delete d;
}

QWidget* RibbonWidgetControl::contentWidget() const
{
    return d->widget;
}

void RibbonWidgetControl::setDefaultAction(QAction* action)
{
    if (action == defaultAction() && (d->widget || !action))
        return;
    d->release();
    if (auto* widgetAction = qobject_cast<QWidgetAction*>(action)) {
        d->owner = widgetAction;
        d->widget = widgetAction->requestWidget(this);
        if (d->widget) {
            d->widget->setParent(this);
            d->widget->setGeometry(rect());
            d->widget->show();
        }
    }
    RibbonControl::setDefaultAction(action);
}

QSize RibbonWidgetControl::computeSizeHint(RibbonControlSizeDefinition::GroupSize) const
{
    const int row = detail::RibbonMetrics::forWidget(this).rowHeight;
    if (!d->widget)
        return QSize(0, row);
    // As a layout would size it: the widget never grows past its maximum
    // width, and a wider control would leave a gap beside it.
    const QSize hint = d->widget->sizeHint().expandedTo(d->widget->minimumSizeHint());
    const int width = qMin(qMax(hint.width(), d->widget->minimumWidth()), d->widget->maximumWidth());
    return QSize(width, row);
}

QSize RibbonWidgetControl::sizeHint() const
{
    return sizeHintForSize(currentSize());
}

QSize RibbonWidgetControl::minimumSizeHint() const
{
    return sizeHint();
}

bool RibbonWidgetControl::event(QEvent* event)
{
    // The hosted widget's size hint changed (Qt posts this to its parent).
    if (event->type() == QEvent::LayoutRequest)
        invalidateSize();
    return RibbonControl::event(event);
}

void RibbonWidgetControl::resizeEvent(QResizeEvent* event)
{
    RibbonControl::resizeEvent(event);
    if (d->widget) {
        const int h = qMin(height(), qMax(d->widget->sizeHint().height(), d->widget->minimumHeight()));
        d->widget->setGeometry(0, (height() - h) / 2, width(), h);
    }
}

} // namespace Qtitan
