// Data model of the open ribbon layer: pages hold groups, groups follow their
// actions with controls, controls carry their size definitions.
#include <QtitanRibbon.h>

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>
#include <QWidgetAction>
#include <QtTest>

using namespace Qtitan;
using Size = RibbonControlSizeDefinition;

class tst_RibbonGroups : public QObject
{
    Q_OBJECT

private:
    static QStringList titles(const RibbonPage& page)
    {
        QStringList out;
        for (RibbonGroup* g : page.groups())
            out << g->title();
        return out;
    }
    static void flushDeletes()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private slots:
    void pageAddInsertIndexes()
    {
        RibbonPage page;
        RibbonGroup* a = page.addGroup(QStringLiteral("A"));
        RibbonGroup* c = page.addGroup(QIcon(), QStringLiteral("C"));
        auto* b = new RibbonGroup(nullptr);
        b->setTitle(QStringLiteral("B"));
        page.insertGroup(1, b);
        RibbonGroup* first = page.insertGroup(0, QStringLiteral("First"));
        RibbonGroup* last = page.insertGroup(99, QStringLiteral("Last"));
        RibbonGroup* neg = page.insertGroup(-1, QIcon(), QStringLiteral("Neg"));
        auto* tail = new RibbonGroup(nullptr);
        tail->setTitle(QStringLiteral("Tail"));
        page.addGroup(tail);

        QCOMPARE(titles(page), (QStringList{"First", "A", "B", "C", "Last", "Neg", "Tail"}));
        QCOMPARE(page.groupCount(), 7);
        QCOMPARE(page.groupAt(0), first);
        QCOMPARE(page.groupAt(1), a);
        QCOMPARE(page.groupAt(2), b);
        QCOMPARE(page.groupAt(3), c);
        QCOMPARE(page.groupAt(4), last);
        QCOMPARE(page.groupAt(5), neg);
        QCOMPARE(page.groupAt(7), static_cast<RibbonGroup*>(nullptr));
        QCOMPARE(page.groupAt(-1), static_cast<RibbonGroup*>(nullptr));
        QCOMPARE(page.groupIndex(b), 2);
        QCOMPARE(page.groupIndex(tail), 6);
        QCOMPARE(page.groupIndex(nullptr), -1);
        for (RibbonGroup* g : page.groups())
            QCOMPARE(g->parentWidget(), &page);
    }

