#include "controls/PaperPrinter.h"

#include "controls/Palette.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace kaart {

namespace {

constexpr int twipsPerInch = 1440;
constexpr int twipsPerPoint = 20;
constexpr double outline = 10;       // twips; a printer's own dot is too fine to be seen
constexpr double farthest = 1000000; // twips; what lies beyond is no place on a sheet

bool isPlace(std::initializer_list<double> lengths) {
    return std::all_of(lengths.begin(), lengths.end(), [](double length) {
        return std::isfinite(length) && std::fabs(length) <= farthest;
    });
}

// One by one: a printer that doesn't reach the sheet's edges refuses a layout without margins as a
// whole, orientation included.
void setUpSheet(QPagedPaintDevice& device, int orientation) {
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageOrientation(orientation == 1 ? QPageLayout::Portrait : QPageLayout::Landscape);
    device.setPageMargins(QMarginsF(0, 0, 0, 0));
}

PaperPrinter::Paper pdfPaper(const QString& path) {
    auto file = std::make_shared<QSaveFile>(path);
    if (!file->open(QIODevice::WriteOnly)) {
        return {};
    }
    auto writer = std::make_unique<QPdfWriter>(file.get());
    writer->setResolution(twipsPerInch);
    writer->setCreator(QStringLiteral("Mijn Kaartwerkje"));
    // A commit alone does not tell of a full disk.
    return {std::move(writer), twipsPerInch, [file] { return file->flush() && file->commit(); }};
}

PaperPrinter::Paper systemPaper(const QString& name) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(name);
    printer->setFullPage(true);
    printer->setDocName(QStringLiteral("Mijn Kaartwerkje"));
    const QPrinter* job = printer.get();
    const int resolution = printer->resolution();
    return {std::move(printer), resolution,
            [job] { return job->printerState() != QPrinter::Error; }};
}

} // namespace

std::unique_ptr<PaperPrinter> PaperPrinter::forSystemPrinter(const QString& name) {
    return std::make_unique<PaperPrinter>(name, [name] { return systemPaper(name); });
}

std::unique_ptr<PaperPrinter> PaperPrinter::forPdf(const QString& name, const QString& path) {
    return std::make_unique<PaperPrinter>(name, [path] { return pdfPaper(path); });
}

PaperPrinter::PaperPrinter(QString deviceName, PaperMaker makePaper)
    : deviceName_(std::move(deviceName)), makePaper_(std::move(makePaper)) {}

PaperPrinter::~PaperPrinter() {
    if (painter_.isActive()) {
        painter_.end();
    }
    paper_.device.reset(); // it may still point into what `finish` keeps
}

void PaperPrinter::PaintPicture(const QImage& source, double x, double y, double w, double h,
                                double sx, double sy, double sw, double sh, RasterOp) {
    const QRect wanted(qRound(sx), qRound(sy), qRound(sw), qRound(sh));
    if (!isPlace({x, y, w, h}) || !source.rect().contains(wanted) || wanted.isEmpty() ||
        !startSheet()) {
        return;
    }
    const QImage part = wanted == source.rect() ? source : source.copy(wanted);
    painter_.drawImage(QRectF(x, y, w, h).normalized(), part.mirrored(w < 0, h < 0));
}

void PaperPrinter::Line(double x1, double y1, double x2, double y2, ColorRef colour,
                        LineMode mode) {
    if (!isPlace({x1, y1, x2, y2}) || !startSheet()) {
        return;
    }
    painter_.setPen(QPen(toQColor(colour), outline, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    if (mode == LineMode::Plain) {
        painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
        return;
    }
    const QRectF box = QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
    if (mode == LineMode::FilledBox) {
        painter_.fillRect(box, toQColor(colour));
        return;
    }
    painter_.setBrush(FillStyle == Fill::Solid ? QBrush(toQColor(FillColor)) : Qt::NoBrush);
    painter_.drawRect(box);
}

void PaperPrinter::Print(const QString& text) {
    if (isPlace({CurrentX, CurrentY}) && startSheet()) {
        painter_.setFont(font());
        painter_.setPen(toQColor(ForeColor));
        painter_.drawText(QPointF(CurrentX, CurrentY + QFontMetricsF(font()).ascent()), text);
    }
    CurrentY += TextHeight(text);
}

double PaperPrinter::TextWidth(const QString& text) const {
    return QFontMetricsF(font()).horizontalAdvance(text);
}

double PaperPrinter::TextHeight(const QString&) const {
    return QFontMetricsF(font()).height();
}

void PaperPrinter::NewPage() {
    onSheet_ = false;
}

bool PaperPrinter::EndDoc() {
    const bool painted = !painter_.isActive() || painter_.end();
    const bool finished = !paper_.device || paper_.finish();
    const bool came = painted && finished && !failed_;
    paper_.device.reset(); // it may still point into what `finish` keeps
    paper_ = {};
    onSheet_ = false;
    failed_ = false;
    return came;
}

/// Makes sure of a sheet to draw on; false when there's none to be had.
bool PaperPrinter::startSheet() {
    if (onSheet_ || failed_) {
        return onSheet_;
    }
    if (!paper_.device) {
        onSheet_ = startJob();
    } else {
        setUpSheet(*paper_.device, Orientation);
        onSheet_ = paper_.device->newPage() || fail();
    }
    return onSheet_;
}

bool PaperPrinter::startJob() {
    paper_ = makePaper_();
    if (!paper_.device) {
        return fail();
    }
    setUpSheet(*paper_.device, Orientation);
    if (!painter_.begin(paper_.device.get())) {
        return fail();
    }
    const double scale = static_cast<double>(paper_.resolution) / twipsPerInch;
    painter_.scale(scale, scale);
    painter_.setRenderHint(QPainter::LosslessImageRendering);
    return true;
}

bool PaperPrinter::fail() {
    failed_ = true;
    return false;
}

/// The text state's font, sized in twips: the painter's unit.
QFont PaperPrinter::font() const {
    QFont font(FontName);
    font.setPixelSize(std::max(1, qRound(FontSize * twipsPerPoint)));
    font.setBold(FontBold);
    return font;
}

} // namespace kaart
