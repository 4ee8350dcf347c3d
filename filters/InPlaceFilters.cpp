#include "filters/InPlaceFilters.h"

#include <algorithm>
#include <array>
#include <vector>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/InPlaceFilters.cpp"
#include <hwy/foreach_target.h>

#include "filters/Vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// What a formula is given, for each pixel and channel in a vector.
struct Neighbours {
    // Sums of the pixels above and below: of the column before, the pixel's own, the next one.
    WordVector columnBefore, column, columnAfter;
    WordVector left, right, centre;

    WordVector s7() const { // all but the left one
        return hn::Add(hn::Add(columnBefore, column), hn::Add(columnAfter, right));
    }
};

// The left one, which has to be waited for, comes last. Nothing saturates upwards: these are sums
// and differences that the compiler does not regroup. Fractions are in 65536ths, rounded up, and
// right for all sums that occur.

struct Sharpen10 {
    static WordVector at(const Neighbours& n) {
        const auto ninth = hn::Set(Words(), 7282);
        const auto seventeen = hn::Add(hn::ShiftLeft<4>(n.centre), n.centre); // all is halved
        const auto sum = hn::SaturatedSub(hn::SaturatedSub(seventeen, n.s7()), n.left);
        return hn::Min(hn::MulHigh(sum, ninth), hn::Set(Words(), 255));
    }
};

struct Edge1 {
    static WordVector at(const Neighbours& n) {
        const auto ten = hn::Mul(n.centre, hn::Set(Words(), 10));
        const auto sum = hn::SaturatedSub(hn::SaturatedSub(ten, n.s7()), n.left);
        return hn::Min(hn::ShiftRight<1>(sum), hn::Set(Words(), 255));
    }
};

struct Blur {
    static WordVector at(const Neighbours& n) {
        return hn::ShiftRight<3>(hn::SaturatedAdd(n.s7(), n.left));
    }
};

struct Smooth {
    static WordVector at(const Neighbours& n) {
        const auto fifth = hn::Set(Words(), 13108);
        const auto others = hn::Add(n.column, hn::Add(n.centre, n.right));
        return hn::MulHigh(hn::SaturatedAdd(others, n.left), fifth);
    }
};

constexpr std::size_t bandRows = words / 4;
constexpr std::size_t stride = bandRows + 1;
constexpr std::size_t lag = 3; // columns; 2 would do, 3 leaves time to hand a result down

/// A band of rows and the row below it, skewed, so that the neighbours of a vector of pixels stand
/// in one vector, too. The row above the band is kept straight.
class Band {
public:
    explicit Band(std::size_t width)
        : width_(width),
          above_(4 * (width + lag * bandRows + bandRows)),
          entries_((width + lag * bandRows) * stride),
          skew_(width) {}

    void load(const Pixel* above, const std::array<Pixel*, bandRows>& rows, const Pixel* below) {
        widenRow(above, width_, above_.data());
        skew_.load(rows, entries_.data());
        for (std::size_t x = 0; x < width_; ++x) {
            entries_[(x + lag * bandRows) * stride + bandRows] = below[x];
        }
    }
    template <class Formula>
    void run();
    void store(const std::array<Pixel*, bandRows>& rows) { skew_.store(entries_.data(), rows); }

private:
    template <class Formula>
    class Wave;

    std::size_t width_;
    std::vector<std::uint16_t> above_;
    std::vector<Pixel> entries_;
    Skew<Pixel, bandRows, stride, lag> skew_;
};

