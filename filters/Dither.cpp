#include "filters/Dither.h"

#include "filters/ColourFilters.h"

#include <algorithm>
#include <array>
#include <vector>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/Dither.cpp"
#include <hwy/foreach_target.h>

#include "filters/Vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// The gray values of a row, (B + G + R) \ 3.
void GrayRow(const Pixel* row, std::size_t width, std::uint16_t* gray) {
    for (std::size_t x = 0; x < width; ++x) {
        const Pixel pixel = row[x];
        const auto sum = static_cast<std::uint16_t>((pixel & 0xFFU) + (pixel >> 8 & 0xFFU) +
                                                    (pixel >> 16 & 0xFFU));
        gray[x] = static_cast<std::uint16_t>(sum * 21846U >> 16); // a third
    }
}

using V = SignedWordVector;

/// n times a fraction in 65536ths, truncated toward zero; the fraction is a little too large.
inline V fractionOf(V n, V fraction) {
    return hn::Sub(hn::MulHigh(n, fraction), hn::BroadcastSignBit(n));
}

/// Of a row that goes by: a (x - 2) + b (x - 1) + c x + b (x + 1) + a (x + 2).
class Gatherer {
public:
    explicit Gatherer(V zero) : pending_{zero, zero, zero, zero} {}

    V next(V a, V b, V c) {
        const V sum = hn::Add(pending_[0], a);
        pending_[0] = hn::Add(pending_[1], b);
        pending_[1] = hn::Add(pending_[2], c);
        pending_[2] = hn::Add(pending_[3], b);
        pending_[3] = a;
        return sum;
    }

private:
    V pending_[4];
};

/// The errors on their way on a wave front: a row in each lane, each three columns behind the one
/// above. A row's shares for the row below it are complete when that one needs them, the shares for
/// the row after that one three steps earlier.
class Errors {
public:
    explicit Errors(V zero)
        : below_(zero),
          farBelow_(zero),
          toNext_(zero),
          toSecond_{zero, zero, zero, zero},
          fromLeft_(zero),
          fromSecondLeft_(zero) {}

    /// What waits for the pixels at hand. The arguments wait, from above the band, for the first
    /// row, and for the second row but for what the first row gives it.
    V waiting(std::int16_t forFirst, std::int16_t forSecond) {
        toNext_ = hn::Add(toNext_, movedUp<2>(d_, toSecond_[0], hn::Set(d_, forSecond)));
        return hn::Add(fromLeft_, movedUp<2>(d_, toNext_, hn::Set(d_, forFirst)));
    }
    // The same for the two rows below the band.
    std::int16_t forNext() const { return hn::ExtractLane(toNext_, words - 1); }
    std::int16_t forSecond() const { return hn::ExtractLane(toSecond_[0], words - 1); }

    /// Spreads the errors of the pixels at hand; the step is done.
    void spread(V error) {
        const V one = share<1>(error);
        const V two = share<2>(error);
        const V four = share<4>(error);
        const V eight = share<8>(error);
        fromLeft_ = hn::Add(eight, fromSecondLeft_);
        fromSecondLeft_ = four;
        toNext_ = below_.next(two, four, eight);
        for (int step = 0; step < 3; ++step) {
            toSecond_[step] = toSecond_[step + 1];
        }
        toSecond_[3] = farBelow_.next(one, two, four);
    }

private:
    template <int weight>
    V share(V error) const { // in 42nds
        return fractionOf(error, hn::Set(d_, weight * 1561));
    }

    SignedWords d_;
    Gatherer below_;
    Gatherer farBelow_;
    V toNext_;
    V toSecond_[4]; ///< now and in the steps to come
    V fromLeft_;
    V fromSecondLeft_;
};

/// Stucki's diffusion, a band of rows at a time, from the top.
class Diffusion {
public:
    static constexpr std::size_t bandRows = words;
    using Rows = std::array<std::uint16_t*, bandRows>;

    /// `p` is at least 11 and at most 128.
    Diffusion(std::size_t width, std::int32_t p, int threshold)
        : width_(width),
          skew_(width),
          gray_(entries() * bandRows, outside),
          white_(entries() * bandRows),
          forFirst_(entries() + lead),
          forSecond_(entries() + lead),
          threshold_(static_cast<std::int16_t>(threshold)) {
        const int fraction = 655360 / p + 1;
        part_ = static_cast<std::int16_t>(fraction);
        whole_ = fraction >= 0x8000 ? -1 : 0;
    }

    /// Rows of gray values become rows of 0 for black and all bits for white.
    void run(const Rows& rows) {
        skew_.load(rows, gray_.data());
        diffuse();
        skew_.store(white_.data(), rows);
    }

private:
    static constexpr std::size_t lag = 3;
    static constexpr std::ptrdiff_t lead = lag * (bandRows + 1); // of the first row over the next
                                                                 // band's second one
    // The gray value of what is no column: such a pixel comes out white, without an error.
    static constexpr std::uint16_t outside = 0x4000;

    std::size_t entries() const { return width_ + lead; }
    void diffuse();

    std::size_t width_;
    Skew<std::uint16_t, bandRows, bandRows, lag> skew_;
    std::vector<std::uint16_t> gray_;
    std::vector<std::uint16_t> white_;
    std::vector<std::int16_t> forFirst_;  ///< from column -lead on, what waits for a band's rows
    std::vector<std::int16_t> forSecond_; ///< as Errors::waiting has it
    std::int16_t threshold_;
    std::int16_t part_;  ///< 10 / p in 65536ths, but for
    std::int16_t whole_; ///< all bits if a whole is to be added
};

