// The demo's Outline and Properties panels tell the truth about the active
// document: its headings, name, place, size and state, as it is edited,
// saved, switched and closed.
#include "DemoCommands.h"
#include "DemoDocks.h"
#include "DemoDocument.h"
#include "DemoFiles.h"
#include "DemoOutline.h"
#include "DemoProperties.h"
#include "DemoWindow.h"

#include "common/demostart.h"

#include <QDir>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTreeWidget>
#include <QtTest>

namespace {

// The outline as "text(children...)" items joined by blanks.
QString shape(const QTreeWidgetItem* item)
{
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children << shape(item->child(i));
    return children.isEmpty() ? item->text(0) : QStringLiteral("%1(%2)").arg(item->text(0), children.join(' '));
}

QString shape(const QTreeWidget* tree)
{
    QStringList items;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        items << shape(tree->topLevelItem(i));
    return items.join(' ');
}

QString value(const DemoProperties* table, const QString& name)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, 0)->text() == name)
            return table->item(row, 1)->text();
    }
    return QStringLiteral("<no row %1>").arg(name);
}

// Long enough to scroll in any window the tests open.
const QString headingsHtml =
    QStringLiteral("<h1>Alpha</h1><p>one two</p><h2>Beta</h2><h3>Gamma</h3><p>three</p><h2>Delta</h2><h1>Epsilon</h1>")
    + QStringLiteral("<p>filler</p>").repeated(80);

} // namespace

class tst_DemoPanels : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void outlineListsTheHeadingsByLevel();
    void aClickOnAHeadingPutsTheCursorThere();
    void outlineFollowsEditsAfterAPause();
    void aDocumentWithoutHeadingsSaysSo();
    void propertiesDescribeTheActiveDocument();
    void propertiesFollowTypingAndSaving();
    void panelsFollowTheActiveDocument();
    void closingEveryDocumentEmptiesThem();

private:
    DemoDocument* newDocument(const QString& html);

    QTemporaryDir m_dir;
    std::unique_ptr<DemoWindow> m_window;
    DemoOutline* m_outline = nullptr;
    DemoProperties* m_properties = nullptr;
};

void tst_DemoPanels::init()
{
    QVERIFY(m_dir.isValid());
    m_window = testcommon::startDemo(m_dir.filePath(QStringLiteral("settings.dat")));
    QVERIFY(m_window);
    m_outline = m_window->docks().outlineView;
    m_properties = m_window->docks().propertiesView;
    QVERIFY(m_outline);
    QVERIFY(m_properties);
}

void tst_DemoPanels::cleanup()
{
    for (DemoDocument* doc : m_window->documents())
        doc->document()->setModified(false);
    m_window.reset();
}

DemoDocument* tst_DemoPanels::newDocument(const QString& html)
{
    DemoDocument* doc = m_window->commands()->files()->newDocument();
    doc->setContent(html);
    doc->setFocus();
    return doc;
}

void tst_DemoPanels::outlineListsTheHeadingsByLevel()
{
    // The welcome document's own headings.
    QCOMPARE(shape(m_outline), QStringLiteral("Welcome to the Tessaro demo(Things to try)"));

    newDocument(headingsHtml);
    QTRY_COMPARE(shape(m_outline), QStringLiteral("Alpha(Beta(Gamma) Delta) Epsilon"));
    QVERIFY(m_outline->topLevelItem(0)->isExpanded());
    QVERIFY(m_outline->topLevelItem(0)->child(0)->isExpanded());
}

void tst_DemoPanels::aClickOnAHeadingPutsTheCursorThere()
{
    // Tall enough to show Delta without scrolling.
    m_window->resize(1000, 900);
    DemoDocument* doc = newDocument(headingsHtml);
    QTRY_COMPARE(shape(m_outline), QStringLiteral("Alpha(Beta(Gamma) Delta) Epsilon"));
    QVERIFY(doc->viewport()->height() > 300);
    QTreeWidgetItem* delta = m_outline->topLevelItem(0)->child(1);
    m_outline->scrollToItem(delta);
    QTest::mouseClick(m_outline->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_outline->visualItemRect(delta).center());
    QCOMPARE(doc->textCursor().block().text(), QStringLiteral("Delta"));
    QCOMPARE(doc->textCursor().positionInBlock(), 0);
    QTRY_VERIFY(doc->hasFocus());

    // The heading stands at the top of the view, as far as the text allows.
    QVERIFY(doc->verticalScrollBar()->value() > 0);
    QVERIFY(doc->cursorRect().top() <= doc->document()->documentMargin());

    // From the keyboard too.
    m_outline->setFocus();
    m_outline->setCurrentItem(m_outline->topLevelItem(1));
    QTest::keyClick(m_outline, Qt::Key_Return);
    QCOMPARE(doc->textCursor().block().text(), QStringLiteral("Epsilon"));
}

void tst_DemoPanels::outlineFollowsEditsAfterAPause()
{
    DemoDocument* doc = newDocument(QStringLiteral("<h1>First</h1><p>text</p>"));
    QTRY_COMPARE(shape(m_outline), QStringLiteral("First"));
    QTextCursor cursor(doc->document());
    cursor.movePosition(QTextCursor::End);
    QTextBlockFormat heading;
    heading.setHeadingLevel(2);
    cursor.insertBlock(heading);
    cursor.insertText(QStringLiteral("Second"));
    // Not at each key: after a pause in the edits.
    QCOMPARE(shape(m_outline), QStringLiteral("First"));
    QTRY_COMPARE(shape(m_outline), QStringLiteral("First(Second)"));

    // Replaced text keeps its block's heading level until the block is made
    // a plain paragraph.
    cursor.select(QTextCursor::Document);
    cursor.insertText(QStringLiteral("plain"));
    QTRY_COMPARE(shape(m_outline), QStringLiteral("plain"));
    cursor.setBlockFormat(QTextBlockFormat());
    QTRY_COMPARE(shape(m_outline), QStringLiteral("No headings"));
}

