#pragma once

#include <QCoreApplication>

class DemoCommands;

/// The Tools commands: word count, sort lines, trim trailing spaces, auto
/// save, the keyboard shortcuts window and the Customize window.
class DemoToolsCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoToolsCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);
};
