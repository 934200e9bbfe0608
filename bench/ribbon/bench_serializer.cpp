// Saving and restoring a large ribbon layout and quick access bar, against
// building the same ribbon directly through the ribbon API in the same run;
// and reading hostile streams, against restoring that large layout.
#include <tessaro/Tessaro.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QBuffer>
#include <QElapsedTimer>
#include <QHash>
#include <QMenu>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

const int Pages = 20;
const int GroupsPerPage = 10;
const int ActionsPerGroup = 10;
const int QuickActions = 30;

QIcon icon()
{
    static QIcon cached;
    if (cached.isNull()) {
        for (int size : {16, 32}) {
            QPixmap pm(size, size);
            pm.fill(QColor(60, 120, 200));
            cached.addPixmap(pm);
        }
    }
    return cached;
}

// The host's commands, stored by identifier.
class Host : public ui::RibbonSerializer
{
public:
    Host(ui::RibbonBar* ribbon, const QHash<QString, QAction*>& actions)
        : ui::RibbonSerializer(ribbon), m_actions(actions)
    {
        for (auto it = actions.cbegin(); it != actions.cend(); ++it)
            m_ids.insert(it.value(), it.key());
    }

protected:
    QString getActionID(QAction* action) override { return m_ids.value(action); }
    QAction* getAction(const QString& id) const override { return m_actions.value(id); }

private:
    QHash<QString, QAction*> m_actions;
    QHash<QAction*, QString> m_ids;
};

// Best of a few runs, in milliseconds.
double best(int runs, const std::function<void()>& body)
{
    double result = 1e300;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        body();
        result = std::min(result, timer.nsecsElapsed() / 1e6);
    }
    return result;
}

// A stream under construction with the serializer's stream settings.
struct Stream
{
    QByteArray bytes;
    QDataStream out{&bytes, QIODevice::WriteOnly};
};

// A text action record whose menu nests @p depth levels, one item each.
void nestedRecord(QDataStream& out, int depth)
{
    for (int i = 0; i < depth; ++i)
        out << false << QString() << QStringLiteral("m") << qint32(1);
    out << false << QString() << QStringLiteral("leaf") << qint32(0);
}

bool restoreRaw(ui::RibbonSerializer& serializer, QByteArray bytes, bool quickBar = false)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return quickBar ? serializer.restoreQuickBar(buffer) : serializer.restore(buffer);
}

} // namespace

class BenchSerializer : public QObject
{
    Q_OBJECT

    QObject m_owner;
    QList<QAction*> m_actions;
    QHash<QString, QAction*> m_byId;

    // Two large buttons, then small ones with labels, as a typical group has.
    static Qt::ToolButtonStyle styleOf(int index)
    {
        return index % ActionsPerGroup < 2 ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon;
    }

    void buildDirectly(ui::RibbonBar& ribbon)
    {
        ribbon.clearPages();
        ribbon.clearQuickActions();
        int index = 0;
        for (int p = 0; p < Pages; ++p) {
            Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Страница %1").arg(p));
            for (int g = 0; g < GroupsPerPage; ++g) {
                Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Группа %1").arg(g));
                for (int a = 0; a < ActionsPerGroup; ++a, ++index)
                    group->addAction(m_actions[index], styleOf(index));
            }
        }
        for (int q = 0; q < QuickActions; ++q)
            ribbon.addQuickAction(m_actions[q * 7]);
        QCoreApplication::sendPostedEvents();
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (int i = 0; i < Pages * GroupsPerPage * ActionsPerGroup; ++i) {
            auto* action = new QAction(icon(), QStringLiteral("Команда %1").arg(i), &m_owner);
            m_actions << action;
            m_byId.insert(QStringLiteral("cmd.%1").arg(i), action);
        }
    }

