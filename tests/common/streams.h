#pragma once

// Builders of the byte streams that the library's readers take apart, written
// with QDataStream independently of the code under test.

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>

namespace testcommon {

// A stream under construction with QDataStream's default settings, which are
// those of the library's stored layouts and settings.
struct StreamWriter
{
    QByteArray bytes;
    QBuffer buffer{&bytes};
    QDataStream stream;

    StreamWriter()
    {
        buffer.open(QIODevice::WriteOnly);
        stream.setDevice(&buffer);
    }

    template <typename T>
    StreamWriter& operator<<(const T& value)
    {
        stream << value;
        return *this;
    }

    // Appends bytes as they are, without a length in front.
    StreamWriter& raw(const QByteArray& data)
    {
        stream.writeRawData(data.constData(), data.size());
        return *this;
    }
};

// A PNG chunk: its length, type and data, and a CRC of zero.
inline QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    StreamWriter chunk;
    chunk << quint32(data.size());
    chunk.raw(type.left(4)).raw(data);
    chunk << quint32(0);
    return chunk.bytes;
}

// A PNG file whose header claims @p width x @p height pixels of 8-bit RGBA,
// with @p dataSize bytes of image data (no IDAT chunk for 0).
inline QByteArray pngClaimingSize(quint32 width, quint32 height, int dataSize = 0)
{
    StreamWriter header;
    header << width << height << quint8(8) << quint8(6) << quint8(0) << quint8(0) << quint8(0);
    QByteArray png("\x89PNG\r\n\x1a\n", 8);
    png += pngChunk("IHDR", header.bytes);
    if (dataSize > 0)
        png += pngChunk("IDAT", QByteArray(dataSize, 'x'));
    png += pngChunk("IEND", QByteArray());
    return png;
}

} // namespace testcommon
