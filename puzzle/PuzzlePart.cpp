#include "puzzle/PuzzlePart.h"

namespace kaart {

namespace {

constexpr double overlap = 10; // of neighbours
constexpr double unseen = 60;  // kept: a strip of the picture at its right and bottom
constexpr int margin = 25;

PixelSurface paintTile(const PixelSurface& picSource, int ColCount, int RowCount, int i, int j,
                       double width, double height) {
    const double tileWidth = (picSource.Width() - unseen) / ColCount;
    const double tileHeight = (picSource.Height() - unseen) / RowCount;
    PixelSurface tile;
    tile.ParentUnit = ScaleUnit::Twips;
    tile.ScaleMode = ScaleUnit::Twips;
    tile.setSize(width, height);
    tile.PaintPicture(picSource.Image(), 0, 0, width, height, tileWidth * (i - 1),
                      tileHeight * (j - 1), tileWidth, tileHeight);
    return tile;
}

} // namespace

std::optional<PartSize> fitParts(const PixelSurface& picSource, int ColCount, int RowCount,
                                 int MaxWidth, int MaxHeight) {
    const bool hasPicture = picSource.Width() > 0 && picSource.Height() > 0;
    if (!hasPicture || ColCount < 1 || RowCount < 1 || MaxWidth <= 0 || MaxHeight <= margin) {
        return std::nullopt;
    }
    const double ratio = picSource.Height() / picSource.Width();
    const double height = MaxHeight - margin;
    PartSize size{static_cast<float>(height / ratio / ColCount),
                  static_cast<float>(height / RowCount)};
    if (static_cast<float>(ColCount) * size.PartWidth > static_cast<float>(MaxWidth)) {
        // Kept: this fit uses the whole width, without a margin.
        size = {static_cast<float>(1.0 * MaxWidth / ColCount),
                static_cast<float>(MaxWidth * ratio / RowCount)};
    }
    return size;
}

PuzzlePart makePart(const PixelSurface& picSource, int ColCount, int RowCount, int i, int j,
                    const PartSize& size) {
    const int k = (i - 1) * RowCount + j;
    const double width = size.PartWidth + overlap;
    const double height = size.PartHeight + overlap;
    return {.Index = k,
            .Left = (i - 1) * static_cast<double>(size.PartWidth) + 10,
            .Top = (j - 1) * static_cast<double>(size.PartHeight) + 20,
            .Width = width,
            .Height = height,
            .Tag = k,
            .BorderStyle = 0,
            .Visible = true,
            .Picture = paintTile(picSource, ColCount, RowCount, i, j, width, height)};
}

} // namespace kaart
