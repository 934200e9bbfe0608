#include "DemoQuickSearch.h"

#include "DemoCommands.h"
#include "DemoFontSizeAction.h"
#include "DemoMenus.h"
#include "DemoWindow.h"

#include <tessaro/QuickSearch.h>
#include <tessaro/RibbonBar.h>

#include <QtitanRibbon.h>

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOptionFrame>

namespace {

// A ribbon group's actions as entries of \a menu: a group command's menu
// becomes a submenu named after it, the font size box the submenu of its
// sizes. Separators, menus filled when they open and other widgets have no
// command to run.
void addGroupActions(QMenu* menu, const QList<QAction*>& actions)
{
    for (QAction* action : actions) {
        if (action->isSeparator() || action->property("isDynamic").toBool())
            continue;
        if (auto* sizes = qobject_cast<DemoFontSizeAction*>(action)) {
            QMenu* sub = menu->addMenu(sizes->text());
            sub->addActions(sizes->sizeCommands());
        } else if (qobject_cast<QWidgetAction*>(action)) {
            continue;
        } else if (action->menu() && !action->menu()->title().isEmpty()) {
            QMenu* sub = menu->addMenu(action->menu()->title());
            addGroupActions(sub, action->menu()->actions());
        } else {
            menu->addAction(action);
        }
    }
}

} // namespace

DemoQuickSearch::DemoQuickSearch(DemoWindow* window)
    : QObject(window)
    , m_window(window)
    , m_box(new ui::QuickSearchWidget(window))
{
    m_box->setObjectName(QStringLiteral("quickSearch"));
    window->statusBar()->addPermanentWidget(m_box);
    m_box->installEventFilter(this);
    fitPlaceholder();
}

DemoQuickSearch::~DemoQuickSearch() = default;

void DemoQuickSearch::refresh()
{
    if (m_window->ribbonBar()) {
        buildRibbonSource();
        m_box->setSource(m_ribbonSource->actions());
        return;
    }
    QList<QAction*> source;
    for (QMenu* menu : m_window->commands()->menus().categories())
        source << menu->menuAction();
    m_box->setSource(source);
}

void DemoQuickSearch::buildRibbonSource()
{
    m_ribbonSource = std::make_unique<QMenu>();
    Qtitan::RibbonBar* ribbon = m_window->ribbonBar();
    if (QAction* system = ribbon->systemButton() ? ribbon->systemButton()->defaultAction() : nullptr) {
        QMenu* file = m_ribbonSource->addMenu(system->text());
        if (auto* menu = qobject_cast<Qtitan::RibbonSystemMenu*>(system->menu())) {
            addGroupActions(file, menu->actions());
            addGroupActions(file, menu->popupBarActions());
        }
    }
    for (Qtitan::RibbonPage* page : ribbon->pages()) {
        QMenu* pageMenu = m_ribbonSource->addMenu(page->title());
        for (Qtitan::RibbonGroup* group : page->groups())
            addGroupActions(pageMenu->addMenu(group->title()), group->actions());
    }
}

// The placeholder names the shortcut at its end: the box is made wide enough
// for all of it, again whenever the style or the font changes.
void DemoQuickSearch::fitPlaceholder()
{
    QStyleOptionFrame option;
    option.initFrom(m_box);
    option.lineWidth = m_box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, m_box);
    const QMargins margins = m_box->textMargins();
    // QLineEdit keeps two pixels between its frame and the text on each side.
    const int text = m_box->fontMetrics().horizontalAdvance(m_box->placeholderText()) + margins.left()
                     + margins.right() + 2 * 2 + 4;
    const QSize size = m_box->style()->sizeFromContents(QStyle::CT_LineEdit, &option,
                                                        QSize(text, m_box->sizeHint().height()), m_box);
    m_box->setFixedWidth(qMax(size.width(), m_box->sizeHint().width()));
}

bool DemoQuickSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_box && (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange))
        fitPlaceholder();
    return QObject::eventFilter(watched, event);
}
