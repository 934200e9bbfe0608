#include <tessaro/Tessaro.h>

#include "common/testicons.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>
#include <QWidgetAction>
#include <QtTest>

namespace {

using testcommon::colorIcon;
using testcommon::iconColor;

// Counts the layout requests a widget receives, and whether they came while
// the test was still inside the call (sent) or later (posted).
class LayoutRequestCounter : public QObject
{
public:
    explicit LayoutRequestCounter(QWidget* target) : m_target(target) { target->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_target && event->type() == QEvent::LayoutRequest)
            ++count;
        return false;
    }

private:
    QWidget* m_target;
};

QAction* addSeparator(QWidget* container)
{
    auto* separator = new QAction(container);
    separator->setSeparator(true);
    container->addAction(separator);
    return separator;
}

// A stand-alone group button: a tool button whose default action carries a menu.
struct GroupButton
{
    QWidget window;
    QToolButton* button = nullptr;
    QAction* face = nullptr;
    QMenu* menu = nullptr;
    QList<QAction*> items;

    explicit GroupButton(int count, bool withMenu = true)
    {
        button = new QToolButton(&window);
        face = new QAction(QStringLiteral("Группа"), &window);
        if (withMenu) {
            menu = new QMenu(&window);
            for (int i = 0; i < count; ++i) {
                QAction* item = menu->addAction(colorIcon(QColor::fromHsv(i * 60, 255, 255)),
                                                QStringLiteral("Пункт %1").arg(i + 1));
                item->setIconText(QStringLiteral("П%1").arg(i + 1));
                items << item;
            }
            face->setMenu(menu);
        }
        button->setDefaultAction(face);
        button->setGeometry(0, 0, 120, 40);
        window.resize(200, 60);
        window.show();
    }

    void clickFace() { QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 20)); }
};

} // namespace

class tst_RibbonControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlerOnEmptyMenu();
    void menuCreatedWhenMissing();
    void dynamicLiteKeepsFirstAction();
    void dynamicFollowsTriggeredAction();
    void faceTriggersShownAction();
    void disabledCurrentFallsBack();
    void settingTypeOnExistingHandlerOnlyStoresIt();
    void typeZeroRemovesHandler();
    void otherNonZeroTypeBehavesLikeLite();
    void applyCopiesState();
    void applyDropsEarlierConnections();
    void refreshOnAddAndRemove();
    void changeOfUnrelatedActionReapplies();
    void eventFilterDoesNotConsume();
    void menuHoldingItsOwnButtonAction();
    void groupButtonsInEachOthersMenus();
    void toolButtonStyleSetsIconSize();
    void styleOfSeparatorAndWidgetAction();
    void controlStyleRule();
    void groupStyleChangeIsPosted();
    void quickBarStyleAndType();
    void buttonFinder();
    void groupButtonTypeInGroup();
    void setPopupModeOnContainer();
    void moveActionToEnd();
    void moveActionToFront();
    void moveActionKeepsNonDefaultLooks();
    void moveActionDropsGroupButtonType();
    void updateGroupKeepsOnlyStyles();
    void redrawPageNullSafe();
    void widgetActionDeletedInGroup();
};

void tst_RibbonControls::handlerOnEmptyMenu()
{
    GroupButton g(0);
    QSignalSpy faceSpy(g.face, &QAction::triggered);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(g.button), ui::Dynamic);
    QCOMPARE(g.button->popupMode(), QToolButton::MenuButtonPopup);
    QVERIFY(!g.face->isEnabled());
    QVERIFY(g.face->icon().isNull());
    QVERIFY(g.face->text().isEmpty());
    QVERIFY(g.face->iconText().isEmpty());
    QVERIFY(!g.button->isEnabled());
    g.clickFace();
    QCOMPARE(faceSpy.count(), 0);
    auto* handler = g.button->findChild<ui::DynamicGroupActionHandler*>();
    QVERIFY(handler);
    QVERIFY(!handler->currentAction());
    QCOMPARE(handler->parent(), g.button);
}

