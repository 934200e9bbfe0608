#pragma once

#include <QPointer>
#include <QWidgetAction>

class DemoCommands;
class DemoDocument;

/// The font family box of the ribbon and of the formatting tool bar: it shows
/// the family at the cursor and gives the chosen one to the selection (or the
/// word under the cursor). It is the quick form of Format › Font… and is
/// enabled while that command is. The ribbon keeps it as "ribbon.fontFamily".
class DemoFontFamilyAction : public QWidgetAction
{
    Q_OBJECT

public:
    /// A box that follows the document \a commands act on.
    DemoFontFamilyAction(DemoCommands* commands, QObject* parent);

protected:
    QWidget* createWidget(QWidget* parent) override;

private:
    void follow(DemoDocument* document);
    void showCurrent();
    void apply(const QString& family);

    DemoCommands* m_commands;
    QPointer<DemoDocument> m_document;
};
