#include "output/PrintPreview.h"

#include "design/surface/Numbers.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace kaart {

namespace {

constexpr int shortSide = 1650; // twips
constexpr int longSide = 2400;

/// What stands on a previewed sheet, in twips.
struct Sheet {
    int kind;
    std::vector<QRect> boxes;
    std::vector<QRect> pictures;
};

struct SheetPair {
    Sheet upright;
    Sheet lying;
};

const SheetPair& sheetsOf(PrintOption option) {
    static const std::array<SheetPair, 4> sheets{{
        {{1, {}, {{0, 0, shortSide, longSide}}}, {2, {}, {{0, 0, longSide, shortSide}}}},
        {{2, {{510, 300, 690, 1050}, {1200, 300, 690, 1050}}, {{540, 330, 645, 1005}}},
         {1, {{300, 510, 1050, 690}, {300, 1200, 1050, 690}}, {{330, 540, 1005, 645}}}},
        {{1,
          {},
          {{60, 60, 720, 1110},
           {855, 60, 720, 1110},
           {60, 1230, 720, 1110},
           {855, 1230, 720, 1110}}},
         {2,
          {},
          {{60, 60, 1110, 750},
           {1230, 60, 1110, 750},
           {60, 855, 1110, 750},
           {1230, 855, 1110, 750}}}},
        {{2, {}, {{1350, 120, 960, 1440}}}, {1, {}, {{105, 165, 1410, 900}}}},
    }};
    return sheets[static_cast<std::size_t>(option)];
}

const Sheet& sheetOf(PrintOption option, bool landscape) {
    const SheetPair& pair = sheetsOf(option);
    return landscape ? pair.lying : pair.upright;
}

} // namespace

void SizePreview(PixelSurface& preview, int kind) {
    const bool upright = kind == 1;
    preview.ParentUnit = ScaleUnit::Twips;
    preview.ScaleMode = ScaleUnit::Twips;
    preview.setPicture(QImage());
    preview.setSize(upright ? shortSide : longSide, upright ? longSide : shortSide);
    preview.Cls();
}

int previewKind(PrintOption option, bool landscape) {
    return sheetOf(option, landscape).kind;
}

void drawPreview(PixelSurface& preview, PrintOption option, bool landscape, const QImage& design,
                 const QImage& calendarSheet) {
    const Sheet& sheet = sheetOf(option, landscape);
    SizePreview(preview, sheet.kind);
    if (option == PrintOption::YearCalendar) {
        preview.setPicture(calendarSheet);
    }
    preview.FillColor = RGB(240, 240, 240);
    preview.FillStyle = Fill::Solid;
    for (const QRect& box : sheet.boxes) {
        preview.Line(box.x(), box.y(), box.x() + box.width(), box.y() + box.height(), black,
                     LineMode::Box);
    }
    const double width = design.width() * twipsPerPixel;
    const double height = design.height() * twipsPerPixel;
    for (const QRect& picture : sheet.pictures) {
        preview.PaintPicture(design, picture.x(), picture.y(), picture.width(), picture.height(), 0,
                             0, width, height);
    }
}

} // namespace kaart
