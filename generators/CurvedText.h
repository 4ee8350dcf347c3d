#pragma once

#include "design/surface/PixelSurface.h"

#include <QPoint>
#include <QPointF>

#include <vector>

namespace kaart {

// Texts along a curve: every glyph upright, at a place of its own. Lengths are pixels, angles
// degrees. Kept: all angles are worked out with 3.14 for pi, so a full circle doesn't quite close.

/// Where the top left corners of a text's glyphs come, in their order.
using GlyphPlaces = std::vector<QPointF>;

/// A sine of `Curves` half degrees over the whole text, `Sinus` high, `Lengte` from glyph to glyph.
GlyphPlaces wavePlaces(int glyphs, QPoint start, int Lengte, int Curves, int Sinus);
/// A straight line at an angle of `Radius`, clockwise from east, `Lengte` from glyph to glyph.
GlyphPlaces rotatePlaces(int glyphs, QPoint start, int Radius, int Lengte);
/// A part `Arc` of a circle round the start, turned clockwise by twice `Deg`.
GlyphPlaces circlePlaces(int glyphs, QPoint start, int Radius, int Deg, int Arc);
/// The same of an ellipse: the radius is divided by the square root of each factor (1 or more).
GlyphPlaces ellipsePlaces(int glyphs, QPoint start, int Radius, int Deg, int XFact, int YFact,
                          int Arc);

/// The start of a curve on a surface: its middle, a little higher, and for a text of that many
/// glyphs in a row half its length to the left.
QPoint curveStart(const PixelSurface& surface, int glyphs, int Lengte = 0);

// Clear the surface and print the text, one glyph after another.
void WaveText(PixelSurface& surface, int X0, int Y0, int Lengte, int Curves, int Sinus,
              const QString& text);
void RotateText(PixelSurface& surface, int X0, int Y0, int Radius, int Lengte, const QString& text);
void CircleText(PixelSurface& surface, int X0, int Y0, int Radius, int Deg, int Arc,
                const QString& text);
void ElipticText(PixelSurface& surface, int X0, int Y0, int Radius, int Deg, int XFact, int YFact,
                 int Arc, const QString& text);

} // namespace kaart
