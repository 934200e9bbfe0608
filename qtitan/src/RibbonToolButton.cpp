#include "RibbonToolButton_p.h"

#include "RibbonHover_p.h"
#include "RibbonPaint_p.h"

#include <QAction>
#include <QActionEvent>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace Qtitan {
namespace detail {

namespace {
const int ArrowWidth = 7;
const int ArrowGap = 3;
const int LargePadding = 5;
} // namespace

RibbonToolButton::RibbonToolButton(QWidget* parent)
    : QToolButton(parent)
{
    setAutoRaise(true);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover, true);
    setFocusPolicy(Qt::NoFocus);
    setPopupMode(QToolButton::InstantPopup);
}

void RibbonToolButton::setLook(RibbonControlSizeDefinition::ControlImageSize image, bool label)
{
    if (image == RibbonControlSizeDefinition::ImageNone && !label)
        label = true;
    const int icon = image == RibbonControlSizeDefinition::ImageLarge ? int(LargeIconSize) : int(SmallIconSize);
    setIconSize(QSize(icon, icon));
    if (m_image == image && m_label == label)
        return;
    m_image = image;
    m_label = label;
    updateGeometry();
    update();
}

bool RibbonToolButton::hasDropDown() const
{
    if (menu())
        return true;
    QAction* action = defaultAction();
    return action && action->menu();
}

bool RibbonToolButton::isSplit() const
{
    return popupMode() == QToolButton::MenuButtonPopup && hasDropDown();
}

QString RibbonToolButton::currentText() const
{
    QAction* action = defaultAction();
    return labelText(action ? action->iconText() : text());
}

QIcon RibbonToolButton::currentIcon() const
{
    QAction* action = defaultAction();
    return action ? action->icon() : icon();
}

QSize RibbonToolButton::sizeForLook(RibbonControlSizeDefinition::ControlImageSize image, bool label) const
{
    if (image == RibbonControlSizeDefinition::ImageNone && !label)
        label = true;
    const QFontMetrics fm = fontMetrics();
    const RibbonMetrics m = RibbonMetrics::forFont(fm);
    const QString text = currentText();
    const bool drop = hasDropDown();
    if (image == RibbonControlSizeDefinition::ImageLarge) {
        int w = LargeIconSize;
        if (label) {
            QString first;
            QString second;
            splitLabel(fm, text, drop ? ArrowWidth + ArrowGap : 0, &first, &second);
            int secondWidth = fm.horizontalAdvance(second);
            if (drop)
                secondWidth += second.isEmpty() ? ArrowWidth : ArrowWidth + ArrowGap;
            w = qMax(w, qMax(fm.horizontalAdvance(first), secondWidth));
        }
        return QSize(w + 2 * LargePadding, m.contentHeight);
    }
    int w = 3;
    if (image == RibbonControlSizeDefinition::ImageSmall)
        w += SmallIconSize;
    if (label && !text.isEmpty()) {
        w += (image == RibbonControlSizeDefinition::ImageSmall ? 4 : 2) + fm.horizontalAdvance(text);
        w += 4;
    } else {
        w += 3;
    }
    if (drop)
        w += ArrowAreaWidth;
    return QSize(qMax(w, m.rowHeight), m.rowHeight);
}

QSize RibbonToolButton::sizeHint() const
{
    return sizeForLook(m_image, m_label);
}

QSize RibbonToolButton::minimumSizeHint() const
{
    return sizeHint();
}

QRect RibbonToolButton::dropDownRect() const
{
    if (m_image == RibbonControlSizeDefinition::ImageLarge) {
        const int top = 3 + LargeIconSize + 1;
        return QRect(0, top, width(), height() - top);
    }
    return QRect(width() - ArrowAreaWidth, 0, ArrowAreaWidth, height());
}

