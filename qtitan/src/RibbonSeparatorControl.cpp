#include "qtitan/RibbonSeparatorControl.h"

#include "RibbonPaint_p.h"

#include <QPainter>

namespace Qtitan {

RibbonSeparatorControl::RibbonSeparatorControl(RibbonGroup* parent)
    : RibbonControl(parent)
{
}

RibbonSeparatorControl::~RibbonSeparatorControl() = default;

QSize RibbonSeparatorControl::sizeHint() const
{
    return QSize(detail::SeparatorControlWidth, detail::RibbonMetrics::forWidget(this).contentHeight);
}

bool RibbonSeparatorControl::isLargeAt(RibbonControlSizeDefinition::GroupSize) const
{
    return true;
}

void RibbonSeparatorControl::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const RibbonColors colors = detail::colorsFor(this);
    const int x = width() / 2;
    p.setPen(colors.groupSeparator);
    p.drawLine(x, 2, x, height() - 3);
}

} // namespace Qtitan
