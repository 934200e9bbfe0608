#pragma once

#include <QString>
#include <QStringList>

namespace demo {

/// How the window starts: its shell and style, read before QApplication exists
/// (it would take --style for the name of a Qt style), and whether it forgets
/// what the user arranged.
struct ShellOptions
{
    bool classic = false;   ///< --classic: a menu bar instead of the ribbon
    bool hasStyle = false;  ///< --style VALUE was given
    int style = -1;         ///< its value, a ui::MainWindow::Style
    bool resetLayout = false; ///< --reset-layout: start as built (read with the other options, in main)
    QString error;          ///< set when an option could not be read
};

/// Reads --classic and --style VALUE (also --style=VALUE) from the arguments.
ShellOptions parseShellOptions(const QStringList& arguments);

/// Reads the shell options and removes them from argv.
ShellOptions takeShellOptions(int& argc, char** argv);

} // namespace demo
