#pragma once

#include <QObject>
#include <QStringList>

class DemoCommands;
class DemoDocument;
class DemoWindow;

/// The documents' files: new, open, save, save as and close, and the recent
/// files list kept in the settings. The File commands, the window and the
/// command line all go through here.
class DemoFiles : public QObject
{
    Q_OBJECT

public:
    /// The file operations of the documents of \a commands' window.
    explicit DemoFiles(DemoCommands* commands);

    /// A new untitled document, shown and active.
    DemoDocument* newDocument();
    /// Opens \a path in a new tab (or shows it if open) and lists it as recent.
    DemoDocument* openFile(const QString& path);
    /// Saves to the document's file, or asks for one.
    bool save(DemoDocument* document);
    /// Saves under \a path, or under a name the user picks when empty.
    bool saveAs(DemoDocument* document, const QString& path = QString());
    /// Closes the document, asking first when it has unsaved changes.
    bool close(DemoDocument* document);
    /// Asks for a file to write \a document to, in the last used folder.
    QString askSavePath(DemoDocument* document, const QString& filter, const QString& suffix);

    /// The file types the Open and Save As dialogs offer.
    static QString documentFilter();

    /// Most recently used first.
    QStringList recentFiles() const { return m_recentFiles; }
    /// Replaces the list (at most DemoSettings::maxRecentFiles entries) and keeps it in the settings.
    void setRecentFiles(const QStringList& files);

private:
    void prepare(DemoDocument* document) const;
    void putFirstInRecent(const QString& path);
    DemoWindow* window() const;

    DemoCommands* m_commands;
    QStringList m_recentFiles;
};
