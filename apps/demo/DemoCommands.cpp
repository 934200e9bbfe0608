#include "DemoCommands.h"

#include "DemoDocument.h"
#include "DemoFindBar.h"
#include "DemoSettings.h"
#include "DemoShortcutsDialog.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QTextList>
#include <QTimer>
#include <QToolBar>

namespace {

constexpr int autoSaveInterval = 30 * 1000;

QString documentFilter()
{
    return QObject::tr("Documents (*.html *.htm *.txt);;HTML (*.html *.htm);;Plain text (*.txt);;All files (*)");
}

} // namespace

DemoCommands::DemoCommands(DemoWindow* window)
    : QObject(window)
    , m_window(window)
    , m_registry(new ui::CommandsRegistry(this))
    , m_autoSaveTimer(new QTimer(this))
{
    m_recentFiles = m_window->settings().recentFiles();
    m_autoSaveTimer->setInterval(autoSaveInterval);
    connect(m_autoSaveTimer, &QTimer::timeout, this, &DemoCommands::autoSaveNow);

    registerFile();
    registerEdit();
    registerView();
    registerInsert();
    registerFormat();
    registerTools();
    registerHelp();
    buildMenus();
    DemoShortcuts::restore(m_window->settings(), m_rootMenu);

    setAutoSave(m_window->settings().value(DemoSettings::autoSaveKey, false).toBool());
}

DemoCommands::~DemoCommands() = default;

QAction* DemoCommands::action(int id) const
{
    return m_registry->getCommandAction(id);
}

DemoDocument* DemoCommands::document() const
{
    return m_window->activeDocument();
}

QAction* DemoCommands::add(int id, DemoIcons::Glyph glyph, const QString& text, const QKeySequence& shortcut,
                           const QString& tip, bool persistent)
{
    const QIcon icon = DemoIcons::icon(glyph);
    QAction* action = persistent ? m_registry->addPersistentCommand(icon, text, id)
                                 : m_registry->addCommand(icon, text, id);
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    if (!tip.isEmpty())
        action->setStatusTip(tip);
    return action;
}

void DemoCommands::onDocument(int id, const std::function<void(DemoDocument*)>& run,
                              const std::function<bool(DemoDocument*)>& enabled)
{
    m_registry->ConnectCommand(id, [this, run] {
        if (DemoDocument* doc = document())
            run(doc);
    });
    m_registry->ConnectCommandUI(id, [this, enabled](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && (!enabled || enabled(doc)));
    });
}

void DemoCommands::onDocumentChecked(int id, const std::function<void(DemoDocument*)>& run,
                                     const std::function<bool(DemoDocument*)>& checked)
{
    m_registry->ConnectCommand(id, [this, run] {
        if (DemoDocument* doc = document())
            run(doc);
    });
    m_registry->ConnectCommandUI(id, [this, checked](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc != nullptr);
        state.setChecked(doc && checked(doc));
    });
}

// ---------------------------------------------------------------- File

void DemoCommands::registerFile()
{
    using G = DemoIcons;
    add(FileNew, G::New, tr("&New"), QKeySequence::New, tr("Create a new document"), true);
    add(FileOpen, G::Open, tr("&Open..."), QKeySequence::Open, tr("Open a document from disk"), true);
    add(FileSave, G::Save, tr("&Save"), QKeySequence::Save, tr("Save the document"));
    add(FileSaveAs, G::SaveAs, tr("Save &As..."), QKeySequence(tr("Ctrl+Shift+S")),
        tr("Save the document under a new name"));
    add(FileSaveAll, G::SaveAll, tr("Save A&ll"), QKeySequence(tr("Ctrl+Alt+S")), tr("Save every modified document"));
    add(FileRevert, G::Revert, tr("&Revert"), QKeySequence(), tr("Reload the document from its file"));
    add(FileClose, G::Close, tr("&Close"), QKeySequence(tr("Ctrl+W")), tr("Close the document"));
    add(FileCloseAll, G::CloseAll, tr("Close A&ll"), QKeySequence(tr("Ctrl+Shift+W")), tr("Close every document"));
    add(FileExportHtml, G::ExportHtml, tr("Export as &HTML..."), QKeySequence(), tr("Write an HTML copy"));
    add(FileExportText, G::ExportText, tr("Export as Plain &Text..."), QKeySequence(), tr("Write a plain-text copy"));
    add(FileProperties, G::Properties, tr("P&roperties"), QKeySequence(tr("Alt+Return")),
        tr("Show facts about the document"));
    add(FileClearRecent, G::ClearRecent, tr("&Clear Recent Files"), QKeySequence(), tr("Forget the recent files"),
        true);
    add(FileExit, G::Exit, tr("E&xit"), QKeySequence(tr("Alt+F4")), tr("Quit the application"), true);
    for (int id = FileRecentFirst; id <= FileRecentLast; ++id) {
        QAction* action = add(id, G::Recent, tr("Recent file %1").arg(id - FileRecentFirst + 1), QKeySequence(),
                              QString(), true);
        action->setVisible(false);
        m_recentActions.append(action);
    }

    m_registry->ConnectCommand(FileNew, [this] { newDocument(); });
    m_registry->ConnectCommand(FileOpen, [this] {
        const QString dir = m_window->settings().value(DemoSettings::lastDirectoryKey, QDir::homePath()).toString();
        const QStringList files = QFileDialog::getOpenFileNames(m_window, tr("Open"), dir, documentFilter());
        for (const QString& file : files)
            openFile(file);
    });
    onDocument(FileSave, [this](DemoDocument* doc) { save(doc); });
    onDocument(FileSaveAs, [this](DemoDocument* doc) { saveAs(doc); });
    m_registry->ConnectCommand(FileSaveAll, [this] {
        for (DemoDocument* doc : m_window->documents()) {
            if (doc->isModified() && !save(doc))
                break;
        }
    });
    m_registry->ConnectCommandUI(FileSaveAll, [this](ui::CommandState& state) {
        const QList<DemoDocument*> docs = m_window->documents();
        state.setEnabled(std::any_of(docs.begin(), docs.end(), [](DemoDocument* d) { return d->isModified(); }));
    });
    onDocument(
        FileRevert,
        [this](DemoDocument* doc) {
            QString error;
            if (!doc->load(doc->filePath(), &error))
                m_window->showMessage(tr("Cannot reload %1: %2").arg(doc->title(), error));
        },
        [](DemoDocument* doc) { return !doc->filePath().isEmpty() && doc->isModified(); });
    onDocument(FileClose, [this](DemoDocument* doc) { close(doc); });
    m_registry->ConnectCommand(FileCloseAll, [this] {
        for (DemoDocument* doc : m_window->documents()) {
            if (!close(doc))
                break;
        }
    });
    m_registry->ConnectCommandUI(FileCloseAll,
                                 [this](ui::CommandState& state) { state.setEnabled(!m_window->documents().isEmpty()); });
    onDocument(FileExportHtml, [this](DemoDocument* doc) {
        const QString path = askSavePath(doc, tr("HTML (*.html *.htm)"), QStringLiteral("html"));
        QString error;
        if (!path.isEmpty() && !doc->exportTo(path, true, &error))
            m_window->showMessage(tr("Cannot export: %1").arg(error));
    });
    onDocument(FileExportText, [this](DemoDocument* doc) {
        const QString path = askSavePath(doc, tr("Plain text (*.txt)"), QStringLiteral("txt"));
        QString error;
        if (!path.isEmpty() && !doc->exportTo(path, false, &error))
            m_window->showMessage(tr("Cannot export: %1").arg(error));
    });
    onDocument(FileProperties, [this](DemoDocument* doc) {
        const QString where = doc->filePath().isEmpty() ? tr("not saved yet") : QDir::toNativeSeparators(doc->filePath());
        m_window->information(tr("Properties of %1").arg(doc->title()),
                              tr("File: %1\nWords: %2\nCharacters: %3\nParagraphs: %4\nModified: %5")
                                  .arg(where)
                                  .arg(doc->wordCount())
                                  .arg(doc->characterCount())
                                  .arg(doc->document()->blockCount())
                                  .arg(doc->isModified() ? tr("yes") : tr("no")));
    });
    m_registry->ConnectCommand(FileClearRecent, [this] { setRecentFiles(QStringList()); });
    m_registry->ConnectCommandUI(FileClearRecent,
                                 [this](ui::CommandState& state) { state.setEnabled(!m_recentFiles.isEmpty()); });
    m_registry->ConnectCommand(FileExit, [this] { m_window->close(); });

    // One handler for the whole recent-files range; the id says which entry.
    m_registry->ConnectCommand(FileRecentFirst, FileRecentLast, [this](int id) {
        const QString file = m_recentFiles.value(id - FileRecentFirst);
        if (file.isEmpty())
            return;
        if (!QFileInfo::exists(file)) {
            QStringList files = m_recentFiles;
            files.removeAll(file);
            setRecentFiles(files);
            m_window->showMessage(tr("%1 no longer exists").arg(QDir::toNativeSeparators(file)));
            return;
        }
        openFile(file);
    });
    m_registry->ConnectCommandUI(FileRecentFirst, FileRecentLast, [this](int id, ui::CommandState& state) {
        const int index = id - FileRecentFirst;
        const QString file = m_recentFiles.value(index);
        state.setEnabled(!file.isEmpty());
        if (!file.isEmpty())
            state.setText(QStringLiteral("&%1 %2").arg(index + 1).arg(QFileInfo(file).fileName()));
        if (QAction* action = m_recentActions.value(index)) {
            action->setVisible(!file.isEmpty());
            action->setStatusTip(QDir::toNativeSeparators(file));
        }
    });
}

