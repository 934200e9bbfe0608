#include <tessaro/Tessaro.h>

#include <QtitanRibbon.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QTranslator>
#include <QtTest>

#include <memory>

// The library's texts are keyed by the bare name of their source file (or by
// the form's name); an English translator must reach every one of them.
class tst_Translations : public QObject
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

    void captionButtonTexts()
    {
        QMainWindow window;
        auto* ribbon = new Qtitan::RibbonBar;
        window.setMenuWidget(ribbon);
        ribbon->setFrameThemeEnabled(true);
        const auto tipOf = [ribbon](const char* name) {
            auto* button = ribbon->findChild<QAbstractButton*>(QLatin1String(name));
            return button ? button->toolTip() : QString();
        };
        QCOMPARE(tipOf("qtitan_caption_minimize"), QStringLiteral("Minimize"));
        QCOMPARE(tipOf("qtitan_caption_maximize"), QStringLiteral("Maximize"));
        QCOMPARE(tipOf("qtitan_caption_close"), QStringLiteral("Close"));
        window.show();
        window.setWindowState(Qt::WindowMaximized);
        QTRY_COMPARE(tipOf("qtitan_caption_maximize"), QStringLiteral("Restore Down"));
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

    void toolBarPageTexts()
    {
        QMainWindow host;
        QToolBar* toolBar = host.addToolBar(QStringLiteral("Main"));
        QAction* command = toolBar->addAction(QStringLiteral("Open"));
        ui::QToolBarPage page;
        page.setToolBars({toolBar});
        page.findChild<QListWidget*>(QStringLiteral("toolBarList"))->setCurrentRow(0);

        auto* addGroup = page.findChild<QToolButton*>(QStringLiteral("addGroupButton"));
        QVERIFY(addGroup);
        QCOMPARE(addGroup->toolTip(), QStringLiteral("Add a command group"));
        auto* label = page.findChild<QLabel*>(QStringLiteral("toolBarLabel"));
        QVERIFY(label);
        QCOMPARE(label->text(), QStringLiteral("Toolbars:"));

        addGroup->click();
        auto* tree = page.findChild<QTreeWidget*>(QStringLiteral("contentsTree"));
        // Nothing was selected, so the group comes first.
        QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("Command group"));
        // The page still knows the translated group row as a group.
        page.setCurrentCommand(new QAction(QStringLiteral("Save"), &page));
        page.findChild<QToolButton*>(QStringLiteral("addActionToGroupButton"))->click();
        QCOMPARE(tree->topLevelItem(0)->childCount(), 1);

        tree->setCurrentItem(tree->topLevelItem(1));
        QStringList entries;
        QTimer::singleShot(0, [&] {
            if (auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                for (const QAction* entry : popup->actions())
                    entries << entry->text();
                popup->close();
            }
        });
        page.onContextMenu(tree->visualItemRect(tree->topLevelItem(1)).center());
        QCOMPARE(entries, (QStringList{QStringLiteral("Icon only"), QStringLiteral("Text only"),
                                       QStringLiteral("Text beside the icon"), QStringLiteral("Text under the icon"),
                                       QStringLiteral("Default")}));
        QVERIFY(toolBar->actions().contains(command));
    }

    void customizeDialogForm()
    {
        ui::QCustomizeDlg dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Form"));
        auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        QVERIFY(tabs);
        QStringList texts;
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i);
        QCOMPARE(texts, (QStringList{QStringLiteral("Toolbars"), QStringLiteral("Ribbon"),
                                     QStringLiteral("Quick Access Toolbar"), QStringLiteral("Keyboard Shortcuts")}));
    }

    void ribbonTreeTexts()
    {
        ui::RibbonBar ribbon(QStringLiteral("tst"));
        Qtitan::RibbonPage* page = ribbon.addPage(QString());
        page->addGroup(QStringLiteral("Group"));
        RibbonTreeModel model(&ribbon);
        QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Panels"));
        QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("< Untitled >"));
        const QModelIndex added = model.addActionGroup(model.index(0, 0, model.index(0, 0)));
        QCOMPARE(model.data(added).toString(), QStringLiteral("New Group command"));
        QCOMPARE(model.data(model.addSeparator(added)).toString(), QStringLiteral("< S E P A R A T O R >"));
        QCOMPARE(model.data(model.addPanel(QModelIndex())).toString(), QStringLiteral("New Panel"));
        QCOMPARE(model.data(model.addGroup(model.index(0, 0))).toString(), QStringLiteral("New Group"));
    }

    void ribbonTreeEditorTexts()
    {
        ui::RibbonBar ribbon(QStringLiteral("tst"));
        Qtitan::RibbonGroup* group = ribbon.addPage(QStringLiteral("Page"))->addGroup(QStringLiteral("Group"));
        group->addAction(new QAction(QStringLiteral("Command"), group));
        RibbonTreeModel model(&ribbon);
        const QModelIndex groupIndex = model.index(0, 0, model.index(0, 0));
        QList<RibbonTreeItem*> commands{model.item(model.index(0, 0, groupIndex))};
        ActionItemEditor editor(commands, nullptr);
        std::unique_ptr<QWidget> widget(editor.editorWidget());
        QCOMPARE(widget->findChild<QGroupBox*>()->title(), QStringLiteral("Button look"));
        QStringList radios;
        for (QRadioButton* radio : widget->findChildren<QRadioButton*>())
            radios << radio->text().replace(QLatin1Char('\n'), QLatin1Char(' '));
        QCOMPARE(radios, (QStringList{"Icon only", "Text only", "Text beside icon", "Text under icon"}));

        GroupItemEditor groupEditor({model.item(groupIndex)}, nullptr);
        std::unique_ptr<QWidget> groupWidget(groupEditor.editorWidget());
        QCOMPARE(groupWidget->findChild<QCheckBox*>()->text(), QStringLiteral("Centering"));

        const QModelIndex groupCommand = model.addActionGroup(groupIndex);
        ActionGroupItemEditor typeEditor({model.item(groupCommand)}, nullptr);
        std::unique_ptr<QWidget> typeWidget(typeEditor.editorWidget());
        QCOMPARE(typeWidget->findChild<QGroupBox*>()->title(), QStringLiteral("Button type"));
        radios.clear();
        for (QRadioButton* radio : typeWidget->findChildren<QRadioButton*>())
            radios << radio->text().replace(QLatin1Char('\n'), QLatin1Char(' '));
        QCOMPARE(radios, (QStringList{"Remember the active one", "Do not remember", "Make the first one active"}));
    }

    void ribbonTreeWidgetForm()
    {
        QRibbonTreeWidget widget;
        QCOMPARE(widget.findChild<QToolButton*>(QStringLiteral("addPanel"))->toolTip(), QStringLiteral("Add tab"));
        QCOMPARE(widget.findChild<QToolButton*>(QStringLiteral("addGroupItem"))->toolTip(),
                 QStringLiteral("Create group command"));
        QCOMPARE(widget.findChild<QToolButton*>(QStringLiteral("del"))->toolTip(), QStringLiteral("Delete"));
        QCOMPARE(widget.findChild<QGroupBox*>(QStringLiteral("paramsBox"))->title(), QStringLiteral("Parameters"));
    }

    void quickPanelTreeTexts()
    {
        ui::RibbonBar ribbon(QStringLiteral("Host"));
        QuickPanelRootItem root(ribbon.quickAccessBar());
        QCOMPARE(root.name(), QStringLiteral("Panel"));
        RibbonQuickPanelTreeModel model(&ribbon);
        const QModelIndex separator = model.addSeparator(QModelIndex());
        QCOMPARE(separator.data().toString(), QStringLiteral("< S E P A R A T O R >"));
        const QModelIndex group = model.addActionGroup(QModelIndex());
        QCOMPARE(group.data().toString(), QStringLiteral("New group command"));
    }

    void quickPanelWidgetForm()
    {
        QRibbonTreeQuickPanelWidget page;
        const QList<QPair<const char*, const char*>> tips = {
            {"addItem", "Add command"}, {"addGroupItem", "Create group command"},
            {"addSeparator", "Add separator"}, {"up", "Move up"}, {"down", "Move down"}, {"del", "Delete"}};
        for (const auto& tip : tips) {
            auto* button = page.findChild<QToolButton*>(QString::fromLatin1(tip.first));
            QVERIFY(button);
            QCOMPARE(button->toolTip(), QString::fromLatin1(tip.second));
        }
        auto* box = page.findChild<QGroupBox*>(QStringLiteral("paramsBox"));
        QVERIFY(box);
        QCOMPARE(box->title(), QStringLiteral("Parameters"));
    }

    void quickPanelEditorTexts()
    {
        ui::RibbonBar ribbon(QStringLiteral("Host"));
        RibbonQuickPanelTreeModel model(&ribbon);
        const QModelIndex group = model.addActionGroup(QModelIndex());
        const QList<QuickPanelTreeItem*> items = {model.itemForIndex(group)};
        QuickPanelActionGroupItemEditor groupEditor(items, nullptr);
        QScopedPointer<QWidget> groupWidget(groupEditor.editorWidget());
        QCOMPARE(groupWidget->findChild<QGroupBox*>()->title(), QStringLiteral("Button type"));
        QStringList texts;
        for (QRadioButton* radio : groupWidget->findChildren<QRadioButton*>())
            texts.append(radio->text().replace(QLatin1Char('\n'), QLatin1Char(' ')));
        QCOMPARE(texts, (QStringList{QStringLiteral("Remember the active one"), QStringLiteral("Do not remember"),
                                     QStringLiteral("Make the first one active")}));
        QuickPanelToolButtonStyleEditor styleEditor(items, nullptr);
        QScopedPointer<QWidget> styleWidget(styleEditor.editorWidget());
        QCOMPARE(styleWidget->findChild<QGroupBox*>()->title(), QStringLiteral("Button look"));
        texts.clear();
        for (QRadioButton* radio : styleWidget->findChildren<QRadioButton*>())
            texts.append(radio->text().replace(QLatin1Char('\n'), QLatin1Char(' ')));
        QCOMPARE(texts, (QStringList{QStringLiteral("Icon only"), QStringLiteral("Text only"),
                                     QStringLiteral("Text beside icon"), QStringLiteral("Text under icon")}));
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

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
