#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class KeyValueStorage;

/// The demo's settings: one KeyValueStorage file, read when created and
/// written back when destroyed if a value was set. Features of the demo keep
/// their own keys here; the names below are the ones the window uses.
class DemoSettings
{
public:
    /// Opens \a fileName, or "settings.dat" in the application's config
    /// location when empty (the folder is created if needed).
    explicit DemoSettings(const QString& fileName = QString());
    ~DemoSettings();

    DemoSettings(const DemoSettings&) = delete;
    DemoSettings& operator=(const DemoSettings&) = delete;

    /// Where "settings.dat" lives by default.
    static QString defaultFileName();

    QString fileName() const { return m_fileName; }
    /// The value kept under \a key, or \a defaultValue when there is none.
    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const;
    void setValue(const QString& key, const QVariant& value);
    /// Forgets the value under \a key: value() gives the default again.
    void remove(const QString& key);
    KeyValueStorage& storage() { return *m_storage; }

    /// Most recently used first, at most maxRecentFiles entries.
    QStringList recentFiles() const;
    void setRecentFiles(const QStringList& files);
    /// Puts \a file at the front of the recent list, dropping an older copy.
    void addRecentFile(const QString& file);
    static constexpr int maxRecentFiles = 10;

    // Keys written by the demo window and its commands.
    static const QString recentFilesKey;
    static const QString zoomKey;
    static const QString wordWrapKey;
    static const QString rulerKey;
    static const QString autoSaveKey;
    static const QString lastDirectoryKey;
    static const QString findTextKey;

private:
    QString m_fileName;
    std::unique_ptr<KeyValueStorage> m_storage;
};
