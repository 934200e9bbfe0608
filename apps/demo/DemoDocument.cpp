#include "DemoDocument.h"

#include "DemoRuler.h"
#include "IconPainter.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextList>
#include <QTextStream>
#include <QTextTable>
#include <QUrl>

namespace {

int nextUntitledNumber()
{
    static int counter = 0;
    return ++counter;
}

bool isHtmlPath(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("html") || suffix == QLatin1String("htm");
}

} // namespace

DemoDocument::DemoDocument(QWidget* parent)
    : QTextEdit(parent)
    , m_untitledName(tr("Untitled %1").arg(nextUntitledNumber()))
{
    setAcceptRichText(true);
    setTabChangesFocus(false);
    document()->setDocumentMargin(24);
    QFont base = font();
    base.setPointSizeF(m_basePointSize);
    setFont(base);

    m_ruler = new DemoRuler(this);
    m_ruler->hide();

    // The margin is a frame format change, which the document records as an edit.
    document()->clearUndoRedoStacks();
    document()->setModified(false);

    connect(document(), &QTextDocument::modificationChanged, this, &DemoDocument::titleChanged);
    connect(document(), &QTextDocument::undoCommandAdded, this, &DemoDocument::onUndoCommandAdded);
}

DemoDocument::~DemoDocument() = default;

QString DemoDocument::title() const
{
    return m_filePath.isEmpty() ? m_untitledName : QFileInfo(m_filePath).fileName();
}

void DemoDocument::setUntitledTitle(const QString& title)
{
    m_untitledName = title;
    emit titleChanged();
}

bool DemoDocument::isModified() const
{
    return document()->isModified();
}

bool DemoDocument::load(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    const QString text = QString::fromUtf8(file.readAll());
    if (isHtmlPath(path) || Qt::mightBeRichText(text))
        setHtml(text);
    else
        setPlainText(text);
    document()->clearUndoRedoStacks();
    resetUndoLabels();
    document()->setModified(false);
    m_filePath = QFileInfo(path).absoluteFilePath();
    emit titleChanged();
    return true;
}

void DemoDocument::setContent(const QString& html)
{
    setHtml(html);
    document()->clearUndoRedoStacks();
    resetUndoLabels();
    document()->setModified(false);
}

bool DemoDocument::exportTo(const QString& path, bool html, QString* error) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    file.write((html ? toHtml() : toPlainText()).toUtf8());
    if (!file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

bool DemoDocument::saveTo(const QString& path, QString* error)
{
    if (!exportTo(path, isHtmlPath(path), error))
        return false;
    m_filePath = QFileInfo(path).absoluteFilePath();
    document()->setModified(false);
    emit titleChanged();
    return true;
}

bool DemoDocument::canUndo() const
{
    return !isReadOnly() && document()->isUndoAvailable();
}

bool DemoDocument::canRedo() const
{
    return !isReadOnly() && document()->isRedoAvailable();
}

QString DemoDocument::undoLabel() const
{
    return m_undoIndex > 0 && m_undoIndex <= m_undoLabels.size() ? m_undoLabels.at(m_undoIndex - 1) : QString();
}

QString DemoDocument::redoLabel() const
{
    return m_undoIndex < m_undoLabels.size() ? m_undoLabels.at(m_undoIndex) : QString();
}

void DemoDocument::undoEdit()
{
    if (!canUndo())
        return;
    undo();
    if (m_undoIndex > 0)
        --m_undoIndex;
}

void DemoDocument::redoEdit()
{
    if (!canRedo())
        return;
    redo();
    if (m_undoIndex < m_undoLabels.size())
        ++m_undoIndex;
}

void DemoDocument::edit(const QString& label, const std::function<void(QTextCursor&)>& change)
{
    if (isReadOnly())
        return;
    m_pendingLabel = label;
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    change(cursor);
    cursor.endEditBlock();
    setTextCursor(cursor);
    m_pendingLabel.clear();
}

void DemoDocument::resetUndoLabels()
{
    m_undoLabels.clear();
    m_undoIndex = 0;
}

void DemoDocument::onUndoCommandAdded()
{
    // A new step drops whatever could have been redone.
    while (m_undoLabels.size() > m_undoIndex)
        m_undoLabels.removeLast();
    m_undoLabels.append(m_pendingLabel.isEmpty() ? tr("typing") : m_pendingLabel);
    m_undoIndex = m_undoLabels.size();
}

bool DemoDocument::hasSelection() const
{
    return textCursor().hasSelection();
}

void DemoDocument::cutText()
{
    if (!hasSelection() || isReadOnly())
        return;
    m_pendingLabel = tr("cut");
    cut();
    m_pendingLabel.clear();
}

void DemoDocument::pasteText(bool plain)
{
    if (isReadOnly())
        return;
    const QMimeData* data = QApplication::clipboard()->mimeData();
    if (!data)
        return;
    if (plain) {
        const QString text = data->text();
        edit(tr("paste"), [&](QTextCursor& cursor) { cursor.insertText(text); });
    } else {
        m_pendingLabel = tr("paste");
        paste();
        m_pendingLabel.clear();
    }
}

void DemoDocument::deleteSelection()
{
    edit(tr("delete"), [](QTextCursor& cursor) {
        if (cursor.hasSelection())
            cursor.removeSelectedText();
        else
            cursor.deleteChar();
    });
}

QTextCursor DemoDocument::selectionOrWord() const
{
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        cursor.select(QTextCursor::WordUnderCursor);
    return cursor;
}

void DemoDocument::mergeFormat(const QString& label, const QTextCharFormat& format)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = selectionOrWord();
    if (!cursor.hasSelection()) {
        // Nothing to format yet: the format applies to what is typed next.
        mergeCurrentCharFormat(format);
        return;
    }
    m_pendingLabel = label;
    cursor.beginEditBlock();
    cursor.mergeCharFormat(format);
    cursor.endEditBlock();
    m_pendingLabel.clear();
}

