#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Windows 7 scenic ribbon look; it has a single colour scheme.
class QTITAN_EXPORT Windows7ScenicStyle : public CommonStyle
{
    Q_OBJECT
public:
    Windows7ScenicStyle();
    ~Windows7ScenicStyle() override;

    RibbonColors ribbonColors() const override;
};

} // namespace Qtitan
