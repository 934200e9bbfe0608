#pragma once

#include <QObject>

class DemoWindow;
class QTimer;

/// Tools › Auto Save: while on, every 30 seconds the documents that have a
/// file and unsaved changes are saved to it. Starts in the state the settings
/// kept.
class DemoAutoSave : public QObject
{
    Q_OBJECT

public:
    /// Saves the documents of \a window; starts as the window's settings say.
    DemoAutoSave(DemoWindow* window, QObject* parent);

    /// Whether documents are being saved every 30 seconds.
    bool isOn() const;
    /// Starts or stops the saving.
    void setOn(bool on);

private:
    void saveNow();

    DemoWindow* m_window;
    QTimer* m_timer;
};
