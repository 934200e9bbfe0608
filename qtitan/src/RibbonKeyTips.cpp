#include "RibbonKeyTips_p.h"

#include "RibbonHover_p.h"
#include "RibbonKeyTipLabel_p.h"
#include "RibbonKeyTipNames_p.h"
#include "qtitan/RibbonBar.h"
#include "qtitan/RibbonButtonControl.h"
#include "qtitan/RibbonGroup.h"
#include "qtitan/RibbonPage.h"
#include "qtitan/RibbonQuickAccessBar.h"
#include "qtitan/RibbonSystemButton.h"
#include "qtitan/RibbonWidgetControl.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QToolButton>

namespace Qtitan {
namespace detail {

namespace {

/// The dynamic property with which a host chooses an action's, a page's or a group's key tip.
const char* const KeyTipProperty = "keyTip";

QString fixedTip(const QObject* object)
{
    return object ? object->property(KeyTipProperty).toString() : QString();
}

bool opensMenu(const QToolButton* button)
{
    const bool hasMenu = button->menu() || (button->defaultAction() && button->defaultAction()->menu());
    return hasMenu && button->popupMode() == QToolButton::InstantPopup;
}

// Badges hang a little below the bottom edge of what they name, so that the
// text or icon above stays in sight.
const int BadgeDrop = 4;

QPoint belowBottomCentre(const QRect& rect)
{
    return QPoint(rect.center().x(), rect.bottom() + BadgeDrop);
}

// Opens a button's menu once the key that chose it has been dealt with (the
// menu runs its own event loop), and puts its hover look right afterwards.
void openMenuLater(QToolButton* button)
{
    QPointer<QToolButton> guard(button);
    QTimer::singleShot(0, button, [guard]() {
        if (!guard)
            return;
        guard->showMenu();
        if (guard)
            syncUnderMouse(guard);
    });
}

bool isModifierKey(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Meta || key == Qt::Key_AltGr;
}

} // namespace

RibbonKeyTips::RibbonKeyTips(RibbonBar* bar, Host host)
    : QObject(bar)
    , m_bar(bar)
    , m_host(std::move(host))
{
    qApp->installEventFilter(this);
}

RibbonKeyTips::~RibbonKeyTips()
{
    clearLabels();
}

void RibbonKeyTips::setEnabled(bool enabled)
{
    m_enabled = enabled;
    if (!enabled)
        end();
}

void RibbonKeyTips::end()
{
    clearLabels();
    m_level = Level::Off;
    m_entries.clear();
    m_typed.clear();
    m_group = nullptr;
    m_page = -1;
}

void RibbonKeyTips::clearLabels()
{
    for (const QPointer<RibbonKeyTipLabel>& label : qAsConst(m_labels))
        delete label.data();
    m_labels.clear();
}

// The ribbon's own window, and the popups it opens (a dropped page, a collapsed group).
bool RibbonKeyTips::belongsToRibbon(const QWidget* widget) const
{
    const QWidget* window = m_bar->window();
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        if (w == m_bar || w == window)
            return true;
        if (w->isWindow() && w->windowType() != Qt::Popup)
            return false;
    }
    return false;
}

bool RibbonKeyTips::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        // Seen where the key is delivered: a widget of the ribbon's window or of its popups.
        const auto* widget = qobject_cast<const QWidget*>(watched);
        if (!m_enabled || !widget || !belongsToRibbon(widget) || !m_bar->isVisible())
            return false;
        return keyEvent(static_cast<QKeyEvent*>(event));
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::Wheel:
        m_altArmed = false;
        if (isShown())
            end();
        return false;
    case QEvent::WindowDeactivate:
        if (isShown() && watched == m_bar->window())
            end();
        return false;
    default:
        return false;
    }
}

