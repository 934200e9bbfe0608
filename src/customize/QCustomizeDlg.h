#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QWidget>

class QAction;
class QKeyEvent;
class QLayout;
class QRibbonTreeWidget;
class QSplitter;
class QTreeWidget;

namespace Ui {
class MainWindowSettingsWidget;
}

namespace ui {

class IMenuDataHandler;
class QHotKeyPage;

/// The customization widget: tabs in which the user reshapes the host's
/// ribbon ("Лента команд"), its quick access bar ("Панель быстрого
/// доступа") and its toolbars ("Панели инструментов").
///
/// The ribbon and quick access tabs each pair a tree of the host's command
/// menu (MenuTreeWidget) with an editor of the live ribbon
/// (QRibbonTreeWidget, QRibbonTreeQuickPanelWidget): a double-click on a
/// command adds it at the editor's selected place, and every edit changes the
/// ribbon at once. The toolbars tab is left for the host to fill: its list
/// goes into getTreeWidget() and its editing widgets (for instance a
/// ui::QToolBarPage) into getLayout(), the two sides divided by getSplitter().
///
/// The dialog is a plain widget: the host embeds it in a window of its own
/// with its own buttons, and decides when the edited layout is kept (see
/// IMenuDataHandler). Without a ribbon only the toolbars tab remains. The
/// hot keys tab is always taken out; its page is still built and fed from the
/// menu, as a hidden child.
///
/// @code
/// QDialog window(mainWindow);
/// auto* customize = new ui::QCustomizeDlg(&window);
/// customize->setHandler(new HostHandler(mainWindow)); // owned by the dialog
/// auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
/// auto* layout = new QVBoxLayout(&window);
/// layout->addWidget(customize);
/// layout->addWidget(buttons);
/// QObject::connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);
/// QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
/// customize->setCurrentTabIndex(1); // the ribbon tab
/// if (window.exec() == QDialog::Accepted)
///     saveRibbonLayout();
/// @endcode
class TESSARO_EXPORT QCustomizeDlg : public QWidget
{
    Q_OBJECT

public:
    /// Builds the form with its four tabs; there is no handler and no hot
    /// key page until setHandler().
    explicit QCustomizeDlg(QWidget* parent = nullptr);
    /// Deletes the form and the handler held.
    ~QCustomizeDlg() override;

    /// Takes ownership of @p handler (not null; a handler held before is
    /// deleted) and fills the tabs from its menu and ribbon. Without a ribbon
    /// only the toolbars tab remains. Call it once before the dialog is shown
    /// and before any key reaches it: each call builds a new hot key page and
    /// connects the command trees again.
    void setHandler(IMenuDataHandler* handler);

    /// The index of the current tab among the tabs left by setHandler().
    int currentTabIndex() const;
    /// Makes the tab at @p index current (0 toolbars, 1 ribbon, 2 quick
    /// access bar, when there is a ribbon).
    void setCurrentTabIndex(int index);

    /// The toolbars tab's list, on the left of getSplitter(), for the host's
    /// list of toolbars.
    QTreeWidget* getTreeWidget() const;
    /// The toolbars tab's empty layout, on the right of getSplitter(), for
    /// the host's editing widgets.
    QLayout* getLayout() const;
    /// The splitter that divides the toolbars tab into getTreeWidget()'s side
    /// and getLayout()'s side.
    QSplitter* getSplitter() const;
    /// The ribbon editor of the ribbon tab.
    QRibbonTreeWidget* getRibbonTreeWidget() const;

protected:
    /// Passes @p event to the hot key page, which ignores it, so the event
    /// travels on to the dialog's parent.
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void onMenuTreeViewCurrentChanged(QAction* action);
    void onMenuQuickPanelTreeViewCurrentChanged(QAction* action);

private:
    Ui::MainWindowSettingsWidget* m_ui;
    QHotKeyPage* m_hotKeyPage;
    IMenuDataHandler* m_handler;
};

} // namespace ui
