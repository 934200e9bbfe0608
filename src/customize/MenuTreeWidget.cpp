#include <tessaro/MenuTreeWidget.h>

#include <tessaro/menuTreeModel.h>

#include <QItemSelectionModel>

MenuTreeWidget::MenuTreeWidget(QWidget* parent, QMenu* menu)
    : QTreeView(parent)
    , m_menu(menu)
    , m_model(nullptr)
{
    setAttribute(Qt::WA_MouseTracking);
    connect(this, SIGNAL(doubleClicked(const QModelIndex &)),
            this, SLOT(onMenuItemDoubleClicked(const QModelIndex &)));
    m_model = new MenuTreeModel(m_menu, this);
    setModel(m_model);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current, const QModelIndex&) {
                onMenuTreeViewCurrentChanged(current);
            });
    expandAll();
}

MenuTreeWidget::~MenuTreeWidget() = default;

void MenuTreeWidget::setMenu(QMenu* menu)
{
    const bool hadCurrent = currentIndex().isValid();
    m_menu = menu;
    m_model->setMenu(menu);
    expandAll();
    // The selection model clears its current index on a reset without a
    // signal; listeners still showing the old command must hear of it.
    if (hadCurrent && !currentIndex().isValid())
        onMenuTreeViewCurrentChanged(QModelIndex());
}

QMenu* MenuTreeWidget::menu() const
{
    return m_menu;
}

MenuTreeModel* MenuTreeWidget::menuModel() const
{
    return m_model;
}

void MenuTreeWidget::onMenuItemDoubleClicked(const QModelIndex& index)
{
    if (index.isValid() && index == currentIndex())
        emit actionDoubleClicked(MenuTreeModel::actionForIndex(index));
}

void MenuTreeWidget::onMenuTreeViewCurrentChanged(const QModelIndex& index)
{
    emit currentActionChanged(MenuTreeModel::actionForIndex(index));
}
