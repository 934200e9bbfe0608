#include "RibbonPaint_p.h"

#include "qtitan/RibbonSystemButton.h"

#include "RibbonColors_p.h"
#include "RibbonLook_p.h"

#include <QAction>
#include <QLinearGradient>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QRadialGradient>
#include <QWidget>

namespace Qtitan {
namespace detail {

RibbonMetrics RibbonMetrics::forFont(const QFontMetrics& fm)
{
    RibbonMetrics m;
    m.lineHeight = fm.height();
    const int largeButton = 3 + LargeIconSize + 2 + 2 * m.lineHeight + 2;
    const int row = qMax(22, m.lineHeight + 6);
    m.contentHeight = qMax(3 * row, largeButton);
    m.rowHeight = m.contentHeight / 3;
    m.titleHeight = m.lineHeight + 4;
    m.groupHeight = GroupTopMargin + m.contentHeight + 1 + m.titleHeight;
    return m;
}

RibbonMetrics RibbonMetrics::forWidget(const QWidget* widget)
{
    return forFont(widget->fontMetrics());
}

RibbonColors colorsFor(const QWidget* widget)
{
    return RibbonColors::forWidget(widget);
}

void drawFace(QPainter* painter, const QRectF& rect, const QColor& fill, const QColor& border, bool glossy)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    QPainterPath path;
    path.addRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
    if (glossy) {
        // Bright above a sharp line at the middle, the colour itself below it.
        QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
        gradient.setColorAt(0.0, Scheme::mix(fill, Qt::white, 0.6));
        gradient.setColorAt(0.45, Scheme::mix(fill, Qt::white, 0.25));
        gradient.setColorAt(0.46, fill);
        gradient.setColorAt(1.0, Scheme::mix(fill, Qt::white, 0.3));
        painter->fillPath(path, gradient);
    } else {
        painter->fillPath(path, fill);
    }
    painter->setPen(border);
    painter->drawPath(path);
    if (glossy && rect.height() > 6) {
        QColor shine(Qt::white);
        shine.setAlpha(qRound(fill.alphaF() * 120));
        painter->setPen(shine);
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(rect.adjusted(1.5, 1.5, -1.5, -1.5), 1.5, 1.5);
    }
    painter->restore();
}

void drawButtonFace(QPainter* painter, const QRect& rect, const QWidget* widget, Highlight highlight)
{
    const RibbonColors colors = colorsFor(widget);
    QColor fill;
    QColor border;
    switch (highlight) {
    case Highlight::None:
        return;
    case Highlight::Hover:
        fill = colors.buttonHoverBackground;
        border = colors.buttonHoverBorder;
        break;
    case Highlight::HoverLight:
        fill = colors.buttonHoverBackground;
        fill.setAlphaF(fill.alphaF() * 0.45);
        border = colors.buttonHoverBorder;
        break;
    case Highlight::Pressed:
    case Highlight::CheckedHover:
        fill = colors.buttonPressedBackground;
        border = colors.buttonPressedBorder;
        break;
    case Highlight::Checked:
        fill = colors.buttonCheckedBackground;
        border = colors.buttonCheckedBorder;
        break;
    }
    drawFace(painter, rect, fill, border, lookFor(widget).glossyButtons);
}

namespace {

using Surface = RibbonLook::Surface;

// A vertical fill from `top` to `bottom` over `rect`.
void fillSurface(QPainter* painter, const QRect& rect, Surface surface, const QColor& top, const QColor& bottom)
{
    if (surface == Surface::Flat) {
        painter->fillRect(rect, bottom);
        return;
    }
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0.0, top);
    if (surface == Surface::Glass) {
        // A bright band in the upper part that ends in a sharp edge.
        gradient.setColorAt(0.38, Scheme::mix(top, bottom, 0.45));
        gradient.setColorAt(0.39, Scheme::mix(top, bottom, 0.7));
    }
    gradient.setColorAt(1.0, bottom);
    painter->fillRect(rect, gradient);
}

// Light glass on a light colour; a dark colour gets only a faint sheen, so the
// light text on it keeps its contrast.
QColor sheen(const QColor& color, qreal amount)
{
    return Scheme::mix(color, Qt::white, Scheme::isDark(color) ? amount * 0.3 : amount);
}

QPainterPath roundedTopPath(const QRectF& r, qreal radius)
{
    QPainterPath path;
    path.moveTo(r.left(), r.bottom());
    path.lineTo(r.left(), r.top() + radius);
    path.quadTo(r.left(), r.top(), r.left() + radius, r.top());
    path.lineTo(r.right() - radius, r.top());
    path.quadTo(r.right(), r.top(), r.right(), r.top() + radius);
    path.lineTo(r.right(), r.bottom());
    return path;
}

} // namespace

