#include "qtitan/RibbonBar.h"

#include "qtitan/RibbonColors.h"
#include "qtitan/RibbonPage.h"
#include "qtitan/RibbonQuickAccessBar.h"
#include "qtitan/RibbonSystemButton.h"
#include "qtitan/RibbonSystemMenu.h"

#include "RibbonBar_p.h"
#include "RibbonColors_p.h"
#include "RibbonPaint_p.h"

#include <QAction>
#include <algorithm>
#include <climits>
#include <QApplication>
#include <QHash>
#include <QHelpEvent>
#include <QToolTip>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace Qtitan {

namespace {
constexpr int TabPadding = 14;
constexpr int MinTabPadding = 5;
constexpr int TabSpacing = 2;
constexpr int TabTopGap = 3;
constexpr int FirstTabGap = 4;
constexpr int QuickAccessMargin = 4;
} // namespace

class RibbonBar::Private
{
public:
    explicit Private(RibbonBar* bar)
        : q(bar)
    {
    }

    RibbonBar* q;
    QList<RibbonPage*> pages;
    QHash<RibbonPage*, QMetaObject::Connection> destroyWatch;
    int current = -1;
    RibbonSystemButton* systemButton = nullptr;
    RibbonQuickAccessBar* quickAccessBar = nullptr;
    RibbonBarWatcher* watcher = nullptr;
    bool frameTheme = false;
    bool minimized = false;
    int hoverTab = -1;
    bool restoredByPress = false;
    QVector<QRect> tabRects;
    QVector<int> tabTextWidths; ///< room for each title; a shorter one than the title's is elided

    static QString pageTitle(const RibbonPage* page)
    {
        return page ? page->title() : QString();
    }

    bool quickAccessShown() const
    {
        return quickAccessBar && !quickAccessBar->isHidden();
    }

    int titleHeight() const
    {
        const int qabHeight = quickAccessShown() ? quickAccessBar->sizeHint().height() + 2 * 2 : 0;
        if (frameTheme)
            return qMax(qMax(q->fontMetrics().height() + 14, 30), qabHeight);
        return qabHeight;
    }

    int tabHeight() const
    {
        int height = q->fontMetrics().height() + 11;
        if (systemButton)
            height = qMax(height, systemButton->iconSize().height() + 8);
        return qMax(height, 24);
    }

    int pageAreaHeight() const
    {
        // Room for three rows of small buttons over the group titles, even for empty pages.
        const int row = qMax(q->fontMetrics().height(), 16) + 8;
        int height = 3 * row + q->fontMetrics().height() + 10;
        for (const RibbonPage* page : pages)
            height = qMax(height, page->sizeHint().height() + 2);
        return height;
    }

    int totalHeight() const
    {
        return titleHeight() + tabHeight() + (minimized ? 1 : pageAreaHeight());
    }

    QRect tabRowRect() const
    {
        return QRect(0, titleHeight(), q->width(), tabHeight());
    }

    QRect pageAreaRect() const
    {
        const int top = titleHeight() + tabHeight();
        return QRect(0, top, q->width(), minimized ? 0 : pageAreaHeight());
    }

    int tabAt(const QPoint& pos) const
    {
        for (int i = 0; i < tabRects.size(); ++i) {
            // The whole height of the tab row counts, so the tabs are easy to hit.
            QRect hit = tabRects.at(i);
            hit.setTop(titleHeight());
            if (hit.contains(pos))
                return i;
        }
        return -1;
    }

