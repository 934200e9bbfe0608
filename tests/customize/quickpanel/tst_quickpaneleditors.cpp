// The parameter editors of the quick access tree, alone and inside the
// quick access editor widget that owns them.
#include "quickpaneltestutil.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

using namespace quicktest;

namespace {

QList<QuickPanelTreeItem*> itemsOf(RibbonQuickPanelTreeModel& model, const QModelIndexList& indexes)
{
    QList<QuickPanelTreeItem*> items;
    for (const QModelIndex& index : indexes)
        items.append(model.itemForIndex(index));
    return items;
}

QAction* addGroup(Host& host, const QString& text, const QList<QAction*>& entries)
{
    auto* group = new QAction(text, &host.owner);
    auto* menu = new QMenu(host.bar());
    menu->addActions(entries);
    group->setMenu(menu);
    host.ribbon.addQuickAction(group);
    return group;
}

// A choice's label as given: laid out in the narrow box it may break into lines.
QString label(const QAbstractButton* button)
{
    return button->text().replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QRadioButton* radio(QWidget* widget, const char* text)
{
    const QList<QRadioButton*> radios = widget->findChildren<QRadioButton*>();
    for (QRadioButton* button : radios) {
        if (label(button) == QString::fromUtf8(text))
            return button;
    }
    return nullptr;
}

void flushDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The quick access editor over a host, shown, with its tree and model.
struct Page
{
    QRibbonTreeQuickPanelWidget widget;
    QTreeView* view = nullptr;
    RibbonQuickPanelTreeModel* model = nullptr;

    explicit Page(Host& host)
    {
        widget.updateModel(&host.ribbon);
        view = widget.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
        model = static_cast<RibbonQuickPanelTreeModel*>(view->model());
        widget.show();
    }

    void click(const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(index).center());
        flushDeletes();
    }

    QWidget* paramsBox() { return widget.findChild<QWidget*>(QStringLiteral("paramsBox")); }
};

} // namespace

class tst_QuickPanelEditors : public QObject
{
    Q_OBJECT

private slots:
    void nameEditorShowsAndRenames();
    void nameLongerThanFiftyCannotBeTyped();
    void renamingChangesBarAndTreeRowThroughOwner();
    void widgetIsBuiltOnce();
    void editorDiesWithItsWidget();
    void plainAndPopupEditorsAreEmpty();
    void groupEditorForOneGroupCommand();
    void switchingToRememberGreysOutNameAtOnce();
    void groupTypeChoicesApplyToBar();
    void groupEditorForSeveralGroupCommands();
    void mixedGroupTypesCheckNoChoice();
    void mixedSelectionInPageCanBeMadeSimple();
    void toolButtonStyleEditor();
};

