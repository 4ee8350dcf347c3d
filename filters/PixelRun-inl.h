// Runs of pixels as vectors; included once for every kind of processor.
#if defined(KAART_FILTERS_PIXEL_RUN_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef KAART_FILTERS_PIXEL_RUN_INL_H
#undef KAART_FILTERS_PIXEL_RUN_INL_H
#else
#define KAART_FILTERS_PIXEL_RUN_INL_H
#endif

#include "design/surface/AlignedSteps-inl.h"
#include "filters/Vectors-inl.h"

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// A vector of whole pixels, and its views as bytes (blue, green, red, fourth), as words (blue and
/// green, red and fourth) and as signed words.
using PixelLanes = hn::ScalableTag<Pixel>;
using ByteLanes = hn::Repartition<std::uint8_t, PixelLanes>;
using WordLanes = hn::Repartition<std::uint16_t, PixelLanes>;
using ShortLanes = hn::Repartition<std::int16_t, PixelLanes>;
using Pixels = hn::Vec<PixelLanes>;

/// Runs `chunk(to, from)` over a run of pixels, `size` pixels at a time; the last, incomplete chunk
/// goes through a buffer. `to` may be `from`.
template <std::size_t maximum, typename Chunk>
HWY_INLINE void ForEachChunk(Pixel* to, const Pixel* from, std::size_t count, std::size_t size,
                             const Chunk& chunk) {
    std::size_t i = 0;
    for (; i + size <= count; i += size) {
        chunk(to + i, from + i);
    }
    if (i < count) {
        Pixel rest[maximum] = {};
        std::copy(from + i, from + count, rest);
        chunk(rest, rest);
        std::copy(rest, rest + (count - i), to + i);
    }
}

/// Replaces every pixel by `map` of it.
template <typename Map>
HWY_INLINE void MapRun(Pixel* to, const Pixel* from, std::size_t count, const Map& map) {
    const PixelLanes d;
    const std::size_t lanes = hn::Lanes(d);
    const auto mapVector = [&](Pixel* out, const Pixel* in)
                               HWY_ATTR { hn::StoreU(map(hn::LoadU(d, in)), d, out); };
    if (to != from && count >= lanes) {
        alignedSteps(to, count, lanes,
                     [&](std::size_t i) HWY_ATTR { mapVector(to + i, from + i); });
    } else {
        // In place no pixel may be mapped twice.
        ForEachChunk<hn::MaxLanes(PixelLanes())>(to, from, count, lanes, mapVector);
    }
}

/// blue + green + red of each pixel.
HWY_INLINE Pixels SumOfThree(Pixels x) {
    const PixelLanes d;
#if HWY_TARGET == HWY_AVX2
    const auto pairs = _mm256_maddubs_epi16(x.raw, hn::Set(d, 0x00010101U).raw);
    return Pixels{_mm256_madd_epi16(pairs, hn::Set(d, 0x00010001U).raw)};
#else
    const auto blueAndRed = hn::And(x, hn::Set(d, 0x00FF00FFU));
    const auto green = hn::ShiftRight<8>(hn::And(x, hn::Set(d, 0x0000FF00U)));
    const auto sums = hn::Add(blueAndRed, green);
    return hn::And(hn::Add(sums, hn::ShiftRight<16>(sums)), hn::Set(d, 0x3FFU));
#endif
}

/// (blue + green + red) \ 3 of each pixel, in the low byte; the others are 0.
HWY_INLINE Pixels MeanOfThree(Pixels x) {
    const PixelLanes d;
    const WordLanes wordLanes;
    // ceil(2^16 / 3): exact for all sums up to 765.
    return hn::BitCast(d, hn::MulHigh(hn::BitCast(wordLanes, SumOfThree(x)),
                                      hn::Set(wordLanes, std::uint16_t{21846})));
}

/// A byte of each pixel, repeated as the pattern says; 0x80 gives 0.
HWY_INLINE Pixels ShuffleBytes(Pixels x, Pixel pattern) {
    const PixelLanes d;
    const ByteLanes bytes;
    // Each 16-byte block is shuffled by itself: the pattern goes on by 4 from pixel to pixel.
    const auto steps = hn::ShiftLeft<2>(hn::And(hn::Iota(d, 0U), hn::Set(d, 3U)));
    const auto places = hn::Or(hn::Set(d, pattern), hn::Mul(steps, hn::Set(d, 0x01010101U)));
    return hn::BitCast(d,
                       hn::TableLookupBytesOr0(hn::BitCast(bytes, x), hn::BitCast(bytes, places)));
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#endif
