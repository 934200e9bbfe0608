#pragma once

#include <QCoreApplication>

class DemoCommands;

/// The Tools commands: word count, sort lines, trim trailing spaces, auto
/// save and the keyboard shortcuts window.
class DemoToolsCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoToolsCommands)

public:
    static void registerCommands(DemoCommands& commands);
};
