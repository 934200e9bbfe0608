#include <tessaro/DynamicGroupActionHandler.h>
#include <tessaro/MenuTreeWidget.h>
#include <tessaro/QToolBarPage.h>
#include <tessaro/menuTreeModel.h>

#include "common/testicons.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QSet>
#include <QSplitter>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

namespace {

using testcommon::colorIcon;

const QString groupText = QString::fromUtf8("Группа команд");
const QString separatorText = QStringLiteral("-------------");

QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QString describeMenu(const QMenu* menu)
{
    QStringList parts;
    for (const QAction* action : menu->actions())
        parts << (action->isSeparator() ? QStringLiteral("-") : plain(action->text()));
    return QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
}

// The toolbar's live contents, "Open|-|{Print,Undo}": a group action has no
// text of its own and gets its menu with its first command, so a textless
// action without a menu is an empty group.
QString describe(const QToolBar* toolBar)
{
    QStringList parts;
    for (const QAction* action : toolBar->actions()) {
        if (action->isSeparator())
            parts << QStringLiteral("-");
        else if (action->menu())
            parts << describeMenu(action->menu());
        else if (action->text().isEmpty())
            parts << QStringLiteral("{}");
        else
            parts << plain(action->text());
    }
    return parts.join(QLatin1Char('|'));
}

QString describeItem(const QTreeWidgetItem* item)
{
    if (item->text(0) == separatorText)
        return QStringLiteral("-");
    if (item->text(0) != groupText)
        return item->text(0);
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children << describeItem(item->child(i));
    return QLatin1Char('{') + children.join(QLatin1Char(',')) + QLatin1Char('}');
}

// The contents tree in the same notation as describe(QToolBar*).
QString describe(const QTreeWidget* tree)
{
    QStringList parts;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        parts << describeItem(tree->topLevelItem(i));
    return parts.join(QLatin1Char('|'));
}

QAction* command(QMenu* category, const QString& text, int id)
{
    QAction* action = category->addAction(text);
    action->setData(id);
    return action;
}

// The page as a host places it in the customize dialog's toolbars tab: the
// host's command tree on the left of the tab's splitter, the page in the
// layout on the right, wired as the page's documentation shows.
struct Fixture
{
    QMenu commandsMenu{QStringLiteral("Команды")};
    QAction* open;
    QAction* save;
    QAction* close;
    QAction* print;
    QAction* undo;
    QAction* redo;

    QMainWindow host;
    QToolBar* standard;
    QToolBar* editing;
    QAction* standardSeparator;
    QAction* hostGroup;

    QWidget window;
    MenuTreeWidget* commands;
    ui::QToolBarPage* page;
    QListWidget* list;
    QTreeWidget* tree;
    std::unique_ptr<QAbstractItemModelTester> tester;

    QToolButton* addActionButton;
    QToolButton* addActionToGroupButton;
    QToolButton* removeActionButton;
    QToolButton* addGroupButton;
    QToolButton* addSeparatorButton;
    QToolButton* upButton;
    QToolButton* downButton;
    QToolButton* addToolbarButton;
    QToolButton* removeToolbarButton;
    QToolButton* renameToolbarButton;

    Fixture()
    {
        QMenu* file = commandsMenu.addMenu(QStringLiteral("Файл"));
        open = command(file, QStringLiteral("&Открыть"), 1);
        open->setIcon(colorIcon(Qt::red));
        save = command(file, QStringLiteral("Сохранить"), 2);
        file->addSeparator();
        close = command(file, QStringLiteral("Закрыть"), 6);
        print = command(file, QStringLiteral("Печать"), 3);
        QMenu* edit = commandsMenu.addMenu(QStringLiteral("Правка"));
        undo = command(edit, QStringLiteral("Отменить"), 4);
        redo = command(edit, QStringLiteral("Вернуть"), 5);

        standard = host.addToolBar(QStringLiteral("Стандартная"));
        standard->setObjectName(QStringLiteral("standard"));
        standard->addAction(open);
        standard->addAction(save);
        standardSeparator = standard->addSeparator();
        hostGroup = new QAction(standard);
        hostGroup->setMenu(new QMenu(standard));
        hostGroup->menu()->addAction(print);
        hostGroup->menu()->addAction(undo);
        standard->addAction(hostGroup);
        editing = host.addToolBar(QStringLiteral("Правка"));
        editing->setObjectName(QStringLiteral("editing"));
        editing->addAction(undo);
        editing->setEnabled(false);

        auto* tabLayout = new QHBoxLayout(&window);
        tabLayout->setContentsMargins(0, 0, 0, 0);
        auto* splitter = new QSplitter(Qt::Horizontal);
        tabLayout->addWidget(splitter);
        auto* left = new QWidget;
        auto* leftLayout = new QVBoxLayout(left);
        leftLayout->setContentsMargins(0, 0, 0, 0);
        commands = new MenuTreeWidget(nullptr, &commandsMenu);
        commands->setHeaderHidden(true);
        leftLayout->addWidget(commands);
        auto* right = new QWidget;
        auto* rightLayout = new QHBoxLayout(right);
        rightLayout->setContentsMargins(0, 0, 0, 0);
        auto* pageSlot = new QVBoxLayout;
        pageSlot->setSpacing(0);
        rightLayout->addLayout(pageSlot);
        splitter->addWidget(left);
        splitter->addWidget(right);
        page = new ui::QToolBarPage;
        pageSlot->addWidget(page);
        splitter->setSizes({220, 680});
        window.resize(900, 520);

        QObject::connect(commands, &MenuTreeWidget::currentActionChanged, page,
                         &ui::QToolBarPage::setCurrentCommand);
        QObject::connect(commands, &MenuTreeWidget::actionDoubleClicked, page,
                         &ui::QToolBarPage::fromDoubleClick);

        list = page->findChild<QListWidget*>(QStringLiteral("toolBarList"));
        tree = page->findChild<QTreeWidget*>(QStringLiteral("contentsTree"));
        addActionButton = button("addActionButton");
        addActionToGroupButton = button("addActionToGroupButton");
        removeActionButton = button("removeActionButton");
        addGroupButton = button("addGroupButton");
        addSeparatorButton = button("addSeparatorButton");
        upButton = button("upButton");
        downButton = button("downButton");
        addToolbarButton = button("addToolbarButton");
        removeToolbarButton = button("removeToolbarButton");
        renameToolbarButton = button("renameToolbarButton");
        if (tree)
            tester.reset(new QAbstractItemModelTester(tree->model()));

        page->setToolBars({standard, editing});
    }

