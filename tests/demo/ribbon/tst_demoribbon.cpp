#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoFiles.h"
#include "DemoFontSizeAction.h"
#include "DemoMenus.h"
#include "DemoRibbonSerializer.h"
#include "DemoSettings.h"
#include "DemoWindow.h"
#include "DemoWindowLayout.h"

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QWidgetAction>
#include <QtTest>

#include <functional>

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

using C = DemoCommands;

// The registered commands a menu offers, its submenus walked into; its
// menus filled when they open are listed by class.
void collectMenu(QMenu* menu, QSet<int>& ids, QStringList& dynamicMenus)
{
    for (QAction* action : menu->actions()) {
        if (action->property("isDynamic").toBool() && action->menu()) {
            dynamicMenus << QString::fromLatin1(action->menu()->metaObject()->className());
            continue;
        }
        if (action->data().toInt() > 0)
            ids.insert(action->data().toInt());
        if (action->menu())
            collectMenu(action->menu(), ids, dynamicMenus);
    }
}

// The same for the actions of a ribbon group (or of the system menu's bar),
// with the entries of the group's boxes.
void collectRibbonActions(Qtitan::RibbonGroup* group, const QList<QAction*>& actions, QSet<int>& ids,
                          QStringList& dynamicMenus)
{
    for (QAction* action : actions) {
        if (qobject_cast<QWidgetAction*>(action)) {
            QWidget* control = group ? group->controlByAction(action) : nullptr;
            for (QComboBox* combo : control ? control->findChildren<QComboBox*>() : QList<QComboBox*>()) {
                for (int i = 0; i < combo->count(); ++i) {
                    if (combo->itemData(i).toInt() > 0)
                        ids.insert(combo->itemData(i).toInt());
                }
            }
            continue;
        }
        if (action->property("isDynamic").toBool() && action->menu()) {
            dynamicMenus << QString::fromLatin1(action->menu()->metaObject()->className());
            continue;
        }
        if (action->data().toInt() > 0)
            ids.insert(action->data().toInt());
        if (action->menu())
            collectMenu(action->menu(), ids, dynamicMenus);
    }
}

// A shown demo window with one new document, and the boxes of its Font group.
struct FontGroupFixture
{
    QTemporaryDir dir;
    DemoWindow window{dir.filePath(QStringLiteral("settings.dat"))};
    DemoDocument* doc = window.commands()->files()->newDocument();

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }
    ui::RibbonBar* ribbon() { return ribbonOf(window); }
    Qtitan::RibbonGroup* font() { return group(ribbon(), QStringLiteral("Font")); }
    QWidget* control(const char* name)
    {
        return font()->controlByAction(named(ribbon(), QString::fromLatin1(name)));
    }
    QComboBox* sizeBox() { return control("ribbon.fontSize")->findChild<QComboBox*>(); }
    QFontComboBox* familyBox() { return control("ribbon.fontFamily")->findChild<QFontComboBox*>(); }
};

} // namespace

class tst_DemoRibbon : public QObject
{
    Q_OBJECT

private slots:
    void builtRibbon();
    void layoutSurvivesRestart();
    void resetLayoutDropsIt();
    void ribbonOffersEveryMenuCommand();
    void buttonLabelsKeepTheirWidthWhileTyping();
    void readOnlyDisablesEveryFontControl();
    void textColorNeverLooksPressed();
    void fontBoxesFollowTheCursorAndApply();
    void fontSizeCountsHeadingsAndIgnoresZoom();
    void fontSizeTypedIntoTheBoxApplies();
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
    // Options, Customize… and Exit along the bottom.
    QCOMPARE(menu->popupBarActions().size(), 3);
    QCOMPARE(menu->popupBarActions().at(1), window.commands()->action(DemoCommands::ToolsCustomize));
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
    QCOMPARE(editing->actions().last(), named(ribbon, QStringLiteral("ribbon.find")));
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

void tst_DemoRibbon::ribbonOffersEveryMenuCommand()
{
    QTemporaryDir dir;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")));
    QSet<int> menuIds;
    QStringList menuDynamic;
    collectMenu(window.commands()->menus().root(), menuIds, menuDynamic);
    QVERIFY(menuIds.size() >= 100);

    ui::RibbonBar* ribbon = ribbonOf(window);
    QSet<int> ribbonIds;
    QStringList ribbonDynamic;
    QAction* system = ribbon->systemButton()->defaultAction();
    collectMenu(system->menu(), ribbonIds, ribbonDynamic);
    collectRibbonActions(nullptr, qobject_cast<Qtitan::RibbonSystemMenu*>(system->menu())->popupBarActions(),
                         ribbonIds, ribbonDynamic);
    for (Qtitan::RibbonPage* page : ribbon->pages()) {
        for (Qtitan::RibbonGroup* g : page->groups())
            collectRibbonActions(g, g->actions(), ribbonIds, ribbonDynamic);
    }

    QStringList missing;
    for (int id : qAsConst(menuIds)) {
        if (!ribbonIds.contains(id))
            missing << window.commands()->action(id)->text();
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QStringLiteral(", "))));
    // The menus filled when they open: the panels and the styles.
    menuDynamic.sort();
    ribbonDynamic.sort();
    QCOMPARE(menuDynamic, (QStringList{QStringLiteral("demo::StyleMenu"), QStringLiteral("ui::DockListMenu")}));
    QCOMPARE(ribbonDynamic, menuDynamic);
    // Among them the ones a user would look for on a ribbon.
    for (int id : {C::ToolsKeyboardShortcuts, C::HelpAbout, C::ViewReadOnly, C::ViewFullScreen})
        QVERIFY(ribbonIds.contains(id));
    QVERIFY(qobject_cast<QWidgetAction*>(named(ribbon, QStringLiteral("ribbon.fontFamily"))));
}

