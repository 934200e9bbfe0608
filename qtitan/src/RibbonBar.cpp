#include "qtitan/RibbonBar.h"

#include "qtitan/RibbonColors.h"
#include "qtitan/RibbonPage.h"
#include "qtitan/RibbonQuickAccessBar.h"
#include "qtitan/RibbonSystemButton.h"
#include "qtitan/RibbonSystemMenu.h"

#include "RibbonBar_p.h"
#include "RibbonColors_p.h"
#include "RibbonHover_p.h"
#include "RibbonKeyTips_p.h"
#include "RibbonPagePopup_p.h"
#include "RibbonPaint_p.h"
#include "RibbonScrollButton_p.h"
#include "RibbonTabRowLayout_p.h"
#include "RibbonWindowFrame_p.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QHash>
#include <QHelpEvent>
#include <QToolTip>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyleHints>
#include <QWheelEvent>

namespace Qtitan {

namespace {
using TabRow = detail::RibbonTabRowLayout;
constexpr int TabTopGap = 3;
constexpr int FirstTabGap = 4;
constexpr int QuickAccessMargin = 4;
constexpr int CornerMargin = 4; ///< between the corner widget and the bar's right edge

// The narrowest a corner widget may become: its minimum width, else its
// minimum size hint. (Its size policy is for layouts; QMenuBar gives it its
// size hint whatever the policy, and the ribbon narrows it only when short of room.)
int cornerMinimumWidth(const QWidget* widget)
{
    const int preferred = qBound(widget->minimumWidth(), widget->sizeHint().width(), widget->maximumWidth());
    if (widget->minimumWidth() > 0)
        return widget->minimumWidth();
    const QSize minimum = widget->minimumSizeHint();
    return minimum.isValid() ? qMin(minimum.width(), preferred) : preferred;
}

int cornerPreferredWidth(const QWidget* widget)
{
    return qBound(widget->minimumWidth(), widget->sizeHint().width(), widget->maximumWidth());
}

// A title shortened to its first two letters and an ellipsis, or the whole
// title when that is shorter. (One pixel more: eliding measures a little wider.)
int minimumTitleWidth(const QFontMetrics& metrics, const QString& title)
{
    const int whole = metrics.horizontalAdvance(title);
    if (title.size() <= 2)
        return whole;
    return qMin(whole, metrics.horizontalAdvance(title.left(2) + QChar(0x2026)) + 1);
}
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
    detail::RibbonWindowFrame* frame = nullptr; ///< while the frame theme is on
    int captionLeft = 0;                        ///< where the caption buttons begin on the title strip
    bool minimized = false;
    int hoverTab = -1;
    bool restoredByPress = false; ///< a press un-minimised the ribbon: the double click that follows does nothing
    detail::RibbonPagePopup* pagePopup = nullptr;
    detail::RibbonKeyTips* keyTips = nullptr;
    ulong popupOpenedAt = 0;      ///< time stamp of the press that opened the page popup
    QVector<QRect> tabRects;    ///< in the bar's coordinates; scrolled tabs lie outside tabViewport
    QVector<int> tabTextWidths; ///< room for each title; a shorter one than the title's is elided
    QRect tabViewport;          ///< the part of the tab row that shows tabs
    int firstVisibleTab = 0;    ///< the first tab in sight while the tabs scroll
    detail::RibbonScrollButton* tabScrollLeft = nullptr;
    detail::RibbonScrollButton* tabScrollRight = nullptr;
    QRect cornerRect;     ///< where the corner widget goes
    bool cornerLaidOut = false;
    bool cornerSetAside = false; ///< the ribbon hid the corner widget for want of room
    bool settingCornerAside = false;

    static QString pageTitle(const RibbonPage* page)
    {
        return page ? page->title() : QString();
    }

    /// A page title as the tab shows it, without mnemonic ampersands.
    static QString tabText(const RibbonPage* page)
    {
        return detail::labelText(pageTitle(page));
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
        // The whole height of the tab row counts, so the tabs are easy to hit.
        if (!tabViewport.contains(pos))
            return -1;
        for (int i = 0; i < tabRects.size(); ++i) {
            const QRect& tab = tabRects.at(i);
            if (pos.x() >= tab.left() && pos.x() <= tab.right())
                return i;
        }
        return -1;
    }

    /// The corner widget, unless its host hid it.
    QWidget* visibleCornerWidget() const
    {
        QWidget* corner = q->cornerWidget(Qt::TopRightCorner);
        return corner && (!corner->isHidden() || cornerSetAside) ? corner : nullptr;
    }

