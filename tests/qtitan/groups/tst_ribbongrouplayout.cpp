// Layout of a ribbon page: groups shrink from the right through the group
// sizes as the page narrows, and no control is ever clipped or overlapped.
#include "ribbonsample.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QWidgetAction>
#include <QMainWindow>
#include <QDir>
#include <QPointer>
#include <QToolButton>
#include <QtTest>

#include <limits>

using namespace Qtitan;
using Size = RibbonControlSizeDefinition;

namespace {

QList<Size::GroupSize> sizesOf(const RibbonPage& page)
{
    QList<Size::GroupSize> sizes;
    for (RibbonGroup* g : page.groups())
        sizes << g->currentSize();
    return sizes;
}

QString describe(const QList<Size::GroupSize>& sizes)
{
    QStringList parts;
    for (Size::GroupSize s : sizes)
        parts << QString::number(int(s));
    return parts.join(QLatin1Char(','));
}

// The rectangle of a widget in the coordinates of an ancestor.
QRect rectIn(const QWidget* widget, const QWidget* ancestor)
{
    return QRect(widget->mapTo(ancestor, QPoint(0, 0)), widget->size());
}

} // namespace

class tst_RibbonGroupLayout : public QObject
{
    Q_OBJECT

private:
    void checkInvariants(RibbonPage& page)
    {
        const QList<RibbonGroup*> groups = page.groups();
        int previousRight = std::numeric_limits<int>::min();
        for (RibbonGroup* group : groups) {
            QVERIFY(group->isVisible());
            // Groups sit side by side without overlapping, in list order.
            QVERIFY2(group->x() > previousRight, qPrintable(group->title()));
            previousRight = group->geometry().right();
            QCOMPARE(group->width(), group->widthForSize(group->currentSize()));

            QVector<QRect> rects;
            for (int i = 0; i < group->controlCount(); ++i) {
                RibbonControl* control = group->controlByIndex(i);
                QCOMPARE(control->currentSize(), group->currentSize());
                if (group->currentSize() == Size::GroupPopup) {
                    // Collapsed: the controls wait, hidden, for the popup to open.
                    QVERIFY(!control->isVisible());
                    QCOMPARE(control->parentGroup(), group);
                    continue;
                }
                QVERIFY2(control->isVisible(), qPrintable(group->title()));
                const QRect r = rectIn(control, group);
                QVERIFY2(group->rect().contains(r),
                         qPrintable(QStringLiteral("%1 control %2").arg(group->title()).arg(i)));
                // Never clipped: at least the size the control asks for.
                QVERIFY(control->width() >= control->sizeHint().width());
                QVERIFY(control->height() >= control->sizeHint().height());
                if (auto* button = qobject_cast<RibbonButtonControl*>(control))
                    QCOMPARE(button->widget()->geometry(), control->rect());
                for (const QRect& other : rects)
                    QVERIFY2(!other.intersects(r), qPrintable(group->title()));
                rects << r;
            }
        }
        // Sizes never grow to the right and differ by at most one step.
        const QList<Size::GroupSize> sizes = sizesOf(page);
        for (int i = 1; i < sizes.size(); ++i)
            QVERIFY2(sizes[i - 1] <= sizes[i], qPrintable(describe(sizes)));
        if (!sizes.isEmpty())
            QVERIFY2(sizes.last() - sizes.first() <= 1, qPrintable(describe(sizes)));
        // Reduced only as far as needed: the groups fit, or nothing is left to reduce.
        const bool allCollapsed = std::all_of(sizes.begin(), sizes.end(),
                                              [](Size::GroupSize s) { return s == Size::GroupPopup; });
        if (!allCollapsed && !groups.isEmpty()) {
            QVERIFY2(groups.first()->x() >= 0, qPrintable(describe(sizes)));
            QVERIFY2(groups.last()->geometry().right() < page.width(), qPrintable(describe(sizes)));
        }
    }

