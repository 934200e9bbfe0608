#pragma once

#include "QtitanGlobal.h"

#include <QMainWindow>

namespace Qtitan {

class RibbonBar;

/// A main window that carries a RibbonBar as its menu bar.
class QTITAN_EXPORT RibbonMainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit RibbonMainWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~RibbonMainWindow() override;

    /// The window's ribbon, or null when none was set.
    RibbonBar* ribbonBar() const;
    /// Installs a ribbon as the window's menu bar; the window takes ownership.
    void setRibbonBar(RibbonBar* ribbonBar);
};

} // namespace Qtitan
