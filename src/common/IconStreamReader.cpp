#include "IconStreamReader_p.h"

#include <QtCore/QDataStream>
#include <QtCore/QSize>
#include <QtCore/QtEndian>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

namespace {

const char pngSignature[] = "\x89PNG\r\n\x1a\n";
const int pngSignatureSize = 8;
// Length and type of a chunk; the header chunk's data is 13 bytes.
const int pngChunkHeadSize = 8;
const int pngHeaderSize = 13;
const int pngCrcSize = 4;
const quint32 pngMaxChunkLength = 0x7fffffffu;
// Data is copied or skipped in steps of this size, so that a damaged length
// never makes us allocate more than the data holds.
const qint64 readStep = 64 * 1024;
const quint32 nullByteArray = 0xffffffffu;
const int maxThemeNameLength = 128;

// A theme icon name is looked up as a file in the theme's folders: letters,
// digits and a few marks only, no way out of those folders.
bool isPlainThemeName(const QString& name)
{
    if (name.size() > maxThemeNameLength || name.contains(QLatin1String("..")))
        return false;
    for (const QChar c : name) {
        const ushort u = c.unicode();
        const bool plain = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_'
                           || u == '-' || u == '+' || u == '.';
        if (!plain)
            return false;
    }
    return true;
}

bool isAllowedImageSize(quint32 width, quint32 height)
{
    return width != 0 && height != 0 && width <= IconStreamReader::maxImageSide
           && height <= IconStreamReader::maxImageSide && quint64(width) * height <= IconStreamReader::maxImagePixels;
}

} // namespace

IconStreamReader::IconStreamReader(QDataStream& stream)
    : m_stream(stream)
{
}

IconStreamReader::Outcome IconStreamReader::readImage(QImage* image)
{
    if (image)
        *image = QImage();
    qint32 marker = 0;
    m_stream >> marker;
    if (!ok())
        return damaged();
    if (marker == 0)
        return Accepted;  // a null image
    return readPng(image);
}

IconStreamReader::Outcome IconStreamReader::readPng(QImage* image)
{
    // Qt writes every image as a PNG file. Other formats would be guessed by
    // whichever plugin recognises them, and only that plugin knows their length.
    QByteArray png;
    if (!readBytes(&png, pngSignatureSize) || png != QByteArray::fromRawData(pngSignature, pngSignatureSize))
        return damaged();
    bool allowed = false;
    if (!readPngChunks(image ? &png : nullptr, allowed))
        return damaged();
    if (!allowed)
        return Refused;
    if (!image)
        return Accepted;
    *image = QImage::fromData(png, "PNG");
    return image->isNull() ? Refused : Accepted;
}

// Walks the chunks up to IEND and appends them to @p png when it is given.
// The header chunk decides whether the image is allowed before any of its
// data is kept. False when the chunks do not end within the data.
bool IconStreamReader::readPngChunks(QByteArray* png, bool& allowed)
{
    for (bool first = true;; first = false) {
        QByteArray head;
        if (!readBytes(&head, pngChunkHeadSize))
            return false;
        const quint32 length = qFromBigEndian<quint32>(head.constData());
        const QByteArray type = head.mid(4);
        if (length > pngMaxChunkLength)
            return false;
        QByteArray data;
        if (first) {
            // A PNG file starts with its header: width and height come first.
            if (type != "IHDR" || length != pngHeaderSize || !readBytes(&data, pngHeaderSize))
                return false;
            allowed = isAllowedImageSize(qFromBigEndian<quint32>(data.constData()),
                                         qFromBigEndian<quint32>(data.constData() + 4));
            if (!allowed)
                png = nullptr;
        }
        if (png)
            png->append(head).append(data);
        if (!readBytes(png, qint64(length) - data.size() + pngCrcSize))
            return false;
        if (type == "IEND")
            return true;
    }
}

IconStreamReader::Outcome IconStreamReader::readIcon(QIcon* icon)
{
    if (icon)
        *icon = QIcon();
    QString key;
    m_stream >> key;
    if (!ok())
        return damaged();
    if (key.isEmpty())
        return Accepted;  // a null icon
    if (key == QLatin1String("QPixmapIconEngine"))
        return readPixmapIcon(icon);
    if (key == QLatin1String("QIconLoaderEngine"))
        return readThemeIcon(icon);
    if (key == QLatin1String("svg"))
        return readSvgIcon();
    // Any other engine comes from a plugin and writes data that only it can measure.
    return damaged();
}