// ---------------------------------------------------------------- Edit

void DemoCommands::registerEdit()
{
    using G = DemoIcons;
    add(EditUndo, G::Undo, tr("&Undo"), QKeySequence::Undo, tr("Undo the last change"));
    add(EditRedo, G::Redo, tr("&Redo"), QKeySequence::Redo, tr("Redo the change undone last"));
    add(EditCut, G::Cut, tr("Cu&t"), QKeySequence::Cut, tr("Move the selection to the clipboard"));
    add(EditCopy, G::Copy, tr("&Copy"), QKeySequence::Copy, tr("Copy the selection to the clipboard"));
    add(EditPaste, G::Paste, tr("&Paste"), QKeySequence::Paste, tr("Insert the clipboard"));
    add(EditPastePlain, G::PastePlain, tr("Paste as Plain Te&xt"), QKeySequence(tr("Ctrl+Shift+V")),
        tr("Insert the clipboard without its formatting"));
    add(EditDelete, G::Delete, tr("&Delete"), QKeySequence(), tr("Delete the selection"));
    add(EditSelectAll, G::SelectAll, tr("Select &All"), QKeySequence::SelectAll, tr("Select the whole document"));
    add(EditFind, G::Find, tr("&Find..."), QKeySequence::Find, tr("Search the document"));
    add(EditFindNext, G::FindNext, tr("Find &Next"), QKeySequence::FindNext, tr("Find the next match"));
    add(EditFindPrevious, G::FindPrevious, tr("Find Pre&vious"), QKeySequence::FindPrevious,
        tr("Find the previous match"));
    add(EditReplace, G::Replace, tr("R&eplace..."), QKeySequence(tr("Ctrl+H")), tr("Replace text"));
    add(EditDuplicateLine, G::DuplicateLine, tr("D&uplicate Line"), QKeySequence(tr("Ctrl+D")),
        tr("Copy the current paragraph below itself"));
    add(EditUpperCase, G::UpperCase, tr("UPPER CASE"), QKeySequence(tr("Ctrl+Shift+U")),
        tr("Make the selection upper case"));
    add(EditLowerCase, G::LowerCase, tr("lower case"), QKeySequence(tr("Ctrl+Alt+U")),
        tr("Make the selection lower case"));

    m_registry->ConnectCommand(EditUndo, [this] {
        if (DemoDocument* doc = document())
            doc->undoEdit();
    });
    // Undo and Redo say what they would undo or redo.
    m_registry->ConnectCommandUI(EditUndo, [this](ui::CommandState& state) {
        DemoDocument* doc = document();
        const bool can = doc && doc->canUndo();
        state.setEnabled(can);
        state.setText(can ? tr("&Undo %1").arg(doc->undoLabel()) : tr("&Undo"));
    });
    m_registry->ConnectCommand(EditRedo, [this] {
        if (DemoDocument* doc = document())
            doc->redoEdit();
    });
    m_registry->ConnectCommandUI(EditRedo, [this](ui::CommandState& state) {
        DemoDocument* doc = document();
        const bool can = doc && doc->canRedo();
        state.setEnabled(can);
        state.setText(can ? tr("&Redo %1").arg(doc->redoLabel()) : tr("&Redo"));
    });
    const auto selected = [](DemoDocument* doc) { return doc->hasSelection(); };
    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    onDocument(EditCut, [](DemoDocument* doc) { doc->cutText(); },
               [](DemoDocument* doc) { return doc->hasSelection() && !doc->isReadOnly(); });
    onDocument(EditCopy, [](DemoDocument* doc) { doc->copy(); }, selected);
    // The clipboard is asked once per change, not on every refresh: on X11
    // each question is a round trip to the server.
    QClipboard* clipboard = QApplication::clipboard();
    const auto readClipboard = [this, clipboard] {
        const QMimeData* data = clipboard->mimeData();
        m_clipboardHasText = data && (data->hasText() || data->hasHtml());
    };
    readClipboard();
    connect(clipboard, &QClipboard::dataChanged, this, readClipboard);
    const auto canPaste = [this](DemoDocument* doc) { return m_clipboardHasText && !doc->isReadOnly(); };
    onDocument(EditPaste, [](DemoDocument* doc) { doc->pasteText(false); }, canPaste);
    onDocument(EditPastePlain, [](DemoDocument* doc) { doc->pasteText(true); }, canPaste);
    onDocument(EditDelete, [](DemoDocument* doc) { doc->deleteSelection(); },
               [](DemoDocument* doc) { return doc->hasSelection() && !doc->isReadOnly(); });
    onDocument(EditSelectAll, [](DemoDocument* doc) { doc->selectAll(); },
               [](DemoDocument* doc) { return !doc->document()->isEmpty(); });
    onDocument(EditFind, [this](DemoDocument* doc) {
        if (doc->hasSelection())
            m_window->findBar()->setFindText(doc->textCursor().selectedText());
        m_window->findBar()->showFind();
    });
    const auto hasFindText = [this](DemoDocument*) { return !m_window->findBar()->findText().isEmpty(); };
    onDocument(EditFindNext, [this](DemoDocument*) { findNext(false); }, hasFindText);
    onDocument(EditFindPrevious, [this](DemoDocument*) { findNext(true); }, hasFindText);
    onDocument(EditReplace, [this](DemoDocument* doc) {
        if (doc->hasSelection())
            m_window->findBar()->setFindText(doc->textCursor().selectedText());
        m_window->findBar()->showReplace();
    }, editable);
    onDocument(EditDuplicateLine, [](DemoDocument* doc) { doc->duplicateLine(); }, editable);
    onDocument(EditUpperCase, [](DemoDocument* doc) { doc->changeCase(true); }, editable);
    onDocument(EditLowerCase, [](DemoDocument* doc) { doc->changeCase(false); }, editable);

    DemoFindBar* bar = m_window->findBar();
    bar->setFindText(m_window->settings().value(DemoSettings::findTextKey).toString());
    connect(bar, &DemoFindBar::findNextRequested, this, [this] { m_registry->RunCommand(EditFindNext); });
    connect(bar, &DemoFindBar::replaceRequested, this, [this, bar] {
        if (DemoDocument* doc = document()) {
            if (!doc->replaceCurrent(bar->findText(), bar->replaceText()))
                bar->setMessage(tr("No more matches"));
        }
    });
    connect(bar, &DemoFindBar::replaceAllRequested, this, [this, bar] {
        if (DemoDocument* doc = document())
            bar->setMessage(tr("%n replaced", nullptr, doc->replaceAll(bar->findText(), bar->replaceText())));
    });
}

