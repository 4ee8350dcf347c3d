#include "generators/Balloon.h"

#include "design/surface/Numbers.h"
#include "filters/Flip.h"

namespace kaart {

Balloon::Balloon() : backPic_(storedWidth, storedHeight), pic_(storedWidth, storedHeight) {
    backPic_.AutoSize = true;
    pic_.ParentUnit = ScaleUnit::Twips;
}

void Balloon::choose(const QImage& picture) {
    backPic_.setPicture(picture);
    pic_.setSize(storedWidth * twipsPerPixel, storedHeight * twipsPerPixel);
    pic_.setPicture(backPic_.Picture());
}

void Balloon::resize(int width, int height) {
    pic_.Cls();
    pic_.setSize(width * twipsPerPixel, height * twipsPerPixel);
    repaint();
}

void Balloon::mirrorHorizontally() {
    FlipHorizontal(backPic_);
    repaint();
}

void Balloon::mirrorVertically() {
    FlipVertical(backPic_);
    repaint();
}

void Balloon::repaint() {
    pic_.PaintPicture(backPic_.Image(), 0, 0, pic_.ScaleWidth(), pic_.ScaleHeight(), 0, 0,
                      backPic_.ScaleWidth(), backPic_.ScaleHeight());
}

} // namespace kaart
