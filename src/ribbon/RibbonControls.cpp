#include <tessaro/RibbonControls.h>

#include <tessaro/DynamicGroupActionHandler.h>

#include <QtitanRibbon.h>

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QMenu>
#include <QWidgetAction>

namespace ui {

namespace {

QWidget* grandParentWidget(QWidget* widget)
{
    QWidget* parent = widget ? widget->parentWidget() : nullptr;
    return parent ? parent->parentWidget() : nullptr;
}

Qtitan::RibbonButtonControl* buttonControl(Qtitan::RibbonGroup* group, QAction* action)
{
    if (!group || !action)
        return nullptr;
    return qobject_cast<Qtitan::RibbonButtonControl*>(group->controlByAction(action));
}

void applyControlStyle(Qtitan::RibbonButtonControl* control, Qt::ToolButtonStyle style)
{
    using Definition = Qtitan::RibbonControlSizeDefinition;
    control->setToolButtonStyle(style);
    Definition::ControlImageSize imageSize;
    if (style == Qt::ToolButtonTextBesideIcon)
        imageSize = Definition::ImageSmall;
    else if (style == Qt::ToolButtonTextUnderIcon)
        imageSize = Definition::ImageLarge;
    else
        return;
    for (Definition::GroupSize size : {Definition::GroupLarge, Definition::GroupMedium,
                                       Definition::GroupSmall, Definition::GroupPopup}) {
        if (Definition* definition = control->sizeDefinition(size)) {
            definition->setImageSize(imageSize);
            definition->setLabelVisible(true);
        }
    }
}

QSize iconSizeFor(Qt::ToolButtonStyle style)
{
    return style == Qt::ToolButtonTextUnderIcon ? QSize(32, 32) : QSize(16, 16);
}

} // namespace

QToolButton* findActionButton(QWidget* container, QAction* action)
{
    if (!container || !action)
        return nullptr;
    const QList<QToolButton*> buttons = container->findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (button->defaultAction() == action)
            return button;
    }
    if (auto* group = qobject_cast<Qtitan::RibbonGroup*>(container)) {
        if (auto* control = qobject_cast<Qtitan::RibbonButtonControl*>(group->controlByAction(action)))
            return control->widget();
    }
    return nullptr;
}

Qt::ToolButtonStyle actionButtonStyle(QToolButton* button)
{
    return button ? button->toolButtonStyle() : Qt::ToolButtonIconOnly;
}

Qt::ToolButtonStyle actionButtonStyle(Qtitan::RibbonGroup* group, QAction* action)
{
    if (action && action->isSeparator())
        return Qt::ToolButtonFollowStyle;
    if (qobject_cast<QWidgetAction*>(action))
        return Qt::ToolButtonIconOnly;
    if (Qtitan::RibbonButtonControl* control = buttonControl(group, action))
        return control->toolButtonStyle();
    return Qt::ToolButtonIconOnly;
}

Qt::ToolButtonStyle actionButtonStyle(Qtitan::RibbonQuickAccessBar* bar, QAction* action)
{
    if (action && action->isSeparator())
        return Qt::ToolButtonFollowStyle;
    if (QToolButton* button = findActionButton(bar, action))
        return button->toolButtonStyle();
    return Qt::ToolButtonIconOnly;
}

void setActionButtonStyle(QToolButton* button, Qt::ToolButtonStyle style)
{
    if (!button)
        return;
    button->setToolButtonStyle(style);
    button->setIconSize(iconSizeFor(style));
}

void setActionButtonStyle(Qtitan::RibbonGroup* group, QAction* action, Qt::ToolButtonStyle style)
{
    if (!action || action->isSeparator() || qobject_cast<QWidgetAction*>(action))
        return;
    Qtitan::RibbonButtonControl* control = buttonControl(group, action);
    if (!control)
        return;
    applyControlStyle(control, style);
    // Posted, so that a run of style changes costs one layout pass.
    if (QWidget* target = grandParentWidget(group))
        QCoreApplication::postEvent(target, new QEvent(QEvent::LayoutRequest));
}

void setActionButtonStyle(Qtitan::RibbonQuickAccessBar* bar, QAction* action, Qt::ToolButtonStyle style)
{
    if (!bar || !action || action->isSeparator())
        return;
    QToolButton* button = findActionButton(bar, action);
    if (!button)
        return;
    button->setToolButtonStyle(style);
    button->setIconSize(iconSizeFor(style));
    QCoreApplication::postEvent(bar, new QEvent(QEvent::LayoutRequest));
}

