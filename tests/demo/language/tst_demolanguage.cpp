#include "DemoCommands.h"
#include "DemoCustomizeWindow.h"
#include "DemoOptions.h"
#include "DemoShortcutsDialog.h"
#include "DemoTranslations.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>
#include <tessaro/QuickSearch.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

// Every text a user can come across in a widget tree: titles, labels, button
// and action texts, tool tips and status tips, placeholders, combo box items,
// tabs, the rows and headers of item views, and the menus with their submenus
// (a menu filled when it opens is filled first). Each text is prefixed with
// where it was found.
class TextCollector
{
public:
    QStringList texts;

    void collectWidget(QWidget* widget)
    {
        const QString where = QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ')
                              + widget->objectName() + QStringLiteral(": ");
        add(where, widget->windowTitle());
        add(where, widget->toolTip());
        add(where, widget->statusTip());
        add(where, widget->whatsThis());
        const int title = widget->metaObject()->indexOfProperty("title");
        if (title >= 0)
            add(where, widget->metaObject()->property(title).read(widget).toString());
        if (auto* label = qobject_cast<QLabel*>(widget))
            add(where, label->text());
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            add(where, button->text());
        if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
            add(where, edit->text());
            add(where, edit->placeholderText());
        }
        if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            for (int i = 0; i < combo->count(); ++i)
                add(where, combo->itemText(i));
        }
        if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                add(where, tabs->tabText(i));
                add(where, tabs->tabToolTip(i));
            }
        }
        if (auto* view = qobject_cast<QAbstractItemView*>(widget))
            collectModel(where, view->model(), QModelIndex());
        if (auto* menu = qobject_cast<QMenu*>(widget))
            collectMenu(menu);
        for (QAction* action : widget->actions())
            collectAction(where, action);
    }

    void collectTree(QWidget* top)
    {
        collectWidget(top);
        for (QWidget* child : top->findChildren<QWidget*>())
            collectWidget(child);
    }

private:
    void add(const QString& where, const QString& text)
    {
        if (!text.isEmpty())
            texts << where + text;
    }

    void collectAction(const QString& where, QAction* action)
    {
        add(where, action->text());
        add(where, action->iconText());
        add(where, action->toolTip());
        add(where, action->statusTip());
        if (action->menu())
            collectMenu(action->menu());
    }

    void collectMenu(QMenu* menu)
    {
        if (m_menus.contains(menu))
            return;
        m_menus.insert(menu);
        emit menu->aboutToShow();
        const QString where = QStringLiteral("menu %1: ").arg(menu->title());
        add(where, menu->title());
        for (QAction* action : menu->actions())
            collectAction(where, action);
        emit menu->aboutToHide();
    }

    void collectModel(const QString& where, const QAbstractItemModel* model, const QModelIndex& parent)
    {
        if (!model)
            return;
        if (!parent.isValid()) {
            for (int column = 0; column < model->columnCount(); ++column)
                add(where, model->headerData(column, Qt::Horizontal).toString());
        }
        for (int row = 0; row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column) {
                const QModelIndex index = model->index(row, column, parent);
                add(where, index.data(Qt::DisplayRole).toString());
                add(where, index.data(Qt::ToolTipRole).toString());
            }
            collectModel(where, model, model->index(row, 0, parent));
        }
    }

    QSet<QMenu*> m_menus;
};

// The Customize window with each row of its editors' first page selected in
// turn, so that every kind of parameter editor has shown its texts.
void collectCustomize(DemoWindow& window, TextCollector& collector)
{
    window.commands()->registry()->RunCommand(DemoCommands::ToolsCustomize);
    auto* customize = window.findChild<DemoCustomizeWindow*>();
    if (!customize || !QTest::qWaitForWindowExposed(customize)) {
        collector.texts << QStringLiteral("no customize window");
        return;
    }
    collector.collectTree(customize);
    for (QTreeView* view : customize->findChildren<QTreeView*>(QStringLiteral("ribbonTreeView"))) {
        const QAbstractItemModel* model = view->model();
        std::function<void(const QModelIndex&)> selectAll = [&](const QModelIndex& parent) {
            for (int row = 0; row < model->rowCount(parent); ++row) {
                const QModelIndex index = model->index(row, 0, parent);
                view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
                QCoreApplication::processEvents();
                collector.collectTree(customize);
                // The first page is enough: it holds every kind of row.
                if (parent.isValid() || row == 0)
                    selectAll(index);
            }
        };
        selectAll(QModelIndex());
    }
}

