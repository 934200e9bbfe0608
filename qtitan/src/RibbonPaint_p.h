#pragma once

// Metrics and drawing shared by the page, the groups and their controls.

#include "qtitan/RibbonColors.h"

#include <QFontMetrics>
#include <QIcon>
#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace Qtitan {

class RibbonSystemButton;

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

/// The rounded face of a button of `widget` in one of its states.
void drawButtonFace(QPainter* painter, const QRect& rect, const QWidget* widget, Highlight highlight);
/// A rounded button face in two colours; a glossy one shines in its upper half.
void drawFace(QPainter* painter, const QRectF& rect, const QColor& fill, const QColor& border, bool glossy);

// The ribbon's parts, each drawn in the look of the style that paints `widget`.

/// The title strip and the row of tabs, behind the tabs.
void paintFrame(QPainter* painter, const QRect& rect, const QWidget* widget);
/// The lightest colour of the frame, at its top edge.
QColor frameTop(const QWidget* widget);
/// The area behind the groups of a page.
void paintPageArea(QPainter* painter, const QRect& rect, const QWidget* widget);
enum class TabState { Normal, Hover, Selected };
/// The shape of a tab; the caller writes the title over it.
void paintTab(QPainter* painter, const QRect& rect, TabState state, const QWidget* widget);
/// The box around a group and the band behind its title, in the looks that have
/// them; with an empty `titleRect` (a group shrunk to a button) the box alone.
void paintGroupFrame(QPainter* painter, const QRect& rect, const QRect& titleRect, const QWidget* widget);
/// The mark between two groups of a page, at `x` from `top` to `bottom`.
void paintGroupSeparator(QPainter* painter, int x, int top, int bottom, const QWidget* widget);
/// The whole system button, its face and its icon or text.
void paintSystemButton(QPainter* painter, const RibbonSystemButton* button);
/// The system button's size in the look in force; `plain` is its size as a block.
QSize systemButtonSize(const RibbonSystemButton* button, const QSize& plain);

/// An icon's pixmap for a background. On a dark background its strokes that
/// would sink into it are lightened until they stand out; on a light one the
/// icon is drawn as it is.
QPixmap visiblePixmap(const QIcon& icon, const QSize& size, QIcon::Mode mode, QIcon::State state,
                      const QColor& background);
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
