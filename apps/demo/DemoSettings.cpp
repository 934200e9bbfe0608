#include "DemoSettings.h"

#include <tessaro/KeyValueStorage.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

const QString DemoSettings::recentFilesKey = QStringLiteral("file/recent");
const QString DemoSettings::zoomKey = QStringLiteral("view/zoom");
const QString DemoSettings::wordWrapKey = QStringLiteral("view/wordWrap");
const QString DemoSettings::rulerKey = QStringLiteral("view/ruler");
const QString DemoSettings::autoSaveKey = QStringLiteral("tools/autoSave");
const QString DemoSettings::lastDirectoryKey = QStringLiteral("file/lastDirectory");
const QString DemoSettings::findTextKey = QStringLiteral("edit/findText");

DemoSettings::DemoSettings(const QString& fileName)
    : m_fileName(fileName.isEmpty() ? defaultFileName() : fileName)
{
    // The store writes itself back on destruction; make sure it has somewhere to go.
    QDir().mkpath(QFileInfo(m_fileName).absolutePath());
    m_storage = std::make_unique<KeyValueStorage>(m_fileName, nullptr);
}

DemoSettings::~DemoSettings() = default;

QString DemoSettings::defaultFileName()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    return QDir(dir).filePath(QStringLiteral("settings.dat"));
}

QVariant DemoSettings::value(const QString& key, const QVariant& defaultValue) const
{
    const QVariant value = m_storage->value(key);
    return value.isValid() ? value : defaultValue;
}

void DemoSettings::setValue(const QString& key, const QVariant& value)
{
    m_storage->setValue(key, value);
}

void DemoSettings::remove(const QString& key)
{
    // The store keeps every key it was given; an invalid value reads as none.
    if (m_storage->value(key).isValid())
        m_storage->setValue(key, QVariant());
}

QStringList DemoSettings::recentFiles() const
{
    QStringList files = value(recentFilesKey).toStringList();
    files.removeAll(QString());
    return files.mid(0, maxRecentFiles);
}

void DemoSettings::setRecentFiles(const QStringList& files)
{
    setValue(recentFilesKey, QVariant(files.mid(0, maxRecentFiles)));
}

void DemoSettings::addRecentFile(const QString& file)
{
    QStringList files = recentFiles();
    const QString path = QFileInfo(file).absoluteFilePath();
    files.removeAll(path);
    files.prepend(path);
    setRecentFiles(files);
}
