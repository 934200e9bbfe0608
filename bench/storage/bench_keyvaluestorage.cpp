// Loading and saving a store of 10,000 entries, against QDataStream reading
// and writing the same QMap directly (no checks, no file); and refusing
// hostile stores, against loading a valid store of 1,000 entries.
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
const int hostileBaselineEntries = 1000;

QMap<QString, QVariant> sampleValues(int count = entryCount)
{
    QMap<QString, QVariant> values;
    for (int i = 0; i < count; ++i) {
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

// A store of one entry "k" whose value is a @p type followed by @p payload.
QByteArray storeOf(quint32 type, const QByteArray& payload)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(1) << QStringLiteral("k") << type << qint8(0);
    out.writeRawData(payload.constData(), payload.size());
    return bytes;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << value;
    return bytes;
}

// Stores that a loader trusting its counts, lengths and nesting would spend
// gigabytes or minutes on (the rows of tst_keyvaluestorage's hostile tests).
QList<QPair<QByteArray, QByteArray>> hostileStores()
{
    QByteArray hugeStoreCount;
    {
        QDataStream out(&hugeStoreCount, QIODevice::WriteOnly);
        out << qint32(0x7fffffff) << QStringLiteral("a") << QVariant(1);
    }
    QByteArray hugeKey;
    {
        QDataStream out(&hugeKey, QIODevice::WriteOnly);
        out << qint32(1) << quint32(0xfffffffeu);
    }
    QByteArray deepLists;
    {
        QDataStream out(&deepLists, QIODevice::WriteOnly);
        out << qint32(1) << QStringLiteral("k");
        for (int i = 0; i < 10000; ++i)
            out << quint32(QMetaType::QVariantList) << qint8(0) << quint32(1);
        out << quint32(QMetaType::Int) << qint8(0) << qint32(1);
    }
    QByteArray png("\x89PNG\r\n\x1a\n\x00\x00\x00\x0dIHDR", 16);
    png += bigEndian(30000) + bigEndian(30000) + QByteArray("\x08\x06\x00\x00\x00", 5) + bigEndian(0);
    png += bigEndian(0) + "IEND" + bigEndian(0);
    QByteArray cbor = bigEndian(2001) + QByteArray(2000, '\x81') + '\x01';
    return {
        {"store count 2^31-1", hugeStoreCount},
        {"key length 4 GB", hugeKey},
        {"list count 2^32-1", storeOf(QMetaType::QVariantList, bigEndian(0xffffffffu))},
        {"list count 2^28", storeOf(QMetaType::QVariantList, bigEndian(1u << 28))},
        {"string list count 2^32-16", storeOf(QMetaType::QStringList, bigEndian(0xfffffff0u))},
        {"polygon count 2^31-16", storeOf(QMetaType::QPolygon, bigEndian(0x7ffffff0u))},
        {"lists nested 10,000 deep", deepLists},
        {"CBOR arrays nested 2,000 deep", storeOf(QMetaType::QCborArray, cbor)},
        {"PNG claiming 30000 x 30000 pixels", storeOf(QMetaType::QImage, bigEndian(1) + png)},
    };
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

    void hostileInputs()
    {
        QByteArray valid;
        {
            QDataStream out(&valid, QIODevice::WriteOnly);
            out << sampleValues(hostileBaselineEntries);
        }
        auto load = [](const QByteArray& bytes) {
            QByteArray data = bytes;
            KeyValueStorage storage(data);
            return storage.value(QStringLiteral("k")).isValid() || storage.value(QStringLiteral("group0/key0")).isValid();
        };
        QVERIFY(load(valid));
        const double baselineNs = bestOf(5, 20, [&] { load(valid); });
        qInfo("load of a valid store of %d entries (%d bytes, baseline): %.3f ms", hostileBaselineEntries,
              int(valid.size()), baselineNs / 1e6);
        for (const auto& hostile : hostileStores()) {
            QVERIFY2(!load(hostile.second), hostile.first.constData());
            const double ns = bestOf(5, 20, [&] { load(hostile.second); });
            qInfo("  %-36s %6d bytes: %9.4f ms, ratio %.4f", hostile.first.constData(), int(hostile.second.size()),
                  ns / 1e6, ns / baselineNs);
            // Refusing may cost what reading the data costs, never what believing it would.
            QVERIFY2(ns < baselineNs, hostile.first.constData());
        }
    }
};

QTEST_MAIN(bench_KeyValueStorage)
#include "bench_keyvaluestorage.moc"
