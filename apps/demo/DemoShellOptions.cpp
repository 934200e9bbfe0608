#include "DemoShellOptions.h"

#include <QByteArray>

namespace demo {

namespace {

bool readStyle(const QString& text, int* style)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (ok)
        *style = value;
    return ok;
}

void setStyle(ShellOptions& options, const QString& value)
{
    options.hasStyle = readStyle(value, &options.style);
    if (!options.hasStyle)
        options.error = QStringLiteral("--style takes a number, not \"%1\"").arg(value);
}

} // namespace

ShellOptions parseShellOptions(const QStringList& arguments)
{
    ShellOptions options;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--classic")) {
            options.classic = true;
        } else if (argument == QLatin1String("--style")) {
            if (i + 1 >= arguments.size()) {
                options.error = QStringLiteral("--style needs a value");
                continue;
            }
            setStyle(options, arguments.at(++i));
        } else if (argument.startsWith(QLatin1String("--style="))) {
            setStyle(options, argument.mid(8));
        }
    }
    return options;
}

ShellOptions takeShellOptions(int& argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const ShellOptions options = parseShellOptions(arguments);

    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--classic" || argument.startsWith("--style="))
            continue;
        if (argument == "--style") {
            ++i; // and its value
            continue;
        }
        argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
    return options;
}

} // namespace demo
