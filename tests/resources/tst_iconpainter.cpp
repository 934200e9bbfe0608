#include "IconPainter.h"

#include <QDir>
#include <QImage>
#include <QSet>
#include <QtTest>

class tst_IconPainter : public QObject
{
    Q_OBJECT

private slots:
    void resourceIconsAreThePaintersPictures();
    void everyResourceFileIsListed();
    void everyGlyphDrawsSomething();
    void accentTintsTheColourGlyphs();
};

// The PNG files compiled into the library are what the painter draws now:
// `make icons` would not change them.
void tst_IconPainter::resourceIconsAreThePaintersPictures()
{
    const QDir resources(QStringLiteral(TESSARO_RESOURCES_DIR));
    for (const IconPainter::ResourceIcon& icon : IconPainter::resourceIcons()) {
        const QString name = QString::fromLatin1(icon.fileName);
        const QImage committed = QImage(resources.filePath(name)).convertToFormat(QImage::Format_ARGB32);
        QVERIFY2(!committed.isNull(), qPrintable(name));
        const QImage painted = IconPainter::image(icon.glyph, 32);
        QCOMPARE(painted.size(), committed.size());
        int differing = 0;
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x)
                differing += painted.pixel(x, y) != committed.pixel(x, y);
        }
        QVERIFY2(differing == 0, qPrintable(QStringLiteral("%1: %2 pixels differ").arg(name).arg(differing)));
    }
}

void tst_IconPainter::everyResourceFileIsListed()
{
    QSet<QString> listed;
    for (const IconPainter::ResourceIcon& icon : IconPainter::resourceIcons())
        listed.insert(QString::fromLatin1(icon.fileName));
    const QStringList files = QDir(QStringLiteral(TESSARO_RESOURCES_DIR)).entryList({QStringLiteral("*.png")});
    QCOMPARE(QSet<QString>(files.begin(), files.end()), listed);
}

void tst_IconPainter::everyGlyphDrawsSomething()
{
    for (int g = 0; g < IconPainter::GlyphCount; ++g) {
        for (int size : {16, 32}) {
            const QImage image = IconPainter::image(IconPainter::Glyph(g), size);
            QCOMPARE(image.size(), QSize(size, size));
            int opaque = 0;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    opaque += qAlpha(image.pixel(x, y)) > 128;
            QVERIFY2(opaque > size * size / 20, qPrintable(QStringLiteral("glyph %1 at %2").arg(g).arg(size)));
        }
    }
    const QIcon icon = IconPainter::icon(IconPainter::Save);
    QCOMPARE(icon.availableSizes(), (QList<QSize>{QSize(16, 16), QSize(32, 32)}));
}

void tst_IconPainter::accentTintsTheColourGlyphs()
{
    const QColor accent(0x12, 0xc4, 0x56);
    const QImage tinted = IconPainter::image(IconPainter::TextColor, 32, accent);
    const QImage plain = IconPainter::image(IconPainter::TextColor, 32);
    // The colour bar under the letter.
    QCOMPARE(QColor(tinted.pixel(16, 27)), accent);
    QVERIFY(QColor(plain.pixel(16, 27)) != accent);
}

QTEST_MAIN(tst_IconPainter)
#include "tst_iconpainter.moc"
