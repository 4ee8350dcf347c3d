#include "design/surface/TextFile.h"

#include "design/surface/WholeFile.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kaart {

namespace {

constexpr qint64 maxTextFile = qint64{64} << 20;

constexpr std::array<char16_t, 256> makeLetters() {
    // The bytes 0x80 to 0x9F; all others have the number of their letter.
    constexpr char16_t special[32] = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    std::array<char16_t, 256> letters{};
    for (std::size_t byte = 0; byte < letters.size(); ++byte) {
        letters[byte] = static_cast<char16_t>(byte);
    }
    std::copy(std::begin(special), std::end(special), letters.begin() + 0x80);
    return letters;
}

constexpr std::array<char16_t, 256> letters = makeLetters();

char byteOf(char16_t letter) {
    if (letter < letters.size() && letters[letter] == letter) {
        return static_cast<char>(letter);
    }
    const auto found = std::find(letters.begin() + 0x80, letters.begin() + 0xA0, letter);
    return found == letters.begin() + 0xA0 ? '?' : static_cast<char>(found - letters.begin());
}

} // namespace

QString fromWindows1252(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return QChar(letters[static_cast<unsigned char>(byte)]); });
    return text;
}

QByteArray toWindows1252(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        bytes += byteOf(text[i].unicode());
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
        }
    }
    return bytes;
}

std::optional<QString> readTextFile(const QString& path) {
    const auto bytes = readWholeFile(path, maxTextFile);
    if (!bytes) {
        return std::nullopt;
    }
    return fromWindows1252(*bytes);
}

QStringList splitLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != QLatin1Char('\r') && text[i] != QLatin1Char('\n')) {
            continue;
        }
        lines << text.mid(start, i - start);
        if (QStringView(text).mid(i).startsWith(QLatin1String("\r\n"))) {
            ++i;
        }
        start = i + 1;
    }
    if (start < text.size()) {
        lines << text.mid(start);
    }
    return lines;
}

bool writeTextFile(const QString& path, const QString& text) {
    return writeWholeFile(path, toWindows1252(text));
}

} // namespace kaart
