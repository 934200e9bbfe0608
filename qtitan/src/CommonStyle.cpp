#include "qtitan/CommonStyle.h"

#include "qtitan/RibbonBar.h"
#include "qtitan/RibbonQuickAccessBar.h"

#include "RibbonColors_p.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QWidget>

namespace Qtitan {

namespace {

// Menus take their colours from the scheme rather than from the widget palette,
// so a host's own QMenu looks like the ribbon's.
QPalette menuPalette(const QPalette& base, const RibbonColors& c)
{
    QPalette pal = base;
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        pal.setColor(group, QPalette::Window, c.menuBackground);
        pal.setColor(group, QPalette::Base, c.menuBackground);
        pal.setColor(group, QPalette::Button, c.menuBackground);
        pal.setColor(group, QPalette::WindowText, c.menuText);
        pal.setColor(group, QPalette::Text, c.menuText);
        pal.setColor(group, QPalette::ButtonText, c.menuText);
        pal.setColor(group, QPalette::Highlight, c.menuHighlight);
        pal.setColor(group, QPalette::HighlightedText, c.menuHighlightText);
    }
    pal.setColor(QPalette::Disabled, QPalette::Window, c.menuBackground);
    pal.setColor(QPalette::Disabled, QPalette::Base, c.menuBackground);
    pal.setColor(QPalette::Disabled, QPalette::WindowText, Scheme::mix(c.menuText, c.menuBackground, 0.6));
    pal.setColor(QPalette::Disabled, QPalette::Text, Scheme::mix(c.menuText, c.menuBackground, 0.6));
    pal.setColor(QPalette::Disabled, QPalette::ButtonText, Scheme::mix(c.menuText, c.menuBackground, 0.6));
    return pal;
}

// A tool button on the ribbon's frame colour rather than on a page or a menu.
bool isOnRibbonFrame(const QWidget* widget)
{
    const QWidget* parent = widget ? widget->parentWidget() : nullptr;
    return parent && qobject_cast<const RibbonQuickAccessBar*>(parent)
           && qobject_cast<const RibbonBar*>(parent->parentWidget());
}

void drawButtonPanel(QPainter* painter, const QRectF& rect, const QColor& fill, const QColor& border)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(QPen(border, 1.0));
    painter->setBrush(fill);
    painter->drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
    painter->restore();
}

} // namespace

CommonStyle::CommonStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

CommonStyle::~CommonStyle() = default;

RibbonColors CommonStyle::ribbonColors() const
{
    return RibbonColors::fromPalette(baseStyle()->standardPalette());
}

void CommonStyle::polish(QPalette& palette)
{
    const RibbonColors c = ribbonColors();
    const bool dark = Scheme::isDark(c.pageBackgroundBottom);
    const QColor window = c.pageBackgroundBottom;
    const QColor base = dark ? Scheme::mix(c.pageBackgroundBottom, Qt::black, 0.25) : QColor(Qt::white);
    const QColor text = c.buttonText;
    const QColor button = dark ? Scheme::mix(c.pageBackgroundTop, Qt::white, 0.06) : c.pageBackgroundTop;
    const QColor highlight = dark ? Scheme::mix(c.systemButtonBackground, Qt::white, 0.1) : c.systemButtonBackground;
    const QColor disabledText = c.buttonTextDisabled;

    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool disabled = group == QPalette::Disabled;
        palette.setColor(group, QPalette::Window, window);
        palette.setColor(group, QPalette::WindowText, disabled ? disabledText : text);
        palette.setColor(group, QPalette::Base, disabled ? window : base);
        palette.setColor(group, QPalette::AlternateBase, Scheme::mix(base, window, 0.5));
        palette.setColor(group, QPalette::Text, disabled ? disabledText : text);
        palette.setColor(group, QPalette::Button, button);
        palette.setColor(group, QPalette::ButtonText, disabled ? disabledText : text);
        palette.setColor(group, QPalette::BrightText, Qt::white);
        palette.setColor(group, QPalette::Light, Scheme::mix(button, Qt::white, 0.5));
        palette.setColor(group, QPalette::Midlight, Scheme::mix(button, Qt::white, 0.25));
        palette.setColor(group, QPalette::Mid, c.pageBorder);
        palette.setColor(group, QPalette::Dark, Scheme::mix(c.pageBorder, Qt::black, 0.25));
        palette.setColor(group, QPalette::Shadow, Scheme::mix(c.pageBorder, Qt::black, 0.6));
        palette.setColor(group, QPalette::Highlight, disabled ? Scheme::mix(highlight, window, 0.5) : highlight);
        palette.setColor(group, QPalette::HighlightedText, c.systemButtonText);
        palette.setColor(group, QPalette::ToolTipBase, c.menuBackground);
        palette.setColor(group, QPalette::ToolTipText, c.menuText);
        palette.setColor(group, QPalette::Link, highlight);
        palette.setColor(group, QPalette::LinkVisited, Scheme::mix(highlight, text, 0.3));
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
        palette.setColor(group, QPalette::PlaceholderText, Scheme::mix(text, base, 0.5));
#endif
    }
}

