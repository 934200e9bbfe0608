#pragma once

#include <QCoreApplication>
#include <QString>

/// The welcome document shown when the demo starts without files: what the
/// window is and a few things to try.
class DemoWelcome
{
    Q_DECLARE_TR_FUNCTIONS(DemoWelcome)

public:
    /// The document's title.
    static QString title();
    /// The document's text.
    static QString html();
};
