#include <tessaro/DynamicGroupActionHandler.h>

#include <QtitanRibbon.h>

#include <QActionEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QToolButton>

namespace ui {

DynamicGroupActionHandler::DynamicGroupActionHandler(GroupButtonType type, QToolButton* button)
    : QObject(button)
    , m_type(type)
    , m_button(button)
{
}

DynamicGroupActionHandler::~DynamicGroupActionHandler() = default;

GroupButtonType DynamicGroupActionHandler::type() const
{
    return m_type;
}

void DynamicGroupActionHandler::setType(GroupButtonType type)
{
    m_type = type;
}

QToolButton* DynamicGroupActionHandler::button() const
{
    return m_button;
}

QAction* DynamicGroupActionHandler::currentAction() const
{
    return m_currentAction;
}

QAction* DynamicGroupActionHandler::fallbackAction() const
{
    return m_fallbackAction;
}

QMenu* DynamicGroupActionHandler::menu() const
{
    QAction* defaultAction = m_button ? m_button->defaultAction() : nullptr;
    return defaultAction ? defaultAction->menu() : nullptr;
}

QAction* DynamicGroupActionHandler::firstMenuAction() const
{
    QMenu* menu = this->menu();
    if (!menu || menu->actions().isEmpty())
        return nullptr;
    return menu->actions().first();
}

void DynamicGroupActionHandler::refresh()
{
    QMenu* menu = this->menu();
    // A fallback that left the menu (or is being deleted) must not stay shown.
    if (m_fallbackAction && (!menu || !menu->actions().contains(m_fallbackAction)))
        m_fallbackAction = nullptr;
    m_currentAction = firstMenuAction();
    apply();
}

void DynamicGroupActionHandler::setCurrentAction(QAction* action)
{
    m_currentAction = m_type == Dynamic ? action : firstMenuAction();
    apply();
}

void DynamicGroupActionHandler::chooseFallback()
{
    if (m_fallbackAction && m_fallbackAction->isEnabled())
        return;
    m_fallbackAction = nullptr;
    QMenu* menu = this->menu();
    if (!menu)
        return;
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->isEnabled() && !action->isSeparator()) {
            m_fallbackAction = action;
            return;
        }
    }
}

void DynamicGroupActionHandler::apply()
{
    QAction* face = m_button ? m_button->defaultAction() : nullptr;
    // Changing the face notifies every menu that holds it; when that leads
    // back here (a button's action inside its own menu, or two group buttons
    // in each other's menus) the outer call finishes the work.
    if (!face || m_applying)
        return;
    QScopedValueRollback<bool> applying(m_applying, true);
    QObject::disconnect(face, &QAction::triggered, nullptr, nullptr);
    if (m_currentAction) {
        QAction* shown = m_currentAction;
        if (!m_currentAction->isEnabled()) {
            chooseFallback();
            if (m_fallbackAction)
                shown = m_fallbackAction;
        }
        face->setIcon(shown->icon());
        face->setText(shown->text());
        face->setIconText(shown->iconText());
        face->setCheckable(shown->isCheckable());
        face->setChecked(shown->isChecked());
        face->setEnabled(shown->isEnabled());
        face->setAutoRepeat(shown->autoRepeat());
        // A menu that holds the button's own action must not make it re-emit itself forever.
        if (shown != face)
            QObject::connect(face, &QAction::triggered, shown, &QAction::triggered);
    } else {
        face->setIcon(QIcon());
        face->setText(QString());
        face->setIconText(QString());
        face->setCheckable(false);
        face->setChecked(false);
        face->setEnabled(false);
        face->setAutoRepeat(false);
    }
    if (auto* group = qobject_cast<Qtitan::RibbonGroup*>(m_button->parentWidget())) {
        if (auto* page = qobject_cast<Qtitan::RibbonPage*>(group->parentWidget()))
            page->updateLayout();
    }
}

bool DynamicGroupActionHandler::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        refresh();
        break;
    case QEvent::ActionChanged: {
        QAction* changed = static_cast<QActionEvent*>(event)->action();
        if (changed == m_currentAction)
            apply();
        if (m_currentAction && !m_currentAction->isEnabled() && changed == m_fallbackAction) {
            apply();
            break;
        }
        if (m_fallbackAction)
            break;
        apply();
        break;
    }
    default:
        break;
    }
    Q_UNUSED(watched)
    return false;
}

} // namespace ui
