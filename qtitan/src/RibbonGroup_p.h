#pragma once

#include "qtitan/RibbonGroup.h"

#include <QAbstractButton>
#include <QPointer>
#include <QRect>
#include <QVector>

namespace Qtitan {

class RibbonPage;

namespace detail {

/// The window that shows a collapsed group's controls under its button.
class RibbonGroupPopup : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonGroupPopup(RibbonGroup* group);

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    RibbonGroup* m_group;
};

/// The single button a group shrinks to at GroupPopup: the group's icon and
/// title over a drop-down arrow; it opens the group's popup.
class RibbonGroupButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonGroupButton(RibbonGroup* group);

    QSize sizeHint() const override;
    void setPopupOpen(bool open);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon displayIcon() const;

    RibbonGroup* m_group;
    bool m_popupOpen = false;
};

} // namespace detail

class RibbonGroup::Private
{
public:
    explicit Private(RibbonGroup* group) : q(group) {}

    struct Entry
    {
        QAction* action = nullptr;
        RibbonControl* control = nullptr;
        // What the layout depends on; other action changes only repaint.
        QString text;
        bool hasMenu = false;
        bool visible = true;
        bool separator = false;
    };

    struct Layout
    {
        bool valid = false;
        int contentWidth = 0;
        QVector<QRect> rects; ///< per entry, relative to the content origin; null when hidden
    };

    RibbonGroup* q;
    QString title;
    QIcon icon;
    bool centering = false;
    QVector<Entry> entries;
    RibbonControlSizeDefinition::GroupSize current = RibbonControlSizeDefinition::GroupLarge;
    mutable Layout layouts[4];
    mutable int widths[4] = {0, 0, 0, 0};
    mutable bool widthValid[4] = {false, false, false, false};
    bool placed = false;
    bool requestPosted = false;
    detail::RibbonGroupPopup* popup = nullptr;
    detail::RibbonGroupButton* button = nullptr;

    int indexOfAction(const QAction* action) const;
    RibbonControl* createControl(QAction* action);
    void disposeControl(RibbonControl* control);
    static void snapshot(Entry& entry);
    /// Forgets the cached layouts and schedules a new layout.
    void invalidate();
    const Layout& layoutFor(RibbonControlSizeDefinition::GroupSize size) const;
    int widthFor(RibbonControlSizeDefinition::GroupSize size) const;
    int titleWidth() const;
    /// Moves the controls into place for the current size.
    void place();
    void ensureCollapsedWidgets();
    /// Moves the controls into the popup and lays them out there.
    void fillPopup();
    void showPopup();
    RibbonPage* page() const;
};

} // namespace Qtitan
