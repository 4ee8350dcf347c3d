#include "filters/Pixelize.h"

#include <algorithm>
#include <array>
#include <vector>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/Pixelize.cpp"
#include <hwy/foreach_target.h>

#include "filters/Vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// The means of the leading whole blocks of 2 x 1 to 4 x 4 pixels, written to each of a block's
/// columns. `rows` are the rows that the blocks have. Answers the columns done; up to three more
/// are written to. `sums` has room for 4 * (width + 4) values, `ifBegun` for width and `means` for
/// width + 3.
std::size_t BlockMeans(ConstPixelSpan rows, std::size_t side, std::uint16_t* sums, Pixel* ifBegun,
                       Pixel* means) {
#if HWY_TARGET == HWY_SCALAR
    (void)rows, (void)side, (void)sums, (void)ifBegun, (void)means;
    return 0;
#else
    constexpr std::size_t step = words / 4;
    const Words d;
    const std::size_t columns = static_cast<std::size_t>(rows.width) / step * step;
    for (std::size_t x = 0; x < columns; x += step) {
        auto sum = hn::Zero(d);
        for (int y = 0; y < rows.height; ++y) {
            sum = hn::Add(sum, widened(rows.row(y) + x));
        }
        hn::StoreU(sum, d, sums + 4 * x);
    }
    // The mean of a block that would begin at this column, for all columns; in 65536ths, which is
    // right for all sums of up to 16 pixels.
    const std::size_t count = side * static_cast<std::size_t>(rows.height);
    const auto part = hn::Set(d, static_cast<std::uint16_t>(65536 / count + 1));
    for (std::size_t x = 0; x < columns; x += step) {
        auto sum = hn::Zero(d);
        for (std::size_t i = 0; i < side; ++i) {
            sum = hn::Add(sum, hn::LoadU(d, sums + 4 * (x + i)));
        }
        storeNarrowed(hn::MulHigh(sum, part), ifBegun + x);
    }
    const std::size_t end = columns - columns % side;
    for (std::size_t x = 0; x < end; x += side) {
        std::fill_n(means + x, 4, ifBegun[x] & colours); // a fixed number is one store
    }
    return end;
#endif
}

/// Gives a row's pixels other colours; the fourth bytes stay.
void Recolour(const Pixel* from, std::size_t width, Pixel* row) {
    for (std::size_t x = 0; x < width; ++x) {
        row[x] = (row[x] & ~colours) | from[x];
    }
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(BlockMeans);
HWY_EXPORT(Recolour);

namespace {

/// The mean colour of the pixels from `begin` to `end`, a column, in all rows.
Pixel meanColour(ConstPixelSpan rows, int begin, int end) {
    std::array<std::int64_t, 3> sums{};
    for (int y = 0; y < rows.height; ++y) {
        for (int x = begin; x < end; ++x) {
            const Pixel pixel = rows.row(y)[x];
            sums[0] += pixel & 0xFFU;
            sums[1] += pixel >> 8 & 0xFFU;
            sums[2] += pixel >> 16 & 0xFFU;
        }
    }
    const std::int64_t count = std::int64_t{end - begin} * rows.height;
    return static_cast<Pixel>(sums[2] / count << 16 | sums[1] / count << 8 | sums[0] / count);
}

} // namespace

void FilterPixelize(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s,
                    RowRhythm& rhythm) {
    const int H = PixelBuf.height;
    const int W = PixelBuf.width;
    const int side = s < 1 ? 1 : std::min(s, std::max(W, H));
    const auto width = static_cast<std::size_t>(W);
    std::vector<std::uint16_t> sums(4 * (width + 4));
    std::vector<Pixel> ifBegun(width);
    std::vector<Pixel> means(width + 3);
    for (int top = 0; top < H; top += side) {
        const int end = std::min(top + side, H);
        const ConstPixelSpan rows{SourceBuf.row(top), W, end - top};
        int x = 0;
        if (side > 1 && side <= 4) {
            x = static_cast<int>(HWY_DYNAMIC_DISPATCH(BlockMeans)(
                rows, static_cast<std::size_t>(side), sums.data(), ifBegun.data(), means.data()));
        }
        for (; x < W; x += side) {
            const int right = std::min(x + side, W);
            std::fill(means.begin() + x, means.begin() + right, meanColour(rows, x, right));
        }
        for (int y = top; y < end; ++y) {
            HWY_DYNAMIC_DISPATCH(Recolour)(means.data(), width, PixelBuf.row(y));
            rhythm.rowDone(y + 1, H);
        }
    }
}

} // namespace kaart
#endif
