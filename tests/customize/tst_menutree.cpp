#include <tessaro/MenuTreeWidget.h>
#include <tessaro/menuTreeModel.h>

#include "common/faketranslator.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QFont>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

namespace {

const QString separatorText = QStringLiteral("< Р А З Д Е Л И Т Е Л Ь >");

// File
//   New, Open, ----, Recent (dynamic), Export >
//                                        PDF, Image >
//                                                 PNG, JPEG
// Edit
//   Cut, Copy
// Help (command at top level)
struct Fixture
{
    QMenu root{QStringLiteral("&Commands")};
    QMenu* file = nullptr;
    QMenu* recent = nullptr;
    QMenu* exportMenu = nullptr;
    QMenu* image = nullptr;
    QMenu* edit = nullptr;
    QAction* newAct = nullptr;
    QAction* open = nullptr;
    QAction* separator = nullptr;
    QAction* pdf = nullptr;
    QAction* png = nullptr;
    QAction* jpeg = nullptr;
    QAction* cut = nullptr;
    QAction* copy = nullptr;
    QAction* help = nullptr;

    Fixture()
    {
        file = root.addMenu(QStringLiteral("&File"));
        newAct = file->addAction(QStringLiteral("&New"));
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        newAct->setIcon(QIcon(pixmap));
        open = file->addAction(QStringLiteral("&Open && Close"));
        separator = file->addSeparator();
        recent = file->addMenu(QStringLiteral("&Recent"));
        recent->addAction(QStringLiteral("one.txt"));
        recent->addAction(QStringLiteral("two.txt"));
        recent->menuAction()->setProperty("isDynamic", true);
        exportMenu = file->addMenu(QStringLiteral("E&xport"));
        pdf = exportMenu->addAction(QStringLiteral("PDF"));
        image = exportMenu->addMenu(QStringLiteral("Image"));
        png = image->addAction(QStringLiteral("PNG"));
        jpeg = image->addAction(QStringLiteral("JPEG"));
        edit = root.addMenu(QStringLiteral("&Edit"));
        cut = edit->addAction(QStringLiteral("Cu&t"));
        copy = edit->addAction(QStringLiteral("&Copy"));
        help = root.addAction(QStringLiteral("&Help"));
    }
};

QModelIndex findIndex(const QAbstractItemModel& model, const QAction* action,
                      const QModelIndex& parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (MenuTreeModel::actionForIndex(index) == action)
            return index;
        const QModelIndex found = findIndex(model, action, index);
        if (found.isValid())
            return found;
    }
    return QModelIndex();
}

// The parent the model must give, found the slow way: walk the menu from the
// root, depth first, to the first menu that holds the action.
QAction* walkToParent(const QAction* action, QMenu* menu)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* entry : actions) {
        if (entry == action)
            return menu->menuAction();
        if (QMenu* sub = entry->menu()) {
            if (QAction* found = walkToParent(action, sub))
                return found;
        }
    }
    return nullptr;
}

// What parent() answers for an index of the action, per the walk: no parent
// for an action not under the root or held by the root itself; otherwise the
// holder's menu action, at its place in the menu that holds it (-1 when none).
QString walkedParent(QMenu* root, const QAction* action)
{
    QAction* parent = walkToParent(action, root);
    if (!parent || parent->menu() == root)
        return QStringLiteral("none");
    QAction* grand = walkToParent(parent, root);
    const int row = grand ? grand->menu()->actions().indexOf(parent) : -1;
    return QStringLiteral("%1@%2").arg(parent->text()).arg(row);
}

QString modelParent(const QAbstractItemModel& model, const QModelIndex& index)
{
    const QModelIndex parent = model.parent(index);
    if (!parent.internalPointer())
        return QStringLiteral("none");
    return QStringLiteral("%1@%2").arg(static_cast<QAction*>(parent.internalPointer())->text()).arg(parent.row());
}

class ExposedModel : public MenuTreeModel
{
public:
    using MenuTreeModel::MenuTreeModel;
    QModelIndex make(int row, int column, QAction* action) const
    {
        return createIndex(row, column, action);
    }
};

} // namespace

