#pragma once

#include <QCoreApplication>

class DemoCommands;

/// The File commands: new, open, the recent files range, save, save as, save
/// all, revert, export, properties, close, close all and exit.
class DemoFileCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoFileCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);
};
