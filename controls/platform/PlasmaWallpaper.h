#pragma once

#include <QDBusConnection>
#include <QString>

namespace kaart {

/// The Plasma desktop: a script that its shell runs sets the picture on every screen and activity.
/// False when the shell is not there, refuses, or does not answer within 5 seconds.
bool setPlasmaWallpaper(const QString& file,
                        const QDBusConnection& bus = QDBusConnection::sessionBus());

} // namespace kaart
