#include "DemoRibbon.h"

#include "DemoCommands.h"
#include "DemoIcons.h"
#include "DemoRibbonCommands.h"

#include <tessaro/RibbonBar.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QMenu>

namespace demo {

namespace {

using C = DemoCommands;

void addCommands(Qtitan::RibbonGroup* group, DemoCommands* commands, const QList<int>& ids,
                 Qt::ToolButtonStyle style)
{
    for (int id : ids) {
        if (QAction* action = commands->action(id))
            group->addAction(action, style);
    }
}

// A big button that opens a menu of the host's, filled when it opens. The
// action belongs to the ribbon and is stored by name in the saved layout.
void addMenuButton(Qtitan::RibbonBar* ribbon, Qtitan::RibbonGroup* group, QMenu* menu, const QIcon& icon,
                   const QString& text, const QString& name)
{
    auto* action = new QAction(icon, text, ribbon);
    action->setObjectName(QStringLiteral("ribbon.") + name);
    action->setProperty("isDynamic", true);
    group->addAction(action, Qt::ToolButtonTextUnderIcon, menu, QToolButton::InstantPopup);
}

} // namespace

Qtitan::RibbonBar* createRibbon(DemoCommands* commands, QMenu* panelsMenu, QMenu* styleMenu, QWidget* parent)
{
    auto* ribbon = new ui::RibbonBar(QStringLiteral("DemoRibbon"), parent);
    ribbon->setObjectName(QStringLiteral("demoRibbon"));

    Qtitan::RibbonPage* home = ribbon->addPage(QObject::tr("Home"));
    Qtitan::RibbonGroup* clipboard = home->addGroup(QObject::tr("Clipboard"));
    addCommands(clipboard, commands, {C::EditPaste}, Qt::ToolButtonTextUnderIcon);
    addCommands(clipboard, commands, {C::EditCut, C::EditCopy, C::EditPastePlain}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* undo = home->addGroup(QObject::tr("Undo"));
    addCommands(undo, commands, {C::EditUndo, C::EditRedo}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* font = home->addGroup(QObject::tr("Font"));
    addCommands(font, commands,
                {C::FormatBold, C::FormatItalic, C::FormatUnderline, C::FormatStrikeOut, C::FormatSuperscript,
                 C::FormatSubscript, C::FormatHighlight, C::FormatGrowFont, C::FormatShrinkFont, C::FormatClear},
                Qt::ToolButtonIconOnly);
    Qtitan::RibbonGroup* paragraph = home->addGroup(QObject::tr("Paragraph"));
    addCommands(paragraph, commands,
                {C::FormatAlignLeft, C::FormatAlignCenter, C::FormatAlignRight, C::FormatAlignJustify,
                 C::FormatOutdent, C::FormatIndent, C::InsertBulletList, C::InsertNumberedList},
                Qt::ToolButtonIconOnly);
    Qtitan::RibbonGroup* editing = home->addGroup(QObject::tr("Editing"));
    addCommands(editing, commands, {C::EditFind, C::EditReplace, C::EditSelectAll}, Qt::ToolButtonTextBesideIcon);

    Qtitan::RibbonPage* insert = ribbon->addPage(QObject::tr("Insert"));
    Qtitan::RibbonGroup* tables = insert->addGroup(QObject::tr("Tables"));
    addCommands(tables, commands, {C::InsertTable}, Qt::ToolButtonTextUnderIcon);
    Qtitan::RibbonGroup* illustrations = insert->addGroup(QObject::tr("Illustrations"));
    addCommands(illustrations, commands, {C::InsertImage}, Qt::ToolButtonTextUnderIcon);
    addCommands(illustrations, commands, {C::InsertHorizontalLine}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* text = insert->addGroup(QObject::tr("Text"));
    addCommands(text, commands, {C::InsertDate, C::InsertTime, C::InsertLink}, Qt::ToolButtonTextBesideIcon);

    Qtitan::RibbonPage* view = ribbon->addPage(QObject::tr("View"));
    Qtitan::RibbonGroup* window = view->addGroup(QObject::tr("Window"));
    addMenuButton(ribbon, window, panelsMenu, DemoIcons::icon(DemoIcons::ToolBar), QObject::tr("Panels"),
                  QStringLiteral("panels"));
    addMenuButton(ribbon, window, styleMenu, DemoIcons::icon(DemoIcons::TextColor, QColor(43, 87, 154)), QObject::tr("Style"),
                  QStringLiteral("style"));
    Qtitan::RibbonGroup* show = view->addGroup(QObject::tr("Show"));
    addCommands(show, commands, {C::ViewRuler, C::ViewWordWrap, C::ViewStatusBar}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* zoom = view->addGroup(QObject::tr("Zoom"));
    addCommands(zoom, commands, {C::ViewZoomIn, C::ViewZoomOut, C::ViewZoomReset}, Qt::ToolButtonTextBesideIcon);
    Qtitan::RibbonGroup* documents = view->addGroup(QObject::tr("Documents"));
    addCommands(documents, commands, {C::ViewPreviousDocument, C::ViewNextDocument, C::FileClose},
                Qt::ToolButtonTextBesideIcon);

    for (int id : {C::FileSave, C::EditUndo, C::EditRedo}) {
        if (QAction* action = commands->action(id))
            ribbon->quickAccessBar()->addAction(action);
    }
    addRibbonCommands(ribbon, commands, parent);
    return ribbon;
}

} // namespace demo
