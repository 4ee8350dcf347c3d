#include "packs/EntryName.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace kaart {

namespace {

bool namesDevice(const QString& part) {
    static const QRegularExpression device(
        QStringLiteral("^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[0-9¹²³]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(part).hasMatch();
}

bool isSafe(const QString& part) {
    const auto isWild = [](QChar letter) {
        return letter == QLatin1Char(':') || letter.category() == QChar::Other_Control;
    };
    // Some systems drop blanks and dots at the end, so ".. " would become "..".
    return !part.endsWith(QLatin1Char('.')) && !part.endsWith(QLatin1Char(' ')) &&
           std::none_of(part.begin(), part.end(), isWild) && !namesDevice(part);
}

} // namespace

std::optional<QString> safeEntryPath(const QString& stored) {
    const QString path = QString(stored).replace(QLatin1Char('\\'), QLatin1Char('/'));
    QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts.removeAll(QStringLiteral("."));
    if (path.startsWith(QLatin1Char('/')) || parts.isEmpty() ||
        !std::all_of(parts.cbegin(), parts.cend(), isSafe)) {
        return std::nullopt;
    }
    return parts.join(QLatin1Char('/'));
}

} // namespace kaart
