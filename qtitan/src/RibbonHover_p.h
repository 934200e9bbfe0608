#pragma once

class QWidget;

namespace Qtitan {
namespace detail {

/// Brings the hover state of a widget and of the widgets inside it back in
/// line with the mouse. A menu or popup that closes sends no Leave to the
/// widget that opened it (nor to widgets it hid), so without this they would
/// go on drawing themselves hovered with the mouse elsewhere.
void syncUnderMouse(QWidget* root);

} // namespace detail
} // namespace Qtitan
