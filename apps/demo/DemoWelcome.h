#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

/// The welcome document shown when the demo starts without files: what the
/// window is and a few things to try, with the way to each command as the
/// window shows it (ribbon tab › group › button, or menu › entry).
class DemoWelcome
{
    Q_DECLARE_TR_FUNCTIONS(DemoWelcome)

public:
    /// The document's title.
    static QString title();
    /// The document's text for the ribbon, or for the classic menu bar.
    static QString html(bool classic);
    /// The commands the text points to, each as the titles on the way to it.
    static QList<QStringList> paths(bool classic);
};
