// The quick access editor page, driven with the mouse as a user drives it.
// Saves a picture of it beside a sample ribbon when TESSARO_SCREENSHOT_DIR is set.
#include "quickpaneltestutil.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpacerItem>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWidgetAction>
#include <QtTest>

using namespace quicktest;

namespace {

QAction* actionOf(const QModelIndex& index)
{
    auto* item = static_cast<QuickPanelTreeItem*>(index.internalPointer());
    return static_cast<QuickActionItem*>(item)->action();
}

QAction* addGroup(Host& host, const QString& text, const QList<QAction*>& entries)
{
    auto* group = new QAction(text, &host.owner);
    auto* menu = new QMenu(host.bar());
    menu->addActions(entries);
    group->setMenu(menu);
    host.ribbon.addQuickAction(group);
    return group;
}

bool sameImage(const QIcon& icon, const QString& resource)
{
    const QImage expected = QIcon(resource).pixmap(32, 32).toImage();
    return !expected.isNull() && icon.pixmap(32, 32).toImage() == expected;
}

struct Page
{
    QRibbonTreeQuickPanelWidget widget;
    QTreeView* view = nullptr;
    RibbonQuickPanelTreeModel* model = nullptr;

    Page()
    {
        view = widget.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
        model = static_cast<RibbonQuickPanelTreeModel*>(view->model());
        widget.resize(747, 573);
        widget.show();
        if (!QTest::qWaitForWindowExposed(&widget))
            qFatal("the editor page was not shown");
    }

    explicit Page(Host& host)
        : Page()
    {
        widget.updateModel(&host.ribbon);
    }

    QToolButton* button(const char* name) { return widget.findChild<QToolButton*>(QString::fromLatin1(name)); }
    QGroupBox* paramsBox() { return widget.findChild<QGroupBox*>(QStringLiteral("paramsBox")); }

    void click(const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(index).center());
        settle();
    }

    void press(const char* name)
    {
        QToolButton* target = button(name);
        QVERIFY(target->isEnabled());
        QTest::mouseClick(target, Qt::LeftButton);
        settle();
    }

    void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QModelIndexList selected() { return view->selectionModel()->selectedIndexes(); }

    // The editor shown in the parameters box, if any.
    QuickPanelAbstractEditor* editor()
    {
        settle();
        const QList<QuickPanelAbstractEditor*> editors = paramsBox()->findChildren<QuickPanelAbstractEditor*>();
        for (QuickPanelAbstractEditor* editor : editors) {
            if (!qobject_cast<QuickPanelItemNameEditor*>(editor))
                return editor;
        }
        return nullptr;
    }
};

} // namespace

class tst_QuickPanelWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void buttonsOfAnEmptyPage();
    void updateModelShowsBarAndForgetsState();
    void enableRulesFollowCurrentRow();
    void addItemAfterCurrentRow();
    void addItemIntoGroupCommand();
    void addItemDisabledForTwinObjectName();
    void addItemDisabledForSeparator();
    void addItemSlotChoosesAndAdds();
    void groupingContiguousRowsMovesThemIntoNewGroup();
    void groupingInsideGroupCommand();
    void nonAdjacentRowsGiveEmptyGroupAfterFirst();
    void groupCommandOnAGroupGoesInside();
    void addSeparatorAfterCurrent();
    void deletingRowsOneAndThreeRemovesThreeFirst();
    void upAndDownMoveTheSelectedRow();
    void upTakesRunOutOfGroupCommand();
    void upWithRunOutsideGroupCommandDoesNothing();
    void selectingUnderAnotherParentIsUndone();
    void editorsByKind();
    void noEditorForSeparatorWidgetActionOrMixed();
    void contextMenuRebuildsEditor();
    void paramChangedRepaintsSelectedRows();
    void screenshot();
};

void tst_QuickPanelWidget::initTestCase()
{
    qRegisterMetaType<QList<QPersistentModelIndex>>();
    qRegisterMetaType<QAbstractItemModel::LayoutChangeHint>();
}