    void groupIconAndTitle()
    {
        RibbonPage page;
        QPixmap pm(16, 16);
        pm.fill(Qt::red);
        RibbonGroup* g = page.addGroup(QIcon(pm), QStringLiteral("Clipboard"));
        QVERIFY(!g->icon().isNull());
        QCOMPARE(g->title(), QStringLiteral("Clipboard"));
        QSignalSpy spy(g, &RibbonGroup::titleChanged);
        g->setTitle(QStringLiteral("Edit"));
        g->setTitle(QStringLiteral("Edit"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Edit"));
        QVERIFY(!g->isControlsCentering());
        g->setControlsCentering();
        QVERIFY(g->isControlsCentering());
        g->setControlsCentering(false);
        QVERIFY(!g->isControlsCentering());
    }

    void removeDeletesDetachKeeps()
    {
        RibbonPage page;
        QPointer<RibbonGroup> a = page.addGroup(QStringLiteral("A"));
        QPointer<RibbonGroup> b = page.addGroup(QStringLiteral("B"));
        QPointer<RibbonGroup> c = page.addGroup(QStringLiteral("C"));
        QPointer<RibbonGroup> d = page.addGroup(QStringLiteral("D"));

        page.removeGroup(b);
        QVERIFY(b.isNull());
        QCOMPARE(titles(page), (QStringList{"A", "C", "D"}));
        page.removeGroupByIndex(0);
        QVERIFY(a.isNull());
        page.removeGroupByIndex(5); // out of range: ignored
        QCOMPARE(titles(page), (QStringList{"C", "D"}));

        page.detachGroup(c);
        QVERIFY(!c.isNull());
        QCOMPARE(c->parentWidget(), static_cast<QWidget*>(nullptr));
        QCOMPARE(page.groupIndex(c), -1);
        page.detachGroupByIndex(0);
        QVERIFY(!d.isNull());
        QCOMPARE(page.groupCount(), 0);

        // A detached group can be inserted again (this is how groups move).
        page.insertGroup(0, d);
        page.insertGroup(0, c);
        QCOMPARE(titles(page), (QStringList{"C", "D"}));
        QCOMPARE(c->parentWidget(), &page);

        // Moving a group by detach/insert keeps its controls.
        c->addAction(new QAction(QStringLiteral("x"), c));
        page.detachGroup(c);
        page.insertGroup(1, c);
        QCOMPARE(titles(page), (QStringList{"D", "C"}));
        QCOMPARE(c->controlCount(), 1);

        page.clearGroups();
        QCOMPARE(page.groupCount(), 0);
        QVERIFY(c.isNull());
        QVERIFY(d.isNull());
    }

    void groupDeletedElsewhereLeavesPage()
    {
        RibbonPage page;
        RibbonGroup* a = page.addGroup(QStringLiteral("A"));
        page.addGroup(QStringLiteral("B"));
        delete a;
        QCOMPARE(titles(page), (QStringList{"B"}));
        RibbonPage other;
        RibbonGroup* b = page.groupAt(0);
        other.addGroup(b);
        QCOMPARE(page.groupCount(), 0);
        QCOMPARE(other.groupAt(0), b);
    }

    void pageTitle()
    {
        RibbonPage page(static_cast<RibbonBar*>(nullptr), QStringLiteral("Home"));
        QCOMPARE(page.title(), QStringLiteral("Home"));
        QSignalSpy spy(&page, &RibbonPage::titleChanged);
        page.setTitle(QStringLiteral("Insert"));
        page.setTitle(QStringLiteral("Insert"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(page.title(), QStringLiteral("Insert"));
    }

    void controlKindsByAction()
    {
        RibbonGroup group;
        auto* plain = new QAction(QStringLiteral("Paste"), &group);
        auto* separator = new QAction(&group);
        separator->setSeparator(true);
        auto* widgetAction = new QWidgetAction(&group);
        auto* combo = new QComboBox;
        combo->addItems({QStringLiteral("Arial"), QStringLiteral("Times New Roman")});
        widgetAction->setDefaultWidget(combo);
        group.addAction(plain);
        group.addAction(separator);
        group.addAction(widgetAction);

        QCOMPARE(group.controlCount(), 3);
        auto* button = qobject_cast<RibbonButtonControl*>(group.controlByAction(plain));
        QVERIFY(button);
        QVERIFY(qobject_cast<RibbonSeparatorControl*>(group.controlByAction(separator)));
        auto* widgetControl = qobject_cast<RibbonWidgetControl*>(group.controlByAction(widgetAction));
        QVERIFY(widgetControl);
        QCOMPARE(widgetControl->contentWidget(), combo);
        QVERIFY(group.isAncestorOf(combo));
        QCOMPARE(group.controlByAction(nullptr), static_cast<RibbonControl*>(nullptr));
        QAction stranger(QStringLiteral("elsewhere"));
        QCOMPARE(group.controlByAction(&stranger), static_cast<RibbonControl*>(nullptr));

        for (int i = 0; i < 3; ++i) {
            QCOMPARE(group.controlByIndex(i)->parentGroup(), &group);
            QCOMPARE(group.controlByIndex(i)->defaultAction(), group.actions().at(i));
        }
        QCOMPARE(group.controlByIndex(3), static_cast<RibbonControl*>(nullptr));
        QCOMPARE(group.controlByIndex(-1), static_cast<RibbonControl*>(nullptr));

        // The button is a QToolButton child whose default action is the action.
        QToolButton* tb = button->widget();
        QVERIFY(tb);
        QCOMPARE(tb->defaultAction(), plain);
        QVERIFY(group.findChildren<QToolButton*>().contains(tb));

        // Removing the widget action gives the combo box back to its action.
        group.removeAction(widgetAction);
        QVERIFY(!group.isAncestorOf(combo));
        auto* again = new RibbonGroup;
        again->addAction(widgetAction);
        QCOMPARE(qobject_cast<RibbonWidgetControl*>(again->controlByAction(widgetAction))->contentWidget(), combo);
        delete again;
    }

    void insertRemoveFollowActions()
    {
        RibbonGroup group;
        QList<QAction*> created;
        for (int i = 0; i < 4; ++i)
            created << new QAction(QStringLiteral("a%1").arg(i), &group);
        group.addAction(created[0]);
        group.addAction(created[2]);
        group.insertAction(created[2], created[1]); // between 0 and 2
        group.insertAction(created[0], created[3]); // at the front
        auto* sep = new QAction(&group);
        sep->setSeparator(true);
        group.insertAction(created[2], sep);

        auto checkOrder = [&]() {
            const QList<QAction*> actions = group.actions();
            QCOMPARE(group.controlCount(), actions.size());
            for (int i = 0; i < actions.size(); ++i)
                QCOMPARE(group.controlByIndex(i)->defaultAction(), actions.at(i));
        };
        checkOrder();
        QCOMPARE(group.actions(), (QList<QAction*>{created[3], created[0], created[1], sep, created[2]}));

        QPointer<RibbonControl> removed = group.controlByAction(created[1]);
        QToolButton* removedButton = qobject_cast<RibbonButtonControl*>(removed.data())->widget();
        group.removeAction(created[1]);
        checkOrder();
        QCOMPARE(group.controlByAction(created[1]), static_cast<RibbonControl*>(nullptr));
        // Gone from the group at once (a button finder no longer sees it) ...
        QVERIFY(!group.findChildren<QToolButton*>().contains(removedButton));
        // ... and destroyed once control returns to the event loop.
        flushDeletes();
        QVERIFY(removed.isNull());

        // Deleting an action removes its control.
        delete created[3];
        checkOrder();
        QCOMPARE(group.controlCount(), 3);

        // Re-inserting an action moves it.
        group.removeAction(created[2]);
        group.insertAction(created[0], created[2]);
        QCOMPARE(group.actions(), (QList<QAction*>{created[2], created[0], sep}));
        checkOrder();
    }

    void actionChangedUpdatesControl()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("Bold"), &group);
        group.addAction(action);
        auto* button = qobject_cast<RibbonButtonControl*>(group.controlByAction(action));
        const QSize before = button->sizeHintForSize(Size::GroupMedium);
        action->setText(QStringLiteral("Bold and a much longer label"));
        QVERIFY(button->sizeHintForSize(Size::GroupMedium).width() > before.width());
        QCOMPARE(button->widget()->text(), action->iconText());
        action->setCheckable(true);
        action->setChecked(true);
        QVERIFY(button->widget()->isChecked());
        action->setEnabled(false);
        QVERIFY(!button->widget()->isEnabled());

        // An action turned into a separator gets a separator control.
        action->setSeparator(true);
        QVERIFY(qobject_cast<RibbonSeparatorControl*>(group.controlByAction(action)));
        QCOMPARE(group.controlCount(), 1);
    }

    void addActionWithStyleMenuAndMode()
    {
        RibbonGroup group;
        auto* menu = new QMenu(&group);
        menu->addAction(QStringLiteral("One"));
        QAction* a = group.addAction(QIcon(), QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon, menu,
                                     QToolButton::InstantPopup);
        QVERIFY(a);
        QCOMPARE(a->text(), QStringLiteral("Paste"));
        QCOMPARE(a->menu(), menu);
        QCOMPARE(a->parent(), &group);
        auto* button = qobject_cast<RibbonButtonControl*>(group.controlByAction(a));
        QVERIFY(button);
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
        QCOMPARE(button->widget()->popupMode(), QToolButton::InstantPopup);

        auto* own = new QAction(QStringLiteral("Cut"), &group);
        QCOMPARE(group.addAction(own, Qt::ToolButtonTextBesideIcon), own);
        auto* ownButton = qobject_cast<RibbonButtonControl*>(group.controlByAction(own));
        QCOMPARE(ownButton->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(ownButton->widget()->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(ownButton->popupMode(), QToolButton::MenuButtonPopup);
        QCOMPARE(group.actions(), (QList<QAction*>{a, own}));
    }

    void toolButtonStyleAndPopupModeRoundTrip()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("Format"), &group);
        group.addAction(action);
        auto* button = qobject_cast<RibbonButtonControl*>(group.controlByAction(action));
        const Qt::ToolButtonStyle styles[] = {Qt::ToolButtonIconOnly, Qt::ToolButtonTextOnly,
                                              Qt::ToolButtonTextBesideIcon, Qt::ToolButtonTextUnderIcon};
        for (Qt::ToolButtonStyle style : styles) {
            button->setToolButtonStyle(style);
            QCOMPARE(button->toolButtonStyle(), style);
            QCOMPARE(button->widget()->toolButtonStyle(), style);
        }
        const QToolButton::ToolButtonPopupMode modes[] = {QToolButton::MenuButtonPopup, QToolButton::InstantPopup,
                                                          QToolButton::DelayedPopup};
        for (auto mode : modes) {
            button->setPopupMode(mode);
            QCOMPARE(button->popupMode(), mode);
        }
        // Changing the button directly is what the control reports.
        button->widget()->setPopupMode(QToolButton::MenuButtonPopup);
        QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
    }

    void menuOnActionShowsArrowAndKeepsMode()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("Paste"), &group);
        group.addAction(action);
        auto* button = qobject_cast<RibbonButtonControl*>(group.controlByAction(action));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setPopupMode(QToolButton::InstantPopup);
        const int plain = button->sizeHintForSize(Size::GroupLarge).width();
        auto* menu = new QMenu(&group);
        menu->addAction(QStringLiteral("Paste special"));
        action->setMenu(menu);
        // The arrow needs room; the popup mode stays the chosen one.
        QVERIFY(button->sizeHintForSize(Size::GroupLarge).width() > plain);
        QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    }

