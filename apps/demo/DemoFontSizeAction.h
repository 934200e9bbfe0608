#pragma once

#include <QPointer>
#include <QWidgetAction>

class DemoCommands;
class DemoDocument;

/// The font size box of the ribbon: its entries run the font size commands,
/// and it is enabled as they are. It shows the size at the cursor, also one
/// the list does not hold (a heading's), and takes a typed size, as word
/// processors do. The ribbon keeps it as "ribbon.fontSize".
class DemoFontSizeAction : public QWidgetAction
{
    Q_OBJECT

public:
    /// The box over the font size commands of \a commands.
    DemoFontSizeAction(DemoCommands* commands, QObject* parent);

    /// The font size commands the box offers, in its order.
    QList<QAction*> sizeCommands() const;

protected:
    QWidget* createWidget(QWidget* parent) override;

private:
    void follow(DemoDocument* document);
    void showCurrent();
    void apply(const QString& typed);

    DemoCommands* m_commands;
    QPointer<DemoDocument> m_document;
};
