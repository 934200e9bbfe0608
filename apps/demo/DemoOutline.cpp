#include "DemoOutline.h"

#include "DemoDocument.h"
#include "DemoDocumentFollower.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>

namespace {

const int PositionRole = Qt::UserRole;
const int LevelRole = Qt::UserRole + 1;

} // namespace

DemoOutline::DemoOutline(QWidget* parent)
    : QTreeWidget(parent)
    , m_follower(new DemoDocumentFollower(this))
{
    setObjectName(QStringLiteral("outline"));
    setHeaderHidden(true);
    connect(m_follower, &DemoDocumentFollower::changed, this, &DemoOutline::refresh);
    connect(this, &QTreeWidget::itemClicked, this, &DemoOutline::goToHeading);
    connect(this, &QTreeWidget::itemActivated, this, &DemoOutline::goToHeading);
}

void DemoOutline::setDocument(DemoDocument* document)
{
    m_follower->setDocument(document);
}

void DemoOutline::refresh()
{
    clear();
    DemoDocument* doc = m_follower->document();
    if (!doc)
        return;
    // The nearest heading of a higher level is each heading's parent.
    QVector<QTreeWidgetItem*> openLevels;
    for (QTextBlock block = doc->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        const QString text = block.text().simplified();
        if (level <= 0 || text.isEmpty())
            continue;
        while (!openLevels.isEmpty() && openLevels.last()->data(0, LevelRole).toInt() >= level)
            openLevels.removeLast();
        auto* item = openLevels.isEmpty() ? new QTreeWidgetItem(this) : new QTreeWidgetItem(openLevels.last());
        item->setText(0, text);
        item->setData(0, PositionRole, block.position());
        item->setData(0, LevelRole, level);
        openLevels.append(item);
    }
    expandAll();
    if (topLevelItemCount() == 0) {
        auto* none = new QTreeWidgetItem(this, {tr("No headings")});
        none->setFlags(Qt::NoItemFlags);
    }
}

void DemoOutline::goToHeading(QTreeWidgetItem* item)
{
    DemoDocument* doc = m_follower->document();
    if (!doc || !item || !item->data(0, PositionRole).isValid())
        return;
    const QTextBlock block = doc->document()->findBlock(item->data(0, PositionRole).toInt());
    if (!block.isValid())
        return;
    doc->setTextCursor(QTextCursor(block));
    // The heading at the top of the view, its section below it, as far as
    // the text goes.
    const QRectF area = doc->document()->documentLayout()->blockBoundingRect(block);
    doc->verticalScrollBar()->setValue(qRound(area.top()));
    doc->ensureCursorVisible();
    doc->setFocus(Qt::OtherFocusReason);
}