    ~Fixture()
    {
        // Toolbars made on the page have no parent until a host takes them.
        const QList<QToolBar*> toolBars = page->toolBars();
        tester.reset();
        for (QToolBar* toolBar : toolBars) {
            if (!toolBar->parent())
                delete toolBar;
        }
    }

    QToolButton* button(const char* name) const
    {
        return page->findChild<QToolButton*>(QLatin1String(name));
    }

    bool allFound() const
    {
        return list && tree && addActionButton && addActionToGroupButton && removeActionButton
            && addGroupButton && addSeparatorButton && upButton && downButton && addToolbarButton
            && removeToolbarButton && renameToolbarButton;
    }

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    void click(QToolButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void clickRow(int row)
    {
        QListWidgetItem* item = list->item(row);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(item).center());
    }

    void clickCheckBox(int row)
    {
        QListWidgetItem* item = list->item(row);
        QStyleOptionViewItem option;
        option.initFrom(list->viewport());
        option.rect = list->visualItemRect(item);
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        option.text = item->text();
        option.checkState = item->checkState();
        const QRect box = list->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    }

    QTreeWidgetItem* top(int row) const
    {
        return tree->topLevelItem(row);
    }

    void clickItem(QTreeWidgetItem* item)
    {
        tree->scrollToItem(item);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualItemRect(item).center());
    }

    QModelIndex commandIndex(QAction* action, const QModelIndex& parent = QModelIndex()) const
    {
        QAbstractItemModel* model = commands->model();
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            if (index.internalPointer() == action)
                return index;
            const QModelIndex found = commandIndex(action, index);
            if (found.isValid())
                return found;
        }
        return QModelIndex();
    }

    void chooseCommand(QAction* action)
    {
        const QModelIndex index = commandIndex(action);
        commands->scrollTo(index);
        QTest::mouseClick(commands->viewport(), Qt::LeftButton, Qt::NoModifier, commands->visualRect(index).center());
    }

    void doubleClickCommand(QAction* action)
    {
        chooseCommand(action);
        const QModelIndex index = commandIndex(action);
        QTest::mouseDClick(commands->viewport(), Qt::LeftButton, Qt::NoModifier, commands->visualRect(index).center());
    }

    // Right-clicks @p item through the window system, so that the context menu
    // event comes as it does for a user; @p onPopup handles the popup if one opens.
    bool rightClick(QTreeWidgetItem* item, const std::function<void(QMenu*)>& onPopup)
    {
        tree->scrollToItem(item);
        bool shown = false;
        QTimer timer;
        timer.setInterval(10);
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!popup)
                return;
            timer.stop();
            shown = true;
            onPopup(popup);
        });
        timer.start();
        const QPoint pos = tree->viewport()->mapTo(&window, tree->visualItemRect(item).center());
        QTest::mouseClick(window.windowHandle(), Qt::RightButton, Qt::NoModifier, pos);
        timer.stop();
        return shown;
    }

    // Right-clicks @p item and picks the style entry @p text; returns the entries seen.
    QStringList chooseStyle(QTreeWidgetItem* item, const QString& text, QString* checked = nullptr)
    {
        QStringList entries;
        rightClick(item, [&](QMenu* popup) {
            QAction* choice = nullptr;
            for (QAction* entry : popup->actions()) {
                entries << QStringLiteral("%1=%2%3")
                               .arg(entry->text())
                               .arg(entry->data().toInt())
                               .arg(entry->isCheckable() ? QString() : QStringLiteral(" (not checkable)"));
                if (entry->isChecked() && checked)
                    *checked = entry->text();
                if (entry->text() == text)
                    choice = entry;
            }
            if (choice)
                QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier, popup->actionGeometry(choice).center());
            else
                popup->close();
        });
        return entries;
    }

    QLineEdit* startRename()
    {
        click(renameToolbarButton);
        return qobject_cast<QLineEdit*>(list->indexWidget(list->currentIndex()));
    }

    void typeTitle(QLineEdit* editor, const QString& title)
    {
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, title);
        QTest::keyClick(editor, Qt::Key_Return);
        // The item view commits the editor's text through a queued call.
        QCoreApplication::processEvents();
    }

    QStringList objectNames() const
    {
        QStringList names;
        for (const QToolBar* toolBar : page->toolBars())
            names << toolBar->objectName();
        return names;
    }

    // Tree and toolbar show the same contents; returns that contents.
    QString contents() const
    {
        const QString shown = describe(tree);
        const QString live = describe(standard);
        return shown == live ? live : QStringLiteral("tree %1 != toolbar %2").arg(shown, live);
    }
};

QToolButton* toolBarButton(QToolBar* toolBar, QAction* action)
{
    return qobject_cast<QToolButton*>(toolBar->widgetForAction(action));
}

} // namespace

