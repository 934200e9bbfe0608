#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2007 look: glassy bands on the frame and the page, a rounded box
/// around each group with its title in a band below, rounded tabs, the round
/// application button and glossy warm highlights.
///
/// @code
/// auto* style = new Qtitan::Office2007Style(Qtitan::Office2007Style::Silver);
/// QApplication::setStyle(style);
/// style->setTheme(Qtitan::Office2007Style::Blue);   // repaints every ribbon widget
/// @endcode
class QTITAN_EXPORT Office2007Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    /// The colour schemes of this family.
    enum Theme {
        Blue,   ///< light blue frame, dark blue text
        Black,  ///< dark grey frame over light grey pages
        Silver, ///< silver frame over near-white pages
        Aqua    ///< blue-green frame and pages
    };
    Q_ENUM(Theme)

    /// Creates the style in the given theme.
    explicit Office2007Style(Theme theme = Blue);
    ~Office2007Style() override;

    /// The current theme.
    Theme theme() const;
    /// Switches to another theme and, when it differs, repaints the widgets
    /// that use this style; themeChanged() follows.
    void setTheme(Theme theme);

    /// The colour scheme of the current theme.
    RibbonColors ribbonColors() const override;

private:
    Theme m_theme;
};

} // namespace Qtitan
