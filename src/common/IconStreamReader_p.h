#pragma once

#include <QtCore/QtGlobal>

class QDataStream;
class QIcon;
class QImage;
class QString;

/// Reads Qt 5's QImage and QIcon stream encodings from data that may be
/// damaged or crafted, without letting the data choose what gets loaded or
/// how much gets allocated.
///
/// Qt's own readers hand the bytes to whichever image plugin recognises
/// them, decode any size a header claims, load the file an icon entry names
/// and create icon engines from plugins named by the stream. This reader
/// accepts images only as PNG files of bounded size, icons only from Qt's
/// pixmap engine (entries without a pixmap only from compiled-in resources)
/// and plain theme names. Everything it does not accept is still read over
/// whenever its length is known, so the stream stays in step. Shared by the
/// settings validator and the ribbon serializer's old streams.
class IconStreamReader
{
public:
    /// What one value turned out to be.
    enum Outcome {
        Accepted, ///< well formed and allowed; built when asked for
        Refused,  ///< well formed but not allowed, or not decodable; read over, the stream stays in step
        Damaged   ///< its end cannot be known; the stream's status is no longer Ok
    };

    /// Images wider or higher than this are refused.
    static const quint32 maxImageSide = 32768;
    /// Images of more pixels than this are refused (at most 128 MB decoded).
    static const quint64 maxImagePixels = quint64(1) << 24;

    /// A reader of @p stream, which must outlive it.
    explicit IconStreamReader(QDataStream& stream);

    /// Reads one QIcon. With a null @p icon it is only read over and no image
    /// is decoded; otherwise @p icon receives what was accepted of it (a
    /// pixmap icon keeps its accepted entries when others are refused).
    Outcome readIcon(QIcon* icon);
    /// Reads one QImage: a null marker or a PNG file. With a null @p image
    /// it is only read over.
    Outcome readImage(QImage* image);

private:
    Outcome readPng(QImage* image);
    bool readPngChunks(QByteArray* png, bool& allowed);
    Outcome readPixmapIcon(QIcon* icon);
    Outcome readThemeIcon(QIcon* icon);
    Outcome readSvgIcon();
    bool readBytes(QByteArray* bytes, qint64 count);
    bool skipByteArray();
    Outcome damaged();
    bool ok() const;

    QDataStream& m_stream;
};
