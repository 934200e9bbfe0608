#pragma once

#include <QString>
#include <QStringList>

class QObject;

/// The demo speaks one language. In English (the default) it installs the
/// library's English translation, which is compiled into the demo, and Qt's
/// own translation where the system has one; in Russian the library shows its
/// original texts, with Qt's Russian translation where installed.
class DemoTranslations
{
public:
    /// The languages the demo offers: "en" and "ru".
    static QStringList languages();
    /// Installs the translators for \a language as children of \a owner
    /// (deleting \a owner uninstalls them) and makes the language the default
    /// locale, so that inserted dates read the same. False when the library's
    /// translation into \a language could not be loaded.
    static bool install(const QString& language, QObject* owner);
};
