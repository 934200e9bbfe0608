// A long, seeded random session in the ribbon editor: pages, groups,
// commands, group commands and separators are added, moved, renamed, restyled
// and deleted through the editor's buttons and parameter editors, with a
// QAbstractItemModelTester on the model. After every edit the tree must show
// exactly the live ribbon; at the end the ribbon is saved with the
// serializer, restored into a fresh ribbon, and the new tree must equal the
// old one.
#include <tessaro/Tessaro.h>

#include "common/testicons.h"

#include <QtitanRibbon.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QHash>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <functional>
#include <memory>

namespace {

const QString untitledText = QStringLiteral("< Без названия >");
const QString separatorText = QStringLiteral("< Р А З Д Е Л И Т Е Л Ь >");
const QString dynamicText = QStringLiteral("< Динамическая группа >");
constexpr int hostCommandCount = 40;
constexpr int editsWanted = 1000;

// Host commands stored by object name, as a host's serializer stores its
// registry's commands.
class HostSerializer : public ui::RibbonSerializer
{
public:
    HostSerializer(ui::RibbonBar* ribbon, const QList<QAction*>& commands)
        : ui::RibbonSerializer(ribbon)
    {
        for (QAction* command : commands)
            m_commands.insert(command->objectName(), command);
    }

protected:
    QString getActionID(QAction* action) override
    {
        return m_commands.value(action->objectName()) == action ? action->objectName() : QString();
    }
    QAction* getAction(const QString& id) const override { return m_commands.value(id); }

private:
    QHash<QString, QAction*> m_commands;
};

// What a row must show for an action, read from the ribbon alone.
bool displayMatches(const QString& shown, QAction* action, Qtitan::RibbonGroup* holder)
{
    if (action->isSeparator())
        return shown == separatorText;
    if (action->text().isEmpty())
        return holder && action->menu() && ui::getGroupButtonType(holder, action) != ui::Simple && shown == dynamicText;
    return shown == QString(action->text()).remove(QLatin1Char('&'));
}

QString titleShown(const QString& title)
{
    return title.isEmpty() ? untitledText : QString(title).remove(QLatin1Char('&'));
}

// One row of a tree as the user sees it, for comparing two trees.
struct Row
{
    QString text;
    int type;
    int style;      // button look of a command in a group, -1 elsewhere
    int buttonType; // group button kind of a group command in a group, -1 elsewhere
    QList<Row> children;

    bool operator==(const Row& other) const
    {
        return text == other.text && type == other.type && style == other.style && buttonType == other.buttonType
            && children == other.children;
    }
};

QList<Row> rows(const RibbonTreeModel& model, const QModelIndex& parent)
{
    QList<Row> list;
    auto* group = model.itemType(parent) == int(RibbonItemType::Group)
                      ? static_cast<GroupItem*>(model.item(parent))->group()
                      : nullptr;
    for (int r = 0; r < model.rowCount(parent); ++r) {
        const QModelIndex index = model.index(r, 0, parent);
        Row row{model.data(index).toString(), model.itemType(index), -1, -1, rows(model, index)};
        if (group) {
            QAction* action = static_cast<ActionItem*>(model.item(index))->action();
            row.style = ui::actionButtonStyle(group, action);
            if (action->menu())
                row.buttonType = ui::getGroupButtonType(group, action);
        }
        list << row;
    }
    return list;
}

QString describe(const QList<Row>& list, int depth = 0)
{
    QString text;
    for (const Row& row : list) {
        text += QString(depth * 2, QLatin1Char(' '))
                + QStringLiteral("%1 [%2 %3 %4]\n").arg(row.text).arg(row.type).arg(row.style).arg(row.buttonType)
                + describe(row.children, depth + 1);
    }
    return text;
}

} // namespace

class tst_RibbonTreeRandomEdits : public QObject
{
    Q_OBJECT

private slots:
    void randomSession_data();
    void randomSession();

private:
    void buildRibbon();
    bool edit();
    QString checkTreeShowsRibbon() const;
    QString checkActions(const QModelIndex& parent, const QList<QAction*>& actions, Qtitan::RibbonGroup* holder) const;

    QModelIndexList allIndexes(const QModelIndex& parent = QModelIndex()) const;
    QModelIndex randomIndex(const std::function<bool(const QModelIndex&)>& accept) const;
    bool selectOnly(const QModelIndex& index);
    bool clickButton(const char* name);
    void settle() const;
    QWidget* editorWidget() const;
    int bounded(int n) const { return int(m_random->bounded(quint32(n))); }
    int typeOf(const QModelIndex& index) const { return m_model->itemType(index); }

