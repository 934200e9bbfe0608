#include "ribbontestutil.h"

#include <QtitanRibbon.h>

#include <QMenu>
#include <QRandomGenerator>
#include <QtTest>

using namespace testutil;

namespace {

bool restoreLayout(ui::RibbonSerializer& serializer, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return serializer.restore(buffer);
}

bool restoreQuick(ui::RibbonSerializer& serializer, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return serializer.restoreQuickBar(buffer);
}

int actionCount(ui::RibbonBar& ribbon)
{
    int count = 0;
    for (int p = 0; p < ribbon.pageCount(); ++p) {
        for (int g = 0; g < ribbon.page(p)->groupCount(); ++g)
            count += ribbon.page(p)->groupAt(g)->actions().size();
    }
    return count;
}

int menuDepth(QAction* action)
{
    int depth = 0;
    while (action && action->menu() && !action->menu()->actions().isEmpty()) {
        action = action->menu()->actions().first();
        ++depth;
    }
    return depth;
}

// A valid layout and quick access stream with a bit of everything.
struct Sample
{
    ui::RibbonBar ribbon{QStringLiteral("ctx")};
    QObject host;
    QList<QAction*> hostActions;
    QByteArray layout;
    QByteArray quick;

    Sample()
    {
        for (int i = 0; i < 6; ++i) {
            auto* action = new QAction(colorIcon(Qt::red), QStringLiteral("Команда %1").arg(i), &host);
            action->setObjectName(QStringLiteral("c%1").arg(i));
            hostActions << action;
        }
        auto* menu = new QMenu(&ribbon);
        menu->addAction(hostActions[3]);
        auto* nested = new QAction(QStringLiteral("Вложенное"), &ribbon);
        auto* nestedMenu = new QMenu(&ribbon);
        nestedMenu->addAction(QStringLiteral("Глубже"));
        nestedMenu->addSeparator();
        nested->setMenu(nestedMenu);
        menu->addAction(nested);
        hostActions[2]->setMenu(menu);
        for (int p = 0; p < 3; ++p) {
            Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Страница %1").arg(p));
            for (int g = 0; g < 2; ++g) {
                Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Группа %1").arg(g));
                group->addAction(hostActions[(p + g) % 2]);
                group->addAction(new QAction(QStringLiteral("Текст %1.%2").arg(p).arg(g), &ribbon));
                auto* separator = new QAction(&ribbon);
                separator->setSeparator(true);
                group->addAction(separator);
            }
        }
        Qtitan::RibbonGroup* commands = ribbon.page(0)->groupAt(0);
        commands->addAction(hostActions[2]);
        ui::setGroupButtonType(commands, hostActions[2], ui::Dynamic);
        ui::setActionButtonStyle(commands, hostActions[0], Qt::ToolButtonTextUnderIcon);
        ribbon.addQuickAction(hostActions[4]);
        ribbon.addQuickAction(hostActions[2]);
        ribbon.addQuickAction(new QAction(QStringLiteral("Быстрая"), &ribbon));
        IdSerializer serializer = makeSerializer(&ribbon);
        QBuffer layoutBuffer(&layout);
        layoutBuffer.open(QIODevice::WriteOnly);
        serializer.save(layoutBuffer);
        QBuffer quickBuffer(&quick);
        quickBuffer.open(QIODevice::WriteOnly);
        serializer.saveQuickBar(quickBuffer);
    }

    IdSerializer makeSerializer(ui::RibbonBar* target) const
    {
        IdSerializer serializer(target);
        for (QAction* action : hostActions)
            serializer.addHostAction(action);
        return serializer;
    }
};

// Damaged arrays make qUncompress complain; that is expected here.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    Q_UNUSED(type)
    Q_UNUSED(context)
    Q_UNUSED(message)
}

} // namespace

// What reading these streams costs is measured in bench_serializer.
class tst_RibbonSerializerHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hugePageCountWithNothingAfter();
    void hugeCountsWithSomeData();
    void everyTruncation();
    void everyTruncationCompressed();
    void deepMenuNesting();
    void deepNestingOnQuickBar();
    void hugeSubActionCount();
    void uncompressedSizeClaim();
    void itemBudget();
    void refusedIconsCostOnlyThemselves_data();
    void refusedIconsCostOnlyThemselves();
    void refusedIconOnQuickBar();
    void iconWithoutEndStopsReading_data();
    void iconWithoutEndStopsReading();
    void iconFileNames();
    void damagedStyleValues();
    void sharedMenusSaveBounded();
    void restoredSharedMenusSaveBounded();
    void repeatedHostAction();
    void randomBytes();
    void bitFlips();
};

