#pragma once

#include "QtitanGlobal.h"

#include <QMainWindow>

namespace Qtitan {

class RibbonBar;

/// A main window that carries a RibbonBar as its menu bar.
///
/// @code
/// Qtitan::RibbonMainWindow window;
/// auto* ribbon = new Qtitan::RibbonBar;
/// window.setRibbonBar(ribbon);
/// Qtitan::RibbonGroup* file = ribbon->addPage(QStringLiteral("Home"))->addGroup(QStringLiteral("File"));
/// file->addAction(openIcon, QStringLiteral("Open"), Qt::ToolButtonTextUnderIcon);
/// window.setCentralWidget(new QTextEdit);
/// window.show();
/// @endcode
class QTITAN_EXPORT RibbonMainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Creates a window without a ribbon.
    explicit RibbonMainWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~RibbonMainWindow() override;

    /// The window's ribbon, or null when none was set.
    RibbonBar* ribbonBar() const;
    /// Installs a ribbon as the window's menu bar; the window takes ownership.
    void setRibbonBar(RibbonBar* ribbonBar);
};

} // namespace Qtitan
