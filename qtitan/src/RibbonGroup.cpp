#include "qtitan/RibbonGroup.h"

#include "RibbonGroup_p.h"
#include "RibbonHover_p.h"
#include "RibbonPaint_p.h"
#include "qtitan/RibbonButtonControl.h"
#include "qtitan/RibbonPage.h"
#include "qtitan/RibbonSeparatorControl.h"
#include "qtitan/RibbonWidgetControl.h"

#include <QAction>
#include <QActionEvent>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QWidgetAction>

namespace Qtitan {

using detail::RibbonMetrics;

// ---------------------------------------------------------------------------
// Popup window and collapsed button

namespace detail {

RibbonGroupPopup::RibbonGroupPopup(RibbonGroup* group)
    : QWidget(group, Qt::Popup), m_group(group)
{
    setObjectName(QStringLiteral("qtitan_ribbongroup_popup"));
    setAttribute(Qt::WA_WindowPropagation, true);
    // A click on the group's button that closes the popup must not reopen it.
    setAttribute(Qt::WA_NoMouseReplay, true);
}

void RibbonGroupPopup::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const RibbonColors colors = colorsFor(this);
    paintPageArea(&p, rect(), this);
    p.setPen(colors.pageBorder.isValid() ? colors.pageBorder : colors.groupSeparator);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const RibbonMetrics m = RibbonMetrics::forWidget(this);
    const QRect titleRect(1, GroupTopMargin + m.contentHeight + 1, width() - 2, m.titleHeight);
    p.setPen(colors.groupTitleText);
    p.drawText(titleRect, Qt::AlignCenter,
               fontMetrics().elidedText(labelText(m_group->title()), Qt::ElideRight, titleRect.width()));
}

void RibbonGroupPopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void RibbonGroupPopup::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    emit closed();
}

RibbonGroupButton::RibbonGroupButton(RibbonGroup* group)
    : QAbstractButton(group), m_group(group)
{
    setObjectName(QStringLiteral("qtitan_ribbongroup_button"));
    setAttribute(Qt::WA_Hover, true);
    setFocusPolicy(Qt::NoFocus);
}

QIcon RibbonGroupButton::displayIcon() const
{
    if (!m_group->icon().isNull())
        return m_group->icon();
    // Without an icon of its own the group shows its first command's.
    for (QAction* action : m_group->actions()) {
        if (!action->isSeparator() && !action->icon().isNull())
            return action->icon();
    }
    return QIcon();
}

QSize RibbonGroupButton::sizeHint() const
{
    const QFontMetrics fm = fontMetrics();
    QString first;
    QString second;
    splitLabel(fm, labelText(m_group->title()), 10, &first, &second);
    const int text = qMax(fm.horizontalAdvance(first), fm.horizontalAdvance(second) + 10);
    const RibbonMetrics m = RibbonMetrics::forFont(fm);
    return QSize(qMax(int(LargeIconSize) + 14, text + 12), m.groupHeight);
}

void RibbonGroupButton::setPopupOpen(bool open)
{
    m_popupOpen = open;
    update();
}

void RibbonGroupButton::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const RibbonColors colors = colorsFor(this);
    const bool enabled = isEnabled();
    const bool hover = enabled && testAttribute(Qt::WA_UnderMouse);
    Highlight light = Highlight::None;
    if (m_popupOpen || isDown())
        light = Highlight::Pressed;
    else if (hover)
        light = Highlight::Hover;
    paintGroupFrame(&p, rect(), QRect(), this);
    drawButtonFace(&p, rect().adjusted(0, 1, 0, -1), this, light);

    const QFontMetrics fm = fontMetrics();
    const int lh = fm.height();
    const QIcon icon = displayIcon();
    const int iconTop = GroupTopMargin + 4;
    if (!icon.isNull()) {
        const QRect target((width() - LargeIconSize) / 2, iconTop, LargeIconSize, LargeIconSize);
        p.save();
        p.setRenderHint(QPainter::SmoothPixmapTransform, true);
        p.drawPixmap(target, visiblePixmap(icon, target.size(), enabled ? QIcon::Normal : QIcon::Disabled, QIcon::Off,
                                           colors.pageBackgroundBottom));
        p.restore();
    }
    const QColor textColor = enabled ? colors.buttonText : colors.buttonTextDisabled;
    QString first;
    QString second;
    splitLabel(fm, labelText(m_group->title()), 10, &first, &second);
    const int y = iconTop + LargeIconSize + 4;
    p.setPen(textColor);
    p.drawText(QRect(0, y, width(), lh), Qt::AlignHCenter | Qt::AlignTop, first);
    const int secondWidth = fm.horizontalAdvance(second);
    const int total = second.isEmpty() ? 7 : secondWidth + 10;
    const int x0 = (width() - total) / 2;
    if (!second.isEmpty())
        p.drawText(QRect(x0, y + lh, secondWidth + 1, lh), Qt::AlignLeft | Qt::AlignTop, second);
    drawDownArrow(&p, QPoint(x0 + total - 4, y + lh + lh / 2), textColor);
}

} // namespace detail

