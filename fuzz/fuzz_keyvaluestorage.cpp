// Arbitrary bytes as a KeyValueStorage byte array: loading must not crash,
// hang or allocate without bound, whatever loads must write back and load
// again, and loaded easing curves must evaluate. Two host types with stream
// operators are registered, as a host would.
#include <tessaro/KeyValueStorage.h>

#include "keyvaluestorage_host_types.h"

#include <QByteArray>
#include <QDataStream>
#include <QEasingCurve>
#include <QGuiApplication>
#include <QStringList>

#include <QMetaType>

#include <cstdint>
#include <cstdlib>

namespace {

// A default no stored value can equal: the type has no stream operators.
struct Missing
{
};

const QStringList probeKeys{QString(), QStringLiteral("a"), QStringLiteral("int"), QStringLiteral("string"),
                            QStringLiteral("list"), QStringLiteral("map"), QStringLiteral("image")};

// The keys of a store written by KeyValueStorage itself, so trusted bytes.
QStringList writtenKeys(const QByteArray& bytes)
{
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QStringList keys;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QString key;
        QVariant value;
        in >> key >> value;
        keys.append(key);
    }
    if (in.status() != QDataStream::Ok)
        std::abort();
    return keys;
}

// Evaluates every easing curve of a loaded value, in lists and maps too.
void evaluateCurves(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QEasingCurve:
        value.value<QEasingCurve>().valueForProgress(0.37);
        break;
    case QMetaType::QVariantList:
        for (const QVariant& item : value.toList())
            evaluateCurves(item);
        break;
    case QMetaType::QVariantMap:
        for (const QVariant& item : value.toMap())
            evaluateCurves(item);
        break;
    case QMetaType::QVariantHash:
        for (const QVariant& item : value.toHash())
            evaluateCurves(item);
        break;
    default:
        break;
    }
}

} // namespace

Q_DECLARE_METATYPE(Missing)

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Pixmaps, icons and cursors in a stream need a GUI application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(*argc, *argv);
    fuzzhost::registerTypes();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    {
        KeyValueStorage storage(bytes);
        for (const QString& key : probeKeys)
            storage.value(key).toString();
        storage.setValue(QStringLiteral("fuzz"), 1);
    }
    const QStringList keys = writtenKeys(bytes);
    if (!keys.contains(QStringLiteral("fuzz")))
        std::abort();
    // Every entry that was loaded and written must load again.
    KeyValueStorage again(bytes);
    const QVariant missing = QVariant::fromValue(Missing());
    for (const QString& key : keys) {
        const QVariant value = again.value(key, missing);
        if (value.userType() == missing.userType())
            std::abort();
        evaluateCurves(value);
    }
    return 0;
}
