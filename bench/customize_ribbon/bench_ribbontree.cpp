// The ribbon tree over a large ribbon (20 pages x 10 groups x 10 commands),
// built and fully expanded in a QTreeView, beside a QStandardItemModel tree of
// the same shape and looks filled in the same run.
#include <tessaro/Tessaro.h>

#include "BenchTiming.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

#include <memory>

using bench::bestOf;

namespace {

constexpr int pageCount = 20;
constexpr int groupsPerPage = 10;
constexpr int commandsPerGroup = 10;

QIcon colorIcon(int hue)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor::fromHsv(hue % 360, 180, 220));
    return QIcon(pixmap);
}

struct HostRibbon
{
    QObject host;
    QList<QIcon> icons;
    ui::RibbonBar bar{QStringLiteral("bench")};

    HostRibbon()
    {
        for (int i = 0; i < 36; ++i)
            icons << colorIcon(i * 10);
        int id = 0;
        for (int p = 0; p < pageCount; ++p) {
            Qtitan::RibbonPage* page = bar.addPage(QStringLiteral("Page &%1").arg(p));
            for (int g = 0; g < groupsPerPage; ++g) {
                Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Group %1.%2").arg(p).arg(g));
                for (int c = 0; c < commandsPerGroup; ++c, ++id) {
                    auto* action = new QAction(icons.at(id % icons.size()), QStringLiteral("Command &%1").arg(id), &host);
                    group->addAction(action, c < 2 ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
                }
            }
        }
    }
};

// The same tree with the same looks: bold centred pages on the grey
// gradient, bold groups, commands with their icons.
QStandardItemModel* makeStandardModel(const HostRibbon& ribbon, QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    QFont bold;
    bold.setWeight(QFont::Bold);
    QLinearGradient gradient(0, 0, 0, 30);
    gradient.setColorAt(0.0, Qt::white);
    gradient.setColorAt(0.8, QColor(192, 192, 192));
    gradient.setColorAt(1.0, Qt::white);
    const QBrush background(gradient);
    int id = 0;
    for (int p = 0; p < pageCount; ++p) {
        auto* page = new QStandardItem(QStringLiteral("Page %1").arg(p));
        page->setFont(bold);
        page->setTextAlignment(Qt::AlignCenter);
        page->setBackground(background);
        for (int g = 0; g < groupsPerPage; ++g) {
            auto* group = new QStandardItem(QStringLiteral("Group %1.%2").arg(p).arg(g));
            group->setFont(bold);
            for (int c = 0; c < commandsPerGroup; ++c, ++id) {
                auto* command = new QStandardItem(ribbon.icons.at(id % ribbon.icons.size()),
                                                  QStringLiteral("Command %1").arg(id));
                command->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
                group->appendRow(command);
            }
            page->appendRow(group);
        }
        model->appendRow(page);
    }
    return model;
}

int visibleRows(QTreeView& view)
{
    int rows = 0;
    for (QModelIndex index = view.model()->index(0, 0); index.isValid(); index = view.indexBelow(index))
        ++rows;
    return rows;
}

void showExpanded(QTreeView& view)
{
    view.expandAll();
    view.resize(400, 700);
    view.show();
    view.viewport()->repaint();
}

} // namespace

class BenchRibbonTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void buildAndExpand();
    void buildAndExpandQBenchmark_data();
    void buildAndExpandQBenchmark();
    void editorWidget();

private:
    std::unique_ptr<HostRibbon> m_ribbon;
};

void BenchRibbonTree::initTestCase()
{
    m_ribbon = std::make_unique<HostRibbon>();
    const int rows = pageCount * (1 + groupsPerPage * (1 + commandsPerGroup));
    QTreeView tree;
    auto* model = new RibbonTreeModel(&m_ribbon->bar, &tree);
    tree.setModel(model);
    showExpanded(tree);
    // Expanding lays every row out: the timed steps make every item.
    const QModelIndex lastPage = model->index(pageCount - 1, 0);
    QCOMPARE(model->item(model->index(groupsPerPage - 1, 0, lastPage))->listedChildCount(), commandsPerGroup);
    QTreeView standard;
    standard.setModel(makeStandardModel(*m_ribbon, &standard));
    showExpanded(standard);
    QCOMPARE(visibleRows(tree), rows);
    QCOMPARE(visibleRows(standard), rows);
}

void BenchRibbonTree::buildAndExpand()
{
    auto viaRibbonTree = [this] {
        QTreeView view;
        view.setModel(new RibbonTreeModel(&m_ribbon->bar, &view));
        showExpanded(view);
    };
    auto baseline = [this] {
        QTreeView view;
        view.setModel(makeStandardModel(*m_ribbon, &view));
        showExpanded(view);
    };
    const double treeNs = bestOf(7, 1, viaRibbonTree);
    const double baselineNs = bestOf(7, 1, baseline);
    qInfo("build + expand 2,000 commands: RibbonTreeModel %.1f ms, QStandardItemModel %.1f ms, ratio %.2f",
          treeNs / 1e6, baselineNs / 1e6, treeNs / baselineNs);
}

void BenchRibbonTree::buildAndExpandQBenchmark_data()
{
    QTest::addColumn<bool>("baseline");
    QTest::newRow("RibbonTreeModel") << false;
    QTest::newRow("QStandardItemModel") << true;
}

void BenchRibbonTree::buildAndExpandQBenchmark()
{
    // The same steps through QBENCHMARK, for QtTest's own report.
    QFETCH(bool, baseline);
    QBENCHMARK {
        QTreeView view;
        if (baseline)
            view.setModel(makeStandardModel(*m_ribbon, &view));
        else
            view.setModel(new RibbonTreeModel(&m_ribbon->bar, &view));
        showExpanded(view);
    }
}

void BenchRibbonTree::editorWidget()
{
    // Loading the ribbon into the shown editor page (a model reset), beside
    // a shown plain view given a freshly filled QStandardItemModel.
    QRibbonTreeWidget editor;
    editor.resize(700, 700);
    editor.show();
    auto* editorView = editor.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    auto load = [&] {
        editor.updateModel(&m_ribbon->bar);
        editorView->viewport()->repaint();
    };
    QTreeView view;
    view.resize(400, 700);
    view.show();
    auto baseline = [&] {
        QAbstractItemModel* old = view.model();
        view.setModel(makeStandardModel(*m_ribbon, &view));
        delete old;
        view.expandAll();
        view.viewport()->repaint();
    };
    const double editorNs = bestOf(7, 1, load);
    const double baselineNs = bestOf(7, 1, baseline);
    qInfo("reload into a shown view: QRibbonTreeWidget::updateModel %.1f ms, QStandardItemModel %.1f ms, ratio %.2f",
          editorNs / 1e6, baselineNs / 1e6, editorNs / baselineNs);
}

QTEST_MAIN(BenchRibbonTree)
#include "bench_ribbontree.moc"
