#include <tessaro/QRibbonTreeWidget.h>

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonTreeItemsEditor.h>
#include <tessaro/ribbonTreeModel.h>

#include "EditorButtonIcons_p.h"
#include "ui_QRibbonTreeWidget.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QItemSelection>
#include <QVector>

#include <algorithm>

namespace {

int kind(RibbonItemType type)
{
    return static_cast<int>(type);
}

} // namespace

QRibbonTreeWidget::QRibbonTreeWidget(QWidget* parent)
    : QWidget(parent)
    , m_menuAction(nullptr)
    , m_ribbonBar(nullptr)
    , m_model(nullptr)
    , m_ui(new Ui::ribbonTreeWidget)
{
    m_ui->setupUi(this);
    LazyIconEngine::setIcons({
        {m_ui->addPanel, ":/Tessaro/add-panel2.png"},
        {m_ui->addGroup, ":/Tessaro/add-group.png"},
    });
    setEditorButtonIcons(m_ui);
    m_model = new RibbonTreeModel(nullptr, m_ui->ribbonTreeView);
    m_ui->ribbonTreeView->setModel(m_model);
    expandBranches();
    connect(m_ui->ribbonTreeView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &QRibbonTreeWidget::onRibbonTreeSelectionChanged);
    connect(m_ui->ribbonTreeView, &QWidget::customContextMenuRequested, this,
            &QRibbonTreeWidget::onRibbonTreeContextMenu);
    updateStateUI();
}

QRibbonTreeWidget::~QRibbonTreeWidget()
{
    // The children outlive this part of the object: nothing they do while
    // they are torn down may reach it.
    m_ui->ribbonTreeView->selectionModel()->disconnect(this);
    m_ui->ribbonTreeView->disconnect(this);
    delete m_editorWidget.data();
    delete m_ui;
}

void QRibbonTreeWidget::updateModel(ui::RibbonBar* ribbonBar)
{
    m_menuAction = nullptr;
    m_ribbonBar = ribbonBar;
    retireEditorWidget();
    // The reset clears the selection without a signal; what is stored here
    // would point at the deleted items.
    m_selection.clear();
    m_model->setRibbonBar(ribbonBar);
    expandBranches();
    updateStateUI();
}

void QRibbonTreeWidget::expandBranches()
{
    // QTreeView::expandAll() would mark each of the thousands of commands
    // expanded too, a persistent index apiece. Right after the model's reset
    // the view only notes each expansion and lays the rows out once, later.
    QTreeView* view = m_ui->ribbonTreeView;
    QVector<QModelIndex> pending{QModelIndex()};
    while (!pending.isEmpty()) {
        const QModelIndex parent = pending.takeLast();
        const int rows = m_model->rowCount(parent);
        if (rows > 0 && parent.isValid())
            view->expand(parent);
        for (int row = 0; row < rows; ++row)
            pending.append(m_model->index(row, 0, parent));
    }
}

ui::RibbonBar* QRibbonTreeWidget::getRibbonBar() const
{
    return m_ribbonBar;
}

void QRibbonTreeWidget::setMenuAction(QAction* action)
{
    m_menuAction = action;
    updateStateUI();
}

void QRibbonTreeWidget::addItem(QAction* action)
{
    m_menuAction = action;
    onAddItem();
}

void QRibbonTreeWidget::clearSelection()
{
    m_ui->ribbonTreeView->selectionModel()->clearSelection();
    m_ui->ribbonTreeView->setCurrentIndex(QModelIndex());
}

void QRibbonTreeWidget::paramChanged()
{
    m_model->notifyChanged(selectedIndexes());
}

void QRibbonTreeWidget::onAddPanel()
{
    select(m_model->addPanel(currentIndex()));
    updateStateUI();
}

void QRibbonTreeWidget::onAddGroup()
{
    select(m_model->addGroup(currentIndex()));
    updateStateUI();
}

void QRibbonTreeWidget::onAddItem()
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && m_model->item(current)->canInsert(m_menuAction)) {
        if (itemType(current) == kind(RibbonItemType::Panel))
            return;
        const QModelIndex added = m_model->insertAction(current, m_menuAction);
        m_ui->ribbonTreeView->expand(current);
        m_ui->ribbonTreeView->setCurrentIndex(added);
    }
    updateStateUI();
}

void QRibbonTreeWidget::onAddGroupItem()
{
    const QModelIndex current = currentIndex();
    if (!selectedIndexes().isEmpty() && current.isValid() && itemType(current) != kind(RibbonItemType::Panel)) {
        const QModelIndex added = m_model->addActionGroup(current);
        m_ui->ribbonTreeView->expand(current);
        select(added);
    }
    updateStateUI();
}

void QRibbonTreeWidget::onAddSeparator()
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && itemType(current) != kind(RibbonItemType::Panel)) {
        const QModelIndex added = m_model->addSeparator(current);
        m_ui->ribbonTreeView->expand(current);
        select(added);
    }
    updateStateUI();
}

void QRibbonTreeWidget::onDel()
{
    // From the bottom up, so that the rows still to remove keep their numbers.
    QModelIndexList selected = selectedIndexes();
    std::sort(selected.begin(), selected.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() > b.row(); });
    for (const QModelIndex& index : qAsConst(selected))
        m_model->removeItem(index);
    updateStateUI();
}

