#include "DemoFileCommands.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoFiles.h"
#include "DemoSettings.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QTextDocument>

#include <algorithm>

namespace {

using C = DemoCommands;
using G = IconPainter;

void addFileCommands(DemoCommands& c)
{
    using T = DemoFileCommands;
    c.add(C::FileNew, G::New, T::tr("&New"), QKeySequence::New, T::tr("Create a new document"), true);
    c.add(C::FileOpen, G::Open, T::tr("&Open..."), QKeySequence::Open, T::tr("Open a document from disk"), true);
    c.add(C::FileSave, G::Save, T::tr("&Save"), QKeySequence::Save, T::tr("Save the document"));
    c.add(C::FileSaveAs, G::SaveAs, T::tr("Save &As..."), QKeySequence(T::tr("Ctrl+Shift+S")),
          T::tr("Save the document under a new name"));
    c.add(C::FileSaveAll, G::SaveAll, T::tr("Save A&ll"), QKeySequence(T::tr("Ctrl+Alt+S")),
          T::tr("Save every modified document"));
    c.add(C::FileRevert, G::Revert, T::tr("&Revert"), QKeySequence(), T::tr("Reload the document from its file"));
    c.add(C::FileClose, G::Close, T::tr("&Close"), QKeySequence(T::tr("Ctrl+W")), T::tr("Close the document"));
    c.add(C::FileCloseAll, G::CloseAll, T::tr("Close A&ll"), QKeySequence(T::tr("Ctrl+Shift+W")),
          T::tr("Close every document"));
    c.add(C::FileExportHtml, G::ExportHtml, T::tr("Export as &HTML..."), QKeySequence(), T::tr("Write an HTML copy"));
    c.add(C::FileExportText, G::ExportText, T::tr("Export as Plain &Text..."), QKeySequence(),
          T::tr("Write a plain-text copy"));
    c.add(C::FileProperties, G::Properties, T::tr("P&roperties"), QKeySequence(T::tr("Alt+Return")),
          T::tr("Show facts about the document"));
    c.add(C::FileClearRecent, G::ClearRecent, T::tr("&Clear Recent Files"), QKeySequence(),
          T::tr("Forget the recent files"), true);
    c.add(C::FileExit, G::Exit, T::tr("E&xit"), QKeySequence(T::tr("Alt+F4")), T::tr("Quit the application"), true);
    for (int id = C::FileRecentFirst; id <= C::FileRecentLast; ++id) {
        QAction* action = c.add(id, G::Recent, T::tr("Recent file %1").arg(id - C::FileRecentFirst + 1),
                                QKeySequence(), QString(), true);
        action->setVisible(false);
    }
}

void exportDocument(DemoCommands& c, DemoDocument* doc, bool html)
{
    const QString path = html ? c.files()->askSavePath(doc, DemoFileCommands::tr("HTML (*.html *.htm)"),
                                                        QStringLiteral("html"))
                              : c.files()->askSavePath(doc, DemoFileCommands::tr("Plain text (*.txt)"),
                                                        QStringLiteral("txt"));
    QString error;
    if (!path.isEmpty() && !doc->exportTo(path, html, &error))
        c.window()->showMessage(DemoFileCommands::tr("Cannot export: %1").arg(error));
}

void showProperties(DemoWindow* window, DemoDocument* doc)
{
    using T = DemoFileCommands;
    const QString where = doc->filePath().isEmpty() ? T::tr("not saved yet") : QDir::toNativeSeparators(doc->filePath());
    window->information(T::tr("Properties of %1").arg(doc->title()),
                        T::tr("File: %1\nWords: %2\nCharacters: %3\nParagraphs: %4\nModified: %5")
                            .arg(where)
                            .arg(doc->wordCount())
                            .arg(doc->characterCount())
                            .arg(doc->document()->blockCount())
                            .arg(doc->isModified() ? T::tr("yes") : T::tr("no")));
}

// One handler for the whole recent-files range; the id says which entry.
void connectRecentFiles(DemoCommands& c)
{
    ui::CommandsRegistry* registry = c.registry();
    DemoFiles* files = c.files();
    DemoWindow* window = c.window();
    registry->ConnectCommand(C::FileRecentFirst, C::FileRecentLast, [files, window](int id) {
        const QString file = files->recentFiles().value(id - C::FileRecentFirst);
        if (file.isEmpty())
            return;
        if (!QFileInfo::exists(file)) {
            QStringList list = files->recentFiles();
            list.removeAll(file);
            files->setRecentFiles(list);
            window->showMessage(DemoFileCommands::tr("%1 no longer exists").arg(QDir::toNativeSeparators(file)));
            return;
        }
        files->openFile(file);
    });
    registry->ConnectCommandUI(C::FileRecentFirst, C::FileRecentLast, [&c, files](int id, ui::CommandState& state) {
        const int index = id - C::FileRecentFirst;
        const QString file = files->recentFiles().value(index);
        state.setEnabled(!file.isEmpty());
        if (!file.isEmpty())
            state.setText(QStringLiteral("&%1 %2").arg(index + 1).arg(QFileInfo(file).fileName()));
        if (QAction* action = c.action(id)) {
            action->setVisible(!file.isEmpty());
            action->setStatusTip(QDir::toNativeSeparators(file));
        }
    });
}

} // namespace

