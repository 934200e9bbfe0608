#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QKeySequence>
#include <QLineEdit>

/// Line edit that captures one key combination per key press.
///
/// A press replaces the captured sequence with that single combination and
/// shows it in native text. Lone modifier presses change nothing. Shift is kept
/// only when it does not already shape the typed character (Shift+A keeps it,
/// Shift+1 typing "!" is stored as "!"). While the edit has focus, application
/// shortcuts do not fire and key releases do nothing.
///
/// @code
/// auto* edit = new QtKeySequenceEdit(dialog);
/// QObject::connect(edit, &QLineEdit::textChanged, dialog, [edit, command] {
///     command->setShortcut(edit->keySequence());   // the combination last pressed
/// });
/// @endcode
class TESSARO_EXPORT QtKeySequenceEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// Creates an empty edit.
    explicit QtKeySequenceEdit(QWidget* parent = nullptr);
    ~QtKeySequenceEdit() override;

    /// The captured combination; empty until a key is pressed.
    QKeySequence keySequence() const;

protected:
    /// Swallows shortcut, shortcut-override and key-release events.
    bool event(QEvent* e) override;
    /// Captures the pressed combination.
    void keyPressEvent(QKeyEvent* e) override;

private:
    QKeySequence m_keySequence;
};
