#include "DemoCommands.h"
#include "DemoFiles.h"
#include "DemoFormatCommands.h"
#include "DemoInsertCommands.h"
#include "DemoMenus.h"
#include "DemoViewCommands.h"
#include "DemoDocument.h"
#include "DemoFindBar.h"
#include "DemoOptions.h"
#include "DemoSettings.h"
#include "DemoWindow.h"
#include "DemoWindowLayout.h"

#include <tessaro/CommandsRegistry.h>
#include <tessaro/MenuBar.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <QToolBar>

#include <memory>

using C = DemoCommands;

class tst_Demo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void commandSetIsComplete();
    void everyCommandIsInTheMenuTree();
    void cutAndCopyFollowTheSelection();
    void boldFollowsTheCursorFormat();
    void boldRunsOnTheSelection();
    void undoAndRedoNameTheirStepInTheToolTip();
    void rulerCommandIsRenamed();
    void zoomRangeHandlerGetsTheId();
    void fontSizeRangeHandlerGetsTheId();
    void symbolRangeInsertsTheRightCharacter();
    void recentFilesRangeOpensTheEntry();
    void documentCommandsNeedADocument();
    void toolbarCommandsAreChecked();
    void findNextSelectsTheMatch();
    void triggeredWhileDisabledDoesNotRun();
    void pasteFollowsTheClipboard();
    void shortcutsReachTheCommands();
    void closeShortcutClosesTheDocument();
    void keyboardCutIsANamedStep();
    void lineCommandsEditTheDocument();
    void saveAndReloadRoundTrip();
    void recentListIsCappedAndDeduplicated();
    void settingsAreWrittenOnClose();
    void nothingIsWrittenWithoutClose();
    void optionsParse();
    void screenshotWritesAPng();

private:
    // One event-loop wake-up, after which the registry has refreshed every action.
    void wake() { QCoreApplication::processEvents(); }
    QAction* action(int id) { return m_window->commands()->action(id); }
    // What Undo or Redo says it will do: its tool tip without the shortcut.
    QString step(int id) { return action(id)->toolTip().section(QStringLiteral(" ("), 0, 0); }
    DemoDocument* document() { return m_window->activeDocument(); }
    void selectWord(DemoDocument* doc, int position)
    {
        QTextCursor cursor = doc->textCursor();
        cursor.setPosition(position);
        cursor.select(QTextCursor::WordUnderCursor);
        doc->setTextCursor(cursor);
    }
    QString writeFile(const QString& name, const QString& text)
    {
        const QString path = m_dir->filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return QString();
        file.write(text.toUtf8());
        return path;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DemoWindow> m_window;
};

void tst_Demo::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_window = std::make_unique<DemoWindow>(m_dir->filePath(QStringLiteral("settings.dat")));
    m_window->commands()->files()->newDocument();
    QVERIFY(document());
}

void tst_Demo::cleanup()
{
    m_window.reset();
    m_dir.reset();
}

void tst_Demo::commandSetIsComplete()
{
    const QList<QAction*> actions = m_window->commands()->registry()->getActions();
    QVERIFY2(actions.size() >= 60, qPrintable(QString::number(actions.size())));
    QSet<int> ids;
    for (QAction* a : actions) {
        const int id = a->data().toInt();
        QVERIFY2(!ids.contains(id), qPrintable(QString::number(id)));
        ids.insert(id);
        QVERIFY2(!a->icon().isNull(), qPrintable(a->text()));
        QVERIFY(id >= C::FileNew && id <= C::HelpAboutQt);
    }
    // Shortcuts are unique too.
    QSet<QString> shortcuts;
    for (QAction* a : actions) {
        if (a->shortcut().isEmpty())
            continue;
        const QString key = a->shortcut().toString();
        QVERIFY2(!shortcuts.contains(key), qPrintable(key));
        shortcuts.insert(key);
    }
    QVERIFY(shortcuts.size() >= 40);
    QVERIFY(action(C::FileNew)->property("persistent").isValid());
    QVERIFY(!action(C::EditCut)->property("persistent").isValid());
}

