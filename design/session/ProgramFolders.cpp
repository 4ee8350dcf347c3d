#include "design/session/ProgramFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace kaart {

namespace {

/// Permission bits do not tell on every file system; writing does.
bool canWriteIn(const QString& folder) {
    QTemporaryFile probe(folder + QStringLiteral("/.kaartwerkje-XXXXXX"));
    return probe.open();
}

} // namespace

void seedFolder(const QString& from, const QString& to) {
    const QDir source(from);
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString copy = to + QLatin1Char('/') + source.relativeFilePath(file);
        if (!QFileInfo::exists(copy) && QDir().mkpath(QFileInfo(copy).path()) &&
            QFile::copy(file, copy)) {
            QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteUser);
        }
    }
}

ProgramFolders findProgramFolders() {
    const QString beside = QCoreApplication::applicationDirPath();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    if (canWriteIn(beside)) {
        return {beside, pictures};
    }
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    for (const char* folder : {"Data", "Lijsten", "Ontwerpen", "Frames", "Templates",
                               "Achtergronden", "Maskers", "Stickers", "Vectors"}) {
        const QString name = QLatin1Char('/') + QLatin1String(folder);
        QDir().mkpath(own + name);
        seedFolder(beside + name, own + name);
    }
    return {own, pictures};
}

} // namespace kaart
