#include "DemoCustomizeWindow.h"

#include "DemoCustomizeHandler.h"
#include "DemoQuickSearch.h"
#include "DemoWindow.h"

#include <tessaro/MenuTreeWidget.h>
#include <tessaro/QCustomizeDlg.h>
#include <tessaro/QToolBarPage.h>

#include <QAbstractItemModel>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const int ribbonTab = 1;

} // namespace

DemoCustomizeWindow* DemoCustomizeWindow::showFor(DemoWindow* window)
{
    auto* customize = window->findChild<DemoCustomizeWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!customize) {
        customize = new DemoCustomizeWindow(window);
        customize->placeBelowBars();
        customize->open();
    }
    customize->raise();
    customize->activateWindow();
    return customize;
}

DemoCustomizeWindow::DemoCustomizeWindow(DemoWindow* window)
    : QDialog(window)
    , m_window(window)
    , m_opened(DemoCustomLayout::of(*window))
    , m_openedState(window->saveState())
{
    setObjectName(QStringLiteral("demoCustomize"));
    setWindowTitle(tr("Customize"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset, this);
    m_buttons->button(QDialogButtonBox::Reset)->setToolTip(
        tr("Return the ribbon, the quick access bar and the toolbars to those the demo starts with"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &DemoCustomizeWindow::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &DemoCustomizeWindow::reject);
    connect(m_buttons->button(QDialogButtonBox::Reset), &QPushButton::clicked, this, &DemoCustomizeWindow::reset);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_buttons);
    buildDialog(window->ribbonBar() ? ribbonTab : 0);
    resize(960, 620);
}

DemoCustomizeWindow::~DemoCustomizeWindow() = default;

// Centred on the window but below its ribbon and top tool bars, so that the
// user watches them change; kept on the screen.
void DemoCustomizeWindow::placeBelowBars()
{
    const int below = m_window->centralWidget()->mapToGlobal(QPoint(0, 0)).y() + 8;
    QRect frame(QPoint(), frameGeometry().size());
    frame.moveCenter(m_window->frameGeometry().center());
    frame.moveTop(below);
    const QRect screen = m_window->screen()->availableGeometry();
    frame.moveBottom(qMin(frame.bottom(), screen.bottom()));
    frame.moveTop(qMax(frame.top(), screen.top()));
    frame.moveRight(qMin(frame.right(), screen.right()));
    frame.moveLeft(qMax(frame.left(), screen.left()));
    move(frame.topLeft());
}

void DemoCustomizeWindow::accept()
{
    DemoCustomizeHandler(m_window).applyLayout();
    m_window->quickSearch()->refresh();
    QDialog::accept();
}

void DemoCustomizeWindow::reject()
{
    // The dialog's trees point into the ribbon that is about to be rebuilt.
    dropDialog();
    m_opened.applyTo(*m_window);
    // A toolbar removed and made again goes back to where it stood.
    m_window->restoreState(m_openedState);
    m_window->quickSearch()->refresh();
    QDialog::reject();
}

void DemoCustomizeWindow::reset()
{
    const int tab = m_customize->currentTabIndex();
    dropDialog();
    DemoCustomizeHandler(m_window).resetLayout();
    buildDialog(tab);
}

void DemoCustomizeWindow::dropDialog()
{
    delete m_customize;
    m_customize = nullptr;
    m_toolBarPage = nullptr;
    m_toolBarCommands = nullptr;
}

void DemoCustomizeWindow::buildDialog(int tab)
{
    m_customize = new ui::QCustomizeDlg(this);
    m_customize->setHandler(new DemoCustomizeHandler(m_window));
    placeToolBarPage();
    m_customize->setCurrentTabIndex(tab);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, m_customize, 1);
}

// The demo's commands take the place of the tab's own list, the page goes
// beside them; a double-click on a command adds it to the selected tool bar.
void DemoCustomizeWindow::placeToolBarPage()
{
    m_toolBarPage = new ui::QToolBarPage;
    m_toolBarPage->setToolBars(m_window->toolBars());
    m_customize->getLayout()->addWidget(m_toolBarPage);

    QTreeWidget* list = m_customize->getTreeWidget();
    m_toolBarCommands = new MenuTreeWidget(nullptr, DemoCustomizeHandler(m_window).menu());
    m_toolBarCommands->setObjectName(QStringLiteral("toolBarCommands"));
    m_toolBarCommands->setHeaderHidden(true);
    delete list->parentWidget()->layout()->replaceWidget(list, m_toolBarCommands);
    list->hide();
    m_customize->getSplitter()->setSizes({300, 640});
    connect(m_toolBarCommands, &MenuTreeWidget::currentActionChanged, m_toolBarPage,
            &ui::QToolBarPage::setCurrentCommand);
    connect(m_toolBarCommands, &MenuTreeWidget::actionDoubleClicked, m_toolBarPage,
            &ui::QToolBarPage::fromDoubleClick);

    // The first tool bar's contents are shown, rather than an empty tree.
    auto* toolBarList = m_toolBarPage->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    toolBarList->setCurrentRow(0);
    // A tool bar added on the page joins the window once the page is done with it.
    connect(toolBarList->model(), &QAbstractItemModel::rowsInserted, this, &DemoCustomizeWindow::dockNewToolBars,
            Qt::QueuedConnection);
}

void DemoCustomizeWindow::dockNewToolBars()
{
    if (!m_toolBarPage)
        return;
    // The page lists a new tool bar unchecked; checking its row (through the
    // page, which enables the tool bar) says what the window shows: it is on.
    auto* list = m_toolBarPage->findChild<QListWidget*>(QStringLiteral("toolBarList"));
    const QList<QToolBar*> toolBars = m_toolBarPage->toolBars();
    for (int row = 0; row < toolBars.size(); ++row) {
        QToolBar* toolBar = toolBars.at(row);
        if (toolBar->parent())
            continue;
        m_window->addToolBar(toolBar);
        toolBar->show();
        list->item(row)->setCheckState(Qt::Checked);
    }
}
