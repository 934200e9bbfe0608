#include "DemoShortcutsDialog.h"

#include "DemoShortcutSettings.h"

#include <tessaro/MenuTreeWidget.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QVBoxLayout>

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

DemoShortcutsDialog* DemoShortcutsDialog::editShortcuts(QMenu* commands, DemoSettings& settings, QWidget* parent)
{
    auto* dialog = new DemoShortcutsDialog(commands, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    connect(dialog, &QDialog::accepted, dialog, [dialog, &settings] {
        DemoShortcutSettings::keep(settings, dialog->apply());
    });
    dialog->show();
    return dialog;
}