void tst_DemoRibbon::buttonLabelsKeepTheirWidthWhileTyping()
{
    QTemporaryDir dir;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")));
    DemoDocument* doc = window.commands()->files()->newDocument();
    window.resize(1400, 800);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    ui::RibbonBar* ribbon = ribbonOf(window);
    ribbon->setCurrentPageIndex(0);
    QCoreApplication::processEvents();
    Qtitan::RibbonGroup* undo = group(ribbon, QStringLiteral("Undo"));
    QWidget* undoButton = undo->controlByAction(window.commands()->action(C::EditUndo));
    QVERIFY(undoButton);
    const auto geometries = [&] {
        QList<QRect> list{undoButton->geometry()};
        for (Qtitan::RibbonGroup* g : ribbon->page(0)->groups())
            list << g->geometry();
        return list;
    };
    const QList<QRect> before = geometries();

    doc->setFocus();
    QTest::keyClicks(doc, QStringLiteral("some words"));
    QCoreApplication::processEvents();
    QCOMPARE(window.commands()->action(C::EditUndo)->toolTip().section(QStringLiteral(" ("), 0, 0),
             QStringLiteral("Undo typing"));
    doc->selectAll();
    window.commands()->action(C::EditLowerCase)->trigger();
    QCoreApplication::processEvents();
    QVERIFY(window.commands()->action(C::EditUndo)->toolTip().startsWith(QStringLiteral("Undo lower")));
    QCOMPARE(geometries(), before);
}

void tst_DemoRibbon::readOnlyDisablesEveryFontControl()
{
    FontGroupFixture f;
    QVERIFY(f.show());
    DemoWindow& window = f.window;
    DemoDocument* doc = f.doc;
    ui::RibbonBar* ribbon = f.ribbon();
    Qtitan::RibbonGroup* font = f.font();
    QWidget* sizeBox = f.sizeBox();
    QWidget* familyBox = f.familyBox();
    QVERIFY(sizeBox && familyBox);
    QAction* color = named(ribbon, QStringLiteral("ribbon.textColor"));
    const auto fontControls = [&] {
        QList<bool> enabled{sizeBox->isEnabled(), familyBox->isEnabled(), color->isEnabled()};
        for (QAction* action : font->actions()) {
            if (action->data().toInt() > 0)
                enabled << action->isEnabled();
        }
        return enabled;
    };
    QTRY_VERIFY(!fontControls().contains(false));
    window.commands()->action(C::ViewReadOnly)->trigger();
    QVERIFY(doc->isReadOnly());
    QTRY_VERIFY(!fontControls().contains(true));
    window.commands()->action(C::ViewReadOnly)->trigger();
    QTRY_VERIFY(!fontControls().contains(false));
}

void tst_DemoRibbon::textColorNeverLooksPressed()
{
    QTemporaryDir dir;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")));
    DemoDocument* doc = window.commands()->files()->newDocument();
    doc->setPlainText(QStringLiteral("colour me"));
    doc->selectAll();
    QAction* color = named(ribbonOf(window), QStringLiteral("ribbon.textColor"));
    QCoreApplication::processEvents();
    QVERIFY(!color->isChecked());
    window.commands()->action(C::FormatColorFirst + 1)->trigger();
    QCoreApplication::processEvents();
    QVERIFY(!color->isChecked());
    // Its face stands for the colour picked last.
    QCOMPARE(color->text(), window.commands()->action(C::FormatColorFirst + 1)->text());
}

