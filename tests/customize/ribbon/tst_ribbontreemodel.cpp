// The ribbon tree model and its items over a live ribbon.
#include "ribbontreefixture.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QFont>
#include <QLinearGradient>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QWidgetAction>

using fixture::display;

namespace {

constexpr int panelType = int(RibbonItemType::Panel);
constexpr int groupType = int(RibbonItemType::Group);

const QString untitledText = QStringLiteral("< Без названия >");
const QString separatorText = QStringLiteral("< Р А З Д Е Л И Т Е Л Ь >");
const QString newGroupCommandText = QStringLiteral("Новая Групповая команда");

// The model with a tester attached, over the fixture's ribbon.
struct Tree
{
    fixture::Ribbon ribbon;
    RibbonTreeModel model{&ribbon.bar};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};

    QModelIndex at(std::initializer_list<int> rows) const
    {
        QModelIndex index;
        for (int row : rows)
            index = model.index(row, 0, index);
        return index;
    }
    QAction* actionAt(std::initializer_list<int> rows) const
    {
        return qobject_cast<QAction*>(model.item(at(rows))->object());
    }
};

QStringList names(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QStringList list;
    for (int row = 0; row < model.rowCount(parent); ++row)
        list << display(model, model.index(row, 0, parent));
    return list;
}

} // namespace

class tst_RibbonTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void treeFollowsTheRibbon();
    void itemKinds();
    void kindPropertiesCountOnlyWhenTrue();
    void untitledPanelsAndGroups();
    void unnamedGroupCommandNamedOnFirstRead();
    void unnamedDynamicGroupCommand();
    void ampersandsAndRenaming();
    void dataRoles();
    void flagsAndHeader();
    void setDataOnlyForEditRole();
    void dynamicCommandShowsNoChildren();
    void lazyChildrenListedInRowOrder();
    void findAncestor();
    void addPanel();
    void addGroup();
    void insertAction();
    void insertActionAlreadyHeld();
    void insertIntoGroupCommand();
    void addActionGroup();
    void removeItemKeepsCommands();
    void removingLastMenuCommandClearsIcon();
    void moveInEveryLevel();
    void moveAtTheEndsChangesNothing();
    void moveInsideMenuAppliesIconRule();
    void groupButtonKindsSurviveRelayout();
    void moveRows();
    void moveRowsNotContiguous();
    void notifyChangedAndContextMenu();
    void setRibbonBar();
    void itemsNeverDeleteTheRibbon();
};

void tst_RibbonTreeModel::treeFollowsTheRibbon()
{
    Tree t;
    QCOMPARE(t.model.columnCount(), 1);
    QCOMPARE(names(t.model, QModelIndex()), (QStringList{"Home", "Insert", untitledText}));
    QCOMPARE(names(t.model, t.at({0})), (QStringList{"Clipboard", "Font"}));
    QCOMPARE(names(t.model, t.at({0, 0})),
             (QStringList{"Paste", "Cut", "Copy", separatorText, "Format Painter"}));
    QCOMPARE(names(t.model, t.at({0, 0, 0})), (QStringList{"Paste Plain", "Paste Special"}));
    QCOMPARE(names(t.model, t.at({1})), (QStringList{"Tables", untitledText}));
    QCOMPARE(t.model.rowCount(t.at({2})), 0);
    QCOMPARE(t.actionAt({0, 0, 1}), t.ribbon.cut);
    QCOMPARE(t.model.parent(t.at({0, 0, 0, 1})), t.at({0, 0, 0}));
    QCOMPARE(t.model.parent(t.at({1})), QModelIndex());
    QCOMPARE(t.model.itemType(QModelIndex()), 0);
}

void tst_RibbonTreeModel::itemKinds()
{
    Tree t;
    QCOMPARE(t.model.item(QModelIndex())->type(), int(RibbonItemType::Root));
    QCOMPARE(t.model.itemType(t.at({0})), panelType);
    QCOMPARE(t.model.itemType(t.at({0, 0})), groupType);
    QCOMPARE(t.model.itemType(t.at({0, 0, 0})), int(RibbonItemType::ActionGroup));
    QCOMPARE(t.model.itemType(t.at({0, 0, 1})), int(RibbonItemType::Action));
    QCOMPARE(t.model.itemType(t.at({0, 0, 3})), int(RibbonItemType::Separator));

    // Each test in its order: the first that holds wins.
    auto* widget = new QWidgetAction(&t.ribbon.host);
    widget->setDefaultWidget(new QWidget);
    t.model.insertAction(t.at({1, 0}), widget);
    QCOMPARE(t.model.itemType(t.at({1, 0, 1})), int(RibbonItemType::WidgetAction));
    widget->setProperty("isDynamic", true);
    QCOMPARE(t.model.itemType(t.at({1, 0, 1})), int(RibbonItemType::DynamicAction));
    widget->setProperty("isPopupWidgetAction", true);
    QCOMPARE(t.model.itemType(t.at({1, 0, 1})), int(RibbonItemType::PopupWidgetAction));
    t.ribbon.table->setProperty("isDynamic", true);
    t.ribbon.table->setSeparator(true);
    QCOMPARE(t.model.itemType(t.at({1, 0, 0})), int(RibbonItemType::DynamicAction));
}

