#include <tessaro/MdiArea.h>

#include <QtitanRibbon.h>

#include <QApplication>
#include <QMdiSubWindow>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTextEdit>
#include <QtTest>

namespace {

const QString expectedStyleSheet = QStringLiteral(
    "QTabBar::tab { background: #f0f0f0; border: 1px solid black; border-bottom-color: #C2C7CB;  "
    "min-width: 8ex; padding: 2px 4px; }QTabBar::tab:selected, QTabBar::tab:hover {  background: "
    "white; }QTabBar::tab:!selected { margin-top: 2px;  }");

const int workspaceElement = QStyle::PE_CustomBase + 0x16;

// A ribbon style that records how it is asked to draw the workspace.
class RecordingStyle : public Qtitan::Office2016Style
{
public:
    RecordingStyle()
        : Qtitan::Office2016Style(Qtitan::Office2016Style::White)
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element == workspaceElement) {
            ++calls;
            version = option->version;
            type = option->type;
            rect = option->rect;
            lastWidget = widget;
            device = painter->device();
            painter->fillRect(option->rect, QColor(1, 2, 3));
            return;
        }
        Qtitan::Office2016Style::drawPrimitive(element, option, painter, widget);
    }

    mutable int calls = 0;
    mutable int version = -1;
    mutable int type = -1;
    mutable QRect rect;
    mutable const QWidget* lastWidget = nullptr;
    mutable QPaintDevice* device = nullptr;
};

QMdiSubWindow* addDocument(QMdiArea* area, const QString& title)
{
    auto* editor = new QTextEdit;
    editor->setWindowTitle(title);
    QMdiSubWindow* window = area->addSubWindow(editor);
    window->show();
    return window;
}

} // namespace

class tst_MdiArea : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tabbedAtBottomAndClosable();
    void tabBarStyleSheet();
    void tabsDoNotExpand();
    void tabsStillDoNotExpandAfterStyleChange();
    void closeButtonClosesDocument();
    void noMetaObjectOfItsOwn();
    void plainStylePaintsLikeQMdiArea();
    void ribbonStylePaintsWorkspace();
    void ribbonStyleDrawsWorkspaceElement();
};

void tst_MdiArea::init()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void tst_MdiArea::cleanup()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void tst_MdiArea::tabbedAtBottomAndClosable()
{
    ui::MdiArea area;
    QCOMPARE(area.viewMode(), QMdiArea::TabbedView);
    QCOMPARE(area.tabPosition(), QTabWidget::South);
    QVERIFY(area.tabsClosable());
    addDocument(&area, QStringLiteral("One"));
    addDocument(&area, QStringLiteral("Two"));
    addDocument(&area, QStringLiteral("Three"));
    area.resize(600, 400);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));

    auto* tabBar = area.findChild<QTabBar*>();
    QVERIFY(tabBar);
    QCOMPARE(tabBar->count(), 3);
    QCOMPARE(tabBar->shape(), QTabBar::RoundedSouth);
    QVERIFY(tabBar->tabsClosable());
    // The tabs stand along the bottom edge of the area.
    QVERIFY(tabBar->isVisible());
    const QRect barRect(tabBar->mapTo(&area, QPoint(0, 0)), tabBar->size());
    QVERIFY(barRect.top() > area.height() / 2);
    QVERIFY(area.viewport()->geometry().bottom() < barRect.top());
    for (int i = 0; i < tabBar->count(); ++i) {
        QWidget* button = tabBar->tabButton(i, QTabBar::RightSide);
        if (!button)
            button = tabBar->tabButton(i, QTabBar::LeftSide);
        QVERIFY2(button, qPrintable(QStringLiteral("tab %1 has no close button").arg(i)));
        QVERIFY(button->isVisible());
    }
}

void tst_MdiArea::tabBarStyleSheet()
{
    ui::MdiArea area;
    auto* tabBar = area.findChild<QTabBar*>();
    QVERIFY(tabBar);
    QCOMPARE(tabBar->styleSheet(), expectedStyleSheet);
    // Only the tab bar carries it.
    QVERIFY(area.styleSheet().isEmpty());
}

void tst_MdiArea::tabsDoNotExpand()
{
    ui::MdiArea area;
    addDocument(&area, QStringLiteral("Short"));
    area.resize(800, 300);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    auto* tabBar = area.findChild<QTabBar*>();
    QVERIFY(!tabBar->expanding());
    QVERIFY(tabBar->tabRect(0).width() < area.width() / 2);
}

