#pragma once

#include "IconPainter.h"

#include <QKeySequence>
#include <QObject>

#include <functional>
#include <memory>

class DemoAutoSave;
class DemoDocument;
class DemoFiles;
class DemoMenus;
class DemoWindow;
class QAction;

namespace ui {
class CommandState;
class CommandsRegistry;
} // namespace ui

/// The demo's command set: every command registered in one
/// ui::CommandsRegistry with its icon, shortcut, run handler and update
/// handler. Each category registers its own commands (DemoFileCommands,
/// DemoEditCommands, ... DemoHelpCommands) through the helpers below;
/// DemoMenus then arranges them in one menu per category.
///
/// The ribbon, the quick search and the shortcuts window take their actions
/// from here: registry() for the commands, menus() for the tree, action() for
/// one command.
class DemoCommands : public QObject
{
    Q_OBJECT

public:
    /// Command ids, a block of a hundred per category. The ...First/...Last
    /// pairs are id ranges served by one range handler.
    enum Id : int {
        FileNew = 101,
        FileOpen,
        FileSave,
        FileSaveAs,
        FileSaveAll,
        FileRevert,
        FileClose,
        FileCloseAll,
        FileExportHtml,
        FileExportText,
        FileProperties,
        FileClearRecent,
        FileExit,
        FileRecentFirst = 150,
        FileRecentLast = FileRecentFirst + 9,

        EditUndo = 201,
        EditRedo,
        EditCut,
        EditCopy,
        EditPaste,
        EditPastePlain,
        EditDelete,
        EditSelectAll,
        EditFind,
        EditFindNext,
        EditFindPrevious,
        EditReplace,
        EditDuplicateLine,
        EditUpperCase,
        EditLowerCase,

        ViewZoomIn = 301,
        ViewZoomOut,
        ViewZoomReset,
        ViewWordWrap,
        ViewRuler,
        ViewReadOnly,
        ViewToolBarStandard,
        ViewToolBarFormat,
        ViewStatusBar,
        ViewFullScreen,
        ViewNextDocument,
        ViewPreviousDocument,
        ViewZoomFirst = 350,
        ViewZoomLast = ViewZoomFirst + 6,

        InsertDate = 401,
        InsertTime,
        InsertTable,
        InsertImage,
        InsertHorizontalLine,
        InsertBulletList,
        InsertNumberedList,
        InsertLink,
        InsertSymbolFirst = 450,
        InsertSymbolLast = InsertSymbolFirst + 7,

        FormatBold = 501,
        FormatItalic,
        FormatUnderline,
        FormatStrikeOut,
        FormatSuperscript,
        FormatSubscript,
        FormatAlignLeft,
        FormatAlignCenter,
        FormatAlignRight,
        FormatAlignJustify,
        FormatIndent,
        FormatOutdent,
        FormatGrowFont,
        FormatShrinkFont,
        FormatHighlight,
        FormatClear,
        FormatFont,
        FormatSizeFirst = 550,
        FormatSizeLast = FormatSizeFirst + 9,
        FormatColorFirst = 570,
        FormatColorLast = FormatColorFirst + 5,

        ToolsWordCount = 601,
        ToolsSortLines,
        ToolsTrimSpaces,
        ToolsAutoSave,
        ToolsKeyboardShortcuts,
        ToolsCustomize,

        HelpContents = 701,
        HelpAbout,
        HelpAboutQt,
    };

    /// Registers every category's commands, builds the menus and applies the
    /// shortcuts the user kept.
    explicit DemoCommands(DemoWindow* window);
    ~DemoCommands() override;

    /// The registry every command is registered in.
    ui::CommandsRegistry* registry() const { return m_registry; }
    /// The window the commands act in.
    DemoWindow* window() const { return m_window; }
    /// The documents' file operations and the recent files list.
    DemoFiles* files() const { return m_files; }
    /// The timer behind Tools › Auto Save.
    DemoAutoSave* autoSave() const { return m_autoSave; }
    /// The menu tree of the commands.
    const DemoMenus& menus() const { return *m_menus; }
    /// The document the commands act on, or null.
    DemoDocument* document() const;
    /// The first action of command \a id, or null.
    QAction* action(int id) const;

    // Helpers the categories register their commands with.

    /// Registers command \a id with its icon, text, shortcut and status tip.
    QAction* add(int id, IconPainter::Glyph glyph, const QString& text, const QKeySequence& shortcut = QKeySequence(),
                 const QString& tip = QString(), bool persistent = false);
    /// Connects a command that needs an open document; it is disabled without
    /// one or when \a enabled says no.
    void onDocument(int id, const std::function<void(DemoDocument*)>& run,
                    const std::function<bool(DemoDocument*)>& enabled = nullptr);
    /// The same for a command shown checked when \a checked says so.
    void onDocumentChecked(int id, const std::function<void(DemoDocument*)>& run,
                           const std::function<bool(DemoDocument*)>& checked);

private:
    DemoWindow* m_window;
    ui::CommandsRegistry* m_registry;
    DemoFiles* m_files;
    DemoAutoSave* m_autoSave;
    std::unique_ptr<DemoMenus> m_menus;
};
