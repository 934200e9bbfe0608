#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2010 look: soft silvery gradients, group separators that fade out
/// at both ends, rounded tabs, the coloured File tab and glossy warm highlights.
///
/// @code
/// auto* style = new Qtitan::Office2010Style(Qtitan::Office2010Style::Blue);
/// QApplication::setStyle(style);
/// style->setTheme(Qtitan::Office2010Style::Black);   // repaints every ribbon widget
/// @endcode
class QTITAN_EXPORT Office2010Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    /// The colour schemes of this family.
    enum Theme {
        Black,  ///< dark grey frame over grey pages
        Blue,   ///< light blue frame over pages paling from white to blue
        Silver  ///< silver frame over pages paling from white to grey
    };
    Q_ENUM(Theme)

    /// Creates the style in the given theme.
    explicit Office2010Style(Theme theme = Black);
    ~Office2010Style() override;

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
