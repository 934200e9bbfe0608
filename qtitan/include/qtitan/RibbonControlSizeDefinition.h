#pragma once

#include "QtitanGlobal.h"

#include <QObject>

namespace Qtitan {

class RibbonControl;

/// How a control looks at one group size: its image size and whether its
/// label shows. A control has one definition per group size; a new one starts
/// with the office defaults for its size:
/// - GroupLarge: large (32 px) image with the label under it;
/// - GroupMedium: small (16 px) image with the label beside it;
/// - GroupSmall: small image without the label;
/// - GroupPopup (the group opened from its collapsed button): as GroupLarge.
/// A large image makes a control fill the group's height; a small image (or
/// none) stacks it three to a column. The button's tool button style caps what
/// shows: icon-only and text-beside-icon buttons never use the large image,
/// icon-only buttons never show the label and text-only ones never the image.
///
/// @code
/// using Size = Qtitan::RibbonControlSizeDefinition;
/// Qtitan::RibbonControl* control = group->controlByAction(saveAction);
/// control->sizeDefinition(Size::GroupSmall)->setLabelVisible(true);   // keep "Save" readable
/// @endcode
class QTITAN_EXPORT RibbonControlSizeDefinition : public QObject
{
    Q_OBJECT
public:
    /// The sizes a group takes as the ribbon narrows, largest first.
    enum GroupSize {
        GroupLarge = 0,  ///< the full size
        GroupMedium = 1, ///< one step narrower
        GroupSmall = 2,  ///< the narrowest size with controls in sight
        GroupPopup = 3   ///< collapsed to one button; the controls show in a popup
    };
    Q_ENUM(GroupSize)
    /// The image a control shows.
    enum ControlImageSize {
        ImageNone = 0,  ///< no image
        ImageLarge = 1, ///< the 32 px image; the control fills the group's height
        ImageSmall = 2  ///< the 16 px image; controls stack three to a column
    };
    Q_ENUM(ControlImageSize)

    /// Creates the definition of a control at a group size, with the defaults
    /// listed above; a control creates its own four.
    RibbonControlSizeDefinition(RibbonControl* parent, GroupSize size);
    ~RibbonControlSizeDefinition() override;

    /// The group size this definition is for.
    GroupSize groupSize() const;

    /// The image the control shows at this group size.
    ControlImageSize imageSize() const;
    /// Changes the image; changed() follows when it differs.
    void setImageSize(ControlImageSize size);

    /// Whether the control shows its label at this group size.
    bool isLabelVisible() const;
    /// Shows or hides the label; changed() follows when it differs.
    void setLabelVisible(bool visible);

Q_SIGNALS:
    /// The image size or label visibility changed; the group lays out again.
    void changed();

private:
    GroupSize m_groupSize;
    ControlImageSize m_imageSize = ImageLarge;
    bool m_labelVisible = true;
};

} // namespace Qtitan
