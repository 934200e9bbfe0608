#pragma once

#include <QCoreApplication>
#include <QList>

class DemoCommands;

/// The View commands: zoom (in, out, actual size and the zoom levels range),
/// word wrap, the ruler, read only, the two tool bars, the status bar, full
/// screen and stepping through the documents.
class DemoViewCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoViewCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);

    /// The zoom levels of the range ViewZoomFirst..ViewZoomLast, in id order.
    static QList<int> zoomLevels();
};
