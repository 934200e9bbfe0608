#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVector>

namespace Qtitan {

class RibbonBar;

/// Watches the objects around the ribbon that change its layout: page titles,
/// the quick access bar, and the title of the window that shows the ribbon.
class RibbonBarWatcher : public QObject
{
    Q_OBJECT
public:
    explicit RibbonBarWatcher(RibbonBar* bar);

    void watchWindow(QWidget* window);
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void relayout();

private:
    RibbonBar* m_bar;
    QPointer<QWidget> m_window;
};

} // namespace Qtitan
