#include "DemoFormatCommands.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QAction>
#include <QFontDialog>
#include <QTextCursor>

#include <algorithm>

namespace {

using C = DemoCommands;
using G = IconPainter;
using T = DemoFormatCommands;

void addFormatCommands(DemoCommands& c)
{
    c.add(C::FormatBold, G::Bold, T::tr("&Bold"), QKeySequence::Bold, T::tr("Make the text bold"));
    c.add(C::FormatItalic, G::Italic, T::tr("&Italic"), QKeySequence::Italic, T::tr("Make the text italic"));
    c.add(C::FormatUnderline, G::Underline, T::tr("&Underline"), QKeySequence::Underline, T::tr("Underline the text"));
    c.add(C::FormatStrikeOut, G::StrikeOut, T::tr("&Strikethrough"), QKeySequence(T::tr("Ctrl+Shift+X")),
          T::tr("Strike the text through"));
    c.add(C::FormatSuperscript, G::Superscript, T::tr("Su&perscript"), QKeySequence(T::tr("Ctrl+Shift+=")),
          T::tr("Raise the text above the line"));
    c.add(C::FormatSubscript, G::Subscript, T::tr("Su&bscript"), QKeySequence(T::tr("Ctrl+=")),
          T::tr("Lower the text below the line"));
    c.add(C::FormatAlignLeft, G::AlignLeft, T::tr("Align &Left"), QKeySequence(T::tr("Ctrl+L")),
          T::tr("Align the paragraph left"));
    c.add(C::FormatAlignCenter, G::AlignCenter, T::tr("&Center"), QKeySequence(T::tr("Ctrl+E")),
          T::tr("Centre the paragraph"));
    c.add(C::FormatAlignRight, G::AlignRight, T::tr("Align &Right"), QKeySequence(T::tr("Ctrl+Shift+R")),
          T::tr("Align the paragraph right"));
    c.add(C::FormatAlignJustify, G::AlignJustify, T::tr("&Justify"), QKeySequence(T::tr("Ctrl+J")),
          T::tr("Justify the paragraph"));
    c.add(C::FormatIndent, G::Indent, T::tr("Increase I&ndent"), QKeySequence(T::tr("Ctrl+]")),
          T::tr("Indent the paragraph"));
    c.add(C::FormatOutdent, G::Outdent, T::tr("Decrease In&dent"), QKeySequence(T::tr("Ctrl+[")),
          T::tr("Outdent the paragraph"));
    c.add(C::FormatGrowFont, G::GrowFont, T::tr("&Grow Font"), QKeySequence(T::tr("Ctrl+Shift+>")),
          T::tr("Make the font larger"));
    c.add(C::FormatShrinkFont, G::ShrinkFont, T::tr("S&hrink Font"), QKeySequence(T::tr("Ctrl+Shift+<")),
          T::tr("Make the font smaller"));
    c.add(C::FormatHighlight, G::Highlight, T::tr("&Highlight"), QKeySequence(T::tr("Ctrl+Alt+H")),
          T::tr("Mark the text with a yellow background"));
    c.add(C::FormatClear, G::ClearFormat, T::tr("C&lear Formatting"), QKeySequence(T::tr("Ctrl+Space")),
          T::tr("Remove character formatting"));
    c.add(C::FormatFont, G::Font, T::tr("&Font..."), QKeySequence(T::tr("Ctrl+Shift+F")),
          T::tr("Choose the font, its size and style"));
    const QList<int> sizes = T::fontSizes();
    for (int i = 0; i < sizes.size(); ++i)
        c.add(C::FormatSizeFirst + i, G::FontSize, T::tr("%1 pt").arg(sizes.at(i)), QKeySequence(),
              T::tr("Set the font size to %1 points").arg(sizes.at(i)));
    const QList<QPair<QString, QColor>> colors = T::textColors();
    for (int i = 0; i < colors.size(); ++i) {
        QAction* action = c.registry()->addCommand(IconPainter::icon(G::TextColor, colors.at(i).second),
                                                    colors.at(i).first, C::FormatColorFirst + i);
        action->setStatusTip(T::tr("Colour the text"));
    }
}

// A character format the command switches on and off; checked follows the
// format under the cursor.
void connectCharacterFormat(DemoCommands& c, int id, const QString& label,
                            const std::function<bool(const QTextCharFormat&)>& isOn,
                            const std::function<void(QTextCharFormat&, bool)>& set)
{
    c.registry()->ConnectCommand(id, [&c, label, isOn, set] {
        DemoDocument* doc = c.document();
        if (!doc)
            return;
        QTextCharFormat format;
        set(format, !isOn(doc->currentCharFormat()));
        doc->mergeFormat(label, format);
    });
    c.registry()->ConnectCommandUI(id, [&c, isOn](ui::CommandState& state) {
        DemoDocument* doc = c.document();
        state.setEnabled(doc && !doc->isReadOnly());
        state.setChecked(doc && isOn(doc->currentCharFormat()));
    });
}

void connectCharacterFormats(DemoCommands& c)
{
    connectCharacterFormat(
        c, C::FormatBold, T::tr("bold"), [](const QTextCharFormat& f) { return f.fontWeight() >= QFont::Bold; },
        [](QTextCharFormat& f, bool on) { f.setFontWeight(on ? QFont::Bold : QFont::Normal); });
    connectCharacterFormat(
        c, C::FormatItalic, T::tr("italic"), [](const QTextCharFormat& f) { return f.fontItalic(); },
        [](QTextCharFormat& f, bool on) { f.setFontItalic(on); });
    connectCharacterFormat(
        c, C::FormatUnderline, T::tr("underline"), [](const QTextCharFormat& f) { return f.fontUnderline(); },
        [](QTextCharFormat& f, bool on) { f.setFontUnderline(on); });
    connectCharacterFormat(
        c, C::FormatStrikeOut, T::tr("strikethrough"), [](const QTextCharFormat& f) { return f.fontStrikeOut(); },
        [](QTextCharFormat& f, bool on) { f.setFontStrikeOut(on); });
    const auto verticalAlignment = [&c](int id, const QString& label, QTextCharFormat::VerticalAlignment alignment) {
        connectCharacterFormat(
            c, id, label, [alignment](const QTextCharFormat& f) { return f.verticalAlignment() == alignment; },
            [alignment](QTextCharFormat& f, bool on) {
                f.setVerticalAlignment(on ? alignment : QTextCharFormat::AlignNormal);
            });
    };
    verticalAlignment(C::FormatSuperscript, T::tr("superscript"), QTextCharFormat::AlignSuperScript);
    verticalAlignment(C::FormatSubscript, T::tr("subscript"), QTextCharFormat::AlignSubScript);
    connectCharacterFormat(
        c, C::FormatHighlight, T::tr("highlight"),
        [](const QTextCharFormat& f) { return f.background().style() != Qt::NoBrush; },
        [](QTextCharFormat& f, bool on) {
            if (on)
                f.setBackground(QColor(0xff, 0xee, 0x58));
            else
                f.setBackground(Qt::NoBrush);
        });
}

void connectParagraphFormats(DemoCommands& c)
{
    const auto alignCommand = [&c](int id, Qt::Alignment alignment) {
        c.onDocumentChecked(id, [alignment](DemoDocument* doc) { doc->setParagraphAlignment(alignment); },
                            [alignment](DemoDocument* doc) { return doc->paragraphAlignment() == alignment; });
    };
    alignCommand(C::FormatAlignLeft, Qt::AlignLeft);
    alignCommand(C::FormatAlignCenter, Qt::AlignHCenter);
    alignCommand(C::FormatAlignRight, Qt::AlignRight);
    alignCommand(C::FormatAlignJustify, Qt::AlignJustify);
    c.onDocument(C::FormatIndent, [](DemoDocument* doc) { doc->changeIndent(1); },
                 [](DemoDocument* doc) { return !doc->isReadOnly(); });
    c.onDocument(C::FormatOutdent, [](DemoDocument* doc) { doc->changeIndent(-1); },
                 [](DemoDocument* doc) { return !doc->isReadOnly() && doc->textCursor().blockFormat().indent() > 0; });
}

// Grow and shrink step to the next listed size.
void resizeFont(DemoDocument* doc, int direction)
{
    const QList<int> sizes = T::fontSizes();
    const qreal current = doc->currentPointSize();
    qreal next = current;
    if (direction > 0) {
        auto it = std::upper_bound(sizes.begin(), sizes.end(), current);
        next = it == sizes.end() ? current : *it;
    } else {
        auto it = std::lower_bound(sizes.begin(), sizes.end(), current);
        next = it == sizes.begin() ? current : *(it - 1);
    }
    QTextCharFormat format;
    format.setFontPointSize(next);
    doc->mergeFormat(direction > 0 ? T::tr("grow font") : T::tr("shrink font"), format);
}

void connectFontSizes(DemoCommands& c)
{
    c.onDocument(C::FormatGrowFont, [](DemoDocument* doc) { resizeFont(doc, 1); },
                 [](DemoDocument* doc) { return !doc->isReadOnly() && doc->currentPointSize() < T::fontSizes().last(); });
    c.onDocument(C::FormatShrinkFont, [](DemoDocument* doc) { resizeFont(doc, -1); }, [](DemoDocument* doc) {
        return !doc->isReadOnly() && doc->currentPointSize() > T::fontSizes().first();
    });
    c.registry()->ConnectCommand(C::FormatSizeFirst, C::FormatSizeLast, [&c](int id) {
        if (DemoDocument* doc = c.document()) {
            QTextCharFormat format;
            format.setFontPointSize(T::fontSizes().value(id - C::FormatSizeFirst, 11));
            doc->mergeFormat(T::tr("font size"), format);
        }
    });
    c.registry()->ConnectCommandUI(C::FormatSizeFirst, C::FormatSizeLast, [&c](int id, ui::CommandState& state) {
        DemoDocument* doc = c.document();
        state.setEnabled(doc && !doc->isReadOnly());
        state.setChecked(doc && qFuzzyCompare(doc->currentPointSize(), qreal(T::fontSizes().value(id - C::FormatSizeFirst))));
    });
}

// The font of the selection (or of the word under the cursor) as the font
// window shows it: what the text sets, over the document's own font.
void chooseFont(DemoWindow* window, DemoDocument* doc)
{
    const QFont current = doc->currentCharFormat().font().resolve(doc->document()->defaultFont());
    bool chosen = false;
    const QFont font = QFontDialog::getFont(&chosen, current, window, T::tr("Font"));
    if (!chosen)
        return;
    QTextCharFormat format;
    format.setFont(font);
    doc->mergeFormat(T::tr("font"), format);
}

void connectTextColors(DemoCommands& c)
{
    c.registry()->ConnectCommand(C::FormatColorFirst, C::FormatColorLast, [&c](int id) {
        if (DemoDocument* doc = c.document()) {
            QTextCharFormat format;
            if (id == C::FormatColorFirst)
                format.setForeground(doc->palette().text());
            else
                format.setForeground(T::textColors().value(id - C::FormatColorFirst).second);
            doc->mergeFormat(T::tr("text colour"), format);
        }
    });
    // Applying a colour is not a state: no entry (and so no Text Color button) shows pressed.
    c.registry()->ConnectCommandUI(C::FormatColorFirst, C::FormatColorLast, [&c](int, ui::CommandState& state) {
        DemoDocument* doc = c.document();
        state.setEnabled(doc && !doc->isReadOnly());
    });
}

} // namespace

