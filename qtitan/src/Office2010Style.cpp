#include "qtitan/Office2010Style.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

namespace Qtitan {

namespace {

using Look = detail::RibbonLook;

// Soft silvery gradients, group separators that fade out at both ends, rounded tabs, the coloured
// File tab and glossy warm highlights.
const Look FamilyLook = {Look::Surface::Gradient, Look::Surface::Gradient, Look::TabShape::Rounded,
                         Look::GroupMark::FadingLine, Look::SystemButtonShape::FileTab, true};

// One row per theme, in the order of Office2010Style::Theme.
const Scheme::Seed Themes[] = {
    // frame   frameText pageTop   pageBottom pageBorder accent  text      workspace highlight
    {0x363636, 0xF2F2F2, 0xDCDCDC, 0xB5B5B5, 0x5C5C5C, 0x2B579A, 0x1A1A1A, 0x5E5E5E, 0xFDE49A}, // Black
    {0xD4E1F1, 0x1E395B, 0xFFFFFF, 0xD5E2F3, 0x9FB7D6, 0x2B579A, 0x1E395B, 0xABC3E3, 0xFDE49A}, // Blue
    {0xE9ECF0, 0x3B3B3B, 0xFFFFFF, 0xE4E7EB, 0xB6BCC4, 0x2B579A, 0x2B2B2B, 0xC6CCD3, 0xFDE49A}, // Silver
};
static_assert(sizeof(Themes) / sizeof(Themes[0]) == Office2010Style::Silver + 1, "one row per theme");

} // namespace

Office2010Style::Office2010Style(Theme theme)
    : CommonStyle(FamilyLook)
    , m_theme(theme)
{
}

Office2010Style::~Office2010Style() = default;

Office2010Style::Theme Office2010Style::theme() const
{
    return m_theme;
}

void Office2010Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2010Style::ribbonColors() const
{
    return Scheme::build(Themes[m_theme]);
}

} // namespace Qtitan
