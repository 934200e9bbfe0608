#include <tessaro/KeyValueStorage.h>

#include "StoreValidator_p.h"

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QEasingCurve>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace {

// A curve of a plain type gets its own function back: the stream carries
// only the address the function had in the process that wrote it, and the
// validator cleared that. Spline curves have no function and stay as read.
// Every "if" has braces, so that a statement dropped from one cannot make
// the next statement its body.
QEasingCurve rebuiltCurve(const QEasingCurve& loaded)
{
    const QEasingCurve::Type type = loaded.type();
    const bool spline = type == QEasingCurve::BezierSpline || type == QEasingCurve::TCBSpline;
    QEasingCurve curve = spline ? loaded : QEasingCurve(type);
    // Only parameters that differ are set: setting one gives a plain curve a configuration.
    if (curve.amplitude() != loaded.amplitude()) {
        curve.setAmplitude(loaded.amplitude());
    }
    if (curve.period() != loaded.period()) {
        curve.setPeriod(loaded.period());
    }
    if (curve.overshoot() != loaded.overshoot()) {
        curve.setOvershoot(loaded.overshoot());
    }
    return curve;
}

// Rebuilds every easing curve of a decoded value, in nested lists and maps
// too. Braces as in rebuiltCurve.
QVariant withRebuiltCurves(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QEasingCurve:
        return rebuiltCurve(value.value<QEasingCurve>());
    case QMetaType::QVariantList: {
        QVariantList list = value.toList();
        for (QVariant& item : list) {
            item = withRebuiltCurves(item);
        }
        return list;
    }
    case QMetaType::QVariantMap: {
        QVariantMap map = value.toMap();
        for (QVariant& item : map) {
            item = withRebuiltCurves(item);
        }
        return map;
    }
    case QMetaType::QVariantHash: {
        QVariantHash hash = value.toHash();
        for (QVariant& item : hash) {
            item = withRebuiltCurves(item);
        }
        return hash;
    }
    default:
        return value;
    }
}

// Decodes a whole store into @p values; false when it does not load.
bool decodeStore(QByteArray& bytes, QMap<QString, QVariant>& values)
{
    // QDataStream trusts what it reads; it only gets bytes that were checked.
    StoreValidator validator(bytes);
    if (!validator.isValid())
        return false;
    const bool rebuild = validator.hasEasingCurves();
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QString key;
        QVariant value;
        in >> key >> value;
        if (in.status() != QDataStream::Ok)
            break;
        values.insert(key, rebuild ? withRebuiltCurves(value) : value);
    }
    return in.status() == QDataStream::Ok;
}

void writeStore(QIODevice& device, const QMap<QString, QVariant>& values)
{
    QDataStream out(&device);
    out << static_cast<qint32>(values.size());
    // Largest key first, as QDataStream writes a QMap.
    for (auto it = values.constEnd(); it != values.constBegin();) {
        --it;
        out << it.key() << it.value();
    }
}

// Keeps a file that did not load under <name>.unreadable, replacing an older
// one, so that a user or support can still recover what it held.
bool keepAside(const QString& fileName)
{
    const QString aside = fileName + QStringLiteral(".unreadable");
    QFile::remove(aside);
    // A file that may not be read can still be moved.
    return QFile::copy(fileName, aside) || QFile::rename(fileName, aside) || !QFile::exists(fileName);
}

} // namespace

KeyValueStorage::KeyValueStorage(const QString& fileName, QObject* parent)
    : QObject(parent)
    , m_device(new QFile(fileName, this))
{
    readValues(m_device);
}

KeyValueStorage::KeyValueStorage(QByteArray& data, QObject* parent)
    : QObject(parent)
    , m_device(new QBuffer(&data, this))
{
    readValues(m_device);
}

KeyValueStorage::~KeyValueStorage()
{
    if (m_modified)
        writeValues(m_device);
}

QVariant KeyValueStorage::value(const QString& key, const QVariant& defaultValue) const
{
    return m_values.value(key, defaultValue);
}

void KeyValueStorage::setValue(const QString& key, const QVariant& value)
{
    m_values.insert(key, value);
    m_modified = true;
}

void KeyValueStorage::readValues(QIODevice* device)
{
    m_values.clear();
    auto* file = qobject_cast<QFile*>(device);
    if (!device->open(QIODevice::ReadOnly)) {
        // A file that is there but may not be read is not a missing one.
        m_unreadableFile = file && QFileInfo(*file).isFile();
        return;
    }
    QByteArray bytes = device->readAll();
    device->close();
    if (!decodeStore(bytes, m_values)) {
        // A partly read store is worse than none. An empty file holds nothing to keep.
        m_values.clear();
        m_unreadableFile = file && !bytes.isEmpty();
    }
}

void KeyValueStorage::writeValues(QIODevice* device)
{
    auto* file = qobject_cast<QFile*>(device);
    if (!file) {
        if (!device->open(QIODevice::WriteOnly))
            return;
        writeStore(*device, m_values);
        device->close();
        return;
    }
    // The previous file stays whole until the new one is complete: QSaveFile
    // writes a temporary file beside it, flushes it to disk and renames it
    // over the old one. Anything short of that leaves the old file as it was.
    QSaveFile saved(file->fileName());
    if (!saved.open(QIODevice::WriteOnly))
        return;
    writeStore(saved, m_values);
    // Without a copy kept aside an unreadable file is not replaced.
    if (m_unreadableFile && !keepAside(file->fileName()))
        return;
    saved.commit();
}