void RibbonToolButton::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const RibbonColors colors = colorsFor(this);
    const bool enabled = isEnabled();
    const bool hover = enabled && testAttribute(Qt::WA_UnderMouse);
    const bool checked = isChecked();
    const bool large = m_image == RibbonControlSizeDefinition::ImageLarge;
    const bool drop = hasDropDown();
    const QRect r = rect();

    if (isSplit()) {
        const QRect dd = dropDownRect();
        QRect face = r;
        if (large)
            face.setBottom(dd.top() - 1);
        else
            face.setRight(dd.left() - 1);
        Highlight faceLight = Highlight::None;
        Highlight dropLight = Highlight::None;
        if (enabled) {
            if (isDown())
                faceLight = Highlight::Pressed;
            else if (checked)
                faceLight = hover ? Highlight::CheckedHover : Highlight::Checked;
            else if (hover || m_menuOpen)
                faceLight = (m_overDropDown || m_menuOpen) ? Highlight::HoverLight : Highlight::Hover;
            if (m_menuOpen)
                dropLight = Highlight::Pressed;
            else if (hover)
                dropLight = m_overDropDown ? Highlight::Hover : Highlight::HoverLight;
        } else if (checked) {
            faceLight = Highlight::Checked;
        }
        drawButtonFace(&p, face, this, faceLight);
        drawButtonFace(&p, dd, this, dropLight);
    } else {
        Highlight light = Highlight::None;
        if (enabled) {
            if (isDown() || m_menuOpen)
                light = Highlight::Pressed;
            else if (checked)
                light = hover ? Highlight::CheckedHover : Highlight::Checked;
            else if (hover)
                light = Highlight::Hover;
        } else if (checked) {
            light = Highlight::Checked;
        }
        drawButtonFace(&p, r, this, light);
    }

    const QColor textColor = enabled ? colors.buttonText : colors.buttonTextDisabled;
    const QIcon icon = currentIcon();
    const QIcon::Mode mode = !enabled ? QIcon::Disabled : (hover ? QIcon::Active : QIcon::Normal);
    const QIcon::State state = checked ? QIcon::On : QIcon::Off;
    auto drawIcon = [&](const QRect& target) {
        if (icon.isNull())
            return;
        const QPixmap pixmap = visiblePixmap(icon, target.size(), mode, state, colors.pageBackgroundBottom);
        if (pixmap.isNull())
            return;
        const QSize natural = pixmap.size() / pixmap.devicePixelRatio();
        if (natural.width() >= target.width() || natural.height() >= target.height()) {
            p.drawPixmap(target, pixmap);
        } else {
            // A small image stands in for a large one: scale it up smoothly.
            p.save();
            p.setRenderHint(QPainter::SmoothPixmapTransform, true);
            p.drawPixmap(target, pixmap);
            p.restore();
        }
    };

    const QFontMetrics fm = fontMetrics();
    const QString text = currentText();
    p.setPen(textColor);
    if (large) {
        drawIcon(QRect((r.width() - LargeIconSize) / 2, 3, LargeIconSize, LargeIconSize));
        const int y = 3 + LargeIconSize + 2;
        const int lh = fm.height();
        if (m_label) {
            QString first;
            QString second;
            splitLabel(fm, text, drop ? ArrowWidth + ArrowGap : 0, &first, &second);
            p.drawText(QRect(0, y, r.width(), lh), Qt::AlignHCenter | Qt::AlignTop, first);
            const int secondWidth = fm.horizontalAdvance(second);
            const int total = secondWidth + (drop ? (second.isEmpty() ? ArrowWidth : ArrowWidth + ArrowGap) : 0);
            const int x0 = (r.width() - total) / 2;
            if (!second.isEmpty())
                p.drawText(QRect(x0, y + lh, secondWidth + 1, lh), Qt::AlignLeft | Qt::AlignTop, second);
            if (drop) {
                const int ax = second.isEmpty() ? x0 + ArrowWidth / 2 : x0 + secondWidth + ArrowGap + ArrowWidth / 2;
                drawDownArrow(&p, QPoint(ax, y + lh + lh / 2), textColor);
            }
        } else if (drop) {
            drawDownArrow(&p, QPoint(r.width() / 2, y + lh / 2), textColor);
        }
        return;
    }

    int x = 3;
    if (m_image == RibbonControlSizeDefinition::ImageSmall) {
        drawIcon(QRect(x, (r.height() - SmallIconSize) / 2, SmallIconSize, SmallIconSize));
        x += SmallIconSize + 4;
    } else {
        x += 2;
    }
    const int right = drop ? r.width() - ArrowAreaWidth : r.width() - 2;
    if (m_label && !text.isEmpty())
        p.drawText(QRect(x, 0, right - x, r.height()), Qt::AlignLeft | Qt::AlignVCenter, text);
    if (drop)
        drawDownArrow(&p, QPoint(r.width() - ArrowAreaWidth / 2 - 1, r.height() / 2), textColor);
}

void RibbonToolButton::actionEvent(QActionEvent* event)
{
    // QToolButton re-reads a changed default action and switches to a split
    // button when a menu appears; the popup mode is the control's choice.
    const QToolButton::ToolButtonPopupMode mode = popupMode();
    QToolButton::actionEvent(event);
    if (popupMode() != mode)
        setPopupMode(mode);
    if (event->type() == QEvent::ActionChanged)
        update();
}

void RibbonToolButton::mousePressEvent(QMouseEvent* event)
{
    // A menu runs inside the press; the mouse may be anywhere once it closes.
    QPointer<RibbonToolButton> guard(this);
    if (event->button() == Qt::LeftButton && popupMode() == QToolButton::MenuButtonPopup) {
        if (isSplit() && dropDownRect().contains(event->pos())) {
            m_menuOpen = true;
            update();
            showMenu();
            if (guard) {
                m_menuOpen = false;
                afterMenu();
            }
            return;
        }
        // The face of a split button: the style's own menu area does not apply.
        QAbstractButton::mousePressEvent(event);
        return;
    }
    QToolButton::mousePressEvent(event);
    if (guard && hasDropDown())
        afterMenu();
}

void RibbonToolButton::afterMenu()
{
    syncUnderMouse(this);
    m_overDropDown = underMouse() && dropDownRect().contains(mapFromGlobal(QCursor::pos()));
    update();
}

void RibbonToolButton::mouseMoveEvent(QMouseEvent* event)
{
    const bool over = isSplit() && dropDownRect().contains(event->pos());
    if (over != m_overDropDown) {
        m_overDropDown = over;
        update();
    }
    QToolButton::mouseMoveEvent(event);
}

void RibbonToolButton::leaveEvent(QEvent* event)
{
    m_overDropDown = false;
    QToolButton::leaveEvent(event);
    update();
}

} // namespace detail
} // namespace Qtitan
