#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>

namespace kaart {

/// The only door for picture files. What a file is follows from its content, never from its name:
/// BMP, GIF (first frame), JPEG (EXIF rotation applied) and PNG. A cheap look at the header comes
/// first; refused are files over 256 MB, pictures over 32,767 pixels a side or 100 megapixels (50
/// for a PNG of 16 bits a channel), and files whose parts cannot fit in them, so that no file takes
/// seconds or gigabytes. A file that is cut off is refused, never shown in part: a JPEG must reach
/// its EOI marker, a PNG its IEND, a GIF the end of its first frame, a BMP its last row. Damage
/// inside the compressed data of a JPEG or GIF may come out as wrong pixels instead.
/// Failure is an empty answer, never an exception.

/// Reads a whole picture in surface format; transparent parts come out white. A BMP whose fourth
/// byte is 0 throughout counts as opaque. What the file says of its resolution and colour space is
/// dropped: a pixel is a pixel.
std::optional<QImage> LoadPicture(const QString& path);

/// Reads a picture no larger than `box` in either direction, its proportions kept, never enlarged
/// and at least one pixel a side. JPEG files go through the scaled decode. Nothing for an empty
/// box.
std::optional<QImage> loadThumbnail(const QString& path, const QSize& box);

/// Reads a picture stretched to the size that `sizeFor` gives for its own, both in pixels, without
/// regard to its proportions; nothing for an empty one. A JPEG that becomes no larger in either
/// direction goes through the scaled decode.
std::optional<QImage> loadStretched(const QString& path,
                                    const std::function<QSize(const QSize& full)>& sizeFor);

/// The picture's size in pixels as LoadPicture would give it, without decoding; the same files are
/// refused, except for damage that only decoding finds.
std::optional<QSize> pictureSize(const QString& path);

/// Writes an uncompressed 24-bit Windows BMP: BITMAPFILEHEADER, BITMAPINFOHEADER (54 bytes in all,
/// 3780 pixels to the metre, which is 96 to the inch), then the rows from the bottom up, each
/// padded with zeros to a multiple of 4 bytes. False for an empty picture or a file of over 256 MB.
/// The file appears whole or not at all, and an older one stays until then. False on any failure.
bool SavePicture(const QImage& picture, const QString& path);

/// Writes a JPEG in the same safe way; a quality beyond 0 to 100 counts as the nearer of the two.
bool saveJpeg(const QImage& picture, const QString& path, int quality);

} // namespace kaart
