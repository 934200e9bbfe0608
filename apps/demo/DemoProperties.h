#pragma once

#include <QTableWidget>

class DemoDocument;
class DemoDocumentFollower;

/// The Properties panel: name, location, size and state of the active
/// document, kept up to date as it is edited, saved and switched.
class DemoProperties : public QTableWidget
{
    Q_OBJECT

public:
    explicit DemoProperties(QWidget* parent = nullptr);

    /// Shows the properties of @p document; empty values for null.
    void setDocument(DemoDocument* document);

private:
    enum Row { Name, Location, Words, Characters, Paragraphs, Modified, RowCount };

    void refresh();
    void setValue(Row row, const QString& value);

    DemoDocumentFollower* m_follower;
};