    std::unique_ptr<QObject> m_host;
    QList<QAction*> m_commands;
    std::unique_ptr<ui::RibbonBar> m_ribbon;
    std::unique_ptr<QRibbonTreeWidget> m_widget;
    QTreeView* m_view = nullptr;
    RibbonTreeModel* m_model = nullptr;
    std::unique_ptr<QRandomGenerator> m_random;
    QString m_lastEdit;
};

void tst_RibbonTreeRandomEdits::buildRibbon()
{
    m_host = std::make_unique<QObject>();
    m_commands.clear();
    for (int i = 0; i < hostCommandCount; ++i) {
        auto* command = new QAction(testcommon::colorIcon(QColor::fromHsv(i * 37 % 360, 200, 200)), QStringLiteral("Command &%1").arg(i), m_host.get());
        command->setObjectName(QStringLiteral("cmd%1").arg(i));
        m_commands << command;
    }
    m_ribbon = std::make_unique<ui::RibbonBar>(QStringLiteral("tst"));
    int next = 0;
    auto take = [this, &next]() { return m_commands.at(next++ % hostCommandCount); };
    const QStringList pages{QStringLiteral("&Home"), QStringLiteral("Insert"), QStringLiteral("View"), QString()};
    for (int p = 0; p < pages.size(); ++p) {
        Qtitan::RibbonPage* page = m_ribbon->addPage(pages.at(p));
        for (int g = 0; g < 3; ++g) {
            Qtitan::RibbonGroup* group = page->addGroup(g == 2 && p == 1 ? QString() : QStringLiteral("Group %1.%2").arg(p).arg(g));
            group->addAction(take(), Qt::ToolButtonTextUnderIcon);
            group->addAction(take(), Qt::ToolButtonTextBesideIcon);
            auto* separator = new QAction(group);
            separator->setSeparator(true);
            group->addAction(separator);
            auto* menu = new QMenu(group);
            for (int m = 0; m < 3; ++m)
                menu->addAction(take());
            auto* groupCommand = new QAction(menu->actions().first()->icon(), QStringLiteral("Choice %1.%2").arg(p).arg(g), group);
            group->addAction(groupCommand, Qt::ToolButtonTextBesideIcon, menu, QToolButton::InstantPopup);
            if ((p + g) % 3 != 0)
                ui::setGroupButtonType(group, groupCommand, (p + g) % 3 == 1 ? ui::Dynamic : ui::DynamicLite);
            group->addAction(take(), Qt::ToolButtonIconOnly);
        }
    }
}

void tst_RibbonTreeRandomEdits::settle() const
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QModelIndexList tst_RibbonTreeRandomEdits::allIndexes(const QModelIndex& parent) const
{
    QModelIndexList list;
    for (int r = 0; r < m_model->rowCount(parent); ++r) {
        const QModelIndex index = m_model->index(r, 0, parent);
        list << index << allIndexes(index);
    }
    return list;
}

QModelIndex tst_RibbonTreeRandomEdits::randomIndex(const std::function<bool(const QModelIndex&)>& accept) const
{
    QModelIndexList candidates;
    for (const QModelIndex& index : allIndexes()) {
        if (accept(index))
            candidates << index;
    }
    return candidates.isEmpty() ? QModelIndex() : candidates.at(bounded(candidates.size()));
}

// Clicks the row, as a user selects it; a row that is selected already is
// not clicked again, which would start editing it in place.
bool tst_RibbonTreeRandomEdits::selectOnly(const QModelIndex& index)
{
    if (!index.isValid())
        return false;
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    if (selected == QModelIndexList{index} && m_view->currentIndex() == index)
        return true;
    if (selected.contains(index)) {
        m_widget->clearSelection();
        settle();
    }
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent())
        m_view->expand(parent);
    m_view->scrollTo(index, QAbstractItemView::PositionAtCenter);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, m_view->visualRect(index).center());
    settle();
    return m_view->selectionModel()->selectedIndexes() == QModelIndexList{index};
}

bool tst_RibbonTreeRandomEdits::clickButton(const char* name)
{
    auto* button = m_widget->findChild<QToolButton*>(QLatin1String(name));
    if (!button->isEnabled())
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    settle();
    return true;
}