    void layout()
    {
        layoutTitleStrip();
        layoutTabRow();
        layoutPages();
        updateQuickAccessPalette();
    }

    void layoutTitleStrip()
    {
        const int title = titleHeight();
        captionLeft = frameAttached() ? frame->placeButtons(QRect(0, 0, q->width(), title)) : q->width();
        if (!quickAccessShown())
            return;
        const QSize hint = quickAccessBar->sizeHint();
        const int x = frameTheme ? titleIconRect().right() + 6 : QuickAccessMargin;
        quickAccessBar->setGeometry(x, (title - hint.height()) / 2, qMax(0, qMin(hint.width(), captionLeft - x)),
                                    hint.height());
    }

    bool frameAttached() const
    {
        return frame && frame->window();
    }

    /// The frame theme takes the native frame away from the window that shows
    /// the ribbon, unless the host hid the ribbon (a window whose menu widget
    /// is replaced hides the old one first).
    void updateFrame()
    {
        const bool wanted = frameTheme && !explicitlyHidden(q);
        if (wanted && !frame)
            frame = new detail::RibbonWindowFrame(q);
        if (frame)
            frame->attach(wanted ? q->window() : nullptr);
        relayout();
    }

    // Hidden by its host, not merely waiting to be shown with its window.
    static bool explicitlyHidden(const QWidget* widget)
    {
        return widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    }

    bool inTitleStrip(const QPoint& pos) const
    {
        return frameAttached() && pos.y() < titleHeight();
    }

    TabRow::Input tabRowInput(int available) const
    {
        const QFontMetrics metrics(q->font());
        TabRow::Input input;
        input.available = available;
        for (const RibbonPage* page : pages) {
            const QString text = tabText(page);
            input.textWidths.append(metrics.horizontalAdvance(text));
            input.minimumTextWidths.append(minimumTitleWidth(metrics, text));
        }
        if (const QWidget* corner = visibleCornerWidget()) {
            input.cornerPreferred = cornerPreferredWidth(corner);
            input.cornerMinimum = cornerMinimumWidth(corner);
        }
        return input;
    }

    void layoutTabRow()
    {
        const int top = titleHeight();
        const int height = tabHeight();
        int left = 0;
        if (systemButton) {
            const QSize hint = systemButton->sizeHint();
            systemButton->setGeometry(0, top, hint.width(), height);
            left = hint.width();
        }
        left += FirstTabGap;
        const int right = q->width() - CornerMargin;
        const TabRow row = TabRow::compute(tabRowInput(right - left));
        placeCorner(row, right);

        const int arrow = row.scrolls ? int(TabRow::ArrowWidth) : 0;
        tabViewport = QRect(left + arrow, top, qMax(0, row.tabRoom - 2 * arrow), height);
        firstVisibleTab = row.scrolls ? qBound(0, firstVisibleTab, lastFirstTab(row)) : 0;
        int x = tabViewport.left();
        for (int i = 0; i < firstVisibleTab; ++i)
            x -= row.tabWidths.at(i) + TabRow::Spacing;
        tabRects.clear();
        for (int width : row.tabWidths) {
            tabRects.append(QRect(x, top + TabTopGap, width, height - TabTopGap));
            x += width + TabRow::Spacing;
        }
        tabTextWidths = row.textWidths;
        layoutTabScrollArrows(row.scrolls, left, top, height);
    }

    // The first tab in sight when the row is scrolled as far as it goes.
    int lastFirstTab(const TabRow& row) const
    {
        int first = row.tabWidths.size();
        int used = 0;
        while (first > 0 && used + row.tabWidths.at(first - 1) <= tabViewport.width()) {
            used += row.tabWidths.at(first - 1) + TabRow::Spacing;
            --first;
        }
        return qMin(first, row.tabWidths.size() - 1);
    }

    void placeCorner(const TabRow& row, int right)
    {
        QWidget* corner = visibleCornerWidget();
        cornerLaidOut = corner != nullptr;
        if (!corner)
            return;
        setCornerAside(corner, row.cornerWidth == 0);
        const int rowTop = titleHeight();
        const int rowHeight = tabHeight();
        const int height = qMin(corner->sizeHint().height(), rowHeight - 2);
        cornerRect = QRect(right - row.cornerWidth, rowTop + (rowHeight - height) / 2 + 1, row.cornerWidth, height);
        placeCornerWidget();
    }

