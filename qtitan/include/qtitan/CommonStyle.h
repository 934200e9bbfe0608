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
///
/// Installed as the application style, it colours every window of the
/// application; the families derived from it (Office2016Style and the others)
/// add their shapes and themes.
///
/// @code
/// QApplication app(argc, argv);
/// app.setStyle(new Qtitan::CommonStyle);   // the application owns the style
/// Qtitan::RibbonMainWindow window;
/// window.setRibbonBar(new Qtitan::RibbonBar);
/// window.ribbonBar()->addPage(QStringLiteral("Home"));
/// window.show();
/// @endcode
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

    /// Fills the window, button, highlight, tool tip and link roles from the
    /// colour scheme; the text and base roles of documents keep their colours.
    void polish(QPalette& palette) override;
    /// Gives a tab bar whose style sheet paints light tabs dark text under a
    /// dark scheme.
    void polish(QWidget* widget) override;
    /// Takes back what polish(QWidget*) changed.
    void unpolish(QWidget* widget) override;
    using QProxyStyle::unpolish;
    /// Hands the application palette back to the next style if a theme change had set it.
    void unpolish(QApplication* application) override;
    /// Draws the workspace, menu frames and auto-raise button panels in the
    /// scheme's colours; everything else as Fusion does.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    /// Draws menu items in the scheme's menu colours and lightens icons that
    /// would vanish on a dark background.
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
