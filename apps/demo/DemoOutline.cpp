#include "DemoOutline.h"

#include "DemoDocument.h"

#include <QTextBlock>
#include <QTimer>

namespace {

const int PositionRole = Qt::UserRole;
const int LevelRole = Qt::UserRole + 1;

} // namespace

DemoOutline::DemoOutline(QWidget* parent)
    : QTreeWidget(parent)
    , m_refreshTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("outline"));
    setHeaderHidden(true);
    // Reading every block's format on each key would slow typing down.
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(300);
    connect(m_refreshTimer, &QTimer::timeout, this, &DemoOutline::refresh);
    connect(this, &QTreeWidget::itemClicked, this, &DemoOutline::goToHeading);
    connect(this, &QTreeWidget::itemActivated, this, &DemoOutline::goToHeading);
}

void DemoOutline::setDocument(DemoDocument* document)
{
    if (m_document)
        disconnect(m_document, nullptr, m_refreshTimer, nullptr);
    m_document = document;
    if (document)
        connect(document, &QTextEdit::textChanged, m_refreshTimer, qOverload<>(&QTimer::start));
    m_refreshTimer->stop();
    refresh();
}

void DemoOutline::refresh()
{
    clear();
    if (!m_document)
        return;
    // The nearest heading of a higher level is each heading's parent.
    QVector<QTreeWidgetItem*> openLevels;
    for (QTextBlock block = m_document->document()->begin(); block.isValid(); block = block.next()) {
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
    if (!m_document || !item || !item->data(0, PositionRole).isValid())
        return;
    const QTextBlock block = m_document->document()->findBlock(item->data(0, PositionRole).toInt());
    if (!block.isValid())
        return;
    QTextCursor cursor(block);
    m_document->setTextCursor(cursor);
    m_document->ensureCursorVisible();
    m_document->setFocus(Qt::OtherFocusReason);
}
