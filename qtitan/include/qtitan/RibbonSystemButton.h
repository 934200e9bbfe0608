#pragma once

#include "QtitanGlobal.h"

#include <QToolButton>

namespace Qtitan {

/// The button at the left of the tab row that opens the system menu.
class QTITAN_EXPORT RibbonSystemButton : public QToolButton
{
    Q_OBJECT
public:
    explicit RibbonSystemButton(QWidget* parent = nullptr);
    ~RibbonSystemButton() override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace Qtitan