void tst_QuickPanelWidget::form()
{
    QRibbonTreeQuickPanelWidget widget;
    QCOMPARE(widget.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(widget.size(), QSize(747, 573));
    auto* grid = qobject_cast<QGridLayout*>(widget.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    for (const char* name : {"horizontalLayout", "verticalLayout_6", "verticalLayout_4", "verticalLayout_5",
                             "horizontalLayout_4"})
        QVERIFY2(widget.findChild<QLayout*>(QString::fromLatin1(name)), name);

    struct Button
    {
        const char* name;
        const char* icon;
        const char* tip;
        const char* slot;
    };
    const Button buttons[] = {
        {"addItem", ":/Tessaro/go-top-icone-5674-32.png", "Добавить команду", "onAddItem()"},
        {"addGroupItem", ":/Tessaro/add-group-action.png", "Создать групповую команду", "onAddGroupItem()"},
        {"addSeparator", ":/Tessaro/add-separator.png", "Добавить разделитель", "onAddSeparator()"},
        {"up", ":/Tessaro/1uparrow.png", "Переместить выше", "onUp()"},
        {"down", ":/Tessaro/1downarrow.png", "Переместить ниже", "onDown()"},
        {"del", ":/Tessaro/1remove.png", "Удалить", "onDel()"},
    };
    for (const Button& expected : buttons) {
        auto* button = widget.findChild<QToolButton*>(QString::fromLatin1(expected.name));
        QVERIFY2(button, expected.name);
        QCOMPARE(button->toolTip(), QString::fromUtf8(expected.tip));
        QCOMPARE(button->iconSize(), QSize(32, 32));
        QVERIFY2(sameImage(button->icon(), QString::fromLatin1(expected.icon)), expected.name);
        QVERIFY(widget.metaObject()->indexOfSlot(expected.slot) >= 0);
    }

    auto* view = widget.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    QVERIFY(view);
    QVERIFY(view->isHeaderHidden());
    QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(view->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(dynamic_cast<RibbonQuickPanelTreeModel*>(view->model()));
    QCOMPARE(view->model()->parent(), view);

    auto* box = widget.findChild<QGroupBox*>(QStringLiteral("paramsBox"));
    QVERIFY(box);
    QCOMPARE(box->title(), QString::fromUtf8("Параметры"));
    QCOMPARE(box->minimumSize(), QSize(200, 0));
    QCOMPARE(box->maximumSize(), QSize(200, 16777215));
    auto* params = qobject_cast<QGridLayout*>(box->layout());
    QVERIFY(params);
    QCOMPARE(params->objectName(), QStringLiteral("paramsLayout"));

    int spacers = 0;
    const QList<QLayout*> layouts = widget.findChildren<QLayout*>();
    for (QLayout* layout : layouts) {
        for (int i = 0; i < layout->count(); ++i) {
            if (QSpacerItem* spacer = layout->itemAt(i)->spacerItem()) {
                ++spacers;
                QCOMPARE(spacer->sizeHint(), QSize(20, 40));
                QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
                QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
            }
        }
    }
    QCOMPARE(spacers, 2);
    QVERIFY(!widget.getRibbonBar());
}

void tst_QuickPanelWidget::buttonsOfAnEmptyPage()
{
    Page page;
    for (const char* name : {"addItem", "addGroupItem", "addSeparator", "up", "down", "del"})
        QVERIFY2(!page.button(name)->isEnabled(), name);
    QCOMPARE(page.model->rowCount(), 0);
    // Without a ribbon a chosen command cannot be added.
    QAction command(QStringLiteral("Команда"), nullptr);
    page.widget.setMenuAction(&command);
    QVERIFY(!page.button("addItem")->isEnabled());
    page.widget.onAddItem();
    page.widget.onAddGroupItem();
    page.widget.onAddSeparator();
    QCOMPARE(page.model->rowCount(), 0);
}

void tst_QuickPanelWidget::updateModelShowsBarAndForgetsState()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    host.bar()->hide();
    Page page;
    page.widget.setMenuAction(host.commands[5]);
    page.widget.updateModel(&host.ribbon);
    QCOMPARE(page.widget.getRibbonBar(), &host.ribbon);
    QVERIFY(!host.bar()->isHidden());
    QCOMPARE(page.model->rowCount(), 2);
    QVERIFY(page.view->isExpanded(page.model->index(1, 0)));
    // The chosen command is forgotten.
    QVERIFY(!page.button("addItem")->isEnabled());
    page.click(page.model->index(1, 0));
    QVERIFY(page.editor());
    page.widget.updateModel(&host.ribbon);
    QVERIFY(!page.editor());
}

void tst_QuickPanelWidget::enableRulesFollowCurrentRow()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    page.click(page.model->index(0, 0));
    QVERIFY(!page.button("up")->isEnabled());
    QVERIFY(page.button("down")->isEnabled());
    for (const char* name : {"del", "addGroupItem", "addSeparator"})
        QVERIFY2(page.button(name)->isEnabled(), name);
    page.click(page.model->index(1, 0));
    QVERIFY(page.button("up")->isEnabled());
    QVERIFY(page.button("down")->isEnabled());
    page.click(page.model->index(2, 0));
    QVERIFY(page.button("up")->isEnabled());
    QVERIFY(!page.button("down")->isEnabled());
    page.click(page.model->index(1, 0), Qt::ControlModifier);
    QCOMPARE(page.selected().size(), 2);
    QVERIFY(!page.button("up")->isEnabled());
    QVERIFY(!page.button("down")->isEnabled());
    QVERIFY(page.button("del")->isEnabled());
}

void tst_QuickPanelWidget::addItemAfterCurrentRow()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.addQuickAction(host.commands[1]);
    Page page(host);
    page.widget.setMenuAction(host.commands[7]);
    QVERIFY(page.button("addItem")->isEnabled());
    page.click(page.model->index(0, 0));
    page.press("addItem");
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[7], host.commands[1]}));
    QCOMPARE(page.view->currentIndex(), page.model->index(1, 0));
    QCOMPARE(actionOf(page.view->currentIndex()), host.commands[7]);
    // Now on the bar: no second time.
    QVERIFY(!page.button("addItem")->isEnabled());
    page.widget.onAddItem();
    QCOMPARE(host.visibleActions().size(), 3);
}