class tst_MenuTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<QAction*>(); }
    void testerOnNestedMenu();
    void testerOnEmptyAndNullMenu();
    void testerAcrossSetMenu();
    void structure();
    void parentOfNestedItems();
    void indexOutOfRange();
    void dynamicMenuIsSelectableLeaf();
    void isDynamicFalseOrInvalidIsCategory();
    void separatorItem();
    void ampersandsRemoved();
    void categoryBoldCommandPlain();
    void decorationIsIcon();
    void flags();
    void headerShowsRootTitle();
    void setMenuNullEmptiesTree();
    void setMenuResets();
    void readsLiveMenu();
    void parentFollowsLiveMenuWithoutReset();
    void parentOfRemovedActionIsInvalid();
    void separatorTranslatedInFileContext();
    void actionInTwoSubmenusHasFirstParent();
    void foreignMenuActionGivesRowMinusOne();
    void parentAfterAddingToEarlierSubmenu();
    void parentAfterSubmenuChanges();
    void parentAfterSubmenuDeleted();
    void parentEqualsWalkThroughRandomEdits();

    void widgetConstruction();
    void widgetExpandsAll();
    void widgetSetMenu();
    void widgetClickEmitsCurrentActionChanged();
    void widgetClickOnCategoryOrSeparatorKeepsCurrent();
    void widgetCurrentClearedEmitsNull();
    void widgetSetMenuDropsCurrent();
    void widgetDoubleClickCommand();
    void widgetDoubleClickDynamicMenu();
    void widgetDoubleClickCategoryOrSeparator();
    void widgetDoubleClickedNotCurrentIgnored();
};

void tst_MenuTree::testerOnNestedMenu()
{
    Fixture f;
    // An action in a menu that is also reachable a second way would break the
    // tree's parent/child symmetry; the fixture has none.
    MenuTreeModel model(&f.root);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(!QTest::currentTestFailed());
}

void tst_MenuTree::testerOnEmptyAndNullMenu()
{
    QMenu empty(QStringLiteral("Empty"));
    MenuTreeModel model(&empty);
    {
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
    }
    MenuTreeModel nullModel(nullptr);
    {
        QAbstractItemModelTester tester(&nullModel, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(nullModel.rowCount(), 0);
        QVERIFY(!nullModel.index(0, 0).isValid());
    }
}

void tst_MenuTree::testerAcrossSetMenu()
{
    Fixture f;
    QMenu other(QStringLiteral("Other"));
    other.addAction(QStringLiteral("A"));
    other.addSeparator();
    other.addMenu(QStringLiteral("Sub"))->addAction(QStringLiteral("B"));
    MenuTreeModel model(nullptr);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setMenu(&f.root);
    model.setMenu(&other);
    model.setMenu(nullptr);
    model.setMenu(&f.root);
    QCOMPARE(model.rowCount(), 3);
}

void tst_MenuTree::structure()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.columnCount(), 1);
    const QModelIndex file = model.index(0, 0);
    QCOMPARE(MenuTreeModel::actionForIndex(file), f.file->menuAction());
    QCOMPARE(file.internalPointer(), static_cast<void*>(f.file->menuAction()));
    QCOMPARE(model.rowCount(file), 5);
    QCOMPARE(MenuTreeModel::actionForIndex(model.index(2, 0, file)), f.separator);
    const QModelIndex exportIndex = model.index(4, 0, file);
    QCOMPARE(MenuTreeModel::actionForIndex(exportIndex), f.exportMenu->menuAction());
    QCOMPARE(model.rowCount(exportIndex), 2);
    const QModelIndex image = model.index(1, 0, exportIndex);
    QCOMPARE(model.rowCount(image), 2);
    QCOMPARE(MenuTreeModel::actionForIndex(model.index(1, 0, image)), f.jpeg);
    QCOMPARE(model.rowCount(model.index(2, 0)), 0); // a command
    QCOMPARE(model.rowCount(model.index(0, 0, file)), 0);
    QCOMPARE(model.rowCount(file.sibling(0, 0)), 5);
    // Column 1 never has children.
    ExposedModel exposed(&f.root);
    QCOMPARE(exposed.rowCount(exposed.make(0, 0, f.file->menuAction())), 5);
    QCOMPARE(exposed.rowCount(exposed.make(0, 1, f.file->menuAction())), 0);
}

void tst_MenuTree::parentOfNestedItems()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QModelIndex file = model.index(0, 0);
    QVERIFY(!model.parent(file).isValid());
    QVERIFY(!model.parent(QModelIndex()).isValid());
    QVERIFY(!model.parent(model.index(2, 0)).isValid());
    const QModelIndex open = model.index(1, 0, file);
    QCOMPARE(model.parent(open), file);
    const QModelIndex image = findIndex(model, f.image->menuAction());
    QCOMPARE(image.row(), 1);
    const QModelIndex png = findIndex(model, f.png);
    QCOMPARE(model.parent(png), image);
    QCOMPARE(model.parent(image).row(), 4);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(image)), f.exportMenu->menuAction());
    QCOMPARE(model.parent(model.parent(image)), file);
    const QModelIndex copy = findIndex(model, f.copy);
    QCOMPARE(copy.row(), 1);
    QCOMPARE(model.parent(copy).row(), 1);
}