void Diffusion::diffuse() {
    const SignedWords d;
    const V zero = hn::Zero(d);
    const V full = hn::Set(d, 255);
    const V threshold = hn::Set(d, threshold_);
    const V part = hn::Set(d, part_);
    const V whole = hn::Set(d, whole_);
    const auto* gray = reinterpret_cast<const std::int16_t*>(gray_.data());
    auto* white = reinterpret_cast<std::int16_t*>(white_.data());
    std::int16_t* const forFirst = forFirst_.data() + lead;
    std::int16_t* const forSecond = forSecond_.data() + lead;
    Errors errors(zero);
    for (std::ptrdiff_t u = 0; u < static_cast<std::ptrdiff_t>(entries()); ++u) {
        const V waiting = errors.waiting(forFirst[u], forSecond[u - std::ptrdiff_t{lag}]);
        forFirst[u - lead + std::ptrdiff_t{lag}] = errors.forNext();
        forSecond[u - lead] = errors.forSecond();
        const V scaled = hn::Add(fractionOf(waiting, part), hn::And(waiting, whole));
        const V sum = hn::Add(hn::LoadU(d, gray), scaled);
        const V v = hn::Min(hn::Max(sum, zero), full);
        const V black = hn::VecFromMask(d, hn::Lt(v, threshold));
        hn::StoreU(hn::Not(black), d, white);
        errors.spread(hn::Sub(v, hn::AndNot(black, full)));
        gray += bandRows;
        white += bandRows;
    }
}

/// A row of pixels turns black where `white` is 0 and white where it has all bits.
void storeRow(const std::uint16_t* white, std::size_t width, Pixel* row) {
    for (std::size_t x = 0; x < width; ++x) {
        const auto all = static_cast<Pixel>(static_cast<std::int16_t>(white[x]));
        row[x] = (row[x] & ~colours) | (all & colours);
    }
}

bool VectorDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, int threshold,
                  RowRhythm& rhythm) {
    if (p < 11 || p > 128) { // other fractions would not be exact
        return false;
    }
    constexpr std::size_t bandRows = Diffusion::bandRows;
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    std::vector<std::uint16_t> values(width * bandRows);
    Diffusion::Rows rows;
    for (std::size_t i = 0; i < bandRows; ++i) {
        rows[i] = values.data() + i * width;
    }
    Diffusion diffusion(width, p, threshold);
    const int H = PixelBuf.height;
    for (int top = 0; top < H; top += static_cast<int>(bandRows)) {
        const int end = std::min(top + static_cast<int>(bandRows), H);
        for (int y = top; y < end; ++y) {
            GrayRow(SourceBuf.row(y), width, rows[static_cast<std::size_t>(y - top)]);
        }
        diffusion.run(rows);
        for (int y = top; y < end; ++y) {
            storeRow(rows[static_cast<std::size_t>(y - top)], width, PixelBuf.row(y));
            rhythm.rowDone(y + 1, H);
        }
    }
    return true;
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(GrayRow);
HWY_EXPORT(VectorDither);

namespace {

/// The errors of a row, with two columns of 0 on either side.
using ErrorRow = std::vector<std::int32_t>;

std::int32_t share(const ErrorRow& row, std::size_t x, int weight) {
    return weight * row[x] / 42;
}

/// What reaches column x from a row above, by the distance of its columns.
std::int32_t shares(const ErrorRow& row, std::size_t x, int two, int one, int none) {
    return share(row, x - 2, two) + share(row, x - 1, one) + share(row, x, none) +
           share(row, x + 1, one) + share(row, x + 2, two);
}

/// For parameters that no menu entry has.
void pixelByPixel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, int threshold,
                  RowRhythm& rhythm) {
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    std::vector<std::uint16_t> gray(width);
    std::array<ErrorRow, 3> errors; // of this row and of the two above it
    errors.fill(ErrorRow(width + 4));
    for (int y = 0; y < PixelBuf.height; ++y) {
        std::rotate(errors.begin(), errors.end() - 1, errors.end());
        std::fill(errors[0].begin(), errors[0].end(), 0);
        HWY_DYNAMIC_DISPATCH(GrayRow)(SourceBuf.row(y), width, gray.data());
        Pixel* pixel = PixelBuf.row(y);
        for (std::size_t x = 2; x < width + 2; ++x, ++pixel) {
            const std::int32_t waiting = share(errors[0], x - 1, 8) + share(errors[0], x - 2, 4) +
                                         shares(errors[1], x, 2, 4, 8) +
                                         shares(errors[2], x, 1, 2, 4);
            const std::int32_t scaled = p == 0 ? 0 : waiting * 10 / p;
            const std::int32_t v = std::clamp(scaled + gray[x - 2], 0, 255);
            const bool black = v < threshold;
            errors[0][x] = black ? v : v - 255;
            *pixel = (*pixel & 0xFF000000U) | (black ? 0 : 0x00FFFFFFU);
        }
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

} // namespace

void FilterDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm) {
    if (PixelBuf.width <= 0 || PixelBuf.height <= 0) {
        return;
    }
    const int threshold = meanGray(SourceBuf);
    rhythm.prepared(10);
    if (!HWY_DYNAMIC_DISPATCH(VectorDither)(PixelBuf, SourceBuf, p, threshold, rhythm)) {
        pixelByPixel(PixelBuf, SourceBuf, p, threshold, rhythm);
    }
}

} // namespace kaart
#endif