void tst_QuickPanelWidget::addItemIntoGroupCommand()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    Page page(host);
    page.view->collapseAll();
    page.click(page.model->index(0, 0));
    page.widget.setMenuAction(host.commands[3]);
    page.press("addItem");
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[3]}));
    QVERIFY(page.view->isExpanded(page.model->index(0, 0)));
    QCOMPARE(page.view->currentIndex(), page.model->index(1, 0, page.model->index(0, 0)));
}

void tst_QuickPanelWidget::addItemDisabledForTwinObjectName()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    Page page(host);
    QAction twin(QStringLiteral("Другой объект"), nullptr);
    twin.setObjectName(host.commands[0]->objectName());
    page.widget.setMenuAction(&twin);
    QVERIFY(!page.button("addItem")->isEnabled());
    page.click(page.model->index(0, 0));
    QVERIFY(!page.button("addItem")->isEnabled());
    page.widget.onAddItem();
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0]}));
    twin.setObjectName(QStringLiteral("other"));
    page.widget.updateStateUI();
    QVERIFY(page.button("addItem")->isEnabled());
}

void tst_QuickPanelWidget::addItemDisabledForSeparator()
{
    Host host;
    Page page(host);
    QAction separator(nullptr);
    separator.setSeparator(true);
    separator.setObjectName(QStringLiteral("sep"));
    page.widget.setMenuAction(&separator);
    QVERIFY(!page.button("addItem")->isEnabled());
}

void tst_QuickPanelWidget::addItemSlotChoosesAndAdds()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    Page page(host);
    page.widget.addItem(host.commands[4]);
    // No current row: the end of the bar.
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[4]}));
    QVERIFY(!page.button("addItem")->isEnabled());
}

