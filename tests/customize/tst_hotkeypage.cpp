#include <tessaro/QHotKeyPage.h>
#include <tessaro/QtKeySequenceEdit.h>

#include "common/faketranslator.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Table = ui::QHotKeyPage::ShortcutTable;

// A page inside its host panel, with handles on the form's widgets.
struct PageFixture
{
    QWidget panel;
    ui::QHotKeyPage* page;
    QtKeySequenceEdit* edit;
    QToolButton* addButton;
    QPushButton* delButton;
    QLineEdit* owner;
    QListWidget* list;

    PageFixture()
        : page(new ui::QHotKeyPage(&panel))
    {
        edit = page->findChild<QtKeySequenceEdit*>();
        addButton = page->findChild<QToolButton*>(QStringLiteral("addButton"));
        delButton = page->findChild<QPushButton*>(QStringLiteral("delButton"));
        owner = page->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
        list = page->findChild<QListWidget*>(QStringLiteral("listWidget"));
        panel.resize(320, 360);
    }

    bool show()
    {
        panel.show();
        return QTest::qWaitForWindowExposed(&panel);
    }

    QStringList rows() const
    {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
        return texts;
    }

    void clickRow(int row)
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(row)).center());
    }
};

QKeySequence seq(const char* text)
{
    return QKeySequence(QString::fromLatin1(text), QKeySequence::PortableText);
}

} // namespace

class tst_HotKeyPage : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void formFirstThenEdit();
    void focusChainStartsAtFormsFirstWidget();
    void formTexts();
    void formTranslatedInFormContext();
    void addIconFromResources();
    void pageFillsItsParent();
    void parentWithLayoutKeepsIt();
    void initialState();
    void setActionListsShortcuts();
    void setActionNull();
    void setShortcutsRefreshesCurrentList();
    void typingCtrlShiftSEnablesAdd();
    void addWithClickAppendsToTable();
    void addRequiresTypedCombination();
    void ownedByOtherCommandShowsOwner();
    void ownedByCurrentCommandHidesOwnerAndDisablesAdd();
    void firstOwnerInKeyOrder();
    void deleteWithoutSelectionOnlyRefreshes();
    void selectAndDelete();
    void doubleClickDeletes();
    void insertAfterSelectedRowAndRowPairedDelete();
    void addWithoutCurrentActionDoesNothing();
    void shiftDigitStoredWithoutShift();
};

void tst_HotKeyPage::form()
{
    PageFixture f;
    QCOMPARE(f.page->objectName(), QStringLiteral("QHotKeyPage"));
    QVERIFY(f.edit);
    QVERIFY(f.addButton);
    QVERIFY(f.delButton);
    QVERIFY(f.owner);
    QVERIFY(f.list);
    QCOMPARE(f.edit->parentWidget(), static_cast<QWidget*>(f.page));

    QGridLayout* grid = f.page->findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(grid);
    QCOMPARE(f.page->layout(), grid);
    QHBoxLayout* row1 = f.page->findChild<QHBoxLayout*>(QStringLiteral("horizontalLayout"));
    QVERIFY(row1);
    QLabel* label4 = f.page->findChild<QLabel*>(QStringLiteral("label_4"));
    QLabel* label5 = f.page->findChild<QLabel*>(QStringLiteral("label_5"));
    QVERIFY(label4 && label5);

    auto position = [grid](QLayoutItem* wanted) {
        for (int i = 0; i < grid->count(); ++i) {
            if (grid->itemAt(i) == wanted) {
                int row, column, rowSpan, columnSpan;
                grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
                return QList<int>{row, column, rowSpan, columnSpan};
            }
        }
        return QList<int>();
    };
    QCOMPARE(grid->count(), 6);
    QCOMPARE(position(grid->itemAt(grid->indexOf(label4))), (QList<int>{0, 0, 1, 1}));
    QCOMPARE(position(row1), (QList<int>{1, 0, 1, 1}));
    QCOMPARE(position(grid->itemAt(grid->indexOf(f.owner))), (QList<int>{2, 0, 1, 1}));
    QCOMPARE(position(grid->itemAt(grid->indexOf(label5))), (QList<int>{3, 0, 1, 1}));
    QCOMPARE(position(grid->itemAt(grid->indexOf(f.list))), (QList<int>{4, 0, 1, 1}));
    QCOMPARE(position(grid->itemAt(grid->indexOf(f.delButton))), (QList<int>{5, 0, 1, 1}));

    // The edit stands first in the row, before the add button.
    QCOMPARE(row1->count(), 2);
    QCOMPARE(row1->itemAt(0)->widget(), static_cast<QWidget*>(f.edit));
    QCOMPARE(row1->itemAt(1)->widget(), static_cast<QWidget*>(f.addButton));
}

