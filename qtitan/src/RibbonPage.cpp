#include "qtitan/RibbonPage.h"

#include "RibbonGroup_p.h"
#include "RibbonPaint_p.h"
#include "RibbonScrollButton_p.h"
#include "qtitan/RibbonBar.h"
#include "qtitan/RibbonGroup.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QPainter>
#include <QToolButton>

#include <array>

namespace Qtitan {

using detail::RibbonMetrics;
using GroupSize = RibbonControlSizeDefinition::GroupSize;

class RibbonPage::Private
{
public:
    explicit Private(RibbonPage* page) : q(page) {}

    RibbonPage* q;
    QString title;
    QList<RibbonGroup*> groups;
    QVector<int> separators; ///< x of the line between two groups
    bool requestPosted = false;
    bool layoutPending = false;
    int scrollOffset = 0; ///< how far the row of groups is scrolled left
    QToolButton* scrollLeft = nullptr;
    QToolButton* scrollRight = nullptr;

    QToolButton* makeScrollButton(Qt::ArrowType arrow, const QString& name, int direction)
    {
        auto* button = new detail::RibbonScrollButton(q, arrow, detail::RibbonScrollButton::OnPage);
        button->setObjectName(name);
        button->hide();
        QObject::connect(button, &QToolButton::clicked, q, [this, direction]() {
            scrollOffset += direction * qMax(60, q->width() / 3);
            q->updateLayout();
        });
        return button;
    }