void tst_DemoPanels::aDocumentWithoutHeadingsSaysSo()
{
    newDocument(QStringLiteral("<p>Just a paragraph.</p><h2>   </h2>"));
    QTRY_COMPARE(shape(m_outline), QStringLiteral("No headings"));
    QTreeWidgetItem* placeholder = m_outline->topLevelItem(0);
    QVERIFY(!(placeholder->flags() & Qt::ItemIsEnabled));
    QVERIFY(!(placeholder->flags() & Qt::ItemIsSelectable));
}

void tst_DemoPanels::propertiesDescribeTheActiveDocument()
{
    DemoDocument* welcome = m_window->activeDocument();
    QVERIFY(welcome);
    QCOMPARE(value(m_properties, QStringLiteral("Name")), welcome->title());
    QCOMPARE(value(m_properties, QStringLiteral("Location")), QStringLiteral("Not saved"));
    QCOMPARE(value(m_properties, QStringLiteral("Words")), QLocale().toString(welcome->wordCount()));
    QCOMPARE(value(m_properties, QStringLiteral("Characters")),
             QLocale().toString(welcome->toPlainText().remove(QLatin1Char('\n')).size()));
    QCOMPARE(value(m_properties, QStringLiteral("Paragraphs")),
             QLocale().toString(welcome->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts).size()));
    QCOMPARE(value(m_properties, QStringLiteral("Modified")), QStringLiteral("No"));

    // Characters without the paragraph breaks; empty paragraphs do not count.
    newDocument(QStringLiteral("<p>one two three</p><p></p><p>four</p>"));
    QTRY_COMPARE(value(m_properties, QStringLiteral("Words")), QStringLiteral("4"));
    QCOMPARE(value(m_properties, QStringLiteral("Characters")), QStringLiteral("17"));
    QCOMPARE(value(m_properties, QStringLiteral("Paragraphs")), QStringLiteral("2"));

    // A table's cells are paragraphs of their own.
    DemoDocument* table = newDocument(QString());
    table->insertTable(2, 2);
    QTRY_COMPARE(value(m_properties, QStringLiteral("Paragraphs")), QStringLiteral("2"));
}

void tst_DemoPanels::propertiesFollowTypingAndSaving()
{
    DemoDocument* doc = newDocument(QString());
    QTRY_COMPARE(value(m_properties, QStringLiteral("Words")), QStringLiteral("0"));
    QTest::keyClicks(doc, QStringLiteral("Hello there"));
    // The state at once, the counts after a pause.
    QCOMPARE(value(m_properties, QStringLiteral("Modified")), QStringLiteral("Yes"));
    QTRY_COMPARE(value(m_properties, QStringLiteral("Words")), QStringLiteral("2"));
    QCOMPARE(value(m_properties, QStringLiteral("Characters")), QStringLiteral("11"));

    const QString path = m_dir.filePath(QStringLiteral("note.txt"));
    QVERIFY(m_window->commands()->files()->saveAs(doc, path));
    QCOMPARE(value(m_properties, QStringLiteral("Name")), QStringLiteral("note.txt"));
    QCOMPARE(value(m_properties, QStringLiteral("Location")), QDir::toNativeSeparators(QDir(m_dir.path()).absolutePath()));
    QCOMPARE(value(m_properties, QStringLiteral("Modified")), QStringLiteral("No"));
}

void tst_DemoPanels::panelsFollowTheActiveDocument()
{
    DemoDocument* welcome = m_window->activeDocument();
    DemoDocument* other = newDocument(headingsHtml);
    QTRY_COMPARE(value(m_properties, QStringLiteral("Name")), other->title());
    QTRY_COMPARE(shape(m_outline), QStringLiteral("Alpha(Beta(Gamma) Delta) Epsilon"));

    m_window->activateDocument(welcome);
    QTRY_COMPARE(value(m_properties, QStringLiteral("Name")), welcome->title());
    QCOMPARE(shape(m_outline), QStringLiteral("Welcome to the Tessaro demo(Things to try)"));

    // An edit in a document that is no longer shown changes nothing here.
    QTextCursor(other->document()).insertText(QStringLiteral("more words "));
    QTest::qWait(400);
    QCOMPARE(value(m_properties, QStringLiteral("Name")), welcome->title());
    QCOMPARE(value(m_properties, QStringLiteral("Modified")), QStringLiteral("No"));
    QCOMPARE(value(m_properties, QStringLiteral("Words")), QLocale().toString(welcome->wordCount()));
}

void tst_DemoPanels::closingEveryDocumentEmptiesThem()
{
    newDocument(headingsHtml);
    for (DemoDocument* doc : m_window->documents())
        m_window->removeDocument(doc);
    QTRY_COMPARE(m_outline->topLevelItemCount(), 0);
    for (const char* name : {"Name", "Location", "Words", "Characters", "Paragraphs", "Modified"})
        QCOMPARE(value(m_properties, QString::fromLatin1(name)), QString());
}

QTEST_MAIN(tst_DemoPanels)
#include "tst_demopanels.moc"
