#include <tessaro/MainWindow.h>

#include <QApplication>
#include <QCloseEvent>

namespace ui {

namespace {

template <typename Family>
bool matchFamily(int base, int& style)
{
    // The style is fetched anew: a host may switch it between the tests.
    if (auto* family = qobject_cast<Family*>(QApplication::style())) {
        style = base + static_cast<int>(family->theme());
        return true;
    }
    return false;
}

} // namespace

MainWindow::MainWindow(QWidget* parent, Qt::WindowFlags flags)
    : Qtitan::RibbonMainWindow(parent, flags)
    , m_currentStyle(UnknownStyle)
{
    m_currentStyle = currentStyle();
}

MainWindow::~MainWindow() = default;

MainWindow::Style MainWindow::currentStyle()
{
    int style = UnknownStyle;
    if (matchFamily<Qtitan::Office2007Style>(Office2007Blue, style)
        || matchFamily<Qtitan::Office2010Style>(Office2010Black, style)
        || matchFamily<Qtitan::Office2013Style>(Office2013White, style)
        || matchFamily<Qtitan::Office2016Style>(Office2016Colorful, style)
        || matchFamily<Qtitan::AdobePhotoshopStyle>(AdobePhotoshopLightGray, style)) {
        m_currentStyle = static_cast<Style>(style);
    } else if (qobject_cast<Qtitan::Windows7ScenicStyle*>(QApplication::style())) {
        m_currentStyle = Windows7Scenic;
    } else {
        m_currentStyle = UnknownStyle;
    }
    return m_currentStyle;
}

std::vector<MainWindow::Style> MainWindow::getSupportedStyles()
{
    // Office 2010 Black (20) stands after Blue and Silver on purpose.
    return {UnknownStyle,
            Windows7Scenic,
            Office2007Blue, Office2007Black, Office2007Silver, Office2007Aqua,
            Office2010Blue, Office2010Silver, Office2010Black,
            Office2013White, Office2013Gray, Office2013Dark,
            Office2016Colorful, Office2016White, Office2016DarkGray, Office2016Black,
            AdobePhotoshopLightGray, AdobePhotoshopGray, AdobePhotoshopDarkGray, AdobePhotoshopBlack};
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
}

} // namespace ui