    // A corner widget that has to go is hidden until there is room again.
    void setCornerAside(QWidget* corner, bool aside)
    {
        if (aside == cornerSetAside)
            return;
        cornerSetAside = aside;
        settingCornerAside = true;
        corner->setVisible(!aside);
        settingCornerAside = false;
    }

    /// QMenuBar places its corner widget its own way; the ribbon puts it back.
    void placeCornerWidget()
    {
        QWidget* corner = visibleCornerWidget();
        if (corner && cornerLaidOut && !cornerSetAside && corner->geometry() != cornerRect)
            corner->setGeometry(cornerRect);
    }

    detail::RibbonScrollButton* makeTabScrollArrow(Qt::ArrowType arrow, const char* name, int step)
    {
        auto* button = new detail::RibbonScrollButton(q, arrow, detail::RibbonScrollButton::OnFrame);
        button->setObjectName(QLatin1String(name));
        button->hide();
        QObject::connect(button, &QToolButton::clicked, q, [this, step]() {
            firstVisibleTab = qMax(0, firstVisibleTab + step);
            relayout();
        });
        return button;
    }

    void layoutTabScrollArrows(bool scrolls, int left, int top, int height)
    {
        if (!scrolls && !tabScrollLeft)
            return;
        if (!tabScrollLeft) {
            tabScrollLeft = makeTabScrollArrow(Qt::LeftArrow, "qtitan_ribbon_tabscrollleft", -1);
            tabScrollRight = makeTabScrollArrow(Qt::RightArrow, "qtitan_ribbon_tabscrollright", 1);
        }
        const QRect arrow(0, top + TabTopGap, TabRow::ArrowWidth, height - TabTopGap);
        tabScrollLeft->setGeometry(arrow.translated(left, 0));
        tabScrollRight->setGeometry(arrow.translated(tabViewport.right() + 1, 0));
        tabScrollLeft->setVisible(scrolls);
        tabScrollRight->setVisible(scrolls);
        tabScrollLeft->setEnabled(firstVisibleTab > 0);
        tabScrollRight->setEnabled(!tabRects.isEmpty() && tabRects.last().right() > tabViewport.right());
    }

    /// Scrolls the tab row so that a tab is wholly in sight.
    void ensureTabVisible(int index)
    {
        if (index < 0 || index >= tabRects.size() || tabViewport.isEmpty())
            return;
        if (index < firstVisibleTab) {
            firstVisibleTab = index;
        } else {
            int right = tabRects.at(index).right();
            while (firstVisibleTab < index && right > tabViewport.right()) {
                right -= tabRects.at(firstVisibleTab).width() + TabRow::Spacing;
                ++firstVisibleTab;
            }
        }
        layout();
    }

    void layoutPages()
    {
        const QRect area = pageAreaRect();
        for (int i = 0; i < pages.size(); ++i) {
            RibbonPage* page = pages.at(i);
            if (page->parentWidget() != q)
                continue; // on show in the page popup
            if (i == current && !minimized) {
                page->setGeometry(area.adjusted(0, 1, 0, -1));
                page->show();
            } else {
                page->hide();
            }
        }
    }

    void updateQuickAccessPalette()
    {
        if (!quickAccessBar)
            return;
        QPalette palette = quickAccessBar->palette();
        const RibbonColors colors = RibbonColors::forWidget(q);
        palette.setColor(QPalette::ButtonText, colors.titleText);
        palette.setColor(QPalette::WindowText, colors.titleText);
        quickAccessBar->setPalette(palette);
    }

    void relayout()
    {
        if (q->height() != totalHeight())
            q->updateGeometry();
        layout();
        q->update();
    }

    bool popupOpen() const
    {
        return pagePopup && pagePopup->isVisible();
    }

