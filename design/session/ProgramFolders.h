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

/// The executable's folder when it can be written to, otherwise a folder in the user's data folder,
/// seeded from the libraries that lie beside the executable. Where `../share/kaartwerkje` holds
/// them, as in an installed program, it is always the user's folder, for root too.
ProgramFolders findProgramFolders();
/// The same for an executable in another folder.
ProgramFolders findProgramFolders(const QString& executableFolder);

/// Makes the library folders in `to` and copies what `from` has in them, each file once: one that
/// `to` has already stays as it is, and one that the user has deleted stays away. Only a manual,
/// *.pdf, follows that of `from` as long as it is there. "Geleverd.txt" in `to` lists what has been
/// copied. A copy that fails is tried again the next time.
void seedFolders(const QString& from, const QString& to);

} // namespace kaart
