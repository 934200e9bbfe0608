#pragma once

#include <tessaro/RibbonSerializer.h>

#include <QString>

class DemoCommands;

namespace ui {
class RibbonBar;
}

namespace demo {

/// Stores the demo's ribbon by command: a registry action as "cmd.<id>" (its
/// command id), an action of the ribbon's own (a group command, the font size
/// box, a menu button) by its object name "ribbon.<name>". Such actions are
/// children of the ribbon itself, so that they outlive the pages a restore
/// removes.
class DemoRibbonSerializer : public ui::RibbonSerializer
{
public:
    DemoRibbonSerializer(ui::RibbonBar* ribbon, DemoCommands* commands);

    /// The settings keys of the stored layout and quick access bar.
    static const QString layoutKey;
    static const QString quickBarKey;

protected:
    QString getActionID(QAction* action) override;
    QAction* getAction(const QString& id) const override;

private:
    ui::RibbonBar* m_ribbon;
    DemoCommands* m_commands;
};

} // namespace demo
