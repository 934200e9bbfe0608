#include <tessaro/MenuBar.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLayout>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QToolBar>

namespace ui {

// The corner strip: a tool bar that passes itself off as the empty part of
// the menu bar beside it.
class RightCornerWidget : public QToolBar
{
public:
    explicit RightCornerWidget(QWidget* parent)
        : QToolBar(parent)
    {
        setIconSize(QSize(16, 16));
        layout()->setContentsMargins(0, 0, 0, 0);
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QToolBar::changeEvent(event);
        // A style change restores the style's tool bar margins.
        if (event->type() == QEvent::StyleChange)
            layout()->setContentsMargins(0, 0, 0, 0);
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QStyleOptionMenuItem option;
        option.palette = palette();
        option.state = QStyle::State_None;
        option.menuItemType = QStyleOptionMenuItem::EmptyArea;
        option.rect = rect();
        option.menuRect = rect();
        style()->drawControl(QStyle::CE_MenuBarEmptyArea, &option, &painter, this);
    }
};

MenuBar::MenuBar(QWidget* parent)
    : QWidget(parent)
    , m_menuBar(new QMenuBar(this))
    , m_rightCornerWidget(new RightCornerWidget(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_menuBar, 0);
    layout->addWidget(m_rightCornerWidget, 0);
}

MenuBar::MenuBar(QMenuBar* source, QWidget* parent)
    : MenuBar(parent)
{
    if (source)
        m_menuBar->addActions(source->actions());
}

MenuBar::~MenuBar()
{
    m_menuBar->clear();
}

void MenuBar::addAction(QAction* action)
{
    m_menuBar->addAction(action);
}

void MenuBar::addRightCornerAction(QAction* action)
{
    m_rightCornerWidget->addAction(action);
}

void MenuBar::clear()
{
    m_menuBar->clear();
}

} // namespace ui
