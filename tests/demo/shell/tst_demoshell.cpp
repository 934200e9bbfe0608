#include "DemoClassicMenuBar.h"
#include "DemoCommands.h"
#include "DemoDocks.h"
#include "DemoDocument.h"
#include "DemoDocumentArea.h"
#include "DemoFiles.h"
#include "DemoMenus.h"
#include "DemoQuickSearch.h"
#include "DemoSettings.h"
#include "DemoShellOptions.h"
#include "DemoStyles.h"
#include "DemoWelcome.h"
#include "DemoWindow.h"

#include <tessaro/DockListMenu.h>
#include <tessaro/MainWindow.h>
#include <tessaro/MdiArea.h>
#include <tessaro/MenuBar.h>
#include <tessaro/QuickSearch.h>

#include <QtitanRibbon.h>

#include <QApplication>
#include <QDockWidget>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QStyleFactory>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QToolBar>
#include <QtTest>

namespace {

class Window : public ui::MainWindow
{
public:
    using ui::MainWindow::getSupportedStyles;
};

} // namespace

class tst_DemoShell : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void everySupportedStyleIsReportedBack();
    void labelsAreReadableAndDistinct();
    void styleMenuListsAndSwitchesStyles();
    void parseOptions();
    void takeOptionsRemovesThemFromArgv();
    void initialStylePrecedence();
    void docksAreListedInTheirMenu();
    void classicMenuBarCarriesMenusAndCornerActions();
    void tabTextStaysDarkAcrossStyles();
    void demoWindowUsesTheShell();
    void demoWindowRemembersTheChosenStyle();
    void demoWindowClassicMode();
    void welcomeTextIsTrueInBothModes_data();
    void welcomeTextIsTrueInBothModes();
    void quickSearchSitsInTheStatusBar_data();
    void quickSearchSitsInTheStatusBar();
};

namespace {

QString plain(const QString& text)
{
    return QString(text).remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0);
}

QAction* findByText(const QList<QAction*>& actions, const QString& text)
{
    for (QAction* action : actions) {
        if (plain(action->text()) == text || (action->menu() && plain(action->menu()->title()) == text))
            return action;
    }
    return nullptr;
}

// The command at the end of \a path, following it as a user would: menu by
// menu, or ribbon tab, group and button (or the File menu).
QAction* follow(DemoWindow& window, const QStringList& path)
{
    QList<QAction*> choices;
    int next = 1;
    if (window.isClassic()) {
        for (QMenu* menu : window.commands()->menus().categories())
            choices << menu->menuAction();
        next = 0;
    } else {
        Qtitan::RibbonBar* ribbon = window.ribbonBar();
        QAction* system = ribbon->systemButton()->defaultAction();
        if (plain(system->text()) == path.first()) {
            choices = system->menu()->actions()
                      + qobject_cast<Qtitan::RibbonSystemMenu*>(system->menu())->popupBarActions();
        } else {
            for (Qtitan::RibbonPage* page : ribbon->pages()) {
                if (page->title() != path.first())
                    continue;
                for (Qtitan::RibbonGroup* group : page->groups()) {
                    if (path.size() > 1 && group->title() == path.at(1))
                        choices = group->actions();
                }
            }
            next = 2;
        }
    }
    QAction* found = nullptr;
    for (int i = next; i < path.size(); ++i) {
        found = findByText(choices, path.at(i));
        if (!found)
            return nullptr;
        choices = found->menu() ? found->menu()->actions() : QList<QAction*>();
    }
    return found;
}

} // namespace

void tst_DemoShell::cleanup()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void tst_DemoShell::everySupportedStyleIsReportedBack()
{
    Window window;
    const auto styles = window.getSupportedStyles();
    QCOMPARE(styles.size(), size_t(20));
    for (ui::MainWindow::Style style : styles) {
        demo::applyStyle(style);
        QCOMPARE(window.currentStyle(), style);
    }
    // Values outside the families fall back to a plain Qt style.
    demo::applyStyle(99);
    QCOMPARE(window.currentStyle(), ui::MainWindow::UnknownStyle);
}

void tst_DemoShell::labelsAreReadableAndDistinct()
{
    Window window;
    QSet<QString> labels;
    for (ui::MainWindow::Style style : window.getSupportedStyles()) {
        const QString label = demo::styleLabel(style);
        QVERIFY(!label.isEmpty());
        labels.insert(label);
    }
    QCOMPARE(labels.size(), 20);
    QCOMPARE(demo::styleLabel(42), QStringLiteral("Office 2016 — Dark Gray"));
    QCOMPARE(demo::styleLabel(0), QStringLiteral("Windows 7 Scenic"));
    QCOMPARE(demo::styleLabel(20), QStringLiteral("Office 2010 — Black"));
}

