#include "StoreValidator_p.h"

#include "common/IconStreamReader_p.h"

#include <QtCore/QDataStream>
#include <QtCore/QLocale>
#include <QtCore/QMetaType>
#include <QtCore/QTimeZone>
#include <QtCore/QtEndian>

#include <cstring>

namespace {

// Containers nest no deeper than this; QDataStream decodes them recursively.
const int maxDepth = 64;
// QRegion unites its rectangles one at a time: quadratic in their number.
const quint32 maxRegionRects = 1024;
// Qt refuses CBOR nested deeper than 1024; stop well before.
const int cborMaxDepth = 256;
// QKeySequence holds at most four keys and reads no more.
const quint32 maxKeys = 4;

const quint32 nullLength = 0xffffffffu;
// Longer names than any C++ type a host would register.
const quint32 maxTypeNameLength = 1024;

// Values written by Qt 5 with the default stream settings.
const quint32 sizeofDouble = 8;
const quint32 sizeofColor = 11;      // qint8 colour model, five quint16
const quint32 sizeofTransform = 9 * sizeofDouble;
const int brushTexturePattern = 24;  // Qt::TexturePattern
const int brushLastStyle = 24;
const int brushFirstGradient = 15;   // Qt::LinearGradientPattern .. ConicalGradientPattern
const int brushLastGradient = 17;
const int cursorBitmapShape = 24;    // Qt::BitmapCursor
const int paletteGroups = 3;
const int paletteRoles = 21;
const int easingLastType = 46;       // QEasingCurve::TCBSpline; Custom is refused
const quint32 easingMaxSegments = 10;
const quint32 sizeofPointF = 2 * sizeofDouble;
const quint32 sizeofTcbPoint = sizeofPointF + 3 * sizeofDouble;  // point, tension, continuity, bias
const quint8 jsonUndefined = 0x80;
const qint32 regionRects = 10;       // the only region form QRegion writes

bool isSafeZoneId(const QByteArray& name)
{
    // A time-zone id names a file under the zone database: no way out of it.
    if (name.isEmpty() || name.size() > 128 || name.startsWith('/') || name.contains(".."))
        return false;
    for (char c : name) {
        const bool ok = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')
                        || c == '/' || c == '_' || c == '-' || c == '+' || c == '.';
        if (!ok)
            return false;
    }
    return true;
}

} // namespace

StoreValidator::StoreValidator(QByteArray& data)
    : m_data(data.data())
    , m_size(static_cast<quint32>(data.size()))
{
}

bool StoreValidator::isValid()
{
    m_pos = 0;
    m_easingCurves = false;
    quint32 count = 0;
    if (!readU32(count))
        return false;
    // A negative count reads as an empty store.
    if (static_cast<qint32>(count) < 0)
        return true;
    for (quint32 i = 0; i < count; ++i) {
        if (!string() || !variant(0))
            return false;
    }
    return true;
}

bool StoreValidator::hasEasingCurves() const
{
    return m_easingCurves;
}

bool StoreValidator::need(quint32 bytes) const
{
    return bytes <= m_size - m_pos;
}

bool StoreValidator::skip(quint32 bytes)
{
    if (!need(bytes))
        return false;
    m_pos += bytes;
    return true;
}

bool StoreValidator::readU8(quint8& value)
{
    if (!need(1))
        return false;
    value = static_cast<quint8>(m_data[m_pos++]);
    return true;
}

bool StoreValidator::readU16(quint16& value)
{
    if (!need(2))
        return false;
    value = qFromBigEndian<quint16>(m_data + m_pos);
    m_pos += 2;
    return true;
}

bool StoreValidator::readU32(quint32& value)
{
    if (!need(4))
        return false;
    value = qFromBigEndian<quint32>(m_data + m_pos);
    m_pos += 4;
    return true;
}

bool StoreValidator::variant(int depth)
{
    if (depth > maxDepth)
        return false;
    quint32 type = 0;
    quint8 isNull = 0;
    if (!readU32(type) || !readU8(isNull))
        return false;
    return payload(type, depth);
}

