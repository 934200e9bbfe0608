#include <tessaro/QuickSearch.h>

#include "QuickSearchIndex_p.h"

#include "TessaroTranslate_p.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>

namespace ui {

namespace {

const QChar pathArrow(0x2192);

} // namespace

QuickSearchWidget::QuickSearchWidget(QWidget* parent)
    : QLineEdit(parent)
    , m_entries(new QuickSearchIndex)
    , m_popup(new QMenu(this))
{
    m_popup->installEventFilter(this);
    setPlaceholderText(TESSARO_TR("QuickSearch.cpp", "Поиск: Команда (Ctrl + Q)"));
    new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Q), this, SLOT(startEdit()), nullptr,
                  Qt::WindowShortcut);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &QuickSearchWidget::showResultPopup);
    // The query has served once its command ran.
    connect(m_popup, &QMenu::triggered, this, &QLineEdit::clear);
}

QuickSearchWidget::~QuickSearchWidget() = default;

void QuickSearchWidget::setSource(const QList<QAction*>& actions)
{
    m_popup->close();
    m_popup->clear();
    m_entries->clear();
    setSourceImpl(actions, QString());
}

void QuickSearchWidget::setSourceImpl(const QList<QAction*>& actions, const QString& prefix)
{
    for (QAction* action : actions) {
        if (!action || action->isSeparator())
            continue;
        QString name = action->text().remove(QLatin1Char('&'));
        if (!prefix.isEmpty())
            name = QStringLiteral("%1 %2 %3").arg(prefix, QString(pathArrow), name);
        if (QMenu* menu = action->menu()) {
            setSourceImpl(menu->actions(), name);
            continue;
        }
        if (action->text().isEmpty())
            continue;
        auto* proxy = new QAction(action->icon(), name, action);
        proxy->setCheckable(action->isCheckable());
        connect(proxy, &QAction::triggered, action, &QAction::trigger);
        m_entries->append(proxy);
    }
}

void QuickSearchWidget::showResultPopup()
{
    m_popup->close();

    const QStringList words = text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QList<QAction*> results;
    if (!words.isEmpty() && words.first().size() >= 3)
        results = m_entries->match(words);
    setPopupActions(results);
    if (results.isEmpty())
        return;

    m_popup->adjustSize();
    QPoint topLeft = mapToGlobal(QPoint(0, 0));
    topLeft.ry() -= m_popup->height();
    m_popup->popup(topLeft);
    // Return runs the best match straight away.
    m_popup->setActiveAction(results.first());
}

// Makes the popup hold exactly the given actions. The entries it already
// shows in the right places stay: every action added to a menu costs two
// connections and a scan of its action list, and successive keystrokes often
// find the same leading results.
void QuickSearchWidget::setPopupActions(const QList<QAction*>& actions)
{
    const QList<QAction*> shown = m_popup->actions();
    int kept = 0;
    while (kept < shown.size() && kept < actions.size() && shown.at(kept) == actions.at(kept))
        ++kept;
    for (int i = shown.size() - 1; i >= kept; --i)
        m_popup->removeAction(shown.at(i));
    for (int i = kept; i < actions.size(); ++i)
        m_popup->addAction(actions.at(i));
}

void QuickSearchWidget::startEdit()
{
    setFocus(Qt::ShortcutFocusReason);
}

QSize QuickSearchWidget::sizeHint() const
{
    QSize size = QLineEdit::sizeHint();
    size.setWidth(150);
    return size;
}

bool QuickSearchWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A menu drops its active entry when the pointer leaves it, and on a
    // display the popup opening away from the pointer is such a leave: the
    // entry Return runs stays whatever the pointer does.
    if (watched == m_popup && event->type() == QEvent::Leave)
        return true;
    if (watched == m_popup && event->type() == QEvent::KeyPress) {
        auto* keyEvent = static_cast<QKeyEvent*>(event);
        switch (keyEvent->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Up:
        case Qt::Key_Down:
            break;
        default:
            keyPressEvent(keyEvent);
            break;
        }
    }
    return false;
}

void QuickSearchWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || (text().isEmpty() && !m_popup->isVisible())) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    m_popup->close();
    clear();
    event->accept();
}

void QuickSearchWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        showResultPopup();
    QLineEdit::mousePressEvent(event);
}

} // namespace ui
