#include "qtitan/RibbonSystemButton.h"

#include "RibbonHover_p.h"
#include "RibbonPaint_p.h"

#include <QPainter>
#include <QPointer>

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
    return detail::systemButtonSize(this, QSize(qMax(width, height + 8), height));
}

void RibbonSystemButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    detail::paintSystemButton(&painter, this);
}

void RibbonSystemButton::mousePressEvent(QMouseEvent* event)
{
    // The system menu runs inside the press; once it closes the mouse may be anywhere.
    QPointer<RibbonSystemButton> guard(this);
    QToolButton::mousePressEvent(event);
    if (guard)
        detail::syncUnderMouse(this);
}

} // namespace Qtitan
