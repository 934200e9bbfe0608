#include <tessaro/CommandState.h>

#include <QtWidgets/QAction>

namespace ui {

CommandState::CommandState(QAction* action)
    : m_action(action)
{
}

bool CommandState::isEnabled() const
{
    return m_action->isEnabled();
}

void CommandState::setEnabled(bool enabled)
{
    m_action->setEnabled(enabled);
}

bool CommandState::isChecked() const
{
    return m_action->isChecked();
}

void CommandState::setChecked(bool checked)
{
    // A handler that reports a checked state turns the action into a toggle.
    m_action->setCheckable(true);
    m_action->setChecked(checked);
}

QString CommandState::text() const
{
    return m_action->text();
}

void CommandState::setText(const QString& text)
{
    // Ribbon buttons show the icon text, menus the text: keep them in step.
    m_action->setText(text);
    m_action->setIconText(text);
}

} // namespace ui
