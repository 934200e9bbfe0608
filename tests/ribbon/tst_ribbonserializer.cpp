#include "common/faketranslator.h"
#include "ribbontestutil.h"

#include <QtitanRibbon.h>

#include <QComboBox>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>
#include <QtTest>

using namespace testutil;

namespace {

QAction* hostAction(QObject* owner, const QString& name, const QString& text, const QIcon& icon = QIcon())
{
    auto* action = new QAction(icon, text, owner);
    action->setObjectName(name);
    return action;
}

QAction* separatorIn(QWidget* container)
{
    auto* separator = new QAction(container);
    separator->setSeparator(true);
    container->addAction(separator);
    return separator;
}

QMenu* menuOf(QAction* action, const QList<QAction*>& items, QObject* owner)
{
    auto* menu = new QMenu;
    QObject::connect(owner, &QObject::destroyed, menu, &QObject::deleteLater);
    for (QAction* item : items)
        menu->addAction(item);
    action->setMenu(menu);
    return menu;
}

QByteArray saveLayout(ui::RibbonSerializer& serializer)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!serializer.save(buffer))
        return QByteArray();
    return buffer.data();
}

QByteArray saveQuick(ui::RibbonSerializer& serializer)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!serializer.saveQuickBar(buffer))
        return QByteArray();
    return buffer.data();
}

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

Qtitan::RibbonGroup* groupAt(ui::RibbonBar& ribbon, int page, int group)
{
    Qtitan::RibbonPage* p = ribbon.page(page);
    return p ? p->groupAt(group) : nullptr;
}

QToolButton* quickButton(Qtitan::RibbonQuickAccessBar* bar, QAction* action)
{
    return qobject_cast<QToolButton*>(bar->widgetForAction(action));
}

} // namespace

class tst_RibbonSerializer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutBytesWithoutIdentifiers();
    void layoutBytesWithIdentifiers();
    void quickBarBytes();
    void baseRoundTripGivesTextActions();
    void firstSubActionIcon();
    void versionSixIsRejected();
    void quickBarCountZero();
    void quickBarRestore();
    void fullRoundTrip();
    void popupWidgetActionInGroup();
    void unknownIdentifierIsDropped();
    void versionFourWithIcons();
    void versionZeroWithIcons();
    void versionFourWithLargeIcons_data();
    void versionFourWithLargeIcons();
    void translatesStoredTexts();
    void failures();
    void undecompressableArray();
    void copyable();
};

void tst_RibbonSerializer::layoutBytesWithoutIdentifiers()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonPage* home = ribbon.addPage(QStringLiteral("Главная"));
    Qtitan::RibbonGroup* clipboard = home->addGroup(QStringLiteral("Буфер обмена"));
    clipboard->setControlsCentering(true);
    QAction* paste = hostAction(&ribbon, QStringLiteral("paste"), QStringLiteral("Вставить"), colorIcon(Qt::red));
    clipboard->addAction(paste);
    separatorIn(clipboard);
    QAction* copy = hostAction(&ribbon, QStringLiteral("copy"), QStringLiteral("Копировать"));
    menuOf(copy, {new QAction(QStringLiteral("Как текст"), &ribbon), new QAction(QStringLiteral("Как рисунок"), &ribbon)}, &ribbon);
    clipboard->addAction(copy);
    auto* fontSize = new QWidgetAction(&ribbon);
    fontSize->setText(QStringLiteral("Размер шрифта"));
    fontSize->setDefaultWidget(new QComboBox);
    clipboard->addAction(fontSize);
    QAction* recent = hostAction(&ribbon, QStringLiteral("recent"), QStringLiteral("Недавние"));
    menuOf(recent, {new QAction(QStringLiteral("1"), &ribbon), new QAction(QStringLiteral("2"), &ribbon),
                    new QAction(QStringLiteral("3"), &ribbon)}, &ribbon);
    recent->setProperty("isDynamic", true);
    clipboard->addAction(recent);
    home->addGroup(QStringLiteral("Пустая"));
    ribbon.addPage(QStringLiteral("Вид"));

    ui::setActionButtonStyle(clipboard, paste, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(clipboard, copy, Qt::ToolButtonTextBesideIcon);
    ui::setGroupButtonType(clipboard, copy, ui::Dynamic);
    ui::setActionButtonStyle(clipboard, recent, Qt::ToolButtonTextOnly);
    QCOMPARE(copy->text(), QStringLiteral("Как текст"));

    Writer expected;
    expected << qint32(5) << qint32(2);
    expected << QStringLiteral("Главная") << qint32(2);
    expected << QStringLiteral("Буфер обмена") << true << false << qint32(5);
    expected.entry(3, 0, Record::plain(QStringLiteral("Вставить")));
    expected.entry(4, 0, Record::sep());
    expected.entry(2, 1, Record::plain(QStringLiteral("Как текст"),
                                       {Record::plain(QStringLiteral("Как текст")), Record::plain(QStringLiteral("Как рисунок"))}));
    expected.entry(0, 0, Record::plain(QStringLiteral("Размер шрифта")));
    expected.entry(1, 0, Record::plain(QStringLiteral("Недавние")));
    expected << QStringLiteral("Пустая") << false << false << qint32(0);
    expected << QStringLiteral("Вид") << qint32(0);

    ui::RibbonSerializer serializer(&ribbon);
    QCOMPARE(saveLayout(serializer).toHex(), expected.bytes.toHex());
    QCOMPARE(serializer.save(), qCompress(expected.bytes));
    // The separator entry is exactly style 4, type 0 and one false... true byte.
    const QByteArray separatorEntry = QByteArray::fromHex("00000004" "00" "01");
    QVERIFY(expected.bytes.contains(separatorEntry));
}

