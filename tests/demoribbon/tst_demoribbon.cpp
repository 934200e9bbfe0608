#include "DemoCommands.h"
#include "DemoRibbonSerializer.h"
#include "DemoSettings.h"
#include "DemoWindow.h"
#include "DemoWindowLayout.h"

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QTemporaryDir>
#include <QWidgetAction>
#include <QtTest>

namespace {

ui::RibbonBar* ribbonOf(DemoWindow& window)
{
    return qobject_cast<ui::RibbonBar*>(window.ribbonBar());
}

Qtitan::RibbonGroup* group(ui::RibbonBar* ribbon, const QString& title)
{
    for (Qtitan::RibbonPage* page : ribbon->pages()) {
        for (Qtitan::RibbonGroup* g : page->groups()) {
            if (g->title() == title)
                return g;
        }
    }
    return nullptr;
}

QAction* named(ui::RibbonBar* ribbon, const QString& name)
{
    return ribbon->findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
}

} // namespace

class tst_DemoRibbon : public QObject
{
    Q_OBJECT

private slots:
    void builtRibbon();
    void layoutSurvivesRestart();
    void resetLayoutDropsIt();
};

void tst_DemoRibbon::builtRibbon()
{
    QTemporaryDir dir;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")));
    ui::RibbonBar* ribbon = ribbonOf(window);
    QVERIFY(ribbon);
    QVERIFY(ribbon->pageCount() >= 4);
    Qtitan::RibbonGroup* clipboard = group(ribbon, QObject::tr("Clipboard"));
    QAction* paste = named(ribbon, QStringLiteral("ribbon.paste"));
    QVERIFY(paste && clipboard->actions().contains(paste));
    QCOMPARE(ui::getGroupButtonType(clipboard, paste), ui::DynamicLite);
    Qtitan::RibbonGroup* font = group(ribbon, QObject::tr("Font"));
    QAction* color = named(ribbon, QStringLiteral("ribbon.textColor"));
    QCOMPARE(ui::getGroupButtonType(font, color), ui::Dynamic);
    QVERIFY(qobject_cast<QWidgetAction*>(named(ribbon, QStringLiteral("ribbon.fontSize"))));
    bool separator = false;
    for (QAction* action : font->actions())
        separator = separator || action->isSeparator();
    QVERIFY(separator);
    QAction* symbol = named(ribbon, QStringLiteral("ribbon.symbol"));
    QCOMPARE(ui::getGroupButtonType(group(ribbon, QObject::tr("Text")), symbol), ui::Simple);
    QCOMPARE(ribbon->quickAccessBar()->actions().size(), 4);
    QAction* system = ribbon->systemButton()->defaultAction();
    QCOMPARE(system->text(), QObject::tr("File"));
    QVERIFY(system->menu()->actions().contains(window.commands()->action(DemoCommands::FileOpen)));
    auto* menu = qobject_cast<Qtitan::RibbonSystemMenu*>(system->menu());
    QCOMPARE(menu->popupBarActions().size(), 2);
    QCOMPARE(menu->popupBarActions().last(), window.commands()->action(DemoCommands::FileExit));
}

void tst_DemoRibbon::layoutSurvivesRestart()
{
    QTemporaryDir dir;
    const QString settings = dir.filePath(QStringLiteral("settings.dat"));
    QByteArray layout;
    {
        DemoWindow window(settings);
        ui::RibbonBar* ribbon = ribbonOf(window);
        // The user's changes: a command moved, a style changed, one quick command dropped.
        Qtitan::RibbonGroup* editing = group(ribbon, QObject::tr("Editing"));
        ui::moveAction(editing, 0, 99);
        ui::setActionButtonStyle(editing, editing->actions().first(), Qt::ToolButtonTextUnderIcon);
        ribbon->removeQuickAction(window.commands()->action(DemoCommands::FileNew));
        ribbon->page(0)->setTitle(QStringLiteral("Start"));
        DemoWindowLayout::save(window);
        layout = window.settings().value(demo::DemoRibbonSerializer::layoutKey).toByteArray();
        QVERIFY(!layout.isEmpty());
    }
    DemoWindow window(settings);
    ui::RibbonBar* ribbon = ribbonOf(window);
    QCOMPARE(ribbon->page(0)->title(), QStringLiteral("Start"));
    Qtitan::RibbonGroup* editing = group(ribbon, QObject::tr("Editing"));
    QCOMPARE(editing->actions().last(), window.commands()->action(DemoCommands::EditFind));
    QCOMPARE(ui::actionButtonStyle(editing, editing->actions().first()), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ribbon->quickAccessBar()->actions().size(), 3);
    QVERIFY(!ribbon->quickAccessBar()->actions().contains(window.commands()->action(DemoCommands::FileNew)));
    // The ribbon's own actions come back as themselves, with their kinds.
    Qtitan::RibbonGroup* clipboard = group(ribbon, QObject::tr("Clipboard"));
    QAction* paste = named(ribbon, QStringLiteral("ribbon.paste"));
    QVERIFY(clipboard->actions().contains(paste));
    QCOMPARE(ui::getGroupButtonType(clipboard, paste), ui::DynamicLite);
    QCOMPARE(paste->menu()->actions().first(), window.commands()->action(DemoCommands::EditPaste));
    Qtitan::RibbonGroup* font = group(ribbon, QObject::tr("Font"));
    QVERIFY(font->actions().contains(named(ribbon, QStringLiteral("ribbon.fontSize"))));
    QVERIFY(qobject_cast<Qtitan::RibbonWidgetControl*>(font->controlByAction(named(ribbon, QStringLiteral("ribbon.fontSize")))));
    // Menus filled when they open keep their own menu.
    QAction* panels = named(ribbon, QStringLiteral("ribbon.panels"));
    QVERIFY(group(ribbon, QObject::tr("Window"))->actions().contains(panels));
    QVERIFY(panels->menu());
    // Saving again gives the same stream.
    QCOMPARE(demo::DemoRibbonSerializer(ribbon, window.commands()).save(), layout);
}

void tst_DemoRibbon::resetLayoutDropsIt()
{
    QTemporaryDir dir;
    const QString settings = dir.filePath(QStringLiteral("settings.dat"));
    {
        DemoWindow window(settings);
        ribbonOf(window)->page(0)->setTitle(QStringLiteral("Start"));
        DemoWindowLayout::save(window);
    }
    {
        demo::ShellOptions reset;
        reset.resetLayout = true;
        DemoWindow window(settings, nullptr, reset);
        QCOMPARE(ribbonOf(window)->page(0)->title(), QObject::tr("Home"));
    }
    DemoWindow window(settings);
    QCOMPARE(ribbonOf(window)->page(0)->title(), QObject::tr("Home"));
}

QTEST_MAIN(tst_DemoRibbon)
#include "tst_demoribbon.moc"