void tst_MenuTree::indexOutOfRange()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    QVERIFY(!model.index(3, 0).isValid());
    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(0, 1).isValid());
    const QModelIndex file = model.index(0, 0);
    QVERIFY(!model.index(5, 0, file).isValid());
    QVERIFY(!model.index(0, 0, model.index(2, 0)).isValid()); // a command has no children
    QVERIFY(!model.data(QModelIndex()).isValid());
}

void tst_MenuTree::dynamicMenuIsSelectableLeaf()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QModelIndex recent = findIndex(model, f.recent->menuAction());
    QVERIFY(recent.isValid());
    QCOMPARE(model.rowCount(recent), 0);
    QVERIFY(!model.hasChildren(recent));
    QVERIFY(!model.index(0, 0, recent).isValid());
    QCOMPARE(model.flags(recent), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QVERIFY(!model.data(recent, Qt::FontRole).isValid());
    QCOMPARE(model.data(recent).toString(), QStringLiteral("Recent"));
    // Its own actions are not found as children either.
    QVERIFY(!findIndex(model, f.recent->actions().first()).isValid());
}

void tst_MenuTree::isDynamicFalseOrInvalidIsCategory()
{
    Fixture f;
    f.recent->menuAction()->setProperty("isDynamic", false);
    MenuTreeModel model(&f.root);
    QModelIndex recent = findIndex(model, f.recent->menuAction());
    QCOMPARE(model.rowCount(recent), 2);
    QCOMPARE(model.flags(recent), Qt::NoItemFlags);

    // A value that does not convert to a bool counts as not dynamic.
    f.recent->menuAction()->setProperty("isDynamic", QVariant(QPoint(1, 1)));
    model.setMenu(&f.root);
    recent = findIndex(model, f.recent->menuAction());
    QCOMPARE(model.rowCount(recent), 2);

    f.recent->menuAction()->setProperty("isDynamic", QVariant(QStringLiteral("false")));
    model.setMenu(&f.root);
    recent = findIndex(model, f.recent->menuAction());
    QCOMPARE(model.rowCount(recent), 2);

    f.recent->menuAction()->setProperty("isDynamic", QVariant(QStringLiteral("true")));
    model.setMenu(&f.root);
    recent = findIndex(model, f.recent->menuAction());
    QCOMPARE(model.rowCount(recent), 0);

    f.recent->menuAction()->setProperty("isDynamic", 1);
    model.setMenu(&f.root);
    recent = findIndex(model, f.recent->menuAction());
    QCOMPARE(model.rowCount(recent), 0);

    f.recent->menuAction()->setProperty("isDynamic", QVariant());
    model.setMenu(&f.root);
    recent = findIndex(model, f.recent->menuAction());
    QCOMPARE(model.rowCount(recent), 2);
}

void tst_MenuTree::separatorItem()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QModelIndex separator = model.index(2, 0, model.index(0, 0));
    QCOMPARE(MenuTreeModel::actionForIndex(separator), f.separator);
    QCOMPARE(model.data(separator).toString(), separatorText);
    const QVariant tip = model.data(separator, Qt::StatusTipRole);
    QVERIFY(tip.isValid());
    QCOMPARE(tip.toString(), QString());
    QCOMPARE(model.flags(separator), Qt::NoItemFlags);
    QVERIFY(!model.data(separator, Qt::FontRole).isValid());
    QVERIFY(!model.data(separator, Qt::ToolTipRole).isValid());
    QCOMPARE(model.rowCount(separator), 0);
}

void tst_MenuTree::ampersandsRemoved()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QModelIndex file = model.index(0, 0);
    QCOMPARE(model.data(file).toString(), QStringLiteral("File"));
    QCOMPARE(model.data(model.index(0, 0, file)).toString(), QStringLiteral("New"));
    // A literal ampersand ("&&") vanishes wholly.
    const QModelIndex open = model.index(1, 0, file);
    QCOMPARE(model.data(open).toString(), QStringLiteral("Open  Close"));
    QCOMPARE(model.data(open, Qt::StatusTipRole).toString(), QStringLiteral("Open  Close"));
    QCOMPARE(model.data(findIndex(model, f.cut)).toString(), QStringLiteral("Cut"));
    QCOMPARE(model.data(findIndex(model, f.exportMenu->menuAction())).toString(), QStringLiteral("Export"));
    QVERIFY(!model.data(open, Qt::EditRole).isValid());
    QVERIFY(!model.data(open, Qt::UserRole).isValid());
}