void DemoDocument::setParagraphAlignment(Qt::Alignment alignment)
{
    edit(tr("align"), [alignment](QTextCursor& cursor) {
        QTextBlockFormat format;
        format.setAlignment(alignment);
        cursor.mergeBlockFormat(format);
    });
}

Qt::Alignment DemoDocument::paragraphAlignment() const
{
    const Qt::Alignment alignment = textCursor().blockFormat().alignment() & Qt::AlignHorizontal_Mask;
    // Paragraphs without an explicit alignment follow the text direction.
    if (alignment == Qt::AlignLeading || alignment == Qt::AlignAbsolute || alignment == 0)
        return Qt::AlignLeft;
    return alignment;
}

void DemoDocument::changeIndent(int delta)
{
    edit(delta > 0 ? tr("indent") : tr("outdent"), [delta](QTextCursor& cursor) {
        QTextBlockFormat format = cursor.blockFormat();
        format.setIndent(qMax(0, format.indent() + delta));
        cursor.setBlockFormat(format);
    });
}

qreal DemoDocument::currentPointSize() const
{
    const QTextCharFormat format = currentCharFormat();
    if (format.hasProperty(QTextFormat::FontPointSize))
        return format.fontPointSize();
    // A heading scales the document's font, which the zoom has scaled too.
    const qreal zoomed = document()->defaultFont().pointSizeF();
    const qreal shown = format.font().pointSizeF();
    if (zoomed <= 0 || shown <= 0)
        return m_basePointSize;
    return shown * m_basePointSize / zoomed;
}

void DemoDocument::insertTable(int rows, int columns)
{
    edit(tr("insert table"), [rows, columns](QTextCursor& cursor) {
        QTextTableFormat format;
        format.setCellPadding(4);
        format.setCellSpacing(0);
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QColor(0x9a, 0xa5, 0xb4));
        format.setWidth(QTextLength(QTextLength::PercentageLength, 60));
        QTextTable* table = cursor.insertTable(rows, columns, format);
        QTextCharFormat header;
        header.setFontWeight(QFont::Bold);
        for (int column = 0; column < columns; ++column)
            table->cellAt(0, column).firstCursorPosition().insertText(tr("Column %1").arg(column + 1), header);
    });
}

