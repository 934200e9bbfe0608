#include "DemoEditCommands.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoFindBar.h"
#include "DemoSettings.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTextDocument>

#include <memory>

namespace {

using C = DemoCommands;
using G = IconPainter;
using T = DemoEditCommands;

void addEditCommands(DemoCommands& c)
{
    c.add(C::EditUndo, G::Undo, T::tr("&Undo"), QKeySequence::Undo, T::tr("Undo the last change"));
    c.add(C::EditRedo, G::Redo, T::tr("&Redo"), QKeySequence::Redo, T::tr("Redo the change undone last"));
    c.add(C::EditCut, G::Cut, T::tr("Cu&t"), QKeySequence::Cut, T::tr("Move the selection to the clipboard"));
    c.add(C::EditCopy, G::Copy, T::tr("&Copy"), QKeySequence::Copy, T::tr("Copy the selection to the clipboard"));
    c.add(C::EditPaste, G::Paste, T::tr("&Paste"), QKeySequence::Paste, T::tr("Insert the clipboard"));
    c.add(C::EditPastePlain, G::PastePlain, T::tr("Paste as Plain Te&xt"), QKeySequence(T::tr("Ctrl+Shift+V")),
          T::tr("Insert the clipboard without its formatting"));
    c.add(C::EditDelete, G::Delete, T::tr("&Delete"), QKeySequence(), T::tr("Delete the selection"));
    c.add(C::EditSelectAll, G::SelectAll, T::tr("Select &All"), QKeySequence::SelectAll,
          T::tr("Select the whole document"));
    c.add(C::EditFind, G::Find, T::tr("&Find..."), QKeySequence::Find, T::tr("Search the document"));
    c.add(C::EditFindNext, G::FindNext, T::tr("Find &Next"), QKeySequence::FindNext, T::tr("Find the next match"));
    c.add(C::EditFindPrevious, G::FindPrevious, T::tr("Find Pre&vious"), QKeySequence::FindPrevious,
          T::tr("Find the previous match"));
    c.add(C::EditReplace, G::Replace, T::tr("R&eplace..."), QKeySequence(T::tr("Ctrl+H")), T::tr("Replace text"));
    c.add(C::EditDuplicateLine, G::DuplicateLine, T::tr("D&uplicate Line"), QKeySequence(T::tr("Ctrl+D")),
          T::tr("Copy the current paragraph below itself"));
    c.add(C::EditUpperCase, G::UpperCase, T::tr("UPPER CASE"), QKeySequence(T::tr("Ctrl+Shift+U")),
          T::tr("Make the selection upper case"));
    c.add(C::EditLowerCase, G::LowerCase, T::tr("lower case"), QKeySequence(T::tr("Ctrl+Alt+U")),
          T::tr("Make the selection lower case"));
}

// Undo and Redo say in their tool tips what they would undo or redo; their
// labels stay the same, so that buttons showing them keep their width.
void connectUndoStep(DemoCommands& c, int id, bool redo)
{
    c.registry()->ConnectCommand(id, [&c, redo] {
        if (DemoDocument* doc = c.document()) {
            if (redo)
                doc->redoEdit();
            else
                doc->undoEdit();
        }
    });
    QAction* action = c.action(id);
    c.registry()->ConnectCommandUI(id, [&c, redo, action](ui::CommandState& state) {
        DemoDocument* doc = c.document();
        const bool can = doc && (redo ? doc->canRedo() : doc->canUndo());
        state.setEnabled(can);
        const QString step = can ? (redo ? doc->redoLabel() : doc->undoLabel()) : QString();
        const QString tip = redo ? (can ? T::tr("Redo %1").arg(step) : T::tr("Redo"))
                                 : (can ? T::tr("Undo %1").arg(step) : T::tr("Undo"));
        const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(shortcut.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, shortcut));
    });
}

