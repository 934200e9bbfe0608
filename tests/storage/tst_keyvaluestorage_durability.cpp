// What a user's settings file survives: a process killed while it saves, a
// folder that refuses writes, and a file that does not load.
#include <tessaro/KeyValueStorage.h>

#include "rewriterstore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#if defined(Q_OS_LINUX)
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray storeBytes(const QString& key, const QVariant& value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(1) << key << value;
    return bytes;
}

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

// File permissions bind root only without the capabilities that override
// them, and tests often run as root in containers: while it lives, this
// takes those capabilities out of the calling thread's effective set.
class PermissionsEnforced
{
public:
    PermissionsEnforced()
    {
#if defined(Q_OS_LINUX)
        m_header.version = _LINUX_CAPABILITY_VERSION_3;
        if (syscall(SYS_capget, &m_header, m_saved) != 0)
            return;
        __user_cap_data_struct reduced[2] = {m_saved[0], m_saved[1]};
        for (int capability : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER})
            reduced[capability / 32].effective &= ~(1u << (capability % 32));
        m_active = syscall(SYS_capset, &m_header, reduced) == 0;
#endif
    }
    ~PermissionsEnforced()
    {
#if defined(Q_OS_LINUX)
        if (m_active)
            syscall(SYS_capset, &m_header, m_saved);
#endif
    }

private:
#if defined(Q_OS_LINUX)
    __user_cap_header_struct m_header{};
    __user_cap_data_struct m_saved[2]{};
#endif
    bool m_active = false;
};

// One rewriter run, from its output: the last generation whose save ended
// and the last one whose save began.
struct RewriterRun
{
    int saved = 0;
    int saving = 0;

    RewriterRun(int before, const QByteArray& output)
        : saved(before)
        , saving(before)
    {
        for (const QByteArray& line : output.split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() != 2)
                continue;
            if (words[0] == "saving")
                saving = words[1].toInt();
            else if (words[0] == "saved")
                saved = words[1].toInt();
        }
    }

    bool killedDuringSave() const { return saving > saved; }
};

void startRewriter(QProcess& child, const QString& fileName)
{
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QStringLiteral(KEYVALUESTORAGE_REWRITER), {fileName});
}

} // namespace

class tst_KeyValueStorageDurability : public QObject
{
    Q_OBJECT

private slots:
    void killedWhileSavingLeavesOldOrNewFile();
    void saveIntoRefusingFolderLeavesOldFile();
    void unreadableFileIsKeptAside_data();
    void unreadableFileIsKeptAside();
    void olderKeptFileIsReplaced();
    void fileThatMayNotBeReadIsKeptAside();
    void nothingIsKeptAsideWithoutCause_data();
    void nothingIsKeptAsideWithoutCause();
    void unreadableFileOnlyReadIsLeftAlone();
};