void tst_RibbonSerializer::layoutBytesWithIdentifiers()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonGroup* group = ribbon.addPage(QStringLiteral("П"))->addGroup(QStringLiteral("Г"));
    QAction* open = hostAction(&ribbon, QStringLiteral("open"), QStringLiteral("Открыть"));
    auto* fontSize = new QWidgetAction(&ribbon);
    fontSize->setObjectName(QStringLiteral("fontSize"));
    fontSize->setText(QStringLiteral("Размер"));
    fontSize->setDefaultWidget(new QComboBox);
    QAction* loose = new QAction(QStringLiteral("Своя"), &ribbon);
    auto* looseWidget = new QWidgetAction(&ribbon);
    looseWidget->setText(QStringLiteral("Свой виджет"));
    looseWidget->setDefaultWidget(new QComboBox);
    group->addAction(open);
    group->addAction(fontSize);
    group->addAction(loose);
    group->addAction(looseWidget);
    ui::setActionButtonStyle(group, open, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(group, loose, Qt::ToolButtonIconOnly);

    IdSerializer serializer(&ribbon);
    serializer.addHostAction(open);
    serializer.addHostAction(fontSize);

    Writer expected;
    expected << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    expected << QStringLiteral("Г") << false << false << qint32(4);
    expected.entry(3, 0, Record::ided(QStringLiteral("cmd.open"), QStringLiteral("Открыть")));
    expected.entry(0, 0, Record::widget(QStringLiteral("cmd.fontSize")));
    expected.entry(0, 0, Record::plain(QStringLiteral("Своя")));
    expected.entry(0, 0, Record::plain(QStringLiteral("Свой виджет")));
    QCOMPARE(saveLayout(serializer).toHex(), expected.bytes.toHex());
    QCOMPARE(serializer.save(), qCompress(expected.bytes));
}

void tst_RibbonSerializer::quickBarBytes()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonQuickAccessBar* bar = ribbon.quickAccessBar();
    QAction* open = new QAction(QStringLiteral("Открыть"), &ribbon);
    QAction* separator = new QAction(&ribbon);
    separator->setSeparator(true);
    QAction* hidden = new QAction(QStringLiteral("Скрытая"), &ribbon);
    QAction* undo = new QAction(QStringLiteral("Отменить"), &ribbon);
    menuOf(undo, {new QAction(QStringLiteral("Шаг 1"), &ribbon), new QAction(QStringLiteral("Шаг 2"), &ribbon)}, &ribbon);
    for (QAction* action : {open, separator, hidden, undo})
        ribbon.addQuickAction(action);
    bar->setActionVisible(hidden, false);
    QCOMPARE(bar->visibleCount(), 3);
    ui::setGroupButtonType(bar, undo, ui::DynamicLite);
    ui::setActionButtonStyle(bar, open, Qt::ToolButtonTextBesideIcon);
    QVERIFY(quickButton(bar, open));
    QVERIFY(quickButton(bar, undo));

    Writer expected;
    expected << qint32(5) << qint32(3);
    expected.entry(quickButton(bar, open)->toolButtonStyle(), 0, Record::plain(QStringLiteral("Открыть")));
    expected.entry(4, 0, Record::sep());
    expected.entry(quickButton(bar, undo)->toolButtonStyle(), 2,
                   Record::plain(QStringLiteral("Шаг 1"), {Record::plain(QStringLiteral("Шаг 1")), Record::plain(QStringLiteral("Шаг 2"))}));
    QCOMPARE(int(quickButton(bar, open)->toolButtonStyle()), 2);

    ui::RibbonSerializer serializer(&ribbon);
    QCOMPARE(saveQuick(serializer).toHex(), expected.bytes.toHex());
    QCOMPARE(serializer.saveQuickBar(), qCompress(expected.bytes));
}

void tst_RibbonSerializer::baseRoundTripGivesTextActions()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonGroup* group = ribbon.addPage(QStringLiteral("Главная"))->addGroup(QStringLiteral("Правка"));
    QAction* paste = hostAction(&ribbon, QStringLiteral("paste"), QStringLiteral("Вставить"), colorIcon(Qt::red));
    QAction* separator = separatorIn(group);
    group->insertAction(separator, paste);
    QAction* copy = hostAction(&ribbon, QStringLiteral("copy"), QStringLiteral("Копировать"), colorIcon(Qt::green));
    menuOf(copy, {new QAction(colorIcon(Qt::blue), QStringLiteral("Как текст"), &ribbon),
                  new QAction(QStringLiteral("Как рисунок"), &ribbon)}, &ribbon);
    group->addAction(copy);
    ui::setActionButtonStyle(group, paste, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(group, copy, Qt::ToolButtonTextBesideIcon);

    ui::RibbonSerializer serializer(&ribbon);
    const QByteArray saved = serializer.save();
    QVERIFY(serializer.restore(saved));
    QCOMPARE(ribbon.pageCount(), 1);
    Qtitan::RibbonGroup* restored = groupAt(ribbon, 0, 0);
    QVERIFY(restored);
    QVERIFY(restored != group);
    const QList<QAction*> actions = restored->actions();
    QCOMPARE(actions.size(), 3);
    QVERIFY(actions[0] != paste);
    QCOMPARE(actions[0]->text(), QStringLiteral("Вставить"));
    QVERIFY(actions[0]->icon().isNull());
    QVERIFY(actions[1]->isSeparator());
    QCOMPARE(int(ui::actionButtonStyle(restored, actions[1])), 4);
    QVERIFY(actions[2] != copy);
    QCOMPARE(actions[2]->text(), QStringLiteral("Копировать"));
    QVERIFY(actions[2]->icon().isNull());
    QVERIFY(actions[2]->menu());
    QCOMPARE(actions[2]->menu()->actions().size(), 2);
    QVERIFY(actions[2]->menu()->actions()[0]->icon().isNull());
    QCOMPARE(ui::actionButtonStyle(restored, actions[0]), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(restored, actions[2]), Qt::ToolButtonTextBesideIcon);
    // The new actions belong to the group.
    QCOMPARE(actions[0]->parent(), restored);
    QCOMPARE(actions[2]->menu()->parent(), restored);
    // A second round gives the same stream.
    QCOMPARE(serializer.save(), saved);
}