void tst_RibbonSerializerHostile::hugePageCountWithNothingAfter()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.addPage(QStringLiteral("Старая"));
    ui::RibbonSerializer serializer(&ribbon);
    Writer w;
    w << qint32(5) << qint32(0x7fffffff);
    QVERIFY(restoreLayout(serializer, w.bytes));
    QCOMPARE(ribbon.pageCount(), 0);
    QVERIFY(serializer.restore(qCompress(w.bytes)));
    QCOMPARE(ribbon.pageCount(), 0);

    Writer q;
    q << qint32(5) << qint32(0x7fffffff);
    QVERIFY(restoreQuick(serializer, q.bytes));
    QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    QVERIFY(serializer.restoreQuickBar(qCompress(q.bytes)));
}

void tst_RibbonSerializerHostile::hugeCountsWithSomeData()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    Writer w;
    w << qint32(5) << qint32(0x7fffffff) << QStringLiteral("Первая") << qint32(0x7fffffff);
    w << QStringLiteral("Группа") << true << false << qint32(0x7fffffff);
    w.entry(3, 0, Record::plain(QStringLiteral("Единственная")));
    QVERIFY(restoreLayout(serializer, w.bytes));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0)->title(), QStringLiteral("Первая"));
    QCOMPARE(ribbon.page(0)->groupCount(), 1);
    QCOMPARE(ribbon.page(0)->groupAt(0)->actions().size(), 1);
    QCOMPARE(ribbon.page(0)->groupAt(0)->actions()[0]->text(), QStringLiteral("Единственная"));

    Writer q;
    q << qint32(5) << qint32(0x7fffffff);
    q.entry(0, 0, Record::plain(QStringLiteral("Быстрая")));
    QVERIFY(restoreQuick(serializer, q.bytes));
    QCOMPARE(ribbon.quickAccessBar()->actions().size(), 1);
    // Negative counts read nothing.
    Writer negative;
    negative << qint32(5) << qint32(-5) << QStringLiteral("Нет");
    QVERIFY(restoreLayout(serializer, negative.bytes));
    QCOMPARE(ribbon.pageCount(), 0);
}

void tst_RibbonSerializerHostile::everyTruncation()
{
    Sample sample;
    QVERIFY(sample.layout.size() > 100);
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    IdSerializer serializer = sample.makeSerializer(&ribbon);
    int previousActions = 0;
    for (int size = 0; size <= sample.layout.size(); ++size) {
        QVERIFY(restoreLayout(serializer, sample.layout.left(size)));
        QVERIFY(ribbon.pageCount() <= 3);
        // What is read so far only grows with the data.
        const int actions = actionCount(ribbon);
        QVERIFY2(actions >= previousActions, qPrintable(QString::number(size)));
        previousActions = actions;
    }
    QCOMPARE(ribbon.pageCount(), 3);
    QCOMPARE(actionCount(ribbon), actionCount(sample.ribbon));
    for (int size = 0; size <= sample.quick.size(); ++size) {
        QVERIFY(restoreQuick(serializer, sample.quick.left(size)));
        QVERIFY(ribbon.quickAccessBar()->actions().size() <= 3);
    }
    QCOMPARE(ribbon.quickAccessBar()->actions().size(), 3);
}

void tst_RibbonSerializerHostile::everyTruncationCompressed()
{
    Sample sample;
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    IdSerializer serializer = sample.makeSerializer(&ribbon);
    QtMessageHandler previous = qInstallMessageHandler(quietHandler);
    auto restoreHandler = qScopeGuard([previous] { qInstallMessageHandler(previous); });
    for (int size = 1; size <= sample.layout.size(); size += 7) {
        QVERIFY(serializer.restore(qCompress(sample.layout.left(size))));
        QVERIFY(ribbon.pageCount() <= 3);
    }
    const QByteArray compressed = qCompress(sample.layout);
    for (int size = 1; size < compressed.size(); ++size) {
        QVERIFY(serializer.restore(compressed.left(size)));
        QVERIFY(serializer.restoreQuickBar(compressed.left(size)));
    }
    QVERIFY(serializer.restore(compressed));
    QCOMPARE(ribbon.pageCount(), 3);
}

