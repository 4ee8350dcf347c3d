#pragma once

#include "design/surface/PixelSurface.h"

#include <QRectF>
#include <QStringList>

namespace kaart {

/// The names of a folder's picture files *.bmp, *.gif and *.jpg, matched and sorted without regard
/// to case. Empty for a folder that can't be read.
QStringList importFileNames(const QString& folder);

/// The preview of a picture of so many pixels, in twips: lying, upright or square by its shape.
QSize importPreviewSize(const QSize& picture);

/// Stretches a whole picture into a rectangle of the design, in pixels, without regard to its
/// proportions; what exceeds the design is cut off. An empty picture changes nothing.
void paintImport(PixelSurface& pic, const QImage& picture, const QRectF& selection);

} // namespace kaart
