#include "packs/ZipArchive.h"

#include <QFile>
#include <QFileInfo>

#include <zip.h>

#include <limits>

namespace kaart {

namespace {

constexpr int pieceSize = 256 * 1024;

ZipFault faultOf(zip_error_t* error) {
    switch (zip_error_code_zip(error)) {
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
        return ZipFault::WrongPassword;
    case ZIP_ER_COMPNOTSUPP:
    case ZIP_ER_ENCRNOTSUPP:
    case ZIP_ER_OPNOTSUPP:
        return ZipFault::Unsupported;
    default:
        return ZipFault::Damaged;
    }
}

/// Neither a file nor a folder, by the type that systems with such things store.
bool isSpecial(zip* archive, zip_uint64_t index) {
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(archive, index, 0, &system, &attributes);
    const zip_uint32_t type = (attributes >> 16) & 0170000;
    constexpr zip_uint32_t folder = 0040000;
    constexpr zip_uint32_t file = 0100000;
    const bool hasTypes = system == ZIP_OPSYS_UNIX || system == ZIP_OPSYS_OS_X;
    return hasTypes && type != 0 && type != folder && type != file;
}

ZipFault readAll(zip_file_t* file, QByteArray& buffer, qint64 size, const ZipArchive::Sink& sink) {
    qint64 left = size;
    zip_int64_t got = 0;
    // To the very end: only there are checksums compared.
    while ((got = zip_fread(file, buffer.data(), pieceSize)) > 0) {
        if (got > left) {
            return ZipFault::Damaged;
        }
        left -= got;
        if (!sink(buffer.constData(), got)) {
            return ZipFault::Refused;
        }
    }
    if (got < 0) {
        return faultOf(zip_file_get_error(file));
    }
    return left == 0 ? ZipFault::None : ZipFault::Damaged;
}

} // namespace

ZipArchive::ZipArchive(const QString& path) : archive_(nullptr, zip_discard) {
    const QFileInfo file(path);
    if (file.isFile()) { // a pipe would block
        fileSize_ = file.size();
        archive_.reset(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr));
        buffer_.resize(pieceSize);
    }
}

qint64 ZipArchive::entryCount() const {
    return zip_get_num_entries(archive_.get(), 0);
}

QString ZipArchive::comment() const {
    int size = 0;
    const char* text = zip_get_archive_comment(archive_.get(), &size, ZIP_FL_ENC_GUESS);
    return QString::fromUtf8(text, size);
}

std::optional<ZipEntry> ZipArchive::entry(qint64 index) const {
    const auto number = static_cast<zip_uint64_t>(index);
    zip_stat_t stat;
    constexpr zip_uint64_t needed = ZIP_STAT_NAME | ZIP_STAT_SIZE;
    if (zip_stat_index(archive_.get(), number, ZIP_FL_ENC_GUESS, &stat) != 0 ||
        (stat.valid & needed) != needed ||
        stat.size > static_cast<zip_uint64_t>(std::numeric_limits<qint64>::max())) {
        return std::nullopt;
    }
    const QString name = QString::fromUtf8(stat.name);
    const bool isFolder = name.endsWith(QLatin1Char('/')) || name.endsWith(QLatin1Char('\\'));
    const auto method =
        (stat.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 ? stat.encryption_method : ZIP_EM_NONE;
    const bool isDated = (stat.valid & ZIP_STAT_MTIME) != 0 && stat.mtime > 0;
    return ZipEntry{index,
                    name,
                    static_cast<qint64>(stat.size),
                    isDated ? QDateTime::fromSecsSinceEpoch(stat.mtime) : QDateTime(),
                    isFolder,
                    isSpecial(archive_.get(), number),
                    method != ZIP_EM_NONE,
                    method == ZIP_EM_TRAD_PKWARE};
}

ZipFault ZipArchive::read(const ZipEntry& entry, const QString& password, const Sink& sink) const {
    const QByteArray letters = password.toUtf8();
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(
        zip_fopen_index_encrypted(archive_.get(), static_cast<zip_uint64_t>(entry.Index), 0,
                                  password.isEmpty() ? nullptr : letters.constData()),
        zip_fclose);
    return file != nullptr ? readAll(file.get(), buffer_, entry.Size, sink)
                           : faultOf(zip_get_error(archive_.get()));
}

} // namespace kaart
