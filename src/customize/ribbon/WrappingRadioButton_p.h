#pragma once

#include <QRadioButton>

/// A radio button whose label breaks into lines at spaces when the button is
/// narrower than the label: the parameters boxes of the editors are 200
/// pixels wide, too narrow for some labels in wide fonts. text() holds the
/// label as shown, with its line breaks; fullText() the label as given.
class WrappingRadioButton : public QRadioButton
{
public:
    explicit WrappingRadioButton(const QString& text, QWidget* parent = nullptr);

    /// The label without line breaks.
    QString fullText() const;

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QString wrapped(int width) const;
    QSize sizeFor(const QString& text) const;

    QString m_fullText;
};
