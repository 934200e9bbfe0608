#include "qtitan/AdobePhotoshopStyle.h"

#include "RibbonColors_p.h"

namespace Qtitan {

AdobePhotoshopStyle::AdobePhotoshopStyle(Theme theme)
    : m_theme(theme)
{
}

AdobePhotoshopStyle::~AdobePhotoshopStyle() = default;

AdobePhotoshopStyle::Theme AdobePhotoshopStyle::theme() const
{
    return m_theme;
}

void AdobePhotoshopStyle::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors AdobePhotoshopStyle::ribbonColors() const
{
    Scheme::Seed seed;
    bool warm = false;
    switch (m_theme) {
    case LightGray:
        seed.frame = QColor(0xDC, 0xDC, 0xDC);
        seed.frameText = QColor(0x1E, 0x1E, 0x1E);
        seed.pageTop = QColor(0xF0, 0xF0, 0xF0);
        seed.pageBottom = QColor(0xF0, 0xF0, 0xF0);
        seed.pageBorder = QColor(0xC2, 0xC2, 0xC2);
        seed.accent = QColor(0x14, 0x73, 0xE6);
        seed.text = QColor(0x1E, 0x1E, 0x1E);
        seed.workspace = QColor(0xCA, 0xCA, 0xCA);
        warm = false;
        break;
    case Gray:
        seed.frame = QColor(0xA6, 0xA6, 0xA6);
        seed.frameText = QColor(0x10, 0x10, 0x10);
        seed.pageTop = QColor(0xB8, 0xB8, 0xB8);
        seed.pageBottom = QColor(0xB8, 0xB8, 0xB8);
        seed.pageBorder = QColor(0x92, 0x92, 0x92);
        seed.accent = QColor(0x14, 0x73, 0xE6);
        seed.text = QColor(0x10, 0x10, 0x10);
        seed.workspace = QColor(0x8E, 0x8E, 0x8E);
        warm = false;
        break;
    case DarkGray:
        seed.frame = QColor(0x3C, 0x3C, 0x3C);
        seed.frameText = QColor(0xE4, 0xE4, 0xE4);
        seed.pageTop = QColor(0x53, 0x53, 0x53);
        seed.pageBottom = QColor(0x53, 0x53, 0x53);
        seed.pageBorder = QColor(0x6A, 0x6A, 0x6A);
        seed.accent = QColor(0x14, 0x73, 0xE6);
        seed.text = QColor(0xE8, 0xE8, 0xE8);
        seed.workspace = QColor(0x2E, 0x2E, 0x2E);
        warm = false;
        break;
    case Black:
        seed.frame = QColor(0x1B, 0x1B, 0x1B);
        seed.frameText = QColor(0xD6, 0xD6, 0xD6);
        seed.pageTop = QColor(0x32, 0x32, 0x32);
        seed.pageBottom = QColor(0x32, 0x32, 0x32);
        seed.pageBorder = QColor(0x47, 0x47, 0x47);
        seed.accent = QColor(0x14, 0x73, 0xE6);
        seed.text = QColor(0xD6, 0xD6, 0xD6);
        seed.workspace = QColor(0x14, 0x14, 0x14);
        warm = false;
        break;
    }
    RibbonColors colors = Scheme::build(seed);
    if (warm)
        Scheme::applyWarmHighlights(colors);
    return colors;
}

} // namespace Qtitan