    void layout()
    {
        const QFontMetrics metrics(q->font());
        const int width = q->width();
        const int title = titleHeight();
        if (quickAccessShown()) {
            const QSize hint = quickAccessBar->sizeHint();
            const int x = frameTheme ? titleIconRect().right() + 6 : QuickAccessMargin;
            quickAccessBar->setGeometry(x, (title - hint.height()) / 2, qMax(0, qMin(hint.width(), width - x)),
                                        hint.height());
        }
        const int tabTop = title;
        const int tabHeightValue = tabHeight();
        int x = 0;
        if (systemButton) {
            const QSize hint = systemButton->sizeHint();
            systemButton->setGeometry(0, tabTop, hint.width(), tabHeightValue);
            x = hint.width();
        }
        x += FirstTabGap;
        tabRects.clear();
        // Tabs narrow when the row is short: first the padding goes, then the
        // widest titles are elided down to a common width.
        QVector<int> textWidths;
        for (const RibbonPage* page : qAsConst(pages))
            textWidths.append(metrics.horizontalAdvance(QString(pageTitle(page)).remove(QLatin1Char('&'))));
        const int available = width - x - FirstTabGap;
        const int count = textWidths.size();
        auto rowWidth = [&](int padding, int cap) {
            int total = 0;
            for (int w : textWidths)
                total += qMin(w, cap) + 2 * padding + TabSpacing;
            return total;
        };
        int padding = TabPadding;
        while (padding > MinTabPadding && rowWidth(padding, INT_MAX) > available)
            --padding;
        int cap = INT_MAX;
        if (count > 0 && rowWidth(padding, INT_MAX) > available) {
            int low = 0;
            int high = *std::max_element(textWidths.cbegin(), textWidths.cend());
            while (low < high) {
                const int mid = (low + high + 1) / 2;
                if (rowWidth(padding, mid) <= available)
                    low = mid;
                else
                    high = mid - 1;
            }
            cap = qMax(low, metrics.horizontalAdvance(QStringLiteral("W…")));
        }
        tabTextWidths.clear();
        for (int i = 0; i < count; ++i) {
            const int textWidth = qMin(textWidths.at(i), cap);
            const int tabWidth = qMax(textWidth + 2 * padding, padding < TabPadding ? 0 : 40);
            tabRects.append(QRect(x, tabTop + TabTopGap, tabWidth, tabHeightValue - TabTopGap));
            tabTextWidths.append(textWidth);
            x += tabWidth + TabSpacing;
        }
        const QRect area = pageAreaRect();
        for (int i = 0; i < pages.size(); ++i) {
            RibbonPage* page = pages.at(i);
            if (i == current && !minimized) {
                page->setGeometry(area.adjusted(0, 1, 0, -1));
                page->show();
            } else {
                page->hide();
            }
        }
        if (quickAccessBar) {
            QPalette palette = quickAccessBar->palette();
            const RibbonColors colors = RibbonColors::forWidget(q);
            palette.setColor(QPalette::ButtonText, colors.titleText);
            palette.setColor(QPalette::WindowText, colors.titleText);
            quickAccessBar->setPalette(palette);
        }
    }

    void relayout()
    {
        if (q->height() != totalHeight())
            q->updateGeometry();
        layout();
        q->update();
    }

    void setCurrent(int index, bool notify)
    {
        const bool changed = index != current;
        current = index;
        relayout();
        if (changed && notify)
            Q_EMIT q->currentPageIndexChanged(current);
    }

    void attach(int index, RibbonPage* page)
    {
        page->setParent(q);
        page->hide();
        pages.insert(index, page);
        QObject::connect(page, &RibbonPage::titleChanged, watcher, &RibbonBarWatcher::relayout);
        destroyWatch.insert(page, QObject::connect(page, &QObject::destroyed, q, [this, page]() { forget(page); }));
    }

    // Takes a page out of the list and keeps the current page where possible.
    void take(int index)
    {
        RibbonPage* page = pages.at(index);
        QObject::disconnect(destroyWatch.take(page));
        QObject::disconnect(page, nullptr, watcher, nullptr);
        dropAt(index);
    }

    // A page deleted by someone else leaves the ribbon.
    void forget(RibbonPage* page)
    {
        const int index = pages.indexOf(page);
        if (index < 0)
            return;
        destroyWatch.remove(page);
        dropAt(index);
    }

    void dropAt(int index)
    {
        pages.removeAt(index);
        const int previous = current;
        if (index < current)
            current = current - 1;
        else if (index == current)
            current = qMin(index, pages.size() - 1);
        relayout();
        if (index == previous || current != previous)
            Q_EMIT q->currentPageIndexChanged(current);
    }

    // The window's icon at the left of the title strip, or an empty rectangle.
    QRect titleIconRect() const
    {
        const QWidget* window = q->window();
        if (!frameTheme || !window || window == q || window->windowIcon().isNull())
            return QRect(0, 0, 0, 0);
        const int size = 16;
        return QRect(8, (titleHeight() - size) / 2, size, size);
    }

    QString windowTitle() const
    {
        const QWidget* window = q->window();
        if (!window || window == q)
            return QString();
        QString title = window->windowTitle();
        title.replace(QLatin1String("[*]"), window->isWindowModified() ? QStringLiteral("*") : QString());
        return title;
    }
};

