#include <tessaro/CommandsRegistry.h>

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QPointer>
#include <QtTest>

#include <functional>
#include <stdexcept>

namespace {

// Opens the protected members to the tests and records what event() returns.
class Registry : public ui::CommandsRegistry
{
public:
    using ui::CommandsRegistry::CommandsRegistry;
    using ui::CommandsRegistry::runAction;
    using ui::CommandsRegistry::updateAction;

    QList<bool> userEventResults;

protected:
    bool event(QEvent* event) override
    {
        const bool result = ui::CommandsRegistry::event(event);
        if (event->type() >= QEvent::User)
            userEventResults.append(result);
        return result;
    }
};

// One wake-up of the event loop, as the dispatcher signals it.
void emitAwake()
{
    QVERIFY(QMetaObject::invokeMethod(QAbstractEventDispatcher::instance(), "awake", Qt::DirectConnection));
}

// A registry of commands 1..n whose update handler records the order of the
// refresh and runs the hook set for an id, if any.
struct RecordedPass
{
    Registry registry{nullptr};
    QList<int> order;
    QHash<int, std::function<void()>> hooks;

    explicit RecordedPass(const QList<bool>& persistent = {false, false, false, false, false})
    {
        for (int id = 1; id <= persistent.size(); ++id) {
            const QString text = QString::number(id);
            if (persistent.at(id - 1))
                registry.addPersistentCommand(text, id);
            else
                registry.addCommand(text, id);
        }
        registry.ConnectCommandUI(1, 100, [this](int id, ui::CommandState&) {
            order << id;
            if (const std::function<void()> hook = hooks.value(id))
                hook();
        });
    }
};

} // namespace

class tst_CommandsRegistry : public QObject
{
    Q_OBJECT

private slots:
    void addCommandMakesOwnedAction()
    {
        Registry registry(nullptr);
        QIcon icon(QPixmap(16, 16));
        QAction* first = registry.addCommand(icon, QStringLiteral("&Открыть"), 7);
        QAction* second = registry.addCommand(QStringLiteral("Save"), 8);
        QCOMPARE(first->parent(), &registry);
        QCOMPARE(first->text(), QStringLiteral("&Открыть"));
        QCOMPARE(first->iconText(), QStringLiteral("&Открыть"));
        QVERIFY(!first->icon().isNull());
        QVERIFY(second->icon().isNull());
        QCOMPARE(first->data().userType(), int(QMetaType::Int));
        QCOMPARE(first->data().toInt(), 7);
        QVERIFY(!first->property("persistent").isValid());
        QCOMPARE(registry.getActions(), (QList<QAction*>{first, second}));
        // Fresh actions keep their initial state until the first wake-up.
        QVERIFY(first->isEnabled());
        QVERIFY(!first->isCheckable());

        QPointer<QAction> guard(first);
        {
            Registry scoped(nullptr);
            guard = scoped.addCommand(QStringLiteral("x"), 1);
        }
        QVERIFY(guard.isNull());  // the actions go with the registry
    }

    void persistentCommands()
    {
        Registry registry(nullptr);
        QAction* a = registry.addPersistentCommand(QStringLiteral("A"), 1);
        QAction* b = registry.addPersistentCommand(QIcon(QPixmap(8, 8)), QStringLiteral("B"), 2);
        QCOMPARE(a->property("persistent"), QVariant(true));
        QCOMPARE(b->property("persistent"), QVariant(true));
        QCOMPARE(b->iconText(), QStringLiteral("B"));
        QVERIFY(!b->icon().isNull());
    }

    void singleIdHandlers()
    {
        Registry registry(nullptr);
        QAction* action = registry.addCommand(QStringLiteral("Open"), 7);
        int ran = 0;
        registry.ConnectCommand(7, [&] { ++ran; });
        registry.ConnectCommandUI(7, [&](ui::CommandState& state) { state.setText(QStringLiteral("Refreshed")); });
        action->trigger();
        QCOMPARE(ran, 1);
        QCOMPARE(action->text(), QStringLiteral("Refreshed"));
        registry.RunCommand(7);
        QCOMPARE(ran, 2);
        registry.RunCommand(8);
        QCOMPARE(ran, 2);
    }

