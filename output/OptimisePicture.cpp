#include "output/OptimisePicture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kaart {

namespace {

constexpr std::size_t channels = 4;
constexpr std::size_t batch = 64; // target pixels at a time, so that all of a batch stays in cache

// A small number added to this loses its decimals, halves to even, without a call: 1.5 * 2^52. A
// blend needs 33 bits, so that nothing of it is lost before. Sums keep the addition, for
// differences and the lowest byte are right with it.
constexpr double rounder = 6755399441055744.0;

struct Step {
    std::size_t index;
    double part;
};

std::vector<Step> stepsOf(int sourceSize, int targetSize) {
    const double scale = static_cast<float>(sourceSize - 1) / static_cast<float>(targetSize);
    std::vector<Step> steps(static_cast<std::size_t>(targetSize));
    for (int i = 0; i < targetSize; ++i) {
        const double place = scale * i;
        const int index = static_cast<int>(place);
        steps[static_cast<std::size_t>(i)] = {static_cast<std::size_t>(index), place - index};
    }
    return steps;
}

/// The source pixels of a batch, blended down, by channel; `rounder` is added to each.
using Blended = std::array<double, (batch + 1) * channels>;

void blendDown(std::span<const Pixel> top, const Pixel* bottom, double part, Blended& blended) {
    const auto* upper = reinterpret_cast<const std::uint8_t*>(top.data());
    const auto* lower = reinterpret_cast<const std::uint8_t*>(bottom);
    for (std::size_t i = 0; i < top.size() * channels; ++i) {
        const int difference = lower[i] - upper[i];
        blended[i] = (rounder + upper[i]) + part * difference;
    }
}

void blendAcross(const Blended& blended, std::span<const Step> steps, Pixel* target) {
    std::array<std::int32_t, batch * channels> values;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const double* left = blended.data() + (steps[i].index - steps[0].index) * channels;
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const double difference = left[channels + channel] - left[channel];
            const double sum = left[channel] + steps[i].part * difference;
            values[i * channels + channel] =
                static_cast<std::int32_t>(std::bit_cast<std::int64_t>(sum));
        }
    }
    auto* bytes = reinterpret_cast<std::uint8_t*>(target);
    for (std::size_t i = 0; i < steps.size() * channels; ++i) {
        bytes[i] = static_cast<std::uint8_t>(values[i]);
    }
}

} // namespace

void OptimisePicture(ConstPixelSpan source, PixelSpan target, RowRhythm& rhythm) {
    if (source.width <= 0 || source.height <= 0) {
        return;
    }
    const std::vector<Step> columns = stepsOf(source.width, target.width);
    const std::vector<Step> rows = stepsOf(source.height, target.height);
    const auto width = static_cast<std::size_t>(source.width);
    Blended blended{};
    for (int y = 0; y < target.height; ++y) {
        const Step& row = rows[static_cast<std::size_t>(y)];
        const int top = static_cast<int>(row.index);
        const int bottom = std::min(top + 1, source.height - 1);
        for (std::size_t x = 0; x < columns.size(); x += batch) {
            const std::span<const Step> steps(&columns[x], std::min(batch, columns.size() - x));
            const std::size_t first = steps.front().index;
            const std::size_t count = std::min(steps.back().index + 2, width) - first;
            blendDown({source.row(top) + first, count}, source.row(bottom) + first, row.part,
                      blended);
            blendAcross(blended, steps, target.row(y) + x);
        }
        rhythm.rowDone(y + 1, target.height);
    }
}

} // namespace kaart