void DemoCommands::findNext(bool backward)
{
    DemoDocument* doc = document();
    DemoFindBar* bar = m_window->findBar();
    if (!doc || bar->findText().isEmpty())
        return;
    const bool found = doc->findText(bar->findText(), backward);
    bar->setMessage(found ? QString() : tr("Not found"));
    if (!found)
        m_window->showMessage(tr("\"%1\" not found").arg(bar->findText()));
}

// ---------------------------------------------------------------- View

QList<int> DemoCommands::zoomLevels()
{
    return {50, 75, 100, 125, 150, 200, 300};
}

void DemoCommands::registerView()
{
    using G = DemoIcons;
    add(ViewZoomIn, G::ZoomIn, tr("Zoom &In"), QKeySequence::ZoomIn, tr("Make the text larger"));
    add(ViewZoomOut, G::ZoomOut, tr("Zoom &Out"), QKeySequence::ZoomOut, tr("Make the text smaller"));
    add(ViewZoomReset, G::ZoomReset, tr("&Actual Size"), QKeySequence(tr("Ctrl+0")), tr("Show the text at 100%"));
    add(ViewWordWrap, G::WordWrap, tr("&Word Wrap"), QKeySequence(tr("Alt+Z")), tr("Wrap long lines"));
    add(ViewRuler, G::Ruler, tr("Show &Ruler"), QKeySequence(tr("Ctrl+R")), tr("Show or hide the ruler"));
    add(ViewReadOnly, G::ReadOnly, tr("Read &Only"), QKeySequence(), tr("Protect the document from changes"));
    add(ViewToolBarStandard, G::ToolBar, tr("&Standard Toolbar"), QKeySequence(), tr("Show the standard toolbar"),
        true);
    add(ViewToolBarFormat, G::ToolBar, tr("&Formatting Toolbar"), QKeySequence(), tr("Show the formatting toolbar"),
        true);
    add(ViewStatusBar, G::StatusBar, tr("Status &Bar"), QKeySequence(), tr("Show the status bar"), true);
    add(ViewFullScreen, G::FullScreen, tr("&Full Screen"), QKeySequence::FullScreen, tr("Fill the screen"), true);
    add(ViewNextDocument, G::NextDocument, tr("&Next Document"), QKeySequence(tr("Ctrl+Tab")),
        tr("Show the next document"));
    add(ViewPreviousDocument, G::PreviousDocument, tr("&Previous Document"), QKeySequence(tr("Ctrl+Shift+Tab")),
        tr("Show the previous document"));
    const QList<int> levels = zoomLevels();
    for (int i = 0; i < levels.size(); ++i)
        add(ViewZoomFirst + i, G::Zoom, tr("%1%").arg(levels.at(i)), QKeySequence(),
            tr("Show the text at %1%").arg(levels.at(i)));

    onDocument(ViewZoomIn, [](DemoDocument* doc) { doc->setZoom(doc->zoom() + 25); },
               [](DemoDocument* doc) { return doc->zoom() < DemoDocument::maximumZoom; });
    onDocument(ViewZoomOut, [](DemoDocument* doc) { doc->setZoom(doc->zoom() - 25); },
               [](DemoDocument* doc) { return doc->zoom() > DemoDocument::minimumZoom; });
    onDocument(ViewZoomReset, [](DemoDocument* doc) { doc->setZoom(100); },
               [](DemoDocument* doc) { return doc->zoom() != 100; });
    m_registry->ConnectCommand(ViewZoomFirst, ViewZoomLast, [this](int id) {
        if (DemoDocument* doc = document())
            doc->setZoom(zoomLevels().value(id - ViewZoomFirst, 100));
    });
    m_registry->ConnectCommandUI(ViewZoomFirst, ViewZoomLast, [this](int id, ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc != nullptr);
        state.setChecked(doc && doc->zoom() == zoomLevels().value(id - ViewZoomFirst));
    });
    onDocumentChecked(ViewWordWrap, [](DemoDocument* doc) { doc->setWordWrap(!doc->wordWrap()); },
                      [](DemoDocument* doc) { return doc->wordWrap(); });
    m_registry->ConnectCommand(ViewRuler, [this] {
        if (DemoDocument* doc = document())
            doc->setRulerVisible(!doc->isRulerVisible());
    });
    // The ruler command names what it will do rather than showing a check mark.
    m_registry->ConnectCommandUI(ViewRuler, [this](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc != nullptr);
        state.setText(doc && doc->isRulerVisible() ? tr("Hide &Ruler") : tr("Show &Ruler"));
    });
    onDocumentChecked(ViewReadOnly, [](DemoDocument* doc) { doc->setReadOnly(!doc->isReadOnly()); },
                      [](DemoDocument* doc) { return doc->isReadOnly(); });

    const auto toggleWidget = [this](int id, const std::function<QWidget*()>& widget) {
        m_registry->ConnectCommand(id, [widget] { widget()->setVisible(widget()->isHidden()); });
        m_registry->ConnectCommandUI(id, [widget](ui::CommandState& state) { state.setChecked(!widget()->isHidden()); });
    };
    toggleWidget(ViewToolBarStandard, [this] { return m_window->standardToolBar(); });
    toggleWidget(ViewToolBarFormat, [this] { return m_window->formatToolBar(); });
    toggleWidget(ViewStatusBar, [this] { return m_window->statusBar(); });
    m_registry->ConnectCommand(ViewFullScreen, [this] {
        m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen);
    });
    m_registry->ConnectCommandUI(ViewFullScreen,
                                 [this](ui::CommandState& state) { state.setChecked(m_window->isFullScreen()); });
    const auto step = [this](int delta) {
        const QList<DemoDocument*> docs = m_window->documents();
        const int index = docs.indexOf(document());
        if (docs.size() > 1 && index >= 0)
            m_window->activateDocument(docs.at((index + delta + docs.size()) % docs.size()));
    };
    m_registry->ConnectCommand(ViewNextDocument, [step] { step(1); });
    m_registry->ConnectCommand(ViewPreviousDocument, [step] { step(-1); });
    const auto severalDocuments = [this](ui::CommandState& state) { state.setEnabled(m_window->documents().size() > 1); };
    m_registry->ConnectCommandUI(ViewNextDocument, severalDocuments);
    m_registry->ConnectCommandUI(ViewPreviousDocument, severalDocuments);
}

