#include "design/surface/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace kaart {

std::optional<QByteArray> readWholeFile(const QString& path, qint64 maxBytes) {
    // A pipe or a device would block or never end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > maxBytes) {
        return std::nullopt;
    }
    const qint64 size = file.size();
    QByteArray bytes = file.read(size);
    if (bytes.size() != size) {
        return std::nullopt;
    }
    return bytes;
}

bool writeWholeFile(const QString& path, const QByteArray& bytes) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) {
        return false;
    }
    QSaveFile file(path);
    // The commit alone does not notice that the last of the bytes found no room.
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

} // namespace kaart
