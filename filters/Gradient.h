#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

// Colour runs in bands, equal to the pixel to drawing each band with Line or Circle over the ones
// before it. Drawn in pen mode Copy; the surface's drawing state and scale mode stay as they are.

/// A linear run over the whole surface. `direction` is a bit mask: 4 diagonal from the top left,
/// else 1 across, else from top to bottom; with 2 the colours change places and the run goes
/// backward. Kept: each band wears the colour of the band before it and the first one the run's
/// last colour; a red of 129 or more raises the green by one and a green of 128 or more the blue;
/// steps are whole twips, so from about 1860 pixels down or 2480 across on bands of one pixel leave
/// gaps, where the old content stays. A run that is too short for a step of 1 twip takes that step.
void GradientFillPicture(PixelSurface& surface, ColorRef colorA, int direction, ColorRef colorB);

/// A run of `steps` + 1 filled circles from colorA at the rim to colorB in the middle, about a
/// centre in the surface's ScaleMode; a negative coordinate means the middle. Each circle has an
/// outline of its own colour, DrawWidth wide. Nothing is drawn with fewer than 1 step or a centre
/// that is 32,768 pixels or more away.
void GradientCircle(PixelSurface& surface, ColorRef colorA, ColorRef colorB, int steps, float cx,
                    float cy);

} // namespace kaart