void DemoFileCommands::registerCommands(DemoCommands& c)
{
    addFileCommands(c);
    ui::CommandsRegistry* registry = c.registry();
    DemoFiles* files = c.files();
    DemoWindow* window = c.window();

    registry->ConnectCommand(C::FileNew, [files] { files->newDocument(); });
    registry->ConnectCommand(C::FileOpen, [files, window] {
        const QString dir = window->settings().value(DemoSettings::lastDirectoryKey, QDir::homePath()).toString();
        const QStringList paths = QFileDialog::getOpenFileNames(window, tr("Open"), dir, DemoFiles::documentFilter());
        for (const QString& path : paths)
            files->openFile(path);
    });
    c.onDocument(C::FileSave, [files](DemoDocument* doc) { files->save(doc); });
    c.onDocument(C::FileSaveAs, [files](DemoDocument* doc) { files->saveAs(doc); });
    registry->ConnectCommand(C::FileSaveAll, [files, window] {
        for (DemoDocument* doc : window->documents()) {
            if (doc->isModified() && !files->save(doc))
                break;
        }
    });
    registry->ConnectCommandUI(C::FileSaveAll, [window](ui::CommandState& state) {
        const QList<DemoDocument*> docs = window->documents();
        state.setEnabled(std::any_of(docs.begin(), docs.end(), [](DemoDocument* d) { return d->isModified(); }));
    });
    c.onDocument(
        C::FileRevert,
        [window](DemoDocument* doc) {
            QString error;
            if (!doc->load(doc->filePath(), &error))
                window->showMessage(tr("Cannot reload %1: %2").arg(doc->title(), error));
        },
        [](DemoDocument* doc) { return !doc->filePath().isEmpty() && doc->isModified(); });
    c.onDocument(C::FileClose, [files](DemoDocument* doc) { files->close(doc); });
    registry->ConnectCommand(C::FileCloseAll, [files, window] {
        for (DemoDocument* doc : window->documents()) {
            if (!files->close(doc))
                break;
        }
    });
    registry->ConnectCommandUI(C::FileCloseAll,
                               [window](ui::CommandState& state) { state.setEnabled(!window->documents().isEmpty()); });
    c.onDocument(C::FileExportHtml, [&c](DemoDocument* doc) { exportDocument(c, doc, true); });
    c.onDocument(C::FileExportText, [&c](DemoDocument* doc) { exportDocument(c, doc, false); });
    c.onDocument(C::FileProperties, [window](DemoDocument* doc) { showProperties(window, doc); });
    registry->ConnectCommand(C::FileClearRecent, [files] { files->setRecentFiles(QStringList()); });
    registry->ConnectCommandUI(C::FileClearRecent,
                               [files](ui::CommandState& state) { state.setEnabled(!files->recentFiles().isEmpty()); });
    registry->ConnectCommand(C::FileExit, [window] { window->close(); });
    connectRecentFiles(c);
}
