#include "design/surface/PictureGate.h"

#include "design/surface/PictureHeader.h"
#include "design/surface/PixelSpan.h"
#include "design/surface/PixelSurface.h"
#include "design/surface/WholeFile.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QtEndian>

#include <algorithm>

namespace kaart {

namespace {

constexpr int screenDotsPerMetre = 3780; // 96 to the inch

QByteArray readerName(PictureFormat format) {
    switch (format) {
    case PictureFormat::Bmp:
        return "bmp";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::Jpeg:
        return "jpeg";
    case PictureFormat::Png:
        break;
    }
    return "png";
}

// Many programs leave the fourth byte of a BMP pixel at 0 though the header calls it opacity.
bool isOpaqueInTruth(const QImage& picture) {
    if (picture.format() != QImage::Format_ARGB32) {
        return false;
    }
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(), [](QRgb p) { return qAlpha(p) != 0; })) {
            return false;
        }
    }
    return true;
}

void stretchToWhite(QImage& picture, QRgb brightest) {
    const PixelSpan span = spanOf(picture);
    for (Pixel* pixel = span.data; pixel != span.row(span.height); ++pixel) {
        *pixel =
            qRgb(qRed(*pixel) * 255 / qRed(brightest), qGreen(*pixel) * 255 / qGreen(brightest),
                 qBlue(*pixel) * 255 / qBlue(brightest));
    }
}

// Once: pictures are read on several threads.
void raiseAllocationLimit() {
    static const bool raised = [] {
        QImageReader::setAllocationLimit(static_cast<int>((maxPicturePixels * 4 >> 20) + 1));
        return true;
    }();
    Q_UNUSED(raised)
}

// A picture file whose header has passed the scan, or a closed gate.
class PictureFile {
public:
    explicit PictureFile(const QString& path) {
        const auto bytes = readWholeFile(path, maxPictureFile);
        header_ = bytes ? scanPicture(*bytes) : std::nullopt;
        if (!header_) {
            return;
        }
        buffer_.setData(*bytes);
        buffer_.open(QIODevice::ReadOnly);
        raiseAllocationLimit();
        reader_.setDevice(&buffer_);
        reader_.setAutoDetectImageFormat(false);
        reader_.setFormat(readerName(header_->format));
        reader_.setAutoTransform(true);
    }

    bool isJpeg() const { return header_ && header_->format == PictureFormat::Jpeg; }

    /// As the picture is shown; empty for a closed gate.
    QSize size() const {
        const QSize stored = header_ ? header_->size : QSize();
        return isTurned() ? stored.transposed() : stored;
    }

    void setScaledSize(const QSize& shown) {
        reader_.setScaledSize(isTurned() ? shown.transposed() : shown);
    }

    /// Can be asked once.
    std::optional<QImage> read() {
        QImage picture = header_ ? reader_.read() : QImage();
        // The reader would keep a picture of its own, and the file, while this one is converted.
        reader_.setDevice(nullptr);
        buffer_.close();
        buffer_.setData(QByteArray());
        if (picture.isNull()) {
            return std::nullopt;
        }
        if (header_->format == PictureFormat::Bmp && isOpaqueInTruth(picture)) {
            picture = std::move(picture).convertToFormat(QImage::Format_RGB32);
        }
        picture = toSurfaceFormat(picture);
        if (header_->brightest != 0xFFFFFFFF) {
            stretchToWhite(picture, header_->brightest);
        }
        picture.setDotsPerMeterX(screenDotsPerMetre);
        picture.setDotsPerMeterY(screenDotsPerMetre);
        picture.setOffset({});
        picture.setColorSpace({});
        return picture;
    }

private:
    bool isTurned() const {
        return isJpeg() &&
               reader_.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    }

    std::optional<PictureHeader> header_;
    QBuffer buffer_;
    QImageReader reader_;
};

