#include "design/surface/GraphicsCalls.h"

#include "design/surface/Flood.h"

#include <utility>

namespace kaart {

ColorRef GetPixel(const PixelSurface& surface, int x, int y) {
    const ConstPixelSpan span = surface.pixels();
    return span.contains(x, y) ? toColorRef(span.row(y)[x]) : noColor;
}

ColorRef SetPixel(PixelSurface& surface, int x, int y, ColorRef colour) {
    return SetPixelV(surface, x, y, colour) ? colour & 0x00FFFFFFU : noColor;
}

bool SetPixelV(PixelSurface& surface, int x, int y, ColorRef colour) {
    SpanMask dot(QRect(x, y, 1, 1) & surface.bounds());
    dot.add(y, x, x + 1);
    const PenMode mode = std::exchange(surface.DrawMode, PenMode::Copy);
    surface.paint(dot, colour);
    surface.DrawMode = mode;
    return surface.bounds().contains(x, y);
}

bool ExtFloodFill(PixelSurface& surface, int x, int y, ColorRef colour, FloodType type) {
    const ColorRef start = GetPixel(surface, x, y);
    if (start == noColor || (start == colour) != (type == FloodType::Surface)) {
        return false;
    }
    const Pixel fill = toPixel(surface.FillColor);
    const PixelSpan pixels = surface.writePixels({});
    surface.writePixels(type == FloodType::Surface
                            ? floodSurface(pixels, x, y, fill)
                            : floodBorder(pixels, x, y, toPixel(colour), fill));
    return true;
}

bool FloodFill(PixelSurface& surface, int x, int y, ColorRef border) {
    return ExtFloodFill(surface, x, y, border, FloodType::Border);
}

void RoundRect(PixelSurface& surface, int left, int top, int right, int bottom, int cornerWidth,
               int cornerHeight) {
    surface.RoundRect(left, top, right, bottom, cornerWidth, cornerHeight);
}

void BitBlt(PixelSurface& target, int x, int y, int width, int height, const PixelSurface& source,
            int sourceX, int sourceY, RasterOp rop) {
    StretchBlt(target, x, y, width, height, source, sourceX, sourceY, width, height, rop);
}

void StretchBlt(PixelSurface& target, int x, int y, int width, int height,
                const PixelSurface& source, int sourceX, int sourceY, int sourceWidth,
                int sourceHeight, RasterOp rop) {
    const ScaleUnit unit = std::exchange(target.ScaleMode, ScaleUnit::Pixels);
    target.PaintPicture(source.Image(), x, y, width, height, sourceX, sourceY, sourceWidth,
                        sourceHeight, rop);
    target.ScaleMode = unit;
}

} // namespace kaart