    void defaultActionNullIsSafe()
    {
        RibbonGroup group;
        auto* a = new QAction(QStringLiteral("A"), &group);
        auto* b = new QAction(QStringLiteral("B"), &group);
        auto* w = new QWidgetAction(&group);
        w->setDefaultWidget(new QComboBox);
        group.addActions({a, b, w});
        RibbonControl* control = group.controlByAction(a);
        control->setDefaultAction(nullptr);
        QCOMPARE(control->defaultAction(), static_cast<QAction*>(nullptr));
        auto* button = qobject_cast<RibbonButtonControl*>(control);
        QCOMPARE(button->widget()->defaultAction(), static_cast<QAction*>(nullptr));
        QVERIFY(!button->widget()->actions().contains(a));
        // The group still knows which control stands for the action.
        QCOMPARE(group.controlByAction(a), control);
        group.removeAction(a);
        QCOMPARE(group.controlCount(), 2);
        QCOMPARE(group.actions(), (QList<QAction*>{b, w}));

        group.controlByAction(w)->setDefaultAction(nullptr);
        group.removeAction(w);
        QCOMPARE(group.controlCount(), 1);
        flushDeletes();
        // Triggering the remaining action still works.
        QSignalSpy spy(b, &QAction::triggered);
        qobject_cast<RibbonButtonControl*>(group.controlByIndex(0))->widget()->click();
        QCOMPARE(spy.count(), 1);
    }

