#pragma once

#include "design/session/Overlays.h"
#include "design/surface/ColorRef.h"

#include <QString>

namespace kaart {

/// How the lines of a long text stand to each other; the numbers are those of the control.
enum class TextAlignment { Left = 0, Right = 1, Center = 2 };

/// Font and style of a text, and of a text line its text and effects too, as the panels say.
struct TextStyle {
    QString Text; ///< the text line
    QString FontName = QStringLiteral("Arial");
    double FontSize = 12; ///< points, at 96 to the inch
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool Open = false;     ///< inside in Vulkleur, edge in Tekenkleur
    bool Schaduw = false;  ///< grey shadow, down and right
    bool Diagonal = false; ///< sloping, without effects
    int Graden = 90;       ///< slope in degrees, counter-clockwise
    TextAlignment Alignment = TextAlignment::Left;
};

/// A text that hangs above the canvas, waiting to be placed. Width and Height are the text's own
/// extent; between two lines of the caption is a line feed.
struct TextOverlay : LabelOverlay {
    TextStyle Style;
    ColorRef ForeColor = black;
    bool Opaque = false; ///< stands on a white ground
};

} // namespace kaart
