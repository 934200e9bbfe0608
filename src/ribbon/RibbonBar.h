#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QtitanRibbon.h>

class QAction;
class QContextMenuEvent;

namespace ui {

/// The ribbon of a Tessaro main window: a Qtitan ribbon with the library's
/// system button, a few quick access bar and system menu operations, and a
/// translation context for the texts of a restored layout. It shows no
/// context menu of its own.
///
/// @code
/// auto* ribbon = new ui::RibbonBar(QStringLiteral("MyAppRibbon"), &window);
/// window.setRibbonBar(ribbon);
/// ribbon->addPage(QStringLiteral("Home"))->addGroup(QStringLiteral("Clipboard"))->addAction(pasteAction);
/// ribbon->addQuickAction(saveAction);
/// ribbon->setSystemButtonAction(fileMenu->menuAction());   // the File menu's text and entries
/// ribbon->addPopupBarAction(exitAction);                   // along the system menu's bottom
/// @endcode
class TESSARO_EXPORT RibbonBar : public Qtitan::RibbonBar
{
    Q_OBJECT
public:
    /// Creates the ribbon with the frame theme on and the logo system button;
    /// @p translationContext translates the texts read back by RibbonSerializer.
    RibbonBar(const QString& translationContext, QWidget* parent = nullptr);
    ~RibbonBar() override;

    /// The context under which restored texts are translated.
    QString getTranslationContext() const;

    /// Adds @p action to the quick access bar and shows the bar.
    void addQuickAction(QAction* action);
    /// Removes @p action from the quick access bar; the bar stays shown.
    void removeQuickAction(QAction* action);
    /// Whether the quick access bar holds an action with the object name of
    /// @p action (compared by name, not identity).
    bool isQuickAction(QAction* action);
    /// Removes every action of the quick access bar and hides it.
    void clearQuickActions();

    /// Adds @p action to the bottom bar of the system menu, text beside icon.
    void addPopupBarAction(QAction* action);
    /// Makes the system button mirror @p action: its text, tool tip, status
    /// tip and the entries of its menu (shared, not copied). @p action must
    /// have a menu.
    void setSystemButtonAction(QAction* action);

    /// Lays out the current page again.
    void updateCurrentPage();

protected:
    /// Does nothing: the ribbon offers no context menu.
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QMenu* systemMenu() const;

    QString m_translationContext;
};

} // namespace ui
