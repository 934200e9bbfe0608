#include <tessaro/QHotKeyPage.h>

#include <tessaro/QtKeySequenceEdit.h>
#include "common/LazyIconEngine_p.h"
#include "ui_QHotKeyPage.h"

#include <QAction>
#include <QVBoxLayout>

namespace ui {

QHotKeyPage::QHotKeyPage(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::QHotKeyPage)
    , m_action(nullptr)
    , m_edit(nullptr)
{
    // The form first, then the edit: children and focus chain follow the
    // form's order, with the edit at their end.
    m_ui->setupUi(this);
    LazyIconEngine::setIcons({
        {m_ui->addButton, ":/Tessaro/plus.png"},
    });
    m_edit = new QtKeySequenceEdit(this);
    m_ui->horizontalLayout->insertWidget(0, m_edit);

    if (parent) {
        if (QLayout* existing = parent->layout()) {
            existing->addWidget(this);
        } else {
            QVBoxLayout* layout = new QVBoxLayout(parent);
            layout->setSpacing(0);
            layout->setContentsMargins(0, 0, 0, 0);
            layout->addWidget(this);
        }
    }

    connect(m_edit, SIGNAL(textChanged(const QString &)), this, SLOT(updateGUI()));
    updateGUI();
}

QHotKeyPage::~QHotKeyPage()
{
    delete m_ui;
}

void QHotKeyPage::setShortcuts(const ShortcutTable& shortcuts)
{
    if (m_shortcuts != shortcuts)
        m_shortcuts = shortcuts;
    if (m_action)
        setAction(m_action);
}

QHotKeyPage::ShortcutTable QHotKeyPage::shortcuts() const
{
    return m_shortcuts;
}

void QHotKeyPage::setAction(QAction* action)
{
    m_action = action;
    m_ui->listWidget->clear();
    updateGUI();
    if (!action)
        return;
    const auto it = m_shortcuts.constFind(action);
    if (it == m_shortcuts.cend())
        return;
    for (const QKeySequence& sequence : it.value())
        m_ui->listWidget->addItem(sequence.toString(QKeySequence::PortableText));
}

QAction* QHotKeyPage::action() const
{
    return m_action;
}

void QHotKeyPage::addShortcut()
{
    const QKeySequence sequence = m_edit->keySequence();
    if (!m_action || sequence.isEmpty()) {
        updateGUI();
        return;
    }
    m_shortcuts[m_action].append(sequence);
    // The stored list grows at its end, the visible one after the selected row;
    // delShortcut() pairs them by row number.
    m_ui->listWidget->insertItem(m_ui->listWidget->currentRow() + 1,
                                 sequence.toString(QKeySequence::PortableText));
    updateGUI();
}

void QHotKeyPage::delShortcut()
{
    const int row = m_ui->listWidget->currentRow();
    if (m_action) {
        const auto it = m_shortcuts.find(m_action);
        if (it != m_shortcuts.end() && row >= 0 && row < it.value().size())
            it.value().removeAt(row);
    }
    delete m_ui->listWidget->takeItem(row);
    updateGUI();
}

void QHotKeyPage::updateGUI()
{
    const QKeySequence sequence = m_edit->keySequence();
    QAction* owner = nullptr;
    for (auto it = m_shortcuts.cbegin(); it != m_shortcuts.cend(); ++it) {
        if (it.value().contains(sequence)) {
            owner = it.key();
            break;
        }
    }

    if (!owner || owner == m_action) {
        m_ui->lineEdit->hide();
    } else {
        QString name = owner->text();
        name.remove(QLatin1Char('&'));
        m_ui->lineEdit->setText(name);
        m_ui->lineEdit->show();
    }

    m_ui->addButton->setEnabled(m_action && !m_edit->text().isEmpty() && !owner);
    m_ui->delButton->setEnabled(m_ui->listWidget->currentRow() >= 0);
}

} // namespace ui