class tst_ToolBarPage : public QObject
{
    Q_OBJECT

private slots:
    void formHasListTreeAndTenButtons();
    void setToolBarsListsOneRowPerToolbar();
    void setToolBarsReplacesTheRows();
    void selectingARowShowsTheToolbarContents();
    void updateButtonsWithoutToolbar();
    void updateButtonsFollowTheSelection();
    void setCurrentCommandNullDisablesAdding();
    void addCommandGoesAfterTheSelectedItem();
    void addCommandWithoutSelectionGoesFirst();
    void addGroupMakesASimpleGroupButton();
    void addToGroupCreatesTheMenuOnTheFirstAdd();
    void addToGroupLeavesACommandTheGroupHolds();
    void addSeparatorOnTheToolbar();
    void addSeparatorInsideAGroup();
    void removeKeepsCommandsAndGroupsButDeletesSeparators();
    void upAndDownMoveAmongSiblings();
    void movingKeepsTheButtonLook();
    void doubleClickAddsToTheGroupWhenAddCommandIsDisabled();
    void doubleClickAddsToTheToolbarWhenAddCommandIsEnabled();
    void doubleClickOnACommandTheToolbarHoldsDoesNothing();
    void addToolbarNamesItWithTheSmallestFreeNumber();
    void addToolbarSkipsNumbersOfHostToolbars();
    void removeToolbarDeletesItAndShowsTheNextOne();
    void renameToolbarSetsTheTitle();
    void titleOf256CharactersIsRefused();
    void checkBoxEnablesTheToolbar();
    void contextMenuOffersFiveStyles();
    void contextMenuOnAGroupStylesItsButton();
    void noContextMenuForSeparatorsOrGroupChildren();
    void toolBarPanelWorksWhenMovedToTheLeftSide();
};

void tst_ToolBarPage::formHasListTreeAndTenButtons()
{
    Fixture f;
    QVERIFY(f.allFound());
    QCOMPARE(f.tree->columnCount(), 1);
    QVERIFY(f.tree->isHeaderHidden());
    const QList<QToolButton*> buttons = {f.addActionButton, f.addActionToGroupButton, f.removeActionButton,
                                         f.addGroupButton, f.addSeparatorButton, f.upButton, f.downButton,
                                         f.addToolbarButton, f.removeToolbarButton, f.renameToolbarButton};
    QSet<QString> toolTips;
    for (QToolButton* button : buttons) {
        QVERIFY2(!button->icon().isNull(), qPrintable(button->objectName()));
        QVERIFY2(!button->icon().pixmap(24, 24).isNull(), qPrintable(button->objectName()));
        QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->objectName()));
        toolTips.insert(button->toolTip());
    }
    QCOMPARE(toolTips.size(), 10);

    QVERIFY(f.show());
    QVERIFY(f.page->isVisible());
    QVERIFY(f.list->isVisible());
    QVERIFY(f.tree->isVisible());
    for (QToolButton* button : buttons)
        QVERIFY2(button->isVisible(), qPrintable(button->objectName()));
    QVERIFY(f.commands->isVisible());
}

void tst_ToolBarPage::setToolBarsListsOneRowPerToolbar()
{
    Fixture f;
    QVERIFY(f.allFound());
    QCOMPARE(f.list->count(), 2);
    QCOMPARE(f.list->item(0)->text(), QStringLiteral("Стандартная"));
    QCOMPARE(f.list->item(1)->text(), QStringLiteral("Правка"));
    for (int row = 0; row < 2; ++row) {
        QVERIFY(f.list->item(row)->flags() & Qt::ItemIsEditable);
        QVERIFY(f.list->item(row)->flags() & Qt::ItemIsUserCheckable);
    }
    QCOMPARE(f.list->item(0)->checkState(), Qt::Checked);
    QCOMPARE(f.list->item(1)->checkState(), Qt::Unchecked);
    QCOMPARE(f.page->toolBars(), (QList<QToolBar*>{f.standard, f.editing}));
    QCOMPARE(f.tree->topLevelItemCount(), 0);

    // Listing does not change the toolbars.
    QVERIFY(f.standard->isEnabled());
    QVERIFY(!f.editing->isEnabled());
    QCOMPARE(f.standard->windowTitle(), QStringLiteral("Стандартная"));
}

void tst_ToolBarPage::setToolBarsReplacesTheRows()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    QCOMPARE(f.tree->topLevelItemCount(), 4);

    f.page->setToolBars({f.editing});
    QCOMPARE(f.list->count(), 1);
    QCOMPARE(f.list->item(0)->text(), QStringLiteral("Правка"));
    QCOMPARE(f.page->toolBars(), QList<QToolBar*>{f.editing});
    QCOMPARE(f.tree->topLevelItemCount(), 0);
    QVERIFY(!f.removeToolbarButton->isEnabled());
    QVERIFY(f.standard->isEnabled());
}

void tst_ToolBarPage::selectingARowShowsTheToolbarContents()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());

    f.clickRow(0);
    QCOMPARE(describe(f.tree), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));

    QTreeWidgetItem* open = f.top(0);
    QCOMPARE(open->text(0), QStringLiteral("Открыть"));
    QCOMPARE(open->icon(0).pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
    QCOMPARE(open->data(0, Qt::UserRole).type(), QVariant::UInt);
    QCOMPARE(open->data(0, Qt::UserRole).toUInt(), 1u);
    QCOMPARE(f.top(1)->data(0, Qt::UserRole).toUInt(), 2u);
    QCOMPARE(f.top(2)->text(0), QStringLiteral("-------------"));
    QTreeWidgetItem* group = f.top(3);
    QCOMPARE(group->text(0), QString::fromUtf8("Группа команд"));
    QCOMPARE(group->font(0).weight(), 75);
    QVERIFY(!open->font(0).bold());
    QVERIFY(group->isExpanded());
    QCOMPARE(group->child(0)->data(0, Qt::UserRole).toUInt(), 3u);
    QCOMPARE(group->child(1)->data(0, Qt::UserRole).toUInt(), 4u);

    f.clickRow(1);
    QCOMPARE(describe(f.tree), QString::fromUtf8("Отменить"));
    QCOMPARE(f.top(0)->data(0, Qt::UserRole).toUInt(), 4u);
}