// Entries of an icon made of pixmaps or image files: the pixmap (null when
// the file did not load), the file name, the size, the mode and the state.
IconStreamReader::Outcome IconStreamReader::readPixmapIcon(QIcon* icon)
{
    qint32 count = 0;
    m_stream >> count;
    Outcome outcome = Accepted;
    for (qint32 i = 0; i < count && ok(); ++i) {
        qint32 marker = 0;
        m_stream >> marker;
        if (!ok())
            break;
        QImage image;
        Outcome entry = marker ? readPng(icon ? &image : nullptr) : Accepted;
        if (entry == Damaged)
            return Damaged;
        QString fileName;
        QSize size;
        quint32 mode = 0;
        quint32 state = 0;
        m_stream >> fileName >> size >> mode >> state;
        if (mode > QIcon::Selected || state > QIcon::Off)
            entry = Refused;
        // Without a pixmap Qt loads the named file: only compiled-in resources then.
        if (!marker && !fileName.isEmpty() && !fileName.startsWith(QLatin1String(":/")))
            entry = Refused;
        if (entry == Refused)
            outcome = Refused;
        else if (icon && marker)
            icon->addPixmap(QPixmap::fromImage(image), QIcon::Mode(mode), QIcon::State(state));
        else if (icon && !fileName.isEmpty())
            icon->addFile(fileName, size, QIcon::Mode(mode), QIcon::State(state));
    }
    return ok() ? outcome : damaged();
}

IconStreamReader::Outcome IconStreamReader::readThemeIcon(QIcon* icon)
{
    QString name;
    m_stream >> name;
    if (!ok())
        return damaged();
    if (name.isEmpty())
        return Accepted;
    if (!isPlainThemeName(name))
        return Refused;
    if (icon)
        *icon = QIcon::fromTheme(name);
    return Accepted;
}

// Qt's SVG icon engine, a plugin: file names, a compressed flag, the SVG
// documents and the pixmaps added to the icon. The plugin would parse the
// documents, so the icon is only read over.
IconStreamReader::Outcome IconStreamReader::readSvgIcon()
{
    quint32 files = 0;
    m_stream >> files;
    for (quint32 i = 0; i < files && ok(); ++i) {
        qint32 key = 0;
        QString fileName;
        m_stream >> key >> fileName;
    }
    qint32 compressed = 0;
    quint32 documents = 0;
    m_stream >> compressed >> documents;
    for (quint32 i = 0; i < documents && ok(); ++i) {
        qint32 key = 0;
        m_stream >> key;
        if (ok() && !skipByteArray())
            return damaged();
    }
    qint32 hasPixmaps = 0;
    m_stream >> hasPixmaps;
    if (hasPixmaps) {
        quint32 pixmaps = 0;
        m_stream >> pixmaps;
        for (quint32 i = 0; i < pixmaps && ok(); ++i) {
            qint32 key = 0;
            m_stream >> key;
            if (ok() && readImage(nullptr) == Damaged)
                return Damaged;
        }
    }
    return ok() ? Refused : damaged();
}

// Appends @p count bytes to @p bytes, or skips them when it is null, in
// bounded steps.
bool IconStreamReader::readBytes(QByteArray* bytes, qint64 count)
{
    while (count > 0) {
        const int step = int(qMin(count, readStep));
        int got = 0;
        if (bytes) {
            const int old = bytes->size();
            bytes->resize(old + step);
            got = m_stream.readRawData(bytes->data() + old, step);
            bytes->resize(old + qMax(got, 0));
        } else {
            got = m_stream.skipRawData(step);
        }
        if (got != step) {
            m_stream.setStatus(QDataStream::ReadPastEnd);
            return false;
        }
        count -= step;
    }
    return true;
}

bool IconStreamReader::skipByteArray()
{
    quint32 length = 0;
    m_stream >> length;
    return ok() && (length == nullByteArray || readBytes(nullptr, length));
}

IconStreamReader::Outcome IconStreamReader::damaged()
{
    // Keeps the first failure when there was one.
    m_stream.setStatus(QDataStream::ReadCorruptData);
    return Damaged;
}

bool IconStreamReader::ok() const
{
    return m_stream.status() == QDataStream::Ok;
}
