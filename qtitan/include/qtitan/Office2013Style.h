#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2013 look, in the themes of Theme.
class QTITAN_EXPORT Office2013Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    enum Theme { White, Gray, Dark };
    Q_ENUM(Theme)

    explicit Office2013Style(Theme theme = White);
    ~Office2013Style() override;

    Theme theme() const;
    void setTheme(Theme theme);

    RibbonColors ribbonColors() const override;

private:
    Theme m_theme;
};

} // namespace Qtitan
