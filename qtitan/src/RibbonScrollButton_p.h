#pragma once

#include <QToolButton>

namespace Qtitan {
namespace detail {

/// An arrow that scrolls a row too narrow for its content: the groups of a
/// page, or the tabs of the ribbon. On the tab row it takes the frame's colours.
class RibbonScrollButton : public QToolButton
{
    Q_OBJECT
public:
    enum Surface { OnPage, OnFrame };

    RibbonScrollButton(QWidget* parent, Qt::ArrowType arrow, Surface surface);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface m_surface;
};

} // namespace detail
} // namespace Qtitan
