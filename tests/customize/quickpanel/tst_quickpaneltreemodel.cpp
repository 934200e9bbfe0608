// The quick access tree model and its items over a live ui::RibbonBar.
#include "quickpaneltestutil.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QWidgetAction>
#include <QtTest>

using namespace quicktest;

namespace {

const QString separatorLabel = QString::fromUtf8("< Р А З Д Е Л И Т Е Л Ь >");
const QString newGroupText = QString::fromUtf8("Новая Групповая команда");

QAction* actionOf(const QModelIndex& index)
{
    auto* item = static_cast<QuickPanelTreeItem*>(index.internalPointer());
    if (!item || item->type() == int(QuickPanelItemType::Root))
        return nullptr;
    return static_cast<QuickActionItem*>(item)->action();
}

// A group command on the bar whose menu holds @p entries.
QAction* addGroup(Host& host, const QString& text, const QList<QAction*>& entries)
{
    auto* group = new QAction(text, &host.owner);
    auto* menu = new QMenu(host.bar());
    menu->addActions(entries);
    group->setMenu(menu);
    host.ribbon.addQuickAction(group);
    return group;
}

} // namespace

class tst_QuickPanelTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void emptyWithoutRibbon();
    void rootItem();
    void rowsAreTheVisibleActionsInOrder();
    void kindsOfActions();
    void kindPrecedence();
    void unnamedGroupCommandIsNamedForGood();
    void separatorAndAmpersand();
    void dataRoles();
    void setDataRenamesWithoutSignal();
    void flagsAndHeader();
    void setRibbonBarResetsAndShowsBar();
    void hiddenActionsAreNotRows();
    void insertAndMoveCountVisibleActionsOnly();
    void dynamicActionShowsNoChildren();
    void removingLastRowKeepsBarVisible();
    void insertActionPlacement();
    void insertingActionAlreadyInGroupMenuChangesNothing();
    void insertingActionAlreadyOnBarChangesNothing();
    void insertedNullIsOwnedSeparator();
    void addActionGroup();
    void addActionGroupInsideGroupCommand();
    void removeKeepsTheAction();
    void moveUpAndDown();
    void firstUpAndLastDownDoNothing();
    void moveInsideMenu();
    void groupIconFollowsFirstCommand();
    void insertIntoCommandWithoutMenuMakesOne();
    void moveRowsGroupsARun();
    void moveRowsTakesCommandsOutOfAGroup();
    void moveRowsRefusesGapsAndDuplicates();
    void moveRowsKeepsPersistentIndexes();
    void showContextMenuAnnouncesLayoutChange();
    void childrenAreCreatedOnDemandInRowOrder();
    void itemButtonStyleAndGroupType();
    void passesModelTester();
};

void tst_QuickPanelTreeModel::initTestCase()
{
    qRegisterMetaType<QList<QPersistentModelIndex>>();
    qRegisterMetaType<QAbstractItemModel::LayoutChangeHint>();
}

void tst_QuickPanelTreeModel::emptyWithoutRibbon()
{
    RibbonQuickPanelTreeModel model(nullptr);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 1);
    QVERIFY(!model.index(0, 0).isValid());
    QCOMPARE(model.itemType(QModelIndex()), 0);
    QVERIFY(!model.insertAction(QModelIndex(), nullptr).isValid());
    QVERIFY(!model.addActionGroup(QModelIndex()).isValid());
    QCOMPARE(model.rowCount(), 0);
}

void tst_QuickPanelTreeModel::rootItem()
{
    Host host;
    QuickPanelRootItem root(host.bar());
    QCOMPARE(root.type(), int(QuickPanelItemType::Root));
    QCOMPARE(root.name(), QString::fromUtf8("Панель"));
    QVERIFY(!root.setName(QStringLiteral("x")));
    QVERIFY(root.icon().isNull());
    QCOMPARE(root.bar(), host.bar());
    QCOMPARE(root.childCount(), 0);
    host.ribbon.addQuickAction(host.commands[0]);
    QCOMPARE(root.childCount(), 1);
    QuickPanelRootItem none(nullptr);
    QCOMPARE(none.childCount(), 0);
    QVERIFY(!none.child(0));
    none.insertChild(0, host.commands[1]);
    QCOMPARE(none.childCount(), 0);
}

