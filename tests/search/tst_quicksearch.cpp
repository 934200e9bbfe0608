#include <tessaro/CommandsRegistry.h>
#include <tessaro/QuickSearch.h>

#include "common/faketranslator.h"
#include "searchsource.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <QStyle>
#include <QVBoxLayout>
#include <QtTest>

using ui::QuickSearchWidget;

namespace {

// Records the keys the box receives and the reason it last got the focus.
class RecordingSearch : public QuickSearchWidget
{
public:
    using QuickSearchWidget::QuickSearchWidget;

    QList<int> keys;
    Qt::FocusReason focusReason = Qt::OtherFocusReason;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        keys.append(event->key());
        QuickSearchWidget::keyPressEvent(event);
    }

    void focusInEvent(QFocusEvent* event) override
    {
        focusReason = event->reason();
        QuickSearchWidget::focusInEvent(event);
    }
};

QMenu* popupOf(QuickSearchWidget& box)
{
    return box.findChild<QMenu*>();
}

QStringList popupTexts(QuickSearchWidget& box)
{
    QStringList texts;
    for (QAction* action : popupOf(box)->actions())
        texts << action->text();
    return texts;
}

// Types the query the way a user does, one key at a time into an empty box.
void type(QuickSearchWidget& box, const QString& query)
{
    popupOf(box)->close();
    box.clear();
    QTest::keyClicks(&box, query);
}

// Types the query into a shown box the way the keyboard delivers it: each key
// goes to the open popup if there is one (it grabs the keyboard), else to the
// focus widget.
void typeAsUser(const QString& query)
{
    for (const QChar c : query)
        QTest::keyClick(static_cast<QWidget*>(nullptr), c.toLatin1());
}

// A shown, active window holding a focused box over the given source.
struct BoxWindow
{
    QWidget window;
    QuickSearchWidget* box;

    explicit BoxWindow(const QList<QAction*>& actions)
        : box(new QuickSearchWidget(&window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addStretch();
        layout->addWidget(box);
        box->setSource(actions);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        window.setGeometry(screen.left() + 60, screen.top() + screen.height() / 2, 300, 100);
    }

    bool showFocused()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        box->setFocus();
        return QTest::qWaitFor([this] { return box->hasFocus(); });
    }
};

