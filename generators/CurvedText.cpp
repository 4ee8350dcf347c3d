#include "generators/CurvedText.h"

#include "design/surface/Numbers.h"

#include <cmath>

namespace kaart {

namespace {

constexpr double roundPi = 3.14;
constexpr int raised = 20;

double radians(double degrees) {
    return degrees * roundPi / 180;
}

/// The angle from glyph to glyph when all of them share `degrees`.
double stepOf(int degrees, int glyphs) {
    return degrees * 2.0 / 360 * roundPi / glyphs;
}

/// One place for each glyph; `place` is given its number, from 1.
template <typename Place>
GlyphPlaces placesOf(int glyphs, const Place& place) {
    GlyphPlaces places;
    places.reserve(static_cast<std::size_t>(std::max(0, glyphs)));
    for (int i = 1; i <= glyphs; ++i) {
        places.push_back(place(i));
    }
    return places;
}

int glyphsOf(const QString& text) {
    return static_cast<int>(text.size());
}

void printGlyphs(PixelSurface& surface, const QString& text, const GlyphPlaces& places) {
    surface.Cls();
    for (int i = 0; i < glyphsOf(text); ++i) {
        const QPointF& place = places[static_cast<std::size_t>(i)];
        surface.CurrentX = place.x();
        surface.CurrentY = place.y();
        surface.Print(text.mid(i, 1));
    }
}

} // namespace

GlyphPlaces wavePlaces(int glyphs, QPoint start, int Lengte, int Curves, int Sinus) {
    const double step = stepOf(Curves, glyphs);
    return placesOf(glyphs, [=](int i) {
        return QPointF(i * Lengte + start.x(), start.y() - Sinus * std::cos(i * step));
    });
}

GlyphPlaces rotatePlaces(int glyphs, QPoint start, int Radius, int Lengte) {
    const double angle = radians(Radius);
    return placesOf(glyphs, [=](int i) {
        return QPointF(start.x() + i * Lengte * std::cos(angle),
                       start.y() + i * Lengte * std::sin(angle));
    });
}

GlyphPlaces circlePlaces(int glyphs, QPoint start, int Radius, int Deg, int Arc) {
    return ellipsePlaces(glyphs, start, Radius, Deg, 1, 1, Arc);
}

GlyphPlaces ellipsePlaces(int glyphs, QPoint start, int Radius, int Deg, int XFact, int YFact,
                          int Arc) {
    const double first = radians(Deg * 2);
    const double step = stepOf(Arc, glyphs);
    return placesOf(glyphs, [=](int i) {
        const double angle = first + i * step;
        return QPointF(start.x() + Radius * std::sin(angle) / std::sqrt(XFact),
                       start.y() - Radius * std::cos(angle) / std::sqrt(YFact));
    });
}

QPoint curveStart(const PixelSurface& surface, int glyphs, int Lengte) {
    return {roundEven(surface.ScaleWidth() / 2 - glyphs / 2.0 * Lengte),
            roundEven(surface.ScaleHeight() / 2 - raised)};
}

void WaveText(PixelSurface& surface, int X0, int Y0, int Lengte, int Curves, int Sinus,
              const QString& text) {
    printGlyphs(surface, text, wavePlaces(glyphsOf(text), {X0, Y0}, Lengte, Curves, Sinus));
}

void RotateText(PixelSurface& surface, int X0, int Y0, int Radius, int Lengte,
                const QString& text) {
    printGlyphs(surface, text, rotatePlaces(glyphsOf(text), {X0, Y0}, Radius, Lengte));
}

void CircleText(PixelSurface& surface, int X0, int Y0, int Radius, int Deg, int Arc,
                const QString& text) {
    printGlyphs(surface, text, circlePlaces(glyphsOf(text), {X0, Y0}, Radius, Deg, Arc));
}

void ElipticText(PixelSurface& surface, int X0, int Y0, int Radius, int Deg, int XFact, int YFact,
                 int Arc, const QString& text) {
    printGlyphs(surface, text,
                ellipsePlaces(glyphsOf(text), {X0, Y0}, Radius, Deg, XFact, YFact, Arc));
}

} // namespace kaart
