// Quick search under a realistic load: 10,000 commands three menus deep.
// Every figure is printed beside a baseline measured in the same run, a plain
// case-insensitive QString::contains scan over the same path texts.

#include <tessaro/QuickSearch.h>
#include "QuickSearchIndex_p.h"

#include "BenchTiming.h"

#include <QAction>
#include <QApplication>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QMenu>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using ui::QuickSearchWidget;

namespace {

const char* const topMenus[] = {"File", "Edit", "View", "Insert", "Format",
                                "Tools", "Table", "Review", "Layout", "Window"};

const char* const groupNouns[] = {
    "Page Setup", "Paragraph", "Borders", "Shading", "Columns", "Headers", "Footers", "Styles",
    "Themes", "Proofing", "Language", "Comments", "Tracking", "Changes", "Compare", "Protect",
    "Macros", "Templates", "Add-ins", "Options", "Zoom", "Panes", "Rulers", "Gridlines",
    "Arrange", "Sort", "Data", "Formulas", "Charts", "Pictures", "Shapes", "Symbols",
    "Links", "Bookmarks", "Captions", "Citations", "Index", "Contents", "Mailings", "Sharing"};

const char* const verbs[] = {"Insert", "Delete", "Copy", "Move", "Align", "Rotate", "Merge", "Split",
                             "Select", "Hide", "Show", "Sort", "Filter", "Export", "Import", "Print",
                             "Preview", "Protect", "Reset", "Apply", "Clear", "Convert", "Duplicate",
                             "Rename", "Resize", "Group", "Lock", "Highlight", "Replace", "Find"};

const char* const objects[] = {"Row", "Column", "Cell", "Shape", "Picture", "Chart", "Comment",
                               "Footnote", "Header", "Footer", "Section", "Bookmark", "Hyperlink",
                               "Caption", "Citation", "Watermark", "Symbol", "Equation", "Field",
                               "Style", "Theme", "Margin", "Border", "Outline", "Layer", "Frame",
                               "Legend", "Axis", "Series", "Label"};

const char* const tails[] = {"", "", "", "", "Above", "Below", "Left", "Right", "All", "to PDF",
                             "as Image", "Settings", "", "", "Again", "Options",
                             "in Selection", "in Selection", "in Selection", "in Section",
                             "for Selection", "Selection Only"};

template <typename T, int N>
constexpr int count(T (&)[N])
{
    return N;
}

// Deterministic pseudo-random numbers, so every run searches the same texts.
struct Lcg
{
    quint32 state = 12345;
    int next(int bound)
    {
        state = state * 1664525u + 1013904223u;
        return int((state >> 8) % quint32(bound));
    }
};

struct Corpus
{
    std::unique_ptr<QWidget> owner{new QWidget};
    QList<QAction*> top;
    QList<QAction*> commands;
    QStringList paths; // what the search shows, in source order

