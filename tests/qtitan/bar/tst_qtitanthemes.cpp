// Renders the same small window in every style and theme and checks what a
// reader sees: readable tabs, the host's document text left alone, dark themes
// dark and light ones light, icons visible on dark backgrounds, and no two
// themes drawn alike. With TESSARO_STYLE_SHEET=<file.png> it also saves the
// reference sheet of all themes side by side.
#include <QtitanRibbon.h>

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QTextEdit>
#include <QToolButton>
#include <QtTest>

#include <cmath>
#include <functional>

using namespace Qtitan;

namespace {

enum class Tone { Light, Dark, Coloured };

struct ThemeCase
{
    const char* family;
    const char* theme;
    std::function<CommonStyle*()> create;
    Tone frame; ///< the title strip and the tab row
    Tone page;  ///< the page area under the tabs
};

const QVector<ThemeCase>& themeCases()
{
    static const QVector<ThemeCase> cases{
        {"Office 2007", "Blue", [] { return new Office2007Style(Office2007Style::Blue); }, Tone::Light, Tone::Light},
        {"Office 2007", "Black", [] { return new Office2007Style(Office2007Style::Black); }, Tone::Dark, Tone::Light},
        {"Office 2007", "Silver", [] { return new Office2007Style(Office2007Style::Silver); }, Tone::Light, Tone::Light},
        {"Office 2007", "Aqua", [] { return new Office2007Style(Office2007Style::Aqua); }, Tone::Light, Tone::Light},
        {"Office 2010", "Black", [] { return new Office2010Style(Office2010Style::Black); }, Tone::Dark, Tone::Light},
        {"Office 2010", "Blue", [] { return new Office2010Style(Office2010Style::Blue); }, Tone::Light, Tone::Light},
        {"Office 2010", "Silver", [] { return new Office2010Style(Office2010Style::Silver); }, Tone::Light, Tone::Light},
        {"Office 2013", "White", [] { return new Office2013Style(Office2013Style::White); }, Tone::Light, Tone::Light},
        {"Office 2013", "Gray", [] { return new Office2013Style(Office2013Style::Gray); }, Tone::Light, Tone::Light},
        {"Office 2013", "Dark", [] { return new Office2013Style(Office2013Style::Dark); }, Tone::Dark, Tone::Dark},
        {"Office 2016", "Colorful", [] { return new Office2016Style(Office2016Style::Colorful); }, Tone::Coloured,
         Tone::Light},
        {"Office 2016", "White", [] { return new Office2016Style(Office2016Style::White); }, Tone::Light, Tone::Light},
        {"Office 2016", "DarkGray", [] { return new Office2016Style(Office2016Style::DarkGray); }, Tone::Dark,
         Tone::Light},
        {"Office 2016", "Black", [] { return new Office2016Style(Office2016Style::Black); }, Tone::Dark, Tone::Dark},
        {"Adobe Photoshop", "LightGray", [] { return new AdobePhotoshopStyle(AdobePhotoshopStyle::LightGray); },
         Tone::Light, Tone::Light},
        {"Adobe Photoshop", "Gray", [] { return new AdobePhotoshopStyle(AdobePhotoshopStyle::Gray); }, Tone::Light,
         Tone::Light},
        {"Adobe Photoshop", "DarkGray", [] { return new AdobePhotoshopStyle(AdobePhotoshopStyle::DarkGray); },
         Tone::Dark, Tone::Dark},
        {"Adobe Photoshop", "Black", [] { return new AdobePhotoshopStyle(AdobePhotoshopStyle::Black); }, Tone::Dark,
         Tone::Dark},
        {"Windows 7", "Scenic", [] { return new Windows7ScenicStyle; }, Tone::Light, Tone::Light},
    };
    return cases;
}

QString caseName(const ThemeCase& c)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(c.family), QLatin1String(c.theme));
}

qreal luminance(const QColor& c)
{
    auto channel = [](qreal v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}

// The WCAG contrast ratio.
qreal contrast(const QColor& a, const QColor& b)
{
    const qreal la = luminance(a);
    const qreal lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

qreal meanLuminance(const QImage& image, const QRect& rect)
{
    qreal sum = 0;
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            sum += luminance(QColor(image.pixel(x, y)));
            ++count;
        }
    }
    return count ? sum / count : 0;
}