// ---------------------------------------------------------------- Insert

QList<QPair<QString, QChar>> DemoCommands::symbols()
{
    return {
        {tr("Copyright Sign"), QChar(0x00A9)}, {tr("Registered Sign"), QChar(0x00AE)},
        {tr("Trade Mark Sign"), QChar(0x2122)}, {tr("Euro Sign"), QChar(0x20AC)},
        {tr("Section Sign"), QChar(0x00A7)},   {tr("Degree Sign"), QChar(0x00B0)},
        {tr("Plus-Minus Sign"), QChar(0x00B1)}, {tr("Em Dash"), QChar(0x2014)},
    };
}

void DemoCommands::registerInsert()
{
    using G = DemoIcons;
    add(InsertDate, G::Date, tr("&Date"), QKeySequence(tr("Alt+Shift+D")), tr("Insert today's date"));
    add(InsertTime, G::Time, tr("&Time"), QKeySequence(tr("Alt+Shift+T")), tr("Insert the current time"));
    add(InsertTable, G::Table, tr("T&able"), QKeySequence(), tr("Insert a table of three rows and three columns"));
    add(InsertImage, G::Image, tr("&Image Placeholder"), QKeySequence(), tr("Insert a placeholder picture"));
    add(InsertHorizontalLine, G::HorizontalLine, tr("Horizontal &Line"), QKeySequence(),
        tr("Insert a horizontal rule"));
    add(InsertBulletList, G::BulletList, tr("&Bulleted List"), QKeySequence(tr("Ctrl+Shift+L")),
        tr("Make the paragraph a bulleted list item"));
    add(InsertNumberedList, G::NumberedList, tr("&Numbered List"), QKeySequence(tr("Ctrl+Shift+N")),
        tr("Make the paragraph a numbered list item"));
    add(InsertLink, G::Link, tr("Lin&k"), QKeySequence(tr("Ctrl+K")), tr("Turn the selection into a link"));
    const QList<QPair<QString, QChar>> chars = symbols();
    for (int i = 0; i < chars.size(); ++i)
        add(InsertSymbolFirst + i, G::Symbol, QStringLiteral("%1\t%2").arg(chars.at(i).first, chars.at(i).second),
            QKeySequence(), tr("Insert %1").arg(chars.at(i).second));

    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    onDocument(InsertDate, [](DemoDocument* doc) {
        const QString date = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);
        doc->edit(tr("insert date"), [&](QTextCursor& cursor) { cursor.insertText(date); });
    }, editable);
    onDocument(InsertTime, [](DemoDocument* doc) {
        const QString time = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
        doc->edit(tr("insert time"), [&](QTextCursor& cursor) { cursor.insertText(time); });
    }, editable);
    onDocument(InsertTable, [](DemoDocument* doc) { doc->insertTable(3, 3); }, editable);
    onDocument(InsertImage, [](DemoDocument* doc) { doc->insertImagePlaceholder(); }, editable);
    onDocument(InsertHorizontalLine, [](DemoDocument* doc) { doc->insertHorizontalLine(); }, editable);
    const auto inList = [](DemoDocument* doc, QTextListFormat::Style style) {
        const QTextList* list = doc->textCursor().currentList();
        return list && list->format().style() == style;
    };
    m_registry->ConnectCommand(InsertBulletList, [this] {
        if (DemoDocument* doc = document())
            doc->insertList(false);
    });
    m_registry->ConnectCommand(InsertNumberedList, [this] {
        if (DemoDocument* doc = document())
            doc->insertList(true);
    });
    m_registry->ConnectCommandUI(InsertBulletList, [this, inList](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && !doc->isReadOnly());
        state.setChecked(doc && inList(doc, QTextListFormat::ListDisc));
    });
    m_registry->ConnectCommandUI(InsertNumberedList, [this, inList](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && !doc->isReadOnly());
        state.setChecked(doc && inList(doc, QTextListFormat::ListDecimal));
    });
    onDocument(InsertLink, [](DemoDocument* doc) {
        const QString text = doc->textCursor().selectedText().trimmed();
        const QString url = text.contains(QLatin1Char('.')) && !text.contains(QLatin1Char(' '))
                                ? (text.startsWith(QLatin1String("http")) ? text : QStringLiteral("https://") + text)
                                : QStringLiteral("https://example.org/");
        doc->insertLink(url, text.isEmpty() ? url : text);
    }, editable);
    m_registry->ConnectCommand(InsertSymbolFirst, InsertSymbolLast, [this](int id) {
        DemoDocument* doc = document();
        const QChar symbol = symbols().value(id - InsertSymbolFirst).second;
        if (doc && !symbol.isNull())
            doc->edit(tr("insert %1").arg(symbol), [symbol](QTextCursor& cursor) { cursor.insertText(QString(symbol)); });
    });
    m_registry->ConnectCommandUI(InsertSymbolFirst, InsertSymbolLast, [this](int, ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && !doc->isReadOnly());
    });
}

