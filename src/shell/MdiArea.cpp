#include <tessaro/MdiArea.h>

#include <QtitanRibbon.h>

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTabBar>

namespace ui {

namespace {

const char tabBarStyleSheet[] =
    "QTabBar::tab { background: #f0f0f0; border: 1px solid black; border-bottom-color: #C2C7CB;  "
    "min-width: 8ex; padding: 2px 4px; }"
    "QTabBar::tab:selected, QTabBar::tab:hover {  background: white; }"
    "QTabBar::tab:!selected { margin-top: 2px;  }";

} // namespace

MdiArea::MdiArea(QWidget* parent)
    : QMdiArea(parent)
{
    setViewMode(QMdiArea::TabbedView);
    setTabPosition(QTabWidget::South);
    setTabsClosable(true);
    if (auto* tabBar = findChild<QTabBar*>()) {
        tabBar->setExpanding(false);
        tabBar->setStyleSheet(QLatin1String(tabBarStyleSheet));
    }
}

MdiArea::~MdiArea() = default;

void MdiArea::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    // A style change re-polishes the tab bar, which makes its tabs expand again.
    if (event->type() == QEvent::StyleChange) {
        if (auto* tabBar = findChild<QTabBar*>())
            tabBar->setExpanding(false);
    }
}

void MdiArea::paintEvent(QPaintEvent* event)
{
    if (!qobject_cast<Qtitan::CommonStyle*>(style())) {
        QMdiArea::paintEvent(event);
        return;
    }
    QPainter painter(viewport());
    QStyleOption option(1, QStyleOption::SO_Default);
    option.initFrom(this);
    if (event->rect().intersects(option.rect))
        style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(QStyle::PE_CustomBase + 0x16),
                               &option, &painter, this);
}

} // namespace ui
