#include "qtitan/Windows7ScenicStyle.h"

#include "RibbonColors_p.h"

namespace Qtitan {

Windows7ScenicStyle::Windows7ScenicStyle() = default;

Windows7ScenicStyle::~Windows7ScenicStyle() = default;

RibbonColors Windows7ScenicStyle::ribbonColors() const
{
    Scheme::Seed seed;
    seed.frame = QColor(0xDF, 0xE9, 0xF5);
    seed.frameText = QColor(0x1E, 0x39, 0x5B);
    seed.pageTop = QColor(0xFF, 0xFF, 0xFF);
    seed.pageBottom = QColor(0xE4, 0xEC, 0xF7);
    seed.pageBorder = QColor(0xB6, 0xBA, 0xC0);
    seed.accent = QColor(0x19, 0x60, 0xB8);
    seed.text = QColor(0x1E, 0x39, 0x5B);
    seed.workspace = QColor(0xAB, 0xBA, 0xD3);
    RibbonColors colors = Scheme::build(seed);
    // The scenic ribbon highlights in pale sky blue rather than the accent.
    colors.buttonHoverBackground = QColor(0xE3, 0xF0, 0xFC);
    colors.buttonHoverBorder = QColor(0x9B, 0xC4, 0xEE);
    colors.buttonPressedBackground = QColor(0xC2, 0xDE, 0xF8);
    colors.buttonPressedBorder = QColor(0x6C, 0x9D, 0xD6);
    colors.buttonCheckedBackground = QColor(0xCF, 0xE5, 0xFA);
    colors.buttonCheckedBorder = QColor(0x7D, 0xA9, 0xDE);
    return colors;
}

} // namespace Qtitan
