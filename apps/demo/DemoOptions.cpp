#include "DemoOptions.h"

#include "DemoTranslations.h"

#include <QCoreApplication>
#include <QRegularExpression>

DemoOptions::DemoOptions()
    : m_help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help and exit."))
    , m_screenshot(QStringLiteral("screenshot"),
                   QStringLiteral("Render the main window to the PNG <file>, print its path and exit."),
                   QStringLiteral("file"))
    , m_size(QStringLiteral("size"), QStringLiteral("Window size for --screenshot (default 1400x900)."),
             QStringLiteral("WxH"))
    , m_search(QStringLiteral("search"),
               QStringLiteral("With --screenshot: type <text> into the quick search box and picture the whole "
                              "screen with the result popup."),
               QStringLiteral("text"))
    , m_settings(QStringLiteral("settings"),
                 QStringLiteral("Use <file> for the settings instead of the user's config folder."),
                 QStringLiteral("file"))
    , m_resetLayout(QStringLiteral("reset-layout"),
                    QStringLiteral("Forget what was arranged in earlier runs (shortcuts, tool bars, panels, style, ribbon, quick "
                                   "access bar, window size) and start as built."))
    , m_language(QStringLiteral("lang"),
                 QStringLiteral("The language of the window: en (the default) or ru, which shows the library's "
                                "original texts."),
                 QStringLiteral("language"), QStringLiteral("en"))
{
    m_parser.setApplicationDescription(
        QStringLiteral("Sample host of the Tessaro library: a small rich-text editor whose commands, menus and "
                       "settings are built on Tessaro."));
    m_parser.addOption(m_help);
    m_parser.addOption(m_screenshot);
    m_parser.addOption(m_size);
    m_parser.addOption(m_search);
    m_parser.addOption(m_settings);
    m_parser.addOption(m_resetLayout);
    m_parser.addOption(m_language);
    // Read by main() before QApplication; listed here for --help.
    m_parser.addOption(QCommandLineOption(QStringLiteral("classic"),
                                          QStringLiteral("Show a classic menu bar instead of the ribbon.")));
    m_parser.addOption(QCommandLineOption(QStringLiteral("style"),
                                          QStringLiteral("Start in style <value>: -1 plain Qt, 0 Windows 7, "
                                                         "10-13 Office 2007, 20-22 Office 2010, 30-32 Office 2013, "
                                                         "40-43 Office 2016, 50-53 Photoshop."),
                                          QStringLiteral("value")));
    m_parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Documents to open."),
                                   QStringLiteral("[files...]"));
}

DemoOptions::Result DemoOptions::parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments)) {
        m_output = m_parser.errorText() + QLatin1Char('\n');
        return ExitError;
    }
    if (m_parser.isSet(m_help)) {
        m_output = m_parser.helpText();
        return ExitOk;
    }
    screenshotFile = m_parser.value(m_screenshot);
    searchText = m_parser.value(m_search);
    settingsFile = m_parser.value(m_settings);
    resetLayout = m_parser.isSet(m_resetLayout);
    files = m_parser.positionalArguments();
    language = m_parser.value(m_language);
    if (!DemoTranslations::languages().contains(language)) {
        m_output = QStringLiteral("Invalid --lang '%1': expected %2.\n")
                       .arg(language, DemoTranslations::languages().join(QStringLiteral(" or ")));
        return ExitError;
    }
    if (m_parser.isSet(m_size)) {
        static const QRegularExpression pattern(QStringLiteral("^(\\d+)x(\\d+)$"));
        const QRegularExpressionMatch match = pattern.match(m_parser.value(m_size));
        const QSize size = match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
        if (size.width() < 200 || size.height() < 150) {
            m_output = QStringLiteral("Invalid --size '%1': expected WxH, at least 200x150.\n").arg(m_parser.value(m_size));
            return ExitError;
        }
        screenshotSize = size;
    }
    return Run;
}
