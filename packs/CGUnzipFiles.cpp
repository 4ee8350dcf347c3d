#include "packs/CGUnzipFiles.h"

namespace kaart {

CGUnzipFiles::CGUnzipFiles(CodeModule& module, const UnzipLimits& limits)
    : module_(module), limits_(limits) {}

qint32 CGUnzipFiles::Unzip(const QString& ZipFile, const QString& Dir) {
    if (!ZipFile.isEmpty()) {
        ZipFileName = ZipFile;
    }
    if (!Dir.isEmpty()) {
        ExtractDir = Dir;
    }
    UnzipSettings settings = *this;
    // Kept: these three go through 16 bits.
    for (qint32* value : {&settings.MessageLevel, &settings.ExtractList, &settings.Privilege}) {
        *value = static_cast<qint16>(*value);
    }
    return module_.unzip(settings, limits_);
}

} // namespace kaart
