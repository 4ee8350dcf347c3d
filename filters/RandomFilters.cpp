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

/// How far away, in pixels, the pixel lies that replaces each of a row's. `drawn` has two numbers
/// for each of them.
void Offsets(PixelSpan picture, int y, const float* drawn, float p, float h,
             std::int32_t* offsets) {
    const int W = picture.width;
    const int H = picture.height;
    for (int x = 0; x < W; ++x) {
        const int dx = static_cast<int>(std::nearbyint(drawn[2 * x] * p - h));
        const int dy = static_cast<int>(std::nearbyint(drawn[2 * x + 1] * p - h));
        const bool insideX = x + dx >= 0 && x + dx < W;
        const bool insideY = y + dy >= 0 && y + dy < H;
        offsets[x] = (insideX ? dx : 0) + (insideY ? dy : 0) * W;
    }
}

/// Adds noise to a row's bytes. `drawn` has three numbers for each four of them, and one more;
/// `row` and `spread`, which is for our use, have room for a vector of floats beyond their ends.
void AddNoise(std::size_t width, const float* drawn, float span, float n, float* spread,
              Pixel* row) {
    const hn::ScalableTag<float> d;
    const hn::Rebind<std::int32_t, decltype(d)> whole;
    const hn::Rebind<std::uint8_t, decltype(d)> narrow;
    for (std::size_t x = 0; x < width; ++x) {
        std::copy_n(drawn + 3 * x, 4, spread + 4 * x); // four are one store
    }
    auto* bytes = reinterpret_cast<std::uint8_t*>(row);
    for (std::size_t i = 0; i < 4 * width; i += hn::Lanes(d)) {
        const auto noise =
            hn::Sub(hn::Mul(hn::LoadU(d, spread + i), hn::Set(d, span)), hn::Set(d, n));
        const auto byte = hn::ConvertTo(d, hn::PromoteTo(whole, hn::LoadU(narrow, bytes + i)));
        const auto held = hn::Min(hn::Max(hn::Add(noise, byte), hn::Zero(d)), hn::Set(d, 255));
        hn::StoreU(hn::DemoteTo(narrow, hn::NearestInt(held)), narrow, bytes + i);
    }
}

/// Gives a row's pixels other colours; the fourth bytes stay.
void RecolourRow(const Pixel* from, std::size_t width, Pixel* row) {
    for (std::size_t x = 0; x < width; ++x) {
        row[x] = (row[x] & ~colours) | (from[x] & colours);
    }
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(Offsets);
HWY_EXPORT(AddNoise);
HWY_EXPORT(RecolourRow);

void FilterDefuse(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p, RowRhythm& rhythm) {
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    const auto h = static_cast<float>(roundEven(p / 2.0));
    std::vector<float> drawn(2 * width);
    std::vector<std::int32_t> offsets(width);
    for (int y = 0; y < PixelBuf.height; ++y) {
        fillRnd(drawn);
        HWY_DYNAMIC_DISPATCH(Offsets)
        (PixelBuf, y, drawn.data(), static_cast<float>(p), h, offsets.data());
        Pixel* pixel = PixelBuf.row(y);
        for (const std::int32_t offset : offsets) {
            *pixel = (*pixel & 0xFF000000U) | (pixel[offset] & 0x00FFFFFFU);
            ++pixel;
        }
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

void FilterNoise(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t n, RowRhythm& rhythm) {
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    std::vector<float> drawn(3 * width + 1);
    std::vector<float> spread(4 * width + HWY_MAX_BYTES);
    std::vector<Pixel> noisy(width + HWY_MAX_BYTES);
    for (int y = 0; y < PixelBuf.height; ++y) {
        fillRnd(std::span(drawn).first(3 * width));
        std::copy_n(SourceBuf.row(y), width, noisy.begin());
        HWY_DYNAMIC_DISPATCH(AddNoise)
        (width, drawn.data(), static_cast<float>(2 * std::int64_t{n} + 1), static_cast<float>(n),
         spread.data(), noisy.data());
        HWY_DYNAMIC_DISPATCH(RecolourRow)(noisy.data(), width, PixelBuf.row(y));
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

} // namespace kaart
#endif