GroupButtonType getGroupButtonType(QToolButton* button)
{
    if (!button)
        return Simple;
    auto* handler = button->findChild<DynamicGroupActionHandler*>();
    return handler ? handler->type() : Simple;
}

GroupButtonType getGroupButtonType(Qtitan::RibbonGroup* group, QAction* action)
{
    return getGroupButtonType(findActionButton(group, action));
}

GroupButtonType getGroupButtonType(Qtitan::RibbonQuickAccessBar* bar, QAction* action)
{
    return getGroupButtonType(findActionButton(bar, action));
}

void setGroupButtonType(QToolButton* button, GroupButtonType type)
{
    if (!button)
        return;
    if (type == Simple) {
        button->setPopupMode(QToolButton::InstantPopup);
        delete button->findChild<DynamicGroupActionHandler*>();
        return;
    }
    button->setPopupMode(QToolButton::MenuButtonPopup);
    if (auto* handler = button->findChild<DynamicGroupActionHandler*>()) {
        handler->setType(type);
        return;
    }
    QAction* defaultAction = button->defaultAction();
    if (!defaultAction)
        return;
    auto* handler = new DynamicGroupActionHandler(type, button);
    QMenu* menu = defaultAction->menu();
    if (!menu) {
        menu = new QMenu(button);
        defaultAction->setMenu(menu);
    }
    menu->installEventFilter(handler);
    QObject::connect(menu, &QMenu::triggered, handler, &DynamicGroupActionHandler::setCurrentAction);
    handler->refresh();
}

void setGroupButtonType(Qtitan::RibbonGroup* group, QAction* action, const GroupButtonType& type)
{
    if (!action || action->isSeparator())
        return;
    setGroupButtonType(findActionButton(group, action), type);
}

void setGroupButtonType(Qtitan::RibbonQuickAccessBar* bar, QAction* action, const GroupButtonType& type)
{
    if (!action || action->isSeparator())
        return;
    setGroupButtonType(findActionButton(bar, action), type);
}

void setPopupMode(QWidget* container, QAction* action, QToolButton::ToolButtonPopupMode mode)
{
    if (QToolButton* button = findActionButton(container, action))
        button->setPopupMode(mode);
}

void moveAction(Qtitan::RibbonGroup* group, int from, int to)
{
    if (!group)
        return;
    const QList<QAction*> before = group->actions();
    if (from < 0 || from >= before.size())
        return;
    QAction* action = before.at(from);
    Qt::ToolButtonStyle style = Qt::ToolButtonFollowStyle;
    if (!action->isSeparator()) {
        style = actionButtonStyle(group, action);
        if (Qtitan::RibbonControl* control = group->controlByAction(action))
            control->setDefaultAction(nullptr);
    }
    group->removeAction(action);
    const QList<QAction*> after = group->actions();
    if (to < 0 || to >= after.size())
        group->addAction(action);
    else
        group->insertAction(after.at(to), action);
    setActionButtonStyle(group, action, style);
    updateGroup(group);
}

void redrawPage(Qtitan::RibbonGroup* group)
{
    if (!group)
        return;
    if (auto* page = qobject_cast<Qtitan::RibbonPage*>(group->parentWidget()))
        page->updateLayout();
}

void redrawPage(Qtitan::RibbonPage* page)
{
    if (page)
        page->updateLayout();
}

void updateGroup(Qtitan::RibbonGroup* group)
{
    if (!group)
        return;
    const QList<QAction*> actions = group->actions();
    QHash<QAction*, Qt::ToolButtonStyle> styles;
    for (QAction* action : actions) {
        if (action->isSeparator())
            continue;
        QToolButton* button = findActionButton(group, action);
        if (!button)
            continue;
        styles.insert(action, button->toolButtonStyle());
        button->setDefaultAction(nullptr);
    }
    group->clear();
    for (QAction* action : actions) {
        group->addAction(action);
        if (!qobject_cast<QWidgetAction*>(action))
            setActionButtonStyle(group, action, styles.value(action, Qt::ToolButtonIconOnly));
    }
    QEvent request(QEvent::LayoutRequest);
    if (auto* page = qobject_cast<Qtitan::RibbonPage*>(group->parentWidget()))
        page->updateLayout();
    // Sent at once: callers read the new geometry right after this returns.
    if (QWidget* target = grandParentWidget(group))
        QCoreApplication::sendEvent(target, &request);
}

} // namespace ui
