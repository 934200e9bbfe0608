#include "DemoShortcutsDialog.h"

#include "DemoShortcutSettings.h"

#include <tessaro/MenuTreeWidget.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
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

// The command icons are dark line drawings: a light selection keeps them
// readable on the selected row, whatever the application style.
void keepSelectedIconsLegible(QWidget* tree)
{
    QPalette palette = tree->palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, QColor(0xcc, 0xe4, 0xf7));
        palette.setColor(group, QPalette::HighlightedText, QColor(0x1a, 0x1a, 0x1a));
    }
    tree->setPalette(palette);
}

} // namespace

DemoShortcutsDialog::DemoShortcutsDialog(QMenu* commands, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    setObjectName(QStringLiteral("DemoShortcutsDialog"));

    auto* layout = new QVBoxLayout(this);
    auto* hint = new QLabel(tr("Pick a command, press the new key combination in the box and add it with +. "
                               "A combination that another command already uses is refused, and that "
                               "command is named below the box."),
                            this);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto* splitter = new QSplitter(Qt::Horizontal, this);
    m_tree = new MenuTreeWidget(splitter, commands);
    m_tree->header()->hide();
    keepSelectedIconsLegible(m_tree);
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

    labelConflictOwner();
    m_page->setShortcuts(collectShortcuts(commands));
    connect(m_tree, &MenuTreeWidget::currentActionChanged, m_page, &ui::QHotKeyPage::setAction);
    resize(720, 480);
}

DemoShortcutsDialog::~DemoShortcutsDialog() = default;

// The page shows the command that already has the typed combination in a
// box of its own: a label in front of the box says what it is, and shows and
// hides with it.
void DemoShortcutsDialog::labelConflictOwner()
{
    auto* owner = m_page->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
    auto* grid = m_page->findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    if (!owner || !grid)
        return;
    m_ownerLabel = new QLabel(tr("Already used by:"), m_page);
    m_ownerLabel->setBuddy(owner);
    m_ownerLabel->setVisible(!owner->isHidden());
    grid->removeWidget(owner);
    auto* row = new QHBoxLayout;
    row->addWidget(m_ownerLabel);
    row->addWidget(owner, 1);
    grid->addLayout(row, 2, 0);
    owner->installEventFilter(this);
}

bool DemoShortcutsDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (m_ownerLabel && watched == m_ownerLabel->buddy()) {
        if (event->type() == QEvent::ShowToParent)
            m_ownerLabel->show();
        else if (event->type() == QEvent::HideToParent)
            m_ownerLabel->hide();
    }
    return QDialog::eventFilter(watched, event);
}

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
