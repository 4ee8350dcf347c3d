#include "controls/platform/Command.h"

#include <QProcess>
#include <QStandardPaths>

namespace kaart {

namespace {

constexpr int limit = 5000; // ms

} // namespace

std::optional<QByteArray> runCommand(const QString& program, const QStringList& arguments) {
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    QProcess process;
    process.start(path, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(limit)) {
        process.kill();
        process.waitForFinished(limit);
        return std::nullopt;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return std::nullopt;
    }
    return process.readAllStandardOutput();
}

} // namespace kaart