void tst_ToolBarPage::updateButtonsWithoutToolbar()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.chooseCommand(f.redo);
    for (QToolButton* button : {f.addActionButton, f.addActionToGroupButton, f.removeActionButton,
                                f.addGroupButton, f.addSeparatorButton, f.upButton, f.downButton,
                                f.removeToolbarButton, f.renameToolbarButton})
        QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));
    QVERIFY(f.addToolbarButton->isEnabled());

    // Clicking the disabled buttons changes nothing.
    f.click(f.addActionButton);
    f.click(f.addSeparatorButton);
    f.click(f.removeToolbarButton);
    QCOMPARE(f.page->toolBars(), (QList<QToolBar*>{f.standard, f.editing}));
    QCOMPARE(describe(f.standard), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
}

void tst_ToolBarPage::updateButtonsFollowTheSelection()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);

    // A toolbar, no command, no item.
    QVERIFY(f.removeToolbarButton->isEnabled());
    QVERIFY(f.renameToolbarButton->isEnabled());
    QVERIFY(f.addGroupButton->isEnabled());
    QVERIFY(f.addSeparatorButton->isEnabled());
    QVERIFY(!f.addActionButton->isEnabled());
    QVERIFY(!f.addActionToGroupButton->isEnabled());
    QVERIFY(!f.removeActionButton->isEnabled());
    QVERIFY(!f.upButton->isEnabled());
    QVERIFY(!f.downButton->isEnabled());

    // A command the toolbar does not hold, no item: add only to the toolbar.
    f.chooseCommand(f.redo);
    QVERIFY(f.addActionButton->isEnabled());
    QVERIFY(!f.addActionToGroupButton->isEnabled());

    // A command item in the middle.
    f.clickItem(f.top(1));
    QVERIFY(f.addActionButton->isEnabled());
    QVERIFY(!f.addActionToGroupButton->isEnabled());
    QVERIFY(f.addGroupButton->isEnabled());
    QVERIFY(f.removeActionButton->isEnabled());
    QVERIFY(f.upButton->isEnabled());
    QVERIFY(f.downButton->isEnabled());

    // The first and the last top-level items.
    f.clickItem(f.top(0));
    QVERIFY(!f.upButton->isEnabled());
    QVERIFY(f.downButton->isEnabled());
    f.clickItem(f.top(3));
    QVERIFY(f.upButton->isEnabled());
    QVERIFY(!f.downButton->isEnabled());

    // The group item allows both adds.
    QVERIFY(f.addActionButton->isEnabled());
    QVERIFY(f.addActionToGroupButton->isEnabled());
    QVERIFY(f.addGroupButton->isEnabled());

    // A child of the group: only into the group, no new group.
    f.clickItem(f.top(3)->child(0));
    QVERIFY(!f.addActionButton->isEnabled());
    QVERIFY(f.addActionToGroupButton->isEnabled());
    QVERIFY(!f.addGroupButton->isEnabled());
    QVERIFY(f.removeActionButton->isEnabled());
    QVERIFY(f.addSeparatorButton->isEnabled());
    QVERIFY(!f.upButton->isEnabled());
    QVERIFY(f.downButton->isEnabled());
    f.clickItem(f.top(3)->child(1));
    QVERIFY(f.upButton->isEnabled());
    QVERIFY(!f.downButton->isEnabled());

    // A child of a group that already holds the command.
    f.chooseCommand(f.undo);
    QVERIFY(!f.addActionToGroupButton->isEnabled());
    QVERIFY(!f.addActionButton->isEnabled());
    // The group item itself still offers it.
    f.clickItem(f.top(3));
    QVERIFY(f.addActionToGroupButton->isEnabled());

    // A command the toolbar holds: neither add.
    f.chooseCommand(f.open);
    QVERIFY(!f.addActionButton->isEnabled());
    QVERIFY(!f.addActionToGroupButton->isEnabled());
}

void tst_ToolBarPage::setCurrentCommandNullDisablesAdding()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(3));
    f.page->setCurrentCommand(f.redo);
    QVERIFY(f.addActionButton->isEnabled());
    QVERIFY(f.addActionToGroupButton->isEnabled());
    f.page->setCurrentCommand(nullptr);
    QVERIFY(!f.addActionButton->isEnabled());
    QVERIFY(!f.addActionToGroupButton->isEnabled());
    f.page->fromDoubleClick();
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
}

