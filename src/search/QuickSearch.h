#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QLineEdit>
#include <QList>
#include <QScopedPointer>

class QAction;
class QMenu;
class QMouseEvent;

namespace ui {

class QuickSearchIndex;

/// A one-line command finder.
///
/// The user types a few words; a popup menu above the box lists every command
/// of the source whose menu path holds all of them, best matches first, and
/// choosing an entry triggers the command's real action. Ctrl+Q anywhere in the
/// box's window moves the focus into the box.
///
/// The popup opens with its first entry (the best match) active, so Return
/// right after typing runs it. Once an entry has run, the box is cleared.
/// Escape clears the box and closes the popup; in an empty box without a
/// popup it is left to the parent, as a line edit leaves it.
///
/// For every searchable command the widget makes a proxy action that is a child
/// of the real action, so an entry disappears by itself when its command dies.
///
/// @code
/// auto* search = new ui::QuickSearchWidget(window.statusBar());
/// window.statusBar()->addPermanentWidget(search);
/// search->setSource({fileMenu->menuAction(), editMenu->menuAction()});   // again when the menus change
/// @endcode
class TESSARO_EXPORT QuickSearchWidget : public QLineEdit
{
    Q_OBJECT

public:
    /// Creates the box with its (hidden) result popup and the Ctrl+Q shortcut.
    explicit QuickSearchWidget(QWidget* parent = nullptr);
    /// Releases the entry list; the proxy actions stay with their real actions.
    ~QuickSearchWidget() override;

    /// Replaces the searchable commands by the given actions and, recursively,
    /// the actions of their submenus. Separators, actions without text and the
    /// submenu actions themselves become no entries. Proxies made by an earlier
    /// call are deleted (later, through the event loop).
    void setSource(const QList<QAction*>& actions);

    /// The line edit's size hint, 150 pixels wide.
    QSize sizeHint() const override;

    /// Keeps typing going while the result popup is open: keys other than
    /// Return, Enter, Up and Down pressed on the popup are handed to the box
    /// first. Never swallows an event.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// A left-button press shows the results for the current text first.
    void mousePressEvent(QMouseEvent* event) override;
    /// Escape clears the box and closes the popup; other keys edit as usual.
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void showResultPopup();
    void startEdit();

private:
    void setSourceImpl(const QList<QAction*>& actions, const QString& prefix);
    void setPopupActions(const QList<QAction*>& actions);

    QScopedPointer<QuickSearchIndex> m_entries;
    QMenu* m_popup;
};

} // namespace ui