QWidget* tst_RibbonTreeRandomEdits::editorWidget() const
{
    auto* box = m_widget->findChild<QGroupBox*>(QStringLiteral("paramsBox"));
    for (QWidget* child : box->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isVisible())
            return child;
    }
    return nullptr;
}

// One random edit through the editor; false when the drawn edit does not
// apply to the drawn item (nothing changed).
bool tst_RibbonTreeRandomEdits::edit()
{
    const int size = allIndexes().size();
    const auto isPanel = [this](const QModelIndex& i) { return typeOf(i) == int(RibbonItemType::Panel); };
    const auto isGroup = [this](const QModelIndex& i) { return typeOf(i) == int(RibbonItemType::Group); };
    const auto isGroupCommand = [this](const QModelIndex& i) { return typeOf(i) == int(RibbonItemType::ActionGroup); };
    const auto inGroup = [this](const QModelIndex& i) { return typeOf(i.parent()) == int(RibbonItemType::Group); };
    const auto notPanel = [this](const QModelIndex& i) { return typeOf(i) != int(RibbonItemType::Panel); };
    const auto any = [](const QModelIndex&) { return true; };

    int kind = bounded(100);
    if (size > 180 && kind < 50)
        kind = 50 + bounded(12); // mostly deletions while the tree is large
    if (size < 60 && kind >= 50 && kind < 62)
        kind = bounded(50);
    if (kind < 3) {
        m_lastEdit = QStringLiteral("add panel");
        return selectOnly(randomIndex(any)) && clickButton("addPanel");
    }
    if (kind < 8) {
        m_lastEdit = QStringLiteral("add group");
        return selectOnly(randomIndex(any)) && clickButton("addGroup");
    }
    if (kind < 26) {
        QAction* command = m_commands.at(bounded(hostCommandCount));
        m_lastEdit = QStringLiteral("add command ") + command->objectName();
        if (!selectOnly(randomIndex(notPanel)))
            return false;
        m_widget->setMenuAction(command);
        return clickButton("addItem");
    }
    if (kind < 33) {
        m_lastEdit = QStringLiteral("add group command");
        return selectOnly(randomIndex(notPanel)) && clickButton("addGroupItem");
    }
    if (kind < 40) {
        m_lastEdit = QStringLiteral("add separator");
        return selectOnly(randomIndex(notPanel)) && clickButton("addSeparator");
    }
    if (kind < 50) {
        const bool up = bounded(2) == 0;
        m_lastEdit = up ? QStringLiteral("move up") : QStringLiteral("move down");
        return selectOnly(randomIndex(any)) && clickButton(up ? "up" : "down");
    }
    if (kind < 62) {
        m_lastEdit = QStringLiteral("delete");
        const QModelIndex index = randomIndex([&](const QModelIndex& i) {
            return !isPanel(i) || (m_model->rowCount() > 2 && (m_model->rowCount() > 8 || bounded(4) == 0));
        });
        return selectOnly(index) && clickButton("del");
    }
    if (kind < 68) {
        m_lastEdit = QStringLiteral("take commands out of a group command");
        const QModelIndex groupCommand = randomIndex([&](const QModelIndex& i) {
            return isGroupCommand(i) && m_model->rowCount(i) > 0;
        });
        if (!groupCommand.isValid())
            return false;
        const int count = m_model->rowCount(groupCommand);
        const int first = bounded(count);
        const int last = first + bounded(count - first);
        if (!selectOnly(m_model->index(first, 0, groupCommand)))
            return false;
        if (last > first) {
            m_view->scrollTo(m_model->index(last, 0, groupCommand), QAbstractItemView::PositionAtCenter);
            QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                              m_view->visualRect(m_model->index(last, 0, groupCommand)).center());
            settle();
        }
        if (m_view->selectionModel()->selectedIndexes().size() != last - first + 1)
            return false;
        const int before = m_model->rowCount(groupCommand);
        QMetaObject::invokeMethod(m_widget.get(), "onUp");
        settle();
        return before != m_model->rowCount(groupCommand) || first > 0;
    }
    if (kind < 76) {
        m_lastEdit = QStringLiteral("rename in the name field");
        if (!selectOnly(randomIndex([&](const QModelIndex& i) { return isPanel(i) || isGroup(i) || isGroupCommand(i); })))
            return false;
        QWidget* editor = editorWidget();
        auto* field = editor ? editor->findChild<QLineEdit*>() : nullptr;
        if (!field || !field->isEnabled())
            return false;
        const QStringList names{QStringLiteral("Name %1").arg(bounded(1000)), QStringLiteral("&Mnemonic %1").arg(bounded(100)),
                                QString(60, QLatin1Char('w'))};
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, names.at(bounded(names.size())));
        if (bounded(3) == 0)
            QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClick(field, Qt::Key_Return);
        settle();
        return true;
    }
    if (kind < 84) {
        m_lastEdit = QStringLiteral("group button type");
        if (!selectOnly(randomIndex([&](const QModelIndex& i) { return isGroupCommand(i) && inGroup(i); })))
            return false;
        const QList<QRadioButton*> radios = editorWidget()->findChildren<QRadioButton*>();
        QRadioButton* radio = radios.at(bounded(radios.size()));
        if (radio->isChecked())
            return false;
        QTest::mouseClick(radio, Qt::LeftButton, Qt::NoModifier, QPoint(8, radio->height() / 2));
        settle();
        return true;
    }
    if (kind < 92) {
        m_lastEdit = QStringLiteral("button look");
        if (!selectOnly(randomIndex([&](const QModelIndex& i) { return typeOf(i) == int(RibbonItemType::Action) && inGroup(i); })))
            return false;
        const QList<QRadioButton*> radios = editorWidget()->findChildren<QRadioButton*>();
        QRadioButton* radio = radios.at(bounded(radios.size()));
        if (radio->isChecked())
            return false;
        QTest::mouseClick(radio, Qt::LeftButton, Qt::NoModifier, QPoint(8, radio->height() / 2));
        settle();
        return true;
    }
    if (kind < 96) {
        m_lastEdit = QStringLiteral("centering");
        if (!selectOnly(randomIndex(isGroup)))
            return false;
        auto* centering = editorWidget()->findChild<QCheckBox*>();
        QTest::mouseClick(centering, Qt::LeftButton, Qt::NoModifier, QPoint(8, centering->height() / 2));
        settle();
        return true;
    }
    m_lastEdit = QStringLiteral("rename in the tree");
    const QModelIndex index = randomIndex([&](const QModelIndex& i) { return isGroup(i) || isPanel(i); });
    if (!selectOnly(index))
        return false;
    QTest::keyClick(m_view, Qt::Key_F2);
    settle();
    auto* field = m_view->viewport()->findChild<QLineEdit*>();
    if (!field)
        return false;
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("Renamed %1").arg(bounded(100)));
    QTest::keyClick(field, Qt::Key_Return);
    settle();
    return true;
}

