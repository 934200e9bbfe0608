// Builds a sample ribbon in every style family, checks what a user would see
// at a wide and a narrow width, and saves PNGs when TESSARO_SCREENSHOT_DIR is set.
#include <QtitanRibbon.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPaintEvent>
#include <QStyleOption>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QTextEdit>
#include <QWidgetAction>
#include <QtTest>

#include <functional>

using namespace Qtitan;

namespace {

// A small flat glyph: a rounded tile in a colour with a white mark.
QIcon glyph(const QColor& color, int kind)
{
    QIcon icon;
    for (int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        const qreal s = size;
        p.setPen(Qt::NoPen);
        p.setBrush(color);
        switch (kind % 4) {
        case 0:
            p.drawRoundedRect(QRectF(s * 0.12, s * 0.08, s * 0.76, s * 0.84), s * 0.1, s * 0.1);
            p.setBrush(Qt::white);
            for (int i = 0; i < 3; ++i)
                p.drawRect(QRectF(s * 0.25, s * (0.3 + 0.17 * i), s * 0.5, s * 0.07));
            break;
        case 1:
            p.drawEllipse(QRectF(s * 0.1, s * 0.1, s * 0.8, s * 0.8));
            p.setBrush(Qt::white);
            p.drawEllipse(QRectF(s * 0.35, s * 0.35, s * 0.3, s * 0.3));
            break;
        case 2: {
            QPainterPath path;
            path.moveTo(s * 0.5, s * 0.08);
            path.lineTo(s * 0.92, s * 0.9);
            path.lineTo(s * 0.08, s * 0.9);
            path.closeSubpath();
            p.drawPath(path);
            break;
        }
        default:
            p.drawRect(QRectF(s * 0.1, s * 0.1, s * 0.35, s * 0.35));
            p.drawRect(QRectF(s * 0.55, s * 0.1, s * 0.35, s * 0.35));
            p.drawRect(QRectF(s * 0.1, s * 0.55, s * 0.35, s * 0.35));
            p.drawRect(QRectF(s * 0.55, s * 0.55, s * 0.35, s * 0.35));
            break;
        }
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QMenu* sampleMenu(QWidget* parent, const QStringList& entries)
{
    auto* menu = new QMenu(parent);
    int i = 0;
    for (const QString& entry : entries)
        menu->addAction(glyph(QColor(0x3C, 0x78, 0xD8), i++), entry);
    return menu;
}

void addSeparator(QWidget* group)
{
    auto* separator = new QAction(group);
    separator->setSeparator(true);
    group->addAction(separator);
}

// The document area of a host written against the ribbon API: tabbed, and
// painted with the style's workspace element where no document covers it.
class WorkspaceArea : public QMdiArea
{
public:
    WorkspaceArea()
    {
        setViewMode(QMdiArea::TabbedView);
        setTabPosition(QTabWidget::South);
        setTabsClosable(true);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(viewport());
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(CommonStyle::PE_Workspace), &option,
                               &painter, this);
    }
};

struct Sample
{
    RibbonMainWindow window;
    RibbonBar* bar = nullptr;
    QAction* checked = nullptr;
    QAction* disabled = nullptr;

    Sample()
    {
        window.setWindowTitle(QStringLiteral("Отчёт за квартал - Tessaro"));
        bar = new RibbonBar;
        window.setRibbonBar(bar);
        bar->setFrameThemeEnabled(true);
        QAction* system = bar->addSystemButton(glyph(QColor(0x2B, 0x57, 0x9A), 1), QStringLiteral("Файл"));
        QMenu* systemMenu = system->menu();
        systemMenu->addAction(glyph(QColor(0x2B, 0x57, 0x9A), 0), QStringLiteral("Создать"));
        systemMenu->addAction(glyph(QColor(0xE0, 0x9A, 0x1B), 3), QStringLiteral("Открыть..."));
        systemMenu->addAction(glyph(QColor(0x21, 0x8A, 0x4B), 1), QStringLiteral("Сохранить"));
        systemMenu->addSeparator();
        systemMenu->addAction(QStringLiteral("Печать"));
        auto* menu = qobject_cast<RibbonSystemMenu*>(systemMenu);
        menu->addPopupBarAction(new QAction(glyph(QColor(0x60, 0x60, 0x60), 3), QStringLiteral("Параметры"), menu),
                                Qt::ToolButtonTextBesideIcon);
        menu->addPopupBarAction(QStringLiteral("Выход"));

        RibbonQuickAccessBar* quick = bar->quickAccessBar();
        quick->addAction(glyph(QColor(0x21, 0x8A, 0x4B), 1), QStringLiteral("Сохранить"));
        quick->addAction(glyph(QColor(0xE0, 0x9A, 0x1B), 2), QStringLiteral("Отменить"));
        quick->addAction(glyph(QColor(0x3C, 0x78, 0xD8), 0), QStringLiteral("Повторить"));
        quick->show();

        RibbonPage* home = bar->addPage(QStringLiteral("Главная"));
        RibbonGroup* clipboard = home->addGroup(QStringLiteral("Буфер обмена"));
        clipboard->addAction(glyph(QColor(0xC2, 0x7C, 0x0E), 0), QStringLiteral("Вставить"), Qt::ToolButtonTextUnderIcon,
                             sampleMenu(&window, {QStringLiteral("Вставить"), QStringLiteral("Специальная вставка")}));
        clipboard->addAction(glyph(QColor(0x3C, 0x78, 0xD8), 2), QStringLiteral("Вырезать"), Qt::ToolButtonTextBesideIcon);
        clipboard->addAction(glyph(QColor(0x3C, 0x78, 0xD8), 3), QStringLiteral("Копировать"), Qt::ToolButtonTextBesideIcon);
        checked = clipboard->addAction(glyph(QColor(0xB0, 0x3A, 0x2E), 1), QStringLiteral("Формат по образцу"),
                                       Qt::ToolButtonTextBesideIcon);
        checked->setCheckable(true);
        checked->setChecked(true);

        RibbonGroup* font = home->addGroup(QStringLiteral("Шрифт"));
        auto* combo = new QComboBox;
        combo->addItems({QStringLiteral("Calibri"), QStringLiteral("Arial"), QStringLiteral("Times New Roman")});
        auto* comboAction = new QWidgetAction(font);
        comboAction->setDefaultWidget(combo);
        font->addAction(comboAction);
        QAction* bold = font->addAction(glyph(QColor(0x33, 0x33, 0x33), 3), QStringLiteral("Полужирный"),
                                        Qt::ToolButtonIconOnly);
        bold->setCheckable(true);
        bold->setChecked(true);
        font->addAction(glyph(QColor(0x33, 0x33, 0x33), 2), QStringLiteral("Курсив"), Qt::ToolButtonIconOnly);
        font->addAction(glyph(QColor(0x33, 0x33, 0x33), 1), QStringLiteral("Подчёркнутый"), Qt::ToolButtonIconOnly);
        addSeparator(font);
        font->addAction(glyph(QColor(0xD1, 0x34, 0x38), 0), QStringLiteral("Цвет текста"), Qt::ToolButtonIconOnly,
                        sampleMenu(&window, {QStringLiteral("Красный"), QStringLiteral("Синий")}));

        RibbonGroup* paragraph = home->addGroup(QStringLiteral("Абзац"));
        paragraph->addAction(glyph(QColor(0x5B, 0x5B, 0x5B), 0), QStringLiteral("По левому краю"),
                             Qt::ToolButtonTextBesideIcon);
        paragraph->addAction(glyph(QColor(0x5B, 0x5B, 0x5B), 0), QStringLiteral("По центру"), Qt::ToolButtonTextBesideIcon);
        disabled = paragraph->addAction(glyph(QColor(0x5B, 0x5B, 0x5B), 0), QStringLiteral("По ширине"),
                                        Qt::ToolButtonTextBesideIcon);
        disabled->setEnabled(false);
        addSeparator(paragraph);
        paragraph->addAction(glyph(QColor(0x21, 0x8A, 0x4B), 3), QStringLiteral("Список"), Qt::ToolButtonTextUnderIcon,
                             sampleMenu(&window, {QStringLiteral("Маркеры"), QStringLiteral("Нумерация")}),
                             QToolButton::InstantPopup);

        RibbonGroup* editing = home->addGroup(QStringLiteral("Редактирование"));
        editing->addAction(glyph(QColor(0x3C, 0x78, 0xD8), 1), QStringLiteral("Найти"), Qt::ToolButtonTextUnderIcon,
                           sampleMenu(&window, {QStringLiteral("Найти"), QStringLiteral("Перейти")}),
                           QToolButton::InstantPopup);
        editing->addAction(glyph(QColor(0x3C, 0x78, 0xD8), 2), QStringLiteral("Заменить"), Qt::ToolButtonTextUnderIcon);
        editing->addAction(glyph(QColor(0x3C, 0x78, 0xD8), 3), QStringLiteral("Выделить"), Qt::ToolButtonTextUnderIcon);

        RibbonPage* insert = bar->addPage(QStringLiteral("Вставка"));
        RibbonGroup* tables = insert->addGroup(QStringLiteral("Таблицы"));
        tables->addAction(glyph(QColor(0x2B, 0x57, 0x9A), 3), QStringLiteral("Таблица"), Qt::ToolButtonTextUnderIcon);
        RibbonGroup* pictures = insert->addGroup(QStringLiteral("Иллюстрации"));
        pictures->addAction(glyph(QColor(0x21, 0x8A, 0x4B), 2), QStringLiteral("Рисунок"), Qt::ToolButtonTextUnderIcon);
        pictures->addAction(glyph(QColor(0xC2, 0x7C, 0x0E), 1), QStringLiteral("Фигуры"), Qt::ToolButtonTextUnderIcon);
        bar->addPage(QStringLiteral("Вид"))->addGroup(QStringLiteral("Окно"))->addAction(
            glyph(QColor(0x5B, 0x5B, 0x5B), 3), QStringLiteral("Новое окно"), Qt::ToolButtonTextUnderIcon);
        bar->addPage(QStringLiteral("Справка"));

        auto* mdi = new WorkspaceArea;
        window.setCentralWidget(mdi);
        auto* document = mdi->addSubWindow(new QTextEdit(QStringLiteral("Квартальный отчёт")));
        document->setWindowTitle(QStringLiteral("Отчёт"));
        document->show();
        auto* other = mdi->addSubWindow(new QTextEdit);
        other->setWindowTitle(QStringLiteral("Заметки"));
        other->show();
        mdi->setActiveSubWindow(document);
    }
};

QString screenshotDir()
{
    return qEnvironmentVariable("TESSARO_SCREENSHOT_DIR");
}

void save(const QImage& image, const QString& name)
{
    const QString dir = screenshotDir();
    if (dir.isEmpty())
        return;
    QDir().mkpath(dir);
    QVERIFY(image.save(QDir(dir).filePath(name + QStringLiteral(".png"))));
}

// Controls of the shown page, each with its rectangle in the bar's coordinates.
QList<QPair<QWidget*, QRect>> visibleControls(RibbonBar* bar)
{
    QList<QPair<QWidget*, QRect>> result;
    RibbonPage* page = bar->page(bar->currentPageIndex());
    for (RibbonGroup* group : page->groups()) {
        for (int i = 0; i < group->controlCount(); ++i) {
            RibbonControl* control = group->controlByIndex(i);
            if (control->isVisibleTo(bar))
                result.append({control, QRect(control->mapTo(bar, QPoint(0, 0)), control->size())});
        }
    }
    return result;
}

} // namespace

class tst_QtitanScreenshots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QObject*>("style");
        QTest::newRow("office2016-colorful") << QStringLiteral("office2016-colorful")
                                             << static_cast<QObject*>(new Office2016Style(Office2016Style::Colorful));
        QTest::newRow("office2016-white") << QStringLiteral("office2016-white")
                                          << static_cast<QObject*>(new Office2016Style(Office2016Style::White));
        QTest::newRow("office2016-darkgray") << QStringLiteral("office2016-darkgray")
                                             << static_cast<QObject*>(new Office2016Style(Office2016Style::DarkGray));
        QTest::newRow("office2016-black") << QStringLiteral("office2016-black")
                                          << static_cast<QObject*>(new Office2016Style(Office2016Style::Black));
        QTest::newRow("office2013-white") << QStringLiteral("office2013-white")
                                          << static_cast<QObject*>(new Office2013Style(Office2013Style::White));
        QTest::newRow("office2013-gray") << QStringLiteral("office2013-gray")
                                         << static_cast<QObject*>(new Office2013Style(Office2013Style::Gray));
        QTest::newRow("office2013-dark") << QStringLiteral("office2013-dark")
                                         << static_cast<QObject*>(new Office2013Style(Office2013Style::Dark));
        QTest::newRow("office2010-blue") << QStringLiteral("office2010-blue")
                                         << static_cast<QObject*>(new Office2010Style(Office2010Style::Blue));
        QTest::newRow("office2010-silver") << QStringLiteral("office2010-silver")
                                           << static_cast<QObject*>(new Office2010Style(Office2010Style::Silver));
        QTest::newRow("office2010-black") << QStringLiteral("office2010-black")
                                          << static_cast<QObject*>(new Office2010Style(Office2010Style::Black));
        QTest::newRow("office2007-blue") << QStringLiteral("office2007-blue")
                                         << static_cast<QObject*>(new Office2007Style(Office2007Style::Blue));
        QTest::newRow("office2007-black") << QStringLiteral("office2007-black")
                                          << static_cast<QObject*>(new Office2007Style(Office2007Style::Black));
        QTest::newRow("office2007-silver") << QStringLiteral("office2007-silver")
                                           << static_cast<QObject*>(new Office2007Style(Office2007Style::Silver));
        QTest::newRow("office2007-aqua") << QStringLiteral("office2007-aqua")
                                         << static_cast<QObject*>(new Office2007Style(Office2007Style::Aqua));
        QTest::newRow("photoshop-lightgray") << QStringLiteral("photoshop-lightgray")
                                             << static_cast<QObject*>(new AdobePhotoshopStyle(AdobePhotoshopStyle::LightGray));
        QTest::newRow("photoshop-gray") << QStringLiteral("photoshop-gray")
                                        << static_cast<QObject*>(new AdobePhotoshopStyle(AdobePhotoshopStyle::Gray));
        QTest::newRow("photoshop-darkgray") << QStringLiteral("photoshop-darkgray")
                                            << static_cast<QObject*>(new AdobePhotoshopStyle(AdobePhotoshopStyle::DarkGray));
        QTest::newRow("photoshop-black") << QStringLiteral("photoshop-black")
                                         << static_cast<QObject*>(new AdobePhotoshopStyle(AdobePhotoshopStyle::Black));
        QTest::newRow("windows7-scenic") << QStringLiteral("windows7-scenic")
                                         << static_cast<QObject*>(new Windows7ScenicStyle);
    }

    void styles()
    {
        QFETCH(QString, name);
        QFETCH(QObject*, style);
        auto* common = qobject_cast<CommonStyle*>(style);
        QVERIFY(common);
        QApplication::setStyle(common); // the application owns it from here
        const RibbonColors colors = common->ribbonColors();

        Sample sample;
        for (int width : {1600, 700}) {
            sample.window.resize(width, 520);
            sample.window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&sample.window));
            RibbonBar* bar = sample.bar;
            QTRY_COMPARE(bar->width(), width);
            QTRY_COMPARE(bar->height(), bar->heightForWidth(width));
            QApplication::processEvents();

            // No control overlaps another or leaves the page.
            const auto controls = visibleControls(bar);
            QVERIFY(controls.size() >= 8);
            const QRect pageRect = bar->page(bar->currentPageIndex())->geometry();
            for (int i = 0; i < controls.size(); ++i) {
                QVERIFY2(pageRect.contains(controls.at(i).second), qPrintable(name));
                for (int j = i + 1; j < controls.size(); ++j)
                    QVERIFY2(!controls.at(i).second.intersects(controls.at(j).second), qPrintable(name));
            }

            const QImage image = sample.window.grab().toImage();
            save(image, QStringLiteral("%1-%2").arg(name).arg(width));
            const QPoint barOrigin = bar->mapTo(&sample.window, QPoint(0, 0));
            // The tab row right of the last tab shows the frame colour.
            const QRect lastTab = bar->tabRect(bar->pageCount() - 1);
            QCOMPARE(QColor(image.pixel(barOrigin + QPoint(width - 4, lastTab.center().y()))).name(),
                     colors.frameBackground.name());
            // The selected tab is joined to the page: no border line under it.
            const QRect selected = bar->tabRect(bar->currentPageIndex());
            QCOMPARE(QColor(image.pixel(barOrigin + QPoint(selected.left() + 3, selected.bottom()))).name(),
                     colors.tabSelectedBackground.name());
            QCOMPARE(QColor(image.pixel(barOrigin + QPoint(selected.left() - 3, selected.bottom()))).name(),
                     colors.tabBorder.name());
        }

        // Without the frame theme the quick access bar has a row above the tabs.
        RibbonBar* bar = sample.bar;
        bar->setFrameThemeEnabled(false);
        sample.window.resize(1000, 520);
        QTRY_COMPARE(bar->height(), bar->heightForWidth(bar->width()));
        const QRect quick = bar->quickAccessBar()->geometry();
        QVERIFY(bar->quickAccessBar()->isVisible());
        QVERIFY(quick.bottom() < bar->tabRect(0).top());
        QVERIFY(quick.left() < bar->tabRect(0).left());
        // Hovering a tab highlights it.
        QTest::mouseMove(bar, bar->tabRect(2).center());
        QMouseEvent move(QEvent::MouseMove, QPointF(bar->tabRect(2).center()), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        const QImage plain = sample.window.grab().toImage();
        save(plain, name + QStringLiteral("-plain"));
        const QPoint barOrigin = bar->mapTo(&sample.window, QPoint(0, 0));
        const QPoint hovered = barOrigin + QPoint(bar->tabRect(2).left() + 4, bar->tabRect(2).center().y());
        QCOMPARE(QColor(plain.pixel(hovered)).name(), colors.tabHoverBackground.name());

        // Minimised, only the tabs remain.
        const int fullHeight = bar->height();
        bar->setMinimized(true);
        QTRY_VERIFY(bar->height() < fullHeight - 40);
        save(sample.window.grab().toImage(), name + QStringLiteral("-minimized"));
        bar->setMinimized(false);
        QTRY_COMPARE(bar->height(), fullHeight);

        // With no document open the workspace shows the scheme's colour.
        auto* mdi = qobject_cast<QMdiArea*>(sample.window.centralWidget());
        mdi->closeAllSubWindows();
        QTRY_VERIFY(mdi->subWindowList().isEmpty());
        const QImage empty = sample.window.grab().toImage();
        save(empty, name + QStringLiteral("-empty"));
        const QPoint workspace = mdi->mapTo(&sample.window, QPoint(mdi->width() / 2, mdi->height() / 2));
        QCOMPARE(QColor(empty.pixel(workspace)).name(), colors.workspaceBackground.name());

        // The system menu with its bottom bar.
        if (!screenshotDir().isEmpty()) {
            QMenu* menu = sample.bar->systemButton()->defaultAction()->menu();
            menu->popup(sample.bar->systemButton()->mapToGlobal(QPoint(0, sample.bar->systemButton()->height())));
            QVERIFY(QTest::qWaitForWindowExposed(menu));
            save(menu->grab().toImage(), name + QStringLiteral("-menu"));
            menu->hide();
        }
    }
};

QTEST_MAIN(tst_QtitanScreenshots)
#include "tst_qtitanscreenshots.moc"