QColor frameTop(const QWidget* widget)
{
    const QColor frame = colorsFor(widget).frameBackground;
    switch (lookFor(widget).frame) {
    case Surface::Flat:
        return frame;
    case Surface::Gradient:
        return sheen(frame, 0.45);
    case Surface::Glass:
        return sheen(frame, 0.6);
    }
    return frame;
}

void paintFrame(QPainter* painter, const QRect& rect, const QWidget* widget)
{
    const RibbonColors c = colorsFor(widget);
    const Surface surface = lookFor(widget).frame;
    painter->fillRect(rect, c.frameBackground);
    if (surface == Surface::Flat)
        return;
    // Light falls on the upper half, over the title strip; the row of tabs keeps
    // the plain frame colour.
    const QRect band(rect.left(), rect.top(), rect.width(), qMax(rect.height() / 2, 1));
    QLinearGradient gradient(band.topLeft(), band.bottomLeft());
    gradient.setColorAt(0.0, frameTop(widget));
    if (surface == Surface::Glass)
        gradient.setColorAt(0.55, sheen(c.frameBackground, 0.3));
    gradient.setColorAt(1.0, c.frameBackground);
    painter->fillRect(band, gradient);
}

void paintPageArea(QPainter* painter, const QRect& rect, const QWidget* widget)
{
    const RibbonColors c = colorsFor(widget);
    fillSurface(painter, rect, lookFor(widget).page, c.pageBackgroundTop, c.pageBackgroundBottom);
}

void paintTab(QPainter* painter, const QRect& rect, TabState state, const QWidget* widget)
{
    if (state == TabState::Normal)
        return;
    const RibbonColors c = colorsFor(widget);
    const RibbonLook& look = lookFor(widget);
    const bool rounded = look.tabs == RibbonLook::TabShape::Rounded;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, rounded);
    if (state == TabState::Hover) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(c.tabHoverBackground);
        if (rounded)
            painter->drawRoundedRect(QRectF(rect).adjusted(0, 0, 0, -1), 3.0, 3.0);
        else
            painter->drawRect(rect.adjusted(0, 0, 0, -1));
        painter->restore();
        return;
    }
    // Selected: open at the bottom, where it joins the page.
    const QRectF r = QRectF(rect).adjusted(0.5, 0.5, -0.5, 1.0);
    const QPainterPath path = roundedTopPath(r, rounded ? 3.0 : 0.0);
    if (look.page == Surface::Flat) {
        painter->fillPath(path, c.tabSelectedBackground);
    } else {
        // Lit from above, down to the colour at the top of the page, which its
        // lower part keeps so that tab and page join without a seam.
        QLinearGradient gradient(r.topLeft(), r.bottomLeft());
        gradient.setColorAt(0.0, sheen(c.tabSelectedBackground, 0.55));
        gradient.setColorAt(0.7, c.tabSelectedBackground);
        gradient.setColorAt(1.0, c.tabSelectedBackground);
        painter->fillPath(path, gradient);
    }
    painter->setPen(QPen(c.tabBorder, 1.0));
    painter->drawPath(path);
    painter->restore();
}

