#include "DemoFontSizeAction.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoWindow.h"

#include <QAction>
#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

const int largestSize = 400;

} // namespace

DemoFontSizeAction::DemoFontSizeAction(DemoCommands* commands, QObject* parent)
    : QWidgetAction(parent)
    , m_commands(commands)
{
    setObjectName(QStringLiteral("ribbon.fontSize"));
    setText(tr("Font Size"));
    // The registry refreshes the size commands as the document becomes
    // read-only; the cursor's moves come from the document itself.
    for (QAction* size : sizeCommands())
        connect(size, &QAction::changed, this, &DemoFontSizeAction::showCurrent);
    connect(commands->window(), &DemoWindow::activeDocumentChanged, this, &DemoFontSizeAction::follow);
    follow(commands->document());
}

QList<QAction*> DemoFontSizeAction::sizeCommands() const
{
    QList<QAction*> commands;
    for (int id = DemoCommands::FormatSizeFirst; id <= DemoCommands::FormatSizeLast; ++id) {
        if (QAction* action = m_commands->action(id))
            commands << action;
    }
    return commands;
}

QWidget* DemoFontSizeAction::createWidget(QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setToolTip(tr("Font size"));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setValidator(new QIntValidator(1, largestSize, box));
    box->setMinimumContentsLength(3);
    for (QAction* size : sizeCommands())
        box->addItem(size->text().remove(QStringLiteral(" pt")), size->data());
    DemoCommands* commands = m_commands;
    connect(box, QOverload<int>::of(&QComboBox::activated), box, [commands, box](int index) {
        if (QAction* size = commands->action(box->itemData(index).toInt()))
            size->trigger();
    });
    connect(box->lineEdit(), &QLineEdit::returnPressed, box, [this, box] { apply(box->currentText()); });
    QMetaObject::invokeMethod(this, &DemoFontSizeAction::showCurrent, Qt::QueuedConnection);
    return box;
}

void DemoFontSizeAction::follow(DemoDocument* document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    if (document)
        connect(document, &QTextEdit::currentCharFormatChanged, this, &DemoFontSizeAction::showCurrent);
    showCurrent();
}

void DemoFontSizeAction::showCurrent()
{
    const QList<QAction*> sizes = sizeCommands();
    const bool enabled = m_document && !sizes.isEmpty() && sizes.first()->isEnabled();
    const QString current = m_document ? QString::number(qRound(m_document->currentPointSize())) : QString();
    for (QWidget* widget : createdWidgets()) {
        auto* box = qobject_cast<QComboBox*>(widget);
        // Not while the user is typing a size into it.
        if (!box || box->hasFocus())
            continue;
        const QSignalBlocker blocker(box);
        box->setEnabled(enabled);
        box->setCurrentIndex(box->findText(current));
        box->setEditText(current);
    }
}

void DemoFontSizeAction::apply(const QString& typed)
{
    const int size = typed.toInt();
    if (!m_document || size < 1 || size > largestSize)
        return;
    QTextCharFormat format;
    format.setFontPointSize(size);
    m_document->mergeFormat(tr("font size"), format);
    m_document->setFocus();
}
