#include "DemoShortcutsDialog.h"

#include "DemoCommands.h"
#include "DemoSettings.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>
#include <tessaro/MenuTreeWidget.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSet>
#include <QSplitter>
#include <QVBoxLayout>

#include <functional>

namespace {

void collect(QMenu* menu, DemoShortcutsDialog::Table& table)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (QMenu* sub = action->menu())
            collect(sub, table);
        else if (!table.contains(action))
            table.insert(action, action->shortcuts());
    }
}

void walk(QMenu* menu, QSet<QMenu*>& seen, const std::function<void(QAction*)>& visit)
{
    if (seen.contains(menu))
        return;
    seen.insert(menu);
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (QMenu* sub = action->menu())
            walk(sub, seen, visit);
        else
            visit(action);
    }
}

// A small keyboard: a rounded body with three rows of keys.
QIcon keyboardIcon()
{
    QIcon icon;
    for (int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(size / 16.0, size / 16.0);
        p.setPen(QPen(QColor(0x44, 0x55, 0x66), 1));
        p.setBrush(QColor(0xf4, 0xf6, 0xf8));
        p.drawRoundedRect(QRectF(0.5, 3.5, 15, 9), 1.5, 1.5);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0x44, 0x55, 0x66));
        for (int row = 0; row < 2; ++row) {
            for (int col = 0; col < 6; ++col)
                p.drawRect(QRectF(2 + col * 2 + row, 5 + row * 2, 1.2, 1.2));
        }
        p.drawRect(QRectF(4, 9.5, 8, 1.3));
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

DemoShortcutsDialog::DemoShortcutsDialog(QMenu* commands, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    setObjectName(QStringLiteral("DemoShortcutsDialog"));

    auto* layout = new QVBoxLayout(this);
    auto* hint = new QLabel(tr("Pick a command, press the new key combination in the box and add it with +. "
                               "A combination that another command already uses is refused and that "
                               "command is named below the box."),
                            this);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto* splitter = new QSplitter(Qt::Horizontal, this);
    m_tree = new MenuTreeWidget(splitter, commands);
    m_tree->header()->hide();
    auto* panel = new QWidget(splitter);
    m_page = new ui::QHotKeyPage(panel);
    splitter->addWidget(m_tree);
    splitter->addWidget(panel);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    layout->addWidget(splitter, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    m_page->setShortcuts(collectShortcuts(commands));
    connect(m_tree, &MenuTreeWidget::currentActionChanged, m_page, &ui::QHotKeyPage::setAction);
    resize(720, 480);
}

DemoShortcutsDialog::~DemoShortcutsDialog() = default;

DemoShortcutsDialog::Table DemoShortcutsDialog::editedShortcuts() const
{
    return m_page->shortcuts();
}

QList<QAction*> DemoShortcutsDialog::apply() const
{
    return applyShortcuts(editedShortcuts());
}

DemoShortcutsDialog::Table DemoShortcutsDialog::collectShortcuts(QMenu* menu)
{
    Table table;
    if (menu)
        collect(menu, table);
    return table;
}

QList<QAction*> DemoShortcutsDialog::applyShortcuts(const Table& table)
{
    QList<QAction*> changed;
    for (auto it = table.cbegin(); it != table.cend(); ++it) {
        QAction* action = it.key();
        if (action->isSeparator() || action->shortcuts() == it.value())
            continue;
        action->setShortcuts(it.value());
        changed.append(action);
    }
    return changed;
}

namespace DemoShortcuts {

QAction* registerCommand(ui::CommandsRegistry* registry, DemoWindow* window, int id)
{
    QAction* action = registry->addCommand(keyboardIcon(), DemoShortcutsDialog::tr("&Keyboard Shortcuts…"), id);
    action->setStatusTip(DemoShortcutsDialog::tr("Change the key combinations of the commands"));
    registry->ConnectCommand(id, [window] {
        open(window->commands()->rootMenu(), window->settings(), window);
    });
    return action;
}

DemoShortcutsDialog* open(QMenu* commands, DemoSettings& settings, QWidget* parent)
{
    auto* dialog = new DemoShortcutsDialog(commands, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, &settings] {
        const QList<QAction*> changed = dialog->apply();
        if (changed.isEmpty())
            return;
        const QString key = DemoShortcutSettings::settingsKey;
        settings.setValue(key, DemoShortcutSettings::merge(settings.value(key).toMap(), changed));
    });
    dialog->show();
    return dialog;
}

int restore(const DemoSettings& settings, QMenu* commands)
{
    return DemoShortcutSettings::restore(settings.value(DemoShortcutSettings::settingsKey).toMap(), commands);
}

} // namespace DemoShortcuts

namespace DemoShortcutSettings {

const QString settingsKey = QStringLiteral("keyboardShortcuts");

QString commandKey(const QAction* action)
{
    bool ok = false;
    const int id = action->data().toInt(&ok);
    if (ok && id > 0)
        return QStringLiteral("id:%1").arg(id);
    if (!action->objectName().isEmpty())
        return QStringLiteral("name:") + action->objectName();
    return QString();
}

QVariantMap merge(QVariantMap saved, const QList<QAction*>& changed)
{
    for (const QAction* action : changed) {
        const QString key = commandKey(action);
        if (key.isEmpty())
            continue;
        QStringList texts;
        for (const QKeySequence& sequence : action->shortcuts())
            texts << sequence.toString(QKeySequence::PortableText);
        saved.insert(key, texts);
    }
    return saved;
}

int restore(const QVariantMap& saved, QMenu* menu)
{
    if (!menu || saved.isEmpty())
        return 0;
    int count = 0;
    QSet<QMenu*> seen;
    walk(menu, seen, [&saved, &count](QAction* action) {
        const auto it = saved.constFind(commandKey(action));
        if (action->isSeparator() || it == saved.cend())
            return;
        QList<QKeySequence> shortcuts;
        for (const QString& text : it.value().toStringList()) {
            const QKeySequence sequence(text, QKeySequence::PortableText);
            if (!sequence.isEmpty())
                shortcuts << sequence;
        }
        if (action->shortcuts() != shortcuts) {
            action->setShortcuts(shortcuts);
            ++count;
        }
    });
    return count;
}

} // namespace DemoShortcutSettings
