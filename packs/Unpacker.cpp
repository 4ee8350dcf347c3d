#include "packs/Unpacker.h"

#include "packs/AsideFile.h"
#include "packs/EntryName.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace kaart {

namespace {

/// a * b for numbers from 0 on, or the largest number there is.
qint64 cappedProduct(qint64 a, qint64 b) {
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    return b != 0 && a > most / b ? most : a * b;
}

bool isLink(const QFileInfo& file) {
    return file.isSymLink() || file.isJunction();
}

} // namespace

Unpacker::Unpacker(const UnzipSettings& settings, const UnzipLimits& limits,
                   UnzipCallbacks& callbacks)
    : settings_(settings),
      limits_(limits),
      callbacks_(callbacks),
      archive_(settings.ZipFileName),
      root_(QDir(settings.ExtractDir).absolutePath()) {}

qint32 Unpacker::run() {
    if (!archive_.isOpen()) {
        stop(UnzipNoArchive, settings_.ZipFileName + QStringLiteral(": no zip archive"));
    } else if (settings_.DisplayComment != 0) {
        callbacks_.print(archive_.comment() + QLatin1Char('\n'));
    } else if (settings_.ExtractList != 0) {
        listAll();
    } else {
        unpackAll();
    }
    return status_;
}

void Unpacker::listAll() {
    const qint64 entries = std::min(archive_.entryCount(), limits_.Entries);
    for (qint64 index = 0; index < entries; ++index) {
        if (const auto entry = archive_.entry(index)) {
            callbacks_.list({entry->Name, entry->Size, entry->Modified});
        }
    }
}

void Unpacker::unpackAll() {
    const qint64 entries = std::min(archive_.entryCount(), limits_.Entries);
    mostBytes_ = std::max(limits_.Bytes, cappedProduct(archive_.fileSize(), limits_.Ratio));
    total_ = declaredTotal(entries);
    for (qint64 index = 0; index < entries && !stopped_; ++index) {
        unpack(index);
        if (!stopped_ && !callbacks_.service(done_, total_)) {
            stop(UnzipStopped, QStringLiteral("stopped"));
        }
    }
    if (!stopped_ && entries < archive_.entryCount()) {
        stop(UnzipTooMuch, QStringLiteral("stopped after %1 entries").arg(entries));
    }
}

qint64 Unpacker::declaredTotal(qint64 entries) const {
    qint64 total = 0;
    for (qint64 index = 0; index < entries; ++index) {
        const auto entry = archive_.entry(index);
        total += std::min(entry ? entry->Size : 0, mostBytes_ - total);
    }
    return total;
}

void Unpacker::unpack(qint64 index) {
    const auto entry = archive_.entry(index);
    if (!entry) {
        tell(UnzipDamaged, QStringLiteral("entry %1: damaged").arg(index + 1));
        return;
    }
    // No entry gives more than it declares, so this holds for what is really unpacked too.
    if (entry->Size > mostBytes_ - declared_) {
        stop(UnzipTooMuch, entry->Name + QStringLiteral(": unpacks to too much, stopped"));
        return;
    }
    declared_ += entry->Size;
    auto relative = safeEntryPath(entry->Name);
    if (!relative || entry->IsSpecial) {
        tell(UnzipLeftOut, entry->Name + QStringLiteral(": refused"));
        done_ = declared_;
        return;
    }
    if (settings_.SpaceToUnderScore != 0) {
        relative->replace(QLatin1Char(' '), QLatin1Char('_'));
    }
    if (settings_.HonorDirectories == 0) {
        relative = relative->section(QLatin1Char('/'), -1);
    }
    unpackTo(*entry, *relative);
    done_ = declared_;
}

void Unpacker::unpackTo(const ZipEntry& entry, const QString& relative) {
    const QString path = root_ + QLatin1Char('/') + relative;
    if (settings_.TestZip == 0) {
        if (entry.IsFolder && settings_.HonorDirectories == 0) {
            return;
        }
        if (!entry.IsFolder && keepsExisting(path, entry)) {
            return;
        }
        const QString folder =
            entry.IsFolder ? relative : relative.section(QLatin1Char('/'), 0, -2);
        if (!makeFolders(folder)) {
            tell(UnzipLeftOut, entry.Name + QStringLiteral(": something is in the way"));
            return;
        }
    }
    const ZipFault fault = entry.IsFolder ? ZipFault::None : readWithPassword(entry, path);
    if (fault != ZipFault::None) {
        tellFault(fault, entry.Name);
    } else if (settings_.MessageLevel < 2) {
        callbacks_.print(entry.Name + QLatin1Char('\n'));
    }
}

