#include "qtitan/RibbonColors.h"
#include "qtitan/CommonStyle.h"

#include "RibbonColors_p.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include <cmath>
#include <vector>

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

qreal luminance(const QColor& color)
{
    auto channel = [](qreal v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

qreal contrast(const QColor& a, const QColor& b)
{
    const qreal la = luminance(a);
    const qreal lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

namespace {

// A button highlight one step on: pressed is a full step, checked half of one.
// On a light page the colour grows richer and a little darker, so a warm hover
// turns golden and a grey one darker grey; on a dark page it darkens.
QColor deepen(const QColor& highlight, qreal step, bool darkPage)
{
    if (darkPage)
        return mix(highlight, Qt::black, 0.3 * step);
    const QColor hsv = highlight.toHsv();
    return QColor::fromHsvF(hsv.hsvHueF(), qMin<qreal>(1.0, hsv.hsvSaturationF() * (1.0 + 0.5 * step)),
                            hsv.valueF() * (1.0 - 0.05 * step));
}

// The outline of a highlighted button face.
QColor outline(const QColor& fill, bool darkPage)
{
    if (darkPage)
        return mix(fill, Qt::white, 0.16);
    const QColor hsv = fill.toHsv();
    return QColor::fromHsvF(hsv.hsvHueF(), qMin<qreal>(1.0, hsv.hsvSaturationF() * 1.3), hsv.valueF() * 0.8);
}

RibbonColors derive(const Seed& seed)
{
    const QColor frame(seed.frame);
    const QColor frameText(seed.frameText);
    const QColor pageTop(seed.pageTop);
    const QColor pageBottom(seed.pageBottom);
    const QColor pageBorder(seed.pageBorder);
    const QColor accent(seed.accent);
    const QColor text(seed.text);
    const QColor highlight(seed.highlight);
    const bool darkPage = isDark(pageBottom);
    const bool darkFrame = isDark(frame);
    const QColor white(Qt::white);
    const QColor black(Qt::black);

    RibbonColors c;
    c.frameBackground = frame;
    c.titleText = frameText;
    c.tabText = frameText;
    c.tabTextSelected = darkPage ? text : (darkFrame ? frame : text);
    // On one flat canvas the selected tab differs from the others only by a
    // hairline, so its title takes the accent colour where that reads well.
    if (frame == pageTop && !darkPage && contrast(accent, pageTop) >= 4.5)
        c.tabTextSelected = accent;
    c.tabHoverBackground = darkFrame ? mix(frame, white, 0.14) : mix(frame, black, 0.06);
    c.tabSelectedBackground = pageTop;
    c.tabBorder = darkFrame && !darkPage ? pageTop : pageBorder;
    c.pageBackgroundTop = pageTop;
    c.pageBackgroundBottom = pageBottom;
    c.pageBorder = pageBorder;
    c.groupTitleText = mix(text, pageBottom, 0.32);
    c.groupSeparator = darkPage ? mix(pageBorder, white, 0.08) : mix(pageBorder, pageBottom, 0.15);
    c.buttonText = text;
    c.buttonTextDisabled = mix(text, pageBottom, 0.6);
    c.buttonHoverBackground = highlight;
    c.buttonHoverBorder = outline(highlight, darkPage);
    c.buttonPressedBackground = deepen(highlight, 1.0, darkPage);
    c.buttonPressedBorder = outline(c.buttonPressedBackground, darkPage);
    c.buttonCheckedBackground = darkPage ? mix(pageTop, accent, 0.35) : deepen(highlight, 0.5, darkPage);
    c.buttonCheckedBorder = darkPage ? mix(pageTop, accent, 0.7) : outline(c.buttonCheckedBackground, darkPage);
    // A system button in the frame's own colour would not stand out from the tabs.
    c.systemButtonBackground = accent == frame ? mix(accent, black, 0.18) : accent;
    c.systemButtonText = isDark(c.systemButtonBackground) ? white : black;
    c.quickAccessBackground = frame;
    c.menuText = text;
    c.menuHighlight = highlight;
    c.menuHighlightText = text;
    if (darkPage) {
        c.menuBackground = mix(pageTop, black, 0.12);
        c.menuBorder = mix(pageTop, white, 0.2);
        c.menuSeparator = mix(pageTop, white, 0.1);
        c.menuPopupBarBackground = mix(pageTop, black, 0.22);
    } else {
        c.menuBackground = white;
        c.menuBorder = mix(pageBorder, black, 0.12);
        c.menuSeparator = mix(pageBorder, white, 0.45);
        c.menuPopupBarBackground = mix(pageBottom, pageBorder, 0.2);
    }
    c.workspaceBackground = QColor(seed.workspace);
    return c;
}

bool sameSeed(const Seed& a, const Seed& b)
{
    return a.frame == b.frame && a.frameText == b.frameText && a.pageTop == b.pageTop && a.pageBottom == b.pageBottom
           && a.pageBorder == b.pageBorder && a.accent == b.accent && a.text == b.text && a.workspace == b.workspace
           && a.highlight == b.highlight;
}

} // namespace

// Every ribbon widget asks for its colours on each paint, and only a few
// seeds are in use at a time (one per theme or palette shown), so the last
// few schemes are kept rather than derived again.
RibbonColors build(const Seed& seed)
{
    struct Entry
    {
        Seed seed;
        RibbonColors colors;
    };
    enum { Kept = 8 };
    thread_local std::vector<Entry> kept;
    for (const Entry& entry : kept) {
        if (sameSeed(entry.seed, seed))
            return entry.colors;
    }
    if (kept.size() == Kept)
        kept.erase(kept.begin());
    kept.push_back({seed, derive(seed)});
    return kept.back().colors;
}

const CommonStyle* commonStyleFor(const QWidget* widget)
{
    const QStyle* style = widget ? widget->style() : QApplication::style();
    if (const auto* common = qobject_cast<const CommonStyle*>(style))
        return common;
    // A style sheet wraps the application style; the ribbon keeps the look beneath it.
    if (style && style->inherits("QStyleSheetStyle"))
        return qobject_cast<const CommonStyle*>(QApplication::style());
    return nullptr;
}

} // namespace Scheme

RibbonColors RibbonColors::fromPalette(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const bool dark = Scheme::isDark(window);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    Scheme::Seed seed;
    seed.frame = Scheme::mix(window, Qt::black, dark ? 0.2 : 0.07).rgb();
    seed.frameText = palette.color(QPalette::Active, QPalette::WindowText).rgb();
    seed.pageTop = Scheme::mix(window, Qt::white, dark ? 0.04 : 0.45).rgb();
    seed.pageBottom = window.rgb();
    seed.pageBorder = palette.color(QPalette::Active, QPalette::Mid).rgb();
    seed.accent = accent.rgb();
    seed.text = palette.color(QPalette::Active, QPalette::ButtonText).rgb();
    seed.workspace = palette.color(QPalette::Active, QPalette::Dark).rgb();
    seed.highlight = (dark ? Scheme::mix(window, Qt::white, 0.16) : Scheme::mix(accent, Qt::white, 0.82)).rgb();
    RibbonColors colors = Scheme::build(seed);
    colors.systemButtonText = palette.color(QPalette::Active, QPalette::HighlightedText);
    return colors;
}

RibbonColors RibbonColors::forWidget(const QWidget* widget)
{
    if (const CommonStyle* common = Scheme::commonStyleFor(widget))
        return common->ribbonColors();
    return fromPalette(widget ? widget->palette() : QApplication::palette());
}

} // namespace Qtitan
