// Included once for every kind of processor.
#if defined(KAART_SURFACE_ALIGNED_STEPS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef KAART_SURFACE_ALIGNED_STEPS_INL_H
#undef KAART_SURFACE_ALIGNED_STEPS_INL_H
#else
#define KAART_SURFACE_ALIGNED_STEPS_INL_H
#endif

#include "design/surface/ColorRef.h"

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace kaart {
namespace HWY_NAMESPACE {

/// Calls store(i) so that vectors of `lanes` pixels from each i cover a run of at least as many,
/// all but the outer two aligned: a store across two cache lines costs twice. The outer ones may
/// overlap their neighbours.
template <typename Store>
HWY_INLINE void alignedSteps(const Pixel* pixels, std::size_t count, std::size_t lanes,
                             Store store) {
    const std::size_t bytes = lanes * sizeof(Pixel);
    const std::size_t beyond = reinterpret_cast<std::uintptr_t>(pixels) % bytes / sizeof(Pixel);
    store(0);
    std::size_t i = lanes - beyond;
    for (; i + 2 * lanes <= count; i += 2 * lanes) {
        store(i);
        store(i + lanes);
    }
    for (; i + lanes <= count; i += lanes) {
        store(i);
    }
    store(count - lanes);
}

} // namespace HWY_NAMESPACE
} // namespace kaart
HWY_AFTER_NAMESPACE();

#endif
