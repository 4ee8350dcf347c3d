#include "filters/Dither.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/Dither.cpp"
#include <hwy/foreach_target.h>

#include "filters/Vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// The gray values of a row, (B + G + R) \ 3. Answers their sum.
std::uint32_t GrayRow(const Pixel* row, std::size_t width, std::uint16_t* gray) {
    for (std::size_t x = 0; x < width; ++x) {
        const Pixel pixel = row[x];
        const auto parts = static_cast<std::uint16_t>((pixel & 0xFFU) + (pixel >> 8 & 0xFFU) +
                                                      (pixel >> 16 & 0xFFU));
        gray[x] = static_cast<std::uint16_t>(parts * 21846U >> 16); // a third
    }
    return std::accumulate(gray, gray + width, std::uint32_t{0});
}

#if HWY_TARGET != HWY_SCALAR

/// A row of pixels turns black where `white` is 0 and white where it has all bits set.
void storeRow(const std::uint16_t* white, std::size_t width, Pixel* row) {
    for (std::size_t x = 0; x < width; ++x) {
        const auto all = static_cast<Pixel>(static_cast<std::int16_t>(white[x]));
        row[x] = (row[x] & ~colours) | (all & colours);
    }
}

/// Stucki's diffusion on a wave front: one row in each lane, each three columns behind the one
/// above. An error is kept in shares of 1, 2, 4 and 8 42nds; each sum of shares is gathered while
/// its row goes by and handed down when it is complete.
class Diffusion {
public:
    static constexpr std::size_t bandRows = words;
    using Rows = std::array<std::uint16_t*, bandRows>;

    Diffusion(std::size_t width, std::int32_t p, int threshold)
        : width_(width),
          skew_(width),
          gray_(entries() * bandRows, outside),
          white_(entries() * bandRows),
          waiting_(entries() + lead),
          waitingNext_(entries() + lead),
          threshold_(threshold) {
        const auto factor = static_cast<std::uint32_t>(655360 / p + 1);
        part_ = static_cast<std::int16_t>(factor);
        whole_ = factor >= 0x8000U ? -1 : 0;
    }

    /// Rows of gray values become rows of 0 and all bits set. Bands come from the top.
    void run(const Rows& rows);

private:
    using V = SignedWordVector;
    static constexpr std::size_t lag = 3;
    static constexpr std::size_t lead = lag * (bandRows + 1);
    // As gray value of what is no column: such a pixel comes out white, without an error.
    static constexpr std::uint16_t outside = 0x4000;

    std::size_t entries() const { return width_ + lead; }
    void diffuse();

    std::size_t width_;
    Skew<std::uint16_t, bandRows, bandRows, lag> skew_;
    std::vector<std::uint16_t> gray_;
    std::vector<std::uint16_t> white_;
    std::vector<std::int16_t> waiting_;     ///< the error for the next band's first row
    std::vector<std::int16_t> waitingNext_; ///< for its second row, without the first row's share
    int threshold_;
    std::int16_t part_;  ///< 10 / p in 65536ths, less whole_
    std::int16_t whole_; ///< all bits set if a whole is to be added
};

/// n \ 65536ths
inline SignedWordVector truncated(SignedWordVector n, SignedWordVector factor) {
    return hn::Sub(hn::MulHigh(n, factor), hn::BroadcastSignBit(n));
}

/// The sum a (x - 2) + b (x - 1) + c x + b (x + 1) + a (x + 2) of a row that goes by.
struct Gathered {
    SignedWordVector next(SignedWordVector a, SignedWordVector b, SignedWordVector c) {
        const auto sum = hn::Add(pending[0], a);
        pending[0] = hn::Add(pending[1], b);
        pending[1] = hn::Add(pending[2], c);
        pending[2] = hn::Add(pending[3], b);
        pending[3] = a;
        return sum;
    }
    SignedWordVector pending[4];
};