void tst_QuickPanelTreeModel::rowsAreTheVisibleActionsInOrder()
{
    Host host;
    for (int i : {3, 1, 4})
        host.ribbon.addQuickAction(host.commands[i]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(actionOf(model.index(0, 0)), host.commands[3]);
    QCOMPARE(actionOf(model.index(1, 0)), host.commands[1]);
    QCOMPARE(actionOf(model.index(2, 0)), host.commands[4]);
    QVERIFY(!model.parent(model.index(1, 0)).isValid());
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.rowCount(model.index(0, 0).sibling(0, 0)), 0);
    QVERIFY(!model.index(3, 0).isValid());
    QVERIFY(!model.index(0, 1).isValid());
}

void tst_QuickPanelTreeModel::kindsOfActions()
{
    Host host;
    QAction* plain = host.commands[0];
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    auto* separator = new QAction(&host.owner);
    separator->setSeparator(true);
    auto* widget = new QWidgetAction(&host.owner);
    widget->setText(QStringLiteral("Шрифт"));
    QAction* popup = host.command(QStringLiteral("popup"), QStringLiteral("Палитра"), Qt::red);
    popup->setProperty("isPopupWidgetAction", true);
    QAction* dynamic = host.command(QStringLiteral("recent"), QStringLiteral("Последние"), Qt::blue);
    dynamic->setProperty("isDynamic", true);
    for (QAction* action : QList<QAction*>{plain, separator, widget, popup, dynamic})
        host.ribbon.addQuickAction(action);

    RibbonQuickPanelTreeModel model(&host.ribbon);
    QCOMPARE(model.rowCount(), 6);
    const QList<QAction*> order = {group, plain, separator, widget, popup, dynamic};
    const QList<int> kinds = {2, 1, 3, 4, 5, 6};
    for (int row = 0; row < order.size(); ++row) {
        const QModelIndex index = model.index(row, 0);
        QCOMPARE(actionOf(index), order[row]);
        QCOMPARE(model.itemType(index), kinds[row]);
        QCOMPARE(static_cast<QuickPanelTreeItem*>(index.internalPointer())->type(), kinds[row]);
    }
}

void tst_QuickPanelTreeModel::kindPrecedence()
{
    QAction action;
    QuickActionItem item(nullptr, &action);
    action.setProperty("isPopupWidgetAction", true);
    action.setProperty("isDynamic", true);
    action.setSeparator(true);
    QCOMPARE(item.type(), int(QuickPanelItemType::PopupWidgetAction));
    action.setProperty("isPopupWidgetAction", false);
    QCOMPARE(item.type(), int(QuickPanelItemType::DynamicAction));
    action.setProperty("isDynamic", QVariant());
    QCOMPARE(item.type(), int(QuickPanelItemType::Separator));
    action.setSeparator(false);
    QMenu menu;
    action.setMenu(&menu);
    QCOMPARE(item.type(), int(QuickPanelItemType::ActionGroup));
    action.setMenu(nullptr);
    QCOMPARE(item.type(), int(QuickPanelItemType::Action));
    QWidgetAction widget(nullptr);
    widget.setMenu(&menu);
    QCOMPARE(QuickActionItem(nullptr, &widget).type(), int(QuickPanelItemType::WidgetAction));
}

