// The command tree over a large host menu, beside a QStandardItemModel tree of
// the same shape shown in a plain QTreeView.
#include <tessaro/MenuTreeWidget.h>
#include <tessaro/menuTreeModel.h>

#include "BenchTiming.h"

#include <QAction>
#include <QApplication>
#include <QMap>
#include <QMenu>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace {

constexpr int categoryCount = 50;
constexpr int commandsPerCategory = 100;

std::unique_ptr<QMenu> makeMenu()
{
    auto root = std::make_unique<QMenu>(QStringLiteral("Commands"));
    int id = 1;
    for (int c = 0; c < categoryCount; ++c) {
        QMenu* category = root->addMenu(QStringLiteral("&Category %1").arg(c));
        for (int i = 0; i < commandsPerCategory; ++i, ++id) {
            QAction* action = category->addAction(QStringLiteral("Command &%1").arg(id));
            action->setData(id);
        }
    }
    return root;
}

QStandardItemModel* makeStandardModel(QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({QStringLiteral("Commands")});
    int id = 1;
    for (int c = 0; c < categoryCount; ++c) {
        auto* category = new QStandardItem(QStringLiteral("Category %1").arg(c));
        QFont bold;
        bold.setWeight(75);
        category->setFont(bold);
        category->setFlags(Qt::NoItemFlags);
        for (int i = 0; i < commandsPerCategory; ++i, ++id) {
            auto* command = new QStandardItem(QStringLiteral("Command %1").arg(id));
            command->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            category->appendRow(command);
        }
        model->appendRow(category);
    }
    return model;
}

// Every 50th command, in view order.
QList<QModelIndex> sampledCommands(const QAbstractItemModel* model)
{
    QList<QModelIndex> indexes;
    int n = 0;
    for (int c = 0; c < model->rowCount(); ++c) {
        const QModelIndex category = model->index(c, 0);
        for (int i = 0; i < model->rowCount(category); ++i, ++n) {
            if (n % 50 == 0)
                indexes << model->index(i, 0, category);
        }
    }
    return indexes;
}

// Per-iteration thread CPU times of both variants (the machine may be shared),
// to print each figure as a ratio.
QMap<QString, QMap<QString, double>> timings;

#define TIMED_BENCHMARK(name, variant, body)                                    \
    do {                                                                        \
        int iterations = 0;                                                     \
        const qint64 start = bench::threadNs();                                 \
        QBENCHMARK {                                                            \
            body;                                                               \
            ++iterations;                                                       \
        }                                                                       \
        timings[name][variant] = double(bench::threadNs() - start) / 1e6 / qMax(1, iterations); \
    } while (false)

} // namespace

class BenchMenuTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void build_data();
    void build();
    void scroll_data();
    void scroll();
    void select_data();
    void select();
    void cleanupTestCase();

private:
    std::unique_ptr<QMenu> m_menu;
};

void BenchMenuTree::initTestCase()
{
    m_menu = makeMenu();
}

void BenchMenuTree::build_data()
{
    QTest::addColumn<bool>("baseline");
    QTest::newRow("MenuTreeWidget") << false;
    QTest::newRow("QStandardItemModel") << true;
}

void BenchMenuTree::build()
{
    QFETCH(bool, baseline);
    if (baseline) {
        TIMED_BENCHMARK("build", "baseline", {
            QTreeView view;
            view.setModel(makeStandardModel(&view));
            view.expandAll();
            view.resize(300, 600);
            view.show();
            view.viewport()->repaint();
        });
    } else {
        TIMED_BENCHMARK("build", "tree", {
            MenuTreeWidget tree(nullptr, m_menu.get());
            tree.resize(300, 600);
            tree.show();
            tree.viewport()->repaint();
        });
    }
}

void BenchMenuTree::scroll_data()
{
    build_data();
}

void BenchMenuTree::scroll()
{
    QFETCH(bool, baseline);
    std::unique_ptr<QTreeView> view;
    if (baseline) {
        view = std::make_unique<QTreeView>();
        view->setModel(makeStandardModel(view.get()));
        view->expandAll();
    } else {
        view = std::make_unique<MenuTreeWidget>(nullptr, m_menu.get());
    }
    view->resize(300, 600);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    const QList<QModelIndex> targets = sampledCommands(view->model());
    QCOMPARE(targets.size(), categoryCount * commandsPerCategory / 50);
    TIMED_BENCHMARK("scroll", baseline ? "baseline" : "tree", {
        for (const QModelIndex& index : targets) {
            view->scrollTo(index, QAbstractItemView::PositionAtCenter);
            view->viewport()->repaint();
        }
    });
}

void BenchMenuTree::select_data()
{
    build_data();
}

void BenchMenuTree::select()
{
    QFETCH(bool, baseline);
    std::unique_ptr<QTreeView> view;
    if (baseline) {
        view = std::make_unique<QTreeView>();
        view->setModel(makeStandardModel(view.get()));
        view->expandAll();
    } else {
        view = std::make_unique<MenuTreeWidget>(nullptr, m_menu.get());
    }
    view->resize(300, 600);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    const QList<QModelIndex> targets = sampledCommands(view->model());
    int reported = 0;
    if (auto* tree = qobject_cast<MenuTreeWidget*>(view.get()))
        connect(tree, &MenuTreeWidget::currentActionChanged, [&reported](QAction*) { ++reported; });
    TIMED_BENCHMARK("select", baseline ? "baseline" : "tree", {
        for (const QModelIndex& index : targets) {
            view->setCurrentIndex(index);
            view->viewport()->repaint();
        }
    });
    QVERIFY(baseline || reported > 0);
}

void BenchMenuTree::cleanupTestCase()
{
    for (auto it = timings.cbegin(); it != timings.cend(); ++it) {
        const double tree = it.value().value(QStringLiteral("tree"));
        const double base = it.value().value(QStringLiteral("baseline"));
        qInfo("%-7s MenuTreeWidget %9.3f ms   QStandardItemModel %9.3f ms   ratio %6.2f",
              qPrintable(it.key()), tree, base, base > 0 ? tree / base : 0.0);
    }
}

QTEST_MAIN(BenchMenuTree)
#include "bench_menutree.moc"
