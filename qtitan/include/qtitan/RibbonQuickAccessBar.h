#pragma once

#include "QtitanGlobal.h"

#include <QToolBar>

namespace Qtitan {

/// The small bar of favourite commands above the tabs or beside the title.
/// Its actions may be hidden one by one without being removed.
///
/// Every RibbonBar has one; its buttons show icons only.
///
/// @code
/// Qtitan::RibbonQuickAccessBar* bar = ribbon->quickAccessBar();
/// bar->addAction(saveAction);
/// bar->addAction(undoAction);
/// bar->setActionVisible(undoAction, false);   // stays in actions(), no button
/// @endcode
class QTITAN_EXPORT RibbonQuickAccessBar : public QToolBar
{
    Q_OBJECT
public:
    /// Creates an empty, fixed bar of 16 px icon-only buttons.
    explicit RibbonQuickAccessBar(QWidget* parent = nullptr);
    ~RibbonQuickAccessBar() override;

    /// Shows or hides the button of one of the bar's actions; the action keeps
    /// its place among actions(). Other actions are ignored.
    void setActionVisible(QAction* action, bool visible);
    /// Whether an action is the bar's and its button shows.
    bool isActionVisible(QAction* action) const;
    /// The number of the bar's actions that are visible.
    int visibleCount() const;

    /// The tool bar's hint, at least an icon plus a margin high.
    QSize sizeHint() const override;

protected:
    /// Keeps hidden actions without buttons and asks the ribbon to lay out again.
    void actionEvent(QActionEvent* event) override;
    /// Paints nothing: the ribbon paints the strip behind the bar.
    void paintEvent(QPaintEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