void tst_RibbonSerializer::firstSubActionIcon()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonGroup* group = ribbon.addPage(QStringLiteral("П"))->addGroup(QStringLiteral("Г"));
    QAction* withIcon = hostAction(&ribbon, QStringLiteral("withIcon"), QStringLiteral("С иконкой"), colorIcon(Qt::green));
    QAction* noIcon = hostAction(&ribbon, QStringLiteral("noIcon"), QStringLiteral("Без иконки"));
    QAction* gone = hostAction(&ribbon, QStringLiteral("gone"), QStringLiteral("Пропавшая"), colorIcon(Qt::red));
    QAction* first = new QAction(QStringLiteral("Первый"), &ribbon);
    menuOf(first, {withIcon, noIcon}, &ribbon);
    QAction* second = new QAction(QStringLiteral("Второй"), &ribbon);
    menuOf(second, {noIcon, withIcon}, &ribbon);
    QAction* third = new QAction(QStringLiteral("Третий"), &ribbon);
    menuOf(third, {gone, withIcon}, &ribbon);
    QAction* fourth = new QAction(QStringLiteral("Четвёртый"), &ribbon);
    menuOf(fourth, {new QAction(QStringLiteral("текст"), &ribbon)}, &ribbon);
    for (QAction* action : {first, second, third, fourth})
        group->addAction(action);

    IdSerializer serializer(&ribbon);
    for (QAction* action : {withIcon, noIcon, gone})
        serializer.addHostAction(action);
    const QByteArray saved = serializer.save();
    serializer.forget(QStringLiteral("cmd.gone"));
    QVERIFY(serializer.restore(saved));
    const QList<QAction*> actions = groupAt(ribbon, 0, 0)->actions();
    QCOMPARE(actions.size(), 4);
    QCOMPARE(iconColor(actions[0]->icon()), QColor(Qt::green).rgb());
    QVERIFY(actions[1]->icon().isNull());
    // The index counts records: the dropped first record gives no icon.
    QCOMPARE(actions[2]->menu()->actions(), (QList<QAction*>{withIcon}));
    QVERIFY(actions[2]->icon().isNull());
    QVERIFY(actions[3]->icon().isNull());
}

void tst_RibbonSerializer::versionSixIsRejected()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Главная"));
    Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Группа"));
    QAction* quick = new QAction(QStringLiteral("Быстрая"), &ribbon);
    ribbon.addQuickAction(quick);
    ui::RibbonSerializer serializer(&ribbon);

    Writer layout;
    layout << qint32(6) << qint32(1) << QStringLiteral("Новая") << qint32(0);
    QVERIFY(!restoreLayout(serializer, layout.bytes));
    QVERIFY(!serializer.restore(qCompress(layout.bytes)));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0), page);
    QCOMPARE(page->groupAt(0), group);

    Writer quickStream;
    quickStream << qint32(6) << qint32(0);
    QVERIFY(!restoreQuick(serializer, quickStream.bytes));
    QVERIFY(!serializer.restoreQuickBar(qCompress(quickStream.bytes)));
    QCOMPARE(ribbon.quickAccessBar()->actions(), (QList<QAction*>{quick}));
    QVERIFY(!ribbon.quickAccessBar()->isHidden());
}

void tst_RibbonSerializer::quickBarCountZero()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.show();
    ribbon.addQuickAction(new QAction(QStringLiteral("a"), &ribbon));
    ribbon.addQuickAction(new QAction(QStringLiteral("b"), &ribbon));
    QVERIFY(ribbon.quickAccessBar()->isVisible());
    ui::RibbonSerializer serializer(&ribbon);
    Writer stream;
    stream << qint32(5) << qint32(0);
    QVERIFY(restoreQuick(serializer, stream.bytes));
    QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    QVERIFY(!ribbon.quickAccessBar()->isVisible());

    ribbon.addQuickAction(new QAction(QStringLiteral("c"), &ribbon));
    QVERIFY(serializer.restoreQuickBar(qCompress(stream.bytes)));
    QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    QVERIFY(ribbon.quickAccessBar()->isHidden());
}

