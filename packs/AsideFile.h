#pragma once

#include <QDateTime>
#include <QFile>

namespace kaart {

/// A file that is written beside its place and moved there when it is whole; until then an older
/// one stays, and without `commit` nothing is left behind. Unlike WholeFile it takes its bytes
/// piece by piece and does not wait for the disk: an archive can be unpacked again.
class AsideFile {
public:
    AsideFile() = default;
    AsideFile(const AsideFile&) = delete;
    AsideFile& operator=(const AsideFile&) = delete;
    ~AsideFile() { discard(); }

    /// Begins a file in an existing folder.
    bool open(const QString& path);
    bool write(const char* bytes, qint64 size);
    /// Gives the file its time, if valid, and its place. False when that failed or the place is
    /// taken by something else than an ordinary file.
    bool commit(const QDateTime& modified);
    void discard();

private:
    QFile file_;
    QString path_;
};

} // namespace kaart