void tst_QuickPanelEditors::nameEditorShowsAndRenames()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QuickPanelItemNameEditor editor(itemsOf(model, {model.index(0, 0)}), nullptr);
    auto* edit = qobject_cast<QLineEdit*>(editor.editorWidget());
    QVERIFY(edit);
    QCOMPARE(edit->maxLength(), 50);
    QCOMPARE(edit->text(), host.commands[0]->text());
    QSignalSpy changed(&editor, &QuickPanelAbstractEditor::paramChanged);
    edit->setText(QStringLiteral("Печать"));
    editor.editingFinished();
    QCOMPARE(host.commands[0]->text(), QStringLiteral("Печать"));
    QCOMPARE(host.commands[0]->iconText(), QStringLiteral("Печать"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(editor.items().size(), 1);
    QVERIFY(!editor.owner());
    delete edit;
}

void tst_QuickPanelEditors::nameLongerThanFiftyCannotBeTyped()
{
    Host host;
    addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    Page page(host);
    page.click(page.model->index(0, 0));
    auto* edit = page.paramsBox()->findChild<QLineEdit*>();
    QVERIFY(edit);
    edit->selectAll();
    QTest::keyClicks(edit, QString(60, QLatin1Char('x')));
    QCOMPARE(edit->text().size(), 50);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(host.visibleActions().first()->text(), QString(50, QLatin1Char('x')));
}

void tst_QuickPanelEditors::renamingChangesBarAndTreeRowThroughOwner()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    Page page(host);
    const QModelIndex groupIndex = page.model->index(1, 0);
    page.click(groupIndex);
    auto* edit = page.paramsBox()->findChild<QLineEdit*>();
    QVERIFY(edit);
    QCOMPARE(edit->text(), QStringLiteral("Группа"));
    QSignalSpy changed(page.model, &QAbstractItemModel::dataChanged);
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("Print"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(group->text(), QStringLiteral("Print"));
    QCOMPARE(ui::findActionButton(host.bar(), group)->text(), QStringLiteral("Print"));
    QCOMPARE(groupIndex.data().toString(), QStringLiteral("Print"));
    QVERIFY(changed.count() >= 1);
    QCOMPARE(changed.first().at(0).value<QModelIndex>(), groupIndex);
    QCOMPARE(changed.first().at(1).value<QModelIndex>(), groupIndex);
    QVERIFY(changed.first().at(2).value<QVector<int>>().isEmpty());
}

void tst_QuickPanelEditors::widgetIsBuiltOnce()
{
    Host host;
    addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QList<QuickPanelTreeItem*> group = itemsOf(model, {model.index(0, 0)});
    const QList<QuickPanelTreeItem*> plain = itemsOf(model, {model.index(1, 0)});
    QuickPanelItemNameEditor name(plain, nullptr);
    QuickPanelActionItemEditor action(plain, nullptr);
    QuickPanelPopupWidgetActionItemEditor popup(plain, nullptr);
    QuickPanelActionGroupItemEditor groupEditor(group, nullptr);
    QuickPanelToolButtonStyleEditor style(plain, nullptr);
    for (QuickPanelAbstractEditor* editor : std::initializer_list<QuickPanelAbstractEditor*>{
             &name, &action, &popup, &groupEditor, &style}) {
        QWidget* widget = editor->editorWidget();
        QVERIFY(widget);
        QCOMPARE(editor->editorWidget(), widget);
        editor->setParent(nullptr);
        delete widget;
    }
}

void tst_QuickPanelEditors::editorDiesWithItsWidget()
{
    Host host;
    addGroup(host, QStringLiteral("Группа"), {host.commands[1]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    auto* editor = new QuickPanelActionGroupItemEditor(itemsOf(model, {model.index(0, 0)}), nullptr);
    QPointer<QuickPanelAbstractEditor> watch(editor);
    QWidget* widget = editor->editorWidget();
    editor->setParent(widget);
    // The name sub-editor lives in the name field, inside the widget.
    QPointer<QuickPanelItemNameEditor> nameEditor = widget->findChild<QuickPanelItemNameEditor*>();
    QVERIFY(nameEditor);
    QCOMPARE(nameEditor->parent(), widget->findChild<QLineEdit*>());
    delete widget;
    QVERIFY(!watch);
    QVERIFY(!nameEditor);
}

void tst_QuickPanelEditors::plainAndPopupEditorsAreEmpty()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QList<QuickPanelTreeItem*> items = itemsOf(model, {model.index(0, 0)});
    QuickPanelActionItemEditor action(items, nullptr);
    QuickPanelPopupWidgetActionItemEditor popup(items, nullptr);
    for (QuickPanelAbstractEditor* editor : std::initializer_list<QuickPanelAbstractEditor*>{&action, &popup}) {
        QScopedPointer<QWidget> widget(editor->editorWidget());
        auto* layout = qobject_cast<QVBoxLayout*>(widget->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 0);
        QVERIFY(widget->findChildren<QWidget*>().isEmpty());
    }
}

void tst_QuickPanelEditors::groupEditorForOneGroupCommand()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QuickPanelActionGroupItemEditor editor(itemsOf(model, {model.index(0, 0)}), nullptr);
    QScopedPointer<QWidget> widget(editor.editorWidget());
    auto* layout = qobject_cast<QVBoxLayout*>(widget->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 2);
    auto* edit = qobject_cast<QLineEdit*>(layout->itemAt(0)->widget());
    QVERIFY(edit);
    QVERIFY(edit->isEnabled());
    QCOMPARE(edit->text(), group->text());
    auto* box = qobject_cast<QGroupBox*>(layout->itemAt(1)->widget());
    QVERIFY(box);
    QCOMPARE(box->title(), QString::fromUtf8("Тип кнопки"));
    const QList<QRadioButton*> radios = box->findChildren<QRadioButton*>();
    QCOMPARE(radios.size(), 3);
    QCOMPARE(label(radios[0]), QString::fromUtf8("Запоминать активную"));
    QCOMPARE(label(radios[1]), QString::fromUtf8("Не запоминать"));
    QCOMPARE(label(radios[2]), QString::fromUtf8("Делать активной первую"));
    QVERIFY(!radios[0]->isChecked());
    QVERIFY(radios[1]->isChecked());
    QVERIFY(!radios[2]->isChecked());

    // A dynamic group command: the name field is disabled from the start.
    ui::setGroupButtonType(host.bar(), group, ui::DynamicLite);
    QuickPanelActionGroupItemEditor dynamicEditor(itemsOf(model, {model.index(0, 0)}), nullptr);
    QScopedPointer<QWidget> dynamicWidget(dynamicEditor.editorWidget());
    QVERIFY(!dynamicWidget->findChild<QLineEdit*>()->isEnabled());
    QVERIFY(radio(dynamicWidget.data(), "Делать активной первую")->isChecked());
}

void tst_QuickPanelEditors::switchingToRememberGreysOutNameAtOnce()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    Page page(host);
    page.click(page.model->index(0, 0));
    auto* edit = page.paramsBox()->findChild<QLineEdit*>();
    QVERIFY(edit);
    QVERIFY(edit->isEnabled());
    QSignalSpy changed(page.model, &QAbstractItemModel::dataChanged);
    QRadioButton* remember = radio(page.paramsBox(), "Запоминать активную");
    QTest::mouseClick(remember, Qt::LeftButton, Qt::NoModifier, QPoint(6, remember->height() / 2));
    QVERIFY(remember->isChecked());
    QVERIFY(!edit->isEnabled());
    QCOMPARE(ui::getGroupButtonType(host.bar(), group), ui::Dynamic);
    QCOMPARE(changed.count(), 1);
    // Back to simple: editable again, with the name reloaded.
    QRadioButton* simple = radio(page.paramsBox(), "Не запоминать");
    QTest::mouseClick(simple, Qt::LeftButton, Qt::NoModifier, QPoint(6, simple->height() / 2));
    QVERIFY(edit->isEnabled());
    QCOMPARE(edit->text(), group->text());
    QCOMPARE(ui::getGroupButtonType(host.bar(), group), ui::Simple);
    QCOMPARE(changed.count(), 2);
}

