#include "qtitan/CommonStyle.h"

#include "qtitan/RibbonBar.h"
#include "qtitan/RibbonQuickAccessBar.h"

#include "RibbonCaptionButton_p.h"
#include "RibbonColors_p.h"
#include "RibbonLook_p.h"
#include "RibbonPaint_p.h"

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

// An icon that stays visible on `background`, in every mode a tool button or a menu asks for.
QIcon visibleIcon(const QIcon& icon, const QSize& size, const QColor& background)
{
    QIcon result;
    for (QIcon::State state : {QIcon::Off, QIcon::On}) {
        for (QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Selected, QIcon::Disabled})
            result.addPixmap(detail::visiblePixmap(icon, size, mode, state, background), mode, state);
    }
    return result;
}

} // namespace

CommonStyle::CommonStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    , m_look(nullptr)
{
}

CommonStyle::CommonStyle(const detail::RibbonLook& look)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    , m_look(&look)
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
    // The text and the paper of documents and entry fields (Text, Base and the
    // roles that go with them) are left as they come: a scheme that tinted them
    // would recolour the user's documents. Dark themes keep the paper light, as
    // the office suites keep the page white under a dark ribbon.
    const QColor text = c.buttonText;
    const QColor button = dark ? Scheme::mix(c.pageBackgroundTop, Qt::white, 0.06) : c.pageBackgroundTop;
    const QColor highlight = dark ? Scheme::mix(c.systemButtonBackground, Qt::white, 0.1) : c.systemButtonBackground;
    const QColor disabledText = c.buttonTextDisabled;

    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool disabled = group == QPalette::Disabled;
        palette.setColor(group, QPalette::Window, window);
        palette.setColor(group, QPalette::WindowText, disabled ? disabledText : text);
        palette.setColor(group, QPalette::Button, button);
        palette.setColor(group, QPalette::ButtonText, disabled ? disabledText : text);
        palette.setColor(group, QPalette::BrightText, Qt::white);
        palette.setColor(group, QPalette::Light, Scheme::mix(button, Qt::white, 0.5));
        palette.setColor(group, QPalette::Midlight, Scheme::mix(button, Qt::white, 0.25));
        palette.setColor(group, QPalette::Mid, c.pageBorder);
        palette.setColor(group, QPalette::Dark, Scheme::mix(c.pageBorder, Qt::black, 0.25));
        palette.setColor(group, QPalette::Shadow, Scheme::mix(c.pageBorder, Qt::black, 0.6));
        palette.setColor(group, QPalette::Highlight, disabled ? Scheme::mix(highlight, window, 0.5) : highlight);
        palette.setColor(group, QPalette::HighlightedText, Scheme::isDark(highlight) ? Qt::white : Qt::black);
        palette.setColor(group, QPalette::ToolTipBase, c.menuBackground);
        palette.setColor(group, QPalette::ToolTipText, c.menuText);
        palette.setColor(group, QPalette::Link, highlight);
        palette.setColor(group, QPalette::LinkVisited, Scheme::mix(highlight, text, 0.3));
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
    if (element == static_cast<PrimitiveElement>(PE_CaptionButton)) {
        drawCaptionButton(option, painter);
        return;
    }
    switch (element) {
    case PE_IndicatorBranch: {
        // Tree arrows lie on the view's paper, which keeps the host's colours,
        // so they take its text colour rather than the scheme's window text.
        QStyleOption copy(*option);
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            copy.palette.setColor(group, QPalette::WindowText, option->palette.color(group, QPalette::Text));
            copy.palette.setColor(group, QPalette::ButtonText, option->palette.color(group, QPalette::Text));
        }
        QProxyStyle::drawPrimitive(element, &copy, painter, widget);
        return;
    }
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
            const bool glossy = detail::lookOf(*this).glossyButtons;
            auto drawButtonPanel = [&](const QRect& rect, const QColor& fill, const QColor& border) {
                detail::drawFace(painter, rect, fill, border, glossy);
            };
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
                    drawButtonPanel(option->rect, fill, fill);
                return;
            }
            if (!(state & State_Enabled)) {
                if (state & State_On)
                    drawButtonPanel(option->rect, Scheme::mix(c.buttonCheckedBackground, c.pageBackgroundBottom, 0.5),
                                    Scheme::mix(c.buttonCheckedBorder, c.pageBackgroundBottom, 0.5));
                return;
            }
            if (state & State_Sunken)
                drawButtonPanel(option->rect, c.buttonPressedBackground, c.buttonPressedBorder);
            else if (state & State_On)
                drawButtonPanel(option->rect,
                                (state & State_MouseOver) ? Scheme::mix(c.buttonCheckedBackground, c.buttonPressedBackground, 0.5)
                                                          : c.buttonCheckedBackground,
                                c.buttonCheckedBorder);
            else if (state & (State_MouseOver | State_Raised))
                drawButtonPanel(option->rect, c.buttonHoverBackground, c.buttonHoverBorder);
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
            const RibbonColors c = ribbonColors();
            QStyleOptionMenuItem copy(*item);
            copy.palette = menuPalette(item->palette, c);
            if (!copy.icon.isNull() && Scheme::isDark(c.menuBackground)) {
                const int extent = pixelMetric(PM_SmallIconSize, option, widget);
                copy.icon = visibleIcon(copy.icon, QSize(extent, extent), c.menuBackground);
            }
            QProxyStyle::drawControl(element, &copy, painter, widget);
            return;
        }
        break;
    case CE_ToolButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            // On the frame the icon is made to stand out from its lightest part.
            const QColor background = isOnRibbonFrame(widget) ? detail::frameTop(widget)
                                                              : button->palette.color(QPalette::Window);
            if (!button->icon.isNull() && Scheme::isDark(background)) {
                QStyleOptionToolButton copy(*button);
                copy.icon = visibleIcon(button->icon, button->iconSize, background);
                QProxyStyle::drawControl(element, &copy, painter, widget);
                return;
            }
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void CommonStyle::drawCaptionButton(const QStyleOption* option, QPainter* painter) const
{
    if (const auto* titleBar = qstyleoption_cast<const QStyleOptionTitleBar*>(option))
        detail::RibbonCaptionButton::paintFace(painter, *titleBar, ribbonColors());
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
