#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <functional>

class QDataStream;

/// Walks the bytes of a stored QMap<QString, QVariant> before QDataStream
/// decodes them, and accepts them only when every value has the layout Qt 5
/// writes for a whitelisted type, within sane limits, or is of a type the
/// host registered with stream operators (read by the host's own operator).
///
/// QDataStream trusts the counts it reads (a list count of four billion
/// reserves memory for four billion elements), decodes images with whatever
/// size their header claims, calls the function address an easing curve holds,
/// resolves icon file names and time-zone ids on disk, and unites region
/// rectangles quadratically. Checking the layout first keeps every later
/// allocation proportional to the input and keeps the decoder away from
/// those paths.
class StoreValidator
{
public:
    /// May clear bytes of \a data that must not reach the decoder.
    explicit StoreValidator(QByteArray& data);

    /// True when the whole store (count, then that many key/value pairs) is
    /// well formed. Bytes after the last entry are ignored, as QDataStream does.
    bool isValid();
    /// True when an easing curve was met (its stored function address is
    /// cleared, so the curve must be rebuilt once decoded).
    bool hasEasingCurves() const;

private:
    bool need(quint32 bytes) const;
    bool skip(quint32 bytes);
    bool readU8(quint8& value);
    bool readU16(quint16& value);
    bool readU32(quint32& value);

    bool variant(int depth);
    bool payload(quint32 type, int depth);
    bool hostValue();
    bool string();
    bool readString(QString& text);
    bool byteArray();
    bool stringList();
    bool byteArrayList();
    bool variantMap(int depth);
    bool variantList(int depth);
    bool color();
    bool regExp();
    bool bitArray();
    bool dateTime();
    bool timeZone();
    bool easingCurve();
    bool cbor();
    bool cborArgument(quint32 end, quint8 info, quint64& value);
    bool cborItem(quint32 end, int depth);
    bool jsonValue();
    bool font();
    bool image();
    bool icon();
    bool brush();
    bool pen();
    bool palette();
    bool polygon(quint32 pointSize);
    bool region();
    bool cursor();
    bool keySequence();
    bool textFormat(int depth);
    bool readAsStream(const std::function<bool(QDataStream&)>& read);

    char* m_data;
    quint32 m_size;
    quint32 m_pos = 0;
    bool m_easingCurves = false;
};