void tst_ToolBarPage::addCommandGoesAfterTheSelectedItem()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(1));
    f.chooseCommand(f.redo);
    f.click(f.addActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|Вернуть|-|{Печать,Отменить}"));
    QCOMPARE(f.standard->actions().at(2), f.redo);
    QCOMPARE(f.tree->currentItem(), f.top(2));
    QCOMPARE(f.top(2)->data(0, Qt::UserRole).toUInt(), 5u);
    QVERIFY(toolBarButton(f.standard, f.redo));
    // Now on the toolbar: offered no more.
    QVERIFY(!f.addActionButton->isEnabled());

    // After a group item: the next top-level place.
    f.clickItem(f.top(4));
    f.chooseCommand(f.close);
    f.click(f.addActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|Вернуть|-|{Печать,Отменить}|Закрыть"));
    QCOMPARE(f.tree->currentItem(), f.top(5));
}

void tst_ToolBarPage::addCommandWithoutSelectionGoesFirst()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    QVERIFY(!f.tree->currentItem());
    f.chooseCommand(f.redo);
    f.click(f.addActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Вернуть|Открыть|Сохранить|-|{Печать,Отменить}"));
    QCOMPARE(f.tree->currentItem(), f.top(0));
}

void tst_ToolBarPage::addGroupMakesASimpleGroupButton()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(1));
    f.click(f.addGroupButton);

    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|{}|-|{Печать,Отменить}"));
    QTreeWidgetItem* item = f.top(2);
    QCOMPARE(f.tree->currentItem(), item);
    QCOMPARE(item->text(0), QString::fromUtf8("Группа команд"));
    QCOMPARE(item->font(0).weight(), 75);
    QCOMPARE(item->childCount(), 0);

    QAction* group = f.standard->actions().at(2);
    QCOMPARE(group->parent(), f.standard);
    QVERIFY(!group->menu());
    QToolButton* button = toolBarButton(f.standard, group);
    QVERIFY(button);
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    QVERIFY(!button->findChild<ui::DynamicGroupActionHandler*>());

    // Inside a group there is no room for another one.
    f.clickItem(f.top(4)->child(0));
    QVERIFY(!f.addGroupButton->isEnabled());
    f.click(f.addGroupButton);
    QCOMPARE(f.standard->actions().size(), 5);
}

