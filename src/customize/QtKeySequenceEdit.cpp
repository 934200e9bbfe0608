#include <tessaro/QtKeySequenceEdit.h>

#include <QKeyEvent>

QtKeySequenceEdit::QtKeySequenceEdit(QWidget* parent)
    : QLineEdit(parent)
{
}

QtKeySequenceEdit::~QtKeySequenceEdit() = default;

QKeySequence QtKeySequenceEdit::keySequence() const
{
    return m_keySequence;
}

bool QtKeySequenceEdit::event(QEvent* e)
{
    switch (e->type()) {
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::KeyRelease:
        e->accept();
        return true;
    default:
        // Bypasses QLineEdit::event on purpose: key presses still reach
        // keyPressEvent through the plain widget dispatch.
        return QWidget::event(e);
    }
}

void QtKeySequenceEdit::keyPressEvent(QKeyEvent* e)
{
    e->accept();
    const int key = e->key();
    if ((key >= Qt::Key_Shift && key <= Qt::Key_Alt) || key == Qt::Key_Super_L
        || key == Qt::Key_AltGr)
        return;
    // Keys the platform could not name make no usable shortcut.
    if (key == 0 || key == Qt::Key_unknown)
        return;

    int combination = key;
    const Qt::KeyboardModifiers modifiers = e->modifiers();
    if (modifiers & Qt::ShiftModifier) {
        // Shift that already turned "1" into "!" is part of the character.
        const QString text = e->text();
        if (text.isEmpty() || !text.at(0).isPrint() || text.at(0).isLetter()
            || text.at(0).isSpace())
            combination |= Qt::SHIFT;
    }
    if (modifiers & Qt::ControlModifier)
        combination |= Qt::CTRL;
    if (modifiers & Qt::AltModifier)
        combination |= Qt::ALT;
    if (modifiers & Qt::MetaModifier)
        combination |= Qt::META;

    m_keySequence = QKeySequence(combination);
    setText(m_keySequence.toString(QKeySequence::NativeText));
}
