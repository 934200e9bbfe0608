// A long seeded run of random edits of the quick access tree. The model is
// watched by QAbstractItemModelTester throughout; after every edit the tree
// must match the live bar, a persistent index must still name its item, and
// saving the bar and restoring it on another ribbon must give the same tree.
#include "quickpaneltestutil.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QtTest>

using namespace quicktest;

namespace {

constexpr int editCount = 1200;
constexpr int maxRows = 40;

QAction* actionOf(const QModelIndex& index)
{
    auto* item = static_cast<QuickPanelTreeItem*>(index.internalPointer());
    return static_cast<QuickActionItem*>(item)->action();
}

void collect(const QAbstractItemModel& model, const QModelIndex& parent, QModelIndexList* out)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        out->append(index);
        collect(model, index, out);
    }
}

// The tree rows hold exactly the bar's visible actions and their menus' actions.
bool sameObjects(const RibbonQuickPanelTreeModel& model, const QModelIndex& parent, const QList<QAction*>& actions)
{
    if (model.rowCount(parent) != actions.size())
        return false;
    for (int row = 0; row < actions.size(); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        QAction* action = actions.at(row);
        if (actionOf(index) != action)
            return false;
        const bool expanded = action->menu() && !isSet(action, "isDynamic");
        if (!sameObjects(model, index, expanded ? action->menu()->actions() : QList<QAction*>()))
            return false;
    }
    return true;
}

// The stream keeps no empty menu: an empty group command comes back as a
// plain command of the same name.
QStringList afterRoundTrip(const QStringList& dump)
{
    QStringList expected = dump;
    for (int i = 0; i < expected.size(); ++i) {
        const int depth = expected[i].indexOf(QRegularExpression(QStringLiteral("\\S")));
        const QString kind = expected[i].mid(depth, 2);
        const bool hasChildren = i + 1 < expected.size()
                                 && expected[i + 1].indexOf(QRegularExpression(QStringLiteral("\\S"))) > depth;
        if (kind == QLatin1String("2|") && !hasChildren)
            expected[i].replace(depth, 1, QLatin1Char('1'));
    }
    return expected;
}

class RandomEditor
{
public:
    RandomEditor(Host& host, const QList<QAction*>& pool, RibbonQuickPanelTreeModel& model, quint32 seed)
        : m_host(host)
        , m_pool(pool)
        , m_model(model)
        , m_random(seed)
    {
    }

    QString editOnce()
    {
        QModelIndexList all;
        collect(m_model, QModelIndex(), &all);
        const QModelIndex at = all.isEmpty() || m_random.bounded(8) == 0 ? QModelIndex()
                                                                         : all.at(m_random.bounded(all.size()));
        // Removals win more often on a crowded bar, so the tree stays the
        // size of a real one and every kind of edit keeps meeting it.
        if (all.size() > maxRows && m_random.bounded(2) == 0) {
            m_model.removeItem(at);
            return QStringLiteral("remove");
        }
        switch (m_random.bounded(10)) {
        case 0:
        case 1:
            return insertCommand(at);
        case 2:
            m_model.addSeparator(at);
            return QStringLiteral("separator");
        case 3:
            m_model.addActionGroup(at);
            return QStringLiteral("group command");
        case 4:
            m_model.removeItem(at);
            return QStringLiteral("remove");
        case 5:
            m_model.moveUp(at);
            return QStringLiteral("up");
        case 6:
            m_model.moveDown(at);
            return QStringLiteral("down");
        case 7:
            return groupRun(at);
        case 8:
            return ungroupRun(all);
        default:
            if (at.isValid())
                m_model.setData(at, QStringLiteral("Имя %1").arg(m_random.bounded(100)), Qt::EditRole);
            return QStringLiteral("rename");
        }
    }

private:
    // As the editor does: the bar takes no second command of the same name;
    // a menu that already has the command is left alone by the model.
    QString insertCommand(const QModelIndex& at)
    {
        QAction* command = m_pool.at(m_random.bounded(m_pool.size()));
        const bool intoBar = !at.isValid() || (!at.parent().isValid() && m_model.itemType(at) != 2);
        if (intoBar && m_host.ribbon.isQuickAction(command))
            return QStringLiteral("insert refused by name");
        m_model.insertAction(at, command);
        return QStringLiteral("insert ") + command->objectName();
    }

    // A run of siblings into a new group command at the end of their level.
    QString groupRun(const QModelIndex& at)
    {
        const QModelIndex parent = at.parent();
        const int rows = m_model.rowCount(parent);
        if (!at.isValid() || rows < 1)
            return QStringLiteral("group: nothing");
        const int first = at.row();
        const int last = first + m_random.bounded(qMin(3, rows - first));
        QModelIndexList run;
        for (int row = first; row <= last; ++row)
            run.append(m_model.index(row, 0, parent));
        const QModelIndex group = m_model.addActionGroup(parent);
        m_model.moveRows(group, run);
        return QStringLiteral("group %1..%2").arg(first).arg(last);
    }

