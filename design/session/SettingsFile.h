#pragma once

#include <QString>

#include <optional>

namespace kaart {

/// The print margins as `Kaartwerkje.ini` keeps them, in units of 30 twips.
struct Margins {
    double left = 0;
    double top = 0;
    double right = 0;
    int bottom = 0;
};

/// `Kaartwerkje.ini`: three records ended by CR LF. The first two are strings in double quotes, the
/// maker's line and a rule of dashes; the third holds the margins left, top, right, bottom as plain
/// numbers between commas.

/// The margins, or nothing when the file is missing or damaged: fewer than three records, or a
/// third one that isn't four numbers. The first two records are skipped whatever they say. The
/// bottom margin is rounded, a half to even.
std::optional<Margins> readSettings(const QString& path);

/// Writes the three records, whole or not at all. False when that failed.
bool writeSettings(const QString& path, const Margins& margins);

} // namespace kaart