bool StoreValidator::payload(quint32 type, int depth)
{
    switch (type) {
    case QMetaType::UnknownType:  // an invalid QVariant carries nothing
    case QMetaType::Nullptr:
        return true;
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::QCborSimpleType:
        return skip(1);
    case QMetaType::QChar:
    case QMetaType::Short:
    case QMetaType::UShort:
        return skip(2);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::QTime:
    case QMetaType::QSizePolicy:
        return skip(4);
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Double:
    case QMetaType::Float:  // written as a double at the default precision
    case QMetaType::QDate:
    case QMetaType::QSize:
    case QMetaType::QPoint:
        return skip(8);
    case QMetaType::QTextLength:
        return skip(4 + sizeofDouble);
    case QMetaType::QColor:
        return color();
    case QMetaType::QRect:
    case QMetaType::QLine:
    case QMetaType::QSizeF:
    case QMetaType::QPointF:
    case QMetaType::QUuid:
    case QMetaType::QVector2D:
        return skip(16);
    case QMetaType::QVector3D:
        return skip(3 * sizeofDouble);
    case QMetaType::QRectF:
    case QMetaType::QLineF:
    case QMetaType::QVector4D:
    case QMetaType::QQuaternion:
        return skip(4 * sizeofDouble);
    case QMetaType::QMatrix:
        return skip(6 * sizeofDouble);
    case QMetaType::QTransform:
        return skip(sizeofTransform);
    case QMetaType::QMatrix4x4:
        return skip(16 * sizeofDouble);
    case QMetaType::QString:
    case QMetaType::QLocale:
        return string();
    case QMetaType::QByteArray:
    case QMetaType::QUrl:
    case QMetaType::QJsonObject:
    case QMetaType::QJsonArray:
    case QMetaType::QJsonDocument:
        // JSON text that Qt parses with its own nesting limit.
        return byteArray();
    case QMetaType::QCborValue:
    case QMetaType::QCborArray:
    case QMetaType::QCborMap:
        return cbor();
    case QMetaType::QStringList:
        return stringList();
    case QMetaType::QByteArrayList:
        return byteArrayList();
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return variantMap(depth);
    case QMetaType::QVariantList:
        return variantList(depth);
    case QMetaType::QVariant:
        return variant(depth + 1);
    case QMetaType::QBitArray:
        return bitArray();
    case QMetaType::QDateTime:
        return dateTime();
    case QMetaType::QRegExp:
        return regExp();
    case QMetaType::QRegularExpression:
        return string() && skip(4);
    case QMetaType::QEasingCurve:
        return easingCurve();
    case QMetaType::QJsonValue:
        return jsonValue();
    case QMetaType::QFont:
        return font();
    case QMetaType::QPixmap:
    case QMetaType::QImage:
    case QMetaType::QBitmap:
        return image();
    case QMetaType::QIcon:
        return icon();
    case QMetaType::QBrush:
        return brush();
    case QMetaType::QPen:
        return pen();
    case QMetaType::QPalette:
        return palette();
    case QMetaType::QPolygon:
        return polygon(8);
    case QMetaType::QPolygonF:
        return polygon(sizeofPointF);
    case QMetaType::QRegion:
        return region();
    case QMetaType::QCursor:
        return cursor();
    case QMetaType::QKeySequence:
        return keySequence();
    case QMetaType::QTextFormat:
        return textFormat(depth);
    case QMetaType::User:
        return hostValue();
    default:
        // Types without stream operators and unknown ids.
        return false;
    }
}

bool StoreValidator::hostValue()
{
    // The type's name, then whatever the host's stream operator wrote. The
    // host's code is trusted with its own values: its operator reads them
    // here once, and the walk goes on where it stopped.
    quint32 length = 0;
    if (!readU32(length) || length == nullLength || length > maxTypeNameLength || !need(length))
        return false;
    // QVariant looks the name up as a C string, so up to its first zero byte.
    const QByteArray name(m_data + m_pos, static_cast<int>(qstrnlen(m_data + m_pos, length)));
    m_pos += length;
    const int type = QMetaType::type(name.constData());
    // A name may also resolve to a built-in type, which would then be decoded
    // unchecked: those come by their own id or not at all.
    if (type < QMetaType::User)
        return false;
    return readAsStream([type](QDataStream& stream) {
        void* value = QMetaType::create(type);
        const bool loaded = QMetaType::load(stream, type, value);
        QMetaType::destroy(type, value);
        return loaded;
    });
}

bool StoreValidator::string()
{
    quint32 bytes = 0;
    if (!readU32(bytes))
        return false;
    if (bytes == nullLength)
        return true;
    return bytes % 2 == 0 && skip(bytes);
}