void tst_KeyValueStorageDurability::killedWhileSavingLeavesOldOrNewFile()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fileName = dir.filePath(QStringLiteral("settings.dat"));
    {
        KeyValueStorage store(fileName);
        store.setValue(rewriter::generationKey(), 1);
        store.setValue(rewriter::payloadKey(), rewriter::payloadFor(1));
    }

    // How long one round of the rewriter takes here, and the save within it,
    // so that the kills spread over whole rounds and over saves (measured,
    // never asserted: sanitizers and load change the proportions).
    qint64 roundMs = 0;
    qint64 saveMs = 0;
    {
        QProcess child;
        startRewriter(child, fileName);
        QVERIFY(child.waitForStarted());
        QElapsedTimer timer;
        QElapsedTimer save;
        qint64 savingTotal = 0;
        int rounds = -1;
        while (rounds < 3 && child.waitForReadyRead(60000)) {
            while (child.canReadLine()) {
                const QByteArray line = child.readLine();
                if (line.startsWith("saving")) {
                    save.start();
                } else if (line.startsWith("saved") && ++rounds == 0) {
                    timer.start();
                } else if (line.startsWith("saved") && save.isValid()) {
                    savingTotal += save.elapsed();
                }
            }
        }
        QCOMPARE(rounds, 3);
        roundMs = qMax<qint64>(timer.elapsed() / rounds, 1);
        saveMs = qMax<qint64>(savingTotal / rounds, 1);
        child.kill();
        QVERIFY(child.waitForFinished());
    }

    QRandomGenerator random(20261123);
    const int kills = 50;
    int generation = KeyValueStorage(fileName).value(rewriter::generationKey()).toInt();
    int killsDuringSave = 0;
    int temporaryFilesLeft = 0;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess child;
        startRewriter(child, fileName);
        QVERIFY(child.waitForStarted());
        // From the start of its first save, a random moment within two
        // rounds, or every other time within the save itself.
        QVERIFY(child.waitForReadyRead(60000));
        const qint64 span = kill % 2 ? saveMs : 2 * roundMs;
        QTest::qSleep(1 + int(random.bounded(int(span))));
        child.kill();
        QVERIFY(child.waitForFinished());
        const RewriterRun run(generation, child.readAllStandardOutput());
        killsDuringSave += run.killedDuringSave();

        KeyValueStorage store(fileName);
        const int found = store.value(rewriter::generationKey(), 0).toInt();
        const QString where = QStringLiteral("kill %1: file holds generation %2, saved %3, saving %4")
                                  .arg(kill)
                                  .arg(found)
                                  .arg(run.saved)
                                  .arg(run.saving);
        QVERIFY2(found == run.saved || found == run.saving, qPrintable(where));
        QVERIFY2(store.value(rewriter::payloadKey()).toByteArray() == rewriter::payloadFor(found), qPrintable(where));
        generation = found;

        // A killed save leaves its temporary file beside the store.
        for (const QString& name : filesIn(dir.path())) {
            if (name != QLatin1String("settings.dat")) {
                QVERIFY2(name.startsWith(QLatin1String("settings.dat.")), qPrintable(name));
                QVERIFY(QFile::remove(dir.filePath(name)));
                ++temporaryFilesLeft;
            }
        }
    }
    qInfo("%d kills, %d of them during a save (%d temporary files left behind), last generation %d", kills,
          killsDuringSave, temporaryFilesLeft, generation);
    // The kills must have hit saves often enough to mean something.
    QVERIFY2(killsDuringSave >= kills / 10, qPrintable(QString::number(killsDuringSave)));
}

void tst_KeyValueStorageDurability::saveIntoRefusingFolderLeavesOldFile()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString folder = dir.filePath(QStringLiteral("locked"));
    QVERIFY(QDir().mkpath(folder));
    const QString fileName = folder + QStringLiteral("/settings.dat");
    const QByteArray original = storeBytes(QStringLiteral("a"), 1);
    QVERIFY(writeFile(fileName, original));
    const QFile::Permissions readOnly = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
                                        | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(folder, readOnly));
    auto unlock = qScopeGuard([&] { QFile::setPermissions(folder, readOnly | QFile::WriteOwner); });
    {
        PermissionsEnforced enforced;
        QFile probe(folder + QStringLiteral("/probe"));
        if (probe.open(QIODevice::WriteOnly)) {
            probe.remove();
            QSKIP("This process may write into a read-only folder; nothing to test here.");
        }
        KeyValueStorage store(fileName);
        QCOMPARE(store.value(QStringLiteral("a")), QVariant(1));
        store.setValue(QStringLiteral("a"), 2);
        store.setValue(QStringLiteral("b"), QStringLiteral("new"));
    }
    // The file itself was writable, but the store never writes into the old file.
    QCOMPARE(readFile(fileName), original);
    QCOMPARE(filesIn(folder), QStringList{QStringLiteral("settings.dat")});
}

void tst_KeyValueStorageDurability::unreadableFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray good = storeBytes(QStringLiteral("a"), QStringLiteral("something long enough"));
    QByteArray unknownType;
    {
        QDataStream out(&unknownType, QIODevice::WriteOnly);
        out << qint32(1) << QStringLiteral("a") << quint32(QMetaType::User) << qint8(0) << "NotRegistered" << qint32(5);
    }
    QTest::newRow("not a store") << QByteArray("[General]\nwidth=800\n");
    QTest::newRow("cut short") << good.left(good.size() - 5);
    QTest::newRow("a type nobody registered") << unknownType;
}

