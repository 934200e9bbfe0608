#include <tessaro/CommandState.h>

#include <QAction>
#include <QtTest>

class tst_CommandState : public QObject
{
    Q_OBJECT

private slots:
    void enabled()
    {
        QAction action(nullptr);
        ui::CommandState state(&action);
        QVERIFY(state.isEnabled());
        state.setEnabled(false);
        QVERIFY(!action.isEnabled());
        QVERIFY(!state.isEnabled());
        state.setEnabled(true);
        QVERIFY(action.isEnabled());
    }

    void setCheckedMakesCheckable_data()
    {
        QTest::addColumn<bool>("value");
        QTest::newRow("true") << true;
        QTest::newRow("false") << false;
    }

    void setCheckedMakesCheckable()
    {
        QFETCH(bool, value);
        QAction action(nullptr);
        QVERIFY(!action.isCheckable());
        ui::CommandState state(&action);
        state.setChecked(value);
        QVERIFY(action.isCheckable());
        QCOMPARE(action.isChecked(), value);
        QCOMPARE(state.isChecked(), value);
    }

    void setTextKeepsIconText()
    {
        QAction action(QStringLiteral("Old"), nullptr);
        action.setIconText(QStringLiteral("Other"));
        ui::CommandState state(&action);
        QCOMPARE(state.text(), QStringLiteral("Old"));
        state.setText(QStringLiteral("Новый"));
        QCOMPARE(action.text(), QStringLiteral("Новый"));
        QCOMPARE(action.iconText(), QStringLiteral("Новый"));
        QCOMPARE(state.text(), QStringLiteral("Новый"));
    }

    void copiesShareTheAction()
    {
        QAction first(nullptr);
        QAction second(nullptr);
        ui::CommandState a(&first);
        ui::CommandState b(&second);
        b = a;
        b.setEnabled(false);
        QVERIFY(!first.isEnabled());
        QVERIFY(second.isEnabled());
        ui::CommandState c(a);
        c.setChecked(true);
        QVERIFY(first.isChecked());
    }
};

QTEST_MAIN(tst_CommandState)
#include "tst_commandstate.moc"
