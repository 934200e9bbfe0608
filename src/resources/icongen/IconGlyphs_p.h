#pragma once

#include "IconPainter.h"

class QColor;
class QPainter;

// The two glyph families behind IconPainter::paint().

/// Draws one of the library's resource icons (Plus ... Remove).
void paintResourceGlyph(QPainter& painter, IconPainter::Glyph glyph);
/// Draws one of the demo's command icons (New ... AboutQt).
void paintCommandGlyph(QPainter& painter, IconPainter::Glyph glyph, const QColor& accent);