// ---------------------------------------------------------------- Format

QList<int> DemoCommands::fontSizes()
{
    return {8, 9, 10, 11, 12, 14, 16, 18, 24, 36};
}

QList<QPair<QString, QColor>> DemoCommands::textColors()
{
    return {
        {tr("&Automatic"), QColor(Qt::black)},     {tr("&Red"), QColor(0xc6, 0x28, 0x28)},
        {tr("&Green"), QColor(0x2e, 0x7d, 0x32)},  {tr("&Blue"), QColor(0x15, 0x65, 0xc0)},
        {tr("&Orange"), QColor(0xef, 0x6c, 0x00)}, {tr("&Purple"), QColor(0x6a, 0x1b, 0x9a)},
    };
}

void DemoCommands::registerFormat()
{
    using G = DemoIcons;
    add(FormatBold, G::Bold, tr("&Bold"), QKeySequence::Bold, tr("Make the text bold"));
    add(FormatItalic, G::Italic, tr("&Italic"), QKeySequence::Italic, tr("Make the text italic"));
    add(FormatUnderline, G::Underline, tr("&Underline"), QKeySequence::Underline, tr("Underline the text"));
    add(FormatStrikeOut, G::StrikeOut, tr("&Strikethrough"), QKeySequence(tr("Ctrl+Shift+X")),
        tr("Strike the text through"));
    add(FormatSuperscript, G::Superscript, tr("Su&perscript"), QKeySequence(tr("Ctrl+Shift+=")),
        tr("Raise the text above the line"));
    add(FormatSubscript, G::Subscript, tr("Su&bscript"), QKeySequence(tr("Ctrl+=")),
        tr("Lower the text below the line"));
    add(FormatAlignLeft, G::AlignLeft, tr("Align &Left"), QKeySequence(tr("Ctrl+L")), tr("Align the paragraph left"));
    add(FormatAlignCenter, G::AlignCenter, tr("&Center"), QKeySequence(tr("Ctrl+E")), tr("Centre the paragraph"));
    add(FormatAlignRight, G::AlignRight, tr("Align &Right"), QKeySequence(tr("Ctrl+Shift+R")),
        tr("Align the paragraph right"));
    add(FormatAlignJustify, G::AlignJustify, tr("&Justify"), QKeySequence(tr("Ctrl+J")),
        tr("Justify the paragraph"));
    add(FormatIndent, G::Indent, tr("Increase I&ndent"), QKeySequence(tr("Ctrl+]")), tr("Indent the paragraph"));
    add(FormatOutdent, G::Outdent, tr("Decrease In&dent"), QKeySequence(tr("Ctrl+[")), tr("Outdent the paragraph"));
    add(FormatGrowFont, G::GrowFont, tr("&Grow Font"), QKeySequence(tr("Ctrl+Shift+>")), tr("Make the font larger"));
    add(FormatShrinkFont, G::ShrinkFont, tr("S&hrink Font"), QKeySequence(tr("Ctrl+Shift+<")),
        tr("Make the font smaller"));
    add(FormatHighlight, G::Highlight, tr("&Highlight"), QKeySequence(tr("Ctrl+Alt+H")),
        tr("Mark the text with a yellow background"));
    add(FormatClear, G::ClearFormat, tr("C&lear Formatting"), QKeySequence(tr("Ctrl+Space")),
        tr("Remove character formatting"));
    const QList<int> sizes = fontSizes();
    for (int i = 0; i < sizes.size(); ++i)
        add(FormatSizeFirst + i, G::FontSize, tr("%1 pt").arg(sizes.at(i)), QKeySequence(),
            tr("Set the font size to %1 points").arg(sizes.at(i)));
    const QList<QPair<QString, QColor>> colors = textColors();
    for (int i = 0; i < colors.size(); ++i) {
        QAction* action = m_registry->addCommand(DemoIcons::icon(G::TextColor, colors.at(i).second),
                                                  colors.at(i).first, FormatColorFirst + i);
        action->setStatusTip(tr("Colour the text"));
    }

    const auto charCommand = [this](int id, const QString& label, const std::function<bool(const QTextCharFormat&)>& isOn,
                                    const std::function<void(QTextCharFormat&, bool)>& set) {
        m_registry->ConnectCommand(id, [this, label, isOn, set] {
            DemoDocument* doc = document();
            if (!doc)
                return;
            QTextCharFormat format;
            set(format, !isOn(doc->currentCharFormat()));
            doc->mergeFormat(label, format);
        });
        // Checked follows the format under the cursor.
        m_registry->ConnectCommandUI(id, [this, isOn](ui::CommandState& state) {
            DemoDocument* doc = document();
            state.setEnabled(doc && !doc->isReadOnly());
            state.setChecked(doc && isOn(doc->currentCharFormat()));
        });
    };
    charCommand(
        FormatBold, tr("bold"), [](const QTextCharFormat& f) { return f.fontWeight() >= QFont::Bold; },
        [](QTextCharFormat& f, bool on) { f.setFontWeight(on ? QFont::Bold : QFont::Normal); });
    charCommand(
        FormatItalic, tr("italic"), [](const QTextCharFormat& f) { return f.fontItalic(); },
        [](QTextCharFormat& f, bool on) { f.setFontItalic(on); });
    charCommand(
        FormatUnderline, tr("underline"), [](const QTextCharFormat& f) { return f.fontUnderline(); },
        [](QTextCharFormat& f, bool on) { f.setFontUnderline(on); });
    charCommand(
        FormatStrikeOut, tr("strikethrough"), [](const QTextCharFormat& f) { return f.fontStrikeOut(); },
        [](QTextCharFormat& f, bool on) { f.setFontStrikeOut(on); });
    charCommand(
        FormatSuperscript, tr("superscript"),
        [](const QTextCharFormat& f) { return f.verticalAlignment() == QTextCharFormat::AlignSuperScript; },
        [](QTextCharFormat& f, bool on) {
            f.setVerticalAlignment(on ? QTextCharFormat::AlignSuperScript : QTextCharFormat::AlignNormal);
        });
    charCommand(
        FormatSubscript, tr("subscript"),
        [](const QTextCharFormat& f) { return f.verticalAlignment() == QTextCharFormat::AlignSubScript; },
        [](QTextCharFormat& f, bool on) {
            f.setVerticalAlignment(on ? QTextCharFormat::AlignSubScript : QTextCharFormat::AlignNormal);
        });
    charCommand(
        FormatHighlight, tr("highlight"),
        [](const QTextCharFormat& f) { return f.background().style() != Qt::NoBrush; },
        [](QTextCharFormat& f, bool on) {
            if (on)
                f.setBackground(QColor(0xff, 0xee, 0x58));
            else
                f.setBackground(Qt::NoBrush);
        });

    const auto alignCommand = [this](int id, Qt::Alignment alignment) {
        onDocumentChecked(id, [alignment](DemoDocument* doc) { doc->setParagraphAlignment(alignment); },
                          [alignment](DemoDocument* doc) { return doc->paragraphAlignment() == alignment; });
    };
    alignCommand(FormatAlignLeft, Qt::AlignLeft);
    alignCommand(FormatAlignCenter, Qt::AlignHCenter);
    alignCommand(FormatAlignRight, Qt::AlignRight);
    alignCommand(FormatAlignJustify, Qt::AlignJustify);

    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    onDocument(FormatIndent, [](DemoDocument* doc) { doc->changeIndent(1); }, editable);
    onDocument(FormatOutdent, [](DemoDocument* doc) { doc->changeIndent(-1); },
               [](DemoDocument* doc) { return !doc->isReadOnly() && doc->textCursor().blockFormat().indent() > 0; });
    const auto resize = [](DemoDocument* doc, int direction) {
        const QList<int> sizes = fontSizes();
        const qreal current = doc->currentPointSize();
        qreal next = current;
        if (direction > 0) {
            auto it = std::upper_bound(sizes.begin(), sizes.end(), current);
            next = it == sizes.end() ? current : *it;
        } else {
            auto it = std::lower_bound(sizes.begin(), sizes.end(), current);
            next = it == sizes.begin() ? current : *(it - 1);
        }
        QTextCharFormat format;
        format.setFontPointSize(next);
        doc->mergeFormat(direction > 0 ? tr("grow font") : tr("shrink font"), format);
    };
    onDocument(FormatGrowFont, [resize](DemoDocument* doc) { resize(doc, 1); },
               [](DemoDocument* doc) { return !doc->isReadOnly() && doc->currentPointSize() < fontSizes().last(); });
    onDocument(FormatShrinkFont, [resize](DemoDocument* doc) { resize(doc, -1); },
               [](DemoDocument* doc) { return !doc->isReadOnly() && doc->currentPointSize() > fontSizes().first(); });
    onDocument(FormatClear, [](DemoDocument* doc) {
        doc->edit(tr("clear formatting"), [](QTextCursor& cursor) {
            if (!cursor.hasSelection())
                cursor.select(QTextCursor::WordUnderCursor);
            cursor.setCharFormat(QTextCharFormat());
        });
        doc->setCurrentCharFormat(QTextCharFormat());
    }, editable);

    m_registry->ConnectCommand(FormatSizeFirst, FormatSizeLast, [this](int id) {
        if (DemoDocument* doc = document()) {
            QTextCharFormat format;
            format.setFontPointSize(fontSizes().value(id - FormatSizeFirst, 11));
            doc->mergeFormat(tr("font size"), format);
        }
    });
    m_registry->ConnectCommandUI(FormatSizeFirst, FormatSizeLast, [this](int id, ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && !doc->isReadOnly());
        state.setChecked(doc && qFuzzyCompare(doc->currentPointSize(), qreal(fontSizes().value(id - FormatSizeFirst))));
    });
    m_registry->ConnectCommand(FormatColorFirst, FormatColorLast, [this](int id) {
        if (DemoDocument* doc = document()) {
            QTextCharFormat format;
            if (id == FormatColorFirst)
                format.setForeground(doc->palette().text());
            else
                format.setForeground(textColors().value(id - FormatColorFirst).second);
            doc->mergeFormat(tr("text colour"), format);
        }
    });
    m_registry->ConnectCommandUI(FormatColorFirst, FormatColorLast, [this](int id, ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && !doc->isReadOnly());
        bool checked = false;
        if (doc) {
            const QTextCharFormat format = doc->currentCharFormat();
            const bool automatic = !format.hasProperty(QTextFormat::ForegroundBrush)
                                   || format.foreground().color() == doc->palette().text().color();
            checked = id == FormatColorFirst ? automatic
                                             : !automatic && format.foreground().color()
                                                                 == textColors().value(id - FormatColorFirst).second;
        }
        state.setChecked(checked);
    });
}

