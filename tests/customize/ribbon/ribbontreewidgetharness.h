#pragma once

// The ribbon editor widget over the fixture's ribbon, shown, with helpers
// that act as a user does: clicks on tree rows and tool buttons.

#include "ribbontreefixture.h"

#include <QAbstractItemModelTester>
#include <QGroupBox>
#include <QLayout>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

namespace fixture {

struct Editor
{
    Ribbon ribbon;
    QRibbonTreeWidget widget;
    QTreeView* view = nullptr;
    RibbonTreeModel* model = nullptr;
    QGroupBox* paramsBox = nullptr;
    std::unique_ptr<QAbstractItemModelTester> tester;
    bool exposed = false;

    Editor()
    {
        widget.resize(900, 700);
        widget.updateModel(&ribbon.bar);
        view = widget.findChild<QTreeView*>(QStringLiteral("ribbonTreeView"));
        model = qobject_cast<RibbonTreeModel*>(view->model());
        paramsBox = widget.findChild<QGroupBox*>(QStringLiteral("paramsBox"));
        tester = std::make_unique<QAbstractItemModelTester>(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        widget.show();
        exposed = QTest::qWaitForWindowExposed(&widget);
    }

    QModelIndex at(std::initializer_list<int> rows) const
    {
        QModelIndex index;
        for (int row : rows)
            index = model->index(row, 0, index);
        return index;
    }

    QToolButton* button(const char* name) const
    {
        return widget.findChild<QToolButton*>(QLatin1String(name));
    }

    // A click on a tree row, with Ctrl or Shift for extended selections.
    void clickRow(const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        view->scrollTo(index, QAbstractItemView::PositionAtCenter);
        const QRect rect = view->visualRect(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, rect.center());
        settle();
    }

    void clickButton(const char* name) const
    {
        QToolButton* tool = button(name);
        QTest::mouseClick(tool, Qt::LeftButton);
        settle();
    }

    // Lets the event loop run as after a user action: new editor widgets
    // show and lay out, retired ones are deleted.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QModelIndexList selected() const { return view->selectionModel()->selectedIndexes(); }

    // The editor behind the parameters box, null when the box is empty.
    AbstractEditor* editor() const
    {
        const QList<AbstractEditor*> editors = paramsBox->findChildren<AbstractEditor*>();
        for (AbstractEditor* editor : editors) {
            if (editor->parent() && editor->parent()->parent() == paramsBox)
                return editor;
        }
        return nullptr;
    }

    QWidget* editorWidget() const
    {
        AbstractEditor* current = editor();
        return current ? qobject_cast<QWidget*>(current->parent()) : nullptr;
    }

    QStringList enabledButtons() const
    {
        QStringList names;
        for (const char* name : {"addPanel", "addGroup", "addItem", "addGroupItem", "addSeparator", "up", "down", "del"}) {
            if (button(name)->isEnabled())
                names << QLatin1String(name);
        }
        return names;
    }
};

} // namespace fixture
