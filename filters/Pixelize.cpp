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

/// Works out the blocks of a few rows.
class Blocks {
public:
    Blocks(int width, int side)
        : side_(static_cast<std::size_t>(side)),
          sums_((static_cast<std::size_t>(width) + 4) * 4),
          ifBegun_(static_cast<std::size_t>(width)),
          means_(static_cast<std::size_t>(width) + 3) {}

    /// Every column's mean, of the block that it lies in; the fourth byte may be anything.
    const Pixel* meansOf(ConstPixelSpan rows) {
        const auto width = static_cast<std::size_t>(rows.width);
        for (std::size_t x = smallBlocks(rows); x < width; x += side_) {
            const std::size_t end = std::min(x + side_, width);
            std::fill(&means_[x], &means_[end], meanColour(rows, x, end));
        }
        return means_.data();
    }

private:
    std::size_t smallBlocks(ConstPixelSpan rows);
    static Pixel meanColour(ConstPixelSpan rows, std::size_t begin, std::size_t end);

    std::size_t side_;
    std::vector<std::uint16_t> sums_; ///< of the columns
    std::vector<Pixel> ifBegun_;      ///< the mean of the block that would begin at a column
    std::vector<Pixel> means_;        ///< with room for a short run that begins at the last column
};

/// The leading whole blocks of 2 x 1 to 4 x 4 pixels. Answers how many columns are done.
std::size_t Blocks::smallBlocks(ConstPixelSpan rows) {
    if (side_ < 2 || side_ > 4) {
        return 0;
    }
    constexpr std::size_t step = words / 4;
    const Words d;
    const std::size_t columns = static_cast<std::size_t>(rows.width) / step * step;
    std::uint16_t* const sums = sums_.data();
    Pixel* const ifBegun = ifBegun_.data();
    for (std::size_t x = 0; x < columns; x += step) {
        auto sum = hn::Zero(d);
        for (int y = 0; y < rows.height; ++y) {
            sum = hn::Add(sum, widened(rows.row(y) + x));
        }
        hn::StoreU(sum, d, sums + 4 * x);
    }
    // In 65536ths, rounded up, which is right for all sums of up to 16 pixels.
    const std::size_t count = side_ * static_cast<std::size_t>(rows.height);
    const auto part = hn::Set(d, static_cast<std::uint16_t>(65536 / count + 1));
    for (std::size_t x = 0; x < columns; x += step) {
        auto sum = hn::Zero(d);
        for (std::size_t i = 0; i < side_; ++i) {
            sum = hn::Add(sum, hn::LoadU(d, sums + 4 * (x + i)));
        }
        storeNarrowed(hn::MulHigh(sum, part), ifBegun + x);
    }
    const std::size_t end = columns - columns % side_;
    for (std::size_t x = 0; x < end; x += side_) {
        std::fill_n(&means_[x], 4, ifBegun[x]); // always four, for that is one store
    }
    return end;
}

Pixel Blocks::meanColour(ConstPixelSpan rows, std::size_t begin, std::size_t end) {
    std::array<std::uint64_t, 3> sums{};
    for (int y = 0; y < rows.height; ++y) {
        for (std::size_t x = begin; x < end; ++x) {
            const Pixel pixel = rows.row(y)[x];
            sums[0] += pixel & 0xFFU;
            sums[1] += pixel >> 8 & 0xFFU;
            sums[2] += pixel >> 16 & 0xFFU;
        }
    }
    const auto count =
        std::max<std::uint64_t>((end - begin) * static_cast<std::size_t>(rows.height), 1);
    return static_cast<Pixel>(sums[2] / count << 16 | sums[1] / count << 8 | sums[0] / count);
}

void Pixelize(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s, RowRhythm& rhythm) {
    const int W = PixelBuf.width;
    const int H = PixelBuf.height;
    const int side = std::max(1, std::min(s, std::max(W, H)));
    Blocks blocks(W, side);
    for (int top = 0; top < H; top += side) {
        const int end = std::min(top + side, H);
        const Pixel* means = blocks.meansOf({SourceBuf.row(top), W, end - top});
        for (int y = top; y < end; ++y) {
            recolourRow(means, static_cast<std::size_t>(W), PixelBuf.row(y));
            rhythm.rowDone(y + 1, H);
        }
    }
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(Pixelize);

void FilterPixelize(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s,
                    RowRhythm& rhythm) {
    HWY_DYNAMIC_DISPATCH(Pixelize)(PixelBuf, SourceBuf, s, rhythm);
}

} // namespace kaart
#endif
