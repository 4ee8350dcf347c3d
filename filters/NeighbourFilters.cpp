#include "filters/NeighbourFilters.h"

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/NeighbourFilters.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// The bytes round the ones in hand, in a picture whose rows are `stride` bytes apart.
template <typename Lanes>
struct Around {
    const std::uint8_t* centre;
    std::ptrdiff_t stride;
    Lanes lanes;

    HWY_INLINE auto bytes(int dx, int dy) const {
        return hn::LoadU(lanes, centre + dy * stride + dx * std::ptrdiff_t{sizeof(Pixel)});
    }
    HWY_INLINE auto words(int dx, int dy) const {
        return hn::PromoteTo(hn::Rebind<std::int16_t, Lanes>(), bytes(dx, dy));
    }
};

struct Erode {
    static constexpr bool bytesOnly = true;
    template <typename Lanes>
    HWY_INLINE auto operator()(const Around<Lanes>& p) const {
        auto least = p.bytes(0, 0);
        for (int dy = -1; dy <= 1; ++dy) {
            least =
                hn::Min(least, hn::Min(p.bytes(-1, dy), hn::Min(p.bytes(0, dy), p.bytes(1, dy))));
        }
        return least;
    }
};

struct Connection {
    static constexpr bool bytesOnly = true;
    template <typename Lanes>
    HWY_INLINE auto operator()(const Around<Lanes>& p) const {
        return hn::Sub(p.bytes(0, 0), Erode()(p));
    }
};

struct Contour {
    static constexpr bool bytesOnly = false;
    std::uint64_t added; // four words: blue, green, red, 0

    template <typename Lanes>
    HWY_INLINE auto operator()(const Around<Lanes>& p) const {
        const hn::Rebind<std::int16_t, Lanes> words;
        const hn::Repartition<std::uint64_t, decltype(words)> wholes;
        const auto centre = p.words(0, 0);
        auto sum = hn::BitCast(words, hn::Set(wholes, added));
        sum = hn::Add(sum, hn::Add(hn::ShiftLeft<3>(centre), centre));
        for (int dy = -1; dy <= 1; ++dy) {
            sum = hn::Sub(sum, hn::Add(p.words(-1, dy), hn::Add(p.words(0, dy), p.words(1, dy))));
        }
        return hn::DemoteTo(p.lanes, sum);
    }
};

struct Relief {
    static constexpr bool bytesOnly = false;
    template <typename Lanes>
    HWY_INLINE auto operator()(const Around<Lanes>& p) const {
        const hn::Rebind<std::int16_t, Lanes> words;
        const auto corners = hn::Sub(p.words(-1, -1), p.words(1, 1));
        const auto above = hn::Sub(p.words(0, -1), p.words(0, 1));
        const auto beside = hn::Sub(p.words(-1, 0), p.words(1, 0));
        const auto slope = hn::Add(hn::Add(corners, corners), hn::Add(above, beside));
        const auto sum = hn::Add(p.words(0, 0), slope);
        // Adding the sign bit makes the shift truncate toward zero.
        const auto half = hn::ShiftRight<1>(hn::Sub(sum, hn::BroadcastSignBit(sum)));
        return hn::DemoteTo(p.lanes, hn::Add(half, hn::Set(words, std::int16_t{50})));
    }
};

/// The bytes of a row that full vectors cover, or with one pixel a vector all the rest.
template <typename Lanes, typename Filter>
HWY_INLINE std::size_t Stretch(Lanes lanes, std::uint8_t* to, const std::uint8_t* from,
                               std::ptrdiff_t stride, std::size_t first, std::size_t count,
                               const Filter& filter) {
    const hn::Repartition<Pixel, Lanes> pixels;
    const auto fourth = hn::BitCast(lanes, hn::Set(pixels, 0xFF000000U));
    std::size_t i = first;
    for (; i + hn::Lanes(lanes) <= count; i += hn::Lanes(lanes)) {
        const Around<Lanes> around{from + i, stride, lanes};
        const auto colours = hn::AndNot(fourth, filter(around));
        hn::StoreU(hn::Or(colours, hn::And(fourth, around.bytes(0, 0))), lanes, to + i);
    }
    return i;
}

