#include "filters/MirrorCopies.h"

#include "design/surface/RunKernels.h"

namespace kaart {

namespace {

std::size_t unsignedOf(int length) {
    return static_cast<std::size_t>(length);
}

void copyRow(Pixel* to, const Pixel* from, int width) {
    if (to != from) {
        copyRun(to, from, unsignedOf(width));
    }
}

void mirrorRow(Pixel* to, const Pixel* from, int width) {
    copyRow(to, from, halfOf(width));
    // The middle pixel of an odd width stays itself.
    const int mirrored = width / 2;
    reverseRun(to + width - mirrored, from, unsignedOf(mirrored));
}

} // namespace

void CopyLeftSide(PixelSpan target, ConstPixelSpan source, int first, int last) {
    for (int y = first; y < last; ++y) {
        mirrorRow(target.row(y), source.row(y), source.width);
    }
}

void CopyTopSide(PixelSpan target, ConstPixelSpan source, int first, int last) {
    for (int y = first; y < last; ++y) {
        copyRow(target.row(y), source.row(y), source.width);
        copyRow(target.row(source.height - 1 - y), target.row(y), source.width);
    }
}

void CopyCorners(PixelSpan target, ConstPixelSpan source, int first, int last) {
    for (int y = first; y < last; ++y) {
        mirrorRow(target.row(y), source.row(y), source.width);
        copyRow(target.row(source.height - 1 - y), target.row(y), source.width);
    }
}

} // namespace kaart