void tst_RibbonTreeModel::kindPropertiesCountOnlyWhenTrue()
{
    Tree t;
    t.ribbon.cut->setProperty("isDynamic", false);
    t.ribbon.cut->setProperty("isPopupWidgetAction", 0);
    QCOMPARE(t.model.itemType(t.at({0, 0, 1})), int(RibbonItemType::Action));
    t.ribbon.cut->setProperty("isPopupWidgetAction", QVariant());
    t.ribbon.paste->setProperty("isDynamic", QStringLiteral("false"));
    QCOMPARE(t.model.itemType(t.at({0, 0, 0})), int(RibbonItemType::ActionGroup));
}

void tst_RibbonTreeModel::untitledPanelsAndGroups()
{
    Tree t;
    QCOMPARE(display(t.model, t.at({2})), untitledText);
    QCOMPARE(display(t.model, t.at({1, 1})), untitledText);
    QVERIFY(t.ribbon.empty->title().isEmpty());

    QVERIFY(t.model.setData(t.at({0}), QString(), Qt::EditRole));
    QCOMPARE(display(t.model, t.at({0})), untitledText);
    QVERIFY(t.ribbon.home->title().isEmpty());
    QVERIFY(t.model.setData(t.at({0, 1}), QString(), Qt::EditRole));
    QCOMPARE(display(t.model, t.at({0, 1})), untitledText);
    QVERIFY(t.ribbon.font->title().isEmpty());
}

void tst_RibbonTreeModel::unnamedGroupCommandNamedOnFirstRead()
{
    Tree t;
    t.ribbon.paste->setText(QString());
    QCOMPARE(ui::getGroupButtonType(t.ribbon.clipboard, t.ribbon.paste), ui::Simple);
    QCOMPARE(display(t.model, t.at({0, 0, 0})), newGroupCommandText);
    QCOMPARE(t.ribbon.paste->text(), newGroupCommandText);
}

void tst_RibbonTreeModel::unnamedDynamicGroupCommand()
{
    Tree t;
    // A dynamic button mirrors its active command: with an empty menu it
    // shows nothing, and the group command has no text of its own.
    const QModelIndex colour = t.at({0, 1, 3});
    for (int i = 0; i < 3; ++i)
        t.model.removeItem(t.model.index(0, 0, colour));
    QCOMPARE(ui::getGroupButtonType(t.ribbon.font, t.ribbon.colour), ui::Dynamic);
    QVERIFY(t.ribbon.colour->text().isEmpty());
    QCOMPARE(display(t.model, colour), QStringLiteral("< Динамическая группа >"));
    QVERIFY(t.ribbon.colour->text().isEmpty());
}

void tst_RibbonTreeModel::ampersandsAndRenaming()
{
    Tree t;
    const QModelIndex paste = t.at({0, 0, 0});
    QCOMPARE(display(t.model, paste), QStringLiteral("Paste"));
    QCOMPARE(t.model.data(paste, Qt::EditRole).toString(), QStringLiteral("Paste"));
    QCOMPARE(t.model.item(paste)->name(), QStringLiteral("&Paste"));
    QCOMPARE(display(t.model, t.at({0})), QStringLiteral("Home"));

    QVERIFY(t.model.setData(paste, QStringLiteral("Put &In"), Qt::EditRole));
    QCOMPARE(t.ribbon.paste->text(), QStringLiteral("Put &In"));
    QCOMPARE(t.ribbon.paste->iconText(), QStringLiteral("Put &In"));
    QCOMPARE(display(t.model, paste), QStringLiteral("Put In"));
}

