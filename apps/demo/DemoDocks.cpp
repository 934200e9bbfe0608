#include "DemoDocks.h"

#include "DemoOutline.h"
#include "DemoProperties.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTime>

namespace demo {

namespace {

QDockWidget* makeDock(QMainWindow* window, const QString& title, const QString& name, QWidget* content)
{
    auto* dock = new QDockWidget(title, window);
    dock->setObjectName(name);
    dock->setWidget(content);
    return dock;
}

} // namespace

DemoDocks createDocks(QMainWindow* window)
{
    DemoDocks docks;
    docks.outlineView = new DemoOutline;
    docks.outline = makeDock(window, "Outline", "outlineDock", docks.outlineView);
    docks.propertiesView = new DemoProperties;
    docks.properties = makeDock(window, "Properties", "propertiesDock", docks.propertiesView);
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
