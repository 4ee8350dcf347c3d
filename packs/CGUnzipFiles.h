#pragma once

#include "packs/CodeModule.h"

namespace kaart {

/// Unpacks zip archives. Its properties are the UnzipSettings, each to be read and written.
class CGUnzipFiles : public UnzipSettings {
public:
    /// The module outlives this object; it answers the questions that come up.
    explicit CGUnzipFiles(CodeModule& module, const UnzipLimits& limits = {});

    /// Unpacks ZipFile into the folder Dir. Each that isn't empty replaces its property first; with
    /// an empty ExtractDir the current folder is meant. Returns an UnzipStatus and shows nothing.
    qint32 Unzip(const QString& ZipFile = {}, const QString& Dir = {});

    /// The text that the last run collected.
    QString GetLastMessage() const { return module_.message(); }

private:
    CodeModule& module_;
    const UnzipLimits limits_;
};

} // namespace kaart
