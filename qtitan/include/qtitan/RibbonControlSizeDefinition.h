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
class QTITAN_EXPORT RibbonControlSizeDefinition : public QObject
{
    Q_OBJECT
public:
    /// The sizes a group takes as the ribbon narrows, largest first.
    enum GroupSize { GroupLarge = 0, GroupMedium = 1, GroupSmall = 2, GroupPopup = 3 };
    Q_ENUM(GroupSize)
    enum ControlImageSize { ImageNone = 0, ImageLarge = 1, ImageSmall = 2 };
    Q_ENUM(ControlImageSize)

    RibbonControlSizeDefinition(RibbonControl* parent, GroupSize size);
    ~RibbonControlSizeDefinition() override;

    GroupSize groupSize() const;

    ControlImageSize imageSize() const;
    void setImageSize(ControlImageSize size);

    bool isLabelVisible() const;
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
