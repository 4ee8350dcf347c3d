#include "design/tools/Rulers.h"

namespace kaart {

namespace {

constexpr ColorRef tickColor = RGB(120, 120, 120);
constexpr ColorRef longTickColor = RGB(250, 0, 0);
constexpr ColorRef middleColor = RGB(0, 0, 220);
constexpr int margin = 10;

/// Draws a ruler of a length; `line` draws from one depth to another at a place along the ruler.
template <typename Line>
void drawTicks(int length, Line line) {
    for (int i = margin; i <= length - margin; i += 5) {
        line(i, 6, tickColor);
        if (i % 20 == 0) {
            line(i, 3, tickColor);
        }
        if (i % 40 == 0) {
            line(i, 0, longTickColor);
        }
    }
}

} // namespace

void TekenMaat(PixelSurface& topMaat, PixelSurface& leftMaat, const QSize& canvas) {
    topMaat.BackColor = leftMaat.BackColor = rulerColor;
    topMaat.setSize(canvas.width(), rulerThickness);
    leftMaat.setSize(rulerThickness, canvas.height());
    topMaat.Cls();
    leftMaat.Cls();
    drawTicks(canvas.width(), [&](int x, int from, ColorRef colour) {
        topMaat.Line(x, from, x, rulerThickness, colour);
    });
    drawTicks(canvas.height(), [&](int y, int from, ColorRef colour) {
        leftMaat.Line(from, y, rulerThickness, y, colour);
    });
    const double middleX = topMaat.ScaleWidth() / 2;
    const double middleY = leftMaat.ScaleHeight() / 2;
    topMaat.Line(middleX - 1, 0, middleX + 1, rulerThickness, middleColor, LineMode::FilledBox);
    leftMaat.Line(0, middleY - 1, rulerThickness, middleY + 1, middleColor, LineMode::FilledBox);
}

} // namespace kaart
