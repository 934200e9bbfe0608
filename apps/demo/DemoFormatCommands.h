#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>

class DemoCommands;

/// The Format commands: the character formats (bold ... highlight), the
/// paragraph alignments and indents, grow and shrink font, clear formatting,
/// and the font size and text colour ranges.
class DemoFormatCommands
{
    Q_DECLARE_TR_FUNCTIONS(DemoFormatCommands)

public:
    /// Registers the category's commands in \a commands with their run and update handlers.
    static void registerCommands(DemoCommands& commands);

    /// The point sizes of the range FormatSizeFirst..FormatSizeLast, in id order.
    static QList<int> fontSizes();
    /// The names and colours of the range FormatColorFirst..FormatColorLast;
    /// the first stands for the document's own text colour.
    static QList<QPair<QString, QColor>> textColors();
};
