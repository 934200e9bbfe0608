#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QtCore/QString>

class QAction;

namespace ui {

/// A light view of one QAction handed to update handlers, so that they can
/// refresh its enabled, checked and text state. Holds the pointer only; the
/// action is not owned and must outlive the state.
///
/// @code
/// registry->ConnectCommandUI(ID_SHOW_RULER, [ruler](ui::CommandState& state) {
///     state.setChecked(ruler->isVisible());
///     state.setText(ruler->isVisible() ? QStringLiteral("Hide Ruler") : QStringLiteral("Show Ruler"));
/// });
/// @endcode
class TESSARO_EXPORT CommandState
{
public:
    /// Wraps @p action (not owned).
    explicit CommandState(QAction* action);

    /// Whether the action is enabled.
    bool isEnabled() const;
    /// Enables or disables the action.
    void setEnabled(bool enabled);

    /// Whether the action is checked.
    bool isChecked() const;
    /// Makes the action checkable, then sets its checked state.
    void setChecked(bool checked);

    /// The action's text.
    QString text() const;
    /// Sets the action's text and its icon text to the same value.
    void setText(const QString& text);

private:
    QAction* m_action;
};

} // namespace ui
