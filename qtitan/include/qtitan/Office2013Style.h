#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2013 look: one flat canvas from the title to the page, square tabs
/// outlined by a hairline, a flat coloured File tab and flat highlights.
///
/// @code
/// auto* style = new Qtitan::Office2013Style(Qtitan::Office2013Style::Gray);
/// QApplication::setStyle(style);
/// style->setTheme(Qtitan::Office2013Style::White);   // repaints every ribbon widget
/// @endcode
class QTITAN_EXPORT Office2013Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    /// The colour schemes of this family.
    enum Theme {
        White, ///< white throughout
        Gray,  ///< light grey frame over near-white pages
        Dark   ///< dark grey throughout, light text
    };
    Q_ENUM(Theme)

    /// Creates the style in the given theme.
    explicit Office2013Style(Theme theme = White);
    ~Office2013Style() override;

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
