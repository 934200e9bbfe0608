#pragma once

#include "qtitan/RibbonColors.h"

#include <QRgb>

class QWidget;

namespace Qtitan {

class CommonStyle;

namespace Scheme {

/// Mixes two colours; amount 0 gives a, 1 gives b.
QColor mix(const QColor& a, const QColor& b, qreal amount);
/// True for colours a reader perceives as dark.
bool isDark(const QColor& color);
/// Relative luminance as the WCAG contrast formula defines it (0 black, 1 white).
qreal luminance(const QColor& color);
/// The WCAG contrast ratio of two colours, from 1 to 21.
qreal contrast(const QColor& a, const QColor& b);

/// The few colours a theme chooses; the rest of the scheme follows from them.
/// Each family keeps one row of these per theme, as plain 0xRRGGBB values.
struct Seed
{
    QRgb frame;      ///< tab row and title strip
    QRgb frameText;  ///< tab and title text on the frame
    QRgb pageTop;
    QRgb pageBottom;
    QRgb pageBorder;
    QRgb accent;     ///< system button
    QRgb text;       ///< text on the page and in menus
    QRgb workspace;
    QRgb highlight;  ///< a button under the mouse; pressed and checked buttons deepen it
};

/// The full scheme of a seed.
RibbonColors build(const Seed& seed);

/// The ribbon style that paints a widget: its own, or the application's
/// beneath a style sheet; null under any other style.
const CommonStyle* commonStyleFor(const QWidget* widget);

} // namespace Scheme
} // namespace Qtitan