void tst_DemoShell::styleMenuListsAndSwitchesStyles()
{
    demo::applyStyle(31);
    Window window;
    demo::StyleMenu menu(&window, window.getSupportedStyles());
    QSignalSpy chosen(&menu, &demo::StyleMenu::styleChosen);
    for (int round = 0; round < 2; ++round) {
        menu.popup(QPoint(0, 0));
        QTRY_VERIFY(menu.isVisible());
        menu.hide();
        QList<QAction*> entries;
        for (QAction* action : menu.actions()) {
            if (!action->isSeparator())
                entries << action;
        }
        QCOMPARE(entries.size(), 20); // rebuilt, not appended
        int checked = 0;
        for (QAction* entry : entries) {
            if (entry->isChecked()) {
                ++checked;
                QCOMPARE(entry->text(), demo::styleLabel(31));
            }
        }
        QCOMPARE(checked, 1);
        if (round == 0) {
            // Order of the window's list: the 9th entry is Office 2010 Black.
            QCOMPARE(entries.at(8)->text(), demo::styleLabel(20));
            entries.at(14)->trigger();
            QCOMPARE(chosen.count(), 1);
            QCOMPARE(chosen.at(0).at(0).toInt(), 42);
        }
    }
}

void tst_DemoShell::parseOptions()
{
    auto options = demo::parseShellOptions({"demo", "--classic", "--style", "42", "file.txt"});
    QVERIFY(options.classic);
    QVERIFY(options.hasStyle);
    QCOMPARE(options.style, 42);
    QVERIFY(options.error.isEmpty());

    options = demo::parseShellOptions({"demo", "--style=13"});
    QVERIFY(!options.classic);
    QCOMPARE(options.style, 13);

    options = demo::parseShellOptions({"demo", "--style", "dark"});
    QVERIFY(!options.hasStyle);
    QVERIFY(!options.error.isEmpty());

    options = demo::parseShellOptions({"demo", "--style"});
    QVERIFY(!options.hasStyle);
    QVERIFY(!options.error.isEmpty());
}

void tst_DemoShell::takeOptionsRemovesThemFromArgv()
{
    QByteArray args[] = {"demo", "--style", "52", "a.txt", "--classic", "--style=10", "b.txt"};
    char* argv[8];
    for (int i = 0; i < 7; ++i)
        argv[i] = args[i].data();
    argv[7] = nullptr;
    int argc = 7;
    const demo::ShellOptions options = demo::takeShellOptions(argc, argv);
    QVERIFY(options.classic);
    QCOMPARE(options.style, 10);
    QCOMPARE(argc, 3);
    QCOMPARE(QByteArray(argv[0]), QByteArray("demo"));
    QCOMPARE(QByteArray(argv[1]), QByteArray("a.txt"));
    QCOMPARE(QByteArray(argv[2]), QByteArray("b.txt"));
    QCOMPARE(argv[3], nullptr);
}

void tst_DemoShell::initialStylePrecedence()
{
    Window window;
    const auto supported = window.getSupportedStyles();
    demo::ShellOptions none;
    demo::ShellOptions asked;
    asked.hasStyle = true;
    asked.style = 52;
    QCOMPARE(demo::initialStyle(asked, QVariant(31), supported), 52);
    QCOMPARE(demo::initialStyle(none, QVariant(31), supported), 31);
    QCOMPARE(demo::initialStyle(none, QVariant(), supported), 40);
    QCOMPARE(demo::initialStyle(none, QVariant(QStringLiteral("junk")), supported), 40);
    asked.style = 14; // no such theme
    QCOMPARE(demo::initialStyle(asked, QVariant(31), supported), 31);
    asked.style = -1;  // the plain Qt style is offered too
    QCOMPARE(demo::initialStyle(asked, QVariant(31), supported), -1);
}

