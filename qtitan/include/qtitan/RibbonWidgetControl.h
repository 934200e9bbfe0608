#pragma once

#include "RibbonControl.h"

namespace Qtitan {

/// A control that holds the widget of a QWidgetAction.
class QTITAN_EXPORT RibbonWidgetControl : public RibbonControl
{
    Q_OBJECT
public:
    explicit RibbonWidgetControl(RibbonGroup* parent = nullptr);
    ~RibbonWidgetControl() override;

    /// The hosted widget, made by the default action's QWidgetAction::requestWidget().
    QWidget* contentWidget() const;

    void setDefaultAction(QAction* action) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QSize computeSizeHint(RibbonControlSizeDefinition::GroupSize size) const override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
