#pragma once

#include "qtitan/RibbonColors.h"

namespace Qtitan {
namespace Scheme {

/// Mixes two colours; amount 0 gives a, 1 gives b.
QColor mix(const QColor& a, const QColor& b, qreal amount);
/// True for colours a reader perceives as dark.
bool isDark(const QColor& color);

/// The few colours a theme chooses; the rest of the scheme follows from them.
struct Seed
{
    QColor frame;      ///< tab row and title strip
    QColor frameText;  ///< tab and title text on the frame
    QColor pageTop;
    QColor pageBottom;
    QColor pageBorder;
    QColor accent;     ///< system button, checked and pressed states
    QColor text;       ///< text on the page and in menus
    QColor workspace;
};

/// The full scheme of a seed.
RibbonColors build(const Seed& seed);

/// Hover, pressed and checked colours in the warm tones of the older office looks.
void applyWarmHighlights(RibbonColors& colors);

} // namespace Scheme
} // namespace Qtitan
