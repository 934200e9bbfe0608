#include <tessaro/MenuBar.h>

#include "common/testicons.h"

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

namespace {

using testcommon::colorIcon;

// Paints the menu bar's empty area in a colour nothing else uses, so that
// a grab shows who painted what.
class EmptyAreaStyle : public QProxyStyle
{
public:
    EmptyAreaStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_MenuBarEmptyArea) {
            painter->fillRect(option->rect, QColor(255, 0, 255));
            ++emptyAreaCalls;
            lastMenuItemType = -1;
            if (auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
                lastMenuItemType = item->menuItemType;
                lastMenuRect = item->menuRect;
                lastState = item->state;
            }
            return;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable int emptyAreaCalls = 0;
    mutable int lastMenuItemType = -1;
    mutable QRect lastMenuRect;
    mutable QStyle::State lastState;
};

} // namespace

class tst_MenuBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void layoutIsMenuBarThenCornerStrip();
    void cornerActionsAreSmallToolButtons();
    void cornerStripHasNoHandleOrFrame();
    void cornerStripKeepsZeroMarginsAfterStyleChange();
    void cornerStripKeepsZeroMarginsAfterApplicationStyleChange();
    void cornerStripPaintsMenuBarEmptyArea();
    void addActionGoesToMenuBar();
    void clearKeepsCornerButtons();
    void sourceConstructorCopiesMenus();
    void nullSourceGivesEmptyBar();
    void menusSurviveDestruction();
};

void tst_MenuBar::init()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void tst_MenuBar::layoutIsMenuBarThenCornerStrip()
{
    QWidget window;
    ui::MenuBar bar(&window);
    auto* layout = qobject_cast<QHBoxLayout*>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 2);
    QVERIFY(qobject_cast<QMenuBar*>(layout->itemAt(0)->widget()));
    QVERIFY(qobject_cast<QToolBar*>(layout->itemAt(1)->widget()));
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->stretch(1), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(layout->itemAt(1)->alignment(), Qt::Alignment());
    QCOMPARE(bar.windowFlags() & Qt::WindowType_Mask, Qt::Widget);
}

void tst_MenuBar::cornerActionsAreSmallToolButtons()
{
    ui::MenuBar bar;
    QMenu file(QStringLiteral("File"));
    file.addAction(QStringLiteral("Open"));
    bar.addAction(file.menuAction());
    QAction tile(colorIcon(Qt::red), QStringLiteral("Tile"), nullptr);
    QAction help(colorIcon(Qt::blue), QStringLiteral("Help"), nullptr);
    bar.addRightCornerAction(&tile);
    bar.addRightCornerAction(&help);
    bar.resize(400, bar.sizeHint().height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));

    auto* strip = bar.findChild<QToolBar*>();
    QVERIFY(strip);
    QCOMPARE(strip->iconSize(), QSize(16, 16));
    QCOMPARE(strip->actions(), (QList<QAction*>{&tile, &help}));

    auto* tileButton = qobject_cast<QToolButton*>(strip->widgetForAction(&tile));
    auto* helpButton = qobject_cast<QToolButton*>(strip->widgetForAction(&help));
    QVERIFY(tileButton);
    QVERIFY(helpButton);
    QCOMPARE(tileButton->iconSize(), QSize(16, 16));
    QCOMPARE(helpButton->iconSize(), QSize(16, 16));
    QVERIFY(tileButton->isVisible());
    QCOMPARE(tileButton->defaultAction(), &tile);
    QVERIFY(tileButton->geometry().right() < helpButton->geometry().left());

    // Clicking a corner button triggers its action.
    QSignalSpy triggered(&help, &QAction::triggered);
    QTest::mouseClick(helpButton, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);

    // The menu bar and the strip touch: nothing stands between them.
    auto* menuBar = bar.findChild<QMenuBar*>();
    QVERIFY(menuBar);
    QCOMPARE(menuBar->geometry().right() + 1, strip->geometry().left());
    QVERIFY(!menuBar->actions().contains(&tile));
}

void tst_MenuBar::cornerStripHasNoHandleOrFrame()
{
    ui::MenuBar bar;
    QAction first(colorIcon(Qt::red), QStringLiteral("First"), nullptr);
    bar.addRightCornerAction(&first);
    bar.resize(300, bar.sizeHint().height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));

    auto* strip = bar.findChild<QToolBar*>();
    QCOMPARE(strip->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QWidget* button = strip->widgetForAction(&first);
    QVERIFY(button);
    // No handle and no margin before the first button.
    QCOMPARE(button->geometry().left(), 0);
}

