#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace kaart {

// A record file (.col) is a text file in the manner of TextFile.h: a banner line and a separator
// line, then for each record its fields, one a line, and a separator. Each line ends in CR LF;
// there is no count and no version. Lines go by their position, whatever they say.

/// What becomes of a last record that the file breaks off in.
enum class TornRecord {
    Dropped,
    Kept ///< the missing fields are empty
};

/// The records of `fieldCount` fields each, without those whose first field is blank. No records
/// when the file cannot be read. Any line end of splitLines does.
QList<QStringList> readRecords(const QString& path, int fieldCount, TornRecord torn);

/// Writes the file in the way of writeWholeFile, its folder too where it is missing. The first
/// field of a record loses the blanks around it; a line break within a field becomes a blank.
bool writeRecords(const QString& path, const QList<QStringList>& records);

/// Without the blanks (U+0020) at either end; tabs and other white space stay.
QString trimBlanks(const QString& text);

} // namespace kaart
