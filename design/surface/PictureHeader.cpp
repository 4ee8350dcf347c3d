#include "design/surface/PictureHeader.h"

#include "design/surface/PictureBytes.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

namespace kaart {

namespace {

constexpr int maxJpegSegments = 1'000;
constexpr qint64 maxScannedPixels = 2'000'000'000;
constexpr int maxPngChunks = 65'536;

std::optional<QSize> sizeWithinLimits(qint64 width, qint64 height) {
    if (width < 1 || height < 1 || width > maxPictureSide || height > maxPictureSide ||
        width * height > maxPicturePixels) {
        return std::nullopt;
    }
    return QSize(static_cast<int>(width), static_cast<int>(height));
}

qint64 pixelsOf(const QSize& size) {
    return qint64{size.width()} * size.height();
}

std::optional<PictureHeader> headerOf(PictureFormat format, const std::optional<QSize>& size) {
    if (!size) {
        return std::nullopt;
    }
    return PictureHeader{.format = format, .size = *size};
}

// Whether run-length data reaches its end-of-bitmap code.
bool runLengthsEnd(const PictureBytes& file, qint64 at, bool fourBits) {
    while (file.holds(at, 2)) {
        const quint32 count = file.byte(at);
        const quint32 code = file.byte(at + 1);
        at += 2;
        if (count != 0 || code == 0) {
            continue;
        }
        if (code == 1) {
            return true;
        }
        const quint32 literals = fourBits ? (code + 1) / 2 : code;
        at += code == 2 ? 2 : literals + literals % 2;
    }
    return false;
}

int brightestOf(quint32 mask) {
    const int bits = std::popcount(mask);
    return bits == 0 || bits > 8 ? 255 : 256 - (1 << (8 - bits));
}

QRgb brightestOf16Bits(const PictureBytes& file, bool masked) {
    return qRgb(brightestOf(masked ? file.little32(54) : 0x7C00),
                brightestOf(masked ? file.little32(58) : 0x03E0),
                brightestOf(masked ? file.little32(62) : 0x001F));
}

std::optional<PictureHeader> scanBmp(const PictureBytes& file) {
    const qint64 pixelStart = file.little32(10);
    const qint64 headerSize = file.little32(14);
    const bool old = headerSize == 12;
    const qint64 width = old ? file.little16(18) : file.signedLittle32(18);
    const qint64 height = old ? file.little16(20) : file.signedLittle32(22);
    const qint64 bits = file.little16(old ? 24 : 28);
    const quint32 compression = old ? 0 : file.little32(30);

    // A negative height means rows from the top down.
    const auto size = sizeWithinLimits(width, std::abs(height));
    if (!size || bits < 1 || pixelStart < 14 + headerSize) {
        return std::nullopt;
    }
    const bool runLengths = compression == 1 || compression == 2;
    const qint64 rowBytes = (width * bits + 31) / 32 * 4;
    const bool whole = runLengths ? runLengthsEnd(file, pixelStart, compression == 2)
                                  : file.holds(pixelStart, rowBytes * size->height());
    auto header = whole ? headerOf(PictureFormat::Bmp, size) : std::nullopt;
    if (header && bits == 16) {
        header->brightest = brightestOf16Bits(file, compression == 3);
    }
    return header;
}

qint64 gifPaletteBytes(quint32 flags) {
    return (flags & 0x80U) != 0 ? qint64{3} << ((flags & 7U) + 1) : 0;
}

// The place after a chain of sub-blocks, or nothing when the chain is cut off.
std::optional<qint64> gifBlocksEnd(const PictureBytes& file, qint64 at) {
    while (file.holds(at, 1)) {
        const qint64 length = file.byte(at);
        at += 1 + length;
        if (length == 0) {
            return at;
        }
    }
    return std::nullopt;
}

std::optional<PictureHeader> gifFrame(const PictureBytes& file, qint64 at) {
    const qint64 right = qint64{file.little16(at + 1)} + file.little16(at + 5);
    const qint64 bottom = qint64{file.little16(at + 3)} + file.little16(at + 7);
    const qint64 data = at + 10 + gifPaletteBytes(file.byte(at + 9));
    if (file.little16(at + 5) == 0 || file.little16(at + 7) == 0 || !gifBlocksEnd(file, data + 1) ||
        !sizeWithinLimits(right, bottom)) {
        return std::nullopt;
    }
    // A canvas side of 0 leaves the choice to the frame.
    const qint64 width = file.little16(6);
    const qint64 height = file.little16(8);
    return headerOf(PictureFormat::Gif,
                    sizeWithinLimits(width > 0 ? width : right, height > 0 ? height : bottom));
}

std::optional<PictureHeader> scanGif(const PictureBytes& file) {
    constexpr quint32 extension = 0x21;
    constexpr quint32 frame = 0x2C;
    qint64 at = 13 + gifPaletteBytes(file.byte(10));
    while (file.byte(at) == extension) {
        const auto end = gifBlocksEnd(file, at + 2);
        if (!end) {
            return std::nullopt;
        }
        at = *end;
    }
    return file.byte(at) == frame ? gifFrame(file, at) : std::nullopt;
}

// Walks over the markers of a JPEG.
class JpegScan {
public:
    explicit JpegScan(const PictureBytes& file) : file_(file) {}

