#include <tessaro/RibbonTreeItemsEditor.h>

#include <tessaro/QRibbonTreeQuickPanelWidget.h>
#include <tessaro/QRibbonTreeWidget.h>
#include <tessaro/RibbonBar.h>
#include <tessaro/ribbonQuickPanelTreeModel.h>
#include <tessaro/ribbonTreeModel.h>

#include "TessaroTranslate_p.h"
#include "WrappingRadioButton_p.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <optional>

// ---------------------------------------------------------------------------
// Editors of the ribbon tree

namespace {

constexpr int maxNameLength = 50;

bool isKind(const RibbonTreeItem* item, RibbonItemType type)
{
    return item && item->type() == static_cast<int>(type);
}

bool allParentsAreGroups(const QList<RibbonTreeItem*>& items)
{
    for (const RibbonTreeItem* item : items) {
        if (!isKind(item->parent(), RibbonItemType::Group))
            return false;
    }
    return true;
}

// The group and action of a command item whose parent is a group.
Qtitan::RibbonGroup* parentGroup(const RibbonTreeItem* item)
{
    return static_cast<const GroupItem*>(item->parent())->group();
}

QAction* actionOf(const RibbonTreeItem* item)
{
    return static_cast<const ActionItem*>(item)->action();
}

} // namespace

// AbstractEditor

AbstractEditor::AbstractEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : m_owner(owner)
    , m_items(items)
    , m_ribbonBar(owner ? owner->getRibbonBar() : nullptr)
{
    if (owner)
        connect(this, &AbstractEditor::paramChanged, owner, &QRibbonTreeWidget::paramChanged);
}

AbstractEditor::~AbstractEditor() = default;

QList<RibbonTreeItem*> AbstractEditor::items() const
{
    return m_items;
}

QRibbonTreeWidget* AbstractEditor::owner() const
{
    return m_owner;
}

ui::RibbonBar* AbstractEditor::ribbonBar() const
{
    return m_ribbonBar;
}

QWidget* AbstractEditor::createNameEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
{
    auto* editor = new ItemNameEditor(items, owner);
    QWidget* widget = editor->editorWidget();
    editor->setParent(widget);
    return widget;
}

QWidget* AbstractEditor::createButtonStyleEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
{
    auto* editor = new ToolButtonStyleEditor(items, owner);
    QWidget* widget = editor->editorWidget();
    editor->setParent(widget);
    return widget;
}

QWidget* AbstractEditor::stack(const QList<QWidget*>& children)
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* child : children)
        layout->addWidget(child);
    return widget;
}

// ItemNameEditor

ItemNameEditor::ItemNameEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* ItemNameEditor::editorWidget()
{
    if (m_widget || m_items.isEmpty())
        return m_widget;
    m_edit = new QLineEdit(m_items.first()->name());
    m_edit->setMaxLength(maxNameLength);
    connect(m_edit.data(), &QLineEdit::editingFinished, this, &ItemNameEditor::editingFinished);
    m_widget = m_edit.data();
    return m_widget;
}

void ItemNameEditor::editingFinished()
{
    // Leaving the field untouched must not rename: an untitled page shows
    // "< Без названия >" here, which is no title of its own.
    if (!m_edit || !m_edit->isModified() || m_items.isEmpty())
        return;
    m_edit->setModified(false);
    m_items.first()->setName(m_edit->text());
    if (m_ribbonBar)
        m_ribbonBar->updateCurrentPage();
    emit paramChanged();
}

// ToolButtonStyleEditor

