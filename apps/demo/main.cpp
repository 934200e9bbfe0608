#include "DemoCommands.h"
#include "DemoFiles.h"
#include "DemoOptions.h"
#include "DemoQuickSearch.h"
#include "DemoScreenshots.h"
#include "DemoShellOptions.h"
#include "DemoTranslations.h"
#include "DemoWindow.h"
#include <tessaro/QuickSearch.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

int main(int argc, char* argv[])
{
    // Taken out before QApplication, which reads --style as a Qt style name.
    demo::ShellOptions shell = demo::takeShellOptions(argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tessaro-demo"));
    QApplication::setOrganizationName(QStringLiteral("Tessaro"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tessaro Demo"));
    QApplication::setApplicationVersion(QStringLiteral(TESSARO_DEMO_VERSION));

    DemoOptions options;
    switch (options.parse(QApplication::arguments())) {
    case DemoOptions::ExitOk:
        QTextStream(stdout) << options.output();
        return 0;
    case DemoOptions::ExitError:
        QTextStream(stderr) << options.output();
        return 2;
    case DemoOptions::Run:
        break;
    }

    if (!shell.error.isEmpty()) {
        QTextStream(stderr) << shell.error << '\n';
        return 2;
    }
    if (!DemoTranslations::install(options.language, &app))
        QTextStream(stderr) << "The library's translation into \"" << options.language << "\" is missing.\n";

    shell.resetLayout = options.resetLayout;
    DemoWindow window(options.settingsFile, nullptr, shell);
    for (const QString& file : qAsConst(options.files))
        window.commands()->files()->openFile(file);
    if (window.documents().isEmpty())
        window.openWelcomeDocument();

    if (!options.screenshotFile.isEmpty()) {
        const QString path = QFileInfo(options.screenshotFile).absoluteFilePath();
        const bool saved = options.searchText.isEmpty()
            ? demo::saveWindowPicture(&window, options.screenshotSize, path)
            : demo::saveQuickSearchPicture(&window, options.screenshotSize, window.quickSearch()->box(),
                                           options.searchText, path);
        if (!saved) {
            QTextStream(stderr) << "Cannot write " << QDir::toNativeSeparators(path) << '\n';
            return 1;
        }
        QTextStream(stdout) << QDir::toNativeSeparators(path) << '\n';
        return 0;
    }

    window.show();
    return app.exec();
}
