#include "DemoTranslations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

// The library's texts are Russian; every other language needs its translation.
const QString originalLanguage = QStringLiteral("ru");

bool installTranslator(const QString& name, const QString& directory, QObject* owner)
{
    auto* translator = new QTranslator(owner);
    if (!translator->load(name, directory) || !QCoreApplication::installTranslator(translator)) {
        delete translator;
        return false;
    }
    return true;
}

} // namespace

QStringList DemoTranslations::languages()
{
    return {QStringLiteral("en"), originalLanguage};
}

bool DemoTranslations::install(const QString& language, QObject* owner)
{
    QLocale::setDefault(QLocale(language));
    // Qt's own dialogs and buttons; not every system ships this file.
    installTranslator(QStringLiteral("qtbase_") + language, QLibraryInfo::location(QLibraryInfo::TranslationsPath),
                      owner);
    if (language == originalLanguage)
        return true;
    return installTranslator(QStringLiteral("tessaro_") + language, QStringLiteral(":/tessaro-demo/translations"),
                             owner);
}
