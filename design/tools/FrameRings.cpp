#include "design/tools/FrameRings.h"

#include "design/surface/GraphicsCalls.h"

#include <algorithm>

namespace kaart {

namespace {

constexpr int colourRow = 1;
constexpr int firstRing = 6;
constexpr int lastRing = 79;
constexpr int noRing = 250;

bool isRing(ColorRef colour) {
    return std::max({redOf(colour), greenOf(colour), blueOf(colour)}) < noRing;
}

} // namespace

void TekenLijst(PixelSurface& pic, const PixelSurface& frame, int left, int top, int right,
                int bottom) {
    for (int i = firstRing; i <= lastRing; ++i) {
        const ColorRef colour = GetPixel(frame, i, colourRow);
        const int inside = i - firstRing - 1;
        if (isRing(colour)) {
            pic.Line(left + inside, top + inside, right - inside, bottom - inside, colour,
                     LineMode::Box);
        }
    }
}

} // namespace kaart
