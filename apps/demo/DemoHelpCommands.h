#pragma once

#include <QCoreApplication>

class DemoCommands;

/// The Help commands: the keyboard reference document, About and About Qt.
class DemoHelpCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoHelpCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);
};
