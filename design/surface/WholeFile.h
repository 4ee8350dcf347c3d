#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kaart {

/// All bytes of an ordinary file, or nothing when it cannot be read, is larger than `maxBytes`, or
/// is no ordinary file (a pipe would block).
std::optional<QByteArray> readWholeFile(const QString& path, qint64 maxBytes);

/// Writes a file, which appears whole or not at all; an older one stays until then. False on any
/// failure, a full disk too, and for a target that exists and is no ordinary file.
bool writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace kaart