void tst_QuickPanelTreeModel::unnamedGroupCommandIsNamedForGood()
{
    Host host;
    QAction* group = addGroup(host, QString(), {host.commands[0]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QVERIFY(group->text().isEmpty());
    QCOMPARE(model.index(0, 0).data().toString(), newGroupText);
    QCOMPARE(group->text(), newGroupText);

    // A plain command without text keeps its empty text.
    auto* unnamed = new QAction(&host.owner);
    host.ribbon.addQuickAction(unnamed);
    RibbonQuickPanelTreeModel again(&host.ribbon);
    QCOMPARE(again.index(1, 0).data().toString(), QString());
    QVERIFY(unnamed->text().isEmpty());
}

void tst_QuickPanelTreeModel::separatorAndAmpersand()
{
    Host host;
    auto* separator = new QAction(&host.owner);
    separator->setSeparator(true);
    QAction* open = host.command(QStringLiteral("open"), QStringLiteral("&Open"), Qt::green);
    host.ribbon.addQuickAction(separator);
    host.ribbon.addQuickAction(open);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QCOMPARE(model.index(0, 0).data().toString(), separatorLabel);
    QCOMPARE(model.itemType(model.index(0, 0)), 3);
    QCOMPARE(model.index(1, 0).data(Qt::DisplayRole).toString(), QStringLiteral("Open"));
    QCOMPARE(model.index(1, 0).data(Qt::EditRole).toString(), QStringLiteral("Open"));
    QCOMPARE(open->text(), QStringLiteral("&Open"));
}

void tst_QuickPanelTreeModel::dataRoles()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(0, 0);
    const QModelIndex plainIndex = model.index(1, 0);
    const QFont font = groupIndex.data(Qt::FontRole).value<QFont>();
    QCOMPARE(font.weight(), 75);
    QVERIFY(font.italic());
    QVERIFY(!plainIndex.data(Qt::FontRole).isValid());
    QCOMPARE(iconColor(plainIndex.data(Qt::DecorationRole).value<QIcon>()), iconColor(host.commands[0]->icon()));
    QCOMPARE(iconColor(groupIndex.data(Qt::DecorationRole).value<QIcon>()), iconColor(group->icon()));
    for (int role : {int(Qt::ToolTipRole), int(Qt::StatusTipRole), int(Qt::TextAlignmentRole),
                     int(Qt::BackgroundRole), int(Qt::UserRole)})
        QVERIFY(!plainIndex.data(role).isValid());
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_QuickPanelTreeModel::setDataRenamesWithoutSignal()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex index = model.index(0, 0);
    QVERIFY(model.setData(index, QStringLiteral("Печать"), Qt::EditRole));
    QCOMPARE(host.commands[0]->text(), QStringLiteral("Печать"));
    QCOMPARE(host.commands[0]->iconText(), QStringLiteral("Печать"));
    QVERIFY(!model.setData(index, QStringLiteral("Другое"), Qt::DisplayRole));
    QCOMPARE(host.commands[0]->text(), QStringLiteral("Печать"));
    QVERIFY(!model.setData(QModelIndex(), QStringLiteral("Корень"), Qt::EditRole));
    QCOMPARE(changed.count(), 0);
}

void tst_QuickPanelTreeModel::flagsAndHeader()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QCOMPARE(int(model.flags(model.index(0, 0))), 33);
    QCOMPARE(int(model.flags(model.index(1, 0))), 33);
    QCOMPARE(int(model.flags(model.index(0, 0, model.index(1, 0)))), 33);
    QCOMPARE(int(model.flags(QModelIndex())), 0);
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

void tst_QuickPanelTreeModel::setRibbonBarResetsAndShowsBar()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.clearQuickActions();
    host.bar()->addAction(host.commands[2]);
    QVERIFY(host.bar()->isHidden());
    RibbonQuickPanelTreeModel model(nullptr);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.setRibbonBar(&host.ribbon);
    QCOMPARE(reset.count(), 1);
    QVERIFY(!host.bar()->isHidden());
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(actionOf(model.index(0, 0)), host.commands[2]);
    model.setRibbonBar(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void tst_QuickPanelTreeModel::hiddenActionsAreNotRows()
{
    Host host;
    for (int i = 0; i < 4; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    host.bar()->setActionVisible(host.commands[1], false);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(actionOf(model.index(0, 0)), host.commands[0]);
    QCOMPARE(actionOf(model.index(1, 0)), host.commands[2]);
    QCOMPARE(actionOf(model.index(2, 0)), host.commands[3]);
}

void tst_QuickPanelTreeModel::insertAndMoveCountVisibleActionsOnly()
{
    Host host;
    for (int i = 0; i < 4; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    host.bar()->setActionVisible(host.commands[1], false);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    // Rows: 0 cmd0, 1 cmd2, 2 cmd3. Moving cmd2 up passes over the hidden cmd1.
    model.moveUp(model.index(1, 0));
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[2], host.commands[0], host.commands[3]}));
    QCOMPARE(actionOf(model.index(0, 0)), host.commands[2]);
    QCOMPARE(actionOf(model.index(1, 0)), host.commands[0]);
    model.moveDown(model.index(1, 0));
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[2], host.commands[3], host.commands[0]}));
    QCOMPARE(actionOf(model.index(2, 0)), host.commands[0]);
    // Inserting after row 0 puts the command at visible row 1.
    const QModelIndex added = model.insertAction(model.index(0, 0), host.commands[5]);
    QCOMPARE(added.row(), 1);
    QCOMPARE(host.visibleActions(),
             (QList<QAction*>{host.commands[2], host.commands[5], host.commands[3], host.commands[0]}));
    QCOMPARE(actionOf(added), host.commands[5]);
    QVERIFY(host.bar()->actions().contains(host.commands[1]));
    QVERIFY(!host.bar()->isActionVisible(host.commands[1]));
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::dynamicActionShowsNoChildren()
{
    Host host;
    QAction* dynamic = addGroup(host, QStringLiteral("Последние"), {host.commands[0], host.commands[1], host.commands[2]});
    dynamic->setProperty("isDynamic", true);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex index = model.index(0, 0);
    QCOMPARE(model.itemType(index), 6);
    QCOMPARE(model.rowCount(index), 0);
    QVERIFY(!model.index(0, 0, index).isValid());
    QCOMPARE(dynamic->menu()->actions().size(), 3);
}

