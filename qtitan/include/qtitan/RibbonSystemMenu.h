#pragma once

#include "QtitanGlobal.h"

#include <QMenu>

namespace Qtitan {

/// The menu of the ribbon's system button: ordinary entries above a bar of
/// buttons along its bottom edge (where an office application has Options
/// and Exit).
///
/// @code
/// ribbon->addSystemButton(QStringLiteral("File"));
/// auto* menu = qobject_cast<Qtitan::RibbonSystemMenu*>(ribbon->systemButton()->defaultAction()->menu());
/// menu->addAction(openAction);
/// menu->addPopupBarAction(optionsAction, Qt::ToolButtonTextBesideIcon);
/// QObject::connect(menu->addPopupBarAction(QStringLiteral("Exit")), &QAction::triggered, qApp, &QApplication::quit);
/// @endcode
class QTITAN_EXPORT RibbonSystemMenu : public QMenu
{
    Q_OBJECT
public:
    /// Creates an empty menu, wider than an ordinary drop-down.
    explicit RibbonSystemMenu(QWidget* parent = nullptr);
    ~RibbonSystemMenu() override;

    /// Adds a button for an action to the bottom bar; triggering it closes the
    /// menu. The button goes away when the action is deleted.
    void addPopupBarAction(QAction* action, Qt::ToolButtonStyle style = Qt::ToolButtonTextOnly);
    /// Creates an action owned by the menu and adds it to the bottom bar as a
    /// text-only button.
    QAction* addPopupBarAction(const QString& text);
    /// The actions of the bottom bar, in order.
    QList<QAction*> popupBarActions() const;

protected:
    /// Places the bottom bar once the menu has its size.
    void showEvent(QShowEvent* event) override;
    /// Keeps the bottom bar along the menu's bottom edge.
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateBar();

    class Private;
    Private* d;
};

} // namespace Qtitan