// The page builds its form, then the key sequence edit: the edit is the last
// child of the page.
void tst_HotKeyPage::formFirstThenEdit()
{
    PageFixture f;
    QList<QWidget*> children;
    for (QObject* child : f.page->children()) {
        if (auto* widget = qobject_cast<QWidget*>(child))
            children << widget;
    }
    const QList<QWidget*> expected{f.page->findChild<QLabel*>(QStringLiteral("label_4")),
                                   f.addButton,
                                   f.owner,
                                   f.page->findChild<QLabel*>(QStringLiteral("label_5")),
                                   f.list,
                                   f.delButton,
                                   f.edit};
    QCOMPARE(children, expected);
}

// The focus chain follows the order of creation: from the page to the form's
// widgets in form order, then the edit.
void tst_HotKeyPage::focusChainStartsAtFormsFirstWidget()
{
    PageFixture f;
    QList<QWidget*> chain;
    for (QWidget* w = f.page->nextInFocusChain(); w != f.page; w = w->nextInFocusChain()) {
        if (w->parentWidget() == f.page)
            chain << w;
    }
    const QList<QWidget*> expected{f.page->findChild<QLabel*>(QStringLiteral("label_4")),
                                   f.addButton,
                                   f.owner,
                                   f.page->findChild<QLabel*>(QStringLiteral("label_5")),
                                   f.list,
                                   f.delButton,
                                   f.edit};
    QCOMPARE(chain, expected);
    QCOMPARE(f.page->nextInFocusChain(), expected.first());

    // A window opening on the page gives the focus to the first widget of
    // the form that takes it (the add button waits for a combination, the
    // owner field is hidden), and Tab goes on in form order, the edit last.
    QAction save(QStringLiteral("&Save"), nullptr);
    f.page->setShortcuts(Table{{&save, {seq("Ctrl+S")}}});
    f.page->setAction(&save);
    QVERIFY(f.show());
    QApplication::setActiveWindow(&f.panel);
    QVERIFY(QTest::qWaitForWindowActive(&f.panel));
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.list));
    QList<QWidget*> tabbed;
    for (int i = 0; i < 3; ++i) {
        tabbed << QApplication::focusWidget();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(tabbed, (QList<QWidget*>{f.list, f.delButton, f.edit}));
}

void tst_HotKeyPage::formTexts()
{
    PageFixture f;
    QCOMPARE(f.page->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(f.page->findChild<QLabel*>(QStringLiteral("label_4"))->text(), QStringLiteral("Новое сочетание"));
    QCOMPARE(f.page->findChild<QLabel*>(QStringLiteral("label_5"))->text(), QStringLiteral("Текущие сочетания"));
    QCOMPARE(f.addButton->text(), QStringLiteral("..."));
    QCOMPARE(f.addButton->toolTip(), QStringLiteral("Добавить сочетание клавиш для команды"));
    QCOMPARE(f.delButton->text(), QStringLiteral("Удалить"));
    QCOMPARE(f.delButton->toolTip(), QStringLiteral("Удалить сочетание горячих клавиш"));
}

void tst_HotKeyPage::formTranslatedInFormContext()
{
    testcommon::FakeTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    PageFixture f;
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(f.page->windowTitle(), QStringLiteral("[QHotKeyPage]Form"));
    QCOMPARE(f.delButton->text(), QStringLiteral("[QHotKeyPage]Удалить"));
    QCOMPARE(f.addButton->toolTip(), QStringLiteral("[QHotKeyPage]Добавить сочетание клавиш для команды"));
    QCOMPARE(f.page->findChild<QLabel*>(QStringLiteral("label_4"))->text(),
             QStringLiteral("[QHotKeyPage]Новое сочетание"));
}

void tst_HotKeyPage::addIconFromResources()
{
    PageFixture f;
    QVERIFY(QFile::exists(QStringLiteral(":/Tessaro/plus.png")));
    QVERIFY(!f.addButton->icon().isNull());
    const QImage expected(QStringLiteral(":/Tessaro/plus.png"));
    QVERIFY(!expected.isNull());
    const QSize size = expected.size();
    QCOMPARE(f.addButton->icon().pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32),
             expected.convertToFormat(QImage::Format_ARGB32));
}