    static void saveShot(QWidget* widget, const QString& name)
    {
        const QString dir = qEnvironmentVariable("QTITAN_SHOTS");
        if (dir.isEmpty())
            return;
        QDir().mkpath(dir);
        QVERIFY(widget->grab().save(dir + QLatin1Char('/') + name + QStringLiteral(".png")));
    }

private slots:
    void reductionAtWidths_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("1600") << 1600;
        QTest::newRow("1000") << 1000;
        QTest::newRow("700") << 700;
        QTest::newRow("400") << 400;
    }

    void reductionAtWidths()
    {
        QFETCH(int, width);
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(width, page.sizeHint().height());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        page.updateLayout();
        checkInvariants(page);
        const QList<Size::GroupSize> sizes = sizesOf(page);
        if (width >= page.sizeHint().width()) {
            for (Size::GroupSize s : sizes)
                QCOMPARE(s, Size::GroupLarge);
        } else {
            QVERIFY(sizes.last() != Size::GroupLarge);
        }
        saveShot(&page, QStringLiteral("page_%1").arg(width));

        // Widening restores every group.
        page.resize(2000, page.height());
        checkInvariants(page);
        for (Size::GroupSize s : sizesOf(page))
            QCOMPARE(s, Size::GroupLarge);
    }

    void reductionOrderStepByStep()
    {
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(page.sizeHint().width() + 20, page.sizeHint().height());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        const int n = page.groupCount();
        QList<Size::GroupSize> previous = sizesOf(page);
        for (Size::GroupSize s : previous)
            QCOMPARE(s, Size::GroupLarge);
        // Narrow a few pixels at a time: every change reduces groups from the
        // right, one size step each, and never enlarges one.
        QList<QList<Size::GroupSize>> seen;
        for (int w = page.width(); w >= 150; w -= 3) {
            page.resize(w, page.height());
            const QList<Size::GroupSize> sizes = sizesOf(page);
            for (int i = 0; i < n; ++i)
                QVERIFY2(sizes[i] >= previous[i], qPrintable(describe(previous) + " -> " + describe(sizes)));
            if (sizes != previous)
                seen << sizes;
            previous = sizes;
            checkInvariants(page);
        }
        QCOMPARE(previous.last(), Size::GroupPopup);
        QCOMPARE(previous.first(), Size::GroupPopup);
        // The order of the states: level by level, each level from the right.
        QList<QList<Size::GroupSize>> order;
        for (int level = 1; level < 4; ++level) {
            for (int k = 1; k <= n; ++k) {
                QList<Size::GroupSize> state;
                for (int i = 0; i < n; ++i)
                    state << static_cast<Size::GroupSize>(i >= n - k ? level : level - 1);
                order << state;
            }
        }
        int position = -1;
        for (const auto& state : seen) {
            const int at = order.indexOf(state);
            QVERIFY2(at > position, qPrintable(describe(state)));
            position = at;
        }

        // And back: widening restores GroupLarge everywhere.
        page.resize(page.sizeHint().width() + 20, page.height());
        for (Size::GroupSize s : sizesOf(page))
            QCOMPARE(s, Size::GroupLarge);
        checkInvariants(page);
    }

    void sizeDefinitionsDriveTheReduction()
    {
        RibbonPage page;
        RibbonGroup* group = page.addGroup(QStringLiteral("Big"));
        QList<QAction*> actions;
        for (int i = 0; i < 3; ++i) {
            actions << sample::action(group, QStringLiteral("Command %1").arg(i), Qt::blue);
            group->addAction(actions.last(), Qt::ToolButtonTextUnderIcon);
        }
        page.resize(1000, 120);
        page.show();
        page.updateLayout();
        // Large: one column each, filling the height.
        for (QAction* a : actions)
            QCOMPARE(group->controlByAction(a)->height(), group->controlByAction(a)->sizeHintForSize(Size::GroupLarge).height());
        QVERIFY(group->widthForSize(Size::GroupMedium) < group->widthForSize(Size::GroupLarge));
        QVERIFY(group->widthForSize(Size::GroupSmall) < group->widthForSize(Size::GroupMedium));
        group->setCurrentSize(Size::GroupMedium);
        // Medium: the three stack in one column.
        const int x = group->controlByAction(actions[0])->x();
        for (QAction* a : actions)
            QCOMPARE(group->controlByAction(a)->x(), x);
        QVERIFY(group->controlByAction(actions[0])->y() < group->controlByAction(actions[1])->y());
        QVERIFY(group->controlByAction(actions[1])->y() < group->controlByAction(actions[2])->y());

        // A size definition that keeps the large image keeps the control large.
        RibbonControl* first = group->controlByAction(actions[0]);
        first->sizeDefinition(Size::GroupMedium)->setImageSize(Size::ImageLarge);
        page.updateLayout();
        group->setCurrentSize(Size::GroupMedium);
        QVERIFY(first->isLargeAt(Size::GroupMedium));
        QCOMPARE(first->height(), group->controlByAction(actions[0])->sizeHintForSize(Size::GroupLarge).height());
        QVERIFY(group->controlByAction(actions[1])->x() > first->geometry().right());
    }

    void widgetActionsSitInRows()
    {
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(2000, page.sizeHint().height());
        page.show();
        page.updateLayout();
        RibbonGroup* font = page.groupAt(1);
        QWidget* combo = nullptr;
        for (QAction* a : font->actions()) {
            if (auto* control = qobject_cast<RibbonWidgetControl*>(font->controlByAction(a))) {
                combo = control->contentWidget();
                QVERIFY(combo);
                QVERIFY(control->width() >= combo->sizeHint().width());
                QVERIFY(control->height() * 2 < font->height());
                QVERIFY(combo->isVisible());
                break;
            }
        }
        QVERIFY(combo);
    }

    void widgetsTakeNoMoreRoomThanTheyMayFill()
    {
        // A box whose contents want more room than its maximum width allows:
        // the control is as wide as the box, so no gap opens beside it.
        RibbonPage page;
        RibbonGroup* group = page.addGroup(QStringLiteral("Font"));
        auto* wide = new QWidgetAction(group);
        auto* box = new QComboBox;
        box->addItem(QStringLiteral("A family name far longer than the box may ever grow"));
        box->setMaximumWidth(120);
        QVERIFY(box->sizeHint().width() > 120);
        wide->setDefaultWidget(box);
        group->addAction(wide);
        auto* narrow = new QWidgetAction(group);
        auto* edit = new QLineEdit;
        edit->setMinimumWidth(90);
        edit->setMaximumWidth(90);
        narrow->setDefaultWidget(edit);
        group->addAction(narrow);
        auto* separator = new QAction(group);
        separator->setSeparator(true);
        group->addAction(separator);
        QAction* bold = sample::action(group, QStringLiteral("Bold"), Qt::red);
        group->addAction(bold, Qt::ToolButtonIconOnly);
        page.resize(1000, 120);
        page.show();
        page.updateLayout();

        RibbonControl* wideControl = group->controlByAction(wide);
        QCOMPARE(wideControl->width(), 120);
        QCOMPARE(box->geometry().left(), 0);
        QCOMPARE(box->width(), wideControl->width());
        QCOMPARE(group->controlByAction(narrow)->width(), 90);
        QCOMPARE(edit->width(), 90);
        // The separator follows the widest box of the column at the spacing
        // the group keeps between any two columns.
        const QRect separatorRect = group->controlByAction(separator)->geometry();
        const QRect boldRect = group->controlByAction(bold)->geometry();
        QCOMPARE(separatorRect.left() - wideControl->geometry().right(), boldRect.left() - separatorRect.right());
    }

    void collapsedGroupOpensPopup()
    {
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(300, page.sizeHint().height());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        page.updateLayout();
        RibbonGroup* group = page.groupAt(page.groupCount() - 1);
        QCOMPARE(group->currentSize(), Size::GroupPopup);
        RibbonControl* control = group->controlByIndex(0);
        QVERIFY(!control->isVisible());
        // The collapsed group is one button showing the group.
        auto* button = group->findChild<QAbstractButton*>(QStringLiteral("qtitan_ribbongroup_button"));
        QVERIFY(button);
        QVERIFY(button->isVisible());
        QCOMPARE(button->geometry(), group->rect());
        QTest::mouseClick(button, Qt::LeftButton);
        QWidget* popup = control->window();
        QVERIFY(popup != page.window());
        QVERIFY(popup->isVisible());
        QVERIFY(popup->windowFlags() & Qt::Popup);
        // Under the group's button, holding every control at GroupPopup, unclipped.
        const QPoint under = button->mapToGlobal(QPoint(0, button->height()));
        QVERIFY(qAbs(popup->geometry().top() - under.y()) <= 3);
        QVERIFY(qAbs(popup->geometry().left() - under.x()) <= 3);
        QVector<QRect> rects;
        for (int i = 0; i < group->controlCount(); ++i) {
            RibbonControl* c = group->controlByIndex(i);
            QCOMPARE(c->window(), popup);
            QVERIFY(c->isVisible());
            QCOMPARE(c->currentSize(), Size::GroupPopup);
            const QRect r = rectIn(c, popup);
            QVERIFY(popup->rect().contains(r));
            for (const QRect& other : rects)
                QVERIFY(!other.intersects(r));
            rects << r;
        }
        // The button finder of the ribbon helpers still sees the buttons in the group.
        auto* buttonControl = qobject_cast<RibbonButtonControl*>(control);
        QVERIFY(group->findChildren<QToolButton*>().contains(buttonControl->widget()));
        saveShot(popup, QStringLiteral("popup_open"));

        // Running a command from the popup closes it.
        QSignalSpy triggered(control->defaultAction(), &QAction::triggered);
        QTest::mouseClick(buttonControl->widget(), Qt::LeftButton);
        QCOMPARE(triggered.count(), 1);
        QVERIFY(!popup->isVisible());
        QVERIFY(!control->isVisible());
        QCOMPARE(control->parentWidget(), group);
        // Escape closes it as well.
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(popup->isVisible());
        QTest::keyClick(popup, Qt::Key_Escape);
        QVERIFY(!popup->isVisible());

        // Widening brings the controls back into the group.
        page.resize(2000, page.height());
        QCOMPARE(group->currentSize(), Size::GroupLarge);
        QCOMPARE(control->window(), page.window());
        QVERIFY(control->isVisible());
        QVERIFY(!button->isVisible());
    }

    void tooNarrowPageScrolls()
    {
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(250, page.sizeHint().height());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        page.updateLayout();
        for (Size::GroupSize s : sizesOf(page))
            QCOMPARE(s, Size::GroupPopup);
        auto* left = page.findChild<QToolButton*>(QStringLiteral("qtitan_ribbonpage_scrollleft"));
        auto* right = page.findChild<QToolButton*>(QStringLiteral("qtitan_ribbonpage_scrollright"));
        QVERIFY(left && right);
        QVERIFY(!left->isVisible());
        QVERIFY(right->isVisible());
        RibbonGroup* last = page.groupAt(page.groupCount() - 1);
        QVERIFY(last->geometry().right() >= page.width());
        // Scroll right until the last group is in sight.
        for (int i = 0; i < 20 && right->isVisible(); ++i)
            QTest::mouseClick(right, Qt::LeftButton);
        QVERIFY(!right->isVisible());
        QVERIFY(left->isVisible());
        QVERIFY(last->geometry().right() < page.width());
        QVERIFY(page.groupAt(0)->x() < 0);
        checkInvariants(page);
        saveShot(&page, QStringLiteral("page_scrolled"));
        // Widening drops the scrolling.
        page.resize(2000, page.height());
        QVERIFY(!left->isVisible());
        QVERIFY(!right->isVisible());
        QCOMPARE(page.groupAt(0)->x(), 3);
    }

    void actionsAddedWhileCollapsed()
    {
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(300, page.sizeHint().height());
        page.show();
        page.updateLayout();
        RibbonGroup* group = page.groupAt(page.groupCount() - 1);
        QCOMPARE(group->currentSize(), Size::GroupPopup);
        QAction* added = sample::action(group, QStringLiteral("Late"), Qt::red);
        group->insertAction(group->actions().first(), added);
        page.updateLayout();
        QCOMPARE(group->controlByIndex(0)->defaultAction(), added);
        QVERIFY(!group->controlByIndex(0)->isVisible());
        // Opened, the popup shows the new control first.
        QTest::mouseClick(group->findChild<QAbstractButton*>(QStringLiteral("qtitan_ribbongroup_button")),
                          Qt::LeftButton);
        QWidget* popup = group->findChild<QWidget*>(QStringLiteral("qtitan_ribbongroup_popup"));
        QVERIFY(popup->isVisible());
        QCOMPARE(group->controlByIndex(0)->window(), popup);
        QVERIFY(group->controlByIndex(0)->isVisible());
        // Adding while the popup is open puts the control into the popup too.
        QAction* later = sample::action(group, QStringLiteral("Later"), Qt::green);
        group->addAction(later);
        QTRY_VERIFY(group->controlByAction(later)->isVisible());
        QCOMPARE(group->controlByAction(later)->window(), popup);
        popup->close();
        QVERIFY(!group->controlByAction(later)->isVisible());
        page.resize(2000, page.height());
        QCOMPARE(group->controlByIndex(0)->window(), page.window());
        checkInvariants(page);
    }

    void hiddenActionsTakeNoSpace()
    {
        RibbonPage page;
        RibbonGroup* group = page.addGroup(QStringLiteral("G"));
        QAction* a = sample::action(group, QStringLiteral("Alpha"), Qt::red);
        QAction* b = sample::action(group, QStringLiteral("Beta"), Qt::green);
        group->addAction(a, Qt::ToolButtonTextUnderIcon);
        group->addAction(b, Qt::ToolButtonTextUnderIcon);
        page.resize(1000, 120);
        page.show();
        page.updateLayout();
        const int both = group->width();
        b->setVisible(false);
        page.updateLayout();
        QVERIFY(group->width() < both);
        QVERIFY(!group->controlByAction(b)->isVisible());
        b->setVisible(true);
        page.updateLayout();
        QCOMPARE(group->width(), both);
        QVERIFY(group->controlByAction(b)->isVisible());
    }

    void layoutFollowsPlainQWidgetEditsAfterEvents()
    {
        RibbonPage page;
        sample::fillHomePage(&page);
        page.resize(2000, page.sizeHint().height());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        RibbonGroup* group = page.groupAt(0);
        const int before = group->width();
        QAction* extra = sample::action(group, QStringLiteral("Extra large command"), Qt::darkCyan);
        group->addAction(extra);
        // No explicit updateLayout(): the page follows on its own.
        QTRY_VERIFY(group->width() > before);
        checkInvariants(page);
        group->removeAction(extra);
        QTRY_COMPARE(group->width(), before);
        checkInvariants(page);
    }

    void hiddenPageLaysOutWhenShown()
    {
        QMainWindow window;
        auto* bar = new RibbonBar(&window);
        window.setMenuWidget(bar);
        RibbonPage* first = bar->addPage(QStringLiteral("First"));
        sample::fillHomePage(first);
        RibbonPage* second = bar->addPage(QStringLiteral("Second"));
        RibbonGroup* group = second->addGroup(QStringLiteral("Later"));
        window.resize(1600, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // Visited once, so that its size is known and stays the same.
        bar->setCurrentPageIndex(1);
        QTRY_VERIFY(second->isVisible());
        bar->setCurrentPageIndex(0);
        QApplication::processEvents();
        QVERIFY(!second->isVisible());
        // Filled while hidden, the way the ribbon helpers edit groups.
        QAction* a = sample::action(group, QStringLiteral("Added while hidden"), Qt::red);
        group->addAction(a);
        QCOMPARE(group->parentWidget()->parentWidget(), bar);
        QApplication::processEvents();
        bar->setCurrentPageIndex(1);
        QTRY_VERIFY(second->isVisible());
        QTRY_VERIFY(group->controlByAction(a)->isVisible());
        QVERIFY(group->rect().contains(group->controlByAction(a)->geometry()));
        QCOMPARE(group->width(), group->widthForSize(RibbonControlSizeDefinition::GroupLarge));
        checkInvariants(*second);
        // And the first page still fits its groups after coming back.
        bar->setCurrentPageIndex(0);
        QTRY_VERIFY(first->isVisible());
        checkInvariants(*first);
    }

    void statesLookDifferent()
    {
        auto* style = new Office2016Style(Office2016Style::Colorful);
        QApplication::setStyle(style);
        const RibbonColors colors = RibbonColors::forWidget(nullptr);
        RibbonPage page;
        RibbonGroup* group = page.addGroup(QStringLiteral("States"));
        QAction* plain = sample::action(group, QStringLiteral("Plain"), Qt::blue);
        QAction* checked = sample::action(group, QStringLiteral("Checked"), Qt::blue);
        checked->setCheckable(true);
        checked->setChecked(true);
        QAction* disabled = sample::action(group, QStringLiteral("Disabled"), Qt::blue);
        disabled->setEnabled(false);
        for (QAction* a : {plain, checked, disabled})
            group->addAction(a, Qt::ToolButtonTextBesideIcon);
        page.resize(600, page.sizeHint().height());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        page.updateLayout();
        auto buttonOf = [&](QAction* a) { return qobject_cast<RibbonButtonControl*>(group->controlByAction(a))->widget(); };
        auto countColor = [](const QImage& image, const QColor& color) {
            int n = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    n += QColor(image.pixel(x, y)).name() == color.name() ? 1 : 0;
            return n;
        };
        const QImage plainImage = buttonOf(plain)->grab().toImage();
        const QImage checkedImage = buttonOf(checked)->grab().toImage();
        const QImage disabledImage = buttonOf(disabled)->grab().toImage();
        // A checked button has its checked background; a plain one does not (a
        // grey checked colour may still match a few anti-aliased text pixels).
        QVERIFY(countColor(checkedImage, colors.buttonCheckedBackground) > checkedImage.width() * 4);
        QVERIFY(countColor(plainImage, colors.buttonCheckedBackground) < plainImage.height());
        // Disabled text is drawn in the disabled colour, the others in the text colour.
        QVERIFY(countColor(disabledImage, colors.buttonTextDisabled) > 5);
        QCOMPARE(countColor(disabledImage, colors.buttonText), 0);
        QVERIFY(countColor(plainImage, colors.buttonText) > 5);
        // Hovering shows the hover background.
        QTest::mouseMove(buttonOf(plain), QPoint(5, 5));
        QTRY_VERIFY(buttonOf(plain)->underMouse());
        const QImage hoverImage = buttonOf(plain)->grab().toImage();
        QVERIFY(countColor(hoverImage, colors.buttonHoverBackground) > hoverImage.width() * 4);
        saveShot(&page, QStringLiteral("states"));
        QApplication::setStyle(QStringLiteral("Fusion"));
    }

    void shotsInStyles_data()
    {
        QTest::addColumn<int>("style");
        QTest::newRow("office2016") << 0;
        QTest::newRow("office2010-black") << 1;
        QTest::newRow("office2013-dark") << 2;
    }

    void shotsInStyles()
    {
        QFETCH(int, style);
        CommonStyle* s = nullptr;
        if (style == 0)
            s = new Office2016Style(Office2016Style::Colorful);
        else if (style == 1)
            s = new Office2010Style(Office2010Style::Black);
        else
            s = new Office2013Style(Office2013Style::Dark);
        QApplication::setStyle(s);
        for (int width : {1600, 900, 640, 420}) {
            RibbonPage page;
            page.setStyle(s);
            sample::fillHomePage(&page);
            page.resize(width, page.sizeHint().height());
            page.show();
            QVERIFY(QTest::qWaitForWindowExposed(&page));
            page.updateLayout();
            checkInvariants(page);
            saveShot(&page, QStringLiteral("style%1_%2").arg(style).arg(width));
        }
        QApplication::setStyle(QStringLiteral("Fusion"));
    }
};

QTEST_MAIN(tst_RibbonGroupLayout)
#include "tst_ribbongrouplayout.moc"
