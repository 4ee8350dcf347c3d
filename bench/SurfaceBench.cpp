// The surface's whole-picture operations on an upright card, beside memcpy as the limit.
#include "design/session/Design.h"
#include "design/surface/GraphicsCalls.h"

#include <benchmark/benchmark.h>

#include <random>

using namespace kaart;

namespace {

constexpr int width = 440;
constexpr int height = 640;

QImage noise() {
    std::mt19937 random(1);
    QImage picture(width, height, QImage::Format_RGB32);
    const PixelSpan span = spanOf(picture);
    std::generate(span.row(0), span.row(height),
                  [&] { return 0xFF000000U | (static_cast<Pixel>(random()) & 0xFFFFFFU); });
    return picture;
}

void floodBlank(benchmark::State& state) {
    PixelSurface surface(width, height);
    int x = 0;
    for (auto _ : state) {
        surface.FillColor = ++x % 2 == 0 ? white : black;
        ExtFloodFill(surface, 200, 300, GetPixel(surface, 200, 300), FloodType::Surface);
    }
}

/// The ground round a drawing of circles and lines.
void floodDrawing(benchmark::State& state) {
    PixelSurface surface(width, height);
    for (int i = 0; i < 40; ++i) {
        const double x = i * 97 % width;
        const double y = i * 211 % height;
        surface.Circle(x, y, 10 + i, RGB(200, 0, 0));
        surface.Line(x, y, height - y, x + 60, RGB(0, 0, 200));
    }
    for (int i = 0; i < width; i += 8) {
        surface.PSet(i, i, RGB(0, 90, 0));
    }
    bool dark = false;
    for (auto _ : state) {
        dark = !dark;
        surface.FillColor = dark ? RGB(250, 250, 200) : white;
        ExtFloodFill(surface, 0, height - 1, GetPixel(surface, 0, height - 1), FloodType::Surface);
    }
}

void copyDesign(benchmark::State& state) {
    const QImage picture = noise();
    PixelSurface surface(width, height);
    for (auto _ : state) {
        surface.PaintPicture(picture, 0, 0);
    }
}

void stretchDouble(benchmark::State& state) {
    const QImage picture = noise();
    PixelSurface surface(2 * width, 2 * height);
    for (auto _ : state) {
        surface.PaintPicture(picture, 0, 0, 2 * width, 2 * height, 0, 0, width, height);
    }
}

void shrinkHalf(benchmark::State& state) {
    const QImage picture = noise();
    PixelSurface surface(width / 2, height / 2);
    const QSize half = surface.bounds().size();
    for (auto _ : state) {
        surface.PaintPicture(picture, 0, 0, half.width(), half.height(), 0, 0, width, height);
    }
}

/// The undo copy shares its pixels; the first change after it pays for them.
void undoCopyAndFirstChange(benchmark::State& state) {
    Design design({});
    for (auto _ : state) {
        design.takeUndo();
        design.changeFurther([](PixelSurface& pic) { pic.PSet(3, 3, black); });
    }
}

} // namespace

BENCHMARK(floodBlank)->Name("flood_blank/ours/card/t1");
BENCHMARK(floodDrawing)->Name("flood_drawing/ours/card/t1");
BENCHMARK(copyDesign)->Name("copy/ours/card/t1");
BENCHMARK(stretchDouble)->Name("double2x/ours/card/t1");
BENCHMARK(shrinkHalf)->Name("shrink2x/ours/card/t1");
BENCHMARK(undoCopyAndFirstChange)->Name("undo_copy/ours/card/t1");
