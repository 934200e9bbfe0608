// Writes valid stores, one value type per file plus one with everything, as
// the starting corpus of fuzz_keyvaluestorage; host types among them.
#include <tessaro/KeyValueStorage.h>

#include "keyvaluestorage_host_types.h"

#include <QBitArray>
#include <QBrush>
#include <QColor>
#include <QCborValue>
#include <QDateTime>
#include <QDir>
#include <QEasingCurve>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QJsonDocument>
#include <QKeySequence>
#include <QLocale>
#include <QPen>
#include <QPixmap>
#include <QPolygon>
#include <QRegion>
#include <QRegularExpression>
#include <QTimeZone>
#include <QTransform>
#include <QUrl>
#include <QUuid>

#include <cstdio>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    fuzzhost::registerTypes();
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <corpus-dir>\n", argv[0]);
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    dir.mkpath(QStringLiteral("."));

    QEasingCurve overshoot(QEasingCurve::InOutBack);
    overshoot.setOvershoot(2.5);
    QEasingCurve bezier(QEasingCurve::BezierSpline);
    bezier.addCubicBezierSegment(QPointF(0.1, 0.4), QPointF(0.3, 0.9), QPointF(0.5, 0.6));
    bezier.addCubicBezierSegment(QPointF(0.7, 0.2), QPointF(0.9, 0.8), QPointF(1, 1));
    QEasingCurve tcb(QEasingCurve::TCBSpline);
    tcb.addTCBSegment(QPointF(0, 0), 0, 0, 0);
    tcb.addTCBSegment(QPointF(0.4, 0.7), 0.5, 0.2, -0.1);
    tcb.addTCBSegment(QPointF(1, 1), 0, 0, 0);
    const QVariant point = QVariant::fromValue(fuzzhost::Point3{1, -2, 3});
    const QVariant label = QVariant::fromValue(fuzzhost::Label{QStringLiteral("Заголовок"), true});
    QImage wide(1100, 8, QImage::Format_ARGB32);
    wide.fill(QColor(40, 50, 60));

    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30, 40));
    QVariantMap map{{QStringLiteral("x"), 1}, {QStringLiteral("y"), QStringLiteral("z")}};
    QVariantHash hash{{QStringLiteral("h"), 2.5}};

    const QList<QPair<QString, QVariant>> values{
        {QStringLiteral("bool"), true},
        {QStringLiteral("int"), -42},
        {QStringLiteral("uint"), 42u},
        {QStringLiteral("longlong"), -(Q_INT64_C(1) << 40)},
        {QStringLiteral("double"), 3.25},
        {QStringLiteral("float"), QVariant::fromValue(1.5f)},
        {QStringLiteral("char"), QChar(0x416)},
        {QStringLiteral("string"), QStringLiteral("Главное окно")},
        {QStringLiteral("nullstring"), QString()},
        {QStringLiteral("stringlist"), QStringList{QStringLiteral("a"), QStringLiteral("bc")}},
        {QStringLiteral("bytearray"), QByteArray("geometry\0state", 14)},
        {QStringLiteral("bitarray"), QBitArray(11, true)},
        {QStringLiteral("date"), QDate(2024, 2, 29)},
        {QStringLiteral("time"), QTime(13, 14, 15, 16)},
        {QStringLiteral("datetime"), QDateTime(QDate(2020, 1, 2), QTime(3, 4), Qt::UTC)},
        {QStringLiteral("datetimeoffset"), QDateTime(QDate(2020, 1, 2), QTime(3, 4), Qt::OffsetFromUTC, 3600)},
        {QStringLiteral("datetimezone"), QDateTime(QDate(2020, 1, 2), QTime(3, 4), QTimeZone("Europe/Moscow"))},
        {QStringLiteral("url"), QUrl(QStringLiteral("https://example.org/a?b#c"))},
        {QStringLiteral("locale"), QLocale(QLocale::Russian)},
        {QStringLiteral("rect"), QRect(1, 2, 3, 4)},
        {QStringLiteral("rectf"), QRectF(1.5, 2, 3, 4)},
        {QStringLiteral("size"), QSize(5, 6)},
        {QStringLiteral("sizef"), QSizeF(5.5, 6)},
        {QStringLiteral("line"), QLine(1, 2, 3, 4)},
        {QStringLiteral("linef"), QLineF(1, 2, 3, 4.5)},
        {QStringLiteral("point"), QPoint(7, 8)},
        {QStringLiteral("pointf"), QPointF(7.5, 8)},
        {QStringLiteral("regexp"), QRegularExpression(QStringLiteral("a+b"), QRegularExpression::CaseInsensitiveOption)},
        {QStringLiteral("map"), map},
        {QStringLiteral("hash"), hash},
        {QStringLiteral("list"), QVariantList{1, QStringLiteral("s"), QVariantList{map}}},
        {QStringLiteral("easing"), QEasingCurve(QEasingCurve::OutBounce)},
        {QStringLiteral("easingovershoot"), overshoot},
        {QStringLiteral("easingbezier"), bezier},
        {QStringLiteral("easingtcb"), tcb},
        {QStringLiteral("easinglist"), QVariantList{QEasingCurve(QEasingCurve::InQuad), bezier}},
        {QStringLiteral("point3"), point},
        {QStringLiteral("label"), label},
        {QStringLiteral("hostlist"), QVariantList{point, 7, QVariantMap{{QStringLiteral("l"), label}}}},
        {QStringLiteral("extendedrgb"), QColor::fromRgbF(1.25, -0.5, 0.5, 0.75)},
        {QStringLiteral("hsl"), QColor::fromHsl(300, 60, 70, 80)},
        {QStringLiteral("wideicon"), QIcon(QPixmap::fromImage(wide))},
        {QStringLiteral("uuid"), QUuid::createUuidV5(QUuid(), QStringLiteral("tessaro"))},
        {QStringLiteral("json"), QJsonDocument::fromJson("{\"a\":[1,2,{\"b\":null}]}")},
        {QStringLiteral("cbor"), QVariant::fromValue(QCborValue::fromJsonValue(QJsonValue(QStringLiteral("c"))))},
        {QStringLiteral("bytearraylist"), QVariant::fromValue(QByteArrayList{"a", "b"})},
        {QStringLiteral("color"), QColor(1, 2, 3, 4)},
        {QStringLiteral("font"), QFont(QStringLiteral("Sans"), 11, QFont::Bold)},
        {QStringLiteral("image"), image},
        {QStringLiteral("pixmap"), QPixmap::fromImage(image)},
        {QStringLiteral("icon"), QIcon(QPixmap::fromImage(image))},
        {QStringLiteral("brush"), QBrush(QColor(9, 8, 7))},
        {QStringLiteral("gradientbrush"), QBrush(QLinearGradient(0, 0, 1, 1))},
        {QStringLiteral("pen"), QPen(Qt::DashDotLine)},
        {QStringLiteral("polygon"), QPolygon(QVector<QPoint>{{1, 2}, {3, 4}})},
        {QStringLiteral("polygonf"), QPolygonF(QVector<QPointF>{{1, 2}, {3, 4.5}})},
        {QStringLiteral("region"), QRegion(1, 2, 3, 4)},
        {QStringLiteral("keysequence"), QKeySequence(QStringLiteral("Ctrl+S, Ctrl+Q"))},
        {QStringLiteral("transform"), QTransform(1, 2, 3, 4, 5, 6)},
    };

    QByteArray all;
    {
        KeyValueStorage storage(all);
        for (const auto& entry : values)
            storage.setValue(entry.first, entry.second);
    }
    auto write = [&](const QString& name, const QByteArray& bytes) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            std::exit(1);
    };
    write(QStringLiteral("all"), all);
    for (const auto& entry : values) {
        QByteArray one;
        {
            KeyValueStorage storage(one);
            storage.setValue(entry.first, entry.second);
        }
        write(entry.first, one);
    }
    std::printf("%d seeds written to %s\n", int(values.size()) + 1, argv[1]);
    return 0;
}
