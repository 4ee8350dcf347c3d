#pragma once

#include "design/surface/PixelSurface.h"

#include <QImage>
#include <QString>

namespace kaart {

/// A printer as page layouts see it: the printer members by their own names. All measures are twips
/// from the sheet's top left corner; the sheet is taken to be A4, 11910 x 16845 upright, whatever
/// the printer says. A member that fails does nothing; whether the job came out is told at the end.
class PrinterObject {
public:
    virtual ~PrinterObject() = default;
    PrinterObject() = default;
    PrinterObject(const PrinterObject&) = delete;
    PrinterObject& operator=(const PrinterObject&) = delete;

    virtual QString DeviceName() const = 0;

    ScaleUnit ScaleMode = ScaleUnit::Twips;
    int Orientation = 1; ///< 1 portrait, 2 landscape; counts from the next page on
    QString FontName = QStringLiteral("Arial");
    double FontSize = 8; ///< points
    bool FontBold = false;
    ColorRef ForeColor = black;
    ColorRef FillColor = black;
    Fill FillStyle = Fill::Transparent;
    double CurrentX = 0;
    double CurrentY = 0;

    /// Stretches the source's part (sx, sy, sw, sh), in pixels, over the target in twips.
    virtual void PaintPicture(const QImage& source, double x, double y, double w, double h,
                              double sx, double sy, double sw, double sh,
                              RasterOp rop = RasterOp::Copy) = 0;
    /// A box with FillStyle solid gets its inside in FillColor.
    virtual void Line(double x1, double y1, double x2, double y2, ColorRef colour,
                      LineMode mode = LineMode::Plain) = 0;
    /// Writes at (CurrentX, CurrentY), the text's top left, and moves CurrentY down a line.
    virtual void Print(const QString& text) = 0;
    virtual double TextWidth(const QString& text) const = 0;  ///< twips
    virtual double TextHeight(const QString& text) const = 0; ///< twips
    /// Ends the sheet. A sheet on which nothing was drawn is dropped at EndDoc.
    virtual void NewPage() = 0;
    /// Ends the job. False when any of it could not be written.
    virtual bool EndDoc() = 0;
};

} // namespace kaart
