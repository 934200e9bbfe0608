#pragma once

#include "QtitanGlobal.h"
#include "RibbonControlSizeDefinition.h"

#include <QWidget>

class QAction;

namespace Qtitan {

class RibbonGroup;

/// One item of a ribbon group: the widget that shows an action of the group
/// in the look its size definition gives for the group's current size.
///
/// The group makes the controls; a host finds one through its action to
/// change how it looks at a group size.
///
/// @code
/// QAction* paste = group->addAction(pasteIcon, QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon);
/// Qtitan::RibbonControl* control = group->controlByAction(paste);
/// control->sizeDefinition(Qtitan::RibbonControlSizeDefinition::GroupMedium)
///     ->setImageSize(Qtitan::RibbonControlSizeDefinition::ImageLarge);   // stays large longer
/// @endcode
class QTITAN_EXPORT RibbonControl : public QWidget
{
    Q_OBJECT
public:
    /// Creates a control for a group, with the default size definitions.
    explicit RibbonControl(RibbonGroup* parent = nullptr);
    ~RibbonControl() override;

    /// The group the control belongs to: the one it was created for, or else
    /// the nearest group among its parent widgets; null outside a group.
    RibbonGroup* parentGroup() const;

    /// The action the control shows, or null.
    QAction* defaultAction() const;
    /// Shows another action and lays the group out again.
    virtual void setDefaultAction(QAction* action);

    /// How the control looks at a group size; null for a size out of range.
    RibbonControlSizeDefinition* sizeDefinition(RibbonControlSizeDefinition::GroupSize size) const;
    /// The group size the control is laid out for now.
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
    /// Measures the control again after a font or style change.
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