void tst_QuickPanelTreeModel::removingLastRowKeepsBarVisible()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    model.removeItem(model.index(0, 0));
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(host.bar()->actions().isEmpty());
    QVERIFY(!host.bar()->isHidden());
    // Also when the bar had been hidden by hand in the meantime.
    model.insertAction(QModelIndex(), host.commands[1]);
    host.bar()->hide();
    model.removeItem(model.index(0, 0));
    QVERIFY(!host.bar()->isHidden());
}

void tst_QuickPanelTreeModel::insertActionPlacement()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    host.ribbon.addQuickAction(host.commands[3]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);

    // Invalid index: the end of the bar.
    QModelIndex added = model.insertAction(QModelIndex(), host.commands[4]);
    QCOMPARE(added, model.index(3, 0));
    QCOMPARE(host.visibleActions().last(), host.commands[4]);
    // A plain command: right after it.
    added = model.insertAction(model.index(0, 0), host.commands[5]);
    QCOMPARE(added, model.index(1, 0));
    QCOMPARE(host.visibleActions().at(1), host.commands[5]);
    // A group command: the end of its menu.
    const QModelIndex groupIndex = model.index(2, 0);
    added = model.insertAction(groupIndex, host.commands[6]);
    QCOMPARE(added, model.index(2, 0, groupIndex));
    QCOMPARE(group->menu()->actions().last(), host.commands[6]);
    // A command inside the menu: right after it, in the menu.
    added = model.insertAction(model.index(0, 0, groupIndex), host.commands[7]);
    QCOMPARE(added, model.index(1, 0, groupIndex));
    QCOMPARE(group->menu()->actions(),
             (QList<QAction*>{host.commands[1], host.commands[7], host.commands[2], host.commands[6]}));
    QCOMPARE(inserted.count(), 4);
    QCOMPARE(inserted.at(2).at(0).value<QModelIndex>(), groupIndex);
    QCOMPARE(inserted.at(2).at(1).toInt(), 2);
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::insertingActionAlreadyInGroupMenuChangesNothing()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(0, 0);
    const QStringList before = dumpTree(model);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(!model.insertAction(groupIndex, host.commands[1]).isValid());
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[2]}));
    QCOMPARE(dumpTree(model), before);
    QCOMPARE(inserted.count(), 0);

    // The item operation itself also leaves the menu and its rows alone.
    auto* item = static_cast<QuickActionItem*>(groupIndex.internalPointer());
    item->insertChild(0, host.commands[2]);
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[2]}));
    QCOMPARE(item->childCount(), 2);
    QCOMPARE(static_cast<QuickActionItem*>(item->child(0))->action(), host.commands[1]);
    QCOMPARE(static_cast<QuickActionItem*>(item->child(1))->action(), host.commands[2]);
}