    // A run of a group command's commands out to the level above.
    QString ungroupRun(const QModelIndexList& all)
    {
        QModelIndexList groups;
        for (const QModelIndex& index : all) {
            if (m_model.itemType(index) == 2 && m_model.rowCount(index) > 0)
                groups.append(index);
        }
        if (groups.isEmpty())
            return QStringLiteral("ungroup: nothing");
        const QModelIndex group = groups.at(m_random.bounded(groups.size()));
        const int rows = m_model.rowCount(group);
        const int first = m_random.bounded(rows);
        const int last = first + m_random.bounded(rows - first);
        QModelIndexList run;
        for (int row = last; row >= first; --row)
            run.append(m_model.index(row, 0, group));
        m_model.moveRows(group.parent(), run);
        return QStringLiteral("ungroup %1..%2").arg(first).arg(last);
    }

    Host& m_host;
    QList<QAction*> m_pool;
    RibbonQuickPanelTreeModel& m_model;
    QRandomGenerator m_random;
};

} // namespace

class tst_QuickPanelRandomEdits : public QObject
{
    Q_OBJECT

private slots:
    void treeBarAndStreamAgreeThroughout();
};

void tst_QuickPanelRandomEdits::treeBarAndStreamAgreeThroughout()
{
    const quint32 seed = qEnvironmentVariableIsSet("TESSARO_RANDOM_SEED")
                             ? quint32(qEnvironmentVariableIntValue("TESSARO_RANDOM_SEED"))
                             : 20240611u;
    Host host(16);
    QAction* recent = host.command(QStringLiteral("recent"), QStringLiteral("Последние"), Qt::darkGreen);
    recent->setProperty("isDynamic", true);
    auto* recentMenu = new QMenu(&host.ribbon);
    recentMenu->addActions({host.commands[0], host.commands[1]});
    recent->setMenu(recentMenu);
    QAction* palette = host.command(QStringLiteral("palette"), QStringLiteral("Палитра"), Qt::magenta);
    palette->setProperty("isPopupWidgetAction", true);
    for (int i : {0, 1, 2, 3})
        host.ribbon.addQuickAction(host.commands[i]);
    QAction* hidden = host.commands[4];
    host.ribbon.addQuickAction(hidden);
    host.bar()->setActionVisible(hidden, false);

    RibbonQuickPanelTreeModel model(&host.ribbon);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    ui::RibbonBar restored(QStringLiteral("QuickPanelTest"));
    // The hidden command is never picked, so it must stay hidden and no row.
    QList<QAction*> pool = host.commands;
    pool.removeOne(hidden);
    RandomEditor editor(host, pool, model, seed);
    QRandomGenerator pick(seed ^ 0x5eedu);
    int structuralEdits = 0;

    for (int step = 0; step < editCount; ++step) {
        QModelIndexList all;
        collect(model, QModelIndex(), &all);
        const QPersistentModelIndex watched = all.isEmpty() ? QModelIndex() : all.at(pick.bounded(all.size()));
        QAction* watchedAction = watched.isValid() ? actionOf(watched) : nullptr;
        const QStringList before = dumpTree(model);

        const QString edit = editor.editOnce();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("seed %1, step %2 (%3)").arg(seed).arg(step).arg(edit)));
        const QString where = QStringLiteral("seed %1, step %2 (%3)").arg(seed).arg(step).arg(edit);

        const QStringList tree = dumpTree(model);
        if (tree != before)
            ++structuralEdits;
        QVERIFY2(tree == dumpBar(host), qPrintable(where));
        QVERIFY2(sameObjects(model, QModelIndex(), host.visibleActions()), qPrintable(where));
        QVERIFY2(!host.bar()->isActionVisible(hidden), qPrintable(where));
        if (watched.isValid()) {
            const QModelIndex now = model.index(watched.row(), 0, watched.parent());
            QVERIFY2(now.internalPointer() == watched.internalPointer(), qPrintable(where));
            QVERIFY2(actionOf(now) == watchedAction, qPrintable(where));
        }

        ui::RibbonBar* source = &host.ribbon;
        IdSerializer saver(source, host.commands);
        const QByteArray stream = saver.saveQuickBar();
        const QObjectList children = restored.quickAccessBar()->children();
        const QSet<QObject*> ownBefore(children.cbegin(), children.cend());
        IdSerializer loader(&restored, host.commands);
        QVERIFY2(loader.restoreQuickBar(stream), qPrintable(where));
        RibbonQuickPanelTreeModel restoredModel(&restored);
        QVERIFY2(dumpTree(restoredModel) == afterRoundTrip(tree), qPrintable(where));
        // What the restore made belongs to the other bar; drop it before the next one.
        restored.quickAccessBar()->clear();
        const QObjectList ownAfter = restored.quickAccessBar()->children();
        for (QObject* object : ownAfter) {
            if (!ownBefore.contains(object) && (qobject_cast<QAction*>(object) || qobject_cast<QMenu*>(object)))
                delete object;
        }
        // The bars drop the buttons of removed actions later.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // The run did change the bar most of the time, not only refuse edits.
    QVERIFY2(structuralEdits > editCount / 2, qPrintable(QString::number(structuralEdits)));
}

QTEST_MAIN(tst_QuickPanelRandomEdits)
#include "tst_quickpanelrandomedits.moc"
