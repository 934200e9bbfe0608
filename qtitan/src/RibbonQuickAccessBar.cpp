#include "qtitan/RibbonQuickAccessBar.h"

#include "qtitan/RibbonColors.h"

#include <QActionEvent>
#include <QApplication>
#include <QPainter>
#include <QSet>
#include <QToolButton>

namespace Qtitan {

namespace {

// The tool bar deletes the button of a removed action later; until then it
// would still be found among the bar's children as the action's button.
void dropStaleButtons(QToolBar* bar, QAction* action)
{
    const QList<QToolButton*> buttons = bar->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolButton* button : buttons) {
        if (button->defaultAction() == action && button->isHidden())
            delete button;
    }
}

} // namespace

class RibbonQuickAccessBar::Private
{
public:
    // Hidden actions stay among actions() but have no item in the tool bar layout.
    QSet<QAction*> hidden;
    bool forwarding = false;
};

RibbonQuickAccessBar::RibbonQuickAccessBar(QWidget* parent)
    : QToolBar(parent)
    , d(new Private)
{
    setObjectName(QStringLiteral("qtitan_QuickAccessBar"));
    setMovable(false);
    setFloatable(false);
    setIconSize(QSize(16, 16));
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setContentsMargins(0, 0, 0, 0);
    setAttribute(Qt::WA_NoSystemBackground, true);
}

RibbonQuickAccessBar::~RibbonQuickAccessBar()
{
    delete d;
}

void RibbonQuickAccessBar::setActionVisible(QAction* action, bool visible)
{
    if (!action || !actions().contains(action))
        return;
    const bool hidden = d->hidden.contains(action);
    if (visible == !hidden)
        return;
    if (visible) {
        d->hidden.remove(action);
        // The tool bar item goes before the next action that has one.
        const QList<QAction*> all = actions();
        QAction* before = nullptr;
        for (int i = all.indexOf(action) + 1; i < all.size(); ++i) {
            if (!d->hidden.contains(all.at(i))) {
                before = all.at(i);
                break;
            }
        }
        QActionEvent added(QEvent::ActionAdded, action, before);
        QToolBar::actionEvent(&added);
    } else {
        d->hidden.insert(action);
        QActionEvent removed(QEvent::ActionRemoved, action);
        QToolBar::actionEvent(&removed);
        dropStaleButtons(this, action);
    }
    updateGeometry();
    adjustSize();
    if (parentWidget())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutRequest));
}

bool RibbonQuickAccessBar::isActionVisible(QAction* action) const
{
    return action && actions().contains(action) && !d->hidden.contains(action);
}

int RibbonQuickAccessBar::visibleCount() const
{
    int count = 0;
    const QList<QAction*> all = actions();
    for (QAction* action : all) {
        if (!d->hidden.contains(action))
            ++count;
    }
    return count;
}

QSize RibbonQuickAccessBar::sizeHint() const
{
    QSize hint = QToolBar::sizeHint();
    hint.setHeight(qMax(hint.height(), iconSize().height() + 8));
    return hint;
}

void RibbonQuickAccessBar::actionEvent(QActionEvent* event)
{
    QAction* action = event->action();
    switch (event->type()) {
    case QEvent::ActionAdded: {
        if (d->hidden.contains(action))
            return;
        // A hidden "before" has no item to be placed in front of.
        QAction* before = event->before();
        if (before && d->hidden.contains(before)) {
            const QList<QAction*> all = actions();
            before = nullptr;
            for (int i = all.indexOf(event->before()) + 1; i < all.size(); ++i) {
                if (!d->hidden.contains(all.at(i)) && all.at(i) != action) {
                    before = all.at(i);
                    break;
                }
            }
            QActionEvent added(QEvent::ActionAdded, action, before);
            QToolBar::actionEvent(&added);
        } else {
            QToolBar::actionEvent(event);
        }
        if (QToolButton* button = qobject_cast<QToolButton*>(widgetForAction(action)))
            button->setAutoRaise(true);
        break;
    }
    case QEvent::ActionRemoved:
        if (d->hidden.remove(action))
            return;
        QToolBar::actionEvent(event);
        dropStaleButtons(this, action);
        break;
    default:
        QToolBar::actionEvent(event);
        break;
    }
    if (parentWidget())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutRequest));
}

void RibbonQuickAccessBar::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    // The ribbon paints the strip behind the bar; the bar itself stays flat.
}

} // namespace Qtitan