    Corpus()
    {
        const QString arrow = QStringLiteral(" \u2192 ");
        QStyle* style = QApplication::style();
        const QList<QIcon> icons = {style->standardIcon(QStyle::SP_FileIcon), style->standardIcon(QStyle::SP_DirIcon),
                                    style->standardIcon(QStyle::SP_DialogSaveButton),
                                    style->standardIcon(QStyle::SP_TrashIcon)};
        Lcg random;
        for (const char* title : topMenus) {
            auto* menu = new QMenu(QString::fromLatin1(title), owner.get());
            top.append(menu->menuAction());
            for (int g = 0; g < 25; ++g) {
                const QString group = QString::fromLatin1(groupNouns[random.next(count(groupNouns))]);
                QMenu* sub = menu->addMenu(group);
                for (int c = 0; c < 40; ++c) {
                    QString name = QStringLiteral("%1 %2").arg(QLatin1String(verbs[random.next(count(verbs))]),
                                                               QLatin1String(objects[random.next(count(objects))]));
                    const char* tail = tails[random.next(count(tails))];
                    if (*tail)
                        name += QLatin1Char(' ') + QLatin1String(tail);
                    QAction* command = sub->addAction(name);
                    if (c % 7 == 0) {
                        command->setCheckable(true);
                        command->setChecked(c % 14 == 0);
                    }
                    if (c % 11 == 0)
                        command->setEnabled(false);
                    if (c % 5 == 0)
                        command->setIcon(icons[c % icons.size()]);
                    commands.append(command);
                    paths.append(QString::fromLatin1(title) + arrow + group + arrow + name);
                }
            }
        }
    }
};

int baselineScan(const QStringList& texts, const QStringList& words)
{
    int hits = 0;
    for (const QString& text : texts) {
        bool all = true;
        for (const QString& word : words) {
            if (!text.contains(word, Qt::CaseInsensitive)) {
                all = false;
                break;
            }
        }
        hits += all;
    }
    return hits;
}

// Median thread CPU time of one call, in milliseconds (the machine may be
// shared; the offscreen platform paints on this thread, so painting counts).
double medianMs(const std::function<void()>& run, int minRuns = 7, qint64 minNs = 300 * 1000 * 1000)
{
    QVector<qint64> times;
    qint64 total = 0;
    while (times.size() < minRuns || total < minNs) {
        const qint64 start = bench::threadNs();
        run();
        const qint64 ns = bench::threadNs() - start;
        times.append(ns);
        total += ns;
        if (times.size() >= 1000)
            break;
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2] / 1e6;
}

// QtTest may run a benchmark function several times; report each row once.
bool firstReport(const char* what)
{
    static QSet<QString> done;
    const QString key = QLatin1String(what) + QLatin1Char('/') + QLatin1String(QTest::currentDataTag());
    if (done.contains(key))
        return false;
    done.insert(key);
    return true;
}

struct Pair
{
    double ms;     // median
    double baseMs; // median
    double minMs;
    double minBaseMs;
};

// Medians of a measured step and of its baseline, timed in turns so that a
// busy machine slows both alike. \a setup runs before each step, untimed.
Pair measurePair(const std::function<void()>& setup, const std::function<void()>& run,
                 const std::function<void()>& baseline)
{
    QVector<qint64> runs;
    QVector<qint64> bases;
    qint64 total = 0;
    while (runs.size() < 9 || total < 400 * 1000 * 1000) {
        setup();
        const qint64 start = bench::threadNs();
        run();
        const qint64 ns = bench::threadNs() - start;
        baseline();
        const qint64 baseNs = bench::threadNs() - start - ns;
        runs.append(ns);
        bases.append(baseNs);
        total += ns + baseNs;
        if (runs.size() >= 500)
            break;
    }
    std::sort(runs.begin(), runs.end());
    std::sort(bases.begin(), bases.end());
    return {runs[runs.size() / 2] / 1e6, bases[bases.size() / 2] / 1e6, runs.first() / 1e6, bases.first() / 1e6};
}

// The machine may be shared: medians show the usual case, minimums the cost
// without interruptions.
QString figure(const char* what, const QString& query, int matches, const Pair& pair)
{
    return QStringLiteral("%1 \"%2\" (%3 matches): median %4 ms, baseline %5 ms, ratio %6; "
                          "minimum %7 ms, baseline %8 ms, ratio %9")
        .arg(QLatin1String(what), query)
        .arg(matches)
        .arg(pair.ms, 0, 'f', 3)
        .arg(pair.baseMs, 0, 'f', 3)
        .arg(pair.ms / pair.baseMs, 0, 'f', 2)
        .arg(pair.minMs, 0, 'f', 3)
        .arg(pair.minBaseMs, 0, 'f', 3)
        .arg(pair.minMs / pair.minBaseMs, 0, 'f', 2);
}

} // namespace

class bench_QuickSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void keystroke_data();
    void keystroke();
    void matching_data();
    void matching();
    void phases_data();
    void phases();
    void fingerprint_data();
    void fingerprint();

private:
    void addQueries();

    std::unique_ptr<Corpus> m_corpus;
    std::unique_ptr<QWidget> m_window;
    QuickSearchWidget* m_box = nullptr;
};

void bench_QuickSearch::initTestCase()
{
    m_corpus.reset(new Corpus);
    QCOMPARE(m_corpus->commands.size(), 10000);

    m_window.reset(new QWidget);
    auto* layout = new QVBoxLayout(m_window.get());
    layout->addStretch();
    m_box = new QuickSearchWidget(m_window.get());
    layout->addWidget(m_box);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    m_window->setGeometry(screen.left() + 40, screen.bottom() - 120, 300, 80);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));

    QElapsedTimer timer;
    timer.start();
    m_box->setSource(m_corpus->top);
    qInfo("setSource of %d commands: %.1f ms", int(m_corpus->commands.size()), timer.nsecsElapsed() / 1e6);
}