void tst_QuickPanelTreeModel::insertingActionAlreadyOnBarChangesNothing()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.addQuickAction(host.commands[1]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QVERIFY(!model.insertAction(QModelIndex(), host.commands[0]).isValid());
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[1]}));
    QCOMPARE(model.rowCount(), 2);
    // A hidden action of the bar is not a row: inserting it shows it there.
    host.ribbon.addQuickAction(host.commands[2]);
    host.bar()->setActionVisible(host.commands[2], false);
    model.setRibbonBar(&host.ribbon);
    const QModelIndex shown = model.insertAction(model.index(0, 0), host.commands[2]);
    QCOMPARE(shown.row(), 1);
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[2], host.commands[1]}));
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::insertedNullIsOwnedSeparator()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex top = model.addSeparator(model.index(0, 0));
    QCOMPARE(top.row(), 1);
    QAction* separator = actionOf(top);
    QVERIFY(separator->isSeparator());
    QCOMPARE(separator->parent(), host.bar());
    QCOMPARE(top.data().toString(), separatorLabel);
    const QModelIndex inMenu = model.addSeparator(model.index(2, 0));
    QAction* menuSeparator = actionOf(inMenu);
    QVERIFY(menuSeparator->isSeparator());
    QCOMPARE(menuSeparator->parent(), group->menu());
    QCOMPARE(model.itemType(inMenu), 3);
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::addActionGroup()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.addQuickAction(host.commands[1]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex group = model.addActionGroup(model.index(0, 0));
    QCOMPARE(group, model.index(1, 0));
    QCOMPARE(model.itemType(group), 2);
    QCOMPARE(group.data().toString(), newGroupText);
    QAction* action = actionOf(group);
    QCOMPARE(action->text(), newGroupText);
    QVERIFY(action->menu());
    QVERIFY(action->menu()->actions().isEmpty());
    QCOMPARE(action->menu()->parent(), host.bar());
    QCOMPARE(action->parent(), host.bar());
    QCOMPARE(model.rowCount(group), 0);
    QCOMPARE(host.visibleActions().at(1), action);
    // At the end for an invalid index.
    const QModelIndex last = model.addActionGroup(QModelIndex());
    QCOMPARE(last, model.index(3, 0));
}

void tst_QuickPanelTreeModel::addActionGroupInsideGroupCommand()
{
    Host host;
    QAction* outer = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex outerIndex = model.index(0, 0);
    const QModelIndex inner = model.addActionGroup(outerIndex);
    QCOMPARE(inner, model.index(1, 0, outerIndex));
    QAction* innerAction = actionOf(inner);
    QCOMPARE(innerAction->parent(), outer->menu());
    QCOMPARE(outer->menu()->actions().last(), innerAction);
    // Commands go into the nested group command.
    const QModelIndex nested = model.insertAction(inner, host.commands[2]);
    QCOMPARE(nested, model.index(0, 0, inner));
    QCOMPARE(innerAction->menu()->actions(), (QList<QAction*>{host.commands[2]}));
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::removeKeepsTheAction()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QPointer<QAction> kept = host.commands[0];
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    model.removeItem(model.index(0, 0));
    QVERIFY(kept);
    QCOMPARE(host.visibleActions(), (QList<QAction*>{group}));
    const QModelIndex groupIndex = model.index(0, 0);
    model.removeItem(model.index(0, 0, groupIndex));
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[2]}));
    QCOMPARE(removed.count(), 2);
    QCOMPARE(removed.at(1).at(0).value<QModelIndex>(), groupIndex);
    QCOMPARE(dumpTree(model), dumpBar(host));
    model.removeItem(QModelIndex());
    QCOMPARE(removed.count(), 2);
}