void tst_MenuTree::categoryBoldCommandPlain()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QVariant font = model.data(model.index(0, 0), Qt::FontRole);
    QVERIFY(font.canConvert<QFont>());
    QCOMPARE(font.value<QFont>().weight(), 75);
    QVERIFY(font.value<QFont>().bold());
    QCOMPARE(model.data(findIndex(model, f.image->menuAction()), Qt::FontRole).value<QFont>().weight(), 75);
    QVERIFY(!model.data(findIndex(model, f.png), Qt::FontRole).isValid());
    QVERIFY(!model.data(model.index(2, 0), Qt::FontRole).isValid());
}

void tst_MenuTree::decorationIsIcon()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QIcon icon = model.data(findIndex(model, f.newAct), Qt::DecorationRole).value<QIcon>();
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.cacheKey(), f.newAct->icon().cacheKey());
    QVERIFY(model.data(findIndex(model, f.open), Qt::DecorationRole).value<QIcon>().isNull());
}

void tst_MenuTree::flags()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    QCOMPARE(model.flags(QModelIndex()), Qt::NoItemFlags);
    QCOMPARE(model.flags(model.index(0, 0)), Qt::NoItemFlags);
    QCOMPARE(model.flags(findIndex(model, f.image->menuAction())), Qt::NoItemFlags);
    QCOMPARE(model.flags(findIndex(model, f.png)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model.flags(model.index(2, 0)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    // A disabled command stays selectable in the tree.
    f.cut->setEnabled(false);
    QCOMPARE(model.flags(findIndex(model, f.cut)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

void tst_MenuTree::headerShowsRootTitle()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("&Commands"));
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    MenuTreeWidget tree(nullptr, &f.root);
    QCOMPARE(tree.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("&Commands"));
}

void tst_MenuTree::setMenuNullEmptiesTree()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.setMenu(nullptr);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.headerData(0, Qt::Horizontal).isValid());
    QCOMPARE(model.menu(), static_cast<QMenu*>(nullptr));

    MenuTreeWidget tree(nullptr, &f.root);
    QVERIFY(tree.model()->rowCount() > 0);
    tree.setMenu(nullptr);
    QCOMPARE(tree.model()->rowCount(), 0);
    QVERIFY(!tree.model()->headerData(0, Qt::Horizontal).isValid());
}

void tst_MenuTree::setMenuResets()
{
    Fixture f;
    QMenu other(QStringLiteral("Other"));
    other.addAction(QStringLiteral("Only"));
    MenuTreeModel model(&f.root);
    QSignalSpy aboutToReset(&model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.setMenu(&other);
    QCOMPARE(aboutToReset.count(), 1);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.menu(), &other);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Other"));
}

void tst_MenuTree::readsLiveMenu()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    QCOMPARE(model.rowCount(), 3);
    // The model copies nothing: texts and counts come from the menu as it is now.
    f.help->setText(QStringLiteral("&About"));
    QCOMPARE(model.data(model.index(2, 0)).toString(), QStringLiteral("About"));
    QAction* added = f.edit->addAction(QStringLiteral("Paste"));
    model.setMenu(&f.root);
    const QModelIndex paste = findIndex(model, added);
    QCOMPARE(paste.row(), 2);
    QCOMPARE(model.parent(paste), model.index(1, 0));
    // Moving a command to another category and resetting gives it its new parent.
    f.edit->removeAction(f.copy);
    f.image->addAction(f.copy);
    model.setMenu(&f.root);
    const QModelIndex copy = findIndex(model, f.copy);
    QCOMPARE(copy.row(), 2);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(copy)), f.image->menuAction());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void tst_MenuTree::parentFollowsLiveMenuWithoutReset()
{
    Fixture f;
    MenuTreeModel model(&f.root);
    const QModelIndex png = findIndex(model, f.png);
    QCOMPARE(model.parent(png).row(), 1);
    QCOMPARE(model.parent(model.parent(png)).row(), 4);
    QCOMPARE(model.parent(findIndex(model, f.copy)).row(), 1);

    // Shift rows in front of already answered items, without telling the model.
    QAction* first = new QAction(QStringLiteral("First"), &f.root);
    f.root.insertAction(f.file->menuAction(), first);
    QAction* zip = new QAction(QStringLiteral("ZIP"), &f.root);
    f.exportMenu->insertAction(f.pdf, zip);
    f.edit->removeAction(f.cut);

    const QModelIndex file = model.index(1, 0);
    QCOMPARE(MenuTreeModel::actionForIndex(file), f.file->menuAction());
    const QModelIndex exportIndex = model.index(4, 0, file);
    const QModelIndex image = model.index(2, 0, exportIndex);
    QCOMPARE(MenuTreeModel::actionForIndex(image), f.image->menuAction());
    const QModelIndex pngNow = model.index(0, 0, image);
    QCOMPARE(model.parent(pngNow), image);
    QCOMPARE(model.parent(image), exportIndex);
    QCOMPARE(model.parent(exportIndex), file);
    const QModelIndex copy = model.index(0, 0, model.index(2, 0));
    QCOMPARE(MenuTreeModel::actionForIndex(copy), f.copy);
    QCOMPARE(model.parent(copy).row(), 2);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void tst_MenuTree::parentOfRemovedActionIsInvalid()
{
    Fixture f;
    ExposedModel model(&f.root);
    const QModelIndex jpeg = findIndex(model, f.jpeg);
    QVERIFY(model.parent(jpeg).isValid());
    f.image->removeAction(f.jpeg);
    QVERIFY(!model.parent(jpeg).isValid());
    // A whole category deleted behind the model's back (its commands go with
    // it); the stale index's action is only compared, never touched.
    const QModelIndex cut = findIndex(model, f.cut);
    QVERIFY(model.parent(cut).isValid());
    delete f.edit;
    QVERIFY(!model.parent(cut).isValid());
    QCOMPARE(model.rowCount(), 2);
}

void tst_MenuTree::separatorTranslatedInFileContext()
{
    Fixture f;
    testcommon::FakeTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    MenuTreeModel model(&f.root);
    const QString text = model.data(model.index(2, 0, model.index(0, 0))).toString();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(text, QStringLiteral("[menuTreeModel.cpp]") + separatorText);
    // Command texts are the host's and are not translated here.
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("File"));
}