namespace {

// One action record nesting @p depth menus, each with a single sub-action.
QByteArray nestedRecords(int depth)
{
    Writer w;
    for (int i = 0; i < depth; ++i)
        w << false << QString() << QStringLiteral("m") << qint32(1);
    w << false << QString() << QStringLiteral("лист") << qint32(0);
    return w.bytes;
}

} // namespace

void tst_RibbonSerializerHostile::deepMenuNesting()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    for (int depth : {63, 64, 65, 200000}) {
        Writer w;
        w << qint32(5) << qint32(2) << QStringLiteral("П") << qint32(2);
        w << QStringLiteral("Г") << false << false << qint32(2);
        w << qint32(0) << qint8(0);
        w.raw(nestedRecords(depth));
        w.entry(0, 0, Record::plain(QStringLiteral("после")));
        w << QStringLiteral("Вторая") << false << false << qint32(0);
        w << QStringLiteral("Стр 2") << qint32(0);
        QVERIFY(restoreLayout(serializer, w.bytes));
        // Deeper levels are read over, so the rest of the stream still comes back.
        QCOMPARE(ribbon.pageCount(), 2);
        QCOMPARE(ribbon.page(0)->groupCount(), 2);
        const QList<QAction*> actions = ribbon.page(0)->groupAt(0)->actions();
        QCOMPARE(actions.size(), 2);
        QCOMPARE(actions[1]->text(), QStringLiteral("после"));
        QCOMPARE(menuDepth(actions[0]), qMin(depth, int(ui::RibbonSerializer::maxMenuDepth)));
        QCOMPARE(ribbon.page(1)->title(), QStringLiteral("Стр 2"));
        if (depth <= 64)
            QVERIFY(serializer.save() == qCompress([&] {
                Writer e;
                e << qint32(5) << qint32(2) << QStringLiteral("П") << qint32(2);
                e << QStringLiteral("Г") << false << false << qint32(2);
                e << qint32(0) << qint8(0);
                e.raw(nestedRecords(depth));
                e.entry(0, 0, Record::plain(QStringLiteral("после")));
                e << QStringLiteral("Вторая") << false << false << qint32(0);
                e << QStringLiteral("Стр 2") << qint32(0);
                return e.bytes;
            }()));
    }
}

void tst_RibbonSerializerHostile::deepNestingOnQuickBar()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    Writer w;
    w << qint32(5) << qint32(2);
    w << qint32(0) << qint8(1);
    w.raw(nestedRecords(100000));
    w.entry(0, 0, Record::plain(QStringLiteral("после")));
    QVERIFY(serializer.restoreQuickBar(qCompress(w.bytes)));
    const QList<QAction*> actions = ribbon.quickAccessBar()->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions[1]->text(), QStringLiteral("после"));
    QCOMPARE(ui::getGroupButtonType(ribbon.quickAccessBar(), actions[0]), ui::Dynamic);
}

void tst_RibbonSerializerHostile::hugeSubActionCount()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    w << QStringLiteral("Г") << false << false << qint32(1);
    w << qint32(0) << qint8(1) << false << QString() << QStringLiteral("меню") << qint32(0x7fffffff);
    w << false << QString() << QStringLiteral("один") << qint32(0);
    QVERIFY(restoreLayout(serializer, w.bytes));
    QAction* action = ribbon.page(0)->groupAt(0)->actions().value(0);
    QVERIFY(action);
    QCOMPARE(action->menu()->actions().size(), 1);

    // The same past the depth bound, where records are only read over.
    Writer deep;
    deep << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    deep << QStringLiteral("Г") << false << false << qint32(1) << qint32(0) << qint8(0);
    for (int i = 0; i < ui::RibbonSerializer::maxMenuDepth; ++i)
        deep << false << QString() << QStringLiteral("m") << qint32(1);
    deep << false << QString() << QStringLiteral("m") << qint32(0x7fffffff);
    deep << true << true << false << QString() << QStringLiteral("x") << qint32(0x7fffffff);
    QVERIFY(restoreLayout(serializer, deep.bytes));
    QCOMPARE(menuDepth(ribbon.page(0)->groupAt(0)->actions().value(0)), int(ui::RibbonSerializer::maxMenuDepth));
}

