#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

/// The find and replace strip under the documents. Its Next and Previous
/// buttons show the window's Find Next / Find Previous commands; the replace
/// row appears only in replace mode.
class DemoFindBar : public QWidget
{
    Q_OBJECT

public:
    explicit DemoFindBar(QWidget* parent = nullptr);

    QString findText() const;
    void setFindText(const QString& text);
    QString replaceText() const;

    /// Shows the bar with the find field focused and its text selected.
    void showFind();
    /// Shows the bar with the replace row too.
    void showReplace();
    bool isReplaceVisible() const;

    /// Puts the commands' actions on the Next / Previous buttons.
    void setNavigationActions(QAction* next, QAction* previous);
    /// A short result note ("Not found", "3 replaced").
    void setMessage(const QString& text);

signals:
    void findNextRequested();
    void replaceRequested();
    void replaceAllRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* m_find;
    QLineEdit* m_replace;
    QToolButton* m_next;
    QToolButton* m_previous;
    QLabel* m_replaceLabel;
    QPushButton* m_replaceButton;
    QPushButton* m_replaceAllButton;
    QLabel* m_message;
};
