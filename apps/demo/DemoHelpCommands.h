#pragma once

#include <QCoreApplication>

class DemoCommands;

/// The Help commands: the keyboard reference document, About and About Qt.
class DemoHelpCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoHelpCommands)

public:
    static void registerCommands(DemoCommands& commands);
};
