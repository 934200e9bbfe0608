#include "DemoInsertCommands.h"

#include "DemoCommands.h"
#include "DemoDocument.h"

#include <tessaro/CommandsRegistry.h>

#include <QDate>
#include <QLocale>
#include <QTextCursor>
#include <QTextList>

namespace {

using C = DemoCommands;
using G = IconPainter;
using T = DemoInsertCommands;

void addInsertCommands(DemoCommands& c)
{
    c.add(C::InsertDate, G::Date, T::tr("&Date"), QKeySequence(T::tr("Alt+Shift+D")), T::tr("Insert today's date"));
    c.add(C::InsertTime, G::Time, T::tr("&Time"), QKeySequence(T::tr("Alt+Shift+T")),
          T::tr("Insert the current time"));
    c.add(C::InsertTable, G::Table, T::tr("T&able"), QKeySequence(),
          T::tr("Insert a table of three rows and three columns"));
    c.add(C::InsertImage, G::Image, T::tr("&Image Placeholder"), QKeySequence(), T::tr("Insert a placeholder picture"));
    c.add(C::InsertHorizontalLine, G::HorizontalLine, T::tr("Horizontal &Line"), QKeySequence(),
          T::tr("Insert a horizontal rule"));
    c.add(C::InsertBulletList, G::BulletList, T::tr("&Bulleted List"), QKeySequence(T::tr("Ctrl+Shift+L")),
          T::tr("Make the paragraph a bulleted list item"));
    c.add(C::InsertNumberedList, G::NumberedList, T::tr("&Numbered List"), QKeySequence(T::tr("Ctrl+Shift+N")),
          T::tr("Make the paragraph a numbered list item"));
    c.add(C::InsertLink, G::Link, T::tr("Lin&k"), QKeySequence(T::tr("Ctrl+K")), T::tr("Turn the selection into a link"));
    const QList<QPair<QString, QChar>> chars = T::symbols();
    for (int i = 0; i < chars.size(); ++i)
        c.add(C::InsertSymbolFirst + i, G::Symbol, QStringLiteral("%1\t%2").arg(chars.at(i).first, chars.at(i).second),
              QKeySequence(), T::tr("Insert %1").arg(chars.at(i).second));
}

void connectLists(DemoCommands& c)
{
    const auto connectList = [&c](int id, bool numbered, QTextListFormat::Style style) {
        c.registry()->ConnectCommand(id, [&c, numbered] {
            if (DemoDocument* doc = c.document())
                doc->insertList(numbered);
        });
        c.registry()->ConnectCommandUI(id, [&c, style](ui::CommandState& state) {
            DemoDocument* doc = c.document();
            const QTextList* list = doc ? doc->textCursor().currentList() : nullptr;
            state.setEnabled(doc && !doc->isReadOnly());
            state.setChecked(list && list->format().style() == style);
        });
    };
    connectList(C::InsertBulletList, false, QTextListFormat::ListDisc);
    connectList(C::InsertNumberedList, true, QTextListFormat::ListDecimal);
}

QString linkTarget(const QString& text)
{
    if (!text.contains(QLatin1Char('.')) || text.contains(QLatin1Char(' ')))
        return QStringLiteral("https://example.org/");
    return text.startsWith(QLatin1String("http")) ? text : QStringLiteral("https://") + text;
}

void connectSymbols(DemoCommands& c)
{
    c.registry()->ConnectCommand(C::InsertSymbolFirst, C::InsertSymbolLast, [&c](int id) {
        DemoDocument* doc = c.document();
        const QChar symbol = T::symbols().value(id - C::InsertSymbolFirst).second;
        if (doc && !symbol.isNull())
            doc->edit(T::tr("insert %1").arg(symbol), [symbol](QTextCursor& cursor) { cursor.insertText(QString(symbol)); });
    });
    c.registry()->ConnectCommandUI(C::InsertSymbolFirst, C::InsertSymbolLast, [&c](int, ui::CommandState& state) {
        DemoDocument* doc = c.document();
        state.setEnabled(doc && !doc->isReadOnly());
    });
}

} // namespace

QList<QPair<QString, QChar>> DemoInsertCommands::symbols()
{
    return {
        {tr("Copyright Sign"), QChar(0x00A9)}, {tr("Registered Sign"), QChar(0x00AE)},
        {tr("Trade Mark Sign"), QChar(0x2122)}, {tr("Euro Sign"), QChar(0x20AC)},
        {tr("Section Sign"), QChar(0x00A7)},   {tr("Degree Sign"), QChar(0x00B0)},
        {tr("Plus-Minus Sign"), QChar(0x00B1)}, {tr("Em Dash"), QChar(0x2014)},
    };
}

void DemoInsertCommands::registerCommands(DemoCommands& c)
{
    addInsertCommands(c);
    const auto editable = [](DemoDocument* doc) { return !doc->isReadOnly(); };
    c.onDocument(C::InsertDate, [](DemoDocument* doc) {
        const QString date = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);
        doc->edit(tr("insert date"), [&](QTextCursor& cursor) { cursor.insertText(date); });
    }, editable);
    c.onDocument(C::InsertTime, [](DemoDocument* doc) {
        const QString time = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
        doc->edit(tr("insert time"), [&](QTextCursor& cursor) { cursor.insertText(time); });
    }, editable);
    c.onDocument(C::InsertTable, [](DemoDocument* doc) { doc->insertTable(3, 3); }, editable);
    c.onDocument(C::InsertImage, [](DemoDocument* doc) { doc->insertImagePlaceholder(); }, editable);
    c.onDocument(C::InsertHorizontalLine, [](DemoDocument* doc) { doc->insertHorizontalLine(); }, editable);
    connectLists(c);
    c.onDocument(C::InsertLink, [](DemoDocument* doc) {
        const QString text = doc->textCursor().selectedText().trimmed();
        const QString url = linkTarget(text);
        doc->insertLink(url, text.isEmpty() ? url : text);
    }, editable);
    connectSymbols(c);
}
