#include "filters/Gradient.h"

#include "design/surface/Numbers.h"
#include "design/surface/RunKernels.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numbers>
#include <utility>
#include <vector>

namespace kaart {

namespace {

using Channels = std::array<int, 3>;

// The bits of a direction.
constexpr int acrossBit = 1;
constexpr int backwardBit = 2;
constexpr int diagonalBit = 4;

// A run's length in pixels, divided by this and rounded, is its step in twips.
constexpr int bandsDiagonal = 100;
constexpr int bandsDown = 120;
constexpr int bandsAcross = 160;

/// Kept: the shifts are rounded divisions, half to even, not truncated ones.
Channels splitRounded(ColorRef colour) {
    const auto shifted = [colour](double divisor) { return roundEven(colour / divisor) & 255; };
    return {static_cast<int>(colour & 255U), shifted(256), shifted(65536)};
}

/// The bands of a linear run: at 0, step, 2 step ... or the same from the far end, in twips.
class Bands {
public:
    Bands(ColorRef colorA, ColorRef colorB, bool backward, int length, int perStep)
        : second_(backward ? colorA : colorB),
          from_(splitRounded(backward ? colorB : colorA)),
          backward_(backward),
          length_(length),
          step_(std::max(1, roundEven(length / static_cast<double>(perStep)))) {
        const Channels to = splitRounded(second_);
        for (std::size_t i = 0; i < from_.size(); ++i) {
            increase_[i] = static_cast<float>(to[i] - from_[i]) / static_cast<float>(length);
        }
    }

    int step() const { return step_; }
    bool backward() const { return backward_; }

    /// In the order of drawing.
    std::vector<int> all() const {
        std::vector<int> bands(static_cast<std::size_t>(length_ / step_) + 1);
        const int step = backward_ ? -step_ : step_;
        int band = first();
        for (int& next : bands) {
            next = band;
            band += step;
        }
        return bands;
    }

    /// For every pixel from 0 to the length the band that is drawn there last, or none.
    std::vector<int> lastByPixel() const {
        std::vector<int> last(static_cast<std::size_t>(length_ / twipsPerPixel) + 1, none);
        for (const int band : all()) {
            // Half a pixel is no whole number of twips, so there are no ties.
            last[static_cast<std::size_t>(band + twipsPerPixel / 2) / twipsPerPixel] = band;
        }
        return last;
    }

    /// What bands wear: each the colour that is worked out for the one before it.
    std::vector<Pixel> colours(const std::vector<int>& bands) const {
        std::vector<Pixel> worn(bands.size());
        const double lag = backward_ ? step_ : -step_;
        for (std::size_t i = 0; i < bands.size(); ++i) {
            const double before = bands[i] + lag;
            worn[i] = part(0, before) << 16 | part(1, before) << 8 | part(2, before) | opaque;
        }
        for (std::size_t i = 0; i < bands.size(); ++i) {
            worn[i] = bands[i] == first() ? toPixel(second_) : worn[i];
        }
        return worn;
    }

    static constexpr int none = -1;

private:
    int first() const { return backward_ ? length_ : 0; }

    /// Rounded half to even: adding 1.5 * 2^52 leaves no bits behind the point. Between the two
    /// ends of a run, rounded increases too, so from 0 to 255.
    Pixel part(std::size_t channel, double band) const {
        const double value = from_[channel] + static_cast<double>(increase_[channel]) * band;
        return static_cast<Pixel>(std::bit_cast<std::uint64_t>(value + 0x1.8p52));
    }

