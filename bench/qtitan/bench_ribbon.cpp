// Cost of the open ribbon against plain tool bars holding the same buttons:
// building, switching pages and relaying out on a resize, and how relayout
// grows with the number of controls on a page.
#include <QtitanRibbon.h>

#include "BenchTiming.h"

#include <QAction>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QPainter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

#include <algorithm>
#include <functional>

using namespace Qtitan;

namespace {

const int Pages = 10;
const int GroupsPerPage = 8;
const int ButtonsPerGroup = 10;

QIcon icon()
{
    static QIcon cached;
    if (cached.isNull()) {
        for (int size : {16, 32}) {
            QPixmap pm(size, size);
            pm.fill(QColor(60, 120, 200));
            cached.addPixmap(pm);
        }
    }
    return cached;
}

// Two large buttons, then small ones with labels, as a typical group has.
void fillGroup(RibbonGroup* group, int buttons)
{
    for (int b = 0; b < buttons; ++b) {
        auto* action = new QAction(icon(), QStringLiteral("Command %1").arg(b), group);
        group->addAction(action, b < 2 ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
    }
}

RibbonBar* buildRibbon(QWidget* parent)
{
    auto* bar = new RibbonBar(parent);
    for (int p = 0; p < Pages; ++p) {
        RibbonPage* page = bar->addPage(QStringLiteral("Page %1").arg(p));
        for (int g = 0; g < GroupsPerPage; ++g)
            fillGroup(page->addGroup(QStringLiteral("Group %1").arg(g)), ButtonsPerGroup);
    }
    return bar;
}

// A tool bar of n buttons, two of each ten with the label under the icon.
QToolBar* buildToolBar(int n, QWidget* parent)
{
    auto* bar = new QToolBar(parent);
    for (int i = 0; i < n; ++i) {
        QAction* action = bar->addAction(icon(), QStringLiteral("Command %1").arg(i % ButtonsPerGroup));
        if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
            button->setToolButtonStyle(i % ButtonsPerGroup < 2 ? Qt::ToolButtonTextUnderIcon
                                                               : Qt::ToolButtonTextBesideIcon);
    }
    return bar;
}

QStackedWidget* buildToolBars(QWidget* parent)
{
    auto* stack = new QStackedWidget(parent);
    for (int p = 0; p < Pages; ++p) {
        auto* bar = new QToolBar(stack);
        for (int i = 0; i < GroupsPerPage * ButtonsPerGroup; ++i) {
            QAction* action = bar->addAction(icon(), QStringLiteral("Command %1").arg(i));
            if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
                button->setToolButtonStyle(i % ButtonsPerGroup < 2 ? Qt::ToolButtonTextUnderIcon
                                                                   : Qt::ToolButtonTextBesideIcon);
        }
        stack->addWidget(bar);
    }
    return stack;
}

// Best of a few runs, in milliseconds.
double best(int runs, const std::function<void()>& body)
{
    double result = 1e300;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        body();
        result = std::min(result, timer.nsecsElapsed() / 1e6);
    }
    return result;
}

void report(const char* what, double ribbon, double baseline)
{
    qInfo("%-34s ribbon %9.3f ms   tool bars %9.3f ms   ratio %6.2f", what, ribbon, baseline,
          baseline > 0 ? ribbon / baseline : 0.0);
}

} // namespace

class BenchRibbon : public QObject
{
    Q_OBJECT

private slots:
    void build()
    {
        const double ribbon = best(3, [] {
            QMainWindow window;
            RibbonBar* bar = buildRibbon(&window);
            window.setMenuWidget(bar);
            window.resize(1600, 600);
            window.show();
            QCoreApplication::processEvents();
        });
        const double baseline = best(3, [] {
            QMainWindow window;
            window.setCentralWidget(buildToolBars(&window));
            window.resize(1600, 600);
            window.show();
            QCoreApplication::processEvents();
        });
        report("build 10x8x10 and show", ribbon, baseline);
    }

    void buildRibbonOnly()
    {
        QBENCHMARK {
            QWidget holder;
            buildRibbon(&holder);
        }
    }

    void switchPages()
    {
        QMainWindow window;
        RibbonBar* bar = buildRibbon(&window);
        window.setMenuWidget(bar);
        window.resize(1600, 600);
        window.show();
        QCoreApplication::processEvents();
        QMainWindow other;
        QStackedWidget* stack = buildToolBars(&other);
        other.setCentralWidget(stack);
        other.resize(1600, 600);
        other.show();
        QCoreApplication::processEvents();
        // Each page once, so the first visit (its first layout) is included.
        const double ribbon = best(3, [bar] {
            for (int p = 0; p < Pages; ++p) {
                bar->setCurrentPageIndex(p);
                QCoreApplication::processEvents();
                bar->page(p)->grab();
            }
        });
        const double baseline = best(3, [stack] {
            for (int p = 0; p < Pages; ++p) {
                stack->setCurrentIndex(p);
                QCoreApplication::processEvents();
                stack->currentWidget()->grab();
            }
        });
        report("switch through 10 pages (painted)", ribbon, baseline);
    }