void tst_RibbonControls::menuCreatedWhenMissing()
{
    GroupButton g(0, false);
    QVERIFY(!g.face->menu());
    ui::setGroupButtonType(g.button, ui::DynamicLite);
    QVERIFY(g.face->menu());
    QCOMPARE(g.face->menu()->parent(), g.button);
    // The new menu is followed like any other.
    QAction* added = g.face->menu()->addAction(QStringLiteral("Новый"));
    QCOMPARE(g.face->text(), QStringLiteral("Новый"));
    QVERIFY(g.face->isEnabled());
    QCOMPARE(g.button->findChild<ui::DynamicGroupActionHandler*>()->currentAction(), added);
}

void tst_RibbonControls::dynamicLiteKeepsFirstAction()
{
    GroupButton g(3);
    ui::setGroupButtonType(g.button, ui::DynamicLite);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    g.items[2]->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    QCOMPARE(g.face->iconText(), QStringLiteral("П1"));
    QCOMPARE(iconColor(g.face->icon()), iconColor(g.items[0]->icon()));
}

void tst_RibbonControls::dynamicFollowsTriggeredAction()
{
    GroupButton g(3);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    g.items[2]->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 3"));
    QCOMPARE(g.face->iconText(), QStringLiteral("П3"));
    QCOMPARE(iconColor(g.face->icon()), iconColor(g.items[2]->icon()));
    QCOMPARE(g.button->findChild<ui::DynamicGroupActionHandler*>()->currentAction(), g.items[2]);
}

void tst_RibbonControls::faceTriggersShownAction()
{
    GroupButton g(3);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    g.items[1]->trigger();
    QSignalSpy first(g.items[0], &QAction::triggered);
    QSignalSpy second(g.items[1], &QAction::triggered);
    g.clickFace();
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 1);
}

void tst_RibbonControls::disabledCurrentFallsBack()
{
    GroupButton g(3);
    g.menu->insertSeparator(g.items[1]);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    auto* handler = g.button->findChild<ui::DynamicGroupActionHandler*>();
    QCOMPARE(handler->currentAction(), g.items[0]);

    g.items[0]->setEnabled(false);
    QCOMPARE(handler->currentAction(), g.items[0]);
    QCOMPARE(handler->fallbackAction(), g.items[1]);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
    QVERIFY(g.face->isEnabled());

    // The current action comes back: the face returns to it.
    g.items[0]->setEnabled(true);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    g.items[0]->setText(QStringLiteral("Снова первый"));
    QCOMPARE(g.face->text(), QStringLiteral("Снова первый"));
    QSignalSpy firstSpy(g.items[0], &QAction::triggered);
    QSignalSpy secondSpy(g.items[1], &QAction::triggered);
    g.clickFace();
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 0);

    // Pressing the face while the current action is disabled triggers the fallback.
    g.items[0]->setEnabled(false);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
    g.clickFace();
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 1);
}

void tst_RibbonControls::settingTypeOnExistingHandlerOnlyStoresIt()
{
    GroupButton g(3);
    ui::setGroupButtonType(g.button, ui::DynamicLite);
    auto* handler = g.button->findChild<ui::DynamicGroupActionHandler*>();
    g.face->setText(QStringLiteral("вручную"));
    ui::setGroupButtonType(g.button, ui::Dynamic);
    QCOMPARE(g.button->findChild<ui::DynamicGroupActionHandler*>(), handler);
    QCOMPARE(g.button->findChildren<ui::DynamicGroupActionHandler*>().size(), 1);
    QCOMPARE(handler->type(), ui::Dynamic);
    QCOMPARE(g.face->text(), QStringLiteral("вручную"));
    // The next menu event uses the new type.
    g.items[2]->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 3"));
}