    void rangeHandlersReceiveTheId()
    {
        Registry registry(nullptr);
        QList<int> ran;
        QList<int> updated;
        registry.ConnectCommand(10, 1, [&](int id) { ran << id; });
        registry.ConnectCommandUI(1, 10, [&](int id, ui::CommandState& state) {
            updated << id;
            state.setEnabled(id != 4);
        });
        QAction* three = registry.addCommand(QStringLiteral("3"), 3);
        QAction* four = registry.addCommand(QStringLiteral("4"), 4);
        registry.RunCommand(1);
        registry.RunCommand(10);
        registry.RunCommand(11);
        QCOMPARE(ran, (QList<int>{1, 10}));
        emitAwake();
        QCOMPARE(updated, (QList<int>{3, 4}));
        QVERIFY(three->isEnabled());
        QVERIFY(!four->isEnabled());
    }

    void idsBelowOneNeverRun()
    {
        Registry registry(nullptr);
        int ran = 0;
        int updated = 0;
        registry.ConnectCommand(-10, 10, [&](int) { ++ran; });
        registry.ConnectCommandUI(-10, 10, [&](int, ui::CommandState&) { ++updated; });
        registry.RunCommand(0);
        registry.RunCommand(-5);
        QCOMPARE(ran, 0);
        registry.PostRunCommand(0);
        QCoreApplication::processEvents();
        QCOMPARE(ran, 0);
        QAction* zero = registry.addCommand(QStringLiteral("zero"), 0);
        QAction* negative = registry.addCommand(QStringLiteral("negative"), -5);
        registry.updateAction(zero);
        registry.updateAction(negative);
        emitAwake();
        QCOMPARE(updated, 0);
        zero->trigger();
        negative->trigger();
        QCOMPARE(ran, 0);
    }

    void overlappingRangesUseTheFirstUpperBound()
    {
        Registry registry(nullptr);
        QStringList ran;
        registry.ConnectCommand(1, 10, [&](int id) { ran << QStringLiteral("1-10:%1").arg(id); });
        registry.ConnectCommand(5, 20, [&](int id) { ran << QStringLiteral("5-20:%1").arg(id); });
        registry.RunCommand(7);
        registry.RunCommand(12);
        registry.RunCommand(10);
        registry.RunCommand(21);
        QCOMPARE(ran, (QStringList{QStringLiteral("1-10:7"), QStringLiteral("5-20:12"), QStringLiteral("1-10:10")}));

        Registry other(nullptr);
        QStringList otherRan;
        other.ConnectCommand(5, 20, [&](int id) { otherRan << QStringLiteral("5-20:%1").arg(id); });
        other.ConnectCommand(1, 30, [&](int id) { otherRan << QStringLiteral("1-30:%1").arg(id); });
        other.RunCommand(3);  // (5, 20) comes first and does not hold 3: nothing runs
        QVERIFY(otherRan.isEmpty());
        other.RunCommand(25);
        other.RunCommand(6);
        QCOMPARE(otherRan, (QStringList{QStringLiteral("1-30:25"), QStringLiteral("5-20:6")}));

        // The same rule holds for update handlers.
        QStringList updated;
        other.ConnectCommandUI(5, 20, [&](int id, ui::CommandState&) { updated << QStringLiteral("5-20:%1").arg(id); });
        other.ConnectCommandUI(1, 30, [&](int id, ui::CommandState&) { updated << QStringLiteral("1-30:%1").arg(id); });
        other.addCommand(QStringLiteral("3"), 3);
        other.addCommand(QStringLiteral("25"), 25);
        emitAwake();
        QCOMPARE(updated, (QStringList{QStringLiteral("1-30:25")}));
    }

    void sameRangeReplacesHandler()
    {
        Registry registry(nullptr);
        QStringList ran;
        registry.ConnectCommand(3, 10, [&](int) { ran << QStringLiteral("f"); });
        registry.ConnectCommand(10, 3, [&](int) { ran << QStringLiteral("g"); });
        registry.RunCommand(5);
        QCOMPARE(ran, QStringList{QStringLiteral("g")});
        // One entry only: removing it leaves nothing behind.
        registry.DisconnectCommand(5);
        registry.RunCommand(5);
        QCOMPARE(ran, QStringList{QStringLiteral("g")});

        QStringList updated;
        registry.ConnectCommandUI(4, 4, [&](int, ui::CommandState&) { updated << QStringLiteral("f"); });
        registry.ConnectCommandUI(4, [&](ui::CommandState&) { updated << QStringLiteral("g"); });
        registry.addCommand(QStringLiteral("4"), 4);
        emitAwake();
        QCOMPARE(updated, QStringList{QStringLiteral("g")});
    }

