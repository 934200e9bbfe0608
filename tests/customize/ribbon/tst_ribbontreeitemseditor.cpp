// The parameter editors of the ribbon editor, as the user drives them in the
// parameters box: name field, button look, centering and button type.
#include "ribbontreewidgetharness.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>

using fixture::display;
using fixture::Editor;

namespace {

// A label as given: a narrow box breaks long ones into lines.
QString label(const QAbstractButton* button)
{
    return button->text().replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QRadioButton* radio(QWidget* widget, const QString& text)
{
    for (QRadioButton* button : widget->findChildren<QRadioButton*>()) {
        if (label(button) == text)
            return button;
    }
    return nullptr;
}

QStringList checkedRadios(QWidget* widget)
{
    QStringList texts;
    for (QRadioButton* button : widget->findChildren<QRadioButton*>()) {
        if (button->isChecked())
            texts << label(button);
    }
    return texts;
}

void click(QAbstractButton* button)
{
    QVERIFY(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

void typeName(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

const QString remember = QStringLiteral("Запоминать активную");
const QString doNotRemember = QStringLiteral("Не запоминать");
const QString firstActive = QStringLiteral("Делать активной первую");

} // namespace

class tst_RibbonTreeItemsEditor : public QObject
{
    Q_OBJECT

private slots:
    void onePanelHasANameField();
    void twoPanelsHaveNoEditor();
    void renamingChangesRibbonAndRow();
    void untouchedNameFieldRenamesNothing();
    void nameLimitedToFiftyCharacters();
    void groupEditor();
    void centeringTwoGroupsLeavesTheTreeAlone();
    void buttonLookOfCommands();
    void buttonLookOfAMixedSelection();
    void commandsInAMenuHaveNoButtonLook();
    void groupCommandType();
    void switchingToRememberGreysTheName();
    void mixedGroupCommandTypes();
    void groupCommandInAMenu();
    void widgetBuiltOnce();
};

void tst_RibbonTreeItemsEditor::onePanelHasANameField()
{
    Editor e;
    e.clickRow(e.at({1}));
    QWidget* widget = e.editorWidget();
    QVERIFY(widget);
    const QList<QLineEdit*> edits = widget->findChildren<QLineEdit*>();
    QCOMPARE(edits.size(), 1);
    QCOMPARE(edits.first()->text(), QStringLiteral("Insert"));
    QCOMPARE(widget->findChildren<QWidget*>().size(), 1);
    QCOMPARE(widget->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    // The editor sits at the top of the box.
    QVERIFY(widget->geometry().top() < e.paramsBox->height() / 3);
}

void tst_RibbonTreeItemsEditor::twoPanelsHaveNoEditor()
{
    Editor e;
    e.clickRow(e.at({0}));
    QVERIFY(e.editor());
    e.clickRow(e.at({2}), Qt::ControlModifier);
    QCOMPARE(e.selected().size(), 2);
    QVERIFY(!e.editor());
    int shown = 0;
    for (QWidget* child : e.paramsBox->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        shown += child->isVisible() ? 1 : 0;
    QCOMPARE(shown, 0);
}

void tst_RibbonTreeItemsEditor::renamingChangesRibbonAndRow()
{
    Editor e;
    const QModelIndex insert = e.at({1});
    e.clickRow(insert);
    QSignalSpy changed(e.model, &QAbstractItemModel::dataChanged);
    typeName(e.editorWidget()->findChild<QLineEdit*>(), QStringLiteral("&Tables and more"));
    QCOMPARE(e.ribbon.insert->title(), QStringLiteral("&Tables and more"));
    QCOMPARE(display(*e.model, insert), QStringLiteral("Tables and more"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex(), insert);

    // A group command's name is its action's text and icon text.
    const QModelIndex paste = e.at({0, 0, 0});
    e.clickRow(paste);
    auto* edit = e.editorWidget()->findChild<QLineEdit*>();
    QCOMPARE(edit->text(), QStringLiteral("&Paste"));
    QVERIFY(edit->isEnabled());
    typeName(edit, QStringLiteral("Put"));
    QCOMPARE(e.ribbon.paste->text(), QStringLiteral("Put"));
    QCOMPARE(e.ribbon.paste->iconText(), QStringLiteral("Put"));
    QCOMPARE(display(*e.model, paste), QStringLiteral("Put"));

    // A group's name field, too.
    e.clickRow(e.at({1, 1}));
    edit = e.editorWidget()->findChild<QLineEdit*>();
    QCOMPARE(edit->text(), QStringLiteral("< Без названия >"));
    typeName(edit, QStringLiteral("Pictures"));
    QCOMPARE(e.ribbon.untitled->title(), QStringLiteral("Pictures"));
}

void tst_RibbonTreeItemsEditor::untouchedNameFieldRenamesNothing()
{
    Editor e;
    e.clickRow(e.at({2}));
    auto* edit = e.editorWidget()->findChild<QLineEdit*>();
    QCOMPARE(edit->text(), QStringLiteral("< Без названия >"));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    e.clickRow(e.at({0}));
    QVERIFY(e.ribbon.empty->title().isEmpty());
}

void tst_RibbonTreeItemsEditor::nameLimitedToFiftyCharacters()
{
    Editor e;
    e.clickRow(e.at({0, 1}));
    auto* edit = e.editorWidget()->findChild<QLineEdit*>();
    QCOMPARE(edit->maxLength(), 50);
    typeName(edit, QString(60, QLatin1Char('x')));
    QCOMPARE(edit->text().size(), 50);
    QCOMPARE(e.ribbon.font->title(), QString(50, QLatin1Char('x')));
}

void tst_RibbonTreeItemsEditor::groupEditor()
{
    Editor e;
    e.ribbon.font->setControlsCentering(true);
    e.clickRow(e.at({0, 1}));
    QWidget* widget = e.editorWidget();
    QCOMPARE(widget->findChildren<QLineEdit*>().size(), 1);
    auto* centering = widget->findChild<QCheckBox*>();
    QCOMPARE(centering->text(), QStringLiteral("Центровка"));
    QVERIFY(centering->isChecked());
    // The name field comes first.
    QVERIFY(widget->findChild<QLineEdit*>()->geometry().top() < centering->geometry().top());

    // One of two groups not centred: unchecked, and no name field for two.
    e.clickRow(e.at({0, 0}), Qt::ControlModifier);
    widget = e.editorWidget();
    QCOMPARE(widget->findChildren<QLineEdit*>().size(), 0);
    QVERIFY(!widget->findChild<QCheckBox*>()->isChecked());
}

void tst_RibbonTreeItemsEditor::centeringTwoGroupsLeavesTheTreeAlone()
{
    Editor e;
    ui::setGroupButtonType(e.ribbon.clipboard, e.ribbon.paste, ui::DynamicLite);
    e.clickRow(e.at({0, 0}));
    e.clickRow(e.at({0, 1}), Qt::ControlModifier);
    auto* centering = e.editorWidget()->findChild<QCheckBox*>();
    QSignalSpy changed(e.model, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(e.model, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(e.model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(e.model, &QAbstractItemModel::rowsRemoved);
    const QModelIndexList before = e.selected();
    click(centering);
    QVERIFY(centering->isChecked());
    QVERIFY(e.ribbon.clipboard->isControlsCentering());
    QVERIFY(e.ribbon.font->isControlsCentering());
    QCOMPARE(changed.count() + reset.count() + inserted.count() + removed.count(), 0);
    QCOMPARE(e.selected(), before);
    QCOMPARE(e.model->rowCount(e.at({0, 0})), 5);
    // The groups were laid out again; their buttons kept their kinds.
    QCOMPARE(ui::getGroupButtonType(e.ribbon.clipboard, e.ribbon.paste), ui::DynamicLite);
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, e.ribbon.colour), ui::Dynamic);
    click(centering);
    QVERIFY(!e.ribbon.clipboard->isControlsCentering());
    QVERIFY(!e.ribbon.font->isControlsCentering());
}

void tst_RibbonTreeItemsEditor::buttonLookOfCommands()
{
    Editor e;
    e.clickRow(e.at({0, 0, 1}));
    e.clickRow(e.at({0, 0, 2}), Qt::ControlModifier);
    QWidget* widget = e.editorWidget();
    auto* box = widget->findChild<QGroupBox*>();
    QCOMPARE(box->title(), QStringLiteral("Вид кнопки"));
    auto* group = box->findChild<QButtonGroup*>();
    const QStringList texts{QStringLiteral("Только иконка"), QStringLiteral("Только текст"),
                            QStringLiteral("Текст возле иконки"), QStringLiteral("Текст под иконкой")};
    for (int id = 0; id < 4; ++id)
        QCOMPARE(label(group->button(id)), texts.at(id));
    QCOMPARE(checkedRadios(widget), QStringList{QStringLiteral("Текст возле иконки")});

    QSignalSpy changed(e.model, &QAbstractItemModel::dataChanged);
    click(radio(widget, texts.at(3)));
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.cut), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.copy), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.formatPainter), Qt::ToolButtonIconOnly);
    QCOMPARE(changed.count(), 2);
    click(radio(widget, texts.at(1)));
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.cut), Qt::ToolButtonTextOnly);
}

void tst_RibbonTreeItemsEditor::buttonLookOfAMixedSelection()
{
    Editor e;
    e.clickRow(e.at({0, 0, 2}));
    e.clickRow(e.at({0, 0, 4}), Qt::ControlModifier);
    QWidget* widget = e.editorWidget();
    QVERIFY(checkedRadios(widget).isEmpty());
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.copy), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.formatPainter), Qt::ToolButtonIconOnly);
    click(radio(widget, QStringLiteral("Только иконка")));
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.copy), Qt::ToolButtonIconOnly);
    QCOMPARE(ui::actionButtonStyle(e.ribbon.clipboard, e.ribbon.formatPainter), Qt::ToolButtonIconOnly);
}

