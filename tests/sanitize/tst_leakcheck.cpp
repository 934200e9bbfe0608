// Leaks a small object tree on purpose. CTest passes this test only when
// LeakSanitizer reports the leak at exit with this test function as the
// allocating frame, which shows that the committed suppressions leave our own
// allocations alone.
#include <QAction>
#include <QtTest>

class tst_LeakCheck : public QObject
{
    Q_OBJECT

private slots:
    void leakAnObjectTree();
};

void tst_LeakCheck::leakAnObjectTree()
{
    auto* owner = new QObject;
    auto* action = new QAction(QStringLiteral("never deleted"), owner);
    QCOMPARE(action->parent(), owner);
    // Nothing holds the tree any more.
}

QTEST_MAIN(tst_LeakCheck)
#include "tst_leakcheck.moc"
