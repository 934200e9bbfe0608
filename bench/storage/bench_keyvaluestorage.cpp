// Loading and saving a store of 10,000 entries, against QDataStream reading
// and writing the same QMap directly (no checks, no file).
#include <tessaro/KeyValueStorage.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QtTest>

#include "BenchTiming.h"

#include <algorithm>

namespace {

using bench::bestOf;
using bench::threadNs;

const int entryCount = 10000;

QMap<QString, QVariant> sampleValues()
{
    QMap<QString, QVariant> values;
    for (int i = 0; i < entryCount; ++i) {
        const QString key = QStringLiteral("group%1/key%2").arg(i % 50).arg(i);
        switch (i % 5) {
        case 0:
            values.insert(key, i);
            break;
        case 1:
            values.insert(key, QStringLiteral("значение %1").arg(i));
            break;
        case 2:
            values.insert(key, i * 0.5);
            break;
        case 3:
            values.insert(key, QByteArray(64, char('a' + i % 26)));
            break;
        default:
            values.insert(key, QVariantList{i, QStringLiteral("x"), true});
            break;
        }
    }
    return values;
}

} // namespace

class bench_KeyValueStorage : public QObject
{
    Q_OBJECT

private slots:
    void load()
    {
        const QMap<QString, QVariant> values = sampleValues();
        QByteArray bytes;
        {
            QDataStream out(&bytes, QIODevice::WriteOnly);
            out << values;
        }
        int found = 0;
        auto viaStorage = [&] {
            QByteArray data = bytes;
            KeyValueStorage storage(data);
            found += storage.value(QStringLiteral("group0/key0")).isValid();
        };
        auto baseline = [&] {
            QDataStream in(bytes);
            QMap<QString, QVariant> map;
            in >> map;
            found += map.value(QStringLiteral("group0/key0")).isValid();
        };
        viaStorage();
        QCOMPARE(found, 1);
        const double storageNs = bestOf(5, 10, viaStorage);
        const double baselineNs = bestOf(5, 10, baseline);
        qInfo("load of %d entries (%d bytes): %.2f ms, baseline (QDataStream >> QMap) %.2f ms, ratio %.2f",
              entryCount, int(bytes.size()), storageNs / 1e6, baselineNs / 1e6, storageNs / baselineNs);
    }

    void save()
    {
        const QMap<QString, QVariant> values = sampleValues();
        QByteArray data;
        // Only the destructor's write is timed.
        auto viaStorage = [&] {
            auto* storage = new KeyValueStorage(data);
            for (auto it = values.cbegin(); it != values.cend(); ++it)
                storage->setValue(it.key(), it.value());
            const qint64 start = threadNs();
            delete storage;
            return threadNs() - start;
        };
        QByteArray bytes;
        auto baseline = [&] {
            // Same target as the storage's: a QBuffer over an emptied array.
            QBuffer buffer(&bytes);
            const qint64 start = threadNs();
            buffer.open(QIODevice::WriteOnly);
            QDataStream out(&buffer);
            out << values;
            buffer.close();
            return threadNs() - start;
        };
        qint64 storageNs = std::numeric_limits<qint64>::max();
        qint64 baselineNs = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 20; ++i) {
            data.clear();
            bytes.clear();
            storageNs = std::min(storageNs, viaStorage());
            baselineNs = std::min(baselineNs, baseline());
        }
        QByteArray reference;
        {
            QDataStream out(&reference, QIODevice::WriteOnly);
            out << values;
        }
        QCOMPARE(data, reference);  // the same bytes as QDataStream writes a QMap
        qInfo("save of %d entries: %.2f ms, baseline (QDataStream << QMap) %.2f ms, ratio %.2f", entryCount,
              storageNs / 1e6, baselineNs / 1e6, double(storageNs) / baselineNs);
    }
};

QTEST_MAIN(bench_KeyValueStorage)
#include "bench_keyvaluestorage.moc"