void tst_RibbonSerializer::quickBarRestore()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.show();
    Qtitan::RibbonQuickAccessBar* bar = ribbon.quickAccessBar();
    QAction* save = hostAction(&ribbon, QStringLiteral("save"), QStringLiteral("Сохранить"));
    QAction* undo = hostAction(&ribbon, QStringLiteral("undo"), QStringLiteral("Отменить"));
    menuOf(undo, {new QAction(QStringLiteral("Шаг"), &ribbon)}, &ribbon);
    QAction* popup = hostAction(&ribbon, QStringLiteral("popup"), QStringLiteral("Всплывающая"));
    popup->setProperty("isPopupWidgetAction", true);
    menuOf(popup, {new QAction(QStringLiteral("x"), &ribbon)}, &ribbon);
    IdSerializer serializer(&ribbon);
    for (QAction* action : {save, undo, popup})
        serializer.addHostAction(action);

    Writer stream;
    stream << qint32(5) << qint32(5);
    stream.entry(3, 0, Record::ided(QStringLiteral("cmd.save"), QStringLiteral("Сохранить")));
    stream.entry(3, 1, Record::ided(QStringLiteral("cmd.undo"), QStringLiteral("Отменить"), {Record::plain(QStringLiteral("Шаг А")), Record::plain(QStringLiteral("Шаг Б"))}));
    stream.entry(0, 0, Record::sep());
    stream.entry(0, 1, Record::ided(QStringLiteral("cmd.popup"), QStringLiteral("Всплывающая"), {Record::plain(QStringLiteral("y"))}));
    stream.entry(0, 0, Record::plain(QStringLiteral("Текстовая")));
    QVERIFY(restoreQuick(serializer, stream.bytes));
    const QList<QAction*> actions = bar->actions();
    QCOMPARE(actions.size(), 5);
    QCOMPARE(actions[0], save);
    QCOMPARE(actions[1], undo);
    QVERIFY(actions[2]->isSeparator());
    QCOMPARE(actions[3], popup);
    QCOMPARE(actions[4]->text(), QStringLiteral("Текстовая"));
    QCOMPARE(actions[4]->parent(), bar);
    QVERIFY(bar->isVisible());
    // The stored style is not applied: the buttons keep the bar's own style.
    auto* reference = new QAction(QStringLiteral("эталон"), &ribbon);
    ribbon.addQuickAction(reference);
    QCOMPARE(quickButton(bar, save)->toolButtonStyle(), quickButton(bar, reference)->toolButtonStyle());
    QVERIFY(quickButton(bar, save)->toolButtonStyle() != Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::getGroupButtonType(bar, undo), ui::Dynamic);
    QCOMPARE(undo->text(), QStringLiteral("Шаг А"));
    QCOMPARE(undo->menu()->actions().size(), 2);
    QCOMPARE(ui::getGroupButtonType(bar, popup), ui::Simple);
    QCOMPARE(ui::getGroupButtonType(bar, save), ui::Simple);
}