QAction* popupAction(QuickSearchWidget& box, const QString& text)
{
    for (QAction* action : popupOf(box)->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class tst_QuickSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void placeholderText();
    void placeholderTranslatedInFileContext();
    void sizeHintAndPolicy();

    void pathTexts();
    void ampersandsRemovedAndPercentSignsKept();
    void separatorsEmptyTextsAndSubmenus();
    void proxiesBelongToRealActions();

    void firstWordNeedsThreeCharacters_data();
    void firstWordNeedsThreeCharacters();
    void ranksOfOpen_data();
    void ranksOfOpen();
    void wordOnlyInMiddleMenuGivesRankOne();
    void rankOrderAndSourceOrder_data();
    void rankOrderAndSourceOrder();
    void everyWordRequired();
    void noMatchShowsNothing();
    void matchesPlainRulesOnMixedScripts();

    void liveStateCopied();
    void liveStateCopiedOntoEveryProxy();
    void pathPartsFromProxyCurrentText();
    void deletedRealActionDropsItsEntry();
    void setSourceReplacesEntries();
    void destroyingBoxKeepsProxies();

    void choosingEntryTriggersRealAction();
    void choosingEntryRunsCommandThroughRegistry();
    void registryStateShownInPopup();
    void typingOnPopupContinues();
    void navigationKeysStayWithPopup();
    void popupOpensWithFirstEntryActive();
    void returnAfterTypingRunsBestMatch();
    void pointerLeavingPopupKeepsBestMatch();
    void boxClearedAfterEntryRuns();
    void escapeReachesBoxAndMenu();
    void escapeInBoxClearsItAndClosesPopup();
    void escapeInEmptyBoxGoesToParent();
    void leftClickShowsResults();
    void popupStandsAboveBox();
    void ctrlQFocusesBox();
};

void tst_QuickSearch::cleanup()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

void tst_QuickSearch::placeholderText()
{
    QuickSearchWidget box(nullptr);
    QCOMPARE(box.placeholderText(), QStringLiteral("Поиск: Команда (Ctrl + Q)"));
}

void tst_QuickSearch::placeholderTranslatedInFileContext()
{
    testcommon::FakeTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QuickSearchWidget box(nullptr);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(box.placeholderText(), QStringLiteral("[QuickSearch.cpp]Поиск: Команда (Ctrl + Q)"));
}

void tst_QuickSearch::sizeHintAndPolicy()
{
    QuickSearchWidget box(nullptr);
    QLineEdit plain;
    QCOMPARE(box.sizeHint().width(), 150);
    QCOMPARE(box.sizeHint().height(), plain.sizeHint().height());
    QCOMPARE(box.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(box.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* inLayout = new QuickSearchWidget(&window);
    layout->addWidget(inLayout);
    window.resize(600, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(inLayout->width(), 150);
}

void tst_QuickSearch::pathTexts()
{
    SearchSource source;
    source.addAll({"File/Open", "File/Recent/Report", "Print"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "ope");
    QCOMPARE(popupTexts(box), QStringList{QStringLiteral("File \u2192 Open")});
    type(box, "report");
    QCOMPARE(popupTexts(box), QStringList{QStringLiteral("File \u2192 Recent \u2192 Report")});
    type(box, "print");
    QCOMPARE(popupTexts(box), QStringList{QStringLiteral("Print")});
}

void tst_QuickSearch::ampersandsRemovedAndPercentSignsKept()
{
    SearchSource source;
    source.addAll({"&File/&Open", "Save 50%/Rate %1 && %2", "R&&D/Plan"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "open");
    QCOMPARE(popupTexts(box), QStringList{QStringLiteral("File \u2192 Open")});
    type(box, "rate");
    QCOMPARE(popupTexts(box), QStringList{QStringLiteral("Save 50% \u2192 Rate %1  %2")});
    type(box, "plan");
    QCOMPARE(popupTexts(box), QStringList{QStringLiteral("RD \u2192 Plan")});
    // A typed "&" finds nothing: it is gone from every text.
    type(box, "pla &");
    QVERIFY(!popupOf(box)->isVisible());
}

void tst_QuickSearch::separatorsEmptyTextsAndSubmenus()
{
    SearchSource source;
    source.addAll({"Edit/Undo item", "Edit/Recent items/First item"});
    QMenu* edit = source.menu("Edit");
    edit->addSeparator();
    QAction* noText = edit->addAction(QIcon(), QString());
    noText->setIcon(QApplication::style()->standardIcon(QStyle::SP_FileIcon));
    edit->addMenu(QStringLiteral("Empty item menu"));
    QList<QAction*> top = source.actions();
    auto* topSeparator = new QAction(source.owner());
    topSeparator->setSeparator(true);
    topSeparator->setText(QStringLiteral("Separator item"));
    top.prepend(topSeparator);
    auto* topEmpty = new QAction(source.owner());
    top.append(topEmpty);
    source.add("Last item");
    top.append(source.command("Last item"));

    QuickSearchWidget box(nullptr);
    box.setSource(top);
    type(box, "ite");
    QCOMPARE(popupTexts(box),
             shown(QStringList{"Edit/Undo item", "Edit/Recent items/First item", "Last item"}));
    for (QAction* action : popupOf(box)->actions())
        QVERIFY(!action->isSeparator());

    // Neither the separators nor the empty actions nor the submenu actions got proxies.
    QVERIFY(topSeparator->findChildren<QAction*>().isEmpty());
    QVERIFY(topEmpty->findChildren<QAction*>().isEmpty());
    QVERIFY(noText->findChildren<QAction*>().isEmpty());
    QVERIFY(source.menu("Edit")->menuAction()->findChildren<QAction*>().isEmpty());
    QVERIFY(source.menu("Edit/Recent items")->menuAction()->findChildren<QAction*>().isEmpty());
}

void tst_QuickSearch::proxiesBelongToRealActions()
{
    SearchSource source;
    QAction* open = source.add("File/Open");
    QAction* wrap = source.add("View/Word wrap");
    open->setIcon(QApplication::style()->standardIcon(QStyle::SP_DialogOpenButton));
    wrap->setCheckable(true);

    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    const QList<QAction*> openProxies = open->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(openProxies.size(), 1);
    QAction* proxy = openProxies.first();
    QCOMPARE(proxy->text(), QStringLiteral("File \u2192 Open"));
    QCOMPARE(proxy->icon().cacheKey(), open->icon().cacheKey());
    QVERIFY(!proxy->isCheckable());

    const QList<QAction*> wrapProxies = wrap->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(wrapProxies.size(), 1);
    QVERIFY(wrapProxies.first()->isCheckable());

    QSignalSpy triggered(open, &QAction::triggered);
    proxy->trigger();
    QCOMPARE(triggered.count(), 1);

    type(box, "open");
    QCOMPARE(popupOf(box)->actions(), QList<QAction*>{proxy});
}

void tst_QuickSearch::firstWordNeedsThreeCharacters_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("ab") << "ab" << QStringList();
    QTest::newRow("abc") << "abc" << shown(QStringList{"Edit/Abc tool"});
    QTest::newRow("ab cde") << "ab cde" << QStringList();
    QTest::newRow("cde ab") << "cde ab" << shown(QStringList{"Edit/Cde ab"});
    QTest::newRow("blanks before ab") << "   ab" << QStringList();
    QTest::newRow("blanks around abc") << "  abc   " << shown(QStringList{"Edit/Abc tool"});
    QTest::newRow("only blanks") << "     " << QStringList();
}

void tst_QuickSearch::firstWordNeedsThreeCharacters()
{
    QFETCH(QString, query);
    QFETCH(QStringList, expected);

    SearchSource source;
    source.addAll({"Edit/Abc tool", "Edit/Cde ab", "Edit/Cde"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, query);
    QCOMPARE(box.text(), query);
    QCOMPARE(popupTexts(box), expected);
    QCOMPARE(popupOf(box)->isVisible(), !expected.isEmpty());
}

// The rank of "File/Open" for a word shows in where it lands among four
// commands whose ranks for that word are 3, 2, 1 and 0: within a rank the
// earlier source entry comes first, and "File/Open" is the first one.
void tst_QuickSearch::ranksOfOpen_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QStringList>("others"); // ranks 3, 2, 1, 0
    QTest::addColumn<int>("rank");

    QTest::newRow("ope") << "ope"
                         << QStringList{"Tools/Operate", "Tools/Scope", "Tools/Operations/Run", "Operations/Run"}
                         << 3;
    QTest::newRow("pen") << "pen"
                         << QStringList{"Tools/Pencil", "Tools/Append", "Tools/Pending/Run", "Pending/Run"}
                         << 2;
    QTest::newRow("fil") << "fil"
                         << QStringList{"Tools/Filter", "Tools/Profile", "Tools/Files/Run", "Filters/Run"}
                         << 0;
    QTest::newRow("OPE upper case") << "OPE"
                                    << QStringList{"Tools/Operate", "Tools/Scope", "Tools/Operations/Run",
                                                   "Operations/Run"}
                                    << 3;
}

void tst_QuickSearch::ranksOfOpen()
{
    QFETCH(QString, word);
    QFETCH(QStringList, others);
    QFETCH(int, rank);

    SearchSource source;
    source.add("File/Open");
    source.addAll(others);
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    QStringList expected = shown(others);
    expected.insert(3 - rank, shown(QStringLiteral("File/Open")));
    type(box, word);
    QCOMPARE(popupTexts(box), expected);
}

void tst_QuickSearch::wordOnlyInMiddleMenuGivesRankOne()
{
    SearchSource source;
    source.addAll({"File/Export/As picture", "Insert/Picture", "Picture tools/Crop", "File/Picture library/Open",
                   "Format/Picture"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "pic");
    QCOMPARE(popupTexts(box),
             shown(QStringList{"Insert/Picture", "Format/Picture", "File/Export/As picture",
                               "File/Picture library/Open", "Picture tools/Crop"}));
}

void tst_QuickSearch::rankOrderAndSourceOrder_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QStringList>("expected");

    // Ranks for "pen": Open 2, Pending/Close 1, Pen Tools/Filter 0, Open File 2, Pentagon 3.
    QTest::newRow("one word, all ranks")
        << "pen"
        << shown(QStringList{"Help/Pentagon", "File/Open", "Tools/Open File", "File/Pending/Close",
                             "Pen Tools/Filter"});
    QTest::newRow("two words, ranks never fall")
        << "pen fil"
        << shown(QStringList{"Pen Tools/Filter", "File/Open", "Tools/Open File", "File/Pending/Close"});
    QTest::newRow("two words, other order")
        << "fil pen"
        << shown(QStringList{"Pen Tools/Filter", "File/Open", "Tools/Open File", "File/Pending/Close"});
    QTest::newRow("later word raises the rank") << "pen clo" << shown(QStringList{"File/Pending/Close"});
    QTest::newRow("case-insensitive")
        << "PEN"
        << shown(QStringList{"Help/Pentagon", "File/Open", "Tools/Open File", "File/Pending/Close",
                             "Pen Tools/Filter"});
}

void tst_QuickSearch::rankOrderAndSourceOrder()
{
    QFETCH(QString, query);
    QFETCH(QStringList, expected);

    SearchSource source;
    source.addAll({"File/Open", "File/Pending/Close", "Pen Tools/Filter", "Tools/Open File", "Help/Pentagon"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, query);
    QCOMPARE(popupTexts(box), expected);
}

void tst_QuickSearch::everyWordRequired()
{
    SearchSource source;
    source.addAll({"File/Open", "File/Open recent", "Edit/Open link"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "open rec");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open recent"}));
    type(box, "open file");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open", "File/Open recent"}));
    type(box, "open zzz");
    QVERIFY(popupTexts(box).isEmpty());
    QVERIFY(!popupOf(box)->isVisible());
}

void tst_QuickSearch::noMatchShowsNothing()
{
    SearchSource source;
    source.addAll({"File/Open"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "open");
    QVERIFY(popupOf(box)->isVisible());
    QTest::keyClick(&box, 'x');
    QCOMPARE(box.text(), QStringLiteral("openx"));
    QVERIFY(!popupOf(box)->isVisible());
    QVERIFY(popupTexts(box).isEmpty());

    QuickSearchWidget empty(nullptr);
    type(empty, "open");
    QVERIFY(!popupOf(empty)->isVisible());
}

// The ranking rules written out plainly, for comparison with the box.
static QStringList plainSearch(const QStringList& paths, const QString& query)
{
    const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty() || words.first().size() < 3)
        return {};
    QStringList ranked[4];
    for (const QString& path : paths) {
        const QStringList parts = path.split(QStringLiteral(" \u2192 "));
        int rank = 0;
        bool all = true;
        for (const QString& word : words) {
            if (!path.contains(word, Qt::CaseInsensitive)) {
                all = false;
                break;
            }
            if (rank < 3 && parts.last().startsWith(word, Qt::CaseInsensitive))
                rank = 3;
            else if (rank < 2 && parts.last().contains(word, Qt::CaseInsensitive))
                rank = 2;
            else if (rank < 1 && !parts.first().contains(word, Qt::CaseInsensitive))
                rank = 1;
        }
        if (all)
            ranked[rank].append(path);
    }
    return ranked[3] + ranked[2] + ranked[1] + ranked[0];
}

void tst_QuickSearch::matchesPlainRulesOnMixedScripts()
{
    // Letters whose case folding is unusual: sharp s, final sigma, dotted and
    // dotless i, the Kelvin and micro signs, Cyrillic, and a Deseret pair
    // outside the basic plane; blanks and arrows to disturb the path parts.
    const QStringList pieces = {
        "a", "A", "b", "B", "e", "E", "o", "O", "s", "S", "k", "K", "i", "I",
        "\u00df", "\u1e9e", "\u03c3", "\u03c2", "\u03a3", "\u0130", "\u0131", "\u212a", "\u00b5", "\u03bc",
        "\u0430", "\u0410", "\u0451", "\u0401", "\U00010400", "\U00010428", " ", " ", "\u2192", " \u2192 ", "-"};
    QRandomGenerator random(20240601);
    auto randomText = [&](int minPieces, int maxPieces) {
        QString text;
        const int n = random.bounded(minPieces, maxPieces + 1);
        for (int i = 0; i < n; ++i)
            text += pieces[random.bounded(pieces.size())];
        return text;
    };

    SearchSource source;
    QStringList paths;
    for (int i = 0; i < 300; ++i) {
        const int depth = random.bounded(1, 4);
        QStringList parts;
        for (int level = 0; level < depth; ++level) {
            // Few distinct menu titles, so that menus are shared.
            QString part = level + 1 < depth ? QStringLiteral("M%1 ").arg(random.bounded(3)) + randomText(1, 3)
                                             : randomText(2, 8);
            part.remove(QLatin1Char('/'));
            parts << part;
        }
        if (parts.last().trimmed().isEmpty())
            parts.last() += QLatin1Char('x');
        const QString path = parts.join(QLatin1Char('/'));
        if (source.command(path))
            continue;
        source.add(path);
    }
    // The order the box sees: depth first through the menus.
    std::function<void(const QList<QAction*>&, const QString&)> walk = [&](const QList<QAction*>& actions,
                                                                          const QString& prefix) {
        for (QAction* action : actions) {
            const QString name = prefix.isEmpty() ? action->text() : prefix + QStringLiteral(" \u2192 ") + action->text();
            if (action->menu())
                walk(action->menu()->actions(), name);
            else
                paths << name;
        }
    };
    walk(source.actions(), QString());

    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));

    int searched = 0;
    int found = 0;
    for (int i = 0; i < 1000; ++i) {
        QString query;
        const int words = random.bounded(1, 4);
        const QString& origin = paths[random.bounded(paths.size())];
        for (int w = 0; w < words; ++w) {
            // Mostly words of one path, now and then one from elsewhere.
            const QString& path = random.bounded(5) ? origin : paths[random.bounded(paths.size())];
            const int length = random.bounded(w == 0 ? 2 : 1, 6);
            const int from = random.bounded(qMax(1, path.size() - length));
            QString word = path.mid(from, length);
            // Flip the case now and then, so that folding is what matches.
            if (random.bounded(2))
                word = random.bounded(2) ? word.toUpper() : word.toLower();
            query += word + QLatin1Char(' ');
        }
        popupOf(box)->close();
        box.setText(query);
        QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(2, 2));
        QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(2, 2));
        const QStringList expected = plainSearch(paths, query);
        QCOMPARE(popupTexts(box), expected);
        searched += !query.split(QLatin1Char(' '), Qt::SkipEmptyParts).value(0).isEmpty();
        found += !expected.isEmpty();
    }
    // The random queries must exercise the search, not just the short-word rule.
    QVERIFY2(found > 150, qPrintable(QString::number(found)));
    QVERIFY(searched > 500);
}

void tst_QuickSearch::liveStateCopied()
{
    SearchSource source;
    QAction* open = source.add("File/Open");
    QAction* wrap = source.add("View/Word wrap");
    QAction* ruler = source.add("View/Ruler");
    wrap->setCheckable(true);
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    open->setEnabled(false);
    wrap->setChecked(true);
    // Made checkable after the entries were built, as the registry does on its first refresh.
    ruler->setCheckable(true);
    ruler->setChecked(true);

    type(box, "ope");
    QVERIFY(!popupAction(box, shown("File/Open"))->isEnabled());
    type(box, "view");
    QAction* wrapEntry = popupAction(box, shown("View/Word wrap"));
    QAction* rulerEntry = popupAction(box, shown("View/Ruler"));
    QVERIFY(wrapEntry->isCheckable());
    QVERIFY(wrapEntry->isChecked());
    QVERIFY(rulerEntry->isCheckable());
    QVERIFY(rulerEntry->isChecked());

    open->setEnabled(true);
    wrap->setChecked(false);
    type(box, "ope");
    QVERIFY(popupAction(box, shown("File/Open"))->isEnabled());
    type(box, "view");
    QVERIFY(!popupAction(box, shown("View/Word wrap"))->isChecked());
}

// Every live proxy takes its command's state before the matching, also the
// ones that do not match.
void tst_QuickSearch::liveStateCopiedOntoEveryProxy()
{
    SearchSource source;
    QAction* open = source.add("File/Open");
    QAction* ruler = source.add("View/Ruler");
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());
    QAction* openProxy = open->findChild<QAction*>();
    QAction* rulerProxy = ruler->findChild<QAction*>();
    QVERIFY(openProxy && rulerProxy);

    open->setEnabled(false);
    ruler->setCheckable(true);
    ruler->setChecked(true);
    type(box, "ope");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open"}));
    QVERIFY(rulerProxy->isCheckable());
    QVERIFY(rulerProxy->isChecked());

    type(box, "rul");
    QCOMPARE(popupTexts(box), shown(QStringList{"View/Ruler"}));
    QVERIFY(!openProxy->isEnabled());

    // A query that matches nothing refreshes them all the same.
    open->setEnabled(true);
    ruler->setChecked(false);
    type(box, "nothing");
    QVERIFY(!popupOf(box)->isVisible());
    QVERIFY(openProxy->isEnabled());
    QVERIFY(!rulerProxy->isChecked());
}

// The path parts are those of the proxy's text at the time of the search.
void tst_QuickSearch::pathPartsFromProxyCurrentText()
{
    SearchSource source;
    source.add("Links/Manage");
    QAction* open = source.add("File/Open");
    QAction* close = source.add("File/Close");
    source.add("Tools/Links editor");
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());
    QAction* openProxy = open->findChild<QAction*>();
    QAction* closeProxy = close->findChild<QAction*>();
    QVERIFY(openProxy && closeProxy);

    type(box, "clo");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Close"}));

    closeProxy->setText(shown(QStringLiteral("Edit/Links/Open link")));
    type(box, "clo");
    QVERIFY(!popupOf(box)->isVisible());
    type(box, "open");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open", "Edit/Links/Open link"}));
    // Name first (3), then the middle title (1), then the top title (0).
    type(box, "links");
    QCOMPARE(popupTexts(box), shown(QStringList{"Tools/Links editor", "Edit/Links/Open link", "Links/Manage"}));

    // A text of one part is the command's name and the top title at once.
    closeProxy->setText(QStringLiteral("Linkset"));
    openProxy->setText(shown(QStringLiteral("A/Linkset/Open")));
    type(box, "linkset");
    QCOMPARE(popupTexts(box), (QStringList{QStringLiteral("Linkset"), shown(QStringLiteral("A/Linkset/Open"))}));
    type(box, "ope linkset");
    QCOMPARE(popupTexts(box), shown(QStringList{"A/Linkset/Open"}));
    type(box, "set");
    QCOMPARE(popupTexts(box), (QStringList{QStringLiteral("Linkset"), shown(QStringLiteral("A/Linkset/Open"))}));
}

void tst_QuickSearch::deletedRealActionDropsItsEntry()
{
    SearchSource source;
    source.addAll({"File/Open", "File/Open recent", "Edit/Open link"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "open");
    QCOMPARE(popupTexts(box).size(), 3);
    popupOf(box)->close();

    delete source.command("File/Open recent");
    type(box, "open");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open", "Edit/Open link"}));

    // A whole menu going away takes its commands' entries along.
    delete source.menu("Edit");
    type(box, "open");
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open"}));
}

void tst_QuickSearch::setSourceReplacesEntries()
{
    SearchSource first;
    QAction* open = first.add("File/Open");
    SearchSource second;
    second.addAll({"Edit/Copy", "Edit/Open link"});

    QuickSearchWidget box(nullptr);
    box.setSource(first.actions());
    QPointer<QAction> oldProxy = open->findChild<QAction*>();
    QVERIFY(oldProxy);

    type(box, "open");
    QVERIFY(popupOf(box)->isVisible());
    box.setSource(second.actions());
    QVERIFY(!popupOf(box)->isVisible());
    QVERIFY(popupOf(box)->actions().isEmpty());

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(oldProxy.isNull());
    QVERIFY(open->findChildren<QAction*>().isEmpty());

    type(box, "open");
    QCOMPARE(popupTexts(box), shown(QStringList{"Edit/Open link"}));

    // Handing the same actions again makes fresh entries, not doubled ones.
    box.setSource(second.actions());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    type(box, "open");
    QCOMPARE(popupTexts(box), shown(QStringList{"Edit/Open link"}));
    QCOMPARE(second.command("Edit/Open link")->findChildren<QAction*>().size(), 1);

    box.setSource({});
    type(box, "open");
    QVERIFY(!popupOf(box)->isVisible());
}

void tst_QuickSearch::destroyingBoxKeepsProxies()
{
    SearchSource source;
    QAction* open = source.add("File/Open");
    auto* box = new QuickSearchWidget(nullptr);
    box->setSource(source.actions());
    delete box;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(open->findChildren<QAction*>().size(), 1);
}

void tst_QuickSearch::choosingEntryTriggersRealAction()
{
    SearchSource source;
    QAction* open = source.add("File/Open");
    source.add("File/Open recent");
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());
    QSignalSpy triggered(open, &QAction::triggered);

    type(box, "open");
    QMenu* popup = popupOf(box);
    QVERIFY(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_Down);
    QCOMPARE(popup->activeAction()->text(), shown(QStringLiteral("File/Open recent")));
    QTest::keyClick(popup, Qt::Key_Up);
    QCOMPARE(popup->activeAction()->text(), shown(QStringLiteral("File/Open")));
    QTest::keyClick(popup, Qt::Key_Return);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!popup->isVisible());

    // A click on an entry does the same.
    type(box, "open");
    QAction* entry = popupAction(box, shown(QStringLiteral("File/Open")));
    QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(entry).center());
    QCOMPARE(triggered.count(), 2);
}