void paintGroupFrame(QPainter* painter, const QRect& rect, const QRect& titleRect, const QWidget* widget)
{
    if (lookFor(widget).groups != RibbonLook::GroupMark::RoundedFrame)
        return;
    const RibbonColors c = colorsFor(widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    const QRectF box = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath path;
    path.addRoundedRect(box, 3.0, 3.0);
    // The body brightens the page a little; the title sits in a deeper band.
    const bool titled = !titleRect.isEmpty();
    QLinearGradient body(box.topLeft(), QPointF(box.left(), titled ? titleRect.top() : box.bottom()));
    body.setColorAt(0.0, Scheme::mix(c.pageBackgroundTop, Qt::white, 0.45));
    body.setColorAt(1.0, Scheme::mix(c.pageBackgroundBottom, Qt::white, 0.25));
    painter->fillPath(path, body);
    if (titled) {
        QPainterPath band;
        band.addRect(QRectF(box.left(), titleRect.top(), box.width(), box.bottom() - titleRect.top() + 1));
        QLinearGradient title(0, titleRect.top(), 0, box.bottom());
        title.setColorAt(0.0, Scheme::mix(c.pageBackgroundBottom, c.pageBorder, 0.22));
        title.setColorAt(1.0, Scheme::mix(c.pageBackgroundBottom, c.pageBorder, 0.38));
        painter->fillPath(path.intersected(band), title);
    }
    QColor inner(Qt::white);
    inner.setAlpha(150);
    painter->setPen(inner);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(box.adjusted(1.0, 1.0, -1.0, -1.0), 2.5, 2.5);
    painter->setPen(Scheme::mix(c.pageBorder, c.pageBackgroundBottom, 0.25));
    painter->drawPath(path);
    painter->restore();
}

void paintGroupSeparator(QPainter* painter, int x, int top, int bottom, const QWidget* widget)
{
    const RibbonColors c = colorsFor(widget);
    const bool lightPage = !Scheme::isDark(c.pageBackgroundBottom);
    QColor shine(Qt::white);
    shine.setAlpha(180);
    painter->save();
    switch (lookFor(widget).groups) {
    case RibbonLook::GroupMark::RoundedFrame:
        break;
    case RibbonLook::GroupMark::Line:
        painter->setPen(c.groupSeparator);
        painter->drawLine(x, top, x, bottom);
        break;
    case RibbonLook::GroupMark::EtchedLine:
        painter->setPen(c.groupSeparator);
        painter->drawLine(x, top, x, bottom);
        if (lightPage) {
            painter->setPen(shine);
            painter->drawLine(x + 1, top, x + 1, bottom);
        }
        break;
    case RibbonLook::GroupMark::FadingLine: {
        auto fading = [&](const QColor& color) {
            QColor clear = color;
            clear.setAlpha(0);
            QLinearGradient gradient(0, top, 0, bottom);
            gradient.setColorAt(0.0, clear);
            gradient.setColorAt(0.3, color);
            gradient.setColorAt(0.7, color);
            gradient.setColorAt(1.0, clear);
            return QPen(QBrush(gradient), 1.0);
        };
        painter->setPen(fading(Scheme::mix(c.groupSeparator, c.pageBorder, 0.5)));
        painter->drawLine(x, top, x, bottom);
        if (lightPage) {
            painter->setPen(fading(shine));
            painter->drawLine(x + 1, top, x + 1, bottom);
        }
        break;
    }
    }
    painter->restore();
}

namespace {

constexpr int SystemButtonPadding = 14;
constexpr int SystemButtonSpacing = 6;
constexpr int FileTabTopGap = 3;   ///< a File tab stands as high as the page tabs
constexpr int ScenicArrowWidth = 7;

struct SystemButtonState
{
    QColor fill;
    bool pressed = false;
    bool hover = false;
};

SystemButtonState systemButtonState(const RibbonSystemButton* button, const RibbonColors& c)
{
    SystemButtonState state;
    const QMenu* popup = button->defaultAction() ? button->defaultAction()->menu() : nullptr;
    state.pressed = button->isDown() || (popup && popup->isVisible());
    state.hover = !state.pressed && button->underMouse();
    state.fill = c.systemButtonBackground;
    if (state.pressed)
        state.fill = Scheme::mix(state.fill, Qt::black, 0.18);
    else if (state.hover)
        state.fill = Scheme::mix(state.fill, Qt::white, 0.14);
    return state;
}

void drawSystemIcon(QPainter* painter, const RibbonSystemButton* button, const QRect& rect)
{
    button->icon().paint(painter, rect, Qt::AlignCenter, button->isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

// Icon and text side by side, centred in `rect`.
void drawSystemContent(QPainter* painter, const RibbonSystemButton* button, const QRect& rect, bool withIcon,
                       const QColor& textColor)
{
    const QString label = button->text();
    const bool hasIcon = withIcon && !button->icon().isNull();
    const QSize iconSize = button->iconSize();
    const QFontMetrics metrics(button->font());
    const int textWidth = label.isEmpty() ? 0 : metrics.horizontalAdvance(labelText(label));
    const int contentWidth = (hasIcon ? iconSize.width() : 0) + textWidth
                             + (hasIcon && textWidth ? SystemButtonSpacing : 0);
    int x = rect.left() + (rect.width() - contentWidth) / 2;
    if (hasIcon) {
        drawSystemIcon(painter, button,
                       QRect(x, rect.top() + (rect.height() - iconSize.height()) / 2, iconSize.width(),
                             iconSize.height()));
        x += iconSize.width() + SystemButtonSpacing;
    }
    if (!label.isEmpty()) {
        painter->setPen(textColor);
        painter->drawText(QRect(x, rect.top(), textWidth + 1, rect.height()),
                          Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, label);
    }
}

void paintOrb(QPainter* painter, const RibbonSystemButton* button, const RibbonColors& c,
              const SystemButtonState& state)
{
    const QRectF bounds(button->rect());
    const qreal diameter = qMin(bounds.width(), bounds.height()) - 2.0;
    const QRectF orb(bounds.center().x() - diameter / 2, bounds.center().y() - diameter / 2, diameter, diameter);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    // A glowing body, lit from below like a glass marble, under a gloss cap.
    QRadialGradient body(QPointF(orb.center().x(), orb.bottom()), diameter * 0.85);
    body.setColorAt(0.0, Scheme::mix(state.fill, QColor(0xFF, 0xF0, 0xC0), state.hover ? 0.75 : 0.45));
    body.setColorAt(0.55, state.fill);
    body.setColorAt(1.0, Scheme::mix(state.fill, Qt::black, 0.35));
    painter->setPen(QPen(Scheme::mix(state.fill, Qt::black, 0.5), 1.0));
    painter->setBrush(body);
    painter->drawEllipse(orb);
    const QRectF cap(orb.left() + diameter * 0.14, orb.top() + 1.5, diameter * 0.72, diameter * 0.5);
    QLinearGradient gloss(cap.topLeft(), cap.bottomLeft());
    gloss.setColorAt(0.0, QColor(255, 255, 255, 200));
    gloss.setColorAt(1.0, QColor(255, 255, 255, 30));
    painter->setPen(Qt::NoPen);
    painter->setBrush(gloss);
    painter->drawEllipse(cap);
    painter->restore();

    const QSize iconSize = button->iconSize();
    if (!button->icon().isNull()) {
        drawSystemIcon(painter, button,
                       QRect(QPoint(qRound(orb.center().x()) - iconSize.width() / 2,
                                    qRound(orb.center().y()) - iconSize.height() / 2),
                             iconSize));
    } else if (!button->text().isEmpty()) {
        QFont font = button->font();
        font.setBold(true);
        painter->setFont(font);
        painter->setPen(c.systemButtonText);
        painter->drawText(orb, Qt::AlignCenter, labelText(button->text()).left(1));
    }
}

void paintScenicTab(QPainter* painter, const RibbonSystemButton* button, const RibbonColors& c,
                    const SystemButtonState& state)
{
    const QRectF r = QRectF(button->rect()).adjusted(1.5, FileTabTopGap + 0.5, -1.5, 0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    const QPainterPath path = roundedTopPath(r, 3.0);
    QLinearGradient gradient(r.topLeft(), r.bottomLeft());
    gradient.setColorAt(0.0, Scheme::mix(state.fill, Qt::white, 0.4));
    gradient.setColorAt(0.48, Scheme::mix(state.fill, Qt::white, 0.15));
    gradient.setColorAt(0.5, state.fill);
    gradient.setColorAt(1.0, Scheme::mix(state.fill, Qt::white, 0.2));
    painter->fillPath(path, gradient);
    painter->setPen(Scheme::mix(state.fill, Qt::black, 0.35));
    painter->drawPath(path);
    painter->restore();

    const QRect content = button->rect().adjusted(0, FileTabTopGap, -ScenicArrowWidth - 2, 0);
    const bool hasIcon = !button->icon().isNull();
    if (hasIcon) {
        const QSize iconSize = button->iconSize();
        drawSystemIcon(painter, button,
                       QRect(content.left() + (content.width() - iconSize.width()) / 2,
                             content.top() + (content.height() - iconSize.height()) / 2, iconSize.width(),
                             iconSize.height()));
    } else {
        drawSystemContent(painter, button, content, false, c.systemButtonText);
    }
    drawDownArrow(painter, QPoint(content.right() + ScenicArrowWidth / 2, content.center().y() + 1),
                  c.systemButtonText);
}

} // namespace

void paintSystemButton(QPainter* painter, const RibbonSystemButton* button)
{
    const RibbonColors c = colorsFor(button);
    const SystemButtonState state = systemButtonState(button, c);
    const RibbonLook& look = lookFor(button);
    switch (look.systemButton) {
    case RibbonLook::SystemButtonShape::Block:
        painter->fillRect(button->rect(), state.fill);
        drawSystemContent(painter, button, button->rect(), true, c.systemButtonText);
        break;
    case RibbonLook::SystemButtonShape::FileTab: {
        // Text only, as the office suites show it; an icon only when there is no text.
        const QRect tab = button->rect().adjusted(0, FileTabTopGap, 0, 0);
        if (look.glossyButtons) {
            painter->save();
            painter->setRenderHint(QPainter::Antialiasing, true);
            const QRectF r = QRectF(tab).adjusted(0.5, 0.5, -0.5, 0.5);
            QLinearGradient gradient(r.topLeft(), r.bottomLeft());
            gradient.setColorAt(0.0, Scheme::mix(state.fill, Qt::white, 0.22));
            gradient.setColorAt(1.0, state.fill);
            painter->fillPath(roundedTopPath(r, 2.5), gradient);
            painter->restore();
        } else {
            painter->fillRect(tab, state.fill);
        }
        drawSystemContent(painter, button, tab, button->text().isEmpty(), c.systemButtonText);
        break;
    }
    case RibbonLook::SystemButtonShape::Orb:
        paintOrb(painter, button, c, state);
        break;
    case RibbonLook::SystemButtonShape::ScenicTab:
        paintScenicTab(painter, button, c, state);
        break;
    }
}

QSize systemButtonSize(const RibbonSystemButton* button, const QSize& plain)
{
    const QFontMetrics metrics(button->font());
    const int textWidth = metrics.horizontalAdvance(labelText(button->text()));
    const int iconWidth = button->icon().isNull() ? 0 : button->iconSize().width();
    switch (lookFor(button).systemButton) {
    case RibbonLook::SystemButtonShape::Block:
        break;
    case RibbonLook::SystemButtonShape::FileTab:
        if (!button->text().isEmpty())
            return QSize(qMax(textWidth + 2 * SystemButtonPadding, plain.height() + 8), plain.height());
        break;
    case RibbonLook::SystemButtonShape::Orb:
        return QSize(plain.height() + 12, plain.height());
    case RibbonLook::SystemButtonShape::ScenicTab: {
        const int content = iconWidth ? iconWidth : textWidth;
        return QSize(content + ScenicArrowWidth + 2 + 2 * 10, plain.height());
    }
    }
    return plain;
}

namespace {

// The lightness, in HSL terms, at which a colour reaches a contrast of
// `wanted` against `background`; the colour keeps its hue and saturation.
QColor liftedToContrast(const QColor& color, const QColor& background, qreal wanted)
{
    if (Scheme::contrast(color, background) >= wanted)
        return color;
    const QColor hsl = color.toHsl();
    qreal low = hsl.lightnessF();
    qreal high = 1.0;
    for (int i = 0; i < 10; ++i) {
        const qreal mid = (low + high) / 2;
        const QColor trial = QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF(), mid);
        if (Scheme::contrast(trial, background) >= wanted)
            high = mid;
        else
            low = mid;
    }
    QColor lifted = QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF(), high);
    lifted.setAlpha(color.alpha());
    return lifted;
}

} // namespace

QPixmap visiblePixmap(const QIcon& icon, const QSize& size, QIcon::Mode mode, QIcon::State state,
                      const QColor& background)
{
    if (!Scheme::isDark(background))
        return icon.pixmap(size, mode, state);
    // Dark strokes of icons drawn for light backgrounds would vanish here: each
    // pixel is lightened until it stands out from the background by 4:1 (3:1 is
    // the contrast asked of graphics; the rest covers the sheen of a gradient
    // behind the icon). Colours that already stand out stay as they are, and hue
    // and saturation are kept, so a coloured icon keeps its colours.
    // A disabled icon is made from the lightened one, greyed and half transparent.
    const QString key = QStringLiteral("qtitan_visible_%1_%2x%3_%4_%5_%6")
                            .arg(icon.cacheKey())
                            .arg(size.width())
                            .arg(size.height())
                            .arg(int(mode))
                            .arg(int(state))
                            .arg(background.rgb());
    QPixmap cached;
    if (QPixmapCache::find(key, &cached))
        return cached;
    const QPixmap source = icon.pixmap(size, mode == QIcon::Disabled ? QIcon::Normal : mode, state);
    QImage image = source.toImage().convertToFormat(QImage::Format_ARGB32);
    const bool disabled = mode == QIcon::Disabled;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) == 0)
                continue;
            QColor color = liftedToContrast(QColor::fromRgba(line[x]), background, 4.0);
            if (disabled) {
                const int grey = qGray(color.rgb());
                color = QColor(grey, grey, grey, qRound(color.alpha() * 0.45));
            }
            line[x] = color.rgba();
        }
    }
    QPixmap result = QPixmap::fromImage(image);
    result.setDevicePixelRatio(source.devicePixelRatio());
    QPixmapCache::insert(key, result);
    return result;
}

