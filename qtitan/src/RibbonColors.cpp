#include "qtitan/RibbonColors.h"
#include "qtitan/CommonStyle.h"

#include "RibbonColors_p.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace Qtitan {
namespace Scheme {

QColor mix(const QColor& a, const QColor& b, qreal amount)
{
    auto blend = [amount](int x, int y) { return qRound(x + (y - x) * amount); };
    return QColor(blend(a.red(), b.red()), blend(a.green(), b.green()), blend(a.blue(), b.blue()),
                  blend(a.alpha(), b.alpha()));
}

bool isDark(const QColor& color)
{
    // Perceived brightness (ITU-R BT.601 weights).
    return 0.299 * color.redF() + 0.587 * color.greenF() + 0.114 * color.blueF() < 0.5;
}

RibbonColors build(const Seed& seed)
{
    const bool darkPage = isDark(seed.pageBottom);
    const bool darkFrame = isDark(seed.frame);
    const QColor white(Qt::white);
    const QColor black(Qt::black);

    RibbonColors c;
    c.frameBackground = seed.frame;
    c.titleText = seed.frameText;
    c.tabText = seed.frameText;
    c.tabTextSelected = darkPage ? seed.text : (darkFrame ? seed.frame : seed.text);
    c.tabHoverBackground = darkFrame ? mix(seed.frame, white, 0.14) : mix(seed.frame, black, 0.06);
    c.tabSelectedBackground = seed.pageTop;
    c.tabBorder = darkFrame && !darkPage ? seed.pageTop : seed.pageBorder;
    c.pageBackgroundTop = seed.pageTop;
    c.pageBackgroundBottom = seed.pageBottom;
    c.pageBorder = seed.pageBorder;
    c.groupTitleText = mix(seed.text, seed.pageBottom, 0.32);
    c.groupSeparator = darkPage ? mix(seed.pageBorder, white, 0.08) : mix(seed.pageBorder, seed.pageBottom, 0.15);
    c.buttonText = seed.text;
    c.buttonTextDisabled = mix(seed.text, seed.pageBottom, 0.6);
    if (darkPage) {
        c.buttonHoverBackground = mix(seed.pageTop, white, 0.12);
        c.buttonHoverBorder = mix(seed.pageTop, white, 0.22);
        c.buttonPressedBackground = mix(seed.pageTop, black, 0.25);
        c.buttonPressedBorder = mix(seed.pageTop, white, 0.18);
        c.buttonCheckedBackground = mix(seed.pageTop, seed.accent, 0.35);
        c.buttonCheckedBorder = mix(seed.pageTop, seed.accent, 0.7);
    } else {
        c.buttonHoverBackground = mix(seed.accent, white, 0.82);
        c.buttonHoverBorder = mix(seed.accent, white, 0.55);
        c.buttonPressedBackground = mix(seed.accent, white, 0.62);
        c.buttonPressedBorder = mix(seed.accent, white, 0.3);
        c.buttonCheckedBackground = mix(seed.accent, white, 0.72);
        c.buttonCheckedBorder = mix(seed.accent, white, 0.4);
    }
    // A system button in the frame's own colour would not stand out from the tabs.
    c.systemButtonBackground = seed.accent == seed.frame ? mix(seed.accent, black, 0.18) : seed.accent;
    c.systemButtonText = isDark(seed.accent) ? white : black;
    c.quickAccessBackground = seed.frame;
    if (darkPage) {
        c.menuBackground = mix(seed.pageTop, black, 0.12);
        c.menuText = seed.text;
        c.menuHighlight = mix(seed.pageTop, white, 0.14);
        c.menuHighlightText = mix(seed.text, white, 0.5);
        c.menuBorder = mix(seed.pageTop, white, 0.2);
        c.menuSeparator = mix(seed.pageTop, white, 0.1);
        c.menuPopupBarBackground = mix(seed.pageTop, black, 0.22);
    } else {
        c.menuBackground = white;
        c.menuText = seed.text;
        c.menuHighlight = mix(seed.accent, white, 0.84);
        c.menuHighlightText = seed.text;
        c.menuBorder = mix(seed.pageBorder, black, 0.12);
        c.menuSeparator = mix(seed.pageBorder, white, 0.45);
        c.menuPopupBarBackground = mix(seed.pageBottom, seed.pageBorder, 0.2);
    }
    c.workspaceBackground = seed.workspace;
    return c;
}

void applyWarmHighlights(RibbonColors& c)
{
    c.buttonHoverBackground = QColor(0xFD, 0xEC, 0xAF);
    c.buttonHoverBorder = QColor(0xEB, 0xC4, 0x5B);
    c.buttonPressedBackground = QColor(0xFB, 0xC9, 0x6A);
    c.buttonPressedBorder = QColor(0xC2, 0x8A, 0x30);
    c.buttonCheckedBackground = QColor(0xFC, 0xD9, 0x8B);
    c.buttonCheckedBorder = QColor(0xC2, 0x9B, 0x3D);
    c.menuHighlight = QColor(0xFD, 0xEC, 0xAF);
    c.menuHighlightText = QColor(0x1E, 0x1E, 0x1E);
}

} // namespace Scheme

RibbonColors RibbonColors::fromPalette(const QPalette& palette)
{
    Scheme::Seed seed;
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const bool dark = Scheme::isDark(window);
    seed.frame = Scheme::mix(window, Qt::black, dark ? 0.2 : 0.07);
    seed.frameText = palette.color(QPalette::Active, QPalette::WindowText);
    seed.pageTop = Scheme::mix(window, Qt::white, dark ? 0.04 : 0.45);
    seed.pageBottom = window;
    seed.pageBorder = palette.color(QPalette::Active, QPalette::Mid);
    seed.accent = palette.color(QPalette::Active, QPalette::Highlight);
    seed.text = palette.color(QPalette::Active, QPalette::ButtonText);
    seed.workspace = palette.color(QPalette::Active, QPalette::Dark);
    RibbonColors colors = Scheme::build(seed);
    colors.systemButtonText = palette.color(QPalette::Active, QPalette::HighlightedText);
    return colors;
}

RibbonColors RibbonColors::forWidget(const QWidget* widget)
{
    const QStyle* style = widget ? widget->style() : QApplication::style();
    if (const auto* common = qobject_cast<const CommonStyle*>(style))
        return common->ribbonColors();
    // A style sheet wraps the application style; the ribbon keeps the scheme beneath it.
    if (style && style->inherits("QStyleSheetStyle")) {
        if (const auto* common = qobject_cast<const CommonStyle*>(QApplication::style()))
            return common->ribbonColors();
    }
    return fromPalette(widget ? widget->palette() : QApplication::palette());
}

} // namespace Qtitan
