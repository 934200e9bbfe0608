#pragma once

#include <QCoreApplication>

class DemoCommands;

/// The Edit commands: undo and redo (named after the step they undo), the
/// clipboard, select all, find and replace through the find bar, duplicate
/// line and the two case changes.
class DemoEditCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoEditCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);
};