void tst_ToolBarPage::addToGroupCreatesTheMenuOnTheFirstAdd()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(1));
    f.click(f.addGroupButton);
    QAction* group = f.standard->actions().at(2);

    f.chooseCommand(f.redo);
    QVERIFY(f.addActionToGroupButton->isEnabled());
    f.click(f.addActionToGroupButton);
    QVERIFY(group->menu());
    QCOMPARE(group->menu()->parent(), f.standard);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|{Вернуть}|-|{Печать,Отменить}"));
    QCOMPARE(f.tree->currentItem(), f.top(2)->child(0));
    QVERIFY(f.top(2)->isExpanded());
    QCOMPARE(toolBarButton(f.standard, group)->popupMode(), QToolButton::InstantPopup);

    // With the group item selected the command goes last...
    f.chooseCommand(f.print);
    f.clickItem(f.top(2));
    f.click(f.addActionToGroupButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|{Вернуть,Печать}|-|{Печать,Отменить}"));
    // ...with a child selected, right after it.
    f.chooseCommand(f.close);
    f.clickItem(f.top(2)->child(0));
    f.click(f.addActionToGroupButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|{Вернуть,Закрыть,Печать}|-|{Печать,Отменить}"));
    QCOMPARE(f.tree->currentItem(), f.top(2)->child(1));
    QCOMPARE(f.top(2)->child(1)->data(0, Qt::UserRole).toUInt(), 6u);

    // The menu is the one the toolbar's button opens.
    QCOMPARE(toolBarButton(f.standard, group)->defaultAction(), group);
    QCOMPARE(group->menu()->actions(), (QList<QAction*>{f.redo, f.close, f.print}));

    // A plain command item takes no group adds.
    f.chooseCommand(f.undo);
    f.clickItem(f.top(1));
    QVERIFY(!f.addActionToGroupButton->isEnabled());
    f.click(f.addActionToGroupButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|{Вернуть,Закрыть,Печать}|-|{Печать,Отменить}"));
}

void tst_ToolBarPage::addToGroupLeavesACommandTheGroupHolds()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.chooseCommand(f.undo);
    f.clickItem(f.top(3));
    QVERIFY(f.addActionToGroupButton->isEnabled());
    f.click(f.addActionToGroupButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
    QCOMPARE(f.hostGroup->menu()->actions(), (QList<QAction*>{f.print, f.undo}));
}

void tst_ToolBarPage::addSeparatorOnTheToolbar()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(0));
    f.click(f.addSeparatorButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|-|Сохранить|-|{Печать,Отменить}"));
    QVERIFY(f.standard->actions().at(1)->isSeparator());
    QCOMPARE(f.top(1)->text(0), QStringLiteral("-------------"));
    QCOMPARE(f.tree->currentItem(), f.top(1));

    f.clickItem(f.top(2));
    f.click(f.addSeparatorButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|-|Сохранить|-|-|{Печать,Отменить}"));
    QCOMPARE(f.tree->currentItem(), f.top(3));

    // Without a selected item: first.
    f.clickRow(1);
    f.clickRow(0);
    QVERIFY(!f.tree->currentItem());
    f.click(f.addSeparatorButton);
    QCOMPARE(f.contents(), QString::fromUtf8("-|Открыть|-|Сохранить|-|-|{Печать,Отменить}"));
    QVERIFY(f.standard->actions().first()->isSeparator());
}

void tst_ToolBarPage::addSeparatorInsideAGroup()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(3)->child(0));
    f.click(f.addSeparatorButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,-,Отменить}"));
    QVERIFY(f.hostGroup->menu()->actions().at(1)->isSeparator());
    QCOMPARE(f.tree->currentItem(), f.top(3)->child(1));

    // The group item selected: at the end of the group.
    f.clickItem(f.top(3));
    f.click(f.addSeparatorButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,-,Отменить,-}"));
    QCOMPARE(f.tree->currentItem(), f.top(3)->child(3));

    // An empty group gets its menu for the separator.
    f.clickItem(f.top(0));
    f.click(f.addGroupButton);
    f.click(f.addSeparatorButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{-}|Сохранить|-|{Печать,-,Отменить,-}"));
    QCOMPARE(f.standard->actions().at(1)->menu()->parent(), f.standard);
}

void tst_ToolBarPage::removeKeepsCommandsAndGroupsButDeletesSeparators()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    const QPointer<QAction> separator = f.standardSeparator;

    f.clickItem(f.top(1));
    f.click(f.removeActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|-|{Печать,Отменить}"));
    QVERIFY(!f.standard->actions().contains(f.save));
    QCOMPARE(f.save->parent(), f.commandsMenu.actions().at(0)->menu());

    f.clickItem(f.top(1));
    f.click(f.removeActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{Печать,Отменить}"));
    QVERIFY(separator.isNull());

    // A command inside a group leaves only the group's menu.
    f.clickItem(f.top(1)->child(0));
    f.click(f.removeActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{Отменить}"));
    QVERIFY(!f.hostGroup->menu()->actions().contains(f.print));

    // A separator inside a group is deleted too.
    f.clickItem(f.top(1)->child(0));
    f.click(f.addSeparatorButton);
    const QPointer<QAction> groupSeparator = f.hostGroup->menu()->actions().at(1);
    QVERIFY(groupSeparator->isSeparator());
    f.click(f.removeActionButton);
    QVERIFY(groupSeparator.isNull());
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{Отменить}"));

    // The group action is taken off, not deleted.
    const QPointer<QAction> group = f.hostGroup;
    f.clickItem(f.top(1));
    f.click(f.removeActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть"));
    QVERIFY(!group.isNull());
    QCOMPARE(group->parent(), f.standard);

    // Without an item there is nothing to remove.
    f.clickRow(1);
    f.clickRow(0);
    QVERIFY(!f.tree->currentItem());
    QVERIFY(!f.removeActionButton->isEnabled());
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть"));
}

void tst_ToolBarPage::upAndDownMoveAmongSiblings()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);

    f.clickItem(f.top(1));
    f.click(f.upButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Сохранить|Открыть|-|{Печать,Отменить}"));
    QCOMPARE(f.tree->currentItem(), f.top(0));
    QVERIFY(!f.upButton->isEnabled());
    f.click(f.upButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Сохранить|Открыть|-|{Печать,Отменить}"));

    f.click(f.downButton);
    f.click(f.downButton);
    f.click(f.downButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|-|{Печать,Отменить}|Сохранить"));
    QCOMPARE(f.tree->currentItem(), f.top(3));
    QVERIFY(!f.downButton->isEnabled());

    // The group moves with its commands and stays open.
    f.clickItem(f.top(2));
    f.click(f.upButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{Печать,Отменить}|-|Сохранить"));
    QVERIFY(f.top(1)->isExpanded());
    QCOMPARE(f.tree->currentItem(), f.top(1));

    // Inside a group only the group's menu changes.
    f.clickItem(f.top(1)->child(0));
    f.click(f.downButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{Отменить,Печать}|-|Сохранить"));
    QCOMPARE(f.tree->currentItem(), f.top(1)->child(1));
    QVERIFY(!f.downButton->isEnabled());
    f.click(f.upButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|{Печать,Отменить}|-|Сохранить"));
    QCOMPARE(f.hostGroup->menu()->actions(), (QList<QAction*>{f.print, f.undo}));
}

void tst_ToolBarPage::movingKeepsTheButtonLook()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.chooseStyle(f.top(1), QString::fromUtf8("Текст под иконкой"));
    QCOMPARE(toolBarButton(f.standard, f.save)->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);

    // A toolbar makes a new button for a moved action: the group stays a plain drop-down.
    f.clickItem(f.top(3));
    f.click(f.addGroupButton);
    QAction* group = f.standard->actions().at(4);
    f.click(f.upButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{}|{Печать,Отменить}"));
    QCOMPARE(toolBarButton(f.standard, group)->popupMode(), QToolButton::InstantPopup);
    f.click(f.downButton);
    QCOMPARE(f.standard->actions().indexOf(group), 4);
    QCOMPARE(toolBarButton(f.standard, group)->popupMode(), QToolButton::InstantPopup);

    // The styled command keeps its style.
    f.clickItem(f.top(1));
    f.click(f.upButton);
    QToolButton* saveButton = toolBarButton(f.standard, f.save);
    QCOMPARE(f.standard->actions().indexOf(f.save), 0);
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(saveButton->iconSize(), QSize(32, 32));
}

void tst_ToolBarPage::doubleClickAddsToTheGroupWhenAddCommandIsDisabled()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(3)->child(0));
    f.chooseCommand(f.redo);
    QVERIFY(!f.addActionButton->isEnabled());
    QVERIFY(f.addActionToGroupButton->isEnabled());

    f.doubleClickCommand(f.redo);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Вернуть,Отменить}"));
    QCOMPARE(f.hostGroup->menu()->actions(), (QList<QAction*>{f.print, f.redo, f.undo}));
    QCOMPARE(f.tree->currentItem(), f.top(3)->child(1));

    // A second double-click finds it in the group already.
    f.doubleClickCommand(f.redo);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Вернуть,Отменить}"));
}

void tst_ToolBarPage::doubleClickAddsToTheToolbarWhenAddCommandIsEnabled()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(3));
    f.doubleClickCommand(f.redo);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}|Вернуть"));
    QCOMPARE(f.tree->currentItem(), f.top(4));
}

void tst_ToolBarPage::doubleClickOnACommandTheToolbarHoldsDoesNothing()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    f.clickItem(f.top(3)->child(0));
    f.doubleClickCommand(f.save);
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));

    // A category is not a command: the command chosen before is not added.
    f.chooseCommand(f.redo);
    f.clickItem(f.top(3));
    QVERIFY(f.addActionButton->isEnabled());
    const QModelIndex category = f.commands->model()->index(0, 0);
    QTest::mouseDClick(f.commands->viewport(), Qt::LeftButton, Qt::NoModifier,
                       f.commands->visualRect(category).center());
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
}

