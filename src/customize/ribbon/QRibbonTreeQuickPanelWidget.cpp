#include <tessaro/QRibbonTreeQuickPanelWidget.h>

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonTreeItemsEditor.h>
#include <tessaro/ribbonQuickPanelTreeModel.h>

#include "EditorButtonIcons_p.h"
#include "ui_QRibbonTreeQuickPanelWidget.h"

#include <QAction>
#include <QItemSelection>

#include <algorithm>

namespace {

// The parent that every index of @p indexes shares; false when they do not
// share one or when the list is empty.
bool shareParent(const QModelIndexList& indexes, QModelIndex* parent)
{
    if (indexes.isEmpty())
        return false;
    *parent = indexes.first().parent();
    for (const QModelIndex& index : indexes) {
        if (index.parent() != *parent)
            return false;
    }
    return true;
}

// Whether the rows of @p indexes follow one another without a gap.
bool isContiguousRun(const QModelIndexList& indexes)
{
    int least = 10000;
    int greatest = 0;
    for (const QModelIndex& index : indexes) {
        least = qMin(least, index.row());
        greatest = qMax(greatest, index.row());
    }
    return greatest - least == indexes.size() - 1;
}

} // namespace

QRibbonTreeQuickPanelWidget::QRibbonTreeQuickPanelWidget(QWidget* parent)
    : QWidget(parent)
    , m_menuAction(nullptr)
    , m_ribbon(nullptr)
    , m_model(nullptr)
    , m_editor(nullptr)
    , m_ui(new Ui::ribbonTreeQuickPanelWidget)
{
    m_ui->setupUi(this);
    setEditorButtonIcons(m_ui);
    m_model = new RibbonQuickPanelTreeModel(nullptr, m_ui->ribbonTreeView);
    m_ui->ribbonTreeView->setModel(m_model);
    m_ui->ribbonTreeView->expandAll();
    connect(m_ui->ribbonTreeView->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection&, const QItemSelection&)),
            this, SLOT(onRibbonTreeSelectionChanged(const QItemSelection&)));
    connect(m_ui->ribbonTreeView, SIGNAL(customContextMenuRequested(const QPoint &)),
            this, SLOT(onRibbonTreeContextMenu(const QPoint &)));
    updateStateUI();
}

QRibbonTreeQuickPanelWidget::~QRibbonTreeQuickPanelWidget()
{
    delete m_ui;
}

void QRibbonTreeQuickPanelWidget::setMenuAction(QAction* action)
{
    m_menuAction = action;
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::updateModel(ui::RibbonBar* ribbon)
{
    m_menuAction = nullptr;
    m_ribbon = ribbon;
    if (m_editor) {
        m_editor->deleteLater();
        m_editor = nullptr;
    }
    // The reset invalidates the indexes of the last selection.
    m_selection.clear();
    m_model->setRibbonBar(ribbon);
    m_ui->ribbonTreeView->expandAll();
    updateStateUI();
}

ui::RibbonBar* QRibbonTreeQuickPanelWidget::getRibbonBar() const
{
    return m_ribbon;
}

void QRibbonTreeQuickPanelWidget::addItem(QAction* action)
{
    m_menuAction = action;
    onAddItem();
}

void QRibbonTreeQuickPanelWidget::paramChanged()
{
    const QModelIndexList selected = m_ui->ribbonTreeView->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : selected)
        emit m_model->dataChanged(index, index);
}

void QRibbonTreeQuickPanelWidget::updateStateUI()
{
    const QModelIndex current = m_ui->ribbonTreeView->currentIndex();
    const int selectedCount = m_ui->ribbonTreeView->selectionModel()->selectedIndexes().size();
    const bool hasCurrent = current.isValid();
    m_ui->up->setEnabled(hasCurrent && current.row() > 0 && selectedCount == 1);
    m_ui->down->setEnabled(hasCurrent && current.row() + 1 < m_model->rowCount(current.parent())
                           && selectedCount == 1);
    m_ui->del->setEnabled(hasCurrent);
    m_ui->addGroupItem->setEnabled(hasCurrent);
    m_ui->addSeparator->setEnabled(hasCurrent);
    m_ui->addItem->setEnabled(m_ribbon && m_menuAction && !m_menuAction->isSeparator()
                              && !m_ribbon->isQuickAction(m_menuAction));
}

