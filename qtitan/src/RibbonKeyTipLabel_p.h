#pragma once

#include <QLabel>

namespace Qtitan {
namespace detail {

/// The letter badge that key tips put on a tab or a control. Its buddy() is
/// the widget it stands for (a tab's badge: the tab's page).
class RibbonKeyTipLabel : public QLabel
{
    Q_OBJECT
public:
    RibbonKeyTipLabel(const QString& tip, QWidget* target, QWidget* parent);

    QSize sizeHint() const override;

    /// Centres the badge on @p point (in the parent's coordinates), kept inside the parent.
    void centreOn(const QPoint& point);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace detail
} // namespace Qtitan