ToolButtonStyleEditor::ToolButtonStyleEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* ToolButtonStyleEditor::editorWidget()
{
    if (m_widget)
        return m_widget;
    auto* box = new QGroupBox(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Вид кнопки"));
    auto* layout = new QVBoxLayout(box);
    m_buttons = new QButtonGroup(box);
    const QString texts[] = {
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Только иконка"),
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Только текст"),
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Текст возле иконки"),
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Текст под иконкой"),
    };
    for (int style = Qt::ToolButtonIconOnly; style <= Qt::ToolButtonTextUnderIcon; ++style) {
        auto* button = new WrappingRadioButton(texts[style]);
        m_buttons->addButton(button, style);
        layout->addWidget(button);
    }
    int common = -1;
    for (int i = 0; i < m_items.size(); ++i) {
        const int style = ui::actionButtonStyle(parentGroup(m_items.at(i)), actionOf(m_items.at(i)));
        if (i == 0)
            common = style;
        else if (style != common)
            common = -1;
    }
    if (QAbstractButton* button = m_buttons->button(common))
        button->setChecked(true);
    connect(m_buttons.data(), QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &ToolButtonStyleEditor::onButtonClicked);
    m_widget = box;
    return m_widget;
}

void ToolButtonStyleEditor::onButtonClicked(QAbstractButton* button)
{
    buttonClicked(m_buttons->id(button));
}

void ToolButtonStyleEditor::buttonClicked(int id)
{
    for (RibbonTreeItem* item : qAsConst(m_items))
        ui::setActionButtonStyle(parentGroup(item), actionOf(item), static_cast<Qt::ToolButtonStyle>(id));
    if (m_ribbonBar)
        m_ribbonBar->updateCurrentPage();
    emit paramChanged();
}

// PanelItemEditor

PanelItemEditor::PanelItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* PanelItemEditor::editorWidget()
{
    if (!m_widget && m_items.size() == 1)
        m_widget = stack({createNameEditor(m_items, m_owner)});
    return m_widget;
}

// GroupItemEditor

GroupItemEditor::GroupItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* GroupItemEditor::editorWidget()
{
    if (m_widget)
        return m_widget;
    QList<QWidget*> children;
    if (m_items.size() == 1)
        children.append(createNameEditor(m_items, m_owner));
    auto* centeringBox = new QCheckBox(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Центровка"));
    bool centered = true;
    for (const RibbonTreeItem* item : qAsConst(m_items))
        centered = centered && static_cast<const GroupItem*>(item)->group()->isControlsCentering();
    centeringBox->setChecked(centered);
    connect(centeringBox, &QCheckBox::toggled, this, &GroupItemEditor::centering);
    children.append(centeringBox);
    m_widget = stack(children);
    return m_widget;
}

void GroupItemEditor::centering(bool checked)
{
    for (RibbonTreeItem* item : qAsConst(m_items)) {
        auto* group = static_cast<GroupItem*>(item);
        group->group()->setControlsCentering(checked);
        group->updateGroup();
    }
}

// ActionItemEditor

ActionItemEditor::ActionItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* ActionItemEditor::editorWidget()
{
    if (!m_widget)
        m_widget = allParentsAreGroups(m_items) ? stack({createButtonStyleEditor(m_items, m_owner)}) : stack({});
    return m_widget;
}

// PopupWidgetActionItemEditor

PopupWidgetActionItemEditor::PopupWidgetActionItemEditor(const QList<RibbonTreeItem*>& items,
                                                         QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* PopupWidgetActionItemEditor::editorWidget()
{
    if (!m_widget)
        m_widget = allParentsAreGroups(m_items) ? stack({createButtonStyleEditor(m_items, m_owner)}) : stack({});
    return m_widget;
}

// ActionGroupItemEditor

ActionGroupItemEditor::ActionGroupItemEditor(const QList<RibbonTreeItem*>& items, QRibbonTreeWidget* owner)
    : AbstractEditor(items, owner)
{
}

QWidget* ActionGroupItemEditor::editorWidget()
{
    if (m_widget)
        return m_widget;
    if (!allParentsAreGroups(m_items)) {
        m_widget = stack(m_items.size() == 1 ? QList<QWidget*>{createNameEditor(m_items, m_owner)}
                                             : QList<QWidget*>{});
        return m_widget;
    }
    // A mixed selection has no common kind: no button is checked, and the
    // name field (single items only) never sees one.
    ui::GroupButtonType common = ui::Simple;
    bool mixed = false;
    for (int i = 0; i < m_items.size(); ++i) {
        const ui::GroupButtonType type = ui::getGroupButtonType(parentGroup(m_items.at(i)), actionOf(m_items.at(i)));
        if (i == 0)
            common = type;
        else if (type != common)
            mixed = true;
    }
    if (mixed)
        common = ui::Simple;

    QList<QWidget*> children;
    if (m_items.size() == 1) {
        m_nameWidget = createNameEditor(m_items, m_owner);
        // A dynamic group command shows its active command's text: its own
        // name is not edited.
        m_nameWidget->setEnabled(common == ui::Simple);
        children.append(m_nameWidget.data());
    }
    auto* box = new QGroupBox(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Тип кнопки"));
    auto* layout = new QVBoxLayout(box);
    auto* dynamic = new WrappingRadioButton(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Запоминать активную"));
    auto* simple = new WrappingRadioButton(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Не запоминать"));
    auto* dynamicLite = new WrappingRadioButton(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Делать активной первую"));
    dynamic->setChecked(!mixed && common == ui::Dynamic);
    simple->setChecked(!mixed && common == ui::Simple);
    dynamicLite->setChecked(!mixed && common == ui::DynamicLite);
    for (WrappingRadioButton* button : {dynamic, simple, dynamicLite})
        layout->addWidget(button);
    connect(dynamic, &QRadioButton::toggled, this, &ActionGroupItemEditor::setDynamic);
    connect(simple, &QRadioButton::toggled, this, &ActionGroupItemEditor::setSimple);
    connect(dynamicLite, &QRadioButton::toggled, this, &ActionGroupItemEditor::setDynamicLite);
    children.append(box);
    m_widget = stack(children);
    return m_widget;
}

void ActionGroupItemEditor::setSimple(bool checked)
{
    if (checked)
        setType(ui::Simple);
}

void ActionGroupItemEditor::setDynamic(bool checked)
{
    if (checked)
        setType(ui::Dynamic);
}

void ActionGroupItemEditor::setDynamicLite(bool checked)
{
    if (checked)
        setType(ui::DynamicLite);
}

void ActionGroupItemEditor::setType(ui::GroupButtonType type)
{
    if (m_nameWidget && !m_items.isEmpty()) {
        m_nameWidget->setEnabled(type == ui::Simple);
        if (auto* edit = qobject_cast<QLineEdit*>(m_nameWidget.data()))
            edit->setText(m_items.first()->name());
    }
    for (RibbonTreeItem* item : qAsConst(m_items))
        ui::setGroupButtonType(parentGroup(item), actionOf(item), type);
    if (m_ribbonBar)
        m_ribbonBar->updateCurrentPage();
    emit paramChanged();
}

// ---------------------------------------------------------------------------
// Editors of the quick access tree

namespace {

// Only the quick access bar itself is not an action item.
QuickActionItem* quickActionItem(QuickPanelTreeItem* item)
{
    if (!item || item->type() == int(QuickPanelItemType::Root))
        return nullptr;
    return static_cast<QuickActionItem*>(item);
}

QGroupBox* newQuickPanelChoiceBox(const QString& title)
{
    auto* box = new QGroupBox(title);
    new QVBoxLayout(box);
    return box;
}

// The parameters box is narrow: long labels break into lines.
QRadioButton* newQuickPanelChoice(const QString& text, QGroupBox* box)
{
    auto* radio = new WrappingRadioButton(text);
    box->layout()->addWidget(radio);
    return radio;
}

// A long name is shown from its start.
void showName(QLineEdit* edit, const QString& name)
{
    edit->setText(name);
    edit->setCursorPosition(0);
}

QWidget* newQuickPanelComposite()
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    return widget;
}

// The name sub-editor's widget, with the sub-editor parented to it.
QWidget* newQuickPanelNameEditor(const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner)
{
    auto* editor = new QuickPanelItemNameEditor(items, owner);
    QWidget* widget = editor->editorWidget();
    editor->setParent(widget);
    return widget;
}

ui::GroupButtonType groupButtonTypeOf(QuickPanelTreeItem* item)
{
    QuickActionItem* action = quickActionItem(item);
    return action ? action->groupButtonType() : ui::Simple;
}

// The button type all @p items share; none when they differ, so that no
// choice is offered as already made.
std::optional<ui::GroupButtonType> commonGroupButtonType(const QList<QuickPanelTreeItem*>& items)
{
    const ui::GroupButtonType type = groupButtonTypeOf(items.value(0));
    for (QuickPanelTreeItem* item : items) {
        if (groupButtonTypeOf(item) != type)
            return std::nullopt;
    }
    return type;
}

} // namespace

QuickPanelAbstractEditor::QuickPanelAbstractEditor(const QList<QuickPanelTreeItem*>& items,
                                                   QRibbonTreeQuickPanelWidget* owner)
    : m_owner(owner)
    , m_items(items)
    , m_widget(nullptr)
{
    if (owner)
        connect(this, SIGNAL(paramChanged()), owner, SLOT(paramChanged()));
}

QuickPanelAbstractEditor::~QuickPanelAbstractEditor() = default;

QList<QuickPanelTreeItem*> QuickPanelAbstractEditor::items() const
{
    return m_items;
}

QRibbonTreeQuickPanelWidget* QuickPanelAbstractEditor::owner() const
{
    return m_owner;
}

QuickPanelItemNameEditor::QuickPanelItemNameEditor(const QList<QuickPanelTreeItem*>& items,
                                                   QRibbonTreeQuickPanelWidget* owner)
    : QuickPanelAbstractEditor(items, owner)
{
}

QWidget* QuickPanelItemNameEditor::editorWidget()
{
    if (!m_widget) {
        auto* edit = new QLineEdit;
        edit->setMaxLength(50);
        if (!m_items.isEmpty())
            showName(edit, m_items.first()->name());
        connect(edit, SIGNAL(editingFinished()), this, SLOT(editingFinished()));
        m_widget = edit;
    }
    return m_widget;
}

void QuickPanelItemNameEditor::editingFinished()
{
    auto* edit = qobject_cast<QLineEdit*>(m_widget);
    if (!edit || m_items.isEmpty())
        return;
    m_items.first()->setName(edit->text());
    emit paramChanged();
}

QuickPanelToolButtonStyleEditor::QuickPanelToolButtonStyleEditor(const QList<QuickPanelTreeItem*>& items,
                                                                 QRibbonTreeQuickPanelWidget* owner)
    : QuickPanelAbstractEditor(items, owner)
    , m_buttons(nullptr)
{
}

QWidget* QuickPanelToolButtonStyleEditor::editorWidget()
{
    if (m_widget)
        return m_widget;
    m_widget = newQuickPanelComposite();
    QGroupBox* box = newQuickPanelChoiceBox(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Вид кнопки"));
    m_buttons = new QButtonGroup(box);
    const QString texts[] = {
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Только иконка"),
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Только текст"),
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Текст возле иконки"),
        TESSARO_TR("RibbonTreeItemsEditor.cpp", "Текст под иконкой"),
    };
    for (int style = Qt::ToolButtonIconOnly; style <= Qt::ToolButtonTextUnderIcon; ++style) {
        m_buttons->addButton(newQuickPanelChoice(texts[style], box), style);
    }
    int common = -1;
    for (QuickPanelTreeItem* item : qAsConst(m_items)) {
        QuickActionItem* action = quickActionItem(item);
        const int style = action ? int(action->buttonStyle()) : -1;
        if (common == -1)
            common = style;
        else if (common != style)
            common = -2;
    }
    if (QAbstractButton* button = m_buttons->button(common))
        button->setChecked(true);
    connect(m_buttons, SIGNAL(buttonClicked(QAbstractButton*)), this, SLOT(onButtonClicked(QAbstractButton*)));
    m_widget->layout()->addWidget(box);
    return m_widget;
}

void QuickPanelToolButtonStyleEditor::buttonClicked(int id)
{
    for (QuickPanelTreeItem* item : qAsConst(m_items)) {
        if (QuickActionItem* action = quickActionItem(item))
            action->setButtonStyle(Qt::ToolButtonStyle(id));
    }
    emit paramChanged();
}

void QuickPanelToolButtonStyleEditor::onButtonClicked(QAbstractButton* button)
{
    buttonClicked(m_buttons->id(button));
}

QuickPanelActionItemEditor::QuickPanelActionItemEditor(const QList<QuickPanelTreeItem*>& items,
                                                       QRibbonTreeQuickPanelWidget* owner)
    : QuickPanelAbstractEditor(items, owner)
{
}

QWidget* QuickPanelActionItemEditor::editorWidget()
{
    if (!m_widget)
        m_widget = newQuickPanelComposite();
    return m_widget;
}

QuickPanelPopupWidgetActionItemEditor::QuickPanelPopupWidgetActionItemEditor(
    const QList<QuickPanelTreeItem*>& items, QRibbonTreeQuickPanelWidget* owner)
    : QuickPanelAbstractEditor(items, owner)
{
}

QWidget* QuickPanelPopupWidgetActionItemEditor::editorWidget()
{
    if (!m_widget)
        m_widget = newQuickPanelComposite();
    return m_widget;
}

QuickPanelActionGroupItemEditor::QuickPanelActionGroupItemEditor(const QList<QuickPanelTreeItem*>& items,
                                                                 QRibbonTreeQuickPanelWidget* owner)
    : QuickPanelAbstractEditor(items, owner)
    , m_nameWidget(nullptr)
{
}

QWidget* QuickPanelActionGroupItemEditor::editorWidget()
{
    if (m_widget)
        return m_widget;
    m_widget = newQuickPanelComposite();
    const std::optional<ui::GroupButtonType> type = commonGroupButtonType(m_items);
    if (m_items.size() == 1) {
        // A dynamic group command shows its active command's text, so its
        // own name is not edited.
        m_nameWidget = newQuickPanelNameEditor(m_items, m_owner);
        m_nameWidget->setEnabled(type == ui::Simple);
        m_widget->layout()->addWidget(m_nameWidget);
    }
    QGroupBox* box = newQuickPanelChoiceBox(TESSARO_TR("RibbonTreeItemsEditor.cpp", "Тип кнопки"));
    struct Choice
    {
        QString text;
        ui::GroupButtonType type;
        const char* slot;
    };
    const Choice choices[] = {
        {TESSARO_TR("RibbonTreeItemsEditor.cpp", "Запоминать активную"), ui::Dynamic, SLOT(setDynamic(bool))},
        {TESSARO_TR("RibbonTreeItemsEditor.cpp", "Не запоминать"), ui::Simple, SLOT(setSimple(bool))},
        {TESSARO_TR("RibbonTreeItemsEditor.cpp", "Делать активной первую"), ui::DynamicLite,
         SLOT(setDynamicLite(bool))},
    };
    for (const Choice& choice : choices) {
        QRadioButton* radio = newQuickPanelChoice(choice.text, box);
        radio->setChecked(choice.type == type);
        connect(radio, SIGNAL(toggled(bool)), this, choice.slot);
    }
    m_widget->layout()->addWidget(box);
    return m_widget;
}

void QuickPanelActionGroupItemEditor::setSimple(bool checked)
{
    if (checked)
        applyType(ui::Simple);
}

void QuickPanelActionGroupItemEditor::setDynamic(bool checked)
{
    if (checked)
        applyType(ui::Dynamic);
}

void QuickPanelActionGroupItemEditor::setDynamicLite(bool checked)
{
    if (checked)
        applyType(ui::DynamicLite);
}

void QuickPanelActionGroupItemEditor::applyType(ui::GroupButtonType type)
{
    if (m_nameWidget) {
        m_nameWidget->setEnabled(type == ui::Simple);
        if (auto* edit = qobject_cast<QLineEdit*>(m_nameWidget))
            showName(edit, m_items.first()->name());
    }
    for (QuickPanelTreeItem* item : qAsConst(m_items)) {
        if (QuickActionItem* action = quickActionItem(item))
            action->setGroupButtonType(type);
    }
    emit paramChanged();
}
