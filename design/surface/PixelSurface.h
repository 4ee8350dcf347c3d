#pragma once

#include "design/surface/ColorRef.h"
#include "design/surface/PixelSpan.h"
#include "design/surface/SpanMask.h"

#include <QFont>
#include <QImage>
#include <QRect>
#include <QString>

#include <numbers>
#include <optional>

namespace kaart {

enum class ScaleUnit { Twips = 1, Pixels = 3 };
enum class Fill { Solid = 0, Transparent = 1 };
enum class PenMode { Invert = 6, Copy = 13 };
enum class LineMode { Plain, Box, FilledBox };

/// How a source pixel meets the pixel that it covers: S, S & D, ~S | D.
enum class RasterOp : std::uint32_t {
    Copy = 0x00CC0020,
    And = 0x008800C6,
    MergePaint = 0x00BB0226
};

/// A font as the platform's CreateFontA takes it.
struct SlopingFont {
    int height = 16;    ///< pixels, ascent + descent; below 1 counts as 1
    int escapement = 0; ///< tenths of a degree, counter-clockwise
    int weight = 400;   ///< 400 normal, 800 bold
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    QString name;
};

/// A raster image with drawing state; everything that the program draws on.
///
/// `Picture` is the background, `Image` the present content: background and all drawing. Both are
/// kept in surface format; an empty `Picture` stands for a ground of `BackColor`. Coordinates and
/// lengths of the operations are in the unit of `ScaleMode` and are rounded to whole pixels, a half
/// to even; nothing outside the surface is ever touched and nothing fails. Copies share their
/// pixels until one of them is drawn on.
class PixelSurface {
public:
    /// A surface of so many pixels, filled with `back`. Negative sizes count as 0.
    explicit PixelSurface(int widthInPixels = 0, int heightInPixels = 0, ColorRef back = white);

    // Place and size, as a parent sees them.
    double Left = 0; ///< in ParentUnit
    double Top = 0;  ///< in ParentUnit
    bool Visible = true;
    ScaleUnit ParentUnit = ScaleUnit::Pixels;
    /// Takes on the size of every picture that is set; an empty picture leaves the size.
    bool AutoSize = false;
    /// All drawing goes to Image and stays there.
    static constexpr bool AutoRedraw = true;
    double Width() const;  ///< in ParentUnit
    double Height() const; ///< in ParentUnit
    /// New outer size in ParentUnit. Content that still fits stays, new ground is BackColor.
    void setSize(double width, double height);

    // Inner size, in the unit of ScaleMode.
    ScaleUnit ScaleMode = ScaleUnit::Pixels;
    double ScaleWidth() const;
    double ScaleHeight() const;

    // Drawing state.
    ColorRef ForeColor = black;
    ColorRef BackColor;
    ColorRef FillColor = black;
    Fill FillStyle = Fill::Transparent;
    int DrawWidth = 1; ///< pixels; below 1 counts as 1
    PenMode DrawMode = PenMode::Copy;
    double CurrentX = 0;
    double CurrentY = 0;

    // Text state.
    QString FontName = QStringLiteral("Arial");
    double FontSize = 8; ///< points, at 96 to the inch: 12 points are 16 pixels
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontTransparent = true; ///< off: text stands on a box of BackColor

    const QImage& Picture() const { return picture_; }
    const QImage& Image() const { return image_; }
    /// Sets the background and drops all drawing. The picture stands at (0, 0), unstretched; what
    /// it leaves free is BackColor.
    void setPicture(const QImage& picture);

    /// The pixels of Image, for kernels. Writing counts as a change of the rectangle, in pixels.
    ConstPixelSpan pixels() const { return spanOf(image_); }
    PixelSpan writePixels(const QRect& changed);
    PixelSpan writePixels() { return writePixels(bounds()); }
    /// Replaces all pixels of Image at once; a picture of another size is refused. Picture stays.
    void setPixels(const QImage& pixels);
    /// The surface is its own device context for the calls of GraphicsCalls.h.
    PixelSurface& hDC() { return *this; }

    void Cls();
    /// What changed since the last call, in pixels, for whoever shows the surface.
    QRect Refresh();

    /// Pen 1: the start belongs to the line and the end does not, the nearest pixel of each step, a
    /// half toward the smaller coordinate. Wider pens: the pixels whose centre lies in the capsule
    /// of that width round the line, an even width leaning up and left. A box includes both its
    /// corners, however they are given; with FillStyle solid its inside becomes FillColor. A filled
    /// box ignores the pen width. In pen mode Invert colours play no part.
    void Line(double x1, double y1, double x2, double y2, ColorRef colour,
              LineMode mode = LineMode::Plain);

    /// Ellipse or arc, `start` to `end` radians counter-clockwise from east. `aspect` is height to
    /// width: below 1 the radius is the horizontal one, else the vertical one. Spans the pixels
    /// round(x - rx) to round(x + rx), both included. A full ellipse with FillStyle solid is filled
    /// with FillColor. A negative or infinite measure draws nothing.
    void Circle(double x, double y, double radius, ColorRef colour, double start = 0,
                double end = 2 * std::numbers::pi, double aspect = 1);

    /// Rounded rectangle over [left, right) x [top, bottom), in pixels, outlined in ForeColor and,
    /// with FillStyle solid, filled with FillColor. The corners are quarters of an ellipse of
    /// min(corner, side).
    void RoundRect(int left, int top, int right, int bottom, int cornerWidth, int cornerHeight);

    ColorRef Point(double x, double y) const; ///< noColor outside
    void PSet(double x, double y, ColorRef colour);

    /// Copies the part (sx, sy, sw, sh) of an image into (x, y, w, h). Equal sizes copy, enlarging
    /// takes the nearest source pixel, reducing the mean of those that a pixel covers. A negative
    /// size mirrors and counts from its start backwards. Where the source ends the target stays.
    void PaintPicture(const QImage& source, double x, double y, double w, double h, double sx,
                      double sy, double sw, double sh, RasterOp rop = RasterOp::Copy);
    /// The same for a whole image in its own size.
    void PaintPicture(const QImage& source, double x, double y);

    /// Writes at (CurrentX, CurrentY), the text's top left, and moves CurrentY down a line.
    void Print(const QString& text);
    QFont font() const; ///< what Print writes in now
    double TextWidth(const QString& text) const;
    double TextHeight(const QString& text) const;
    /// From here Print writes in this font instead of the text state's; nullopt ends it.
    void SelectFont(std::optional<SlopingFont> font) { selectedFont_ = std::move(font); }

    /// Writes every pixel of a mask once, in a colour or inverted as DrawMode says.
    void paint(const SpanMask& mask, ColorRef colour);
    QRect bounds() const { return image_.rect(); } ///< the drawable pixels

private:
    int toPixels(double length) const;
    double fromPixels(int length, ScaleUnit unit) const;
    int penWidth() const;
    QImage ground(int width, int height) const;

    QImage picture_;
    QImage image_;
    QRect damage_;
    std::optional<SlopingFont> selectedFont_;
};

} // namespace kaart
