#include "DemoFindBar.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

DemoFindBar::DemoFindBar(QWidget* parent)
    : QWidget(parent)
    , m_find(new QLineEdit(this))
    , m_replace(new QLineEdit(this))
    , m_next(new QToolButton(this))
    , m_previous(new QToolButton(this))
    , m_replaceLabel(new QLabel(tr("Replace with:"), this))
    , m_replaceButton(new QPushButton(tr("&Replace"), this))
    , m_replaceAllButton(new QPushButton(tr("Replace &All"), this))
    , m_message(new QLabel(this))
{
    setObjectName(QStringLiteral("demoFindBar"));
    m_find->setPlaceholderText(tr("Find in document"));
    m_find->setClearButtonEnabled(true);
    m_replace->setPlaceholderText(tr("Replacement text"));
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("\u2715"));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close the find bar (Esc)"));
    m_next->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_previous->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_next->setAutoRaise(true);
    m_previous->setAutoRaise(true);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->setHorizontalSpacing(6);
    layout->setVerticalSpacing(3);
    auto* findLabel = new QLabel(tr("Find:"), this);
    findLabel->setBuddy(m_find);
    m_replaceLabel->setBuddy(m_replace);
    layout->addWidget(findLabel, 0, 0);
    layout->addWidget(m_find, 0, 1);
    layout->addWidget(m_next, 0, 2);
    layout->addWidget(m_previous, 0, 3);
    layout->addWidget(m_message, 0, 4);
    layout->addWidget(close, 0, 6);
    layout->addWidget(m_replaceLabel, 1, 0);
    layout->addWidget(m_replace, 1, 1);
    layout->addWidget(m_replaceButton, 1, 2);
    layout->addWidget(m_replaceAllButton, 1, 3);
    layout->setColumnStretch(1, 2);
    layout->setColumnStretch(5, 3);

    connect(m_find, &QLineEdit::returnPressed, this, &DemoFindBar::findNextRequested);
    connect(m_find, &QLineEdit::textEdited, m_message, &QLabel::clear);
    connect(m_replace, &QLineEdit::returnPressed, this, &DemoFindBar::replaceRequested);
    connect(m_replaceButton, &QPushButton::clicked, this, &DemoFindBar::replaceRequested);
    connect(m_replaceAllButton, &QPushButton::clicked, this, &DemoFindBar::replaceAllRequested);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);

    for (QWidget* w : {static_cast<QWidget*>(m_replaceLabel), static_cast<QWidget*>(m_replace),
                       static_cast<QWidget*>(m_replaceButton), static_cast<QWidget*>(m_replaceAllButton)})
        w->hide();
    hide();
}

QString DemoFindBar::findText() const
{
    return m_find->text();
}

void DemoFindBar::setFindText(const QString& text)
{
    m_find->setText(text);
}

QString DemoFindBar::replaceText() const
{
    return m_replace->text();
}

void DemoFindBar::showFind()
{
    for (QWidget* w : {static_cast<QWidget*>(m_replaceLabel), static_cast<QWidget*>(m_replace),
                       static_cast<QWidget*>(m_replaceButton), static_cast<QWidget*>(m_replaceAllButton)})
        w->hide();
    show();
    m_find->setFocus();
    m_find->selectAll();
}

void DemoFindBar::showReplace()
{
    show();
    for (QWidget* w : {static_cast<QWidget*>(m_replaceLabel), static_cast<QWidget*>(m_replace),
                       static_cast<QWidget*>(m_replaceButton), static_cast<QWidget*>(m_replaceAllButton)})
        w->show();
    m_find->setFocus();
    m_find->selectAll();
}

bool DemoFindBar::isReplaceVisible() const
{
    return !m_replace->isHidden();
}

void DemoFindBar::setNavigationActions(QAction* next, QAction* previous)
{
    m_next->setDefaultAction(next);
    m_previous->setDefaultAction(previous);
}

void DemoFindBar::setMessage(const QString& text)
{
    m_message->setText(text);
}

void DemoFindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    QWidget::keyPressEvent(event);
}