void tst_QuickPanelWidget::groupingContiguousRowsMovesThemIntoNewGroup()
{
    Host host;
    for (int i = 0; i < 5; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    page.click(page.model->index(1, 0));
    page.click(page.model->index(3, 0), Qt::ShiftModifier);
    QCOMPARE(page.selected().size(), 3);
    page.press("addGroupItem");
    QCOMPARE(page.model->rowCount(), 3);
    const QModelIndex group = page.model->index(2, 0);
    QAction* groupAction = actionOf(group);
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[4], groupAction}));
    QCOMPARE(groupAction->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[2], host.commands[3]}));
    QCOMPARE(page.selected(), QModelIndexList{group});
    QVERIFY(page.view->isExpanded(group));
    QCOMPARE(dumpTree(*page.model), dumpBar(host));
    // The moved rows are drawn where they went.
    QCOMPARE(page.view->indexAt(page.view->visualRect(page.model->index(0, 0, group)).center()),
             page.model->index(0, 0, group));
}

void tst_QuickPanelWidget::groupingInsideGroupCommand()
{
    Host host;
    QAction* outer = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2], host.commands[3]});
    Page page(host);
    const QModelIndex outerIndex = page.model->index(0, 0);
    page.click(page.model->index(0, 0, outerIndex));
    page.click(page.model->index(1, 0, outerIndex), Qt::ControlModifier);
    page.press("addGroupItem");
    QCOMPARE(outer->menu()->actions().size(), 2);
    QAction* inner = outer->menu()->actions().last();
    QCOMPARE(outer->menu()->actions().first(), host.commands[3]);
    QCOMPARE(inner->menu()->actions(), (QList<QAction*>{host.commands[1], host.commands[2]}));
    QCOMPARE(dumpTree(*page.model), dumpBar(host));
}

void tst_QuickPanelWidget::nonAdjacentRowsGiveEmptyGroupAfterFirst()
{
    Host host;
    for (int i = 0; i < 4; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    page.click(page.model->index(0, 0));
    page.click(page.model->index(2, 0), Qt::ControlModifier);
    page.press("addGroupItem");
    const QList<QAction*> actions = host.visibleActions();
    QCOMPARE(actions.size(), 5);
    QCOMPARE(actions[0], host.commands[0]);
    QCOMPARE(actions[2], host.commands[1]);
    QCOMPARE(actions[3], host.commands[2]);
    QCOMPARE(actions[4], host.commands[3]);
    QVERIFY(actions[1]->menu());
    QVERIFY(actions[1]->menu()->actions().isEmpty());
    QCOMPARE(page.selected(), QModelIndexList{page.model->index(1, 0)});
}

void tst_QuickPanelWidget::groupCommandOnAGroupGoesInside()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    Page page(host);
    page.click(page.model->index(0, 0));
    page.press("addGroupItem");
    QCOMPARE(group->menu()->actions().size(), 2);
    QVERIFY(group->menu()->actions().last()->menu());
    QCOMPARE(page.selected(), QModelIndexList{page.model->index(1, 0, page.model->index(0, 0))});
    // Nothing selected: nothing made.
    page.view->clearSelection();
    page.widget.onAddGroupItem();
    QCOMPARE(group->menu()->actions().size(), 2);
    QCOMPARE(host.visibleActions().size(), 1);
}

void tst_QuickPanelWidget::addSeparatorAfterCurrent()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.addQuickAction(host.commands[1]);
    Page page(host);
    page.click(page.model->index(0, 0));
    page.press("addSeparator");
    QVERIFY(host.visibleActions().at(1)->isSeparator());
    QCOMPARE(page.selected(), QModelIndexList{page.model->index(1, 0)});
    QCOMPARE(page.model->index(1, 0).data().toString(), QString::fromUtf8("< Р А З Д Е Л И Т Е Л Ь >"));
}