void tst_RibbonSerializerHostile::uncompressedSizeClaim()
{
    ui::RibbonBar source(QStringLiteral("ctx"));
    source.addPage(QStringLiteral("Главная"))->addGroup(QStringLiteral("Группа"));
    source.addQuickAction(new QAction(QStringLiteral("Быстрая"), &source));
    ui::RibbonSerializer sourceSerializer(&source);
    const QByteArray layout = sourceSerializer.save();
    const QByteArray quick = sourceSerializer.saveQuickBar();

    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    auto withClaim = [](QByteArray data, quint32 claim) {
        data[0] = char(claim >> 24);
        data[1] = char(claim >> 16);
        data[2] = char(claim >> 8);
        data[3] = char(claim);
        return data;
    };
    // A claim above the ceiling is not believed: the array counts as one
    // that does not uncompress.
    for (quint32 claim : {quint32(ui::RibbonSerializer::maxUncompressedSize) + 1, 0x7fffffffu, 0xffffffffu}) {
        ribbon.addPage(QStringLiteral("Старая"));
        QVERIFY(serializer.restore(withClaim(layout, claim)));
        QCOMPARE(ribbon.pageCount(), 0);
        ribbon.addQuickAction(new QAction(QStringLiteral("x"), &ribbon));
        QVERIFY(serializer.restoreQuickBar(withClaim(quick, claim)));
        QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    }
    // Claims up to the ceiling are fine.
    QVERIFY(serializer.restore(withClaim(layout, 1024 * 1024)));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0)->title(), QStringLiteral("Главная"));
    QVERIFY(serializer.restoreQuickBar(withClaim(quick, 4096)));
    QCOMPARE(ribbon.quickAccessBar()->actions().size(), 1);
    // Shorter than the size header.
    QVERIFY(serializer.restore(QByteArray("\x00\x00", 2)));
    QCOMPARE(ribbon.pageCount(), 0);
}

void tst_RibbonSerializerHostile::itemBudget()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    const int separators = ui::RibbonSerializer::maxRestoredItems + 1000;
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    w << QStringLiteral("Г") << false << false << qint32(separators);
    for (int i = 0; i < separators; ++i)
        w << qint32(4) << qint8(0) << true;
    QVERIFY(serializer.restore(qCompress(w.bytes)));
    const int restored = ribbon.page(0)->groupAt(0)->actions().size();
    QCOMPARE(restored, ui::RibbonSerializer::maxRestoredItems - 2);
}

