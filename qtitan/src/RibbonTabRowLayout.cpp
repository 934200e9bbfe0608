#include "RibbonTabRowLayout_p.h"

#include <QtGlobal>

#include <algorithm>
#include <climits>

namespace Qtitan {
namespace detail {

namespace {

struct Row
{
    const RibbonTabRowLayout::Input& input;

    int textWidth(int i, int cap) const
    {
        return qMin(input.textWidths.at(i), qMax(cap, input.minimumTextWidths.at(i)));
    }

    int tabWidth(int i, int padding, int cap) const
    {
        const int width = textWidth(i, cap) + 2 * padding;
        return padding == RibbonTabRowLayout::Padding ? qMax(width, int(RibbonTabRowLayout::FullTabMinimum)) : width;
    }

    int width(int padding, int cap) const
    {
        int total = 0;
        for (int i = 0; i < input.textWidths.size(); ++i)
            total += tabWidth(i, padding, cap) + RibbonTabRowLayout::Spacing;
        return total;
    }

    int roomBeside(int corner) const
    {
        return input.available - (corner > 0 ? corner + RibbonTabRowLayout::CornerGap : 0);
    }

    int widestMinimumTab() const
    {
        int widest = 0;
        for (int i = 0; i < input.textWidths.size(); ++i)
            widest = qMax(widest, tabWidth(i, RibbonTabRowLayout::MinimumPadding, 0));
        return widest;
    }

    // The largest common cap on the title widths that lets the row fit.
    int capToFit(int padding, int room) const
    {
        int low = 0;
        int high = *std::max_element(input.textWidths.cbegin(), input.textWidths.cend());
        while (low < high) {
            const int mid = (low + high + 1) / 2;
            if (width(padding, mid) <= room)
                low = mid;
            else
                high = mid - 1;
        }
        return low;
    }
};

} // namespace

RibbonTabRowLayout RibbonTabRowLayout::compute(const Input& input)
{
    const Row row{input};
    RibbonTabRowLayout result;
    const int count = input.textWidths.size();
    const int minimumRow = row.width(MinimumPadding, 0);

    // The tabs give way first; the corner widget only once they are at their minimum.
    int corner = input.cornerPreferred;
    if (corner > 0 && row.width(Padding, INT_MAX) > row.roomBeside(corner) && minimumRow > row.roomBeside(corner))
        corner = qMax(input.cornerMinimum, input.available - CornerGap - minimumRow);
    if (corner > 0 && minimumRow > row.roomBeside(corner)
        && row.roomBeside(corner) < 2 * ArrowWidth + row.widestMinimumTab()) {
        Input without = input;
        without.cornerPreferred = 0;
        without.cornerMinimum = 0;
        return compute(without);
    }
    const int room = row.roomBeside(corner);

    int padding = Padding;
    while (padding > MinimumPadding && row.width(padding, INT_MAX) > room)
        --padding;
    int cap = INT_MAX;
    if (count > 0 && row.width(padding, INT_MAX) > room)
        cap = row.capToFit(padding, room);

    result.padding = padding;
    result.cornerWidth = corner;
    result.tabRoom = qMax(0, room);
    result.scrolls = count > 0 && row.width(padding, cap) > room;
    for (int i = 0; i < count; ++i) {
        result.tabWidths.append(row.tabWidth(i, padding, cap));
        result.textWidths.append(row.textWidth(i, cap));
    }
    return result;
}

} // namespace detail
} // namespace Qtitan
