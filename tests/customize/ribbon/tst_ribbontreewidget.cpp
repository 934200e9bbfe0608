// The ribbon editor widget, driven by clicks on its tree and tool buttons.
#include "ribbontreewidgetharness.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QWidgetAction>

using fixture::display;
using fixture::Editor;

namespace {

QImage iconImage(const QIcon& icon)
{
    return icon.pixmap(32, 32).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class tst_RibbonTreeWidget : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void startsExpandedWithOnlyAddPanel();
    void everyRowShownAfterEachUpdateModel();
    void addPanelWithNothingSelected();
    void addPanelAfterTheCurrentPanel();
    void siblingOnlySelection();
    void selectingACommandShowsItsPage();
    void addGroup();
    void addItemIntoAndAfter();
    void addItemDisabledForPanelsSeparatorsAndMenus();
    void addItemOfAHeldCommandIsDisabled();
    void addGroupItemAndSeparator();
    void upAndDownFollowRowsAndEnds();
    void upTakesCommandsOutOfAGroupCommand();
    void upWithARunOutsideAGroupCommandDoesNothing();
    void deleteRemovesFromTheBottomUp();
    void editorPerKind();
    void editorRebuiltFromTheContextMenu();
    void renameInPlace();
    void updateModelResets();
    void clearSelection();
    void destroyedWithAnEditorShown();
};

void tst_RibbonTreeWidget::form()
{
    QRibbonTreeWidget widget;
    auto* form = widget.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(form);
    for (const char* name : {"horizontalLayout", "verticalLayout_6", "verticalLayout", "verticalLayout_4",
                             "verticalLayout_5", "horizontalLayout_4"})
        QVERIFY2(widget.findChild<QBoxLayout*>(QLatin1String(name)), name);
    struct Button
    {
        const char* name;
        const char* icon;
        const char* toolTip;
    };
    const Button buttons[] = {
        {"addPanel", ":/Tessaro/add-panel2.png", "Добавить вкладку"},
        {"addGroup", ":/Tessaro/add-group.png", "Добавить группу"},
        {"addItem", ":/Tessaro/go-top-icone-5674-32.png", "Добавить команду"},
        {"addGroupItem", ":/Tessaro/add-group-action.png", "Создать групповую команду"},
        {"addSeparator", ":/Tessaro/add-separator.png", "Добавить разделитель"},
        {"up", ":/Tessaro/1uparrow.png", "Переместить выше"},
        {"down", ":/Tessaro/1downarrow.png", "Переместить ниже"},
        {"del", ":/Tessaro/1remove.png", "Удалить"},
    };
    QList<QToolButton*> column;
    for (const Button& expected : buttons) {
        auto* button = widget.findChild<QToolButton*>(QLatin1String(expected.name));
        QVERIFY2(button, expected.name);
        QCOMPARE(button->text(), QStringLiteral("..."));
        QCOMPARE(button->toolTip(), QString::fromUtf8(expected.toolTip));
        QCOMPARE(button->iconSize(), QSize(32, 32));
        QCOMPARE(iconImage(button->icon()), iconImage(QIcon(QString::fromLatin1(expected.icon))));
        column << button;
    }
    // Three groups of buttons, top to bottom, in this order.
    QCOMPARE(widget.findChild<QBoxLayout*>(QStringLiteral("verticalLayout"))->indexOf(column[1]), 1);
    QCOMPARE(widget.findChild<QBoxLayout*>(QStringLiteral("verticalLayout_4"))->indexOf(column[4]), 2);
    QCOMPARE(widget.findChild<QBoxLayout*>(QStringLiteral("verticalLayout_5"))->indexOf(column[7]), 2);

    auto* view = widget.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    QVERIFY(view->isHeaderHidden());
    QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(int(view->editTriggers()), 12);
    QCOMPARE(view->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(qobject_cast<RibbonTreeModel*>(view->model()));
    QCOMPARE(view->model()->parent(), view);

    auto* box = widget.findChild<QGroupBox*>(QStringLiteral("paramsBox"));
    QCOMPARE(box->title(), QStringLiteral("Параметры"));
    QCOMPARE(box->minimumSize(), QSize(200, 0));
    QCOMPARE(box->maximumWidth(), 200);
    auto* params = widget.findChild<QGridLayout*>(QStringLiteral("paramsLayout"));
    QVERIFY(params);
    QCOMPARE(params->parentWidget(), box);
    QCOMPARE(widget.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(widget.getRibbonBar(), nullptr);
}

void tst_RibbonTreeWidget::startsExpandedWithOnlyAddPanel()
{
    Editor e;
    QVERIFY(e.view->isExpanded(e.at({0})));
    QVERIFY(e.view->isExpanded(e.at({0, 0})));
    QVERIFY(e.view->isExpanded(e.at({0, 0, 0})));
    QCOMPARE(e.widget.getRibbonBar(), &e.ribbon.bar);
    QCOMPARE(e.enabledButtons(), QStringList{"addPanel"});
    e.widget.setMenuAction(e.ribbon.spare);
    QCOMPARE(e.enabledButtons(), QStringList{"addPanel"});
    QVERIFY(!e.editor());
}

namespace {

int modelRows(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    int rows = 0;
    for (int row = 0; row < model.rowCount(parent); ++row)
        rows += 1 + modelRows(model, model.index(row, 0, parent));
    return rows;
}

int shownRows(const QTreeView& view)
{
    int rows = 0;
    for (QModelIndex index = view.model()->index(0, 0); index.isValid(); index = view.indexBelow(index))
        ++rows;
    return rows;
}

} // namespace

void tst_RibbonTreeWidget::everyRowShownAfterEachUpdateModel()
{
    Editor e;
    // Pages, groups, commands and the commands of group commands.
    QCOMPARE(modelRows(*e.model), 23);
    QCOMPARE(shownRows(*e.view), modelRows(*e.model));
    // A group command that gains its menu after the first load.
    e.ribbon.table->setMenu(new QMenu(&e.widget));
    e.ribbon.table->menu()->addAction(e.ribbon.spare);
    e.widget.updateModel(&e.ribbon.bar);
    QCOMPARE(modelRows(*e.model), 24);
    QCOMPARE(shownRows(*e.view), modelRows(*e.model));
    e.widget.updateModel(nullptr);
    QCOMPARE(shownRows(*e.view), 0);
    e.widget.updateModel(&e.ribbon.bar);
    QCOMPARE(shownRows(*e.view), 24);
}

void tst_RibbonTreeWidget::addPanelWithNothingSelected()
{
    Editor e;
    e.clickButton("addPanel");
    QCOMPARE(e.ribbon.bar.pageCount(), 4);
    QCOMPARE(e.ribbon.bar.page(3)->title(), QStringLiteral("Новая Панель"));
    QCOMPARE(e.selected(), QModelIndexList{e.at({3})});
    QCOMPARE(e.ribbon.bar.currentPageIndex(), 3);
    QVERIFY(qobject_cast<PanelItemEditor*>(e.editor()));
}

void tst_RibbonTreeWidget::addPanelAfterTheCurrentPanel()
{
    Editor e;
    e.clickRow(e.at({0, 1, 1}));
    e.clickButton("addPanel");
    QCOMPARE(e.ribbon.bar.page(1)->title(), QStringLiteral("Новая Панель"));
    QCOMPARE(e.ribbon.bar.page(2), e.ribbon.insert);
    QCOMPARE(e.selected(), QModelIndexList{e.at({1})});
    QCOMPARE(e.view->currentIndex(), e.at({1}));
}

void tst_RibbonTreeWidget::siblingOnlySelection()
{
    Editor e;
    const QModelIndex clipboard = e.at({0, 0});
    e.clickRow(clipboard);
    e.clickRow(e.at({0, 1, 0}), Qt::ControlModifier);
    QCOMPARE(e.selected(), QModelIndexList{clipboard});
    QVERIFY(qobject_cast<GroupItemEditor*>(e.editor()));

    // A range across levels keeps only what was selected before.
    e.clickRow(e.at({0, 0, 2}));
    e.clickRow(e.at({0, 1, 1}), Qt::ShiftModifier);
    QCOMPARE(e.selected(), QModelIndexList{e.at({0, 0, 2})});

    // Siblings may join.
    e.clickRow(e.at({0, 0, 4}), Qt::ControlModifier);
    QCOMPARE(e.selected().size(), 2);
    QVERIFY(qobject_cast<ActionItemEditor*>(e.editor()));
}

void tst_RibbonTreeWidget::selectingACommandShowsItsPage()
{
    Editor e;
    QCOMPARE(e.ribbon.bar.currentPageIndex(), 0);
    e.clickRow(e.at({1, 1, 0}));
    QCOMPARE(e.ribbon.bar.currentPageIndex(), 1);
    e.clickRow(e.at({0, 1, 3, 1}));
    QCOMPARE(e.ribbon.bar.currentPageIndex(), 0);
    e.clickRow(e.at({2}));
    QCOMPARE(e.ribbon.bar.currentPageIndex(), 2);
}

void tst_RibbonTreeWidget::addGroup()
{
    Editor e;
    e.clickRow(e.at({1}));
    e.clickButton("addGroup");
    QCOMPARE(e.ribbon.insert->groupCount(), 3);
    QCOMPARE(e.ribbon.insert->groupAt(2)->title(), QStringLiteral("Новая Группа"));
    QCOMPARE(e.selected(), QModelIndexList{e.at({1, 2})});

    e.clickRow(e.at({0, 0, 0, 1}));
    e.clickButton("addGroup");
    QCOMPARE(e.ribbon.home->groupAt(1)->title(), QStringLiteral("Новая Группа"));
    QCOMPARE(e.selected(), QModelIndexList{e.at({0, 1})});
    QVERIFY(qobject_cast<GroupItemEditor*>(e.editor()));
}

void tst_RibbonTreeWidget::addItemIntoAndAfter()
{
    Editor e;
    e.widget.setMenuAction(e.ribbon.spare);
    e.clickRow(e.at({1, 0}));
    QVERIFY(e.button("addItem")->isEnabled());
    e.clickButton("addItem");
    QCOMPARE(e.ribbon.tables->actions().last(), e.ribbon.spare);
    QCOMPARE(e.view->currentIndex(), e.at({1, 0, 1}));
    QCOMPARE(e.selected(), QModelIndexList{e.at({1, 0, 1})});
    QVERIFY(qobject_cast<ActionItemEditor*>(e.editor()));
    // Now held by the group: offered no more there.
    QVERIFY(!e.button("addItem")->isEnabled());

    e.clickRow(e.at({0, 0, 1}));
    e.clickButton("addItem");
    QCOMPARE(e.ribbon.clipboard->actions().at(2), e.ribbon.spare);
    QCOMPARE(display(*e.model, e.at({0, 0, 2})), QStringLiteral("Spare"));

    // Into a group command's menu, through the public operation.
    e.clickRow(e.at({0, 0, 0}));
    e.widget.addItem(e.ribbon.spare2);
    QCOMPARE(e.ribbon.paste->menu()->actions().last(), e.ribbon.spare2);
    QVERIFY(e.view->isExpanded(e.at({0, 0, 0})));
    QCOMPARE(e.view->currentIndex(), e.at({0, 0, 0, 2}));
}

void tst_RibbonTreeWidget::addItemDisabledForPanelsSeparatorsAndMenus()
{
    Editor e;
    e.widget.setMenuAction(e.ribbon.spare);
    e.clickRow(e.at({0}));
    QVERIFY(!e.button("addItem")->isEnabled());
    // The slot itself refuses a panel as well.
    e.widget.addItem(e.ribbon.spare);
    QCOMPARE(e.ribbon.home->groupCount(), 2);
    QCOMPARE(e.ribbon.bar.pageCount(), 3);

    e.clickRow(e.at({1, 0}));
    QVERIFY(e.button("addItem")->isEnabled());
    auto* separator = new QAction(&e.ribbon.host);
    separator->setSeparator(true);
    e.widget.setMenuAction(separator);
    QVERIFY(!e.button("addItem")->isEnabled());
    auto* withMenu = e.ribbon.command(QStringLiteral("With Menu"), Qt::gray);
    withMenu->setMenu(new QMenu(&e.widget));
    e.widget.setMenuAction(withMenu);
    QVERIFY(!e.button("addItem")->isEnabled());
    e.widget.setMenuAction(nullptr);
    QVERIFY(!e.button("addItem")->isEnabled());
    e.widget.setMenuAction(e.ribbon.spare);
    QVERIFY(e.button("addItem")->isEnabled());
}

void tst_RibbonTreeWidget::addItemOfAHeldCommandIsDisabled()
{
    Editor e;
    e.widget.setMenuAction(e.ribbon.cut);
    e.clickRow(e.at({0, 0, 2}));
    QVERIFY(!e.button("addItem")->isEnabled());
    e.clickRow(e.at({0, 1, 0}));
    QVERIFY(e.button("addItem")->isEnabled());
    // A command of a group command asks the group command's menu.
    e.clickRow(e.at({0, 0, 0, 0}));
    QVERIFY(e.button("addItem")->isEnabled());
    e.widget.setMenuAction(e.ribbon.pasteSpecial);
    QVERIFY(!e.button("addItem")->isEnabled());
}

void tst_RibbonTreeWidget::addGroupItemAndSeparator()
{
    Editor e;
    e.clickRow(e.at({0}));
    QVERIFY(!e.button("addGroupItem")->isEnabled());
    QVERIFY(!e.button("addSeparator")->isEnabled());

    e.clickRow(e.at({1, 0, 0}));
    e.clickButton("addGroupItem");
    QCOMPARE(e.ribbon.tables->actions().size(), 2);
    QAction* groupCommand = e.ribbon.tables->actions().at(1);
    QCOMPARE(groupCommand->text(), QStringLiteral("Новая Групповая команда"));
    QCOMPARE(e.selected(), QModelIndexList{e.at({1, 0, 1})});
    QVERIFY(qobject_cast<ActionGroupItemEditor*>(e.editor()));

    e.clickButton("addSeparator");
    // Into the group command selected last.
    QVERIFY(groupCommand->menu()->actions().value(0) && groupCommand->menu()->actions().at(0)->isSeparator());
    QCOMPARE(e.selected(), QModelIndexList{e.at({1, 0, 1, 0})});
    QVERIFY(!e.editor());

    e.clickRow(e.at({1, 1, 0}));
    e.clickButton("addSeparator");
    QVERIFY(e.ribbon.untitled->actions().at(1)->isSeparator());
    QCOMPARE(e.selected(), QModelIndexList{e.at({1, 1, 1})});
    QCOMPARE(ui::actionButtonStyle(e.ribbon.untitled, e.ribbon.picture), Qt::ToolButtonTextUnderIcon);
}

void tst_RibbonTreeWidget::upAndDownFollowRowsAndEnds()
{
    Editor e;
    e.clickRow(e.at({0, 0, 0}));
    QVERIFY(!e.button("up")->isEnabled());
    QVERIFY(e.button("down")->isEnabled());
    e.clickButton("down");
    QCOMPARE(e.ribbon.clipboard->actions().at(1), e.ribbon.paste);
    QCOMPARE(e.selected(), QModelIndexList{e.at({0, 0, 1})});
    QVERIFY(e.button("up")->isEnabled());
    e.clickButton("up");
    QCOMPARE(e.ribbon.clipboard->actions().at(0), e.ribbon.paste);
    QVERIFY(!e.button("up")->isEnabled());

    e.clickRow(e.at({0, 0, 4}));
    QVERIFY(!e.button("down")->isEnabled());
    QVERIFY(e.button("up")->isEnabled());
    e.clickRow(e.at({2}));
    QVERIFY(!e.button("down")->isEnabled());
    e.clickButton("up");
    QCOMPARE(e.ribbon.bar.page(1), e.ribbon.empty);
    QCOMPARE(display(*e.model, e.at({2})), QStringLiteral("Insert"));

    // Several selected rows move with neither button.
    e.clickRow(e.at({0, 0, 1}));
    e.clickRow(e.at({0, 0, 2}), Qt::ControlModifier);
    QVERIFY(!e.button("up")->isEnabled());
    QVERIFY(!e.button("down")->isEnabled());
}

void tst_RibbonTreeWidget::upTakesCommandsOutOfAGroupCommand()
{
    Editor e;
    e.widget.setMenuAction(e.ribbon.spare);
    e.clickRow(e.at({0, 0, 0}));
    e.clickButton("addItem");
    const QModelIndex paste = e.at({0, 0, 0});
    QCOMPARE(e.model->rowCount(paste), 3);
    e.clickRow(e.at({0, 0, 0, 0}));
    e.clickRow(e.at({0, 0, 0, 2}), Qt::ShiftModifier);
    QCOMPARE(e.selected().size(), 3);
    QVERIFY(!e.button("up")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(&e.widget, "onUp"));
    e.settle();
    QVERIFY(e.ribbon.paste->menu()->actions().isEmpty());
    QCOMPARE(e.ribbon.clipboard->actions().mid(5),
             (QList<QAction*>{e.ribbon.pastePlain, e.ribbon.pasteSpecial, e.ribbon.spare}));
    QCOMPARE(e.selected(), QModelIndexList{paste});
    QVERIFY(qobject_cast<ActionGroupItemEditor*>(e.editor()));
    QCOMPARE(display(*e.model, e.at({0, 0, 7})), QStringLiteral("Spare"));
}

void tst_RibbonTreeWidget::upWithARunOutsideAGroupCommandDoesNothing()
{
    Editor e;
    e.clickRow(e.at({0, 0, 1}));
    e.clickRow(e.at({0, 0, 2}), Qt::ShiftModifier);
    const QList<QAction*> before = e.ribbon.clipboard->actions();
    QVERIFY(QMetaObject::invokeMethod(&e.widget, "onUp"));
    QCOMPARE(e.ribbon.clipboard->actions(), before);
    // Not contiguous inside a group command: nothing either.
    e.clickRow(e.at({0, 1, 3, 0}));
    e.clickRow(e.at({0, 1, 3, 2}), Qt::ControlModifier);
    QVERIFY(QMetaObject::invokeMethod(&e.widget, "onUp"));
    QCOMPARE(e.ribbon.colour->menu()->actions().size(), 3);
}

void tst_RibbonTreeWidget::deleteRemovesFromTheBottomUp()
{
    Editor e;
    QList<int> removedRows;
    QObject::connect(e.model, &QAbstractItemModel::rowsAboutToBeRemoved,
                     [&removedRows](const QModelIndex&, int first, int) { removedRows << first; });
    e.clickRow(e.at({0, 0, 1}));
    e.clickRow(e.at({0, 0, 4}), Qt::ControlModifier);
    e.clickRow(e.at({0, 0, 2}), Qt::ControlModifier);
    QVERIFY(e.button("del")->isEnabled());
    e.clickButton("del");
    QCOMPARE(removedRows, (QList<int>{4, 2, 1}));
    QCOMPARE(e.ribbon.clipboard->actions(), (QList<QAction*>{e.ribbon.paste, e.ribbon.clipboardSeparator}));
    QVERIFY(e.ribbon.cut && e.ribbon.copy && e.ribbon.formatPainter);
    QVERIFY(e.selected().isEmpty());
    QVERIFY(!e.editor());
    QCOMPARE(e.enabledButtons(), QStringList{"addPanel"});
}

void tst_RibbonTreeWidget::editorPerKind()
{
    Editor e;
    auto* popup = e.ribbon.command(QStringLiteral("Popup"), Qt::gray);
    popup->setProperty("isPopupWidgetAction", true);
    auto* dynamic = e.ribbon.command(QStringLiteral("Recent"), Qt::gray);
    dynamic->setProperty("isDynamic", true);
    auto* widgetAction = new QWidgetAction(&e.ribbon.host);
    widgetAction->setDefaultWidget(new QLineEdit);
    for (QAction* action : {popup, dynamic, static_cast<QAction*>(widgetAction)})
        e.model->insertAction(e.at({1, 0}), action);

    struct Case
    {
        QModelIndex index;
        const char* editorClass;
    };
    const QList<Case> cases{
        {e.at({0}), "PanelItemEditor"},
        {e.at({0, 1}), "GroupItemEditor"},
        {e.at({0, 1, 0}), "ActionItemEditor"},
        {e.at({0, 1, 3}), "ActionGroupItemEditor"},
        {e.at({1, 0, 1}), "PopupWidgetActionItemEditor"},
        {e.at({1, 0, 2}), "ActionItemEditor"},
        {e.at({1, 0, 3}), nullptr},
        {e.at({0, 1, 2}), nullptr},
    };
    for (const Case& c : cases) {
        e.clickRow(c.index);
        AbstractEditor* editor = e.editor();
        if (!c.editorClass) {
            QVERIFY2(!editor, qPrintable(display(*e.model, c.index)));
            continue;
        }
        QVERIFY2(editor, c.editorClass);
        QCOMPARE(editor->metaObject()->className(), c.editorClass);
        QCOMPARE(editor->items(), QList<RibbonTreeItem*>{e.model->item(c.index)});
        QCOMPARE(editor->owner(), &e.widget);
        QCOMPARE(editor->ribbonBar(), &e.ribbon.bar);
        QCOMPARE(editor->parent(), e.editorWidget());
        QVERIFY(e.editorWidget()->isVisible());
        // Only one editor fills the box at a time.
        int shown = 0;
        for (QWidget* child : e.paramsBox->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            shown += child->isVisible() ? 1 : 0;
        QCOMPARE(shown, 1);
    }
    // A mixed selection of siblings: a command and a group command.
    e.clickRow(e.at({0, 1, 0}));
    e.clickRow(e.at({0, 1, 3}), Qt::ControlModifier);
    QCOMPARE(e.selected().size(), 2);
    QVERIFY(!e.editor());
}

void tst_RibbonTreeWidget::editorRebuiltFromTheContextMenu()
{
    Editor e;
    e.clickRow(e.at({0, 1}));
    QPointer<AbstractEditor> first = e.editor();
    QVERIFY(first);
    const QRect rect = e.view->visualRect(e.at({0, 1}));
    QVERIFY(QMetaObject::invokeMethod(e.view, "customContextMenuRequested", Q_ARG(QPoint, rect.center())));
    e.settle();
    QVERIFY(!first);
    QVERIFY(qobject_cast<GroupItemEditor*>(e.editor()));
    // With several rows selected the context menu does nothing.
    e.clickRow(e.at({0, 0}), Qt::ControlModifier);
    QPointer<AbstractEditor> several = e.editor();
    QVERIFY(QMetaObject::invokeMethod(e.view, "customContextMenuRequested", Q_ARG(QPoint, rect.center())));
    e.settle();
    QCOMPARE(e.editor(), several.data());
}

void tst_RibbonTreeWidget::renameInPlace()
{
    Editor e;
    const QModelIndex font = e.at({0, 1});
    e.clickRow(font);
    QTest::keyClick(e.view, Qt::Key_F2);
    auto* edit = e.view->viewport()->findChild<QLineEdit*>();
    QVERIFY(edit);
    QCOMPARE(edit->text(), QStringLiteral("Font"));
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("Type"));
    QTest::keyClick(edit, Qt::Key_Return);
    e.settle();
    QCOMPARE(e.ribbon.font->title(), QStringLiteral("Type"));
    QCOMPARE(display(*e.model, font), QStringLiteral("Type"));

    // Plain commands are not renamed in the tree.
    e.settle();
    QVERIFY(!e.view->viewport()->findChild<QLineEdit*>());
    e.clickRow(e.at({0, 1, 0}));
    QTest::keyClick(e.view, Qt::Key_F2);
    e.settle();
    QVERIFY(!e.view->viewport()->findChild<QLineEdit*>());
}

void tst_RibbonTreeWidget::updateModelResets()
{
    Editor e;
    e.widget.setMenuAction(e.ribbon.spare);
    e.clickRow(e.at({0, 1}));
    QVERIFY(e.editor());
    QVERIFY(e.button("addItem")->isEnabled());

    fixture::Ribbon other;
    e.widget.updateModel(&other.bar);
    e.settle();
    QCOMPARE(e.widget.getRibbonBar(), &other.bar);
    QVERIFY(!e.editor());
    QVERIFY(e.view->isExpanded(e.at({1, 0})));
    QCOMPARE(e.model->item(e.at({0}))->object(), other.home);
    // The offered command is dropped with the old ribbon.
    e.clickRow(e.at({1, 0}));
    QVERIFY(!e.button("addItem")->isEnabled());
    QVERIFY(qobject_cast<GroupItemEditor*>(e.editor()));

    e.widget.updateModel(nullptr);
    e.settle();
    QCOMPARE(e.model->rowCount(), 0);
    QVERIFY(!e.editor());
    e.clickButton("addPanel");
    QCOMPARE(e.model->rowCount(), 0);
}

void tst_RibbonTreeWidget::clearSelection()
{
    Editor e;
    e.clickRow(e.at({0, 0, 1}));
    e.clickRow(e.at({0, 0, 2}), Qt::ControlModifier);
    e.widget.clearSelection();
    e.settle();
    QVERIFY(e.selected().isEmpty());
    QVERIFY(!e.view->currentIndex().isValid());
    QVERIFY(!e.editor());
    QCOMPARE(e.enabledButtons(), QStringList{"addPanel"});
}

void tst_RibbonTreeWidget::destroyedWithAnEditorShown()
{
    auto* e = new Editor;
    e->clickRow(e->at({0, 0, 0}));
    QVERIFY(e->editor());
    auto* edit = e->editorWidget()->findChild<QLineEdit*>();
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("x"));
    delete e;
}

QTEST_MAIN(tst_RibbonTreeWidget)
#include "tst_ribbontreewidget.moc"
