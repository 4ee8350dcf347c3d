#pragma once

#include <QString>

class QImage;
class QWidget;

namespace kaart {

/// Asks whether the picture should become the desktop's background. At Yes it is saved as
/// "Wallpaper.bmp" in the user's data folder, where desktops may look for it from then on, and set;
/// a box tells of it. A failure ends without that box.
void BewaarBureaublad(QWidget* parent, const QImage& picture);

/// Has the desktop show a picture file as its background; `file` is an absolute path. The present
/// desktop's own way comes first, since the portal may ask the user once more, and then the portal.
/// Every step is limited in time. False when no way works.
bool ZetBureaublad(const QString& file);

} // namespace kaart