void tst_HotKeyPage::pageFillsItsParent()
{
    PageFixture f;
    QVBoxLayout* layout = qobject_cast<QVBoxLayout*>(f.panel.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget*>(f.page));
    QVERIFY(f.show());
    QCOMPARE(f.page->geometry(), f.panel.rect());
}

void tst_HotKeyPage::parentWithLayoutKeepsIt()
{
    QWidget panel;
    QHBoxLayout* existing = new QHBoxLayout(&panel);
    ui::QHotKeyPage* page = new ui::QHotKeyPage(&panel);
    QCOMPARE(panel.layout(), existing);
    QCOMPARE(existing->count(), 1);
    QCOMPARE(existing->itemAt(0)->widget(), static_cast<QWidget*>(page));

    ui::QHotKeyPage orphan(nullptr);
    QCOMPARE(orphan.parentWidget(), static_cast<QWidget*>(nullptr));
}

void tst_HotKeyPage::initialState()
{
    PageFixture f;
    QVERIFY(f.show());
    QCOMPARE(f.page->action(), static_cast<QAction*>(nullptr));
    QVERIFY(f.page->shortcuts().isEmpty());
    QVERIFY(f.owner->isHidden());
    QVERIFY(!f.addButton->isEnabled());
    QVERIFY(!f.delButton->isEnabled());
    QCOMPARE(f.list->count(), 0);
    QVERIFY(f.edit->text().isEmpty());
}

void tst_HotKeyPage::setActionListsShortcuts()
{
    PageFixture f;
    QAction save(QStringLiteral("&Save"), nullptr);
    QAction open(QStringLiteral("&Open"), nullptr);
    Table table;
    table[&save] = {seq("Ctrl+S"), seq("Shift+F12"), seq("Ctrl+Alt+Del")};
    table[&open] = {seq("Ctrl+O")};
    f.page->setShortcuts(table);
    QCOMPARE(f.list->count(), 0); // no current action yet
    f.page->setAction(&save);
    QCOMPARE(f.page->action(), &save);
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("Ctrl+S"), QStringLiteral("Shift+F12"),
                                     QStringLiteral("Ctrl+Alt+Del")}));
    QCOMPARE(f.list->currentRow(), -1);
    QVERIFY(!f.delButton->isEnabled());
    f.page->setAction(&open);
    QCOMPARE(f.rows(), QStringList{QStringLiteral("Ctrl+O")});
    // A command without an entry has an empty list.
    QAction other(QStringLiteral("Other"), nullptr);
    f.page->setAction(&other);
    QCOMPARE(f.list->count(), 0);
    QCOMPARE(f.page->shortcuts(), table);
}

void tst_HotKeyPage::setActionNull()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setShortcuts(Table{{&save, {seq("Ctrl+S")}}});
    f.page->setAction(&save);
    QCOMPARE(f.list->count(), 1);
    f.page->setAction(nullptr);
    QCOMPARE(f.list->count(), 0);
    QTest::keyClick(f.edit, Qt::Key_K, Qt::ControlModifier);
    QVERIFY(!f.addButton->isEnabled());
}

void tst_HotKeyPage::setShortcutsRefreshesCurrentList()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setAction(&save);
    QCOMPARE(f.list->count(), 0);
    Table table{{&save, {seq("Ctrl+S"), seq("F2")}}};
    f.page->setShortcuts(table);
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("Ctrl+S"), QStringLiteral("F2")}));
    f.page->setShortcuts(table); // same table again: same list
    QCOMPARE(f.list->count(), 2);
    f.page->setShortcuts(Table());
    QCOMPARE(f.list->count(), 0);
    QVERIFY(f.page->shortcuts().isEmpty());
}

void tst_HotKeyPage::typingCtrlShiftSEnablesAdd()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    QAction open(QStringLiteral("Open"), nullptr);
    f.page->setShortcuts(Table{{&open, {seq("Ctrl+O")}}});
    f.page->setAction(&save);
    QVERIFY(f.show());
    QVERIFY(!f.addButton->isEnabled());
    QTest::keyClick(f.edit, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(f.edit->text(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S).toString(QKeySequence::NativeText));
    QVERIFY(f.addButton->isEnabled());
    QVERIFY(f.owner->isHidden());
}

