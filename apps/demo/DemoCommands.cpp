#include "DemoCommands.h"

#include "DemoAutoSave.h"
#include "DemoEditCommands.h"
#include "DemoFileCommands.h"
#include "DemoFiles.h"
#include "DemoFormatCommands.h"
#include "DemoHelpCommands.h"
#include "DemoInsertCommands.h"
#include "DemoMenus.h"
#include "DemoShortcutSettings.h"
#include "DemoToolsCommands.h"
#include "DemoViewCommands.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QAction>

DemoCommands::DemoCommands(DemoWindow* window)
    : QObject(window)
    , m_window(window)
    , m_registry(new ui::CommandsRegistry(this))
    , m_files(new DemoFiles(this))
    , m_autoSave(new DemoAutoSave(window, this))
{
    DemoFileCommands::registerCommands(*this);
    DemoEditCommands::registerCommands(*this);
    DemoViewCommands::registerCommands(*this);
    DemoInsertCommands::registerCommands(*this);
    DemoFormatCommands::registerCommands(*this);
    DemoToolsCommands::registerCommands(*this);
    DemoHelpCommands::registerCommands(*this);
    m_menus = std::make_unique<DemoMenus>(*this);
    DemoShortcutSettings::restore(m_window->settings(), m_menus->root());
}

DemoCommands::~DemoCommands() = default;

QAction* DemoCommands::action(int id) const
{
    return m_registry->getCommandAction(id);
}

DemoDocument* DemoCommands::document() const
{
    return m_window->activeDocument();
}

QAction* DemoCommands::add(int id, IconPainter::Glyph glyph, const QString& text, const QKeySequence& shortcut,
                           const QString& tip, bool persistent)
{
    const QIcon icon = IconPainter::icon(glyph);
    QAction* action = persistent ? m_registry->addPersistentCommand(icon, text, id)
                                 : m_registry->addCommand(icon, text, id);
    // The quick access editor tells commands apart by object name.
    action->setObjectName(QStringLiteral("cmd.") + QString::number(id));
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    if (!tip.isEmpty())
        action->setStatusTip(tip);
    return action;
}

void DemoCommands::onDocument(int id, const std::function<void(DemoDocument*)>& run,
                              const std::function<bool(DemoDocument*)>& enabled)
{
    m_registry->ConnectCommand(id, [this, run] {
        if (DemoDocument* doc = document())
            run(doc);
    });
    m_registry->ConnectCommandUI(id, [this, enabled](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc && (!enabled || enabled(doc)));
    });
}

void DemoCommands::onDocumentChecked(int id, const std::function<void(DemoDocument*)>& run,
                                     const std::function<bool(DemoDocument*)>& checked)
{
    m_registry->ConnectCommand(id, [this, run] {
        if (DemoDocument* doc = document())
            run(doc);
    });
    m_registry->ConnectCommandUI(id, [this, checked](ui::CommandState& state) {
        DemoDocument* doc = document();
        state.setEnabled(doc != nullptr);
        state.setChecked(doc && checked(doc));
    });
}