namespace {

const char* const TabTextProperty = "qtitan_tabTextPolished";

// A style sheet that paints light tabs over a dark scheme leaves their text in
// the scheme's light colour; those tab bars get dark text.
bool hasLightStyledTabs(const QWidget* widget)
{
    const auto* tabBar = qobject_cast<const QTabBar*>(widget);
    if (!tabBar || tabBar->styleSheet().isEmpty())
        return false;
    const QString sheet = tabBar->styleSheet();
    return sheet.contains(QLatin1String("QTabBar::tab")) && sheet.contains(QLatin1String("background"))
           && !sheet.contains(QRegularExpression(QStringLiteral("(^|[^-\\w])color\\s*:")));
}

} // namespace

void CommonStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (hasLightStyledTabs(widget)) {
        const RibbonColors c = ribbonColors();
        if (Scheme::isDark(c.pageBackgroundBottom)) {
            QPalette palette = widget->palette();
            const QColor text(0x1E, 0x1E, 0x1E);
            for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
                palette.setColor(group, QPalette::WindowText, text);
                palette.setColor(group, QPalette::ButtonText, text);
                palette.setColor(group, QPalette::Text, text);
            }
            widget->setPalette(palette);
            widget->setProperty(TabTextProperty, true);
        }
    }
}

void CommonStyle::unpolish(QWidget* widget)
{
    if (widget->property(TabTextProperty).toBool()) {
        widget->setProperty(TabTextProperty, QVariant());
        widget->setPalette(QPalette());
    }
    QProxyStyle::unpolish(widget);
}

void CommonStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    if (element == static_cast<PrimitiveElement>(PE_Workspace)) {
        painter->fillRect(option->rect, ribbonColors().workspaceBackground);
        return;
    }
    switch (element) {
    case PE_PanelMenu:
    case PE_FrameMenu: {
        const RibbonColors c = ribbonColors();
        painter->save();
        if (element == PE_PanelMenu)
            painter->fillRect(option->rect, c.menuBackground);
        painter->setPen(c.menuBorder);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
        return;
    }
    case PE_PanelButtonTool:
    case PE_IndicatorButtonDropDown:
        if (option->state & State_AutoRaise) {
            const RibbonColors c = ribbonColors();
            const State state = option->state;
            if (isOnRibbonFrame(widget)) {
                // Buttons on the title strip or the quick access row take the tab colours.
                QColor fill;
                if (state & State_Sunken)
                    fill = Scheme::mix(c.tabHoverBackground, Scheme::isDark(c.frameBackground) ? Qt::white : Qt::black, 0.14);
                else if (state & State_On)
                    fill = c.tabHoverBackground;
                else if ((state & State_Enabled) && (state & (State_MouseOver | State_Raised)))
                    fill = c.tabHoverBackground;
                if (fill.isValid())
                    drawButtonPanel(painter, option->rect, fill, fill);
                return;
            }
            if (!(state & State_Enabled)) {
                if (state & State_On)
                    drawButtonPanel(painter, option->rect, Scheme::mix(c.buttonCheckedBackground, c.pageBackgroundBottom, 0.5),
                                    Scheme::mix(c.buttonCheckedBorder, c.pageBackgroundBottom, 0.5));
                return;
            }
            if (state & State_Sunken)
                drawButtonPanel(painter, option->rect, c.buttonPressedBackground, c.buttonPressedBorder);
            else if (state & State_On)
                drawButtonPanel(painter, option->rect,
                                (state & State_MouseOver) ? Scheme::mix(c.buttonCheckedBackground, c.buttonPressedBackground, 0.5)
                                                          : c.buttonCheckedBackground,
                                c.buttonCheckedBorder);
            else if (state & (State_MouseOver | State_Raised))
                drawButtonPanel(painter, option->rect, c.buttonHoverBackground, c.buttonHoverBorder);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CommonStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case CE_MenuEmptyArea:
        painter->fillRect(option->rect, ribbonColors().menuBackground);
        return;
    case CE_MenuItem:
    case CE_MenuScroller:
    case CE_MenuTearoff:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            QStyleOptionMenuItem copy(*item);
            copy.palette = menuPalette(item->palette, ribbonColors());
            QProxyStyle::drawControl(element, &copy, painter, widget);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

namespace {
// Set while the application palette was installed by a theme change rather than by the host.
bool g_themePaletteInstalled = false;

QPalette unresolvedPalette()
{
    QPalette palette(Qt::gray);
    palette.resolve(0u);
    return palette;
}
} // namespace

void CommonStyle::unpolish(QApplication* application)
{
    QProxyStyle::unpolish(application);
    // The application style is already the next one: give it its own palette
    // instead of leaving this scheme's colours behind.
    if (g_themePaletteInstalled && QApplication::style() != this) {
        g_themePaletteInstalled = false;
        QApplication::setPalette(unresolvedPalette());
    }
}

void CommonStyle::updateTheme()
{
    if (QApplication::style() == this) {
        // A palette with no role of its own makes the application rebuild its
        // palette from the style, which polishes it with the new scheme.
        QApplication::setPalette(unresolvedPalette());
        g_themePaletteInstalled = true;
    }
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->style() != this)
            continue;
        unpolish(widget);
        polish(widget);
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(widget, &change);
        widget->update();
    }
    Q_EMIT themeChanged();
}

} // namespace Qtitan
