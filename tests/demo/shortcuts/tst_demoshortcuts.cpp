#include "DemoCommands.h"
#include "DemoMenus.h"
#include "DemoSettings.h"
#include "DemoShortcutSettings.h"
#include "DemoShortcutsDialog.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <tessaro/KeyValueStorage.h>
#include <tessaro/MenuTreeWidget.h>
#include <tessaro/QtKeySequenceEdit.h>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace {

struct Commands
{
    QMenu root{QStringLiteral("Commands")};
    QAction* save = nullptr;
    QAction* open = nullptr;
    QAction* bold = nullptr;
    QAction* separator = nullptr;
    QAction* named = nullptr;
    QMenu* recent = nullptr;
    QAction* recentFile = nullptr;

    Commands()
    {
        QMenu* file = root.addMenu(QStringLiteral("&File"));
        open = file->addAction(QStringLiteral("&Open"));
        open->setData(102);
        open->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
        save = file->addAction(QStringLiteral("&Save"));
        save->setData(103);
        save->setShortcuts({QKeySequence(QStringLiteral("Ctrl+S")), QKeySequence(QStringLiteral("F2"))});
        separator = file->addSeparator();
        recent = file->addMenu(QStringLiteral("Recent"));
        recent->menuAction()->setProperty("isDynamic", true);
        recentFile = recent->addAction(QStringLiteral("a.txt"));
        QMenu* format = root.addMenu(QStringLiteral("F&ormat"));
        bold = format->addAction(QStringLiteral("&Bold"));
        bold->setData(501);
        bold->setShortcut(QKeySequence(QStringLiteral("Ctrl+B")));
        named = format->addAction(QStringLiteral("Named"));
        named->setObjectName(QStringLiteral("formatNamed"));
        // The same command in a second category.
        format->addAction(save);
    }
};

QModelIndex findIndex(const QAbstractItemModel* model, const QAction* action, const QModelIndex& parent = {})
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (index.internalPointer() == action)
            return index;
        const QModelIndex found = findIndex(model, action, index);
        if (found.isValid())
            return found;
    }
    return {};
}

} // namespace

class tst_DemoShortcuts : public QObject
{
    Q_OBJECT

private slots:
    void collectDepthFirstEachOnce();
    void editAndConfirmAppliesToActions();
    void cancelLeavesActions();
    void commandKeys();
    void settingsRoundTrip();
    void demoToolsCommandEditsAndKeeps();
    void selectedRowKeepsIconsLegible();
    void conflictOwnerIsLabelled();
};

void tst_DemoShortcuts::collectDepthFirstEachOnce()
{
    Commands c;
    const DemoShortcutsDialog::Table table = DemoShortcutsDialog::collectShortcuts(&c.root);
    QCOMPARE(table.size(), 6); // open, save, separator, a.txt, bold, named
    QCOMPARE(table.value(c.save), c.save->shortcuts());
    QVERIFY(table.contains(c.separator));
    QVERIFY(table.value(c.separator).isEmpty());
    QVERIFY(table.contains(c.recentFile));
    QVERIFY(!table.contains(c.recent->menuAction()));
    QVERIFY(DemoShortcutsDialog::collectShortcuts(nullptr).isEmpty());
}

void tst_DemoShortcuts::editAndConfirmAppliesToActions()
{
    Commands c;
    DemoShortcutsDialog dialog(&c.root);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    MenuTreeWidget* tree = dialog.tree();
    const QModelIndex bold = findIndex(tree->model(), c.bold);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(bold).center());
    QCOMPARE(dialog.page()->action(), c.bold);
    auto* list = dialog.page()->findChild<QListWidget*>(QStringLiteral("listWidget"));
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->item(0)->text(), QStringLiteral("Ctrl+B"));

    auto* edit = dialog.page()->findChild<QtKeySequenceEdit*>();
    auto* add = dialog.page()->findChild<QToolButton*>(QStringLiteral("addButton"));
    // Ctrl+S belongs to Save: refused.
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!add->isEnabled());
    QTest::keyClick(edit, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(add->isEnabled());
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(c.bold->shortcuts().size(), 1); // nothing applied before OK

    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const QList<QAction*> changed = dialog.apply();
    QCOMPARE(changed, QList<QAction*>{c.bold});
    QCOMPARE(c.bold->shortcuts(), (QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+B")),
                                                       QKeySequence(QStringLiteral("Ctrl+Shift+B"))}));
    QCOMPARE(c.save->shortcuts().size(), 2);
}

