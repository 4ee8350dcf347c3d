#include "filters/Flip.h"

#include "design/surface/GraphicsCalls.h"

namespace kaart {

void FlipHorizontal(PixelSurface& surface) {
    const int width = surface.bounds().width();
    const int height = surface.bounds().height();
    StretchBlt(surface, 0, 0, width, height, surface, width - 1, 0, -width, height);
}

void FlipVertical(PixelSurface& surface) {
    const int width = surface.bounds().width();
    const int height = surface.bounds().height();
    StretchBlt(surface, 0, 0, width, height, surface, 0, height - 1, width, -height);
}

} // namespace kaart
