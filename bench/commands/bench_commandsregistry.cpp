// The refresh that runs on every wake-up of the event loop: every action's
// update handler, found through the range table, against the same handlers
// called straight from a flat array.
#include <tessaro/CommandsRegistry.h>

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QElapsedTimer>
#include <QtTest>

#include "BenchTiming.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace {

using bench::bestOf;

const int rangeCount = 100;

using UpdateHandler = std::function<void(int, ui::CommandState&)>;

// Cheap, as update handlers are meant to be: one flag per range.
UpdateHandler makeHandler(int range, int& calls)
{
    return [range, &calls](int id, ui::CommandState& state) {
        ++calls;
        state.setEnabled((id + range) % 7 != 0);
    };
}

void emitAwake()
{
    QMetaObject::invokeMethod(QAbstractEventDispatcher::instance(), "awake", Qt::DirectConnection);
}

} // namespace

class bench_CommandsRegistry : public QObject
{
    Q_OBJECT

private slots:
    void refresh_data()
    {
        QTest::addColumn<int>("actions");
        QTest::newRow("1000 actions") << 1000;
        QTest::newRow("10000 actions") << 10000;
    }

    void refresh()
    {
        QFETCH(int, actions);
        const int perRange = actions / rangeCount;
        int registryCalls = 0;
        int baselineCalls = 0;

        ui::CommandsRegistry registry(nullptr);
        std::vector<UpdateHandler> handlers;
        for (int r = 0; r < rangeCount; ++r) {
            registry.ConnectCommandUI(r * perRange + 1, (r + 1) * perRange, makeHandler(r, registryCalls));
            handlers.push_back(makeHandler(r, baselineCalls));
        }
        // Baseline: the same handlers and actions, no lookup at all.
        struct Entry
        {
            QAction* action;
            int id;
            const UpdateHandler* handler;
        };
        std::vector<Entry> flat;
        for (int id = 1; id <= actions; ++id) {
            QAction* action = registry.addCommand(QStringLiteral("Command %1").arg(id), id);
            flat.push_back({action, id, &handlers[size_t((id - 1) / perRange)]});
        }

        auto viaRegistry = [&] { emitAwake(); };
        auto baseline = [&] {
            for (const Entry& entry : flat) {
                ui::CommandState state(entry.action);
                (*entry.handler)(entry.id, state);
            }
        };
        viaRegistry();
        QCOMPARE(registryCalls, actions);  // one handler call per action and wake-up
        baseline();
        QCOMPARE(baselineCalls, actions);

        const int repeats = actions >= 10000 ? 20 : 200;
        const double registryNs = bestOf(7, repeats, viaRegistry);
        const double baselineNs = bestOf(7, repeats, baseline);
        qInfo("refresh of %d actions in %d ranges: %.1f ns/action, baseline (flat array) %.1f ns/action, ratio %.2f",
              actions, rangeCount, registryNs / actions, baselineNs / actions, registryNs / baselineNs);
    }

    void refreshQBenchmark_data()
    {
        refresh_data();
    }

    void refreshQBenchmark()
    {
        // The same wake-up through QBENCHMARK, for QtTest's own report.
        QFETCH(int, actions);
        const int perRange = actions / rangeCount;
        int calls = 0;
        ui::CommandsRegistry registry(nullptr);
        for (int r = 0; r < rangeCount; ++r)
            registry.ConnectCommandUI(r * perRange + 1, (r + 1) * perRange, makeHandler(r, calls));
        for (int id = 1; id <= actions; ++id)
            registry.addCommand(QStringLiteral("Command %1").arg(id), id);
        QBENCHMARK {
            emitAwake();
        }
        QVERIFY(calls >= actions);
    }

    void lookupOnRun_data()
    {
        refresh_data();
    }

    void lookupOnRun()
    {
        // RunCommand for every id: the range search alone, against a direct call.
        QFETCH(int, actions);
        const int perRange = actions / rangeCount;
        int calls = 0;
        ui::CommandsRegistry registry(nullptr);
        std::vector<std::function<void(int)>> handlers;
        for (int r = 0; r < rangeCount; ++r) {
            std::function<void(int)> handler = [&calls](int id) { calls += id & 1; };
            registry.ConnectCommand(r * perRange + 1, (r + 1) * perRange, handler);
            handlers.push_back(handler);
        }
        auto viaRegistry = [&] {
            for (int id = 1; id <= actions; ++id)
                registry.RunCommand(id);
        };
        auto baseline = [&] {
            for (int id = 1; id <= actions; ++id)
                handlers[size_t((id - 1) / perRange)](id);
        };
        const int repeats = actions >= 10000 ? 20 : 200;
        const double registryNs = bestOf(7, repeats, viaRegistry);
        const double baselineNs = bestOf(7, repeats, baseline);
        qInfo("RunCommand over %d ids in %d ranges: %.1f ns/id, baseline (direct call) %.1f ns/id, ratio %.2f",
              actions, rangeCount, registryNs / actions, baselineNs / actions, registryNs / baselineNs);
        QVERIFY(calls > 0);
    }
};

QTEST_MAIN(bench_CommandsRegistry)
#include "bench_commandsregistry.moc"