void tst_Demo::everyCommandIsInTheMenuTree()
{
    QMenu* root = m_window->commands()->menus().root();
    const QList<QMenu*> categories = m_window->commands()->menus().categories();
    QCOMPARE(categories.size(), int(DemoMenus::CategoryCount));
    QCOMPARE(root->actions().size(), categories.size());
    QStringList titles;
    for (int i = 0; i < categories.size(); ++i) {
        QCOMPARE(root->actions().at(i)->menu(), categories.at(i));
        titles << categories.at(i)->title().remove(QLatin1Char('&'));
    }
    QCOMPARE(titles, QStringList({"File", "Edit", "View", "Insert", "Format", "Tools", "Help"}));

    QSet<QAction*> reachable;
    int submenus = 0;
    std::function<void(QMenu*)> walk = [&](QMenu* menu) {
        for (QAction* a : menu->actions()) {
            if (a->menu()) {
                ++submenus;
                walk(a->menu());
            } else if (!a->isSeparator()) {
                reachable.insert(a);
            }
        }
    };
    walk(root);
    for (QAction* a : m_window->commands()->registry()->getActions())
        QVERIFY2(reachable.contains(a), qPrintable(a->text()));
    QVERIFY(submenus > DemoMenus::CategoryCount);
    // The classic menu bar shows the same category menus.
    demo::ShellOptions classic;
    classic.classic = true;
    DemoWindow classicWindow(m_dir->filePath(QStringLiteral("classic.dat")), nullptr, classic);
    auto* menuBar = classicWindow.findChild<ui::MenuBar*>();
    QVERIFY(menuBar);
    QList<QMenu*> barMenus;
    for (QAction* a : menuBar->findChild<QMenuBar*>()->actions())
        barMenus << a->menu();
    QCOMPARE(barMenus, classicWindow.commands()->menus().categories());
}

void tst_Demo::cutAndCopyFollowTheSelection()
{
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("hello world"));
    wake();
    QVERIFY(!action(C::EditCut)->isEnabled());
    QVERIFY(!action(C::EditCopy)->isEnabled());

    selectWord(doc, 8);
    QVERIFY(!action(C::EditCut)->isEnabled()); // not before the loop wakes up
    wake();
    QVERIFY(action(C::EditCut)->isEnabled());
    QVERIFY(action(C::EditCopy)->isEnabled());

    doc->setReadOnly(true);
    wake();
    QVERIFY(!action(C::EditCut)->isEnabled());
    QVERIFY(action(C::EditCopy)->isEnabled());

    doc->setReadOnly(false);
    action(C::EditCut)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("hello "));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("world"));
}

void tst_Demo::boldFollowsTheCursorFormat()
{
    DemoDocument* doc = document();
    doc->setHtml(QStringLiteral("plain <b>strong</b> plain"));
    QAction* bold = action(C::FormatBold);
    QVERIFY(!bold->isCheckable());

    QTextCursor cursor = doc->textCursor();
    cursor.setPosition(9);
    doc->setTextCursor(cursor);
    wake();
    QVERIFY(bold->isCheckable());
    QVERIFY(bold->isChecked());

    cursor.setPosition(2);
    doc->setTextCursor(cursor);
    wake();
    QVERIFY(bold->isCheckable());
    QVERIFY(!bold->isChecked());
}

void tst_Demo::boldRunsOnTheSelection()
{
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("one two three"));
    selectWord(doc, 5);
    wake();
    QVERIFY(!action(C::FormatBold)->isChecked());
    action(C::FormatBold)->trigger();
    QTextCursor probe(doc->document());
    probe.setPosition(6);
    QCOMPARE(probe.charFormat().fontWeight(), int(QFont::Bold));
    probe.setPosition(2);
    QVERIFY(probe.charFormat().fontWeight() != int(QFont::Bold));
    wake();
    QVERIFY(action(C::FormatBold)->isChecked());
    // Triggering again turns it off.
    action(C::FormatBold)->trigger();
    probe.setPosition(6);
    QVERIFY(probe.charFormat().fontWeight() != int(QFont::Bold));
}