QString tst_RibbonTreeRandomEdits::checkActions(const QModelIndex& parent, const QList<QAction*>& actions,
                                                Qtitan::RibbonGroup* holder) const
{
    if (m_model->rowCount(parent) != actions.size())
        return QStringLiteral("%1 rows for %2 actions under %3")
            .arg(m_model->rowCount(parent))
            .arg(actions.size())
            .arg(m_model->data(parent).toString());
    for (int r = 0; r < actions.size(); ++r) {
        const QModelIndex index = m_model->index(r, 0, parent);
        QAction* action = actions.at(r);
        if (m_model->item(index)->object() != action)
            return QStringLiteral("row %1 under %2 wraps another action").arg(r).arg(m_model->data(parent).toString());
        const QString shown = m_model->data(index).toString();
        if (!displayMatches(shown, action, holder))
            return QStringLiteral("row shows \"%1\" for \"%2\"").arg(shown, action->text());
        const bool expands = action->menu() && !action->property("isDynamic").toBool();
        const QString inner = expands ? checkActions(index, action->menu()->actions(), nullptr)
                                      : (m_model->rowCount(index) == 0 ? QString() : QStringLiteral("a leaf has rows"));
        if (!inner.isEmpty())
            return inner;
    }
    return QString();
}

QString tst_RibbonTreeRandomEdits::checkTreeShowsRibbon() const
{
    if (m_model->rowCount() != m_ribbon->pageCount())
        return QStringLiteral("%1 panels for %2 pages").arg(m_model->rowCount()).arg(m_ribbon->pageCount());
    for (int p = 0; p < m_ribbon->pageCount(); ++p) {
        Qtitan::RibbonPage* page = m_ribbon->page(p);
        const QModelIndex panel = m_model->index(p, 0);
        if (m_model->item(panel)->object() != page || m_model->data(panel).toString() != titleShown(page->title()))
            return QStringLiteral("panel %1 is not page \"%2\"").arg(p).arg(page->title());
        if (m_model->rowCount(panel) != page->groupCount())
            return QStringLiteral("panel %1 has %2 rows for %3 groups").arg(p).arg(m_model->rowCount(panel)).arg(page->groupCount());
        for (int g = 0; g < page->groupCount(); ++g) {
            Qtitan::RibbonGroup* group = page->groupAt(g);
            const QModelIndex groupIndex = m_model->index(g, 0, panel);
            if (m_model->item(groupIndex)->object() != group
                || m_model->data(groupIndex).toString() != titleShown(group->title()))
                return QStringLiteral("group %1.%2 is not \"%3\"").arg(p).arg(g).arg(group->title());
            const QString actions = checkActions(groupIndex, group->actions(), group);
            if (!actions.isEmpty())
                return actions;
        }
    }
    return QString();
}

