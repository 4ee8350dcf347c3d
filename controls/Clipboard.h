#pragma once

class QImage;
class QWidget;

namespace kaart {

/// Copies a picture to the system's clipboard, for other programs to paste, and says so in a box.
/// It stays there after this program has closed where the system keeps it: on Windows, and where a
/// clipboard manager runs, which takes it over at the end.
void NaarClipboard(QWidget* parent, const QImage& picture);

} // namespace kaart
