#include "design/surface/SpanMask.h"

namespace kaart {

SpanMask::SpanMask(const QRect& bounds)
    : bounds_(bounds.isEmpty() ? QRect() : bounds),
      wordsPerRow_(static_cast<std::size_t>((bounds_.width() + bits - 1) / bits)),
      words_(wordsPerRow_ * static_cast<std::size_t>(bounds_.height())) {}

void SpanMask::add(int y, int left, int right) {
    left = std::max(left, bounds_.left());
    right = std::min(right, bounds_.right() + 1);
    if (y < bounds_.top() || y > bounds_.bottom() || left >= right) {
        return;
    }
    const auto first = static_cast<unsigned>(left - bounds_.left());
    const auto last = static_cast<unsigned>(right - bounds_.left() - 1);
    Word* words = row(y);
    const Word head = ~Word{0} << first % bits;
    const Word tail = ~Word{0} >> (bits - 1 - last % bits);
    const unsigned firstWord = first / bits;
    const unsigned lastWord = last / bits;
    if (firstWord == lastWord) {
        words[firstWord] |= head & tail;
        return;
    }
    words[firstWord] |= head;
    std::fill(words + firstWord + 1, words + lastWord, ~Word{0});
    words[lastWord] |= tail;
}

void SpanMask::addRect(const QRect& rect) {
    const QRect inside = rect & bounds_;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        add(y, inside.left(), inside.right() + 1);
    }
}

bool SpanMask::contains(int x, int y) const {
    if (!bounds_.contains(x, y)) {
        return false;
    }
    const auto column = static_cast<unsigned>(x - bounds_.left());
    return (row(y)[column / bits] >> column % bits & 1U) != 0;
}

void SpanMask::subtract(const SpanMask& other) {
    for (std::size_t i = 0; i < words_.size() && i < other.words_.size(); ++i) {
        words_[i] &= ~other.words_[i];
    }
}

int SpanMask::findColumn(const Word* words, int column, bool set) const {
    const int width = bounds_.width();
    const Word flip = set ? Word{0} : ~Word{0};
    auto index = static_cast<std::size_t>(column / bits);
    if (index >= wordsPerRow_) {
        return width;
    }
    Word word = (words[index] ^ flip) & (~Word{0} << static_cast<unsigned>(column % bits));
    while (word == 0) {
        if (++index >= wordsPerRow_) {
            return width;
        }
        word = words[index] ^ flip;
    }
    return std::min(width, static_cast<int>(index) * bits + std::countr_zero(word));
}

} // namespace kaart