void tst_DemoRibbon::fontBoxesFollowTheCursorAndApply()
{
    FontGroupFixture f;
    QVERIFY(f.show());
    DemoDocument* doc = f.doc;
    QComboBox* sizeBox = f.sizeBox();
    QFontComboBox* familyBox = f.familyBox();

    doc->setHtml(QStringLiteral("<p>plain <span style=\"font-size:18pt; font-family:'DejaVu Serif'\">big</span></p>"));
    QTextCursor cursor = doc->textCursor();
    cursor.setPosition(8);
    doc->setTextCursor(cursor);
    QTRY_COMPARE(sizeBox->currentText(), QStringLiteral("18"));
    QTRY_COMPARE(familyBox->currentFont().family(), QStringLiteral("DejaVu Serif"));
    cursor.setPosition(2);
    doc->setTextCursor(cursor);
    QTRY_COMPARE(sizeBox->currentText(), QStringLiteral("11"));
    QVERIFY(familyBox->currentFont().family() != QStringLiteral("DejaVu Serif"));

    // Choosing in the boxes formats the word under the cursor.
    const int index = sizeBox->findText(QStringLiteral("24"));
    QVERIFY(index >= 0);
    sizeBox->setCurrentIndex(index);
    emit sizeBox->activated(index);
    emit familyBox->textActivated(QStringLiteral("DejaVu Sans Mono"));
    QTextCursor probe(doc->document());
    probe.setPosition(2);
    QCOMPARE(probe.charFormat().fontPointSize(), 24.0);
    QCOMPARE(probe.charFormat().fontFamily(), QStringLiteral("DejaVu Sans Mono"));
}

void tst_DemoRibbon::fontSizeCountsHeadingsAndIgnoresZoom()
{
    FontGroupFixture f;
    QVERIFY(f.show());
    DemoWindow& window = f.window;
    DemoDocument* doc = f.doc;
    QComboBox* sizeBox = f.sizeBox();
    QVERIFY(sizeBox);

    // Twice the body size: 22 pt, which the box does not list.
    doc->setHtml(QStringLiteral("<h1>Title</h1><p>body</p>"));
    QTextCursor cursor = doc->textCursor();
    cursor.setPosition(2);
    doc->setTextCursor(cursor);
    QTRY_COMPARE(sizeBox->currentIndex(), -1);
    QCOMPARE(doc->currentPointSize(), 22.0);
    // Shown all the same.
    QCOMPARE(sizeBox->currentText(), QStringLiteral("22"));
    // Grow Font steps from the heading's size, not from the body's.
    window.commands()->action(C::FormatGrowFont)->trigger();
    QTextCursor probe(doc->document());
    probe.setPosition(2);
    QCOMPARE(probe.charFormat().fontPointSize(), 24.0);

    // Zooming the document changes no size the user set.
    cursor.setPosition(doc->document()->characterCount() - 2);
    doc->setTextCursor(cursor);
    doc->setZoom(200);
    QCOMPARE(doc->currentPointSize(), 11.0);
    QTRY_COMPARE(sizeBox->currentText(), QStringLiteral("11"));
}

void tst_DemoRibbon::fontSizeTypedIntoTheBoxApplies()
{
    FontGroupFixture f;
    QVERIFY(f.show());
    DemoDocument* doc = f.doc;
    QComboBox* sizeBox = f.sizeBox();
    QVERIFY(sizeBox && sizeBox->isEditable());
    doc->setPlainText(QStringLiteral("some words"));
    QTextCursor cursor = doc->textCursor();
    cursor.setPosition(2);
    doc->setTextCursor(cursor);
    QTRY_COMPARE(sizeBox->currentText(), QStringLiteral("11"));

    // A size the list lacks; the box takes digits only.
    sizeBox->setFocus();
    sizeBox->lineEdit()->selectAll();
    QTest::keyClicks(sizeBox->lineEdit(), QStringLiteral("15x"));
    QCOMPARE(sizeBox->currentText(), QStringLiteral("15"));
    QTest::keyClick(sizeBox->lineEdit(), Qt::Key_Return);
    QTextCursor probe(doc->document());
    probe.setPosition(2);
    QCOMPARE(probe.charFormat().fontPointSize(), 15.0);
    // Typing goes on in the document.
    QCOMPARE(QApplication::focusWidget(), doc);
    // Beyond the largest size the box takes no more digits.
    sizeBox->setFocus();
    sizeBox->lineEdit()->selectAll();
    QTest::keyClicks(sizeBox->lineEdit(), QStringLiteral("4001"));
    QCOMPARE(sizeBox->currentText(), QStringLiteral("400"));
}

QTEST_MAIN(tst_DemoRibbon)
#include "tst_demoribbon.moc"