void tst_HotKeyPage::addWithClickAppendsToTable()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setAction(&save);
    QVERIFY(f.show());
    QTest::keyClick(f.edit, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::mouseClick(f.addButton, Qt::LeftButton);
    QCOMPARE(f.page->shortcuts().value(&save), QList<QKeySequence>{seq("Ctrl+Shift+S")});
    QCOMPARE(f.rows(), QStringList{QStringLiteral("Ctrl+Shift+S")});
    // Now the combination belongs to the current command: Add is refused.
    QVERIFY(!f.addButton->isEnabled());
    QVERIFY(f.owner->isHidden());

    QTest::keyClick(f.edit, Qt::Key_F7);
    QVERIFY(f.addButton->isEnabled());
    QTest::mouseClick(f.addButton, Qt::LeftButton);
    QCOMPARE(f.page->shortcuts().value(&save), (QList<QKeySequence>{seq("Ctrl+Shift+S"), seq("F7")}));
    // No row was current: the new row goes first.
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("F7"), QStringLiteral("Ctrl+Shift+S")}));
}

void tst_HotKeyPage::addRequiresTypedCombination()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setAction(&save);
    QVERIFY(!f.addButton->isEnabled());
    QTest::keyClick(f.edit, Qt::Key_Control, Qt::ControlModifier);
    QVERIFY(f.edit->text().isEmpty());
    QVERIFY(!f.addButton->isEnabled());
    // Calling the slot directly with nothing typed stores nothing.
    f.page->addShortcut();
    QVERIFY(f.page->shortcuts().isEmpty());
    QCOMPARE(f.list->count(), 0);
}

void tst_HotKeyPage::ownedByOtherCommandShowsOwner()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    QAction print(QStringLiteral("&Print && Preview"), nullptr);
    f.page->setShortcuts(Table{{&print, {seq("Ctrl+P")}}, {&save, {seq("Ctrl+S")}}});
    f.page->setAction(&save);
    QVERIFY(f.show());
    QTest::keyClick(f.edit, Qt::Key_P, Qt::ControlModifier);
    QVERIFY(f.owner->isVisible());
    QCOMPARE(f.owner->text(), QStringLiteral("Print  Preview"));
    QVERIFY(!f.addButton->isEnabled());
    // A free combination hides the owner again.
    QTest::keyClick(f.edit, Qt::Key_P, Qt::ControlModifier | Qt::AltModifier);
    QVERIFY(!f.owner->isVisible());
    QVERIFY(f.addButton->isEnabled());
    // No current command: the owner is still named, Add stays off.
    f.page->setAction(nullptr);
    QTest::keyClick(f.edit, Qt::Key_P, Qt::ControlModifier);
    QVERIFY(f.owner->isVisible());
    QVERIFY(!f.addButton->isEnabled());
}

void tst_HotKeyPage::ownedByCurrentCommandHidesOwnerAndDisablesAdd()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setShortcuts(Table{{&save, {seq("Ctrl+S")}}});
    f.page->setAction(&save);
    QVERIFY(f.show());
    QTest::keyClick(f.edit, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!f.edit->text().isEmpty());
    QVERIFY(f.owner->isHidden());
    QVERIFY(!f.addButton->isEnabled());
}

void tst_HotKeyPage::firstOwnerInKeyOrder()
{
    PageFixture f;
    QAction* actions[] = {new QAction(QStringLiteral("A"), f.page), new QAction(QStringLiteral("B"), f.page),
                          new QAction(QStringLiteral("C"), f.page)};
    std::sort(std::begin(actions), std::end(actions));
    // The same combination in two entries (a table built from the host's actions may hold that).
    f.page->setShortcuts(Table{{actions[2], {seq("F9")}}, {actions[1], {seq("F1"), seq("F9")}}});
    f.page->setAction(actions[0]);
    QVERIFY(f.show());
    QTest::keyClick(f.edit, Qt::Key_F9);
    QVERIFY(f.owner->isVisible());
    QCOMPARE(f.owner->text(), actions[1]->text());
    // The current command being the first owner hides the field, though another owns it too.
    f.page->setAction(actions[1]);
    QVERIFY(f.owner->isHidden());
    QVERIFY(!f.addButton->isEnabled());
    f.page->setAction(actions[2]);
    QVERIFY(f.owner->isVisible());
    QCOMPARE(f.owner->text(), actions[1]->text());
}