void tst_Demo::undoAndRedoNameTheirStepInTheToolTip()
{
    DemoDocument* doc = document();
    wake();
    QVERIFY(!action(C::EditUndo)->isEnabled());
    QCOMPARE(action(C::EditUndo)->text(), QStringLiteral("&Undo"));

    doc->setFocus();
    QTest::keyClicks(doc, QStringLiteral("some words"));
    wake();
    QVERIFY(action(C::EditUndo)->isEnabled());
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo typing"));
    QCOMPARE(action(C::EditUndo)->toolTip(),
             QStringLiteral("Undo typing (%1)").arg(QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText)));
    // The label stays, so that buttons showing it keep their width.
    QCOMPARE(action(C::EditUndo)->text(), QStringLiteral("&Undo"));
    QCOMPARE(action(C::EditUndo)->iconText(), QStringLiteral("&Undo"));
    QVERIFY(!action(C::EditRedo)->isEnabled());

    selectWord(doc, 1);
    action(C::FormatBold)->trigger();
    wake();
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo bold"));

    action(C::EditUndo)->trigger();
    wake();
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo typing"));
    QVERIFY(action(C::EditRedo)->isEnabled());
    QCOMPARE(step(C::EditRedo), QStringLiteral("Redo bold"));

    action(C::EditUndo)->trigger();
    wake();
    QVERIFY(doc->toPlainText().isEmpty());
    QVERIFY(!action(C::EditUndo)->isEnabled());
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo"));
    QCOMPARE(step(C::EditRedo), QStringLiteral("Redo typing"));

    action(C::InsertTable)->trigger();
    wake();
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo insert table"));
    QVERIFY(!action(C::EditRedo)->isEnabled());
}

void tst_Demo::rulerCommandIsRenamed()
{
    DemoDocument* doc = document();
    doc->setRulerVisible(false);
    wake();
    QCOMPARE(action(C::ViewRuler)->text(), QStringLiteral("Show &Ruler"));
    action(C::ViewRuler)->trigger();
    QVERIFY(doc->isRulerVisible());
    wake();
    QCOMPARE(action(C::ViewRuler)->text(), QStringLiteral("Hide &Ruler"));
    action(C::ViewRuler)->trigger();
    QVERIFY(!doc->isRulerVisible());
    wake();
    QCOMPARE(action(C::ViewRuler)->text(), QStringLiteral("Show &Ruler"));
}

void tst_Demo::zoomRangeHandlerGetsTheId()
{
    DemoDocument* doc = document();
    const QList<int> levels = DemoViewCommands::zoomLevels();
    QCOMPARE(C::ViewZoomLast - C::ViewZoomFirst + 1, levels.size());
    for (int i = levels.size() - 1; i >= 0; --i) {
        action(C::ViewZoomFirst + i)->trigger();
        QCOMPARE(doc->zoom(), levels.at(i));
        wake();
        for (int j = 0; j < levels.size(); ++j)
            QCOMPARE(action(C::ViewZoomFirst + j)->isChecked(), i == j);
    }
    m_window->commands()->registry()->RunCommand(C::ViewZoomIn);
    QCOMPARE(doc->zoom(), levels.first() + 25);
    wake();
    QVERIFY(action(C::ViewZoomReset)->isEnabled());
    action(C::ViewZoomReset)->trigger();
    QCOMPARE(doc->zoom(), 100);
    wake();
    QVERIFY(!action(C::ViewZoomReset)->isEnabled());
}

