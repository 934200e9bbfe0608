#include <QtitanRibbon.h>

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QSet>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>
#include <QtTest>

using namespace Qtitan;

namespace {

template <typename Style>
void checkRoundTrips(const QList<typename Style::Theme>& themes)
{
    for (auto theme : themes) {
        Style style(theme);
        QCOMPARE(style.theme(), theme);
        QCOMPARE(style.property("theme").toInt(), int(theme));
    }
    Style style(themes.first());
    QSignalSpy spy(&style, &CommonStyle::themeChanged);
    for (auto theme : themes) {
        style.setTheme(theme);
        QCOMPARE(style.theme(), theme);
    }
    QCOMPARE(spy.count(), themes.size() - 1);
    // Through the meta-object too, as a property editor would set it.
    QVERIFY(style.setProperty("theme", int(themes.last())));
    QCOMPARE(style.theme(), themes.last());
}

QImage renderWorkspace(QStyle* style, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    QStyleOption option;
    option.rect = QRect(QPoint(0, 0), size);
    style->drawPrimitive(static_cast<QStyle::PrimitiveElement>(QStyle::PE_CustomBase + 0x16), &option, &painter);
    painter.end();
    return image;
}

// Every scheme a style family offers, one per theme.
QList<RibbonColors> allSchemes()
{
    QList<RibbonColors> schemes;
    for (auto theme : {Office2007Style::Blue, Office2007Style::Black, Office2007Style::Silver, Office2007Style::Aqua})
        schemes << Office2007Style(theme).ribbonColors();
    for (auto theme : {Office2010Style::Black, Office2010Style::Blue, Office2010Style::Silver})
        schemes << Office2010Style(theme).ribbonColors();
    for (auto theme : {Office2013Style::White, Office2013Style::Gray, Office2013Style::Dark})
        schemes << Office2013Style(theme).ribbonColors();
    for (auto theme : {Office2016Style::Colorful, Office2016Style::White, Office2016Style::DarkGray, Office2016Style::Black})
        schemes << Office2016Style(theme).ribbonColors();
    for (auto theme : {AdobePhotoshopStyle::LightGray, AdobePhotoshopStyle::Gray, AdobePhotoshopStyle::DarkGray,
                       AdobePhotoshopStyle::Black})
        schemes << AdobePhotoshopStyle(theme).ribbonColors();
    schemes << Windows7ScenicStyle().ribbonColors();
    return schemes;
}

qreal contrast(const QColor& a, const QColor& b)
{
    auto luminance = [](const QColor& c) {
        auto channel = [](qreal v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
    };
    const qreal la = luminance(a);
    const qreal lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

} // namespace

class tst_QtitanStyles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void themeRoundTrips()
    {
        checkRoundTrips<Office2007Style>({Office2007Style::Blue, Office2007Style::Black, Office2007Style::Silver,
                                          Office2007Style::Aqua});
        checkRoundTrips<Office2010Style>({Office2010Style::Black, Office2010Style::Blue, Office2010Style::Silver});
        checkRoundTrips<Office2013Style>({Office2013Style::White, Office2013Style::Gray, Office2013Style::Dark});
        checkRoundTrips<Office2016Style>({Office2016Style::Colorful, Office2016Style::White,
                                          Office2016Style::DarkGray, Office2016Style::Black});
        checkRoundTrips<AdobePhotoshopStyle>({AdobePhotoshopStyle::LightGray, AdobePhotoshopStyle::Gray,
                                              AdobePhotoshopStyle::DarkGray, AdobePhotoshopStyle::Black});
    }

    void themeIndexesCountFromZero()
    {
        QCOMPARE(int(Office2007Style::Blue), 0);
        QCOMPARE(int(Office2007Style::Aqua), 3);
        QCOMPARE(int(Office2010Style::Black), 0);
        QCOMPARE(int(Office2010Style::Silver), 2);
        QCOMPARE(int(Office2013Style::Dark), 2);
        QCOMPARE(int(Office2016Style::DarkGray), 2);
        QCOMPARE(int(AdobePhotoshopStyle::Black), 3);
        QCOMPARE(Office2016Style().theme(), Office2016Style::Colorful);
    }

    void settingTheSameThemeIsQuiet()
    {
        Office2013Style style(Office2013Style::Gray);
        QSignalSpy spy(&style, &CommonStyle::themeChanged);
        style.setTheme(Office2013Style::Gray);
        QCOMPARE(spy.count(), 0);
    }

    void familiesAreSiblings()
    {
        Office2007Style s2007;
        Office2010Style s2010;
        Office2013Style s2013;
        Office2016Style s2016;
        AdobePhotoshopStyle photo;
        Windows7ScenicStyle scenic;
        const QList<QStyle*> styles{&s2007, &s2010, &s2013, &s2016, &photo, &scenic};
        for (QStyle* style : styles) {
            QVERIFY(qobject_cast<CommonStyle*>(style));
            QVERIFY(qobject_cast<QProxyStyle*>(style));
            const int matches = int(qobject_cast<Office2007Style*>(style) != nullptr)
                                + int(qobject_cast<Office2010Style*>(style) != nullptr)
                                + int(qobject_cast<Office2013Style*>(style) != nullptr)
                                + int(qobject_cast<Office2016Style*>(style) != nullptr)
                                + int(qobject_cast<AdobePhotoshopStyle*>(style) != nullptr)
                                + int(qobject_cast<Windows7ScenicStyle*>(style) != nullptr);
            QCOMPARE(matches, 1);
        }
        QVERIFY(!qobject_cast<Office2007Style*>(static_cast<QStyle*>(&s2010)));
        QVERIFY(!qobject_cast<Office2016Style*>(static_cast<QStyle*>(&s2013)));
        QCOMPARE(QString::fromLatin1(s2016.baseStyle()->metaObject()->className()), QStringLiteral("QFusionStyle"));
    }

    void everyThemeHasItsOwnScheme()
    {
        const QList<RibbonColors> schemes = allSchemes();
        QCOMPARE(schemes.size(), 19);
        QSet<QString> signatures;
        for (const RibbonColors& c : schemes) {
            signatures.insert(c.frameBackground.name() + c.pageBackgroundTop.name() + c.workspaceBackground.name()
                              + c.tabSelectedBackground.name() + c.buttonHoverBackground.name());
        }
        QCOMPARE(signatures.size(), schemes.size());
    }

    void schemesAreReadable()
    {
        for (const RibbonColors& c : allSchemes()) {
            QVERIFY2(contrast(c.buttonText, c.pageBackgroundBottom) >= 4.5, qPrintable(c.pageBackgroundBottom.name()));
            QVERIFY2(contrast(c.tabText, c.frameBackground) >= 4.5, qPrintable(c.frameBackground.name()));
            QVERIFY2(contrast(c.tabTextSelected, c.tabSelectedBackground) >= 4.5,
                     qPrintable(c.tabSelectedBackground.name()));
            QVERIFY2(contrast(c.menuText, c.menuBackground) >= 4.5, qPrintable(c.menuBackground.name()));
            QVERIFY2(contrast(c.menuHighlightText, c.menuHighlight) >= 4.5, qPrintable(c.menuHighlight.name()));
            QVERIFY2(contrast(c.systemButtonText, c.systemButtonBackground) >= 3.0,
                     qPrintable(c.systemButtonBackground.name()));
            QVERIFY2(contrast(c.groupTitleText, c.pageBackgroundBottom) >= 3.0, qPrintable(c.groupTitleText.name()));
        }
    }

    void workspaceIsDrawnWithTheSchemeColour()
    {
        Office2016Style style(Office2016Style::Black);
        const QImage image = renderWorkspace(&style, QSize(40, 30));
        const QRgb expected = style.ribbonColors().workspaceBackground.rgb();
        for (const QPoint& p : {QPoint(0, 0), QPoint(39, 29), QPoint(20, 15)})
            QCOMPARE(QColor(image.pixel(p)), QColor(expected));

        style.setTheme(Office2016Style::Colorful);
        const QImage after = renderWorkspace(&style, QSize(40, 30));
        QCOMPARE(QColor(after.pixel(5, 5)), style.ribbonColors().workspaceBackground);
        QVERIFY(after.pixel(5, 5) != image.pixel(5, 5));

        Windows7ScenicStyle scenic;
        QCOMPARE(QColor(renderWorkspace(&scenic, QSize(8, 8)).pixel(3, 3)), scenic.ribbonColors().workspaceBackground);
    }

    void workspaceElementIsOnlyOurs()
    {
        // A plain style does not know the element and leaves the image alone.
        QScopedPointer<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
        const QImage image = renderWorkspace(fusion.data(), QSize(10, 10));
        QCOMPARE(QColor(image.pixel(5, 5)), QColor(Qt::magenta));
    }

    void paletteIsTintedByTheScheme()
    {
        Office2016Style style(Office2016Style::Black);
        QPalette palette = style.standardPalette();
        style.polish(palette);
        const RibbonColors c = style.ribbonColors();
        QCOMPARE(palette.color(QPalette::Window), c.pageBackgroundBottom);
        QCOMPARE(palette.color(QPalette::WindowText), c.buttonText);
        QVERIFY(contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)) >= 4.5);

