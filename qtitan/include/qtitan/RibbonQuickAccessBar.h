#pragma once

#include "QtitanGlobal.h"

#include <QToolBar>

namespace Qtitan {

/// The small bar of favourite commands above the tabs or beside the title.
/// Its actions may be hidden one by one without being removed.
class QTITAN_EXPORT RibbonQuickAccessBar : public QToolBar
{
    Q_OBJECT
public:
    explicit RibbonQuickAccessBar(QWidget* parent = nullptr);
    ~RibbonQuickAccessBar() override;

    void setActionVisible(QAction* action, bool visible);
    bool isActionVisible(QAction* action) const;
    /// The number of the bar's actions that are visible.
    int visibleCount() const;

    QSize sizeHint() const override;

protected:
    void actionEvent(QActionEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
