#include "DemoFontSizeAction.h"

#include "DemoCommands.h"
#include "DemoFormatCommands.h"

#include <QAction>
#include <QComboBox>

DemoFontSizeAction::DemoFontSizeAction(DemoCommands* commands, QObject* parent)
    : QWidgetAction(parent)
    , m_commands(commands)
{
    setObjectName(QStringLiteral("ribbon.fontSize"));
    setText(tr("Font Size"));
}

QWidget* DemoFontSizeAction::createWidget(QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setToolTip(tr("Font size"));
    const QList<int> sizes = DemoFormatCommands::fontSizes();
    for (int size : sizes)
        box->addItem(QString::number(size));
    box->setCurrentIndex(qMax(0, sizes.indexOf(11)));
    DemoCommands* commands = m_commands;
    connect(box, QOverload<int>::of(&QComboBox::activated), box, [commands](int index) {
        if (QAction* size = commands->action(DemoCommands::FormatSizeFirst + index))
            size->trigger();
    });
    return box;
}
