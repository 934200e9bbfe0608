#pragma once

#include "QtitanGlobal.h"

#include <QColor>

class QPalette;
class QWidget;

namespace Qtitan {

/// The colour scheme of one ribbon style and theme: everything the ribbon
/// widgets paint with. A CommonStyle supplies it; without one the colours
/// are derived from the widget's palette.
struct QTITAN_EXPORT RibbonColors
{
    QColor frameBackground;        ///< title strip and the row of tabs
    QColor titleText;              ///< window title drawn by the frame theme
    QColor tabText;
    QColor tabTextSelected;
    QColor tabHoverBackground;
    QColor tabSelectedBackground;  ///< the selected tab, joined to the page
    QColor tabBorder;
    QColor pageBackgroundTop;      ///< gradient of the page area
    QColor pageBackgroundBottom;
    QColor pageBorder;
    QColor groupTitleText;
    QColor groupSeparator;
    QColor buttonText;
    QColor buttonTextDisabled;
    QColor buttonHoverBackground;
    QColor buttonHoverBorder;
    QColor buttonPressedBackground;
    QColor buttonPressedBorder;
    QColor buttonCheckedBackground;
    QColor buttonCheckedBorder;
    QColor systemButtonBackground;
    QColor systemButtonText;
    QColor quickAccessBackground;
    QColor menuBackground;
    QColor menuText;
    QColor menuHighlight;
    QColor menuHighlightText;
    QColor menuBorder;
    QColor menuSeparator;
    QColor menuPopupBarBackground; ///< the bar of buttons along the system menu's bottom
    QColor workspaceBackground;    ///< the empty MDI area

    /// A scheme built from a plain palette, for widgets under a non-ribbon style.
    static RibbonColors fromPalette(const QPalette& palette);
    /// The scheme in force for a widget: its CommonStyle's, or one from its palette.
    static RibbonColors forWidget(const QWidget* widget);
};

} // namespace Qtitan
