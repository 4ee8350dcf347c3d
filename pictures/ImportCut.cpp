#include "pictures/ImportCut.h"

#include "design/surface/FileList.h"

namespace kaart {

QStringList importFileNames(const QString& folder) {
    return fileNames(folder,
                     {QStringLiteral("*.bmp"), QStringLiteral("*.gif"), QStringLiteral("*.jpg")});
}

QSize importPreviewSize(const QSize& picture) {
    constexpr int longSide = 2520;
    constexpr int shortSide = 1650;
    return {picture.width() < picture.height() ? shortSide : longSide,
            picture.height() < picture.width() ? shortSide : longSide};
}

void paintImport(PixelSurface& pic, const QImage& picture, const QRectF& selection) {
    pic.PaintPicture(picture, selection.left(), selection.top(), selection.width(),
                     selection.height(), 0, 0, picture.width(), picture.height());
}

} // namespace kaart
