#include "DemoQuickSearch.h"

#include <tessaro/QuickSearch.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QToolBar>

namespace demo {

namespace {

const char* const toolBarName = "quickSearchToolBar";

// When the window's menu widget is replaced, the old one is hidden and then
// deleted with its children: take the box out first and place it again once
// the new menu widget is in.
class HostWatch : public QObject
{
public:
    HostWatch(QMainWindow* window, ui::QuickSearchWidget* box)
        : QObject(box)
        , m_window(window)
        , m_box(box)
    {
    }

    void watch(QWidget* host)
    {
        if (m_host)
            m_host->removeEventFilter(this);
        m_host = host;
        if (host)
            host->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_host && event->type() == QEvent::Hide && m_host->isHidden()
            && m_window->menuWidget() != nullptr && !m_window->isHidden()) {
            watch(nullptr);
            m_box->hide();
            m_box->setParent(m_window);
            QPointer<QMainWindow> window = m_window;
            QPointer<ui::QuickSearchWidget> box = m_box;
            QTimer::singleShot(0, m_box, [window, box] {
                if (window && box)
                    placeQuickSearch(window, box);
            });
        }
        return false;
    }

private:
    QMainWindow* m_window;
    ui::QuickSearchWidget* m_box;
    QPointer<QWidget> m_host;
};

HostWatch* hostWatch(QMainWindow* window, ui::QuickSearchWidget* box)
{
    for (QObject* child : box->children()) {
        if (auto* watch = dynamic_cast<HostWatch*>(child))
            return watch;
    }
    return new HostWatch(window, box);
}

void removeOldPlacement(QMainWindow* window, ui::QuickSearchWidget* box)
{
    if (auto* bar = window->findChild<QToolBar*>(QLatin1String(toolBarName))) {
        box->setParent(window);
        delete bar;
    }
    const QList<QMenuBar*> bars = window->findChildren<QMenuBar*>();
    for (QMenuBar* bar : bars) {
        if (bar->cornerWidget(Qt::TopRightCorner) == box)
            bar->setCornerWidget(nullptr, Qt::TopRightCorner);
    }
}

} // namespace

ui::QuickSearchWidget* createQuickSearch(QMainWindow* window, const QList<QMenu*>& menus)
{
    auto* box = new ui::QuickSearchWidget(window);
    box->setObjectName(QStringLiteral("quickSearch"));
    QList<QAction*> source;
    for (QMenu* menu : menus)
        source.append(menu->menuAction());
    box->setSource(source);
    placeQuickSearch(window, box);
    return box;
}

void placeQuickSearch(QMainWindow* window, ui::QuickSearchWidget* box)
{
    removeOldPlacement(window, box);
    QWidget* menuWidget = window->menuWidget();
    hostWatch(window, box)->watch(menuWidget);

    // The ribbon (itself a QMenuBar) keeps the box at the right end of its tab
    // row; a plain menu bar, or one inside the menu widget (the shell's menu
    // bar puts a real QMenuBar beside its corner strip), at its right end.
    QMenuBar* bar = qobject_cast<QMenuBar*>(menuWidget);
    if (!bar && menuWidget)
        bar = menuWidget->findChild<QMenuBar*>();
    if (bar) {
        bar->setCornerWidget(box, Qt::TopRightCorner);
        box->show();
        return;
    }

    auto* toolBar = new QToolBar(QApplication::translate("DemoSearch", "Quick Search"), window);
    toolBar->setObjectName(QLatin1String(toolBarName));
    toolBar->addWidget(box);
    window->addToolBar(Qt::TopToolBarArea, toolBar);
    box->show();
}

} // namespace demo
