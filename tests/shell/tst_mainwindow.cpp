#include <tessaro/MainWindow.h>

#include <QApplication>
#include <QCloseEvent>
#include <QMetaEnum>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QtTest>

#include <functional>

namespace {

using StyleFactory = std::function<QStyle*()>;

// Reaches the protected parts.
class TestWindow : public ui::MainWindow
{
public:
    using ui::MainWindow::MainWindow;
    using ui::MainWindow::getSupportedStyles;
    void callCloseEvent(QCloseEvent* event) { closeEvent(event); }
};

// A host's own refinement of a ribbon style still counts as its family.
class HostOffice2013Style : public Qtitan::Office2013Style
{
    Q_OBJECT
public:
    HostOffice2013Style()
        : Qtitan::Office2013Style(Qtitan::Office2013Style::Gray)
    {
    }
};

const std::vector<int> supportedOrder{-1, 0, 10, 11, 12, 13, 21, 22, 20, 30, 31, 32,
                                      40, 41, 42, 43, 50, 51, 52, 53};

std::vector<int> asInts(const std::vector<ui::MainWindow::Style>& styles)
{
    return std::vector<int>(styles.begin(), styles.end());
}

} // namespace

Q_DECLARE_METATYPE(StyleFactory)

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void currentStyle_data();
    void currentStyle();
    void office2016DarkGrayIs42();
    void plainQtStyleIsUnknown();
    void proxyAroundRibbonStyleIsUnknown();
    void subclassOfFamilyMatches();
    void followsStyleChangesAtRunTime();
    void followsThemeChangesAtRunTime();
    void constructorArguments();
    void supportedStylesFixedOrder_data();
    void supportedStylesFixedOrder();
    void styleEnumNamesEveryValue();
    void closeEventAcceptsThroughQWidget();
    void closeHidesWindow();
};

void tst_MainWindow::cleanup()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void tst_MainWindow::currentStyle_data()
{
    QTest::addColumn<StyleFactory>("factory");
    QTest::addColumn<int>("expected");

    using namespace Qtitan;
    QTest::newRow("Windows 7 Scenic") << StyleFactory([] { return new Windows7ScenicStyle; }) << 0;

    const struct { Office2007Style::Theme theme; const char* name; int value; } office2007[] = {
        {Office2007Style::Blue, "Office 2007 Blue", 10},
        {Office2007Style::Black, "Office 2007 Black", 11},
        {Office2007Style::Silver, "Office 2007 Silver", 12},
        {Office2007Style::Aqua, "Office 2007 Aqua", 13}};
    for (const auto& row : office2007) {
        const auto theme = row.theme;
        QTest::newRow(row.name) << StyleFactory([theme] { return new Office2007Style(theme); }) << row.value;
    }
    const struct { Office2010Style::Theme theme; const char* name; int value; } office2010[] = {
        {Office2010Style::Black, "Office 2010 Black", 20},
        {Office2010Style::Blue, "Office 2010 Blue", 21},
        {Office2010Style::Silver, "Office 2010 Silver", 22}};
    for (const auto& row : office2010) {
        const auto theme = row.theme;
        QTest::newRow(row.name) << StyleFactory([theme] { return new Office2010Style(theme); }) << row.value;
    }
    const struct { Office2013Style::Theme theme; const char* name; int value; } office2013[] = {
        {Office2013Style::White, "Office 2013 White", 30},
        {Office2013Style::Gray, "Office 2013 Gray", 31},
        {Office2013Style::Dark, "Office 2013 Dark", 32}};
    for (const auto& row : office2013) {
        const auto theme = row.theme;
        QTest::newRow(row.name) << StyleFactory([theme] { return new Office2013Style(theme); }) << row.value;
    }
    const struct { Office2016Style::Theme theme; const char* name; int value; } office2016[] = {
        {Office2016Style::Colorful, "Office 2016 Colorful", 40},
        {Office2016Style::White, "Office 2016 White", 41},
        {Office2016Style::DarkGray, "Office 2016 Dark Gray", 42},
        {Office2016Style::Black, "Office 2016 Black", 43}};
    for (const auto& row : office2016) {
        const auto theme = row.theme;
        QTest::newRow(row.name) << StyleFactory([theme] { return new Office2016Style(theme); }) << row.value;
    }
    const struct { AdobePhotoshopStyle::Theme theme; const char* name; int value; } photoshop[] = {
        {AdobePhotoshopStyle::LightGray, "Photoshop Light Gray", 50},
        {AdobePhotoshopStyle::Gray, "Photoshop Gray", 51},
        {AdobePhotoshopStyle::DarkGray, "Photoshop Dark Gray", 52},
        {AdobePhotoshopStyle::Black, "Photoshop Black", 53}};
    for (const auto& row : photoshop) {
        const auto theme = row.theme;
        QTest::newRow(row.name) << StyleFactory([theme] { return new AdobePhotoshopStyle(theme); }) << row.value;
    }
}

void tst_MainWindow::currentStyle()
{
    QFETCH(StyleFactory, factory);
    QFETCH(int, expected);
    QApplication::setStyle(factory());
    ui::MainWindow window;
    QCOMPARE(int(window.currentStyle()), expected);
    // Asking again gives the same answer.
    QCOMPARE(int(window.currentStyle()), expected);
}

