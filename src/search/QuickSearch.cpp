#include "QuickSearch.h"

#include "TessaroTranslate_p.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>

namespace ui {

namespace {

const QChar pathArrow(0x2192);

QString pathSeparator()
{
    return QStringLiteral(" %1 ").arg(pathArrow);
}

} // namespace

QuickSearchWidget::QuickSearchWidget(QWidget* parent)
    : QLineEdit(parent)
    , m_popup(new QMenu(this))
{
    m_popup->installEventFilter(this);
    setPlaceholderText(TESSARO_TR("Поиск: Команда (Ctrl + Q)"));
    new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Q), this, SLOT(startEdit()), nullptr,
                  Qt::WindowShortcut);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &QuickSearchWidget::showResultPopup);
}

QuickSearchWidget::~QuickSearchWidget() = default;

void QuickSearchWidget::setSource(const QList<QAction*>& actions)
{
    m_popup->close();
    m_popup->clear();
    for (const QPointer<QAction>& entry : qAsConst(m_entries)) {
        if (entry)
            entry->deleteLater();
    }
    m_entries.clear();
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
        m_entries.append(proxy);
    }
}

void QuickSearchWidget::showResultPopup()
{
    m_popup->close();
    m_popup->clear();

    const QStringList words = text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty() || words.first().size() < 3)
        return;

    const QString separator = pathSeparator();
    QList<QAction*> ranked[4];
    for (const QPointer<QAction>& entry : qAsConst(m_entries)) {
        QAction* proxy = entry.data();
        if (!proxy)
            continue;
        if (auto* real = qobject_cast<QAction*>(proxy->parent())) {
            proxy->setEnabled(real->isEnabled());
            // The registry makes an action checkable on its first refresh,
            // which may come after the entry was made.
            proxy->setCheckable(real->isCheckable());
            proxy->setChecked(real->isChecked());
        }
        const QString path = proxy->text();
        const QStringList parts = path.split(separator);
        int rank = 0;
        bool matched = true;
        for (const QString& word : words) {
            if (!path.contains(word, Qt::CaseInsensitive)) {
                matched = false;
                break;
            }
            if (rank < 3 && !parts.isEmpty()) {
                if (parts.last().startsWith(word, Qt::CaseInsensitive)) {
                    rank = 3;
                } else if (rank < 2) {
                    if (parts.last().contains(word, Qt::CaseInsensitive))
                        rank = 2;
                    else if (!parts.first().contains(word, Qt::CaseInsensitive))
                        rank = 1;
                }
            }
        }
        if (matched)
            ranked[rank].append(proxy);
    }

    for (int rank = 3; rank >= 0; --rank)
        m_popup->addActions(ranked[rank]);
    if (m_popup->actions().isEmpty())
        return;

    m_popup->adjustSize();
    QPoint topLeft = mapToGlobal(QPoint(0, 0));
    topLeft.ry() -= m_popup->height();
    m_popup->popup(topLeft);
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

void QuickSearchWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        showResultPopup();
    QLineEdit::mousePressEvent(event);
}

} // namespace ui
