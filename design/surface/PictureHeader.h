#pragma once

#include <QByteArray>
#include <QRgb>
#include <QSize>

#include <optional>

namespace kaart {

enum class PictureFormat { Bmp, Gif, Jpeg, Png };

/// What a picture file says of itself before anything is decoded.
struct PictureHeader {
    PictureFormat format;
    /// Pixels as stored, before any EXIF rotation. For a GIF its canvas.
    QSize size;
    /// What the decoder makes of white, for it only shifts the few bits of a 16-bit BMP to the
    /// left.
    QRgb brightest = 0xFFFFFFFF;
};

inline constexpr qint64 maxPictureFile = qint64{256} << 20; ///< bytes
inline constexpr int maxPictureSide = 32'767;               ///< pixels
inline constexpr qint64 maxPicturePixels = 100'000'000;

/// Looks at the bytes of a whole file, decodes nothing and takes time in proportion to the number
/// of its parts (a JPEG's bytes are searched for its markers). Nothing comes back for a file
///  - of another format than BMP, GIF, JPEG (Huffman, baseline or progressive) or PNG;
///  - without a pixel, over 32,767 pixels a side or over 100 megapixels;
///  - that is cut off: rows of a BMP beyond its end, a run-length BMP without its end code, a chunk
///    or block that is longer than the rest of the file, a JPEG without EOI, a PNG without IEND;
///  - whose data cannot make so many pixels at the highest compression that its format allows;
///  - with over 1,000 marker segments (JPEG) or 65,536 chunks (PNG), or whose progressive scans
///    would go over more than 2,000 megapixels together.
std::optional<PictureHeader> scanPicture(const QByteArray& bytes);

} // namespace kaart
