// Writes the library's 32x32 resource icons, drawn by IconPainter. Run with
// the output folder as argument (`make icons` does it for src/resources);
// `--sheet FILE` also writes a 4x enlarged contact sheet for checking the
// pixels by eye.

#include "IconPainter.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTextStream>

#include <vector>

namespace {

QImage sheet(const std::vector<QImage>& images)
{
    const int scale = 4;
    const int cellSize = 32 * scale + 8;
    QImage out(cellSize * int(images.size()), cellSize * 2 + 96, QImage::Format_ARGB32);
    out.fill(QColor(0xf4, 0xf4, 0xf4));
    QPainter p(&out);
    // A strip at real size first, then each icon enlarged.
    for (size_t i = 0; i < images.size(); ++i) {
        p.drawImage(8 + int(i) * 40, 8, images[i]);
    }
    p.fillRect(0, out.height() - 48, out.width(), 48, QColor(0x2b, 0x57, 0x9a));
    for (size_t i = 0; i < images.size(); ++i)
        p.drawImage(8 + int(i) * 40, out.height() - 40, images[i]);
    p.translate(0, 48);
    for (size_t i = 0; i < images.size(); ++i) {
        const QImage big = images[i].scaled(32 * scale, 32 * scale, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        const int x = int(i) * cellSize + 4;
        // Top row on white, bottom row on a ribbon-like dark background.
        p.fillRect(x, 4, 32 * scale, 32 * scale, Qt::white);
        p.drawImage(x, 4, big);
        p.fillRect(x, cellSize + 4, 32 * scale, 32 * scale, QColor(0x2b, 0x57, 0x9a));
        p.drawImage(x, cellSize + 4, big);
    }
    return out;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    QString sheetFile;
    const int sheetAt = args.indexOf(QStringLiteral("--sheet"));
    if (sheetAt >= 0 && sheetAt + 1 < args.size()) {
        sheetFile = args.at(sheetAt + 1);
        args.erase(args.begin() + sheetAt, args.begin() + sheetAt + 2);
    }
    QTextStream err(stderr);
    if (args.size() != 1) {
        err << "usage: tessaro-icongen OUTPUT_DIR [--sheet FILE]\n";
        return 2;
    }
    const QDir dir(args.first());
    if (!dir.exists() && !QDir().mkpath(dir.path())) {
        err << "cannot create " << dir.path() << "\n";
        return 1;
    }

    std::vector<QImage> images;
    for (const IconPainter::ResourceIcon& icon : IconPainter::resourceIcons()) {
        const QImage image = IconPainter::image(icon.glyph, 32);
        const QString path = dir.filePath(QString::fromLatin1(icon.fileName));
        if (!image.save(path, "PNG")) {
            err << "cannot write " << path << "\n";
            return 1;
        }
        images.push_back(image);
    }
    if (!sheetFile.isEmpty() && !sheet(images).save(sheetFile, "PNG")) {
        err << "cannot write " << sheetFile << "\n";
        return 1;
    }
    return 0;
}
