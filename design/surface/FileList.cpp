#include "design/surface/FileList.h"

#include <QDir>

namespace kaart {

QStringList fileNames(const QString& folder, const QStringList& patterns) {
    return QDir(folder).entryList(patterns, QDir::Files | QDir::Hidden,
                                  QDir::Name | QDir::IgnoreCase);
}

bool isRefusedName(const QString& name) {
    return name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')) ||
           name.contains(QChar(0));
}

} // namespace kaart
