#pragma once

#include "design/surface/PrinterObject.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include <functional>
#include <memory>

namespace kaart {

/// A printer object that paints on A4 paper, or on the sheets of a PDF file, in full-page mode with
/// no margins. Pictures go out as they are, pixel for pixel and lossless; they are only ever
/// copied, a negative target size mirrors. Nothing reaches the device before the first drawing, and
/// a sheet on which nothing was drawn is left out. After EndDoc a new job may be started.
class PaperPrinter final : public PrinterObject {
public:
    /// What a job is painted on. `finish` is called once at its end, when all painting is done, and
    /// tells whether the job came out.
    struct Paper {
        std::unique_ptr<QPagedPaintDevice> device;
        int resolution = 0; ///< dots per inch
        std::function<bool()> finish;
    };
    /// Makes the paper of one job. A paper without device is a job that fails.
    using PaperMaker = std::function<Paper()>;

    /// A printer of the system, by name.
    static std::unique_ptr<PaperPrinter> forSystemPrinter(const QString& name);
    /// A PDF file, which appears whole at EndDoc or not at all; an older one stays until then.
    static std::unique_ptr<PaperPrinter> forPdf(const QString& name, const QString& path);

    PaperPrinter(QString deviceName, PaperMaker makePaper);
    ~PaperPrinter() override;

    QString DeviceName() const override { return deviceName_; }
    void PaintPicture(const QImage& source, double x, double y, double w, double h, double sx,
                      double sy, double sw, double sh, RasterOp rop = RasterOp::Copy) override;
    void Line(double x1, double y1, double x2, double y2, ColorRef colour,
              LineMode mode = LineMode::Plain) override;
    void Print(const QString& text) override;
    double TextWidth(const QString& text) const override;
    double TextHeight(const QString& text) const override;
    void NewPage() override;
    bool EndDoc() override;

private:
    bool startSheet();
    bool startJob();
    bool fail();
    QFont font() const;

    QString deviceName_;
    PaperMaker makePaper_;
    Paper paper_;
    QPainter painter_;
    bool onSheet_ = false;
    bool failed_ = false;
};

} // namespace kaart
