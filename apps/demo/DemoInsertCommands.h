#pragma once

#include <QChar>
#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>

class DemoCommands;

/// The Insert commands: date, time, table, image placeholder, horizontal
/// line, the two lists, link and the symbols range.
class DemoInsertCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoInsertCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);

    /// The names and characters of the range InsertSymbolFirst..InsertSymbolLast, in id order.
    static QList<QPair<QString, QChar>> symbols();
};
