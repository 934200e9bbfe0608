#pragma once

class QMdiArea;

namespace demo {

/// Gives the tabs of @p area dark text for good: their sheet paints them
/// light grey and white whatever the style, which dark themes would write on
/// in light text.
void keepTabTextReadable(QMdiArea* area);

/// Sub-windows cannot be activated while the area is hidden, and a window
/// that becomes active does not activate one by itself: once the area shows
/// or its window is activated, this activates the sub-window that was made
/// current last (or the newest one).
void activateCurrentOnShow(QMdiArea* area);

} // namespace demo
