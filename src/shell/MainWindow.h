#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QtitanRibbon.h>

#include <vector>

class QCloseEvent;

namespace ui {

/// The host application's main window: a ribbon main window that reports
/// which ribbon style and theme the application runs under.
///
/// The library only reports styles; the host switches them with
/// QApplication::setStyle() and a new style object.
///
/// @code
/// QApplication::setStyle(new Qtitan::Office2016Style(Qtitan::Office2016Style::DarkGray));
/// ui::MainWindow window;
/// window.setRibbonBar(new ui::RibbonBar(QStringLiteral("MyAppRibbon")));
/// const bool dark = window.currentStyle() == ui::MainWindow::Office2016DarkGray;   // true
/// @endcode
class TESSARO_EXPORT MainWindow : public Qtitan::RibbonMainWindow
{
    Q_OBJECT
public:
    /// A ribbon style family's base value plus the family's theme index.
    enum Style {
        UnknownStyle = -1,            ///< not a ribbon style (for example a plain Qt style)
        Windows7Scenic = 0,           ///< Windows7ScenicStyle
        Office2007Blue = 10,          ///< Office2007Style, theme Blue
        Office2007Black = 11,         ///< Office2007Style, theme Black
        Office2007Silver = 12,        ///< Office2007Style, theme Silver
        Office2007Aqua = 13,          ///< Office2007Style, theme Aqua
        Office2010Black = 20,         ///< Office2010Style, theme Black
        Office2010Blue = 21,          ///< Office2010Style, theme Blue
        Office2010Silver = 22,        ///< Office2010Style, theme Silver
        Office2013White = 30,         ///< Office2013Style, theme White
        Office2013Gray = 31,          ///< Office2013Style, theme Gray
        Office2013Dark = 32,          ///< Office2013Style, theme Dark
        Office2016Colorful = 40,      ///< Office2016Style, theme Colorful
        Office2016White = 41,         ///< Office2016Style, theme White
        Office2016DarkGray = 42,      ///< Office2016Style, theme DarkGray
        Office2016Black = 43,         ///< Office2016Style, theme Black
        AdobePhotoshopLightGray = 50, ///< AdobePhotoshopStyle, theme LightGray
        AdobePhotoshopGray = 51,      ///< AdobePhotoshopStyle, theme Gray
        AdobePhotoshopDarkGray = 52,  ///< AdobePhotoshopStyle, theme DarkGray
        AdobePhotoshopBlack = 53      ///< AdobePhotoshopStyle, theme Black
    };
    Q_ENUM(Style)

    /// Creates the window and records the style in force.
    explicit MainWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~MainWindow() override;

    /// The style the application runs under, read from QApplication::style();
    /// UnknownStyle when it is none of the ribbon styles.
    Style currentStyle();

protected:
    /// The styles this window offers, always the same 20 values in a fixed order.
    virtual std::vector<Style> getSupportedStyles();
    /// Closes through QWidget's handler, skipping the ribbon window's.
    void closeEvent(QCloseEvent* event) override;

private:
    Style m_currentStyle;
};

} // namespace ui
