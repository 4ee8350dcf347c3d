#include "filters/ColourKernels.h"

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/ColourKernels.cpp"
#include <hwy/foreach_target.h>

#include "filters/PixelRun-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

using SpreadTable = std::array<std::int16_t, 256>;

inline constexpr PixelLanes d;
inline constexpr ByteLanes byteLanes;
inline constexpr WordLanes wordLanes;
inline constexpr ShortLanes shortLanes;

/// Blue and red of each pixel as signed words, and green with the fourth byte.
HWY_INLINE hn::Vec<ShortLanes> BlueAndRed(Pixels x) {
    return hn::BitCast(shortLanes, hn::And(x, hn::Set(d, 0x00FF00FFU)));
}
HWY_INLINE hn::Vec<ShortLanes> GreenAndFourth(Pixels x) {
    return hn::BitCast(shortLanes, hn::ShiftRight<8>(hn::BitCast(wordLanes, x)));
}
/// Puts both back together; every word must be within 0 to 255.
HWY_INLINE Pixels Together(hn::Vec<ShortLanes> blueAndRed, hn::Vec<ShortLanes> greenAndFourth) {
    return hn::BitCast(d, hn::Or(blueAndRed, hn::ShiftLeft<8>(greenAndFourth)));
}
/// The same for any words; they are held within 0 to 255.
HWY_INLINE Pixels ClampedTogether(hn::Vec<ShortLanes> blueAndRed,
                                  hn::Vec<ShortLanes> greenAndFourth) {
#if HWY_TARGET == HWY_AVX2
    // The first eight bytes of a block are its blues and reds, the others belong between them.
    const auto packed = _mm256_packus_epi16(blueAndRed.raw, greenAndFourth.raw);
    const auto order = _mm256_setr_epi8(0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15, 0, 8,
                                        1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15);
    return Pixels{_mm256_shuffle_epi8(packed, order)};
#else
    const auto clamped = [](hn::Vec<ShortLanes> v) {
        return hn::Min(hn::Max(v, hn::Zero(shortLanes)), hn::Set(shortLanes, std::int16_t{255}));
    };
    return Together(clamped(blueAndRed), clamped(greenAndFourth));
#endif
}
HWY_INLINE Pixels FourthOf(Pixels x) {
    return hn::AndNot(hn::Set(d, colours), x);
}

void NegativeRun(Pixel* to, const Pixel* from, std::size_t count) {
    MapRun(to, from, count, [](Pixels x) { return hn::Xor(x, hn::Set(d, colours)); });
}

void GrayRun(Pixel* to, const Pixel* from, std::size_t count) {
    MapRun(to, from, count,
           [](Pixels x) { return hn::Or(ShuffleBytes(MeanOfThree(x), 0x80000000U), FourthOf(x)); });
}

void DoubleRun(Pixel* to, const Pixel* from, std::size_t count) {
    MapRun(to, from, count, [](Pixels x) {
        const auto doubled = hn::And(x, hn::Set(d, colours));
        return hn::BitCast(
            d, hn::SaturatedAdd(hn::BitCast(byteLanes, x), hn::BitCast(byteLanes, doubled)));
    });
}

void SepiaRun(Pixel* to, const Pixel* from, std::size_t count) {
    MapRun(to, from, count, [](Pixels x) {
        const auto colour = hn::BitCast(byteLanes, x);
        const auto offset =
            hn::BitCast(byteLanes, hn::Set(d, 0x00002850U)); // red 0, green 40, blue 80
        const auto away =
            hn::Or(hn::SaturatedSub(colour, offset), hn::SaturatedSub(offset, colour));
        // Each byte against the one above it: green against red, blue against green. A cleared
        // green clears blue, too: whatever blue is, it is above 0 or 0 already.
        const auto above = hn::BitCast(byteLanes, hn::ShiftRight<8>(hn::BitCast(d, away)));
        const auto small =
            hn::BitCast(d, hn::VecFromMask(byteLanes, hn::Eq(hn::Min(away, above), away)));
        const auto keep = hn::Or(small, hn::Set(d, 0xFFFF0000U));
        const auto green = hn::Or(hn::ShiftRight<8>(keep), hn::Set(d, 0xFFFFFF00U));
        return hn::And(hn::BitCast(d, away), hn::And(keep, green));
    });
}

void ShuffleRun(Pixel* to, const Pixel* from, std::size_t count, Pixel pattern) {
    MapRun(to, from, count, [&](Pixels x) { return ShuffleBytes(x, pattern); });
}

void ScaleRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t factor, bool darker) {
    const auto run = [&](const auto& meet) {
        MapRun(to, from, count, [&](Pixels x) {
            const auto blueAndRed = hn::MulFixedPoint15(BlueAndRed(x), hn::Set(shortLanes, factor));
            // The fourth byte's word is multiplied by 0.
            const auto green = hn::MulFixedPoint15(
                GreenAndFourth(x), hn::BitCast(shortLanes, hn::Set(d, static_cast<Pixel>(factor))));
            const auto change = hn::BitCast(byteLanes, Together(blueAndRed, green));
            return hn::BitCast(d, meet(hn::BitCast(byteLanes, x), change));
        });
    };
    if (darker) {
        run([](auto a, auto b) { return hn::SaturatedSub(a, b); });
    } else {
        run([](auto a, auto b) { return hn::SaturatedAdd(a, b); });
    }
}

void SaturateRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t factor) {
    MapRun(to, from, count, [&](Pixels x) {
        const auto spread = [&](auto channels, auto means) {
            const auto distance = hn::Sub(channels, means);
            return hn::Add(channels, hn::MulFixedPoint15(hn::Add(distance, distance),
                                                         hn::Set(shortLanes, factor)));
        };
        const auto means = hn::BitCast(shortLanes, ShuffleBytes(MeanOfThree(x), 0x80008000U));
        const auto green = GreenAndFourth(x);
        // The fourth byte is its own mean and so stays.
        return ClampedTogether(spread(BlueAndRed(x), means),
                               spread(green, hn::OddEven(green, means)));
    });
}

void TableRun(Pixel* to, const Pixel* from, std::size_t count, const ByteTable& table) {
    for (std::size_t i = 0; i < count; ++i) {
        const Pixel pixel = from[i];
        to[i] = Pixel{table[pixel & 0xFFU]} | Pixel{table[pixel >> 8 & 0xFFU]} << 8 |
                Pixel{table[pixel >> 16 & 0xFFU]} << 16 | (pixel & ~colours);
    }
}

using Channel = hn::Vec<hn::ScalableTag<std::int16_t>>;
inline constexpr hn::ScalableTag<std::int16_t> channelLanes;
inline constexpr hn::Rebind<std::uint8_t, hn::ScalableTag<std::int16_t>> narrow;

HWY_INLINE auto Outside(Channel v) {
    return hn::Or(hn::Lt(v, hn::Zero(channelLanes)),
                  hn::Gt(v, hn::Set(channelLanes, std::int16_t{255})));
}

/// Cuts a channel off and gives half of what was cut, truncated, to two others.
HWY_INLINE void CutOff(Channel& v, Channel& other, Channel& another) {
    const auto zero = hn::Zero(channelLanes);
    const auto held = hn::Min(hn::Max(v, zero), hn::Set(channelLanes, std::int16_t{255}));
    const auto excess = hn::Sub(v, held);
    // Adding 1 to what is negative makes the shift truncate toward zero.
    const auto one = hn::VecFromMask(channelLanes, hn::Lt(excess, zero));
    const auto half = hn::ShiftRight<1>(hn::Sub(excess, one));
    v = held;
    other = hn::Add(other, half);
    another = hn::Add(another, half);
}

HWY_INLINE void SpreadRound(Channel& a, Channel& b, Channel& c) {
    const auto zero = hn::Zero(channelLanes);
    const auto full = hn::Set(channelLanes, std::int16_t{255});
    const auto allDark = hn::Not(hn::Gt(hn::Max(a, hn::Max(b, c)), zero));
    const auto allLight = hn::Not(hn::Lt(hn::Min(a, hn::Min(b, c)), full));
    Channel x = a;
    Channel y = b;
    Channel z = c;
    CutOff(x, y, z);
    CutOff(y, x, z);
    CutOff(z, y, x);
    const auto chosen = [&](Channel v) {
        return hn::IfThenZeroElse(allDark, hn::IfThenElse(allLight, full, v));
    };
    a = chosen(x);
    b = chosen(y);
    c = chosen(z);
}

/// Runs chunks of as many pixels as there are channel lanes: `spreadable(in, a, b, c)` gives their
/// three values, which then spread until all are within the range.
template <typename Values>
HWY_INLINE void SpreadChunks(Pixel* to, const Pixel* from, std::size_t count,
                             const Values& spreadable) {
    constexpr std::size_t maximum = hn::MaxLanes(channelLanes);
    ForEachChunk<maximum>(
        to, from, count, hn::Lanes(channelLanes), [&](Pixel* out, const Pixel* in) {
            Channel a = hn::Zero(channelLanes);
            Channel b = a;
            Channel c = a;
            const auto fourth = spreadable(in, a, b, c);
            // A pixel within the range is left as it is by a round.
            while (
                !hn::AllFalse(channelLanes, hn::Or(Outside(a), hn::Or(Outside(b), Outside(c))))) {
                SpreadRound(a, b, c);
            }
            hn::StoreInterleaved4(hn::DemoteTo(narrow, a), hn::DemoteTo(narrow, b),
                                  hn::DemoteTo(narrow, c), fourth, narrow,
                                  reinterpret_cast<std::uint8_t*>(out));
        });
}