// ---------------------------------------------------------------- Tools

void DemoCommands::registerTools()
{
    using G = DemoIcons;
    add(ToolsWordCount, G::WordCount, tr("&Word Count"), QKeySequence(tr("Ctrl+Shift+C")),
        tr("Count the words of the document"));
    add(ToolsSortLines, G::SortLines, tr("&Sort Lines"), QKeySequence(tr("F9")),
        tr("Sort the selected paragraphs alphabetically"));
    add(ToolsTrimSpaces, G::TrimSpaces, tr("&Trim Trailing Spaces"), QKeySequence(),
        tr("Remove blanks at the end of lines"));
    add(ToolsAutoSave, G::AutoSave, tr("&Auto Save"), QKeySequence(),
        tr("Save documents that have a file every 30 seconds"), true);

    onDocument(ToolsWordCount, [this](DemoDocument* doc) {
        QString scope = tr("document");
        int words = doc->wordCount();
        if (doc->hasSelection()) {
            words = DemoDocument::countWords(doc->textCursor().selectedText());
            scope = tr("selection");
        }
        m_window->information(tr("Word Count"), tr("The %1 has %n word(s).", nullptr, words).arg(scope));
    });
    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    onDocument(ToolsSortLines, [](DemoDocument* doc) { doc->sortLines(); }, editable);
    onDocument(ToolsTrimSpaces, [this](DemoDocument* doc) {
        m_window->showMessage(tr("%n line(s) trimmed", nullptr, doc->trimTrailingSpaces()));
    }, editable);
    m_registry->ConnectCommand(ToolsAutoSave, [this] { setAutoSave(!autoSave()); });
    m_registry->ConnectCommandUI(ToolsAutoSave, [this](ui::CommandState& state) { state.setChecked(autoSave()); });
    DemoShortcuts::registerCommand(m_registry, m_window, ToolsKeyboardShortcuts);
}