void tst_RibbonControls::typeZeroRemovesHandler()
{
    GroupButton g(2);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    QPointer<ui::DynamicGroupActionHandler> handler = g.button->findChild<ui::DynamicGroupActionHandler*>();
    QVERIFY(handler);
    ui::setGroupButtonType(g.button, ui::Simple);
    QVERIFY(handler.isNull());
    QCOMPARE(g.button->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(ui::getGroupButtonType(g.button), ui::Simple);
    // The menu is no longer followed.
    g.face->setText(QStringLiteral("своё"));
    g.items[1]->trigger();
    g.menu->addAction(QStringLiteral("ещё"));
    QCOMPARE(g.face->text(), QStringLiteral("своё"));
    // Type 0 on a button without handler is harmless.
    ui::setGroupButtonType(g.button, ui::Simple);
    QCOMPARE(g.button->popupMode(), QToolButton::InstantPopup);
}

void tst_RibbonControls::otherNonZeroTypeBehavesLikeLite()
{
    GroupButton g(3);
    ui::setGroupButtonType(g.button, ui::GroupButtonType(7));
    QCOMPARE(ui::getGroupButtonType(g.button), ui::GroupButtonType(7));
    QCOMPARE(g.button->popupMode(), QToolButton::MenuButtonPopup);
    g.items[2]->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
}

void tst_RibbonControls::applyCopiesState()
{
    GroupButton g(2);
    g.items[0]->setCheckable(true);
    g.items[0]->setChecked(true);
    g.items[0]->setAutoRepeat(false);
    g.face->setAutoRepeat(true);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    QVERIFY(g.face->isCheckable());
    QVERIFY(g.face->isChecked());
    QVERIFY(!g.face->autoRepeat());
    QVERIFY(g.face->isEnabled());

    g.items[1]->setAutoRepeat(true);
    g.items[1]->trigger();
    QVERIFY(!g.face->isCheckable());
    QVERIFY(!g.face->isChecked());
    QVERIFY(g.face->autoRepeat());
}

void tst_RibbonControls::applyDropsEarlierConnections()
{
    GroupButton g(2);
    int earlier = 0;
    connect(g.face, &QAction::triggered, this, [&earlier] { ++earlier; });
    ui::setGroupButtonType(g.button, ui::Dynamic);
    QSignalSpy first(g.items[0], &QAction::triggered);
    g.clickFace();
    QCOMPARE(earlier, 0);
    QCOMPARE(first.count(), 1);
    // Several applies leave a single forwarding connection.
    g.items[0]->setText(QStringLiteral("a"));
    g.items[0]->setText(QStringLiteral("b"));
    g.face->trigger();
    QCOMPARE(first.count(), 2);
}

void tst_RibbonControls::refreshOnAddAndRemove()
{
    GroupButton g(2);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    g.items[1]->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
    // Any addition makes the first action current again, whatever the type.
    g.menu->addAction(QStringLiteral("Последний"));
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    auto* front = new QAction(QStringLiteral("Передний"), g.menu);
    g.menu->insertAction(g.items[0], front);
    QCOMPARE(g.face->text(), QStringLiteral("Передний"));
    g.menu->removeAction(front);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    delete g.items[0];
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
    g.menu->clear();
    QVERIFY(g.face->text().isEmpty());
    QVERIFY(!g.face->isEnabled());
}

void tst_RibbonControls::changeOfUnrelatedActionReapplies()
{
    GroupButton g(3);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    // No fallback: a change of any menu action re-applies the current one.
    g.face->setText(QStringLiteral("вручную"));
    g.items[2]->setText(QStringLiteral("Третий"));
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));

    // With a fallback set, unrelated changes leave the face alone.
    g.items[0]->setEnabled(false);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
    g.face->setText(QStringLiteral("вручную"));
    g.items[2]->setText(QStringLiteral("Снова третий"));
    QCOMPARE(g.face->text(), QStringLiteral("вручную"));
    // A change of the fallback while the current action is disabled re-applies.
    g.items[1]->setText(QStringLiteral("Второй"));
    QCOMPARE(g.face->text(), QStringLiteral("Второй"));
    // The fallback is disabled too: the next enabled action takes over.
    g.items[1]->setEnabled(false);
    QCOMPARE(g.button->findChild<ui::DynamicGroupActionHandler*>()->fallbackAction(), g.items[2]);
    QCOMPARE(g.face->text(), QStringLiteral("Снова третий"));
    // Nothing enabled: the disabled current action is shown.
    g.items[2]->setEnabled(false);
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 1"));
    QVERIFY(!g.face->isEnabled());
}

void tst_RibbonControls::eventFilterDoesNotConsume()
{
    GroupButton g(1);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    auto* handler = g.button->findChild<ui::DynamicGroupActionHandler*>();
    QActionEvent added(QEvent::ActionAdded, g.items[0]);
    QActionEvent changed(QEvent::ActionChanged, g.items[0]);
    QEvent other(QEvent::Show);
    QVERIFY(!handler->eventFilter(g.menu, &added));
    QVERIFY(!handler->eventFilter(g.menu, &changed));
    QVERIFY(!handler->eventFilter(g.menu, &other));
    // The menu itself still sees its actions.
    g.menu->addAction(QStringLiteral("Второй"));
    QCOMPARE(g.menu->actions().size(), 2);
    QVERIFY(g.menu->sizeHint().height() > 0);
}

