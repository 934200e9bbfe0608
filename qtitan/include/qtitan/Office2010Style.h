#pragma once

#include "CommonStyle.h"

namespace Qtitan {

/// The Office 2010 look, in the themes of Theme.
class QTITAN_EXPORT Office2010Style : public CommonStyle
{
    Q_OBJECT
    Q_PROPERTY(Theme theme READ theme WRITE setTheme)
public:
    enum Theme { Black, Blue, Silver };
    Q_ENUM(Theme)

    explicit Office2010Style(Theme theme = Black);
    ~Office2010Style() override;

    Theme theme() const;
    void setTheme(Theme theme);

    RibbonColors ribbonColors() const override;

private:
    Theme m_theme;
};

} // namespace Qtitan
