#include "filters/RandomFilters.h"

#include "design/surface/Numbers.h"
#include "design/surface/Random.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/RandomFilters.cpp"
#include <hwy/foreach_target.h>

#include "filters/Vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// How far away, in pixels, the pixel lies that replaces each of row y. `drawn` has two numbers for
/// each of them.
void findOffsets(PixelSpan picture, int y, const float* drawn, float p, float h,
                 std::int32_t* offsets) {
    const int W = picture.width;
    const int H = picture.height;
    for (int x = 0; x < W; ++x) {
        const auto pair = std::size_t{2} * static_cast<std::size_t>(x);
        const int dx = static_cast<int>(std::nearbyint(drawn[pair] * p - h));
        const int dy = static_cast<int>(std::nearbyint(drawn[pair + 1] * p - h));
        const bool insideX = x + dx >= 0 && x + dx < W;
        const bool insideY = y + dy >= 0 && y + dy < H;
        offsets[x] = (insideX ? dx : 0) + (insideY ? dy : 0) * W;
    }
}

void Defuse(PixelSpan PixelBuf, std::int32_t p, RowRhythm& rhythm) {
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    const auto h = static_cast<float>(roundEven(p / 2.0));
    std::vector<float> drawn(2 * width);
    std::vector<std::int32_t> offsets(width);
    for (int y = 0; y < PixelBuf.height; ++y) {
        fillRnd(drawn);
        findOffsets(PixelBuf, y, drawn.data(), static_cast<float>(p), h, offsets.data());
        Pixel* pixel = PixelBuf.row(y);
        for (const std::int32_t offset : offsets) {
            *pixel = (*pixel & ~colours) | (pixel[offset] & colours);
            ++pixel;
        }
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

using Floats = hn::ScalableTag<float>;

/// The numbers for the bytes from i on: three for the colours of each pixel, and anything for its
/// fourth byte.
hn::Vec<Floats> drawnFor(std::size_t i, const float* drawn) {
    const float* at = drawn + i / 4 * 3;
#if HWY_MAX_BYTES == 32
    const hn::Half<Floats> d;
    return hn::Combine(Floats(), hn::LoadU(d, at + 3), hn::LoadU(d, at));
#else
    return hn::LoadU(Floats(), at);
#endif
}

/// Adds noise to the bytes of a row, which has room for a vector beyond its end. `drawn` has three
/// numbers for each four bytes and room for a vector, too.
void addNoise(std::size_t width, const float* drawn, std::int32_t n, Pixel* row) {
    const Floats d;
    const hn::Rebind<std::int32_t, Floats> whole;
    const hn::Rebind<std::uint32_t, Floats> bits;
    const hn::Rebind<std::uint8_t, Floats> narrow;
    const auto span = hn::Set(d, static_cast<float>(2 * std::int64_t{n} + 1));
    const auto middle = hn::Set(d, static_cast<float>(n));
    // Added to this, 2^23, a small number loses its decimals, halves to even.
    const auto rounder = hn::Set(d, 8388608.0F);
    auto* bytes = reinterpret_cast<std::uint8_t*>(row);
    for (std::size_t i = 0; i < 4 * width; i += hn::Lanes(d)) {
        const auto noise = hn::Sub(hn::Mul(drawnFor(i, drawn), span), middle);
        const auto byte = hn::ConvertTo(d, hn::PromoteTo(whole, hn::LoadU(narrow, bytes + i)));
        const auto held = hn::Min(hn::Max(hn::Add(noise, byte), hn::Zero(d)), hn::Set(d, 255));
        const auto rounded = hn::BitCast(bits, hn::Add(held, rounder));
        hn::StoreU(hn::U8FromU32(hn::And(rounded, hn::Set(bits, 255))), narrow, bytes + i);
    }
}

void Noise(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t n, RowRhythm& rhythm) {
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    std::vector<float> drawn(3 * width + HWY_MAX_BYTES);
    std::vector<Pixel> noisy(width + HWY_MAX_BYTES);
    for (int y = 0; y < PixelBuf.height; ++y) {
        fillRnd(std::span(drawn).first(3 * width));
        std::copy_n(SourceBuf.row(y), width, noisy.begin());
        addNoise(width, drawn.data(), n, noisy.data());
        recolourRow(noisy.data(), width, PixelBuf.row(y));
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(Defuse);
HWY_EXPORT(Noise);

void FilterDefuse(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p, RowRhythm& rhythm) {
    HWY_DYNAMIC_DISPATCH(Defuse)(PixelBuf, p, rhythm);
}

void FilterNoise(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t n, RowRhythm& rhythm) {
    HWY_DYNAMIC_DISPATCH(Noise)(PixelBuf, SourceBuf, n, rhythm);
}

} // namespace kaart
#endif