void tst_RibbonControls::menuHoldingItsOwnButtonAction()
{
    GroupButton g(2);
    g.menu->insertAction(g.items[0], g.face);
    ui::setGroupButtonType(g.button, ui::Dynamic);
    g.face->setIcon(colorIcon(Qt::green));
    g.items[1]->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
    g.face->trigger();
    QCOMPARE(g.face->text(), QStringLiteral("Пункт 2"));
}

void tst_RibbonControls::groupButtonsInEachOthersMenus()
{
    GroupButton first(1);
    GroupButton second(1);
    first.menu->insertAction(first.items[0], second.face);
    second.menu->insertAction(second.items[0], first.face);
    ui::setGroupButtonType(first.button, ui::Dynamic);
    ui::setGroupButtonType(second.button, ui::DynamicLite);
    first.items[0]->setIcon(colorIcon(Qt::blue));
    second.items[0]->setText(QStringLiteral("другой"));
    QSignalSpy spy(first.items[0], &QAction::triggered);
    first.items[0]->trigger();
    QCOMPARE(first.face->text(), QStringLiteral("Пункт 1"));
    first.clickFace();
    QCOMPARE(spy.count(), 2);
}

void tst_RibbonControls::toolButtonStyleSetsIconSize()
{
    QToolButton button;
    ui::setActionButtonStyle(&button, Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button.iconSize(), QSize(32, 32));
    QCOMPARE(ui::actionButtonStyle(&button), Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(&button, Qt::ToolButtonTextOnly);
    QCOMPARE(button.toolButtonStyle(), Qt::ToolButtonTextOnly);
    QCOMPARE(button.iconSize(), QSize(16, 16));
    ui::setActionButtonStyle(&button, Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button.iconSize(), QSize(16, 16));
    ui::setActionButtonStyle(&button, Qt::ToolButtonIconOnly);
    QCOMPARE(button.iconSize(), QSize(16, 16));
}

namespace {

struct RibbonFixture
{
    ui::RibbonBar ribbon{QStringLiteral("tst_ribboncontrols")};
    Qtitan::RibbonPage* page = nullptr;
    Qtitan::RibbonGroup* group = nullptr;
    QList<QAction*> actions;

    explicit RibbonFixture(int count = 3)
    {
        page = ribbon.addPage(QStringLiteral("Страница"));
        group = page->addGroup(QStringLiteral("Группа"));
        for (int i = 0; i < count; ++i) {
            auto* action = new QAction(colorIcon(Qt::red), QStringLiteral("Команда %1").arg(i + 1), &ribbon);
            group->addAction(action);
            actions << action;
        }
        ribbon.resize(900, 160);
        ribbon.show();
    }

    QStringList texts() const
    {
        QStringList result;
        const QList<QAction*> list = group->actions();
        for (QAction* action : list)
            result << (action->isSeparator() ? QStringLiteral("|") : action->text());
        return result;
    }
};

} // namespace

void tst_RibbonControls::styleOfSeparatorAndWidgetAction()
{
    RibbonFixture f(1);
    QAction* separator = addSeparator(f.group);
    auto* widgetAction = new QWidgetAction(&f.ribbon);
    widgetAction->setDefaultWidget(new QComboBox);
    f.group->addAction(widgetAction);
    QCOMPARE(int(ui::actionButtonStyle(f.group, separator)), 4);
    QCOMPARE(int(ui::actionButtonStyle(f.group, widgetAction)), 0);
    // Neither is ever restyled.
    ui::setActionButtonStyle(f.group, separator, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(f.group, widgetAction, Qt::ToolButtonTextUnderIcon);
    QCOMPARE(int(ui::actionButtonStyle(f.group, widgetAction)), 0);
    QCOMPARE(ui::getGroupButtonType(f.group, separator), ui::Simple);
    ui::setGroupButtonType(f.group, separator, ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(f.group, separator), ui::Simple);

    QAction* quickSeparator = new QAction(&f.ribbon);
    quickSeparator->setSeparator(true);
    f.ribbon.addQuickAction(quickSeparator);
    QCOMPARE(int(ui::actionButtonStyle(f.ribbon.quickAccessBar(), quickSeparator)), 4);
    QAction* notOnBar = new QAction(QStringLiteral("нет"), &f.ribbon);
    QCOMPARE(int(ui::actionButtonStyle(f.ribbon.quickAccessBar(), notOnBar)), 0);
}

void tst_RibbonControls::controlStyleRule()
{
    using Definition = Qtitan::RibbonControlSizeDefinition;
    RibbonFixture f(1);
    QAction* action = f.actions[0];
    auto* control = qobject_cast<Qtitan::RibbonButtonControl*>(f.group->controlByAction(action));
    QVERIFY(control);
    const QList<Definition::GroupSize> sizes{Definition::GroupLarge, Definition::GroupMedium,
                                             Definition::GroupSmall, Definition::GroupPopup};
    for (Definition::GroupSize size : sizes) {
        control->sizeDefinition(size)->setImageSize(Definition::ImageNone);
        control->sizeDefinition(size)->setLabelVisible(false);
    }
    // Icon only and text only leave the size definitions alone.
    ui::setActionButtonStyle(f.group, action, Qt::ToolButtonIconOnly);
    QCOMPARE(ui::actionButtonStyle(f.group, action), Qt::ToolButtonIconOnly);
    ui::setActionButtonStyle(f.group, action, Qt::ToolButtonTextOnly);
    QCOMPARE(ui::actionButtonStyle(f.group, action), Qt::ToolButtonTextOnly);
    QCOMPARE(control->toolButtonStyle(), Qt::ToolButtonTextOnly);
    for (Definition::GroupSize size : sizes) {
        QCOMPARE(control->sizeDefinition(size)->imageSize(), Definition::ImageNone);
        QVERIFY(!control->sizeDefinition(size)->isLabelVisible());
    }
    ui::setActionButtonStyle(f.group, action, Qt::ToolButtonTextBesideIcon);
    QCOMPARE(ui::actionButtonStyle(f.group, action), Qt::ToolButtonTextBesideIcon);
    for (Definition::GroupSize size : sizes) {
        QCOMPARE(control->sizeDefinition(size)->imageSize(), Definition::ImageSmall);
        QVERIFY(control->sizeDefinition(size)->isLabelVisible());
    }
    for (Definition::GroupSize size : sizes)
        control->sizeDefinition(size)->setLabelVisible(false);
    ui::setActionButtonStyle(f.group, action, Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(f.group, action), Qt::ToolButtonTextUnderIcon);
    for (Definition::GroupSize size : sizes) {
        QCOMPARE(control->sizeDefinition(size)->imageSize(), Definition::ImageLarge);
        QVERIFY(control->sizeDefinition(size)->isLabelVisible());
    }
}

void tst_RibbonControls::groupStyleChangeIsPosted()
{
    RibbonFixture f(2);
    QWidget* target = f.group->parentWidget()->parentWidget();
    QVERIFY(target);
    QCoreApplication::sendPostedEvents();
    LayoutRequestCounter counter(target);
    ui::setActionButtonStyle(f.group, f.actions[0], Qt::ToolButtonTextUnderIcon);
    QCOMPARE(counter.count, 0);
    QCoreApplication::sendPostedEvents(target, QEvent::LayoutRequest);
    QVERIFY(counter.count >= 1);

    // updateGroup sends its request at once.
    QCoreApplication::sendPostedEvents();
    counter.count = 0;
    ui::updateGroup(f.group);
    QVERIFY(counter.count >= 1);
}

void tst_RibbonControls::quickBarStyleAndType()
{
    RibbonFixture f(0);
    Qtitan::RibbonQuickAccessBar* bar = f.ribbon.quickAccessBar();
    auto* action = new QAction(colorIcon(Qt::blue), QStringLiteral("Быстрая"), &f.ribbon);
    auto* menu = new QMenu(&f.ribbon);
    menu->addAction(QStringLiteral("Первая"));
    menu->addAction(QStringLiteral("Вторая"));
    action->setMenu(menu);
    f.ribbon.addQuickAction(action);
    auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
    QVERIFY(button);
    QCOMPARE(ui::findActionButton(bar, action), button);

    QCoreApplication::sendPostedEvents();
    LayoutRequestCounter counter(bar);
    ui::setActionButtonStyle(bar, action, Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->iconSize(), QSize(32, 32));
    QCOMPARE(ui::actionButtonStyle(bar, action), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(counter.count, 0);
    QCoreApplication::sendPostedEvents(bar, QEvent::LayoutRequest);
    QVERIFY(counter.count >= 1);
    ui::setActionButtonStyle(bar, action, Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button->iconSize(), QSize(16, 16));

    ui::setGroupButtonType(bar, action, ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(bar, action), ui::Dynamic);
    QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(action->text(), QStringLiteral("Первая"));
    ui::setGroupButtonType(bar, action, ui::Simple);
    QCOMPARE(ui::getGroupButtonType(bar, action), ui::Simple);
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(ui::getGroupButtonType(bar, new QAction(&f.ribbon)), ui::Simple);
}

void tst_RibbonControls::buttonFinder()
{
    RibbonFixture f(2);
    auto* control = qobject_cast<Qtitan::RibbonButtonControl*>(f.group->controlByAction(f.actions[1]));
    QVERIFY(control);
    QCOMPARE(ui::findActionButton(f.group, f.actions[1]), control->widget());
    QCOMPARE(ui::findActionButton(&f.ribbon, f.actions[1]), control->widget());
    QVERIFY(!ui::findActionButton(f.group, new QAction(&f.ribbon)));
    QVERIFY(!ui::findActionButton(nullptr, f.actions[0]));
    QVERIFY(!ui::findActionButton(f.group, nullptr));

    // A plain container: the first tool button child showing the action.
    QWidget container;
    auto* inner = new QWidget(&container);
    auto* first = new QToolButton(inner);
    auto* second = new QToolButton(&container);
    QAction action(QStringLiteral("x"), nullptr);
    second->setDefaultAction(&action);
    QCOMPARE(ui::findActionButton(&container, &action), second);
    first->setDefaultAction(&action);
    QCOMPARE(ui::findActionButton(&container, &action),
             container.findChildren<QToolButton*>().first());
}

void tst_RibbonControls::groupButtonTypeInGroup()
{
    RibbonFixture f(2);
    QAction* action = f.actions[0];
    auto* menu = new QMenu(&f.ribbon);
    menu->addAction(QStringLiteral("Первая"));
    QAction* second = menu->addAction(QStringLiteral("Вторая"));
    action->setMenu(menu);
    QCOMPARE(ui::getGroupButtonType(f.group, action), ui::Simple);
    ui::setGroupButtonType(f.group, action, ui::Dynamic);
    QToolButton* button = ui::findActionButton(f.group, action);
    QVERIFY(button);
    QCOMPARE(ui::getGroupButtonType(f.group, action), ui::Dynamic);
    QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(action->text(), QStringLiteral("Первая"));
    second->trigger();
    QCOMPARE(action->text(), QStringLiteral("Вторая"));
    ui::setGroupButtonType(f.group, action, ui::DynamicLite);
    QCOMPARE(ui::getGroupButtonType(f.group, action), ui::DynamicLite);
    ui::setGroupButtonType(f.group, action, ui::Simple);
    QCOMPARE(ui::getGroupButtonType(f.group, action), ui::Simple);
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(ui::getGroupButtonType(f.group, new QAction(&f.ribbon)), ui::Simple);
}

void tst_RibbonControls::setPopupModeOnContainer()
{
    RibbonFixture f(1);
    ui::setPopupMode(f.group, f.actions[0], QToolButton::DelayedPopup);
    QCOMPARE(ui::findActionButton(f.group, f.actions[0])->popupMode(), QToolButton::DelayedPopup);
    ui::setPopupMode(f.group, f.actions[0], QToolButton::InstantPopup);
    QCOMPARE(ui::findActionButton(f.group, f.actions[0])->popupMode(), QToolButton::InstantPopup);
}

void tst_RibbonControls::moveActionToEnd()
{
    RibbonFixture f(3);
    ui::setActionButtonStyle(f.group, f.actions[0], Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(f.group, f.actions[1], Qt::ToolButtonTextBesideIcon);
    ui::setActionButtonStyle(f.group, f.actions[2], Qt::ToolButtonIconOnly);
    ui::moveAction(f.group, 0, 99);
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[1], f.actions[2], f.actions[0]}));
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[0]), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[1]), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[2]), Qt::ToolButtonIconOnly);
    QCOMPARE(f.group->controlCount(), 3);
    for (QAction* action : qAsConst(f.actions))
        QVERIFY(ui::findActionButton(f.group, action));
    ui::moveAction(f.group, 1, -1);
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[1], f.actions[0], f.actions[2]}));
}

