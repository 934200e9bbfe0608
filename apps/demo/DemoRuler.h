#pragma once

#include <QWidget>

class QTextEdit;

/// A centimetre ruler drawn above a text editor's viewport; it follows the
/// zoom, the horizontal scroll and marks the cursor's position.
class DemoRuler : public QWidget
{
    Q_OBJECT

public:
    explicit DemoRuler(QTextEdit* editor);
    /// Pixels per centimetre at 100 %; the ruler multiplies it by \a zoom / 100.
    void setZoom(int zoom);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTextEdit* m_editor;
    int m_zoom = 100;
};
