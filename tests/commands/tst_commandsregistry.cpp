#include "CommandsRegistry.h"

#include <QAction>
#include <QtTest>

class tst_CommandsRegistry : public QObject
{
    Q_OBJECT

private slots:
    void smoke()
    {
        ui::CommandsRegistry registry(nullptr);
        QAction* action = registry.addCommand(QStringLiteral("Open"), 7);
        QCOMPARE(action->data(), QVariant(7));
        QCOMPARE(action->iconText(), QStringLiteral("Open"));
        QCOMPARE(action->parent(), &registry);
        int ran = 0;
        registry.ConnectCommand(7, [&] { ++ran; });
        action->trigger();
        QCOMPARE(ran, 1);
        registry.RunCommand(7);
        QCOMPARE(ran, 2);
    }
};

QTEST_MAIN(tst_CommandsRegistry)
#include "tst_commandsregistry.moc"