// The ink of icons made for light backgrounds, the kind that sinks into a dark one.
const QColor Ink(0x1E, 0x1E, 0x1E);

// A small glyph for `kind` (a page of text, bold type, a list, a shape), drawn
// on a 16-unit grid with a stroke of dark ink through its middle.
QIcon inkIcon(int kind)
{
    static const QColor marks[] = {QColor(0x2F, 0x6F, 0xD0), QColor(0xD9, 0x45, 0x3B), QColor(0x2F, 0xA0, 0x50),
                                   QColor(0xF0, 0x8C, 0x2E)};
    const QColor mark = marks[kind % 4];
    QIcon icon;
    for (int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.scale(size / 16.0, size / 16.0);
        switch (kind % 4) {
        case 0:
            p.fillRect(QRectF(3, 1, 10, 14), Qt::white);
            p.setPen(QPen(Ink, 1.0));
            p.drawRect(QRectF(3.5, 1.5, 9, 13));
            p.fillRect(QRectF(5, 4, 6, 1), mark);
            p.fillRect(QRectF(5, 7, 6, 2), Ink);
            p.fillRect(QRectF(5, 11, 4, 1), mark);
            break;
        case 1:
            p.fillRect(QRectF(2, 6, 12, 4), Ink);
            p.fillRect(QRectF(2, 12, 12, 2), mark);
            break;
        case 2:
            for (int row : {3, 7, 11}) {
                p.fillRect(QRectF(2, row, 2, 2), mark);
                p.fillRect(QRectF(6, row, 8, 2), Ink);
            }
            break;
        default:
            p.setRenderHint(QPainter::Antialiasing, true);
            p.setPen(Qt::NoPen);
            p.setBrush(mark);
            p.drawEllipse(QRectF(1, 1, 14, 14));
            p.fillRect(QRectF(4, 6, 8, 4), Ink);
            break;
        }
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

// The window every theme is pictured with: a ribbon with a few groups over a text area.
struct Sample
{
    RibbonMainWindow window;
    RibbonBar* bar = nullptr;
    QAction* quickSave = nullptr;
    QAction* italic = nullptr;
    QAction* disabled = nullptr;
    QTextEdit* editor = nullptr;

    Sample()
    {
        window.setWindowTitle(QStringLiteral("Отчёт - Tessaro"));
        bar = new RibbonBar;
        window.setRibbonBar(bar);
        bar->setFrameThemeEnabled(true);
        QAction* system = bar->addSystemButton(inkIcon(0), QStringLiteral("Файл"));
        system->menu()->addAction(inkIcon(1), QStringLiteral("Открыть..."));
        quickSave = bar->quickAccessBar()->addAction(inkIcon(0), QStringLiteral("Сохранить"));
        bar->quickAccessBar()->addAction(inkIcon(2), QStringLiteral("Список"));
        bar->quickAccessBar()->show();

        RibbonPage* home = bar->addPage(QStringLiteral("Главная"));
        RibbonGroup* clipboard = home->addGroup(QStringLiteral("Буфер обмена"));
        clipboard->addAction(inkIcon(0), QStringLiteral("Вставить"), Qt::ToolButtonTextUnderIcon);
        clipboard->addAction(inkIcon(3), QStringLiteral("Вырезать"), Qt::ToolButtonTextBesideIcon);
        disabled = clipboard->addAction(inkIcon(0), QStringLiteral("Копировать"), Qt::ToolButtonTextBesideIcon);
        disabled->setEnabled(false);
        RibbonGroup* font = home->addGroup(QStringLiteral("Шрифт"));
        QAction* bold = font->addAction(inkIcon(1), QStringLiteral("Полужирный"), Qt::ToolButtonIconOnly);
        bold->setCheckable(true);
        bold->setChecked(true);
        italic = font->addAction(inkIcon(1), QStringLiteral("Курсив"), Qt::ToolButtonIconOnly);
        font->addAction(inkIcon(3), QStringLiteral("Цвет"), Qt::ToolButtonIconOnly);
        RibbonGroup* paragraph = home->addGroup(QStringLiteral("Абзац"));
        paragraph->addAction(inkIcon(2), QStringLiteral("Список"), Qt::ToolButtonTextUnderIcon);
        paragraph->addAction(inkIcon(2), QStringLiteral("По центру"), Qt::ToolButtonTextBesideIcon);
        bar->addPage(QStringLiteral("Вставка"));
        bar->addPage(QStringLiteral("Вид"));

        editor = new QTextEdit;
        editor->setPlainText(QStringLiteral("Квартальный отчёт: выручка выросла на 12%."));
        QFont big = editor->font();
        big.setPointSize(14);
        editor->setFont(big);
        window.setCentralWidget(editor);
        window.resize(640, 300);
    }

    QImage render()
    {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            return QImage();
        QApplication::processEvents();
        return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    QPoint origin() const { return bar->mapTo(const_cast<RibbonMainWindow*>(&window), QPoint(0, 0)); }

    // The title strip and the tab row right of the tabs, in window coordinates.
    QRect frameRect() const
    {
        const QRect lastTab = bar->tabRect(bar->pageCount() - 1);
        return QRect(origin() + QPoint(lastTab.right() + 4, 0),
                     QSize(bar->width() - lastTab.right() - 4, lastTab.bottom() - 1));
    }

    // The page area under the tabs.
    QRect pageRect() const
    {
        const QRect page = bar->page(bar->currentPageIndex())->geometry();
        return QRect(origin() + page.topLeft(), page.size());
    }

    QPoint centreOf(QWidget* widget) const
    {
        return widget->mapTo(const_cast<RibbonMainWindow*>(&window), widget->rect().center());
    }

    // The middle of the small icon at the left of a ribbon button.
    QPoint iconCentre(QWidget* button) const
    {
        return button->mapTo(const_cast<RibbonMainWindow*>(&window), QPoint(3 + 8, button->height() / 2));
    }

    // The small button of an action in a ribbon group.
    QToolButton* buttonOf(QAction* action) const
    {
        for (RibbonGroup* group : bar->page(0)->groups()) {
            if (RibbonControl* control = group->controlByAction(action))
                return control->findChild<QToolButton*>();
        }
        return nullptr;
    }
};

// Lowest contrast, row by row, between the text drawn in `rect` and the
// background of that row just inside the rectangle's left edge; and the
// colour a reader would take for the text.
struct TextReading
{
    qreal schemeContrast = 21; ///< the scheme's text colour against the background, worst row
    qreal drawnContrast = 1;   ///< the strongest text pixel against its row's background
};

TextReading readText(const QImage& image, const QRect& rect, const QColor& textColor, int halfLine)
{
    TextReading reading;
    const int centre = rect.center().y();
    for (int y = centre - halfLine; y <= centre + halfLine; ++y) {
        const QColor background(image.pixel(rect.left() + 3, y));
        reading.schemeContrast = qMin(reading.schemeContrast, contrast(textColor, background));
        for (int x = rect.left() + 6; x < rect.right() - 4; ++x)
            reading.drawnContrast = qMax(reading.drawnContrast, contrast(QColor(image.pixel(x, y)), background));
    }
    return reading;
}

} // namespace

class tst_QtitanThemes : public QObject
{
    Q_OBJECT

private:
    QVector<QImage> m_renders; ///< one per theme, for the sheet and the comparisons

    const QVector<QImage>& renders()
    {
        if (m_renders.isEmpty()) {
            for (int i = 0; i < themeCases().size(); ++i) {
                useTheme(i);
                Sample sample;
                m_renders.append(sample.render());
            }
        }
        return m_renders;
    }

    void addThemeRows()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < themeCases().size(); ++i)
            QTest::newRow(qPrintable(caseName(themeCases().at(i)))) << i;
    }

    // Installs the theme as the application style and returns its scheme.
    static RibbonColors useTheme(int index)
    {
        CommonStyle* style = themeCases().at(index).create();
        QApplication::setStyle(style); // the application owns it from here
        return style->ribbonColors();
    }

private Q_SLOTS:
    void tabTextIsReadable_data() { addThemeRows(); }
    void tabTextIsReadable()
    {
        QFETCH(int, index);
        const RibbonColors colors = useTheme(index);
        Sample sample;
        const QImage image = sample.render();
        QVERIFY(!image.isNull());
        const int halfLine = sample.bar->fontMetrics().ascent() / 2;
        for (int i = 0; i < sample.bar->pageCount(); ++i) {
            const QRect tab = sample.bar->tabRect(i).translated(sample.origin());
            const QColor text = i == sample.bar->currentPageIndex() ? colors.tabTextSelected : colors.tabText;
            const TextReading reading = readText(image, tab, text, halfLine);
            QVERIFY2(reading.schemeContrast >= 4.5,
                     qPrintable(QStringLiteral("tab %1: %2").arg(i).arg(reading.schemeContrast)));
            QVERIFY2(reading.drawnContrast >= 4.5,
                     qPrintable(QStringLiteral("tab %1 drawn: %2").arg(i).arg(reading.drawnContrast)));
        }
        // The File tab of the families that write its name on it (the others show an icon).
        const QByteArray family = themeCases().at(index).family;
        if (family == "Office 2010" || family == "Office 2013" || family == "Office 2016"
            || family == "Adobe Photoshop") {
            RibbonSystemButton* system = sample.bar->systemButton();
            const QRect button(system->mapTo(&sample.window, QPoint(0, 0)), system->size());
            const TextReading file = readText(image, button.adjusted(0, 3, 0, 0), colors.systemButtonText, halfLine);
            QVERIFY2(file.schemeContrast >= 4.5, qPrintable(QString::number(file.schemeContrast)));
            QVERIFY2(file.drawnContrast >= 4.5, qPrintable(QString::number(file.drawnContrast)));
        }
    }

    void hostTextColourIsKept_data() { addThemeRows(); }
    void hostTextColourIsKept()
    {
        QFETCH(int, index);
        QScopedPointer<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
        const QPalette plain = fusion->standardPalette();
        const RibbonColors colors = useTheme(index);
        QTextEdit textEdit;
        QPlainTextEdit plainTextEdit;
        for (QWidget* editor : {static_cast<QWidget*>(&textEdit), static_cast<QWidget*>(&plainTextEdit)}) {
            for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
                QCOMPARE(editor->palette().color(group, QPalette::Text), plain.color(group, QPalette::Text));
                QCOMPARE(editor->palette().color(group, QPalette::Base), plain.color(group, QPalette::Base));
            }
        }
        // The style still colours the window around the document.
        QCOMPARE(textEdit.palette().color(QPalette::Window), colors.pageBackgroundBottom);

        // What is drawn: the darkest pixel of the document's text is the palette's text colour.
        Sample sample;
        const QImage image = sample.render();
        const QRect viewport(sample.editor->viewport()->mapTo(&sample.window, QPoint(0, 0)),
                             sample.editor->viewport()->size());
        QColor darkest = Qt::white;
        for (int y = viewport.top(); y < viewport.top() + 40; ++y) {
            for (int x = viewport.left(); x < viewport.right(); ++x) {
                const QColor pixel(image.pixel(x, y));
                if (luminance(pixel) < luminance(darkest))
                    darkest = pixel;
            }
        }
        QCOMPARE(darkest.name(), plain.color(QPalette::Text).name());
    }

    void darkThemesAreDarkAndLightOnesLight_data() { addThemeRows(); }
    void darkThemesAreDarkAndLightOnesLight()
    {
        QFETCH(int, index);
        const ThemeCase& theme = themeCases().at(index);
        useTheme(index);
        Sample sample;
        const QImage image = sample.render();
        auto check = [&](Tone tone, const QRect& rect, const char* part) {
            const qreal mean = meanLuminance(image, rect);
            const QString message = QStringLiteral("%1 mean luminance %2").arg(QLatin1String(part)).arg(mean);
            // #595959 and #A0A0A0 are about 0.1 and 0.35.
            if (tone == Tone::Dark)
                QVERIFY2(mean < 0.1, qPrintable(message));
            else if (tone == Tone::Light)
                QVERIFY2(mean > 0.35, qPrintable(message));
        };
        check(theme.frame, sample.frameRect(), "frame");
        check(theme.page, sample.pageRect(), "page");
    }

    void iconsStayVisible_data() { addThemeRows(); }
    void iconsStayVisible()
    {
        QFETCH(int, index);
        const RibbonColors colors = useTheme(index);
        Sample sample;
        const QImage image = sample.render();
        const bool darkPage = themeCases().at(index).page == Tone::Dark;

        // The ink across the middle of a button's icon against the page just left of the icon.
        QToolButton* italic = sample.buttonOf(sample.italic);
        QVERIFY(italic);
        const QPoint stroke = sample.iconCentre(italic);
        const QColor page(image.pixel(stroke.x() - 9, stroke.y()));
        const QColor ink(image.pixel(stroke));
        if (darkPage) {
            QVERIFY2(contrast(ink, page) >= 3.0, qPrintable(QString::number(contrast(ink, page))));
        } else {
            // Light themes draw the icon as it is.
            QCOMPARE(ink.name(), Ink.name());
        }

        // A disabled icon stays visible on a dark page, but fainter than an enabled one.
        QToolButton* disabled = sample.buttonOf(sample.disabled);
        QVERIFY(disabled);
        const QPoint dimmed = sample.iconCentre(disabled);
        const qreal dimmedContrast = contrast(QColor(image.pixel(dimmed)), QColor(image.pixel(dimmed.x() - 9, dimmed.y())));
        if (darkPage) {
            QVERIFY2(dimmedContrast >= 1.4, qPrintable(QString::number(dimmedContrast)));
            QVERIFY(dimmedContrast < contrast(ink, page));
        }

        // The quick access bar sits on the frame, which is dark in more themes.
        auto* save = qobject_cast<QToolButton*>(sample.bar->quickAccessBar()->widgetForAction(sample.quickSave));
        QVERIFY(save);
        const QPoint saveInk = sample.centreOf(save);
        const QColor frame(image.pixel(saveInk.x() - 9, saveInk.y()));
        QVERIFY2(contrast(QColor(image.pixel(saveInk)), frame) >= 3.0,
                 qPrintable(QString::number(contrast(QColor(image.pixel(saveInk)), frame))));

        // And the menus, dark in the dark themes.
        QMenu menu;
        menu.addAction(inkIcon(0), QStringLiteral("Открыть"));
        menu.resize(menu.sizeHint());
        const QImage menuImage = menu.grab().toImage();
        qreal strongest = 1;
        for (int y = 2; y < menuImage.height() - 2; ++y) {
            for (int x = 2; x < 28; ++x)
                strongest = qMax(strongest, contrast(QColor(menuImage.pixel(x, y)), colors.menuBackground));
        }
        QVERIFY2(strongest >= 3.0, qPrintable(QString::number(strongest)));
    }

    // Each family's signature: the round application button of 2007 against the
    // File tabs of the others, the boxed groups with a title band of 2007, the
    // lit pages of 2007, 2010 and Windows 7 against the flat ones of 2013, 2016
    // and Photoshop, and 2016 Colorful's title band in the accent colour.
    void familySignatures_data() { addThemeRows(); }
    void familySignatures()
    {
        QFETCH(int, index);
        const RibbonColors colors = useTheme(index);
        Sample sample;
        const QImage image = sample.render();
        const QByteArray family = themeCases().at(index).family;
        auto pixel = [&](const QPoint& p) { return QColor(image.pixel(p)).name(); };

        const QRect page = sample.pageRect();
        const int right = page.right() - 10; // page background beyond the last group
        const QString frame = pixel(QPoint(right, sample.bar->tabRect(0).center().y() + sample.origin().y()));
        QCOMPARE(frame, colors.frameBackground.name());

        RibbonSystemButton* system = sample.bar->systemButton();
        auto inButton = [&](int x, int y) { return pixel(system->mapTo(&sample.window, QPoint(x, y))); };
        const int bottom = system->height() - 3;
        if (family == "Office 2007") {
            QCOMPARE(inButton(1, 4), frame); // round: the corners show the frame
            QVERIFY(inButton(system->width() / 2, 3) != frame);
        } else {
            QVERIFY(inButton(3, bottom) != frame); // a tab: filled to its corners
        }

        RibbonGroup* group = sample.bar->page(0)->groups().first();
        const QRect groupRect(group->mapTo(&sample.window, QPoint(0, 0)), group->size());
        const int titleY = groupRect.bottom() - sample.bar->fontMetrics().height() / 2 - 2;
        const bool titleBand = pixel(QPoint(groupRect.left() + 3, titleY)) != pixel(QPoint(right, titleY));
        QCOMPARE(titleBand, family == "Office 2007");

        const bool flatPage = pixel(QPoint(right, page.top() + 2)) == pixel(QPoint(right, page.bottom() - 2));
        QCOMPARE(flatPage, family == "Office 2013" || family == "Office 2016" || family == "Adobe Photoshop");

        if (family == "Office 2016" && qstrcmp(themeCases().at(index).theme, "Colorful") == 0) {
            QCOMPARE(pixel(sample.origin() + QPoint(sample.bar->width() - 10, 4)), colors.frameBackground.name());
            QVERIFY(colors.frameBackground.saturation() > 128);
        }

        // A group shrunk to a button keeps 2007's box around it.
        sample.window.resize(240, 300);
        QTRY_COMPARE(sample.bar->page(0)->groups().last()->currentSize(), RibbonControlSizeDefinition::GroupPopup);
        const QImage narrow = sample.render();
        RibbonGroup* shrunk = sample.bar->page(0)->groups().last();
        const QPoint edge = shrunk->mapTo(&sample.window, QPoint(0, shrunk->height() / 2));
        const bool boxed = QColor(narrow.pixel(edge)) != QColor(narrow.pixel(edge + QPoint(2, 0)));
        QCOMPARE(boxed, family == "Office 2007");
    }

    // Every theme looks like itself: the ribbons of two themes differ clearly.
    void themesCanBeToldApart()
    {
        const QVector<QImage>& images = renders();
        for (const QImage& image : images)
            QVERIFY(!image.isNull());
        Sample sample;
        const int ribbonHeight = sample.bar->sizeHint().height();
        auto difference = [&](const QImage& a, const QImage& b) {
            const int width = qMin(a.width(), b.width());
            const int height = qMin(ribbonHeight, qMin(a.height(), b.height()));
            qint64 sum = 0;
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    const QRgb p = a.pixel(x, y);
                    const QRgb q = b.pixel(x, y);
                    sum += qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
                }
            }
            return qreal(sum) / (3.0 * width * height);
        };
        for (int i = 0; i < images.size(); ++i) {
            for (int j = i + 1; j < images.size(); ++j) {
                const qreal d = difference(images.at(i), images.at(j));
                QVERIFY2(d >= 4.0, qPrintable(QStringLiteral("%1 / %2: %3")
                                                  .arg(caseName(themeCases().at(i)), caseName(themeCases().at(j)))
                                                  .arg(d)));
            }
        }
    }

    // The reference sheet: one row per family, one column per theme.
    void referenceSheet()
    {
        const QString path = qEnvironmentVariable("TESSARO_STYLE_SHEET");
        if (path.isEmpty())
            QSKIP("TESSARO_STYLE_SHEET names no file to write");
        const QVector<QImage>& images = renders();
        const QSize cell = images.first().size();
        const int label = 26;
        const int gap = 12;
        QStringList families;
        int columns = 0;
        for (const ThemeCase& c : themeCases()) {
            if (!families.contains(QLatin1String(c.family)))
                families.append(QLatin1String(c.family));
            columns = qMax(columns, int(std::count_if(themeCases().cbegin(), themeCases().cend(),
                                                      [&](const ThemeCase& other) {
                                                          return qstrcmp(other.family, c.family) == 0;
                                                      })));
        }
        QImage sheet(gap + columns * (cell.width() + gap), gap + families.size() * (label + cell.height() + gap),
                     QImage::Format_RGB32);
        sheet.fill(QColor(0xF4, 0xF4, 0xF4));
        QPainter painter(&sheet);
        QFont font = painter.font();
        font.setPointSize(11);
        font.setBold(true);
        painter.setFont(font);
        QVector<int> used(families.size(), 0);
        for (int i = 0; i < themeCases().size(); ++i) {
            const ThemeCase& c = themeCases().at(i);
            const int row = families.indexOf(QLatin1String(c.family));
            const int column = used[row]++;
            const QPoint at(gap + column * (cell.width() + gap), gap + row * (label + cell.height() + gap));
            painter.setPen(QColor(0x30, 0x30, 0x30));
            painter.drawText(QRect(at, QSize(cell.width(), label)), Qt::AlignLeft | Qt::AlignVCenter,
                             QStringLiteral("%1 — %2").arg(QLatin1String(c.family), QLatin1String(c.theme)));
            painter.drawImage(at + QPoint(0, label), images.at(i));
            painter.setPen(QColor(0xB0, 0xB0, 0xB0));
            painter.drawRect(QRect(at + QPoint(0, label), cell).adjusted(-1, -1, 0, 0));
        }
        painter.end();
        QVERIFY(sheet.save(path));
    }
};

QTEST_MAIN(tst_QtitanThemes)
#include "tst_qtitanthemes.moc"