    void saveAndRestore()
    {
        ui::RibbonBar ribbon(QStringLiteral("bench"));
        ribbon.resize(1200, 160);
        ribbon.show();
        Host host(&ribbon, m_byId);

        const double build = best(5, [&] { buildDirectly(ribbon); });
        QByteArray layout;
        QByteArray quick;
        const double save = best(5, [&] {
            layout = host.save();
            quick = host.saveQuickBar();
        });
        QBuffer rawLayout;
        rawLayout.open(QIODevice::WriteOnly);
        host.save(rawLayout);
        QBuffer rawQuick;
        rawQuick.open(QIODevice::WriteOnly);
        host.saveQuickBar(rawQuick);

        const double restore = best(5, [&] {
            QVERIFY(host.restore(layout));
            QVERIFY(host.restoreQuickBar(quick));
            QCoreApplication::sendPostedEvents();
        });
        QCOMPARE(ribbon.pageCount(), Pages);
        QCOMPARE(ribbon.quickAccessBar()->actions().size(), QuickActions);
        QCOMPARE(host.save(), layout);
        const double buildAgain = best(5, [&] { buildDirectly(ribbon); });
        const double baseline = std::min(build, buildAgain);

        qInfo("ribbon of %d pages x %d groups x %d actions, quick access bar of %d actions",
              Pages, GroupsPerPage, ActionsPerGroup, QuickActions);
        qInfo("build directly (baseline)   %9.3f ms", baseline);
        qInfo("save layout + quick bar     %9.3f ms   ratio to build %6.3f", save, save / baseline);
        qInfo("restore layout + quick bar  %9.3f ms   ratio to build %6.3f", restore, restore / baseline);
        qInfo("layout:    %7lld bytes stored (%lld uncompressed)", qint64(layout.size()), qint64(rawLayout.size()));
        qInfo("quick bar: %7lld bytes stored (%lld uncompressed)", qint64(quick.size()), qint64(rawQuick.size()));
    }

    void buildOnly()
    {
        ui::RibbonBar ribbon(QStringLiteral("bench"));
        QBENCHMARK {
            buildDirectly(ribbon);
        }
    }

    void restoreOnly()
    {
        ui::RibbonBar ribbon(QStringLiteral("bench"));
        Host host(&ribbon, m_byId);
        buildDirectly(ribbon);
        const QByteArray layout = host.save();
        const QByteArray quick = host.saveQuickBar();
        QBENCHMARK {
            host.restore(layout);
            host.restoreQuickBar(quick);
            QCoreApplication::sendPostedEvents();
        }
    }