    void negativeLowerBoundMissesItsUpperBound()
    {
        Registry registry(nullptr);
        QList<int> ran;
        registry.ConnectCommand(-3, 5, [&](int id) { ran << id; });
        registry.RunCommand(4);
        registry.RunCommand(1);
        registry.RunCommand(5);  // the lookup key (5, 0) sorts after (5, -3)
        QCOMPARE(ran, (QList<int>{4, 1}));

        // A zero lower bound is found for its upper bound.
        registry.ConnectCommand(0, 8, [&](int id) { ran << id; });
        registry.RunCommand(8);
        QCOMPARE(ran, (QList<int>{4, 1, 8}));
    }

    void disconnectRemovesWholeRange()
    {
        Registry registry(nullptr);
        int ran = 0;
        int updated = 0;
        int other = 0;
        registry.ConnectCommand(1, 10, [&](int) { ++ran; });
        registry.ConnectCommandUI(1, 10, [&](int, ui::CommandState&) { ++updated; });
        registry.ConnectCommand(11, 20, [&](int) { ++other; });
        registry.DisconnectCommand(5);
        for (int id = 1; id <= 10; ++id)
            registry.RunCommand(id);
        QCOMPARE(ran, 0);
        registry.addCommand(QStringLiteral("1"), 1);
        registry.addCommand(QStringLiteral("10"), 10);
        emitAwake();
        QCOMPARE(updated, 0);
        registry.RunCommand(15);
        QCOMPARE(other, 1);
        registry.DisconnectCommand(99);  // nothing there: no effect
        registry.RunCommand(15);
        QCOMPARE(other, 2);
    }

    void triggerRunsUpdateHandlerFirst()
    {
        Registry registry(nullptr);
        QAction* action = registry.addCommand(QStringLiteral("Go"), 3);
        QStringList calls;
        bool allow = true;
        registry.ConnectCommandUI(3, [&](ui::CommandState& state) {
            calls << QStringLiteral("update");
            state.setEnabled(allow);
        });
        registry.ConnectCommand(3, [&] { calls << QStringLiteral("run"); });
        action->trigger();
        QCOMPARE(calls, (QStringList{QStringLiteral("update"), QStringLiteral("run")}));

        // Enabled when triggered, disabled by its handler at that moment: no run.
        calls.clear();
        allow = false;
        QVERIFY(action->isEnabled());
        action->trigger();
        QCOMPARE(calls, QStringList{QStringLiteral("update")});
        QVERIFY(!action->isEnabled());
    }

    void runActionSkipsUpdateAndEnabledCheck()
    {
        Registry registry(nullptr);
        QAction* action = registry.addCommand(QStringLiteral("Go"), 3);
        int ran = 0;
        int updated = 0;
        registry.ConnectCommand(3, [&] { ++ran; });
        registry.ConnectCommandUI(3, [&](ui::CommandState& state) {
            ++updated;
            state.setEnabled(false);
        });
        action->setEnabled(false);
        registry.runAction(action);
        QCOMPARE(ran, 1);
        QCOMPARE(updated, 0);
    }