QStringList cyrillic(const QStringList& texts)
{
    static const QRegularExpression letters(QStringLiteral("[\\x{0400}-\\x{04FF}]"));
    return texts.filter(letters);
}

} // namespace

class tst_DemoLanguage : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void englishShowsNoCyrillic_data();
    void englishShowsNoCyrillic();
    void russianShowsTheLibraryOriginals();
    void onlyOfferedLanguagesAreAccepted();

private:
    // The window with its shortcuts window open, both walked for texts.
    QStringList textsOf(bool classic);

    std::unique_ptr<QObject> m_translators;
};

void tst_DemoLanguage::cleanup()
{
    m_translators.reset();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

QStringList tst_DemoLanguage::textsOf(bool classic)
{
    QTemporaryDir dir;
    demo::ShellOptions options;
    options.classic = classic;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")), nullptr, options);
    window.openWelcomeDocument();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {QStringLiteral("window not shown")};
    window.commands()->registry()->RunCommand(DemoCommands::ToolsKeyboardShortcuts);
    auto* dialog = window.findChild<DemoShortcutsDialog*>();
    if (!dialog || !QTest::qWaitForWindowExposed(dialog))
        return {QStringLiteral("no shortcuts window")};
    QCoreApplication::processEvents();
    TextCollector collector;
    collector.collectTree(&window);
    collectCustomize(window, collector);
    return collector.texts;
}

void tst_DemoLanguage::englishShowsNoCyrillic_data()
{
    QTest::addColumn<bool>("classic");
    QTest::newRow("ribbon") << false;
    QTest::newRow("classic") << true;
}

void tst_DemoLanguage::englishShowsNoCyrillic()
{
    QFETCH(bool, classic);
    m_translators = std::make_unique<QObject>();
    QVERIFY(DemoTranslations::install(QStringLiteral("en"), m_translators.get()));
    const QStringList texts = textsOf(classic);
    QVERIFY2(texts.size() > 300, qPrintable(QString::number(texts.size())));
    QVERIFY2(cyrillic(texts).isEmpty(), qPrintable(cyrillic(texts).join(QLatin1Char('\n'))));
    // The library's own texts are there, in English.
    QVERIFY(texts.contains(QStringLiteral("ui::QuickSearchWidget quickSearch: Search: Command (Ctrl + Q)")));
    QVERIFY(!texts.filter(QStringLiteral("Current combinations")).isEmpty());
    // The Customize window's editors too, down to a group command's parameters.
    if (!classic)
        QVERIFY(!texts.filter(QStringLiteral("Button type")).isEmpty());
}

void tst_DemoLanguage::russianShowsTheLibraryOriginals()
{
    m_translators = std::make_unique<QObject>();
    QVERIFY(DemoTranslations::install(QStringLiteral("ru"), m_translators.get()));
    const QStringList texts = textsOf(false);
    // The check above would see them: the library's texts, as written.
    QVERIFY(texts.contains(QString::fromUtf8("ui::QuickSearchWidget quickSearch: Поиск: Команда (Ctrl + Q)")));
    QVERIFY(!texts.filter(QString::fromUtf8("Текущие сочетания")).isEmpty());
    QVERIFY(!cyrillic(texts).isEmpty());
}

void tst_DemoLanguage::onlyOfferedLanguagesAreAccepted()
{
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo"}), DemoOptions::Run);
        QCOMPARE(options.language, QStringLiteral("en"));
    }
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo", "--lang", "ru"}), DemoOptions::Run);
        QCOMPARE(options.language, QStringLiteral("ru"));
    }
    {
        DemoOptions options;
        QCOMPARE(options.parse({"demo", "--lang", "de"}), DemoOptions::ExitError);
        QVERIFY(options.output().contains(QStringLiteral("en or ru")));
    }
}

QTEST_MAIN(tst_DemoLanguage)
#include "tst_demolanguage.moc"
