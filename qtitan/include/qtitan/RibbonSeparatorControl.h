#pragma once

#include "RibbonControl.h"

namespace Qtitan {

/// The thin vertical line that a separator action puts between controls.
class QTITAN_EXPORT RibbonSeparatorControl : public RibbonControl
{
    Q_OBJECT
public:
    explicit RibbonSeparatorControl(RibbonGroup* parent = nullptr);
    ~RibbonSeparatorControl() override;

    QSize sizeHint() const override;
    /// A separator always spans the group's height.
    bool isLargeAt(RibbonControlSizeDefinition::GroupSize size) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Qtitan
