// Arbitrary bytes as a KeyValueStorage byte array: loading must not crash,
// hang or allocate without bound, and whatever loads must write back and
// load again.
#include <tessaro/KeyValueStorage.h>

#include <QByteArray>
#include <QDataStream>
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

} // namespace

Q_DECLARE_METATYPE(Missing)

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Pixmaps, icons and cursors in a stream need a GUI application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(*argc, *argv);
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
        if (again.value(key, missing).userType() == missing.userType())
            std::abort();
    }
    return 0;
}