/// The walk over a band's entries, with what of the last entries is still needed.
template <class Formula>
class Band::Wave {
public:
    explicit Wave(Band& band)
        : width_(static_cast<std::int64_t>(band.width_)),
          above_(band.above_.data()),
          entry_(band.entries_.data()),
          before_(hn::Zero(Words())) {
        HWY_ALIGN std::array<std::int64_t, bandRows> lags;
        for (std::size_t i = 0; i < bandRows; ++i) {
            lags[i] = static_cast<std::int64_t>(lag * i);
        }
        lags_ = hn::Load(Columns(), lags.data());
        colourLanes_ = hn::MaskFromVec(hn::PromoteTo(
            Words(),
            hn::BitCast(HalfBytes(), hn::Set(hn::Repartition<Pixel, HalfBytes>(), colours))));
        n_.columnBefore = hn::Add(hn::LoadU(Words(), above_), below(0));
        n_.column = hn::Add(hn::LoadU(Words(), above_ + 4), below(1));
        n_.left = widened(entry_);
        n_.centre = right(0);
    }

    template <bool allInside>
    void runTo(std::size_t end) {
        for (; u_ < end; ++u_) {
            step<allInside>();
        }
    }

private:
    using Columns = hn::Repartition<std::int64_t, Words>; // one lane for a pixel

    WordVector right(std::size_t u) const { return widened(entry_ + (u + 1) * stride); }
    WordVector below(std::size_t u) const { return widened(entry_ + (u + lag) * stride + 1); }

    template <bool allInside>
    void step() {
        // One row's result is its lower neighbour's upper right one, two entries later.
        const auto upRight = movedUp<8>(Words(), before_, hn::LoadU(Words(), above_ + 4 * u_));
        n_.columnAfter = hn::Add(upRight, below(u_ + 1));
        n_.right = right(u_);
        auto result = Formula::at(n_);
        if constexpr (!allInside) {
            result = hn::IfThenElse(inside(), result, n_.centre);
        }
        storeNarrowed(hn::IfThenElse(colourLanes_, result, n_.centre), entry_ + u_ * stride);
        n_.columnBefore = n_.column;
        n_.column = n_.columnAfter;
        before_ = n_.left;
        n_.left = result;
        n_.centre = n_.right;
    }

    /// The rows whose column at this entry lies inside the rim.
    hn::Mask<Words> inside() const {
        const auto columns = hn::Sub(hn::Set(Columns(), static_cast<std::int64_t>(u_)), lags_);
        const auto within = hn::And(hn::Gt(columns, hn::Zero(Columns())),
                                    hn::Lt(columns, hn::Set(Columns(), width_ - 1)));
        return hn::MaskFromVec(hn::BitCast(Words(), hn::VecFromMask(Columns(), within)));
    }

    std::int64_t width_;
    const std::uint16_t* above_;
    Pixel* entry_;
    hn::Vec<Columns> lags_;
    hn::Mask<Words> colourLanes_;
    std::size_t u_ = 1;
    Neighbours n_;
    WordVector before_; ///< the result before the left one
};

template <class Formula>
void Band::run() {
    Wave<Formula> wave(*this);
    constexpr std::size_t lastLag = lag * (bandRows - 1);
    const std::size_t end = width_ - 1 + lastLag;
    wave.template runTo<false>(std::min(lastLag + 1, end));
    wave.template runTo<true>(width_ - 1);
    wave.template runTo<false>(end);
}

template <class Formula>
bool inPlace(PixelSpan PixelBuf, RowRhythm& rhythm) {
    const int H = PixelBuf.height;
    if (PixelBuf.width < 3 || H < 3) {
        return false;
    }
    Band band(static_cast<std::size_t>(PixelBuf.width));
    std::vector<Pixel> nobody(static_cast<std::size_t>(PixelBuf.width));
    rhythm.rowDone(1, H);
    for (int top = 1; top < H - 1; top += static_cast<int>(bandRows)) {
        std::array<Pixel*, bandRows> rows;
        rows.fill(nobody.data());
        const int end = std::min(top + static_cast<int>(bandRows), H - 1);
        const auto count = static_cast<std::size_t>(end - top);
        for (std::size_t i = 0; i < std::min(count + 1, bandRows); ++i) {
            rows[i] = PixelBuf.row(top + static_cast<int>(i));
        }
        band.load(PixelBuf.row(top - 1), rows, PixelBuf.row(end));
        band.run<Formula>();
        if (count < bandRows) {
            rows[count] = nobody.data(); // the picture's last row stays
        }
        band.store(rows);
        for (int y = top; y < end; ++y) {
            rhythm.rowDone(y + 1, H);
        }
    }
    rhythm.rowDone(H, H);
    return true;
}