void tst_ToolBarPage::addToolbarNamesItWithTheSmallestFreeNumber()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.click(f.addToolbarButton);
    f.click(f.addToolbarButton);
    f.click(f.addToolbarButton);
    QCOMPARE(f.objectNames(), (QStringList{QStringLiteral("standard"), QStringLiteral("editing"),
                                           QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
    QCOMPARE(f.list->currentRow(), 4);
    for (int row = 2; row < 5; ++row) {
        QToolBar* toolBar = f.page->toolBars().at(row);
        QCOMPARE(toolBar->windowTitle(), QStringLiteral("Custom ToolBar"));
        QVERIFY(!toolBar->parent());
        QVERIFY(toolBar->isEnabled());
        QCOMPARE(f.list->item(row)->text(), QStringLiteral("Custom ToolBar"));
        QCOMPARE(f.list->item(row)->checkState(), Qt::Unchecked);
        QVERIFY(f.list->item(row)->flags() & Qt::ItemIsEditable);
    }
    // The new toolbar is the one shown, empty and ready to take commands.
    QCOMPARE(f.tree->topLevelItemCount(), 0);
    f.chooseCommand(f.redo);
    QVERIFY(f.addActionButton->isEnabled());
    f.click(f.addActionButton);
    QCOMPARE(f.page->toolBars().at(4)->actions(), QList<QAction*>{f.redo});

    const QPointer<QToolBar> second = f.page->toolBars().at(3);
    f.clickRow(3);
    f.click(f.removeToolbarButton);
    QVERIFY(second.isNull());
    QCOMPARE(f.objectNames(), (QStringList{QStringLiteral("standard"), QStringLiteral("editing"),
                                           QStringLiteral("1"), QStringLiteral("3")}));

    f.click(f.addToolbarButton);
    QCOMPARE(f.objectNames(), (QStringList{QStringLiteral("standard"), QStringLiteral("editing"),
                                           QStringLiteral("1"), QStringLiteral("3"), QStringLiteral("2")}));
    QCOMPARE(f.list->currentRow(), 4);
}

void tst_ToolBarPage::addToolbarSkipsNumbersOfHostToolbars()
{
    Fixture f;
    QVERIFY(f.allFound());
    f.standard->setObjectName(QStringLiteral("1"));
    f.editing->setObjectName(QStringLiteral("03"));
    QVERIFY(f.show());
    f.click(f.addToolbarButton);
    f.click(f.addToolbarButton);
    QCOMPARE(f.objectNames(), (QStringList{QStringLiteral("1"), QStringLiteral("03"), QStringLiteral("2"),
                                           QStringLiteral("4")}));
}

void tst_ToolBarPage::removeToolbarDeletesItAndShowsTheNextOne()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    const QPointer<QToolBar> standard = f.standard;
    const QPointer<QToolBar> editing = f.editing;
    f.clickRow(0);
    f.click(f.removeToolbarButton);
    QVERIFY(standard.isNull());
    QCOMPARE(f.list->count(), 1);
    QCOMPARE(f.page->toolBars(), QList<QToolBar*>{editing.data()});
    QCOMPARE(f.list->currentRow(), 0);
    QCOMPARE(describe(f.tree), QString::fromUtf8("Отменить"));
    QVERIFY(f.removeToolbarButton->isEnabled());
    // Its commands belong to the host and live on.
    QVERIFY(f.commandsMenu.actions().at(0)->menu()->actions().contains(f.open));

    f.click(f.removeToolbarButton);
    QVERIFY(editing.isNull());
    QCOMPARE(f.list->count(), 0);
    QVERIFY(f.page->toolBars().isEmpty());
    QCOMPARE(f.tree->topLevelItemCount(), 0);
    QVERIFY(!f.removeToolbarButton->isEnabled());
    QVERIFY(!f.renameToolbarButton->isEnabled());
    QVERIFY(!f.addSeparatorButton->isEnabled());
    QVERIFY(f.commandsMenu.actions().at(1)->menu()->actions().contains(f.undo));
}

void tst_ToolBarPage::renameToolbarSetsTheTitle()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    QLineEdit* editor = f.startRename();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("Стандартная"));
    f.typeTitle(editor, QStringLiteral("My tools"));
    QCOMPARE(f.list->item(0)->text(), QStringLiteral("My tools"));
    QCOMPARE(f.standard->windowTitle(), QStringLiteral("My tools"));
    QVERIFY(f.standard->isEnabled());

    // An unchecked row keeps its toolbar disabled while being renamed.
    f.clickRow(1);
    editor = f.startRename();
    QVERIFY(editor);
    f.typeTitle(editor, QStringLiteral("Changes"));
    QCOMPARE(f.editing->windowTitle(), QStringLiteral("Changes"));
    QVERIFY(!f.editing->isEnabled());
}

void tst_ToolBarPage::titleOf256CharactersIsRefused()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    QLineEdit* editor = f.startRename();
    QVERIFY(editor);
    f.typeTitle(editor, QString(256, QLatin1Char('x')));
    QCOMPARE(f.list->item(0)->text(), QStringLiteral("Стандартная"));
    QCOMPARE(f.standard->windowTitle(), QStringLiteral("Стандартная"));
    QVERIFY(f.standard->isEnabled());
    QCOMPARE(f.list->item(0)->checkState(), Qt::Checked);

    const QString longest(255, QLatin1Char('y'));
    editor = f.startRename();
    QVERIFY(editor);
    f.typeTitle(editor, longest);
    QCOMPARE(f.list->item(0)->text(), longest);
    QCOMPARE(f.standard->windowTitle(), longest);
}

