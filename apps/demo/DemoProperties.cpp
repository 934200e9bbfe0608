#include "DemoProperties.h"

#include "DemoDocument.h"
#include "DemoDocumentFollower.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QTextBlock>
#include <QTextDocument>

namespace {

struct TextCounts
{
    int characters = 0;
    int paragraphs = 0;
};

// As word processors count: characters with spaces but without paragraph
// breaks, and only the paragraphs that hold some text (table cells too).
TextCounts countText(const QTextDocument* document)
{
    TextCounts counts;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        counts.characters += text.size();
        if (!text.trimmed().isEmpty())
            ++counts.paragraphs;
    }
    return counts;
}

} // namespace

DemoProperties::DemoProperties(QWidget* parent)
    : QTableWidget(RowCount, 2, parent)
    , m_follower(new DemoDocumentFollower(this))
{
    setObjectName(QStringLiteral("properties"));
    setHorizontalHeaderLabels({tr("Property"), tr("Value")});
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    const QString names[RowCount] = {tr("Name"), tr("Location"), tr("Words"),
                                     tr("Characters"), tr("Paragraphs"), tr("Modified")};
    for (int row = 0; row < RowCount; ++row) {
        setItem(row, 0, new QTableWidgetItem(names[row]));
        setItem(row, 1, new QTableWidgetItem);
    }
    connect(m_follower, &DemoDocumentFollower::changed, this, &DemoProperties::refresh);
}

void DemoProperties::setDocument(DemoDocument* document)
{
    m_follower->setDocument(document);
}

void DemoProperties::refresh()
{
    DemoDocument* doc = m_follower->document();
    if (!doc) {
        for (int row = 0; row < RowCount; ++row)
            setValue(Row(row), QString());
        return;
    }
    const QLocale locale;
    const QString path = doc->filePath();
    const TextCounts counts = countText(doc->document());
    setValue(Name, doc->title());
    setValue(Location, path.isEmpty() ? tr("Not saved") : QDir::toNativeSeparators(QFileInfo(path).absolutePath()));
    setValue(Words, locale.toString(doc->wordCount()));
    setValue(Characters, locale.toString(counts.characters));
    setValue(Paragraphs, locale.toString(counts.paragraphs));
    setValue(Modified, doc->isModified() ? tr("Yes") : tr("No"));
}

void DemoProperties::setValue(Row row, const QString& value)
{
    item(row, 1)->setText(value);
    item(row, 1)->setToolTip(value);
}