QSize fitInto(const QSize& size, const QSize& box) {
    if (size.width() <= box.width() && size.height() <= box.height()) {
        return size;
    }
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
}

void putLittle(QByteArray& bytes, qsizetype at, quint32 value) {
    qToLittleEndian(value, bytes.data() + at);
}

constexpr qint64 bmpHeaderBytes = 54;

qint64 bmpRowBytes(int width) {
    return (qint64{width} * 3 + 3) / 4 * 4;
}

QByteArray bmpHeader(const QSize& size, qint64 pixelBytes) {
    QByteArray header(bmpHeaderBytes, '\0');
    header[0] = 'B';
    header[1] = 'M';
    putLittle(header, 2, static_cast<quint32>(bmpHeaderBytes + pixelBytes));
    putLittle(header, 10, bmpHeaderBytes);
    putLittle(header, 14, 40);
    putLittle(header, 18, static_cast<quint32>(size.width()));
    putLittle(header, 22, static_cast<quint32>(size.height()));
    putLittle(header, 26, 1 | 24U << 16); // planes and bits per pixel
    putLittle(header, 34, static_cast<quint32>(pixelBytes));
    putLittle(header, 38, screenDotsPerMetre);
    putLittle(header, 42, screenDotsPerMetre);
    return header;
}

QByteArray toBmp(const QImage& picture) {
    const ConstPixelSpan span = spanOf(picture);
    const qint64 rowBytes = bmpRowBytes(span.width);
    QByteArray bytes = bmpHeader(picture.size(), rowBytes * span.height);
    bytes.reserve(bytes.size() + rowBytes * span.height);
    QByteArray line(rowBytes, '\0');
    for (int y = span.height - 1; y >= 0; --y) {
        char* out = line.data();
        for (int x = 0; x < span.width; ++x) {
            const QRgb pixel = span.row(y)[x];
            *out++ = static_cast<char>(qBlue(pixel));
            *out++ = static_cast<char>(qGreen(pixel));
            *out++ = static_cast<char>(qRed(pixel));
        }
        bytes += line;
    }
    return bytes;
}

} // namespace

std::optional<QImage> LoadPicture(const QString& path) {
    return PictureFile(path).read();
}

std::optional<QImage> loadStretched(const QString& path,
                                    const std::function<QSize(const QSize& full)>& sizeFor) {
    PictureFile file(path);
    const QSize size = file.size();
    const QSize target = size.isEmpty() ? QSize() : sizeFor(size);
    if (target.isEmpty()) {
        return std::nullopt;
    }
    if (target == size) {
        return file.read();
    }
    if (file.isJpeg() && target.boundedTo(size) == target) {
        file.setScaledSize(target);
        return file.read();
    }
    const auto picture = file.read();
    if (!picture) {
        return std::nullopt;
    }
    PixelSurface stretched(target.width(), target.height());
    stretched.PaintPicture(*picture, 0, 0, target.width(), target.height(), 0, 0, picture->width(),
                           picture->height());
    return stretched.Image();
}

std::optional<QImage> loadThumbnail(const QString& path, const QSize& box) {
    return loadStretched(
        path, [&box](const QSize& full) { return box.isEmpty() ? QSize() : fitInto(full, box); });
}

std::optional<QSize> pictureSize(const QString& path) {
    const QSize size = PictureFile(path).size();
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

bool SavePicture(const QImage& picture, const QString& path) {
    // What the gate could not read again is not written.
    const qint64 roomForRows = maxPictureFile - bmpHeaderBytes;
    if (picture.isNull() || bmpRowBytes(picture.width()) * picture.height() > roomForRows) {
        return false;
    }
    return writeWholeFile(path, toBmp(toSurfaceFormat(picture)));
}

bool saveJpeg(const QImage& picture, const QString& path, int quality) {
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(std::clamp(quality, 0, 100));
    return writer.write(toSurfaceFormat(picture)) && writeWholeFile(path, buffer.data());
}

} // namespace kaart