void tst_RibbonControls::moveActionToFront()
{
    RibbonFixture f(3);
    QAction* separator = addSeparator(f.group);
    ui::setActionButtonStyle(f.group, f.actions[2], Qt::ToolButtonTextUnderIcon);
    ui::moveAction(f.group, 2, 0);
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[2], f.actions[0], f.actions[1], separator}));
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[2]), Qt::ToolButtonTextUnderIcon);
    ui::moveAction(f.group, 3, 1);
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[2], separator, f.actions[0], f.actions[1]}));
    QCOMPARE(int(ui::actionButtonStyle(f.group, separator)), 4);
    QCOMPARE(f.group->controlCount(), 4);
    // Out of range: nothing happens.
    ui::moveAction(f.group, 9, 0);
    QCOMPARE(f.group->actions().size(), 4);
}

// A fresh control shows text under a large icon; a moved button must keep the
// look it had, not fall back to that.
void tst_RibbonControls::moveActionKeepsNonDefaultLooks()
{
    using Definition = Qtitan::RibbonControlSizeDefinition;
    const QList<Definition::GroupSize> sizes{Definition::GroupLarge, Definition::GroupMedium,
                                             Definition::GroupSmall, Definition::GroupPopup};
    RibbonFixture f(4);
    Qtitan::RibbonGroup fresh;
    QAction freshAction(QStringLiteral("x"), nullptr);
    fresh.addAction(&freshAction);
    auto* freshControl = qobject_cast<Qtitan::RibbonButtonControl*>(fresh.controlByAction(&freshAction));
    QVERIFY(freshControl);
    QCOMPARE(freshControl->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);

    ui::setActionButtonStyle(f.group, f.actions[0], Qt::ToolButtonTextBesideIcon);
    ui::setActionButtonStyle(f.group, f.actions[1], Qt::ToolButtonIconOnly);
    ui::setActionButtonStyle(f.group, f.actions[2], Qt::ToolButtonTextOnly);
    ui::setActionButtonStyle(f.group, f.actions[3], Qt::ToolButtonTextBesideIcon);

    struct Move
    {
        int from;
        int to;
        QList<int> order;
    };
    const QList<Move> moves{
        {0, 99, {1, 2, 3, 0}}, // text beside the icon, to the end
        {0, 2, {2, 3, 1, 0}},  // icon only, into the middle
        {3, 0, {0, 2, 3, 1}},  // back to the front
        {1, 3, {0, 3, 1, 2}},  // text only, to the last place
    };
    for (const Move& move : moves) {
        ui::moveAction(f.group, move.from, move.to);
        QList<QAction*> order;
        for (int i : move.order)
            order << f.actions[i];
        QCOMPARE(f.group->actions(), order);
        QCOMPARE(ui::actionButtonStyle(f.group, f.actions[0]), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(ui::actionButtonStyle(f.group, f.actions[1]), Qt::ToolButtonIconOnly);
        QCOMPARE(ui::actionButtonStyle(f.group, f.actions[2]), Qt::ToolButtonTextOnly);
        QCOMPARE(ui::actionButtonStyle(f.group, f.actions[3]), Qt::ToolButtonTextBesideIcon);
        for (QAction* action : {f.actions[0], f.actions[3]}) {
            auto* control = qobject_cast<Qtitan::RibbonButtonControl*>(f.group->controlByAction(action));
            QVERIFY(control);
            QCOMPARE(ui::findActionButton(f.group, action)->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
            for (Definition::GroupSize size : sizes) {
                QCOMPARE(control->sizeDefinition(size)->imageSize(), Definition::ImageSmall);
                QVERIFY(control->sizeDefinition(size)->isLabelVisible());
            }
        }
    }
}

// The group button type is not carried by a move (callers set it again):
// the moved button and the others of its group come back as simple buttons
// that only open their menus.
void tst_RibbonControls::moveActionDropsGroupButtonType()
{
    RibbonFixture f(3);
    for (QAction* action : qAsConst(f.actions)) {
        auto* menu = new QMenu(&f.ribbon);
        menu->addAction(QStringLiteral("Первая"));
        menu->addAction(QStringLiteral("Вторая"));
        action->setMenu(menu);
    }
    ui::setGroupButtonType(f.group, f.actions[0], ui::Dynamic);
    ui::setGroupButtonType(f.group, f.actions[1], ui::DynamicLite);
    ui::setActionButtonStyle(f.group, f.actions[0], Qt::ToolButtonTextBesideIcon);

    ui::moveAction(f.group, 0, 99);
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[1], f.actions[2], f.actions[0]}));
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[0]), Qt::ToolButtonTextBesideIcon);
    for (QAction* action : qAsConst(f.actions)) {
        QToolButton* button = ui::findActionButton(f.group, action);
        QVERIFY(button);
        QCOMPARE(ui::getGroupButtonType(f.group, action), ui::Simple);
        QVERIFY(!button->findChild<ui::DynamicGroupActionHandler*>());
    }

    // Set again by the caller, the type works on the moved button.
    ui::setGroupButtonType(f.group, f.actions[0], ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(f.group, f.actions[0]), ui::Dynamic);
    QCOMPARE(ui::findActionButton(f.group, f.actions[0])->popupMode(), QToolButton::MenuButtonPopup);
}