void tst_MenuTree::actionInTwoSubmenusHasFirstParent()
{
    Fixture f;
    f.image->addAction(f.cut);
    MenuTreeModel model(&f.root);
    const QModelIndex image = findIndex(model, f.image->menuAction());
    const QModelIndex second = model.index(2, 0, image);
    QCOMPARE(MenuTreeModel::actionForIndex(second), f.cut);
    // The depth-first search finds the File > Export > Image entry before Edit.
    QCOMPARE(model.parent(second), image);
}

void tst_MenuTree::foreignMenuActionGivesRowMinusOne()
{
    // A menu shared by two actions answers menuAction() with the last one
    // given it; when that one is not in the tree, the parent found for the
    // menu's entries is not under the root.
    QMenu root(QStringLiteral("Root"));
    QMenu detached(QStringLiteral("Detached"));
    QAction* child = detached.addAction(QStringLiteral("Child"));
    QAction holder(QStringLiteral("Holder"), nullptr);
    holder.setMenu(&detached);
    root.addAction(&holder);
    QAction outside(QStringLiteral("Outside"), nullptr);
    outside.setMenu(&detached);
    QCOMPARE(detached.menuAction(), &outside);
    ExposedModel model(&root);
    QCOMPARE(model.rowCount(), 1);
    const QModelIndex holderIndex = model.index(0, 0);
    QCOMPARE(model.rowCount(holderIndex), 1);
    const QModelIndex childIndex = model.index(0, 0, holderIndex);
    QCOMPARE(MenuTreeModel::actionForIndex(childIndex), child);
    const QModelIndex parent = model.parent(childIndex);
    QCOMPARE(parent.row(), -1);
    QVERIFY(!parent.isValid());
}

// Answered once, then the command is also put into a submenu that comes
// earlier, without setMenu(): the answer follows the walk at once.
void tst_MenuTree::parentAfterAddingToEarlierSubmenu()
{
    Fixture f;
    ExposedModel model(&f.root);
    const QModelIndex copy = findIndex(model, f.copy);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(copy)), f.edit->menuAction());

    f.file->addAction(f.copy);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(copy)), f.file->menuAction());
    QCOMPARE(model.parent(copy).row(), 0);
    QCOMPARE(modelParent(model, copy), walkedParent(&f.root, f.copy));

    // Deeper and earlier still, then taken out again.
    f.image->insertAction(f.png, f.copy);
    QCOMPARE(model.parent(copy), findIndex(model, f.image->menuAction()));
    f.image->removeAction(f.copy);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(copy)), f.file->menuAction());
    f.file->removeAction(f.copy);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(copy)), f.edit->menuAction());

    // A new submenu in front that holds the command.
    QMenu* first = new QMenu(QStringLiteral("First"), &f.root);
    first->addAction(f.cut);
    const QModelIndex cut = findIndex(model, f.cut);
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(cut)), f.edit->menuAction());
    f.root.insertAction(f.file->menuAction(), first->menuAction());
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(cut)), first->menuAction());
    QCOMPARE(model.parent(cut).row(), 0);
    // The top-level parents behind it moved down by one row.
    QCOMPARE(model.parent(model.make(0, 0, f.newAct)).row(), 1);
    QCOMPARE(model.parent(model.make(0, 0, f.copy)).row(), 2);
}

