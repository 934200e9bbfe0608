#pragma once

// A small ribbon for the ribbon editor tests, built through the ribbon API as
// a host builds it:
//
//   "&Home"
//     "Clipboard": Paste (simple group command: Paste Plain, Paste Special),
//                  Cut, Copy, ----, Format Painter
//     "Font":      Bold, Italic, ----, Colour (dynamic group command: Red, Green, Blue)
//   "Insert"
//     "Tables":    Table
//     "":          Picture
//   "":            (no groups)

#include <tessaro/Tessaro.h>

#include "common/testicons.h"

#include <QtitanRibbon.h>

#include <QAbstractItemModel>
#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QPixmap>

namespace fixture {

using testcommon::colorIcon;
using testcommon::iconColor;

inline QString display(const QAbstractItemModel& model, const QModelIndex& index)
{
    return model.data(index, Qt::DisplayRole).toString();
}

struct Ribbon
{
    QObject host; // owns the commands, as a command registry does
    ui::RibbonBar bar{QStringLiteral("tst")};

    Qtitan::RibbonPage* home = nullptr;
    Qtitan::RibbonPage* insert = nullptr;
    Qtitan::RibbonPage* empty = nullptr;
    Qtitan::RibbonGroup* clipboard = nullptr;
    Qtitan::RibbonGroup* font = nullptr;
    Qtitan::RibbonGroup* tables = nullptr;
    Qtitan::RibbonGroup* untitled = nullptr;

    QAction* paste = nullptr;
    QAction* pastePlain = nullptr;
    QAction* pasteSpecial = nullptr;
    QAction* cut = nullptr;
    QAction* copy = nullptr;
    QAction* clipboardSeparator = nullptr;
    QAction* formatPainter = nullptr;
    QAction* bold = nullptr;
    QAction* italic = nullptr;
    QAction* colour = nullptr;
    QAction* red = nullptr;
    QAction* green = nullptr;
    QAction* blue = nullptr;
    QAction* table = nullptr;
    QAction* picture = nullptr;
    QAction* spare = nullptr;   // a command on no page yet
    QAction* spare2 = nullptr;

    QAction* command(const QString& name, const QColor& color)
    {
        auto* action = new QAction(colorIcon(color), name, &host);
        action->setObjectName(QString(name).remove(QLatin1Char('&')).remove(QLatin1Char(' ')).toLower());
        return action;
    }

    static QAction* separator(Qtitan::RibbonGroup* group)
    {
        auto* action = new QAction(group);
        action->setSeparator(true);
        group->addAction(action);
        return action;
    }

    Ribbon()
    {
        home = bar.addPage(QStringLiteral("&Home"));
        clipboard = home->addGroup(QStringLiteral("Clipboard"));
        pastePlain = command(QStringLiteral("Paste &Plain"), Qt::darkYellow);
        pasteSpecial = command(QStringLiteral("Paste &Special"), Qt::darkCyan);
        paste = command(QStringLiteral("&Paste"), Qt::yellow);
        auto* pasteMenu = new QMenu(clipboard);
        pasteMenu->addAction(pastePlain);
        pasteMenu->addAction(pasteSpecial);
        clipboard->addAction(paste, Qt::ToolButtonTextUnderIcon, pasteMenu, QToolButton::InstantPopup);
        cut = command(QStringLiteral("Cu&t"), Qt::red);
        copy = command(QStringLiteral("&Copy"), Qt::green);
        clipboard->addAction(cut, Qt::ToolButtonTextBesideIcon);
        clipboard->addAction(copy, Qt::ToolButtonTextBesideIcon);
        clipboardSeparator = separator(clipboard);
        formatPainter = command(QStringLiteral("Format Painter"), Qt::magenta);
        clipboard->addAction(formatPainter, Qt::ToolButtonIconOnly);

        font = home->addGroup(QStringLiteral("Font"));
        bold = command(QStringLiteral("&Bold"), Qt::black);
        italic = command(QStringLiteral("&Italic"), Qt::gray);
        font->addAction(bold, Qt::ToolButtonIconOnly);
        font->addAction(italic, Qt::ToolButtonIconOnly);
        separator(font);
        red = command(QStringLiteral("Red"), Qt::red);
        green = command(QStringLiteral("Green"), Qt::green);
        blue = command(QStringLiteral("Blue"), Qt::blue);
        colour = command(QStringLiteral("Colour"), Qt::white);
        auto* colourMenu = new QMenu(font);
        colourMenu->addAction(red);
        colourMenu->addAction(green);
        colourMenu->addAction(blue);
        font->addAction(colour, Qt::ToolButtonTextBesideIcon, colourMenu);
        ui::setGroupButtonType(font, colour, ui::Dynamic);

        insert = bar.addPage(QStringLiteral("Insert"));
        tables = insert->addGroup(QStringLiteral("Tables"));
        table = command(QStringLiteral("Table"), Qt::darkBlue);
        tables->addAction(table, Qt::ToolButtonTextUnderIcon);
        untitled = insert->addGroup(QString());
        picture = command(QStringLiteral("Picture"), Qt::darkGreen);
        untitled->addAction(picture, Qt::ToolButtonTextUnderIcon);

        empty = bar.addPage(QString());

        spare = command(QStringLiteral("&Spare"), Qt::cyan);
        spare2 = command(QStringLiteral("Spare Two"), Qt::darkRed);
    }
};

} // namespace fixture
