#pragma once

#include "QtitanGlobal.h"

#include <QColor>

class QPalette;
class QWidget;

namespace Qtitan {

/// The colour scheme of one ribbon style and theme: everything the ribbon
/// widgets paint with. A CommonStyle supplies it; without one the colours
/// are derived from the widget's palette.
///
/// Custom widgets placed on a ribbon read it to paint in the same colours.
///
/// @code
/// void StatusBadge::paintEvent(QPaintEvent*)
/// {
///     const Qtitan::RibbonColors colors = Qtitan::RibbonColors::forWidget(this);
///     QPainter painter(this);
///     painter.fillRect(rect(), colors.buttonCheckedBackground);
///     painter.setPen(colors.buttonText);
///     painter.drawText(rect(), Qt::AlignCenter, text());
/// }
/// @endcode
struct QTITAN_EXPORT RibbonColors
{
    QColor frameBackground;          ///< title strip and the row of tabs
    QColor titleText;                ///< window title drawn by the frame theme
    QColor tabText;                  ///< titles of the tabs that are not selected
    QColor tabTextSelected;          ///< title of the selected tab
    QColor tabHoverBackground;       ///< a tab, or a button on the frame, under the mouse
    QColor tabSelectedBackground;    ///< the selected tab, joined to the page
    QColor tabBorder;                ///< outline of the selected tab
    QColor pageBackgroundTop;        ///< top of the page area's gradient
    QColor pageBackgroundBottom;     ///< bottom of the page area's gradient; also the window colour
    QColor pageBorder;               ///< outline of the page area
    QColor groupTitleText;           ///< group titles
    QColor groupSeparator;           ///< lines between groups
    QColor buttonText;               ///< labels of the controls on a page
    QColor buttonTextDisabled;       ///< labels of disabled controls
    QColor buttonHoverBackground;    ///< a button under the mouse
    QColor buttonHoverBorder;        ///< outline of a button under the mouse
    QColor buttonPressedBackground;  ///< a pressed button
    QColor buttonPressedBorder;      ///< outline of a pressed button
    QColor buttonCheckedBackground;  ///< a checked button
    QColor buttonCheckedBorder;      ///< outline of a checked button
    QColor systemButtonBackground;   ///< the system (File) button; also the selection colour
    QColor systemButtonText;         ///< title of the system button
    QColor quickAccessBackground;    ///< the quick access bar
    QColor menuBackground;           ///< menus and tool tips
    QColor menuText;                 ///< menu entries
    QColor menuHighlight;            ///< the menu entry under the mouse
    QColor menuHighlightText;        ///< text of the menu entry under the mouse
    QColor menuBorder;               ///< outline of a menu
    QColor menuSeparator;            ///< separators in menus
    QColor menuPopupBarBackground;   ///< the bar of buttons along the system menu's bottom
    QColor workspaceBackground;      ///< the empty MDI area

    /// A scheme built from a plain palette, for widgets under a non-ribbon style.
    static RibbonColors fromPalette(const QPalette& palette);
    /// The scheme in force for a widget: its CommonStyle's, or one from its palette.
    static RibbonColors forWidget(const QWidget* widget);
};

} // namespace Qtitan