    static constexpr Pixel opaque = 0xFF000000U;
    ColorRef second_;
    Channels from_;
    bool backward_;
    int length_;
    int step_;
    std::array<float, 3> increase_{};
};

void fillRows(const PixelSpan& target, const Bands& bands) {
    const std::vector<int> last = bands.lastByPixel();
    const std::vector<Pixel> colours = bands.colours(last);
    for (int y = 0; y < target.height; ++y) {
        const auto row = static_cast<std::size_t>(y);
        if (last[row] != Bands::none) {
            fillRun(target.row(y), static_cast<std::size_t>(target.width), colours[row]);
        }
    }
}

void fillColumns(const PixelSpan& target, const Bands& bands) {
    std::vector<int> last = bands.lastByPixel();
    last.resize(static_cast<std::size_t>(target.width));
    const std::vector<Pixel> colours = bands.colours(last);
    const auto gaps = std::count(last.begin(), last.end(), Bands::none);
    std::vector<std::size_t> reached;
    for (std::size_t x = 0; gaps > 0 && x < last.size(); ++x) {
        if (last[x] != Bands::none) {
            reached.push_back(x);
        }
    }
    for (int y = 0; y < target.height; ++y) {
        Pixel* row = target.row(y);
        if (gaps == 0) {
            copyRun(row, colours.data(), colours.size());
            continue;
        }
        for (const std::size_t x : reached) {
            row[x] = colours[x];
        }
    }
}

/// The colours of the pixels by x + y, where they depend on nothing else: a forward run whose last
/// band at every pixel passes there with its straight part. Otherwise empty.
std::vector<Pixel> diagonals(const Bands& bands, int width, int height) {
    const int pen = bands.step();
    if (bands.backward() || pen < 2) {
        return {};
    }
    // Half the pen across the slope; an even pen leans up and left.
    const int half = static_cast<int>(pen / std::numbers::sqrt2) + (pen % 2 == 0 ? 1 : 0);
    const std::vector<int> last = bands.lastByPixel();
    std::vector<int> seen(static_cast<std::size_t>(width + height) - 1);
    int band = *std::max_element(last.begin(), last.begin() + half);
    for (std::size_t sum = 0; sum < seen.size(); ++sum) {
        const std::size_t reach = sum + static_cast<std::size_t>(half);
        band = reach < last.size() ? std::max(band, last[reach]) : band;
        seen[sum] = band;
        // From here on the pixel would lie at the round end of the line, which reaches less far.
        if (band < (static_cast<int>(sum) + 1) * twipsPerPixel - twipsPerPixel / 2) {
            return {};
        }
    }
    return bands.colours(seen);
}

/// The lines themselves, one after another: for the small and the very narrow, and backward runs.
void drawDiagonals(PixelSurface& surface, const Bands& bands) {
    const PenMode mode = std::exchange(surface.DrawMode, PenMode::Copy);
    const ScaleUnit unit = std::exchange(surface.ScaleMode, ScaleUnit::Twips);
    const int pen = std::exchange(surface.DrawWidth, bands.step());
    const std::vector<int> all = bands.all();
    const std::vector<Pixel> colours = bands.colours(all);
    for (std::size_t i = 0; i < all.size(); ++i) {
        surface.Line(all[i], 0, 0, all[i], toColorRef(colours[i]));
    }
    surface.DrawWidth = pen;
    surface.ScaleMode = unit;
    surface.DrawMode = mode;
}

void fillDiagonals(PixelSurface& surface, const Bands& bands) {
    const QSize size = surface.bounds().size();
    const std::vector<Pixel> pixels = diagonals(bands, size.width(), size.height());
    if (pixels.empty()) {
        drawDiagonals(surface, bands);
        return;
    }
    const PixelSpan target = surface.writePixels();
    for (int y = 0; y < target.height; ++y) {
        copyRun(target.row(y), pixels.data() + y, static_cast<std::size_t>(target.width));
    }
}

} // namespace

void GradientFillPicture(PixelSurface& surface, ColorRef colorA, int direction, ColorRef colorB) {
    const QSize size = surface.bounds().size();
    if (size.isEmpty()) {
        return;
    }
    const bool backward = (direction & backwardBit) != 0;
    const auto bands = [&](int pixels, int perStep) {
        return Bands(colorA, colorB, backward, pixels * twipsPerPixel, perStep * twipsPerPixel);
    };
    if ((direction & diagonalBit) != 0) {
        fillDiagonals(surface, bands(size.width() + size.height(), bandsDiagonal));
    } else if ((direction & acrossBit) == 0) {
        fillRows(surface.writePixels(), bands(size.height(), bandsDown));
    } else {
        fillColumns(surface.writePixels(), bands(size.width(), bandsAcross));
    }
}

} // namespace kaart