RibbonBarWatcher::RibbonBarWatcher(RibbonBar* bar)
    : QObject(bar)
    , m_bar(bar)
{
}

void RibbonBarWatcher::watchWindow(QWidget* window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window && m_window != m_bar)
        m_window->installEventFilter(this);
}

bool RibbonBarWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_window) {
        switch (event->type()) {
        case QEvent::ShowToParent:
        case QEvent::HideToParent:
        case QEvent::LayoutRequest:
            relayout();
            break;
        default:
            break;
        }
        return false;
    }
    if (watched == m_window) {
        if (event->type() == QEvent::WindowTitleChange || event->type() == QEvent::ModifiedChange)
            m_bar->update();
        else if (event->type() == QEvent::WindowIconChange)
            relayout();
    }
    return QObject::eventFilter(watched, event);
}

void RibbonBarWatcher::relayout()
{
    QEvent request(QEvent::LayoutRequest);
    QApplication::sendEvent(m_bar, &request);
}

RibbonBar::RibbonBar(QWidget* parent)
    : QMenuBar(parent)
    , d(new Private(this))
{
    setObjectName(QStringLiteral("qtitan_RibbonBar"));
    setNativeMenuBar(false);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover, true);
    d->watcher = new RibbonBarWatcher(this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    d->quickAccessBar = new RibbonQuickAccessBar(this);
    d->quickAccessBar->hide();
    d->quickAccessBar->installEventFilter(d->watcher);
    d->watcher->watchWindow(window());
}

RibbonBar::~RibbonBar()
{
    for (auto it = d->destroyWatch.cbegin(); it != d->destroyWatch.cend(); ++it)
        QObject::disconnect(it.value());
    d->destroyWatch.clear();
    d->watcher->watchWindow(nullptr);
    delete d;
    d = nullptr;
}

RibbonPage* RibbonBar::addPage(const QString& text)
{
    return insertPage(d->pages.size(), text);
}

RibbonPage* RibbonBar::insertPage(int index, const QString& text)
{
    auto* page = new RibbonPage(this, text);
    insertPage(index, page);
    return page;
}

void RibbonBar::addPage(RibbonPage* page)
{
    insertPage(d->pages.size(), page);
}

void RibbonBar::insertPage(int index, RibbonPage* page)
{
    if (!page || d->pages.contains(page))
        return;
    if (auto* other = qobject_cast<RibbonBar*>(page->parentWidget())) {
        if (other != this)
            other->detachPage(page);
    }
    if (index < 0 || index > d->pages.size())
        index = d->pages.size();
    d->attach(index, page);
    if (d->current < 0)
        d->setCurrent(index, true);
    else if (index <= d->current)
        d->setCurrent(d->current + 1, true);
    else
        d->relayout();
}

void RibbonBar::movePage(int from, int to)
{
    if (from < 0 || from >= d->pages.size())
        return;
    to = qBound(0, to, d->pages.size() - 1);
    if (from == to)
        return;
    RibbonPage* currentPage = d->current >= 0 ? d->pages.at(d->current) : nullptr;
    d->pages.move(from, to);
    d->setCurrent(d->pages.indexOf(currentPage), true);
}

void RibbonBar::movePage(RibbonPage* page, int index)
{
    movePage(d->pages.indexOf(page), index);
}

void RibbonBar::removePage(int index)
{
    if (index < 0 || index >= d->pages.size())
        return;
    RibbonPage* page = d->pages.at(index);
    d->take(index);
    delete page;
}

void RibbonBar::removePage(RibbonPage* page)
{
    removePage(d->pages.indexOf(page));
}

void RibbonBar::detachPage(RibbonPage* page)
{
    const int index = d->pages.indexOf(page);
    if (index < 0)
        return;
    d->take(index);
    page->setParent(nullptr);
}

void RibbonBar::clearPages()
{
    const QList<RibbonPage*> pages = d->pages;
    for (RibbonPage* page : pages) {
        QObject::disconnect(d->destroyWatch.take(page));
        QObject::disconnect(page, nullptr, d->watcher, nullptr);
    }
    d->pages.clear();
    qDeleteAll(pages);
    d->setCurrent(-1, true);
}

RibbonPage* RibbonBar::page(int index) const
{
    return index >= 0 && index < d->pages.size() ? d->pages.at(index) : nullptr;
}

int RibbonBar::pageCount() const
{
    return d->pages.size();
}

