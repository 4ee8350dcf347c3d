#pragma once

#include "packs/UnzipCallbacks.h"
#include "packs/UnzipSettings.h"

namespace kaart {

/// The unzip routine and its callbacks: collects messages and listings as text. Questions are for a
/// window to answer; without one there is no password, nothing is replaced on asking, and the work
/// is never stopped.
class CodeModule : public UnzipCallbacks {
public:
    /// Unpacks, tests or lists a whole archive as the settings say and returns an UnzipStatus. The
    /// text is collected anew.
    qint32 unzip(const UnzipSettings& settings, const UnzipLimits& limits);

    /// What the last run had to say; lines end in CR LF.
    const QString& message() const { return message_; }

    void print(const QString& text) override;
    /// The first line of a listing names its columns.
    void list(const ArchiveMember& member) override;
    std::optional<QString> password(const QString& file) override;
    ReplaceAnswer replace(const QString& file) override;
    bool service(qint64 done, qint64 total) override;

private:
    QString message_;
    bool listing_ = false;
};

} // namespace kaart