bool DemoCommands::autoSave() const
{
    return m_autoSaveTimer->isActive();
}

void DemoCommands::setAutoSave(bool on)
{
    if (on)
        m_autoSaveTimer->start();
    else
        m_autoSaveTimer->stop();
}

void DemoCommands::autoSaveNow()
{
    int saved = 0;
    for (DemoDocument* doc : m_window->documents()) {
        if (doc->isModified() && !doc->filePath().isEmpty() && doc->saveTo(doc->filePath()))
            ++saved;
    }
    if (saved > 0)
        m_window->showMessage(tr("Auto-saved %n document(s)", nullptr, saved));
}

// ---------------------------------------------------------------- Help

void DemoCommands::registerHelp()
{
    using G = DemoIcons;
    add(HelpContents, G::Help, tr("&Keyboard Reference"), QKeySequence::HelpContents,
        tr("Open a document listing every command and its shortcut"), true);
    add(HelpAbout, G::About, tr("&About Tessaro Demo"), QKeySequence(), tr("Show the version"), true);
    add(HelpAboutQt, G::AboutQt, tr("About &Qt"), QKeySequence(), tr("Show the Qt version"), true);

    m_registry->ConnectCommand(HelpContents, [this] {
        QString html = tr("<h2>Keyboard reference</h2><p>Every command of the demo, by menu.</p>");
        for (QMenu* menu : qAsConst(m_categoryMenus)) {
            html += QStringLiteral("<h3>%1</h3><table cellpadding=\"3\">").arg(menu->title().remove(QLatin1Char('&')));
            const std::function<void(QMenu*, const QString&)> walk = [&](QMenu* m, const QString& prefix) {
                for (QAction* a : m->actions()) {
                    if (a->isSeparator() || !a->isVisible())
                        continue;
                    const QString text = prefix + a->text().remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0);
                    if (a->menu()) {
                        walk(a->menu(), text + QStringLiteral(" \u203a "));
                        continue;
                    }
                    html += QStringLiteral("<tr><td>%1</td><td><b>%2</b></td></tr>")
                                .arg(text.toHtmlEscaped(), a->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped());
                }
            };
            walk(menu, QString());
            html += QStringLiteral("</table>");
        }
        DemoDocument* doc = newDocument();
        doc->setContent(html);
        doc->setUntitledTitle(tr("Keyboard Reference"));
        doc->setReadOnly(true);
    });
    m_registry->ConnectCommand(HelpAbout, [this] {
        m_window->information(tr("About Tessaro Demo"),
                              tr("Tessaro Demo %1\n\nA sample host of the Tessaro library: %2 commands "
                                 "registered in one command registry, with run and update handlers.")
                                  .arg(QApplication::applicationVersion())
                                  .arg(m_registry->getActions().size()));
    });
    m_registry->ConnectCommand(HelpAboutQt, [] { QApplication::aboutQt(); });
}

// ---------------------------------------------------------------- Menus

QMenu* DemoCommands::newMenu(const QString& title, QMenu* parent)
{
    QMenu* menu = parent ? parent->addMenu(title) : new QMenu(title, m_window);
    menu->setToolTipsVisible(true);
    return menu;
}

void DemoCommands::addToMenu(QMenu* menu, const QList<int>& ids)
{
    for (int id : ids) {
        if (id == 0)
            menu->addSeparator();
        else if (QAction* a = action(id))
            menu->addAction(a);
    }
}

void DemoCommands::buildMenus()
{
    m_rootMenu = new QMenu(tr("Commands"), m_window);
    const QStringList titles = {tr("&File"), tr("&Edit"), tr("&View"), tr("&Insert"), tr("F&ormat"), tr("&Tools"),
                                tr("&Help")};
    for (const QString& title : titles) {
        QMenu* menu = newMenu(title);
        m_categoryMenus.append(menu);
        m_rootMenu->addMenu(menu);
    }

    QMenu* file = m_categoryMenus[File];
    addToMenu(file, {FileNew, FileOpen});
    QMenu* recent = newMenu(tr("Recent &Files"), file);
    recent->setIcon(DemoIcons::icon(DemoIcons::Recent));
    for (int id = FileRecentFirst; id <= FileRecentLast; ++id)
        addToMenu(recent, {id});
    addToMenu(recent, {0, FileClearRecent});
    addToMenu(file, {0, FileSave, FileSaveAs, FileSaveAll, FileRevert, 0});
    QMenu* exportMenu = newMenu(tr("&Export"), file);
    exportMenu->setIcon(DemoIcons::icon(DemoIcons::ExportHtml));
    addToMenu(exportMenu, {FileExportHtml, FileExportText});
    addToMenu(file, {FileProperties, 0, FileClose, FileCloseAll, 0, FileExit});

    QMenu* edit = m_categoryMenus[Edit];
    addToMenu(edit, {EditUndo, EditRedo, 0, EditCut, EditCopy, EditPaste, EditPastePlain, EditDelete, 0,
                     EditSelectAll, EditDuplicateLine, 0, EditFind, EditFindNext, EditFindPrevious, EditReplace, 0});
    QMenu* changeCase = newMenu(tr("C&hange Case"), edit);
    addToMenu(changeCase, {EditUpperCase, EditLowerCase});

    QMenu* view = m_categoryMenus[View];
    QMenu* zoom = newMenu(tr("&Zoom"), view);
    zoom->setIcon(DemoIcons::icon(DemoIcons::Zoom));
    addToMenu(zoom, {ViewZoomIn, ViewZoomOut, ViewZoomReset, 0});
    for (int id = ViewZoomFirst; id <= ViewZoomLast; ++id)
        addToMenu(zoom, {id});
    addToMenu(view, {0, ViewWordWrap, ViewRuler, ViewReadOnly, 0});
    QMenu* bars = newMenu(tr("&Toolbars"), view);
    addToMenu(bars, {ViewToolBarStandard, ViewToolBarFormat});
    addToMenu(view, {ViewStatusBar, ViewFullScreen, 0, ViewNextDocument, ViewPreviousDocument});

    QMenu* insert = m_categoryMenus[Insert];
    addToMenu(insert, {InsertDate, InsertTime, 0, InsertTable, InsertImage, InsertHorizontalLine, 0,
                       InsertBulletList, InsertNumberedList, InsertLink, 0});
    QMenu* symbol = newMenu(tr("&Symbol"), insert);
    symbol->setIcon(DemoIcons::icon(DemoIcons::Symbol));
    for (int id = InsertSymbolFirst; id <= InsertSymbolLast; ++id)
        addToMenu(symbol, {id});

    QMenu* format = m_categoryMenus[Format];
    addToMenu(format, {FormatBold, FormatItalic, FormatUnderline, FormatStrikeOut, FormatSuperscript,
                       FormatSubscript, FormatHighlight, 0});
    QMenu* size = newMenu(tr("Font Si&ze"), format);
    size->setIcon(DemoIcons::icon(DemoIcons::FontSize));
    addToMenu(size, {FormatGrowFont, FormatShrinkFont, 0});
    for (int id = FormatSizeFirst; id <= FormatSizeLast; ++id)
        addToMenu(size, {id});
    QMenu* color = newMenu(tr("Text &Colour"), format);
    color->setIcon(DemoIcons::icon(DemoIcons::TextColor));
    for (int id = FormatColorFirst; id <= FormatColorLast; ++id)
        addToMenu(color, {id});
    addToMenu(format, {0});
    QMenu* paragraph = newMenu(tr("&Paragraph"), format);
    paragraph->setIcon(DemoIcons::icon(DemoIcons::AlignLeft));
    addToMenu(paragraph, {FormatAlignLeft, FormatAlignCenter, FormatAlignRight, FormatAlignJustify, 0, FormatIndent,
                          FormatOutdent});
    addToMenu(format, {0, FormatClear});

    addToMenu(m_categoryMenus[Tools], {ToolsWordCount, 0, ToolsSortLines, ToolsTrimSpaces, 0, ToolsAutoSave, 0,
                                        ToolsKeyboardShortcuts});
    addToMenu(m_categoryMenus[Help], {HelpContents, 0, HelpAbout, HelpAboutQt});
}