    bool withinDoubleClick(ulong timestamp) const
    {
        return timestamp - popupOpenedAt < ulong(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    }

    // A minimised ribbon drops the page over the workspace rather than making room for it.
    void openPagePopup(int tab, ulong timestamp)
    {
        if (!pagePopup) {
            pagePopup = new detail::RibbonPagePopup(q);
            QObject::connect(pagePopup, &detail::RibbonPagePopup::pressedOutside, q,
                             [this](QMouseEvent* event) { pressedOutsidePopup(event); });
            QObject::connect(pagePopup, &detail::RibbonPagePopup::closed, q,
                             [this](RibbonPage* page) { takeBackFromPopup(page); });
            // Shortcuts of the window do not reach it while the popup holds the keyboard.
            addMinimizeShortcut(pagePopup);
        }
        popupOpenedAt = timestamp;
        const QPoint topLeft = q->mapToGlobal(QPoint(0, tabRowRect().bottom() + 1));
        pagePopup->showPage(pages.at(tab), tab, QRect(topLeft, QSize(q->width(), pageAreaHeight())));
        q->update();
    }

    // A press on the popup's own tab closes it and goes no further; a double
    // click there brings the page area back. Presses elsewhere go on to
    // whatever lies under them (another tab opens its page).
    void pressedOutsidePopup(QMouseEvent* event)
    {
        const int tab = tabAt(q->mapFromGlobal(event->globalPos()));
        if (tab < 0)
            return;
        pagePopup->setAttribute(Qt::WA_NoMouseReplay, true);
        if (tab != pagePopup->tab()) {
            // Once this popup has closed on the press.
            const ulong at = event->timestamp();
            QMetaObject::invokeMethod(
                q,
                [this, tab, at]() {
                    if (minimized && tab < pages.size())
                        pressTabWhileMinimized(tab, at);
                },
                Qt::QueuedConnection);
        } else if (event->type() == QEvent::MouseButtonDblClick || withinDoubleClick(event->timestamp())) {
            q->setMinimized(false);
            restoredByPress = true;
        }
    }

    void createKeyTips()
    {
        detail::RibbonKeyTips::Host host;
        host.openTab = [this](int tab) {
            if (!minimized)
                q->setCurrentPageIndex(tab);
            else if (!popupOpen() || pagePopup->tab() != tab)
                pressTabWhileMinimized(tab, 0);
        };
        host.closeDroppedPage = [this]() {
            if (popupOpen())
                pagePopup->close();
        };
        keyTips = new detail::RibbonKeyTips(q, host);
    }

    void addMinimizeShortcut(QWidget* owner)
    {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F1), owner);
        QObject::connect(shortcut, &QShortcut::activated, q, [this]() { q->setMinimized(!minimized); });
    }

    void takeBackFromPopup(RibbonPage* page)
    {
        if (page && pages.contains(page)) {
            page->hide();
            page->setParent(q);
            detail::syncUnderMouse(page);
        }
        syncHoverTab();
        relayout();
    }

    void setHoverTab(int tab)
    {
        if (tab == hoverTab)
            return;
        hoverTab = tab;
        q->update();
    }

    void syncHoverTab()
    {
        detail::syncUnderMouse(q);
        hoverTab = q->underMouse() ? tabAt(q->mapFromGlobal(QCursor::pos())) : -1;
    }

    void pressTabWhileMinimized(int tab, ulong timestamp)
    {
        // Reached only by a press that did not pass the open popup first.
        if (popupOpen() && pagePopup->tab() == tab) {
            const bool doubleClick = withinDoubleClick(timestamp);
            pagePopup->close();
            if (doubleClick) {
                q->setMinimized(false);
                restoredByPress = true;
            }
            return;
        }
        q->setCurrentPageIndex(tab);
        openPagePopup(tab, timestamp);
    }