void tst_RibbonTreeItemsEditor::commandsInAMenuHaveNoButtonLook()
{
    Editor e;
    e.clickRow(e.at({0, 1, 3, 1}));
    QVERIFY(qobject_cast<ActionItemEditor*>(e.editor()));
    QWidget* widget = e.editorWidget();
    QVERIFY(widget);
    QVERIFY(widget->findChildren<QWidget*>().isEmpty());
}

void tst_RibbonTreeItemsEditor::groupCommandType()
{
    Editor e;
    e.clickRow(e.at({0, 1, 3}));
    QWidget* widget = e.editorWidget();
    auto* box = widget->findChild<QGroupBox*>();
    QCOMPARE(box->title(), QStringLiteral("Тип кнопки"));
    QStringList order;
    for (QRadioButton* button : box->findChildren<QRadioButton*>())
        order << label(button);
    QCOMPARE(order, (QStringList{remember, doNotRemember, firstActive}));
    QCOMPARE(checkedRadios(widget), QStringList{remember});
    auto* edit = widget->findChild<QLineEdit*>();
    QVERIFY(!edit->isEnabled());
    QCOMPARE(edit->text(), QStringLiteral("Red"));

    QSignalSpy changed(e.model, &QAbstractItemModel::dataChanged);
    click(radio(widget, firstActive));
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, e.ribbon.colour), ui::DynamicLite);
    QVERIFY(!edit->isEnabled());
    QCOMPARE(changed.count(), 1);
    click(radio(widget, doNotRemember));
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, e.ribbon.colour), ui::Simple);
    QVERIFY(edit->isEnabled());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(ui::findActionButton(e.ribbon.font, e.ribbon.colour)->popupMode(), QToolButton::InstantPopup);
}