// ---------------------------------------------------------------------------
// Private

int RibbonGroup::Private::indexOfAction(const QAction* action) const
{
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).action == action)
            return i;
    }
    return -1;
}

RibbonControl* RibbonGroup::Private::createControl(QAction* action)
{
    RibbonControl* control = nullptr;
    if (action->isSeparator()) {
        control = new RibbonSeparatorControl(q);
    } else if (qobject_cast<QWidgetAction*>(action)) {
        control = new RibbonWidgetControl(q);
    } else {
        auto* button = new RibbonButtonControl(q);
        // A command run from the popup of a collapsed group closes the popup.
        QObject::connect(button->widget(), &QToolButton::triggered, q, [this]() {
            if (popup && popup->isVisible())
                popup->close();
        });
        control = button;
    }
    control->hide();
    // A control deleted by someone else leaves the group.
    QObject::connect(control, &QObject::destroyed, q, [this](QObject* object) {
        for (int i = 0; i < entries.size(); ++i) {
            if (entries.at(i).control == object) {
                entries.remove(i);
                invalidate();
                break;
            }
        }
    });
    control->setDefaultAction(action);
    if (popup && popup->isVisible())
        control->setParent(popup);
    return control;
}

void RibbonGroup::Private::disposeControl(RibbonControl* control)
{
    // Deleted later: the control's button may be in the middle of emitting
    // the click that removed its action.
    QObject::disconnect(control, &QObject::destroyed, q, nullptr);
    control->setDefaultAction(nullptr);
    control->hide();
    control->setParent(nullptr);
    control->deleteLater();
}

void RibbonGroup::Private::snapshot(Entry& entry)
{
    entry.text = entry.action->iconText();
    entry.hasMenu = entry.action->menu() != nullptr;
    entry.visible = entry.action->isVisible();
    entry.separator = entry.action->isSeparator();
}

void RibbonGroup::Private::invalidate()
{
    for (int i = 0; i < 4; ++i) {
        layouts[i].valid = false;
        widthValid[i] = false;
    }
    placed = false;
    q->updateGeometry();
    if (button)
        button->updateGeometry();
    if (!requestPosted) {
        requestPosted = true;
        QCoreApplication::postEvent(q, new QEvent(QEvent::LayoutRequest));
    }
}

int RibbonGroup::Private::titleWidth() const
{
    return q->fontMetrics().horizontalAdvance(detail::labelText(title));
}

const RibbonGroup::Private::Layout& RibbonGroup::Private::layoutFor(RibbonControlSizeDefinition::GroupSize size) const
{
    Layout& layout = layouts[size];
    if (layout.valid)
        return layout;
    const RibbonMetrics m = RibbonMetrics::forWidget(q);
    const int pitch = m.contentHeight / 3;
    layout.rects.fill(QRect(), entries.size());
    int x = 0;
    int columnWidth = 0;
    int column[3] = {0, 0, 0};
    int columnCount = 0;
    auto flush = [&]() {
        if (columnCount == 0)
            return;
        const int offset = centering ? (m.contentHeight - columnCount * pitch) / 2 : 0;
        for (int k = 0; k < columnCount; ++k) {
            const int index = column[k];
            const QSize hint = entries.at(index).control->sizeHintForSize(size);
            const int h = qMin(hint.height(), pitch);
            layout.rects[index] = QRect(x, offset + k * pitch + (pitch - h) / 2, hint.width(), h);
        }
        x += columnWidth + detail::ColumnSpacing;
        columnCount = 0;
        columnWidth = 0;
    };
    for (int i = 0; i < entries.size(); ++i) {
        const Entry& entry = entries.at(i);
        if (!entry.action || !entry.action->isVisible())
            continue;
        RibbonControl* control = entry.control;
        const QSize hint = control->sizeHintForSize(size);
        if (control->isLargeAt(size)) {
            flush();
            layout.rects[i] = QRect(x, 0, hint.width(), m.contentHeight);
            x += hint.width() + detail::ColumnSpacing;
        } else {
            column[columnCount++] = i;
            columnWidth = qMax(columnWidth, hint.width());
            if (columnCount == 3)
                flush();
        }
    }
    flush();
    layout.contentWidth = x > 0 ? x - detail::ColumnSpacing : 0;
    layout.valid = true;
    return layout;
}

