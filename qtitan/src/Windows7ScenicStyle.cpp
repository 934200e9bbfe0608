#include "qtitan/Windows7ScenicStyle.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

namespace Qtitan {

namespace {

using Look = detail::RibbonLook;

// The ribbon of WordPad and Paint: a glassy frame, a page that pales from white
// to sky blue, etched separators, rounded tabs, the blue application tab with
// its drop-down arrow and glossy sky-blue highlights.
const Look FamilyLook = {Look::Surface::Glass, Look::Surface::Gradient, Look::TabShape::Rounded,
                         Look::GroupMark::EtchedLine, Look::SystemButtonShape::ScenicTab, true};

const Scheme::Seed Theme = {
    // frame   frameText pageTop   pageBottom pageBorder accent  text      workspace highlight
    0xC9DCF2, 0x1E395B, 0xFFFFFF, 0xE1EAF6, 0xA0B3CD, 0x2A62B8, 0x1E395B, 0xABBAD3, 0xD7E8FC};

} // namespace

Windows7ScenicStyle::Windows7ScenicStyle()
    : CommonStyle(FamilyLook)
{
}

Windows7ScenicStyle::~Windows7ScenicStyle() = default;

RibbonColors Windows7ScenicStyle::ribbonColors() const
{
    return Scheme::build(Theme);
}

} // namespace Qtitan
