#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2016 look, in the themes of Theme.
class QTITAN_EXPORT Office2016Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    enum Theme { Colorful, White, DarkGray, Black };
    Q_ENUM(Theme)

    explicit Office2016Style(Theme theme = Colorful);
    ~Office2016Style() override;

    Theme theme() const;
    void setTheme(Theme theme);

    RibbonColors ribbonColors() const override;

private:
    Theme m_theme;
};

} // namespace Qtitan
