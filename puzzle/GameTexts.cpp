#include "puzzle/GameTexts.h"

namespace kaart {

QString gameTime(int seconds) {
    const auto twoDigits = [](int part) {
        return QStringLiteral("%1").arg(part, 2, 10, QLatin1Char('0'));
    };
    return twoDigits(seconds / 3600) + QLatin1Char(':') + twoDigits(seconds % 3600 / 60) +
           QLatin1Char(':') + twoDigits(seconds % 60);
}

QString levelLetter(int level) {
    return level < 0 ? QString() : QStringLiteral("GSM").mid(level, 1);
}

QString gridText(int columns, int rows, int level) {
    constexpr int blanks = 12;
    return QStringLiteral("%1 x %2").arg(columns).arg(rows) + QString(blanks, QLatin1Char(' ')) +
           levelLetter(level);
}

} // namespace kaart
