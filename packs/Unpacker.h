#pragma once

#include "packs/UnzipCallbacks.h"
#include "packs/UnzipSettings.h"
#include "packs/ZipArchive.h"

namespace kaart {

class AsideFile;

/// One run over an archive: unpacks, tests or lists all its entries. Nothing is written outside the
/// target folder: names that lead elsewhere, symbolic links, and paths that would go through a link
/// are left out. A file appears whole, checked and with its stored time, or not at all.
class Unpacker {
public:
    Unpacker(const UnzipSettings& settings, const UnzipLimits& limits, UnzipCallbacks& callbacks);

    /// Returns an UnzipStatus. What can't be unpacked is told by `print` and the rest goes on,
    /// unless a limit, a full disk or the service callback ends it.
    qint32 run();

private:
    void listAll();
    void unpackAll();
    qint64 declaredTotal(qint64 entries) const;
    void unpack(qint64 index);
    void unpackTo(const ZipEntry& entry, const QString& relative);
    bool keepsExisting(const QString& path, const ZipEntry& entry);
    bool mayReplace(const QString& file);
    bool makeFolders(const QString& relative) const;
    ZipFault readWithPassword(const ZipEntry& entry, const QString& path);
    ZipFault readTo(const ZipEntry& entry, const QString& path, const QString& password);
    bool take(AsideFile* file, const char* bytes, qint64 size);
    void tell(UnzipStatus status, const QString& text);
    void stop(UnzipStatus status, const QString& text);
    void tellFault(ZipFault fault, const QString& name);

    const UnzipSettings settings_;
    const UnzipLimits limits_;
    UnzipCallbacks& callbacks_;
    const ZipArchive archive_;
    const QString root_;
    qint32 status_ = UnzipFine;
    bool stopped_ = false;
    qint64 mostBytes_ = 0;
    qint64 declared_ = 0; ///< of the entries so far
    qint64 total_ = 0;
    qint64 done_ = 0;
    QString password_; ///< the one that was right last
    bool asksNoPassword_ = false;
    bool replacesNone_ = false;
};

} // namespace kaart
