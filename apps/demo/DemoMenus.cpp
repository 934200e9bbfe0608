#include "DemoMenus.h"

#include "DemoCommands.h"
#include "DemoWindow.h"

#include <QAction>
#include <QMenu>

using C = DemoCommands;

DemoMenus::DemoMenus(DemoCommands& commands)
    : m_commands(commands)
{
    m_root = new QMenu(tr("Commands"), commands.window());
    const QStringList titles = {tr("&File"), tr("&Edit"), tr("&View"), tr("&Insert"), tr("F&ormat"), tr("&Tools"),
                                tr("&Help")};
    for (const QString& title : titles) {
        QMenu* menu = newMenu(title);
        m_categories.append(menu);
        m_root->addMenu(menu);
    }
    buildFile();
    buildEdit();
    buildView();
    buildInsert();
    buildFormat();
    addToMenu(m_categories[Tools], {C::ToolsWordCount, 0, C::ToolsSortLines, C::ToolsTrimSpaces, 0, C::ToolsAutoSave,
                                    0, C::ToolsKeyboardShortcuts, C::ToolsCustomize});
    addToMenu(m_categories[Help], {C::HelpContents, 0, C::HelpAbout, C::HelpAboutQt});
}

QMenu* DemoMenus::newMenu(const QString& title, QMenu* parent)
{
    QMenu* menu = parent ? parent->addMenu(title) : new QMenu(title, m_commands.window());
    menu->setToolTipsVisible(true);
    return menu;
}

void DemoMenus::addToMenu(QMenu* menu, const QList<int>& ids)
{
    for (int id : ids) {
        if (id == 0)
            menu->addSeparator();
        else if (QAction* a = m_commands.action(id))
            menu->addAction(a);
    }
}

void DemoMenus::addRange(QMenu* menu, int first, int last)
{
    for (int id = first; id <= last; ++id)
        addToMenu(menu, {id});
}

void DemoMenus::buildFile()
{
    QMenu* file = m_categories[File];
    addToMenu(file, {C::FileNew, C::FileOpen});
    QMenu* recent = newMenu(tr("Recent &Files"), file);
    recent->setIcon(IconPainter::icon(IconPainter::Recent));
    addRange(recent, C::FileRecentFirst, C::FileRecentLast);
    addToMenu(recent, {0, C::FileClearRecent});
    addToMenu(file, {0, C::FileSave, C::FileSaveAs, C::FileSaveAll, C::FileRevert, 0});
    QMenu* exportMenu = newMenu(tr("&Export"), file);
    exportMenu->setIcon(IconPainter::icon(IconPainter::ExportHtml));
    addToMenu(exportMenu, {C::FileExportHtml, C::FileExportText});
    addToMenu(file, {C::FileProperties, 0, C::FileClose, C::FileCloseAll, 0, C::FileExit});
}

void DemoMenus::buildEdit()
{
    QMenu* edit = m_categories[Edit];
    addToMenu(edit, {C::EditUndo, C::EditRedo, 0, C::EditCut, C::EditCopy, C::EditPaste, C::EditPastePlain,
                     C::EditDelete, 0, C::EditSelectAll, C::EditDuplicateLine, 0, C::EditFind, C::EditFindNext,
                     C::EditFindPrevious, C::EditReplace, 0});
    QMenu* changeCase = newMenu(tr("C&hange Case"), edit);
    addToMenu(changeCase, {C::EditUpperCase, C::EditLowerCase});
}

void DemoMenus::buildView()
{
    QMenu* view = m_categories[View];
    QMenu* zoom = newMenu(tr("&Zoom"), view);
    zoom->setIcon(IconPainter::icon(IconPainter::Zoom));
    addToMenu(zoom, {C::ViewZoomIn, C::ViewZoomOut, C::ViewZoomReset, 0});
    addRange(zoom, C::ViewZoomFirst, C::ViewZoomLast);
    addToMenu(view, {0, C::ViewWordWrap, C::ViewRuler, C::ViewReadOnly, 0});
    QMenu* bars = newMenu(tr("&Toolbars"), view);
    addToMenu(bars, {C::ViewToolBarStandard, C::ViewToolBarFormat});
    addToMenu(view, {C::ViewStatusBar, C::ViewFullScreen, 0, C::ViewNextDocument, C::ViewPreviousDocument});
}

void DemoMenus::buildInsert()
{
    QMenu* insert = m_categories[Insert];
    addToMenu(insert, {C::InsertDate, C::InsertTime, 0, C::InsertTable, C::InsertImage, C::InsertHorizontalLine, 0,
                       C::InsertBulletList, C::InsertNumberedList, C::InsertLink, 0});
    QMenu* symbol = newMenu(tr("&Symbol"), insert);
    symbol->setIcon(IconPainter::icon(IconPainter::Symbol));
    addRange(symbol, C::InsertSymbolFirst, C::InsertSymbolLast);
}

void DemoMenus::buildFormat()
{
    QMenu* format = m_categories[Format];
    addToMenu(format, {C::FormatFont, 0, C::FormatBold, C::FormatItalic, C::FormatUnderline, C::FormatStrikeOut, C::FormatSuperscript,
                       C::FormatSubscript, C::FormatHighlight, 0});
    QMenu* size = newMenu(tr("Font Si&ze"), format);
    size->setIcon(IconPainter::icon(IconPainter::FontSize));
    addToMenu(size, {C::FormatGrowFont, C::FormatShrinkFont, 0});
    addRange(size, C::FormatSizeFirst, C::FormatSizeLast);
    QMenu* color = newMenu(tr("Text &Colour"), format);
    color->setIcon(IconPainter::icon(IconPainter::TextColor));
    addRange(color, C::FormatColorFirst, C::FormatColorLast);
    addToMenu(format, {0});
    QMenu* paragraph = newMenu(tr("&Paragraph"), format);
    paragraph->setIcon(IconPainter::icon(IconPainter::AlignLeft));
    addToMenu(paragraph, {C::FormatAlignLeft, C::FormatAlignCenter, C::FormatAlignRight, C::FormatAlignJustify, 0,
                          C::FormatIndent, C::FormatOutdent});
    addToMenu(format, {0, C::FormatClear});
}

QList<QAction*> DemoMenus::contextActions() const
{
    QList<QAction*> list;
    for (int id : {int(C::EditUndo), int(C::EditRedo), 0, int(C::EditCut), int(C::EditCopy), int(C::EditPaste), 0,
                   int(C::EditSelectAll), 0, int(C::FormatBold), int(C::FormatItalic), int(C::FormatUnderline), 0,
                   int(C::InsertLink)})
        list.append(id ? m_commands.action(id) : nullptr);
    return list;
}