void tst_ToolBarPage::checkBoxEnablesTheToolbar()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickCheckBox(0);
    QCOMPARE(f.list->item(0)->checkState(), Qt::Unchecked);
    QVERIFY(!f.standard->isEnabled());
    QCOMPARE(f.standard->windowTitle(), QStringLiteral("Стандартная"));
    f.clickCheckBox(0);
    QVERIFY(f.standard->isEnabled());

    f.clickCheckBox(1);
    QCOMPARE(f.list->item(1)->checkState(), Qt::Checked);
    QVERIFY(f.editing->isEnabled());

    // A new toolbar's row starts unchecked; its box then drives it as any other.
    f.click(f.addToolbarButton);
    QToolBar* added = f.page->toolBars().last();
    f.clickCheckBox(2);
    QCOMPARE(f.list->item(2)->checkState(), Qt::Checked);
    QVERIFY(added->isEnabled());
    f.clickCheckBox(2);
    QVERIFY(!added->isEnabled());
    QCOMPARE(added->windowTitle(), QStringLiteral("Custom ToolBar"));
}

void tst_ToolBarPage::contextMenuOffersFiveStyles()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    QToolButton* saveButton = toolBarButton(f.standard, f.save);
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonIconOnly);

    QString checked;
    const QStringList entries = f.chooseStyle(f.top(1), QString::fromUtf8("Текст под иконкой"), &checked);
    QCOMPARE(entries, (QStringList{QString::fromUtf8("Только иконка=0"), QString::fromUtf8("Только текст=1"),
                                   QString::fromUtf8("Текст возле иконки=2"), QString::fromUtf8("Текст под иконкой=3"),
                                   QString::fromUtf8("По умолчанию=4")}));
    QCOMPARE(checked, QString::fromUtf8("Только иконка"));
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(saveButton->iconSize(), QSize(32, 32));
    // The tree is rebuilt with the styled command still selected.
    QCOMPARE(f.contents(), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
    QCOMPARE(f.tree->currentItem(), f.top(1));

    f.chooseStyle(f.top(1), QString::fromUtf8("Только текст"), &checked);
    QCOMPARE(checked, QString::fromUtf8("Текст под иконкой"));
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonTextOnly);
    QCOMPARE(saveButton->iconSize(), QSize(16, 16));

    f.chooseStyle(f.top(1), QString::fromUtf8("Текст возле иконки"), &checked);
    QCOMPARE(checked, QString::fromUtf8("Только текст"));
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);

    f.chooseStyle(f.top(1), QString::fromUtf8("По умолчанию"), &checked);
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonFollowStyle);
    f.chooseStyle(f.top(1), QString(), &checked);
    QCOMPARE(checked, QString::fromUtf8("По умолчанию"));

    // Closing the menu without a choice leaves the style; other buttons keep theirs.
    QCOMPARE(saveButton->toolButtonStyle(), Qt::ToolButtonFollowStyle);
    QCOMPARE(toolBarButton(f.standard, f.open)->toolButtonStyle(), Qt::ToolButtonIconOnly);
}

void tst_ToolBarPage::contextMenuOnAGroupStylesItsButton()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    const QStringList entries = f.chooseStyle(f.top(3), QString::fromUtf8("Текст возле иконки"));
    QCOMPARE(entries.size(), 5);
    QCOMPARE(toolBarButton(f.standard, f.hostGroup)->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(f.tree->currentItem(), f.top(3));
    QVERIFY(f.top(3)->isExpanded());
}

void tst_ToolBarPage::noContextMenuForSeparatorsOrGroupChildren()
{
    Fixture f;
    QVERIFY(f.allFound());
    QVERIFY(f.show());
    f.clickRow(0);
    const auto close = [](QMenu* popup) { popup->close(); };
    QVERIFY(!f.rightClick(f.top(2), close));
    QVERIFY(!f.rightClick(f.top(3)->child(0), close));
    // The right click selected the item it was on.
    QCOMPARE(f.tree->currentItem(), f.top(3)->child(0));
    QVERIFY(f.rightClick(f.top(0), close));
}

void tst_ToolBarPage::toolBarPanelWorksWhenMovedToTheLeftSide()
{
    Fixture f;
    QVERIFY(f.allFound());
    auto* panel = f.page->findChild<QWidget*>(QStringLiteral("toolBarPanel"));
    QVERIFY(panel);
    auto* splitter = qobject_cast<QSplitter*>(f.commands->parentWidget()->parentWidget());
    QVERIFY(splitter);
    splitter->insertWidget(0, panel);
    QVERIFY(f.show());
    QVERIFY(!f.page->isAncestorOf(f.list));

    f.clickRow(0);
    QCOMPARE(describe(f.tree), QString::fromUtf8("Открыть|Сохранить|-|{Печать,Отменить}"));
    f.chooseCommand(f.redo);
    f.click(f.addActionButton);
    QCOMPARE(f.contents(), QString::fromUtf8("Вернуть|Открыть|Сохранить|-|{Печать,Отменить}"));
    f.click(f.addToolbarButton);
    QCOMPARE(f.objectNames().last(), QStringLiteral("1"));
    QCOMPARE(f.tree->topLevelItemCount(), 0);
    f.clickCheckBox(0);
    QVERIFY(!f.standard->isEnabled());
}

QTEST_MAIN(tst_ToolBarPage)
#include "tst_toolbarpage.moc"