void tst_RibbonTreeModel::dataRoles()
{
    Tree t;
    const QModelIndex panel = t.at({0});
    const QModelIndex group = t.at({0, 0});
    const QModelIndex groupCommand = t.at({0, 0, 0});
    const QModelIndex command = t.at({0, 0, 1});
    const QModelIndex separator = t.at({0, 0, 3});

    for (const QModelIndex& index : {panel, group}) {
        const QFont font = qvariant_cast<QFont>(t.model.data(index, Qt::FontRole));
        QCOMPARE(font.weight(), 75);
        QVERIFY(!font.italic());
    }
    const QFont italic = qvariant_cast<QFont>(t.model.data(groupCommand, Qt::FontRole));
    QCOMPARE(italic.weight(), 75);
    QVERIFY(italic.italic());
    QVERIFY(!t.model.data(command, Qt::FontRole).isValid());
    QVERIFY(!t.model.data(separator, Qt::FontRole).isValid());

    QCOMPARE(t.model.data(panel, Qt::TextAlignmentRole).toInt(), 132);
    QVERIFY(!t.model.data(group, Qt::TextAlignmentRole).isValid());

    const QBrush brush = qvariant_cast<QBrush>(t.model.data(panel, Qt::BackgroundRole));
    QCOMPARE(brush.style(), Qt::LinearGradientPattern);
    const auto* gradient = static_cast<const QLinearGradient*>(brush.gradient());
    QCOMPARE(gradient->start(), QPointF(0, 0));
    QCOMPARE(gradient->finalStop(), QPointF(0, 30));
    const QGradientStops stops{{0.0, QColor(255, 255, 255)}, {0.8, QColor(192, 192, 192)}, {1.0, QColor(255, 255, 255)}};
    QCOMPARE(gradient->stops(), stops);
    QVERIFY(!t.model.data(group, Qt::BackgroundRole).isValid());

    QCOMPARE(fixture::iconColor(qvariant_cast<QIcon>(t.model.data(command, Qt::DecorationRole))),
             fixture::iconColor(t.ribbon.cut->icon()));
    t.ribbon.tables->setIcon(fixture::colorIcon(Qt::blue));
    QCOMPARE(fixture::iconColor(qvariant_cast<QIcon>(t.model.data(t.at({1, 0}), Qt::DecorationRole))),
             QColor(Qt::blue).rgb());
    QVERIFY(qvariant_cast<QIcon>(t.model.data(panel, Qt::DecorationRole)).isNull());

    QVERIFY(!t.model.data(panel, Qt::CheckStateRole).isValid());
    QVERIFY(!t.model.data(panel, Qt::ToolTipRole).isValid());
    QVERIFY(!t.model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_RibbonTreeModel::flagsAndHeader()
{
    Tree t;
    QCOMPARE(int(t.model.flags(QModelIndex())), 0);
    QCOMPARE(int(t.model.flags(t.at({0}))), 35);
    QCOMPARE(int(t.model.flags(t.at({0, 0}))), 35);
    QCOMPARE(int(t.model.flags(t.at({0, 0, 0}))), 35);
    QCOMPARE(int(t.model.flags(t.at({0, 0, 1}))), 33);
    QCOMPARE(int(t.model.flags(t.at({0, 0, 3}))), 33);
    QCOMPARE(t.model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Панели"));
    QVERIFY(!t.model.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!t.model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void tst_RibbonTreeModel::setDataOnlyForEditRole()
{
    Tree t;
    QSignalSpy changed(&t.model, &QAbstractItemModel::dataChanged);
    QVERIFY(!t.model.setData(t.at({1}), QStringLiteral("X"), Qt::DisplayRole));
    QCOMPARE(t.ribbon.insert->title(), QStringLiteral("Insert"));
    QVERIFY(t.model.setData(t.at({1}), QStringLiteral("Add"), Qt::EditRole));
    QCOMPARE(t.ribbon.insert->title(), QStringLiteral("Add"));
    QVERIFY(!t.model.setData(QModelIndex(), QStringLiteral("Root"), Qt::EditRole));
    QCOMPARE(t.model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Панели"));
    QCOMPARE(changed.count(), 0);
}

void tst_RibbonTreeModel::dynamicCommandShowsNoChildren()
{
    Tree t;
    auto* recent = t.ribbon.command(QStringLiteral("Recent"), Qt::gray);
    auto* menu = new QMenu(&t.ribbon.bar);
    menu->addAction(QStringLiteral("one"));
    menu->addAction(QStringLiteral("two"));
    menu->addAction(QStringLiteral("three"));
    recent->setMenu(menu);
    recent->setProperty("isDynamic", true);
    const QModelIndex added = t.model.insertAction(t.at({1, 0}), recent);
    QCOMPARE(t.model.itemType(added), int(RibbonItemType::DynamicAction));
    QCOMPARE(t.model.rowCount(added), 0);
    QCOMPARE(t.model.item(added)->childCount(), 0);
}

void tst_RibbonTreeModel::lazyChildrenListedInRowOrder()
{
    fixture::Ribbon ribbon;
    RibbonTreeModel model(&ribbon.bar);
    RibbonTreeItem* root = model.item(QModelIndex());
    QCOMPARE(root->listedChildCount(), 0);
    const QModelIndex home = model.index(0, 0);
    QCOMPARE(root->listedChildCount(), 1);
    RibbonTreeItem* clipboard = model.item(model.index(0, 0, home));
    QCOMPARE(clipboard->listedChildCount(), 0);
    // Asking for a later row first still gives every row its own item.
    const QModelIndex painter = model.index(4, 0, model.index(0, 0, home));
    QCOMPARE(clipboard->listedChildCount(), 5);
    QCOMPARE(model.item(painter)->object(), ribbon.formatPainter);
    QCOMPARE(model.item(model.index(1, 0, model.index(0, 0, home)))->object(), ribbon.cut);
    QCOMPARE(clipboard->child(4), model.item(painter));
    QCOMPARE(clipboard->child(5), nullptr);
    QCOMPARE(clipboard->child(-1), nullptr);
}

void tst_RibbonTreeModel::findAncestor()
{
    Tree t;
    const QModelIndex cut = t.at({0, 0, 1});
    QCOMPARE(t.model.findAncestor(cut, int(RibbonItemType::Action)), cut);
    QCOMPARE(t.model.findAncestor(cut, groupType), t.at({0, 0}));
    QCOMPARE(t.model.findAncestor(cut, panelType), t.at({0}));
    QCOMPARE(t.model.findAncestor(t.at({0, 0, 0, 1}), int(RibbonItemType::ActionGroup)), t.at({0, 0, 0}));
    QVERIFY(!t.model.findAncestor(QModelIndex(), 0).isValid());
    QVERIFY(!t.model.findAncestor(t.at({0}), groupType).isValid());
    QVERIFY(!t.model.findAncestor(cut, int(RibbonItemType::Separator)).isValid());
}

void tst_RibbonTreeModel::addPanel()
{
    Tree t;
    const QModelIndex appended = t.model.addPanel(QModelIndex());
    QCOMPARE(appended.row(), 3);
    QCOMPARE(t.ribbon.bar.pageCount(), 4);
    QCOMPARE(t.ribbon.bar.page(3)->title(), QStringLiteral("Новая Панель"));
    QCOMPARE(display(t.model, appended), QStringLiteral("Новая Панель"));

    // After the panel that holds the index, whatever its level.
    const QModelIndex afterHome = t.model.addPanel(t.at({0, 0, 1}));
    QCOMPARE(afterHome.row(), 1);
    QCOMPARE(t.model.item(afterHome)->object(), t.ribbon.bar.page(1));
    QCOMPARE(t.ribbon.bar.page(2), t.ribbon.insert);
    QCOMPARE(names(t.model, QModelIndex()),
             (QStringList{"Home", "Новая Панель", "Insert", untitledText, "Новая Панель"}));
}

void tst_RibbonTreeModel::addGroup()
{
    Tree t;
    const QModelIndex appended = t.model.addGroup(t.at({1}));
    QCOMPARE(appended, t.at({1, 2}));
    QCOMPARE(t.ribbon.insert->groupAt(2)->title(), QStringLiteral("Новая Группа"));

    const QModelIndex afterClipboard = t.model.addGroup(t.at({0, 0, 0, 1}));
    QCOMPARE(afterClipboard, t.at({0, 1}));
    QCOMPARE(names(t.model, t.at({0})), (QStringList{"Clipboard", "Новая Группа", "Font"}));
    QCOMPARE(t.ribbon.home->groupAt(2), t.ribbon.font);
}

void tst_RibbonTreeModel::insertAction()
{
    Tree t;
    // Into a group: appended, text beside its icon.
    const QModelIndex appended = t.model.insertAction(t.at({1, 0}), t.ribbon.spare);
    QCOMPARE(appended, t.at({1, 0, 1}));
    QCOMPARE(t.ribbon.tables->actions(), (QList<QAction*>{t.ribbon.table, t.ribbon.spare}));
    QCOMPARE(ui::actionButtonStyle(t.ribbon.tables, t.ribbon.spare), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(t.ribbon.spare->parent(), &t.ribbon.host);

    // After a command: right after it.
    const QModelIndex afterCut = t.model.insertAction(t.at({0, 0, 1}), t.ribbon.spare2);
    QCOMPARE(afterCut, t.at({0, 0, 2}));
    QCOMPARE(t.ribbon.clipboard->actions().at(2), t.ribbon.spare2);
    QCOMPARE(names(t.model, t.at({0, 0})),
             (QStringList{"Paste", "Cut", "Spare Two", "Copy", separatorText, "Format Painter"}));

    // A null action is a new separator owned by the group; a command
    // without a parent is given the group.
    const QModelIndex separator = t.model.addSeparator(t.at({0, 0, 1}));
    QCOMPARE(separator, t.at({0, 0, 2}));
    QAction* separatorAction = t.ribbon.clipboard->actions().at(2);
    QVERIFY(separatorAction->isSeparator());
    QCOMPARE(separatorAction->parent(), t.ribbon.clipboard);
    QCOMPARE(ui::actionButtonStyle(t.ribbon.clipboard, separatorAction), Qt::ToolButtonFollowStyle);
    auto* orphan = new QAction(QStringLiteral("Orphan"));
    t.model.insertAction(t.at({1, 1}), orphan);
    QCOMPARE(orphan->parent(), t.ribbon.untitled);
    // The button looks of the other commands were kept.
    QCOMPARE(ui::actionButtonStyle(t.ribbon.clipboard, t.ribbon.paste), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(t.ribbon.clipboard, t.ribbon.formatPainter), Qt::ToolButtonIconOnly);
}

void tst_RibbonTreeModel::insertActionAlreadyHeld()
{
    Tree t;
    const QModelIndex clipboard = t.at({0, 0});
    QVERIFY(!t.model.item(clipboard)->canInsert(t.ribbon.cut));
    QVERIFY(!t.model.item(t.at({0, 0, 2}))->canInsert(t.ribbon.cut));
    QVERIFY(t.model.item(clipboard)->canInsert(t.ribbon.spare));
    QSignalSpy inserted(&t.model, &QAbstractItemModel::rowsInserted);
    QVERIFY(!t.model.insertAction(clipboard, t.ribbon.cut).isValid());
    QVERIFY(!t.model.insertAction(t.at({0, 0, 2}), t.ribbon.copy).isValid());
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(t.ribbon.clipboard->actions().size(), 5);
    QCOMPARE(t.model.rowCount(clipboard), 5);

    // The item operation itself leaves the group as it was as well.
    RibbonTreeItem* item = t.model.item(clipboard);
    item->insertChild(0, t.ribbon.cut);
    QCOMPARE(item->listedChildCount(), 5);
    QCOMPARE(t.ribbon.clipboard->actions().at(1), t.ribbon.cut);

    // In a group command's menu: the same.
    const QModelIndex paste = t.at({0, 0, 0});
    QVERIFY(!t.model.item(paste)->canInsert(t.ribbon.pasteSpecial));
    QVERIFY(!t.model.item(t.at({0, 0, 0, 0}))->canInsert(t.ribbon.pasteSpecial));
    QVERIFY(t.model.item(paste)->canInsert(t.ribbon.cut));
    QVERIFY(!t.model.insertAction(paste, t.ribbon.pastePlain).isValid());
    QCOMPARE(t.ribbon.paste->menu()->actions().size(), 2);
}

void tst_RibbonTreeModel::insertIntoGroupCommand()
{
    Tree t;
    const QModelIndex paste = t.at({0, 0, 0});
    const QModelIndex added = t.model.insertAction(paste, t.ribbon.spare);
    QCOMPARE(added, t.at({0, 0, 0, 2}));
    QCOMPARE(t.ribbon.paste->menu()->actions().last(), t.ribbon.spare);
    // After a command of the menu, and a null action is a separator of the menu.
    const QModelIndex separator = t.model.addSeparator(t.at({0, 0, 0, 0}));
    QCOMPARE(separator, t.at({0, 0, 0, 1}));
    QAction* separatorAction = t.ribbon.paste->menu()->actions().at(1);
    QVERIFY(separatorAction->isSeparator());
    QCOMPARE(separatorAction->parent(), t.ribbon.paste->menu());
    auto* orphan = new QAction(QStringLiteral("Orphan"));
    t.model.insertAction(paste, orphan);
    QCOMPARE(orphan->parent(), t.ribbon.paste->menu());
    QCOMPARE(names(t.model, paste),
             (QStringList{"Paste Plain", separatorText, "Paste Special", "Spare", "Orphan"}));
}

void tst_RibbonTreeModel::addActionGroup()
{
    Tree t;
    const QModelIndex added = t.model.addActionGroup(t.at({0, 0, 1}));
    QCOMPARE(added, t.at({0, 0, 2}));
    QAction* action = t.ribbon.clipboard->actions().at(2);
    QCOMPARE(t.model.item(added)->object(), action);
    QCOMPARE(action->text(), newGroupCommandText);
    QCOMPARE(action->parent(), t.ribbon.clipboard);
    QVERIFY(action->menu());
    QCOMPARE(action->menu()->parent(), t.ribbon.clipboard);
    QCOMPARE(t.model.itemType(added), int(RibbonItemType::ActionGroup));
    QCOMPARE(t.model.rowCount(added), 0);
    QCOMPARE(ui::getGroupButtonType(t.ribbon.clipboard, action), ui::Simple);
    // A simple group button opens its menu at once.
    QCOMPARE(ui::findActionButton(t.ribbon.clipboard, action)->popupMode(), QToolButton::InstantPopup);

    // Inside a group command: a nested one, in the menu.
    const QModelIndex nested = t.model.addActionGroup(t.at({0, 0, 0}));
    QCOMPARE(nested, t.at({0, 0, 0, 2}));
    QAction* nestedAction = t.ribbon.paste->menu()->actions().at(2);
    QCOMPARE(nestedAction->parent(), t.ribbon.paste->menu());
    QCOMPARE(nestedAction->menu()->parent(), t.ribbon.clipboard);
}

void tst_RibbonTreeModel::removeItemKeepsCommands()
{
    Tree t;
    QPointer<QAction> cut = t.ribbon.cut;
    t.model.removeItem(t.at({0, 0, 1}));
    QVERIFY(cut);
    QCOMPARE(t.ribbon.clipboard->actions().size(), 4);
    QVERIFY(!t.ribbon.clipboard->actions().contains(cut));
    QCOMPARE(names(t.model, t.at({0, 0})), (QStringList{"Paste", "Copy", separatorText, "Format Painter"}));

    QPointer<QAction> red = t.ribbon.red;
    t.model.removeItem(t.at({0, 1, 3, 0}));
    QVERIFY(red);
    QCOMPARE(t.ribbon.colour->menu()->actions(), (QList<QAction*>{t.ribbon.green, t.ribbon.blue}));

    QPointer<Qtitan::RibbonGroup> font = t.ribbon.font;
    t.model.removeItem(t.at({0, 1}));
    QVERIFY(!font);
    QVERIFY(t.ribbon.bold && t.ribbon.red);
    QCOMPARE(t.ribbon.home->groupCount(), 1);

    QPointer<Qtitan::RibbonPage> insert = t.ribbon.insert;
    t.model.removeItem(t.at({1}));
    QVERIFY(!insert);
    QVERIFY(t.ribbon.table);
    QCOMPARE(names(t.model, QModelIndex()), (QStringList{"Home", untitledText}));
}

void tst_RibbonTreeModel::removingLastMenuCommandClearsIcon()
{
    Tree t;
    const QModelIndex paste = t.at({0, 0, 0});
    t.model.removeItem(t.model.index(0, 0, paste));
    QCOMPARE(fixture::iconColor(t.ribbon.paste->icon()), fixture::iconColor(t.ribbon.pasteSpecial->icon()));
    t.model.removeItem(t.model.index(0, 0, paste));
    QVERIFY(t.ribbon.paste->menu()->actions().isEmpty());
    QVERIFY(t.ribbon.paste->icon().isNull());
    QVERIFY(qvariant_cast<QIcon>(t.model.data(paste, Qt::DecorationRole)).isNull());
}

void tst_RibbonTreeModel::moveInEveryLevel()
{
    Tree t;
    t.model.moveDown(t.at({0}));
    QCOMPARE(t.ribbon.bar.pages(), (QList<Qtitan::RibbonPage*>{t.ribbon.insert, t.ribbon.home, t.ribbon.empty}));
    QCOMPARE(names(t.model, QModelIndex()), (QStringList{"Insert", "Home", untitledText}));
    t.model.moveUp(t.at({1}));
    QCOMPARE(t.ribbon.bar.page(0), t.ribbon.home);

    t.model.moveDown(t.at({0, 0}));
    QCOMPARE(t.ribbon.home->groups(), (QList<Qtitan::RibbonGroup*>{t.ribbon.font, t.ribbon.clipboard}));
    QCOMPARE(names(t.model, t.at({0})), (QStringList{"Font", "Clipboard"}));
    t.model.moveUp(t.at({0, 1}));
    QCOMPARE(t.ribbon.home->groupAt(0), t.ribbon.clipboard);

    t.model.moveDown(t.at({0, 0, 1}));
    QCOMPARE(t.ribbon.clipboard->actions().mid(0, 3),
             (QList<QAction*>{t.ribbon.paste, t.ribbon.copy, t.ribbon.cut}));
    QCOMPARE(names(t.model, t.at({0, 0})).mid(0, 3), (QStringList{"Paste", "Copy", "Cut"}));
    QCOMPARE(ui::actionButtonStyle(t.ribbon.clipboard, t.ribbon.cut), Qt::ToolButtonTextBesideIcon);
    t.model.moveUp(t.at({0, 0, 4}));
    QCOMPARE(t.ribbon.clipboard->actions().at(3), t.ribbon.formatPainter);
    QVERIFY(t.ribbon.clipboard->actions().at(4)->isSeparator());
    QCOMPARE(ui::actionButtonStyle(t.ribbon.clipboard, t.ribbon.formatPainter), Qt::ToolButtonIconOnly);

    t.model.moveDown(t.at({0, 1, 3, 0}));
    QCOMPARE(t.ribbon.colour->menu()->actions(), (QList<QAction*>{t.ribbon.green, t.ribbon.red, t.ribbon.blue}));
    t.model.moveUp(t.at({0, 1, 3, 2}));
    QCOMPARE(t.ribbon.colour->menu()->actions(), (QList<QAction*>{t.ribbon.green, t.ribbon.blue, t.ribbon.red}));
    QCOMPARE(names(t.model, t.at({0, 1, 3})), (QStringList{"Green", "Blue", "Red"}));
}

void tst_RibbonTreeModel::moveAtTheEndsChangesNothing()
{
    // The editor widget offers no such move; the model leaves the ribbon and
    // the tree as they are rather than letting them part.
    Tree t;
    QSignalSpy moved(&t.model, &QAbstractItemModel::rowsMoved);
    t.model.moveUp(t.at({0}));
    t.model.moveDown(t.at({2}));
    t.model.moveUp(t.at({0, 0, 0}));
    t.model.moveDown(t.at({0, 0, 4}));
    t.model.moveUp(t.at({0, 1, 3, 0}));
    t.model.moveDown(t.at({0, 1, 3, 2}));
    QCOMPARE(moved.count(), 0);
    QCOMPARE(t.ribbon.bar.page(0), t.ribbon.home);
    QCOMPARE(t.ribbon.clipboard->actions().first(), t.ribbon.paste);
    QCOMPARE(t.ribbon.clipboard->actions().last(), t.ribbon.formatPainter);
    QCOMPARE(t.ribbon.colour->menu()->actions(), (QList<QAction*>{t.ribbon.red, t.ribbon.green, t.ribbon.blue}));
}

void tst_RibbonTreeModel::moveInsideMenuAppliesIconRule()
{
    Tree t;
    const QModelIndex paste = t.at({0, 0, 0});
    t.model.moveDown(t.model.index(0, 0, paste));
    QCOMPARE(t.ribbon.paste->menu()->actions().first(), t.ribbon.pasteSpecial);
    QCOMPARE(fixture::iconColor(t.ribbon.paste->icon()), fixture::iconColor(t.ribbon.pasteSpecial->icon()));
    // The dynamic button keeps showing its active command.
    const QModelIndex colour = t.at({0, 1, 3});
    t.model.moveDown(t.model.index(0, 0, colour));
    QCOMPARE(t.ribbon.colour->menu()->actions().first(), t.ribbon.green);
    QCOMPARE(t.ribbon.colour->text(), QStringLiteral("Green"));
    QCOMPARE(fixture::iconColor(t.ribbon.colour->icon()), fixture::iconColor(t.ribbon.green->icon()));
}

void tst_RibbonTreeModel::groupButtonKindsSurviveRelayout()
{
    // Inserting, removing and moving rebuild the group's buttons; the
    // dynamic and simple group commands stay what they were.
    Tree t;
    QCOMPARE(ui::getGroupButtonType(t.ribbon.font, t.ribbon.colour), ui::Dynamic);
    t.model.insertAction(t.at({0, 1}), t.ribbon.spare);
    QCOMPARE(ui::getGroupButtonType(t.ribbon.font, t.ribbon.colour), ui::Dynamic);
    t.model.moveUp(t.at({0, 1, 3}));
    QCOMPARE(t.ribbon.font->actions().at(2), t.ribbon.colour);
    QCOMPARE(ui::getGroupButtonType(t.ribbon.font, t.ribbon.colour), ui::Dynamic);
    t.model.removeItem(t.at({0, 1, 0}));
    QCOMPARE(ui::getGroupButtonType(t.ribbon.font, t.ribbon.colour), ui::Dynamic);
    QCOMPARE(ui::findActionButton(t.ribbon.font, t.ribbon.colour)->popupMode(), QToolButton::MenuButtonPopup);

    ui::setGroupButtonType(t.ribbon.font, t.ribbon.colour, ui::DynamicLite);
    t.model.addSeparator(t.at({0, 1}));
    QCOMPARE(ui::getGroupButtonType(t.ribbon.font, t.ribbon.colour), ui::DynamicLite);

    t.model.insertAction(t.at({0, 0}), t.ribbon.spare2);
    QCOMPARE(ui::getGroupButtonType(t.ribbon.clipboard, t.ribbon.paste), ui::Simple);
    QCOMPARE(ui::findActionButton(t.ribbon.clipboard, t.ribbon.paste)->popupMode(), QToolButton::InstantPopup);
}

void tst_RibbonTreeModel::moveRows()
{
    Tree t;
    const QModelIndex paste = t.at({0, 0, 0});
    t.model.insertAction(paste, t.ribbon.spare);
    const QModelIndexList run{t.model.index(1, 0, paste), t.model.index(2, 0, paste)};
    QSignalSpy moved(&t.model, &QAbstractItemModel::rowsMoved);
    t.model.moveRows(t.at({0, 0}), run);
    QCOMPARE(moved.count(), 1);
    // The announced row is where the commands land: the end of the group.
    QCOMPARE(moved.first().at(1).toInt(), 1);
    QCOMPARE(moved.first().at(2).toInt(), 2);
    QCOMPARE(moved.first().at(4).toInt(), 5);
    QCOMPARE(t.ribbon.paste->menu()->actions(), QList<QAction*>{t.ribbon.pastePlain});
    QCOMPARE(t.ribbon.clipboard->actions().mid(5), (QList<QAction*>{t.ribbon.pasteSpecial, t.ribbon.spare}));
    QCOMPARE(names(t.model, t.at({0, 0})),
             (QStringList{"Paste", "Cut", "Copy", separatorText, "Format Painter", "Paste Special", "Spare"}));
    QCOMPARE(names(t.model, paste), QStringList{"Paste Plain"});
    QCOMPARE(fixture::iconColor(t.ribbon.paste->icon()), fixture::iconColor(t.ribbon.pastePlain->icon()));
    QCOMPARE(ui::actionButtonStyle(t.ribbon.clipboard, t.ribbon.spare), Qt::ToolButtonTextBesideIcon);

    // A command the destination already holds: nothing moves.
    t.model.insertAction(paste, t.ribbon.cut);
    t.model.moveRows(t.at({0, 0}), {t.model.index(1, 0, paste)});
    QCOMPARE(moved.count(), 1);
    QCOMPARE(t.ribbon.paste->menu()->actions().size(), 2);
}

void tst_RibbonTreeModel::moveRowsNotContiguous()
{
    Tree t;
    const QModelIndex colour = t.at({0, 1, 3});
    QSignalSpy moved(&t.model, &QAbstractItemModel::rowsMoved);
    t.model.moveRows(t.at({0, 1}), {t.model.index(0, 0, colour), t.model.index(2, 0, colour)});
    QCOMPARE(moved.count(), 0);
    QCOMPARE(t.ribbon.colour->menu()->actions().size(), 3);
    QCOMPARE(t.ribbon.font->actions().size(), 4);
}

void tst_RibbonTreeModel::notifyChangedAndContextMenu()
{
    Tree t;
    QSignalSpy changed(&t.model, &QAbstractItemModel::dataChanged);
    const QModelIndexList indexes{t.at({0, 0, 2}), t.at({0}), t.at({0, 0, 1})};
    t.model.notifyChanged(indexes);
    QCOMPARE(changed.count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(changed.at(i).at(0).toModelIndex(), indexes.at(i));
        QCOMPARE(changed.at(i).at(1).toModelIndex(), indexes.at(i));
        QVERIFY(changed.at(i).at(2).value<QVector<int>>().isEmpty());
    }

    QStringList layoutSignals;
    connect(&t.model, &QAbstractItemModel::layoutAboutToBeChanged,
            [&layoutSignals]() { layoutSignals << QStringLiteral("about"); });
    connect(&t.model, &QAbstractItemModel::layoutChanged, [&layoutSignals]() { layoutSignals << QStringLiteral("changed"); });
    t.model.showItemContextMenu(t.at({0, 0}), QPoint(10, 10));
    QCOMPARE(layoutSignals, (QStringList{"about", "changed"}));
}

void tst_RibbonTreeModel::setRibbonBar()
{
    Tree t;
    fixture::Ribbon other;
    other.bar.removePage(0);
    QSignalSpy reset(&t.model, &QAbstractItemModel::modelReset);
    t.model.setRibbonBar(&other.bar);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(names(t.model, QModelIndex()), (QStringList{"Insert", untitledText}));
    t.model.setRibbonBar(nullptr);
    QCOMPARE(t.model.rowCount(), 0);
    QVERIFY(!t.model.addPanel(QModelIndex()).isValid());
    QCOMPARE(t.model.rowCount(), 0);

    RibbonTreeModel empty(nullptr);
    QCOMPARE(empty.rowCount(), 0);
    QCOMPARE(empty.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Панели"));
}

void tst_RibbonTreeModel::itemsNeverDeleteTheRibbon()
{
    fixture::Ribbon ribbon;
    QPointer<Qtitan::RibbonPage> home = ribbon.home;
    QPointer<QAction> paste = ribbon.paste;
    {
        RibbonTreeModel model(&ribbon.bar);
        for (int page = 0; page < model.rowCount(); ++page)
            model.index(page, 0);
        model.index(0, 0, model.index(0, 0, model.index(0, 0)));
    }
    QVERIFY(home);
    QVERIFY(paste);
    QCOMPARE(ribbon.bar.pageCount(), 3);
}

QTEST_MAIN(tst_RibbonTreeModel)
#include "tst_ribbontreemodel.moc"
