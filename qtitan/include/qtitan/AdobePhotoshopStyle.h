#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Adobe Photoshop look, in the themes of Theme.
class QTITAN_EXPORT AdobePhotoshopStyle : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    enum Theme { LightGray, Gray, DarkGray, Black };
    Q_ENUM(Theme)

    explicit AdobePhotoshopStyle(Theme theme = LightGray);
    ~AdobePhotoshopStyle() override;

    Theme theme() const;
    void setTheme(Theme theme);

    RibbonColors ribbonColors() const override;

private:
    Theme m_theme;
};

} // namespace Qtitan
