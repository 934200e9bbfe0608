#include <QtitanRibbon.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTimer>
#include <QWidgetAction>
#include <QtTest>

using namespace Qtitan;

namespace {

struct KeyTipRibbon
{
    KeyTipRibbon()
    {
        bar = new RibbonBar;
        window.setRibbonBar(bar);
        QAction* file = bar->addSystemButton(QStringLiteral("File"));
        fileNew = file->menu()->addAction(QStringLiteral("New"));
        file->menu()->addAction(QStringLiteral("Open"));

        RibbonPage* home = bar->addPage(QStringLiteral("Home"));
        RibbonGroup* clipboard = home->addGroup(QStringLiteral("Clipboard"));
        paste = clipboard->addAction(QIcon(), QStringLiteral("&Paste"), Qt::ToolButtonTextUnderIcon);
        cut = clipboard->addAction(QIcon(), QStringLiteral("Cu&t"), Qt::ToolButtonTextBesideIcon);
        copy = clipboard->addAction(QIcon(), QStringLiteral("Copy"), Qt::ToolButtonTextBesideIcon);
        RibbonGroup* font = home->addGroup(QStringLiteral("Font"));
        bold = font->addAction(QIcon(), QStringLiteral("Bold"), Qt::ToolButtonTextBesideIcon);
        disabled = font->addAction(QIcon(), QStringLiteral("Italic"), Qt::ToolButtonTextBesideIcon);
        disabled->setEnabled(false);
        sizeBox = new QComboBox;
        sizeBox->addItems({QStringLiteral("10"), QStringLiteral("12")});
        auto* sizeAction = new QWidgetAction(font);
        sizeAction->setText(QStringLiteral("Font Size"));
        sizeAction->setDefaultWidget(sizeBox);
        font->addAction(sizeAction);
        styleMenu = new QMenu(&window);
        styleMenu->addAction(QStringLiteral("Office 2016"));
        style = home->addGroup(QStringLiteral("Look"))
                    ->addAction(QIcon(), QStringLiteral("Style"), Qt::ToolButtonTextUnderIcon, styleMenu,
                                QToolButton::InstantPopup);

        RibbonPage* insert = bar->addPage(QStringLiteral("Insert"));
        table = insert->addGroup(QStringLiteral("Tables"))->addAction(QIcon(), QStringLiteral("Table"),
                                                                      Qt::ToolButtonTextUnderIcon);
        RibbonGroup* illustrations = insert->addGroup(QStringLiteral("Illustrations"));
        picture = illustrations->addAction(QIcon(), QStringLiteral("Picture"), Qt::ToolButtonTextUnderIcon);
        for (int i = 0; i < 8; ++i)
            illustrations->addAction(QIcon(), QStringLiteral("Shape"), Qt::ToolButtonTextBesideIcon);

        view = bar->addPage(QStringLiteral("View"));
        view->setProperty("keyTip", QStringLiteral("W"));
        RibbonGroup* zoomGroup = view->addGroup(QStringLiteral("Zoom"));
        zoom = zoomGroup->addAction(QIcon(), QStringLiteral("Zoom"), Qt::ToolButtonTextUnderIcon);
        zoom->setProperty("keyTip", QStringLiteral("Q"));
        zoomGroup->addAction(QIcon(), QStringLiteral("Zoom In"), Qt::ToolButtonTextBesideIcon);

        save = bar->quickAccessBar()->addAction(QStringLiteral("Save"));
        undo = bar->quickAccessBar()->addAction(QStringLiteral("Undo"));
        bar->quickAccessBar()->show();

        editor = new QTextEdit;
        window.setCentralWidget(editor);
        window.resize(1000, 600);
        window.show();
    }

    bool ready()
    {
        if (!QTest::qWaitForWindowExposed(&window))
            return false;
        window.activateWindow();
        editor->setFocus();
        return QTest::qWaitForWindowActive(&window);
    }