void tst_QuickSearch::choosingEntryRunsCommandThroughRegistry()
{
    ui::CommandsRegistry registry(nullptr);
    QAction* open = registry.addCommand(QStringLiteral("Open"), 1);
    QAction* close = registry.addCommand(QStringLiteral("Close"), 2);
    QList<int> ran;
    registry.ConnectCommand(1, 2, [&ran](int id) { ran.append(id); });
    bool closeAllowed = true;
    registry.ConnectCommandUI(2, [&closeAllowed](ui::CommandState& state) { state.setEnabled(closeAllowed); });

    QMenu file(QStringLiteral("&File"));
    file.addAction(open);
    file.addAction(close);
    QuickSearchWidget box(nullptr);
    box.setSource({file.menuAction()});

    auto choose = [&box](const QString& query) {
        type(box, query);
        QMenu* popup = popupOf(box);
        QVERIFY(popup->isVisible());
        QCOMPARE(popup->actions().size(), 1);
        QTest::keyClick(popup, Qt::Key_Return);
    };

    choose(QStringLiteral("open"));
    QCOMPARE(ran, QList<int>{1});

    // The entry still looks enabled, but the update handler disables the
    // command when it is triggered, so it does not run.
    closeAllowed = false;
    choose(QStringLiteral("close"));
    QCOMPARE(ran, QList<int>{1});
    QVERIFY(!close->isEnabled());

    closeAllowed = true;
    close->setEnabled(true);
    choose(QStringLiteral("close"));
    QCOMPARE(ran, (QList<int>{1, 2}));
}

