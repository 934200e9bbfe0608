#include "qtitan/Office2016Style.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

namespace Qtitan {

namespace {

using Look = detail::RibbonLook;

// Flat like 2013; Colorful carries the title and the tabs on a band of the accent colour, with
// the selected tab cut out of it in the page colour.
const Look FamilyLook = {Look::Surface::Flat, Look::Surface::Flat, Look::TabShape::Square,
                         Look::GroupMark::Line, Look::SystemButtonShape::FileTab, false};

// One row per theme, in the order of Office2016Style::Theme.
const Scheme::Seed Themes[] = {
    // frame   frameText pageTop   pageBottom pageBorder accent  text      workspace highlight
    {0x2B579A, 0xFFFFFF, 0xF3F3F3, 0xF3F3F3, 0xD5D5D5, 0x2B579A, 0x262626, 0xE6E6E6, 0xDCDCDC}, // Colorful
    {0xFFFFFF, 0x444444, 0xF3F3F3, 0xF3F3F3, 0xD4D4D4, 0x2B579A, 0x262626, 0xE6E6E6, 0xDCDCDC}, // White
    {0x444444, 0xF0F0F0, 0xC6C6C6, 0xC6C6C6, 0x9A9A9A, 0x2B579A, 0x1E1E1E, 0x6A6A6A, 0xDEDEDE}, // DarkGray
    {0x262626, 0xF0F0F0, 0x363636, 0x363636, 0x4A4A4A, 0x2B579A, 0xF0F0F0, 0x1E1E1E, 0x505050}, // Black
};
static_assert(sizeof(Themes) / sizeof(Themes[0]) == Office2016Style::Black + 1, "one row per theme");

} // namespace

Office2016Style::Office2016Style(Theme theme)
    : CommonStyle(FamilyLook)
    , m_theme(theme)
{
}

Office2016Style::~Office2016Style() = default;

Office2016Style::Theme Office2016Style::theme() const
{
    return m_theme;
}

void Office2016Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2016Style::ribbonColors() const
{
    return Scheme::build(Themes[m_theme]);
}

} // namespace Qtitan
