#pragma once

// Clicking rows of an item view as a user does, for the tests that drive the
// customize trees with the mouse.

#include <QTreeView>
#include <QtTest>

namespace testcommon {

/// A click on the row of @p index, scrolled into view first.
inline void clickRow(QTreeView* view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QVERIFY(index.isValid());
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(index).center());
}

/// A double-click as a user makes it: the first press picks the row.
inline void doubleClickRow(QTreeView* view, const QModelIndex& index)
{
    QVERIFY(index.isValid());
    view->scrollTo(index);
    const QPoint pos = view->visualRect(index).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
}

} // namespace testcommon