void tst_QuickSearch::registryStateShownInPopup()
{
    ui::CommandsRegistry registry(nullptr);
    QAction* save = registry.addCommand(QStringLiteral("&Save"), 1);
    QAction* ruler = registry.addCommand(QStringLiteral("&Ruler"), 2);
    registry.ConnectCommand(1, 2, [](int) {});
    bool canSave = true;
    bool rulerShown = false;
    registry.ConnectCommandUI(1, [&canSave](ui::CommandState& state) { state.setEnabled(canSave); });
    registry.ConnectCommandUI(2, [&rulerShown](ui::CommandState& state) { state.setChecked(rulerShown); });

    QMenu file(QStringLiteral("&File"));
    file.addAction(save);
    file.addAction(ruler);
    QuickSearchWidget box(nullptr);
    box.setSource({file.menuAction()});

    canSave = false;
    rulerShown = true;
    // Let the event dispatcher wake up so the registry refreshes its actions.
    QTest::qWait(10);
    QVERIFY(!save->isEnabled());
    QVERIFY(ruler->isChecked());

    type(box, "file");
    QAction* saveEntry = popupAction(box, shown(QStringLiteral("File/Save")));
    QAction* rulerEntry = popupAction(box, shown(QStringLiteral("File/Ruler")));
    QVERIFY(saveEntry);
    QVERIFY(rulerEntry);
    QVERIFY(!saveEntry->isEnabled());
    QVERIFY(rulerEntry->isCheckable());
    QVERIFY(rulerEntry->isChecked());
}