void tst_RibbonTreeItemsEditor::switchingToRememberGreysTheName()
{
    Editor e;
    e.clickRow(e.at({0, 0, 0}));
    QWidget* widget = e.editorWidget();
    auto* edit = widget->findChild<QLineEdit*>();
    QVERIFY(edit->isEnabled());
    QCOMPARE(checkedRadios(widget), QStringList{doNotRemember});
    click(radio(widget, remember));
    QVERIFY(!edit->isEnabled());
    QCOMPARE(ui::getGroupButtonType(e.ribbon.clipboard, e.ribbon.paste), ui::Dynamic);
    // The button now shows its active command, and so does the tree.
    QCOMPARE(display(*e.model, e.at({0, 0, 0})), QStringLiteral("Paste Plain"));
}

void tst_RibbonTreeItemsEditor::mixedGroupCommandTypes()
{
    Editor e;
    e.model->addActionGroup(e.at({0, 1, 0}));
    const QModelIndex simple = e.at({0, 1, 1});
    e.clickRow(simple);
    e.clickRow(e.at({0, 1, 4}), Qt::ControlModifier);
    QCOMPARE(e.selected().size(), 2);
    QWidget* widget = e.editorWidget();
    QVERIFY(widget->findChildren<QLineEdit*>().isEmpty());
    QVERIFY(checkedRadios(widget).isEmpty());
    click(radio(widget, doNotRemember));
    QAction* created = qobject_cast<QAction*>(e.model->item(simple)->object());
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, created), ui::Simple);
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, e.ribbon.colour), ui::Simple);
    click(radio(widget, remember));
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, created), ui::Dynamic);
    QCOMPARE(ui::getGroupButtonType(e.ribbon.font, e.ribbon.colour), ui::Dynamic);
}