void tst_QuickPanelTreeModel::moveUpAndDown()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
    model.moveDown(model.index(0, 0));
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[1], host.commands[0], host.commands[2]}));
    model.moveUp(model.index(2, 0));
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[1], host.commands[2], host.commands[0]}));
    QCOMPARE(moved.count(), 2);
    QCOMPARE(moved.at(0).at(1).toInt(), 0);
    QCOMPARE(moved.at(0).at(4).toInt(), 2);
    QCOMPARE(moved.at(1).at(1).toInt(), 2);
    QCOMPARE(moved.at(1).at(4).toInt(), 1);
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::firstUpAndLastDownDoNothing()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QSignalSpy moved(&model, &QAbstractItemModel::rowsAboutToBeMoved);
    model.moveUp(model.index(0, 0));
    model.moveDown(model.index(2, 0));
    QCOMPARE(moved.count(), 0);
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[1], host.commands[2]}));
    // Nor do the items, so bar and rows cannot drift apart.
    QuickPanelTreeItem* root = model.itemForIndex(QModelIndex());
    root->moveUp(0);
    root->moveDown(2);
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[1], host.commands[2]}));
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::moveInsideMenu()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2], host.commands[3]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(0, 0);
    model.moveDown(model.index(0, 0, groupIndex));
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[2], host.commands[1], host.commands[3]}));
    model.moveDown(model.index(1, 0, groupIndex));
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[2], host.commands[3], host.commands[1]}));
    model.moveUp(model.index(1, 0, groupIndex));
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[3], host.commands[2], host.commands[1]}));
    model.moveDown(model.index(2, 0, groupIndex));
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[3], host.commands[2], host.commands[1]}));
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::groupIconFollowsFirstCommand()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    group->setIcon(colorIcon(Qt::black));
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(0, 0);
    // Insert at the front: the new first command's icon.
    model.itemForIndex(groupIndex)->insertChild(0, host.commands[3]);
    QCOMPARE(iconColor(group->icon()), iconColor(host.commands[3]->icon()));
    // Move: the icon follows the first command.
    model.moveDown(model.index(0, 0, groupIndex));
    QCOMPARE(iconColor(group->icon()), iconColor(host.commands[1]->icon()));
    model.moveUp(model.index(2, 0, groupIndex));
    QCOMPARE(group->menu()->actions().first(), host.commands[1]);
    QCOMPARE(iconColor(group->icon()), iconColor(host.commands[1]->icon()));
    model.moveUp(model.index(1, 0, groupIndex));
    QCOMPARE(iconColor(group->icon()), iconColor(host.commands[2]->icon()));
    QCOMPARE(iconColor(groupIndex.data(Qt::DecorationRole).value<QIcon>()), iconColor(host.commands[2]->icon()));
    // Removing the first, then everything: the last removal leaves no icon.
    model.removeItem(model.index(0, 0, groupIndex));
    QCOMPARE(iconColor(group->icon()), iconColor(group->menu()->actions().first()->icon()));
    while (model.rowCount(groupIndex) > 0)
        model.removeItem(model.index(0, 0, groupIndex));
    QVERIFY(group->icon().isNull());
    QVERIFY(groupIndex.data(Qt::DecorationRole).value<QIcon>().isNull());
}

void tst_QuickPanelTreeModel::insertIntoCommandWithoutMenuMakesOne()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QuickPanelTreeItem* item = model.itemForIndex(model.index(0, 0));
    QCOMPARE(item->type(), 1);
    item->insertChild(0, host.commands[1]);
    QMenu* menu = host.commands[0]->menu();
    QVERIFY(menu);
    QCOMPARE(menu->parent(), host.bar());
    QCOMPARE(menu->actions(), (QList<QAction*>{host.commands[1]}));
    QCOMPARE(item->type(), 2);
    QCOMPARE(item->childCount(), 1);
    QCOMPARE(iconColor(host.commands[0]->icon()), iconColor(host.commands[1]->icon()));
    // A parentless command is given the menu as parent.
    auto* loose = new QAction(QStringLiteral("Свободная"));
    item->insertChild(1, loose);
    QCOMPARE(loose->parent(), menu);
    // A null command is a separator owned by the menu.
    item->insertChild(2, nullptr);
    QVERIFY(menu->actions().at(2)->isSeparator());
    QCOMPARE(menu->actions().at(2)->parent(), menu);
}

