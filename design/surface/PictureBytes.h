#pragma once

#include <QByteArray>

namespace kaart {

/// The bytes of a picture file, to be read at any place. What lies past the end reads as 0.
class PictureBytes {
public:
    explicit PictureBytes(const QByteArray& bytes) : bytes_(bytes) {}

    qint64 size() const { return bytes_.size(); }
    /// Whether `count` bytes from `at` on lie in the file.
    bool holds(qint64 at, qint64 count) const {
        return at >= 0 && count >= 0 && count <= size() && at <= size() - count;
    }
    bool startsWith(const char* magic) const { return bytes_.startsWith(magic); }
    /// The place of the next 0xFF from `at` on, or -1.
    qint64 nextFF(qint64 at) const { return bytes_.indexOf('\xFF', at); }

    quint32 byte(qint64 at) const {
        return holds(at, 1) ? static_cast<unsigned char>(bytes_[at]) : 0;
    }
    quint32 little16(qint64 at) const { return byte(at) | byte(at + 1) << 8; }
    quint32 little32(qint64 at) const { return little16(at) | little16(at + 2) << 16; }
    qint64 signedLittle32(qint64 at) const { return static_cast<qint32>(little32(at)); }
    quint32 big16(qint64 at) const { return byte(at) << 8 | byte(at + 1); }
    quint32 big32(qint64 at) const { return big16(at) << 16 | big16(at + 2); }

private:
    QByteArray bytes_;
};

} // namespace kaart
