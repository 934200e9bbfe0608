#include "qtitan/RibbonSystemButton.h"

#include "qtitan/RibbonColors.h"

#include "RibbonColors_p.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionToolButton>

namespace Qtitan {

namespace {
constexpr int HorizontalPadding = 14;
constexpr int IconTextSpacing = 6;
} // namespace

RibbonSystemButton::RibbonSystemButton(QWidget* parent)
    : QToolButton(parent)
{
    setObjectName(QStringLiteral("qtitan_SystemButton"));
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAutoRaise(true);
    setIconSize(QSize(16, 16));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover, true);
}

RibbonSystemButton::~RibbonSystemButton() = default;

QSize RibbonSystemButton::sizeHint() const
{
    const QFontMetrics metrics(font());
    const QString label = text();
    const bool hasIcon = !icon().isNull();
    int width = 2 * HorizontalPadding;
    if (hasIcon)
        width += iconSize().width();
    if (!label.isEmpty())
        width += metrics.horizontalAdvance(label) + (hasIcon ? IconTextSpacing : 0);
    if (label.isEmpty() && hasIcon)
        width = iconSize().width() + 2 * HorizontalPadding;
    const int height = qMax(metrics.height() + 10, iconSize().height() + 8);
    return QSize(qMax(width, height + 8), height);
}

void RibbonSystemButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const RibbonColors colors = RibbonColors::forWidget(this);
    QPainter painter(this);

    QColor fill = colors.systemButtonBackground;
    const QMenu* popup = defaultAction() ? defaultAction()->menu() : nullptr;
    if (isDown() || (popup && popup->isVisible()))
        fill = Scheme::mix(fill, Qt::black, 0.18);
    else if (underMouse())
        fill = Scheme::mix(fill, Qt::white, 0.14);
    painter.fillRect(rect(), fill);

    const QString label = text();
    const QIcon buttonIcon = icon();
    const bool hasIcon = !buttonIcon.isNull();
    const QFontMetrics metrics(font());
    const int textWidth = label.isEmpty() ? 0 : metrics.horizontalAdvance(label);
    const int contentWidth = (hasIcon ? iconSize().width() : 0) + textWidth
                             + (hasIcon && textWidth ? IconTextSpacing : 0);
    int x = (width() - contentWidth) / 2;
    if (hasIcon) {
        const QRect iconRect(x, (height() - iconSize().height()) / 2, iconSize().width(), iconSize().height());
        buttonIcon.paint(&painter, iconRect, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        x += iconSize().width() + IconTextSpacing;
    }
    if (!label.isEmpty()) {
        painter.setPen(colors.systemButtonText);
        painter.drawText(QRect(x, 0, textWidth + 1, height()), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic,
                         label);
    }
}

} // namespace Qtitan