void tst_MdiArea::tabsStillDoNotExpandAfterStyleChange()
{
    ui::MdiArea area;
    addDocument(&area, QStringLiteral("Short"));
    area.resize(800, 300);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    auto* tabBar = area.findChild<QTabBar*>();

    // The application style changes: a style change re-arms the tab bar.
    tabBar->setExpanding(true);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
    QVERIFY(!tabBar->expanding());

    tabBar->setExpanding(true);
    QApplication::setStyle(new Qtitan::Office2013Style(Qtitan::Office2013Style::Gray));
    QVERIFY(!tabBar->expanding());
    QTRY_VERIFY(tabBar->tabRect(0).width() < area.width() / 2);

    // A style set on the area alone does the same.
    QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    tabBar->setExpanding(true);
    area.setStyle(fusion);
    QVERIFY(!tabBar->expanding());
    area.setStyle(nullptr);
    delete fusion;
    QCOMPARE(tabBar->styleSheet(), expectedStyleSheet);
}

void tst_MdiArea::closeButtonClosesDocument()
{
    ui::MdiArea area;
    QPointer<QMdiSubWindow> first = addDocument(&area, QStringLiteral("One"));
    first->setAttribute(Qt::WA_DeleteOnClose);
    addDocument(&area, QStringLiteral("Two"));
    area.resize(600, 400);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    auto* tabBar = area.findChild<QTabBar*>();
    QCOMPARE(tabBar->count(), 2);
    QWidget* button = tabBar->tabButton(0, QTabBar::RightSide);
    if (!button)
        button = tabBar->tabButton(0, QTabBar::LeftSide);
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(tabBar->count(), 1);
    QTRY_VERIFY(!first);
    QCOMPARE(area.subWindowList().size(), 1);
}

void tst_MdiArea::noMetaObjectOfItsOwn()
{
    ui::MdiArea area;
    QCOMPARE(area.metaObject(), &QMdiArea::staticMetaObject);
}

void tst_MdiArea::plainStylePaintsLikeQMdiArea()
{
    ui::MdiArea area;
    QMdiArea reference;
    reference.setViewMode(QMdiArea::TabbedView);
    reference.setTabPosition(QTabWidget::South);
    area.resize(300, 200);
    reference.resize(300, 200);
    area.show();
    reference.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QVERIFY(QTest::qWaitForWindowExposed(&reference));
    const QImage ours = area.viewport()->grab().toImage();
    const QImage theirs = reference.viewport()->grab().toImage();
    QCOMPARE(ours.size(), theirs.size());
    QCOMPARE(ours, theirs);
    // QMdiArea paints its background brush.
    QCOMPARE(ours.pixelColor(ours.width() / 2, ours.height() / 2).rgb(), area.background().color().rgb());
}

void tst_MdiArea::ribbonStylePaintsWorkspace()
{
    auto* style = new Qtitan::Office2016Style(Qtitan::Office2016Style::DarkGray);
    QApplication::setStyle(style);
    ui::MdiArea area;
    area.resize(300, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QColor workspace = style->ribbonColors().workspaceBackground;
    QVERIFY(workspace.isValid());
    const QImage image = area.viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).rgb(), workspace.rgb());
    QCOMPARE(image.pixelColor(5, 5).rgb(), workspace.rgb());

    // Another theme, another workspace colour.
    auto* other = new Qtitan::Office2007Style(Qtitan::Office2007Style::Blue);
    QApplication::setStyle(other);
    const QColor otherWorkspace = other->ribbonColors().workspaceBackground;
    const QImage repainted = area.viewport()->grab().toImage();
    QCOMPARE(repainted.pixelColor(repainted.width() / 2, repainted.height() / 2).rgb(), otherWorkspace.rgb());
}

void tst_MdiArea::ribbonStyleDrawsWorkspaceElement()
{
    auto* style = new RecordingStyle;
    QApplication::setStyle(style);
    ui::MdiArea area;
    area.resize(320, 240);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    style->calls = 0;
    const QImage image = area.viewport()->grab().toImage();
    QVERIFY(style->calls > 0);
    QCOMPARE(style->version, 1);
    QCOMPARE(style->type, int(QStyleOption::SO_Default));
    QCOMPARE(style->rect, area.rect());
    QCOMPARE(style->lastWidget, &area);
    QVERIFY(style->device != nullptr);
    // Nothing else is drawn over the workspace.
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(0, 0), QColor(1, 2, 3));
}

QTEST_MAIN(tst_MdiArea)
#include "tst_mdiarea.moc"
