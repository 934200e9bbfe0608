#pragma once

#include <QTreeWidget>

class DemoDocument;
class DemoDocumentFollower;

/// The Outline panel: the headings of the active document as a tree, by
/// their levels. A click on a heading puts the cursor there. It follows the
/// document as it is edited, a moment after typing pauses.
class DemoOutline : public QTreeWidget
{
    Q_OBJECT

public:
    explicit DemoOutline(QWidget* parent = nullptr);

    /// Shows the headings of @p document; none for null.
    void setDocument(DemoDocument* document);

private:
    void refresh();
    void goToHeading(QTreeWidgetItem* item);

    DemoDocumentFollower* m_follower;
};