void drawDownArrow(QPainter* painter, const QPoint& center, const QColor& color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    const QPointF c(center.x() + 0.5, center.y() + 0.5);
    const QPointF points[3] = {QPointF(c.x() - 3.0, c.y() - 1.5), QPointF(c.x() + 3.0, c.y() - 1.5),
                               QPointF(c.x(), c.y() + 1.5)};
    painter->drawPolygon(points, 3);
    painter->restore();
}

QString labelText(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&')) {
            if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&')) {
                result += QLatin1Char('&');
                ++i;
            }
            continue;
        }
        result += text.at(i);
    }
    return result;
}

void splitLabel(const QFontMetrics& fm, const QString& text, int secondLineExtra,
                QString* first, QString* second)
{
    // Break at the space that makes the wider of the two lines narrowest.
    int best = -1;
    int bestWidth = fm.horizontalAdvance(text);
    if (secondLineExtra > 0)
        bestWidth = qMax(bestWidth, secondLineExtra);
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char(' '))
            continue;
        const int w1 = fm.horizontalAdvance(text.left(i));
        const int w2 = fm.horizontalAdvance(text.mid(i + 1)) + secondLineExtra;
        const int w = qMax(w1, w2);
        if (w < bestWidth) {
            bestWidth = w;
            best = i;
        }
    }
    if (best < 0) {
        *first = text;
        second->clear();
    } else {
        *first = text.left(best);
        *second = text.mid(best + 1);
    }
}

} // namespace detail
} // namespace Qtitan
