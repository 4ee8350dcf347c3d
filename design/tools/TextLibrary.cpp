#include "design/tools/TextLibrary.h"

#include "design/surface/FileList.h"
#include "design/surface/TextFile.h"

#include <QDir>

namespace kaart {

namespace {

const QLatin1String lineEnd("\r\n");

QString libraryFolder(const ProgramFolders& folders) {
    return folders.in(QStringLiteral("Data"));
}

} // namespace

QStringList textFileNames(const ProgramFolders& folders) {
    return fileNames(libraryFolder(folders), {QStringLiteral("*.txt")});
}

std::optional<QString> textPath(const ProgramFolders& folders, const QString& name) {
    if (name.isEmpty() || isRefusedName(name)) {
        return std::nullopt;
    }
    return libraryFolder(folders) + QLatin1Char('/') + name + QStringLiteral(".txt");
}

std::optional<QString> LaadTekst(const ProgramFolders& folders, const QString& file) {
    const auto content = readTextFile(libraryFolder(folders) + QLatin1Char('/') + file);
    if (!content) {
        return std::nullopt;
    }
    QString text;
    for (const QString& line : splitLines(*content)) {
        for (const QString& piece : line.split(QLatin1Char(','))) {
            text += piece + lineEnd;
        }
    }
    return text;
}

bool BewaarTekst(const ProgramFolders& folders, const QString& name, const QStringList& lines) {
    const auto path = textPath(folders, name);
    QString content;
    for (const QString& line : lines) {
        content += line + lineEnd;
    }
    return path && QDir().mkpath(libraryFolder(folders)) && writeTextFile(*path, content);
}

} // namespace kaart