void tst_HotKeyPage::deleteWithoutSelectionOnlyRefreshes()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    const Table table{{&save, {seq("Ctrl+S"), seq("F2")}}};
    f.page->setShortcuts(table);
    f.page->setAction(&save);
    // Opened with the focus in the edit: the list takes no current row.
    f.edit->setFocus();
    QVERIFY(f.show());
    QCOMPARE(f.list->currentRow(), -1);
    QTest::keyClick(f.edit, Qt::Key_F3);
    f.delButton->setEnabled(true); // stale state, to see the refresh
    f.addButton->setEnabled(false);
    f.page->delShortcut();
    QCOMPARE(f.page->shortcuts(), table);
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("Ctrl+S"), QStringLiteral("F2")}));
    QVERIFY(!f.delButton->isEnabled());
    QVERIFY(f.addButton->isEnabled());
}

void tst_HotKeyPage::selectAndDelete()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setShortcuts(Table{{&save, {seq("Ctrl+S"), seq("F2"), seq("F3")}}});
    f.page->setAction(&save);
    f.edit->setFocus();
    QVERIFY(f.show());
    QVERIFY(!f.delButton->isEnabled());
    f.clickRow(1);
    QCOMPARE(f.list->currentRow(), 1);
    QVERIFY(f.delButton->isEnabled());
    QTest::mouseClick(f.delButton, Qt::LeftButton);
    QCOMPARE(f.page->shortcuts().value(&save), (QList<QKeySequence>{seq("Ctrl+S"), seq("F3")}));
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("Ctrl+S"), QStringLiteral("F3")}));
}

void tst_HotKeyPage::doubleClickDeletes()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setShortcuts(Table{{&save, {seq("Ctrl+S"), seq("F2")}}});
    f.page->setAction(&save);
    QVERIFY(f.show());
    // A real double-click starts with a click: press, release, press, double-click.
    const QPoint pos = f.list->visualItemRect(f.list->item(0)).center();
    QTest::mouseClick(f.list->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(f.page->shortcuts().value(&save).size(), 2);
    QTest::mouseDClick(f.list->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(f.page->shortcuts().value(&save), QList<QKeySequence>{seq("F2")});
    QCOMPARE(f.rows(), QStringList{QStringLiteral("F2")});
}

void tst_HotKeyPage::insertAfterSelectedRowAndRowPairedDelete()
{
    PageFixture f;
    QAction save(QStringLiteral("Save"), nullptr);
    f.page->setShortcuts(Table{{&save, {seq("F1"), seq("F2")}}});
    f.page->setAction(&save);
    QVERIFY(f.show());
    f.clickRow(0);
    QTest::keyClick(f.edit, Qt::Key_F3);
    QTest::mouseClick(f.addButton, Qt::LeftButton);
    // Shown after the selected row, stored at the end.
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("F1"), QStringLiteral("F3"), QStringLiteral("F2")}));
    QCOMPARE(f.page->shortcuts().value(&save), (QList<QKeySequence>{seq("F1"), seq("F2"), seq("F3")}));
    // Deleting the visible row 1 ("F3") removes the stored entry at row 1 ("F2").
    f.clickRow(1);
    QTest::mouseClick(f.delButton, Qt::LeftButton);
    QCOMPARE(f.rows(), (QStringList{QStringLiteral("F1"), QStringLiteral("F2")}));
    QCOMPARE(f.page->shortcuts().value(&save), (QList<QKeySequence>{seq("F1"), seq("F3")}));
}

void tst_HotKeyPage::addWithoutCurrentActionDoesNothing()
{
    PageFixture f;
    QTest::keyClick(f.edit, Qt::Key_F4);
    QVERIFY(!f.addButton->isEnabled());
    f.page->addShortcut();
    QVERIFY(f.page->shortcuts().isEmpty());
    QCOMPARE(f.list->count(), 0);
}

void tst_HotKeyPage::shiftDigitStoredWithoutShift()
{
    PageFixture f;
    QAction bang(QStringLiteral("Bang"), nullptr);
    f.page->setAction(&bang);
    QVERIFY(f.show());
    QTest::sendKeyEvent(QTest::Press, f.edit, Qt::Key_Exclam, QStringLiteral("!"), Qt::ShiftModifier);
    QCOMPARE(f.edit->text(), QStringLiteral("!"));
    QTest::mouseClick(f.addButton, Qt::LeftButton);
    QCOMPARE(f.page->shortcuts().value(&bang), QList<QKeySequence>{QKeySequence(Qt::Key_Exclam)});
    QCOMPARE(f.rows(), QStringList{QStringLiteral("!")});
}

QTEST_MAIN(tst_HotKeyPage)
#include "tst_hotkeypage.moc"