// A command given a submenu (or losing one) changes what lies under the root.
void tst_MenuTree::parentAfterSubmenuChanges()
{
    Fixture f;
    ExposedModel model(&f.root);
    const QModelIndex jpeg = model.make(1, 0, f.jpeg);
    QCOMPARE(modelParent(model, jpeg), QStringLiteral("Image@1"));

    // Open gets a menu holding JPEG: found there first.
    QMenu holder(QStringLiteral("Holder"));
    holder.addAction(f.jpeg);
    f.open->setMenu(&holder);
    QCOMPARE(modelParent(model, jpeg), walkedParent(&f.root, f.jpeg));
    QCOMPARE(MenuTreeModel::actionForIndex(model.parent(jpeg)), f.open);
    QCOMPARE(model.parent(jpeg).row(), 1);

    // Export's submenu taken off its action: Image and JPEG below it are
    // reachable only through Open now.
    f.open->setMenu(nullptr);
    const QModelIndex png = model.make(0, 0, f.png);
    QCOMPARE(modelParent(model, png), QStringLiteral("Image@1"));
    QAction* ownExportAction = f.exportMenu->menuAction();
    QAction* exportAction = new QAction(QStringLiteral("Export"), &f.root);
    exportAction->setMenu(f.exportMenu);
    f.file->insertAction(ownExportAction, exportAction);
    f.file->removeAction(ownExportAction);
    QCOMPARE(modelParent(model, png), walkedParent(&f.root, f.png));
    QCOMPARE(model.parent(model.parent(png)).row(), 4);
    exportAction->setMenu(nullptr);
    QCOMPARE(modelParent(model, png), QStringLiteral("none"));
    QCOMPARE(modelParent(model, png), walkedParent(&f.root, f.png));
}

// A submenu deleted behind the model's back takes its place with it; the
// same command elsewhere is found there.
void tst_MenuTree::parentAfterSubmenuDeleted()
{
    Fixture f;
    ExposedModel model(&f.root);
    QMenu* holderMenu = new QMenu(QStringLiteral("Holder"));
    QMenu* inner = holderMenu->addMenu(QStringLiteral("Inner"));
    inner->addAction(f.cut);
    QAction holder(QStringLiteral("Holder"), nullptr);
    holder.setMenu(holderMenu);
    f.file->insertAction(f.newAct, &holder);
    const QModelIndex cut = model.make(0, 0, f.cut);
    QCOMPARE(modelParent(model, cut), QStringLiteral("Inner@0"));

    delete holderMenu;
    QVERIFY(!holder.menu());
    QCOMPARE(modelParent(model, cut), QStringLiteral("&Edit@1"));
    QCOMPARE(modelParent(model, cut), walkedParent(&f.root, f.cut));
}