void tst_RibbonSerializer::fullRoundTrip()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    QAction* open = hostAction(&host, QStringLiteral("open"), QStringLiteral("Открыть"), colorIcon(Qt::red));
    QAction* save = hostAction(&host, QStringLiteral("save"), QStringLiteral("Сохранить"), colorIcon(Qt::green));
    auto* fontSize = new QWidgetAction(&host);
    fontSize->setObjectName(QStringLiteral("fontSize"));
    fontSize->setDefaultWidget(new QComboBox);
    QAction* popup = hostAction(&host, QStringLiteral("popup"), QStringLiteral("Палитра"));
    popup->setProperty("isPopupWidgetAction", true);
    QAction* a = hostAction(&host, QStringLiteral("a"), QStringLiteral("А"), colorIcon(Qt::blue));
    QAction* b = hostAction(&host, QStringLiteral("b"), QStringLiteral("Б"));
    QAction* c = hostAction(&host, QStringLiteral("c"), QStringLiteral("В"), colorIcon(Qt::yellow));
    QAction* d = hostAction(&host, QStringLiteral("d"), QStringLiteral("Г"), colorIcon(Qt::cyan));
    QAction* e = hostAction(&host, QStringLiteral("e"), QStringLiteral("Д"), colorIcon(Qt::magenta));
    QAction* simple = hostAction(&host, QStringLiteral("simple"), QStringLiteral("Простая"));
    menuOf(simple, {a, b}, &host);
    QAction* dynamic = hostAction(&host, QStringLiteral("dynamic"), QStringLiteral("Динамическая"));
    menuOf(dynamic, {c, new QAction(QStringLiteral("Текстовая"), &host)}, &host);
    QAction* lite = new QAction(QStringLiteral("Вставка"), &host);
    QAction* more = new QAction(QStringLiteral("Ещё"), &host);
    auto* deepSeparator = new QAction(&host);
    deepSeparator->setSeparator(true);
    menuOf(more, {e, deepSeparator, new QAction(QStringLiteral("Глубокая"), &host)}, &host);
    menuOf(lite, {d, more}, &host);
    QAction* table = hostAction(&host, QStringLiteral("table"), QStringLiteral("Таблица"));
    QAction* hiddenQuick = hostAction(&host, QStringLiteral("hidden"), QStringLiteral("Скрытая"));

    Qtitan::RibbonPage* home = ribbon.addPage(QStringLiteral("Главная"));
    Qtitan::RibbonGroup* file = home->addGroup(QStringLiteral("Файл"));
    file->addAction(open);
    file->addAction(save);
    separatorIn(file);
    file->addAction(fontSize);
    file->addAction(popup);
    Qtitan::RibbonGroup* commands = home->addGroup(QStringLiteral("Команды"));
    commands->setControlsCentering(true);
    commands->addAction(simple);
    commands->addAction(dynamic);
    commands->addAction(lite);
    Qtitan::RibbonGroup* tables = ribbon.addPage(QStringLiteral("Вставка"))->addGroup(QStringLiteral("Таблицы"));
    tables->addAction(table);
    ribbon.addPage(QStringLiteral("Пустая"));

    ui::setActionButtonStyle(file, open, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(file, save, Qt::ToolButtonTextBesideIcon);
    ui::setActionButtonStyle(file, popup, Qt::ToolButtonTextBesideIcon);
    ui::setActionButtonStyle(commands, simple, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(commands, dynamic, Qt::ToolButtonTextUnderIcon);
    ui::setActionButtonStyle(commands, lite, Qt::ToolButtonTextBesideIcon);
    ui::setGroupButtonType(commands, simple, ui::Simple);
    ui::setGroupButtonType(commands, dynamic, ui::Dynamic);
    ui::setGroupButtonType(commands, lite, ui::DynamicLite);
    ui::setActionButtonStyle(tables, table, Qt::ToolButtonTextOnly);

    QAction* quickText = new QAction(QStringLiteral("Быстрая текстовая"), &host);
    auto* quickSeparator = new QAction(&host);
    quickSeparator->setSeparator(true);
    for (QAction* action : {open, save, hiddenQuick, quickText, quickSeparator})
        ribbon.addQuickAction(action);
    ribbon.quickAccessBar()->setActionVisible(hiddenQuick, false);

    IdSerializer serializer(&ribbon);
    for (QAction* action : {open, save, static_cast<QAction*>(fontSize), popup, a, b, c, d, e, simple, dynamic, table, hiddenQuick})
        serializer.addHostAction(action);
    const QByteArray layout = serializer.save();
    const QByteArray quick = serializer.saveQuickBar();

    ui::RibbonBar restored(QStringLiteral("ctx"));
    restored.show();
    IdSerializer reader(&restored);
    for (QAction* action : {open, save, static_cast<QAction*>(fontSize), popup, a, b, c, d, e, simple, dynamic, table, hiddenQuick})
        reader.addHostAction(action);
    QVERIFY(reader.restore(layout));
    QVERIFY(reader.restoreQuickBar(quick));

    QCOMPARE(restored.pageCount(), 3);
    QCOMPARE(restored.page(0)->title(), QStringLiteral("Главная"));
    QCOMPARE(restored.page(1)->title(), QStringLiteral("Вставка"));
    QCOMPARE(restored.page(2)->title(), QStringLiteral("Пустая"));
    QCOMPARE(restored.page(0)->groupCount(), 2);
    QCOMPARE(restored.page(1)->groupCount(), 1);
    QCOMPARE(restored.page(2)->groupCount(), 0);

    Qtitan::RibbonGroup* file2 = groupAt(restored, 0, 0);
    QCOMPARE(file2->title(), QStringLiteral("Файл"));
    QVERIFY(!file2->isControlsCentering());
    QList<QAction*> actions = file2->actions();
    QCOMPARE(actions.size(), 5);
    QCOMPARE(actions[0], open);
    QCOMPARE(actions[1], save);
    QVERIFY(actions[2]->isSeparator());
    QCOMPARE(actions[3], static_cast<QAction*>(fontSize));
    QCOMPARE(actions[4], popup);
    QCOMPARE(ui::actionButtonStyle(file2, open), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(file2, save), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(int(ui::actionButtonStyle(file2, actions[2])), 4);
    QVERIFY(qobject_cast<Qtitan::RibbonWidgetControl*>(file2->controlByAction(fontSize)));
    QCOMPARE(ui::actionButtonStyle(file2, popup), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(iconColor(open->icon()), QColor(Qt::red).rgb());

    Qtitan::RibbonGroup* commands2 = groupAt(restored, 0, 1);
    QCOMPARE(commands2->title(), QStringLiteral("Команды"));
    QVERIFY(commands2->isControlsCentering());
    actions = commands2->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions[0], simple);
    QCOMPARE(actions[1], dynamic);
    QAction* lite2 = actions[2];
    QVERIFY(lite2 != lite);
    QCOMPARE(ui::getGroupButtonType(commands2, simple), ui::Simple);
    QCOMPARE(ui::findActionButton(commands2, simple)->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(ui::getGroupButtonType(commands2, dynamic), ui::Dynamic);
    QCOMPARE(ui::findActionButton(commands2, dynamic)->popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(ui::getGroupButtonType(commands2, lite2), ui::DynamicLite);
    QCOMPARE(ui::findActionButton(commands2, lite2)->popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(ui::actionButtonStyle(commands2, simple), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(commands2, dynamic), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(commands2, lite2), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(simple->menu()->actions(), (QList<QAction*>{a, b}));
    QCOMPARE(dynamic->menu()->actions().size(), 2);
    QCOMPARE(dynamic->menu()->actions()[0], c);
    QCOMPARE(dynamic->menu()->actions()[1]->text(), QStringLiteral("Текстовая"));
    QCOMPARE(dynamic->text(), QStringLiteral("В"));
    QCOMPARE(lite2->text(), QStringLiteral("Г"));
    QCOMPARE(iconColor(lite2->icon()), QColor(Qt::cyan).rgb());
    // Nested menus come back level by level.
    const QList<QAction*> liteMenu = lite2->menu()->actions();
    QCOMPARE(liteMenu.size(), 2);
    QCOMPARE(liteMenu[0], d);
    QAction* more2 = liteMenu[1];
    QCOMPARE(more2->text(), QStringLiteral("Ещё"));
    QCOMPARE(iconColor(more2->icon()), QColor(Qt::magenta).rgb());
    const QList<QAction*> moreMenu = more2->menu()->actions();
    QCOMPARE(moreMenu.size(), 3);
    QCOMPARE(moreMenu[0], e);
    QVERIFY(moreMenu[1]->isSeparator());
    QCOMPARE(moreMenu[2]->text(), QStringLiteral("Глубокая"));
    QVERIFY(!moreMenu[2]->menu());

    Qtitan::RibbonGroup* tables2 = groupAt(restored, 1, 0);
    QCOMPARE(tables2->actions(), (QList<QAction*>{table}));
    QCOMPARE(ui::actionButtonStyle(tables2, table), Qt::ToolButtonTextOnly);

    const QList<QAction*> quickActions = restored.quickAccessBar()->actions();
    QCOMPARE(quickActions.size(), 4);
    QCOMPARE(quickActions[0], open);
    QCOMPARE(quickActions[1], save);
    QCOMPARE(quickActions[2]->text(), QStringLiteral("Быстрая текстовая"));
    QVERIFY(quickActions[3]->isSeparator());
    QVERIFY(restored.quickAccessBar()->isVisible());

    // Saving the restored ribbon gives the same streams.
    QCOMPARE(reader.save(), layout);
    QCOMPARE(reader.saveQuickBar(), quick);
}

void tst_RibbonSerializer::popupWidgetActionInGroup()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    QAction* popup = hostAction(&host, QStringLiteral("popup"), QStringLiteral("Палитра"));
    popup->setProperty("isPopupWidgetAction", true);
    QAction* plain = hostAction(&host, QStringLiteral("plain"), QStringLiteral("Обычная"));
    auto* widget = new QWidgetAction(&host);
    widget->setObjectName(QStringLiteral("widget"));
    widget->setDefaultWidget(new QComboBox);
    IdSerializer serializer(&ribbon);
    for (QAction* action : {popup, plain, static_cast<QAction*>(widget)})
        serializer.addHostAction(action);

    const QList<Record> items{Record::plain(QStringLiteral("1")), Record::plain(QStringLiteral("2"))};
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("П") << qint32(1);
    w << QStringLiteral("Г") << false << false << qint32(3);
    w.entry(2, 1, Record::ided(QStringLiteral("cmd.popup"), QStringLiteral("Палитра"), items));
    w.entry(2, 1, Record::ided(QStringLiteral("cmd.plain"), QStringLiteral("Обычная"), items));
    w.entry(3, 1, Record::widget(QStringLiteral("cmd.widget")));
    QVERIFY(restoreLayout(serializer, w.bytes));
    Qtitan::RibbonGroup* group = groupAt(ribbon, 0, 0);
    QCOMPARE(group->actions(), (QList<QAction*>{popup, plain, static_cast<QAction*>(widget)}));
    // Marked popup widget actions get their style but no group button type.
    QCOMPARE(ui::actionButtonStyle(group, popup), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(ui::getGroupButtonType(group, popup), ui::Simple);
    QCOMPARE(popup->text(), QStringLiteral("Палитра"));
    QCOMPARE(popup->menu()->actions().size(), 2);
    QCOMPARE(ui::actionButtonStyle(group, plain), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(ui::getGroupButtonType(group, plain), ui::Dynamic);
    QCOMPARE(plain->text(), QStringLiteral("1"));
    QVERIFY(qobject_cast<Qtitan::RibbonWidgetControl*>(group->controlByAction(widget)));
}

void tst_RibbonSerializer::unknownIdentifierIsDropped()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QAction* a = hostAction(&ribbon, QStringLiteral("a"), QStringLiteral("А"));
    QAction* b = hostAction(&ribbon, QStringLiteral("b"), QStringLiteral("Б"));
    QAction* c = hostAction(&ribbon, QStringLiteral("c"), QStringLiteral("В"));
    QAction* inner = new QAction(QStringLiteral("Внутри"), &ribbon);
    menuOf(inner, {new QAction(QStringLiteral("Совсем внутри"), &ribbon)}, &ribbon);
    menuOf(b, {new QAction(QStringLiteral("x"), &ribbon), inner, a}, &ribbon);
    Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("П"));
    Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Г"));
    group->addAction(a);
    group->addAction(b);
    group->addAction(c);
    ui::setGroupButtonType(group, b, ui::Simple);
    page->addGroup(QStringLiteral("Следующая"))->addAction(new QAction(QStringLiteral("Текст"), &ribbon));

    IdSerializer serializer(&ribbon);
    for (QAction* action : {a, b, c})
        serializer.addHostAction(action);
    const QByteArray saved = serializer.save();
    serializer.forget(QStringLiteral("cmd.b"));
    QVERIFY(serializer.restore(saved));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0)->groupCount(), 2);
    QCOMPARE(groupAt(ribbon, 0, 0)->actions(), (QList<QAction*>{a, c}));
    QCOMPARE(groupAt(ribbon, 0, 1)->title(), QStringLiteral("Следующая"));
    QCOMPARE(groupAt(ribbon, 0, 1)->actions().size(), 1);
    QCOMPARE(groupAt(ribbon, 0, 1)->actions()[0]->text(), QStringLiteral("Текст"));
    // The menu read for the dropped action went with it.
    QVERIFY(groupAt(ribbon, 0, 0)->findChildren<QMenu*>().isEmpty());
}

namespace {

// Writes an action record of an old stream by hand.
void oldTextRecord(QDataStream& stream, const QString& text, const QIcon& icon, qint32 subs = 0)
{
    stream << false << QString() << text << icon << subs;
}

void oldIdRecord(QDataStream& stream, int version, const QString& id, const QString& text, const QIcon* icon,
                 qint32 subs = 0)
{
    stream << false << id << text;
    if (version >= 1) {
        stream << bool(icon);
        if (icon)
            stream << *icon;
    }
    stream << subs;
}

void checkOldStream(int version)
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.addPage(QStringLiteral("Удаляемая"));
    QObject host;
    QAction* known = hostAction(&host, QStringLiteral("known"), QStringLiteral("Известная"));
    QAction* plainKnown = hostAction(&host, QStringLiteral("plainKnown"), QStringLiteral("Своя"), colorIcon(Qt::magenta));
    IdSerializer serializer(&ribbon);
    serializer.addHostAction(known);
    serializer.addHostAction(plainKnown);

    const QIcon green = colorIcon(Qt::green);
    const QIcon yellow = colorIcon(Qt::yellow);
    Writer w;
    w << qint32(version) << qint32(1) << QStringLiteral("Старая") << qint32(2);
    w << QStringLiteral("Группа") << colorIcon(Qt::blue) << true << false << qint32(5);
    w << qint32(3) << qint8(0);
    oldTextRecord(w.stream, QStringLiteral("Текстовая"), colorIcon(Qt::red));
    w << qint32(2) << qint8(0);
    oldIdRecord(w.stream, version, QStringLiteral("cmd.known"), QStringLiteral("не та"), &green);
    w << qint32(2) << qint8(0);
    oldIdRecord(w.stream, version, QStringLiteral("cmd.plainKnown"), QStringLiteral("x"), nullptr);
    w << qint32(1) << qint8(0);
    oldIdRecord(w.stream, version, QStringLiteral("cmd.unknown"), QStringLiteral("?"), &yellow, 1);
    oldTextRecord(w.stream, QStringLiteral("под"), QIcon());
    w << qint32(0) << qint8(0);
    oldTextRecord(w.stream, QStringLiteral("Последняя"), QIcon(), 1);
    oldTextRecord(w.stream, QStringLiteral("Пункт"), colorIcon(Qt::darkRed));
    w << QStringLiteral("Вторая") << QIcon() << false << false << qint32(0);

    QVERIFY(serializer.restore(qCompress(w.bytes)));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0)->title(), QStringLiteral("Старая"));
    QCOMPARE(ribbon.page(0)->groupCount(), 2);
    Qtitan::RibbonGroup* group = groupAt(ribbon, 0, 0);
    QCOMPARE(group->title(), QStringLiteral("Группа"));
    QCOMPARE(iconColor(group->icon()), QColor(Qt::blue).rgb());
    QVERIFY(group->isControlsCentering());
    const QList<QAction*> actions = group->actions();
    QCOMPARE(actions.size(), 4);
    QCOMPARE(actions[0]->text(), QStringLiteral("Текстовая"));
    QCOMPARE(iconColor(actions[0]->icon()), QColor(Qt::red).rgb());
    QCOMPARE(ui::actionButtonStyle(group, actions[0]), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(actions[1], known);
    QCOMPARE(known->text(), QStringLiteral("Известная"));
    if (version >= 1)
        QCOMPARE(iconColor(known->icon()), QColor(Qt::green).rgb());
    else
        QVERIFY(known->icon().isNull());
    QCOMPARE(actions[2], plainKnown);
    QCOMPARE(iconColor(plainKnown->icon()), QColor(Qt::magenta).rgb());
    QCOMPARE(actions[3]->text(), QStringLiteral("Последняя"));
    // Old streams do not take the icon of the first sub-action.
    QVERIFY(actions[3]->icon().isNull());
    QCOMPARE(actions[3]->menu()->actions().size(), 1);
    QCOMPARE(iconColor(actions[3]->menu()->actions()[0]->icon()), QColor(Qt::darkRed).rgb());
    QCOMPARE(groupAt(ribbon, 0, 1)->title(), QStringLiteral("Вторая"));
}

} // namespace

void tst_RibbonSerializer::versionFourWithIcons()
{
    checkOldStream(4);
    if (QTest::currentTestFailed())
        return;
    checkOldStream(1);
}

void tst_RibbonSerializer::versionZeroWithIcons()
{
    checkOldStream(0);
    if (QTest::currentTestFailed())
        return;
    checkOldStream(-3);
}

void tst_RibbonSerializer::versionFourWithLargeIcons_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("1100 x 8") << QSize(1100, 8);
    QTest::newRow("4000 x 4000") << QSize(4000, 4000);
    QTest::newRow("32768 x 1, the widest") << QSize(32768, 1);
    QTest::newRow("4096 x 4096, the most pixels") << QSize(4096, 4096);
}