void tst_DemoShortcuts::cancelLeavesActions()
{
    Commands c;
    DemoShortcutsDialog dialog(&c.root);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.page()->setAction(c.open);
    auto* list = dialog.page()->findChild<QListWidget*>(QStringLiteral("listWidget"));
    list->setCurrentRow(0);
    dialog.page()->delShortcut();
    QVERIFY(dialog.editedShortcuts().value(c.open).isEmpty());
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(c.open->shortcuts(), QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+O"))});
}

void tst_DemoShortcuts::commandKeys()
{
    Commands c;
    QCOMPARE(DemoShortcutSettings::commandKey(c.save), QStringLiteral("id:103"));
    QCOMPARE(DemoShortcutSettings::commandKey(c.named), QStringLiteral("name:formatNamed"));
    QCOMPARE(DemoShortcutSettings::commandKey(c.separator), QString());
    QCOMPARE(DemoShortcutSettings::commandKey(c.recentFile), QString());
}

void tst_DemoShortcuts::settingsRoundTrip()
{
    QByteArray bytes;
    {
        Commands c;
        DemoShortcutsDialog::Table table = DemoShortcutsDialog::collectShortcuts(&c.root);
        table[c.save] = {QKeySequence(QStringLiteral("Ctrl+Alt+S"))};
        table[c.named] = {QKeySequence(QStringLiteral("F11")), QKeySequence(QStringLiteral("Shift+F11"))};
        table[c.open] = {};
        const QList<QAction*> changed = DemoShortcutsDialog::applyShortcuts(table);
        QCOMPARE(changed.size(), 3);
        KeyValueStorage storage(bytes);
        storage.setValue(DemoShortcutSettings::settingsKey,
                         DemoShortcutSettings::merge(storage.value(DemoShortcutSettings::settingsKey).toMap(),
                                                     changed));
    }
    QVERIFY(!bytes.isEmpty());
    // A new run: fresh actions with their default shortcuts, then the saved ones.
    Commands c;
    KeyValueStorage storage(bytes);
    const QVariantMap saved = storage.value(DemoShortcutSettings::settingsKey).toMap();
    QCOMPARE(saved.size(), 3);
    QCOMPARE(DemoShortcutSettings::restore(saved, &c.root), 3);
    QCOMPARE(c.save->shortcuts(), QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+Alt+S"))});
    QCOMPARE(c.named->shortcuts(), (QList<QKeySequence>{QKeySequence(QStringLiteral("F11")),
                                                        QKeySequence(QStringLiteral("Shift+F11"))}));
    QVERIFY(c.open->shortcuts().isEmpty());
    QCOMPARE(c.bold->shortcuts(), QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+B"))});
    // Restoring again changes nothing.
    QCOMPARE(DemoShortcutSettings::restore(saved, &c.root), 0);
}

void tst_DemoShortcuts::demoToolsCommandEditsAndKeeps()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString settingsFile = dir.filePath(QStringLiteral("settings.dat"));
    const QKeySequence chosen(Qt::CTRL | Qt::ALT | Qt::Key_W);
    {
        DemoWindow window(settingsFile);
        QAction* command = window.commands()->action(DemoCommands::ToolsKeyboardShortcuts);
        QVERIFY(command);
        QVERIFY(window.commands()->menus().category(DemoMenus::Tools)->actions().contains(command));
        QAction* wordCount = window.commands()->action(DemoCommands::ToolsWordCount);
        QVERIFY(!wordCount->shortcuts().contains(chosen));

        window.commands()->registry()->RunCommand(DemoCommands::ToolsKeyboardShortcuts);
        auto* dialog = window.findChild<DemoShortcutsDialog*>();
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        MenuTreeWidget* tree = dialog->tree();
        const QModelIndex index = findIndex(tree->model(), wordCount);
        QVERIFY(index.isValid());
        tree->scrollTo(index);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(index).center());
        QCOMPARE(dialog->page()->action(), wordCount);
        auto* edit = dialog->page()->findChild<QtKeySequenceEdit*>();
        QTest::keyClick(edit, Qt::Key_W, Qt::ControlModifier | Qt::AltModifier);
        QTest::mouseClick(dialog->page()->findChild<QToolButton*>(QStringLiteral("addButton")), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QVERIFY(wordCount->shortcuts().contains(chosen));
        QVERIFY(window.settings().value(DemoShortcutSettings::settingsKey).toMap().contains(
            DemoShortcutSettings::commandKey(wordCount)));
    }
    // The next start gets the edited shortcut back.
    DemoWindow window(settingsFile);
    QAction* wordCount = window.commands()->action(DemoCommands::ToolsWordCount);
    QVERIFY(wordCount->shortcuts().contains(chosen));
}

void tst_DemoShortcuts::selectedRowKeepsIconsLegible()
{
    Commands c;
    c.bold->setIcon(QIcon(QPixmap(16, 16)));
    DemoShortcutsDialog dialog(&c.root);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    MenuTreeWidget* tree = dialog.tree();
    const QModelIndex bold = findIndex(tree->model(), c.bold);
    tree->setCurrentIndex(bold);
    // The dark line icons stand on a light selection, with dark text beside them.
    const QPalette palette = tree->palette();
    QVERIFY(palette.color(QPalette::Active, QPalette::Highlight).lightness() > 200);
    QVERIFY(palette.color(QPalette::Inactive, QPalette::Highlight).lightness() > 200);
    QVERIFY(palette.color(QPalette::Active, QPalette::HighlightedText).lightness() < 60);
    const QRect row = tree->visualRect(bold);
    const QImage picture = tree->viewport()->grab().toImage();
    QVERIFY(QColor(picture.pixel(row.right() - 2, row.center().y())).lightness() > 200);
}

void tst_DemoShortcuts::conflictOwnerIsLabelled()
{
    Commands c;
    DemoShortcutsDialog dialog(&c.root);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.page()->setAction(c.bold);
    QLabel* label = dialog.ownerLabel();
    QVERIFY(label);
    auto* owner = dialog.page()->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
    QCOMPARE(label->buddy(), owner);
    QVERIFY(!label->isVisible());
    auto* edit = dialog.page()->findChild<QtKeySequenceEdit*>();
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(owner->isVisible());
    QCOMPARE(owner->text(), QStringLiteral("Save"));
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QStringLiteral("Already used by:"));
    // Side by side, the label first.
    QVERIFY(label->geometry().right() < owner->geometry().left());
    QCOMPARE(label->geometry().center().y(), owner->geometry().center().y());
    QTest::keyClick(edit, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!owner->isVisible());
    QVERIFY(!label->isVisible());
}

QTEST_MAIN(tst_DemoShortcuts)
#include "tst_demoshortcuts.moc"