    void setCurrent(int index, bool notify)
    {
        if (popupOpen() && pagePopup->tab() != index)
            pagePopup->close();
        const bool changed = index != current;
        current = index;
        relayout();
        ensureTabVisible(current);
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
        if (popupOpen() && pagePopup->page() == page)
            pagePopup->close();
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
        const bool inPopup = popupOpen() && pagePopup->tab() == index;
        dropAt(index);
        if (inPopup) {
            // Only a QWidget is left of the page: closing must not hand it back.
            pagePopup->forgetPage();
            pagePopup->close();
        }
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

    bool showTabToolTip(QHelpEvent* help)
    {
        // An elided tab shows its whole title as a tool tip.
        const int tab = tabAt(help->pos());
        if (tab >= 0) {
            const QString title = tabText(pages.at(tab));
            if (q->fontMetrics().horizontalAdvance(title) > tabTextWidths.value(tab)) {
                QToolTip::showText(help->globalPos(), title, q, tabRects.at(tab));
                return true;
            }
        }
        QToolTip::hideText();
        help->ignore();
        return true;
    }

    void paintTitle(QPainter* painter, const RibbonColors& colors) const
    {
        const int title = titleHeight();
        const QRect iconRect = titleIconRect();
        if (!iconRect.isEmpty())
            q->window()->windowIcon().paint(painter, iconRect);
        const QString text = windowTitle();
        if (text.isEmpty())
            return;
        const QFontMetrics metrics(q->font());
        int left = iconRect.isEmpty() ? 8 : iconRect.right() + 12;
        if (quickAccessShown())
            left = quickAccessBar->geometry().right() + 12;
        const int right = captionLeft - 8;
        const int textWidth = metrics.horizontalAdvance(text);
        // Centred on the window unless the quick access bar or the caption buttons are in the way.
        int x = qMax((q->width() - textWidth) / 2, left);
        if (x + textWidth > right)
            x = qMax(left, right - textWidth);
        const int room = qMax(0, right - x);
        QColor pen = colors.titleText;
        if (frameAttached() && !q->window()->isActiveWindow())
            pen.setAlphaF(pen.alphaF() * 0.6);
        painter->setPen(pen);
        painter->drawText(QRect(x, 0, room, title), Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(text, Qt::ElideRight, room));
    }

    void paintPageArea(QPainter* painter, const RibbonColors& colors) const
    {
        const QRect area = pageAreaRect();
        detail::paintPageArea(painter, area, q);
        painter->setPen(colors.pageBorder);
        painter->drawLine(area.left(), area.bottom(), area.right(), area.bottom());
    }

    bool selectedTabJoinsPage() const
    {
        return (!minimized || popupOpen()) && current >= 0 && current < tabRects.size()
               && tabViewport.intersects(tabRects.at(current));
    }

    // The line between the tab row and the page, broken under the selected tab.
    void paintTabLine(QPainter* painter, const RibbonColors& colors) const
    {
        const int lineY = tabRowRect().bottom();
        painter->setPen(minimized ? colors.pageBorder : colors.tabBorder);
        if (selectedTabJoinsPage()) {
            const QRect selected = tabRects.at(current).intersected(tabViewport);
            painter->drawLine(0, lineY, selected.left(), lineY);
            painter->drawLine(selected.right(), lineY, q->width() - 1, lineY);
        } else {
            painter->drawLine(0, lineY, q->width() - 1, lineY);
        }
    }

    void paintTab(QPainter* painter, const RibbonColors& colors, int index) const
    {
        const QRect rect = tabRects.at(index);
        if (!tabViewport.intersects(rect))
            return;
        const bool selected = index == current && selectedTabJoinsPage();
        detail::paintTab(painter, rect,
                         selected ? detail::TabState::Selected
                                  : (index == hoverTab ? detail::TabState::Hover : detail::TabState::Normal),
                         q);
        painter->setPen(selected ? colors.tabTextSelected : colors.tabText);
        const QString text = tabText(pages.at(index));
        const int room = tabTextWidths.value(index, rect.width());
        const QString shown = painter->fontMetrics().horizontalAdvance(text) > room
                                  ? painter->fontMetrics().elidedText(text, Qt::ElideRight, room)
                                  : text;
        painter->drawText(rect, Qt::AlignCenter, shown);
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
    d->addMinimizeShortcut(this);
    d->createKeyTips();
}

RibbonBar::~RibbonBar()
{
    for (auto it = d->destroyWatch.cbegin(); it != d->destroyWatch.cend(); ++it)
        QObject::disconnect(it.value());
    d->destroyWatch.clear();
    d->watcher->watchWindow(nullptr);
    if (d->pagePopup) {
        // The page inside goes down with the popup; nothing may call back into d.
        d->pagePopup->disconnect(this);
        d->pagePopup->hide();
    }
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
    d->updateFrame();
}

bool RibbonBar::isKeyTipsEnabled() const
{
    return d->keyTips->isEnabled();
}

void RibbonBar::setKeyTipsEnabled(bool enabled)
{
    d->keyTips->setEnabled(enabled);
}

bool RibbonBar::isMinimized() const
{
    return d->minimized;
}

void RibbonBar::setMinimized(bool minimized)
{
    if (d->minimized == minimized)
        return;
    if (d->popupOpen())
        d->pagePopup->close();
    d->minimized = minimized;
    d->relayout();
    Q_EMIT minimizationChanged(minimized);
}

QSize RibbonBar::sizeHint() const
{
    const TabRow::Input input = d->tabRowInput(0);
    int width = FirstTabGap + CornerMargin + (d->systemButton ? d->systemButton->sizeHint().width() : 0);
    for (int text : input.textWidths)
        width += qMax(text + 2 * int(TabRow::Padding), int(TabRow::FullTabMinimum)) + TabRow::Spacing;
    if (input.cornerPreferred > 0)
        width += input.cornerPreferred + TabRow::CornerGap;
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
        d->updateFrame();
        break;
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        d->updateFrame();
        break;
    case QEvent::Hide:
        d->keyTips->end();
        break;
    case QEvent::ChildAdded:
        // Perhaps a corner widget on its way in: lay out once QMenuBar has placed it.
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
        if (QObject* child = static_cast<QChildEvent*>(event)->child(); child->isWidgetType())
            child->installEventFilter(this);
        break;
    case QEvent::ChildRemoved:
        if (QObject* child = static_cast<QChildEvent*>(event)->child(); child != cornerWidget(Qt::TopRightCorner))
            child->removeEventFilter(this);
        break;
    case QEvent::ToolTip:
        return d->showTabToolTip(static_cast<QHelpEvent*>(event));
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        d->relayout();
        break;
    default:
        break;
    }
    // Where QMenuBar may have placed its corner widget its own way.
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
    case QEvent::ActionChanged: {
        const bool result = QMenuBar::event(event);
        d->placeCornerWidget();
        return result;
    }
    default:
        return QMenuBar::event(event);
    }
}

