#include "design/tools/SelectionCommands.h"

#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"
#include "design/tools/FrameRings.h"

namespace kaart {

namespace {

void copy(Design& design) {
    const Overlay& layer = design.Layer;
    const double width = design.SelectieBreedte;
    const double height = design.SelectieHoogte;
    PixelSurface piece(roundEven(width), roundEven(height));
    piece.PaintPicture(design.Pic().Image(), 0, 0, width, height, layer.Left, layer.Top, width,
                       height);
    handOver(design, piece.Image(),
             QStringLiteral("Afbeelding verslepen met muis, rechts klikken is plaatsen."), false);
}

/// Clears the selection; `finish(pic, left, top, right, bottom)` draws on what is left.
template <typename Finish>
void clear(Design& design, Finish finish) {
    const double left = design.Layer.Left;
    const double top = design.Layer.Top;
    const double right = left + design.SelectieBreedte;
    const double bottom = top + design.SelectieHoogte;
    design.changeFurther([&](PixelSurface& pic) {
        pic.Line(left, top, right, bottom, white, LineMode::FilledBox);
        finish(pic, left, top, right, bottom);
    });
}

} // namespace

void hideSelection(Design& design) {
    design.Layer.Visible = false;
    design.showOverlays();
}

void SelectieCopy(Design& design, int index) {
    design.takeUndo();
    switch (index) {
    case 2:
        copy(design);
        break;
    case 3:
        clear(design, [](PixelSurface&, double, double, double, double) {});
        break;
    case 4:
        clear(design, [](PixelSurface& pic, double left, double top, double right, double bottom) {
            pic.Line(left, top, right, bottom, black, LineMode::Box);
        });
        break;
    case 5:
        clear(design, [&](PixelSurface& pic, double left, double top, double right, double bottom) {
            TekenLijst(pic, design.LijstPic, roundEven(left), roundEven(top), roundEven(right),
                       roundEven(bottom));
        });
        break;
    default:
        break;
    }
    hideSelection(design);
}

} // namespace kaart
