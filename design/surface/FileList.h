#pragma once

#include <QStringList>

namespace kaart {

/// The names of a folder's files that match one of the patterns ("*.bmp"), matched and sorted
/// without regard to case, hidden ones too. Empty for a folder that can't be read.
QStringList fileNames(const QString& folder, const QStringList& patterns);

} // namespace kaart
