// What the vector kernels share. Compiled once for every kind of processor, hence no #pragma once.
#if defined(KAART_FILTERS_VECTORS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KAART_FILTERS_VECTORS_INL_H_
#undef KAART_FILTERS_VECTORS_INL_H_
#else
#define KAART_FILTERS_VECTORS_INL_H_
#endif

#include "design/surface/ColorRef.h"

#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

inline constexpr Pixel colours = 0x00FFFFFF; // all but the fourth byte

using Words = hn::ScalableTag<std::uint16_t>;
using SignedWords = hn::RebindToSigned<Words>;
using HalfBytes = hn::Rebind<std::uint8_t, Words>; // as many bytes as there are words
using WordVector = hn::Vec<Words>;
using SignedWordVector = hn::Vec<SignedWords>;
constexpr std::size_t words = HWY_MAX_BYTES / sizeof(std::uint16_t); // in a vector

/// The four bytes of each pixel as words, as many pixels as a vector holds.
inline WordVector widened(const Pixel* pixels) {
    return hn::PromoteTo(Words(),
                         hn::LoadU(HalfBytes(), reinterpret_cast<const std::uint8_t*>(pixels)));
}

/// Words 0 to 255 back to the bytes of pixels.
inline void storeNarrowed(WordVector values, Pixel* pixels) {
    hn::StoreU(hn::DemoteTo(HalfBytes(), hn::BitCast(SignedWords(), values)), HalfBytes(),
               reinterpret_cast<std::uint8_t*>(pixels));
}

/// The vector moved up by so many bytes; what comes in below is the top of `carry`, of its lower
/// half where a vector has two.
template <int bytes, class D>
hn::Vec<D> movedUp(D d, hn::Vec<D> vector, hn::Vec<D> carry) {
#if HWY_MAX_BYTES == 32
    return hn::CombineShiftRightBytes<16 - bytes>(d, vector,
                                                  hn::ConcatLowerLower(d, vector, carry));
#else
    return hn::CombineShiftRightBytes<16 - bytes>(d, vector, carry);
#endif
}

/// A square's rows become its columns.
template <class D, std::size_t side>
void transpose(D d, hn::Vec<D> (&square)[side]) {
    for (std::size_t shuffled = 1; shuffled < side; shuffled *= 2) {
        hn::Vec<D> next[side];
        for (std::size_t i = 0; i < side / 2; ++i) {
            next[2 * i] = hn::InterleaveLower(d, square[i], square[i + side / 2]);
            next[2 * i + 1] = hn::InterleaveUpper(d, square[i], square[i + side / 2]);
        }
        for (std::size_t i = 0; i < side; ++i) {
            square[i] = next[i];
        }
    }
}

/// Rows of pixels or words, each `lag` columns behind the one above: entry u, of `stride` places,
/// holds at place j column u - lag * j of row j. So pixels of a wave front, which may be worked on
/// at once because each needs only what lies before it and `lag` - 1 columns ahead in the row
/// above, stand side by side.
template <typename T, std::size_t lines, std::size_t stride, std::size_t lag>
class Skew {
public:
    explicit Skew(std::size_t width) : width_(width) {}

    /// Places without a column are left alone. `entries` has room for width + lag * (lines - 1).
    void load(const std::array<T*, lines>& rows, T* entries) const {
        const auto copy = [](T& inRow, T& inEntry) { inEntry = inRow; };
        const auto squares = [](T* const(&row)[side], std::size_t first, std::size_t u, T* entry) {
            hn::Vec<Square> square[side];
            for (std::size_t i = 0; i < side; ++i) {
                square[i] = hn::LoadU(Square(), row[i] + u - lag * (first + i));
            }
            transpose(Square(), square);
            for (std::size_t i = 0; i < side; ++i) {
                hn::StoreU(square[i], Square(), entry + i * stride);
            }
        };
        eachPart(rows, entries, copy, squares);
    }

    void store(T* entries, const std::array<T*, lines>& rows) const {
        const auto copy = [](T& inRow, T& inEntry) { inRow = inEntry; };
        const auto squares = [](T* const(&row)[side], std::size_t first, std::size_t u, T* entry) {
            hn::Vec<Square> square[side];
            for (std::size_t i = 0; i < side; ++i) {
                square[i] = hn::LoadU(Square(), entry + i * stride);
            }
            transpose(Square(), square);
            for (std::size_t i = 0; i < side; ++i) {
                hn::StoreU(square[i], Square(), row[i] + u - lag * (first + i));
            }
        };
        eachPart(rows, entries, copy, squares);
    }

private:
    static constexpr std::size_t side = std::min(lines, 16 / sizeof(T));
    using Square = hn::FixedTag<T, side>;

    /// Whole squares where all their rows have columns, single places before and after.
    template <typename Copy, typename Squares>
    void eachPart(const std::array<T*, lines>& rows, T* entries, Copy copy, Squares squares) const {
        for (std::size_t first = 0; first < lines; first += side) {
            const std::size_t begin = lag * (first + side - 1);
            const std::size_t full = std::max(begin, width_ + lag * first);
            const std::size_t end = full - (full - begin) % side;
            T* row[side];
            std::copy_n(&rows[first], side, row);
            for (std::size_t i = 0; i < side; ++i) {
                const std::size_t line = first + i;
                T* entry = entries + lag * line * stride + line;
                for (std::size_t x = 0; x < std::min(begin - lag * line, width_); ++x) {
                    copy(row[i][x], entry[x * stride]);
                }
                for (std::size_t x = end - lag * line; x < width_; ++x) {
                    copy(row[i][x], entry[x * stride]);
                }
            }
            for (std::size_t u = begin; u < end; u += side) {
                squares(row, first, u, entries + u * stride + first);
            }
        }
    }

    std::size_t width_;
};

/// Gives a row's pixels other colours; the fourth bytes stay.
inline void recolourRow(const Pixel* from, std::size_t width, Pixel* row) {
    for (std::size_t x = 0; x < width; ++x) {
        row[x] = (row[x] & ~colours) | (from[x] & colours);
    }
}

/// A row's bytes as words.
inline void widenRow(const Pixel* row, std::size_t width, std::uint16_t* values) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(row);
    std::copy_n(bytes, 4 * width, values);
}

/// Words 0 to 255 become the colours of pixels, whose fourth bytes stay.
inline void narrowRow(const std::uint16_t* values, std::size_t width, Pixel* row) {
    std::size_t x = 0;
    const hn::Repartition<Pixel, HalfBytes> d;
    const auto mask = hn::Set(d, colours);
    for (; x + words / 4 <= width; x += words / 4) {
        const auto wide =
            hn::LoadU(SignedWords(), reinterpret_cast<const std::int16_t*>(values + 4 * x));
        const auto bytes = hn::BitCast(d, hn::DemoteTo(HalfBytes(), wide));
        const auto fourth = hn::AndNot(mask, hn::LoadU(d, row + x));
        hn::StoreU(hn::Or(hn::And(mask, bytes), fourth), d, row + x);
    }
    for (; x < width; ++x) {
        const std::uint16_t* value = values + 4 * x;
        row[x] = (row[x] & ~colours) | Pixel{value[2]} << 16 | Pixel{value[1]} << 8 | value[0];
    }
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#endif
