#include <tessaro/QtKeySequenceEdit.h>

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class tst_KeySequenceEdit : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void ctrlShiftS();
    void shiftLetterKeepsShift();
    void shiftDigitTypingSymbolDropsShift();
    void shiftWithNonPrintableOrSpaceKeepsShift();
    void ignoredKeysChangeNothing_data();
    void ignoredKeysChangeNothing();
    void eachPressReplacesTheCombination();
    void altAndMetaCount();
    void keypadModifierNeverCounts();
    void swallowedEvents_data();
    void swallowedEvents();
    void applicationShortcutDoesNotFireWhileFocused();
};

void tst_KeySequenceEdit::startsEmpty()
{
    QtKeySequenceEdit edit;
    QVERIFY(edit.keySequence().isEmpty());
    QVERIFY(edit.text().isEmpty());
}

void tst_KeySequenceEdit::ctrlShiftS()
{
    QtKeySequenceEdit edit;
    QSignalSpy changed(&edit, &QLineEdit::textChanged);
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    const QKeySequence expected(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    QCOMPARE(edit.keySequence(), expected);
    QCOMPARE(edit.keySequence().count(), 1);
    QCOMPARE(edit.text(), expected.toString(QKeySequence::NativeText));
    QCOMPARE(changed.count(), 1);
}

void tst_KeySequenceEdit::shiftLetterKeepsShift()
{
    QtKeySequenceEdit edit;
    QTest::keyClick(&edit, Qt::Key_A, Qt::ShiftModifier); // the event's text is "A"
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::SHIFT | Qt::Key_A));
    QCOMPARE(edit.text(), QKeySequence(Qt::SHIFT | Qt::Key_A).toString(QKeySequence::NativeText));
}

void tst_KeySequenceEdit::shiftDigitTypingSymbolDropsShift()
{
    QtKeySequenceEdit edit;
    // Shift+1 on a layout where it types "!": the key arrives as Key_Exclam.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Exclam, Qt::ShiftModifier, QStringLiteral("!"));
    QApplication::sendEvent(&edit, &press);
    QVERIFY(press.isAccepted());
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::Key_Exclam));
    QCOMPARE(edit.text(), QStringLiteral("!"));

    // Same through QTest with the text given explicitly, reported as the digit key.
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key_1, QStringLiteral("!"), Qt::ShiftModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::Key_1));
    QVERIFY(!(edit.keySequence()[0] & Qt::SHIFT));
}

void tst_KeySequenceEdit::shiftWithNonPrintableOrSpaceKeepsShift()
{
    QtKeySequenceEdit edit;
    // No text at all (a function key).
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key_F5, QString(), Qt::ShiftModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::SHIFT | Qt::Key_F5));
    // A control character.
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key_Delete, QStringLiteral("\x7f"), Qt::ShiftModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::SHIFT | Qt::Key_Delete));
    // A space.
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key_Space, QStringLiteral(" "), Qt::ShiftModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::SHIFT | Qt::Key_Space));
    // A non-Latin letter keeps Shift too.
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key(0x0416), QStringLiteral("Ж"), Qt::ShiftModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::SHIFT | 0x0416));
}

void tst_KeySequenceEdit::ignoredKeysChangeNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("ctrl") << int(Qt::Key_Control) << int(Qt::ControlModifier);
    QTest::newRow("shift") << int(Qt::Key_Shift) << int(Qt::ShiftModifier);
    QTest::newRow("alt") << int(Qt::Key_Alt) << int(Qt::AltModifier);
    QTest::newRow("meta") << int(Qt::Key_Meta) << int(Qt::MetaModifier);
    QTest::newRow("altgr") << int(Qt::Key_AltGr) << int(Qt::NoModifier);
    QTest::newRow("super") << int(Qt::Key_Super_L) << int(Qt::MetaModifier);
    QTest::newRow("unknown key") << int(Qt::Key_unknown) << int(Qt::ControlModifier);
    QTest::newRow("no key") << 0 << int(Qt::ShiftModifier);
}

