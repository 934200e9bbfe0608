#include <tessaro/Tessaro.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QtTest>

class tst_RibbonBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void quickActions();
    void isQuickActionComparesNames();
    void removeLastQuickActionKeepsBarShown();
    void clearQuickActionsHidesBar();
    void popupBarAction();
    void systemButtonActionTwice();
    void updateCurrentPage();
    void rightClickShowsNoMenu();
    void destructionWithSharedSystemMenuActions();
};

void tst_RibbonBar::construction()
{
    QVERIFY(QFile::exists(QStringLiteral(":/Tessaro/logo.png")));
    ui::RibbonBar ribbon(QStringLiteral("HostRibbon"));
    QCOMPARE(ribbon.getTranslationContext(), QStringLiteral("HostRibbon"));
    QVERIFY(ribbon.isFrameThemeEnabled());
    QVERIFY(ribbon.systemButton());
    QAction* system = ribbon.systemButton()->defaultAction();
    QVERIFY(system);
    QVERIFY(system->text().isEmpty());
    QVERIFY(!system->icon().isNull());
    QVERIFY(qobject_cast<Qtitan::RibbonSystemMenu*>(system->menu()));
    QCOMPARE(ribbon.pageCount(), 0);
    QVERIFY(ribbon.quickAccessBar());
    QVERIFY(ribbon.metaObject()->inherits(&Qtitan::RibbonBar::staticMetaObject));
    QCOMPARE(QString::fromLatin1(ribbon.metaObject()->className()), QStringLiteral("ui::RibbonBar"));
}

void tst_RibbonBar::quickActions()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonQuickAccessBar* bar = ribbon.quickAccessBar();
    ribbon.addQuickAction(nullptr);
    QVERIFY(bar->actions().isEmpty());
    ribbon.removeQuickAction(nullptr);
    QVERIFY(!ribbon.isQuickAction(nullptr));

    QAction first(QStringLiteral("Открыть"), nullptr);
    first.setObjectName(QStringLiteral("cmd.open"));
    QAction second(QStringLiteral("Сохранить"), nullptr);
    second.setObjectName(QStringLiteral("cmd.save"));
    ribbon.addQuickAction(&first);
    QVERIFY(!bar->isHidden());
    ribbon.addQuickAction(&second);
    QCOMPARE(bar->actions(), (QList<QAction*>{&first, &second}));
    QVERIFY(ribbon.isQuickAction(&first));
    QVERIFY(ribbon.isQuickAction(&second));
    ribbon.removeQuickAction(&first);
    QCOMPARE(bar->actions(), (QList<QAction*>{&second}));
    QVERIFY(!ribbon.isQuickAction(&first));
}

void tst_RibbonBar::isQuickActionComparesNames()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QAction onBar(QStringLiteral("Печать"), nullptr);
    onBar.setObjectName(QStringLiteral("cmd.print"));
    ribbon.addQuickAction(&onBar);
    QAction twin(QStringLiteral("Другая печать"), nullptr);
    twin.setObjectName(QStringLiteral("cmd.print"));
    QVERIFY(ribbon.isQuickAction(&twin));
    QAction other(QStringLiteral("Печать"), nullptr);
    other.setObjectName(QStringLiteral("cmd.other"));
    QVERIFY(!ribbon.isQuickAction(&other));
    // Unnamed actions match any unnamed action on the bar.
    QAction unnamed(QStringLiteral("Без имени"), nullptr);
    QVERIFY(!ribbon.isQuickAction(&unnamed));
    QAction unnamedOnBar(QStringLiteral("Тоже без имени"), nullptr);
    ribbon.addQuickAction(&unnamedOnBar);
    QVERIFY(ribbon.isQuickAction(&unnamed));
}

void tst_RibbonBar::removeLastQuickActionKeepsBarShown()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.show();
    QAction action(QStringLiteral("Единственная"), nullptr);
    ribbon.addQuickAction(&action);
    QVERIFY(ribbon.quickAccessBar()->isVisible());
    ribbon.removeQuickAction(&action);
    QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    QVERIFY(ribbon.quickAccessBar()->isVisible());
}

void tst_RibbonBar::clearQuickActionsHidesBar()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.show();
    QAction first(QStringLiteral("a"), nullptr);
    QAction second(QStringLiteral("b"), nullptr);
    ribbon.addQuickAction(&first);
    ribbon.addQuickAction(&second);
    ribbon.clearQuickActions();
    QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    QVERIFY(!ribbon.quickAccessBar()->isVisible());
    QVERIFY(ribbon.quickAccessBar()->isHidden());
    // The actions themselves are not deleted.
    QCOMPARE(first.text(), QStringLiteral("a"));
    ribbon.addQuickAction(&first);
    QVERIFY(ribbon.quickAccessBar()->isVisible());
}

void tst_RibbonBar::popupBarAction()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QAction options(QStringLiteral("Параметры"), nullptr);
    QAction exit(QStringLiteral("Выход"), nullptr);
    ribbon.addPopupBarAction(&options);
    ribbon.addPopupBarAction(&exit);
    auto* menu = qobject_cast<Qtitan::RibbonSystemMenu*>(ribbon.systemButton()->defaultAction()->menu());
    QVERIFY(menu);
    QCOMPARE(menu->popupBarActions(), (QList<QAction*>{&options, &exit}));
}

