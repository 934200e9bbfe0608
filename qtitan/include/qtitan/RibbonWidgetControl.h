#pragma once

#include "RibbonControl.h"

namespace Qtitan {

/// A control that holds the widget of a QWidgetAction, one row high, as wide
/// as the widget asks.
///
/// A group makes one for each QWidgetAction added to it.
///
/// @code
/// auto* zoom = new QWidgetAction(group);
/// zoom->setDefaultWidget(new QSpinBox);
/// group->addAction(zoom);
/// auto* control = qobject_cast<Qtitan::RibbonWidgetControl*>(group->controlByAction(zoom));
/// auto* spinBox = qobject_cast<QSpinBox*>(control->contentWidget());
/// @endcode
class QTITAN_EXPORT RibbonWidgetControl : public RibbonControl
{
    Q_OBJECT
public:
    /// Creates an empty widget control for a group.
    explicit RibbonWidgetControl(RibbonGroup* parent = nullptr);
    ~RibbonWidgetControl() override;

    /// The hosted widget, made by the default action's QWidgetAction::requestWidget().
    QWidget* contentWidget() const;

    /// Releases the widget of the old action and requests one from the new
    /// action if it is a QWidgetAction.
    void setDefaultAction(QAction* action) override;

    /// One row high and as wide as the hosted widget asks.
    QSize sizeHint() const override;
    /// The same as sizeHint().
    QSize minimumSizeHint() const override;

protected:
    /// Measures the control again when the hosted widget's size hint changes.
    bool event(QEvent* event) override;
    /// Centres the hosted widget vertically across the control's width.
    void resizeEvent(QResizeEvent* event) override;
    /// The hosted widget's width at one row's height.
    QSize computeSizeHint(RibbonControlSizeDefinition::GroupSize size) const override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