namespace {

// A PNG file of a red image, as Qt writes it.
QByteArray realPng(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

// Qt's QIcon encoding of a pixmap icon whose one entry holds @p png.
QByteArray pixmapIconWith(const QByteArray& png)
{
    Writer icon;
    icon << QStringLiteral("QPixmapIconEngine") << qint32(1) << qint32(1);
    icon.raw(png);
    icon << QString() << QSize(16, 16) << quint32(0) << quint32(0);
    return icon.bytes;
}

// What Qt 5's SVG icon engine (a plugin) writes: file names, a compressed
// flag, the compressed documents, then the pixmaps added to the icon.
QByteArray svgEngineIcon()
{
    const QHash<int, QString> files{{0, QStringLiteral("/usr/share/icons/hicolor/scalable/apps/x.svg")}};
    const QHash<int, QByteArray> documents{{0, qCompress("<svg xmlns='http://www.w3.org/2000/svg'/>")}};
    const QHash<int, QPixmap> pixmaps{{0, colorIcon(Qt::red).pixmap(8)}};
    Writer icon;
    icon << QStringLiteral("svg") << files << qint32(1) << documents << qint32(1) << pixmaps;
    return icon.bytes;
}

// An old-version layout whose single text action carries @p iconBytes.
QByteArray oldStreamWithIcon(const QByteArray& iconBytes)
{
    Writer w;
    w << qint32(4) << qint32(1) << QStringLiteral("П") << qint32(1);
    w << QStringLiteral("Г") << QIcon() << false << false << qint32(2);
    w << qint32(0) << qint8(0) << false << QString() << QStringLiteral("с иконкой");
    w.raw(iconBytes);
    w << qint32(0);
    w << qint32(0) << qint8(0) << false << QString() << QStringLiteral("вторая") << QIcon() << qint32(0);
    return w.bytes;
}

} // namespace

void tst_RibbonSerializerHostile::refusedIconsCostOnlyThemselves_data()
{
    QTest::addColumn<QByteArray>("icon");
    Writer fileName;
    fileName << QStringLiteral("QPixmapIconEngine") << qint32(1) << qint32(0) << QStringLiteral("/etc/passwd")
             << QSize(16, 16) << quint32(0) << quint32(0);
    Writer themePath;
    themePath << QStringLiteral("QIconLoaderEngine") << QStringLiteral("../../../etc/passwd");
    Writer badMode;
    badMode << QStringLiteral("QPixmapIconEngine") << qint32(1) << qint32(1);
    badMode.raw(realPng(8, 8));
    badMode << QString() << QSize(8, 8) << quint32(9) << quint32(0);

    QTest::newRow("30000 x 30000 pixels") << pixmapIconWith(testcommon::pngClaimingSize(30000, 30000, 64));
    QTest::newRow("32769 pixels wide") << pixmapIconWith(testcommon::pngClaimingSize(32769, 1, 64));
    QTest::newRow("4097 x 4096 pixels") << pixmapIconWith(testcommon::pngClaimingSize(4097, 4096, 64));
    QTest::newRow("no pixels") << pixmapIconWith(testcommon::pngClaimingSize(0, 16, 64));
    QTest::newRow("image data that does not decode") << pixmapIconWith(testcommon::pngClaimingSize(8, 8, 64));
    QTest::newRow("a file path") << fileName.bytes;
    QTest::newRow("a theme name with a path") << themePath.bytes;
    QTest::newRow("an unknown icon mode") << badMode.bytes;
    QTest::newRow("the SVG engine plugin") << svgEngineIcon();
}

void tst_RibbonSerializerHostile::refusedIconsCostOnlyThemselves()
{
    QFETCH(QByteArray, icon);
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    auto* known = new QAction(colorIcon(Qt::magenta), QStringLiteral("Своя"), &host);
    known->setObjectName(QStringLiteral("known"));
    IdSerializer serializer(&ribbon);
    serializer.addHostAction(known);

    // The refused icon as a group's icon, a text action's icon (before its
    // menu) and an identifier record's icon, each followed by more records.
    Writer w;
    w << qint32(4) << qint32(2) << QStringLiteral("Первая") << qint32(2);
    w << QStringLiteral("Группа");
    w.raw(icon);
    w << true << false << qint32(3);
    w << qint32(2) << qint8(0) << false << QString() << QStringLiteral("Меню");
    w.raw(icon);
    w << qint32(2);
    w << false << QString() << QStringLiteral("Пункт") << colorIcon(Qt::green) << qint32(0);
    w << true;
    w << qint32(0) << qint8(0) << false << QStringLiteral("cmd.known") << QStringLiteral("x") << true;
    w.raw(icon);
    w << qint32(0);
    w << qint32(0) << qint8(0) << false << QString() << QStringLiteral("После") << colorIcon(Qt::blue) << qint32(0);
    w << QStringLiteral("Вторая") << colorIcon(Qt::yellow) << false << false << qint32(0);
    w << QStringLiteral("Следующая") << qint32(0);

    QVERIFY(restoreLayout(serializer, w.bytes));
    QCOMPARE(ribbon.pageCount(), 2);
    QCOMPARE(ribbon.page(1)->title(), QStringLiteral("Следующая"));
    QCOMPARE(ribbon.page(0)->groupCount(), 2);
    Qtitan::RibbonGroup* group = ribbon.page(0)->groupAt(0);
    QVERIFY(group->icon().isNull());
    QVERIFY(group->isControlsCentering());
    const QList<QAction*> actions = group->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions[0]->text(), QStringLiteral("Меню"));
    QVERIFY(actions[0]->icon().isNull());
    QCOMPARE(ui::actionButtonStyle(group, actions[0]), Qt::ToolButtonTextBesideIcon);
    const QList<QAction*> items = actions[0]->menu()->actions();
    QCOMPARE(items.size(), 2);
    QCOMPARE(iconColor(items[0]->icon()), QColor(Qt::green).rgb());
    QVERIFY(items[1]->isSeparator());
    // The host's action keeps its own icon.
    QCOMPARE(actions[1], known);
    QCOMPARE(iconColor(known->icon()), QColor(Qt::magenta).rgb());
    QCOMPARE(actions[2]->text(), QStringLiteral("После"));
    QCOMPARE(iconColor(actions[2]->icon()), QColor(Qt::blue).rgb());
    QCOMPARE(iconColor(ribbon.page(0)->groupAt(1)->icon()), QColor(Qt::yellow).rgb());
}

