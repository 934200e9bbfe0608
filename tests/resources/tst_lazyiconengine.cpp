// The icon engine behind the customize forms' tool buttons: it must draw
// exactly what QIcon(fileName) draws, only later.
#include "common/LazyIconEngine_p.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace {

QImage filled(QColor colour, QSize size = QSize(32, 32))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

QImage argb(const QPixmap& pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage painted(const QIcon& icon, QSize canvas, const QRect& rect, QIcon::Mode mode)
{
    QImage image(canvas, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, rect, Qt::AlignCenter, mode);
    painter.end();
    return image;
}

} // namespace

class tst_LazyIconEngine : public QObject
{
    Q_OBJECT

private slots:
    void drawsWhatAnIconOfTheFileDraws_data();
    void drawsWhatAnIconOfTheFileDraws();
    void readsTheFileWhenFirstDrawnNotWhenMade();
    void readsTheFileOnce();
    void isNullAsForAnIconOfTheFile();
    void copiesKeepTheImage();
    void buttonsGetTheirFilesIcons();
};

void tst_LazyIconEngine::drawsWhatAnIconOfTheFileDraws_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("size");
    const char* files[] = {TESSARO_RESOURCES_DIR "/plus.png", TESSARO_RESOURCES_DIR "/add-group.png",
                           TESSARO_RESOURCES_DIR "/1remove.png"};
    const std::pair<const char*, QIcon::Mode> modes[] = {
        {"normal", QIcon::Normal}, {"disabled", QIcon::Disabled}, {"active", QIcon::Active}, {"selected", QIcon::Selected}};
    for (const char* file : files) {
        for (const auto& [name, mode] : modes) {
            for (const QSize size : {QSize(16, 16), QSize(17, 17), QSize(24, 24), QSize(32, 32), QSize(33, 33),
                                     QSize(48, 48), QSize(40, 20)})
                QTest::addRow("%s %s %dx%d", QFileInfo(QString::fromLatin1(file)).fileName().toLatin1().constData(), name, size.width(), size.height())
                    << QString::fromLatin1(file) << int(mode) << size;
        }
    }
}

void tst_LazyIconEngine::drawsWhatAnIconOfTheFileDraws()
{
    QFETCH(QString, fileName);
    QFETCH(int, mode);
    QFETCH(QSize, size);
    const QIcon lazy = LazyIconEngine::icon(fileName);
    const QIcon eager(fileName);
    const auto iconMode = QIcon::Mode(mode);
    QCOMPARE(lazy.actualSize(size, iconMode), eager.actualSize(size, iconMode));
    QCOMPARE(argb(lazy.pixmap(size, iconMode)), argb(eager.pixmap(size, iconMode)));
    QCOMPARE(lazy.availableSizes(iconMode), eager.availableSizes(iconMode));
    const QRect rect(QPoint(3, 5), size);
    QCOMPARE(painted(lazy, QSize(64, 64), rect, iconMode), painted(eager, QSize(64, 64), rect, iconMode));
}

void tst_LazyIconEngine::readsTheFileWhenFirstDrawnNotWhenMade()
{
    QTemporaryDir dir;
    const QString fileName = dir.filePath(QStringLiteral("icon.png"));
    QVERIFY(filled(Qt::red).save(fileName));
    QToolButton button;
    button.setIcon(LazyIconEngine::icon(fileName));
    button.resize(button.sizeHint());
    QVERIFY(!button.icon().isNull());

    QVERIFY(filled(Qt::blue).save(fileName));
    QCOMPARE(argb(button.icon().pixmap(32, 32)).pixelColor(16, 16), QColor(Qt::blue));
}

void tst_LazyIconEngine::readsTheFileOnce()
{
    QTemporaryDir dir;
    const QString fileName = dir.filePath(QStringLiteral("icon.png"));
    QVERIFY(filled(Qt::red).save(fileName));
    const QIcon icon = LazyIconEngine::icon(fileName);
    QCOMPARE(argb(icon.pixmap(32, 32)).pixelColor(16, 16), QColor(Qt::red));

    QVERIFY(filled(Qt::blue).save(fileName));
    QCOMPARE(argb(icon.pixmap(32, 32)).pixelColor(16, 16), QColor(Qt::red));
    QCOMPARE(argb(icon.pixmap(16, 16)).pixelColor(8, 8), QColor(Qt::red));
}

