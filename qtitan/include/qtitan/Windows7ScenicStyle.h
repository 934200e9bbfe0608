#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Windows 7 scenic ribbon look, as in WordPad and Paint: a glassy frame,
/// a page that pales from white to sky blue, etched separators, rounded tabs,
/// the blue application tab with its drop-down arrow and glossy sky-blue
/// highlights. It has a single colour scheme.
///
/// @code
/// QApplication::setStyle(new Qtitan::Windows7ScenicStyle);
/// @endcode
class QTITAN_EXPORT Windows7ScenicStyle : public CommonStyle
{
    Q_OBJECT
public:
    /// Creates the style.
    Windows7ScenicStyle();
    ~Windows7ScenicStyle() override;

    /// The style's one colour scheme.
    RibbonColors ribbonColors() const override;
};

} // namespace Qtitan
