#include "qtitan/Office2013Style.h"

#include "RibbonColors_p.h"

namespace Qtitan {

Office2013Style::Office2013Style(Theme theme)
    : m_theme(theme)
{
}

Office2013Style::~Office2013Style() = default;

Office2013Style::Theme Office2013Style::theme() const
{
    return m_theme;
}

void Office2013Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2013Style::ribbonColors() const
{
    Scheme::Seed seed;
    bool warm = false;
    switch (m_theme) {
    case White:
        seed.frame = QColor(0xFF, 0xFF, 0xFF);
        seed.frameText = QColor(0x44, 0x44, 0x44);
        seed.pageTop = QColor(0xFF, 0xFF, 0xFF);
        seed.pageBottom = QColor(0xFF, 0xFF, 0xFF);
        seed.pageBorder = QColor(0xD4, 0xD4, 0xD4);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0x26, 0x26, 0x26);
        seed.workspace = QColor(0xEE, 0xEE, 0xEE);
        warm = false;
        break;
    case Gray:
        seed.frame = QColor(0xE9, 0xE9, 0xE9);
        seed.frameText = QColor(0x44, 0x44, 0x44);
        seed.pageTop = QColor(0xF8, 0xF8, 0xF8);
        seed.pageBottom = QColor(0xF3, 0xF3, 0xF3);
        seed.pageBorder = QColor(0xC6, 0xC6, 0xC6);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0x26, 0x26, 0x26);
        seed.workspace = QColor(0xDC, 0xDC, 0xDC);
        warm = false;
        break;
    case Dark:
        seed.frame = QColor(0xC2, 0xC2, 0xC2);
        seed.frameText = QColor(0x26, 0x26, 0x26);
        seed.pageTop = QColor(0xE8, 0xE8, 0xE8);
        seed.pageBottom = QColor(0xE1, 0xE1, 0xE1);
        seed.pageBorder = QColor(0xA6, 0xA6, 0xA6);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0x26, 0x26, 0x26);
        seed.workspace = QColor(0xA6, 0xA6, 0xA6);
        warm = false;
        break;
    }
    RibbonColors colors = Scheme::build(seed);
    if (warm)
        Scheme::applyWarmHighlights(colors);
    return colors;
}

} // namespace Qtitan
