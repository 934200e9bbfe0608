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

    /// The size the control wants at a group size, without adopting that size.
    QSize sizeHintForSize(RibbonControlSizeDefinition::GroupSize size) const;
    /// Whether the control fills the group's height at a group size (rather
    /// than taking one of the three rows).
    virtual bool isLargeAt(RibbonControlSizeDefinition::GroupSize size) const;

protected:
    void changeEvent(QEvent* event) override;
    /// Computes the size hint at a group size; sizeHintForSize() caches it.
    virtual QSize computeSizeHint(RibbonControlSizeDefinition::GroupSize size) const;
    /// Drops the cached size hints and asks the group to lay out again.
    void invalidateSize();

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