void tst_RibbonSerializer::versionFourWithLargeIcons()
{
    // Any pixmap icon Qt writes within the settings store's image limits.
    QFETCH(QSize, size);
    QPixmap pixmap(size);
    pixmap.fill(Qt::darkCyan);
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    QObject host;
    QAction* known = hostAction(&host, QStringLiteral("known"), QStringLiteral("Известная"));
    IdSerializer serializer(&ribbon);
    serializer.addHostAction(known);
    Writer encoded;
    encoded << QIcon(pixmap);
    const QByteArray icon = encoded.bytes;
    Writer w;
    w << qint32(4) << qint32(1) << QStringLiteral("Страница") << qint32(1) << QStringLiteral("Группа");
    w.buffer.write(icon);
    w << false << false << qint32(3);
    w << qint32(0) << qint8(0) << false << QString() << QStringLiteral("Большая");
    w.buffer.write(icon);
    w << qint32(0);
    w << qint32(0) << qint8(0) << false << QStringLiteral("cmd.known") << QStringLiteral("x") << true;
    w.buffer.write(icon);
    w << qint32(0);
    w << qint32(0) << qint8(0);
    oldTextRecord(w.stream, QStringLiteral("После"), colorIcon(Qt::green));
    QBuffer buffer(&w.bytes);
    buffer.open(QIODevice::ReadOnly);
    QVERIFY(serializer.restore(buffer));

    Qtitan::RibbonGroup* group = groupAt(ribbon, 0, 0);
    QCOMPARE(group->icon().availableSizes(), (QList<QSize>{size}));
    const QList<QAction*> actions = group->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions[0]->icon().availableSizes(), (QList<QSize>{size}));
    const QImage restored = actions[0]->icon().pixmap(size).toImage();
    QCOMPARE(restored.size(), size);
    QCOMPARE(restored.pixel(size.width() - 1, size.height() - 1), QColor(Qt::darkCyan).rgb());
    QCOMPARE(actions[1], known);
    QCOMPARE(known->icon().availableSizes(), (QList<QSize>{size}));
    QCOMPARE(actions[2]->text(), QStringLiteral("После"));
    QCOMPARE(iconColor(actions[2]->icon()), QColor(Qt::green).rgb());
}

