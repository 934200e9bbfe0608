#pragma once

#include <tessaro/RibbonControls.h>
#include <tessaro/TessaroGlobal.h>

#include <QObject>
#include <QPointer>

class QAction;
class QEvent;
class QMenu;
class QToolButton;

namespace ui {

/// Makes a split group button show and trigger one chosen action of its
/// default action's menu. It lives as a child of the button it serves and is
/// installed as event filter on that menu; see setGroupButtonType().
///
/// @code
/// ui::setGroupButtonType(group, pasteAction, ui::Dynamic);   // creates the handler
/// QToolButton* button = ui::findActionButton(group, pasteAction);
/// auto* handler = button->findChild<ui::DynamicGroupActionHandler*>();
/// QAction* onFace = handler->currentAction();   // the menu command the face triggers
/// @endcode
class TESSARO_EXPORT DynamicGroupActionHandler : public QObject
{
    Q_OBJECT
public:
    /// Creates the handler of @p button (also its parent) with @p type.
    DynamicGroupActionHandler(GroupButtonType type, QToolButton* button);
    ~DynamicGroupActionHandler() override;

    /// The kind of the served button (Dynamic or DynamicLite).
    GroupButtonType type() const;
    /// Stores a new kind; the face is not recomputed until the next menu event.
    void setType(GroupButtonType type);

    /// The served button.
    QToolButton* button() const;
    /// The menu action that the button face stands for, or null.
    QAction* currentAction() const;
    /// The enabled menu action shown while the current one is disabled, or null.
    QAction* fallbackAction() const;

    /// Makes the menu's first action the current one and applies it.
    void refresh();

    /// Follows the menu's action additions, removals and changes; never
    /// consumes an event.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Called with the action triggered from the menu: for Dynamic it becomes
    /// the current action, for other types the menu's first action does.
    void setCurrentAction(QAction* action);

private:
    QMenu* menu() const;
    QAction* firstMenuAction() const;
    void chooseFallback();
    void apply();

    GroupButtonType m_type;
    QToolButton* m_button;
    QPointer<QAction> m_currentAction;
    QPointer<QAction> m_fallbackAction;
    bool m_applying = false;
};

} // namespace ui
