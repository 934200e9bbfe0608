#include <tessaro/RibbonBar.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

namespace ui {

RibbonBar::RibbonBar(const QString& translationContext, QWidget* parent)
    : Qtitan::RibbonBar(parent)
    , m_translationContext(translationContext)
{
    setFrameThemeEnabled(true);
    addSystemButton(QIcon(QStringLiteral(":/Tessaro/logo.png")), QString());
}

RibbonBar::~RibbonBar()
{
    // The system menu shares the host's actions; empty it before the base
    // class tears the ribbon down.
    if (QMenu* menu = systemMenu())
        menu->clear();
    QMenuBar::clear();
}

QMenu* RibbonBar::systemMenu() const
{
    Qtitan::RibbonSystemButton* button = systemButton();
    QAction* action = button ? button->defaultAction() : nullptr;
    return action ? action->menu() : nullptr;
}

QString RibbonBar::getTranslationContext() const
{
    return m_translationContext;
}

void RibbonBar::addQuickAction(QAction* action)
{
    if (!action)
        return;
    quickAccessBar()->addAction(action);
    quickAccessBar()->setVisible(true);
}

void RibbonBar::removeQuickAction(QAction* action)
{
    if (!action)
        return;
    quickAccessBar()->removeAction(action);
}

bool RibbonBar::isQuickAction(QAction* action)
{
    if (!action)
        return false;
    const QList<QAction*> actions = quickAccessBar()->actions();
    for (QAction* quick : actions) {
        if (quick->objectName() == action->objectName())
            return true;
    }
    return false;
}

void RibbonBar::clearQuickActions()
{
    quickAccessBar()->clear();
    quickAccessBar()->setVisible(false);
}

void RibbonBar::addPopupBarAction(QAction* action)
{
    if (auto* menu = qobject_cast<Qtitan::RibbonSystemMenu*>(systemMenu()))
        menu->addPopupBarAction(action, Qt::ToolButtonTextBesideIcon);
}

void RibbonBar::setSystemButtonAction(QAction* action)
{
    Qtitan::RibbonSystemButton* button = systemButton();
    QAction* systemAction = button ? button->defaultAction() : nullptr;
    if (!systemAction || !action)
        return;
    QMenu* menu = systemAction->menu();
    if (menu)
        menu->clear();
    systemAction->setText(action->text());
    systemAction->setToolTip(action->toolTip());
    systemAction->setStatusTip(action->statusTip());
    if (!menu || !action->menu())
        return;
    const QList<QAction*> entries = action->menu()->actions();
    for (QAction* entry : entries)
        menu->addAction(entry);
}

void RibbonBar::updateCurrentPage()
{
    if (Qtitan::RibbonPage* current = page(currentPageIndex()))
        current->updateLayout();
}

void RibbonBar::contextMenuEvent(QContextMenuEvent* event)
{
    Q_UNUSED(event)
}

} // namespace ui