void QRibbonTreeWidget::onUp()
{
    const QModelIndexList selected = selectedIndexes();
    if (selected.size() < 2) {
        if (selected.size() == 1)
            m_model->moveUp(selected.first());
        updateStateUI();
        return;
    }
    QModelIndex parent = selected.first().parent();
    int least = 10000;
    int greatest = 0;
    for (const QModelIndex& index : selected) {
        if (index.parent() != parent)
            parent = QModelIndex();
        least = qMin(least, index.row());
        greatest = qMax(greatest, index.row());
    }
    // Commands of a group command move up out of it, to the end of its group.
    if (parent.isValid() && greatest - least == selected.size() - 1
        && itemType(parent) == kind(RibbonItemType::ActionGroup)) {
        m_model->moveRows(parent.parent(), selected);
        select(parent);
    }
    updateStateUI();
}

void QRibbonTreeWidget::onDown()
{
    const QModelIndexList selected = selectedIndexes();
    if (selected.size() == 1)
        m_model->moveDown(selected.first());
    updateStateUI();
}

void QRibbonTreeWidget::onRibbonTreeSelectionChanged(const QItemSelection& selected)
{
    const QModelIndexList selection = selectedIndexes();
    for (const QModelIndex& index : selection) {
        if (index.parent() != selection.first().parent()) {
            // A selection always consists of siblings.
            m_ui->ribbonTreeView->selectionModel()->select(selected, QItemSelectionModel::Deselect);
            return;
        }
    }
    if (selection != m_selection) {
        m_selection = selection;
        createEditor();
    }
    updateStateUI();
}

void QRibbonTreeWidget::onRibbonTreeContextMenu(const QPoint& pos)
{
    const QModelIndexList selected = selectedIndexes();
    if (selected.size() == 1) {
        // The position is the viewport's, as the view reports it.
        m_model->showItemContextMenu(selected.first(), m_ui->ribbonTreeView->viewport()->mapToGlobal(pos));
        createEditor();
    }
    updateStateUI();
}

void QRibbonTreeWidget::createEditor()
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && m_ribbonBar) {
        const QModelIndex panel = m_model->findAncestor(current, kind(RibbonItemType::Panel));
        if (panel.isValid())
            m_ribbonBar->setCurrentPageIndex(panel.row());
    }
    retireEditorWidget();
    if (m_selection.isEmpty())
        return;

    QList<RibbonTreeItem*> items;
    int type = m_model->item(m_selection.first())->type();
    for (const QModelIndex& index : qAsConst(m_selection)) {
        RibbonTreeItem* item = m_model->item(index);
        if (item->type() != type)
            type = kind(RibbonItemType::Root);
        items.append(item);
    }

    AbstractEditor* editor = nullptr;
    switch (static_cast<RibbonItemType>(type)) {
    case RibbonItemType::Panel:
        editor = new PanelItemEditor(items, this);
        break;
    case RibbonItemType::Group:
        editor = new GroupItemEditor(items, this);
        break;
    case RibbonItemType::Action:
    case RibbonItemType::DynamicAction:
        editor = new ActionItemEditor(items, this);
        break;
    case RibbonItemType::ActionGroup:
        editor = new ActionGroupItemEditor(items, this);
        break;
    case RibbonItemType::PopupWidgetAction:
        editor = new PopupWidgetActionItemEditor(items, this);
        break;
    default:
        return;
    }
    m_editorWidget = editor->editorWidget();
    if (!m_editorWidget) {
        // Nothing to edit (several pages): the editor has no use.
        delete editor;
        return;
    }
    editor->setParent(m_editorWidget);
    m_ui->paramsLayout->addWidget(m_editorWidget, 0, 0);
}

void QRibbonTreeWidget::updateStateUI()
{
    const QModelIndexList selected = selectedIndexes();
    const QModelIndex first = selected.isEmpty() ? QModelIndex() : selected.first();
    const int count = selected.size();
    const bool valid = first.isValid();
    const bool panel = valid && itemType(first) == kind(RibbonItemType::Panel);
    const bool offered = m_menuAction && !m_menuAction->isSeparator() && !m_menuAction->menu();

    m_ui->up->setEnabled(valid && first.row() > 0 && count == 1);
    m_ui->down->setEnabled(valid && first.row() + 1 < m_model->rowCount(first.parent()) && count == 1);
    m_ui->del->setEnabled(valid);
    m_ui->addPanel->setEnabled(true);
    m_ui->addGroup->setEnabled(valid);
    m_ui->addItem->setEnabled(valid && !panel && offered && m_model->item(first)->canInsert(m_menuAction));
    m_ui->addGroupItem->setEnabled(valid && !panel);
    m_ui->addSeparator->setEnabled(valid && !panel);
}

void QRibbonTreeWidget::select(const QModelIndex& index)
{
    // The new item becomes current as well: the buttons act on the current
    // item, and it names the ribbon page to show.
    m_ui->ribbonTreeView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void QRibbonTreeWidget::retireEditorWidget()
{
    if (!m_editorWidget)
        return;
    // Hidden at once, so that it neither shares the box with its successor nor
    // takes input until it is deleted.
    m_editorWidget->hide();
    m_editorWidget->deleteLater();
    m_editorWidget = nullptr;
}

QModelIndex QRibbonTreeWidget::currentIndex() const
{
    return m_ui->ribbonTreeView->currentIndex();
}

QModelIndexList QRibbonTreeWidget::selectedIndexes() const
{
    return m_ui->ribbonTreeView->selectionModel()->selectedIndexes();
}

int QRibbonTreeWidget::itemType(const QModelIndex& index) const
{
    return m_model->itemType(index);
}
