#include "design/session/ProgramFolders.h"

#include "design/surface/TextFile.h"
#include "design/surface/WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace kaart {

namespace {

/// Permission bits do not tell on every file system; writing does.
bool canWriteIn(const QString& folder) {
    QTemporaryFile probe(folder + QStringLiteral("/.kaartwerkje-XXXXXX"));
    return probe.open();
}

/// Where an installed program has its libraries; empty when they lie beside the executable.
QString installedLibraries(const QString& executableFolder) {
    const QString shared =
        QDir::cleanPath(executableFolder + QStringLiteral("/../share/kaartwerkje"));
    const bool apart = !QFileInfo::exists(executableFolder + QStringLiteral("/Lijsten")) &&
                       QFileInfo(shared).isDir();
    return apart ? shared : QString();
}

/// Copies a file that the user hasn't got yet; false when that fails.
bool give(const QString& file, const QString& copy) {
    if (QFileInfo::exists(copy)) {
        return true;
    }
    if (!QDir().mkpath(QFileInfo(copy).path()) || !QFile::copy(file, copy)) {
        return false;
    }
    // A write protected library would give a write protected copy.
    QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteUser);
    return true;
}

/// Nobody writes in a manual: a copy that differs is the one of another version.
void renew(const QString& manual, const QString& copy) {
    constexpr qint64 largest = 64LL << 20; // bytes
    const auto bytes = readWholeFile(manual, largest);
    const auto old = readWholeFile(copy, largest);
    if (bytes && old && *bytes != *old) {
        writeWholeFile(copy, *bytes);
    }
}

} // namespace

void seedFolders(const QString& from, const QString& to) {
    const QString listFile = to + QStringLiteral("/Geleverd.txt");
    const QStringList lines = splitLines(readTextFile(listFile).value_or(QString()));
    QSet<QString> given(lines.begin(), lines.end());
    const auto givenBefore = given.size();
    const QDir source(from);
    for (const char* folder : {"Data", "Lijsten", "Ontwerpen", "Frames", "Templates",
                               "Achtergronden", "Maskers", "Stickers", "Vectors"}) {
        QDir().mkpath(to + QLatin1Char('/') + QLatin1String(folder));
        QDirIterator files(source.filePath(QLatin1String(folder)), QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const QString name = source.relativeFilePath(file);
            const QString copy = to + QLatin1Char('/') + name;
            if (!given.contains(name) && give(file, copy)) {
                given << name;
            } else if (name.endsWith(QStringLiteral(".pdf"))) {
                renew(file, copy);
            }
        }
    }
    if (given.size() != givenBefore) {
        QStringList names = given.values();
        names.sort();
        writeTextFile(listFile, names.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
    }
}

ProgramFolders findProgramFolders() {
    return findProgramFolders(QCoreApplication::applicationDirPath());
}

ProgramFolders findProgramFolders(const QString& executableFolder) {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString installed = installedLibraries(executableFolder);
    if (installed.isEmpty() && canWriteIn(executableFolder)) {
        return {executableFolder, pictures};
    }
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    seedFolders(installed.isEmpty() ? executableFolder : installed, own);
    return {own, pictures};
}

} // namespace kaart
