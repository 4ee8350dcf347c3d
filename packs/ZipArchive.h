#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

struct zip;

namespace kaart {

/// One entry of an archive, as its directory tells it; its bytes may tell otherwise.
struct ZipEntry {
    qint64 Index; ///< from 0
    QString Name; ///< as stored, from UTF-8 or code page 437
    qint64 Size;  ///< bytes when unpacked
    QDateTime Modified;
    bool IsFolder;
    bool IsSpecial; ///< a symbolic link, a device or the like
    bool IsEncrypted;
    bool HasWeakCheck; ///< a wrong password may show only in the bytes
};

enum class ZipFault { None, Damaged, WrongPassword, Unsupported, Refused };

/// A zip archive, read only. Unpacks stored, deflated and bzip2 entries, those encrypted by
/// PKWARE's old method or AES too.
class ZipArchive {
public:
    /// Takes each piece of an entry's bytes; false ends the reading with `Refused`.
    using Sink = std::function<bool(const char* bytes, qint64 size)>;

    /// Opens an ordinary file. `isOpen` tells whether it is an archive.
    explicit ZipArchive(const QString& path);

    bool isOpen() const { return archive_ != nullptr; }
    qint64 fileSize() const { return fileSize_; }
    qint64 entryCount() const;
    QString comment() const;

    /// Nothing when the directory has no usable name or size for it.
    std::optional<ZipEntry> entry(qint64 index) const;

    /// Gives an entry's bytes to the sink. `Damaged` also when there are not exactly as many as the
    /// directory said; never more than those are given. Pieces are at most 256 KiB.
    ZipFault read(const ZipEntry& entry, const QString& password, const Sink& sink) const;

private:
    std::unique_ptr<zip, void (*)(zip*)> archive_;
    qint64 fileSize_ = 0;
    mutable QByteArray buffer_;
};

} // namespace kaart
