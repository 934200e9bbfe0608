#include "DemoAutoSave.h"

#include "DemoDocument.h"
#include "DemoSettings.h"
#include "DemoWindow.h"

#include <QTimer>

namespace {

constexpr int autoSaveInterval = 30 * 1000;

} // namespace

DemoAutoSave::DemoAutoSave(DemoWindow* window, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_timer(new QTimer(this))
{
    m_timer->setInterval(autoSaveInterval);
    connect(m_timer, &QTimer::timeout, this, &DemoAutoSave::saveNow);
    setOn(window->settings().value(DemoSettings::autoSaveKey, false).toBool());
}

bool DemoAutoSave::isOn() const
{
    return m_timer->isActive();
}

void DemoAutoSave::setOn(bool on)
{
    if (on)
        m_timer->start();
    else
        m_timer->stop();
}

void DemoAutoSave::saveNow()
{
    int saved = 0;
    for (DemoDocument* doc : m_window->documents()) {
        if (doc->isModified() && !doc->filePath().isEmpty() && doc->saveTo(doc->filePath()))
            ++saved;
    }
    if (saved > 0)
        m_window->showMessage(tr("Auto-saved %n document(s)", nullptr, saved));
}