int RibbonGroup::Private::widthFor(RibbonControlSizeDefinition::GroupSize size) const
{
    if (widthValid[size])
        return widths[size];
    int w = 0;
    if (size == RibbonControlSizeDefinition::GroupPopup) {
        const_cast<Private*>(this)->ensureCollapsedWidgets();
        w = button->sizeHint().width();
    } else {
        const int content = layoutFor(size).contentWidth;
        w = qMax(content, titleWidth()) + 2 * detail::GroupPadding;
        w = qMax(w, 2 * int(detail::GroupPadding) + int(detail::LargeIconSize));
    }
    widths[size] = w;
    widthValid[size] = true;
    return w;
}

void RibbonGroup::Private::ensureCollapsedWidgets()
{
    if (button)
        return;
    button = new detail::RibbonGroupButton(q);
    button->setText(detail::labelText(title));
    button->setToolTip(detail::labelText(title));
    button->hide();
    popup = new detail::RibbonGroupPopup(q);
    QObject::connect(button, &QAbstractButton::pressed, q, [this]() { showPopup(); });
    QObject::connect(popup, &detail::RibbonGroupPopup::closed, q, [this]() {
        if (button) {
            button->setDown(false);
            button->setPopupOpen(false);
        }
        // Back into the group, hidden while it stays collapsed.
        for (const Entry& entry : qAsConst(entries)) {
            if (entry.control->parentWidget() != q)
                entry.control->setParent(q);
        }
        detail::syncUnderMouse(q);
    });
}

void RibbonGroup::Private::fillPopup()
{
    // Controls move into the popup only while it is open: re-parenting into
    // another window walks that window's focus chain, too costly for layouts.
    const RibbonMetrics m = RibbonMetrics::forWidget(q);
    const RibbonControlSizeDefinition::GroupSize size = RibbonControlSizeDefinition::GroupPopup;
    const Layout& layout = layoutFor(size);
    const int w = qMax(layout.contentWidth, titleWidth()) + 2 * detail::GroupPadding;
    popup->resize(w, m.groupHeight);
    const QPoint origin((w - layout.contentWidth) / 2, detail::GroupTopMargin);
    for (int i = 0; i < entries.size(); ++i) {
        RibbonControl* control = entries.at(i).control;
        if (control->parentWidget() != popup)
            control->setParent(popup);
        control->adjustCurrentSize(size);
        const QRect r = layout.rects.value(i);
        if (r.isNull()) {
            control->hide();
        } else {
            control->setGeometry(r.translated(origin));
            control->show();
        }
    }
}

void RibbonGroup::Private::showPopup()
{
    if (!popup || current != RibbonControlSizeDefinition::GroupPopup)
        return;
    fillPopup();
    button->setPopupOpen(true);
    QPoint pos = button->mapToGlobal(QPoint(0, button->height()));
    const QSize size = popup->size();
    if (QScreen* screen = QGuiApplication::screenAt(pos)) {
        const QRect area = screen->availableGeometry();
        if (pos.x() + size.width() > area.right())
            pos.setX(qMax(area.left(), area.right() - size.width()));
        if (pos.y() + size.height() > area.bottom())
            pos.setY(button->mapToGlobal(QPoint(0, 0)).y() - size.height());
    }
    popup->move(pos);
    popup->show();
}

RibbonPage* RibbonGroup::Private::page() const
{
    return qobject_cast<RibbonPage*>(q->parentWidget());
}

