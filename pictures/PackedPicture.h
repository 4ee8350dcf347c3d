#pragma once

#include <QByteArray>
#include <QImage>

namespace kaart {

/// A small picture that takes little room, for sheets of thousands: a drawing is kept to the
/// pixel, a photo as a JPEG of high quality, since nobody tells the difference. Unpacking takes a
/// fraction of a millisecond.
class PackedPicture {
public:
    PackedPicture() = default;
    explicit PackedPicture(const QImage& picture);

    QSize size() const { return size_; }              ///< pixels; empty without a picture
    qsizetype bytes() const { return bytes_.size(); } ///< what it takes
    QImage unpack() const;                            ///< in surface format; null without a picture

private:
    QByteArray bytes_;
    QSize size_;
};

} // namespace kaart