void tst_QuickSearch::typingOnPopupContinues()
{
    SearchSource source;
    source.addAll({"File/Open", "File/Open recent", "Edit/Open link", "Edit/Operate"});
    RecordingSearch box(nullptr);
    box.setSource(source.actions());

    type(box, "ope");
    QMenu* popup = popupOf(box);
    QVERIFY(popup->isVisible());
    QCOMPARE(popupTexts(box).size(), 4);

    box.keys.clear();
    QTest::keyClick(popup, 'n');
    QCOMPARE(box.keys, QList<int>{Qt::Key_N});
    QCOMPARE(box.text(), QStringLiteral("open"));
    QVERIFY(popup->isVisible());
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open", "File/Open recent", "Edit/Open link"}));

    QTest::keyClicks(popup, " li");
    QCOMPARE(box.text(), QStringLiteral("open li"));
    QCOMPARE(popupTexts(box), shown(QStringList{"Edit/Open link"}));

    QTest::keyClick(popup, Qt::Key_Backspace);
    QTest::keyClick(popup, Qt::Key_Backspace);
    QCOMPARE(box.text(), QStringLiteral("open "));
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open", "File/Open recent", "Edit/Open link"}));
}

void tst_QuickSearch::navigationKeysStayWithPopup()
{
    SearchSource source;
    source.addAll({"File/Open", "File/Open recent"});
    RecordingSearch box(nullptr);
    box.setSource(source.actions());
    QSignalSpy returnPressed(&box, &QLineEdit::returnPressed);
    QSignalSpy edited(&box, &QLineEdit::textEdited);

    type(box, "open");
    QMenu* popup = popupOf(box);
    box.keys.clear();
    edited.clear();

    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Up);
    QCOMPARE(box.keys, QList<int>());
    QCOMPARE(popup->activeAction()->text(), shown(QStringLiteral("File/Open recent")));

    QTest::keyClick(popup, Qt::Key_Enter);
    QTest::keyClick(popup, Qt::Key_Return);
    QCOMPARE(box.keys, QList<int>());
    QCOMPARE(returnPressed.count(), 0);
    QCOMPARE(edited.count(), 0);
}