bool VectorSharpen(PixelSpan PixelBuf, RowRhythm& rhythm) {
    return inPlace<Sharpen10>(PixelBuf, rhythm);
}
bool VectorEdge(PixelSpan PixelBuf, RowRhythm& rhythm) {
    return inPlace<Edge1>(PixelBuf, rhythm);
}
bool VectorBlur(PixelSpan PixelBuf, RowRhythm& rhythm) {
    return inPlace<Blur>(PixelBuf, rhythm);
}
bool VectorSmooth(PixelSpan PixelBuf, RowRhythm& rhythm) {
    return inPlace<Smooth>(PixelBuf, rhythm);
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(VectorSharpen);
HWY_EXPORT(VectorEdge);
HWY_EXPORT(VectorBlur);
HWY_EXPORT(VectorSmooth);

namespace {

/// For parameters that no menu entry has, and for tiny pictures. The formula is given the pixel,
/// the sum of its neighbours by sides and the sum of those by corners.
template <typename Formula>
void pixelByPixel(PixelSpan PixelBuf, RowRhythm& rhythm, Formula formula) {
    const std::ptrdiff_t stride = std::ptrdiff_t{4} * PixelBuf.width;
    for (int y = 0; y < PixelBuf.height; ++y) {
        auto* row = reinterpret_cast<std::uint8_t*>(PixelBuf.row(y));
        const bool inside = y > 0 && y < PixelBuf.height - 1;
        for (std::ptrdiff_t i = 4; inside && i < stride - 4; ++i) {
            if (i % 4 == 3) {
                continue; // the fourth byte
            }
            const std::uint8_t* up = row + i - stride;
            const std::uint8_t* down = row + i + stride;
            const int sides = row[i - 4] + row[i + 4] + *up + *down;
            const int corners = up[-4] + up[4] + down[-4] + down[4];
            const std::int64_t result = formula(std::int64_t{row[i]}, sides, corners);
            row[i] = static_cast<std::uint8_t>(std::clamp<std::int64_t>(result, 0, 255));
        }
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

} // namespace

void FilterSharpen(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p, RowRhythm& rhythm) {
    if (p != 10 || !HWY_DYNAMIC_DISPATCH(VectorSharpen)(PixelBuf, rhythm)) {
        pixelByPixel(PixelBuf, rhythm, [p](std::int64_t P, int sides, int corners) {
            return p == -8 ? P : (P * (p + 24LL) - 2LL * (sides + corners)) / (p + 8LL);
        });
    }
}

void FilterEdge(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p, RowRhythm& rhythm) {
    if (p != 1 || !HWY_DYNAMIC_DISPATCH(VectorEdge)(PixelBuf, rhythm)) {
        pixelByPixel(PixelBuf, rhythm, [p](std::int64_t P, int sides, int corners) {
            return p == -1 ? P : (P * (p + 9LL) - (sides + corners)) / (p + 1LL);
        });
    }
}

void FilterBlur(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t, RowRhythm& rhythm) {
    if (!HWY_DYNAMIC_DISPATCH(VectorBlur)(PixelBuf, rhythm)) {
        pixelByPixel(PixelBuf, rhythm,
                     [](std::int64_t, int sides, int corners) { return (sides + corners) / 8; });
    }
}

void FilterSmooth(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t, RowRhythm& rhythm) {
    if (!HWY_DYNAMIC_DISPATCH(VectorSmooth)(PixelBuf, rhythm)) {
        pixelByPixel(PixelBuf, rhythm,
                     [](std::int64_t P, int sides, int) { return (P + sides) / 5; });
    }
}

} // namespace kaart
#endif
