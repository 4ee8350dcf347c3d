#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

// The platform's graphics calls by their own names. All measures are pixels of the surface, which
// is its own device context; what lies outside is left alone.

enum class FloodType {
    Border = 0, ///< fill up to a colour
    Surface = 1 ///< fill as far as a colour goes
};

ColorRef GetPixel(const PixelSurface& surface, int x, int y); ///< noColor outside
/// Writes one pixel and answers the colour written, noColor outside.
ColorRef SetPixel(PixelSurface& surface, int x, int y, ColorRef colour);
/// The same without an answer but whether the pixel was there.
bool SetPixelV(PixelSurface& surface, int x, int y, ColorRef colour);

/// Fills with FillColor what hangs together by sides with (x, y). Surface: exactly `colour`, and
/// nothing at all unless the start pixel has it. Border: every colour but `colour`. Answers whether
/// anything could be filled. (Span filling after Heckbert, "A Seed Fill Algorithm", 1990.)
bool ExtFloodFill(PixelSurface& surface, int x, int y, ColorRef colour, FloodType type);
bool FloodFill(PixelSurface& surface, int x, int y, ColorRef border);

void RoundRect(PixelSurface& surface, int left, int top, int right, int bottom, int cornerWidth,
               int cornerHeight);

/// Copies a piece of equal size. Source and target may be the same surface and may overlap.
void BitBlt(PixelSurface& target, int x, int y, int width, int height, const PixelSurface& source,
            int sourceX, int sourceY, RasterOp rop = RasterOp::Copy);
/// Copies a piece with stretching and mirroring as PixelSurface::PaintPicture does.
void StretchBlt(PixelSurface& target, int x, int y, int width, int height,
                const PixelSurface& source, int sourceX, int sourceY, int sourceWidth,
                int sourceHeight, RasterOp rop = RasterOp::Copy);

} // namespace kaart