// Random edits of a menu tree that the model is never told about; after each
// one, the parent of every action (in or out of the tree) equals the walk's.
void tst_MenuTree::parentEqualsWalkThroughRandomEdits()
{
    // Menus 0 (the root) to 5. A menu holds only menus of higher numbers, and
    // only menus 0 to 3 hold the "holder" commands, which may carry menus 4
    // or 5; menus 4 and 5 hold plain commands only. So no menu ever contains
    // itself, however the edits go.
    QMenu root(QStringLiteral("Root"));
    QList<QPointer<QMenu>> menus{&root};
    for (int i = 1; i <= 5; ++i)
        menus << new QMenu(QStringLiteral("Menu %1").arg(i), &root);
    QList<QAction*> plain;
    QList<QAction*> holders;
    for (int i = 0; i < 8; ++i)
        plain << new QAction(QStringLiteral("Plain %1").arg(i), &root);
    for (int i = 0; i < 3; ++i)
        holders << new QAction(QStringLiteral("Holder %1").arg(i), &root);

    ExposedModel model(&root);
    QRandomGenerator random(1729);
    auto pick = [&random](int size) { return int(random.bounded(size)); };
    auto insertInto = [&pick](QMenu* menu, QAction* action) {
        const QList<QAction*> present = menu->actions();
        const int at = pick(present.size() + 1);
        menu->insertAction(at < present.size() ? present.at(at) : nullptr, action);
    };
    auto every = [&]() {
        QList<QAction*> actions = plain + holders;
        for (const QPointer<QMenu>& menu : qAsConst(menus))
            actions << menu->menuAction();
        return actions;
    };

    int checked = 0;
    int found = 0;
    for (int step = 0; step < 1500; ++step) {
        const int low = pick(4);            // a menu that may hold anything
        const int any = pick(6);
        const int high = low + 1 + pick(5 - low);
        switch (pick(7)) {
        case 0:
            insertInto(menus.at(any), plain.at(pick(plain.size())));
            break;
        case 1:
            insertInto(menus.at(low), holders.at(pick(holders.size())));
            break;
        case 2:
            insertInto(menus.at(low), menus.at(high)->menuAction());
            break;
        case 3: {
            const QList<QAction*> present = menus.at(any)->actions();
            if (!present.isEmpty())
                menus.at(any)->removeAction(present.at(pick(present.size())));
            break;
        }
        case 4: {
            const int target = 4 + pick(3);  // 4, 5 or no menu
            holders.at(pick(holders.size()))->setMenu(target < 6 ? menus.at(target).data() : nullptr);
            break;
        }
        case 5:
            if (pick(8) == 0) {
                // A menu dies and a fresh one takes its number.
                const int victim = 1 + pick(5);
                delete menus.at(victim).data();
                menus[victim] = new QMenu(QStringLiteral("Menu %1'").arg(victim), &root);
            }
            break;
        default:
            // Only questions: they fill the cache between edits.
            break;
        }
        // Ask about a few actions first, then about all of them.
        const QList<QAction*> actions = every();
        for (int i = 0; i < 3; ++i) {
            QAction* action = actions.at(pick(actions.size()));
            QCOMPARE(modelParent(model, model.make(0, 0, action)), walkedParent(&root, action));
        }
        for (QAction* action : actions) {
            const QString expected = walkedParent(&root, action);
            QCOMPARE(modelParent(model, model.make(0, 0, action)), expected);
            ++checked;
            found += expected != QStringLiteral("none");
        }
    }
    // The edits must keep a good part of the actions under nested menus.
    QVERIFY2(found > checked / 5, qPrintable(QStringLiteral("%1 of %2").arg(found).arg(checked)));
}

void tst_MenuTree::widgetConstruction()
{
    Fixture f;
    QWidget host;
    MenuTreeWidget* tree = new MenuTreeWidget(&host, &f.root);
    QCOMPARE(tree->parentWidget(), &host);
    QVERIFY(tree->testAttribute(Qt::WA_MouseTracking));
    QVERIFY(tree->hasMouseTracking());
    QCOMPARE(tree->menu(), &f.root);
    MenuTreeModel* model = qobject_cast<MenuTreeModel*>(tree->model());
    QVERIFY(model);
    QCOMPARE(model, tree->menuModel());
    QCOMPARE(static_cast<QObject*>(model)->parent(), static_cast<QObject*>(tree));
    QCOMPARE(model->menu(), &f.root);

    MenuTreeWidget empty;
    QCOMPARE(empty.menu(), static_cast<QMenu*>(nullptr));
    QCOMPARE(empty.model()->rowCount(), 0);
}

void tst_MenuTree::widgetExpandsAll()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    const QAbstractItemModel* model = tree.model();
    QVERIFY(tree.isExpanded(model->index(0, 0)));
    QVERIFY(tree.isExpanded(findIndex(*model, f.exportMenu->menuAction())));
    QVERIFY(tree.isExpanded(findIndex(*model, f.image->menuAction())));
    QVERIFY(tree.isExpanded(model->index(1, 0)));
    tree.resize(300, 600);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QVERIFY(tree.visualRect(findIndex(*model, f.jpeg)).isValid());
}

void tst_MenuTree::widgetSetMenu()
{
    Fixture f;
    MenuTreeWidget tree;
    QCOMPARE(tree.model()->rowCount(), 0);
    tree.setMenu(&f.root);
    QCOMPARE(tree.menu(), &f.root);
    QCOMPARE(tree.model()->rowCount(), 3);
    QVERIFY(tree.isExpanded(findIndex(*tree.model(), f.image->menuAction())));
    QVERIFY(tree.isExpanded(tree.model()->index(1, 0)));
}

