#pragma once

#include "design/surface/PixelSurface.h"

#include <QImage>

namespace kaart {

/// A speech balloon at the size that the user wants. It is always stretched from its own picture,
/// so that no number of sizes and mirrorings wears it.
class Balloon {
public:
    static constexpr int storedWidth = 150;  ///< pixels
    static constexpr int storedHeight = 100; ///< pixels

    Balloon();

    /// Takes a balloon's picture, at its stored size and not mirrored.
    void choose(const QImage& picture);
    /// Stretches it to so many pixels. Negative sizes count as 0.
    void resize(int width, int height);
    void mirrorHorizontally();
    void mirrorVertically();

    const PixelSurface& BackPic() const { return backPic_; } ///< as stored, mirrored
    const PixelSurface& Pic() const { return pic_; }         ///< mirrored and stretched

private:
    void repaint();

    PixelSurface backPic_;
    PixelSurface pic_;
};

} // namespace kaart
