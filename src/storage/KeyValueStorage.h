#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QByteArray;
class QIODevice;

/// A small persistent dictionary from string keys to variant values.
///
/// Everything is read once, when the storage is created, from a file or from
/// a caller's byte array, and written back once, when it is destroyed, and
/// only if setValue() was called in between. The content is the QDataStream
/// encoding of a QMap<QString, QVariant> (an entry count, then key/value
/// pairs) with the stream defaults of the Qt 5 runtime. A missing, truncated
/// or corrupt source gives an empty store; nothing is ever reported.
///
/// The bytes are checked before Qt decodes them, since a settings file can be
/// damaged or crafted: Qt's value types (all but QColorSpace) are accepted in
/// the layouts Qt writes and within limits, and values of types the host registered with
/// qRegisterMetaTypeStreamOperators() are read by the host's own operator.
/// A value of any other type makes the whole source load as empty.
///
/// A file is replaced atomically: the new content goes to a temporary file
/// beside it, is flushed to disk and renamed over the old one, so a failed or
/// interrupted save (a folder that refuses writes, a full disk, a killed
/// process) leaves the previous file as it was. A file that exists but does
/// not load is kept beside it, with ".unreadable" appended to its name
/// (replacing an older one), before the first save replaces it.
///
/// Not thread-safe. Two storages on the same file do not see each other; the
/// one destroyed last wins.
///
/// @code
/// {
///     KeyValueStorage settings(QDir(configDir).filePath(QStringLiteral("settings.dat")));
///     window.restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
///     // ... on the way out:
///     settings.setValue(QStringLiteral("geometry"), window.saveGeometry());
/// }   // the file is rewritten here
/// @endcode
class TESSARO_EXPORT KeyValueStorage : QObject
{
public:
    /// Loads the store from the file @p fileName (empty if it cannot be read).
    /// The file is rewritten on destruction if a value was set.
    KeyValueStorage(const QString& fileName, QObject* parent = nullptr);
    /// Loads the store from @p data, which is overwritten on destruction if a
    /// value was set: the array must outlive the storage.
    KeyValueStorage(QByteArray& data, QObject* parent = nullptr);
    /// Writes the store back if setValue() was called since it was loaded.
    ~KeyValueStorage() override;

    /// The value stored under @p key, or @p defaultValue when there is none.
    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const;
    /// Stores @p value under @p key. The store is written back on destruction
    /// even if the value was already there.
    void setValue(const QString& key, const QVariant& value);

private:
    void readValues(QIODevice* device);
    void writeValues(QIODevice* device);

    QMap<QString, QVariant> m_values;
    QIODevice* m_device;
    bool m_modified = false;
    // The file exists but did not load: kept aside before it is replaced.
    bool m_unreadableFile = false;
};
