#pragma once

#include "QtitanGlobal.h"

#include <QToolButton>

namespace Qtitan {

/// The button at the left of the tab row that opens the system menu. It is
/// drawn in the style's shape for it: a coloured File tab, a filled block, or
/// the round button of the Office 2007 look.
///
/// RibbonBar::addSystemButton() creates it; its default action carries the menu.
///
/// @code
/// ribbon->addSystemButton(QStringLiteral("File"));
/// QMenu* menu = ribbon->systemButton()->defaultAction()->menu();
/// menu->addAction(openAction);
/// @endcode
class QTITAN_EXPORT RibbonSystemButton : public QToolButton
{
    Q_OBJECT
public:
    /// Creates an icon-beside-text button whose whole face opens its menu.
    explicit RibbonSystemButton(QWidget* parent = nullptr);
    ~RibbonSystemButton() override;

    /// Room for the icon and the title with padding, in the style's shape.
    QSize sizeHint() const override;

protected:
    /// Draws the button in the style's shape for it.
    void paintEvent(QPaintEvent* event) override;
    /// Opens the system menu; afterwards the hover look follows wherever the
    /// mouse is when the menu closes.
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace Qtitan