void tst_Demo::fontSizeRangeHandlerGetsTheId()
{
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("alpha beta"));
    selectWord(doc, 7);
    const QList<int> sizes = DemoFormatCommands::fontSizes();
    const int index = sizes.indexOf(18);
    QVERIFY(index > 0);
    action(C::FormatSizeFirst + index)->trigger();
    QTextCursor probe(doc->document());
    probe.setPosition(8);
    QCOMPARE(probe.charFormat().fontPointSize(), 18.0);
    probe.setPosition(2);
    QVERIFY(probe.charFormat().fontPointSize() != 18.0);
    wake();
    QVERIFY(action(C::FormatSizeFirst + index)->isChecked());
    QVERIFY(!action(C::FormatSizeFirst + index - 1)->isChecked());
    // Grow goes to the next listed size.
    action(C::FormatGrowFont)->trigger();
    probe.setPosition(8);
    QCOMPARE(probe.charFormat().fontPointSize(), qreal(sizes.at(index + 1)));
}

void tst_Demo::symbolRangeInsertsTheRightCharacter()
{
    DemoDocument* doc = document();
    const auto symbols = DemoInsertCommands::symbols();
    for (int i = 0; i < symbols.size(); ++i)
        action(C::InsertSymbolFirst + i)->trigger();
    QString expected;
    for (const auto& symbol : symbols)
        expected += symbol.second;
    QCOMPARE(doc->toPlainText(), expected);
}

void tst_Demo::recentFilesRangeOpensTheEntry()
{
    const QString first = writeFile(QStringLiteral("first.txt"), QStringLiteral("first file"));
    const QString second = writeFile(QStringLiteral("second.txt"), QStringLiteral("second file"));
    QVERIFY(m_window->commands()->files()->openFile(first));
    QVERIFY(m_window->commands()->files()->openFile(second));
    QCOMPARE(m_window->commands()->files()->recentFiles(), QStringList({second, first}));
    wake();
    QCOMPARE(action(C::FileRecentFirst)->text(), QStringLiteral("&1 second.txt"));
    QCOMPARE(action(C::FileRecentFirst + 1)->text(), QStringLiteral("&2 first.txt"));
    QVERIFY(action(C::FileRecentFirst + 1)->isVisible());
    QVERIFY(!action(C::FileRecentFirst + 2)->isVisible());
    QVERIFY(!action(C::FileRecentFirst + 2)->isEnabled());

    // Close the first, then reopen it through the second recent entry.
    for (DemoDocument* doc : m_window->documents()) {
        if (doc->filePath() == first)
            m_window->removeDocument(doc);
    }
    action(C::FileRecentFirst + 1)->trigger();
    QCOMPARE(document()->filePath(), first);
    QCOMPARE(document()->toPlainText(), QStringLiteral("first file"));
    QCOMPARE(m_window->commands()->files()->recentFiles().first(), first);

    // A vanished file is dropped from the list.
    QFile::remove(second);
    wake();
    action(C::FileRecentFirst + 1)->trigger();
    QCOMPARE(m_window->commands()->files()->recentFiles(), QStringList({first}));

    action(C::FileClearRecent)->trigger();
    wake();
    QVERIFY(m_window->commands()->files()->recentFiles().isEmpty());
    QVERIFY(!action(C::FileClearRecent)->isEnabled());
}

void tst_Demo::documentCommandsNeedADocument()
{
    wake();
    QVERIFY(action(C::FileSaveAs)->isEnabled());
    QVERIFY(action(C::FormatBold)->isEnabled());
    for (DemoDocument* doc : m_window->documents())
        m_window->removeDocument(doc);
    QVERIFY(!document());
    wake();
    const QList<int> ids = {C::FileSave,      C::FileSaveAs,  C::FileClose,       C::FormatBold,      C::EditSelectAll,
                            C::ViewZoomIn,    C::InsertTable, C::ViewZoomFirst,   C::FormatSizeFirst};
    for (int id : ids)
        QVERIFY2(!action(id)->isEnabled(), qPrintable(action(id)->text()));
    QVERIFY(action(C::FileNew)->isEnabled());
    action(C::FileNew)->trigger();
    QVERIFY(document());
    wake();
    QVERIFY(action(C::FormatBold)->isEnabled());
}