void tst_RibbonSerializer::translatesStoredTexts()
{
    testcommon::FakeTranslator translator(testcommon::FakeTranslator::OnlyAddedTexts);
    translator.add(QStringLiteral("HostRibbon"), QStringLiteral("Главная"), QStringLiteral("Home"));
    translator.add(QStringLiteral("HostRibbon"), QStringLiteral("Буфер"), QStringLiteral("Clipboard"));
    translator.add(QStringLiteral("HostRibbon"), QStringLiteral("Вставить"), QStringLiteral("Paste"));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Writer w;
    w << qint32(5) << qint32(1) << QStringLiteral("Главная") << qint32(1);
    w << QStringLiteral("Буфер") << false << false << qint32(2);
    w.entry(0, 0, Record::plain(QStringLiteral("Вставить")));
    w.entry(0, 0, Record::plain(QStringLiteral("Копировать")));

    ui::RibbonBar ribbon(QStringLiteral("HostRibbon"));
    ui::RibbonSerializer serializer(&ribbon);
    QVERIFY(restoreLayout(serializer, w.bytes));
    QCOMPARE(ribbon.page(0)->title(), QStringLiteral("Home"));
    QCOMPARE(groupAt(ribbon, 0, 0)->title(), QStringLiteral("Clipboard"));
    QCOMPARE(groupAt(ribbon, 0, 0)->actions()[0]->text(), QStringLiteral("Paste"));
    QCOMPARE(groupAt(ribbon, 0, 0)->actions()[1]->text(), QStringLiteral("Копировать"));

    ui::RibbonBar other(QStringLiteral("OtherContext"));
    ui::RibbonSerializer otherSerializer(&other);
    QVERIFY(restoreLayout(otherSerializer, w.bytes));
    QCOMPARE(other.page(0)->title(), QStringLiteral("Главная"));
    QCOMPARE(groupAt(other, 0, 0)->actions()[0]->text(), QStringLiteral("Вставить"));
    QCoreApplication::removeTranslator(&translator);
}