void tst_RibbonTreeItemsEditor::groupCommandInAMenu()
{
    Editor e;
    const QModelIndex nested = e.model->addActionGroup(e.at({0, 0, 0}));
    e.clickRow(nested);
    QVERIFY(qobject_cast<ActionGroupItemEditor*>(e.editor()));
    QWidget* widget = e.editorWidget();
    QVERIFY(!widget->findChild<QGroupBox*>());
    auto* edit = widget->findChild<QLineEdit*>();
    QVERIFY(edit && edit->isEnabled());
    typeName(edit, QStringLiteral("More"));
    QCOMPARE(e.ribbon.paste->menu()->actions().at(2)->text(), QStringLiteral("More"));
}

void tst_RibbonTreeItemsEditor::widgetBuiltOnce()
{
    fixture::Ribbon ribbon;
    RibbonTreeModel model(&ribbon.bar);
    const QModelIndex home = model.index(0, 0);
    const QModelIndex clipboard = model.index(0, 0, home);
    QList<RibbonTreeItem*> commands{model.item(model.index(1, 0, clipboard))};

    // Without an owner the editors still edit; nothing hears paramChanged.
    ToolButtonStyleEditor style(commands, nullptr);
    QWidget* widget = style.editorWidget();
    QCOMPARE(style.editorWidget(), widget);
    QSignalSpy changed(&style, &AbstractEditor::paramChanged);
    style.buttonClicked(Qt::ToolButtonIconOnly);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(ui::actionButtonStyle(ribbon.clipboard, ribbon.cut), Qt::ToolButtonIconOnly);
    QCOMPARE(style.ribbonBar(), nullptr);
    delete widget;

    PanelItemEditor twoPanels({model.item(home), model.item(model.index(1, 0))}, nullptr);
    QCOMPARE(twoPanels.editorWidget(), nullptr);
    QCOMPARE(twoPanels.editorWidget(), nullptr);

    auto* groups = new GroupItemEditor({model.item(clipboard)}, nullptr);
    QPointer<QWidget> groupWidget = groups->editorWidget();
    QCOMPARE(groups->editorWidget(), groupWidget.data());
    groups->setParent(groupWidget);
    QPointer<GroupItemEditor> guard = groups;
    groups->centering(true);
    QVERIFY(ribbon.clipboard->isControlsCentering());
    delete groupWidget.data();
    QVERIFY(!guard);
}

QTEST_MAIN(tst_RibbonTreeItemsEditor)
#include "tst_ribbontreeitemseditor.moc"
