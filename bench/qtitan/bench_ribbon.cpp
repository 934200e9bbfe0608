// Cost of the open ribbon against plain tool bars holding the same buttons:
// building, switching pages and relaying out on a resize, and how relayout
// grows with the number of controls on a page.
#include <QtitanRibbon.h>

#include <QAction>
#include <QElapsedTimer>
#include <QLayout>
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

    void relayoutGrowsLinearly()
    {
        // One page of 8 groups with n buttons each, laid out at widths that
        // take every group through its sizes; time per control stays flat.
        const int counts[] = {5, 10, 20, 40};
        double perControl[4] = {};
        double shownPerControl[4] = {};
        for (int k = 0; k < 4; ++k) {
            const int n = counts[k];
            // Children of a window that is laid out but not shown: this times
            // the layout itself, not the repaint regions of moved widgets.
            QWidget window;
            window.resize(1000, 300);
            auto* page = new RibbonPage(&window);
            for (int g = 0; g < GroupsPerPage; ++g)
                fillGroup(page->addGroup(QStringLiteral("Group %1").arg(g)), n);
            auto* bar = new QToolBar(&window);
            for (int i = 0; i < GroupsPerPage * n; ++i) {
                QAction* action = bar->addAction(icon(), QStringLiteral("Command %1").arg(i));
                if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
                    button->setToolButtonStyle(i % n < 2 ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
            }
            page->resize(page->sizeHint());
            bar->resize(bar->sizeHint());
            page->updateLayout();
            QCoreApplication::processEvents();
            const int full = page->sizeHint().width();
            const int barFull = bar->sizeHint().width();
            // Ten widths from the full width down, which takes the groups
            // through their sizes; the page lays out on each resize.
            const double ms = best(11, [page, full] {
                for (int step = 0; step < 10; ++step) {
                    page->resize(full * (10 - step) / 10, page->height());
                    page->updateLayout();
                }
            });
            const double baseline = best(11, [bar, barFull] {
                for (int step = 0; step < 10; ++step) {
                    bar->resize(barFull * (10 - step) / 10, bar->height());
                    bar->layout()->activate();
                }
            });
            const int controls = GroupsPerPage * n;
            perControl[k] = ms * 1000.0 / controls;
            qInfo("layout only x10, %3d controls: ribbon %8.3f ms (%6.2f us/control)   tool bar %8.3f ms   ratio %6.2f",
                  controls, ms, perControl[k], baseline, baseline > 0 ? ms / baseline : 0.0);

            // Shown: the widgets really move (within a 1200 px window).
            window.resize(1200, 300);
            window.show();
            QCoreApplication::processEvents();
            const double shown = best(11, [page] {
                for (int step = 0; step < 10; ++step) {
                    page->resize(1200 * (10 - step) / 10, page->height());
                    QCoreApplication::processEvents();
                }
            });
            const double shownBaseline = best(11, [bar] {
                for (int step = 0; step < 10; ++step) {
                    bar->resize(1200 * (10 - step) / 10, bar->height());
                    QCoreApplication::processEvents();
                }
            });
            shownPerControl[k] = shown * 1000.0 / controls;
            qInfo("shown x10,     %3d controls: ribbon %8.3f ms (%6.2f us/control)   tool bar %8.3f ms   ratio %6.2f",
                  controls, shown, shownPerControl[k], shownBaseline,
                  shownBaseline > 0 ? shown / shownBaseline : 0.0);
        }
        qInfo("cost per control, 320 vs 40 controls: layout only %.2f, shown %.2f (1.0 = linear)",
              perControl[3] / perControl[0], shownPerControl[3] / shownPerControl[0]);
        // Quadratic growth would make this about 8.
        QVERIFY(perControl[3] / perControl[0] < 3.0);
    }
};

QTEST_MAIN(BenchRibbon)
#include "bench_ribbon.moc"
