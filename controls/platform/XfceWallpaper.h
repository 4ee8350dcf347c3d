#pragma once

#include <QString>

namespace kaart {

/// The Xfce desktop: every background that xfconf-query lists, one for each screen and workspace,
/// or a new one for each screen when it lists none. False when none could be set.
bool setXfceWallpaper(const QString& file);

} // namespace kaart
