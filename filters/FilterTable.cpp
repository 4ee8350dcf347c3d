#include "filters/FilterTable.h"

#include "filters/Aquarel.h"
#include "filters/ColourFilters.h"
#include "filters/Dither.h"
#include "filters/InPlaceFilters.h"
#include "filters/NeighbourFilters.h"
#include "filters/Pixelize.h"
#include "filters/RandomFilters.h"

#include <algorithm>
#include <array>

namespace kaart {

namespace {

constexpr std::array numbers = {
    FilterNumber{1, "sharpen", FilterSharpen},
    FilterNumber{2, "negative", FilterNegative},
    FilterNumber{3, "blur", FilterBlur},
    FilterNumber{4, "defuse", FilterDefuse},
    FilterNumber{5, "smooth", FilterSmooth},
    FilterNumber{6, "edge", FilterEdge},
    FilterNumber{7, "contour", FilterContour},
    FilterNumber{12, "grayscale", FilterGrayscale},
    FilterNumber{13, "relief", FilterRelief},
    FilterNumber{14, "light", FilterLight},
    FilterNumber{15, "pixelize", FilterPixelize},
    FilterNumber{16, "swap", FilterSwap},
    FilterNumber{17, "contrast", FilterContrast},
    FilterNumber{23, "stucki", FilterDither},
    FilterNumber{24, "kuwahara", FilterAquarel},
    FilterNumber{26, "erode", FilterErode},
    FilterNumber{27, "connection", FilterConnection},
    FilterNumber{29, "noise", FilterNoise},
    FilterNumber{30, "saturation", FilterSaturation},
};

constexpr std::array table = {
    FilterRow{"Filters", "Filter", 3, "Inkleuren", 0, 0, {"inkleuren", inkleurenPass}},
    FilterRow{"Filters", "Filter", 4, "Grayscale", 12},
    FilterRow{"Filters", "Filter", 5, "Negative", 2},
    FilterRow{"Filters", "Filter", 6, "Light", 14, 4},
    FilterRow{"Filters", "Filter", 7, "Dark", 14, -4},
    FilterRow{"Filters", "Filter", 8, "Sharpen", 1, 10},
    FilterRow{"Filters", "Filter", 9, "Contrast"},
    FilterRow{"Filter(9)", "EditContrastConvert", 1, "Positive", 17, 10},
    FilterRow{"Filter(9)", "EditContrastConvert", 2, "Negative", 17, -10},
    FilterRow{"Filters", "Filter", 10, "Pixelize", 15, 3},
    FilterRow{"Filters", "Filter", 11, "Reliëf", 13},
    FilterRow{"Filters", "Filter", 12, "Swap Colors"},
    FilterRow{"Filter(12)", "EditSwap", 1, "RGB --> BRG", 16, 1},
    FilterRow{"Filter(12)", "EditSwap", 2, "RGB --> GBR", 16, 2},
    FilterRow{"Filter(12)", "EditSwap", 3, "RGB --> RBG", 16, 3},
    FilterRow{"Filter(12)", "EditSwap", 4, "RGB --> BGR", 16, 4},
    FilterRow{"Filter(12)", "EditSwap", 5, "RGB --> GRB", 16, 5},
    FilterRow{"Filters", "Filter", 13, "Scattered", 23, 15},
    FilterRow{"Filters", "Filter", 14, "Blur", 3},
    FilterRow{"Filters", "Filter", 15, "Aquarel", 24},
    FilterRow{"Filters", "Filter", 16, "Defuse", 4, 6},
    FilterRow{"Filters", "Filter", 17, "Add noise", 29, 50},
    FilterRow{"Filters", "Filter", 18, "Edge", 6, 1},
    FilterRow{"Filters", "Filter", 19, "Contour", 7, white},
    FilterRow{"Filters", "Filter", 20, "Sepia", 12, 0, {"sepia", sepiaPass}},
    FilterRow{"Filters", "Filter", 21, "Connection", 27},
    FilterRow{"Filters", "Filter", 22, "Erode", 26},
    FilterRow{"Filters", "Filter", 23, "Saturation", 30, 140},
    FilterRow{"Filters", "Filter", 24, "Coldept", 23, 50},
    FilterRow{"Filters", "Filter", 25, "Dodge", 0, 0, {"dodge", dodgePass}},
    FilterRow{"Filters", "Filter", 26, "Smooth", 5},
    FilterRow{"Filters", "Filter", 27, "Modern", 0, 0, {"modern", modernPass}},

    FilterRow{"Flippen", "Flip", 1, "Flip Horizontaal", 0, 0, {"flip_h", flipHorizontalPass}},
    FilterRow{"Flippen", "Flip", 2, "Flip Vertikaal", 0, 0, {"flip_v", flipVerticalPass}},
    FilterRow{"Flippen", "Flip", 3, "Copy Linkerzijde", 0, 0, {"copy_left", copyLeftSidePass}},
    FilterRow{"Flippen", "Flip", 4, "Copy Bovenzijde", 0, 0, {"copy_top", copyTopSidePass}},
    FilterRow{"Flippen", "Flip", 5, "Copy Hoeken", 0, 0, {"copy_corners", copyCornersPass}},
};

} // namespace

std::span<const FilterRow> filterTable() {
    return table;
}

std::span<const FilterNumber> filterNumbers() {
    return numbers;
}

FilterRoutine filterRoutine(int number) {
    const auto* const found = std::ranges::find(numbers, number, &FilterNumber::number);
    return found == numbers.end() ? nullptr : found->routine;
}

} // namespace kaart
