#include "DemoRibbon.h"

#include "DemoCommands.h"
#include "DemoFontFamilyAction.h"
#include "DemoFontSizeAction.h"
#include "IconPainter.h"

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace demo {

namespace {

using C = DemoCommands;
using G = IconPainter;

QString tr(const char* text)
{
    return QCoreApplication::translate("DemoRibbon", text);
}

// Builds the pages; ribbon-owned actions are children of the ribbon itself
// (so they outlive the pages a restored layout replaces) and carry a stable
// name for the stored layout.
class RibbonBuilder
{
public:
    RibbonBuilder(ui::RibbonBar* ribbon, DemoCommands* commands)
        : m_ribbon(ribbon)
        , m_commands(commands)
    {
    }

    void addSystemMenu();
    void addHomePage();
    void addInsertPage();
    void addViewPage(QMenu* panelsMenu, QMenu* styleMenu);
    void addToolsPage();
    void addHelpPage();
    void addQuickAccessBar();

private:
    void addCommands(Qtitan::RibbonGroup* group, const QList<int>& ids, Qt::ToolButtonStyle style);
    QAction* ribbonAction(const QString& name, const QIcon& icon, const QString& text);
    QMenu* commandMenu(const QString& title, const QList<int>& ids);
    static QList<int> range(int first, int last);
    void addGroupCommand(Qtitan::RibbonGroup* group, const QString& name, G::Glyph glyph, const QString& text,
                         const QList<int>& ids, Qt::ToolButtonStyle style, ui::GroupButtonType type);
    void addMenuButton(Qtitan::RibbonGroup* group, QMenu* menu, const QIcon& icon, const QString& text,
                       const QString& name);

    ui::RibbonBar* m_ribbon;
    DemoCommands* m_commands;
};

void RibbonBuilder::addCommands(Qtitan::RibbonGroup* group, const QList<int>& ids, Qt::ToolButtonStyle style)
{
    for (int id : ids) {
        if (QAction* action = m_commands->action(id))
            group->addAction(action, style);
    }
}

QAction* RibbonBuilder::ribbonAction(const QString& name, const QIcon& icon, const QString& text)
{
    auto* action = new QAction(icon, text, m_ribbon);
    action->setObjectName(QStringLiteral("ribbon.") + name);
    return action;
}

// A menu of commands (0 = separator); its title names it in the quick search.
QMenu* RibbonBuilder::commandMenu(const QString& title, const QList<int>& ids)
{
    auto* menu = new QMenu(title, m_ribbon);
    menu->setToolTipsVisible(true);
    for (int id : ids) {
        if (id == 0)
            menu->addSeparator();
        else if (QAction* action = m_commands->action(id))
            menu->addAction(action);
    }
    return menu;
}

QList<int> RibbonBuilder::range(int first, int last)
{
    QList<int> ids;
    for (int id = first; id <= last; ++id)
        ids << id;
    return ids;
}

// A group command: a button whose menu holds commands; its kind decides what
// its face shows (always the first entry, the entry run last, or itself).
void RibbonBuilder::addGroupCommand(Qtitan::RibbonGroup* group, const QString& name, G::Glyph glyph,
                                    const QString& text, const QList<int>& ids, Qt::ToolButtonStyle style,
                                    ui::GroupButtonType type)
{
    QAction* action = ribbonAction(name, G::icon(glyph), text);
    action->setMenu(commandMenu(text, ids));
    group->addAction(action);
    ui::setActionButtonStyle(group, action, style);
    ui::setGroupButtonType(group, action, type);
}

// A big button that opens a menu of the host's, filled when it opens; stored
// without its entries.
void RibbonBuilder::addMenuButton(Qtitan::RibbonGroup* group, QMenu* menu, const QIcon& icon, const QString& text,
                                  const QString& name)
{
    QAction* action = ribbonAction(name, icon, text);
    action->setProperty("isDynamic", true);
    group->addAction(action, Qt::ToolButtonTextUnderIcon, menu, QToolButton::InstantPopup);
}

void RibbonBuilder::addSystemMenu()
{
    QAction* file = ribbonAction(QStringLiteral("file"), QIcon(), tr("File"));
    file->setToolTip(tr("Create, open, save and export documents"));
    QMenu* menu = commandMenu(tr("File"), {C::FileNew, C::FileOpen});
    QMenu* recent = commandMenu(tr("Recent Files"), range(C::FileRecentFirst, C::FileRecentLast) << 0
                                                        << C::FileClearRecent);
    recent->setIcon(G::icon(G::Recent));
    menu->addMenu(recent);
    menu->addSeparator();
    for (int id : {C::FileSave, C::FileSaveAs, C::FileSaveAll, C::FileRevert})
        menu->addAction(m_commands->action(id));
    menu->addSeparator();
    for (int id : {C::FileExportHtml, C::FileExportText, C::FileProperties})
        menu->addAction(m_commands->action(id));
    menu->addSeparator();
    for (int id : {C::FileClose, C::FileCloseAll})
        menu->addAction(m_commands->action(id));
    file->setMenu(menu);
    m_ribbon->setSystemButtonAction(file);

    // Options opens the keyboard shortcuts window, whose edits are kept.
    QAction* options = ribbonAction(QStringLiteral("options"), G::icon(G::Keyboard), tr("Options"));
    options->setToolTip(tr("Change the key combinations of the commands"));
    QAction* shortcuts = m_commands->action(C::ToolsKeyboardShortcuts);
    QObject::connect(options, &QAction::triggered, shortcuts, &QAction::trigger);
    m_ribbon->addPopupBarAction(options);
    if (QAction* customize = m_commands->action(C::ToolsCustomize))
        m_ribbon->addPopupBarAction(customize);
    if (QAction* exit = m_commands->action(C::FileExit))
        m_ribbon->addPopupBarAction(exit);
}

void RibbonBuilder::addHomePage()
{
    Qtitan::RibbonPage* home = m_ribbon->addPage(tr("Home"));
    // Paste always shows Paste; the plain text variant is in its menu.
    Qtitan::RibbonGroup* clipboard = home->addGroup(tr("Clipboard"));
    addGroupCommand(clipboard, QStringLiteral("paste"), G::Paste, tr("Paste"),
                    {C::EditPaste, C::EditPastePlain}, Qt::ToolButtonTextUnderIcon, ui::DynamicLite);
    addCommands(clipboard, {C::EditCut, C::EditCopy}, Qt::ToolButtonTextBesideIcon);

    Qtitan::RibbonGroup* undo = home->addGroup(tr("Undo"));
    addCommands(undo, {C::EditUndo, C::EditRedo}, Qt::ToolButtonTextBesideIcon);

    // The family and size boxes, then the character formats; Text Color
    // remembers the colour picked last, Change Case only opens its menu.
    Qtitan::RibbonGroup* font = home->addGroup(tr("Font"));
    font->addAction(new DemoFontFamilyAction(m_commands, m_ribbon));
    font->addAction(new DemoFontSizeAction(m_commands, m_ribbon));
    auto* separator = new QAction(m_ribbon);
    separator->setSeparator(true);
    font->addAction(separator);
    addCommands(font,
                {C::FormatBold, C::FormatItalic, C::FormatUnderline, C::FormatStrikeOut, C::FormatSuperscript,
                 C::FormatSubscript, C::FormatHighlight, C::FormatGrowFont, C::FormatShrinkFont, C::FormatClear},
                Qt::ToolButtonIconOnly);
    addGroupCommand(font, QStringLiteral("textColor"), G::TextColor, tr("Text Color"),
                    range(C::FormatColorFirst, C::FormatColorLast), Qt::ToolButtonIconOnly, ui::Dynamic);
    addGroupCommand(font, QStringLiteral("changeCase"), G::UpperCase, tr("Change Case"),
                    {C::EditUpperCase, C::EditLowerCase}, Qt::ToolButtonIconOnly, ui::Simple);
    addCommands(font, {C::FormatFont}, Qt::ToolButtonIconOnly);

    Qtitan::RibbonGroup* paragraph = home->addGroup(tr("Paragraph"));
    addCommands(paragraph,
                {C::FormatAlignLeft, C::FormatAlignCenter, C::FormatAlignRight, C::FormatAlignJustify,
                 C::FormatOutdent, C::FormatIndent, C::InsertBulletList, C::InsertNumberedList},
                Qt::ToolButtonIconOnly);
    // Find shows Find; the next and previous match are in its menu.
    Qtitan::RibbonGroup* editing = home->addGroup(tr("Editing"));
    addGroupCommand(editing, QStringLiteral("find"), G::Find, tr("Find"),
                    {C::EditFind, C::EditFindNext, C::EditFindPrevious}, Qt::ToolButtonTextBesideIcon,
                    ui::DynamicLite);
    addCommands(editing, {C::EditReplace, C::EditSelectAll, C::EditDelete}, Qt::ToolButtonTextBesideIcon);
}

void RibbonBuilder::addInsertPage()
{
    Qtitan::RibbonPage* insert = m_ribbon->addPage(tr("Insert"));
    Qtitan::RibbonGroup* tables = insert->addGroup(tr("Tables"));
    addCommands(tables, {C::InsertTable}, Qt::ToolButtonTextUnderIcon);
    Qtitan::RibbonGroup* illustrations = insert->addGroup(tr("Illustrations"));
    addCommands(illustrations, {C::InsertImage}, Qt::ToolButtonTextUnderIcon);
    addCommands(illustrations, {C::InsertHorizontalLine}, Qt::ToolButtonTextBesideIcon);
    // Symbol only opens its menu.
    Qtitan::RibbonGroup* text = insert->addGroup(tr("Text"));
    addCommands(text, {C::InsertDate, C::InsertTime, C::InsertLink}, Qt::ToolButtonTextBesideIcon);
    addGroupCommand(text, QStringLiteral("symbol"), G::Symbol, tr("Symbol"),
                    range(C::InsertSymbolFirst, C::InsertSymbolLast), Qt::ToolButtonTextUnderIcon, ui::Simple);
}

void RibbonBuilder::addViewPage(QMenu* panelsMenu, QMenu* styleMenu)
{
    Qtitan::RibbonPage* view = m_ribbon->addPage(tr("View"));
    Qtitan::RibbonGroup* window = view->addGroup(tr("Window"));
    addMenuButton(window, panelsMenu, G::icon(G::Panels), tr("Panels"), QStringLiteral("panels"));
    addGroupCommand(window, QStringLiteral("toolBars"), G::ToolBar, tr("Toolbars"),
                    {C::ViewToolBarStandard, C::ViewToolBarFormat}, Qt::ToolButtonTextUnderIcon, ui::Simple);
    addMenuButton(window, styleMenu, G::icon(G::TextColor, QColor(43, 87, 154)), tr("Style"),
                  QStringLiteral("style"));
    addCommands(window, {C::ViewFullScreen}, Qt::ToolButtonTextUnderIcon);
    Qtitan::RibbonGroup* show = view->addGroup(tr("Show"));
    addCommands(show, {C::ViewRuler, C::ViewWordWrap, C::ViewStatusBar, C::ViewReadOnly}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* zoom = view->addGroup(tr("Zoom"));
    addCommands(zoom, {C::ViewZoomIn, C::ViewZoomOut, C::ViewZoomReset}, Qt::ToolButtonTextBesideIcon);
    addGroupCommand(zoom, QStringLiteral("zoomLevels"), G::Zoom, tr("Zoom Level"),
                    range(C::ViewZoomFirst, C::ViewZoomLast), Qt::ToolButtonTextUnderIcon, ui::Simple);
    Qtitan::RibbonGroup* documents = view->addGroup(tr("Documents"));
    addCommands(documents, {C::ViewPreviousDocument, C::ViewNextDocument, C::FileClose}, Qt::ToolButtonTextBesideIcon);
}

void RibbonBuilder::addToolsPage()
{
    Qtitan::RibbonPage* tools = m_ribbon->addPage(tr("Tools"));
    Qtitan::RibbonGroup* text = tools->addGroup(tr("Text"));
    addCommands(text, {C::ToolsWordCount}, Qt::ToolButtonTextUnderIcon);
    addCommands(text, {C::ToolsSortLines, C::ToolsTrimSpaces, C::EditDuplicateLine}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* saving = tools->addGroup(tr("Saving"));
    addCommands(saving, {C::ToolsAutoSave, C::FileSaveAll}, Qt::ToolButtonTextUnderIcon);
    Qtitan::RibbonGroup* customize = tools->addGroup(tr("Customize"));
    addCommands(customize, {C::ToolsKeyboardShortcuts, C::ToolsCustomize}, Qt::ToolButtonTextUnderIcon);
}

void RibbonBuilder::addHelpPage()
{
    Qtitan::RibbonPage* help = m_ribbon->addPage(tr("Help"));
    Qtitan::RibbonGroup* group = help->addGroup(tr("Help"));
    addCommands(group, {C::HelpContents, C::HelpAbout, C::HelpAboutQt}, Qt::ToolButtonTextUnderIcon);
}

void RibbonBuilder::addQuickAccessBar()
{
    for (int id : {C::FileNew, C::FileSave, C::EditUndo, C::EditRedo}) {
        if (QAction* action = m_commands->action(id))
            m_ribbon->addQuickAction(action);
    }
}

} // namespace

ui::RibbonBar* createRibbon(DemoCommands* commands, QMenu* panelsMenu, QMenu* styleMenu, QWidget* parent)
{
    auto* ribbon = new ui::RibbonBar(QStringLiteral("DemoRibbon"), parent);
    ribbon->setObjectName(QStringLiteral("demoRibbon"));
    RibbonBuilder builder(ribbon, commands);
    builder.addSystemMenu();
    builder.addHomePage();
    builder.addInsertPage();
    builder.addViewPage(panelsMenu, styleMenu);
    builder.addToolsPage();
    builder.addHelpPage();
    builder.addQuickAccessBar();
    return ribbon;
}

} // namespace demo
