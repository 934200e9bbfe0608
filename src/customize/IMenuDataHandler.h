#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QList>

class KeyValueStorage;
class QMenu;
class QToolBar;

namespace ui {

class RibbonBar;

/// What a host hands to ui::QCustomizeDlg: its command menu, its ribbon, and
/// the means to apply, reset and store the layout the user edits.
///
/// The dialog takes ownership of the handler passed to
/// QCustomizeDlg::setHandler() and asks it only for menu() and ribbon(); the
/// other operations serve the window in which the host embeds the dialog
/// (its OK, Cancel and Reset buttons, its toolbars page). The class holds no
/// data: derive from it and keep whatever the answers need.
///
/// @code
/// class HostHandler : public ui::IMenuDataHandler
/// {
/// public:
///     explicit HostHandler(HostWindow* window) : m_window(window) {}
///     QMenu* menu() override { return m_window->commandsMenu(); }
///     ui::RibbonBar* ribbon() override { return m_window->ribbon(); }
///     QList<QToolBar*> toolBars() const override { return m_window->findChildren<QToolBar*>(); }
///     void applyLayout() override { m_window->saveLayout(); }
///     void resetLayout() override { m_window->restoreDefaultLayout(); }
///     KeyValueStorage* settings() const override { return m_window->settings(); }
/// private:
///     HostWindow* m_window;
/// };
///
/// dialog->setHandler(new HostHandler(window)); // the dialog deletes it
/// @endcode
class TESSARO_EXPORT IMenuDataHandler
{
public:
    /// An empty handler; there is nothing to initialise.
    IMenuDataHandler() = default;
    /// Copies nothing: the interface has no data.
    IMenuDataHandler(const IMenuDataHandler& other) = default;
    /// Assigns nothing: the interface has no data.
    IMenuDataHandler& operator=(const IMenuDataHandler& other) = default;
    /// Destroys the handler; the dialog that owns it calls this.
    virtual ~IMenuDataHandler();

    /// The host's complete command menu: its submenus are the command
    /// categories shown in the dialog's command trees and hot key table.
    /// May be null (empty trees and table). Not owned by the dialog.
    virtual QMenu* menu() = 0;
    /// The host's ribbon, edited live by the ribbon and quick access tabs;
    /// null when the host has no ribbon (only the toolbars tab remains).
    /// Must give the same answer every time it is asked.
    virtual RibbonBar* ribbon() = 0;
    /// The host's classic toolbars, in the order a toolbars page lists them.
    virtual QList<QToolBar*> toolBars() const = 0;
    /// Makes the layout as edited (ribbon, quick access bar, toolbars) the
    /// host's saved layout, for instance when the user confirms.
    virtual void applyLayout() = 0;
    /// Returns the ribbon, the quick access bar and the toolbars to the
    /// host's defaults.
    virtual void resetLayout() = 0;
    /// The host's settings store, where it keeps its saved layout; not owned
    /// by the caller.
    virtual KeyValueStorage* settings() const = 0;
};

} // namespace ui
