#pragma once

// Metrics and drawing shared by the page, the groups and their controls.

#include "qtitan/RibbonColors.h"

#include <QFontMetrics>
#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace Qtitan {
namespace detail {

/// Heights every group of a page shares, derived from the font so that a
/// large button (32 px icon and two label lines) exactly fills three rows.
struct RibbonMetrics
{
    int lineHeight = 0;    ///< one line of label text
    int rowHeight = 0;     ///< height of a small control
    int contentHeight = 0; ///< height of the control area (three rows)
    int titleHeight = 0;   ///< the group title strip
    int groupHeight = 0;   ///< a whole group
    static RibbonMetrics forFont(const QFontMetrics& fm);
    static RibbonMetrics forWidget(const QWidget* widget);
};

enum : int {
    LargeIconSize = 32,
    SmallIconSize = 16,
    ArrowAreaWidth = 12,   ///< drop-down part of a small split or menu button
    GroupPadding = 4,      ///< left/right space inside a group
    GroupTopMargin = 3,
    ColumnSpacing = 2,
    PageMargin = 3,
    GroupGap = 5,          ///< space between two groups, the separator in its middle
    SeparatorControlWidth = 7,
    ScrollButtonWidth = 14 ///< the arrows that scroll a page too narrow for its groups
};

/// The colours in force for a widget.
RibbonColors colorsFor(const QWidget* widget);

enum class Highlight { None, Hover, HoverLight, Pressed, Checked, CheckedHover };

/// The rounded face of a button in one of its states.
void drawButtonFace(QPainter* painter, const QRect& rect, const RibbonColors& colors,
                    Highlight highlight);
/// A small filled triangle pointing down, centred on `center`.
void drawDownArrow(QPainter* painter, const QPoint& center, const QColor& color);

/// An action text as a button label: mnemonic ampersands removed.
QString labelText(const QString& text);
/// Splits a large button's label into two lines of balanced width; the
/// second line leaves `secondLineExtra` pixels for the drop-down arrow.
void splitLabel(const QFontMetrics& fm, const QString& text, int secondLineExtra,
                QString* first, QString* second);

} // namespace detail
} // namespace Qtitan
