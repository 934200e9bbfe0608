#pragma once

#include "RibbonControl.h"

#include <QToolButton>

namespace Qtitan {

/// A control that shows its action as a ribbon tool button: a large image over
/// its label, a small image beside it or the image alone, as the group size
/// and the tool button style allow.
///
/// A group makes one for each ordinary action; a host reaches it to change
/// the button's style or how its menu opens.
///
/// @code
/// QAction* paste = group->addAction(pasteIcon, QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon);
/// paste->setMenu(pasteMenu);
/// auto* button = qobject_cast<Qtitan::RibbonButtonControl*>(group->controlByAction(paste));
/// button->setPopupMode(QToolButton::InstantPopup);   // the whole button opens the menu
/// @endcode
class QTITAN_EXPORT RibbonButtonControl : public RibbonControl
{
    Q_OBJECT
public:
    /// Creates an empty button control for a group; the label goes under the icon.
    explicit RibbonButtonControl(RibbonGroup* parent = nullptr);
    ~RibbonButtonControl() override;

    /// The button that shows the default action.
    QToolButton* widget() const;

    /// The button's style, which caps what the size definitions show.
    Qt::ToolButtonStyle toolButtonStyle() const;
    /// Changes the button's style and lays the group out again.
    void setToolButtonStyle(Qt::ToolButtonStyle style);

    /// How the menu of the button's action opens.
    QToolButton::ToolButtonPopupMode popupMode() const;
    /// Changes how the menu of the button's action opens.
    void setPopupMode(QToolButton::ToolButtonPopupMode mode);

    /// Shows an action on the button; the popup mode stays as it was chosen.
    void setDefaultAction(QAction* action) override;
    /// Gives the button the image and label of a group size.
    void adjustCurrentSize(RibbonControlSizeDefinition::GroupSize size) override;
    /// Repaints the button and measures it again.
    void actionChanged() override;

    /// Whether the button shows its large image at a group size.
    bool isLargeAt(RibbonControlSizeDefinition::GroupSize size) const override;

    /// The size of the button at the current group size.
    QSize sizeHint() const override;
    /// The same as sizeHint(): a button does not shrink below its look.
    QSize minimumSizeHint() const override;

protected:
    /// Keeps the button filling the control.
    void resizeEvent(QResizeEvent* event) override;
    /// The button's size with the image and label of a group size.
    QSize computeSizeHint(RibbonControlSizeDefinition::GroupSize size) const override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
