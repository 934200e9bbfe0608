#pragma once

#include <QPointer>
#include <QWidget>

namespace Qtitan {

class RibbonPage;

namespace detail {

/// The window in which a minimised ribbon drops a page over the workspace.
/// It holds the page while it is open and hands it back when it closes: after
/// a command of the page runs, on Escape, or on a click outside.
class RibbonPagePopup : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonPagePopup(QWidget* bar);

    /// Shows @p page at @p globalRect; @p tab is the index of its tab.
    void showPage(RibbonPage* page, int tab, const QRect& globalRect);
    /// The page shown, or null while closed.
    RibbonPage* page() const;
    int tab() const;
    /// Lets go of the page shown without touching it: it is being destroyed.
    void forgetPage();

Q_SIGNALS:
    /// A press outside the popup, before the popup closes on it. The receiver
    /// may decide that the press goes no further (setAttribute(Qt::WA_NoMouseReplay)).
    void pressedOutside(QMouseEvent* event);
    /// The popup closed and handed @p page back (null if it went meanwhile).
    void closed(RibbonPage* page);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void watchCommands();

    QPointer<RibbonPage> m_page;
    int m_tab = -1;
    QList<QMetaObject::Connection> m_commandWatch;
};

} // namespace detail
} // namespace Qtitan