void tst_DemoShell::docksAreListedInTheirMenu()
{
    QMainWindow window;
    window.setCentralWidget(new QTextEdit);
    const demo::DemoDocks docks = demo::createDocks(&window);
    auto* menu = new ui::DockListMenu(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    menu->popup(QPoint(0, 0));
    QTRY_VERIFY(menu->isVisible());
    menu->hide();
    QCOMPARE(menu->actions(), (QList<QAction*>{docks.outline->toggleViewAction(),
                                               docks.properties->toggleViewAction(),
                                               docks.log->toggleViewAction()}));
    demo::appendLog(docks, QStringLiteral("hello"));
    QVERIFY(docks.logView->toPlainText().endsWith(QStringLiteral("hello")));
}

void tst_DemoShell::classicMenuBarCarriesMenusAndCornerActions()
{
    QMainWindow window;
    window.setCentralWidget(new ui::MdiArea);
    QMenu file(QStringLiteral("File"));
    QMenu view(QStringLiteral("View"));
    QAction next(QStringLiteral("Next"), nullptr);
    QAction help(QStringLiteral("Help"), nullptr);
    ui::MenuBar* bar = demo::installClassicMenuBar(&window, {&file, &view}, {&next, &help});
    QCOMPARE(window.menuWidget(), bar);
    QCOMPARE(bar->findChild<QMenuBar*>()->actions(), (QList<QAction*>{file.menuAction(), view.menuAction()}));
    QCOMPARE(bar->findChild<QToolBar*>()->actions(), (QList<QAction*>{&next, &help}));
}

void tst_DemoShell::tabTextStaysDarkAcrossStyles()
{
    ui::MdiArea area;
    demo::keepTabTextReadable(&area);
    auto* tabBar = area.findChild<QTabBar*>();
    QVERIFY(tabBar);
    const int styles[] = {53, 32, 10, -1};
    for (int style : styles) {
        demo::applyStyle(style);
        // The tabs sit on light grey or white; their text must stay dark.
        QVERIFY2(tabBar->palette().color(QPalette::WindowText).lightness() < 80, qPrintable(QString::number(style)));
        QVERIFY(tabBar->palette().color(QPalette::ButtonText).lightness() < 80);
    }
    QVERIFY(area.palette().color(QPalette::WindowText) != QColor(20, 20, 20));
}

void tst_DemoShell::demoWindowUsesTheShell()
{
    QTemporaryDir dir;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")));
    QVERIFY(window.ribbonBar());
    QVERIFY(!window.findChild<ui::MenuBar*>());
    QVERIFY(qobject_cast<ui::MainWindow*>(&window));
    QCOMPARE(int(window.currentStyle()), 40); // nothing saved, nothing asked

    // Several documents in the tabbed area; the newest is current once shown.
    for (int i = 0; i < 3; ++i)
        window.commands()->files()->newDocument();
    window.resize(1000, 700);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    ui::MdiArea* area = window.documentArea();
    QCOMPARE(area->subWindowList().size(), 3);
    QCOMPARE(window.documents().size(), 3);
    QTRY_VERIFY(area->activeSubWindow());
    QCOMPARE(window.activeDocument(), window.documents().last());
    QCOMPARE(area->findChild<QTabBar*>()->count(), 3);

    // Activating another document through the window.
    window.activateDocument(window.documents().first());
    QCOMPARE(window.activeDocument(), window.documents().first());

    // The View menu holds the panels and the styles.
    QMenu* view = window.commands()->menus().category(DemoMenus::View);
    QVERIFY(view->actions().contains(window.panelsMenu()->menuAction()));
    QVERIFY(view->actions().contains(window.styleMenu()->menuAction()));
    QVERIFY(window.panelsMenu()->menuAction()->property("isDynamic").toBool());
    window.panelsMenu()->popup(QPoint(0, 0));
    QTRY_VERIFY(window.panelsMenu()->isVisible());
    window.panelsMenu()->hide();
    QCOMPARE(window.panelsMenu()->actions(), (QList<QAction*>{window.docks().outline->toggleViewAction(),
                                                               window.docks().properties->toggleViewAction(),
                                                               window.docks().log->toggleViewAction()}));
}

void tst_DemoShell::demoWindowRemembersTheChosenStyle()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("settings.dat"));
    {
        DemoWindow window(file);
        window.chooseStyle(42);
        QCOMPARE(int(window.currentStyle()), 42);
        QCOMPARE(window.settings().value(demo::styleKey).toInt(), 42);
    }
    demo::applyStyle(-1);
    {
        DemoWindow window(file);
        QCOMPARE(int(window.currentStyle()), 42);
    }
    // The command line wins over the saved style, and is not saved by itself.
    demo::ShellOptions options;
    options.hasStyle = true;
    options.style = 13;
    {
        DemoWindow window(file, nullptr, options);
        QCOMPARE(int(window.currentStyle()), 13);
        QCOMPARE(window.settings().value(demo::styleKey).toInt(), 42);
    }
}

