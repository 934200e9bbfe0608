#pragma once

// Types of a host's own, registered with stream operators under the same
// names by fuzz_keyvaluestorage and by the seed writer, so that stored values
// naming them reach the host's operators.

#include <QDataStream>
#include <QMetaType>
#include <QString>

namespace fuzzhost {

struct Point3
{
    qint32 x = 0;
    qint32 y = 0;
    qint32 z = 0;
};

struct Label
{
    QString text;
    bool bold = false;
};

inline QDataStream& operator<<(QDataStream& out, const Point3& point)
{
    return out << point.x << point.y << point.z;
}

inline QDataStream& operator>>(QDataStream& in, Point3& point)
{
    return in >> point.x >> point.y >> point.z;
}

inline QDataStream& operator<<(QDataStream& out, const Label& label)
{
    return out << label.text << label.bold;
}

inline QDataStream& operator>>(QDataStream& in, Label& label)
{
    return in >> label.text >> label.bold;
}

} // namespace fuzzhost

Q_DECLARE_METATYPE(fuzzhost::Point3)
Q_DECLARE_METATYPE(fuzzhost::Label)

namespace fuzzhost {

inline void registerTypes()
{
    qRegisterMetaTypeStreamOperators<Point3>("Point3");
    qRegisterMetaTypeStreamOperators<Label>("Label");
}

} // namespace fuzzhost
