#include "pictures/PackedPicture.h"

#include "design/surface/PixelSpan.h"

#include <QBuffer>

namespace kaart {

namespace {

constexpr int bytesPerDrawing = 6000; // at most; a thumbnail of a photo takes thrice that
constexpr int fastPng = 80;
constexpr int finePhoto = 92;

QByteArray pack(const QImage& picture, const char* format, int quality) {
    QBuffer buffer;
    picture.save(&buffer, format, quality);
    return buffer.data();
}

} // namespace

PackedPicture::PackedPicture(const QImage& picture)
    : bytes_(pack(picture, "png", fastPng)), size_(picture.size()) {
    if (bytes_.size() > bytesPerDrawing) {
        bytes_ = pack(picture, "jpeg", finePhoto);
    }
}

QImage PackedPicture::unpack() const {
    return toSurfaceFormat(QImage::fromData(bytes_));
}

} // namespace kaart
