#include "qtitan/RibbonControlSizeDefinition.h"

#include "qtitan/RibbonControl.h"

namespace Qtitan {

RibbonControlSizeDefinition::RibbonControlSizeDefinition(RibbonControl* parent, GroupSize size)
    : QObject(parent), m_groupSize(size)
{
    switch (size) {
    case GroupLarge:
    case GroupPopup:
        m_imageSize = ImageLarge;
        m_labelVisible = true;
        break;
    case GroupMedium:
        m_imageSize = ImageSmall;
        m_labelVisible = true;
        break;
    case GroupSmall:
        m_imageSize = ImageSmall;
        m_labelVisible = false;
        break;
    }
}

RibbonControlSizeDefinition::~RibbonControlSizeDefinition() = default;

RibbonControlSizeDefinition::GroupSize RibbonControlSizeDefinition::groupSize() const
{
    return m_groupSize;
}

RibbonControlSizeDefinition::ControlImageSize RibbonControlSizeDefinition::imageSize() const
{
    return m_imageSize;
}

void RibbonControlSizeDefinition::setImageSize(ControlImageSize size)
{
    if (m_imageSize == size)
        return;
    m_imageSize = size;
    emit changed();
}

bool RibbonControlSizeDefinition::isLabelVisible() const
{
    return m_labelVisible;
}

void RibbonControlSizeDefinition::setLabelVisible(bool visible)
{
    if (m_labelVisible == visible)
        return;
    m_labelVisible = visible;
    emit changed();
}

} // namespace Qtitan
