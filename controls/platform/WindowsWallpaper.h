#pragma once

#include <QString>

namespace kaart {

/// Windows: SystemParametersInfo, noted in the user's profile. False everywhere else.
bool setWindowsWallpaper(const QString& file);

} // namespace kaart
