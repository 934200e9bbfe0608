#include "qtitan/RibbonButtonControl.h"

#include "RibbonToolButton_p.h"

#include <QAction>
#include <QResizeEvent>

namespace Qtitan {

class RibbonButtonControl::Private
{
public:
    detail::RibbonToolButton* button = nullptr;
};

namespace {

struct Look
{
    RibbonControlSizeDefinition::ControlImageSize image;
    bool label;
};

// What a button shows at a group size: its size definition, capped by its style.
Look lookAt(const RibbonButtonControl* control,
                                          RibbonControlSizeDefinition::GroupSize size)
{
    const RibbonControlSizeDefinition* definition = control->sizeDefinition(size);
    RibbonControlSizeDefinition::ControlImageSize image = definition->imageSize();
    bool label = definition->isLabelVisible();
    switch (control->toolButtonStyle()) {
    case Qt::ToolButtonIconOnly:
        label = false;
        image = RibbonControlSizeDefinition::ImageSmall;
        break;
    case Qt::ToolButtonTextOnly:
        image = RibbonControlSizeDefinition::ImageNone;
        label = true;
        break;
    case Qt::ToolButtonTextBesideIcon:
        if (image == RibbonControlSizeDefinition::ImageLarge)
            image = RibbonControlSizeDefinition::ImageSmall;
        break;
    case Qt::ToolButtonTextUnderIcon:
    case Qt::ToolButtonFollowStyle:
        break;
    }
    if (image == RibbonControlSizeDefinition::ImageNone && !label)
        label = true;
    return {image, label};
}

} // namespace

RibbonButtonControl::RibbonButtonControl(RibbonGroup* parent)
    : RibbonControl(parent), d(new Private)
{
    d->button = new detail::RibbonToolButton(this);
    d->button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    RibbonButtonControl::adjustCurrentSize(currentSize());
}

RibbonButtonControl::~RibbonButtonControl()
{
    delete d;
}

QToolButton* RibbonButtonControl::widget() const
{
    return d->button;
}

Qt::ToolButtonStyle RibbonButtonControl::toolButtonStyle() const
{
    return d->button->toolButtonStyle();
}

void RibbonButtonControl::setToolButtonStyle(Qt::ToolButtonStyle style)
{
    if (d->button->toolButtonStyle() == style)
        return;
    d->button->setToolButtonStyle(style);
    adjustCurrentSize(currentSize());
    invalidateSize();
}

QToolButton::ToolButtonPopupMode RibbonButtonControl::popupMode() const
{
    return d->button->popupMode();
}

void RibbonButtonControl::setPopupMode(QToolButton::ToolButtonPopupMode mode)
{
    d->button->setPopupMode(mode);
    d->button->update();
}

void RibbonButtonControl::setDefaultAction(QAction* action)
{
    QAction* old = defaultAction();
    if (old && old != action && d->button->actions().contains(old))
        d->button->removeAction(old);
    // QToolButton turns into a split button when it first sees a menu; the
    // popup mode stays what was chosen for the control.
    const QToolButton::ToolButtonPopupMode mode = d->button->popupMode();
    d->button->setDefaultAction(action);
    d->button->setPopupMode(mode);
    if (!action) {
        d->button->setText(QString());
        d->button->setIcon(QIcon());
        d->button->setToolTip(QString());
    }
    RibbonControl::setDefaultAction(action);
    adjustCurrentSize(currentSize());
}

void RibbonButtonControl::adjustCurrentSize(RibbonControlSizeDefinition::GroupSize size)
{
    RibbonControl::adjustCurrentSize(size);
    const Look look = lookAt(this, size);
    d->button->setLook(look.image, look.label);
}

void RibbonButtonControl::actionChanged()
{
    RibbonControl::actionChanged();
    d->button->update();
}

bool RibbonButtonControl::isLargeAt(RibbonControlSizeDefinition::GroupSize size) const
{
    return lookAt(this, size).image == RibbonControlSizeDefinition::ImageLarge;
}

QSize RibbonButtonControl::computeSizeHint(RibbonControlSizeDefinition::GroupSize size) const
{
    const Look look = lookAt(this, size);
    return d->button->sizeForLook(look.image, look.label);
}

QSize RibbonButtonControl::sizeHint() const
{
    return sizeHintForSize(currentSize());
}

QSize RibbonButtonControl::minimumSizeHint() const
{
    return sizeHint();
}

void RibbonButtonControl::resizeEvent(QResizeEvent* event)
{
    RibbonControl::resizeEvent(event);
    d->button->setGeometry(rect());
}

} // namespace Qtitan
