#pragma once

#include <QCoreApplication>
#include <QList>

class DemoCommands;
class QAction;
class QMenu;

/// The menu tree of the demo's commands: one menu per category, with
/// submenus for the id ranges (recent files, zoom levels, symbols, font
/// sizes, text colours), all under one root menu. The classic menu bar shows
/// the category menus; the quick search and the shortcuts window walk the
/// tree. The menus are children of the window.
class DemoMenus
{
    Q_DECLARE_TR_FUNCTIONS(DemoMenus)

public:
    enum Category { File, Edit, View, Insert, Format, Tools, Help, CategoryCount };

    /// Builds the menus from the commands registered in \a commands.
    explicit DemoMenus(DemoCommands& commands);

    /// A menu whose submenus are the categories, in menu-bar order.
    QMenu* root() const { return m_root; }
    /// The category menus, ready for a QMenuBar.
    QList<QMenu*> categories() const { return m_categories; }
    QMenu* category(Category category) const { return m_categories.value(category); }
    /// The actions the document's right-click menu shows (null = separator).
    QList<QAction*> contextActions() const;

private:
    QMenu* newMenu(const QString& title, QMenu* parent = nullptr);
    void addToMenu(QMenu* menu, const QList<int>& ids);
    void addRange(QMenu* menu, int first, int last);
    void buildFile();
    void buildEdit();
    void buildView();
    void buildInsert();
    void buildFormat();

    DemoCommands& m_commands;
    QMenu* m_root = nullptr;
    QList<QMenu*> m_categories;
};