void QRibbonTreeQuickPanelWidget::onAddItem()
{
    // The bar is checked by object name: another object standing for the
    // same command counts as present.
    if (!m_ribbon || !m_menuAction || m_ribbon->isQuickAction(m_menuAction))
        return;
    const QModelIndex current = m_ui->ribbonTreeView->currentIndex();
    const QModelIndex added = m_model->insertAction(current, m_menuAction);
    m_ui->ribbonTreeView->expand(current);
    if (added.isValid())
        m_ui->ribbonTreeView->setCurrentIndex(added);
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::onAddGroupItem()
{
    QItemSelectionModel* selection = m_ui->ribbonTreeView->selectionModel();
    const QModelIndexList selected = selection->selectedIndexes();
    QModelIndex parent;
    if (selected.size() >= 2 && shareParent(selected, &parent) && isContiguousRun(selected)) {
        // The new group command goes to the end of the level, so the rows to
        // move into it keep their numbers.
        const QModelIndex group = m_model->addActionGroup(parent);
        if (!group.isValid())
            return;
        m_ui->ribbonTreeView->expand(group);
        selection->select(group, QItemSelectionModel::ClearAndSelect);
        m_model->moveRows(group, selected);
        return;
    }
    if (!selected.isEmpty()) {
        const QModelIndex group = m_model->addActionGroup(selected.first());
        m_ui->ribbonTreeView->expand(selected.first());
        if (group.isValid())
            selection->select(group, QItemSelectionModel::ClearAndSelect);
    }
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::onAddSeparator()
{
    const QModelIndex current = m_ui->ribbonTreeView->currentIndex();
    if (current.isValid()) {
        const QModelIndex separator = m_model->addSeparator(current);
        m_ui->ribbonTreeView->expand(current);
        m_ui->ribbonTreeView->selectionModel()->select(separator, QItemSelectionModel::ClearAndSelect);
    }
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::onDel()
{
    QModelIndexList selected = m_ui->ribbonTreeView->selectionModel()->selectedIndexes();
    // The lowest rows go first, so the rows above keep their numbers.
    std::sort(selected.begin(), selected.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() > b.row(); });
    for (const QModelIndex& index : selected)
        m_model->removeItem(index);
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::onUp()
{
    QItemSelectionModel* selection = m_ui->ribbonTreeView->selectionModel();
    const QModelIndexList selected = selection->selectedIndexes();
    QModelIndex parent;
    if (selected.size() == 1) {
        m_model->moveUp(selected.first());
    } else if (selected.size() >= 2 && shareParent(selected, &parent) && parent.isValid()
               && isContiguousRun(selected)
               && m_model->itemType(parent) == int(QuickPanelItemType::ActionGroup)) {
        const QPersistentModelIndex group(parent);
        m_model->moveRows(parent.parent(), selected);
        selection->select(group, QItemSelectionModel::ClearAndSelect);
    }
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::onDown()
{
    const QModelIndexList selected = m_ui->ribbonTreeView->selectionModel()->selectedIndexes();
    if (selected.size() == 1)
        m_model->moveDown(selected.first());
    updateStateUI();
}

void QRibbonTreeQuickPanelWidget::onRibbonTreeContextMenu(const QPoint& pos)
{
    const QModelIndexList selected = m_ui->ribbonTreeView->selectionModel()->selectedIndexes();
    if (selected.size() != 1)
        return;
    m_model->showContextMenu(selected.first(), m_ui->ribbonTreeView->mapToGlobal(pos));
    createEditor();
}

void QRibbonTreeQuickPanelWidget::onRibbonTreeSelectionChanged(const QItemSelection& selected)
{
    QItemSelectionModel* selection = m_ui->ribbonTreeView->selectionModel();
    const QModelIndexList indexes = selection->selectedIndexes();
    QModelIndex parent;
    // A selection holds siblings only: rows picked under another parent are
    // dropped again at once.
    if (!indexes.isEmpty() && !shareParent(indexes, &parent)) {
        selection->select(selected, QItemSelectionModel::Deselect);
        return;
    }
    m_selection = indexes;
    createEditor();
}

void QRibbonTreeQuickPanelWidget::createEditor()
{
    if (m_editor) {
        m_editor->deleteLater();
        m_editor = nullptr;
    }
    if (!m_selection.isEmpty()) {
        int kind = m_model->itemType(m_selection.first());
        QList<QuickPanelTreeItem*> items;
        for (const QModelIndex& index : qAsConst(m_selection)) {
            items.append(m_model->itemForIndex(index));
            if (m_model->itemType(index) != kind)
                kind = int(QuickPanelItemType::Root);
        }
        QuickPanelAbstractEditor* editor = nullptr;
        switch (QuickPanelItemType(kind)) {
        case QuickPanelItemType::Action:
        case QuickPanelItemType::DynamicAction:
            editor = new QuickPanelActionItemEditor(items, this);
            break;
        case QuickPanelItemType::ActionGroup:
            editor = new QuickPanelActionGroupItemEditor(items, this);
            break;
        case QuickPanelItemType::PopupWidgetAction:
            editor = new QuickPanelPopupWidgetActionItemEditor(items, this);
            break;
        default:
            break;
        }
        if (editor) {
            m_editor = editor->editorWidget();
            editor->setParent(m_editor);
            m_ui->paramsLayout->addWidget(m_editor, 0, 0);
        }
    }
    updateStateUI();
}