void tst_MenuBar::cornerStripKeepsZeroMarginsAfterStyleChange()
{
    ui::MenuBar bar;
    QAction action(colorIcon(Qt::red), QStringLiteral("A"), nullptr);
    bar.addRightCornerAction(&action);
    auto* strip = bar.findChild<QToolBar*>();
    QVERIFY(strip);

    // A tool bar of its own would get its margins back from the new style.
    QToolBar plain;
    QStyle* windows = QStyleFactory::create(QStringLiteral("Windows"));
    plain.setStyle(windows);
    QVERIFY(plain.layout()->contentsMargins() != QMargins(0, 0, 0, 0));

    strip->setStyle(windows);
    QCOMPARE(strip->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(strip->iconSize(), QSize(16, 16));
    strip->setStyle(nullptr);
    delete windows;
}

void tst_MenuBar::cornerStripKeepsZeroMarginsAfterApplicationStyleChange()
{
    ui::MenuBar bar;
    auto* strip = bar.findChild<QToolBar*>();
    QToolBar plain;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
    QVERIFY(plain.layout()->contentsMargins() != QMargins(0, 0, 0, 0));
    QCOMPARE(strip->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(strip->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(strip->iconSize(), QSize(16, 16));
}

void tst_MenuBar::cornerStripPaintsMenuBarEmptyArea()
{
    auto* style = new EmptyAreaStyle;
    QApplication::setStyle(style);

    ui::MenuBar bar;
    QAction action(colorIcon(Qt::green), QStringLiteral("A"), nullptr);
    bar.addRightCornerAction(&action);
    bar.resize(300, 30);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));

    auto* strip = bar.findChild<QToolBar*>();
    style->emptyAreaCalls = 0;
    const QImage image = strip->grab().toImage();
    QVERIFY(style->emptyAreaCalls > 0);
    QCOMPARE(style->lastMenuItemType, int(QStyleOptionMenuItem::EmptyArea));
    QCOMPARE(style->lastMenuRect, strip->rect());
    QCOMPARE(style->lastState, QStyle::State(QStyle::State_None));

    // The corners lie outside the flat, unhovered button's icon: they show
    // the empty-area colour, not a tool bar panel, handle or frame.
    const QColor emptyArea(255, 0, 255);
    QCOMPARE(image.pixelColor(0, 0), emptyArea);
    QCOMPARE(image.pixelColor(image.width() - 1, 0), emptyArea);
    QCOMPARE(image.pixelColor(0, image.height() - 1), emptyArea);
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), emptyArea);
    // The icon itself is still drawn over it.
    const QRect buttonRect = strip->widgetForAction(&action)->geometry();
    QCOMPARE(image.pixelColor(buttonRect.center()), QColor(Qt::green));
}

void tst_MenuBar::addActionGoesToMenuBar()
{
    ui::MenuBar bar;
    QMenu file(QStringLiteral("File"));
    QMenu edit(QStringLiteral("Edit"));
    bar.addAction(file.menuAction());
    bar.addAction(edit.menuAction());
    auto* menuBar = bar.findChild<QMenuBar*>();
    QCOMPARE(menuBar->actions(), (QList<QAction*>{file.menuAction(), edit.menuAction()}));
    QVERIFY(bar.findChild<QToolBar*>()->actions().isEmpty());
}

void tst_MenuBar::clearKeepsCornerButtons()
{
    ui::MenuBar bar;
    QMenu file(QStringLiteral("File"));
    QMenu window(QStringLiteral("Window"));
    bar.addAction(file.menuAction());
    bar.addAction(window.menuAction());
    QAction close(colorIcon(Qt::red), QStringLiteral("Close"), nullptr);
    bar.addRightCornerAction(&close);
    bar.resize(400, 30);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));

    bar.clear();
    auto* menuBar = bar.findChild<QMenuBar*>();
    auto* strip = bar.findChild<QToolBar*>();
    QVERIFY(menuBar->actions().isEmpty());
    QCOMPARE(strip->actions(), QList<QAction*>{&close});
    QWidget* button = strip->widgetForAction(&close);
    QVERIFY(button);
    QVERIFY(button->isVisible());
    // The menus themselves are not deleted by clearing.
    QCOMPARE(file.title(), QStringLiteral("File"));

    // The bar can be filled again afterwards.
    bar.addAction(window.menuAction());
    QCOMPARE(menuBar->actions(), QList<QAction*>{window.menuAction()});
}

void tst_MenuBar::sourceConstructorCopiesMenus()
{
    QMenuBar source;
    QMenu* file = source.addMenu(QStringLiteral("File"));
    QMenu* edit = source.addMenu(QStringLiteral("Edit"));
    QAction* plain = source.addAction(QStringLiteral("About"));
    const QList<QAction*> expected{file->menuAction(), edit->menuAction(), plain};
    QCOMPARE(source.actions(), expected);

    ui::MenuBar bar(&source);
    auto* menuBar = bar.findChild<QMenuBar*>();
    QVERIFY(menuBar);
    QVERIFY(menuBar != &source);
    QCOMPARE(menuBar->actions(), expected);
    // The source keeps its menus.
    QCOMPARE(source.actions(), expected);
    QVERIFY(bar.findChild<QToolBar*>()->actions().isEmpty());
}

void tst_MenuBar::nullSourceGivesEmptyBar()
{
    ui::MenuBar bar(static_cast<QMenuBar*>(nullptr));
    QVERIFY(bar.findChild<QMenuBar*>()->actions().isEmpty());
}

void tst_MenuBar::menusSurviveDestruction()
{
    QMenu file(QStringLiteral("File"));
    QPointer<QAction> entry = file.addAction(QStringLiteral("Open"));
    {
        ui::MenuBar bar;
        bar.addAction(file.menuAction());
    }
    QVERIFY(entry);
    QCOMPARE(file.actions().size(), 1);
    QVERIFY(file.menuAction()->associatedWidgets().isEmpty());
}

QTEST_MAIN(tst_MenuBar)
#include "tst_menubar.moc"
