// The ribbon editor over the demo's ribbon, as a user sees it: 32 x 32 tool
// buttons, the 200 pixel parameters box with the editor at its top, and the
// ribbon turned to the page of the selected command. With
// TESSARO_SCREENSHOT_DIR set it saves ribbon-editor.png there: the ribbon
// above the editor.
#include "DemoWindow.h"

#include <tessaro/Tessaro.h>

#include <QtitanRibbon.h>

#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

namespace {

QModelIndex findAction(const RibbonTreeModel& model, const QString& objectName, const QModelIndex& parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.item(index)->object()->objectName() == objectName)
            return index;
        const QModelIndex inner = findAction(model, objectName, index);
        if (inner.isValid())
            return inner;
    }
    return QModelIndex();
}

} // namespace

class tst_RibbonEditorLook : public QObject
{
    Q_OBJECT

private slots:
    void editorOverTheDemoRibbon();
};

void tst_RibbonEditorLook::editorOverTheDemoRibbon()
{
    QTemporaryDir dir;
    DemoWindow window(dir.filePath(QStringLiteral("settings.dat")));
    auto* ribbon = qobject_cast<ui::RibbonBar*>(window.ribbonBar());
    QVERIFY(ribbon);
    window.resize(1100, 420);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QRibbonTreeWidget editor;
    editor.resize(760, 540);
    editor.updateModel(ribbon);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    auto* view = editor.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
    auto* model = qobject_cast<RibbonTreeModel*>(view->model());

    // Pick the "Symbol" group command of the Insert page.
    const QModelIndex symbol = findAction(*model, QStringLiteral("ribbon.symbol"));
    QVERIFY(symbol.isValid());
    QCOMPARE(model->itemType(symbol), int(RibbonItemType::ActionGroup));
    view->scrollTo(symbol, QAbstractItemView::PositionAtCenter);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(symbol).center());
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QModelIndex panel = model->findAncestor(symbol, int(RibbonItemType::Panel));
    QCOMPARE(ribbon->currentPageIndex(), panel.row());
    QVERIFY(panel.row() > 0);

    for (QToolButton* button : editor.findChildren<QToolButton*>()) {
        if (button->parentWidget() != &editor)
            continue;
        QCOMPARE(button->iconSize(), QSize(32, 32));
        QVERIFY(button->width() >= 32 && button->height() >= 32);
        QVERIFY(button->isVisible());
    }
    auto* box = editor.findChild<QGroupBox*>(QStringLiteral("paramsBox"));
    QCOMPARE(box->width(), 200);
    QVERIFY(box->geometry().left() > view->geometry().right());
    auto* name = box->findChild<QLineEdit*>();
    QVERIFY(name && name->isVisible());
    QVERIFY(name->mapTo(box, QPoint(0, 0)).y() < box->height() / 4);
    const QList<QRadioButton*> radios = box->findChildren<QRadioButton*>();
    QCOMPARE(radios.size(), 3);
    // Every label is shown whole, on as many lines as the box needs.
    for (QRadioButton* radio : radios) {
        QTRY_VERIFY2(radio->sizeHint().width() <= radio->width(), qPrintable(radio->text()));
        QTRY_VERIFY2(radio->sizeHint().height() <= radio->height(), qPrintable(radio->text()));
        QVERIFY(radio->geometry().right() < box->contentsRect().right());
    }
    QVERIFY(view->visualRect(symbol).intersects(view->viewport()->rect()));

    const QString shots = qEnvironmentVariable("TESSARO_SCREENSHOT_DIR");
    if (shots.isEmpty())
        return;
    QCoreApplication::processEvents();
    const QPixmap top = ribbon->grab();
    const QPixmap bottom = editor.grab();
    QImage image(qMax(top.width(), bottom.width()), top.height() + bottom.height() + 12, QImage::Format_RGB32);
    image.fill(QColor(0xE8, 0xE8, 0xE8));
    QPainter painter(&image);
    painter.drawPixmap(0, 0, top);
    painter.drawPixmap(0, top.height() + 12, bottom);
    painter.end();
    QVERIFY(QDir().mkpath(shots));
    QVERIFY(image.save(QDir(shots).filePath(QStringLiteral("ribbon-editor.png"))));
}

QTEST_MAIN(tst_RibbonEditorLook)
#include "tst_ribboneditorlook.moc"
