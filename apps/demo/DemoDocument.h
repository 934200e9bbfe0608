#pragma once

#include <QStringList>
#include <QTextCharFormat>
#include <QTextEdit>

#include <functional>

class DemoRuler;

/// A small rich-text editor: one open document of the demo. The demo's
/// commands act on it through this interface; every change they make is one
/// named undo step, so that Undo and Redo can say what they will undo.
class DemoDocument : public QTextEdit
{
    Q_OBJECT

public:
    explicit DemoDocument(QWidget* parent = nullptr);
    ~DemoDocument() override;

    /// The file the document was loaded from or saved to; empty for a new one.
    QString filePath() const { return m_filePath; }
    /// The file name, or "Untitled N" for a document never saved.
    QString title() const;
    /// Names a document that has no file yet.
    void setUntitledTitle(const QString& title);
    bool isModified() const;

    /// Replaces the content with the file's (HTML for .html/.htm, plain text
    /// otherwise) and clears the undo history. False, with \a error set, when
    /// the file cannot be read.
    bool load(const QString& path, QString* error = nullptr);
    /// Replaces the content with \a html as a fresh, unmodified document.
    void setContent(const QString& html);
    /// Writes the content to \a path in the format its suffix names and makes
    /// it the document's file.
    bool saveTo(const QString& path, QString* error = nullptr);
    /// Writes an HTML or plain-text copy without changing the document's file.
    bool exportTo(const QString& path, bool html, QString* error = nullptr) const;

    // Named undo steps.
    bool canUndo() const;
    bool canRedo() const;
    /// What the next undo reverts ("typing", "bold", "insert table"...).
    QString undoLabel() const;
    QString redoLabel() const;
    void undoEdit();
    void redoEdit();
    /// Runs \a change on the text cursor as one undo step called \a label.
    void edit(const QString& label, const std::function<void(QTextCursor&)>& change);

    bool hasSelection() const;
    void cutText();
    void pasteText(bool plain);
    void deleteSelection();

    /// Applies \a format to the selection, or to the word under the cursor.
    void mergeFormat(const QString& label, const QTextCharFormat& format);
    void setParagraphAlignment(Qt::Alignment alignment);
    Qt::Alignment paragraphAlignment() const;
    void changeIndent(int delta);
    /// The point size at the cursor, as at 100 % zoom.
    qreal currentPointSize() const;

    // Inserting.
    void insertTable(int rows, int columns);
    void insertImagePlaceholder();
    void insertHorizontalLine();
    void insertList(bool numbered);
    void insertLink(const QString& url, const QString& text);

    // Line and text operations.
    void duplicateLine();
    void changeCase(bool upper);
    /// Sorts the selected lines (all lines without a selection).
    void sortLines();
    /// Removes trailing blanks from every paragraph; returns how many lines changed.
    int trimTrailingSpaces();

    // Searching.
    bool findText(const QString& text, bool backward);
    bool replaceCurrent(const QString& text, const QString& replacement);
    int replaceAll(const QString& text, const QString& replacement);

    // View.
    int zoom() const { return m_zoom; }
    void setZoom(int percent);
    bool wordWrap() const;
    void setWordWrap(bool wrap);
    bool isRulerVisible() const;
    void setRulerVisible(bool visible);

    int wordCount() const;
    static int countWords(const QString& text);
    int characterCount() const;
    int lineNumber() const;
    int columnNumber() const;

    /// Actions shown by the right-click menu instead of the stock one.
    void setContextActions(const QList<QAction*>& actions) { m_contextActions = actions; }

    static constexpr int minimumZoom = 25;
    static constexpr int maximumZoom = 400;

signals:
    /// The title or the modified mark changed.
    void titleChanged();
    void zoomChanged(int percent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void resetUndoLabels();
    void onUndoCommandAdded();
    void layoutRuler();
    QTextCursor selectionOrWord() const;

    QString m_filePath;
    QString m_untitledName;
    QStringList m_undoLabels;
    int m_undoIndex = 0;
    QString m_pendingLabel;
    int m_zoom = 100;
    qreal m_basePointSize = 11;
    int m_imageCount = 0;
    DemoRuler* m_ruler = nullptr;
    QList<QAction*> m_contextActions;
};
