#include "qtitan/Office2016Style.h"

#include "RibbonColors_p.h"

namespace Qtitan {

Office2016Style::Office2016Style(Theme theme)
    : m_theme(theme)
{
}

Office2016Style::~Office2016Style() = default;

Office2016Style::Theme Office2016Style::theme() const
{
    return m_theme;
}

void Office2016Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2016Style::ribbonColors() const
{
    Scheme::Seed seed;
    bool warm = false;
    switch (m_theme) {
    case Colorful:
        seed.frame = QColor(0x2B, 0x57, 0x9A);
        seed.frameText = QColor(0xFF, 0xFF, 0xFF);
        seed.pageTop = QColor(0xF3, 0xF3, 0xF3);
        seed.pageBottom = QColor(0xF3, 0xF3, 0xF3);
        seed.pageBorder = QColor(0xD5, 0xD5, 0xD5);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0x26, 0x26, 0x26);
        seed.workspace = QColor(0xD9, 0xDE, 0xE6);
        warm = false;
        break;
    case White:
        seed.frame = QColor(0xFF, 0xFF, 0xFF);
        seed.frameText = QColor(0x44, 0x44, 0x44);
        seed.pageTop = QColor(0xFF, 0xFF, 0xFF);
        seed.pageBottom = QColor(0xFF, 0xFF, 0xFF);
        seed.pageBorder = QColor(0xD4, 0xD4, 0xD4);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0x26, 0x26, 0x26);
        seed.workspace = QColor(0xF0, 0xF0, 0xF0);
        warm = false;
        break;
    case DarkGray:
        seed.frame = QColor(0x44, 0x44, 0x44);
        seed.frameText = QColor(0xF0, 0xF0, 0xF0);
        seed.pageTop = QColor(0xB9, 0xB9, 0xB9);
        seed.pageBottom = QColor(0xB2, 0xB2, 0xB2);
        seed.pageBorder = QColor(0x8A, 0x8A, 0x8A);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0x1E, 0x1E, 0x1E);
        seed.workspace = QColor(0x6A, 0x6A, 0x6A);
        warm = false;
        break;
    case Black:
        seed.frame = QColor(0x1F, 0x1F, 0x1F);
        seed.frameText = QColor(0xE8, 0xE8, 0xE8);
        seed.pageTop = QColor(0x36, 0x36, 0x36);
        seed.pageBottom = QColor(0x36, 0x36, 0x36);
        seed.pageBorder = QColor(0x4A, 0x4A, 0x4A);
        seed.accent = QColor(0x2B, 0x57, 0x9A);
        seed.text = QColor(0xF0, 0xF0, 0xF0);
        seed.workspace = QColor(0x26, 0x26, 0x26);
        warm = false;
        break;
    }
    RibbonColors colors = Scheme::build(seed);
    if (warm)
        Scheme::applyWarmHighlights(colors);
    return colors;
}

} // namespace Qtitan
