#pragma once

#include "qtitan/RibbonControlSizeDefinition.h"

#include <QToolButton>

namespace Qtitan {
namespace detail {

/// The tool button inside a RibbonButtonControl. It draws itself in the
/// ribbon's look: large (icon over a two-line label, the drop-down arrow under
/// the label) or small (icon, label and arrow in one row), and splits a
/// MenuButtonPopup button into a face and a drop-down part.
class RibbonToolButton : public QToolButton
{
    Q_OBJECT
public:
    explicit RibbonToolButton(QWidget* parent = nullptr);

    /// The look the button shows now.
    void setLook(RibbonControlSizeDefinition::ControlImageSize image, bool label);
    RibbonControlSizeDefinition::ControlImageSize lookImage() const { return m_image; }
    bool lookLabel() const { return m_label; }

    /// The button's size in a look, from its action's current text, icon and menu.
    QSize sizeForLook(RibbonControlSizeDefinition::ControlImageSize image, bool label) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Whether the button opens a menu (its own or its action's).
    bool hasDropDown() const;
    /// Brings the hover look back in line with the mouse once a menu of the button closed.
    void afterMenu();

protected:
    void actionEvent(QActionEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    bool isSplit() const;
    /// The drop-down part of a split button.
    QRect dropDownRect() const;
    QString currentText() const;
    QIcon currentIcon() const;

    RibbonControlSizeDefinition::ControlImageSize m_image = RibbonControlSizeDefinition::ImageLarge;
    bool m_label = true;
    bool m_menuOpen = false;
    bool m_overDropDown = false;
};

} // namespace detail
} // namespace Qtitan
