#pragma once

#include "design/surface/PixelSurface.h"

#include <span>

namespace kaart {

struct SliderRow {
    const char* name;
    const char* labelName;
    const char* label;
    int low;
    int high;
    int start;
};

/// A curve of the wave text window with the frame of its sliders. Place and height are twips.
struct CurveFrame {
    const char* name;
    const char* caption;
    int top;
    int height;
    std::span<const SliderRow> sliders;
    /// Draws a text along the curve on a cleared surface; `values` are the sliders', in their
    /// order.
    void (*draw)(PixelSurface& surface, const QString& text, std::span<const int> values);
};

/// The four curves, from the top.
std::span<const CurveFrame> curveFrames();

} // namespace kaart