void tst_MainWindow::office2016DarkGrayIs42()
{
    QApplication::setStyle(new Qtitan::Office2016Style(Qtitan::Office2016Style::DarkGray));
    ui::MainWindow window;
    QCOMPARE(window.currentStyle(), ui::MainWindow::Style(42));
    QCOMPARE(window.currentStyle(), ui::MainWindow::Office2016DarkGray);
}

void tst_MainWindow::plainQtStyleIsUnknown()
{
    const QStringList keys{QStringLiteral("Fusion"), QStringLiteral("Windows")};
    for (const QString& key : keys) {
        QStyle* style = QStyleFactory::create(key);
        QVERIFY2(style, qPrintable(key));
        QApplication::setStyle(style);
        ui::MainWindow window;
        QCOMPARE(window.currentStyle(), ui::MainWindow::UnknownStyle);
        QCOMPARE(int(window.currentStyle()), -1);
    }
}

void tst_MainWindow::proxyAroundRibbonStyleIsUnknown()
{
    // Only the application style object itself is looked at.
    QApplication::setStyle(new QProxyStyle(new Qtitan::Office2016Style(Qtitan::Office2016Style::Black)));
    ui::MainWindow window;
    QCOMPARE(int(window.currentStyle()), -1);
}

void tst_MainWindow::subclassOfFamilyMatches()
{
    QApplication::setStyle(new HostOffice2013Style);
    ui::MainWindow window;
    QCOMPARE(int(window.currentStyle()), 31);
}

void tst_MainWindow::followsStyleChangesAtRunTime()
{
    ui::MainWindow window;
    QCOMPARE(int(window.currentStyle()), -1);
    QApplication::setStyle(new Qtitan::Office2007Style(Qtitan::Office2007Style::Aqua));
    QCOMPARE(int(window.currentStyle()), 13);
    QApplication::setStyle(new Qtitan::Windows7ScenicStyle);
    QCOMPARE(int(window.currentStyle()), 0);
    QApplication::setStyle(new Qtitan::AdobePhotoshopStyle(Qtitan::AdobePhotoshopStyle::Gray));
    QCOMPARE(int(window.currentStyle()), 51);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(int(window.currentStyle()), -1);
}

void tst_MainWindow::followsThemeChangesAtRunTime()
{
    auto* style = new Qtitan::Office2016Style(Qtitan::Office2016Style::Colorful);
    QApplication::setStyle(style);
    ui::MainWindow window;
    QCOMPARE(int(window.currentStyle()), 40);
    style->setTheme(Qtitan::Office2016Style::DarkGray);
    QCOMPARE(int(window.currentStyle()), 42);
    style->setTheme(Qtitan::Office2016Style::Black);
    QCOMPARE(int(window.currentStyle()), 43);
}

void tst_MainWindow::constructorArguments()
{
    QWidget parent;
    ui::MainWindow window(&parent, Qt::Tool);
    QCOMPARE(window.parentWidget(), &parent);
    QCOMPARE(window.windowFlags() & Qt::WindowType_Mask, Qt::Tool);
    QVERIFY(qobject_cast<Qtitan::RibbonMainWindow*>(&window));
    QCOMPARE(window.metaObject()->className(), "ui::MainWindow");
}

void tst_MainWindow::supportedStylesFixedOrder_data()
{
    QTest::addColumn<StyleFactory>("factory");
    QTest::newRow("Fusion") << StyleFactory([] { return QStyleFactory::create(QStringLiteral("Fusion")); });
    QTest::newRow("Windows 7 Scenic") << StyleFactory([] { return new Qtitan::Windows7ScenicStyle; });
    QTest::newRow("Office 2010 Silver")
        << StyleFactory([] { return new Qtitan::Office2010Style(Qtitan::Office2010Style::Silver); });
    QTest::newRow("Office 2016 Dark Gray")
        << StyleFactory([] { return new Qtitan::Office2016Style(Qtitan::Office2016Style::DarkGray); });
    QTest::newRow("Photoshop Black")
        << StyleFactory([] { return new Qtitan::AdobePhotoshopStyle(Qtitan::AdobePhotoshopStyle::Black); });
}

void tst_MainWindow::supportedStylesFixedOrder()
{
    QFETCH(StyleFactory, factory);
    QApplication::setStyle(factory());
    TestWindow window;
    QCOMPARE(asInts(window.getSupportedStyles()), supportedOrder);
    // Unchanged by asking for the current style in between.
    window.currentStyle();
    QCOMPARE(asInts(window.getSupportedStyles()), supportedOrder);
}

void tst_MainWindow::styleEnumNamesEveryValue()
{
    const QMetaEnum styles = QMetaEnum::fromType<ui::MainWindow::Style>();
    QVERIFY(styles.isValid());
    QCOMPARE(styles.keyCount(), int(supportedOrder.size()));
    for (int value : supportedOrder)
        QVERIFY2(styles.valueToKey(value), qPrintable(QString::number(value)));
}

void tst_MainWindow::closeEventAcceptsThroughQWidget()
{
    TestWindow window;
    QCloseEvent event;
    event.ignore();
    window.callCloseEvent(&event);
    // QWidget's handler accepts the event.
    QVERIFY(event.isAccepted());
}

void tst_MainWindow::closeHidesWindow()
{
    ui::MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.close());
    QVERIFY(!window.isVisible());
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
