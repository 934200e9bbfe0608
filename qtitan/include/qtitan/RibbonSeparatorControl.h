#pragma once

#include "RibbonControl.h"

namespace Qtitan {

/// The thin vertical line that a separator action puts between controls.
///
/// @code
/// auto* separator = new QAction(group);
/// separator->setSeparator(true);
/// group->addAction(cutAction);
/// group->addAction(separator);   // shown as a RibbonSeparatorControl
/// group->addAction(copyAction);
/// @endcode
class QTITAN_EXPORT RibbonSeparatorControl : public RibbonControl
{
    Q_OBJECT
public:
    /// Creates a separator for a group.
    explicit RibbonSeparatorControl(RibbonGroup* parent = nullptr);
    ~RibbonSeparatorControl() override;

    /// A few pixels wide, as high as the group's controls.
    QSize sizeHint() const override;
    /// A separator always spans the group's height.
    bool isLargeAt(RibbonControlSizeDefinition::GroupSize size) const override;

protected:
    /// Draws the line in the scheme's group separator colour.
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Qtitan
