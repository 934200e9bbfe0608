#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

#include <vector>

class QPainter;

/// The one painter of Tessaro's icons: the library's resource icons (written
/// as PNG files under src/resources by tessaro-icongen and compiled into the
/// library) and the command icons of the demo, drawn at run time. Both kinds
/// share one palette and one set of shapes, so they look like one family.
///
/// Every glyph is drawn on a 32-unit square. The resource icons put their
/// edges on pixel centres of a 32-pixel image; the command icons use 2-unit
/// strokes that stay on whole pixels at 16 pixels too.
///
/// \code
/// action->setIcon(IconPainter::icon(IconPainter::Save));
/// IconPainter::image(IconPainter::Plus, 32).save("plus.png");
/// \endcode
class IconPainter
{
public:
    enum Glyph {
        // The library's resource icons.
        Plus, Logo, AddPage, AddGroup, AddCommand, AddGroupCommand, AddSeparator, MoveUp, MoveDown, Remove,
        AddToGroup, AddToolBar, RemoveToolBar, RenameToolBar,
        // The demo's command icons.
        New, Open, Save, SaveAs, SaveAll, Revert, Close, CloseAll, ExportHtml, ExportText,
        Properties, Recent, ClearRecent, Exit,
        Undo, Redo, Cut, Copy, Paste, PastePlain, Delete, SelectAll, Find, FindNext,
        FindPrevious, Replace, DuplicateLine, UpperCase, LowerCase,
        ZoomIn, ZoomOut, ZoomReset, Zoom, WordWrap, Ruler, ReadOnly, ToolBar, Panels, StatusBar,
        FullScreen, NextDocument, PreviousDocument,
        Date, Time, Table, Image, HorizontalLine, BulletList, NumberedList, Link, Symbol,
        Bold, Italic, Underline, StrikeOut, Superscript, Subscript, AlignLeft, AlignCenter,
        AlignRight, AlignJustify, Indent, Outdent, GrowFont, ShrinkFont, FontSize, Font, ClearFormat,
        Highlight, TextColor,
        WordCount, SortLines, TrimSpaces, AutoSave, Keyboard, Customize,
        Help, About, AboutQt,
        GlyphCount
    };

    /// A resource icon of the library and the file it is written to.
    struct ResourceIcon
    {
        const char* fileName;
        Glyph glyph;
    };

    /// The library's resource icons, in the order tessaro-icongen writes them.
    static const std::vector<ResourceIcon>& resourceIcons();

    /// Draws \a glyph on the 32-unit square at the painter's origin; \a accent
    /// tints the glyphs that show a colour (TextColor, Highlight).
    static void paint(QPainter& painter, Glyph glyph, const QColor& accent = QColor());
    /// The glyph rendered \a size pixels square on a transparent background.
    static QImage image(Glyph glyph, int size, const QColor& accent = QColor());
    /// The glyph at 16 and 32 pixels.
    static QIcon icon(Glyph glyph, const QColor& accent = QColor());
};
