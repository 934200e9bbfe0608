#include "qtitan/RibbonSystemMenu.h"

#include "qtitan/RibbonColors.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace Qtitan {

namespace {

// The strip of buttons along the menu's bottom edge.
class PopupBar : public QWidget
{
public:
    explicit PopupBar(QWidget* parent)
        : QWidget(parent)
    {
        setObjectName(QStringLiteral("qtitan_SystemMenuPopupBar"));
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(6, 4, 6, 4);
        layout->setSpacing(4);
        layout->addStretch(1);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const RibbonColors colors = RibbonColors::forWidget(this);
        QPainter painter(this);
        painter.fillRect(rect(), colors.menuPopupBarBackground);
        painter.setPen(colors.menuSeparator);
        painter.drawLine(0, 0, width() - 1, 0);
    }
};

} // namespace

class RibbonSystemMenu::Private
{
public:
    PopupBar* bar = nullptr;
    QList<QAction*> actions;
    QList<QToolButton*> buttons;
};

RibbonSystemMenu::RibbonSystemMenu(QWidget* parent)
    : QMenu(parent)
    , d(new Private)
{
    setObjectName(QStringLiteral("qtitan_SystemMenu"));
    d->bar = new PopupBar(this);
    d->bar->hide();
    updateBar();
}

RibbonSystemMenu::~RibbonSystemMenu()
{
    for (QAction* action : qAsConst(d->actions))
        disconnect(action, &QObject::destroyed, this, nullptr);
    delete d;
    d = nullptr;
}

void RibbonSystemMenu::addPopupBarAction(QAction* action, Qt::ToolButtonStyle buttonStyle)
{
    if (!action)
        return;
    auto* button = new QToolButton(d->bar);
    button->setDefaultAction(action);
    button->setToolButtonStyle(buttonStyle);
    button->setAutoRaise(true);
    button->setIconSize(QSize(16, 16));
    button->setFocusPolicy(Qt::NoFocus);
    // A button of the bar closes the menu like an ordinary entry would.
    connect(button, &QToolButton::triggered, this, [this]() { close(); });
    d->bar->layout()->addWidget(button);
    d->actions.append(action);
    d->buttons.append(button);
    connect(action, &QObject::destroyed, this, [this, action]() {
        const int index = d->actions.indexOf(action);
        if (index < 0)
            return;
        d->actions.removeAt(index);
        delete d->buttons.takeAt(index);
        updateBar();
    });
    updateBar();
}

void RibbonSystemMenu::updateBar()
{
    const bool shown = !d->actions.isEmpty();
    d->bar->setVisible(shown);
    const int barHeight = shown ? d->bar->sizeHint().height() : 0;
    setContentsMargins(0, 0, 0, barHeight);
    // The application menu is wider than an ordinary drop-down.
    const int comfortable = fontMetrics().averageCharWidth() * 32;
    const int barWidth = shown ? d->bar->sizeHint().width() + 2 * style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this)
                               : 0;
    setMinimumWidth(qMax(comfortable, barWidth));
    updateGeometry();
    if (isVisible())
        adjustSize();
    resizeEvent(nullptr);
}

QAction* RibbonSystemMenu::addPopupBarAction(const QString& text)
{
    auto* action = new QAction(text, this);
    addPopupBarAction(action, Qt::ToolButtonTextOnly);
    return action;
}

QList<QAction*> RibbonSystemMenu::popupBarActions() const
{
    return d->actions;
}

void RibbonSystemMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    resizeEvent(nullptr);
}

void RibbonSystemMenu::resizeEvent(QResizeEvent* event)
{
    if (event)
        QMenu::resizeEvent(event);
    if (d->actions.isEmpty())
        return;
    const int frame = style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this);
    const int barHeight = d->bar->sizeHint().height();
    d->bar->setGeometry(frame, height() - frame - barHeight, width() - 2 * frame, barHeight);
    d->bar->raise();
}

} // namespace Qtitan
