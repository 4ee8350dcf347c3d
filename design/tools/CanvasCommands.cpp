#include "design/tools/CanvasCommands.h"

#include "design/surface/Numbers.h"
#include "filters/Gradient.h"

#include <QStringList>

namespace kaart {

namespace {

constexpr int circular = 5;
constexpr int circleSteps = 255;
constexpr float middle = -1;
constexpr double twipsPerInch = 1440;
const QString lineEnd = QStringLiteral("\r\n");

} // namespace

void ToolsRanden(Design& design, int index) {
    design.change([&design, index](PixelSurface& pic) {
        for (int k = 0; k <= index; ++k) {
            pic.Line(k, k, pic.ScaleWidth() - k - 1, pic.ScaleHeight() - k - 1, design.Tekenkleur,
                     LineMode::Box);
        }
    });
}

void GradientRichting(Design& design, int index) {
    design.change([&design, index](PixelSurface& pic) {
        if (index == circular) {
            GradientCircle(pic, design.Tekenkleur, design.Vulkleur, circleSteps, middle, middle);
        } else {
            GradientFillPicture(pic, design.Tekenkleur, index, design.Vulkleur);
        }
    });
}

QString screenInfo(double dpi, const QSize& pixels) {
    const double twips = twipsPerInch / dpi; // to the dot
    const auto told = [twips](int dots) { return roundEven(dots * twips / twipsPerPixel); };
    return QStringList{
        QStringLiteral("Schermresolutie... : %1 Dpi (Dots / Inch)")
            .arg(roundEven(twipsPerInch / twips)),
        QStringLiteral("Schermgrootte..... : %1 x %2 Pixels")
            .arg(told(pixels.width()))
            .arg(told(pixels.height())),
        QStringLiteral("------------------------------------------"),
        QStringLiteral("Is de Schermresolutie ongelijk dan 96 Dpi"),
        QStringLiteral("kijk dan onder Help/Wijzig Resolutie voor"),
        QStringLiteral("het wijzigen van de Schermresolutie voor"),
        QStringLiteral("de versies Windows XP en Windows 7 en 8."),
    }
        .join(lineEnd);
}

QString specialCharacters() {
    return QStringList{
        QStringLiteral("Bijzondere combinaties"),
        QStringLiteral("-------------------------"),
        QStringLiteral("á  = Ctrl-Alt - a / 160"),
        QStringLiteral("é  = Ctrl-Alt - e / 130"),
        QStringLiteral("ó  = Ctrl-Alt - o / 162"),
        QStringLiteral("ä  = Ctrl-Alt - q / 132"),
        QStringLiteral("ü  = Ctrl-Alt - y / 129"),
        QStringLiteral("ö  = Ctrl-Alt - p / 148"),
        QStringLiteral("ú  = Ctrl-Alt - u / 163"),
        QStringLiteral("µ  = Ctrl-Alt - m / 230"),
        QString(),
        QStringLiteral("© = Ctrl-Alt - c"),
        QStringLiteral(" ²  = Ctrl-Alt - 2"),
        QStringLiteral(" ³  = Ctrl-Alt - 3"),
        QStringLiteral("€   = Ctrl-Alt - 5"),
        QStringLiteral("¼ = Ctrl-Alt - 6 / 172"),
        QStringLiteral("½ = Ctrl-Alt - 7 / 171"),
        QStringLiteral("¾ = Ctrl-Alt - 8"),
    }
        .join(lineEnd);
}

} // namespace kaart
