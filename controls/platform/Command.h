#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace kaart {

/// Runs a program of the system with these arguments, without a shell, and waits for its end. What
/// it has written, or nothing when it is missing, fails or takes more than 5 seconds.
std::optional<QByteArray> runCommand(const QString& program, const QStringList& arguments);

} // namespace kaart