void connectClipboard(DemoCommands& c)
{
    const auto selected = [](DemoDocument* doc) { return doc->hasSelection(); };
    const auto selectedAndEditable = [](DemoDocument* doc) { return doc->hasSelection() && !doc->isReadOnly(); };
    c.onDocument(C::EditCut, [](DemoDocument* doc) { doc->cutText(); }, selectedAndEditable);
    c.onDocument(C::EditCopy, [](DemoDocument* doc) { doc->copy(); }, selected);
    // The clipboard is asked once per change, not on every refresh: on X11
    // each question is a round trip to the server.
    QClipboard* clipboard = QApplication::clipboard();
    auto hasText = std::make_shared<bool>(false);
    const auto readClipboard = [clipboard, hasText] {
        const QMimeData* data = clipboard->mimeData();
        *hasText = data && (data->hasText() || data->hasHtml());
    };
    readClipboard();
    QObject::connect(clipboard, &QClipboard::dataChanged, &c, readClipboard);
    const auto canPaste = [hasText](DemoDocument* doc) { return *hasText && !doc->isReadOnly(); };
    c.onDocument(C::EditPaste, [](DemoDocument* doc) { doc->pasteText(false); }, canPaste);
    c.onDocument(C::EditPastePlain, [](DemoDocument* doc) { doc->pasteText(true); }, canPaste);
    c.onDocument(C::EditDelete, [](DemoDocument* doc) { doc->deleteSelection(); }, selectedAndEditable);
}

void findNext(DemoCommands& c, bool backward)
{
    DemoDocument* doc = c.document();
    DemoFindBar* bar = c.window()->findBar();
    if (!doc || bar->findText().isEmpty())
        return;
    const bool found = doc->findText(bar->findText(), backward);
    bar->setMessage(found ? QString() : T::tr("Not found"));
    if (!found)
        c.window()->showMessage(T::tr("\"%1\" not found").arg(bar->findText()));
}

void connectFindBar(DemoCommands& c)
{
    DemoFindBar* bar = c.window()->findBar();
    const auto showBar = [bar](DemoDocument* doc, bool replace) {
        if (doc->hasSelection())
            bar->setFindText(doc->textCursor().selectedText());
        if (replace)
            bar->showReplace();
        else
            bar->showFind();
    };
    c.onDocument(C::EditFind, [showBar](DemoDocument* doc) { showBar(doc, false); });
    const auto hasFindText = [bar](DemoDocument*) { return !bar->findText().isEmpty(); };
    c.onDocument(C::EditFindNext, [&c](DemoDocument*) { findNext(c, false); }, hasFindText);
    c.onDocument(C::EditFindPrevious, [&c](DemoDocument*) { findNext(c, true); }, hasFindText);
    c.onDocument(C::EditReplace, [showBar](DemoDocument* doc) { showBar(doc, true); },
                 [](DemoDocument* doc) { return !doc->isReadOnly(); });

    bar->setFindText(c.window()->settings().value(DemoSettings::findTextKey).toString());
    QObject::connect(bar, &DemoFindBar::findNextRequested, &c, [&c] { c.registry()->RunCommand(C::EditFindNext); });
    QObject::connect(bar, &DemoFindBar::replaceRequested, &c, [&c, bar] {
        if (DemoDocument* doc = c.document()) {
            if (!doc->replaceCurrent(bar->findText(), bar->replaceText()))
                bar->setMessage(T::tr("No more matches"));
        }
    });
    QObject::connect(bar, &DemoFindBar::replaceAllRequested, &c, [&c, bar] {
        if (DemoDocument* doc = c.document())
            bar->setMessage(T::tr("%n replaced", nullptr, doc->replaceAll(bar->findText(), bar->replaceText())));
    });
}

} // namespace

void DemoEditCommands::registerCommands(DemoCommands& c)
{
    addEditCommands(c);
    connectUndoStep(c, C::EditUndo, false);
    connectUndoStep(c, C::EditRedo, true);
    connectClipboard(c);
    c.onDocument(C::EditSelectAll, [](DemoDocument* doc) { doc->selectAll(); },
                 [](DemoDocument* doc) { return !doc->document()->isEmpty(); });
    connectFindBar(c);
    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    c.onDocument(C::EditDuplicateLine, [](DemoDocument* doc) { doc->duplicateLine(); }, editable);
    c.onDocument(C::EditUpperCase, [](DemoDocument* doc) { doc->changeCase(true); }, editable);
    c.onDocument(C::EditLowerCase, [](DemoDocument* doc) { doc->changeCase(false); }, editable);
}
