#pragma once

// A realistic ribbon page for layout tests, screenshots and benchmarks: the
// groups of an office "Home" tab with large, small, split, menu, checkable,
// disabled and widget commands.

#include <QtitanRibbon.h>

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QPainter>
#include <QWidgetAction>

namespace sample {

inline QIcon makeIcon(const QColor& color, QChar letter)
{
    QIcon icon;
    for (int size : {16, 32}) {
        QPixmap pm(size, size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(color.darker(150));
        p.setBrush(color);
        p.drawRoundedRect(QRectF(1.5, 1.5, size - 3, size - 3), size / 6.0, size / 6.0);
        QFont f = p.font();
        f.setBold(true);
        f.setPixelSize(size * 5 / 8);
        p.setFont(f);
        p.setPen(Qt::white);
        p.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QString(letter));
        p.end();
        icon.addPixmap(pm);
    }
    return icon;
}

inline QAction* action(QObject* parent, const QString& text, const QColor& color)
{
    return new QAction(makeIcon(color, text.at(0)), text, parent);
}

inline QMenu* menuWith(QWidget* parent, const QStringList& items)
{
    auto* menu = new QMenu(parent);
    for (const QString& item : items)
        menu->addAction(item);
    return menu;
}

inline QWidgetAction* comboAction(QObject* parent, const QStringList& items, int width)
{
    auto* action = new QWidgetAction(parent);
    auto* combo = new QComboBox;
    combo->addItems(items);
    combo->setMinimumWidth(width);
    action->setDefaultWidget(combo);
    return action;
}

inline void addSeparator(Qtitan::RibbonGroup* group)
{
    auto* sep = new QAction(group);
    sep->setSeparator(true);
    group->addAction(sep);
}

/// Fills a page with seven groups.
inline void fillHomePage(Qtitan::RibbonPage* page)
{
    using namespace Qtitan;
    const Qt::ToolButtonStyle under = Qt::ToolButtonTextUnderIcon;
    const Qt::ToolButtonStyle beside = Qt::ToolButtonTextBesideIcon;
    const Qt::ToolButtonStyle iconOnly = Qt::ToolButtonIconOnly;

    RibbonGroup* clipboard = page->addGroup(makeIcon(QColor(200, 120, 40), QLatin1Char('C')), QStringLiteral("Clipboard"));
    clipboard->addAction(action(clipboard, QStringLiteral("Paste"), QColor(200, 120, 40)), under,
                         menuWith(clipboard, {QStringLiteral("Paste special"), QStringLiteral("Paste as text")}),
                         QToolButton::MenuButtonPopup);
    clipboard->addAction(action(clipboard, QStringLiteral("Cut"), QColor(90, 90, 200)), beside);
    clipboard->addAction(action(clipboard, QStringLiteral("Copy"), QColor(60, 140, 60)), beside);
    clipboard->addAction(action(clipboard, QStringLiteral("Format Painter"), QColor(180, 60, 160)), beside);

    RibbonGroup* font = page->addGroup(QStringLiteral("Font"));
    font->addAction(comboAction(font, {QStringLiteral("Calibri"), QStringLiteral("Times New Roman")}, 110));
    font->addAction(comboAction(font, {QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("14")}, 50));
    font->addAction(action(font, QStringLiteral("Clear Formatting"), QColor(200, 60, 120)), beside);
    QAction* bold = action(font, QStringLiteral("Bold"), QColor(40, 40, 40));
    bold->setCheckable(true);
    bold->setChecked(true);
    font->addAction(bold, iconOnly);
    QAction* italic = action(font, QStringLiteral("Italic"), QColor(40, 40, 40));
    italic->setCheckable(true);
    font->addAction(italic, iconOnly);
    font->addAction(action(font, QStringLiteral("Underline"), QColor(40, 40, 40)), iconOnly,
                    menuWith(font, {QStringLiteral("Double"), QStringLiteral("Dotted")}), QToolButton::MenuButtonPopup);
    font->addAction(action(font, QStringLiteral("Strikethrough"), QColor(40, 40, 40)), iconOnly);
    font->addAction(action(font, QStringLiteral("Highlight"), QColor(230, 200, 0)), iconOnly,
                    menuWith(font, {QStringLiteral("Yellow"), QStringLiteral("Green")}), QToolButton::MenuButtonPopup);
    font->addAction(action(font, QStringLiteral("Font Color"), QColor(200, 30, 30)), iconOnly,
                    menuWith(font, {QStringLiteral("Red"), QStringLiteral("Blue")}), QToolButton::MenuButtonPopup);

    RibbonGroup* paragraph = page->addGroup(QStringLiteral("Paragraph"));
    paragraph->addAction(action(paragraph, QStringLiteral("Bullets"), QColor(30, 110, 180)), beside,
                         menuWith(paragraph, {QStringLiteral("Disc"), QStringLiteral("Square")}),
                         QToolButton::MenuButtonPopup);
    paragraph->addAction(action(paragraph, QStringLiteral("Numbering"), QColor(30, 110, 180)), beside,
                         menuWith(paragraph, {QStringLiteral("1. 2. 3."), QStringLiteral("a) b) c)")}),
                         QToolButton::InstantPopup);
    paragraph->addAction(action(paragraph, QStringLiteral("Line Spacing"), QColor(30, 110, 180)), beside);
    addSeparator(paragraph);
    for (const QString& name : {QStringLiteral("Align Left"), QStringLiteral("Center"), QStringLiteral("Align Right")}) {
        QAction* align = action(paragraph, name, QColor(70, 70, 120));
        align->setCheckable(true);
        align->setChecked(name == QStringLiteral("Align Left"));
        paragraph->addAction(align, iconOnly);
    }

    RibbonGroup* styles = page->addGroup(QStringLiteral("Styles"));
    styles->addAction(action(styles, QStringLiteral("Normal"), QColor(120, 120, 120)), under);
    styles->addAction(action(styles, QStringLiteral("Heading 1"), QColor(40, 90, 160)), under);
    styles->addAction(action(styles, QStringLiteral("Heading 2"), QColor(40, 110, 180)), under);
    styles->addAction(action(styles, QStringLiteral("Change Styles"), QColor(150, 100, 50)), under,
                      menuWith(styles, {QStringLiteral("Style Set"), QStringLiteral("Colors")}), QToolButton::InstantPopup);

    RibbonGroup* insert = page->addGroup(QStringLiteral("Insert"));
    insert->addAction(action(insert, QStringLiteral("Picture"), QColor(50, 150, 120)), under);
    insert->addAction(action(insert, QStringLiteral("Table"), QColor(90, 60, 160)), under,
                      menuWith(insert, {QStringLiteral("Insert Table"), QStringLiteral("Draw Table")}),
                      QToolButton::InstantPopup);
    insert->addAction(action(insert, QStringLiteral("Shapes"), QColor(210, 90, 40)), beside);
    insert->addAction(action(insert, QStringLiteral("Chart"), QColor(40, 160, 60)), beside);
    QAction* smart = action(insert, QStringLiteral("SmartArt"), QColor(160, 40, 90));
    smart->setEnabled(false);
    insert->addAction(smart, beside);

    RibbonGroup* editing = page->addGroup(QStringLiteral("Editing"));
    editing->addAction(action(editing, QStringLiteral("Find"), QColor(30, 120, 200)), beside,
                       menuWith(editing, {QStringLiteral("Find"), QStringLiteral("Go To")}), QToolButton::MenuButtonPopup);
    editing->addAction(action(editing, QStringLiteral("Replace"), QColor(30, 120, 200)), beside);
    editing->addAction(action(editing, QStringLiteral("Select"), QColor(30, 120, 200)), beside,
                       menuWith(editing, {QStringLiteral("Select All"), QStringLiteral("Select Objects")}),
                       QToolButton::InstantPopup);

    RibbonGroup* view = page->addGroup(QStringLiteral("Zoom"));
    view->addAction(action(view, QStringLiteral("Zoom"), QColor(100, 100, 180)), under);
    view->addAction(action(view, QStringLiteral("100%"), QColor(100, 100, 180)), under);
    QAction* two = action(view, QStringLiteral("Two Pages"), QColor(100, 100, 180));
    two->setEnabled(false);
    view->addAction(two, under);
}

} // namespace sample
