#include "qtitan/AdobePhotoshopStyle.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

namespace Qtitan {

namespace {

using Look = detail::RibbonLook;

// Flat grey panels, square tabs, a File tab in the blue accent and flat highlights.
const Look FamilyLook = {Look::Surface::Flat, Look::Surface::Flat, Look::TabShape::Square,
                         Look::GroupMark::Line, Look::SystemButtonShape::FileTab, false};

// One row per theme, in the order of AdobePhotoshopStyle::Theme.
const Scheme::Seed Themes[] = {
    // frame   frameText pageTop   pageBottom pageBorder accent  text      workspace highlight
    {0xDCDCDC, 0x1E1E1E, 0xF0F0F0, 0xF0F0F0, 0xC2C2C2, 0x1473E6, 0x1E1E1E, 0xCACACA, 0xD8D8D8}, // LightGray
    {0xA6A6A6, 0x101010, 0xB8B8B8, 0xB8B8B8, 0x929292, 0x1473E6, 0x101010, 0x8E8E8E, 0xCACACA}, // Gray
    {0x383838, 0xE4E4E4, 0x4A4A4A, 0x4A4A4A, 0x626262, 0x1473E6, 0xE8E8E8, 0x2A2A2A, 0x5E5E5E}, // DarkGray
    {0x1B1B1B, 0xD6D6D6, 0x323232, 0x323232, 0x474747, 0x1473E6, 0xD6D6D6, 0x141414, 0x474747}, // Black
};
static_assert(sizeof(Themes) / sizeof(Themes[0]) == AdobePhotoshopStyle::Black + 1, "one row per theme");

} // namespace

AdobePhotoshopStyle::AdobePhotoshopStyle(Theme theme)
    : CommonStyle(FamilyLook)
    , m_theme(theme)
{
}

AdobePhotoshopStyle::~AdobePhotoshopStyle() = default;

AdobePhotoshopStyle::Theme AdobePhotoshopStyle::theme() const
{
    return m_theme;
}

void AdobePhotoshopStyle::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors AdobePhotoshopStyle::ribbonColors() const
{
    return Scheme::build(Themes[m_theme]);
}

} // namespace Qtitan
