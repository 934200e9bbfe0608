#include "qtitan/RibbonControl.h"

#include "RibbonGroup_p.h"
#include "qtitan/RibbonGroup.h"

#include <QAction>
#include <QEvent>
#include <QPointer>

namespace Qtitan {

class RibbonControl::Private
{
public:
    QPointer<RibbonGroup> group;
    QPointer<QAction> action;
    RibbonControlSizeDefinition* definitions[4] = {};
    RibbonControlSizeDefinition::GroupSize current = RibbonControlSizeDefinition::GroupLarge;
    mutable QSize hints[4];
    mutable bool hintValid[4] = {false, false, false, false};
};

RibbonControl::RibbonControl(RibbonGroup* parent)
    : QWidget(parent), d(new Private)
{
    d->group = parent;
    for (int i = 0; i < 4; ++i) {
        auto* definition = new RibbonControlSizeDefinition(
            this, static_cast<RibbonControlSizeDefinition::GroupSize>(i));
        d->definitions[i] = definition;
        connect(definition, &RibbonControlSizeDefinition::changed, this, [this]() {
            adjustCurrentSize(d->current);
            invalidateSize();
        });
    }
}

RibbonControl::~RibbonControl()
{
    delete d;
}

RibbonGroup* RibbonControl::parentGroup() const
{
    if (d->group)
        return d->group;
    for (QWidget* w = parentWidget(); w; w = w->parentWidget()) {
        if (auto* group = qobject_cast<RibbonGroup*>(w))
            return group;
    }
    return nullptr;
}

QAction* RibbonControl::defaultAction() const
{
    return d->action;
}

void RibbonControl::setDefaultAction(QAction* action)
{
    d->action = action;
    invalidateSize();
}

RibbonControlSizeDefinition* RibbonControl::sizeDefinition(RibbonControlSizeDefinition::GroupSize size) const
{
    if (size < RibbonControlSizeDefinition::GroupLarge || size > RibbonControlSizeDefinition::GroupPopup)
        return nullptr;
    return d->definitions[size];
}

RibbonControlSizeDefinition::GroupSize RibbonControl::currentSize() const
{
    return d->current;
}

void RibbonControl::adjustCurrentSize(RibbonControlSizeDefinition::GroupSize size)
{
    d->current = size;
}

void RibbonControl::actionChanged()
{
    invalidateSize();
}

QSize RibbonControl::sizeHintForSize(RibbonControlSizeDefinition::GroupSize size) const
{
    if (size < RibbonControlSizeDefinition::GroupLarge || size > RibbonControlSizeDefinition::GroupPopup)
        return QSize();
    if (!d->hintValid[size]) {
        d->hints[size] = computeSizeHint(size);
        d->hintValid[size] = true;
    }
    return d->hints[size];
}

bool RibbonControl::isLargeAt(RibbonControlSizeDefinition::GroupSize) const
{
    return false;
}

QSize RibbonControl::computeSizeHint(RibbonControlSizeDefinition::GroupSize) const
{
    return sizeHint();
}

void RibbonControl::invalidateSize()
{
    for (bool& valid : d->hintValid)
        valid = false;
    updateGeometry();
    if (RibbonGroup* group = parentGroup())
        group->d->invalidate();
}

void RibbonControl::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        invalidateSize();
}

} // namespace Qtitan