void tst_RibbonSerializerHostile::refusedIconOnQuickBar()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    Writer q;
    q << qint32(4) << qint32(2);
    q << qint32(0) << qint8(0) << false << QString() << QStringLiteral("Первая");
    q.raw(svgEngineIcon());
    q << qint32(0);
    q << qint32(0) << qint8(0) << false << QString() << QStringLiteral("Вторая") << colorIcon(Qt::blue) << qint32(0);
    QVERIFY(restoreQuick(serializer, q.bytes));
    const QList<QAction*> actions = ribbon.quickAccessBar()->actions();
    QCOMPARE(actions.size(), 2);
    QVERIFY(actions[0]->icon().isNull());
    QCOMPARE(actions[1]->text(), QStringLiteral("Вторая"));
    QCOMPARE(iconColor(actions[1]->icon()), QColor(Qt::blue).rgb());
}

void tst_RibbonSerializerHostile::iconWithoutEndStopsReading_data()
{
    QTest::addColumn<QByteArray>("icon");
    QByteArray longChunk("\x89PNG\r\n\x1a\n", 8);
    longChunk += QByteArray::fromHex("7ffffff0") + "IHDR";
    Writer unknownEngine;
    unknownEngine << QStringLiteral("MyIconEngine") << QByteArray(100, 'x');
    QTest::newRow("chunk longer than the data") << pixmapIconWith(longChunk);
    QTest::newRow("not a PNG file") << pixmapIconWith(QByteArray("P6 20000 20000 255\n"));
    QTest::newRow("first chunk not a header") << pixmapIconWith(QByteArray("\x89PNG\r\n\x1a\n", 8) + testcommon::pngChunk("IDAT", "x"));
    QTest::newRow("an engine of unknown layout") << unknownEngine.bytes;
}

void tst_RibbonSerializerHostile::iconWithoutEndStopsReading()
{
    // Where an icon's end cannot be known, nothing after it can be trusted.
    QFETCH(QByteArray, icon);
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    QVERIFY(restoreLayout(serializer, oldStreamWithIcon(icon)));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0)->groupCount(), 1);
    QVERIFY(ribbon.page(0)->groupAt(0)->actions().isEmpty());

    // The same place with a good icon reads on.
    Writer good;
    good << colorIcon(Qt::green);
    QVERIFY(restoreLayout(serializer, oldStreamWithIcon(good.bytes)));
    const QList<QAction*> actions = ribbon.page(0)->groupAt(0)->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(iconColor(actions[0]->icon()), QColor(Qt::green).rgb());
    QCOMPARE(actions[1]->text(), QStringLiteral("вторая"));
}

void tst_RibbonSerializerHostile::iconFileNames()
{
    Writer icon;
    icon << QStringLiteral("QPixmapIconEngine") << qint32(2);
    icon << qint32(0) << QStringLiteral("/etc/passwd") << qint32(16) << qint32(16) << quint32(0) << quint32(0);
    icon << qint32(0) << QStringLiteral(":/Tessaro/logo.png") << qint32(32) << qint32(32) << quint32(0) << quint32(1);
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    QVERIFY(restoreLayout(serializer, oldStreamWithIcon(icon.bytes)));
    const QList<QAction*> actions = ribbon.page(0)->groupAt(0)->actions();
    QCOMPARE(actions.size(), 2);
    // Only compiled-in images are taken from stored file names.
    QVERIFY(!actions[0]->icon().isNull());
    QCOMPARE(actions[0]->icon().availableSizes(), (QList<QSize>{QSize(32, 32)}));
}

