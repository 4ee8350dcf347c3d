#include "controls/Icons.h"

#include <QFile>

namespace kaart {

QIcon icon(const QString& name) {
    const QString path = QStringLiteral(":/icons/%1.svg").arg(name);
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

} // namespace kaart
