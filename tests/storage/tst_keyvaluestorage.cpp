#include "KeyValueStorage.h"

#include <QtTest>

class tst_KeyValueStorage : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip()
    {
        QByteArray data;
        {
            KeyValueStorage storage(data);
            QCOMPARE(storage.value(QStringLiteral("a"), 5), QVariant(5));
            storage.setValue(QStringLiteral("a"), 1);
            storage.setValue(QStringLiteral("b"), QStringLiteral("two"));
        }
        QVERIFY(!data.isEmpty());
        KeyValueStorage storage(data);
        QCOMPARE(storage.value(QStringLiteral("a")), QVariant(1));
        QCOMPARE(storage.value(QStringLiteral("b")), QVariant(QStringLiteral("two")));
    }
};

QTEST_MAIN(tst_KeyValueStorage)
#include "tst_keyvaluestorage.moc"
