#include <tessaro/KeyValueStorage.h>

#include "StoreValidator_p.h"

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QEasingCurve>
#include <QtCore/QFile>

namespace {

// The stream carries no usable function for curves of the plain types (the
// validator cleared the stale address): give them back their own.
QEasingCurve rebuiltCurve(const QEasingCurve& loaded)
{
    const QEasingCurve::Type type = loaded.type();
    if (type == QEasingCurve::BezierSpline || type == QEasingCurve::TCBSpline || type == QEasingCurve::Custom)
        return loaded;
    QEasingCurve curve(type);
    if (curve.amplitude() != loaded.amplitude())
        curve.setAmplitude(loaded.amplitude());
    if (curve.period() != loaded.period())
        curve.setPeriod(loaded.period());
    if (curve.overshoot() != loaded.overshoot())
        curve.setOvershoot(loaded.overshoot());
    return curve;
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
    if (!device->open(QIODevice::ReadOnly))
        return;
    QByteArray bytes = device->readAll();
    device->close();
    // QDataStream trusts what it reads; it only gets bytes that were checked.
    if (!StoreValidator(bytes).isValid())
        return;

    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QString key;
        QVariant value;
        in >> key >> value;
        if (in.status() != QDataStream::Ok)
            break;
        if (value.userType() == QMetaType::QEasingCurve)
            value = rebuiltCurve(value.value<QEasingCurve>());
        m_values.insert(key, value);
    }
    // A partly read store is worse than none.
    if (in.status() != QDataStream::Ok)
        m_values.clear();
}

void KeyValueStorage::writeValues(QIODevice* device)
{
    if (!device->open(QIODevice::WriteOnly))
        return;
    QDataStream out(device);
    out << static_cast<qint32>(m_values.size());
    // Largest key first, as QDataStream writes a QMap.
    for (auto it = m_values.constEnd(); it != m_values.constBegin();) {
        --it;
        out << it.key() << it.value();
    }
    device->close();
}
