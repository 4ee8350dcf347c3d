#pragma once

#include "design/session/ProgramFolders.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kaart {

// The text library: each text is a file Data/<name>.txt, its lines in Windows-1252, each ended by
// CR LF, without a header.

/// The library's file names, sorted without regard to case. Empty when the folder isn't there.
QStringList textFileNames(const ProgramFolders& folders);

/// The path of a text's file, or nothing for a name that would lead out of the folder: one with a
/// slash, a back slash or a zero character, or an empty one.
std::optional<QString> textPath(const ProgramFolders& folders, const QString& name);

/// The text of a library file, each piece ended by CR LF, or nothing when it can't be read. Kept:
/// a comma ends a piece as a line end does, so it breaks its line in two.
std::optional<QString> LaadTekst(const ProgramFolders& folders, const QString& file);

/// Writes lines under a name, in place of an older text. False when the name is refused or the file
/// can't be written; an older one stays then.
bool BewaarTekst(const ProgramFolders& folders, const QString& name, const QStringList& lines);

} // namespace kaart