void tst_QuickPanelTreeModel::moveRowsGroupsARun()
{
    Host host;
    for (int i = 0; i < 5; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndexList run = {model.index(3, 0), model.index(1, 0), model.index(2, 0)};
    const QModelIndex group = model.addActionGroup(QModelIndex());
    QCOMPARE(group.row(), 5);
    QSignalSpy aboutToMove(&model, &QAbstractItemModel::rowsAboutToBeMoved);
    model.moveRows(group, run);
    QCOMPARE(aboutToMove.count(), 1);
    QCOMPARE(aboutToMove.at(0).at(1).toInt(), 1);
    QCOMPARE(aboutToMove.at(0).at(2).toInt(), 3);
    QCOMPARE(aboutToMove.at(0).at(3).value<QModelIndex>(), group);
    QCOMPARE(aboutToMove.at(0).at(4).toInt(), 0);
    QAction* groupAction = actionOf(group);
    // In bar order, whatever the order of the list.
    QCOMPARE(groupAction->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[2], host.commands[3]}));
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[4], groupAction}));
    QCOMPARE(iconColor(groupAction->icon()), iconColor(host.commands[1]->icon()));
    const QModelIndex groupNow = model.index(2, 0);
    QCOMPARE(actionOf(groupNow), groupAction);
    QCOMPARE(model.rowCount(groupNow), 3);
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::moveRowsTakesCommandsOutOfAGroup()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"),
                              {host.commands[1], host.commands[2], host.commands[3], host.commands[4]});
    host.ribbon.addQuickAction(host.commands[5]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(1, 0);
    QSignalSpy aboutToMove(&model, &QAbstractItemModel::rowsAboutToBeMoved);
    model.moveRows(QModelIndex(), {model.index(1, 0, groupIndex), model.index(2, 0, groupIndex)});
    QCOMPARE(aboutToMove.count(), 1);
    QCOMPARE(aboutToMove.at(0).at(4).toInt(), 3);
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[4]}));
    QCOMPARE(host.visibleActions(),
             (QList<QAction*>{host.commands[0], group, host.commands[5], host.commands[2], host.commands[3]}));
    QCOMPARE(dumpTree(model), dumpBar(host));
}

void tst_QuickPanelTreeModel::moveRowsRefusesGapsAndDuplicates()
{
    Host host;
    for (int i = 0; i < 4; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[2]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(4, 0);
    const QStringList before = dumpTree(model);
    QSignalSpy aboutToMove(&model, &QAbstractItemModel::rowsAboutToBeMoved);
    // Rows 0 and 2: not one run.
    model.moveRows(groupIndex, {model.index(0, 0), model.index(2, 0)});
    // The group command already holds cmd2.
    model.moveRows(groupIndex, {model.index(1, 0), model.index(2, 0)});
    // Into the level the rows are on.
    model.moveRows(QModelIndex(), {model.index(0, 0), model.index(1, 0)});
    // Into one of the moved rows.
    model.moveRows(groupIndex, {model.index(3, 0), model.index(4, 0)});
    model.moveRows(groupIndex, {});
    QCOMPARE(aboutToMove.count(), 0);
    QCOMPARE(dumpTree(model), before);
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[2]}));
}

void tst_QuickPanelTreeModel::moveRowsKeepsPersistentIndexes()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[3], host.commands[4], host.commands[5]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QModelIndex groupIndex = model.index(3, 0);
    const QPersistentModelIndex stays(model.index(1, 0));
    const QPersistentModelIndex movedOut(model.index(1, 0, groupIndex));
    const QPersistentModelIndex left(model.index(2, 0, groupIndex));
    model.moveRows(QModelIndex(), {model.index(1, 0, groupIndex)});
    QCOMPARE(actionOf(stays), host.commands[1]);
    QCOMPARE(stays.row(), 1);
    QCOMPARE(actionOf(model.index(movedOut.row(), 0, movedOut.parent())), host.commands[4]);
    QCOMPARE(movedOut.row(), 4);
    QVERIFY(!movedOut.parent().isValid());
    QCOMPARE(left.row(), 1);
    QCOMPARE(actionOf(model.index(left.row(), 0, left.parent())), host.commands[5]);
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[3], host.commands[5]}));
}

