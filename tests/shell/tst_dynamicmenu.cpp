#include <tessaro/DynamicMenu.h>

#include <QAction>
#include <QPointer>
#include <QtTest>

namespace {

// Records the order of refreshes; may empty or fill itself while refreshing.
class RecordingMenu : public ui::DynamicMenu
{
public:
    RecordingMenu(const QString& name, QStringList* log, QWidget* parent = nullptr)
        : ui::DynamicMenu(name, parent)
        , m_log(log)
    {
    }

    int entriesOnRefresh = -1; // -1: leave the entries as they are

protected:
    void updateContents() override
    {
        m_log->append(title());
        if (entriesOnRefresh >= 0) {
            clear();
            for (int i = 0; i < entriesOnRefresh; ++i)
                addAction(QStringLiteral("%1 entry %2").arg(title()).arg(i));
        }
        ui::DynamicMenu::updateContents();
        m_log->append(title() + QStringLiteral(" done"));
    }

private:
    QStringList* m_log;
};

// Opens a menu the way a user does and closes it again.
void openAndClose(QMenu* menu)
{
    menu->popup(QPoint(10, 10));
    QTRY_VERIFY(menu->isVisible());
    menu->hide();
}

} // namespace

class tst_DynamicMenu : public QObject
{
    Q_OBJECT

private slots:
    void constructors();
    void emptySubmenuHiddenUntilFilled();
    void plainActionsUntouched();
    void nestedMenusRefreshDepthFirst();
    void nestedMenuEmptiedByItsRefreshIsHidden();
    void nestedMenuFilledByItsRefreshIsShown();
    void refreshRunsOnEveryOpening();
};

void tst_DynamicMenu::constructors()
{
    QWidget parent;
    ui::DynamicMenu untitled(&parent);
    QVERIFY(untitled.title().isEmpty());
    QCOMPARE(untitled.parentWidget(), &parent);
    ui::DynamicMenu titled(QStringLiteral("Окна"), &parent);
    QCOMPARE(titled.title(), QStringLiteral("Окна"));
    QCOMPARE(titled.parentWidget(), &parent);
    QVERIFY(qobject_cast<QMenu*>(&titled));
}

void tst_DynamicMenu::emptySubmenuHiddenUntilFilled()
{
    ui::DynamicMenu menu(QStringLiteral("Top"));
    QMenu* recent = menu.addMenu(QStringLiteral("Recent"));
    QMenu* full = menu.addMenu(QStringLiteral("Full"));
    full->addAction(QStringLiteral("Entry"));
    QVERIFY(recent->menuAction()->isVisible());

    openAndClose(&menu);
    QVERIFY(!recent->menuAction()->isVisible());
    QVERIFY(full->menuAction()->isVisible());

    // Still empty: still hidden.
    openAndClose(&menu);
    QVERIFY(!recent->menuAction()->isVisible());

    // Entries appear: the submenu shows again at the next opening, not before.
    recent->addAction(QStringLiteral("file.txt"));
    QVERIFY(!recent->menuAction()->isVisible());
    openAndClose(&menu);
    QVERIFY(recent->menuAction()->isVisible());

    // A submenu holding only separators or hidden entries would open empty.
    QMenu* hollow = menu.addMenu(QStringLiteral("Hollow"));
    hollow->addSeparator();
    hollow->addAction(QStringLiteral("invisible"))->setVisible(false);
    openAndClose(&menu);
    QVERIFY(!hollow->menuAction()->isVisible());

    // And it hides once more when emptied.
    full->clear();
    openAndClose(&menu);
    QVERIFY(!full->menuAction()->isVisible());
    QVERIFY(recent->menuAction()->isVisible());
}

void tst_DynamicMenu::plainActionsUntouched()
{
    ui::DynamicMenu menu(QStringLiteral("Top"));
    QAction* shown = menu.addAction(QStringLiteral("Shown"));
    QAction* hidden = menu.addAction(QStringLiteral("Hidden"));
    hidden->setVisible(false);
    QAction* separator = menu.addSeparator();
    menu.addMenu(QStringLiteral("Empty"));

    openAndClose(&menu);
    QVERIFY(shown->isVisible());
    QVERIFY(!hidden->isVisible());
    QVERIFY(separator->isVisible());
}

void tst_DynamicMenu::nestedMenusRefreshDepthFirst()
{
    QStringList log;
    RecordingMenu top(QStringLiteral("top"), &log);
    auto* a = new RecordingMenu(QStringLiteral("a"), &log, &top);
    auto* a1 = new RecordingMenu(QStringLiteral("a1"), &log, a);
    auto* b = new RecordingMenu(QStringLiteral("b"), &log, &top);
    a1->addAction(QStringLiteral("leaf"));
    b->addAction(QStringLiteral("leaf"));
    a->addMenu(a1);
    top.addMenu(a);
    top.addAction(QStringLiteral("plain"));
    top.addMenu(b);

    openAndClose(&top);
    const QStringList expected{QStringLiteral("top"), QStringLiteral("a"), QStringLiteral("a1"),
                               QStringLiteral("a1 done"), QStringLiteral("a done"),
                               QStringLiteral("b"), QStringLiteral("b done"),
                               QStringLiteral("top done")};
    QCOMPARE(log, expected);
    QVERIFY(a->menuAction()->isVisible());
    QVERIFY(a1->menuAction()->isVisible());
    QVERIFY(b->menuAction()->isVisible());
}

void tst_DynamicMenu::nestedMenuEmptiedByItsRefreshIsHidden()
{
    QStringList log;
    ui::DynamicMenu top(QStringLiteral("top"));
    auto* windows = new RecordingMenu(QStringLiteral("windows"), &log, &top);
    windows->addAction(QStringLiteral("stale"));
    windows->entriesOnRefresh = 0;
    top.addMenu(windows);

    // The nested menu is refreshed before its entry's visibility is decided.
    openAndClose(&top);
    QVERIFY(windows->isEmpty());
    QVERIFY(!windows->menuAction()->isVisible());
}

void tst_DynamicMenu::nestedMenuFilledByItsRefreshIsShown()
{
    QStringList log;
    ui::DynamicMenu top(QStringLiteral("top"));
    auto* outer = new ui::DynamicMenu(QStringLiteral("outer"), &top);
    auto* inner = new RecordingMenu(QStringLiteral("inner"), &log, outer);
    inner->entriesOnRefresh = 0;
    outer->addMenu(inner);
    top.addMenu(outer);

    openAndClose(&top);
    QVERIFY(!inner->menuAction()->isVisible());
    // Its only entry is hidden, so the outer menu counts as empty too.
    QVERIFY(!outer->menuAction()->isVisible());

    inner->entriesOnRefresh = 2;
    openAndClose(&top);
    QCOMPARE(inner->actions().size(), 2);
    QVERIFY(inner->menuAction()->isVisible());
    QVERIFY(outer->menuAction()->isVisible());
}

void tst_DynamicMenu::refreshRunsOnEveryOpening()
{
    QStringList log;
    RecordingMenu menu(QStringLiteral("m"), &log);
    openAndClose(&menu);
    openAndClose(&menu);
    openAndClose(&menu);
    QCOMPARE(log.count(QStringLiteral("m")), 3);
}

QTEST_MAIN(tst_DynamicMenu)
#include "tst_dynamicmenu.moc"