void tst_KeySequenceEdit::ignoredKeysChangeNothing()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QtKeySequenceEdit edit;
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    const QKeySequence before = edit.keySequence();
    const QString textBefore = edit.text();
    QSignalSpy changed(&edit, &QLineEdit::textChanged);
    QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QApplication::sendEvent(&edit, &press);
    QVERIFY(press.isAccepted());
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key(key), QString(), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(edit.keySequence(), before);
    QCOMPARE(edit.text(), textBefore);
    QCOMPARE(changed.count(), 0);
}

void tst_KeySequenceEdit::eachPressReplacesTheCombination()
{
    QtKeySequenceEdit edit;
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&edit, Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::CTRL | Qt::Key_K));
    QCOMPARE(edit.keySequence().count(), 1);
    QTest::keyClick(&edit, Qt::Key_X);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::Key_X));
    QCOMPARE(edit.text(), QStringLiteral("X"));
    // Editing keys are captured, not applied to the text.
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::Key_Backspace));
    QCOMPARE(edit.text(), QKeySequence(Qt::Key_Backspace).toString(QKeySequence::NativeText));
}

void tst_KeySequenceEdit::altAndMetaCount()
{
    QtKeySequenceEdit edit;
    QTest::keyClick(&edit, Qt::Key_F4, Qt::AltModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::ALT | Qt::Key_F4));
    QTest::keyClick(&edit, Qt::Key_E, Qt::MetaModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::META | Qt::Key_E));
    QTest::keyClick(&edit, Qt::Key_Delete, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Delete));
}

void tst_KeySequenceEdit::keypadModifierNeverCounts()
{
    QtKeySequenceEdit edit;
    QTest::keyClick(&edit, Qt::Key_5, Qt::KeypadModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::Key_5));
    QTest::keyClick(&edit, Qt::Key_Plus, Qt::KeypadModifier | Qt::ControlModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(Qt::CTRL | Qt::Key_Plus));
}

void tst_KeySequenceEdit::swallowedEvents_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("ShortcutOverride") << int(QEvent::ShortcutOverride);
    QTest::newRow("KeyRelease") << int(QEvent::KeyRelease);
}

void tst_KeySequenceEdit::swallowedEvents()
{
    QFETCH(int, type);
    QtKeySequenceEdit edit;
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier);
    const QKeySequence before = edit.keySequence();
    QKeyEvent event(QEvent::Type(type), Qt::Key_Q, Qt::ControlModifier, QStringLiteral("q"));
    event.ignore();
    QVERIFY(QApplication::sendEvent(&edit, &event));
    QVERIFY(event.isAccepted());
    QCOMPARE(edit.keySequence(), before);

    QShortcutEvent shortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), 1);
    shortcut.ignore();
    QVERIFY(QApplication::sendEvent(&edit, &shortcut));
    QVERIFY(shortcut.isAccepted());
}

void tst_KeySequenceEdit::applicationShortcutDoesNotFireWhileFocused()
{
    QWidget window;
    QVBoxLayout* layout = new QVBoxLayout(&window);
    QtKeySequenceEdit* edit = new QtKeySequenceEdit;
    QLineEdit* plain = new QLineEdit;
    layout->addWidget(edit);
    layout->addWidget(plain);
    int fired = 0;
    QShortcut* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), &window);
    connect(shortcut, &QShortcut::activated, [&fired] { ++fired; });
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));

    // Control: in a plain line edit the window's shortcut fires.
    plain->setFocus();
    QTest::keyClick(plain, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fired, 1);

    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fired, 1);
    QCOMPARE(edit->keySequence(), QKeySequence(Qt::CTRL | Qt::Key_S));
}

QTEST_MAIN(tst_KeySequenceEdit)
#include "tst_keysequenceedit.moc"