    std::optional<PictureHeader> run() {
        for (int segments = 0; segments < maxJpegSegments; ++segments) {
            const quint32 marker = nextMarker();
            if (marker == endOfImage) {
                return judge();
            }
            const qint64 length = file_.big16(at_);
            if (marker == 0 || length < 2 || !file_.holds(at_, length)) {
                return std::nullopt;
            }
            takeSegment(marker);
            at_ += length;
            if (marker == startOfScan) {
                skipScan();
            }
        }
        return std::nullopt;
    }

private:
    static constexpr quint32 endOfImage = 0xD9;
    static constexpr quint32 startOfScan = 0xDA;

    // 0 when no marker stands here. Any number of 0xFF may come before one.
    quint32 nextMarker() {
        if (file_.byte(at_) != 0xFF) {
            return 0;
        }
        while (file_.byte(at_) == 0xFF) {
            ++at_;
        }
        return file_.byte(at_++);
    }

    void takeSegment(quint32 marker) {
        if (marker == startOfScan) {
            ++scans_;
        } else if (marker >= 0xC0 && marker <= 0xC2) {
            size_ = sizeWithinLimits(file_.big16(at_ + 5), file_.big16(at_ + 3));
        }
    }

    // In a scan a zero follows each 0xFF of the data; restart markers belong to it too.
    void skipScan() {
        for (at_ = file_.nextFF(at_); at_ >= 0; at_ = file_.nextFF(at_ + 2)) {
            const quint32 next = file_.byte(at_ + 1);
            if (next != 0 && (next < 0xD0 || next > 0xD7)) {
                return;
            }
        }
    }

    std::optional<PictureHeader> judge() const {
        // Even an empty block of 8 x 8 pixels takes a bit.
        if (!size_ || scans_ == 0 || pixelsOf(*size_) > file_.size() * 512 ||
            pixelsOf(*size_) * scans_ > maxScannedPixels) {
            return std::nullopt;
        }
        return headerOf(PictureFormat::Jpeg, size_);
    }

    const PictureBytes& file_;
    qint64 at_ = 2;
    std::optional<QSize> size_;
    int scans_ = 0;
};

bool pngDataSuffices(const PictureBytes& file, qint64 pixels, qint64 dataBytes) {
    constexpr qint64 deflateRatio = 1032; // the most that deflate makes of a byte
    constexpr qint64 channels[] = {1, 1, 3, 1, 2, 1, 4};
    const qint64 bits = file.byte(24) * channels[std::min<quint32>(file.byte(25), 6)];
    return pixels * bits / 8 <= dataBytes * deflateRatio;
}

std::optional<PictureHeader> scanPng(const PictureBytes& file) {
    const auto size = sizeWithinLimits(file.big32(16), file.big32(20));
    if (!size || file.big32(12) != 0x49484452) { // IHDR
        return std::nullopt;
    }
    qint64 dataBytes = 0;
    qint64 at = 8;
    for (int chunks = 0; chunks < maxPngChunks; ++chunks) {
        const qint64 length = file.big32(at);
        const quint32 kind = file.big32(at + 4);
        if (!file.holds(at, 12 + length)) {
            return std::nullopt;
        }
        if (kind == 0x49454E44) { // IEND
            return pngDataSuffices(file, pixelsOf(*size), dataBytes)
                       ? headerOf(PictureFormat::Png, size)
                       : std::nullopt;
        }
        dataBytes += kind == 0x49444154 ? length : 0; // IDAT
        at += 12 + length;
    }
    return std::nullopt;
}

} // namespace

std::optional<PictureHeader> scanPicture(const QByteArray& bytes) {
    const PictureBytes file(bytes);
    if (file.startsWith("BM")) {
        return scanBmp(file);
    }
    if (file.startsWith("GIF87a") || file.startsWith("GIF89a")) {
        return scanGif(file);
    }
    if (file.startsWith("\xFF\xD8\xFF")) {
        return JpegScan(file).run();
    }
    if (file.startsWith("\x89PNG\r\n\x1A\n")) {
        return scanPng(file);
    }
    return std::nullopt;
}

} // namespace kaart
