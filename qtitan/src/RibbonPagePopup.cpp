#include "RibbonPagePopup_p.h"

#include "RibbonPaint_p.h"
#include "qtitan/RibbonPage.h"

#include <QAction>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QToolButton>

namespace Qtitan {
namespace detail {

RibbonPagePopup::RibbonPagePopup(QWidget* bar)
    : QWidget(bar, Qt::Popup)
{
    setObjectName(QStringLiteral("qtitan_ribbon_pagepopup"));
    setAttribute(Qt::WA_WindowPropagation, true);
}

void RibbonPagePopup::showPage(RibbonPage* page, int tab, const QRect& globalRect)
{
    m_page = page;
    m_tab = tab;
    setAttribute(Qt::WA_NoMouseReplay, false);
    setGeometry(globalRect);
    page->setParent(this);
    page->setGeometry(rect().adjusted(1, 1, -1, -1));
    page->show();
    watchCommands();
    show();
}

RibbonPage* RibbonPagePopup::page() const
{
    return m_page;
}

int RibbonPagePopup::tab() const
{
    return m_tab;
}

// A command run from the page (a button or an entry of its menu) closes the popup.
void RibbonPagePopup::watchCommands()
{
    const QList<QToolButton*> buttons = m_page->findChildren<QToolButton*>();
    for (QToolButton* button : buttons)
        m_commandWatch.append(connect(button, &QToolButton::triggered, this, &QWidget::close));
}

void RibbonPagePopup::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const RibbonColors colors = colorsFor(this);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, colors.pageBackgroundTop);
    gradient.setColorAt(1, colors.pageBackgroundBottom);
    p.fillRect(rect(), gradient);
    p.setPen(colors.pageBorder);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void RibbonPagePopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void RibbonPagePopup::mousePressEvent(QMouseEvent* event)
{
    if (!rect().contains(event->pos()))
        emit pressedOutside(event);
    QWidget::mousePressEvent(event);
}

void RibbonPagePopup::forgetPage()
{
    m_page = nullptr;
}

void RibbonPagePopup::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    for (const QMetaObject::Connection& connection : qAsConst(m_commandWatch))
        disconnect(connection);
    m_commandWatch.clear();
    QPointer<RibbonPage> page = m_page;
    m_page = nullptr;
    m_tab = -1;
    emit closed(page);
}

} // namespace detail
} // namespace Qtitan
