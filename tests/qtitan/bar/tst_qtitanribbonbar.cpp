#include <QtitanRibbon.h>

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

using namespace Qtitan;

namespace {

QList<QToolButton*> visibleButtons(QWidget* container)
{
    QList<QToolButton*> result;
    const QList<QToolButton*> buttons = container->findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (button->isVisibleTo(container) && button->defaultAction())
            result.append(button);
    }
    return result;
}

// The shown button of an action (a removed one may linger hidden until deleted).
QToolButton* buttonFor(QWidget* container, QAction* action)
{
    for (QToolButton* button : container->findChildren<QToolButton*>()) {
        if (button->defaultAction() == action && button->isVisibleTo(container))
            return button;
    }
    return nullptr;
}

} // namespace

class tst_QtitanRibbonBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void systemButtonWithIconAndText()
    {
        RibbonBar bar;
        QVERIFY(!bar.systemButton());
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        QAction* action = bar.addSystemButton(QIcon(pixmap), QStringLiteral("File"));
        QVERIFY(action);
        QVERIFY(bar.systemButton());
        QVERIFY(qobject_cast<QToolButton*>(bar.systemButton()));
        QCOMPARE(bar.systemButton()->defaultAction(), action);
        QCOMPARE(action->text(), QStringLiteral("File"));
        QVERIFY(!action->icon().isNull());
        QVERIFY(qobject_cast<RibbonSystemMenu*>(action->menu()));
        QCOMPARE(bar.systemButton()->parentWidget(), static_cast<QWidget*>(&bar));
    }

    void systemButtonTextOnly()
    {
        RibbonBar bar;
        QAction* action = bar.addSystemButton(QStringLiteral("Файл"));
        QCOMPARE(action->text(), QStringLiteral("Файл"));
        QVERIFY(action->icon().isNull());
        QVERIFY(qobject_cast<RibbonSystemMenu*>(bar.systemButton()->defaultAction()->menu()));
        // A second call reuses the one button.
        QAction* again = bar.addSystemButton(QStringLiteral("Menu"));
        QCOMPARE(again, action);
        QCOMPARE(bar.systemButton()->defaultAction()->text(), QStringLiteral("Menu"));
        QCOMPARE(bar.findChildren<RibbonSystemButton*>().size(), 1);
    }

    void systemButtonSitsAtTheLeftOfTheTabs()
    {
        RibbonBar bar;
        bar.addSystemButton(QStringLiteral("File"));
        bar.resize(800, bar.heightForWidth(800));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        const QRect geometry = bar.systemButton()->geometry();
        QCOMPARE(geometry.left(), 0);
        QVERIFY(geometry.width() > bar.fontMetrics().horizontalAdvance(QStringLiteral("File")));
        QVERIFY(geometry.height() >= bar.fontMetrics().height());
        // The page area lies below it.
        QVERIFY(geometry.bottom() < bar.height() - 40);
    }

    void systemButtonOpensItsMenuBelowIt()
    {
        RibbonMainWindow window;
        auto* bar = new RibbonBar;
        window.setRibbonBar(bar);
        QAction* action = bar->addSystemButton(QStringLiteral("File"));
        action->menu()->addAction(QStringLiteral("Open"));
        window.resize(600, 400);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        RibbonSystemButton* button = bar->systemButton();
        QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
        QPoint menuPos;
        bool shown = false;
        // The button runs the menu modally; look at it from inside and close it.
        QTimer poll;
        poll.setInterval(10);
        connect(&poll, &QTimer::timeout, this, [&]() {
            QMenu* menu = action->menu();
            if (!menu->isVisible())
                return;
            shown = true;
            menuPos = menu->pos();
            poll.stop();
            menu->close();
        });
        poll.start();
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(shown);
        const QPoint below = button->mapToGlobal(QPoint(0, button->height()));
        QCOMPARE(menuPos, below);
    }

    void frameThemeShowsTheWindowTitle()
    {
        Office2016Style style(Office2016Style::Colorful);
        QWidget window;
        window.setStyle(&style);
        auto* bar = new RibbonBar(&window);
        bar->setStyle(&style);
        bar->setFrameThemeEnabled(true);
        bar->resize(600, bar->heightForWidth(600));
        const QColor frame = style.ribbonColors().frameBackground;
        auto titleInk = [&]() {
            const QImage image = bar->grab().toImage();
            int ink = 0;
            for (int x = 200; x < 400; ++x) {
                for (int y = 0; y < bar->tabRect(0).top(); ++y)
                    ink += QColor(image.pixel(x, y)) != frame ? 1 : 0;
            }
            return ink;
        };
        bar->addPage(QStringLiteral("Home"));
        QCOMPARE(titleInk(), 0);
        window.setWindowTitle(QStringLiteral("Quarterly report - Tessaro"));
        QVERIFY(titleInk() > 20);
        bar->setFrameThemeEnabled(false);
        // Without the frame theme (and no quick access bar) there is no title strip.
        QVERIFY(bar->tabRect(0).top() < 8);
        bar->setStyle(nullptr);
        window.setStyle(nullptr);
    }

    void popupBarActions()
    {
        RibbonSystemMenu menu;
        auto* options = new QAction(QStringLiteral("Options"), &menu);
        menu.addPopupBarAction(options, Qt::ToolButtonTextBesideIcon);
        QAction* exit = menu.addPopupBarAction(QStringLiteral("Exit"));
        QVERIFY(exit);
        QCOMPARE(exit->text(), QStringLiteral("Exit"));
        QCOMPARE(menu.popupBarActions(), (QList<QAction*>{options, exit}));
        // Bottom bar actions are not entries of the menu itself.
        QVERIFY(!menu.actions().contains(options));

        menu.addAction(QStringLiteral("New"));
        menu.addAction(QStringLiteral("Open"));
        menu.popup(QPoint(10, 10));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));

        QToolButton* optionsButton = buttonFor(&menu, options);
        QToolButton* exitButton = buttonFor(&menu, exit);
        QVERIFY(optionsButton);
        QVERIFY(exitButton);
        QCOMPARE(optionsButton->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(exitButton->toolButtonStyle(), Qt::ToolButtonTextOnly);
        QCOMPARE(visibleButtons(&menu).size(), 2);

        // The bar lies along the bottom edge, below the last entry.
        const QRect lastEntry = menu.actionGeometry(menu.actions().last());
        const QPoint optionsTop = optionsButton->mapTo(&menu, QPoint(0, 0));
        QVERIFY(optionsTop.y() > lastEntry.bottom());
        QVERIFY(optionsTop.y() + optionsButton->height() <= menu.height());
        QVERIFY(optionsButton->mapTo(&menu, QPoint(0, 0)).x() < exitButton->mapTo(&menu, QPoint(0, 0)).x());

        // A click on a bar button triggers its action and closes the menu.
        QSignalSpy triggered(exit, &QAction::triggered);
        QTest::mouseClick(exitButton, Qt::LeftButton);
        QCOMPARE(triggered.count(), 1);
        QTRY_VERIFY(!menu.isVisible());
    }

    void popupBarButtonGoesWithItsAction()
    {
        RibbonSystemMenu menu;
        auto* action = new QAction(QStringLiteral("Gone"));
        menu.addPopupBarAction(action);
        QVERIFY(buttonFor(&menu, action));
        delete action;
        QVERIFY(menu.popupBarActions().isEmpty());
        QCOMPARE(visibleButtons(&menu).size(), 0);
    }

    void quickAccessBarIsCreatedHidden()
    {
        RibbonBar bar;
        RibbonQuickAccessBar* quick = bar.quickAccessBar();
        QVERIFY(quick);
        QCOMPARE(bar.quickAccessBar(), quick);
        QCOMPARE(quick->parentWidget(), static_cast<QWidget*>(&bar));
        QVERIFY(quick->isHidden());
        const int before = bar.heightForWidth(600);
        quick->show();
        QVERIFY(!quick->isHidden());
        // The bar takes a row of its own above the tabs.
        QVERIFY(bar.heightForWidth(600) > before);
    }

    void visibleCountWithHiddenActions()
    {
        RibbonBar bar;
        RibbonQuickAccessBar* quick = bar.quickAccessBar();
        QAction* a = quick->addAction(QStringLiteral("A"));
        QAction* b = quick->addAction(QStringLiteral("B"));
        QAction* c = quick->addAction(QStringLiteral("C"));
        quick->show();
        bar.resize(600, bar.heightForWidth(600));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));

        QCOMPARE(quick->visibleCount(), 3);
        QVERIFY(quick->isActionVisible(b));
        quick->setActionVisible(b, false);
        QCOMPARE(quick->visibleCount(), 2);
        QVERIFY(!quick->isActionVisible(b));
        QCOMPARE(quick->actions(), (QList<QAction*>{a, b, c}));
        // The action itself stays visible: it may be shown elsewhere too.
        QVERIFY(b->isVisible());
        QTRY_COMPARE(visibleButtons(quick).size(), 2);
        QVERIFY(!buttonFor(quick, b));
        // Not even a hidden leftover: helpers that look buttons up by action find none.
        for (QToolButton* button : quick->findChildren<QToolButton*>())
            QVERIFY(button->defaultAction() != b);

        // Shown again, its button returns between its neighbours.
        quick->setActionVisible(b, true);
        QCOMPARE(quick->visibleCount(), 3);
        QTRY_COMPARE(visibleButtons(quick).size(), 3);
        QToolButton* aButton = buttonFor(quick, a);
        QToolButton* bButton = buttonFor(quick, b);
        QToolButton* cButton = buttonFor(quick, c);
        QVERIFY(aButton && bButton && cButton);
        QTRY_VERIFY(aButton->x() < bButton->x() && bButton->x() < cButton->x());

        // Inserting before a hidden action keeps the order of the visible ones.
        quick->setActionVisible(c, false);
        auto* d = new QAction(QStringLiteral("D"), quick);
        quick->insertAction(c, d);
        QCOMPARE(quick->actions(), (QList<QAction*>{a, b, d, c}));
        QCOMPARE(quick->visibleCount(), 3);
        QTRY_VERIFY(buttonFor(quick, d) && buttonFor(quick, d)->x() > bButton->x());

        // Removing a hidden action forgets it.
        quick->removeAction(c);
        QCOMPARE(quick->visibleCount(), 3);
        QVERIFY(!quick->isActionVisible(c));
        quick->setActionVisible(c, true);
        QCOMPARE(quick->visibleCount(), 3);

        QVERIFY(!quick->isActionVisible(nullptr));
        quick->setActionVisible(nullptr, false);

        quick->setActionVisible(a, false);
        quick->clear();
        QVERIFY(quick->actions().isEmpty());
        QCOMPARE(quick->visibleCount(), 0);
    }

    void frameThemeFlag()
    {
        RibbonBar bar;
        QVERIFY(!bar.isFrameThemeEnabled());
        const int plain = bar.heightForWidth(600);
        bar.setFrameThemeEnabled();
        QVERIFY(bar.isFrameThemeEnabled());
        // The title strip adds a row even without a quick access bar.
        QVERIFY(bar.heightForWidth(600) > plain);
        bar.setFrameThemeEnabled(false);
        QVERIFY(!bar.isFrameThemeEnabled());
        QCOMPARE(bar.heightForWidth(600), plain);
    }

    void mainWindowGivesTheRibbonItsHeight()
    {
        RibbonMainWindow window;
        auto* bar = new RibbonBar;
        window.setRibbonBar(bar);
        bar->addSystemButton(QStringLiteral("File"));
        bar->quickAccessBar()->addAction(QStringLiteral("Save"));
        bar->quickAccessBar()->show();
        window.setCentralWidget(new QWidget);
        window.resize(900, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(bar->height(), bar->heightForWidth(bar->width()));
        QCOMPARE(bar->width(), window.width());
        QVERIFY(bar->height() > 80);
        QVERIFY(window.centralWidget()->geometry().top() >= bar->geometry().bottom());

        const int before = bar->height();
        bar->setFrameThemeEnabled(false);
        bar->quickAccessBar()->hide();
        QTRY_VERIFY(bar->height() < before);
        QCOMPARE(bar->height(), bar->heightForWidth(bar->width()));
    }

    void noContextMenuOfItsOwn()
    {
        RibbonBar bar;
        bar.resize(400, bar.heightForWidth(400));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(50, 10), bar.mapToGlobal(QPoint(50, 10)));
        QApplication::sendEvent(&bar, &event);
        QVERIFY(event.isAccepted());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void paintsWithThePaletteUnderAPlainStyle()
    {
        QScopedPointer<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
        RibbonBar bar;
        bar.setStyle(fusion.data());
        QPalette palette = bar.palette();
        palette.setColor(QPalette::Window, QColor(200, 220, 180));
        bar.setPalette(palette);
        bar.resize(400, bar.heightForWidth(400));
        const QImage image = bar.grab().toImage();
        const RibbonColors colors = RibbonColors::fromPalette(palette);
        QCOMPARE(QColor(image.pixel(390, 5)).name(), colors.frameBackground.name());
    }

    void followsTheApplicationStyle()
    {
        RibbonBar bar;
        bar.addPage(QStringLiteral("Home"));
        bar.resize(400, bar.heightForWidth(400));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        const QColor plainWindow = QApplication::palette().color(QPalette::Window);

        auto* style = new Office2016Style(Office2016Style::Colorful);
        QApplication::setStyle(style);
        QCOMPARE(QColor(bar.grab().toImage().pixel(390, 5)).name(), style->ribbonColors().frameBackground.name());
        QCOMPARE(QApplication::palette().color(QPalette::Window), style->ribbonColors().pageBackgroundBottom);

        // A theme change of the application style reaches the palette and the ribbon.
        style->setTheme(Office2016Style::Black);
        QCOMPARE(QApplication::palette().color(QPalette::Window), style->ribbonColors().pageBackgroundBottom);
        QCOMPARE(bar.palette().color(QPalette::Window), style->ribbonColors().pageBackgroundBottom);
        QCOMPARE(QColor(bar.grab().toImage().pixel(390, 5)).name(), style->ribbonColors().frameBackground.name());

        // Another ribbon style polishes the palette its own way.
        auto* next = new Office2013Style(Office2013Style::White);
        QApplication::setStyle(next);
        QCOMPARE(QApplication::palette().color(QPalette::Window), next->ribbonColors().pageBackgroundBottom);

        // Back to a plain style: no ribbon colours are left in the palette.
        next->setTheme(Office2013Style::Dark);
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QCOMPARE(QApplication::palette().color(QPalette::Window), plainWindow);
        QCOMPARE(QColor(bar.grab().toImage().pixel(390, 5)).name(),
                 RibbonColors::fromPalette(bar.palette()).frameBackground.name());
    }

    void paintsWithTheStyleScheme()
    {
        Office2016Style style(Office2016Style::Colorful);
        RibbonBar bar;
        bar.setStyle(&style);
        bar.resize(400, bar.heightForWidth(400));
        QImage image = bar.grab().toImage();
        QCOMPARE(QColor(image.pixel(390, 5)).name(), style.ribbonColors().frameBackground.name());
        style.setTheme(Office2016Style::Black);
        image = bar.grab().toImage();
        QCOMPARE(QColor(image.pixel(390, 5)).name(), style.ribbonColors().frameBackground.name());
        QCOMPARE(QColor(image.pixel(200, image.height() - 1)).name(), style.ribbonColors().pageBorder.name());
        bar.setStyle(nullptr);
    }
};

QTEST_MAIN(tst_QtitanRibbonBar)
#include "tst_qtitanribbonbar.moc"
