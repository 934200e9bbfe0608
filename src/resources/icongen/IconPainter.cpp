#include "IconPainter.h"

#include "IconGlyphs_p.h"

#include <QPainter>
#include <QPixmap>

const std::vector<IconPainter::ResourceIcon>& IconPainter::resourceIcons()
{
    static const std::vector<ResourceIcon> icons = {
        {"plus.png", Plus},
        {"logo.png", Logo},
        {"add-panel2.png", AddPage},
        {"add-group.png", AddGroup},
        {"go-top-icone-5674-32.png", AddCommand},
        {"add-group-action.png", AddGroupCommand},
        {"add-separator.png", AddSeparator},
        {"1uparrow.png", MoveUp},
        {"1downarrow.png", MoveDown},
        {"1remove.png", Remove},
        {"add-to-group.png", AddToGroup},
        {"add-toolbar.png", AddToolBar},
        {"remove-toolbar.png", RemoveToolBar},
        {"rename-toolbar.png", RenameToolBar},
    };
    return icons;
}

void IconPainter::paint(QPainter& painter, Glyph glyph, const QColor& accent)
{
    if (glyph < New)
        paintResourceGlyph(painter, glyph);
    else
        paintCommandGlyph(painter, glyph, accent);
}

QImage IconPainter::image(Glyph glyph, int size, const QColor& accent)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.scale(size / 32.0, size / 32.0);
    paint(painter, glyph, accent);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QIcon IconPainter::icon(Glyph glyph, const QColor& accent)
{
    QIcon icon;
    for (int size : {16, 32})
        icon.addPixmap(QPixmap::fromImage(image(glyph, size, accent)));
    return icon;
}