void SpreadRun(Pixel* to, const Pixel* from, std::size_t count, const SpreadTable& table) {
    constexpr std::size_t maximum = hn::MaxLanes(channelLanes);
    const auto lookUp = [&](const Pixel* in, Channel& a, Channel& b, Channel& c) {
        HWY_ALIGN std::int16_t values[3][maximum];
        HWY_ALIGN std::uint8_t fourth[maximum];
        for (std::size_t i = 0; i < hn::Lanes(channelLanes); ++i) {
            values[0][i] = table[in[i] & 0xFFU];
            values[1][i] = table[in[i] >> 8 & 0xFFU];
            values[2][i] = table[in[i] >> 16 & 0xFFU];
            fourth[i] = static_cast<std::uint8_t>(in[i] >> 24);
        }
        a = hn::Load(channelLanes, values[0]);
        b = hn::Load(channelLanes, values[1]);
        c = hn::Load(channelLanes, values[2]);
        return hn::Load(narrow, fourth);
    };
    SpreadChunks(to, from, count, lookUp);
}

void StretchRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t mean,
                std::int16_t factor) {
    const auto stretch = [&](const Pixel* in, Channel& a, Channel& b, Channel& c) {
        hn::Vec<decltype(narrow)> blue;
        hn::Vec<decltype(narrow)> green;
        hn::Vec<decltype(narrow)> red;
        hn::Vec<decltype(narrow)> fourth;
        hn::LoadInterleaved4(narrow, reinterpret_cast<const std::uint8_t*>(in), blue, green, red,
                             fourth);
        const auto stretched = [&](auto channel) {
            const auto value = hn::PromoteTo(channelLanes, channel);
            const auto distance = hn::Sub(value, hn::Set(channelLanes, mean));
            return hn::Add(value, hn::MulFixedPoint15(distance, hn::Set(channelLanes, factor)));
        };
        a = stretched(blue);
        b = stretched(green);
        c = stretched(red);
        return fourth;
    };
    SpreadChunks(to, from, count, stretch);
}

void MergeRun(Pixel* to, const Pixel* from, const Pixel* above, std::size_t count) {
    const std::size_t lanes = hn::Lanes(d);
    const auto merged = [](auto tag, const Pixel* below, const Pixel* over) {
        return hn::Or(hn::Or(hn::Not(hn::LoadU(tag, over)), hn::LoadU(tag, below)),
                      hn::Set(tag, ~colours));
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes) {
        hn::StoreU(merged(d, from + i, above + i), d, to + i);
    }
    const hn::CappedTag<Pixel, 1> one;
    for (; i < count; ++i) {
        hn::StoreU(merged(one, from + i, above + i), one, to + i);
    }
}

std::uint64_t SumOfGrays(const Pixel* pixels, std::size_t count) {
    const std::size_t lanes = hn::Lanes(d);
    auto sums = hn::Zero(d);
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes) {
        sums = hn::Add(sums, MeanOfThree(hn::LoadU(d, pixels + i)));
    }
    Pixel rest[hn::MaxLanes(PixelLanes())] = {};
    std::copy(pixels + i, pixels + count, rest);
    sums = hn::Add(sums, MeanOfThree(hn::LoadU(d, rest)));
    return hn::GetLane(hn::SumOfLanes(d, sums));
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(NegativeRun);
HWY_EXPORT(GrayRun);
HWY_EXPORT(DoubleRun);
HWY_EXPORT(SepiaRun);
HWY_EXPORT(ShuffleRun);
HWY_EXPORT(ScaleRun);
HWY_EXPORT(SaturateRun);
HWY_EXPORT(TableRun);
HWY_EXPORT(SpreadRun);
HWY_EXPORT(StretchRun);
HWY_EXPORT(MergeRun);
HWY_EXPORT(SumOfGrays);

void negativeRun(Pixel* to, const Pixel* from, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(NegativeRun)(to, from, count);
}
void grayRun(Pixel* to, const Pixel* from, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(GrayRun)(to, from, count);
}
void doubleRun(Pixel* to, const Pixel* from, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(DoubleRun)(to, from, count);
}
void sepiaRun(Pixel* to, const Pixel* from, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(SepiaRun)(to, from, count);
}
void shuffleRun(Pixel* to, const Pixel* from, std::size_t count, Pixel pattern) {
    HWY_DYNAMIC_DISPATCH(ShuffleRun)(to, from, count, pattern);
}
void scaleRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t factor, bool darker) {
    HWY_DYNAMIC_DISPATCH(ScaleRun)(to, from, count, factor, darker);
}
void saturateRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t factor) {
    HWY_DYNAMIC_DISPATCH(SaturateRun)(to, from, count, factor);
}
void tableRun(Pixel* to, const Pixel* from, std::size_t count, const ByteTable& table) {
    HWY_DYNAMIC_DISPATCH(TableRun)(to, from, count, table);
}
void spreadRun(Pixel* to, const Pixel* from, std::size_t count,
               const std::array<std::int16_t, 256>& table) {
    HWY_DYNAMIC_DISPATCH(SpreadRun)(to, from, count, table);
}
void stretchRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t mean,
                std::int16_t factor) {
    HWY_DYNAMIC_DISPATCH(StretchRun)(to, from, count, mean, factor);
}
void mergeRun(Pixel* to, const Pixel* from, const Pixel* above, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(MergeRun)(to, from, above, count);
}
std::uint64_t sumOfGrays(const Pixel* pixels, std::size_t count) {
    return HWY_DYNAMIC_DISPATCH(SumOfGrays)(pixels, count);
}

} // namespace kaart
#endif
