#pragma once

#include "design/surface/PixelSurface.h"

#include <QStringList>

#include <random>

// Tiny pictures spelled as numbers: each row is a string of digits, each digit stands for a colour.

/// The colour behind a digit: 0 white, 1 black, 2 red, 3 green, 4 blue, 5 to 9 greys.
kaart::ColorRef colourOf(char digit);

/// The rows of a surface; a colour that no digit stands for becomes "?".
QStringList spell(const kaart::PixelSurface& surface);
QStringList spell(const QImage& picture);

/// The picture that the rows spell.
QImage pictureOf(const QStringList& rows);

/// A picture of random colours; with `colours` above 0 only of so many.
QImage randomPicture(int width, int height, std::mt19937& random, int colours = 0);

/// The smallest rectangle round all that isn't white.
QRect inkOf(const QImage& picture);
inline QRect inkOf(const kaart::PixelSurface& surface) {
    return inkOf(surface.Image());
}

/// Compares two pictures; the failure names the first wrong pixel.
void comparePictures(const QImage& got, const QImage& expected);