void tst_RibbonSerializer::failures()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Главная"));
    QAction* quick = new QAction(QStringLiteral("Быстрая"), &ribbon);
    ribbon.addQuickAction(quick);
    ui::RibbonSerializer serializer(&ribbon);

    QBuffer closed;
    QVERIFY(!serializer.save(closed));
    QVERIFY(!serializer.saveQuickBar(closed));
    QVERIFY(!serializer.restore(closed));
    QVERIFY(!serializer.restoreQuickBar(closed));
    QBuffer readOnly;
    readOnly.open(QIODevice::ReadOnly);
    QVERIFY(!serializer.save(readOnly));
    QVERIFY(!serializer.saveQuickBar(readOnly));
    QBuffer writeOnly;
    writeOnly.open(QIODevice::WriteOnly);
    QVERIFY(!serializer.restore(writeOnly));
    QVERIFY(!serializer.restoreQuickBar(writeOnly));
    QVERIFY(!serializer.restore(QByteArray()));
    QVERIFY(!serializer.restoreQuickBar(QByteArray()));
    QCOMPARE(ribbon.pageCount(), 1);
    QCOMPARE(ribbon.page(0), page);
    QCOMPARE(ribbon.quickAccessBar()->actions(), (QList<QAction*>{quick}));
}

void tst_RibbonSerializer::undecompressableArray()
{
    ui::RibbonBar ribbon(QStringLiteral("ctx"));
    ribbon.addPage(QStringLiteral("Главная"));
    ribbon.addQuickAction(new QAction(QStringLiteral("Быстрая"), &ribbon));
    ui::RibbonSerializer serializer(&ribbon);
    QVERIFY(serializer.restore(QByteArray("not compressed at all")));
    QCOMPARE(ribbon.pageCount(), 0);
    QVERIFY(serializer.restoreQuickBar(QByteArray("xx")));
    QVERIFY(ribbon.quickAccessBar()->actions().isEmpty());
    QVERIFY(ribbon.quickAccessBar()->isHidden());
}

void tst_RibbonSerializer::copyable()
{
    ui::RibbonBar first(QStringLiteral("ctx"));
    ui::RibbonBar second(QStringLiteral("ctx"));
    first.addPage(QStringLiteral("Первая"));
    ui::RibbonSerializer a(&first);
    ui::RibbonSerializer b(a);
    ui::RibbonSerializer c(&second);
    QCOMPARE(b.save(), a.save());
    c = a;
    QCOMPARE(c.save(), a.save());
    QVERIFY(ui::RibbonSerializer(&second).save() != a.save());
    QCOMPARE(ui::RibbonSerializer::internalVersion, 5);
}

QTEST_MAIN(tst_RibbonSerializer)
#include "tst_ribbonserializer.moc"
