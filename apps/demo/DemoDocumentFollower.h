#pragma once

#include <QObject>
#include <QPointer>

class DemoDocument;
class QTimer;

/// Follows the document a panel describes: changed() comes at once when the
/// document is replaced or its name or modified state changes, and a moment
/// after typing pauses when its text changes (describing it walks the whole
/// text, too slow for every key).
class DemoDocumentFollower : public QObject
{
    Q_OBJECT

public:
    explicit DemoDocumentFollower(QObject* parent = nullptr);

    /// Follows @p document from now on; null follows none.
    void setDocument(DemoDocument* document);
    DemoDocument* document() const;

signals:
    void changed();

private:
    QPointer<DemoDocument> m_document;
    QTimer* m_pause;
};