QList<QAction*> DemoCommands::contextActions() const
{
    QList<QAction*> list;
    for (int id : {int(EditUndo), int(EditRedo), 0, int(EditCut), int(EditCopy), int(EditPaste), 0,
                   int(EditSelectAll), 0, int(FormatBold), int(FormatItalic), int(FormatUnderline), 0,
                   int(InsertLink)})
        list.append(id ? action(id) : nullptr);
    return list;
}

// ---------------------------------------------------------------- Files

DemoDocument* DemoCommands::newDocument()
{
    auto* doc = new DemoDocument;
    prepare(doc);
    m_window->addDocument(doc);
    return doc;
}

void DemoCommands::prepare(DemoDocument* doc) const
{
    // New documents start with the view the user chose last.
    doc->setZoom(m_window->settings().value(DemoSettings::zoomKey, 100).toInt());
    doc->setWordWrap(m_window->settings().value(DemoSettings::wordWrapKey, true).toBool());
    doc->setRulerVisible(m_window->settings().value(DemoSettings::rulerKey, true).toBool());
    doc->setContextActions(contextActions());
}

DemoDocument* DemoCommands::openFile(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    for (DemoDocument* doc : m_window->documents()) {
        if (doc->filePath() == absolute) {
            m_window->activateDocument(doc);
            return doc;
        }
    }
    auto* doc = new DemoDocument;
    QString error;
    if (!doc->load(absolute, &error)) {
        delete doc;
        m_window->showMessage(tr("Cannot open %1: %2").arg(QDir::toNativeSeparators(absolute), error));
        return nullptr;
    }
    prepare(doc);
    m_window->addDocument(doc);
    QStringList files = m_recentFiles;
    files.removeAll(absolute);
    files.prepend(absolute);
    setRecentFiles(files);
    m_window->settings().setValue(DemoSettings::lastDirectoryKey, QFileInfo(absolute).absolutePath());
    return doc;
}

bool DemoCommands::save(DemoDocument* doc)
{
    if (!doc)
        return false;
    if (doc->filePath().isEmpty())
        return saveAs(doc);
    QString error;
    if (!doc->saveTo(doc->filePath(), &error)) {
        m_window->showMessage(tr("Cannot save %1: %2").arg(doc->title(), error));
        return false;
    }
    m_window->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(doc->filePath())));
    return true;
}

QString DemoCommands::askSavePath(DemoDocument* doc, const QString& filter, const QString& suffix)
{
    const QString dir = m_window->settings().value(DemoSettings::lastDirectoryKey, QDir::homePath()).toString();
    const QString name = doc->filePath().isEmpty() ? doc->title() : QFileInfo(doc->filePath()).completeBaseName();
    const QString suggestion = QDir(dir).filePath(name + QLatin1Char('.') + suffix);
    return QFileDialog::getSaveFileName(m_window, tr("Save As"), suggestion, filter);
}

bool DemoCommands::saveAs(DemoDocument* doc, const QString& path)
{
    if (!doc)
        return false;
    const QString target = path.isEmpty() ? askSavePath(doc, documentFilter(), QStringLiteral("html")) : path;
    if (target.isEmpty())
        return false;
    QString error;
    if (!doc->saveTo(target, &error)) {
        m_window->showMessage(tr("Cannot save %1: %2").arg(QDir::toNativeSeparators(target), error));
        return false;
    }
    QStringList files = m_recentFiles;
    files.removeAll(doc->filePath());
    files.prepend(doc->filePath());
    setRecentFiles(files);
    m_window->settings().setValue(DemoSettings::lastDirectoryKey, QFileInfo(doc->filePath()).absolutePath());
    m_window->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(doc->filePath())));
    return true;
}

bool DemoCommands::close(DemoDocument* doc)
{
    if (!doc)
        return false;
    if (doc->isModified()) {
        m_window->activateDocument(doc);
        const auto answer = QMessageBox::question(
            m_window, tr("Close"), tr("Save the changes to %1 before closing?").arg(doc->title()),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
        if (answer == QMessageBox::Cancel || (answer == QMessageBox::Save && !save(doc)))
            return false;
    }
    m_window->removeDocument(doc);
    return true;
}

void DemoCommands::setRecentFiles(const QStringList& files)
{
    m_recentFiles = files.mid(0, DemoSettings::maxRecentFiles);
    m_window->settings().setRecentFiles(m_recentFiles);
}
