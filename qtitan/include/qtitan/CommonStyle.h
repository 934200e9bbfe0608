#pragma once

#include "QtitanGlobal.h"
#include "RibbonColors.h"

#include <QProxyStyle>

namespace Qtitan {

class CommonStyle;
namespace detail {
struct RibbonLook;
/// The shapes a style draws its ribbon in; read by the ribbon's own widgets.
const RibbonLook& lookOf(const CommonStyle& style);
} // namespace detail

/// Base of every ribbon style. It draws standard Qt elements through the
/// Fusion style, tinted with the ribbon's colour scheme, and the ribbon's
/// own elements, among them the MDI workspace background.
class QTITAN_EXPORT CommonStyle : public QProxyStyle
{
    Q_OBJECT
public:
    /// The workspace (empty MDI area) background.
    static constexpr int PE_Workspace = QStyle::PE_CustomBase + 0x16;
    /// A minimise, maximise, restore or close button on the ribbon's title strip
    /// while the frame theme is on: a QStyleOptionTitleBar whose subControls
    /// names the button (SC_TitleBarMinButton, SC_TitleBarMaxButton,
    /// SC_TitleBarNormalButton or SC_TitleBarCloseButton).
    static constexpr int PE_CaptionButton = QStyle::PE_CustomBase + 0x30;

    /// A plain ribbon style: flat, with colours derived from Fusion's palette.
    CommonStyle();
    ~CommonStyle() override;

    /// The colour scheme of the current theme.
    virtual RibbonColors ribbonColors() const;

    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    using QProxyStyle::unpolish;
    /// Hands the application palette back to the next style if a theme change had set it.
    void unpolish(QApplication* application) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

Q_SIGNALS:
    /// Emitted after setTheme() of a subclass changed the colour scheme.
    void themeChanged();

protected:
    /// A family's style, whose ribbon is drawn in the shapes of `look`.
    explicit CommonStyle(const detail::RibbonLook& look);

    /// Re-polishes the application's widgets after a theme change.
    void updateTheme();
    /// Paints PE_CaptionButton; a family may draw its own caption buttons here.
    virtual void drawCaptionButton(const QStyleOption* option, QPainter* painter) const;

    /// Stores a subclass's new theme and, when it differs, updates the widgets.
    template <typename Theme>
    void changeTheme(Theme& current, Theme theme)
    {
        if (current == theme)
            return;
        current = theme;
        updateTheme();
    }

private:
    friend const detail::RibbonLook& detail::lookOf(const CommonStyle& style);
    const detail::RibbonLook* m_look;
};

} // namespace Qtitan
