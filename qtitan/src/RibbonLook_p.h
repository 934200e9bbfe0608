#pragma once

// The shapes a style family draws its ribbon with. Colours come from the
// family's theme table (RibbonColors_p.h); this says what is painted with them.

class QWidget;

namespace Qtitan {

class CommonStyle;

namespace detail {

/// One family's signature: how each part of the ribbon is shaped and filled.
struct RibbonLook
{
    /// How a background area is filled between its top and bottom colours.
    enum class Surface {
        Flat,     ///< one colour
        Gradient, ///< a smooth vertical gradient
        Glass     ///< a bright upper band over a deeper lower band, as on glass
    };
    enum class TabShape {
        Rounded, ///< rounded top corners, lit from above
        Square   ///< square corners and a hairline outline
    };
    /// What marks the groups of a page off from each other.
    enum class GroupMark {
        Line,        ///< a hairline between two groups
        FadingLine,  ///< a hairline that fades out towards both ends
        EtchedLine,  ///< a dark line beside a light one
        RoundedFrame ///< a rounded box around each group with its title in a band along the bottom
    };
    enum class SystemButtonShape {
        Block,     ///< a filled rectangle with the icon and the text
        FileTab,   ///< a coloured tab at the head of the tab row, with the text only
        Orb,       ///< a round glass button with the icon only
        ScenicTab  ///< a coloured tab with rounded top corners, the icon and a drop-down arrow
    };

    Surface frame;
    Surface page;
    TabShape tabs;
    GroupMark groups;
    SystemButtonShape systemButton;
    bool glossyButtons; ///< highlighted buttons shine in their upper half
};

/// The look of widgets under no ribbon style: flat and plain.
const RibbonLook& plainLook();
/// The look of a style: its family's, or the plain look for a bare CommonStyle.
const RibbonLook& lookOf(const CommonStyle& style);
/// The look in force for a widget, found the same way as its colours.
const RibbonLook& lookFor(const QWidget* widget);

} // namespace detail
} // namespace Qtitan
