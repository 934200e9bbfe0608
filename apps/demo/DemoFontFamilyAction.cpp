#include "DemoFontFamilyAction.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoWindow.h"

#include <QAction>
#include <QFontComboBox>
#include <QSignalBlocker>

DemoFontFamilyAction::DemoFontFamilyAction(DemoCommands* commands, QObject* parent)
    : QWidgetAction(parent)
    , m_commands(commands)
{
    setObjectName(QStringLiteral("ribbon.fontFamily"));
    setText(tr("Font"));
    connect(commands->window(), &DemoWindow::activeDocumentChanged, this, &DemoFontFamilyAction::follow);
    if (QAction* font = commands->action(DemoCommands::FormatFont))
        connect(font, &QAction::changed, this, &DemoFontFamilyAction::showCurrent);
    follow(commands->document());
}

QWidget* DemoFontFamilyAction::createWidget(QWidget* parent)
{
    auto* box = new QFontComboBox(parent);
    box->setToolTip(tr("Font"));
    box->setMaximumWidth(box->fontMetrics().horizontalAdvance(QLatin1Char('x')) * 22);
    connect(box, &QComboBox::textActivated, this, &DemoFontFamilyAction::apply);
    // A box made later (the ribbon relays out, a tool bar shows) starts in step.
    QMetaObject::invokeMethod(this, &DemoFontFamilyAction::showCurrent, Qt::QueuedConnection);
    return box;
}

void DemoFontFamilyAction::follow(DemoDocument* document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    if (document)
        connect(document, &QTextEdit::currentCharFormatChanged, this, &DemoFontFamilyAction::showCurrent);
    showCurrent();
}

void DemoFontFamilyAction::showCurrent()
{
    QAction* font = m_commands->action(DemoCommands::FormatFont);
    const bool enabled = m_document && font && font->isEnabled();
    QFont current;
    if (m_document)
        current = m_document->currentCharFormat().font().resolve(m_document->document()->defaultFont());
    for (QWidget* widget : createdWidgets()) {
        auto* box = qobject_cast<QFontComboBox*>(widget);
        if (!box)
            continue;
        box->setEnabled(enabled);
        // Not while the user is typing a name into it.
        if (m_document && !box->hasFocus()) {
            const QSignalBlocker blocker(box);
            box->setCurrentFont(current);
        }
    }
}

void DemoFontFamilyAction::apply(const QString& family)
{
    if (!m_document || family.isEmpty())
        return;
    QTextCharFormat format;
    format.setFontFamily(family);
    m_document->mergeFormat(tr("font"), format);
    m_document->setFocus();
}
