#include "generators/TextColours.h"

#include "design/surface/Random.h"

#include <array>

namespace kaart {

namespace {

constexpr int tones = 34;
constexpr int toneStep = 7;
constexpr int lineLength = 685;
constexpr int period = 67;
constexpr int rises = 5;

/// Which channels take the tone.
struct Hue {
    bool red;
    bool green;
    bool blue;
};

constexpr std::array hues = {Hue{true, true, true},   Hue{true, false, false},
                             Hue{false, true, false}, Hue{false, false, true},
                             Hue{true, false, true},  Hue{true, true, false}};

bool isGround(Pixel pixel) {
    constexpr Pixel full = 0xFF;
    return (pixel >> 16 & full) == full || (pixel >> 8 & full) == full || (pixel & full) == full;
}

} // namespace

void FillPalette(PixelSurface& BackPic, int index) {
    const bool known = index >= 0 && index < static_cast<int>(hues.size());
    const Hue hue = known ? hues.at(static_cast<std::size_t>(index)) : Hue{};
    const auto line = [&](int x, ColorRef colour) { BackPic.Line(x, 0, x, lineLength, colour); };
    for (int i = 0; i < tones; ++i) {
        const int tone = i * toneStep;
        const ColorRef colour = RGB(hue.red ? tone : 0, hue.green ? tone : 0, hue.blue ? tone : 0);
        for (int rise = 0; rise < rises; ++rise) {
            line(rise * period + i, colour);
            line((rise + 1) * period - i, colour);
        }
    }
}

void ColorTextRow(PixelSpan Pic, ConstPixelSpan BackPic, int y) {
    // Kept: the three numbers aren't used for anything.
    Randomize();
    std::array<float, 3> unused{};
    fillRnd(unused);
    if (y < 0 || y >= std::min(Pic.height, BackPic.height)) {
        return;
    }
    Pixel* text = Pic.row(y);
    const Pixel* pattern = BackPic.row(y);
    for (int x = 0; x < std::min(Pic.width, BackPic.width); ++x) {
        text[x] = isGround(text[x]) ? text[x] : pattern[x];
    }
}

} // namespace kaart
