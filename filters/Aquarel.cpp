#include "filters/Aquarel.h"

#include <algorithm>
#include <array>
#include <vector>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/Aquarel.cpp"
#include <hwy/foreach_target.h>

#include "filters/Vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// The last three of a kind of rows, each value a word, with room for a vector that begins at the
/// last one.
class ThreeRows {
public:
    explicit ThreeRows(std::size_t count) {
        rows_.fill(std::vector<std::uint16_t>(count + 2 * words));
    }
    std::uint16_t* operator[](int y) { return rows_[static_cast<std::size_t>(y % 3)].data(); }

private:
    std::array<std::vector<std::uint16_t>, 3> rows_;
};

/// Block centres of a row: the mean of the nine values, and how far they are from it in all.
void describeBlocks(const std::array<const std::uint16_t*, 3>& rows, std::size_t count,
                    std::uint16_t* mean, std::uint16_t* deviation) {
    const Words d;
    const auto ninth = hn::Set(d, 7282); // in 65536ths, right for all sums of nine
    const std::array<const std::uint16_t*, 9> places = {rows[0] - 4, rows[0], rows[0] + 4,
                                                        rows[1] - 4, rows[1], rows[1] + 4,
                                                        rows[2] - 4, rows[2], rows[2] + 4};
    for (std::size_t i = 4; i < count - 4; i += hn::Lanes(d)) {
        auto sum = hn::Zero(d);
        for (const std::uint16_t* place : places) {
            sum = hn::Add(sum, hn::LoadU(d, place + i));
        }
        const auto middle = hn::MulHigh(sum, ninth);
        // |v - m| = 2 max(v, m) - v - m
        auto greater = hn::Zero(d);
        for (const std::uint16_t* place : places) {
            greater = hn::Add(greater, hn::Max(middle, hn::LoadU(d, place + i)));
        }
        const auto nineMiddles = hn::Add(hn::ShiftLeft<3>(middle), middle);
        hn::StoreU(middle, d, mean + i);
        hn::StoreU(hn::Sub(hn::ShiftLeft<1>(greater), hn::Add(sum, nineMiddles)), d, deviation + i);
    }
}

/// The mean of the block that deviates least, for all pixels but two at either end.
void chooseBlocks(ThreeRows& mean, ThreeRows& deviation, int y, std::size_t count,
                  std::uint16_t* chosen) {
    const SignedWords d;
    const auto load = [d](const std::uint16_t* from) {
        return hn::LoadU(d, reinterpret_cast<const std::int16_t*>(from));
    };
    const std::array<const std::uint16_t*, 4> means = {mean[y - 1] - 4, mean[y - 1] + 4,
                                                       mean[y + 1] - 4, mean[y + 1] + 4};
    const std::array<const std::uint16_t*, 4> deviations = {
        deviation[y - 1] - 4, deviation[y - 1] + 4, deviation[y + 1] - 4, deviation[y + 1] + 4};
    for (std::size_t i = 8; i < count - 8; i += hn::Lanes(d)) {
        auto best = load(means[0] + i);
        auto lowest = load(deviations[0] + i);
        for (std::size_t block = 1; block < 4; ++block) {
            const auto candidate = load(deviations[block] + i);
            best = hn::IfThenElse(hn::Lt(candidate, lowest), load(means[block] + i), best);
            lowest = hn::Min(lowest, candidate);
        }
        hn::StoreU(best, d, reinterpret_cast<std::int16_t*>(chosen + i));
    }
}

void Aquarel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, RowRhythm& rhythm) {
    const auto width = static_cast<std::size_t>(PixelBuf.width);
    const std::size_t count = 4 * width;
    ThreeRows source(count);
    ThreeRows mean(count);
    ThreeRows deviation(count);
    std::vector<std::uint16_t> chosen(count + 2 * words);
    for (int y = 0; y < PixelBuf.height + 2;
         ++y) { // the row that comes in; two rows up one goes out
        if (y < PixelBuf.height) {
            widenRow(SourceBuf.row(y), width, source[y]);
            if (y >= 2) {
                describeBlocks({source[y - 2], source[y - 1], source[y]}, count, mean[y - 1],
                               deviation[y - 1]);
            }
            if (y >= 4) {
                chooseBlocks(mean, deviation, y - 2, count, chosen.data());
                narrowRow(chosen.data() + 8, width - 4, PixelBuf.row(y - 2) + 2);
            }
        }
        if (y >= 2) {
            rhythm.rowDone(y - 1, PixelBuf.height);
        }
    }
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(Aquarel);

void FilterAquarel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t, RowRhythm& rhythm) {
    if (PixelBuf.width >= 5) {
        HWY_DYNAMIC_DISPATCH(Aquarel)(PixelBuf, SourceBuf, rhythm);
        return;
    }
    for (int y = 0; y < PixelBuf.height; ++y) {
        rhythm.rowDone(y + 1, PixelBuf.height);
    }
}

} // namespace kaart
#endif
