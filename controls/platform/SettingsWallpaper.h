#pragma once

#include <QString>

namespace kaart {

/// Desktops that keep the background in the settings store of gsettings, by a name that
/// XDG_CURRENT_DESKTOP has for them: GNOME, Unity, Budgie, Pantheon, Cinnamon, MATE. Their picture
/// for dark rooms is set too, where there is one. False for other desktops and for a failure.
bool setSettingsWallpaper(const QString& desktop, const QString& file);

} // namespace kaart
