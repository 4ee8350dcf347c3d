#include "design/tools/TextPlacing.h"

#include "design/surface/Numbers.h"

#include <algorithm>
#include <cmath>

namespace kaart {

namespace {

constexpr int textLineMode = 21;
constexpr int slopingTextMode = 22;
constexpr int longTextMode = 23;
constexpr int gapAboveMouse = 5;
constexpr int shadowDepth = 8;
constexpr double slopingHeight = 1.55; // pixels to the point

/// The edge of open text. Kept: the topmost is there twice, which its soft pixels show.
constexpr QPoint edge[] = {{0, -2}, {1, -1}, {2, 0},   {1, 1}, {0, 2},
                           {-1, 1}, {-2, 0}, {-1, -1}, {0, -2}};

void takeStyle(PixelSurface& surface, const TextStyle& style) {
    surface.FontName = style.FontName;
    surface.FontSize = style.FontSize;
    surface.FontBold = style.FontBold;
    surface.FontItalic = style.FontItalic;
    surface.FontUnderline = style.FontUnderline;
}

/// For measuring; nothing is drawn on it.
PixelSurface surfaceWith(const TextStyle& style) {
    PixelSurface surface;
    takeStyle(surface, style);
    return surface;
}

void printAt(PixelSurface& surface, double x, double y, const QString& text, ColorRef colour) {
    surface.ForeColor = colour;
    surface.CurrentX = x;
    surface.CurrentY = y;
    surface.Print(text);
}

double widest(const PixelSurface& measure, const QStringList& lines) {
    double width = 0;
    for (const QString& line : lines) {
        width = std::max(width, measure.TextWidth(line));
    }
    return width;
}

SlopingFont slopingFont(const TextStyle& style) {
    return {.height = roundEven(style.FontSize * slopingHeight),
            .escapement = style.Graden * 10,
            .weight = style.FontBold ? 800 : 400,
            .italic = style.FontItalic,
            .underline = style.FontUnderline,
            .strikeOut = false,
            .name = style.FontName};
}

/// Shows a text above the canvas; where, is set before or afterwards.
void hang(Design& design, TextOverlay& label, const QStringList& lines) {
    const PixelSurface measure = surfaceWith(design.Tekst);
    label.Style = design.Tekst;
    label.ForeColor = design.Tekenkleur;
    label.Caption = lines.join(QLatin1Char('\n'));
    label.Width = widest(measure, lines);
    label.Height = static_cast<double>(lines.size()) * measure.TextHeight(QString());
    label.Visible = true;
    design.TekstHangt = true;
    design.showOverlays();
}

void letGo(Design& design, TextOverlay& label) {
    label.Visible = false;
    design.TekstHangt = false;
    design.showOverlays();
    design.ToonInfo();
}

} // namespace

QFont fontOf(const TextStyle& style) {
    return surfaceWith(style).font();
}

void PlaatsTekst(const Design& design, PixelSurface& surface, double x, double y,
                 const QString& text) {
    takeStyle(surface, design.Tekst);
    for (int i = design.Tekst.Schaduw ? shadowDepth : 0; i > 0; --i) {
        const int grey = 180 + 6 * i;
        printAt(surface, x + i, y + i, text, RGB(grey, grey, grey));
    }
    if (design.Tekst.Open) {
        for (const QPoint& step : edge) {
            printAt(surface, x + step.x(), y + step.y(), text, design.Tekenkleur);
        }
    }
    printAt(surface, x, y, text, design.Tekst.Open ? design.Vulkleur : design.Tekenkleur);
}

void DraaiTekst(PixelSurface& surface, const QString& text, double x, double y,
                const SlopingFont& font, ColorRef colour) {
    surface.SelectFont(font);
    printAt(surface, x, y, text, colour);
    surface.SelectFont(std::nullopt);
}

void PlaatsLangeTekst(const Design& design, PixelSurface& surface, double x, double y,
                      const QStringList& lines) {
    takeStyle(surface, design.Tekst);
    for (const PlacedLine& line : layOutLines(design.Tekst, lines, x, y)) {
        printAt(surface, line.x, line.y, line.text, design.Tekenkleur);
    }
}

QList<PlacedLine> layOutLines(const TextStyle& style, const QStringList& lines, double x,
                              double y) {
    const PixelSurface measure = surfaceWith(style);
    const double width = widest(measure, lines);
    const double step = measure.TextHeight(QString());
    QList<PlacedLine> placed;
    for (const QString& line : lines) {
        double left = x;
        if (style.Alignment == TextAlignment::Right) {
            left = std::floor(x + width) - measure.TextWidth(line);
        } else if (style.Alignment == TextAlignment::Center) {
            left = std::floor(x + width / 2) - measure.TextWidth(line) / 2;
        }
        placed << PlacedLine{line, left, y + static_cast<double>(placed.size()) * step};
    }
    return placed;
}

bool hangTextLine(Design& design) {
    if (design.Tekst.Text.trimmed().isEmpty()) {
        return false;
    }
    design.setTekenModus(design.Tekst.Diagonal ? slopingTextMode : textLineMode);
    design.takeUndo();
    design.Gewijzigd = true;
    design.ToonInfo(QStringLiteral("Linkermuisknop is plaatsen van de tekst op het ontwerp."), 90,
                    90, 90);
    hang(design, design.TextLabel, {design.Tekst.Text + QLatin1Char(' ')});
    return true;
}

void moveTextLine(Design& design, QPoint mouse) {
    TextOverlay& label = design.TextLabel;
    label.Left = mouse.x();
    label.Top = mouse.y() - label.Height - gapAboveMouse;
    if (label.Visible) {
        design.showOverlays();
    }
}

void placeTextLine(Design& design, QPoint mouse) {
    const TextStyle& style = design.Tekst;
    design.change([&](PixelSurface& pic) {
        if (design.TekenModus == textLineMode) {
            PlaatsTekst(design, pic, mouse.x(), mouse.y() - design.TextLabel.Height - gapAboveMouse,
                        style.Text);
        } else if (design.TekenModus == slopingTextMode) {
            DraaiTekst(pic, style.Text, mouse.x(), mouse.y(), slopingFont(style),
                       design.Tekenkleur);
        }
    });
    letGo(design, design.TextLabel);
}

void hangLongText(Design& design, const QStringList& lines) {
    design.setTekenModus(longTextMode);
    design.Gewijzigd = true;
    design.ToonInfo(QStringLiteral("Beweeg de tekst met de muis, rechts klikken is plaatsen."), 170,
                    0, 0);
    design.TextLabel2.Left = 0;
    design.TextLabel2.Top = 0;
    hang(design, design.TextLabel2, lines);
}

void grabLongText(Design& design, QPoint at) {
    design.GrijpX = at.x();
    design.GrijpY = at.y();
}

void dragLongText(Design& design, QPoint at) {
    design.TextLabel2.Left += at.x() - design.GrijpX;
    design.TextLabel2.Top += at.y() - design.GrijpY;
    design.showOverlays();
}

void placeLongText(Design& design, const QStringList& lines) {
    const TextOverlay& label = design.TextLabel2;
    design.change([&](PixelSurface& pic) {
        PlaatsLangeTekst(design, pic, label.Left + longTextInset, label.Top + longTextInset, lines);
    });
    letGo(design, design.TextLabel2);
}

} // namespace kaart
