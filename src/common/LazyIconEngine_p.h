#pragma once

#include <QIcon>
#include <QIconEngine>

#include <initializer_list>
#include <utility>

class QAbstractButton;

/// An icon read from an image file when it is first drawn or measured, not
/// when it is made. QIcon(fileName) decodes the image at once; the customize
/// dialog's forms hold fifteen tool button icons, most of them on tabs the
/// user may never open, and decoding them took nearly a tenth of the time the
/// dialog needs to be ready over a large host.
class LazyIconEngine : public QIconEngine
{
public:
    explicit LazyIconEngine(const QString& fileName);

    /// An icon showing @p fileName, decoded on first use.
    static QIcon icon(const QString& fileName);

    /// Gives each button the icon of its image file.
    static void setIcons(std::initializer_list<std::pair<QAbstractButton*, const char*>> buttonFiles);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override;
    void addFile(const QString& fileName, const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    void virtual_hook(int id, void* data) override;

private:
    const QIcon& decoded() const;

    QString m_fileName;
    mutable QIcon m_icon;
    mutable bool m_decoded = false;
};