void tst_LazyIconEngine::isNullAsForAnIconOfTheFile()
{
    // Qt 5 calls an icon of a missing or broken file not null; styles ask
    // before anything is drawn, and the answer must not change once it is.
    QTemporaryDir dir;
    const QString broken = dir.filePath(QStringLiteral("broken.png"));
    QFile file(broken);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not an image");
    file.close();
    const QString files[] = {QStringLiteral(TESSARO_RESOURCES_DIR "/plus.png"),
                             QStringLiteral(TESSARO_RESOURCES_DIR "/no-such-icon.png"), broken};
    for (const QString& fileName : files) {
        const QIcon lazy = LazyIconEngine::icon(fileName);
        const QIcon eager(fileName);
        QCOMPARE(lazy.isNull(), eager.isNull());
        QCOMPARE(lazy.pixmap(32, 32).isNull(), eager.pixmap(32, 32).isNull());
        QCOMPARE(lazy.isNull(), eager.isNull());
    }
    QVERIFY(LazyIconEngine::icon(QString()).isNull());
}

void tst_LazyIconEngine::copiesKeepTheImage()
{
    QTemporaryDir dir;
    const QString fileName = dir.filePath(QStringLiteral("icon.png"));
    QVERIFY(filled(Qt::green).save(fileName));
    const QIcon icon = LazyIconEngine::icon(fileName);
    const QPixmap yellow = QPixmap::fromImage(filled(Qt::yellow, QSize(64, 64)));

    // Adding to a copy detaches it: the engine is cloned, the original stays.
    QIcon copy = icon;
    copy.addPixmap(yellow);
    QIcon eagerCopy(fileName);
    eagerCopy.addPixmap(yellow);
    QCOMPARE(copy.availableSizes(), (QList<QSize>{QSize(32, 32), QSize(64, 64)}));
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(32, 32)});
    for (const int side : {16, 32, 64}) {
        QCOMPARE(argb(copy.pixmap(side, side)), argb(eagerCopy.pixmap(side, side)));
        QCOMPARE(argb(icon.pixmap(side, side)), argb(QIcon(fileName).pixmap(side, side)));
    }

    const QString plus = QStringLiteral(TESSARO_RESOURCES_DIR "/plus.png");
    QIcon withFile = icon;
    withFile.addFile(dir.filePath(QStringLiteral("missing.png")));
    withFile.addFile(plus, QSize(), QIcon::Disabled);
    QCOMPARE(argb(withFile.pixmap(32, 32, QIcon::Disabled)), argb(QIcon(plus).pixmap(32, 32)));
    QCOMPARE(argb(withFile.pixmap(32, 32)), argb(QIcon(fileName).pixmap(32, 32)));
}

void tst_LazyIconEngine::buttonsGetTheirFilesIcons()
{
    QToolButton plus;
    QToolButton remove;
    LazyIconEngine::setIcons({{&plus, TESSARO_RESOURCES_DIR "/plus.png"}, {&remove, TESSARO_RESOURCES_DIR "/1remove.png"}});
    QCOMPARE(argb(plus.icon().pixmap(32, 32)), argb(QIcon(QStringLiteral(TESSARO_RESOURCES_DIR "/plus.png")).pixmap(32, 32)));
    QCOMPARE(argb(remove.icon().pixmap(32, 32)),
             argb(QIcon(QStringLiteral(TESSARO_RESOURCES_DIR "/1remove.png")).pixmap(32, 32)));
}

// High-DPI pixmaps on, as most hosts have them: the second run of this test
// (tst_lazyiconengine_scaled) draws at twice the pixel density.
int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    tst_LazyIconEngine test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_lazyiconengine.moc"