void tst_Demo::toolbarCommandsAreChecked()
{
    m_window->show();
    wake();
    // With the ribbon the tool bars start hidden.
    QVERIFY(m_window->formatToolBar()->isHidden());
    QVERIFY(!action(C::ViewToolBarFormat)->isChecked());
    action(C::ViewToolBarFormat)->trigger();
    QVERIFY(!m_window->formatToolBar()->isHidden());
    wake();
    QVERIFY(action(C::ViewToolBarFormat)->isChecked());
    action(C::ViewToolBarFormat)->trigger();
    QVERIFY(m_window->formatToolBar()->isHidden());
    wake();
    QVERIFY(!action(C::ViewToolBarFormat)->isChecked());
}

void tst_Demo::findNextSelectsTheMatch()
{
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("cat dog cat bird"));
    m_window->findBar()->setFindText(QString());
    wake();
    QVERIFY(!action(C::EditFindNext)->isEnabled());
    m_window->findBar()->setFindText(QStringLiteral("cat"));
    wake();
    QVERIFY(action(C::EditFindNext)->isEnabled());
    action(C::EditFindNext)->trigger();
    QCOMPARE(doc->textCursor().selectionStart(), 0);
    action(C::EditFindNext)->trigger();
    QCOMPARE(doc->textCursor().selectionStart(), 8);
    action(C::EditFindNext)->trigger(); // wraps around
    QCOMPARE(doc->textCursor().selectionStart(), 0);
    action(C::EditFindPrevious)->trigger();
    QCOMPARE(doc->textCursor().selectionStart(), 8);
}

void tst_Demo::triggeredWhileDisabledDoesNotRun()
{
    // The registry refreshes the action right before running it, so Cut with
    // no selection does nothing even if the action still looked enabled.
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("keep me"));
    selectWord(doc, 1);
    wake();
    QVERIFY(action(C::EditCut)->isEnabled());
    QTextCursor cursor = doc->textCursor();
    cursor.clearSelection();
    doc->setTextCursor(cursor);
    action(C::EditCut)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("keep me"));
    QVERIFY(!action(C::EditCut)->isEnabled());
}

void tst_Demo::pasteFollowsTheClipboard()
{
    QApplication::clipboard()->clear();
    wake();
    QVERIFY(!action(C::EditPaste)->isEnabled());
    QVERIFY(!action(C::EditPastePlain)->isEnabled());
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    wake();
    QVERIFY(action(C::EditPaste)->isEnabled());
    action(C::EditPastePlain)->trigger();
    QCOMPARE(document()->toPlainText(), QStringLiteral("pasted"));
    wake();
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo paste"));
    document()->setReadOnly(true);
    wake();
    QVERIFY(!action(C::EditPaste)->isEnabled());
}