void tst_MenuTree::widgetClickEmitsCurrentActionChanged()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.resize(300, 600);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QSignalSpy spy(&tree, &MenuTreeWidget::currentActionChanged);
    const QModelIndex png = findIndex(*tree.model(), f.png);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(png).center());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction*>(), f.png);
    QCOMPARE(tree.currentIndex(), png);

    // Keyboard navigation reports the same way.
    tree.setFocus();
    QTest::keyClick(tree.viewport(), Qt::Key_Down);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).value<QAction*>(), f.jpeg);

    const QModelIndex dyn = findIndex(*tree.model(), f.recent->menuAction());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(dyn).center());
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(2).at(0).value<QAction*>(), f.recent->menuAction());
}

void tst_MenuTree::widgetClickOnCategoryOrSeparatorKeepsCurrent()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.resize(300, 600);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    const QModelIndex cut = findIndex(*tree.model(), f.cut);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(cut).center());
    QCOMPARE(tree.currentIndex(), cut);
    QSignalSpy spy(&tree, &MenuTreeWidget::currentActionChanged);
    const QModelIndex edit = tree.model()->index(1, 0);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(edit).center());
    const QModelIndex separator = findIndex(*tree.model(), f.separator);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(separator).center());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(tree.currentIndex(), cut);
    QVERIFY(!tree.selectionModel()->isSelected(separator));
    QVERIFY(!tree.selectionModel()->isSelected(edit));
}

void tst_MenuTree::widgetCurrentClearedEmitsNull()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.setCurrentIndex(findIndex(*tree.model(), f.pdf));
    QSignalSpy spy(&tree, &MenuTreeWidget::currentActionChanged);
    tree.selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction*>(), static_cast<QAction*>(nullptr));
}

void tst_MenuTree::widgetSetMenuDropsCurrent()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    QSignalSpy spy(&tree, &MenuTreeWidget::currentActionChanged);
    tree.setMenu(&f.root); // nothing current: nothing to report
    QCOMPARE(spy.count(), 0);
    tree.setCurrentIndex(findIndex(*tree.model(), f.pdf));
    QCOMPARE(spy.count(), 1);
    tree.setMenu(&f.root);
    QVERIFY(!tree.currentIndex().isValid());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).value<QAction*>(), static_cast<QAction*>(nullptr));
}

void tst_MenuTree::widgetDoubleClickCommand()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.resize(300, 600);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QSignalSpy spy(&tree, &MenuTreeWidget::actionDoubleClicked);
    const QModelIndex copy = findIndex(*tree.model(), f.copy);
    const QPoint pos = tree.visualRect(copy).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(spy.count(), 0);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction*>(), f.copy);
}

void tst_MenuTree::widgetDoubleClickDynamicMenu()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.resize(300, 600);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QSignalSpy spy(&tree, &MenuTreeWidget::actionDoubleClicked);
    const QModelIndex recent = findIndex(*tree.model(), f.recent->menuAction());
    const QPoint pos = tree.visualRect(recent).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(tree.currentIndex(), recent);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction*>(), f.recent->menuAction());
    // Still a leaf: double-clicking did not expand anything.
    QCOMPARE(tree.model()->rowCount(recent), 0);
}

void tst_MenuTree::widgetDoubleClickCategoryOrSeparator()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.resize(300, 600);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    // Start from a current command so that only the double-click target differs.
    const QModelIndex pdf = findIndex(*tree.model(), f.pdf);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(pdf).center());
    QSignalSpy spy(&tree, &MenuTreeWidget::actionDoubleClicked);
    QSignalSpy current(&tree, &MenuTreeWidget::currentActionChanged);
    const QModelIndex separator = findIndex(*tree.model(), f.separator);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(separator).center());
    const QModelIndex image = findIndex(*tree.model(), f.image->menuAction());
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualRect(image).center());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(current.count(), 0);
    QCOMPARE(tree.currentIndex(), pdf);
}

void tst_MenuTree::widgetDoubleClickedNotCurrentIgnored()
{
    Fixture f;
    MenuTreeWidget tree(nullptr, &f.root);
    tree.setCurrentIndex(findIndex(*tree.model(), f.pdf));
    QSignalSpy spy(&tree, &MenuTreeWidget::actionDoubleClicked);
    emit tree.doubleClicked(findIndex(*tree.model(), f.png));
    QCOMPARE(spy.count(), 0);
    emit tree.doubleClicked(QModelIndex());
    QCOMPARE(spy.count(), 0);
    emit tree.doubleClicked(findIndex(*tree.model(), f.pdf));
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(tst_MenuTree)
#include "tst_menutree.moc"
