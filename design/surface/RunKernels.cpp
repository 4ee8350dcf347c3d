#include "design/surface/RunKernels.h"

#include <algorithm>

// Highway compiles this file once for every kind of processor.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "design/surface/RunKernels.cpp"
#include <hwy/foreach_target.h>

#include "design/surface/AlignedSteps-inl.h"

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;
using Lanes = hn::ScalableTag<Pixel>;

std::size_t DifferentRun(const Pixel* pixels, std::size_t count, Pixel value) {
    const Lanes d;
    const std::size_t lanes = hn::Lanes(d);
    const auto wanted = hn::Set(d, value);
    std::size_t i = 0;
    while (i + lanes <= count && hn::AllFalse(d, hn::Eq(hn::LoadU(d, pixels + i), wanted))) {
        i += lanes;
    }
    while (i < count && pixels[i] != value) {
        ++i;
    }
    return i;
}

std::size_t ReplaceRun(Pixel* pixels, std::size_t count, Pixel value, Pixel by) {
    const Lanes d;
    const std::size_t lanes = hn::Lanes(d);
    const auto wanted = hn::Set(d, value);
    const auto replacement = hn::Set(d, by);
    std::size_t i = 0;
    while (i + lanes <= count && hn::AllTrue(d, hn::Eq(hn::LoadU(d, pixels + i), wanted))) {
        hn::StoreU(replacement, d, pixels + i);
        i += lanes;
    }
    for (; i < count && pixels[i] == value; ++i) {
        pixels[i] = by;
    }
    return i;
}

void FillRun(Pixel* pixels, std::size_t count, Pixel value) {
    const Lanes d;
    if (count < hn::Lanes(d)) {
        std::fill(pixels, pixels + count, value);
        return;
    }
    const auto wanted = hn::Set(d, value);
    alignedSteps(pixels, count, hn::Lanes(d),
                 [&](std::size_t i) HWY_ATTR { hn::StoreU(wanted, d, pixels + i); });
}

void CopyRun(Pixel* to, const Pixel* from, std::size_t count) {
    const Lanes d;
    if (count < hn::Lanes(d)) {
        std::copy(from, from + count, to);
        return;
    }
    alignedSteps(to, count, hn::Lanes(d),
                 [&](std::size_t i) HWY_ATTR { hn::StoreU(hn::LoadU(d, from + i), d, to + i); });
}

void ReverseRun(Pixel* to, const Pixel* from, std::size_t count) {
    const Lanes d;
    const std::size_t lanes = hn::Lanes(d);
    if (count < lanes) {
        std::reverse_copy(from, from + count, to);
        return;
    }
    alignedSteps(to, count, lanes, [&](std::size_t i) HWY_ATTR {
        hn::StoreU(hn::Reverse(d, hn::LoadU(d, from + count - i - lanes)), d, to + i);
    });
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaart {

HWY_EXPORT(DifferentRun);
HWY_EXPORT(ReplaceRun);
HWY_EXPORT(FillRun);
HWY_EXPORT(ReverseRun);
HWY_EXPORT(CopyRun);

std::size_t differentRun(const Pixel* pixels, std::size_t count, Pixel value) {
    return HWY_DYNAMIC_DISPATCH(DifferentRun)(pixels, count, value);
}

std::size_t replaceRun(Pixel* pixels, std::size_t count, Pixel value, Pixel by) {
    return HWY_DYNAMIC_DISPATCH(ReplaceRun)(pixels, count, value, by);
}

void fillRun(Pixel* pixels, std::size_t count, Pixel value) {
    HWY_DYNAMIC_DISPATCH(FillRun)(pixels, count, value);
}

void reverseRun(Pixel* to, const Pixel* from, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(ReverseRun)(to, from, count);
}

void copyRun(Pixel* to, const Pixel* from, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(CopyRun)(to, from, count);
}

} // namespace kaart
#endif