void tst_QuickSearch::popupOpensWithFirstEntryActive()
{
    SearchSource source;
    source.addAll({"Edit/Reopen", "File/Open", "File/Open recent", "Edit/Copy"});
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());

    type(box, "open");
    QMenu* popup = popupOf(box);
    QVERIFY(popup->isVisible());
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open", "File/Open recent", "Edit/Reopen"}));
    QCOMPARE(popup->activeAction(), popup->actions().first());

    // Moved elsewhere, then a key that leaves the results as they are: the
    // popup opens again on its first entry.
    const QList<QAction*> before = popup->actions();
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Down);
    QCOMPARE(popup->activeAction(), before.at(2));
    QTest::keyClick(popup, ' ');
    QCOMPARE(box.text(), QStringLiteral("open "));
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->actions(), before);
    QCOMPARE(popup->activeAction(), before.first());

    // A key that changes the results: the new best match is active.
    QTest::keyClick(popup, 'c');
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open recent"}));
    QCOMPARE(popup->activeAction(), popup->actions().first());
}

// Typing and Return, nothing else: the best match runs.
void tst_QuickSearch::returnAfterTypingRunsBestMatch()
{
    SearchSource source;
    QAction* reopen = source.add("Edit/Reopen");
    QAction* open = source.add("File/Open");
    BoxWindow w(source.actions());
    QVERIFY(w.showFocused());
    QSignalSpy openRan(open, &QAction::triggered);
    QSignalSpy reopenRan(reopen, &QAction::triggered);

    typeAsUser(QStringLiteral("open"));
    QMenu* popup = popupOf(*w.box);
    QVERIFY(popup->isVisible());
    QCOMPARE(QApplication::activePopupWidget(), static_cast<QWidget*>(popup));
    QCOMPARE(w.box->text(), QStringLiteral("open"));
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Return);
    QCOMPARE(openRan.count(), 1);
    QCOMPARE(reopenRan.count(), 0);
    QVERIFY(!popup->isVisible());

    // Enter does the same.
    typeAsUser(QStringLiteral("reo"));
    QVERIFY(popup->isVisible());
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Enter);
    QCOMPARE(reopenRan.count(), 1);
    QCOMPARE(openRan.count(), 1);
}