/// A row of `count` pixels, each with neighbours on all sides.
template <typename Filter>
HWY_INLINE void Row(Pixel* to, const Pixel* from, std::ptrdiff_t stride, std::size_t count,
                    const Filter& filter) {
    using AllBytes = hn::ScalableTag<std::uint8_t>;
    using HalfBytes = hn::Rebind<std::uint8_t, hn::ScalableTag<std::int16_t>>;
    auto* out = reinterpret_cast<std::uint8_t*>(to);
    const auto* in = reinterpret_cast<const std::uint8_t*>(from);
    const std::ptrdiff_t step = stride * std::ptrdiff_t{sizeof(Pixel)};
    const std::size_t length = count * sizeof(Pixel);
    const std::conditional_t<Filter::bytesOnly, AllBytes, HalfBytes> lanes;
    const std::size_t done = Stretch(lanes, out, in, step, 0, length, filter);
    Stretch(hn::CappedTag<std::uint8_t, sizeof(Pixel)>(), out, in, step, done, length, filter);
}

void ErodeRow(Pixel* to, const Pixel* from, std::ptrdiff_t stride, std::size_t count, ColorRef) {
    Row(to, from, stride, count, Erode());
}
void ConnectionRow(Pixel* to, const Pixel* from, std::ptrdiff_t stride, std::size_t count,
                   ColorRef) {
    Row(to, from, stride, count, Connection());
}
void ReliefRow(Pixel* to, const Pixel* from, std::ptrdiff_t stride, std::size_t count, ColorRef) {
    Row(to, from, stride, count, Relief());
}
void ContourRow(Pixel* to, const Pixel* from, std::ptrdiff_t stride, std::size_t count,
                ColorRef colour) {
    const auto part = [](int value, int word) {
        return static_cast<std::uint64_t>(value) << (16 * word);
    };
    Row(to, from, stride, count,
        Contour{part(blueOf(colour), 0) | part(greenOf(colour), 1) | part(redOf(colour), 2)});
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(ErodeRow);
HWY_EXPORT(ConnectionRow);
HWY_EXPORT(ReliefRow);
HWY_EXPORT(ContourRow);

namespace {

/// Runs `kernel(to, from, stride, count, colour)` on the inner pixels and copies the edge.
template <typename Kernel>
void forInner(PixelSpan target, ConstPixelSpan source, RowRhythm& rhythm, const Kernel& kernel,
              ColorRef colour = 0) {
    const auto width = static_cast<std::size_t>(source.width);
    for (int y = 0; y < source.height; ++y) {
        const Pixel* from = source.row(y);
        Pixel* to = target.row(y);
        if (y == 0 || y == source.height - 1 || width < 3) {
            std::copy_n(from, width, to);
        } else {
            to[0] = from[0];
            kernel(to + 1, from + 1, std::ptrdiff_t{source.width}, width - 2, colour);
            to[width - 1] = from[width - 1];
        }
        rhythm.rowDone(y + 1, source.height);
    }
}

} // namespace

void FilterContour(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t colour,
                   RowRhythm& rhythm) {
    forInner(
        PixelBuf, SourceBuf, rhythm,
        [](auto... row) {
            HWY_DYNAMIC_DISPATCH(ContourRow)
            (row...);
        },
        static_cast<ColorRef>(colour));
}

void FilterRelief(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t /*parameter*/,
                  RowRhythm& rhythm) {
    forInner(PixelBuf, SourceBuf, rhythm, [](auto... row) {
        HWY_DYNAMIC_DISPATCH(ReliefRow)(row...);
    });
}

void FilterErode(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t /*parameter*/,
                 RowRhythm& rhythm) {
    forInner(PixelBuf, SourceBuf, rhythm, [](auto... row) {
        HWY_DYNAMIC_DISPATCH(ErodeRow)(row...);
    });
}

void FilterConnection(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t /*parameter*/,
                      RowRhythm& rhythm) {
    forInner(PixelBuf, SourceBuf, rhythm, [](auto... row) {
        HWY_DYNAMIC_DISPATCH(ConnectionRow)(row...);
    });
}

} // namespace kaart
#endif
