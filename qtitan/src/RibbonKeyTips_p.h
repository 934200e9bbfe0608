#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QVector>

#include <functional>

class QKeyEvent;

namespace Qtitan {

class RibbonBar;
class RibbonGroup;
class RibbonPage;

namespace detail {

class RibbonKeyTipLabel;

/// Key tips: Alt (or F10) puts a letter badge on every tab, on the system
/// button and on the quick access bar's buttons; typing a tab's letters opens
/// the tab and badges its controls; typing a control's letters runs its
/// command, opens its menu, focuses its widget or opens its collapsed group
/// (whose controls then get badges). Escape steps back a level; the mouse, a
/// click anywhere or Alt again ends them. Keys typed meanwhile go nowhere else.
class RibbonKeyTips : public QObject
{
    Q_OBJECT
public:
    /// What only the ribbon itself can do.
    struct Host
    {
        std::function<void(int)> openTab;       ///< selects a tab, dropping its page while minimised
        std::function<void()> closeDroppedPage; ///< closes the dropped page of a minimised ribbon
    };

    RibbonKeyTips(RibbonBar* bar, Host host);
    ~RibbonKeyTips() override;

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool isShown() const { return m_level != Level::Off; }
    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Level { Off, Top, Page, Group };
    enum class Kind { Tab, Menu, Command, Focus, Group };

    struct Entry
    {
        Kind kind = Kind::Command;
        QPointer<QWidget> target; ///< the widget the badge is for (a tab's: its page)
        QWidget* surface = nullptr; ///< the widget whose coordinates anchor is in
        QPoint anchor;            ///< where the badge is centred
        int tab = -1;
        QString fixed;
        QString candidates;
        QString tip;
    };

    bool belongsToRibbon(const QWidget* widget) const;
    bool keyEvent(QKeyEvent* event);
    bool keyWhileShown(QKeyEvent* event);
    void showLevel(Level level, QVector<Entry> entries);
    void showTop();
    void showPage(int tab);
    void showGroup(RibbonGroup* group);
    void stepBack();
    void type(const QString& text);
    void activate(const Entry& entry);
    void clearLabels();
    QVector<Entry> topEntries() const;
    QVector<Entry> pageEntries(RibbonPage* page) const;
    static void addControlEntries(RibbonGroup* group, QVector<Entry>* entries);

    RibbonBar* m_bar;
    Host m_host;
    bool m_enabled = true;
    bool m_altArmed = false; ///< Alt went down alone; its release shows or ends the key tips
    Level m_level = Level::Off;
    int m_page = -1;
    QPointer<RibbonGroup> m_group;
    QVector<Entry> m_entries;
    QList<QPointer<RibbonKeyTipLabel>> m_labels;
    QString m_typed;
};

} // namespace detail
} // namespace Qtitan
