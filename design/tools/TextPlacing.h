#pragma once

#include "design/session/Design.h"

#include <QFont>
#include <QPoint>
#include <QStringList>

namespace kaart {

// Texts on the design: how they are drawn, and how one hangs above the canvas until it is placed.
// Coordinates are pixels; (x, y) is a text's top left.

/// The font that a style has on the design.
QFont fontOf(const TextStyle& style);

/// Writes one line in the font, style and effects that the panels say: the shadow first, eight
/// greys from 228 at (8, 8) to 186 at (1, 1); then, for open text, the edge in Tekenkleur and the
/// inside in Vulkleur, otherwise the text in Tekenkleur.
void PlaatsTekst(const Design& design, PixelSurface& surface, double x, double y,
                 const QString& text);

/// Writes one line in a font of its own, at its slope about (x, y).
void DraaiTekst(PixelSurface& surface, const QString& text, double x, double y,
                const SlopingFont& font, ColorRef colour);

/// Writes lines below each other, aligned within the widest of them, in font and style of the
/// panels and in Tekenkleur, without effects.
void PlaatsLangeTekst(const Design& design, PixelSurface& surface, double x, double y,
                      const QStringList& lines);

/// A line of a long text, with CurrentX and CurrentY as they are for it.
struct PlacedLine {
    QString text;
    double x = 0;
    double y = 0;
};
/// Where the lines of a long text come. Right: all end at x + the widest width. Center: about
/// x + half of it, rounded down, so that a line may start at half a pixel.
QList<PlacedLine> layOutLines(const TextStyle& style, const QStringList& lines, double x, double y);

/// "PlaatsKnop": hangs the text line of the panel above the canvas, as mode 21 or, sloping, 22.
/// False, and nothing done, when it's empty or of blanks only.
bool hangTextLine(Design& design);
/// Has the label of the text line follow the mouse: just above it, 5 pixels free.
void moveTextLine(Design& design, QPoint mouse);
/// The release of any button above the canvas while a text hangs: a text line is placed. Kept: of a
/// long text, and when another tool was chosen, nothing is written, and all the same there is an
/// undo copy, Gewijzigd is set and the waiting is over.
void placeTextLine(Design& design, QPoint mouse);

/// "PlaatsKnop2": hangs a long text at the canvas's top left, as mode 23.
void hangLongText(Design& design, const QStringList& lines);
/// Takes hold of it at a point, and moves it so that this point comes to another one. Both are
/// pixels from its label's top left as it stands at that moment.
void grabLongText(Design& design, QPoint at);
void dragLongText(Design& design, QPoint at);
/// The text stands this far right and below of its label's top left.
inline constexpr int longTextInset = 1;
/// Places the lines where the label is, in the style that the panels say by now.
void placeLongText(Design& design, const QStringList& lines);

} // namespace kaart
