// Writes the seed corpora of the ribbon fuzz targets: valid layout and quick
// access bar streams (current and old versions, with identifiers, menus,
// separators and icons), raw for the device targets and compressed for the
// array targets:
//   ribbon_seeds <dir>   ->  <dir>/layout-raw, layout, quick-raw, quick
#include "ribbon_fuzz.h"

#include <tessaro/RibbonControls.h>

#include <QtitanRibbon.h>

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QIcon>
#include <QPixmap>

#include <cstdio>

namespace {

void write(const QString& dir, const QString& name, const QByteArray& bytes)
{
    QDir().mkpath(dir);
    QFile file(dir + QLatin1Char('/') + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

void writeBoth(const QString& root, const QString& kind, const QString& name, const QByteArray& raw)
{
    write(root + QLatin1Char('/') + kind + QStringLiteral("-raw"), name, raw);
    write(root + QLatin1Char('/') + kind, name, qCompress(raw));
}

QIcon colorIcon(Qt::GlobalColor color)
{
    QPixmap pixmap(8, 8);
    pixmap.fill(color);
    return QIcon(pixmap);
}

// An old stream with icons on text records and, from version 1, has-icon flags.
QByteArray oldStream(int version)
{
    QByteArray bytes;
    QDataStream s(&bytes, QIODevice::WriteOnly);
    s << qint32(version) << qint32(1) << QStringLiteral("Старая") << qint32(1);
    s << QStringLiteral("Группа") << colorIcon(Qt::blue) << true << false << qint32(3);
    s << qint32(3) << qint8(0) << false << QString() << QStringLiteral("Текст") << colorIcon(Qt::red) << qint32(1);
    s << false << QString() << QStringLiteral("Пункт") << QIcon() << qint32(0);
    s << qint32(2) << qint8(1) << false << QStringLiteral("cmd.menu") << QStringLiteral("Меню");
    if (version >= 1)
        s << true << colorIcon(Qt::green);
    s << qint32(0);
    s << qint32(4) << qint8(0) << true;
    return bytes;
}

// A version 4 stream whose group and text action carry @p icon (Qt's QIcon
// encoding), followed by another action and another group.
QByteArray oldStreamWithIcon(const QByteArray& icon)
{
    QByteArray bytes;
    QDataStream s(&bytes, QIODevice::WriteOnly);
    s << qint32(4) << qint32(1) << QStringLiteral("Иконки") << qint32(2) << QStringLiteral("Группа");
    s.writeRawData(icon.constData(), icon.size());
    s << false << false << qint32(2);
    s << qint32(0) << qint8(0) << false << QString() << QStringLiteral("С иконкой");
    s.writeRawData(icon.constData(), icon.size());
    s << qint32(0);
    s << qint32(0) << qint8(0) << false << QStringLiteral("cmd.0") << QStringLiteral("т") << true;
    s.writeRawData(icon.constData(), icon.size());
    s << qint32(0);
    s << QStringLiteral("Вторая") << QIcon() << false << false << qint32(0);
    return bytes;
}

// Icons a version 4 stream may carry: accepted, refused but read over, and
// one whose end only its engine knows.
QList<QPair<QString, QByteArray>> storedIcons()
{
    auto encoded = [](auto write) {
        QByteArray bytes;
        QDataStream s(&bytes, QIODevice::WriteOnly);
        write(s);
        return bytes;
    };
    QPixmap wide(1100, 8);
    wide.fill(Qt::darkCyan);
    return {
        {QStringLiteral("icon-wide"), encoded([&](QDataStream& s) { s << QIcon(wide); })},
        {QStringLiteral("icon-theme"),
         encoded([](QDataStream& s) { s << QStringLiteral("QIconLoaderEngine") << QStringLiteral("document-open"); })},
        {QStringLiteral("icon-file"), encoded([](QDataStream& s) {
             s << QStringLiteral("QPixmapIconEngine") << qint32(2) << qint32(0) << QStringLiteral("/etc/passwd")
               << QSize(16, 16) << quint32(0) << quint32(0) << qint32(0) << QStringLiteral(":/Tessaro/logo.png")
               << QSize(32, 32) << quint32(0) << quint32(1);
         })},
        {QStringLiteral("icon-svg"), encoded([](QDataStream& s) {
             s << QStringLiteral("svg") << QHash<int, QString>{{0, QStringLiteral("x.svg")}} << qint32(1)
               << QHash<int, QByteArray>{{0, qCompress("<svg/>")}} << qint32(1)
               << QHash<int, QPixmap>{{0, colorIcon(Qt::red).pixmap(8)}};
         })},
        {QStringLiteral("icon-plugin"), encoded([](QDataStream& s) { s << QStringLiteral("MyIconEngine") << qint32(7); })},
    };
}

} // namespace

int main(int argc, char** argv)
{
    ribbonfuzz::initialize(&argc, &argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <corpus-dir>\n", argv[0]);
        return 2;
    }
    const QString root = QString::fromLocal8Bit(argv[1]);

    ui::RibbonBar ribbon(QStringLiteral("fuzz"));
    ribbonfuzz::Host host(&ribbon);
    writeBoth(root, QStringLiteral("layout"), QStringLiteral("empty"), [&] {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        host.save(buffer);
        return buffer.data();
    }());

    QObject owner;
    Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Главная"));
    Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Буфер"));
    group->setControlsCentering(true);
    auto* text = new QAction(QStringLiteral("Текстовая"), &owner);
    auto* menu = new QMenu;
    QObject::connect(&owner, &QObject::destroyed, menu, [menu] { delete menu; });
    auto* nested = new QAction(QStringLiteral("Вложенная"), &owner);
    auto* nestedMenu = new QMenu;
    QObject::connect(&owner, &QObject::destroyed, nestedMenu, [nestedMenu] { delete nestedMenu; });
    nestedMenu->addAction(QStringLiteral("Глубже"));
    nestedMenu->addSeparator();
    nested->setMenu(nestedMenu);
    menu->addAction(QStringLiteral("Первая"));
    menu->addAction(nested);
    text->setMenu(menu);
    group->addAction(text);
    auto* separator = new QAction(&owner);
    separator->setSeparator(true);
    group->addAction(separator);
    group->addAction(new QAction(QStringLiteral("Простая"), &owner));
    ui::setGroupButtonType(group, text, ui::DynamicLite);
    ui::setActionButtonStyle(group, text, Qt::ToolButtonTextBesideIcon);
    page->addGroup(QStringLiteral("Пустая"));
    ribbon.addPage(QStringLiteral("Вид"))->addGroup(QStringLiteral("Окна"))->addAction(new QAction(QStringLiteral("Окно"), &owner));
    ribbon.addQuickAction(new QAction(QStringLiteral("Быстрая"), &owner));
    auto* quickSeparator = new QAction(&owner);
    quickSeparator->setSeparator(true);
    ribbon.addQuickAction(quickSeparator);
    auto* undo = new QAction(QStringLiteral("Отменить"), &owner);
    auto* undoMenu = new QMenu;
    QObject::connect(&owner, &QObject::destroyed, undoMenu, [undoMenu] { delete undoMenu; });
    undoMenu->addAction(QStringLiteral("Шаг"));
    undo->setMenu(undoMenu);
    ribbon.addQuickAction(undo);
    ui::setGroupButtonType(ribbon.quickAccessBar(), undo, ui::Dynamic);

    QBuffer layout;
    layout.open(QIODevice::WriteOnly);
    host.save(layout);
    writeBoth(root, QStringLiteral("layout"), QStringLiteral("text"), layout.data());
    QBuffer quick;
    quick.open(QIODevice::WriteOnly);
    host.saveQuickBar(quick);
    writeBoth(root, QStringLiteral("quick"), QStringLiteral("text"), quick.data());

    // The same ribbon holding the host's own actions, stored by identifier.
    ribbon.clearPages();
    ribbon.clearQuickActions();
    QByteArray hosted;
    {
        QByteArray stream;
        QDataStream s(&stream, QIODevice::WriteOnly);
        s << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1) << QStringLiteral("Г") << false << false << qint32(6);
        for (const char* id : {"cmd.0", "cmd.menu", "cmd.widget", "cmd.popup", "cmd.dynamic", "cmd.unknown"})
            s << qint32(3) << qint8(1) << false << QString::fromLatin1(id) << QStringLiteral("т") << qint32(0);
        hosted = stream;
    }
    writeBoth(root, QStringLiteral("layout"), QStringLiteral("hosted"), hosted);
    {
        QByteArray stream;
        QDataStream s(&stream, QIODevice::WriteOnly);
        s << qint32(5) << qint32(3);
        s << qint32(0) << qint8(2) << false << QStringLiteral("cmd.menu") << QStringLiteral("Меню") << qint32(1);
        s << false << QStringLiteral("cmd.1") << QStringLiteral("1") << qint32(0);
        s << qint32(0) << qint8(0) << false << QStringLiteral("cmd.widget") << qint32(0);
        s << qint32(4) << qint8(0) << true;
        writeBoth(root, QStringLiteral("quick"), QStringLiteral("hosted"), stream);
    }
    for (int version : {0, 1, 4})
        writeBoth(root, QStringLiteral("layout"), QStringLiteral("v%1").arg(version), oldStream(version));
    for (const auto& icon : storedIcons())
        writeBoth(root, QStringLiteral("layout"), icon.first, oldStreamWithIcon(icon.second));
    return 0;
}
