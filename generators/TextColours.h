#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

/// Paints the colour pattern of the entry Kleurtje(`index`) (0 to 5: grey, red, green, blue,
/// purple, yellow): vertical stripes from x = 0 to 335 whose tone rises and falls five times, from
/// black to 231. What lies right of them stays as it is. Another index paints black stripes.
void FillPalette(PixelSurface& BackPic, int index);

/// Gives row `y` of a text the pattern's colours. A pixel with a channel at 255 counts as ground,
/// so kept: pure red text stays red. Also seeds the random numbers from the clock, which the
/// filters that draw some feel, and draws three.
void ColorTextRow(PixelSpan Pic, ConstPixelSpan BackPic, int y);

} // namespace kaart
