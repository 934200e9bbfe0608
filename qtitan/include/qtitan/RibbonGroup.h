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
class QTITAN_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
    Q_PROPERTY(bool controlsCentering READ isControlsCentering WRITE setControlsCentering)
public:
    explicit RibbonGroup(QWidget* parent = nullptr);
    RibbonGroup(RibbonPage* page, const QString& title);
    ~RibbonGroup() override;

    QString title() const;
    void setTitle(const QString& title);

    QIcon icon() const;
    void setIcon(const QIcon& icon);

    bool isControlsCentering() const;
    void setControlsCentering(bool centering = true);

    int controlCount() const;
    RibbonControl* controlByIndex(int index) const;
    RibbonControl* controlByAction(QAction* action) const;

    using QWidget::addAction;
    QAction* addAction(const QIcon& icon, const QString& text, Qt::ToolButtonStyle style,
                       QMenu* menu = nullptr,
                       QToolButton::ToolButtonPopupMode mode = QToolButton::MenuButtonPopup);
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

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void titleChanged(const QString& title);

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Private;
    Private* d;
    friend class RibbonPage;
    friend class RibbonControl;
};

} // namespace Qtitan
