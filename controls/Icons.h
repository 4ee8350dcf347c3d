#pragma once

#include <QIcon>
#include <QString>

namespace kaart {

/// The picture ":/icons/<name>.svg" of a button, rendered anew for every size and device pixel
/// ratio and faded while disabled. A null icon when there is no such picture.
QIcon icon(const QString& name);

} // namespace kaart