bool Unpacker::keepsExisting(const QString& path, const ZipEntry& entry) {
    const QFileInfo existing(path);
    if (!existing.exists()) {
        return settings_.ExtractOnlyNewer != 0;
    }
    const bool wantsNewer = settings_.ExtractNewer != 0 || settings_.ExtractOnlyNewer != 0;
    return (wantsNewer && entry.Modified <= existing.lastModified()) || !mayReplace(entry.Name);
}

bool Unpacker::mayReplace(const QString& file) {
    if (settings_.OverWriteFiles != 0) {
        return true;
    }
    if (settings_.PromptOverwrite == 0 || replacesNone_) {
        return false;
    }
    const ReplaceAnswer answer = callbacks_.replace(file);
    replacesNone_ = answer == ReplaceAnswer::None;
    return answer == ReplaceAnswer::Yes;
}

bool Unpacker::makeFolders(const QString& relative) const {
    QString path = root_;
    if (!QDir().mkpath(path)) {
        return false;
    }
    for (const QString& part : relative.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        path += QLatin1Char('/') + part;
        const QFileInfo folder(path);
        // The target folder may be reached through a link; below it one would lead out of it.
        if (isLink(folder) || (!folder.isDir() && !QDir().mkdir(path))) {
            return false;
        }
    }
    return true;
}

ZipFault Unpacker::readWithPassword(const ZipEntry& entry, const QString& path) {
    constexpr int mostTries = 3;
    ZipFault fault = readTo(entry, path, entry.IsEncrypted ? password_ : QString());
    for (int tries = 0; fault == ZipFault::WrongPassword && tries < mostTries; ++tries) {
        const auto answer = asksNoPassword_ ? std::nullopt : callbacks_.password(entry.Name);
        if (!answer) {
            asksNoPassword_ = true;
            break;
        }
        fault = readTo(entry, path, *answer);
        if (fault == ZipFault::None) {
            password_ = *answer;
        } else if (fault == ZipFault::Damaged && entry.HasWeakCheck) {
            fault = ZipFault::WrongPassword;
        }
    }
    return fault;
}

ZipFault Unpacker::readTo(const ZipEntry& entry, const QString& path, const QString& password) {
    done_ = declared_ - entry.Size;
    AsideFile file;
    const bool writes = settings_.TestZip == 0;
    if (writes && !file.open(path)) {
        return ZipFault::Refused;
    }
    const ZipFault fault = archive_.read(entry, password, [&](const char* bytes, qint64 size) {
        return take(writes ? &file : nullptr, bytes, size);
    });
    if (fault == ZipFault::None && writes && !file.commit(entry.Modified)) {
        return ZipFault::Refused;
    }
    return fault;
}

bool Unpacker::take(AsideFile* file, const char* bytes, qint64 size) {
    done_ += size;
    if (file != nullptr && !file->write(bytes, size)) {
        stop(UnzipDiskFull, QStringLiteral("the disk is full, stopped"));
    } else if (!callbacks_.service(done_, total_)) {
        stop(UnzipStopped, QStringLiteral("stopped"));
    }
    return !stopped_;
}

void Unpacker::tell(UnzipStatus status, const QString& text) {
    status_ = std::max(status_, qint32(status));
    callbacks_.print(text + QLatin1Char('\n'));
}

void Unpacker::stop(UnzipStatus status, const QString& text) {
    stopped_ = true;
    tell(status, text);
}

void Unpacker::tellFault(ZipFault fault, const QString& name) {
    if (fault == ZipFault::Damaged) {
        tell(UnzipDamaged, name + QStringLiteral(": damaged"));
    } else if (fault == ZipFault::WrongPassword) {
        tell(UnzipNoPassword, name + QStringLiteral(": no right password"));
    } else if (fault == ZipFault::Unsupported) {
        tell(UnzipUnsupported, name + QStringLiteral(": packed in an unknown way"));
    } else if (!stopped_) {
        tell(UnzipLeftOut, name + QStringLiteral(": could not be written"));
    }
}

} // namespace kaart