    void relayoutOnResize()
    {
        QMainWindow window;
        RibbonBar* bar = buildRibbon(&window);
        window.setMenuWidget(bar);
        window.resize(1600, 600);
        window.show();
        QCoreApplication::processEvents();
        QMainWindow other;
        QStackedWidget* stack = buildToolBars(&other);
        other.setCentralWidget(stack);
        other.resize(1600, 600);
        other.show();
        QCoreApplication::processEvents();
        const int widths[] = {1600, 1200, 900, 700, 500, 700, 900, 1200};
        const double ribbon = best(5, [&] {
            for (int w : widths) {
                window.resize(w, 600);
                QCoreApplication::processEvents();
            }
        });
        const double baseline = best(5, [&] {
            for (int w : widths) {
                other.resize(w, 600);
                QCoreApplication::processEvents();
            }
        });
        report("resize window through 8 widths", ribbon, baseline);
    }

    void resizeRibbonWindow()
    {
        QMainWindow window;
        window.setMenuWidget(buildRibbon(&window));
        window.resize(1600, 600);
        window.show();
        QCoreApplication::processEvents();
        const int widths[] = {1600, 1200, 900, 700, 500, 700, 900, 1200};
        QBENCHMARK {
            for (int w : widths) {
                window.resize(w, 600);
                QCoreApplication::processEvents();
            }
        }
    }

    void relayoutOfOnePageGrowsLinearly()
    {
        // One page of n buttons in groups of ten (two large, eight small)
        // beside a tool bar of the same n buttons, both resized through the
        // same fractions of their full width: down to 40 % (groups collapse,
        // tool bar buttons go into the extension menu) and back. The ribbon bar
        // holding the page and the tool bar are each in a shown window as wide
        // as the bar at full width; a step is the resize of the bar, the events
        // it posts and a repaint of the window. The windows keep their size, so
        // the window system's backing store (reallocated whenever a window
        // changes size) is left out. CPU time of this thread, best of several
        // rounds.
        const int counts[] = {20, 40, 80, 160};
        const int percents[] = {100, 90, 80, 70, 60, 50, 40, 50, 60, 70, 80, 90};
        const int steps = int(sizeof(percents) / sizeof(percents[0]));
        double perButton[4] = {};
        for (int k = 0; k < 4; ++k) {
            const int n = counts[k];
            const int groups = n / ButtonsPerGroup;

            QWidget ribbonWindow;
            auto* bar = new RibbonBar(&ribbonWindow);
            RibbonPage* page = bar->addPage(QStringLiteral("Page"));
            for (int g = 0; g < groups; ++g)
                fillGroup(page->addGroup(QStringLiteral("Group %1").arg(g)), ButtonsPerGroup);
            QWidget toolBarWindow;
            QToolBar* toolBar = buildToolBar(n, &toolBarWindow);
            const int toolBarFull = toolBar->sizeHint().width();
            // The bar's full width: the page's full width and the bar's margins around it.
            bar->resize(1000, bar->sizeHint().height());
            const int barFull = page->sizeHint().width() + bar->width() - page->width();
            // Each window holds its bar at full width, so that all of it is painted.
            ribbonWindow.resize(barFull, 300);
            toolBarWindow.resize(toolBarFull, 300);
            for (QWidget* window : {&ribbonWindow, &toolBarWindow}) {
                window->show();
                QVERIFY(QTest::qWaitForWindowExposed(window));
            }
            bar->resize(barFull, bar->height());
            toolBar->resize(toolBarFull, toolBar->sizeHint().height());
            QCoreApplication::processEvents();
            auto sweep = [&](QWidget* window, QWidget* widget, int full) {
                for (int percent : percents) {
                    widget->resize(full * percent / 100, widget->height());
                    QCoreApplication::sendPostedEvents();
                    window->repaint();
                }
            };
            const double barNs = bench::bestOf(9, 3, [&] { sweep(&ribbonWindow, bar, barFull); });
            const double toolBarNs = bench::bestOf(9, 3, [&] { sweep(&toolBarWindow, toolBar, toolBarFull); });
            // Both really laid out at the narrowest width: the page's groups fit
            // into it, and the tool bar put some of its buttons away.
            bar->resize(barFull * 40 / 100, bar->height());
            toolBar->resize(toolBarFull * 40 / 100, toolBar->height());
            QCoreApplication::sendPostedEvents();
            QVERIFY(page->groups().last()->geometry().right() < page->width());
            QVERIFY(!toolBar->widgetForAction(toolBar->actions().at(n - 1))->isVisible());

            perButton[k] = barNs / steps / n;
            qInfo("%3d buttons, one resize step: ribbon %7.1f us (%6.2f us/button)   tool bar %7.1f us (%6.2f us/button)"
                  "   ratio %5.2f",
                  n, barNs / steps / 1e3, perButton[k] / 1e3, toolBarNs / steps / 1e3, toolBarNs / steps / n / 1e3,
                  barNs / toolBarNs);
        }
        qInfo("ribbon cost per button, 160 vs 20 buttons: %.2f (1.0 = linear)", perButton[3] / perButton[0]);
        // Quadratic growth would make this about 8.
        QVERIFY(perButton[3] / perButton[0] < 3.0);
    }
};

QTEST_MAIN(BenchRibbon)
#include "bench_ribbon.moc"