void RibbonGroup::Private::place()
{
    placed = true;
    if (current == RibbonControlSizeDefinition::GroupPopup) {
        ensureCollapsedWidgets();
        button->setGeometry(q->rect());
        button->show();
        if (popup->isVisible()) {
            fillPopup();
        } else {
            for (const Entry& entry : qAsConst(entries)) {
                entry.control->adjustCurrentSize(current);
                entry.control->hide();
            }
        }
        q->update();
        return;
    }
    if (button)
        button->hide();
    if (popup && popup->isVisible())
        popup->close();
    const Layout& layout = layoutFor(current);
    const QPoint origin((q->width() - layout.contentWidth) / 2, detail::GroupTopMargin);
    for (int i = 0; i < entries.size(); ++i) {
        RibbonControl* control = entries.at(i).control;
        if (control->parentWidget() != q)
            control->setParent(q);
        control->adjustCurrentSize(current);
        const QRect r = layout.rects.value(i);
        if (r.isNull()) {
            control->hide();
        } else {
            control->setGeometry(r.translated(origin));
            control->show();
        }
    }
    q->update();
}

// ---------------------------------------------------------------------------
// RibbonGroup

RibbonGroup::RibbonGroup(QWidget* parent)
    : QWidget(parent), d(new Private(this))
{
}

RibbonGroup::RibbonGroup(RibbonPage* page, const QString& title)
    : QWidget(page), d(new Private(this))
{
    d->title = title;
}

RibbonGroup::~RibbonGroup()
{
    // Controls die with the widget tree; nothing may call back into d then.
    if (d->popup) {
        d->popup->disconnect(this);
        d->popup->hide();
    }
    for (const Private::Entry& entry : qAsConst(d->entries)) {
        QObject::disconnect(entry.control, nullptr, this, nullptr);
        if (auto* button = qobject_cast<RibbonButtonControl*>(entry.control))
            QObject::disconnect(button->widget(), nullptr, this, nullptr);
    }
    d->entries.clear();
    delete d;
    d = nullptr;
}

QString RibbonGroup::title() const
{
    return d->title;
}

void RibbonGroup::setTitle(const QString& title)
{
    if (d->title == title)
        return;
    d->title = title;
    if (d->button) {
        d->button->setText(detail::labelText(title));
        d->button->setToolTip(detail::labelText(title));
    }
    d->invalidate();
    update();
    emit titleChanged(title);
}

QIcon RibbonGroup::icon() const
{
    return d->icon;
}

void RibbonGroup::setIcon(const QIcon& icon)
{
    d->icon = icon;
    if (d->button)
        d->button->update();
}

bool RibbonGroup::isControlsCentering() const
{
    return d->centering;
}

void RibbonGroup::setControlsCentering(bool centering)
{
    if (d->centering == centering)
        return;
    d->centering = centering;
    d->invalidate();
}

int RibbonGroup::controlCount() const
{
    return d->entries.size();
}

RibbonControl* RibbonGroup::controlByIndex(int index) const
{
    if (index < 0 || index >= d->entries.size())
        return nullptr;
    return d->entries.at(index).control;
}

RibbonControl* RibbonGroup::controlByAction(QAction* action) const
{
    const int index = d->indexOfAction(action);
    return index < 0 ? nullptr : d->entries.at(index).control;
}

QAction* RibbonGroup::addAction(const QIcon& icon, const QString& text, Qt::ToolButtonStyle style,
                                QMenu* menu, QToolButton::ToolButtonPopupMode mode)
{
    auto* action = new QAction(icon, text, this);
    return addAction(action, style, menu, mode);
}

QAction* RibbonGroup::addAction(QAction* action, Qt::ToolButtonStyle style, QMenu* menu,
                                QToolButton::ToolButtonPopupMode mode)
{
    if (!action)
        return nullptr;
    if (menu)
        action->setMenu(menu);
    QWidget::addAction(action);
    if (auto* button = qobject_cast<RibbonButtonControl*>(controlByAction(action))) {
        button->setToolButtonStyle(style);
        button->setPopupMode(mode);
    }
    return action;
}

void RibbonGroup::clear()
{
    const QList<QAction*> list = actions();
    for (QAction* action : list)
        removeAction(action);
}

