#pragma once

#include <QString>
#include <QStringList>

namespace demo {

/// The options that choose the window's shell, read before QApplication
/// exists (it would take --style for the name of a Qt style).
struct ShellOptions
{
    bool classic = false;   ///< --classic: a menu bar instead of the ribbon
    bool hasStyle = false;  ///< --style VALUE was given
    int style = -1;         ///< its value, a ui::MainWindow::Style
    QString error;          ///< set when an option could not be read
};

/// Reads --classic and --style VALUE (also --style=VALUE) from the arguments.
ShellOptions parseShellOptions(const QStringList& arguments);

/// Reads the shell options and removes them from argv.
ShellOptions takeShellOptions(int& argc, char** argv);

} // namespace demo
