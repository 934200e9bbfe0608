#pragma once

#include <QWidgetAction>

class DemoCommands;

/// The ribbon's font size box: a combo box whose entries run the font size
/// commands. The ribbon keeps it as "ribbon.fontSize" in its stored layout.
class DemoFontSizeAction : public QWidgetAction
{
    Q_OBJECT

public:
    DemoFontSizeAction(DemoCommands* commands, QObject* parent);

protected:
    QWidget* createWidget(QWidget* parent) override;

private:
    DemoCommands* m_commands;
};