bool RibbonKeyTips::keyEvent(QKeyEvent* event)
{
    if (isShown())
        return keyWhileShown(event);
    const Qt::KeyboardModifiers others = event->modifiers() & ~(Qt::AltModifier | Qt::KeypadModifier);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // F10 belongs to the key tips rather than to a shortcut.
        if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        if (event->key() == Qt::Key_Alt && !event->isAutoRepeat()) {
            // Not while a menu or other popup has the keyboard.
            m_altArmed = others == Qt::NoModifier && !QApplication::activePopupWidget();
            return false;
        }
        if (event->isAutoRepeat())
            return false;
        m_altArmed = false;
        if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier && !QApplication::activePopupWidget()) {
            showTop();
            return true;
        }
        return false;
    case QEvent::KeyRelease:
        if (event->key() == Qt::Key_Alt && m_altArmed) {
            m_altArmed = false;
            showTop();
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool RibbonKeyTips::keyWhileShown(QKeyEvent* event)
{
    const int key = event->key();
    const bool typed = !event->text().isEmpty() && event->text().at(0).isLetterOrNumber()
                       && !(event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier | Qt::AltModifier));
    const bool ours = typed || key == Qt::Key_Escape || key == Qt::Key_Alt || key == Qt::Key_F10;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (ours) {
            event->accept();
            return true;
        }
        if (!isModifierKey(key))
            end();
        return false;
    case QEvent::KeyPress:
        if (key == Qt::Key_Alt) {
            m_altArmed = !event->isAutoRepeat();
            return true;
        }
        m_altArmed = false;
        if (key == Qt::Key_Escape) {
            stepBack();
            return true;
        }
        if (key == Qt::Key_F10) {
            end();
            return true;
        }
        if (typed) {
            type(event->text());
            return true;
        }
        if (!isModifierKey(key))
            end();
        return false;
    case QEvent::KeyRelease:
        if (key == Qt::Key_Alt && m_altArmed) {
            m_altArmed = false;
            end();
            return true;
        }
        return ours;
    default:
        return false;
    }
}

void RibbonKeyTips::showLevel(Level level, QVector<Entry> entries)
{
    clearLabels();
    m_typed.clear();
    m_level = level;
    QVector<RibbonKeyTipNames::Request> requests;
    for (const Entry& entry : qAsConst(entries))
        requests.append({entry.fixed, entry.candidates});
    const QStringList tips = RibbonKeyTipNames::assign(requests);
    for (int i = 0; i < entries.size(); ++i) {
        Entry& entry = entries[i];
        entry.tip = tips.at(i);
        QWidget* window = entry.surface->window();
        auto* label = new RibbonKeyTipLabel(entry.tip, entry.target, window);
        label->centreOn(entry.surface->mapTo(window, entry.anchor));
        label->show();
        label->raise();
        m_labels.append(label);
    }
    m_entries = entries;
}

void RibbonKeyTips::showTop()
{
    showLevel(Level::Top, topEntries());
}

QVector<RibbonKeyTips::Entry> RibbonKeyTips::topEntries() const
{
    QVector<Entry> entries;
    if (RibbonSystemButton* button = m_bar->systemButton()) {
        if (button->isVisible() && button->isEnabled()) {
            Entry entry;
            entry.kind = Kind::Menu;
            entry.target = button;
            entry.surface = button;
            entry.anchor = belowBottomCentre(button->rect());
            QAction* action = button->defaultAction();
            entry.fixed = fixedTip(action);
            // Without a text of its own it is the File button people know.
            entry.candidates = RibbonKeyTipNames::candidatesOf(action ? action->text() : QString()) + QLatin1Char('F');
            entries.append(entry);
        }
    }
    const QList<RibbonPage*> pages = m_bar->pages();
    for (int i = 0; i < pages.size(); ++i) {
        const QRect tab = m_bar->tabRect(i);
        if (!m_bar->rect().contains(tab.center()))
            continue; // scrolled out of sight
        Entry entry;
        entry.kind = Kind::Tab;
        entry.tab = i;
        entry.target = pages.at(i);
        entry.surface = m_bar;
        entry.anchor = belowBottomCentre(tab);
        entry.fixed = fixedTip(pages.at(i));
        entry.candidates = RibbonKeyTipNames::candidatesOf(pages.at(i)->title());
        entries.append(entry);
    }
    RibbonQuickAccessBar* quick = m_bar->quickAccessBar();
    if (quick->isVisible()) {
        int number = 0;
        for (QAction* action : quick->actions()) {
            auto* button = qobject_cast<QToolButton*>(quick->widgetForAction(action));
            if (!button || !button->isVisible() || !action->isEnabled())
                continue;
            ++number;
            Entry entry;
            entry.kind = opensMenu(button) ? Kind::Menu : Kind::Command;
            entry.target = button;
            entry.surface = button;
            entry.anchor = belowBottomCentre(button->rect());
            entry.fixed = fixedTip(action);
            // The quick access bar counts its buttons: 1 to 9.
            entry.candidates = number <= 9 ? QString::number(number) : QString();
            entries.append(entry);
        }
    }
    return entries;
}

void RibbonKeyTips::showPage(int tab)
{
    RibbonPage* page = m_bar->page(tab);
    if (!page)
        return end();
    m_page = tab;
    page->updateLayout();
    showLevel(Level::Page, pageEntries(page));
}

