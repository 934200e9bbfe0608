#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2007 look, in the themes of Theme.
class QTITAN_EXPORT Office2007Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    enum Theme { Blue, Black, Silver, Aqua };
    Q_ENUM(Theme)

    explicit Office2007Style(Theme theme = Blue);
    ~Office2007Style() override;

    Theme theme() const;
    void setTheme(Theme theme);

    RibbonColors ribbonColors() const override;

private:
    Theme m_theme;
};

} // namespace Qtitan
