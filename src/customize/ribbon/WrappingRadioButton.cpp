#include "WrappingRadioButton_p.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionButton>

WrappingRadioButton::WrappingRadioButton(const QString& text, QWidget* parent)
    : QRadioButton(text, parent)
    , m_fullText(text)
{
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QString WrappingRadioButton::fullText() const
{
    return m_fullText;
}

bool WrappingRadioButton::hasHeightForWidth() const
{
    return true;
}

int WrappingRadioButton::heightForWidth(int width) const
{
    return sizeFor(wrapped(width)).height();
}

QSize WrappingRadioButton::minimumSizeHint() const
{
    // As narrow as the longest word allows.
    QString words = m_fullText;
    return sizeFor(words.replace(QLatin1Char(' '), QLatin1Char('\n')));
}

void WrappingRadioButton::resizeEvent(QResizeEvent* event)
{
    QRadioButton::resizeEvent(event);
    const QString text = wrapped(width());
    if (text != this->text()) {
        setText(text);
        updateGeometry();
    }
}

// The label broken greedily at spaces so that every line fits @p width.
QString WrappingRadioButton::wrapped(int width) const
{
    if (sizeFor(m_fullText).width() <= width)
        return m_fullText;
    const QStringList words = m_fullText.split(QLatin1Char(' '));
    QString text;
    QString line;
    for (const QString& word : words) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && sizeFor(longer).width() > width) {
            text += line + QLatin1Char('\n');
            line = word;
        } else {
            line = longer;
        }
    }
    return text + line;
}

// The size QRadioButton asks for with @p text as its label.
QSize WrappingRadioButton::sizeFor(const QString& text) const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = text;
    const QSize textSize =
        style()->itemTextRect(fontMetrics(), QRect(), Qt::TextShowMnemonic, false, text).size();
    return style()->sizeFromContents(QStyle::CT_RadioButton, &option, textSize, this)
        .expandedTo(QApplication::globalStrut());
}