void tst_QuickPanelWidget::deletingRowsOneAndThreeRemovesThreeFirst()
{
    Host host;
    for (int i = 0; i < 5; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    QSignalSpy removing(page.model, &QAbstractItemModel::rowsAboutToBeRemoved);
    page.click(page.model->index(1, 0));
    page.click(page.model->index(3, 0), Qt::ControlModifier);
    page.press("del");
    QCOMPARE(removing.count(), 2);
    QCOMPARE(removing.at(0).at(1).toInt(), 3);
    QCOMPARE(removing.at(1).at(1).toInt(), 1);
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[2], host.commands[4]}));
    for (int i : {1, 3})
        QVERIFY(host.commands[i]->parent());
}

void tst_QuickPanelWidget::upAndDownMoveTheSelectedRow()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    page.click(page.model->index(1, 0));
    page.press("up");
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[1], host.commands[0], host.commands[2]}));
    QCOMPARE(actionOf(page.selected().first()), host.commands[1]);
    QVERIFY(!page.button("up")->isEnabled());
    page.press("down");
    page.press("down");
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], host.commands[2], host.commands[1]}));
    QVERIFY(!page.button("down")->isEnabled());
}

void tst_QuickPanelWidget::upTakesRunOutOfGroupCommand()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"),
                              {host.commands[1], host.commands[2], host.commands[3], host.commands[4]});
    host.ribbon.addQuickAction(host.commands[5]);
    Page page(host);
    const QModelIndex groupIndex = page.model->index(1, 0);
    page.click(page.model->index(0, 0, groupIndex));
    page.click(page.model->index(2, 0, groupIndex), Qt::ShiftModifier);
    QCOMPARE(page.selected().size(), 3);
    // The button is for single rows; the run is taken out through the slot.
    QVERIFY(!page.button("up")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(&page.widget, "onUp"));
    page.settle();
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{host.commands[4]}));
    QCOMPARE(host.visibleActions(), (QList<QAction*>{host.commands[0], group, host.commands[5], host.commands[1],
                                                      host.commands[2], host.commands[3]}));
    QCOMPARE(page.selected(), QModelIndexList{page.model->index(1, 0)});
    QCOMPARE(dumpTree(*page.model), dumpBar(host));
}

void tst_QuickPanelWidget::upWithRunOutsideGroupCommandDoesNothing()
{
    Host host;
    for (int i = 0; i < 4; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    page.click(page.model->index(1, 0));
    page.click(page.model->index(2, 0), Qt::ShiftModifier);
    const QStringList before = dumpTree(*page.model);
    page.widget.onUp();
    page.widget.onDown();
    QCOMPARE(dumpTree(*page.model), before);
}

void tst_QuickPanelWidget::selectingUnderAnotherParentIsUndone()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    Page page(host);
    const QModelIndex groupIndex = page.model->index(1, 0);
    page.click(page.model->index(0, 0));
    page.click(page.model->index(0, 0, groupIndex), Qt::ControlModifier);
    QCOMPARE(page.selected(), QModelIndexList{page.model->index(0, 0)});
    QVERIFY(qobject_cast<QuickPanelActionItemEditor*>(page.editor()));
    page.click(page.model->index(1, 0, groupIndex), Qt::ShiftModifier);
    QCOMPARE(page.selected(), QModelIndexList{page.model->index(0, 0)});
}