void bench_QuickSearch::cleanup()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

void bench_QuickSearch::addQueries()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::newRow("about 10") << "split row" << 5 << 25;
    QTest::newRow("about 300") << "split" << 200 << 450;
    QTest::newRow("about 5000") << "ion" << 3500 << 6500;
}

void bench_QuickSearch::keystroke_data()
{
    addQueries();
}

// From the last key of the query to the popup shown and painted.
void bench_QuickSearch::keystroke()
{
    QFETCH(QString, query);
    QFETCH(int, low);
    QFETCH(int, high);

    const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const int matches = baselineScan(m_corpus->paths, words);
    QVERIFY2(matches >= low && matches <= high, qPrintable(QString::number(matches)));

    QMenu* popup = m_box->findChild<QMenu*>();
    const QString prefix = query.left(query.size() - 1);
    const char last = query.back().toLatin1();
    // From an empty popup: a two-letter text shows nothing.
    auto emptyPopup = [&] {
        m_box->setText(QStringLiteral("x"));
        QTest::keyClick(m_box, 'x');
        QCoreApplication::processEvents();
        m_box->setText(prefix);
    };
    auto press = [&] {
        QTest::keyClick(m_box, last);
        QCoreApplication::processEvents();
    };
    emptyPopup();
    press();
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->actions().size(), matches);

    // QtTest's own figure includes emptying the popup.
    QBENCHMARK {
        emptyPopup();
        press();
    }

    if (!firstReport("keystroke"))
        return;
    const Pair fresh = measurePair(emptyPopup, press, [&] { baselineScan(m_corpus->paths, words); });
    qInfo().noquote() << figure("keystroke from an empty popup", query, matches, fresh);

    // Typing the whole query into an empty box, key by key, as a user does.
    QStringList prefixes;
    for (int i = 1; i <= query.size(); ++i)
        prefixes << query.left(i);
    auto clearBox = [&] {
        emptyPopup();
        m_box->clear();
    };
    auto typeQuery = [&] {
        for (QChar key : query) {
            QTest::keyClick(m_box, key.toLatin1());
            QCoreApplication::processEvents();
        }
    };
    auto scanEach = [&] {
        for (const QString& text : qAsConst(prefixes)) {
            const QStringList typed = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            if (!typed.isEmpty() && typed.first().size() >= 3)
                baselineScan(m_corpus->paths, typed);
        }
    };
    const Pair typing = measurePair(clearBox, typeQuery, scanEach);
    qInfo().noquote() << figure("typing the whole query", query, matches, typing)
                      << QStringLiteral("(%1 keys)").arg(query.size());
}

void bench_QuickSearch::matching_data()
{
    addQueries();
}

