#include "RibbonLook_p.h"

#include "qtitan/CommonStyle.h"

#include "RibbonColors_p.h"

namespace Qtitan {
namespace detail {

const RibbonLook& plainLook()
{
    static const RibbonLook look = {RibbonLook::Surface::Flat, RibbonLook::Surface::Gradient,
                                    RibbonLook::TabShape::Rounded, RibbonLook::GroupMark::Line,
                                    RibbonLook::SystemButtonShape::Block, false};
    return look;
}

const RibbonLook& lookOf(const CommonStyle& style)
{
    return style.m_look ? *style.m_look : plainLook();
}

const RibbonLook& lookFor(const QWidget* widget)
{
    const CommonStyle* style = Scheme::commonStyleFor(widget);
    return style ? lookOf(*style) : plainLook();
}

} // namespace detail
} // namespace Qtitan
