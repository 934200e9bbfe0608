#pragma once

#include "QtitanGlobal.h"
#include "RibbonControlSizeDefinition.h"

#include <QWidget>

class QAction;

namespace Qtitan {

class RibbonGroup;

/// One item of a ribbon group: the widget that shows an action of the group
/// in the look its size definition gives for the group's current size.
class QTITAN_EXPORT RibbonControl : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonControl(RibbonGroup* parent = nullptr);
    ~RibbonControl() override;

    RibbonGroup* parentGroup() const;

    QAction* defaultAction() const;
    virtual void setDefaultAction(QAction* action);

    RibbonControlSizeDefinition* sizeDefinition(RibbonControlSizeDefinition::GroupSize size) const;
    RibbonControlSizeDefinition::GroupSize currentSize() const;

    /// Adapts the control to a group size (called by the group's layout).
    virtual void adjustCurrentSize(RibbonControlSizeDefinition::GroupSize size);
    /// Re-reads the default action after it changed.
    virtual void actionChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
