#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QTreeView>

class QAction;
class QMenu;
class MenuTreeModel;

/// Tree view of a host's command menu (a MenuTreeModel), fully expanded.
///
/// Reports the current command and double-clicks on it as QAction pointers.
/// Categories and separators cannot become current, so they report nothing.
///
/// @code
/// MenuTreeWidget* tree = new MenuTreeWidget(parent, commandsMenu);
/// QObject::connect(tree, &MenuTreeWidget::actionDoubleClicked,
///                  [](QAction* command) { /* add it somewhere */ });
/// @endcode
class TESSARO_EXPORT MenuTreeWidget : public QTreeView
{
    Q_OBJECT

public:
    /// Creates the view and its model over @p menu (not owned; may be null).
    explicit MenuTreeWidget(QWidget* parent = nullptr, QMenu* menu = nullptr);
    ~MenuTreeWidget() override;

    /// Shows @p menu (not owned; may be null): resets the model and expands
    /// every category. Call it again after changing the menu's structure.
    /// A command that was current is dropped: currentActionChanged(nullptr).
    void setMenu(QMenu* menu);
    /// The menu shown, or null.
    QMenu* menu() const;
    /// The model the view shows (owned by the view).
    MenuTreeModel* menuModel() const;

signals:
    /// The current index changed; @p action is its action, null when none is current.
    void currentActionChanged(QAction* action);
    /// A current command (or dynamic menu) was double-clicked.
    void actionDoubleClicked(QAction* action);

private slots:
    void onMenuItemDoubleClicked(const QModelIndex& index);
    void onMenuTreeViewCurrentChanged(const QModelIndex& index);

private:
    QMenu* m_menu;
    MenuTreeModel* m_model;
};
