#pragma once

#include <QCommandLineParser>
#include <QSize>
#include <QStringList>

/// The demo's command line. Add an option by declaring it in the constructor
/// and reading it in parse().
class DemoOptions
{
public:
    DemoOptions();

    enum Result { Run, ExitOk, ExitError };
    /// Parses \a arguments (program name first). On ExitOk / ExitError,
    /// output() holds the help text or the error to print.
    Result parse(const QStringList& arguments);
    QString output() const { return m_output; }

    /// Where to save a picture of the main window; empty to run normally.
    QString screenshotFile;
    QSize screenshotSize{1400, 900};
    /// With a screenshot: text typed into the quick search box, pictured with its popup.
    QString searchText;
    /// Settings file to use instead of the one in the user's config folder.
    QString settingsFile;
    /// --reset-layout: forget what the user arranged in earlier runs.
    bool resetLayout = false;
    /// --lang: the language of the window, "en" (the default) or "ru".
    QString language = QStringLiteral("en");
    /// Documents to open at start.
    QStringList files;

    QCommandLineParser& parser() { return m_parser; }

private:
    QCommandLineParser m_parser;
    QCommandLineOption m_help;
    QCommandLineOption m_screenshot;
    QCommandLineOption m_size;
    QCommandLineOption m_search;
    QCommandLineOption m_settings;
    QCommandLineOption m_resetLayout;
    QCommandLineOption m_language;
    QString m_output;
};