    // The hostile streams of tst_ribbonserializer_hostile: each must cost
    // about what the large layout above costs, never what believing it would.
    void hostileStreams()
    {
        ui::RibbonBar ribbon(QStringLiteral("bench"));
        Host host(&ribbon, m_byId);
        buildDirectly(ribbon);
        const QByteArray layout = host.save();
        const QByteArray quick = host.saveQuickBar();
        const double baseline = best(5, [&] {
            host.restore(layout);
            host.restoreQuickBar(quick);
            QCoreApplication::sendPostedEvents();
        });
        qInfo("restore of the large layout + quick bar (baseline) %9.3f ms", baseline);

        Stream hugeCount;
        hugeCount.out << qint32(5) << qint32(0x7fffffff);

        Stream deepMenus;
        deepMenus.out << qint32(5) << qint32(1) << QStringLiteral("P") << qint32(1) << QStringLiteral("G") << false
                      << false << qint32(1) << qint32(0) << qint8(0);
        nestedRecord(deepMenus.out, 200000);

        Stream hugeSubCount;
        hugeSubCount.out << qint32(5) << qint32(1) << QStringLiteral("P") << qint32(1) << QStringLiteral("G") << false
                         << false << qint32(1) << qint32(0) << qint8(0);
        for (int i = 0; i < ui::RibbonSerializer::maxMenuDepth; ++i)
            hugeSubCount.out << false << QString() << QStringLiteral("m") << qint32(1);
        hugeSubCount.out << false << QString() << QStringLiteral("m") << qint32(0x7fffffff);
        hugeSubCount.out << true << true << false << QString() << QStringLiteral("x") << qint32(0x7fffffff);

        // One host action with a menu in 5,000 groups: every place is told of
        // every change of the action.
        const int repeats = 5000;
        Stream repeated;
        repeated.out << qint32(5) << qint32(1) << QStringLiteral("P") << qint32(repeats);
        for (int i = 0; i < repeats; ++i) {
            repeated.out << QStringLiteral("G") << false << false << qint32(1) << qint32(2) << qint8(1);
            repeated.out << false << QStringLiteral("cmd.0") << QString() << qint32(1);
            repeated.out << false << QString() << QStringLiteral("x") << qint32(0);
        }

        // Eight host actions whose restored menus hold all eight.
        Stream mutual;
        mutual.out << qint32(5) << qint32(1) << QStringLiteral("P") << qint32(1) << QStringLiteral("G") << false
                   << false << qint32(8);
        for (int i = 0; i < 8; ++i) {
            mutual.out << qint32(0) << qint8(0) << false << QStringLiteral("cmd.%1").arg(i) << QString() << qint32(8);
            for (int j = 0; j < 8; ++j)
                mutual.out << false << QStringLiteral("cmd.%1").arg(j) << QString() << qint32(0);
        }

        const QList<QPair<const char*, std::function<void()>>> cases{
            {"page count 2^31-1, nothing after",
             [&] {
                 restoreRaw(host, hugeCount.bytes);
                 restoreRaw(host, hugeCount.bytes, true);
             }},
            {"menus nested 200,000 deep", [&] { restoreRaw(host, deepMenus.bytes); }},
            {"sub-action count 2^31-1 past the depth cap", [&] { restoreRaw(host, hugeSubCount.bytes); }},
            {"one host action in 5,000 groups", [&] { restoreRaw(host, repeated.bytes); }},
            {"menus holding each other: restore, save, restore",
             [&] {
                 restoreRaw(host, mutual.bytes);
                 host.restore(host.save());
             }},
        };
        for (const auto& hostile : cases) {
            const double ms = best(3, [&] {
                hostile.second();
                QCoreApplication::sendPostedEvents();
            });
            qInfo("  %-48s %9.3f ms   ratio %6.3f", hostile.first, ms, ms / baseline);
            QVERIFY2(ms < 20 * baseline, hostile.first);
        }
        // The host actions got menus of their own in the last case.
        for (QAction* action : qAsConst(m_actions))
            action->setMenu(nullptr);
    }

    // Menus that share their actions unfold into 2^40 entries if followed blindly.
    void savingSharedMenus()
    {
        ui::RibbonBar ribbon(QStringLiteral("bench"));
        Host host(&ribbon, m_byId);
        buildDirectly(ribbon);
        const double baseline = best(5, [&] { host.save(); });
        QObject owner;
        QList<QAction*> level{new QAction(QStringLiteral("a"), &owner), new QAction(QStringLiteral("b"), &owner)};
        const QList<QAction*> top = level;
        QList<QMenu*> menus;
        for (int i = 0; i < 40; ++i) {
            QList<QAction*> next{new QAction(QStringLiteral("a"), &owner), new QAction(QStringLiteral("b"), &owner)};
            menus << new QMenu;
            menus.last()->addActions(next);
            for (QAction* action : qAsConst(level))
                action->setMenu(menus.last());
            level = next;
        }
        ribbon.clearPages();
        ribbon.addPage(QStringLiteral("P"))->addGroup(QStringLiteral("G"))->addActions(top);
        ui::RibbonSerializer plain(&ribbon);
        const double ms = best(3, [&] { plain.save(); });
        qInfo("save of the large layout (baseline) %9.3f ms; save of 40 levels of shared menus %9.3f ms, ratio %6.3f",
              baseline, ms, ms / baseline);
        QVERIFY(ms < 20 * baseline);
        qDeleteAll(menus);
    }
};

QTEST_MAIN(BenchSerializer)
#include "bench_serializer.moc"
