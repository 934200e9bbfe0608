#pragma once

#include "DemoIcons.h"

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

class DemoDocument;
class DemoWindow;
class QAction;
class QMenu;
class QTimer;

namespace ui {
class CommandState;
class CommandsRegistry;
} // namespace ui

/// The demo's command set: every command registered in one
/// ui::CommandsRegistry, with its icon, shortcut, run handler and update
/// handler, and the menu tree that holds them (one menu per category).
///
/// The ribbon, the quick search and the customization dialog take their
/// actions from here: registry() for the commands, rootMenu() for the tree,
/// action() for one command.
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
        FormatSizeFirst = 550,
        FormatSizeLast = FormatSizeFirst + 9,
        FormatColorFirst = 570,
        FormatColorLast = FormatColorFirst + 5,

        ToolsWordCount = 601,
        ToolsSortLines,
        ToolsTrimSpaces,
        ToolsAutoSave,
        ToolsKeyboardShortcuts,

        HelpContents = 701,
        HelpAbout,
        HelpAboutQt,
    };

    enum Category { File, Edit, View, Insert, Format, Tools, Help, CategoryCount };

    explicit DemoCommands(DemoWindow* window);
    ~DemoCommands() override;

    ui::CommandsRegistry* registry() const { return m_registry; }
    /// The first action of command \a id, or null.
    QAction* action(int id) const;
    /// A menu whose submenus are the categories, in menu-bar order.
    QMenu* rootMenu() const { return m_rootMenu; }
    /// The category menus, ready for a QMenuBar.
    QList<QMenu*> categoryMenus() const { return m_categoryMenus; }
    QMenu* categoryMenu(Category category) const { return m_categoryMenus.value(category); }
    /// The actions the document's right-click menu shows (null = separator).
    QList<QAction*> contextActions() const;

    // The values behind the range commands, in id order.
    static QList<int> zoomLevels();
    static QList<int> fontSizes();
    static QList<QPair<QString, QColor>> textColors();
    static QList<QPair<QString, QChar>> symbols();

    // File operations, also used by the window and the command line.
    DemoDocument* newDocument();
    /// Opens \a path in a new tab (or shows it if open) and lists it as recent.
    DemoDocument* openFile(const QString& path);
    /// Saves to the document's file, or asks for one.
    bool save(DemoDocument* document);
    /// Saves under \a path, or under a name the user picks when empty.
    bool saveAs(DemoDocument* document, const QString& path = QString());
    /// Closes the document, asking first when it has unsaved changes.
    bool close(DemoDocument* document);

    QStringList recentFiles() const { return m_recentFiles; }
    bool autoSave() const;
    void setAutoSave(bool on);

private:
    QAction* add(int id, DemoIcons::Glyph glyph, const QString& text, const QKeySequence& shortcut = QKeySequence(),
                 const QString& tip = QString(), bool persistent = false);
    // Connects a command that needs an open document; it is disabled without one
    // or when \a enabled says no.
    void onDocument(int id, const std::function<void(DemoDocument*)>& run,
                    const std::function<bool(DemoDocument*)>& enabled = nullptr);
    // The same for a command shown checked when \a checked says so.
    void onDocumentChecked(int id, const std::function<void(DemoDocument*)>& run,
                           const std::function<bool(DemoDocument*)>& checked);

    void registerFile();
    void registerEdit();
    void registerView();
    void registerInsert();
    void registerFormat();
    void registerTools();
    void registerHelp();
    void buildMenus();
    QMenu* newMenu(const QString& title, QMenu* parent = nullptr);
    void addToMenu(QMenu* menu, const QList<int>& ids);

    void prepare(DemoDocument* document) const;
    void setRecentFiles(const QStringList& files);
    QString askSavePath(DemoDocument* document, const QString& filter, const QString& suffix);
    void findNext(bool backward);
    void autoSaveNow();
    DemoDocument* document() const;

    DemoWindow* m_window;
    ui::CommandsRegistry* m_registry;
    QMenu* m_rootMenu = nullptr;
    QList<QMenu*> m_categoryMenus;
    QList<QAction*> m_recentActions;
    QStringList m_recentFiles;
    QTimer* m_autoSaveTimer;
    bool m_clipboardHasText = false;
};
