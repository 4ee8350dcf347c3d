#include "design/surface/FileList.h"

#include <QDir>

namespace kaart {

QStringList fileNames(const QString& folder, const QStringList& patterns) {
    return QDir(folder).entryList(patterns, QDir::Files | QDir::Hidden,
                                  QDir::Name | QDir::IgnoreCase);
}

} // namespace kaart
