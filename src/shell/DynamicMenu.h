#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QMenu>

namespace ui {

/// A menu that refreshes itself each time it is about to open.
///
/// Before the menu shows, updateContents() runs. The base version refreshes
/// nested dynamic submenus first (depth first) and hides every submenu entry
/// whose menu would open empty. Subclasses override updateContents() to
/// rebuild their entries; the refresh of nested menus then is their affair.
///
/// @code
/// auto* recent = new ui::DynamicMenu(QStringLiteral("Recent"), window);
/// fileMenu->addMenu(recent);   // hidden while it has no entries
/// @endcode
class TESSARO_EXPORT DynamicMenu : public QMenu
{
    Q_OBJECT
public:
    /// Creates an untitled dynamic menu.
    explicit DynamicMenu(QWidget* parent = nullptr);
    /// Creates a dynamic menu with a title.
    explicit DynamicMenu(const QString& title, QWidget* parent = nullptr);
    ~DynamicMenu() override;

protected Q_SLOTS:
    /// Refreshes the menu; called on aboutToShow().
    virtual void updateContents();
};

} // namespace ui
