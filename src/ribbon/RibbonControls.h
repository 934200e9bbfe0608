#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QToolButton>

class QAction;
class QWidget;

namespace Qtitan {
class RibbonGroup;
class RibbonPage;
class RibbonQuickAccessBar;
} // namespace Qtitan

namespace ui {

/// The kind of a ribbon button whose action carries a drop-down menu.
/// Stored in streams as one signed byte; any non-zero value other than
/// Dynamic behaves like DynamicLite.
enum GroupButtonType : qint32 {
    /// The button only opens its menu; no handler object exists.
    Simple = 0,
    /// Split button: its face shows and triggers the menu action last triggered.
    Dynamic = 1,
    /// Split button: its face always shows and triggers the menu's first action.
    DynamicLite = 2
};

/// Finds the tool button that shows @p action inside @p container: the first
/// QToolButton child (recursively) whose default action is @p action, else,
/// for a ribbon group, the button of the action's button control; else null.
TESSARO_EXPORT QToolButton* findActionButton(QWidget* container, QAction* action);

/// The tool button style of @p button.
TESSARO_EXPORT Qt::ToolButtonStyle actionButtonStyle(QToolButton* button);
/// The style of @p action in @p group: 4 (Qt::ToolButtonFollowStyle) for a
/// separator, 0 for a widget action, else the style of its button control.
TESSARO_EXPORT Qt::ToolButtonStyle actionButtonStyle(Qtitan::RibbonGroup* group, QAction* action);
/// The style of @p action on @p bar: 4 for a separator, else the style of its
/// button, 0 when it has none.
TESSARO_EXPORT Qt::ToolButtonStyle actionButtonStyle(Qtitan::RibbonQuickAccessBar* bar, QAction* action);

/// Sets the style of @p button; its icon becomes 32x32 for text under icon
/// and 16x16 for every other style.
TESSARO_EXPORT void setActionButtonStyle(QToolButton* button, Qt::ToolButtonStyle style);
/// Sets the style of the button control of @p action in @p group (nothing for
/// separators and widget actions) and posts a layout request to the group's
/// grand-parent widget.
TESSARO_EXPORT void setActionButtonStyle(Qtitan::RibbonGroup* group, QAction* action, Qt::ToolButtonStyle style);
/// Sets the style of the button of @p action on @p bar (nothing for
/// separators) and posts a layout request to the bar.
TESSARO_EXPORT void setActionButtonStyle(Qtitan::RibbonQuickAccessBar* bar, QAction* action, Qt::ToolButtonStyle style);

/// The group button type of @p button: that of its handler, Simple without one.
TESSARO_EXPORT GroupButtonType getGroupButtonType(QToolButton* button);
/// The group button type of the button of @p action in @p group; Simple when
/// there is no button.
TESSARO_EXPORT GroupButtonType getGroupButtonType(Qtitan::RibbonGroup* group, QAction* action);
/// The group button type of the button of @p action on @p bar; Simple when
/// there is no button.
TESSARO_EXPORT GroupButtonType getGroupButtonType(Qtitan::RibbonQuickAccessBar* bar, QAction* action);

/// Makes @p button a group button of @p type. Simple gives an instant popup
/// and removes the handler; other types give a split button whose face
/// mirrors one action of the default action's menu (created when missing).
TESSARO_EXPORT void setGroupButtonType(QToolButton* button, GroupButtonType type);
/// setGroupButtonType() on the button of @p action in @p group; nothing for a separator.
TESSARO_EXPORT void setGroupButtonType(Qtitan::RibbonGroup* group, QAction* action, const GroupButtonType& type);
/// setGroupButtonType() on the button of @p action on @p bar; nothing for a separator.
TESSARO_EXPORT void setGroupButtonType(Qtitan::RibbonQuickAccessBar* bar, QAction* action, const GroupButtonType& type);

/// Sets the popup mode of the button that shows @p action in @p container.
TESSARO_EXPORT void setPopupMode(QWidget* container, QAction* action, QToolButton::ToolButtonPopupMode mode);

/// Moves the action at index @p from of @p group before the action now at
/// index @p to (to the end when @p to is negative or past the end), keeping
/// its button style; its group button type is not carried over.
TESSARO_EXPORT void moveAction(Qtitan::RibbonGroup* group, int from, int to);

/// Lays out again the page that holds @p group, if it is on a page.
TESSARO_EXPORT void redrawPage(Qtitan::RibbonGroup* group);
/// Lays out @p page again.
TESSARO_EXPORT void redrawPage(Qtitan::RibbonPage* page);

/// Rebuilds the controls of @p group from its actions, keeping only each
/// button's style, and lays the page and the ribbon out again at once.
TESSARO_EXPORT void updateGroup(Qtitan::RibbonGroup* group);

} // namespace ui
