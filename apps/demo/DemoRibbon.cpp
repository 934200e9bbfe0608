#include "DemoRibbon.h"

#include "DemoCommands.h"
#include "DemoFontSizeAction.h"
#include "DemoMenus.h"
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
    void addQuickAccessBar();

private:
    void addCommands(Qtitan::RibbonGroup* group, const QList<int>& ids, Qt::ToolButtonStyle style);
    QAction* ribbonAction(const QString& name, const QIcon& icon, const QString& text);
    QMenu* commandMenu(const QList<int>& ids);
    QMenu* rangeMenu(int first, int last);
    void addGroupCommand(Qtitan::RibbonGroup* group, const QString& name, const QIcon& icon, const QString& text,
                         QMenu* menu, Qt::ToolButtonStyle style, ui::GroupButtonType type);
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

QMenu* RibbonBuilder::commandMenu(const QList<int>& ids)
{
    auto* menu = new QMenu(m_ribbon);
    for (int id : ids) {
        if (id == 0)
            menu->addSeparator();
        else if (QAction* action = m_commands->action(id))
            menu->addAction(action);
    }
    return menu;
}

QMenu* RibbonBuilder::rangeMenu(int first, int last)
{
    QList<int> ids;
    for (int id = first; id <= last; ++id)
        ids << id;
    return commandMenu(ids);
}

// A group command: a button whose menu holds commands; its kind decides what its face shows.
void RibbonBuilder::addGroupCommand(Qtitan::RibbonGroup* group, const QString& name, const QIcon& icon,
                                    const QString& text, QMenu* menu, Qt::ToolButtonStyle style,
                                    ui::GroupButtonType type)
{
    QAction* action = ribbonAction(name, icon, text);
    action->setMenu(menu);
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
    file->setMenu(commandMenu({C::FileNew, C::FileOpen, C::FileSave, C::FileSaveAs, C::FileSaveAll, 0,
                               C::FileExportHtml, C::FileExportText, C::FileProperties, 0, C::FileClose,
                               C::FileCloseAll}));
    m_ribbon->setSystemButtonAction(file);

    // Options opens the keyboard shortcuts window, whose edits are kept.
    QAction* options = ribbonAction(QStringLiteral("options"), IconPainter::icon(IconPainter::ToolBar), tr("Options"));
    QAction* shortcuts = m_commands->action(C::ToolsKeyboardShortcuts);
    QObject::connect(options, &QAction::triggered, shortcuts, &QAction::trigger);
    m_ribbon->addPopupBarAction(options);
    if (QAction* exit = m_commands->action(C::FileExit))
        m_ribbon->addPopupBarAction(exit);
}

void RibbonBuilder::addHomePage()
{
    Qtitan::RibbonPage* home = m_ribbon->addPage(tr("Home"));
    // Paste always shows Paste; the plain text variant is in its menu.
    Qtitan::RibbonGroup* clipboard = home->addGroup(tr("Clipboard"));
    QAction* paste = m_commands->action(C::EditPaste);
    addGroupCommand(clipboard, QStringLiteral("paste"), paste->icon(), paste->text(),
                    commandMenu({C::EditPaste, C::EditPastePlain}), Qt::ToolButtonTextUnderIcon, ui::DynamicLite);
    addCommands(clipboard, {C::EditCut, C::EditCopy}, Qt::ToolButtonTextBesideIcon);

    Qtitan::RibbonGroup* undo = home->addGroup(tr("Undo"));
    addCommands(undo, {C::EditUndo, C::EditRedo}, Qt::ToolButtonTextBesideIcon);

    // Text Color remembers the colour picked last; a separator and the size box follow.
    Qtitan::RibbonGroup* font = home->addGroup(tr("Font"));
    addCommands(font,
                {C::FormatBold, C::FormatItalic, C::FormatUnderline, C::FormatStrikeOut, C::FormatSuperscript,
                 C::FormatSubscript, C::FormatHighlight, C::FormatGrowFont, C::FormatShrinkFont, C::FormatClear},
                Qt::ToolButtonIconOnly);
    addGroupCommand(font, QStringLiteral("textColor"), IconPainter::icon(IconPainter::TextColor), tr("Text Color"),
                    rangeMenu(C::FormatColorFirst, C::FormatColorLast), Qt::ToolButtonIconOnly, ui::Dynamic);
    auto* separator = new QAction(m_ribbon);
    separator->setSeparator(true);
    font->addAction(separator);
    font->addAction(new DemoFontSizeAction(m_commands, m_ribbon));

    Qtitan::RibbonGroup* paragraph = home->addGroup(tr("Paragraph"));
    addCommands(paragraph,
                {C::FormatAlignLeft, C::FormatAlignCenter, C::FormatAlignRight, C::FormatAlignJustify,
                 C::FormatOutdent, C::FormatIndent, C::InsertBulletList, C::InsertNumberedList},
                Qt::ToolButtonIconOnly);
    Qtitan::RibbonGroup* editing = home->addGroup(tr("Editing"));
    addCommands(editing, {C::EditFind, C::EditReplace, C::EditSelectAll}, Qt::ToolButtonTextBesideIcon);
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
    addGroupCommand(text, QStringLiteral("symbol"), IconPainter::icon(IconPainter::Symbol), tr("Symbol"),
                    rangeMenu(C::InsertSymbolFirst, C::InsertSymbolLast), Qt::ToolButtonTextUnderIcon, ui::Simple);
}

void RibbonBuilder::addViewPage(QMenu* panelsMenu, QMenu* styleMenu)
{
    Qtitan::RibbonPage* view = m_ribbon->addPage(tr("View"));
    Qtitan::RibbonGroup* window = view->addGroup(tr("Window"));
    addMenuButton(window, panelsMenu, IconPainter::icon(IconPainter::ToolBar), tr("Panels"), QStringLiteral("panels"));
    addMenuButton(window, styleMenu, IconPainter::icon(IconPainter::TextColor, QColor(43, 87, 154)), tr("Style"),
                  QStringLiteral("style"));
    Qtitan::RibbonGroup* show = view->addGroup(tr("Show"));
    addCommands(show, {C::ViewRuler, C::ViewWordWrap, C::ViewStatusBar}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* zoom = view->addGroup(tr("Zoom"));
    addCommands(zoom, {C::ViewZoomIn, C::ViewZoomOut, C::ViewZoomReset}, Qt::ToolButtonTextBesideIcon);
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
    builder.addQuickAccessBar();
    return ribbon;
}

} // namespace demo
