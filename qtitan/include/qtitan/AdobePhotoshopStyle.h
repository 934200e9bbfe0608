#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Adobe Photoshop look: flat grey panels, square tabs, a File tab in the
/// blue accent and flat highlights.
///
/// @code
/// auto* style = new Qtitan::AdobePhotoshopStyle(Qtitan::AdobePhotoshopStyle::DarkGray);
/// QApplication::setStyle(style);
/// style->setTheme(Qtitan::AdobePhotoshopStyle::LightGray);   // repaints every ribbon widget
/// @endcode
class QTITAN_EXPORT AdobePhotoshopStyle : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    /// The colour schemes of this family.
    enum Theme {
        LightGray, ///< light grey panels, dark text
        Gray,      ///< mid grey panels, dark text
        DarkGray,  ///< dark grey panels, light text
        Black      ///< near-black panels, light text
    };
    Q_ENUM(Theme)

    /// Creates the style in the given theme.
    explicit AdobePhotoshopStyle(Theme theme = LightGray);
    ~AdobePhotoshopStyle() override;

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