    void scheduleLayout()
    {
        q->updateGeometry();
        if (!requestPosted) {
            requestPosted = true;
            QCoreApplication::postEvent(q, new QEvent(QEvent::LayoutRequest));
        }
    }
    int totalWidth(GroupSize size) const
    {
        int w = 2 * detail::PageMargin;
        for (int i = 0; i < groups.size(); ++i)
            w += groups.at(i)->widthForSize(size) + (i > 0 ? int(detail::GroupGap) : 0);
        return w;
    }
};

RibbonPage::RibbonPage(QWidget* parent)
    : QWidget(parent), d(new Private(this))
{
}

RibbonPage::RibbonPage(RibbonBar* ribbonBar, const QString& title)
    : QWidget(ribbonBar), d(new Private(this))
{
    d->title = title;
}

RibbonPage::~RibbonPage()
{
    d->groups.clear();
    delete d;
    d = nullptr;
}

QString RibbonPage::title() const
{
    return d->title;
}

void RibbonPage::setTitle(const QString& title)
{
    if (d->title == title)
        return;
    d->title = title;
    emit titleChanged(title);
}

RibbonGroup* RibbonPage::addGroup(const QString& title)
{
    return insertGroup(-1, QIcon(), title);
}

RibbonGroup* RibbonPage::addGroup(const QIcon& icon, const QString& title)
{
    return insertGroup(-1, icon, title);
}

void RibbonPage::addGroup(RibbonGroup* group)
{
    insertGroup(-1, group);
}

RibbonGroup* RibbonPage::insertGroup(int index, const QString& title)
{
    return insertGroup(index, QIcon(), title);
}

RibbonGroup* RibbonPage::insertGroup(int index, const QIcon& icon, const QString& title)
{
    auto* group = new RibbonGroup(this, title);
    group->setIcon(icon);
    insertGroup(index, group);
    return group;
}

void RibbonPage::insertGroup(int index, RibbonGroup* group)
{
    if (!group)
        return;
    d->groups.removeAll(group);
    if (group->parentWidget() != this)
        group->setParent(this);
    if (index < 0 || index > d->groups.size())
        index = d->groups.size();
    d->groups.insert(index, group);
    group->show();
    d->scheduleLayout();
}

void RibbonPage::removeGroup(RibbonGroup* group)
{
    removeGroupByIndex(groupIndex(group));
}

void RibbonPage::removeGroupByIndex(int index)
{
    if (index < 0 || index >= d->groups.size())
        return;
    RibbonGroup* group = d->groups.takeAt(index);
    delete group;
    d->scheduleLayout();
}

void RibbonPage::detachGroup(RibbonGroup* group)
{
    detachGroupByIndex(groupIndex(group));
}

void RibbonPage::detachGroupByIndex(int index)
{
    if (index < 0 || index >= d->groups.size())
        return;
    RibbonGroup* group = d->groups.takeAt(index);
    group->hide();
    group->setParent(nullptr);
    d->scheduleLayout();
}

void RibbonPage::clearGroups()
{
    while (!d->groups.isEmpty())
        removeGroupByIndex(d->groups.size() - 1);
}

int RibbonPage::groupCount() const
{
    return d->groups.size();
}

RibbonGroup* RibbonPage::groupAt(int index) const
{
    return d->groups.value(index, nullptr);
}

int RibbonPage::groupIndex(RibbonGroup* group) const
{
    return d->groups.indexOf(group);
}

QList<RibbonGroup*> RibbonPage::groups() const
{
    return d->groups;
}

void RibbonPage::updateLayout()
{
    d->requestPosted = false;
    d->layoutPending = false;
    const int n = d->groups.size();
    const RibbonMetrics m = RibbonMetrics::forWidget(this);
    QVector<std::array<int, 4>> widths(n);
    QVector<GroupSize> sizes(n, RibbonControlSizeDefinition::GroupLarge);
    int total = 0;
    for (int i = 0; i < n; ++i) {
        for (int s = 0; s < 4; ++s)
            widths[i][s] = d->groups.at(i)->widthForSize(static_cast<GroupSize>(s));
        total += widths[i][0] + (i > 0 ? int(detail::GroupGap) : 0);
    }
    // Reduce one size step at a time, rightmost group first: every group
    // drops to GroupMedium (from the right) before any drops to GroupSmall,
    // and so on down to GroupPopup. Sizes never decrease to the right, no two
    // groups are more than one step apart, and every group stays in sight
    // for as long as possible.
    const int available = width() - 2 * detail::PageMargin;
    for (int level = 1; level < 4 && total > available; ++level) {
        for (int i = n - 1; i >= 0 && total > available; --i) {
            total += widths[i][level] - widths[i][sizes[i]];
            sizes[i] = static_cast<GroupSize>(level);
        }
    }
    // When even the collapsed groups do not fit, the row scrolls.
    const int overflow = total - available;
    if (overflow > 0 && n > 0) {
        if (!d->scrollLeft) {
            d->scrollLeft = d->makeScrollButton(Qt::LeftArrow, QStringLiteral("qtitan_ribbonpage_scrollleft"), -1);
            d->scrollRight = d->makeScrollButton(Qt::RightArrow, QStringLiteral("qtitan_ribbonpage_scrollright"), 1);
        }
        d->scrollOffset = qBound(0, d->scrollOffset, overflow);
    } else {
        d->scrollOffset = 0;
    }
    d->separators.clear();
    int x = detail::PageMargin - d->scrollOffset;
    for (int i = 0; i < n; ++i) {
        RibbonGroup* group = d->groups.at(i);
        const int w = widths[i][sizes[i]];
        group->setGeometry(x, detail::PageMargin, w, m.groupHeight);
        group->setCurrentSize(sizes[i]);
        x += w;
        if (i + 1 < n)
            d->separators.append(x + detail::GroupGap / 2);
        x += detail::GroupGap;
    }
    if (d->scrollLeft) {
        const int w = detail::ScrollButtonWidth;
        const int h = m.groupHeight;
        d->scrollLeft->setGeometry(0, detail::PageMargin, w, h);
        d->scrollRight->setGeometry(width() - w, detail::PageMargin, w, h);
        d->scrollLeft->setVisible(d->scrollOffset > 0);
        d->scrollRight->setVisible(overflow > 0 && d->scrollOffset < overflow);
        d->scrollLeft->raise();
        d->scrollRight->raise();
    }
    update();
}

QSize RibbonPage::sizeHint() const
{
    return QSize(d->totalWidth(RibbonControlSizeDefinition::GroupLarge),
                 RibbonMetrics::forWidget(this).groupHeight + 2 * detail::PageMargin);
}

QSize RibbonPage::minimumSizeHint() const
{
    return QSize(d->totalWidth(RibbonControlSizeDefinition::GroupPopup),
                 RibbonMetrics::forWidget(this).groupHeight + 2 * detail::PageMargin);
}

bool RibbonPage::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
        // A hidden page (not the current tab) lays out when it is shown.
        if (isVisible())
            updateLayout();
        else
            d->layoutPending = true;
        return true;
    case QEvent::Show:
        if (d->layoutPending)
            updateLayout();
        break;
    case QEvent::ChildRemoved: {
        // A group deleted or re-parented by someone else leaves the page.
        QObject* child = static_cast<QChildEvent*>(event)->child();
        for (int i = 0; i < d->groups.size(); ++i) {
            if (d->groups.at(i) == child) {
                d->groups.removeAt(i);
                d->scheduleLayout();
                break;
            }
        }
        break;
    }
    case QEvent::FontChange:
    case QEvent::StyleChange:
        d->scheduleLayout();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void RibbonPage::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    // On a ribbon bar the bar paints the page area; alone the page paints it.
    if (!qobject_cast<RibbonBar*>(parentWidget()))
        detail::paintPageArea(&p, rect(), this);
    const RibbonMetrics m = RibbonMetrics::forWidget(this);
    const int top = detail::PageMargin + 3;
    const int bottom = detail::PageMargin + m.groupHeight - 3;
    for (int x : d->separators)
        detail::paintGroupSeparator(&p, x, top, bottom, this);
}

void RibbonPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateLayout();
}

} // namespace Qtitan