// On a display, opening the popup away from the pointer sends it a Leave
// event, on which a menu drops its active entry; the best match stays active,
// and Return runs it.
void tst_QuickSearch::pointerLeavingPopupKeepsBestMatch()
{
    SearchSource source;
    QAction* reopen = source.add("Edit/Reopen");
    QAction* open = source.add("File/Open");
    BoxWindow w(source.actions());
    QVERIFY(w.showFocused());
    QSignalSpy openRan(open, &QAction::triggered);

    typeAsUser(QStringLiteral("open"));
    QMenu* popup = popupOf(*w.box);
    QVERIFY(popup->isVisible());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(popup, &leave);
    QCOMPARE(popup->activeAction(), popup->actions().first());
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Return);
    QCOMPARE(openRan.count(), 1);
    QVERIFY(!popup->isVisible());
    QVERIFY(w.box->text().isEmpty());

    // The pointer leaving after the user moved to another entry keeps that one.
    QSignalSpy reopenRan(reopen, &QAction::triggered);
    typeAsUser(QStringLiteral("open"));
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Down);
    QCOMPARE(popup->activeAction(), popup->actions().at(1));
    QApplication::sendEvent(popup, &leave);
    QCOMPARE(popup->activeAction(), popup->actions().at(1));
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Return);
    QCOMPARE(reopenRan.count(), 1);
    QCOMPARE(openRan.count(), 1);
}

void tst_QuickSearch::boxClearedAfterEntryRuns()
{
    SearchSource source;
    QAction* open = source.add("File/Open");
    source.add("File/Open recent");
    BoxWindow w(source.actions());
    QVERIFY(w.showFocused());
    QSignalSpy ran(open, &QAction::triggered);
    QSignalSpy edited(w.box, &QLineEdit::textEdited);

    // Chosen with the keyboard.
    typeAsUser(QStringLiteral("open"));
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Return);
    QCOMPARE(ran.count(), 1);
    QVERIFY(w.box->text().isEmpty());
    QVERIFY(!popupOf(*w.box)->isVisible());

    // Chosen with the mouse.
    typeAsUser(QStringLiteral("open"));
    QMenu* popup = popupOf(*w.box);
    QVERIFY(popup->isVisible());
    edited.clear();
    QAction* entry = popupAction(*w.box, shown(QStringLiteral("File/Open")));
    QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(entry).center());
    QCOMPARE(ran.count(), 2);
    QVERIFY(w.box->text().isEmpty());
    // Clearing is not an edit: no new search starts.
    QCOMPARE(edited.count(), 0);
    QVERIFY(!popup->isVisible());

    // Closing the popup without choosing keeps the text.
    typeAsUser(QStringLiteral("open"));
    QVERIFY(popup->isVisible());
    popup->close();
    QCOMPARE(w.box->text(), QStringLiteral("open"));
    QCOMPARE(ran.count(), 2);
}

void tst_QuickSearch::escapeReachesBoxAndMenu()
{
    SearchSource source;
    source.add("File/Open");
    RecordingSearch box(nullptr);
    box.setSource(source.actions());

    type(box, "open");
    QMenu* popup = popupOf(box);
    QVERIFY(popup->isVisible());
    box.keys.clear();
    QTest::keyClick(popup, Qt::Key_Escape);
    QCOMPARE(box.keys, QList<int>{Qt::Key_Escape});
    QVERIFY(!popup->isVisible());
}

