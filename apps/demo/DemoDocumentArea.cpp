#include "DemoDocumentArea.h"

#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTabBar>
#include <QTimer>

namespace demo {

namespace {

class CurrentSubWindowKeeper : public QObject
{
public:
    explicit CurrentSubWindowKeeper(QMdiArea* area)
        : QObject(area)
        , m_area(area)
    {
        area->installEventFilter(this);
        connect(area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
            if (window)
                m_last = window;
        });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_area && (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate))
            QTimer::singleShot(0, this, &CurrentSubWindowKeeper::restore);
        return QObject::eventFilter(watched, event);
    }

private:
    void restore()
    {
        const QList<QMdiSubWindow*> windows = m_area->subWindowList(QMdiArea::CreationOrder);
        if (m_area->activeSubWindow() || windows.isEmpty() || !m_area->isVisible())
            return;
        QMdiSubWindow* wanted = m_last && windows.contains(m_last) ? m_last.data() : windows.last();
        m_area->setActiveSubWindow(wanted);
        if (!m_area->activeSubWindow())
            activateThroughStandIn(wanted);
        // Tabbed documents fill the area.
        if (m_area->viewMode() == QMdiArea::TabbedView)
            wanted->showMaximized();
    }

    void activateThroughStandIn(QMdiSubWindow* wanted)
    {
        // A tabbed area does not activate windows that it received while
        // hidden until a window joins it while shown: add a stand-in for a moment.
        QMdiSubWindow* standIn = m_area->addSubWindow(new QWidget);
        standIn->show();
        m_area->setActiveSubWindow(standIn);
        m_area->removeSubWindow(standIn);
        delete standIn;
        m_area->setActiveSubWindow(wanted);
    }

    QMdiArea* m_area;
    QPointer<QMdiSubWindow> m_last;
};

} // namespace

void activateCurrentOnShow(QMdiArea* area)
{
    new CurrentSubWindowKeeper(area);
}

void keepTabTextReadable(QMdiArea* area)
{
    auto* tabBar = area->findChild<QTabBar*>();
    if (!tabBar)
        return;
    // An explicitly set palette survives application style changes.
    QPalette palette = tabBar->palette();
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        palette.setColor(QPalette::Active, role, QColor(20, 20, 20));
        palette.setColor(QPalette::Inactive, role, QColor(20, 20, 20));
        palette.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    }
    tabBar->setPalette(palette);
}

} // namespace demo
