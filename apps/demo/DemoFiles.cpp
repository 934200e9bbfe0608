#include "DemoFiles.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoMenus.h"
#include "DemoSettings.h"
#include "DemoWindow.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

DemoFiles::DemoFiles(DemoCommands* commands)
    : QObject(commands)
    , m_commands(commands)
    , m_recentFiles(commands->window()->settings().recentFiles())
{
}

DemoWindow* DemoFiles::window() const
{
    return m_commands->window();
}

QString DemoFiles::documentFilter()
{
    return tr("Documents (*.html *.htm *.txt);;HTML (*.html *.htm);;Plain text (*.txt);;All files (*)");
}

DemoDocument* DemoFiles::newDocument()
{
    auto* doc = new DemoDocument;
    prepare(doc);
    window()->addDocument(doc);
    return doc;
}

void DemoFiles::prepare(DemoDocument* doc) const
{
    // New documents start with the view the user chose last.
    const DemoSettings& settings = window()->settings();
    doc->setZoom(settings.value(DemoSettings::zoomKey, 100).toInt());
    doc->setWordWrap(settings.value(DemoSettings::wordWrapKey, true).toBool());
    doc->setRulerVisible(settings.value(DemoSettings::rulerKey, true).toBool());
    doc->setContextActions(m_commands->menus().contextActions());
}

DemoDocument* DemoFiles::openFile(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    for (DemoDocument* doc : window()->documents()) {
        if (doc->filePath() == absolute) {
            window()->activateDocument(doc);
            return doc;
        }
    }
    auto* doc = new DemoDocument;
    QString error;
    if (!doc->load(absolute, &error)) {
        delete doc;
        window()->showMessage(tr("Cannot open %1: %2").arg(QDir::toNativeSeparators(absolute), error));
        return nullptr;
    }
    prepare(doc);
    window()->addDocument(doc);
    putFirstInRecent(absolute);
    return doc;
}

bool DemoFiles::save(DemoDocument* doc)
{
    if (!doc)
        return false;
    if (doc->filePath().isEmpty())
        return saveAs(doc);
    QString error;
    if (!doc->saveTo(doc->filePath(), &error)) {
        window()->showMessage(tr("Cannot save %1: %2").arg(doc->title(), error));
        return false;
    }
    window()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(doc->filePath())));
    return true;
}

QString DemoFiles::askSavePath(DemoDocument* doc, const QString& filter, const QString& suffix)
{
    const QString dir = window()->settings().value(DemoSettings::lastDirectoryKey, QDir::homePath()).toString();
    const QString name = doc->filePath().isEmpty() ? doc->title() : QFileInfo(doc->filePath()).completeBaseName();
    const QString suggestion = QDir(dir).filePath(name + QLatin1Char('.') + suffix);
    return QFileDialog::getSaveFileName(window(), tr("Save As"), suggestion, filter);
}

bool DemoFiles::saveAs(DemoDocument* doc, const QString& path)
{
    if (!doc)
        return false;
    const QString target = path.isEmpty() ? askSavePath(doc, documentFilter(), QStringLiteral("html")) : path;
    if (target.isEmpty())
        return false;
    QString error;
    if (!doc->saveTo(target, &error)) {
        window()->showMessage(tr("Cannot save %1: %2").arg(QDir::toNativeSeparators(target), error));
        return false;
    }
    putFirstInRecent(doc->filePath());
    window()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(doc->filePath())));
    return true;
}

bool DemoFiles::close(DemoDocument* doc)
{
    if (!doc)
        return false;
    if (doc->isModified()) {
        window()->activateDocument(doc);
        const auto answer = QMessageBox::question(
            window(), tr("Close"), tr("Save the changes to %1 before closing?").arg(doc->title()),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
        if (answer == QMessageBox::Cancel || (answer == QMessageBox::Save && !save(doc)))
            return false;
    }
    window()->removeDocument(doc);
    return true;
}

void DemoFiles::putFirstInRecent(const QString& path)
{
    QStringList files = m_recentFiles;
    files.removeAll(path);
    files.prepend(path);
    setRecentFiles(files);
    window()->settings().setValue(DemoSettings::lastDirectoryKey, QFileInfo(path).absolutePath());
}

void DemoFiles::setRecentFiles(const QStringList& files)
{
    m_recentFiles = files.mid(0, DemoSettings::maxRecentFiles);
    window()->settings().setRecentFiles(m_recentFiles);
}
