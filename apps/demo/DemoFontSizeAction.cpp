#include "DemoFontSizeAction.h"

#include "DemoCommands.h"

#include <QAction>
#include <QComboBox>
#include <QSignalBlocker>

DemoFontSizeAction::DemoFontSizeAction(DemoCommands* commands, QObject* parent)
    : QWidgetAction(parent)
    , m_commands(commands)
{
    setObjectName(QStringLiteral("ribbon.fontSize"));
    setText(tr("Font Size"));
    // The registry refreshes the size commands as the cursor moves or the
    // document becomes read-only; the box follows them.
    for (QAction* size : sizeCommands())
        connect(size, &QAction::changed, this, &DemoFontSizeAction::showCurrent);
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
    for (QAction* size : sizeCommands())
        box->addItem(size->text().remove(QStringLiteral(" pt")), size->data());
    DemoCommands* commands = m_commands;
    connect(box, QOverload<int>::of(&QComboBox::activated), box, [commands, box](int index) {
        if (QAction* size = commands->action(box->itemData(index).toInt()))
            size->trigger();
    });
    QMetaObject::invokeMethod(this, &DemoFontSizeAction::showCurrent, Qt::QueuedConnection);
    return box;
}

void DemoFontSizeAction::showCurrent()
{
    const QList<QAction*> sizes = sizeCommands();
    const bool enabled = !sizes.isEmpty() && sizes.first()->isEnabled();
    int checked = -1;
    for (int i = 0; i < sizes.size(); ++i) {
        if (sizes.at(i)->isChecked())
            checked = i;
    }
    for (QWidget* widget : createdWidgets()) {
        if (auto* box = qobject_cast<QComboBox*>(widget)) {
            const QSignalBlocker blocker(box);
            box->setEnabled(enabled);
            box->setCurrentIndex(checked);
        }
    }
}
