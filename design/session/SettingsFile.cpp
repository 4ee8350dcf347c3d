#include "design/session/SettingsFile.h"

#include "design/surface/Numbers.h"
#include "design/surface/TextFile.h"

#include <QStringList>

#include <array>
#include <cmath>

namespace kaart {

std::optional<Margins> readSettings(const QString& path) {
    const QStringList records = splitLines(readTextFile(path).value_or(QString()));
    if (records.size() < 3) {
        return std::nullopt;
    }
    const QStringList fields = records[2].split(QLatin1Char(','));
    std::array<double, 4> numbers{};
    if (fields.size() != static_cast<qsizetype>(numbers.size())) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool valid = false;
        numbers[i] = fields[static_cast<qsizetype>(i)].trimmed().toDouble(&valid);
        if (!valid || !std::isfinite(numbers[i])) {
            return std::nullopt;
        }
    }
    return Margins{numbers[0], numbers[1], numbers[2], roundEven(numbers[3])};
}

bool writeSettings(const QString& path, const Margins& margins) {
    const QString text = QStringLiteral("\"Brelmo Software 2015\"\r\n"
                                        "\"--------------------------\"\r\n"
                                        "%1,%2,%3,%4\r\n")
                             .arg(margins.left)
                             .arg(margins.top)
                             .arg(margins.right)
                             .arg(margins.bottom);
    return writeTextFile(path, text);
}

} // namespace kaart
