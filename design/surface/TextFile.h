#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace kaart {

// Whole files as bytes, for text, pictures and whatever else the program keeps.

// The text files of the program (.ini, .col, .txt) are Windows-1252 with CR LF line ends.

/// Each byte has its letter (the five unassigned ones the control of the same number), so reading
/// never fails and writing what was read gives the same bytes.
QString fromWindows1252(const QByteArray& bytes);
/// A letter outside the table is written as one "?", also where it takes two UTF-16 units.
QByteArray toWindows1252(const QString& text);

/// The whole file as text, or nothing when it cannot be read. Files over 64 MB are refused. Line
/// ends stay as they are.
std::optional<QString> readTextFile(const QString& path);
/// The text cut at CR LF, LF or CR; a last line without an end counts, an empty one after the last
/// end does not.
QStringList splitLines(const QString& text);
/// Writes the text as it stands, line ends included, in the way of writeWholeFile.
bool writeTextFile(const QString& path, const QString& text);

} // namespace kaart
