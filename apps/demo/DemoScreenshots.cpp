#include "DemoScreenshots.h"

#include <tessaro/QuickSearch.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QPixmap>
#include <QScreen>

namespace demo {

namespace {

// Waits for the window system and the event loop (the registry refreshes the
// actions on its wake-ups), so that the picture shows what a user would see.
void settle(int ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

} // namespace

bool saveWindowPicture(QMainWindow* window, const QSize& size, const QString& fileName)
{
    window->setWindowState(Qt::WindowNoState);
    window->resize(size);
    window->show();
    settle(600);
    return window->grab().save(fileName, "PNG");
}

bool saveQuickSearchPicture(QMainWindow* window, const QSize& size, ui::QuickSearchWidget* box,
                            const QString& query, const QString& fileName)
{
    // The box is in the status bar; its popup opens above it, over the window.
    QScreen* screen = window->screen();
    window->setWindowState(Qt::WindowNoState);
    QRect frame(QPoint(), size);
    frame.moveCenter(screen->availableGeometry().center());
    window->setGeometry(frame);
    window->show();
    window->activateWindow();
    settle(600);

    box->setFocus(Qt::ShortcutFocusReason);
    box->clear();
    for (const QChar key : query) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(key));
        QCoreApplication::sendEvent(box, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(key));
        QCoreApplication::sendEvent(box, &release);
        settle(30);
    }
    settle(400);

    QPixmap picture = screen->grabWindow(0);
    QRect area = window->frameGeometry();
    if (auto* popup = box->findChild<QMenu*>(); popup && popup->isVisible())
        area = area.united(popup->frameGeometry());
    area = area.adjusted(-8, -8, 8, 8).intersected(screen->geometry()).translated(-screen->geometry().topLeft());
    if (!area.isEmpty())
        picture = picture.copy(area);
    return picture.save(fileName, "PNG");
}

} // namespace demo
