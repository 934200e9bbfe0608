#include "DemoRibbonCommands.h"

#include "DemoCommands.h"
#include "DemoIcons.h"
#include "DemoShortcutsDialog.h"

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QWidgetAction>

namespace demo {

namespace {

using C = DemoCommands;

Qtitan::RibbonGroup* findGroup(ui::RibbonBar* ribbon, const QString& title)
{
    for (Qtitan::RibbonPage* page : ribbon->pages()) {
        for (Qtitan::RibbonGroup* group : page->groups()) {
            if (group->title() == title)
                return group;
        }
    }
    return nullptr;
}

// An action of the ribbon's own: a child of the ribbon (so it outlives the
// pages a restored layout replaces) with a stable name for the stored layout.
QAction* ribbonAction(ui::RibbonBar* ribbon, const QString& name, const QIcon& icon, const QString& text)
{
    auto* action = new QAction(icon, text, ribbon);
    action->setObjectName(QStringLiteral("ribbon.") + name);
    return action;
}

QMenu* commandMenu(ui::RibbonBar* ribbon, DemoCommands* commands, int first, int last)
{
    auto* menu = new QMenu(ribbon);
    for (int id = first; id <= last; ++id) {
        if (QAction* action = commands->action(id))
            menu->addAction(action);
    }
    return menu;
}

// A group command: a button whose menu holds commands; its kind decides what its face shows.
QAction* addGroupCommand(ui::RibbonBar* ribbon, Qtitan::RibbonGroup* group, QAction* before, const QString& name,
                         const QIcon& icon, const QString& text, QMenu* menu, Qt::ToolButtonStyle style,
                         ui::GroupButtonType type)
{
    QAction* action = ribbonAction(ribbon, name, icon, text);
    action->setMenu(menu);
    group->insertAction(before, action);
    ui::setActionButtonStyle(group, action, style);
    ui::setGroupButtonType(group, action, type);
    return action;
}

// The font size box: picks one of the font size commands.
class FontSizeAction : public QWidgetAction
{
public:
    FontSizeAction(DemoCommands* commands, QObject* parent) : QWidgetAction(parent), m_commands(commands)
    {
        setObjectName(QStringLiteral("ribbon.fontSize"));
        setText(QObject::tr("Font Size"));
    }

protected:
    QWidget* createWidget(QWidget* parent) override
    {
        auto* box = new QComboBox(parent);
        box->setToolTip(QObject::tr("Font size"));
        const QList<int> sizes = DemoCommands::fontSizes();
        for (int size : sizes)
            box->addItem(QString::number(size));
        box->setCurrentIndex(qMax(0, sizes.indexOf(11)));
        DemoCommands* commands = m_commands;
        QObject::connect(box, QOverload<int>::of(&QComboBox::activated), box, [commands](int index) {
            if (QAction* size = commands->action(DemoCommands::FormatSizeFirst + index))
                size->trigger();
        });
        return box;
    }

private:
    DemoCommands* m_commands;
};

void fillSystemMenu(ui::RibbonBar* ribbon, DemoCommands* commands, QWidget* window)
{
    QAction* file = ribbonAction(ribbon, QStringLiteral("file"), QIcon(), QObject::tr("File"));
    file->setToolTip(QObject::tr("Create, open, save and export documents"));
    auto* menu = new QMenu(ribbon);
    for (int id : std::initializer_list<int>{C::FileNew, C::FileOpen, C::FileSave, C::FileSaveAs, C::FileSaveAll, 0, C::FileExportHtml,
                   C::FileExportText, C::FileProperties, 0, C::FileClose, C::FileCloseAll}) {
        if (id == 0)
            menu->addSeparator();
        else if (QAction* action = commands->action(id))
            menu->addAction(action);
    }
    file->setMenu(menu);
    ribbon->setSystemButtonAction(file);

    QAction* options = ribbonAction(ribbon, QStringLiteral("options"), DemoIcons::icon(DemoIcons::ToolBar),
                                    QObject::tr("Options"));
    QObject::connect(options, &QAction::triggered, window, [commands, window] {
        DemoShortcutsDialog dialog(commands->rootMenu(), window);
        if (dialog.exec() == QDialog::Accepted)
            dialog.apply();
    });
    ribbon->addPopupBarAction(options);
    if (QAction* exit = commands->action(C::FileExit))
        ribbon->addPopupBarAction(exit);
}

} // namespace

void addRibbonCommands(ui::RibbonBar* ribbon, DemoCommands* commands, QWidget* window)
{
    fillSystemMenu(ribbon, commands, window);

    // Paste always shows Paste; the plain text variant is in its menu.
    if (Qtitan::RibbonGroup* clipboard = findGroup(ribbon, QObject::tr("Clipboard"))) {
        QAction* paste = commands->action(C::EditPaste);
        QAction* first = clipboard->actions().value(0);
        QAction* before = first == paste ? clipboard->actions().value(1) : first;
        clipboard->removeAction(paste);
        clipboard->removeAction(commands->action(C::EditPastePlain));
        auto* menu = new QMenu(ribbon);
        menu->addAction(paste);
        menu->addAction(commands->action(C::EditPastePlain));
        addGroupCommand(ribbon, clipboard, before, QStringLiteral("paste"), paste->icon(), paste->text(), menu,
                        Qt::ToolButtonTextUnderIcon, ui::DynamicLite);
    }

    // Text Color remembers the colour picked last; a separator and the size box follow.
    if (Qtitan::RibbonGroup* font = findGroup(ribbon, QObject::tr("Font"))) {
        addGroupCommand(ribbon, font, nullptr, QStringLiteral("textColor"), DemoIcons::icon(DemoIcons::TextColor),
                        QObject::tr("Text Color"), commandMenu(ribbon, commands, C::FormatColorFirst, C::FormatColorLast),
                        Qt::ToolButtonIconOnly, ui::Dynamic);
        auto* separator = new QAction(ribbon);
        separator->setSeparator(true);
        font->addAction(separator);
        font->addAction(new FontSizeAction(commands, ribbon));
    }

    // Symbol only opens its menu.
    if (Qtitan::RibbonGroup* text = findGroup(ribbon, QObject::tr("Text"))) {
        addGroupCommand(ribbon, text, nullptr, QStringLiteral("symbol"), DemoIcons::icon(DemoIcons::Symbol),
                        QObject::tr("Symbol"), commandMenu(ribbon, commands, C::InsertSymbolFirst, C::InsertSymbolLast),
                        Qt::ToolButtonTextUnderIcon, ui::Simple);
    }

    Qtitan::RibbonPage* tools = ribbon->addPage(QObject::tr("Tools"));
    Qtitan::RibbonGroup* text = tools->addGroup(QObject::tr("Text"));
    if (QAction* count = commands->action(C::ToolsWordCount)) {
        text->addAction(count);
        ui::setActionButtonStyle(text, count, Qt::ToolButtonTextUnderIcon);
    }
    for (int id : {C::ToolsSortLines, C::ToolsTrimSpaces, C::EditDuplicateLine}) {
        if (QAction* action = commands->action(id)) {
            text->addAction(action);
            ui::setActionButtonStyle(text, action, Qt::ToolButtonTextBesideIcon);
        }
    }
    Qtitan::RibbonGroup* saving = tools->addGroup(QObject::tr("Saving"));
    for (int id : {C::ToolsAutoSave, C::FileSaveAll}) {
        if (QAction* action = commands->action(id)) {
            saving->addAction(action);
            ui::setActionButtonStyle(saving, action, Qt::ToolButtonTextUnderIcon);
        }
    }

    ribbon->clearQuickActions();
    for (int id : {C::FileNew, C::FileSave, C::EditUndo, C::EditRedo}) {
        if (QAction* action = commands->action(id))
            ribbon->addQuickAction(action);
    }
}

} // namespace demo