    void postedCommandRunsFromEventLoop()
    {
        Registry registry(nullptr);
        QList<int> ran;
        registry.ConnectCommand(1, 9, [&](int id) { ran << id; });
        registry.PostRunCommand(4);
        registry.PostRunCommand(6);
        QVERIFY(ran.isEmpty());
        QVERIFY(registry.userEventResults.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(ran, (QList<int>{4, 6}));
        QCOMPARE(registry.userEventResults, (QList<bool>{true, true}));

        // A custom event of another type is not taken for a command.
        QEvent other(static_cast<QEvent::Type>(QEvent::registerEventType()));
        QCoreApplication::sendEvent(&registry, &other);
        QCOMPARE(ran.size(), 2);
    }

    void postedCommandThatLostItsHandler()
    {
        Registry registry(nullptr);
        int ran = 0;
        registry.ConnectCommand(4, [&] { ++ran; });
        registry.PostRunCommand(4);
        registry.DisconnectCommand(4);
        QCoreApplication::processEvents();
        QCOMPARE(ran, 0);
        QCOMPARE(registry.userEventResults, QList<bool>{true});
    }

    void refreshOnEveryWakeUp()
    {
        Registry registry(nullptr);
        QHash<int, int> updates;
        registry.ConnectCommandUI(1, 100, [&](int id, ui::CommandState& state) {
            ++updates[id];
            state.setChecked(id % 2 == 0);
        });
        QAction* one = registry.addCommand(QStringLiteral("1"), 1);
        QAction* two = registry.addCommand(QStringLiteral("2"), 2);
        QAction* hidden = registry.addCommand(QStringLiteral("3"), 3);
        hidden->setVisible(false);
        QVERIFY(!two->isCheckable());

        emitAwake();
        QCOMPARE(updates.value(1), 1);
        QCOMPARE(updates.value(2), 1);
        QCOMPARE(updates.value(3), 1);  // hidden actions are refreshed too
        QVERIFY(one->isCheckable());
        QVERIFY(!one->isChecked());
        QVERIFY(two->isChecked());
        emitAwake();
        QCOMPARE(updates.value(2), 2);

        // Through the real event loop: every wake-up refreshes every action once.
        updates.clear();
        QObject target;
        QCoreApplication::postEvent(&target, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        const int rounds = updates.value(1);
        QVERIFY(rounds >= 1);
        QCOMPARE(updates.value(2), rounds);
        QCOMPARE(updates.value(3), rounds);
        QCoreApplication::postEvent(&target, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        QVERIFY(updates.value(1) > rounds);
        QCOMPARE(updates.value(2), updates.value(1));
    }

    void clearCommandsKeepsPersistent()
    {
        Registry registry(nullptr);
        QPointer<QAction> plain = registry.addCommand(QStringLiteral("plain"), 1);
        QPointer<QAction> persistent = registry.addPersistentCommand(QStringLiteral("kept"), 2);
        QPointer<QAction> markedFalse = registry.addCommand(QStringLiteral("false"), 3);
        markedFalse->setProperty("persistent", false);
        QPointer<QAction> other = registry.addCommand(QStringLiteral("other"), 4);
        int ran = 0;
        registry.ConnectCommand(1, [&] { ++ran; });

        registry.clearCommands();
        QCOMPARE(registry.getActions(), (QList<QAction*>{persistent, markedFalse}));
        QVERIFY(!plain.isNull());  // deleted later, not now
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(plain.isNull());
        QVERIFY(other.isNull());
        QVERIFY(!persistent.isNull());
        QVERIFY(!markedFalse.isNull());
        QCOMPARE(registry.getCommandAction(1), static_cast<QAction*>(nullptr));

        // The handler of a cleared id serves a later action with that id.
        QAction* again = registry.addCommand(QStringLiteral("again"), 1);
        again->trigger();
        QCOMPARE(ran, 1);
    }

    void removeCommandKeepsActionAndHandlers()
    {
        Registry registry(nullptr);
        QAction* first = registry.addCommand(QStringLiteral("first"), 5);
        QAction* other = registry.addCommand(QStringLiteral("other"), 6);
        QAction* second = registry.addCommand(QStringLiteral("second"), 5);
        int ran = 0;
        int updated = 0;
        registry.ConnectCommand(5, [&] { ++ran; });
        registry.ConnectCommandUI(5, [&](ui::CommandState&) { ++updated; });

        registry.removeCommand(5);
        QCOMPARE(registry.getActions(), (QList<QAction*>{other, second}));
        QCOMPARE(first->parent(), &registry);  // not deleted
        first->trigger();  // no longer connected
        QCOMPARE(ran, 0);
        QCOMPARE(updated, 0);
        emitAwake();
        QCOMPARE(updated, 1);  // only the second action
        second->trigger();
        QCOMPARE(ran, 1);
        registry.RunCommand(5);
        QCOMPARE(ran, 2);
        QCOMPARE(registry.getCommandAction(5), second);

        registry.removeCommand(42);  // unknown: nothing happens
        QCOMPARE(registry.getActions().size(), 2);
    }

    void getCommandActionReturnsFirst()
    {
        Registry registry(nullptr);
        QCOMPARE(registry.getCommandAction(1), static_cast<QAction*>(nullptr));
        QAction* first = registry.addCommand(QStringLiteral("a"), 1);
        QAction* second = registry.addCommand(QStringLiteral("b"), 1);
        QAction* third = registry.addCommand(QStringLiteral("c"), 2);
        QCOMPARE(registry.getCommandAction(1), first);
        QCOMPARE(registry.getCommandAction(2), third);
        QCOMPARE(registry.getCommandAction(3), static_cast<QAction*>(nullptr));
        // Both actions share the handlers of their id.
        int ran = 0;
        registry.ConnectCommand(1, [&] { ++ran; });
        first->trigger();
        second->trigger();
        QCOMPARE(ran, 2);

        // An action made elsewhere finds the handlers through its data().
        QAction foreign(nullptr);
        foreign.setData(1);
        registry.runAction(&foreign);
        QCOMPARE(ran, 3);
    }

    void emptyHandlerThrows()
    {
        Registry registry(nullptr);
        registry.ConnectCommand(5, 5, std::function<void(int)>());
        QVERIFY_EXCEPTION_THROWN(registry.RunCommand(5), std::bad_function_call);
        registry.ConnectCommand(6, std::function<void()>());
        QVERIFY_EXCEPTION_THROWN(registry.RunCommand(6), std::bad_function_call);

        registry.ConnectCommandUI(7, 7, std::function<void(int, ui::CommandState&)>());
        QAction* action = registry.addCommand(QStringLiteral("7"), 7);
        QVERIFY_EXCEPTION_THROWN(registry.updateAction(action), std::bad_function_call);
        registry.ConnectCommandUI(7, std::function<void(ui::CommandState&)>());
        QVERIFY_EXCEPTION_THROWN(registry.updateAction(action), std::bad_function_call);
    }

    void handlerExceptionsPassThrough()
    {
        Registry registry(nullptr);
        registry.ConnectCommand(5, [] { throw std::runtime_error("boom"); });
        QVERIFY_EXCEPTION_THROWN(registry.RunCommand(5), std::runtime_error);
    }

    void handlerMayReplaceItself()
    {
        Registry registry(nullptr);
        QStringList ran;
        std::function<void(int)> second = [&](int) { ran << QStringLiteral("second"); };
        registry.ConnectCommand(1, 5, [&](int) {
            ran << QStringLiteral("first");
            registry.ConnectCommand(5, 1, second);
            registry.DisconnectCommand(3);
            registry.ConnectCommand(1, 5, second);
        });
        registry.RunCommand(3);
        registry.RunCommand(3);
        QCOMPARE(ran, (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
    }

    void updateHandlerMayClearCommands()
    {
        Registry registry(nullptr);
        int updated = 0;
        registry.ConnectCommandUI(1, 10, [&](int, ui::CommandState&) {
            if (++updated == 1)
                registry.clearCommands();
        });
        for (int id = 1; id <= 5; ++id)
            registry.addCommand(QStringLiteral("x"), id);
        emitAwake();
        QCOMPARE(updated, 1);
        QCOMPARE(registry.getActions().size(), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // A handler that removes its own command: the pass goes on with the next
    // one, and the removed command is not refreshed again.
    void refreshPassSurvivesSelfRemoval()
    {
        RecordedPass pass;
        pass.hooks[2] = [&pass] { pass.registry.removeCommand(2); };
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 3, 4, 5}));
        pass.order.clear();
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 3, 4, 5}));
    }

    void refreshPassSkipsNothingWhenEarlierCommandRemoved()
    {
        RecordedPass pass;
        pass.hooks[3] = [&pass] { pass.registry.removeCommand(1); };
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 3, 4, 5}));
    }

    void refreshPassDropsLaterCommandRemoved()
    {
        RecordedPass pass;
        pass.hooks[2] = [&pass] { pass.registry.removeCommand(4); };
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 3, 5}));
    }

    // clearCommands() in the middle of a pass: the persistent commands after
    // the handler are still refreshed, the cleared ones are not.
    void refreshPassAfterClearingKeepsPersistentCommands()
    {
        RecordedPass pass({false, true, false, true, false, true});
        pass.hooks[3] = [&pass] { pass.registry.clearCommands(); };
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 3, 4, 6}));
        pass.order.clear();
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{2, 4, 6}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Commands added during a pass are appended, and refreshed in that same
    // pass after the commands that were already listed.
    void refreshPassIncludesCommandsAddedDuringIt()
    {
        RecordedPass pass;
        pass.hooks[2] = [&pass] {
            pass.registry.addCommand(QStringLiteral("6"), 6);
            pass.hooks.remove(2);
        };
        pass.hooks[4] = [&pass] {
            pass.registry.removeCommand(4);
            pass.registry.addCommand(QStringLiteral("7"), 7);
            pass.hooks.remove(4);
        };
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 3, 4, 5, 6, 7}));
        pass.order.clear();
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 3, 5, 6, 7}));
    }

    // A handler that lets the event loop run starts a nested pass; a command
    // removed there is not refreshed again by either pass, and the outer pass
    // neither skips nor repeats the others.
    void nestedRefreshPass()
    {
        RecordedPass pass;
        pass.hooks[2] = [&pass] {
            pass.hooks.remove(2);
            pass.registry.removeCommand(1);
            pass.order << 0;
            emitAwake();
            pass.order << 0;
        };
        emitAwake();
        QCOMPARE(pass.order, (QList<int>{1, 2, 0, 2, 3, 4, 5, 0, 3, 4, 5}));
    }
};

QTEST_MAIN(tst_CommandsRegistry)
#include "tst_commandsregistry.moc"
