#pragma once

#include <QString>

#include <optional>

namespace kaart {

/// The path below the chosen folder that an archive's name stands for: parts between single "/",
/// none at the end. A back slash counts as "/"; "." and empty parts are dropped. Nothing for a name
/// that leads elsewhere, on whatever system: absolute, with "..", a colon (drives, streams) or a
/// control character, with a blank or dot at a part's end, or with a part that names a device
/// ("NUL", "com1.bmp"); nor for one of which nothing is left.
std::optional<QString> safeEntryPath(const QString& stored);

} // namespace kaart