RibbonControlSizeDefinition::GroupSize RibbonGroup::currentSize() const
{
    return d->current;
}

void RibbonGroup::setCurrentSize(RibbonControlSizeDefinition::GroupSize size)
{
    if (size < RibbonControlSizeDefinition::GroupLarge || size > RibbonControlSizeDefinition::GroupPopup)
        return;
    if (d->current != size) {
        d->current = size;
        d->placed = false;
        updateGeometry();
    }
    if (!d->placed)
        d->place();
}

int RibbonGroup::widthForSize(RibbonControlSizeDefinition::GroupSize size) const
{
    if (size < RibbonControlSizeDefinition::GroupLarge || size > RibbonControlSizeDefinition::GroupPopup)
        return 0;
    return d->widthFor(size);
}

QSize RibbonGroup::sizeHint() const
{
    return QSize(d->widthFor(d->current), RibbonMetrics::forWidget(this).groupHeight);
}

QSize RibbonGroup::minimumSizeHint() const
{
    return QSize(d->widthFor(RibbonControlSizeDefinition::GroupPopup),
                 RibbonMetrics::forWidget(this).groupHeight);
}

bool RibbonGroup::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
        d->requestPosted = false;
        if (RibbonPage* page = d->page()) {
            // The page lays out its groups (at once only while it is shown).
            QEvent request(QEvent::LayoutRequest);
            QCoreApplication::sendEvent(page, &request);
        } else {
            d->place();
        }
        return true;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        d->invalidate();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void RibbonGroup::actionEvent(QActionEvent* event)
{
    QAction* action = event->action();
    switch (event->type()) {
    case QEvent::ActionAdded: {
        int index = event->before() ? d->indexOfAction(event->before()) : -1;
        if (index < 0)
            index = d->entries.size();
        Private::Entry entry;
        entry.action = action;
        entry.control = d->createControl(action);
        Private::snapshot(entry);
        d->entries.insert(index, entry);
        d->invalidate();
        break;
    }
    case QEvent::ActionRemoved: {
        const int index = d->indexOfAction(action);
        if (index >= 0) {
            RibbonControl* control = d->entries.at(index).control;
            d->entries.remove(index);
            d->disposeControl(control);
            d->invalidate();
        }
        break;
    }
    case QEvent::ActionChanged: {
        const int index = d->indexOfAction(action);
        if (index < 0)
            break;
        Private::Entry& entry = d->entries[index];
        const bool wantSeparator = action->isSeparator();
        const bool wantWidget = !wantSeparator && qobject_cast<QWidgetAction*>(action);
        const bool isSeparator = qobject_cast<RibbonSeparatorControl*>(entry.control) != nullptr;
        const bool isWidget = qobject_cast<RibbonWidgetControl*>(entry.control) != nullptr;
        if (wantSeparator != isSeparator || wantWidget != isWidget) {
            RibbonControl* old = entry.control;
            entry.control = nullptr;
            d->disposeControl(old);
            d->entries[index].control = d->createControl(action);
            Private::snapshot(d->entries[index]);
            d->invalidate();
            break;
        }
        const Private::Entry before = entry;
        Private::snapshot(entry);
        if (before.text != entry.text || before.hasMenu != entry.hasMenu || before.visible != entry.visible) {
            entry.control->actionChanged();
            d->invalidate();
        } else {
            entry.control->update();
        }
        break;
    }
    default:
        break;
    }
    QWidget::actionEvent(event);
}

void RibbonGroup::paintEvent(QPaintEvent*)
{
    if (d->current == RibbonControlSizeDefinition::GroupPopup)
        return;
    QPainter p(this);
    const RibbonColors colors = detail::colorsFor(this);
    const RibbonMetrics m = RibbonMetrics::forWidget(this);
    const QRect titleRect(0, detail::GroupTopMargin + m.contentHeight + 1, width(), m.titleHeight);
    detail::paintGroupFrame(&p, rect(), titleRect, this);
    p.setPen(colors.groupTitleText);
    p.drawText(titleRect, Qt::AlignCenter,
               fontMetrics().elidedText(detail::labelText(d->title), Qt::ElideRight, titleRect.width()));
}

void RibbonGroup::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->place();
}

} // namespace Qtitan
