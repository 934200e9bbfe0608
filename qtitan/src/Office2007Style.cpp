#include "qtitan/Office2007Style.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

namespace Qtitan {

namespace {

using Look = detail::RibbonLook;

// Glassy bands on the frame and the page, a rounded box around each group with its title in a band
// below, rounded tabs, the round application button and glossy warm highlights.
const Look FamilyLook = {Look::Surface::Glass, Look::Surface::Glass, Look::TabShape::Rounded,
                         Look::GroupMark::RoundedFrame, Look::SystemButtonShape::Orb, true};

// One row per theme, in the order of Office2007Style::Theme.
const Scheme::Seed Themes[] = {
    // frame   frameText pageTop   pageBottom pageBorder accent  text      workspace highlight
    {0xBFDBFF, 0x15428B, 0xDFEBF8, 0xC4D8F0, 0x8DB2E3, 0x2C5DA8, 0x15428B, 0x6591CD, 0xFFE38C}, // Blue
    {0x474747, 0xFFFFFF, 0xEEEEEE, 0xCED1D6, 0x8B8E93, 0x4B4B4B, 0x262626, 0x4A4A4A, 0xFFE38C}, // Black
    {0xD3D7E0, 0x3F4650, 0xF5F6F8, 0xD9DDE4, 0xA2A9B3, 0x6A7789, 0x2E343B, 0x9BA3AD, 0xFFE38C}, // Silver
    {0xB6D5E1, 0x184A5E, 0xEAF4F8, 0xC2DCE6, 0x82A8B9, 0x2A7390, 0x184A5E, 0x78A8BE, 0xFFE38C}, // Aqua
};
static_assert(sizeof(Themes) / sizeof(Themes[0]) == Office2007Style::Aqua + 1, "one row per theme");

} // namespace

Office2007Style::Office2007Style(Theme theme)
    : CommonStyle(FamilyLook)
    , m_theme(theme)
{
}

Office2007Style::~Office2007Style() = default;

Office2007Style::Theme Office2007Style::theme() const
{
    return m_theme;
}

void Office2007Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2007Style::ribbonColors() const
{
    return Scheme::build(Themes[m_theme]);
}

} // namespace Qtitan