void tst_RibbonControls::updateGroupKeepsOnlyStyles()
{
    RibbonFixture f(3);
    auto* widgetAction = new QWidgetAction(&f.ribbon);
    widgetAction->setDefaultWidget(new QComboBox);
    f.group->addAction(widgetAction);
    auto* menu = new QMenu(&f.ribbon);
    menu->addAction(QStringLiteral("Первая"));
    f.actions[0]->setMenu(menu);
    ui::setActionButtonStyle(f.group, f.actions[0], Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(f.group, f.actions[1], Qt::ToolButtonTextBesideIcon);
    ui::setActionButtonStyle(f.group, f.actions[2], Qt::ToolButtonIconOnly);
    ui::setGroupButtonType(f.group, f.actions[0], ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(f.group, f.actions[0]), ui::Dynamic);

    ui::updateGroup(f.group);
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[0], f.actions[1], f.actions[2], widgetAction}));
    QCOMPARE(f.group->controlCount(), 4);
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[0]), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[1]), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(ui::actionButtonStyle(f.group, f.actions[2]), Qt::ToolButtonIconOnly);
    QVERIFY(qobject_cast<Qtitan::RibbonWidgetControl*>(f.group->controlByAction(widgetAction)));
    // Group button types are the caller's to set again.
    QCOMPARE(ui::getGroupButtonType(f.group, f.actions[0]), ui::Simple);
    ui::updateGroup(nullptr);
}