void tst_QuickPanelEditors::groupTypeChoicesApplyToBar()
{
    Host host;
    QAction* group = addGroup(host, QStringLiteral("Группа"), {host.commands[1], host.commands[2]});
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QuickPanelActionGroupItemEditor editor(itemsOf(model, {model.index(0, 0)}), nullptr);
    QScopedPointer<QWidget> widget(editor.editorWidget());
    QSignalSpy changed(&editor, &QuickPanelAbstractEditor::paramChanged);
    editor.setDynamic(false);
    editor.setDynamicLite(false);
    editor.setSimple(false);
    QCOMPARE(changed.count(), 0);
    editor.setDynamicLite(true);
    QCOMPARE(ui::getGroupButtonType(host.bar(), group), ui::DynamicLite);
    QToolButton* button = ui::findActionButton(host.bar(), group);
    QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
    // The face shows the first command.
    QCOMPARE(group->text(), host.commands[1]->text());
    editor.setDynamic(true);
    QCOMPARE(ui::getGroupButtonType(host.bar(), group), ui::Dynamic);
    editor.setSimple(true);
    QCOMPARE(ui::getGroupButtonType(host.bar(), group), ui::Simple);
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(changed.count(), 3);
}

void tst_QuickPanelEditors::groupEditorForSeveralGroupCommands()
{
    Host host;
    QAction* first = addGroup(host, QStringLiteral("Первая"), {host.commands[1]});
    QAction* second = addGroup(host, QStringLiteral("Вторая"), {host.commands[2]});
    Page page(host);
    page.click(page.model->index(0, 0));
    page.click(page.model->index(1, 0), Qt::ControlModifier);
    QCOMPARE(page.view->selectionModel()->selectedIndexes().size(), 2);
    auto* editor = page.paramsBox()->findChild<QuickPanelActionGroupItemEditor*>();
    QVERIFY(editor);
    QCOMPARE(editor->items().size(), 2);
    QVERIFY(!page.paramsBox()->findChild<QLineEdit*>());
    QRadioButton* lite = radio(page.paramsBox(), "Делать активной первую");
    QTest::mouseClick(lite, Qt::LeftButton, Qt::NoModifier, QPoint(6, lite->height() / 2));
    QCOMPARE(ui::getGroupButtonType(host.bar(), first), ui::DynamicLite);
    QCOMPARE(ui::getGroupButtonType(host.bar(), second), ui::DynamicLite);
}