bool RibbonBar::eventFilter(QObject* watched, QEvent* event)
{
    // A quick hand goes from a tab straight onto a widget of the ribbon, and
    // the ribbon sees no move past the tab.
    if (event->type() == QEvent::Enter && watched->parent() == this)
        d->setHoverTab(-1);
    // Only the corner widget is QMenuBar's business among the ribbon's children.
    if (watched->parent() == this && watched != cornerWidget(Qt::TopRightCorner))
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // Alt belongs to the key tips; QMenuBar's own Alt navigation has no menus to walk here.
        return false;
    default:
        break;
    }
    const bool result = QMenuBar::eventFilter(watched, event);
    if (watched == cornerWidget(Qt::TopRightCorner)) {
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
            // Shown or hidden by the host: the ribbon no longer holds it back.
            if (!d->settingCornerAside)
                d->cornerSetAside = false;
            QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
        }
        d->placeCornerWidget();
    }
    return result;
}

void RibbonBar::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const RibbonColors colors = RibbonColors::forWidget(this);
    QPainter painter(this);
    const QRect tabRow = d->tabRowRect();
    detail::paintFrame(&painter, QRect(0, 0, width(), tabRow.bottom() + 1), this);
    if (d->frameTheme)
        d->paintTitle(&painter, colors);
    if (!d->minimized)
        d->paintPageArea(&painter, colors);
    d->paintTabLine(&painter, colors);
    painter.setFont(font());
    painter.setClipRect(d->tabViewport);
    for (int i = 0; i < d->tabRects.size(); ++i)
        d->paintTab(&painter, colors, i);
}

void RibbonBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (d->popupOpen())
        d->pagePopup->close();
    d->layout();
}

void RibbonBar::mousePressEvent(QMouseEvent* event)
{
    d->restoredByPress = false;
    if (event->button() == Qt::LeftButton && d->inTitleStrip(event->pos())) {
        d->frame->titlePressed(event->globalPos());
        event->accept();
        return;
    }
    if (event->button() == Qt::LeftButton) {
        const int tab = d->tabAt(event->pos());
        if (tab >= 0) {
            if (d->minimized)
                d->pressTabWhileMinimized(tab, event->timestamp());
            else
                setCurrentPageIndex(tab);
            event->accept();
            return;
        }
    }
    QWidget::mousePressEvent(event);
}

void RibbonBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && d->inTitleStrip(event->pos())) {
        d->frame->toggleMaximized();
        event->accept();
        return;
    }
    if (event->button() == Qt::LeftButton) {
        const int tab = d->tabAt(event->pos());
        if (tab >= 0) {
            if (!d->restoredByPress) {
                setCurrentPageIndex(tab);
                setMinimized(!d->minimized);
            }
            d->restoredByPress = false;
            event->accept();
            return;
        }
    }
    QWidget::mouseDoubleClickEvent(event);
}

void RibbonBar::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && d->frameAttached())
        d->frame->titleDragged(event->globalPos());
    d->setHoverTab(d->tabAt(event->pos()));
    QWidget::mouseMoveEvent(event);
}

void RibbonBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (d->frameAttached())
        d->frame->titleReleased();
    QMenuBar::mouseReleaseEvent(event);
}

void RibbonBar::leaveEvent(QEvent* event)
{
    d->setHoverTab(-1);
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
