#include "qtitan/RibbonMainWindow.h"

#include "qtitan/RibbonBar.h"

namespace Qtitan {

RibbonMainWindow::RibbonMainWindow(QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
{
}

RibbonMainWindow::~RibbonMainWindow() = default;

RibbonBar* RibbonMainWindow::ribbonBar() const
{
    return qobject_cast<RibbonBar*>(menuWidget());
}

void RibbonMainWindow::setRibbonBar(RibbonBar* ribbonBar)
{
    setMenuWidget(ribbonBar);
}

} // namespace Qtitan
