#pragma once

#include <QStringList>

namespace kaart {

/// The names of a folder's files that match one of the patterns ("*.bmp"), matched and sorted
/// without regard to case, hidden ones too. Empty for a folder that can't be read.
QStringList fileNames(const QString& folder, const QStringList& patterns);

/// Names that would lead out of their folder: those with a slash, a back slash or a zero character.
bool isRefusedName(const QString& name);

} // namespace kaart
