#pragma once

#include "design/surface/PrinterObject.h"

#include <QList>
#include <QStringList>

namespace kaart {

/// A printer that only notes down what is asked of it. Numbers are written as %g does.
class RecordingPrinter final : public PrinterObject {
public:
    /// One line for each call, in order:
    ///   "Sheet <Orientation>"          before the first drawing of each sheet
    ///   "PaintPicture x y w h from sx sy sw sh"
    ///   "Line x1 y1 x2 y2 <colour as RRGGBB>", for a box " B" and, where filled, " fill <RRGGBB>"
    ///   "Print x y <FontName> <FontSize>[ bold] <RRGGBB> <text>"
    ///   "NewPage", "EndDoc"
    QStringList Log;
    QList<QImage> Pictures; ///< the sources of PaintPicture, in order
    bool Fails = false;     ///< makes EndDoc answer false

    QString DeviceName() const override { return QStringLiteral("Recorder"); }
    void PaintPicture(const QImage& source, double x, double y, double w, double h, double sx,
                      double sy, double sw, double sh, RasterOp rop = RasterOp::Copy) override;
    void Line(double x1, double y1, double x2, double y2, ColorRef colour,
              LineMode mode = LineMode::Plain) override;
    void Print(const QString& text) override;
    /// Every letter is half as wide as the font is high, a line is as high as the font.
    double TextWidth(const QString& text) const override;
    double TextHeight(const QString& text) const override;
    void NewPage() override;
    bool EndDoc() override;

private:
    void note(const QString& line);

    bool onSheet_ = false;
};

} // namespace kaart
