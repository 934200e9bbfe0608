#pragma once

#include "RibbonControl.h"

#include <QToolButton>

namespace Qtitan {

/// A control that shows its action as a ribbon tool button.
class QTITAN_EXPORT RibbonButtonControl : public RibbonControl
{
    Q_OBJECT
public:
    explicit RibbonButtonControl(RibbonGroup* parent = nullptr);
    ~RibbonButtonControl() override;

    /// The button that shows the default action.
    QToolButton* widget() const;

    Qt::ToolButtonStyle toolButtonStyle() const;
    void setToolButtonStyle(Qt::ToolButtonStyle style);

    QToolButton::ToolButtonPopupMode popupMode() const;
    void setPopupMode(QToolButton::ToolButtonPopupMode mode);

    void setDefaultAction(QAction* action) override;
    void adjustCurrentSize(RibbonControlSizeDefinition::GroupSize size) override;
    void actionChanged() override;

    bool isLargeAt(RibbonControlSizeDefinition::GroupSize size) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    QSize computeSizeHint(RibbonControlSizeDefinition::GroupSize size) const override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
