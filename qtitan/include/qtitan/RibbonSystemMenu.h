#pragma once

#include "QtitanGlobal.h"

#include <QMenu>

namespace Qtitan {

/// The menu of the ribbon's system button: ordinary entries above a bar of
/// buttons along its bottom edge (where an office application has Options
/// and Exit).
class QTITAN_EXPORT RibbonSystemMenu : public QMenu
{
    Q_OBJECT
public:
    explicit RibbonSystemMenu(QWidget* parent = nullptr);
    ~RibbonSystemMenu() override;

    void addPopupBarAction(QAction* action, Qt::ToolButtonStyle style = Qt::ToolButtonTextOnly);
    QAction* addPopupBarAction(const QString& text);
    /// The actions of the bottom bar, in order.
    QList<QAction*> popupBarActions() const;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateBar();

    class Private;
    Private* d;
};

} // namespace Qtitan
