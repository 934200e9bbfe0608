#include <tessaro/Tessaro.h>

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

// The library's texts are keyed by the bare name of their source file (or by
// the form's name); an English translator must reach every one of them.
class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_translator.load(QStringLiteral("tessaro_en"), QStringLiteral(TESSARO_TRANSLATIONS_DIR)));
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
    }

    void quickSearchPlaceholder()
    {
        ui::QuickSearchWidget search(nullptr);
        QCOMPARE(search.placeholderText(), QStringLiteral("Search: Command (Ctrl + Q)"));
    }

    void dockListTitle()
    {
        QMainWindow window;
        ui::DockListMenu menu(&window);
        QCOMPARE(menu.title(), QStringLiteral("Panels"));
    }

    void menuTreeSeparator()
    {
        QMenu root(QStringLiteral("Commands"));
        QMenu* category = root.addMenu(QStringLiteral("File"));
        category->addSeparator();
        MenuTreeModel model(&root, nullptr);
        const QModelIndex separator = model.index(0, 0, model.index(0, 0));
        QCOMPARE(model.data(separator, Qt::DisplayRole).toString(), QStringLiteral("< S E P A R A T O R >"));
    }

    void hotKeyPageForm()
    {
        QWidget host;
        ui::QHotKeyPage page(&host);
        auto* deleteButton = page.findChild<QPushButton*>(QStringLiteral("delButton"));
        QVERIFY(deleteButton);
        QCOMPARE(deleteButton->text(), QStringLiteral("Delete"));
        auto* label = page.findChild<QLabel*>(QStringLiteral("label_5"));
        QVERIFY(label);
        QCOMPARE(label->text(), QStringLiteral("Current combinations"));
    }

    void untranslatedWithoutTranslator()
    {
        QCoreApplication::removeTranslator(&m_translator);
        ui::QuickSearchWidget search(nullptr);
        QCOMPARE(search.placeholderText(), QString::fromUtf8("Поиск: Команда (Ctrl + Q)"));
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator;
};

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
