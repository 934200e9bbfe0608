#pragma once

#include "QtitanGlobal.h"

#include <QIcon>
#include <QList>
#include <QWidget>

namespace Qtitan {

class RibbonBar;
class RibbonGroup;

/// One tab of the ribbon: a row of groups, reduced from the right when the
/// page is too narrow for all of them at full size.
class QTITAN_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
public:
    explicit RibbonPage(QWidget* parent = nullptr);
    RibbonPage(RibbonBar* ribbonBar, const QString& title);
    ~RibbonPage() override;

    QString title() const;

    RibbonGroup* addGroup(const QString& title);
    RibbonGroup* addGroup(const QIcon& icon, const QString& title);
    void addGroup(RibbonGroup* group);
    RibbonGroup* insertGroup(int index, const QString& title);
    RibbonGroup* insertGroup(int index, const QIcon& icon, const QString& title);
    void insertGroup(int index, RibbonGroup* group);

    /// Removes and deletes a group.
    void removeGroup(RibbonGroup* group);
    void removeGroupByIndex(int index);
    /// Takes a group off the page without deleting it; the caller owns it.
    void detachGroup(RibbonGroup* group);
    void detachGroupByIndex(int index);
    void clearGroups();

    int groupCount() const;
    RibbonGroup* groupAt(int index) const;
    int groupIndex(RibbonGroup* group) const;
    QList<RibbonGroup*> groups() const;

    /// Lays the groups out again for the page's current width.
    void updateLayout();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setTitle(const QString& title);

Q_SIGNALS:
    void titleChanged(const QString& title);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Private;
    Private* d;
};

} // namespace Qtitan
