// Saving and restoring a large ribbon layout and quick access bar, against
// building the same ribbon directly through the ribbon API in the same run.
#include <tessaro/Tessaro.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QBuffer>
#include <QElapsedTimer>
#include <QHash>
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
};

QTEST_MAIN(BenchSerializer)
#include "bench_serializer.moc"