void tst_Demo::shortcutsReachTheCommands()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("short cut"));
    doc->setFocus();
    selectWord(doc, 1);
    QTest::keyClick(doc, Qt::Key_B, Qt::ControlModifier);
    QTextCursor probe(doc->document());
    probe.setPosition(2);
    QCOMPARE(probe.charFormat().fontWeight(), int(QFont::Bold));
    QTest::keyClick(doc, Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(doc->paragraphAlignment(), Qt::AlignHCenter);
    QTest::keyClick(doc, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(m_window->documents().size(), 2);
    QVERIFY(document() != doc);
}

// Ctrl+W is also the shortcut of each document tab's own Close; the
// document's command must be the only one.
void tst_Demo::closeShortcutClosesTheDocument()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    DemoDocument* first = document();
    m_window->commands()->files()->newDocument();
    QCOMPARE(m_window->documents().size(), 2);
    QTest::keyClick(document(), Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE(m_window->documents(), QList<DemoDocument*>{first});
    // The document left fills the area as the closed one did.
    auto* firstWindow = qobject_cast<QMdiSubWindow*>(first->parentWidget());
    QVERIFY(firstWindow);
    QTRY_VERIFY(firstWindow->isMaximized());
    first->setFocus();
    QTest::keyClick(first, Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(m_window->documents().isEmpty());
}

void tst_Demo::keyboardCutIsANamedStep()
{
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("alpha beta"));
    selectWord(doc, 8);
    QTest::keySequence(doc, QKeySequence::Cut);
    QCOMPARE(doc->toPlainText(), QStringLiteral("alpha "));
    wake();
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo cut"));
    QTest::keySequence(doc, QKeySequence::Undo);
    QCOMPARE(doc->toPlainText(), QStringLiteral("alpha beta"));
    wake();
    QCOMPARE(step(C::EditRedo), QStringLiteral("Redo cut"));
}

void tst_Demo::lineCommandsEditTheDocument()
{
    DemoDocument* doc = document();
    doc->setPlainText(QStringLiteral("pear  \napple\t\nfig"));
    action(C::ToolsTrimSpaces)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("pear\napple\nfig"));
    action(C::ToolsSortLines)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("apple\nfig\npear"));
    QTextCursor cursor = doc->textCursor();
    cursor.setPosition(7); // in "fig"
    doc->setTextCursor(cursor);
    action(C::EditDuplicateLine)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("apple\nfig\nfig\npear"));
    selectWord(doc, 1);
    action(C::EditUpperCase)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("APPLE\nfig\nfig\npear"));
    QCOMPARE(DemoDocument::countWords(doc->toPlainText()), 4);
    QCOMPARE(doc->replaceAll(QStringLiteral("fig"), QStringLiteral("plum")), 2);
    QCOMPARE(doc->toPlainText(), QStringLiteral("APPLE\nplum\nplum\npear"));
    wake();
    QCOMPARE(step(C::EditUndo), QStringLiteral("Undo replace all"));
}

void tst_Demo::saveAndReloadRoundTrip()
{
    DemoDocument* doc = document();
    doc->setHtml(QStringLiteral("<p>some <b>bold</b> text</p>"));
    const QString path = m_dir->filePath(QStringLiteral("round.html"));
    QVERIFY(m_window->commands()->files()->saveAs(doc, path));
    QVERIFY(!doc->isModified());
    QCOMPARE(doc->filePath(), path);
    QCOMPARE(doc->title(), QStringLiteral("round.html"));
    QCOMPARE(m_window->commands()->files()->recentFiles().first(), path);
    wake();
    QVERIFY(!action(C::FileRevert)->isEnabled());

    doc->selectAll();
    QTest::keyClicks(doc, QStringLiteral("replaced"));
    QVERIFY(doc->isModified());
    wake();
    QVERIFY(action(C::FileRevert)->isEnabled());
    action(C::FileRevert)->trigger();
    QCOMPARE(doc->toPlainText(), QStringLiteral("some bold text"));
    QVERIFY(!doc->isModified());
    QTextCursor probe(doc->document());
    probe.setPosition(7);
    QCOMPARE(probe.charFormat().fontWeight(), int(QFont::Bold));

    const QString text = m_dir->filePath(QStringLiteral("copy.txt"));
    QVERIFY(doc->exportTo(text, false));
    QFile file(text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), QStringLiteral("some bold text"));
    QCOMPARE(doc->filePath(), path);
}

