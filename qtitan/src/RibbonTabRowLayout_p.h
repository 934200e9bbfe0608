#pragma once

#include <QVector>

namespace Qtitan {
namespace detail {

/// How the row of tabs shares its width with the corner widget. A narrowing
/// row first takes the tabs' padding, then elides their titles down to a
/// minimum each, then shrinks the corner widget down to its minimum width,
/// and only then scrolls the tabs (no tab is ever left out). When even the
/// scroll arrows and one tab would not fit beside it, the corner widget goes.
struct RibbonTabRowLayout
{
    enum : int {
        Padding = 14,         ///< space left and right of a title at full width
        MinimumPadding = 5,
        Spacing = 2,          ///< between two tabs
        FullTabMinimum = 40,  ///< narrowest tab while the padding is whole
        CornerGap = 6,        ///< between the last tab and the corner widget
        ArrowWidth = 16       ///< each of the two scroll arrows
    };

    struct Input
    {
        QVector<int> textWidths;        ///< the whole titles
        QVector<int> minimumTextWidths; ///< the shortest each title may be elided to
        int available = 0;              ///< from the first tab to the row's right end
        int cornerPreferred = 0;        ///< 0 without a corner widget
        int cornerMinimum = 0;
    };

    int padding = Padding;
    QVector<int> tabWidths;
    QVector<int> textWidths; ///< room for each title; less than the title's width means elided
    int cornerWidth = 0;     ///< 0 when there is no corner widget or it had to go
    int tabRoom = 0;         ///< width left to the tabs (arrows included)
    bool scrolls = false;

    static RibbonTabRowLayout compute(const Input& input);
};

} // namespace detail
} // namespace Qtitan
