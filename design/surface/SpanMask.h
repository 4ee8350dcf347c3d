#pragma once

#include <QRect>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kaart {

/// A set of pixels within a rectangle, kept as one bit each. A drawing call gathers its pixels here
/// and then paints every one of them exactly once.
class SpanMask {
public:
    /// An empty set. Pixels outside `bounds` are never taken in.
    explicit SpanMask(const QRect& bounds);

    const QRect& bounds() const { return bounds_; }
    /// Takes in the pixels left <= x < right of row y.
    void add(int y, int left, int right);
    void addRect(const QRect& rect);
    bool contains(int x, int y) const;
    /// Removes what the other set holds. Both must have the same bounds.
    void subtract(const SpanMask& other);

    /// Calls visit(y, left, right) for each run of pixels, top to bottom and left to right.
    template <typename Visit>
    void forEachRun(Visit visit) const;

private:
    using Word = std::uint64_t;
    static constexpr int bits = 64;

    const Word* row(int y) const {
        return words_.data() + static_cast<std::size_t>(y - bounds_.top()) * wordsPerRow_;
    }
    Word* row(int y) {
        return words_.data() + static_cast<std::size_t>(y - bounds_.top()) * wordsPerRow_;
    }
    /// The first column from `column` on whose bit is `set`, or the width.
    int findColumn(const Word* words, int column, bool set) const;

    QRect bounds_;
    std::size_t wordsPerRow_;
    std::vector<Word> words_;
};

template <typename Visit>
void SpanMask::forEachRun(Visit visit) const {
    const int width = bounds_.width();
    for (int y = bounds_.top(); y <= bounds_.bottom(); ++y) {
        const Word* words = row(y);
        for (int left = findColumn(words, 0, true); left < width;) {
            const int right = findColumn(words, left, false);
            visit(y, bounds_.left() + left, bounds_.left() + right);
            left = findColumn(words, right, true);
        }
    }
}

} // namespace kaart