        Office2013Style light(Office2013Style::White);
        QPalette lightPalette = light.standardPalette();
        light.polish(lightPalette);
        QVERIFY(lightPalette.color(QPalette::Window) != palette.color(QPalette::Window));
    }

    void treeArrowsShowOnTheViewsPaper()
    {
        // Dark schemes keep a view's paper light; its branch arrows must not
        // take the scheme's light window text.
        auto* style = new Office2016Style(Office2016Style::Black);
        QStyleOption option;
        option.rect = QRect(0, 0, 20, 20);
        option.state = QStyle::State_Enabled | QStyle::State_Children | QStyle::State_Item;
        QPalette palette = style->standardPalette();
        style->polish(palette);
        option.palette = palette;
        QImage image(20, 20, QImage::Format_ARGB32);
        image.fill(palette.color(QPalette::Base));
        QPainter painter(&image);
        style->drawPrimitive(QStyle::PE_IndicatorBranch, &option, &painter);
        painter.end();
        qreal strongest = 1;
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 20; ++x)
                strongest = qMax(strongest, contrast(QColor(image.pixel(x, y)), palette.color(QPalette::Base)));
        }
        QVERIFY2(strongest >= 4.5, qPrintable(QString::number(strongest)));
        delete style;
    }

    void menusUseTheSchemeColours()
    {
        auto* style = new Office2016Style(Office2016Style::Black);
        QMenu menu;
        menu.setStyle(style);
        menu.addAction(QStringLiteral("First"));
        menu.addAction(QStringLiteral("Second"));
        menu.resize(menu.sizeHint());
        const QImage image = menu.grab().toImage();
        const RibbonColors c = style->ribbonColors();
        // The frame and the background of the menu come from the scheme.
        QCOMPARE(QColor(image.pixel(0, 0)).name(), c.menuBorder.name());
        QCOMPARE(QColor(image.pixel(image.width() - 3, image.height() / 2)).name(), c.menuBackground.name());
        delete style;
    }

    void lightStyledTabsKeepReadableText()
    {
        const QString sheet = QStringLiteral("QTabBar::tab { background: #f0f0f0; border: 1px solid black; "
                                             "border-bottom-color: #C2C7CB; }");
        Office2016Style dark(Office2016Style::Black);
        QTabBar tabs;
        tabs.addTab(QStringLiteral("One"));
        tabs.setStyle(&dark);
        tabs.setStyleSheet(sheet);
        tabs.ensurePolished();
        QVERIFY(contrast(tabs.palette().color(QPalette::WindowText), QColor(0xf0, 0xf0, 0xf0)) >= 4.5);
        QVERIFY(contrast(tabs.palette().color(QPalette::ButtonText), QColor(0xf0, 0xf0, 0xf0)) >= 4.5);

        // Without light tabs of its own, a tab bar keeps the scheme's text.
        QTabBar plain;
        plain.addTab(QStringLiteral("Two"));
        plain.setStyle(&dark);
        plain.ensurePolished();
        QCOMPARE(plain.palette().color(QPalette::WindowText), QApplication::palette(&plain).color(QPalette::WindowText));
        QVERIFY(!plain.testAttribute(Qt::WA_SetPalette));
        tabs.setStyle(nullptr);
        plain.setStyle(nullptr);
    }

    void toolButtonPanels()
    {
        Office2016Style style(Office2016Style::Colorful);
        const RibbonColors c = style.ribbonColors();
        auto panelColour = [&](QStyle::State state, const QWidget* widget) {
            QImage image(24, 24, QImage::Format_ARGB32);
            image.fill(Qt::magenta);
            QPainter painter(&image);
            QStyleOptionToolButton option;
            option.rect = image.rect();
            option.state = state | QStyle::State_AutoRaise;
            style.drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter, widget);
            painter.end();
            return QColor(image.pixel(12, 12)).name();
        };
        const QStyle::State enabled = QStyle::State_Enabled;
        // On a page or in a menu: the scheme's button colours.
        QCOMPARE(panelColour(enabled | QStyle::State_MouseOver, nullptr), c.buttonHoverBackground.name());
        QCOMPARE(panelColour(enabled | QStyle::State_Sunken, nullptr), c.buttonPressedBackground.name());
        QCOMPARE(panelColour(enabled | QStyle::State_On, nullptr), c.buttonCheckedBackground.name());
        QCOMPARE(panelColour(enabled, nullptr), QColor(Qt::magenta).name());

        // On the quick access bar of a ribbon: the tab hover colour of the frame.
        RibbonBar bar;
        auto* button = new QToolButton(bar.quickAccessBar());
        QCOMPARE(panelColour(enabled | QStyle::State_MouseOver, button), c.tabHoverBackground.name());
        QCOMPARE(panelColour(enabled, button), QColor(Qt::magenta).name());
        QVERIFY(panelColour(enabled | QStyle::State_Sunken, button) != c.tabHoverBackground.name());
    }

    void colorsForWidgets()
    {
        QWidget plain;
        QScopedPointer<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
        plain.setStyle(fusion.data());
        QPalette palette = plain.palette();
        palette.setColor(QPalette::Highlight, QColor(10, 200, 30));
        plain.setPalette(palette);
        const RibbonColors fromPlain = RibbonColors::forWidget(&plain);
        QCOMPARE(fromPlain.systemButtonBackground, QColor(10, 200, 30));
        QCOMPARE(fromPlain.pageBackgroundBottom, palette.color(QPalette::Window));

        QWidget ribbon;
        Office2010Style style(Office2010Style::Silver);
        ribbon.setStyle(&style);
        QCOMPARE(RibbonColors::forWidget(&ribbon).frameBackground, style.ribbonColors().frameBackground);
        ribbon.setStyle(nullptr);
    }

    void mainWindowCarriesTheRibbon()
    {
        RibbonMainWindow window;
        QVERIFY(!window.ribbonBar());
        auto* bar = new RibbonBar;
        window.setRibbonBar(bar);
        QCOMPARE(window.ribbonBar(), bar);
        QCOMPARE(window.menuWidget(), static_cast<QWidget*>(bar));
        QCOMPARE(bar->parentWidget(), static_cast<QWidget*>(&window));
        QPointer<RibbonBar> guard(bar);
        window.setRibbonBar(new RibbonBar);
        QVERIFY(window.ribbonBar() != bar);
    }
};

QTEST_MAIN(tst_QtitanStyles)
#include "tst_qtitanstyles.moc"