// The ranking alone, over an index built the way the box builds its own.
void bench_QuickSearch::matching()
{
    QFETCH(QString, query);

    ui::QuickSearchIndex index;
    for (int i = 0; i < m_corpus->commands.size(); ++i) {
        QAction* command = m_corpus->commands[i];
        auto* proxy = new QAction(command->icon(), m_corpus->paths[i], command);
        proxy->setCheckable(command->isCheckable());
        index.append(proxy);
    }
    const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const int matches = index.match(words).size();
    QCOMPARE(matches, baselineScan(m_corpus->paths, words));

    QBENCHMARK {
        index.match(words);
    }

    if (firstReport("matching")) {
        const Pair pair = measurePair([] {}, [&] { index.match(words); },
                                      [&] { baselineScan(m_corpus->paths, words); });
        qInfo().noquote() << figure("matching", query, matches, pair);
    }
    index.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void bench_QuickSearch::phases_data()
{
    addQueries();
}

// Where a keystroke's time goes: the steps the box takes, one by one, on a
// menu of its own.
void bench_QuickSearch::phases()
{
    QFETCH(QString, query);
    if (!firstReport("phases"))
        return;

    ui::QuickSearchIndex index;
    for (int i = 0; i < m_corpus->commands.size(); ++i) {
        QAction* command = m_corpus->commands[i];
        index.append(new QAction(command->icon(), m_corpus->paths[i], command));
    }
    QMenu menu;
    const QPoint at = m_box->mapToGlobal(QPoint(0, 0));
    enum { Clear, Split, Match, Add, Size, Popup, Paint, PhaseCount };
    QVector<qint64> phase[PhaseCount];
    int results = 0;
    QElapsedTimer timer;
    timer.start();
    while (phase[0].size() < 7 || timer.elapsed() < 1000) {
        const qint64 start = bench::threadNs();
        qint64 last = 0;
        auto lap = [&](int which) {
            const qint64 now = bench::threadNs() - start;
            phase[which].append(now - last);
            last = now;
        };
        menu.close();
        menu.clear();
        lap(Clear);
        const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        lap(Split);
        const QList<QAction*> found = index.match(words);
        lap(Match);
        menu.addActions(found);
        lap(Add);
        menu.adjustSize();
        lap(Size);
        menu.popup(at - QPoint(0, menu.height()));
        lap(Popup);
        QCoreApplication::processEvents();
        lap(Paint);
        results = found.size();
    }
    menu.close();
    auto median = [](QVector<qint64> times) {
        std::sort(times.begin(), times.end());
        return times[times.size() / 2] / 1e6;
    };
    const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const double baseMs = medianMs([&] { baselineScan(m_corpus->paths, words); });
    qInfo("phases \"%s\" (%d matches), ms: clear %.3f, split %.3f, match %.3f, add %.3f, adjustSize %.3f, "
          "popup %.3f, paint %.3f; baseline %.3f; popup %dx%d",
          qPrintable(query), results, median(phase[Clear]), median(phase[Split]), median(phase[Match]),
          median(phase[Add]), median(phase[Size]), median(phase[Popup]), median(phase[Paint]), baseMs,
          menu.width(), menu.height());
    index.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void bench_QuickSearch::fingerprint_data()
{
    addQueries();
    QTest::newRow("typed over") << "split rowx" << 0 << 0;
    QTest::newRow("words reordered") << "row split" << 0 << 25;
    QTest::newRow("upper case") << "SPLIT Row" << 0 << 25;
    QTest::newRow("narrowing") << "ion sel row" << 0 << 0;
    QTest::newRow("backspace") << "split row\b\b\bcol" << 0 << 0;
}

// What the user sees after every key of the query: whether the popup is up,
// where, its entries with their states, and the pixels of the final popup.
// Printed as one hash per query, to compare builds of the box.
void bench_QuickSearch::fingerprint()
{
    QFETCH(QString, query);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    QMenu* popup = m_box->findChild<QMenu*>();
    m_box->clear();
    popup->close();
    for (int i = 0; i < query.size(); ++i) {
        // After three keys the user moves into the popup and goes on typing there.
        const bool onPopup = i >= 3 && popup->isVisible();
        if (i == 3 && onPopup)
            QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(onPopup ? static_cast<QWidget*>(popup) : m_box, query.at(i).toLatin1());
        QCoreApplication::processEvents();
        const QRect frame = popup->geometry();
        QString state = QStringLiteral("%1 %2,%3 %4x%5 %6|")
                            .arg(popup->isVisible())
                            .arg(frame.x())
                            .arg(frame.y())
                            .arg(frame.width())
                            .arg(frame.height())
                            .arg(popup->activeAction() ? popup->activeAction()->text() : QStringLiteral("-"));
        for (QAction* action : popup->actions()) {
            state += QStringLiteral("%1/%2/%3/%4/%5|")
                         .arg(action->text())
                         .arg(action->isEnabled())
                         .arg(action->isCheckable())
                         .arg(action->isChecked())
                         .arg(action->icon().isNull());
        }
        hash.addData(state.toUtf8());
    }
    if (popup->isVisible()) {
        const QImage image = popup->grab().toImage();
        hash.addData(reinterpret_cast<const char*>(image.constBits()), int(image.sizeInBytes()));
    }
    qInfo("fingerprint \"%s\": %d entries, %s", qPrintable(query), int(popup->actions().size()),
          hash.result().toHex().constData());
    popup->close();
}

QTEST_MAIN(bench_QuickSearch)
#include "bench_quicksearch.moc"
