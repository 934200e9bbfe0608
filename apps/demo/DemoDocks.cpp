#include "DemoDocks.h"

#include <QDockWidget>
#include <QHeaderView>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTime>
#include <QTreeWidget>

namespace demo {

namespace {

QDockWidget* makeDock(QMainWindow* window, const QString& title, const QString& name, QWidget* content)
{
    auto* dock = new QDockWidget(title, window);
    dock->setObjectName(name);
    dock->setWidget(content);
    return dock;
}

QTreeWidget* makeOutline()
{
    auto* tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    const QStringList chapters{"Introduction", "Commands", "Ribbon", "Customization"};
    for (const QString& chapter : chapters) {
        auto* item = new QTreeWidgetItem(tree, {chapter});
        for (int i = 1; i <= 2; ++i)
            new QTreeWidgetItem(item, {QStringLiteral("%1.%2").arg(chapter.left(1)).arg(i)});
    }
    tree->expandToDepth(0);
    return tree;
}

QTableWidget* makeProperties()
{
    const QList<QPair<QString, QString>> rows{
        {"Name", "Document 1"}, {"Author", "Tessaro"}, {"Pages", "3"}, {"Modified", "no"}};
    auto* table = new QTableWidget(rows.size(), 2);
    table->setHorizontalHeaderLabels({"Property", "Value"});
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    for (int i = 0; i < rows.size(); ++i) {
        table->setItem(i, 0, new QTableWidgetItem(rows.at(i).first));
        table->setItem(i, 1, new QTableWidgetItem(rows.at(i).second));
    }
    return table;
}

} // namespace

DemoDocks createDocks(QMainWindow* window)
{
    DemoDocks docks;
    docks.outline = makeDock(window, "Outline", "outlineDock", makeOutline());
    docks.properties = makeDock(window, "Properties", "propertiesDock", makeProperties());
    docks.logView = new QPlainTextEdit;
    docks.logView->setReadOnly(true);
    docks.log = makeDock(window, "Log", "logDock", docks.logView);
    window->addDockWidget(Qt::LeftDockWidgetArea, docks.outline);
    window->addDockWidget(Qt::RightDockWidgetArea, docks.properties);
    window->addDockWidget(Qt::BottomDockWidgetArea, docks.log);
    return docks;
}

void appendLog(const DemoDocks& docks, const QString& line)
{
    if (docks.logView)
        docks.logView->appendPlainText(QTime::currentTime().toString("HH:mm:ss  ") + line);
}

} // namespace demo
