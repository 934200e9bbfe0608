#include "qtitan/Office2010Style.h"

#include "RibbonColors_p.h"

namespace Qtitan {

Office2010Style::Office2010Style(Theme theme)
    : m_theme(theme)
{
}

Office2010Style::~Office2010Style() = default;

Office2010Style::Theme Office2010Style::theme() const
{
    return m_theme;
}

void Office2010Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2010Style::ribbonColors() const
{
    Scheme::Seed seed;
    bool warm = false;
    switch (m_theme) {
    case Black:
        seed.frame = QColor(0x3E, 0x3E, 0x3E);
        seed.frameText = QColor(0xF2, 0xF2, 0xF2);
        seed.pageTop = QColor(0xE3, 0xE3, 0xE3);
        seed.pageBottom = QColor(0xC6, 0xC6, 0xC6);
        seed.pageBorder = QColor(0x6B, 0x6B, 0x6B);
        seed.accent = QColor(0x2C, 0x2C, 0x2C);
        seed.text = QColor(0x1E, 0x1E, 0x1E);
        seed.workspace = QColor(0x5E, 0x5E, 0x5E);
        warm = true;
        break;
    case Blue:
        seed.frame = QColor(0xD5, 0xE1, 0xF2);
        seed.frameText = QColor(0x1E, 0x39, 0x5B);
        seed.pageTop = QColor(0xFB, 0xFC, 0xFE);
        seed.pageBottom = QColor(0xDC, 0xE7, 0xF5);
        seed.pageBorder = QColor(0x8D, 0xB2, 0xE3);
        seed.accent = QColor(0x2A, 0x5C, 0xAA);
        seed.text = QColor(0x1E, 0x39, 0x5B);
        seed.workspace = QColor(0xA9, 0xC4, 0xE9);
        warm = true;
        break;
    case Silver:
        seed.frame = QColor(0xE5, 0xE9, 0xEE);
        seed.frameText = QColor(0x3B, 0x3B, 0x3B);
        seed.pageTop = QColor(0xFF, 0xFF, 0xFF);
        seed.pageBottom = QColor(0xE8, 0xEB, 0xEF);
        seed.pageBorder = QColor(0xA7, 0xAB, 0xB0);
        seed.accent = QColor(0x4F, 0x6D, 0x8F);
        seed.text = QColor(0x2E, 0x2E, 0x2E);
        seed.workspace = QColor(0xC3, 0xC9, 0xD0);
        warm = true;
        break;
    }
    RibbonColors colors = Scheme::build(seed);
    if (warm)
        Scheme::applyWarmHighlights(colors);
    return colors;
}

} // namespace Qtitan