QList<RibbonPage*> RibbonBar::pages() const
{
    return d->pages;
}

int RibbonBar::currentPageIndex() const
{
    return d->current;
}

QRect RibbonBar::tabRect(int index) const
{
    if (d->tabRects.size() != d->pages.size())
        d->layout();
    return d->tabRects.value(index);
}

void RibbonBar::setCurrentPageIndex(int index)
{
    if (index < 0 || index >= d->pages.size() || index == d->current)
        return;
    d->setCurrent(index, true);
}

QAction* RibbonBar::addSystemButton(const QIcon& icon, const QString& text)
{
    if (!d->systemButton) {
        d->systemButton = new RibbonSystemButton(this);
        auto* action = new QAction(icon, text, this);
        action->setMenu(new RibbonSystemMenu(this));
        d->systemButton->setDefaultAction(action);
        // A default action with a menu turns the button into a split button;
        // the whole system button opens the menu.
        d->systemButton->setPopupMode(QToolButton::InstantPopup);
        d->systemButton->show();
    } else {
        QAction* action = d->systemButton->defaultAction();
        action->setIcon(icon);
        action->setText(text);
    }
    d->relayout();
    return d->systemButton->defaultAction();
}

QAction* RibbonBar::addSystemButton(const QString& text)
{
    return addSystemButton(QIcon(), text);
}

RibbonSystemButton* RibbonBar::systemButton() const
{
    return d->systemButton;
}

RibbonQuickAccessBar* RibbonBar::quickAccessBar() const
{
    return d->quickAccessBar;
}

bool RibbonBar::isFrameThemeEnabled() const
{
    return d->frameTheme;
}

void RibbonBar::setFrameThemeEnabled(bool enabled)
{
    if (d->frameTheme == enabled)
        return;
    d->frameTheme = enabled;
    d->relayout();
}

bool RibbonBar::isMinimized() const
{
    return d->minimized;
}

void RibbonBar::setMinimized(bool minimized)
{
    if (d->minimized == minimized)
        return;
    d->minimized = minimized;
    d->relayout();
    Q_EMIT minimizationChanged(minimized);
}

QSize RibbonBar::sizeHint() const
{
    int width = d->tabRects.isEmpty() ? 0 : d->tabRects.last().right() + TabPadding;
    if (d->current >= 0)
        width = qMax(width, d->pages.at(d->current)->sizeHint().width());
    return QSize(qMax(width, 200), d->totalHeight());
}

QSize RibbonBar::minimumSizeHint() const
{
    return QSize(100, d->totalHeight());
}

int RibbonBar::heightForWidth(int width) const
{
    Q_UNUSED(width)
    return d->totalHeight();
}

bool RibbonBar::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
        d->relayout();
        return true;
    case QEvent::ParentChange:
        d->watcher->watchWindow(window());
        break;
    case QEvent::ToolTip: {
        // An elided tab shows its whole title as a tool tip.
        auto* help = static_cast<QHelpEvent*>(event);
        const int tab = d->tabAt(help->pos());
        if (tab >= 0) {
            const QString title = Private::pageTitle(d->pages.at(tab)).remove(QLatin1Char('&'));
            if (fontMetrics().horizontalAdvance(title) > d->tabTextWidths.value(tab)) {
                QToolTip::showText(help->globalPos(), title, this, d->tabRects.at(tab));
                return true;
            }
        }
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        d->relayout();
        break;
    default:
        break;
    }
    return QMenuBar::event(event);
}

