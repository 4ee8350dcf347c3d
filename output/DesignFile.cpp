#include "output/DesignFile.h"

#include "design/surface/FileList.h"
#include "design/surface/PictureGate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kaart {

namespace {

constexpr int designSideSum = 1080; // 640 + 440
constexpr int copyQuality = 100;

QString designFolder(const DesignFolders& folders) {
    return folders.program + QStringLiteral("/Ontwerpen");
}

QString scratchPath(const DesignFolders& folders) {
    return folders.program + QStringLiteral("/mydummy.bmp");
}

} // namespace

QString designPath(const DesignFolders& folders, const QString& name) {
    return designFolder(folders) + QLatin1Char('/') + name + QStringLiteral(".bmp");
}

QString jpegCopyPath(const DesignFolders& folders, const QString& name) {
    return folders.pictures + QLatin1Char('/') + name + QStringLiteral(".jpg");
}

QStringList designFileNames(const DesignFolders& folders) {
    return fileNames(designFolder(folders), {QStringLiteral("*.bmp")});
}

bool saveDesign(const DesignFolders& folders, const QString& name, const QImage& picture) {
    const QString scratch = scratchPath(folders);
    QDir(folders.program).mkdir(QStringLiteral("Ontwerpen"));
    QFile::remove(scratch); // one that an interrupted save left behind must not decide this one
    if (!isRefusedName(name)) {
        SavePicture(picture, designPath(folders, name));
    }
    SavePicture(picture, scratch);
    if (!QFileInfo(scratch).isFile()) {
        return false;
    }
    if (!isRefusedName(name) && !folders.pictures.isEmpty()) {
        saveJpeg(picture, jpegCopyPath(folders, name), copyQuality);
    }
    QFile::remove(scratch);
    return true;
}

std::optional<QString> designOrientation(const QSize& size) {
    if (size.width() + size.height() != designSideSum) {
        return std::nullopt;
    }
    return size.width() > size.height() ? QStringLiteral("Liggend") : QStringLiteral("Staand");
}

} // namespace kaart
