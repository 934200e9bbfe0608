#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2016 look: flat like Office2013Style; the Colorful theme carries
/// the title and the tabs on a band of the accent colour, with the selected tab
/// cut out of it in the page colour.
///
/// @code
/// auto* style = new Qtitan::Office2016Style(Qtitan::Office2016Style::Black);
/// QApplication::setStyle(style);
/// style->setTheme(Qtitan::Office2016Style::Colorful);   // repaints every ribbon widget
/// @endcode
class QTITAN_EXPORT Office2016Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    /// The colour schemes of this family.
    enum Theme {
        Colorful, ///< a blue band carries title and tabs over light grey pages
        White,    ///< white frame over light grey pages
        DarkGray, ///< dark grey frame over mid grey pages
        Black     ///< near-black frame over dark pages, light text
    };
    Q_ENUM(Theme)

    /// Creates the style in the given theme.
    explicit Office2016Style(Theme theme = Colorful);
    ~Office2016Style() override;

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