void tst_QuickSearch::escapeInBoxClearsItAndClosesPopup()
{
    SearchSource source;
    source.addAll({"File/Open", "File/Open recent"});
    BoxWindow w(source.actions());
    QVERIFY(w.showFocused());
    QMenu* popup = popupOf(*w.box);

    // With the popup open (it holds the keyboard).
    typeAsUser(QStringLiteral("open"));
    QVERIFY(popup->isVisible());
    QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_Escape);
    QVERIFY(!popup->isVisible());
    QVERIFY(w.box->text().isEmpty());
    QVERIFY(w.box->hasFocus());

    // Straight in the box, popup closed: the text goes.
    typeAsUser(QStringLiteral("op"));
    QVERIFY(!popup->isVisible());
    QCOMPARE(w.box->text(), QStringLiteral("op"));
    QTest::keyClick(w.box, Qt::Key_Escape);
    QVERIFY(w.box->text().isEmpty());

    // Straight in the box while the popup is open (a box driven by code).
    w.box->setText(QStringLiteral("open"));
    QTest::mousePress(w.box, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(popup->isVisible());
    QTest::keyClick(w.box, Qt::Key_Escape);
    QVERIFY(!popup->isVisible());
    QVERIFY(w.box->text().isEmpty());
}

// Nothing to clear: Escape goes on to the parent, as a line edit's does (a
// dialog then closes).
void tst_QuickSearch::escapeInEmptyBoxGoesToParent()
{
    class EscapeCounter : public QWidget
    {
    public:
        int escapes = 0;

    protected:
        void keyPressEvent(QKeyEvent* event) override
        {
            escapes += event->key() == Qt::Key_Escape;
            QWidget::keyPressEvent(event);
        }
    };

    EscapeCounter parent;
    auto* box = new QuickSearchWidget(&parent);
    box->setText(QStringLiteral("op"));
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(box->text().isEmpty());
    QCOMPARE(parent.escapes, 0);
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(parent.escapes, 1);
}

void tst_QuickSearch::leftClickShowsResults()
{
    SearchSource source;
    source.add("File/Open");
    QuickSearchWidget box(nullptr);
    box.setSource(source.actions());
    box.resize(box.sizeHint());
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));

    box.setText(QStringLiteral("open"));
    QMenu* popup = popupOf(box);
    QVERIFY(!popup->isVisible());

    QTest::mouseClick(&box, Qt::MiddleButton, {}, QPoint(5, 5));
    QVERIFY(!popup->isVisible());
    QTest::mouseClick(&box, Qt::RightButton, {}, QPoint(5, 5));
    QVERIFY(!popup->isVisible());

    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(popup->isVisible());
    QCOMPARE(popupTexts(box), shown(QStringList{"File/Open"}));
    popup->close();

    box.setText(QStringLiteral("op"));
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(!popup->isVisible());
}

void tst_QuickSearch::popupStandsAboveBox()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QVERIFY2(screen.height() >= 400, qPrintable(QStringLiteral("screen %1x%2").arg(screen.width()).arg(screen.height())));

    SearchSource source;
    source.addAll({"File/Open", "File/Open recent", "Edit/Open link", "Open all"});
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addStretch();
    auto* box = new QuickSearchWidget(&window);
    layout->addWidget(box);
    box->setSource(source.actions());
    // Well below the screen's top so that the menu has room above the box.
    window.setGeometry(screen.left() + 60, screen.top() + screen.height() / 2, 300, screen.height() / 3);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    type(*box, "open");
    QMenu* popup = popupOf(*box);
    QVERIFY(popup->isVisible());
    const QPoint boxTopLeft = box->mapToGlobal(QPoint(0, 0));
    QVERIFY2(boxTopLeft.y() - popup->height() >= screen.top(), "the test window is too high on the screen");
    const QRect frame = popup->geometry();
    QCOMPARE(frame.size(), popup->sizeHint());
    QCOMPARE(frame.left(), boxTopLeft.x());
    QCOMPARE(frame.bottom() + 1, boxTopLeft.y());
    QVERIFY(frame.bottom() < boxTopLeft.y());
}

void tst_QuickSearch::ctrlQFocusesBox()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* other = new QLineEdit(&window);
    auto* box = new RecordingSearch(&window);
    layout->addWidget(other);
    layout->addWidget(box);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    QTRY_VERIFY(other->hasFocus());

    QTest::keyClick(other, Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(box->hasFocus());
    QCOMPARE(box->focusReason, Qt::ShortcutFocusReason);
    QVERIFY(other->text().isEmpty());

    // The shortcut belongs to the box's window, not to others.
    QWidget otherWindow;
    auto* elsewhere = new QLineEdit(&otherWindow);
    new QVBoxLayout(&otherWindow);
    otherWindow.layout()->addWidget(elsewhere);
    otherWindow.show();
    QApplication::setActiveWindow(&otherWindow);
    QVERIFY(QTest::qWaitForWindowActive(&otherWindow));
    elsewhere->setFocus();
    QTRY_VERIFY(elsewhere->hasFocus());
    other->setFocus();
    QCOMPARE(window.focusWidget(), other);
    QTest::keyClick(elsewhere, Qt::Key_Q, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QVERIFY(elsewhere->hasFocus());
    QCOMPARE(window.focusWidget(), other);
}

QTEST_MAIN(tst_QuickSearch)
#include "tst_quicksearch.moc"
