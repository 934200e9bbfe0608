#pragma once

#include <QList>

class DemoOutline;
class DemoProperties;
class QDockWidget;
class QMainWindow;
class QPlainTextEdit;

namespace demo {

/// The demo's dock panels, created in this order: outline, properties, log.
struct DemoDocks
{
    QDockWidget* outline = nullptr;
    QDockWidget* properties = nullptr;
    QDockWidget* log = nullptr;
    DemoOutline* outlineView = nullptr;
    DemoProperties* propertiesView = nullptr;
    QPlainTextEdit* logView = nullptr;

    QList<QDockWidget*> all() const { return {outline, properties, log}; }
};

/// Creates the three panels and places them around the window's centre.
DemoDocks createDocks(QMainWindow* window);

/// Appends a line to the log panel.
void appendLog(const DemoDocks& docks, const QString& line);

} // namespace demo