    // Where keys go: an open popup, else the focus widget.
    static QWidget* keyTarget()
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup->focusWidget() ? popup->focusWidget() : popup;
        return QApplication::focusWidget();
    }

    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(keyTarget(), key, modifiers);
    }

    static void typeText(const QString& text)
    {
        for (QChar c : text)
            QTest::sendKeyEvent(QTest::Click, keyTarget(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }

    // The badges in sight, by their letters.
    static QMap<QString, QLabel*> badges()
    {
        QMap<QString, QLabel*> result;
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (!top->isVisible())
                continue;
            for (QLabel* label : top->findChildren<QLabel*>(QStringLiteral("qtitan_KeyTip"))) {
                if (label->isVisible())
                    result.insert(label->text(), label);
            }
        }
        return result;
    }

    static int badgeCount()
    {
        int count = 0;
        for (QWidget* top : QApplication::topLevelWidgets()) {
            for (QLabel* label : top->findChildren<QLabel*>(QStringLiteral("qtitan_KeyTip")))
                count += label->isVisible() ? 1 : 0;
        }
        return count;
    }

    QToolButton* buttonOf(QAction* action) const
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            for (QToolButton* button : top->findChildren<QToolButton*>()) {
                if (button->defaultAction() == action && button->isVisible())
                    return button;
            }
        }
        return nullptr;
    }

    // The letters of the badge for a widget.
    static QString tipOf(QWidget* widget)
    {
        const QMap<QString, QLabel*> shown = badges();
        for (auto it = shown.cbegin(); it != shown.cend(); ++it) {
            if (it.value()->buddy() == widget)
                return it.key();
        }
        return QString();
    }

    RibbonMainWindow window;
    RibbonBar* bar = nullptr;
    QTextEdit* editor = nullptr;
    QComboBox* sizeBox = nullptr;
    QMenu* styleMenu = nullptr;
    RibbonPage* view = nullptr;
    QAction* fileNew = nullptr;
    QAction* paste = nullptr;
    QAction* cut = nullptr;
    QAction* copy = nullptr;
    QAction* bold = nullptr;
    QAction* disabled = nullptr;
    QAction* style = nullptr;
    QAction* table = nullptr;
    QAction* picture = nullptr;
    QAction* zoom = nullptr;
    QAction* save = nullptr;
    QAction* undo = nullptr;
};

// Closes the first popup of @p type that shows up and tells whether one did.
template <typename Popup>
struct PopupCatcher
{
    explicit PopupCatcher(QObject* context)
    {
        auto* poll = new QTimer(context);
        poll->setInterval(10);
        QObject::connect(poll, &QTimer::timeout, context, [this, poll]() {
            auto* popup = qobject_cast<Popup*>(QApplication::activePopupWidget());
            if (!popup)
                return;
            seen = popup;
            poll->stop();
            popup->close();
        });
        poll->start();
    }
    QPointer<Popup> seen;
};

bool disjoint(const QMap<QString, QLabel*>& badges)
{
    QList<QRect> rects;
    for (QLabel* label : badges)
        rects.append(QRect(label->mapToGlobal(QPoint(0, 0)), label->size()));
    for (int i = 0; i < rects.size(); ++i) {
        for (int j = i + 1; j < rects.size(); ++j) {
            if (rects.at(i).intersects(rects.at(j)))
                return false;
        }
    }
    return true;
}

} // namespace

