#pragma once

#include "QtitanGlobal.h"

#include <QIcon>
#include <QList>
#include <QWidget>

namespace Qtitan {

class RibbonBar;
class RibbonGroup;

/// One tab of the ribbon: a row of groups, reduced from the right when the
/// page is too narrow for all of them at full size. When even the collapsed
/// groups do not fit, arrows at both ends scroll the row.
///
/// @code
/// Qtitan::RibbonPage* home = ribbon->addPage(QStringLiteral("Home"));
/// Qtitan::RibbonGroup* font = home->addGroup(QStringLiteral("Font"));
/// Qtitan::RibbonGroup* clipboard = home->insertGroup(0, QStringLiteral("Clipboard"));   // leftmost
/// home->removeGroup(font);   // deletes it
/// @endcode
class QTITAN_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
public:
    /// Creates an untitled page; RibbonBar::addPage() puts it on a ribbon.
    explicit RibbonPage(QWidget* parent = nullptr);
    /// Creates a titled page as a child of a ribbon; RibbonBar::addPage() (or
    /// RibbonBar::insertPage()) gives it its tab.
    RibbonPage(RibbonBar* ribbonBar, const QString& title);
    ~RibbonPage() override;

    /// The title shown on the page's tab.
    QString title() const;

    /// Creates a group at the right end of the row.
    RibbonGroup* addGroup(const QString& title);
    /// Creates a group with the icon of its collapsed button at the right end.
    RibbonGroup* addGroup(const QIcon& icon, const QString& title);
    /// Puts a group at the right end; the page takes ownership. A group that
    /// already is on the page moves there.
    void addGroup(RibbonGroup* group);
    /// Creates a group at a position; a bad index means the right end.
    RibbonGroup* insertGroup(int index, const QString& title);
    /// Creates a group with the icon of its collapsed button at a position.
    RibbonGroup* insertGroup(int index, const QIcon& icon, const QString& title);
    /// Puts a group at a position (a bad index means the right end); the page
    /// takes ownership. A group that already is on the page moves there.
    void insertGroup(int index, RibbonGroup* group);

    /// Removes and deletes a group.
    void removeGroup(RibbonGroup* group);
    /// Removes and deletes the group at a position; a bad index does nothing.
    void removeGroupByIndex(int index);
    /// Takes a group off the page without deleting it; the caller owns it.
    void detachGroup(RibbonGroup* group);
    /// Takes the group at a position off the page; the caller owns it.
    void detachGroupByIndex(int index);
    /// Removes and deletes every group.
    void clearGroups();

    /// The number of groups.
    int groupCount() const;
    /// The group at a position, or null for a bad index.
    RibbonGroup* groupAt(int index) const;
    /// The position of a group, or -1 when it is not on the page.
    int groupIndex(RibbonGroup* group) const;
    /// The groups from left to right.
    QList<RibbonGroup*> groups() const;

    /// Lays the groups out again for the page's current width.
    void updateLayout();

    /// Room for every group at full size.
    QSize sizeHint() const override;
    /// Room for every group collapsed.
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Changes the tab's title; titleChanged() follows when it differs.
    void setTitle(const QString& title);

Q_SIGNALS:
    /// The title changed.
    void titleChanged(const QString& title);

protected:
    /// Lays the groups out on request (a hidden page when it is shown) and
    /// forgets a group deleted or re-parented elsewhere.
    bool event(QEvent* event) override;
    /// Draws the separators between groups and, off a ribbon, the page area.
    void paintEvent(QPaintEvent* event) override;
    /// Lays the groups out for the new width.
    void resizeEvent(QResizeEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