void tst_RibbonSerializerHostile::damagedStyleValues()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ui::RibbonSerializer serializer(&ribbon);
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    w << QStringLiteral("Г") << false << false << qint32(4);
    w.entry(-7, qint8(-128), Record::plain(QStringLiteral("a")));
    w.entry(123456, 127, Record::plain(QStringLiteral("b")));
    w.entry(4, 0, Record::plain(QStringLiteral("c")));
    w.entry(2, 0, Record::plain(QStringLiteral("d")));
    QVERIFY(restoreLayout(serializer, w.bytes));
    Qtitan::RibbonGroup* group = ribbon.page(0)->groupAt(0);
    const QList<QAction*> actions = group->actions();
    QCOMPARE(actions.size(), 4);
    QCOMPARE(ui::actionButtonStyle(group, actions[0]), Qt::ToolButtonIconOnly);
    QCOMPARE(ui::actionButtonStyle(group, actions[1]), Qt::ToolButtonIconOnly);
    QCOMPARE(ui::actionButtonStyle(group, actions[3]), Qt::ToolButtonTextBesideIcon);
    // Any non-zero type other than 1 behaves like 2.
    QCOMPARE(int(ui::getGroupButtonType(group, actions[0])), -128);
    QCOMPARE(int(ui::getGroupButtonType(group, actions[1])), 127);
}

void tst_RibbonSerializerHostile::sharedMenusSaveBounded()
{
    // Menus that share their actions unfold into 2^40 entries if followed blindly.
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    QList<QAction*> level{new QAction(QStringLiteral("a"), &host), new QAction(QStringLiteral("b"), &host)};
    QList<QAction*> top = level;
    for (int i = 0; i < 40; ++i) {
        QList<QAction*> next{new QAction(QStringLiteral("a"), &host), new QAction(QStringLiteral("b"), &host)};
        auto* menu = new QMenu;
        connect(&host, &QObject::destroyed, menu, &QObject::deleteLater);
        menu->addActions(next);
        for (QAction* action : qAsConst(level))
            action->setMenu(menu);
        level = next;
    }
    Qtitan::RibbonGroup* group = ribbon.addPage(QStringLiteral("П"))->addGroup(QStringLiteral("Г"));
    group->addActions(top);
    ribbon.addQuickAction(top[0]);
    ui::RibbonSerializer serializer(&ribbon);
    const QByteArray layout = serializer.save();
    const QByteArray quick = serializer.saveQuickBar();
    QVERIFY(!layout.isEmpty());
    QVERIFY(!quick.isEmpty());
    // What was written reads back.
    ui::RibbonBar other(QStringLiteral("ctx"));
    ui::RibbonSerializer reader(&other);
    QVERIFY(reader.restore(layout));
    QCOMPARE(other.page(0)->groupAt(0)->actions().size(), 2);
    QCOMPARE(menuDepth(other.page(0)->groupAt(0)->actions()[0]), 40);
}

void tst_RibbonSerializerHostile::restoredSharedMenusSaveBounded()
{
    // A stream that gives host actions menus holding each other.
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    IdSerializer serializer(&ribbon);
    QStringList ids;
    for (int i = 0; i < 8; ++i) {
        auto* action = new QAction(QStringLiteral("h%1").arg(i), &host);
        action->setObjectName(QStringLiteral("h%1").arg(i));
        serializer.addHostAction(action);
        ids << QStringLiteral("cmd.h%1").arg(i);
    }
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    w << QStringLiteral("Г") << false << false << qint32(ids.size());
    for (const QString& id : qAsConst(ids)) {
        QList<Record> all;
        for (const QString& sub : qAsConst(ids))
            all << Record::ided(sub, QString());
        w.entry(0, 0, Record::ided(id, QString(), all));
    }
    QVERIFY(restoreLayout(serializer, w.bytes));
    const QByteArray saved = serializer.save();
    QVERIFY(qUncompress(saved).size() < 64 * 1024 * 1024);
    QVERIFY(serializer.restore(saved));
    // The unfolded menus repeat the host actions past their placement bound,
    // so only the first entry keeps its place.
    QVERIFY(!ribbon.page(0)->groupAt(0)->actions().isEmpty());
}