void DemoDocument::insertImagePlaceholder()
{
    QImage image(200, 120, QImage::Format_ARGB32);
    image.fill(QColor(0xee, 0xf3, 0xfa));
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(QColor(0x9a, 0xa5, 0xb4), 1, Qt::DashLine));
        p.drawRect(QRectF(0.5, 0.5, 199, 119));
        p.drawImage(68, 28, IconPainter::image(IconPainter::Image, 64));
    }
    const QUrl url(QStringLiteral("demo-image://%1").arg(++m_imageCount));
    document()->addResource(QTextDocument::ImageResource, url, image);
    edit(tr("insert image"), [&](QTextCursor& cursor) {
        QTextImageFormat format;
        format.setName(url.toString());
        format.setWidth(image.width());
        format.setHeight(image.height());
        cursor.insertImage(format);
    });
}

void DemoDocument::insertHorizontalLine()
{
    edit(tr("insert line"), [](QTextCursor& cursor) {
        cursor.insertBlock();
        cursor.insertHtml(QStringLiteral("<hr/>"));
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    });
}

void DemoDocument::insertList(bool numbered)
{
    edit(numbered ? tr("numbered list") : tr("bulleted list"), [numbered](QTextCursor& cursor) {
        QTextListFormat format;
        format.setStyle(numbered ? QTextListFormat::ListDecimal : QTextListFormat::ListDisc);
        if (QTextList* list = cursor.currentList()) {
            // Toggling off: take the paragraph out of its list.
            if (list->format().style() == format.style()) {
                list->remove(cursor.block());
                QTextBlockFormat block = cursor.blockFormat();
                block.setIndent(0);
                cursor.setBlockFormat(block);
                return;
            }
        }
        cursor.createList(format);
    });
}

void DemoDocument::insertLink(const QString& url, const QString& text)
{
    edit(tr("insert link"), [&](QTextCursor& cursor) {
        QTextCharFormat link;
        link.setAnchor(true);
        link.setAnchorHref(url);
        link.setForeground(QColor(0x2f, 0x6f, 0xd0));
        link.setFontUnderline(true);
        cursor.insertText(text, link);
        cursor.insertText(QStringLiteral(" "), QTextCharFormat());
    });
}

void DemoDocument::duplicateLine()
{
    edit(tr("duplicate line"), [](QTextCursor& cursor) {
        const QTextBlock block = cursor.block();
        QTextCursor source(block);
        source.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        const QTextDocumentFragment fragment = source.selection();
        QTextCursor target(block);
        target.movePosition(QTextCursor::EndOfBlock);
        target.insertBlock(block.blockFormat(), block.charFormat());
        target.insertFragment(fragment);
        cursor = target;
    });
}

void DemoDocument::changeCase(bool upper)
{
    edit(upper ? tr("uppercase") : tr("lowercase"), [upper](QTextCursor& cursor) {
        if (!cursor.hasSelection())
            cursor.select(QTextCursor::WordUnderCursor);
        if (!cursor.hasSelection())
            return;
        const int start = cursor.selectionStart();
        const QString text = cursor.selectedText();
        const QTextCharFormat format = cursor.charFormat();
        cursor.insertText(upper ? text.toUpper() : text.toLower(), format);
        cursor.setPosition(start);
        cursor.setPosition(start + text.size(), QTextCursor::KeepAnchor);
    });
}

void DemoDocument::sortLines()
{
    edit(tr("sort lines"), [](QTextCursor& cursor) {
        QTextCursor range = cursor;
        if (!range.hasSelection())
            range.select(QTextCursor::Document);
        const int start = range.selectionStart();
        const int end = range.selectionEnd();
        range.setPosition(start);
        range.movePosition(QTextCursor::StartOfBlock);
        range.setPosition(end, QTextCursor::KeepAnchor);
        range.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        QStringList lines = range.selectedText().split(QChar::ParagraphSeparator);
        std::sort(lines.begin(), lines.end(),
                  [](const QString& a, const QString& b) { return a.localeAwareCompare(b) < 0; });
        range.insertText(lines.join(QChar::ParagraphSeparator));
    });
}

int DemoDocument::trimTrailingSpaces()
{
    int changed = 0;
    edit(tr("trim spaces"), [&](QTextCursor&) {
        static const QRegularExpression trailing(QStringLiteral("[ \\t]+$"));
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            const QString text = block.text();
            const QRegularExpressionMatch match = trailing.match(text);
            if (!match.hasMatch())
                continue;
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + match.capturedStart());
            cursor.setPosition(block.position() + text.size(), QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
            ++changed;
        }
    });
    return changed;
}