void tst_QuickPanelEditors::mixedGroupTypesCheckNoChoice()
{
    Host host;
    QAction* first = addGroup(host, QStringLiteral("Первая"), {host.commands[1]});
    QAction* second = addGroup(host, QStringLiteral("Вторая"), {host.commands[2]});
    ui::setGroupButtonType(host.bar(), second, ui::Dynamic);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    QuickPanelActionGroupItemEditor editor(itemsOf(model, {model.index(0, 0), model.index(1, 0)}), nullptr);
    QScopedPointer<QWidget> widget(editor.editorWidget());
    const QList<QRadioButton*> radios = widget->findChildren<QRadioButton*>();
    QCOMPARE(radios.size(), 3);
    for (QRadioButton* button : radios)
        QVERIFY2(!button->isChecked(), qPrintable(label(button)));
    // Nothing changes until a choice is made.
    QCOMPARE(ui::getGroupButtonType(host.bar(), first), ui::Simple);
    QCOMPARE(ui::getGroupButtonType(host.bar(), second), ui::Dynamic);
    radio(widget.data(), "Запоминать активную")->setChecked(true);
    QCOMPARE(ui::getGroupButtonType(host.bar(), first), ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(host.bar(), second), ui::Dynamic);
}

void tst_QuickPanelEditors::mixedSelectionInPageCanBeMadeSimple()
{
    // With one choice already checked for a mixed selection, clicking it
    // would change nothing: the user could not make both simple.
    Host host;
    QAction* first = addGroup(host, QStringLiteral("Первая"), {host.commands[1]});
    QAction* second = addGroup(host, QStringLiteral("Вторая"), {host.commands[2]});
    ui::setGroupButtonType(host.bar(), first, ui::DynamicLite);
    Page page(host);
    page.click(page.model->index(0, 0));
    page.click(page.model->index(1, 0), Qt::ControlModifier);
    QCOMPARE(page.view->selectionModel()->selectedIndexes().size(), 2);
    for (const char* text : {"Запоминать активную", "Не запоминать", "Делать активной первую"})
        QVERIFY2(!radio(page.paramsBox(), text)->isChecked(), text);
    QRadioButton* simple = radio(page.paramsBox(), "Не запоминать");
    QTest::mouseClick(simple, Qt::LeftButton, Qt::NoModifier, QPoint(6, simple->height() / 2));
    QVERIFY(simple->isChecked());
    QCOMPARE(ui::getGroupButtonType(host.bar(), first), ui::Simple);
    QCOMPARE(ui::getGroupButtonType(host.bar(), second), ui::Simple);
}

void tst_QuickPanelEditors::toolButtonStyleEditor()
{
    Host host;
    host.ribbon.addQuickAction(host.commands[0]);
    host.ribbon.addQuickAction(host.commands[1]);
    RibbonQuickPanelTreeModel model(&host.ribbon);
    const QList<QuickPanelTreeItem*> items = itemsOf(model, {model.index(0, 0), model.index(1, 0)});
    {
        QuickPanelToolButtonStyleEditor editor(items, nullptr);
        QScopedPointer<QWidget> widget(editor.editorWidget());
        auto* box = widget->findChild<QGroupBox*>();
        QVERIFY(box);
        QCOMPARE(box->title(), QString::fromUtf8("Вид кнопки"));
        const QList<QRadioButton*> radios = box->findChildren<QRadioButton*>();
        QCOMPARE(radios.size(), 4);
        QCOMPARE(label(radios[0]), QString::fromUtf8("Только иконка"));
        QCOMPARE(label(radios[1]), QString::fromUtf8("Только текст"));
        QCOMPARE(label(radios[2]), QString::fromUtf8("Текст возле иконки"));
        QCOMPARE(label(radios[3]), QString::fromUtf8("Текст под иконкой"));
        // Both buttons have the bar's icon-only look.
        QVERIFY(radios[0]->isChecked());
        QSignalSpy changed(&editor, &QuickPanelAbstractEditor::paramChanged);
        widget->show();
        QTest::mouseClick(radios[3], Qt::LeftButton, Qt::NoModifier, QPoint(6, radios[3]->height() / 2));
        QCOMPARE(changed.count(), 1);
        for (int i : {0, 1}) {
            QToolButton* button = ui::findActionButton(host.bar(), host.commands[i]);
            QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
            QCOMPARE(button->iconSize(), QSize(32, 32));
        }
    }
    // Different looks: nothing is checked.
    static_cast<QuickActionItem*>(items[0])->setButtonStyle(Qt::ToolButtonTextOnly);
    QuickPanelToolButtonStyleEditor mixed(items, nullptr);
    QScopedPointer<QWidget> widget(mixed.editorWidget());
    for (QRadioButton* button : widget->findChildren<QRadioButton*>())
        QVERIFY(!button->isChecked());
}

QTEST_MAIN(tst_QuickPanelEditors)
#include "tst_quickpaneleditors.moc"