class tst_QtitanKeyTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    void altShowsBadgesOnTabsSystemButtonAndQuickAccessBar()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        KeyTipRibbon::key(Qt::Key_Alt);
        const QMap<QString, QLabel*> shown = KeyTipRibbon::badges();
        QCOMPARE(shown.size(), 3 + 1 + 2);
        QCOMPARE(shown.value(QStringLiteral("F"))->buddy(), r.bar->systemButton());
        QCOMPARE(shown.value(QStringLiteral("H"))->buddy(), r.bar->page(0));
        QCOMPARE(shown.value(QStringLiteral("I"))->buddy(), r.bar->page(1));
        // A page's own choice wins over its title.
        QCOMPARE(shown.value(QStringLiteral("W"))->buddy(), r.view);
        QCOMPARE(shown.value(QStringLiteral("1"))->buddy(), r.buttonOf(r.save));
        QCOMPARE(shown.value(QStringLiteral("2"))->buddy(), r.buttonOf(r.undo));
        // Each badge hangs from the bottom edge of its tab, under its title.
        const QRect home(r.bar->mapToGlobal(r.bar->tabRect(0).topLeft()), r.bar->tabRect(0).size());
        QLabel* homeBadge = shown.value(QStringLiteral("H"));
        const QRect homeBadgeRect(homeBadge->mapToGlobal(QPoint(0, 0)), homeBadge->size());
        QVERIFY(homeBadgeRect.intersects(home));
        QVERIFY(qAbs(homeBadgeRect.center().x() - home.center().x()) <= 1);
        QVERIFY(homeBadgeRect.center().y() > home.bottom());
        QVERIFY(disjoint(shown));
        // The keyboard stays where it was.
        QCOMPARE(QApplication::focusWidget(), r.editor);
        QVERIFY(r.editor->toPlainText().isEmpty());

        // Alt again ends them.
        KeyTipRibbon::key(Qt::Key_Alt);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void f10ShowsThemToo()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_F10);
        QCOMPARE(KeyTipRibbon::badges().size(), 6);
        KeyTipRibbon::key(Qt::Key_F10);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void altWithAnotherKeyIsAShortcutNotKeyTips()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        QTest::keyPress(r.editor, Qt::Key_Alt);
        QTest::keyClick(r.editor, Qt::Key_X, Qt::AltModifier);
        QTest::keyRelease(r.editor, Qt::Key_Alt);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        // Nor while a menu is open.
        r.styleMenu->popup(r.window.mapToGlobal(QPoint(100, 200)));
        QVERIFY(QTest::qWaitForWindowExposed(r.styleMenu));
        QTest::keyClick(r.styleMenu, Qt::Key_Alt);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void letterOpensTheTabAndBadgesItsControls()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("i"));
        QCOMPARE(r.bar->currentPageIndex(), 1);
        const QMap<QString, QLabel*> shown = KeyTipRibbon::badges();
        // The tabs' badges are gone; every enabled control of Insert has one.
        QVERIFY(!shown.contains(QStringLiteral("H")) || shown.value(QStringLiteral("H"))->buddy() != r.bar->page(0));
        QCOMPARE(shown.size(), 2 + 8);
        QCOMPARE(KeyTipRibbon::tipOf(r.buttonOf(r.table)), QStringLiteral("T"));
        QCOMPARE(KeyTipRibbon::tipOf(r.buttonOf(r.picture)), QStringLiteral("P"));
        for (QLabel* label : shown)
            QCOMPARE(label->buddy()->window(), &r.window);
        QVERIFY(disjoint(shown));
    }

    void largeButtonBadgeLeavesItsLabelReadable()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("I"));
        QToolButton* table = r.buttonOf(r.table);
        QVERIFY(table);
        QLabel* badge = KeyTipRibbon::badges().value(KeyTipRibbon::tipOf(table));
        QVERIFY(badge);
        const QRect button(table->mapToGlobal(QPoint(0, 0)), table->size());
        const QRect badgeRect(badge->mapToGlobal(QPoint(0, 0)), badge->size());
        // Centred under the button, below its bottom edge, so the label's two
        // lines above stay in sight.
        QVERIFY(qAbs(badgeRect.center().x() - button.center().x()) <= 1);
        QVERIFY2(badgeRect.center().y() > button.bottom(),
                 qPrintable(QStringLiteral("badge centre %1, button bottom %2")
                                .arg(badgeRect.center().y())
                                .arg(button.bottom())));
    }

    void tipsAreUniqueAndNoneBeginsAnother()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("i"));
        const QStringList tips = KeyTipRibbon::badges().keys();
        QCOMPARE(tips.size(), 10);
        for (const QString& a : tips) {
            for (const QString& b : tips) {
                if (a != b)
                    QVERIFY2(!b.startsWith(a), qPrintable(a + QLatin1Char(' ') + b));
            }
        }
        // Eight "Shape" buttons share their letters: the last ones get two, and
        // the first of two narrows the badges down to its own.
        const auto two = std::find_if(tips.cbegin(), tips.cend(), [](const QString& t) { return t.size() == 2; });
        QVERIFY(two != tips.cend());
        const QString twoLetters = *two;
        KeyTipRibbon::typeText(twoLetters.left(1));
        const QMap<QString, QLabel*> narrowed = KeyTipRibbon::badges();
        QVERIFY(narrowed.size() > 1);
        QVERIFY(narrowed.size() < tips.size());
        for (const QString& tip : narrowed.keys())
            QVERIFY(tip.startsWith(twoLetters.left(1)));
        // Each tip runs its own command.
        QAction* expected = nullptr;
        for (QAction* action : r.bar->page(1)->groupAt(1)->actions()) {
            if (r.buttonOf(action) == narrowed.value(twoLetters)->buddy())
                expected = action;
        }
        QVERIFY(expected);
        QSignalSpy ran(expected, &QAction::triggered);
        KeyTipRibbon::typeText(twoLetters.mid(1));
        QCOMPARE(ran.count(), 1);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void typingAControlsTipRunsIt()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        QSignalSpy pasted(r.paste, &QAction::triggered);
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("h"));
        // The mnemonic of "Cu&t" chooses its letter.
        QCOMPARE(KeyTipRibbon::tipOf(r.buttonOf(r.cut)), QStringLiteral("T"));
        QCOMPARE(KeyTipRibbon::tipOf(r.buttonOf(r.paste)), QStringLiteral("P"));
        // A disabled command has none.
        QVERIFY(KeyTipRibbon::tipOf(r.buttonOf(r.disabled)).isEmpty());
        KeyTipRibbon::typeText(QStringLiteral("p"));
        QCOMPARE(pasted.count(), 1);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        // Keys typed meanwhile went nowhere else; now they go to the editor again.
        QVERIFY(r.editor->toPlainText().isEmpty());
        QTest::keyClicks(r.editor, QStringLiteral("ok"));
        QCOMPARE(r.editor->toPlainText(), QStringLiteral("ok"));
    }

    void aKeyNoTipGoesOnWithIsIgnored()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("z"));
        QCOMPARE(KeyTipRibbon::badges().size(), 6);
        QCOMPARE(r.bar->currentPageIndex(), 0);
        QVERIFY(r.editor->toPlainText().isEmpty());
    }

    void keyTipPropertyChoosesTheLetters()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        QSignalSpy zoomed(r.zoom, &QAction::triggered);
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("w"));
        QCOMPARE(r.bar->currentPageIndex(), 2);
        QCOMPARE(KeyTipRibbon::tipOf(r.buttonOf(r.zoom)), QStringLiteral("Q"));
        KeyTipRibbon::typeText(QStringLiteral("q"));
        QCOMPARE(zoomed.count(), 1);
    }

    void menuButtonTipOpensItsMenu()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("h"));
        const QString tip = KeyTipRibbon::tipOf(r.buttonOf(r.style));
        QCOMPARE(tip, QStringLiteral("S"));
        PopupCatcher<QMenu> catcher(this);
        KeyTipRibbon::typeText(tip);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        QTRY_COMPARE(catcher.seen.data(), r.styleMenu);
        // Once closed, the button does not look pressed or hovered.
        QTRY_VERIFY(!r.buttonOf(r.style)->isDown());
        QVERIFY(!r.buttonOf(r.style)->underMouse());
    }

    void systemButtonTipOpensTheSystemMenu()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        PopupCatcher<QMenu> catcher(this);
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("f"));
        QTRY_COMPARE(catcher.seen.data(), r.bar->systemButton()->defaultAction()->menu());
    }

    void quickAccessTipRunsItsCommand()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        QSignalSpy saved(r.save, &QAction::triggered);
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("1"));
        QCOMPARE(saved.count(), 1);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void widgetTipFocusesTheWidget()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("h"));
        const QString tip = KeyTipRibbon::tipOf(r.sizeBox);
        QCOMPARE(tip, QStringLiteral("F"));
        KeyTipRibbon::typeText(tip);
        QCOMPARE(QApplication::focusWidget(), r.sizeBox);
    }

    void escapeStepsBack()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("i"));
        QVERIFY(KeyTipRibbon::tipOf(r.bar->page(0)).isEmpty());
        KeyTipRibbon::key(Qt::Key_Escape);
        // Back to the tabs.
        QCOMPARE(KeyTipRibbon::tipOf(r.bar->page(0)), QStringLiteral("H"));
        QCOMPARE(KeyTipRibbon::badges().size(), 6);
        KeyTipRibbon::key(Qt::Key_Escape);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        // Escape with no key tips is the editor's again.
        QCOMPARE(QApplication::focusWidget(), r.editor);
    }

    void aClickEndsThem()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        QVERIFY(KeyTipRibbon::badgeCount() > 0);
        QTest::mouseClick(r.editor->viewport(), Qt::LeftButton);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);

        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("h"));
        QVERIFY(KeyTipRibbon::badgeCount() > 0);
        // On the ribbon itself too, and a letter afterwards is the editor's.
        QTest::mouseClick(r.bar, Qt::LeftButton, {}, r.bar->tabRect(1).center());
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        QCOMPARE(r.bar->currentPageIndex(), 1);
        r.editor->setFocus();
        QTest::keyClicks(r.editor, QStringLiteral("p"));
        QCOMPARE(r.editor->toPlainText(), QStringLiteral("p"));
    }

    void anotherWindowTakingTheFocusEndsThem()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        KeyTipRibbon::key(Qt::Key_Alt);
        QVERIFY(KeyTipRibbon::badgeCount() > 0);
        QWidget other;
        other.setGeometry(1200, 100, 200, 100);
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void minimisedRibbonDropsThePageWithItsBadges()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        r.bar->setMinimized(true);
        QSignalSpy cut(r.cut, &QAction::triggered);
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("h"));
        QWidget* popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QVERIFY(r.bar->isMinimized());
        // The badges are on the dropped page.
        QLabel* badge = KeyTipRibbon::badges().value(QStringLiteral("T"));
        QVERIFY(badge);
        QCOMPARE(badge->window(), popup);
        // Escape takes the page back up and shows the tabs' badges.
        KeyTipRibbon::key(Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
        QCOMPARE(KeyTipRibbon::badges().size(), 6);
        KeyTipRibbon::typeText(QStringLiteral("h"));
        QVERIFY(popup->isVisible());
        KeyTipRibbon::typeText(QStringLiteral("t"));
        QCOMPARE(cut.count(), 1);
        QVERIFY(!popup->isVisible());
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        QVERIFY(r.bar->isMinimized());
    }

    void collapsedGroupOpensWithBadgesOnItsControls()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        r.bar->setCurrentPageIndex(1);
        RibbonGroup* illustrations = r.bar->page(1)->groupAt(1);
        for (int width = 1000; width > 150 && illustrations->currentSize() != RibbonControlSizeDefinition::GroupPopup;
             width -= 20) {
            r.window.resize(width, 600);
            QCoreApplication::processEvents();
        }
        QCOMPARE(illustrations->currentSize(), RibbonControlSizeDefinition::GroupPopup);
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::typeText(QStringLiteral("i"));
        auto* groupButton = illustrations->findChild<QAbstractButton*>(QStringLiteral("qtitan_ribbongroup_button"));
        const QString tip = KeyTipRibbon::tipOf(groupButton);
        QCOMPARE(tip, QStringLiteral("I"));
        KeyTipRibbon::typeText(tip);
        QWidget* popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QCOMPARE(popup->objectName(), QStringLiteral("qtitan_ribbongroup_popup"));
        const QMap<QString, QLabel*> inside = KeyTipRibbon::badges();
        QCOMPARE(inside.size(), 9);
        for (QLabel* label : inside)
            QCOMPARE(label->window(), popup);
        QVERIFY(disjoint(inside));
        // Escape closes the group and goes back to the page's badges.
        KeyTipRibbon::key(Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
        QCOMPARE(KeyTipRibbon::tipOf(groupButton), tip);
        // Into it again, a command runs and everything closes.
        QSignalSpy pictured(r.picture, &QAction::triggered);
        KeyTipRibbon::typeText(tip);
        KeyTipRibbon::typeText(KeyTipRibbon::tipOf(r.buttonOf(r.picture)));
        QCOMPARE(pictured.count(), 1);
        QVERIFY(!popup->isVisible());
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }

    void lettersOfAnyScript()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        r.bar->page(0)->setTitle(QStringLiteral("Главная"));
        KeyTipRibbon::key(Qt::Key_Alt);
        QCOMPARE(KeyTipRibbon::tipOf(r.bar->page(0)), QStringLiteral("Г"));
        r.bar->setCurrentPageIndex(1);
        KeyTipRibbon::typeText(QStringLiteral("г"));
        QCOMPARE(r.bar->currentPageIndex(), 0);
    }

    void canBeTurnedOff()
    {
        KeyTipRibbon r;
        QVERIFY(r.ready());
        QVERIFY(r.bar->isKeyTipsEnabled());
        r.bar->setKeyTipsEnabled(false);
        QVERIFY(!r.bar->isKeyTipsEnabled());
        KeyTipRibbon::key(Qt::Key_Alt);
        KeyTipRibbon::key(Qt::Key_F10);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
        r.bar->setKeyTipsEnabled(true);
        KeyTipRibbon::key(Qt::Key_Alt);
        QCOMPARE(KeyTipRibbon::badges().size(), 6);
        // Turned off while shown, they go.
        r.bar->setKeyTipsEnabled(false);
        QCOMPARE(KeyTipRibbon::badgeCount(), 0);
    }
};

QTEST_MAIN(tst_QtitanKeyTips)
#include "tst_qtitankeytips.moc"
