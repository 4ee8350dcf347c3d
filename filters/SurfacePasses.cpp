#include "filters/SurfacePasses.h"

#include "filters/ColourFilters.h"
#include "filters/Flip.h"
#include "filters/MirrorCopies.h"

namespace kaart {

namespace {

/// Runs `lines(pixels, first, last)` on the rows of the surface's first `part`, in `steps` steps.
/// Steps that are columns take rows as well: nobody can see the difference within a frame.
template <typename Lines>
void inSteps(PixelSurface& pic, int steps, int (*part)(int height), RowRhythm& rhythm,
             const Lines& lines) {
    for (int step = 0; step < steps; ++step) {
        const QRect whole = pic.bounds();
        const int height = part(whole.height());
        const int first = height * step / steps;
        const int last = height * (step + 1) / steps;
        lines(pic.writePixels(whole), first, last);
        rhythm.rowDone(step + 1, steps);
    }
}

int all(int height) {
    return height;
}

using PixelMap = void (*)(PixelSpan target, ConstPixelSpan source);

void mapInSteps(PixelSurface& pic, int steps, RowRhythm& rhythm, PixelMap map) {
    inSteps(pic, steps, all, rhythm, [map](PixelSpan pixels, int first, int last) {
        const PixelSpan rows{pixels.row(first), pixels.width, last - first};
        map(rows, {rows.data, rows.width, rows.height});
    });
}

using MirrorCopy = void (*)(PixelSpan target, ConstPixelSpan source, int first, int last);

void copyInSteps(PixelSurface& pic, int steps, int (*part)(int height), RowRhythm& rhythm,
                 MirrorCopy copy) {
    inSteps(pic, steps, part, rhythm, [copy](PixelSpan pixels, int first, int last) {
        copy(pixels, {pixels.data, pixels.width, pixels.height}, first, last);
    });
}

} // namespace

void inkleurenPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& /*rhythm*/) {
    if (undo.bounds() == pic.bounds()) {
        FilterInkleuren(pic.writePixels(), undo.pixels());
    }
}

void dodgePass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& rhythm) {
    mapInSteps(pic, pic.bounds().height(), rhythm, FilterDodge);
}

void modernPass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& rhythm) {
    mapInSteps(pic, pic.bounds().height(), rhythm, FilterModern);
}

void sepiaPass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& rhythm) {
    mapInSteps(pic, pic.bounds().width(), rhythm, FilterSepia);
}

void flipHorizontalPass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& /*rhythm*/) {
    FlipHorizontal(pic);
}

void flipVerticalPass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& /*rhythm*/) {
    FlipVertical(pic);
}

void copyLeftSidePass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& rhythm) {
    copyInSteps(pic, halfOf(pic.bounds().width()), all, rhythm, CopyLeftSide);
}

void copyTopSidePass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& rhythm) {
    copyInSteps(pic, halfOf(pic.bounds().height()), halfOf, rhythm, CopyTopSide);
}

void copyCornersPass(PixelSurface& pic, const PixelSurface& /*undo*/, RowRhythm& rhythm) {
    copyInSteps(pic, halfOf(pic.bounds().height()), halfOf, rhythm, CopyCorners);
}

} // namespace kaart