void tst_KeyValueStorageDurability::unreadableFileIsKeptAside()
{
    QFETCH(QByteArray, content);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fileName = dir.filePath(QStringLiteral("settings.dat"));
    QVERIFY(writeFile(fileName, content));
    {
        KeyValueStorage store(fileName);
        QVERIFY(!store.value(QStringLiteral("a")).isValid());
        store.setValue(QStringLiteral("b"), 2);
    }
    QCOMPARE(readFile(fileName + QStringLiteral(".unreadable")), content);
    QCOMPARE(readFile(fileName), storeBytes(QStringLiteral("b"), 2));
    QCOMPARE(filesIn(dir.path()), (QStringList{QStringLiteral("settings.dat"), QStringLiteral("settings.dat.unreadable")}));
}

void tst_KeyValueStorageDurability::olderKeptFileIsReplaced()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fileName = dir.filePath(QStringLiteral("settings.dat"));
    const QString aside = fileName + QStringLiteral(".unreadable");
    QVERIFY(writeFile(aside, "kept the first time"));
    QVERIFY(writeFile(fileName, "damaged the second time"));
    {
        KeyValueStorage store(fileName);
        store.setValue(QStringLiteral("b"), 2);
    }
    QCOMPARE(readFile(aside), QByteArray("damaged the second time"));
    QCOMPARE(readFile(fileName), storeBytes(QStringLiteral("b"), 2));
    // Once it loads, the next save keeps nothing aside again.
    QVERIFY(QFile::remove(aside));
    {
        KeyValueStorage store(fileName);
        QCOMPARE(store.value(QStringLiteral("b")), QVariant(2));
        store.setValue(QStringLiteral("b"), 3);
    }
    QVERIFY(!QFile::exists(aside));
}

void tst_KeyValueStorageDurability::fileThatMayNotBeReadIsKeptAside()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fileName = dir.filePath(QStringLiteral("settings.dat"));
    const QByteArray original = storeBytes(QStringLiteral("a"), 1);
    QVERIFY(writeFile(fileName, original));
    QVERIFY(QFile::setPermissions(fileName, QFile::WriteOwner));
    {
        PermissionsEnforced enforced;
        QFile probe(fileName);
        if (probe.open(QIODevice::ReadOnly))
            QSKIP("This process may read a file without read permission; nothing to test here.");
        KeyValueStorage store(fileName);
        QVERIFY(!store.value(QStringLiteral("a")).isValid());
        store.setValue(QStringLiteral("b"), 2);
    }
    const QString aside = fileName + QStringLiteral(".unreadable");
    QVERIFY(QFile::setPermissions(aside, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(readFile(aside), original);
    QCOMPARE(readFile(fileName), storeBytes(QStringLiteral("b"), 2));
}

void tst_KeyValueStorageDurability::nothingIsKeptAsideWithoutCause_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a missing file") << false << QByteArray();
    QTest::newRow("an empty file") << true << QByteArray();
    QTest::newRow("a store") << true << storeBytes(QStringLiteral("a"), 1);
    QTest::newRow("a store of negative count") << true << QByteArray("\xff\xff\xff\xfe", 4);
}

void tst_KeyValueStorageDurability::nothingIsKeptAsideWithoutCause()
{
    QFETCH(bool, exists);
    QFETCH(QByteArray, content);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fileName = dir.filePath(QStringLiteral("settings.dat"));
    if (exists)
        QVERIFY(writeFile(fileName, content));
    {
        KeyValueStorage store(fileName);
        store.setValue(QStringLiteral("b"), 2);
    }
    QCOMPARE(filesIn(dir.path()), QStringList{QStringLiteral("settings.dat")});
    KeyValueStorage store(fileName);
    QCOMPARE(store.value(QStringLiteral("b")), QVariant(2));
}

void tst_KeyValueStorageDurability::unreadableFileOnlyReadIsLeftAlone()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString fileName = dir.filePath(QStringLiteral("settings.dat"));
    QVERIFY(writeFile(fileName, "not a store"));
    {
        KeyValueStorage store(fileName);
        QVERIFY(!store.value(QStringLiteral("a")).isValid());
    }
    QCOMPARE(readFile(fileName), QByteArray("not a store"));
    QCOMPARE(filesIn(dir.path()), QStringList{QStringLiteral("settings.dat")});
}

QTEST_MAIN(tst_KeyValueStorageDurability)
#include "tst_keyvaluestorage_durability.moc"
