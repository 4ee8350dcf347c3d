#include "design/surface/PixelSurface.h"

#include "design/surface/Blit.h"
#include "design/surface/GraphicsCalls.h"
#include "design/surface/Numbers.h"
#include "design/surface/Rasteriser.h"
#include "design/surface/RunKernels.h"

#include <cmath>
#include <utility>

namespace kaart {

namespace {

constexpr Pixel colourBits = 0x00FFFFFFU;

/// An arc's end may miss its pixel's centre by this much of a pixel.
constexpr double arcSlack = 0.49;

/// Tells which pixels of an outline lie on an arc, by the angle in the ellipse's own measure.
ArcTest arcTest(double x, double y, double rx, double ry, double start, double end) {
    constexpr double turn = 2 * std::numbers::pi;
    if (end - start >= turn - 1e-9) {
        return {};
    }
    const double slack = arcSlack / std::max({rx, ry, 1.0});
    return [=](int px, int py) {
        const double angle = std::atan2((y - py) / std::max(ry, 0.5), (px - x) / std::max(rx, 0.5));
        const double beyond = angle - (start - slack);
        return beyond - turn * std::floor(beyond / turn) <= end - start + 2 * slack;
    };
}

QRect orderedBox(int x1, int y1, int x2, int y2) {
    return {QPoint(std::min(x1, x2), std::min(y1, y2)), QPoint(std::max(x1, x2), std::max(y1, y2))};
}

} // namespace

PixelSurface::PixelSurface(int widthInPixels, int heightInPixels, ColorRef back)
    : BackColor(back), image_(ground(std::max(0, widthInPixels), std::max(0, heightInPixels))) {}

double PixelSurface::Width() const {
    return fromPixels(image_.width(), ParentUnit);
}
double PixelSurface::Height() const {
    return fromPixels(image_.height(), ParentUnit);
}
double PixelSurface::ScaleWidth() const {
    return fromPixels(image_.width(), ScaleMode);
}
double PixelSurface::ScaleHeight() const {
    return fromPixels(image_.height(), ScaleMode);
}

void PixelSurface::setSize(double width, double height) {
    const double unit = ParentUnit == ScaleUnit::Twips ? twipsPerPixel : 1;
    const QSize size(std::max(0, roundEven(width / unit)), std::max(0, roundEven(height / unit)));
    if (size == image_.size()) {
        return;
    }
    const QImage old = image_;
    image_ = ground(size.width(), size.height());
    PaintPicture(old, 0, 0);
    damage_ = bounds();
}

void PixelSurface::setPicture(const QImage& picture) {
    picture_ = toSurfaceFormat(picture);
    if (AutoSize && !picture_.isNull()) {
        image_ = picture_;
    }
    Cls();
}

PixelSpan PixelSurface::writePixels(const QRect& changed) {
    damage_ |= changed;
    return spanOf(image_);
}

void PixelSurface::setPixels(const QImage& pixels) {
    if (pixels.size() == image_.size()) {
        image_ = toSurfaceFormat(pixels);
        damage_ = bounds();
    }
}

void PixelSurface::Cls() {
    damage_ = bounds();
    if (picture_.size() == image_.size()) {
        image_ = picture_;
        return;
    }
    image_ = ground(image_.width(), image_.height());
    if (!picture_.isNull()) {
        PaintPicture(picture_, 0, 0);
    }
}

QRect PixelSurface::Refresh() {
    return std::exchange(damage_, QRect());
}

void PixelSurface::paint(const SpanMask& mask, ColorRef colour) {
    const PixelSpan span = spanOf(image_);
    const Pixel pixel = toPixel(colour);
    const bool invert = DrawMode == PenMode::Invert;
    mask.forEachRun([&](int y, int left, int right) {
        Pixel* row = span.row(y);
        if (!invert) {
            fillRun(row + left, static_cast<std::size_t>(right - left), pixel);
            return;
        }
        for (int x = left; x < right; ++x) {
            row[x] ^= colourBits;
        }
    });
    damage_ |= mask.bounds();
}

void PixelSurface::Line(double x1, double y1, double x2, double y2, ColorRef colour,
                        LineMode mode) {
    const QPoint from(toPixels(x1), toPixels(y1));
    const QPoint to(toPixels(x2), toPixels(y2));
    const QRect corners = orderedBox(from.x(), from.y(), to.x(), to.y());
    SpanMask mask(grownByPen(corners, penWidth()) & bounds());
    if (mode == LineMode::Plain) {
        addLine(mask, from, to, penWidth());
    } else if (mode == LineMode::FilledBox) {
        mask.addRect(corners);
    } else {
        addBox(mask, corners, penWidth());
        if (FillStyle == Fill::Solid) {
            SpanMask inside(mask.bounds());
            inside.addRect(corners);
            inside.subtract(mask);
            paint(inside, FillColor);
        }
    }
    paint(mask, colour);
}

void PixelSurface::Circle(double x, double y, double radius, ColorRef colour, double start,
                          double end, double aspect) {
    const double rx = aspect < 1 ? radius : radius / aspect;
    const double ry = aspect < 1 ? radius * aspect : radius;
    if (!std::isfinite(rx) || !std::isfinite(ry) || rx < 0 || ry < 0) {
        return;
    }
    const QRect box(QPoint(toPixels(x - rx), toPixels(y - ry)),
                    QPoint(toPixels(x + rx), toPixels(y + ry)));
    const double unit = ScaleMode == ScaleUnit::Twips ? twipsPerPixel : 1;
    const ArcTest arc = arcTest(x / unit, y / unit, rx / unit, ry / unit, start, end);
    const RoundedBox shape = RoundedBox::ellipse(box);
    SpanMask outline(grownByPen(box, penWidth()) & bounds());
    addRoundedOutline(outline, shape, penWidth(), arc);
    if (FillStyle == Fill::Solid && !arc) {
        SpanMask inside(outline.bounds());
        addRoundedFill(inside, shape);
        inside.subtract(outline);
        paint(inside, FillColor);
    }
    paint(outline, colour);
}

void PixelSurface::RoundRect(int left, int top, int right, int bottom, int cornerWidth,
                             int cornerHeight) {
    const QRect box(QPoint(std::min(left, right), std::min(top, bottom)),
                    QPoint(std::max(left, right) - 1, std::max(top, bottom) - 1));
    if (box.isEmpty()) {
        return;
    }
    const RoundedBox shape{box, std::clamp(cornerWidth, 1, box.width()),
                           std::clamp(cornerHeight, 1, box.height())};
    SpanMask outline(grownByPen(box, penWidth()) & bounds());
    addRoundedOutline(outline, shape, penWidth());
    if (FillStyle == Fill::Solid) {
        SpanMask inside(outline.bounds());
        addRoundedFill(inside, shape);
        inside.subtract(outline);
        paint(inside, FillColor);
    }
    paint(outline, ForeColor);
}

ColorRef PixelSurface::Point(double x, double y) const {
    return GetPixel(*this, toPixels(x), toPixels(y));
}

void PixelSurface::PSet(double x, double y, ColorRef colour) {
    SetPixelV(*this, toPixels(x), toPixels(y), colour);
}

void PixelSurface::PaintPicture(const QImage& source, double x, double y, double w, double h,
                                double sx, double sy, double sw, double sh, RasterOp rop) {
    // A second handle on the source's pixels: painting a surface onto itself reads the old ones.
    const QImage from = toSurfaceFormat(source);
    const auto axis = [this](double start, double size) {
        return BlitAxis{toPixels(start), toPixels(size)};
    };
    damage_ |= blit(spanOf(image_), {axis(x, w), axis(y, h)}, spanOf(from),
                    {axis(sx, sw), axis(sy, sh)}, rop);
}

void PixelSurface::PaintPicture(const QImage& source, double x, double y) {
    const double w = fromPixels(source.width(), ScaleMode);
    const double h = fromPixels(source.height(), ScaleMode);
    PaintPicture(source, x, y, w, h, 0, 0, w, h);
}

int PixelSurface::toPixels(double length) const {
    return roundEven(ScaleMode == ScaleUnit::Twips ? length / twipsPerPixel : length);
}

double PixelSurface::fromPixels(int length, ScaleUnit unit) const {
    return unit == ScaleUnit::Twips ? length * twipsPerPixel : length;
}

int PixelSurface::penWidth() const {
    return std::max(1, DrawWidth);
}

QImage PixelSurface::ground(int width, int height) const {
    QImage ground(width, height, QImage::Format_RGB32);
    ground.fill(toPixel(BackColor));
    return ground;
}

} // namespace kaart