    void clearRemovesEveryControlButKeepsActions()
    {
        RibbonGroup group;
        QList<QPointer<QAction>> kept;
        for (int i = 0; i < 5; ++i) {
            auto* action = new QAction(QStringLiteral("a%1").arg(i), &group);
            kept << action;
            group.addAction(action);
        }
        group.clear();
        QCOMPARE(group.controlCount(), 0);
        QVERIFY(group.actions().isEmpty());
        for (const auto& a : kept)
            QVERIFY(!a.isNull());
        // And the group is usable again (updateGroup re-adds actions after clear()).
        group.addAction(kept[2]);
        QCOMPARE(group.controlCount(), 1);
        flushDeletes();
        QCOMPARE(group.findChildren<QToolButton*>().size(), 1);
    }

    void removingActionFromItsOwnClick()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("Self"), &group);
        group.addAction(action);
        connect(action, &QAction::triggered, &group, [&]() { group.removeAction(action); });
        auto* button = qobject_cast<RibbonButtonControl*>(group.controlByAction(action))->widget();
        group.show();
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(group.controlCount(), 0);
        flushDeletes();
    }

    void sizeDefinitionDefaults()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("A"), &group);
        group.addAction(action);
        RibbonControl* control = group.controlByAction(action);
        QCOMPARE(int(Size::GroupLarge), 0);
        QCOMPARE(int(Size::GroupMedium), 1);
        QCOMPARE(int(Size::GroupSmall), 2);
        QCOMPARE(int(Size::GroupPopup), 3);
        QCOMPARE(int(Size::ImageNone), 0);
        QCOMPARE(int(Size::ImageLarge), 1);
        QCOMPARE(int(Size::ImageSmall), 2);

        struct Expect { Size::GroupSize size; Size::ControlImageSize image; bool label; };
        const Expect expected[] = {{Size::GroupLarge, Size::ImageLarge, true},
                                   {Size::GroupMedium, Size::ImageSmall, true},
                                   {Size::GroupSmall, Size::ImageSmall, false},
                                   {Size::GroupPopup, Size::ImageLarge, true}};
        for (const Expect& e : expected) {
            RibbonControlSizeDefinition* def = control->sizeDefinition(e.size);
            QVERIFY(def);
            QCOMPARE(def->groupSize(), e.size);
            QCOMPARE(def->imageSize(), e.image);
            QCOMPARE(def->isLabelVisible(), e.label);
            QCOMPARE(def->parent(), control);
        }
        QVERIFY(control->sizeDefinition(Size::GroupLarge) != control->sizeDefinition(Size::GroupMedium));
        QCOMPARE(control->currentSize(), Size::GroupLarge);
    }

    void sizeDefinitionChangesRelayout()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("Paste"), &group);
        group.addAction(action);
        auto* control = qobject_cast<RibbonButtonControl*>(group.controlByAction(action));
        RibbonControlSizeDefinition* def = control->sizeDefinition(Size::GroupLarge);
        QSignalSpy spy(def, &RibbonControlSizeDefinition::changed);
        QVERIFY(control->isLargeAt(Size::GroupLarge));
        const int largeWidth = group.widthForSize(Size::GroupLarge);

        def->setImageSize(Size::ImageSmall);
        def->setImageSize(Size::ImageSmall);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(def->imageSize(), Size::ImageSmall);
        QVERIFY(!control->isLargeAt(Size::GroupLarge));
        // The small look is one row high.
        QVERIFY(control->sizeHintForSize(Size::GroupLarge).height() * 2
                < control->sizeHintForSize(Size::GroupPopup).height());

        def->setLabelVisible(false);
        QCOMPARE(spy.count(), 2);
        QVERIFY(!def->isLabelVisible());
        QVERIFY(group.widthForSize(Size::GroupLarge) <= largeWidth);
        const int iconOnly = control->sizeHintForSize(Size::GroupLarge).width();
        def->setLabelVisible(true);
        QVERIFY(control->sizeHintForSize(Size::GroupLarge).width() > iconOnly);

        // The control takes the new look when its group is at that size.
        group.resize(300, 100);
        group.setCurrentSize(Size::GroupLarge);
        QCOMPARE(control->currentSize(), Size::GroupLarge);
        QCOMPARE(control->widget()->iconSize(), QSize(16, 16));
        def->setImageSize(Size::ImageLarge);
        QCOMPARE(control->widget()->iconSize(), QSize(32, 32));
        group.setCurrentSize(Size::GroupSmall);
        QCOMPARE(control->currentSize(), Size::GroupSmall);
        QCOMPARE(control->widget()->iconSize(), QSize(16, 16));
    }

    void styleCapsTheLook()
    {
        RibbonGroup group;
        auto* action = new QAction(QStringLiteral("Find"), &group);
        group.addAction(action);
        auto* control = qobject_cast<RibbonButtonControl*>(group.controlByAction(action));
        // Default: a large button at GroupLarge.
        QVERIFY(control->isLargeAt(Size::GroupLarge));
        control->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        QVERIFY(!control->isLargeAt(Size::GroupLarge));
        control->setToolButtonStyle(Qt::ToolButtonIconOnly);
        QVERIFY(!control->isLargeAt(Size::GroupLarge));
        const int iconOnly = control->sizeHintForSize(Size::GroupLarge).width();
        control->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        QVERIFY(control->sizeHintForSize(Size::GroupLarge).width() > iconOnly);
        // The size definitions themselves are left alone.
        QCOMPARE(control->sizeDefinition(Size::GroupLarge)->imageSize(), Size::ImageLarge);
        control->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        QVERIFY(control->isLargeAt(Size::GroupLarge));
        QVERIFY(!control->isLargeAt(Size::GroupMedium));
    }

    void updateLayoutIsSynchronous()
    {
        RibbonPage page;
        page.resize(800, 120);
        RibbonGroup* g = page.addGroup(QStringLiteral("G"));
        g->addAction(new QAction(QStringLiteral("Paste"), g));
        page.updateLayout();
        QVERIFY(g->width() > 0);
        QCOMPARE(g->width(), g->widthForSize(Size::GroupLarge));
        QVERIFY(g->controlByIndex(0)->geometry().isValid());
        QVERIFY(g->rect().contains(g->controlByIndex(0)->geometry()));
    }
};

QTEST_MAIN(tst_RibbonGroups)
#include "tst_ribbongroups.moc"