void tst_RibbonSerializerHostile::repeatedHostAction()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    auto* action = new QAction(QStringLiteral("Команда"), &host);
    action->setObjectName(QStringLiteral("cmd"));
    IdSerializer serializer(&ribbon);
    serializer.addHostAction(action);
    const int repeats = 5000;
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(repeats);
    for (int i = 0; i < repeats; ++i) {
        w << QStringLiteral("Г") << false << false << qint32(2);
        w.entry(2, 1, Record::ided(QStringLiteral("cmd.cmd"), QString(), {Record::plain(QStringLiteral("x"))}));
        w.entry(0, 0, Record::plain(QStringLiteral("после")));
    }
    QVERIFY(restoreLayout(serializer, w.bytes));
    QCOMPARE(ribbon.page(0)->groupCount(), repeats);
    int placed = 0;
    for (int g = 0; g < repeats; ++g) {
        const QList<QAction*> actions = ribbon.page(0)->groupAt(g)->actions();
        placed += actions.contains(action);
        QCOMPARE(actions.last()->text(), QStringLiteral("после"));
    }
    QCOMPARE(placed, int(ui::RibbonSerializer::maxActionPlacements));
}

void tst_RibbonSerializerHostile::randomBytes()
{
    QtMessageHandler previous = qInstallMessageHandler(quietHandler);
    QScopedPointer<ui::RibbonBar> ribbon;
    QRandomGenerator random(20261122);
    for (int round = 0; round < 3000; ++round) {
        // Text actions of restored quick access bars stay with the bar, so
        // start from a fresh ribbon now and then.
        if (round % 100 == 0)
            ribbon.reset(new ui::RibbonBar(QStringLiteral("ctx")));
        ui::RibbonSerializer serializer(ribbon.data());
        QByteArray bytes(int(random.bounded(1, 400)), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = char(random.bounded(256));
        // Small versions and counts make the reader go further.
        if (round % 2 && bytes.size() >= 8) {
            bytes[0] = bytes[1] = bytes[2] = 0;
            bytes[3] = char(random.bounded(6));
            bytes[4] = bytes[5] = bytes[6] = 0;
        }
        restoreLayout(serializer, bytes);
        restoreQuick(serializer, bytes);
        serializer.restore(bytes);
        serializer.restoreQuickBar(bytes);
        serializer.restore(qCompress(bytes));
        serializer.restoreQuickBar(qCompress(bytes));
        QCoreApplication::sendPostedEvents();
    }
    qInstallMessageHandler(previous);
    QVERIFY(ribbon->pageCount() >= 0);
}

void tst_RibbonSerializerHostile::bitFlips()
{
    Sample sample;
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    IdSerializer serializer = sample.makeSerializer(&ribbon);
    QRandomGenerator random(7);
    for (int round = 0; round < 1500; ++round) {
        QByteArray layout = sample.layout;
        QByteArray quick = sample.quick;
        for (int flips = int(random.bounded(1, 4)); flips > 0; --flips) {
            const int at = int(random.bounded(layout.size()));
            layout[at] = char(layout.at(at) ^ (1 << random.bounded(8)));
            const int quickAt = int(random.bounded(quick.size()));
            quick[quickAt] = char(quick.at(quickAt) ^ (1 << random.bounded(8)));
        }
        QVERIFY(restoreLayout(serializer, layout) || layout.left(4) != sample.layout.left(4));
        QVERIFY(restoreQuick(serializer, quick) || quick.left(4) != sample.quick.left(4));
        QVERIFY(ribbon.pageCount() <= 0x7fff);
        QCoreApplication::sendPostedEvents();
    }
    // Undamaged streams still restore in full afterwards.
    QVERIFY(restoreLayout(serializer, sample.layout));
    QCOMPARE(ribbon.pageCount(), 3);
}

QTEST_MAIN(tst_RibbonSerializerHostile)
#include "tst_ribbonserializer_hostile.moc"