void tst_DemoShell::demoWindowClassicMode()
{
    QTemporaryDir dir;
    demo::ShellOptions options;
    options.classic = true;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")), nullptr, options);
    QVERIFY(!window.ribbonBar());
    auto* bar = qobject_cast<ui::MenuBar*>(window.menuWidget());
    QVERIFY(bar);
    const QList<QAction*> corner = bar->findChild<QToolBar*>()->actions();
    QCOMPARE(corner.size(), 4);
    QCOMPARE(corner.last(), window.commands()->action(DemoCommands::HelpContents));
    for (QAction* action : corner)
        QVERIFY(!action->icon().isNull());
}

void tst_DemoShell::welcomeTextIsTrueInBothModes_data()
{
    QTest::addColumn<bool>("classic");
    QTest::newRow("ribbon") << false;
    QTest::newRow("classic") << true;
}

void tst_DemoShell::welcomeTextIsTrueInBothModes()
{
    QFETCH(bool, classic);
    QTemporaryDir dir;
    demo::ShellOptions options;
    options.classic = classic;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")), nullptr, options);
    window.openWelcomeDocument();
    QCoreApplication::processEvents();
    const QString html = DemoWelcome::html(classic);
    QCOMPARE(window.activeDocument()->toPlainText(), QTextDocumentFragment::fromHtml(html).toPlainText());
    const QList<QStringList> paths = DemoWelcome::paths(classic);
    QCOMPARE(paths.size(), 6);
    for (const QStringList& path : paths) {
        QVERIFY2(html.contains(path.join(QStringLiteral(" &rsaquo; "))), qPrintable(path.join(QLatin1Char('>'))));
        QVERIFY2(follow(window, path), qPrintable(path.join(QStringLiteral(" > "))));
    }
    // The other mode's ways are not offered here.
    for (const QStringList& path : DemoWelcome::paths(!classic))
        QVERIFY2(!follow(window, path), qPrintable(path.join(QStringLiteral(" > "))));
}

void tst_DemoShell::quickSearchSitsInTheStatusBar_data()
{
    QTest::addColumn<bool>("classic");
    QTest::addColumn<QString>("boldPath");
    QTest::newRow("ribbon") << false << QString::fromUtf8("Home \u2192 Font \u2192 Bold");
    QTest::newRow("classic") << true << QString::fromUtf8("Format \u2192 Bold");
}

void tst_DemoShell::quickSearchSitsInTheStatusBar()
{
    QFETCH(bool, classic);
    QFETCH(QString, boldPath);
    QTemporaryDir dir;
    demo::ShellOptions options;
    options.classic = classic;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")), nullptr, options);
    window.openWelcomeDocument();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    ui::QuickSearchWidget* box = window.quickSearch()->box();
    QVERIFY(window.statusBar()->isAncestorOf(box));
    QVERIFY(box->isVisible());

    // The whole placeholder fits, the shortcut at its end included.
    QStyleOptionFrame option;
    option.initFrom(box);
    option.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, box);
    const QRect text = box->style()->subElementRect(QStyle::SE_LineEditContents, &option, box);
    QVERIFY(box->placeholderText().endsWith(QStringLiteral("(Ctrl + Q)")));
    QVERIFY2(box->fontMetrics().horizontalAdvance(box->placeholderText()) <= text.width() - 4,
             qPrintable(QStringLiteral("%1 > %2").arg(box->fontMetrics().horizontalAdvance(box->placeholderText()))
                            .arg(text.width())));

    // The popup opens above the box, with room to spare, and names the way
    // to the command as this window shows it.
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("bold"));
    auto* popup = box->findChild<QMenu*>();
    QTRY_VERIFY(popup && popup->isVisible());
    const QRect boxArea(box->mapToGlobal(QPoint(0, 0)), box->size());
    QVERIFY(popup->geometry().bottom() < boxArea.top());
    QVERIFY(popup->geometry().top() >= window.screen()->geometry().top());
    QAction* first = popup->actions().value(0);
    QVERIFY(first);
    QCOMPARE(first->text(), boldPath);
    popup->close();
    DemoDocument* doc = window.commands()->files()->newDocument();
    doc->setPlainText(QStringLiteral("plain words"));
    QTextCursor cursor = doc->textCursor();
    cursor.setPosition(2);
    doc->setTextCursor(cursor);
    first->trigger();
    QTextCursor probe(doc->document());
    probe.setPosition(2);
    QCOMPARE(probe.charFormat().fontWeight(), int(QFont::Bold));
}

QTEST_MAIN(tst_DemoShell)
#include "tst_demoshell.moc"