void tst_QuickPanelTreeModel::showContextMenuAnnouncesLayoutChange()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QSignalSpy about(&model, &QAbstractItemModel::layoutAboutToBeChanged);
    QSignalSpy changed(&model, &QAbstractItemModel::layoutChanged);
    const QStringList before = dumpTree(model);
    model.showContextMenu(model.index(0, 0), QPoint(10, 10));
    QCOMPARE(about.count(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(dumpTree(model), before);
}

void tst_QuickPanelTreeModel::childrenAreCreatedOnDemandInRowOrder()
{
    Host host;
    for (int i = 0; i < 5; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[6], host.commands[7], host.commands[8]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QuickPanelTreeItem* root = model.itemForIndex(QModelIndex());
    QCOMPARE(root->cachedRow(nullptr), -1);
    // Out of order first: row 3 before the rows above it.
    const QModelIndex third = model.index(3, 0);
    QCOMPARE(actionOf(third), host.commands[3]);
    QCOMPARE(root->cachedRow(static_cast<QuickPanelTreeItem*>(third.internalPointer())), 3);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(actionOf(model.index(row, 0)), host.commands[row]);
    // The same item every time.
    QCOMPARE(model.index(3, 0).internalPointer(), third.internalPointer());
    const QModelIndex groupIndex = model.index(5, 0);
    const QModelIndex last = model.index(2, 0, groupIndex);
    QCOMPARE(actionOf(last), host.commands[8]);
    QCOMPARE(model.parent(last), groupIndex);
    QCOMPARE(model.parent(last).row(), 5);
    // A structural change on rows nobody asked for still lands in the right place.
    RibbonQuickPanelTreeModel fresh(&host.ribbon);
    fresh.itemForIndex(QModelIndex())->removeChild(4);
    QCOMPARE(host.visibleActions(),
             (QList<QAction*>{host.commands[0], host.commands[1], host.commands[2], host.commands[3], group}));
    QCOMPARE(dumpTree(fresh), dumpBar(host));
}

void tst_QuickPanelTreeModel::itemButtonStyleAndGroupType()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    auto* plain = static_cast<QuickActionItem*>(model.itemForIndex(model.index(0, 0)));
    QCOMPARE(plain->bar(), host.bar());
    plain->setButtonStyle(Qt::ToolButtonTextUnderIcon);
    QToolButton* button = ui::findActionButton(host.bar(), host.commands[0]);
    QVERIFY(button);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->iconSize(), QSize(32, 32));
    QCOMPARE(plain->buttonStyle(), Qt::ToolButtonTextUnderIcon);

    auto* groupItem = static_cast<QuickActionItem*>(model.itemForIndex(model.index(1, 0)));
    QCOMPARE(groupItem->groupButtonType(), ui::Simple);
    groupItem->setGroupButtonType(ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(host.bar(), group), ui::Dynamic);
    QCOMPARE(groupItem->groupButtonType(), ui::Dynamic);
    QCOMPARE(ui::findActionButton(host.bar(), group)->popupMode(), QToolButton::MenuButtonPopup);
    groupItem->setGroupButtonType(ui::Simple);
    QCOMPARE(ui::findActionButton(host.bar(), group)->popupMode(), QToolButton::InstantPopup);

    // Inside a menu there is no button on the bar to change.
    auto* nested = static_cast<QuickActionItem*>(model.itemForIndex(model.index(0, 0, model.index(1, 0))));
    QVERIFY(!nested->bar());
    nested->setGroupButtonType(ui::Dynamic);
    QCOMPARE(nested->groupButtonType(), ui::Simple);
    QCOMPARE(nested->buttonStyle(), Qt::ToolButtonIconOnly);
}

void tst_QuickPanelTreeModel::passesModelTester()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    host.ribbon.addQuickAction(host.commands[3]);
    host.bar()->setActionVisible(host.commands[3], false);
    QAction* dynamic = addGroup(host, QStringLiteral("Последние"), {host.commands[4]});
    dynamic->setProperty("isDynamic", true);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QModelIndex groupIndex = model.index(1, 0);
    model.insertAction(groupIndex, host.commands[5]);
    model.addSeparator(model.index(0, 0));
    model.moveDown(model.index(0, 0, groupIndex));
    model.addActionGroup(QModelIndex());
    model.moveRows(model.index(model.rowCount() - 1, 0), {model.index(0, 0), model.index(1, 0)});
    model.removeItem(model.index(0, 0));
    model.showContextMenu(model.index(0, 0), QPoint());
    model.setRibbonBar(&host.ribbon);
    QVERIFY(group->menu());
    QCOMPARE(dumpTree(model), dumpBar(host));
}

QTEST_MAIN(tst_QuickPanelTreeModel)
#include "tst_quickpaneltreemodel.moc"