bool DemoDocument::findText(const QString& text, bool backward)
{
    if (text.isEmpty())
        return false;
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find(text, flags))
        return true;
    // Wrap around once.
    QTextCursor cursor = textCursor();
    const QTextCursor saved = cursor;
    cursor.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    setTextCursor(cursor);
    if (find(text, flags))
        return true;
    setTextCursor(saved);
    return false;
}

bool DemoDocument::replaceCurrent(const QString& text, const QString& replacement)
{
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection() && cursor.selectedText().compare(text, Qt::CaseInsensitive) == 0) {
        edit(tr("replace"), [&](QTextCursor& c) { c.insertText(replacement); });
    }
    return findText(text, false);
}

int DemoDocument::replaceAll(const QString& text, const QString& replacement)
{
    if (text.isEmpty())
        return 0;
    int count = 0;
    edit(tr("replace all"), [&](QTextCursor&) {
        QTextCursor found(document());
        while (!(found = document()->find(text, found)).isNull()) {
            found.insertText(replacement);
            ++count;
        }
    });
    return count;
}

void DemoDocument::setZoom(int percent)
{
    percent = qBound(minimumZoom, percent, maximumZoom);
    if (percent == m_zoom)
        return;
    m_zoom = percent;
    QFont zoomed = font();
    zoomed.setPointSizeF(m_basePointSize * percent / 100.0);
    setFont(zoomed);
    m_ruler->setZoom(percent);
    emit zoomChanged(percent);
}

bool DemoDocument::wordWrap() const
{
    return lineWrapMode() != QTextEdit::NoWrap;
}

void DemoDocument::setWordWrap(bool wrap)
{
    setLineWrapMode(wrap ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
}

bool DemoDocument::isRulerVisible() const
{
    return !m_ruler->isHidden();
}

void DemoDocument::setRulerVisible(bool visible)
{
    m_ruler->setVisible(visible);
    setViewportMargins(0, visible ? m_ruler->sizeHint().height() : 0, 0, 0);
    layoutRuler();
}

void DemoDocument::layoutRuler()
{
    const QRect view = viewport()->geometry();
    m_ruler->setGeometry(view.x(), view.y() - m_ruler->sizeHint().height(), view.width(),
                         m_ruler->sizeHint().height());
}

int DemoDocument::wordCount() const
{
    return countWords(toPlainText());
}

int DemoDocument::countWords(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("[\\w'-]+"), QRegularExpression::UseUnicodePropertiesOption);
    int count = 0;
    QRegularExpressionMatchIterator it = word.globalMatch(text);
    while (it.hasNext()) {
        it.next();
        ++count;
    }
    return count;
}

int DemoDocument::characterCount() const
{
    return document()->characterCount() - 1;
}

int DemoDocument::lineNumber() const
{
    return textCursor().blockNumber() + 1;
}

int DemoDocument::columnNumber() const
{
    return textCursor().positionInBlock() + 1;
}

void DemoDocument::keyPressEvent(QKeyEvent* event)
{
    // The editing keys go through the named steps so that Undo can say what it undoes.
    if (event == QKeySequence::Undo)
        undoEdit();
    else if (event == QKeySequence::Redo)
        redoEdit();
    else if (event == QKeySequence::Cut)
        cutText();
    else if (event == QKeySequence::Paste)
        pasteText(false);
    else
        QTextEdit::keyPressEvent(event);
}

void DemoDocument::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_contextActions.isEmpty()) {
        QTextEdit::contextMenuEvent(event);
        return;
    }
    QMenu menu(this);
    for (QAction* action : qAsConst(m_contextActions)) {
        if (action)
            menu.addAction(action);
        else
            menu.addSeparator();
    }
    menu.exec(event->globalPos());
}

void DemoDocument::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    layoutRuler();
}

void DemoDocument::scrollContentsBy(int dx, int dy)
{
    QTextEdit::scrollContentsBy(dx, dy);
    if (dx)
        m_ruler->update();
}