bool StoreValidator::readString(QString& text)
{
    const quint32 start = m_pos;
    if (!string())
        return false;
    text.clear();
    const quint32 units = m_pos - start == 4 ? 0 : (m_pos - start - 4) / 2;
    text.reserve(static_cast<int>(units));
    for (quint32 i = 0; i < units; ++i)
        text.append(QChar(qFromBigEndian<quint16>(m_data + start + 4 + 2 * i)));
    return true;
}

bool StoreValidator::byteArray()
{
    quint32 bytes = 0;
    if (!readU32(bytes))
        return false;
    return bytes == nullLength || skip(bytes);
}

bool StoreValidator::stringList()
{
    quint32 count = 0;
    if (!readU32(count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        if (!string())
            return false;
    }
    return true;
}

bool StoreValidator::byteArrayList()
{
    quint32 count = 0;
    if (!readU32(count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        if (!byteArray())
            return false;
    }
    return true;
}

bool StoreValidator::variantMap(int depth)
{
    quint32 count = 0;
    if (!readU32(count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        if (!string() || !variant(depth + 1))
            return false;
    }
    return true;
}

bool StoreValidator::variantList(int depth)
{
    quint32 count = 0;
    if (!readU32(count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        if (!variant(depth + 1))
            return false;
    }
    return true;
}

bool StoreValidator::color()
{
    // Colour model (Invalid .. ExtendedRgb), alpha, three components, padding.
    quint8 model = 0;
    return readU8(model) && model <= 5 && skip(sizeofColor - 1);
}

bool StoreValidator::regExp()
{
    // Pattern, case sensitivity, syntax (RegExp .. W3CXmlSchema11), minimal.
    quint8 caseSensitivity = 0;
    quint8 syntax = 0;
    quint8 minimal = 0;
    return string() && readU8(caseSensitivity) && readU8(syntax) && readU8(minimal) && caseSensitivity <= 1
           && syntax <= 5 && minimal <= 1;
}

bool StoreValidator::bitArray()
{
    quint32 bits = 0;
    if (!readU32(bits))
        return false;
    return skip(bits / 8 + (bits % 8 ? 1 : 0));
}

bool StoreValidator::dateTime()
{
    quint8 timeKind = 0;
    if (!skip(8 + 4) || !readU8(timeKind))
        return false;
    // Qt keeps an unknown kind of time as it is and later takes it for a time zone.
    switch (timeKind) {
    case Qt::LocalTime:
    case Qt::UTC:
        return true;
    case Qt::OffsetFromUTC:
        return skip(4);
    case Qt::TimeZone:
        return timeZone();
    default:
        return false;
    }
}

bool StoreValidator::timeZone()
{
    // QDateTime keeps a zone that failed to load and crashes when it is
    // streamed out again: only zones that load are let through.
    QString id;
    if (!readString(id))
        return false;
    if (id == QLatin1String("OffsetFromUtc")) {
        QString customId;
        QString name;
        QString abbreviation;
        QString comment;
        quint32 offset = 0;
        quint32 country = 0;
        if (!readString(customId) || !readU32(offset) || !readString(name) || !readString(abbreviation)
            || !readU32(country) || !readString(comment))
            return false;
        return QTimeZone(customId.toUtf8(), static_cast<qint32>(offset), name, abbreviation,
                         static_cast<QLocale::Country>(country), comment)
            .isValid();
    }
    const QByteArray zone = id.toUtf8();
    return (zone.isEmpty() || isSafeZoneId(zone)) && QTimeZone(zone).isValid();
}

bool StoreValidator::easingCurve()
{
    quint8 type = 0;
    quint8 hasConfig = 0;
    if (!readU8(type) || type > easingLastType)
        return false;
    // Qt 5 streams the address of the curve's function and calls whatever
    // address it reads back: clear it, KeyValueStorage rebuilds the curve.
    if (!need(8))
        return false;
    std::memset(m_data + m_pos, 0, 8);
    m_pos += 8;
    m_easingCurves = true;
    if (!readU8(hasConfig))
        return false;
    if (!hasConfig)
        return true;
    // Period, amplitude, overshoot, Bézier points, TCB points. Qt 5 keeps the
    // segments of a spline in arrays of ten and writes past them when a
    // longer curve is evaluated (TCB points turn into one segment fewer).
    quint32 bezierPoints = 0;
    quint32 tcbPoints = 0;
    return skip(3 * sizeofDouble) && readU32(bezierPoints) && bezierPoints <= 3 * easingMaxSegments
           && skip(bezierPoints * sizeofPointF) && readU32(tcbPoints) && tcbPoints <= easingMaxSegments + 1
           && skip(tcbPoints * sizeofTcbPoint);
}

bool StoreValidator::cbor()
{
    // Qt's CBOR decoder allocates the length a string claims before reading it.
    quint32 bytes = 0;
    if (!readU32(bytes))
        return false;
    if (bytes == nullLength || bytes == 0)
        return true;
    if (!need(bytes))
        return false;
    const quint32 end = m_pos + bytes;
    while (m_pos < end) {
        // Qt reads the first item; what follows it must at least be well formed.
        if (!cborItem(end, 0))
            return false;
    }
    return true;
}

bool StoreValidator::cborArgument(quint32 end, quint8 info, quint64& value)
{
    if (info < 24) {
        value = info;
        return true;
    }
    const quint32 sizes[] = {1, 2, 4, 8};
    if (info > 27)
        return false;
    const quint32 size = sizes[info - 24];
    if (size > end - m_pos)
        return false;
    value = 0;
    for (quint32 i = 0; i < size; ++i)
        value = (value << 8) | static_cast<quint8>(m_data[m_pos++]);
    return true;
}

bool StoreValidator::cborItem(quint32 end, int depth)
{
    if (depth > cborMaxDepth || m_pos >= end)
        return false;
    const quint8 initial = static_cast<quint8>(m_data[m_pos++]);
    const quint8 major = initial >> 5;
    const quint8 info = initial & 0x1f;
    if (info == 31) {
        switch (major) {
        case 2:
        case 3:
            // Indefinite string: definite chunks of the same kind up to a break.
            for (;;) {
                if (m_pos >= end)
                    return false;
                const quint8 chunk = static_cast<quint8>(m_data[m_pos]);
                if (chunk == 0xff) {
                    ++m_pos;
                    return true;
                }
                if ((chunk >> 5) != major || (chunk & 0x1f) == 31 || !cborItem(end, depth + 1))
                    return false;
            }
        case 4:
        case 5:
            for (;;) {
                if (m_pos >= end)
                    return false;
                if (static_cast<quint8>(m_data[m_pos]) == 0xff) {
                    ++m_pos;
                    return true;
                }
                if (!cborItem(end, depth + 1) || (major == 5 && !cborItem(end, depth + 1)))
                    return false;
            }
        default:
            return false;  // a break outside an indefinite item, or reserved
        }
    }
    quint64 argument = 0;
    if (!cborArgument(end, info, argument))
        return false;
    switch (major) {
    case 0:
    case 1:
    case 7:
        return true;
    case 2:
    case 3:
        if (argument > end - m_pos)
            return false;
        m_pos += static_cast<quint32>(argument);
        return true;
    case 4:
    case 5: {
        // Every item takes at least one byte: a count beyond that is a lie.
        const quint64 items = major == 5 ? 2 * argument : argument;
        if (argument > end - m_pos || items > end - m_pos)
            return false;
        for (quint64 i = 0; i < items; ++i) {
            if (!cborItem(end, depth + 1))
                return false;
        }
        return true;
    }
    default:  // 6: a tag, then the tagged item
        return cborItem(end, depth + 1);
    }
}

bool StoreValidator::jsonValue()
{
    quint8 type = 0;
    if (!readU8(type))
        return false;
    switch (type) {
    case 0:  // Null
    case jsonUndefined:
        return true;
    case 1:  // Bool
        return skip(1);
    case 2:  // Double
        return skip(sizeofDouble);
    case 3:  // String
        return string();
    case 4:  // Array, as a JSON document
    case 5:  // Object
        return byteArray();
    default:
        return false;
    }
}

bool StoreValidator::font()
{
    // Family, style name, point size, pixel size, style hint, style strategy,
    // charset, weight, bits, stretch, extended bits, letter spacing, word
    // spacing, hinting preference, capitalization, families.
    return string() && string() && skip(sizeofDouble + 4 + 1 + 2 + 1 + 1 + 1 + 2 + 1 + 4 + 4 + 1 + 1)
           && stringList();
}

bool StoreValidator::image()
{
    return readAsStream([](QDataStream& stream) {
        return IconStreamReader(stream).readImage(nullptr) == IconStreamReader::Accepted;
    });
}

bool StoreValidator::icon()
{
    // Refused icons are refused here too: QDataStream would load them.
    return readAsStream([](QDataStream& stream) {
        return IconStreamReader(stream).readIcon(nullptr) == IconStreamReader::Accepted;
    });
}

bool StoreValidator::brush()
{
    quint8 style = 0;
    if (!readU8(style) || style > brushLastStyle || !color())
        return false;
    if (style == brushTexturePattern) {
        if (!image())
            return false;
    } else if (style >= brushFirstGradient && style <= brushLastGradient) {
        quint32 type = 0;
        if (!readU32(type) || type != quint32(style - brushFirstGradient))
            return false;
        // Spread, coordinate mode, interpolation mode, then the stops.
        quint32 spread = 0;
        quint32 mode = 0;
        quint32 interpolation = 0;
        if (!readU32(spread) || !readU32(mode) || !readU32(interpolation) || spread > 2 || mode > 3
            || interpolation > 1)
            return false;
        quint32 stops = 0;
        if (!readU32(stops))
            return false;
        for (quint32 i = 0; i < stops; ++i) {
            if (!skip(sizeofDouble) || !color())
                return false;
        }
        static const quint32 geometry[] = {2 * 16, 2 * 16 + sizeofDouble, 16 + sizeofDouble};
        if (!skip(geometry[type]))
            return false;
    }
    return skip(sizeofTransform);
}

bool StoreValidator::pen()
{
    // Style bits, cosmetic, width, brush, miter limit, dashes, dash offset,
    // default width. The style bits hold a pen style, a cap and a join.
    quint16 bits = 0;
    if (!readU16(bits))
        return false;
    const quint16 join = bits & Qt::MPenJoinStyle;
    if ((bits & Qt::MPenStyle) > Qt::CustomDashLine || (bits & Qt::MPenCapStyle) == Qt::MPenCapStyle
        || (join != Qt::MiterJoin && join != Qt::BevelJoin && join != Qt::RoundJoin && join != Qt::SvgMiterJoin))
        return false;
    return skip(1 + sizeofDouble) && brush() && skip(sizeofDouble) && polygon(sizeofDouble)
           && skip(sizeofDouble + 1);
}

bool StoreValidator::palette()
{
    for (int i = 0; i < paletteGroups * paletteRoles; ++i) {
        if (!brush())
            return false;
    }
    return true;
}

bool StoreValidator::polygon(quint32 pointSize)
{
    // Any QVector of fixed-size elements: a count, then the elements.
    quint32 count = 0;
    if (!readU32(count))
        return false;
    return quint64(count) * pointSize <= m_size - m_pos && skip(count * pointSize);
}

bool StoreValidator::region()
{
    quint32 bytes = 0;
    if (!readU32(bytes))
        return false;
    if (bytes == 0 || bytes == nullLength)
        return true;
    // Only the rectangle list that QRegion writes; its other forms nest and
    // rasterise ellipses and polygons of any size.
    quint32 id = 0;
    quint32 count = 0;
    if (bytes < 8 || !need(bytes) || !readU32(id) || !readU32(count))
        return false;
    if (static_cast<qint32>(id) != regionRects || count > maxRegionRects || bytes != 8 + 16 * count)
        return false;
    return skip(16 * count);
}

bool StoreValidator::cursor()
{
    quint16 shape = 0;
    if (!readU16(shape))
        return false;
    if (static_cast<qint16>(shape) != cursorBitmapShape)
        return true;
    quint8 isPixmap = 0;
    if (!readU8(isPixmap))
        return false;
    if (isPixmap) {
        if (!image())
            return false;
    } else if (!image() || !image()) {  // bitmap and mask
        return false;
    }
    return skip(8);  // hot spot
}

bool StoreValidator::keySequence()
{
    quint32 count = 0;
    if (!readU32(count))
        return false;
    return skip(4 * qMin(count, maxKeys));
}

bool StoreValidator::textFormat(int depth)
{
    // Format type, then the property map of int keys and variant values.
    quint32 count = 0;
    if (!skip(4) || !readU32(count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        if (!skip(4) || !variant(depth + 1))
            return false;
    }
    return true;
}

// Hands the rest of the data to @p read as a stream; on success the walk goes
// on where the stream stopped.
bool StoreValidator::readAsStream(const std::function<bool(QDataStream&)>& read)
{
    const QByteArray rest = QByteArray::fromRawData(m_data + m_pos, static_cast<int>(m_size - m_pos));
    QDataStream stream(rest);
    if (!read(stream) || stream.status() != QDataStream::Ok)
        return false;
    m_pos += static_cast<quint32>(stream.device()->pos());
    return true;
}
