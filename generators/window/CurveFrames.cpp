#include "generators/window/CurveFrames.h"

#include "generators/CurvedText.h"

#include <array>

namespace kaart {

namespace {

using Values = std::span<const int>;

constexpr SliderRow circleSliders[] = {{"HScroll2", "Label1", "Radius", 0, 200, 0},
                                       {"HScroll3", "Label2", "Arc", 0, 360, 360},
                                       {"HScroll7", "Label3", "Deg", 1, 180, 1}};

constexpr SliderRow rotateSliders[] = {{"HScroll4", "Label4", "Radius", 0, 360, 0},
                                       {"HScroll5", "Label5", "Lengte", 0, 50, 25}};

constexpr SliderRow waveSliders[] = {{"HScroll13", "Label6", "Sinus", 0, 100, 30},
                                     {"HScroll6", "Label7", "Curves", 0, 1800, 300},
                                     {"HScroll1", "Label8", "Lengte", 0, 100, 0}};

constexpr SliderRow ellipseSliders[] = {{"HScroll9", "Label9", "Radius", 0, 200, 0},
                                        {"HScroll10", "Label10", "Arc", 0, 360, 360},
                                        {"HScroll8", "Label11", "Deg", 1, 180, 1},
                                        {"HScroll11", "Label12", "X-Fact", 1, 100, 1},
                                        {"HScroll12", "Label14", "Y-Fact", 1, 100, 1}};

QPoint startOf(const PixelSurface& surface, const QString& text, int Lengte = 0) {
    return curveStart(surface, static_cast<int>(text.size()), Lengte);
}

void drawCircle(PixelSurface& surface, const QString& text, Values v) {
    const QPoint start = startOf(surface, text);
    CircleText(surface, start.x(), start.y(), v[0], v[2], v[1], text);
}

void drawRotated(PixelSurface& surface, const QString& text, Values v) {
    const QPoint start = startOf(surface, text);
    RotateText(surface, start.x(), start.y(), v[0], v[1], text);
}

void drawWave(PixelSurface& surface, const QString& text, Values v) {
    const QPoint start = startOf(surface, text, v[2]);
    WaveText(surface, start.x(), start.y(), v[2], v[1], v[0], text);
}

void drawEllipse(PixelSurface& surface, const QString& text, Values v) {
    const QPoint start = startOf(surface, text);
    ElipticText(surface, start.x(), start.y(), v[0], v[2], v[3], v[4], v[1], text);
}

const std::array table = {
    CurveFrame{"Frame1", " Circel Tekst ", 60, 1560, circleSliders, drawCircle},
    CurveFrame{"Frame2", " Rotatie Tekst ", 1725, 1170, rotateSliders, drawRotated},
    CurveFrame{"Frame3", " Wave Tekst ", 3000, 1560, waveSliders, drawWave},
    CurveFrame{"Frame4", " Ellips Tekst ", 4680, 2340, ellipseSliders, drawEllipse},
};

} // namespace

std::span<const CurveFrame> curveFrames() {
    return table;
}

} // namespace kaart
