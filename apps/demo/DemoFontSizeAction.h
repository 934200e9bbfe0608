#pragma once

#include <QWidgetAction>

class DemoCommands;

/// The font size box of the ribbon: its entries run the font size commands,
/// and it shows and is enabled as they are (the checked one is the size at
/// the cursor). The ribbon keeps it as "ribbon.fontSize".
class DemoFontSizeAction : public QWidgetAction
{
    Q_OBJECT

public:
    /// The box over the font size commands of \a commands.
    DemoFontSizeAction(DemoCommands* commands, QObject* parent);

    /// The font size commands the box offers, in its order.
    QList<QAction*> sizeCommands() const;

protected:
    QWidget* createWidget(QWidget* parent) override;

private:
    void showCurrent();

    DemoCommands* m_commands;
};
