#pragma once

#include <QString>

namespace kaart {

/// Where the program reads and writes. Both are absolute paths without a slash at the end.
struct ProgramFolders {
    QString program;  ///< holds Data, Lijsten, Ontwerpen ... and Kaartwerkje.ini
    QString pictures; ///< the user's Pictures folder

    /// A path below the program folder: in("Ontwerpen/Feest.bmp").
    QString in(const QString& relative) const { return program + QLatin1Char('/') + relative; }
};

/// The executable's folder when it can be written to, otherwise a copy of it in the user's data
/// folder, which is seeded with what it lacks and never overwritten.
ProgramFolders findProgramFolders();

/// Copies every file below `from` that `to` does not have. What fails is left out.
void seedFolder(const QString& from, const QString& to);

} // namespace kaart
