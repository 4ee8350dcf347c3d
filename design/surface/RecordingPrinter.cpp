#include "design/surface/RecordingPrinter.h"

#include <initializer_list>

namespace kaart {

namespace {

constexpr double twipsPerPoint = 20;

QString join(std::initializer_list<double> numbers) {
    QStringList words;
    for (const double number : numbers) {
        words += QString::number(number, 'g', 10);
    }
    return words.join(QLatin1Char(' '));
}

QString hex(ColorRef colour) {
    return QStringLiteral("%1").arg(swapRedBlue(colour), 6, 16, QLatin1Char('0')).toUpper();
}

} // namespace

void RecordingPrinter::note(const QString& line) {
    if (!onSheet_) {
        Log += QStringLiteral("Sheet %1").arg(Orientation);
        onSheet_ = true;
    }
    Log += line;
}

void RecordingPrinter::PaintPicture(const QImage& source, double x, double y, double w, double h,
                                    double sx, double sy, double sw, double sh, RasterOp) {
    Pictures += source;
    note(QStringLiteral("PaintPicture %1 from %2").arg(join({x, y, w, h}), join({sx, sy, sw, sh})));
}

void RecordingPrinter::Line(double x1, double y1, double x2, double y2, ColorRef colour,
                            LineMode mode) {
    QString line = QStringLiteral("Line %1 %2").arg(join({x1, y1, x2, y2}), hex(colour));
    if (mode == LineMode::FilledBox) {
        line += QStringLiteral(" B fill %1").arg(hex(colour));
    } else if (mode == LineMode::Box) {
        line += QStringLiteral(" B");
        if (FillStyle == Fill::Solid) {
            line += QStringLiteral(" fill %1").arg(hex(FillColor));
        }
    }
    note(line);
}

void RecordingPrinter::Print(const QString& text) {
    note(QStringLiteral("Print %1 %2 %3%4 %5 ")
             .arg(join({CurrentX, CurrentY}), FontName, join({FontSize}),
                  FontBold ? QStringLiteral(" bold") : QString(), hex(ForeColor)) +
         text);
    CurrentY += TextHeight(text);
}

double RecordingPrinter::TextWidth(const QString& text) const {
    return static_cast<double>(text.size()) * FontSize * twipsPerPoint / 2;
}

double RecordingPrinter::TextHeight(const QString&) const {
    return FontSize * twipsPerPoint;
}

void RecordingPrinter::NewPage() {
    Log += QStringLiteral("NewPage");
    onSheet_ = false;
}

bool RecordingPrinter::EndDoc() {
    Log += QStringLiteral("EndDoc");
    onSheet_ = false;
    return !Fails;
}

} // namespace kaart
