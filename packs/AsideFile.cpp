#include "packs/AsideFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <filesystem>

namespace kaart {

bool AsideFile::open(const QString& path) {
    path_ = path;
    const QString folder = QFileInfo(path).path();
    constexpr int mostTries = 100;
    for (int number = 0; number < mostTries && !file_.isOpen(); ++number) {
        file_.setFileName(QStringLiteral("%1/.uitpakken-%2-%3")
                              .arg(folder)
                              .arg(QCoreApplication::applicationPid())
                              .arg(number));
        // Never into something that is there already, be it a link.
        file_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
    }
    if (!file_.isOpen()) {
        file_.setFileName({}); // it is somebody else's
    }
    return file_.isOpen();
}

bool AsideFile::write(const char* bytes, qint64 size) {
    return file_.write(bytes, size) == size;
}

bool AsideFile::commit(const QDateTime& modified) {
    if (modified.isValid()) {
        file_.setFileTime(modified, QFileDevice::FileModificationTime);
    }
    file_.close();
    const QFileInfo target(path_);
    if (file_.error() != QFileDevice::NoError || target.isSymLink() ||
        (target.exists() && !target.isFile())) {
        return false;
    }
    std::error_code error;
    std::filesystem::rename(QFileInfo(file_).filesystemFilePath(), target.filesystemFilePath(),
                            error);
    if (error) {
        return false;
    }
    file_.setFileName({});
    return true;
}

void AsideFile::discard() {
    file_.close();
    if (!file_.fileName().isEmpty()) {
        file_.remove();
    }
}

} // namespace kaart