void tst_QuickPanelWidget::editorsByKind()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    QAction* popup = host.command(QStringLiteral("popup"), QStringLiteral("Палитра"), Qt::red);
    popup->setProperty("isPopupWidgetAction", true);
    QAction* dynamic = host.command(QStringLiteral("recent"), QStringLiteral("Последние"), Qt::blue);
    dynamic->setProperty("isDynamic", true);
    host.ribbon.addQuickAction(popup);
    host.ribbon.addQuickAction(dynamic);
    host.ribbon.addQuickAction(host.commands[6]);
    Page page(host);

    page.click(page.model->index(0, 0));
    auto* plain = qobject_cast<QuickPanelActionItemEditor*>(page.editor());
    QVERIFY(plain);
    QCOMPARE(plain->owner(), &page.widget);
    QCOMPARE(plain->parent(), plain->editorWidget());
    auto* params = qobject_cast<QGridLayout*>(page.paramsBox()->layout());
    QCOMPARE(params->itemAtPosition(0, 0)->widget(), plain->editorWidget());

    page.click(page.model->index(1, 0));
    QVERIFY(qobject_cast<QuickPanelActionGroupItemEditor*>(page.editor()));
    QCOMPARE(params->itemAtPosition(0, 0)->widget(), page.editor()->editorWidget());
    page.click(page.model->index(0, 0, page.model->index(1, 0)));
    QVERIFY(qobject_cast<QuickPanelActionItemEditor*>(page.editor()));
    page.click(page.model->index(2, 0));
    QVERIFY(qobject_cast<QuickPanelPopupWidgetActionItemEditor*>(page.editor()));
    page.click(page.model->index(3, 0));
    QCOMPARE(page.model->itemType(page.model->index(3, 0)), 6);
    QVERIFY(qobject_cast<QuickPanelActionItemEditor*>(page.editor()));
    // A plain and a dynamic command are of different kinds: no editor.
    page.click(page.model->index(0, 0), Qt::ControlModifier);
    QCOMPARE(page.selected().size(), 2);
    QVERIFY(!page.editor());
    // Two plain commands share the empty editor.
    page.click(page.model->index(4, 0));
    page.click(page.model->index(0, 0), Qt::ControlModifier);
    auto* both = qobject_cast<QuickPanelActionItemEditor*>(page.editor());
    QVERIFY(both);
    QCOMPARE(both->items().size(), 2);
    QCOMPARE(page.paramsBox()->findChildren<QuickPanelAbstractEditor*>().size(), 1);
}

void tst_QuickPanelWidget::noEditorForSeparatorWidgetActionOrMixed()
{
    Host host;
    auto* separator = new QAction(&host.owner);
    separator->setSeparator(true);
    auto* widgetAction = new QWidgetAction(&host.owner);
    widgetAction->setText(QStringLiteral("Шрифт"));
    host.ribbon.addQuickAction(separator);
    host.ribbon.addQuickAction(widgetAction);
    host.ribbon.addQuickAction(host.commands[0]);
    addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    Page page(host);
    page.click(page.model->index(2, 0));
    QVERIFY(page.editor());
    page.click(page.model->index(0, 0));
    QVERIFY(!page.editor());
    page.click(page.model->index(1, 0));
    QVERIFY(!page.editor());
    page.click(page.model->index(2, 0));
    QVERIFY(page.editor());
    page.click(page.model->index(3, 0), Qt::ControlModifier);
    QCOMPARE(page.selected().size(), 2);
    QVERIFY(!page.editor());
    QVERIFY(!page.paramsBox()->findChild<QLineEdit*>());
}

void tst_QuickPanelWidget::contextMenuRebuildsEditor()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.addQuickAction(host.commands[1]);
    Page page(host);
    QSignalSpy layout(page.model, &QAbstractItemModel::layoutChanged);
    const QPoint point = page.view->visualRect(page.model->index(0, 0)).center();
    // Nothing selected: no hook, no editor.
    QContextMenuEvent none(QContextMenuEvent::Mouse, point, page.view->viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(page.view->viewport(), &none);
    QCOMPARE(layout.count(), 0);
    page.click(page.model->index(0, 0));
    QPointer<QuickPanelAbstractEditor> first = page.editor();
    QVERIFY(first);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, page.view->viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(page.view->viewport(), &event);
    QCOMPARE(layout.count(), 1);
    page.settle();
    QVERIFY(!first);
    QVERIFY(page.editor());
    // Two rows selected: nothing.
    page.click(page.model->index(1, 0), Qt::ControlModifier);
    QCoreApplication::sendEvent(page.view->viewport(), &event);
    QCOMPARE(layout.count(), 1);
}

