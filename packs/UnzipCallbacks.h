#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace kaart {

/// May an existing file be replaced?
enum class ReplaceAnswer { No = 100, Yes = 102, None = 104 };

/// One line of an archive's listing.
struct ArchiveMember {
    QString Name; ///< as stored, with "/" between folders
    qint64 Size;  ///< bytes when unpacked
    QDateTime Time;
};

/// What unpacking calls while it works, on the thread that it was called on and never from inside a
/// read of the archive. The message loop may therefore have its turn in each of them.
class UnzipCallbacks {
public:
    UnzipCallbacks() = default;
    UnzipCallbacks(const UnzipCallbacks&) = delete;
    UnzipCallbacks& operator=(const UnzipCallbacks&) = delete;
    virtual ~UnzipCallbacks() = default;

    /// Text in lines, each ended by LF.
    virtual void print(const QString& text) = 0;
    virtual void list(const ArchiveMember& member) = 0;
    /// The password of an entry, or nothing: then no more is asked in this archive.
    virtual std::optional<QString> password(const QString& file) = 0;
    /// `None` is No for this file and all later ones.
    virtual ReplaceAnswer replace(const QString& file) = 0;
    /// So many bytes of all are unpacked (both may be 0). False stops the work.
    virtual bool service(qint64 done, qint64 total) = 0;
};

} // namespace kaart