QVector<RibbonKeyTips::Entry> RibbonKeyTips::pageEntries(RibbonPage* page) const
{
    QVector<Entry> entries;
    const QList<RibbonGroup*> groups = page->groups();
    for (RibbonGroup* group : groups) {
        if (!group->isVisible())
            continue;
        if (group->currentSize() != RibbonControlSizeDefinition::GroupPopup) {
            addControlEntries(group, &entries);
            continue;
        }
        auto* button = group->findChild<QAbstractButton*>(QStringLiteral("qtitan_ribbongroup_button"),
                                                          Qt::FindDirectChildrenOnly);
        if (!button || !button->isVisible())
            continue;
        Entry entry;
        entry.kind = Kind::Group;
        entry.target = button;
        entry.surface = button;
        entry.anchor = belowBottomCentre(button->rect());
        entry.fixed = fixedTip(group);
        entry.candidates = RibbonKeyTipNames::candidatesOf(group->title());
        entries.append(entry);
    }
    return entries;
}

void RibbonKeyTips::addControlEntries(RibbonGroup* group, QVector<Entry>* entries)
{
    for (int i = 0; i < group->controlCount(); ++i) {
        RibbonControl* control = group->controlByIndex(i);
        QAction* action = control ? control->defaultAction() : nullptr;
        if (!action || action->isSeparator() || !action->isEnabled() || !control->isVisible())
            continue;
        Entry entry;
        entry.fixed = fixedTip(action);
        entry.candidates = RibbonKeyTipNames::candidatesOf(action->text());
        entry.surface = control;
        const QRect rect = control->rect();
        if (auto* buttonControl = qobject_cast<RibbonButtonControl*>(control)) {
            QToolButton* button = buttonControl->widget();
            entry.kind = opensMenu(button) ? Kind::Menu : Kind::Command;
            entry.target = button;
            // Below a large button, clear of its label's two lines (reaching
            // into the group title, as people know it); over the icon of a small one.
            entry.anchor = buttonControl->isLargeAt(control->currentSize())
                               ? belowBottomCentre(rect)
                               : QPoint(rect.left() + 11, rect.center().y());
        } else if (auto* widgetControl = qobject_cast<RibbonWidgetControl*>(control)) {
            if (!widgetControl->contentWidget())
                continue;
            entry.kind = Kind::Focus;
            entry.target = widgetControl->contentWidget();
            entry.anchor = QPoint(rect.left() + 8, rect.center().y());
        } else {
            continue;
        }
        entries->append(entry);
    }
}

void RibbonKeyTips::showGroup(RibbonGroup* group)
{
    m_group = group;
    QVector<Entry> entries;
    addControlEntries(group, &entries);
    showLevel(Level::Group, entries);
}

void RibbonKeyTips::stepBack()
{
    switch (m_level) {
    case Level::Group:
        if (m_group) {
            if (QWidget* popup = m_group->findChild<QWidget*>(QStringLiteral("qtitan_ribbongroup_popup")))
                popup->close();
        }
        m_group = nullptr;
        showPage(m_page);
        break;
    case Level::Page:
        m_host.closeDroppedPage();
        showTop();
        break;
    case Level::Top:
    case Level::Off:
        end();
        break;
    }
}

// Narrows the badges to the ones that begin with what was typed; a whole tip
// acts. A key no tip goes on with is ignored.
void RibbonKeyTips::type(const QString& text)
{
    const QString typed = m_typed + text.toUpper();
    const Entry* exact = nullptr;
    int matches = 0;
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.tip.startsWith(typed)) {
            ++matches;
            if (entry.tip == typed)
                exact = &entry;
        }
    }
    if (matches == 0)
        return;
    if (exact) {
        activate(*exact);
        return;
    }
    m_typed = typed;
    for (int i = 0; i < m_entries.size(); ++i) {
        if (RibbonKeyTipLabel* label = m_labels.value(i))
            label->setVisible(m_entries.at(i).tip.startsWith(typed));
    }
}

void RibbonKeyTips::activate(const Entry& entry)
{
    const Entry chosen = entry; // the entries go with the level
    QWidget* target = chosen.target;
    if (!target)
        return end();
    switch (chosen.kind) {
    case Kind::Tab:
        m_host.openTab(chosen.tab);
        showPage(chosen.tab);
        break;
    case Kind::Group:
        static_cast<QAbstractButton*>(target)->click();
        showGroup(qobject_cast<RibbonGroup*>(target->parentWidget()));
        break;
    case Kind::Menu:
        end();
        openMenuLater(static_cast<QToolButton*>(target));
        break;
    case Kind::Command:
        end();
        static_cast<QAbstractButton*>(target)->click();
        break;
    case Kind::Focus:
        end();
        target->setFocus(Qt::ShortcutFocusReason);
        break;
    }
}

} // namespace detail
} // namespace Qtitan