void tst_Demo::recentListIsCappedAndDeduplicated()
{
    DemoSettings settings(m_dir->filePath(QStringLiteral("other.dat")));
    for (int i = 0; i < 12; ++i)
        settings.addRecentFile(m_dir->filePath(QStringLiteral("f%1.txt").arg(i)));
    QStringList files = settings.recentFiles();
    QCOMPARE(files.size(), DemoSettings::maxRecentFiles);
    QCOMPARE(files.first(), m_dir->filePath(QStringLiteral("f11.txt")));
    settings.addRecentFile(m_dir->filePath(QStringLiteral("f5.txt")));
    files = settings.recentFiles();
    QCOMPARE(files.size(), DemoSettings::maxRecentFiles);
    QCOMPARE(files.first(), m_dir->filePath(QStringLiteral("f5.txt")));
    QCOMPARE(files.count(m_dir->filePath(QStringLiteral("f5.txt"))), 1);
}

void tst_Demo::settingsAreWrittenOnClose()
{
    const QString settingsFile = m_dir->filePath(QStringLiteral("settings.dat"));
    const QString file = writeFile(QStringLiteral("notes.txt"), QStringLiteral("notes"));
    QVERIFY(m_window->commands()->files()->openFile(file));
    document()->setZoom(150);
    action(C::ViewToolBarFormat)->trigger();
    m_window->show();
    QVERIFY(m_window->close());
    m_window.reset();
    QVERIFY(QFile::exists(settingsFile));

    DemoSettings settings(settingsFile);
    QCOMPARE(settings.recentFiles(), QStringList({file}));
    QCOMPARE(settings.value(DemoSettings::zoomKey).toInt(), 150);
    QVERIFY(!settings.value(DemoWindowLayout::geometryKey).toByteArray().isEmpty());

    // A new window picks the values up.
    m_window = std::make_unique<DemoWindow>(settingsFile);
    QCOMPARE(m_window->commands()->files()->recentFiles(), QStringList({file}));
    QVERIFY(!m_window->formatToolBar()->isHidden());
    QCOMPARE(m_window->commands()->files()->newDocument()->zoom(), 150);
}

void tst_Demo::nothingIsWrittenWithoutClose()
{
    const QString settingsFile = m_dir->filePath(QStringLiteral("settings.dat"));
    document()->setZoom(200);
    m_window.reset();
    QVERIFY(!QFile::exists(settingsFile));
}

void tst_Demo::optionsParse()
{
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo", "--screenshot", "out.png", "--size", "800x600", "a.txt", "b.html"}),
                 DemoOptions::Run);
        QCOMPARE(options.screenshotFile, QStringLiteral("out.png"));
        QCOMPARE(options.screenshotSize, QSize(800, 600));
        QCOMPARE(options.files, QStringList({"a.txt", "b.html"}));
    }
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo"}), DemoOptions::Run);
        QVERIFY(options.screenshotFile.isEmpty());
        QCOMPARE(options.screenshotSize, QSize(1400, 900));
    }
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo", "--help"}), DemoOptions::ExitOk);
        QVERIFY(options.output().contains(QStringLiteral("--screenshot")));
    }
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo", "--size", "huge"}), DemoOptions::ExitError);
        QVERIFY(!options.output().isEmpty());
    }
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo", "--no-such-option"}), DemoOptions::ExitError);
    }
}

void tst_Demo::screenshotWritesAPng()
{
    const QString png = m_dir->filePath(QStringLiteral("shot.png"));
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_dir->filePath(QStringLiteral("config")));
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(TESSARO_DEMO_EXECUTABLE),
                  {QStringLiteral("--screenshot"), png, QStringLiteral("--size"), QStringLiteral("1000x700")});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed(), png);

    QVERIFY(QFileInfo(png).size() > 0);
    const QImage image(png);
    QCOMPARE(image.size(), QSize(1000, 700));
    // A real rendering, not a blank canvas.
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 7)
        for (int x = 0; x < image.width(); x += 7)
            colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 20, qPrintable(QString::number(colours.size())));
    // A screenshot run leaves the user's settings alone.
    QVERIFY(!QFile::exists(m_dir->filePath(QStringLiteral("config/Tessaro/tessaro-demo/settings.dat"))));
}

QTEST_MAIN(tst_Demo)
#include "tst_demo.moc"