QList<int> DemoFormatCommands::fontSizes()
{
    return {8, 9, 10, 11, 12, 14, 16, 18, 24, 36};
}

QList<QPair<QString, QColor>> DemoFormatCommands::textColors()
{
    return {
        {tr("&Automatic"), QColor(Qt::black)},     {tr("&Red"), QColor(0xc6, 0x28, 0x28)},
        {tr("&Green"), QColor(0x2e, 0x7d, 0x32)},  {tr("&Blue"), QColor(0x15, 0x65, 0xc0)},
        {tr("&Orange"), QColor(0xef, 0x6c, 0x00)}, {tr("&Purple"), QColor(0x6a, 0x1b, 0x9a)},
    };
}

void DemoFormatCommands::registerCommands(DemoCommands& c)
{
    addFormatCommands(c);
    connectCharacterFormats(c);
    connectParagraphFormats(c);
    connectFontSizes(c);
    c.onDocument(C::FormatClear, [](DemoDocument* doc) {
        doc->edit(tr("clear formatting"), [](QTextCursor& cursor) {
            if (!cursor.hasSelection())
                cursor.select(QTextCursor::WordUnderCursor);
            cursor.setCharFormat(QTextCharFormat());
        });
        doc->setCurrentCharFormat(QTextCharFormat());
    }, [](DemoDocument* doc) { return !doc->isReadOnly(); });
    c.onDocument(C::FormatFont, [window = c.window()](DemoDocument* doc) { chooseFont(window, doc); },
                 [](DemoDocument* doc) { return !doc->isReadOnly(); });
    connectTextColors(c);
}