void tst_RibbonTreeRandomEdits::randomSession_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::newRow("seed 20240611") << 20240611u;
    QTest::newRow("seed 7") << 7u;
}

void tst_RibbonTreeRandomEdits::randomSession()
{
    QFETCH(quint32, seed);
    m_random = std::make_unique<QRandomGenerator>(seed);
    buildRibbon();
    m_widget = std::make_unique<QRibbonTreeWidget>();
    m_widget->resize(700, 900);
    m_widget->updateModel(m_ribbon.get());
    m_view = m_widget->findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    m_model = qobject_cast<RibbonTreeModel*>(m_view->model());
    QAbstractItemModelTester tester(m_model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    QCOMPARE(checkTreeShowsRibbon(), QString());

    int edits = 0;
    QHash<QString, int> perKind;
    for (int attempt = 0; edits < editsWanted && attempt < 20 * editsWanted; ++attempt) {
        if (!edit())
            continue;
        ++edits;
        ++perKind[m_lastEdit.startsWith(QStringLiteral("add command ")) ? QStringLiteral("add command") : m_lastEdit];
        const QString mismatch = checkTreeShowsRibbon();
        if (!mismatch.isEmpty())
            QFAIL(qPrintable(QStringLiteral("after edit %1 (%2): %3").arg(edits).arg(m_lastEdit, mismatch)));
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("the model tester failed after edit %1 (%2)").arg(edits).arg(m_lastEdit)));
    }
    QCOMPARE(edits, editsWanted);
    QStringList counts;
    for (auto it = perKind.cbegin(); it != perKind.cend(); ++it)
        counts << QStringLiteral("%1: %2").arg(it.key()).arg(it.value());
    counts.sort();
    qInfo("%d edits (%s); %d rows, %d pages at the end", edits, qPrintable(counts.join(QStringLiteral(", "))),
          allIndexes().size(), m_ribbon->pageCount());
    // Every kind of edit took part.
    QVERIFY2(perKind.size() == 14, qPrintable(QStringList(perKind.keys()).join(QStringLiteral(", "))));

    // The stream has no place for an empty menu: an empty group command comes
    // back as a plain command. The last edits remove them.
    for (bool removed = true; removed;) {
        removed = false;
        for (const QModelIndex& index : allIndexes()) {
            if (m_model->itemType(index) == int(RibbonItemType::ActionGroup) && m_model->rowCount(index) == 0) {
                QVERIFY(selectOnly(index) && clickButton("del"));
                removed = true;
                break;
            }
        }
    }
    QCOMPARE(checkTreeShowsRibbon(), QString());
    const QList<Row> edited = rows(*m_model, QModelIndex());

    HostSerializer saver(m_ribbon.get(), m_commands);
    const QByteArray stored = saver.save();
    QVERIFY(!stored.isEmpty());
    ui::RibbonBar restored(QStringLiteral("tst"));
    HostSerializer loader(&restored, m_commands);
    QVERIFY(loader.restore(stored));
    RibbonTreeModel restoredModel(&restored);
    const QList<Row> again = rows(restoredModel, QModelIndex());
    if (!(again == edited))
        QFAIL(qPrintable(QStringLiteral("restored tree differs\nedited:\n%1\nrestored:\n%2").arg(describe(edited), describe(again))));

    m_widget.reset();
    m_ribbon.reset();
    m_host.reset();
}

QTEST_MAIN(tst_RibbonTreeRandomEdits)
#include "tst_ribbontreerandomedits.moc"
