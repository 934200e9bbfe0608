#include "LazyIconEngine_p.h"

#include <QAbstractButton>
#include <QGuiApplication>

LazyIconEngine::LazyIconEngine(const QString& fileName)
    : m_fileName(fileName)
{
}

QIcon LazyIconEngine::icon(const QString& fileName)
{
    if (fileName.isEmpty())
        return QIcon();
    return QIcon(new LazyIconEngine(fileName));
}

void LazyIconEngine::setIcons(std::initializer_list<std::pair<QAbstractButton*, const char*>> buttonFiles)
{
    for (const auto& [button, fileName] : buttonFiles)
        button->setIcon(icon(QString::fromLatin1(fileName)));
}

void LazyIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state)
{
    decoded().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QSize LazyIconEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return pixmap(size, mode, state).size();
}

QPixmap LazyIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    // The size is in device pixels already, and QIcon::pixmap() multiplies
    // what it is asked for by the device pixel ratio once more when high-DPI
    // pixmaps are on: ask it for the size over that ratio. What rounding
    // leaves too large is scaled down, as an engine never answers larger.
    const qreal ratio = qApp->testAttribute(Qt::AA_UseHighDpiPixmaps) ? qApp->devicePixelRatio() : 1.0;
    const QSize request = ratio > 1.0 ? QSize(qRound(size.width() / ratio), qRound(size.height() / ratio)) : size;
    QPixmap image = decoded().pixmap(request, mode, state);
    if (image.width() > size.width() || image.height() > size.height())
        image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(1.0);
    return image;
}

QList<QSize> LazyIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
    return decoded().availableSizes(mode, state);
}

void LazyIconEngine::addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state)
{
    decoded();
    m_icon.addPixmap(pixmap, mode, state);
}

void LazyIconEngine::addFile(const QString& fileName, const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    decoded();
    m_icon.addFile(fileName, size, mode, state);
}

QIconEngine* LazyIconEngine::clone() const
{
    return new LazyIconEngine(*this);
}

void LazyIconEngine::virtual_hook(int id, void* data)
{
    // Styles ask whether a button has an icon while they lay it out. Like
    // QIcon(fileName), an icon of a file is never null, image or not: the
    // answer needs no decoding.
    if (id == QIconEngine::IsNullHook)
        *static_cast<bool*>(data) = false;
    else
        QIconEngine::virtual_hook(id, data);
}

const QIcon& LazyIconEngine::decoded() const
{
    if (!m_decoded) {
        m_icon = QIcon(m_fileName);
        m_decoded = true;
    }
    return m_icon;
}
