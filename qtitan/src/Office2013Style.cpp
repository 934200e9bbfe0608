#include "qtitan/Office2013Style.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

namespace Qtitan {

namespace {

using Look = detail::RibbonLook;

// One flat canvas from the title to the page, square tabs outlined by a hairline, a flat coloured
// File tab and flat highlights.
const Look FamilyLook = {Look::Surface::Flat, Look::Surface::Flat, Look::TabShape::Square,
                         Look::GroupMark::Line, Look::SystemButtonShape::FileTab, false};

// One row per theme, in the order of Office2013Style::Theme.
const Scheme::Seed Themes[] = {
    // frame   frameText pageTop   pageBottom pageBorder accent  text      workspace highlight
    {0xFFFFFF, 0x444444, 0xFFFFFF, 0xFFFFFF, 0xD4D4D4, 0x2B579A, 0x262626, 0xEBEBEB, 0xD5E1F2}, // White
    {0xF1F1F1, 0x444444, 0xF8F8F8, 0xF8F8F8, 0xC6C6C6, 0x2B579A, 0x262626, 0xDEDEDE, 0xD5E1F2}, // Gray
    {0x444444, 0xF0F0F0, 0x444444, 0x444444, 0x5E5E5E, 0x2B579A, 0xF0F0F0, 0x2E2E2E, 0x5A5A5A}, // Dark
};
static_assert(sizeof(Themes) / sizeof(Themes[0]) == Office2013Style::Dark + 1, "one row per theme");

} // namespace

Office2013Style::Office2013Style(Theme theme)
    : CommonStyle(FamilyLook)
    , m_theme(theme)
{
}

Office2013Style::~Office2013Style() = default;

Office2013Style::Theme Office2013Style::theme() const
{
    return m_theme;
}

void Office2013Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2013Style::ribbonColors() const
{
    return Scheme::build(Themes[m_theme]);
}

} // namespace Qtitan