void RibbonBar::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const RibbonColors colors = RibbonColors::forWidget(this);
    QPainter painter(this);
    const int title = d->titleHeight();
    const QRect tabRow = d->tabRowRect();
    detail::paintFrame(&painter, QRect(0, 0, width(), title + tabRow.height()), this);

    if (d->frameTheme) {
        const QRect iconRect = d->titleIconRect();
        if (!iconRect.isEmpty())
            window()->windowIcon().paint(&painter, iconRect);
        const QString text = d->windowTitle();
        if (!text.isEmpty()) {
            const QFontMetrics metrics(font());
            int left = iconRect.isEmpty() ? 0 : iconRect.right() + 12;
            if (d->quickAccessShown())
                left = d->quickAccessBar->geometry().right() + 12;
            const int textWidth = metrics.horizontalAdvance(text);
            QRect titleRect(0, 0, width(), title);
            // Centred on the window unless the quick access bar is in the way.
            if ((width() - textWidth) / 2 < left)
                titleRect.setLeft(left);
            painter.setPen(colors.titleText);
            painter.drawText(titleRect.adjusted(0, 0, -8, 0), Qt::AlignCenter,
                             metrics.elidedText(text, Qt::ElideRight, titleRect.width() - 8));
        }
    }

    const QRect area = d->pageAreaRect();
    if (!d->minimized) {
        detail::paintPageArea(&painter, area, this);
        painter.setPen(colors.pageBorder);
        painter.drawLine(area.left(), area.bottom(), area.right(), area.bottom());
    }

    // The line between the tab row and the page, broken under the selected tab.
    const int lineY = tabRow.bottom();
    const bool showSelected = !d->minimized && d->current >= 0 && d->current < d->tabRects.size();
    painter.setPen(d->minimized ? colors.pageBorder : colors.tabBorder);
    if (showSelected) {
        const QRect selected = d->tabRects.at(d->current);
        painter.drawLine(0, lineY, selected.left(), lineY);
        painter.drawLine(selected.right(), lineY, width() - 1, lineY);
    } else {
        painter.drawLine(0, lineY, width() - 1, lineY);
    }

    painter.setFont(font());
    for (int i = 0; i < d->tabRects.size(); ++i) {
        const QRect rect = d->tabRects.at(i);
        const QString text = Private::pageTitle(d->pages.at(i));
        const bool selected = showSelected && i == d->current;
        detail::paintTab(&painter, rect,
                         selected ? detail::TabState::Selected
                                  : (i == d->hoverTab ? detail::TabState::Hover : detail::TabState::Normal),
                         this);
        painter.setPen(selected ? colors.tabTextSelected : colors.tabText);
        const int room = d->tabTextWidths.value(i, rect.width());
        const QString shown = painter.fontMetrics().horizontalAdvance(QString(text).remove(QLatin1Char('&'))) > room
                                  ? painter.fontMetrics().elidedText(QString(text).remove(QLatin1Char('&')),
                                                                     Qt::ElideRight, room)
                                  : text;
        painter.drawText(rect, Qt::AlignCenter | Qt::TextHideMnemonic, shown);
    }
}

void RibbonBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->layout();
}

void RibbonBar::mousePressEvent(QMouseEvent* event)
{
    d->restoredByPress = false;
    if (event->button() == Qt::LeftButton) {
        const int tab = d->tabAt(event->pos());
        if (tab >= 0) {
            setCurrentPageIndex(tab);
            // A click on a tab brings a minimised page area back; the double
            // click that may follow must not hide it again.
            if (d->minimized) {
                setMinimized(false);
                d->restoredByPress = true;
            }
            event->accept();
            return;
        }
    }
    QWidget::mousePressEvent(event);
}

void RibbonBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const int tab = d->tabAt(event->pos());
        if (tab >= 0) {
            setCurrentPageIndex(tab);
            if (!d->restoredByPress)
                setMinimized(!d->minimized);
            d->restoredByPress = false;
            event->accept();
            return;
        }
    }
    QWidget::mouseDoubleClickEvent(event);
}

void RibbonBar::mouseMoveEvent(QMouseEvent* event)
{
    const int tab = d->tabAt(event->pos());
    if (tab != d->hoverTab) {
        d->hoverTab = tab;
        update();
    }
    QWidget::mouseMoveEvent(event);
}

void RibbonBar::leaveEvent(QEvent* event)
{
    if (d->hoverTab != -1) {
        d->hoverTab = -1;
        update();
    }
    QWidget::leaveEvent(event);
}

void RibbonBar::wheelEvent(QWheelEvent* event)
{
    if (d->pages.isEmpty() || !d->tabRowRect().contains(event->position().toPoint())) {
        event->ignore();
        return;
    }
    const QPoint delta = event->angleDelta();
    const int steps = delta.y() != 0 ? delta.y() : delta.x();
    if (steps != 0) {
        const int next = qBound(0, d->current + (steps > 0 ? -1 : 1), d->pages.size() - 1);
        setCurrentPageIndex(next);
    }
    event->accept();
}

void RibbonBar::contextMenuEvent(QContextMenuEvent* event)
{
    // The ribbon has no menu of its own; swallowing the event keeps the main
    // window's tool bar menu from opening over it.
    event->accept();
}

} // namespace Qtitan
