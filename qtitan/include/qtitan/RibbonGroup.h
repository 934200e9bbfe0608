#pragma once

#include "QtitanGlobal.h"
#include "RibbonControlSizeDefinition.h"

#include <QIcon>
#include <QToolButton>
#include <QWidget>

class QMenu;

namespace Qtitan {

class RibbonControl;
class RibbonPage;

/// A titled group of controls on a ribbon page. The group follows its
/// QWidget actions: adding, inserting or removing an action (also through
/// plain QWidget::addAction/insertAction/removeAction) creates or destroys
/// its control, a RibbonButtonControl for an ordinary action, a
/// RibbonWidgetControl for a QWidgetAction and a RibbonSeparatorControl for a
/// separator. When the page narrows the group shrinks through the group
/// sizes, down to a single button that opens the group in a popup.
///
/// @code
/// Qtitan::RibbonGroup* clipboard = page->addGroup(QStringLiteral("Clipboard"));
/// clipboard->addAction(pasteIcon, QStringLiteral("Paste"), Qt::ToolButtonTextUnderIcon, pasteMenu);
/// clipboard->addAction(cutAction, Qt::ToolButtonTextBesideIcon);    // small, stacked
/// clipboard->addAction(copyAction, Qt::ToolButtonTextBesideIcon);
/// @endcode
class QTITAN_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
    Q_PROPERTY(bool controlsCentering READ isControlsCentering WRITE setControlsCentering)
public:
    /// Creates an untitled group; RibbonPage::addGroup() puts it on a page.
    explicit RibbonGroup(QWidget* parent = nullptr);
    /// Creates a titled group as a child of a page; RibbonPage::addGroup()
    /// (or RibbonPage::insertGroup()) places it in the page's row.
    RibbonGroup(RibbonPage* page, const QString& title);
    ~RibbonGroup() override;

    /// The title shown under the controls and on the collapsed button.
    QString title() const;
    /// Changes the title; titleChanged() follows when it differs.
    void setTitle(const QString& title);

    /// The icon of the collapsed group's button.
    QIcon icon() const;
    /// Sets the icon of the collapsed button; without one it shows the first
    /// command's icon.
    void setIcon(const QIcon& icon);

    /// Whether a column of fewer than three small controls is centred vertically.
    bool isControlsCentering() const;
    /// Centres short columns of small controls vertically, or keeps them at the top.
    void setControlsCentering(bool centering = true);

    /// The number of controls, one per action, separators included.
    int controlCount() const;
    /// The control at a position, or null for a bad index.
    RibbonControl* controlByIndex(int index) const;
    /// The control that shows an action, or null when the action is not the group's.
    RibbonControl* controlByAction(QAction* action) const;

    using QWidget::addAction;
    /// Creates an action owned by the group and adds it as a button of a style,
    /// with an optional menu opened in the given mode.
    QAction* addAction(const QIcon& icon, const QString& text, Qt::ToolButtonStyle style,
                       QMenu* menu = nullptr,
                       QToolButton::ToolButtonPopupMode mode = QToolButton::MenuButtonPopup);
    /// Adds an action as a button of a style; a menu, if given, becomes the
    /// action's menu and opens in the given mode. Returns the action (null for
    /// a null action).
    QAction* addAction(QAction* action, Qt::ToolButtonStyle style, QMenu* menu = nullptr,
                       QToolButton::ToolButtonPopupMode mode = QToolButton::MenuButtonPopup);

    /// Removes every action and control of the group.
    void clear();

    /// The size the group currently has on its page.
    RibbonControlSizeDefinition::GroupSize currentSize() const;
    /// Lays the controls out for a group size (called by the page).
    void setCurrentSize(RibbonControlSizeDefinition::GroupSize size);
    /// The group's width at a given size, without changing it.
    int widthForSize(RibbonControlSizeDefinition::GroupSize size) const;

    /// The group's width at its current size and the ribbon's group height.
    QSize sizeHint() const override;
    /// The width of the collapsed group.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The title changed.
    void titleChanged(const QString& title);

protected:
    /// Hands layout requests to the page and measures again after a font or
    /// style change.
    bool event(QEvent* event) override;
    /// Creates, replaces or removes the control of an added, changed or
    /// removed action.
    void actionEvent(QActionEvent* event) override;
    /// Draws the group's frame and title (nothing while collapsed).
    void paintEvent(QPaintEvent* event) override;
    /// Places the controls in the new size.
    void resizeEvent(QResizeEvent* event) override;

private:
    class Private;
    Private* d;
    friend class RibbonPage;
    friend class RibbonControl;
};

} // namespace Qtitan
