#include "filters/Gradient.h"

#include "design/surface/Numbers.h"
#include "design/surface/Rasteriser.h"

#include <cmath>
#include <vector>

namespace kaart {

namespace {

constexpr int furthestCentre = 32767; // pixels
constexpr int mostSteps = 65535;

/// Circles about one centre, in the surface's unit.
struct Centre {
    float x;
    float y;
    double unit; ///< of these in a pixel

    /// The distance to the farthest corner of a surface.
    float farthest(float width, float height) const {
        const float across = std::max(std::abs(x), std::abs(width - x));
        const float down = std::max(std::abs(y), std::abs(height - y));
        return std::sqrt(across * across + down * down);
    }
    /// The pixels that a circle of this radius spans.
    QRect box(double radius) const {
        return {QPoint(roundEven((x - radius) / unit), roundEven((y - radius) / unit)),
                QPoint(roundEven((x + radius) / unit), roundEven((y + radius) / unit))};
    }
};

/// Paints circles about one centre from the smallest on, each where none before it has painted.
/// They share a middle column, or have neighbouring ones, so what is painted of a row is one run.
class Rings {
public:
    Rings(PixelSpan target, int penWidth)
        : target_(target),
          penWidth_(penWidth),
          painted_(static_cast<std::size_t>(target.height), RowRun{target.width, -1}) {}

    void add(const QRect& circle, Pixel colour) {
        roundedRuns(RoundedBox::ellipse(circle), penWidth_, runs_);
        const int top = grownByPen(circle, penWidth_).top();
        const int first = std::max(0, top);
        const int last = std::min(target_.height, top + static_cast<int>(runs_.size()));
        for (int y = first; y < last; ++y) {
            addRow(y, runs_[static_cast<std::size_t>(y - top)], colour);
        }
    }

private:
    void addRow(int y, RowRun run, Pixel colour) {
        RowRun& done = painted_[static_cast<std::size_t>(y)];
        run = {std::max(run.left, 0), std::min(run.right, target_.width - 1)};
        if (run.left > run.right) {
            return;
        }
        Pixel* row = target_.row(y);
        if (done.left > done.right) {
            done = {run.left, run.left - 1};
        }
        for (int x = run.left; x < done.left; ++x) {
            row[x] = colour;
        }
        for (int x = done.right + 1; x <= run.right; ++x) {
            row[x] = colour;
        }
        done = {std::min(done.left, run.left), std::max(done.right, run.right)};
    }

    PixelSpan target_;
    int penWidth_;
    std::vector<RowRun> painted_;
    std::vector<RowRun> runs_;
};

ColorRef between(ColorRef from, ColorRef to, int k, int steps) {
    const auto part = [&](int a, int b) { return a + (b - a) * k / steps; };
    return RGB(part(redOf(from), redOf(to)), part(greenOf(from), greenOf(to)),
               part(blueOf(from), blueOf(to)));
}

} // namespace

void GradientCircle(PixelSurface& surface, ColorRef colorA, ColorRef colorB, int steps, float cx,
                    float cy) {
    const auto width = static_cast<float>(surface.ScaleWidth());
    const auto height = static_cast<float>(surface.ScaleHeight());
    const Centre centre{cx < 0 ? width / 2 : cx, cy < 0 ? height / 2 : cy,
                        surface.ScaleMode == ScaleUnit::Twips ? 1.0 * twipsPerPixel : 1.0};
    const double limit = furthestCentre * centre.unit;
    if (steps < 1 || steps > mostSteps || !(centre.x <= limit && centre.y <= limit)) {
        return;
    }
    float radius = centre.farthest(width, height);
    const float shrink = radius / static_cast<float>(steps);
    std::vector<float> radii;
    radii.reserve(static_cast<std::size_t>(steps) + 1);
    for (int k = 0; k <= steps; ++k) {
        radii.push_back(radius);
        radius -= shrink;
    }
    Rings rings(surface.writePixels(), std::max(1, surface.DrawWidth));
    for (int k = steps; k >= 0; --k) {
        const double around = radii[static_cast<std::size_t>(k)];
        // Kept: rounding may leave the last radius below 0, which is no circle.
        if (around >= 0) {
            rings.add(centre.box(around), toPixel(between(colorA, colorB, k, steps)));
        }
    }
}

} // namespace kaart
