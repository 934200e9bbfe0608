#include "qtitan/Office2007Style.h"

#include "RibbonColors_p.h"

namespace Qtitan {

Office2007Style::Office2007Style(Theme theme)
    : m_theme(theme)
{
}

Office2007Style::~Office2007Style() = default;

Office2007Style::Theme Office2007Style::theme() const
{
    return m_theme;
}

void Office2007Style::setTheme(Theme theme)
{
    changeTheme(m_theme, theme);
}

RibbonColors Office2007Style::ribbonColors() const
{
    Scheme::Seed seed;
    bool warm = false;
    switch (m_theme) {
    case Blue:
        seed.frame = QColor(0xBF, 0xDB, 0xFF);
        seed.frameText = QColor(0x15, 0x42, 0x8B);
        seed.pageTop = QColor(0xE7, 0xF0, 0xFB);
        seed.pageBottom = QColor(0xC9, 0xDC, 0xF3);
        seed.pageBorder = QColor(0x8D, 0xB2, 0xE3);
        seed.accent = QColor(0x3B, 0x6D, 0xB3);
        seed.text = QColor(0x15, 0x42, 0x8B);
        seed.workspace = QColor(0x65, 0x91, 0xCD);
        warm = true;
        break;
    case Black:
        seed.frame = QColor(0x53, 0x53, 0x53);
        seed.frameText = QColor(0xFF, 0xFF, 0xFF);
        seed.pageTop = QColor(0xEE, 0xEE, 0xEE);
        seed.pageBottom = QColor(0xCF, 0xCF, 0xCF);
        seed.pageBorder = QColor(0x7C, 0x7C, 0x7C);
        seed.accent = QColor(0x4A, 0x4A, 0x4A);
        seed.text = QColor(0x1E, 0x1E, 0x1E);
        seed.workspace = QColor(0x47, 0x47, 0x47);
        warm = true;
        break;
    case Silver:
        seed.frame = QColor(0xD0, 0xD4, 0xDD);
        seed.frameText = QColor(0x4C, 0x53, 0x5C);
        seed.pageTop = QColor(0xF7, 0xF8, 0xF9);
        seed.pageBottom = QColor(0xDC, 0xE0, 0xE6);
        seed.pageBorder = QColor(0xA4, 0xAA, 0xB3);
        seed.accent = QColor(0x6C, 0x7A, 0x8C);
        seed.text = QColor(0x33, 0x3A, 0x42);
        seed.workspace = QColor(0x9B, 0xA3, 0xAD);
        warm = true;
        break;
    case Aqua:
        seed.frame = QColor(0xB8, 0xD6, 0xE2);
        seed.frameText = QColor(0x1B, 0x4F, 0x65);
        seed.pageTop = QColor(0xED, 0xF6, 0xF9);
        seed.pageBottom = QColor(0xCB, 0xE2, 0xEA);
        seed.pageBorder = QColor(0x84, 0xA9, 0xBA);
        seed.accent = QColor(0x2E, 0x7A, 0x96);
        seed.text = QColor(0x1B, 0x4F, 0x65);
        seed.workspace = QColor(0x7A, 0xAA, 0xC0);
        warm = true;
        break;
    }
    RibbonColors colors = Scheme::build(seed);
    if (warm)
        Scheme::applyWarmHighlights(colors);
    return colors;
}

} // namespace Qtitan
