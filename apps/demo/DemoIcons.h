#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

/// The demo's command icons, drawn at run time so that the demo ships no
/// artwork files. Every glyph is drawn on a 32-unit grid and rendered at 16
/// and 32 pixels.
class DemoIcons
{
public:
    enum Glyph {
        New, Open, Save, SaveAs, SaveAll, Revert, Close, CloseAll, ExportHtml, ExportText,
        Properties, Recent, ClearRecent, Exit,
        Undo, Redo, Cut, Copy, Paste, PastePlain, Delete, SelectAll, Find, FindNext,
        FindPrevious, Replace, DuplicateLine, UpperCase, LowerCase,
        ZoomIn, ZoomOut, ZoomReset, Zoom, WordWrap, Ruler, ReadOnly, ToolBar, StatusBar,
        FullScreen, NextDocument, PreviousDocument,
        Date, Time, Table, Image, HorizontalLine, BulletList, NumberedList, Link, Symbol,
        Bold, Italic, Underline, StrikeOut, Superscript, Subscript, AlignLeft, AlignCenter,
        AlignRight, AlignJustify, Indent, Outdent, GrowFont, ShrinkFont, FontSize, ClearFormat,
        Highlight, TextColor,
        WordCount, SortLines, TrimSpaces, AutoSave, Keyboard,
        Help, About, AboutQt,
        GlyphCount
    };

    /// The glyph at 16 and 32 pixels; \a accent tints glyphs that show a colour
    /// (TextColor, Highlight).
    static QIcon icon(Glyph glyph, const QColor& accent = QColor());
    /// One rendering of the glyph, \a size pixels square.
    static QPixmap pixmap(Glyph glyph, int size, const QColor& accent = QColor());
};
