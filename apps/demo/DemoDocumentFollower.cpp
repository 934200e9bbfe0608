#include "DemoDocumentFollower.h"

#include "DemoDocument.h"

#include <QTimer>

DemoDocumentFollower::DemoDocumentFollower(QObject* parent)
    : QObject(parent)
    , m_pause(new QTimer(this))
{
    m_pause->setSingleShot(true);
    m_pause->setInterval(300);
    connect(m_pause, &QTimer::timeout, this, &DemoDocumentFollower::changed);
}

void DemoDocumentFollower::setDocument(DemoDocument* document)
{
    if (m_document) {
        disconnect(m_document, nullptr, this, nullptr);
        disconnect(m_document, nullptr, m_pause, nullptr);
    }
    m_document = document;
    if (document) {
        connect(document, &QTextEdit::textChanged, m_pause, qOverload<>(&QTimer::start));
        connect(document, &DemoDocument::titleChanged, this, &DemoDocumentFollower::changed);
    }
    m_pause->stop();
    emit changed();
}

DemoDocument* DemoDocumentFollower::document() const
{
    return m_document;
}