void tst_QuickPanelWidget::paramChangedRepaintsSelectedRows()
{
    Host host;
    for (int i = 0; i < 3; ++i)
        host.ribbon.addQuickAction(host.commands[i]);
    Page page(host);
    page.click(page.model->index(0, 0));
    page.click(page.model->index(2, 0), Qt::ControlModifier);
    QSignalSpy changed(page.model, &QAbstractItemModel::dataChanged);
    page.widget.paramChanged();
    QCOMPARE(changed.count(), 2);
    QList<int> rows;
    for (const QList<QVariant>& signal : qAsConst(changed)) {
        QCOMPARE(signal.at(0).value<QModelIndex>(), signal.at(1).value<QModelIndex>());
        QVERIFY(signal.at(2).value<QVector<int>>().isEmpty());
        rows.append(signal.at(0).value<QModelIndex>().row());
    }
    std::sort(rows.begin(), rows.end());
    QCOMPARE(rows, (QList<int>{0, 2}));
}

void tst_QuickPanelWidget::screenshot()
{
    const QString directory = qEnvironmentVariable("TESSARO_SCREENSHOT_DIR");
    if (directory.isEmpty())
        QSKIP("TESSARO_SCREENSHOT_DIR is not set");
    QWidget window;
    window.setWindowTitle(QStringLiteral("Tessaro"));
    auto* layout = new QVBoxLayout(&window);
    Host host(0);
    host.ribbon.setParent(&window);
    Qtitan::RibbonGroup* group = host.ribbon.page(0)->groupAt(0);
    const char* names[] = {"Создать", "Открыть", "Сохранить", "Печать", "Отменить", "Повторить", "Вырезать",
                           "Копировать", "Вставить"};
    const QColor colors[] = {QColor(0x2b579a), QColor(0xd83b01), QColor(0x107c10), QColor(0x5c2d91),
                             QColor(0x008272), QColor(0xb4009e), QColor(0xe81123), QColor(0x0078d7),
                             QColor(0xffb900)};
    for (int i = 0; i < 9; ++i)
        group->addAction(host.command(QStringLiteral("cmd%1").arg(i), QString::fromUtf8(names[i]), colors[i]));
    layout->addWidget(&host.ribbon);
    QRibbonTreeQuickPanelWidget editor;
    layout->addWidget(&editor);
    window.resize(760, 620);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    for (int i : {0, 1, 2})
        host.ribbon.addQuickAction(host.commands[i]);
    editor.updateModel(&host.ribbon);
    auto* view = editor.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    auto* model = static_cast<RibbonQuickPanelTreeModel*>(view->model());
    // Arrange the bar through the page as a user would: undo and redo grouped, a separator, printing.
    view->setCurrentIndex(model->index(2, 0));
    editor.addItem(host.commands[4]);
    editor.addItem(host.commands[5]);
    view->selectionModel()->select(QItemSelection(model->index(3, 0), model->index(4, 0)),
                                   QItemSelectionModel::ClearAndSelect);
    editor.onAddGroupItem();
    view->setCurrentIndex(model->index(2, 0));
    editor.onAddSeparator();
    editor.addItem(host.commands[3]);
    const QModelIndex groupIndex = model->index(5, 0);
    view->expandAll();
    view->setCurrentIndex(groupIndex);
    editor.setMenuAction(host.commands[8]);
    QCoreApplication::processEvents();
    QTest::qWait(50);
    QCOMPARE(model->rowCount(), 6);
    QVERIFY(qobject_cast<QuickPanelActionGroupItemEditor*>(
        editor.findChild<QGroupBox*>(QStringLiteral("paramsBox"))->findChild<QuickPanelActionGroupItemEditor*>()));

    QDir().mkpath(directory);
    const QString path = QDir(directory).filePath(QStringLiteral("quick-access-editor.png"));
    QVERIFY(window.grab().save(path));
}

QTEST_MAIN(tst_QuickPanelWidget)
#include "tst_quickpanelwidget.moc"
