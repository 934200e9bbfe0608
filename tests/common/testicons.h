#pragma once

// Icons that tests can tell apart by colour.

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace testcommon {

// An icon filled with one colour, drawn at 16 and 32 pixels.
inline QIcon colorIcon(const QColor& color)
{
    QIcon icon;
    for (int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(color);
        icon.addPixmap(pixmap);
    }
    return icon;
}

// The colour inside an icon's 16-pixel image; 0 for a null icon.
inline QRgb iconColor(const QIcon& icon)
{
    if (icon.isNull())
        return 0;
    return icon.pixmap(16, 16).toImage().pixel(4, 4);
}

} // namespace testcommon