void Diffusion::diffuse() {
    const SignedWords d;
    const auto zero = hn::Zero(d);
    const auto full = hn::Set(d, 255);
    const auto threshold = hn::Set(d, static_cast<std::int16_t>(threshold_));
    const auto part = hn::Set(d, part_);
    const auto whole = hn::Set(d, whole_);
    const auto share = hn::Set(d, 1561); // a 42nd in 65536ths, right for all errors
    Gathered below{{zero, zero, zero, zero}};
    Gathered farBelow = below;
    V forNext = zero;   // from the row above
    V forSecond = zero; // from the row above that one, now and in three steps to come
    V delayed[3] = {zero, zero, zero};
    V fromLeft = zero;
    V fromSecondLeft = zero;
    const auto* gray = reinterpret_cast<const std::int16_t*>(gray_.data());
    auto* white = reinterpret_cast<std::int16_t*>(white_.data());
    std::int16_t* waiting = waiting_.data() + lead;
    std::int16_t* waitingNext = waitingNext_.data() + lead;
    for (std::size_t u = 0; u < entries(); ++u) {
        const auto at = static_cast<std::ptrdiff_t>(u);
        const auto handed = hn::Add(
            forNext, movedUp<2>(d, forSecond, hn::Set(d, waitingNext[at - std::ptrdiff_t{lag}])));
        const auto above = movedUp<2>(d, handed, hn::Set(d, waiting[at]));
        waiting[at - std::ptrdiff_t{lag * bandRows}] = hn::ExtractLane(handed, bandRows - 1);
        waitingNext[at - std::ptrdiff_t{lead}] = hn::ExtractLane(forSecond, bandRows - 1);
        const auto error = hn::Add(fromLeft, above);
        const auto scaled = hn::Add(truncated(error, part), hn::And(error, whole));
        const auto value = hn::Add(hn::LoadU(d, gray + u * bandRows), scaled);
        const auto v = hn::Min(hn::Max(value, zero), full);
        const auto black = hn::VecFromMask(d, hn::Lt(v, threshold));
        hn::StoreU(hn::Not(black), d, white + u * bandRows);
        const auto e = hn::Sub(v, hn::AndNot(black, full));

        const auto one = truncated(e, share);
        const auto two = truncated(e, hn::Set(d, 2 * 1561));
        const auto four = truncated(e, hn::Set(d, 4 * 1561));
        const auto eight = truncated(e, hn::Set(d, 8 * 1561));
        fromLeft = hn::Add(eight, fromSecondLeft);
        fromSecondLeft = four;
        forNext = below.next(two, four, eight);
        forSecond = delayed[0];
        delayed[0] = delayed[1];
        delayed[1] = delayed[2];
        delayed[2] = farBelow.next(one, two, four);
    }
}

void Diffusion::run(const Rows& rows) {
    skew_.load(rows, gray_.data());
    diffuse();
    skew_.store(white_.data(), rows);
}

bool VectorDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, int threshold,
                  RowRhythm& rhythm) {
    if (p < 11 || p > 128) {
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

#else

bool VectorDither(PixelSpan, ConstPixelSpan, std::int32_t, int, RowRhythm&) {
    return false;
}

#endif

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(GrayRow);
HWY_EXPORT(VectorDither);

namespace {

int meanGray(ConstPixelSpan picture) {
    const auto width = static_cast<std::size_t>(picture.width);
    std::vector<std::uint16_t> gray(width);
    std::uint64_t sum = 0;
    for (int y = 0; y < picture.height; ++y) {
        sum += HWY_DYNAMIC_DISPATCH(GrayRow)(picture.row(y), width, gray.data());
    }
    return static_cast<int>(sum / (width * static_cast<std::size_t>(picture.height)));
}

/// The errors of a row, with two columns of 0 on either side.
using ErrorRow = std::vector<std::int32_t>;

/// What reaches column x, counted from the margin, from a row above, with these shares in 42nds.
std::int32_t gather(const ErrorRow& row, std::size_t x, int far, int near, int centre) {
    const auto share = [&](std::size_t at, int weight) { return weight * row[at] / 42; };
    return share(x - 2, far) + share(x - 1, near) + share(x, centre) + share(x + 1, near) +
           share(x + 2, far);
}

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
        for (std::size_t x = 0; x < width; ++x) {
            const std::int32_t waiting = 8 * errors[0][x + 1] / 42 + 4 * errors[0][x] / 42 +
                                         gather(errors[1], x + 2, 2, 4, 8) +
                                         gather(errors[2], x + 2, 1, 2, 4);
            const std::int32_t scaled = p == 0 ? 0 : waiting * 10 / p;
            const int v = std::clamp(scaled + gray[x], 0, 255);
            const int output = v < threshold ? 0 : 255;
            errors[0][x + 2] = v - output;
            Pixel& pixel = PixelBuf.row(y)[x];
            pixel = (pixel & 0xFF000000U) | (output == 0 ? 0 : 0x00FFFFFFU);
        }
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

} // namespace

void FilterDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm) {
    if (PixelBuf.width == 0 || PixelBuf.height == 0) {
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