void tst_RibbonControls::redrawPageNullSafe()
{
    RibbonFixture f(1);
    ui::redrawPage(static_cast<Qtitan::RibbonGroup*>(nullptr));
    ui::redrawPage(static_cast<Qtitan::RibbonPage*>(nullptr));
    ui::redrawPage(f.group);
    ui::redrawPage(f.page);
    Qtitan::RibbonGroup loose;
    ui::redrawPage(&loose);
    QCOMPARE(f.group->actions().size(), 1);
}

void tst_RibbonControls::widgetActionDeletedInGroup()
{
    // Found by fuzzing: a host's widget action dying while a group shows it
    // (the control then saw it half destroyed).
    RibbonFixture f(1);
    auto* widgetAction = new QWidgetAction(nullptr);
    widgetAction->setDefaultWidget(new QComboBox);
    f.group->addAction(widgetAction);
    QVERIFY(qobject_cast<Qtitan::RibbonWidgetControl*>(f.group->controlByAction(widgetAction)));
    delete widgetAction;
    QCOMPARE(f.group->actions(), (QList<QAction*>{f.actions[0]}));
    QCOMPARE(f.group->controlCount(), 1);
    ui::updateGroup(f.group);
    QCOMPARE(f.group->controlCount(), 1);
}

QTEST_MAIN(tst_RibbonControls)
#include "tst_ribboncontrols.moc"