void tst_RibbonBar::systemButtonActionTwice()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QAction* system = ribbon.systemButton()->defaultAction();
    const QImage logo = system->icon().pixmap(16, 16).toImage();

    QMenu fileMenu;
    QAction file(QStringLiteral("Файл"), nullptr);
    file.setToolTip(QStringLiteral("Команды файла"));
    file.setStatusTip(QStringLiteral("Открыть, сохранить"));
    file.setIcon(QIcon(QPixmap(16, 16)));
    QAction* open = fileMenu.addAction(QStringLiteral("Открыть"));
    QAction* save = fileMenu.addAction(QStringLiteral("Сохранить"));
    file.setMenu(&fileMenu);
    ribbon.setSystemButtonAction(&file);
    QCOMPARE(system->text(), QStringLiteral("Файл"));
    QCOMPARE(system->toolTip(), QStringLiteral("Команды файла"));
    QCOMPARE(system->statusTip(), QStringLiteral("Открыть, сохранить"));
    QCOMPARE(system->menu()->actions(), (QList<QAction*>{open, save}));

    QMenu otherMenu;
    QAction other(QStringLiteral("Документ"), nullptr);
    QAction* print = otherMenu.addAction(QStringLiteral("Печать"));
    other.setMenu(&otherMenu);
    ribbon.setSystemButtonAction(&other);
    QCOMPARE(system->text(), QStringLiteral("Документ"));
    QCOMPARE(system->menu()->actions(), (QList<QAction*>{print}));
    QVERIFY(system->toolTip() != QStringLiteral("Команды файла"));
    QVERIFY(system->statusTip().isEmpty());
    // The entries are shared, not copied: the host's actions are untouched.
    QCOMPARE(fileMenu.actions(), (QList<QAction*>{open, save}));
    QCOMPARE(otherMenu.actions(), (QList<QAction*>{print}));
    // The logo stays.
    QCOMPARE(system->icon().pixmap(16, 16).toImage(), logo);
}

void tst_RibbonBar::updateCurrentPage()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.updateCurrentPage();
    Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Главная"));
    page->addGroup(QStringLiteral("Группа"))->addAction(new QAction(QStringLiteral("a"), &ribbon));
    ribbon.setCurrentPageIndex(0);
    ribbon.updateCurrentPage();
    QCOMPARE(ribbon.page(ribbon.currentPageIndex()), page);
}

namespace {

QContextMenuEvent rightClickAt(QWidget* widget)
{
    const QPoint pos = widget->rect().center();
    return QContextMenuEvent(QContextMenuEvent::Mouse, pos, widget->mapToGlobal(pos));
}

bool anyMenuShown()
{
    if (QApplication::activePopupWidget())
        return true;
    const QList<QWidget*> widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (qobject_cast<QMenu*>(widget) && widget->isVisible())
            return true;
    }
    return false;
}

// A host window that offers a context menu wherever a right click reaches it.
class MenuWindow : public QMainWindow
{
public:
    int requests = 0;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        ++requests;
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(QStringLiteral("Команда окна"));
        menu->popup(event->globalPos());
        event->accept();
    }
};

} // namespace

void tst_RibbonBar::rightClickShowsNoMenu()
{
    MenuWindow window;
    auto* ribbon = new ui::RibbonBar(QStringLiteral("ctx"));
    window.setMenuWidget(ribbon);
    auto* central = new QWidget;
    window.setCentralWidget(central);
    QToolBar* toolBar = window.addToolBar(QStringLiteral("Панель"));
    toolBar->addAction(QStringLiteral("Команда"));
    Qtitan::RibbonPage* page = ribbon->addPage(QStringLiteral("Главная"));
    Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Группа"));
    group->addAction(new QAction(QStringLiteral("Кнопка"), ribbon));
    QAction quick(QStringLiteral("Быстрая"), nullptr);
    ribbon->addQuickAction(&quick);
    window.resize(900, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    // The harness sees a context menu where the window does offer one.
    {
        QContextMenuEvent event = rightClickAt(central);
        QApplication::sendEvent(central, &event);
        QVERIFY(anyMenuShown());
        QApplication::activePopupWidget()->close();
        QTRY_VERIFY(!anyMenuShown());
    }

    QList<QWidget*> targets{ribbon, page, group, ribbon->quickAccessBar()};
    targets += ribbon->findChildren<QWidget*>();
    for (QWidget* target : qAsConst(targets)) {
        if (!target->isVisible() || qobject_cast<QMenu*>(target))
            continue;
        QContextMenuEvent event = rightClickAt(target);
        QApplication::sendEvent(target, &event);
        if (anyMenuShown()) {
            const QByteArray name = target->metaObject()->className();
            QApplication::activePopupWidget()->close();
            QFAIL(("a context menu opened for " + name).constData());
        }
    }
    // A right click through the window's event path shows nothing either.
    QTest::mouseClick(ribbon, Qt::RightButton, {}, ribbon->rect().center());
    QVERIFY(!anyMenuShown());
    // The ribbon keeps its right clicks: they never reach the host window.
    QCOMPARE(window.requests, 1);
}

void tst_RibbonBar::destructionWithSharedSystemMenuActions()
{
    QMenu fileMenu;
    QAction file(QStringLiteral("Файл"), nullptr);
    QAction* open = fileMenu.addAction(QStringLiteral("Открыть"));
    file.setMenu(&fileMenu);
    QAction options(QStringLiteral("Параметры"), nullptr);
    {
        ui::RibbonBar ribbon(QStringLiteral("ctx"));
        ribbon.setSystemButtonAction(&file);
        ribbon.addPopupBarAction(&options);
        ribbon.addQuickAction(open);
    }
    // The host's actions outlive the ribbon.
    QCOMPARE(fileMenu.actions(), (QList<QAction*>{open}));
    QCOMPARE(open->text(), QStringLiteral("Открыть"));
    QCOMPARE(options.text(), QStringLiteral("Параметры"));
}

QTEST_MAIN(tst_RibbonBar)
#include "tst_ribbonbar.moc"
