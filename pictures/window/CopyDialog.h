#pragma once

#include "controls/FolderLists.h"

#include <QDialog>

namespace kaart {

class Design;
class PixelSurface;

/// "Afbeelding Importeren": picks a picture file, shows it, and paints it into the selection on the
/// design, stretched to fit: at Layer's place, with the size SelectieBreedte x SelectieHoogte. A
/// file that can't be read leaves the picture before it, shown and to be painted; with no picture
/// at all the design stays as it is.
class CopyDialog : public QDialog {
    Q_OBJECT

public:
    explicit CopyDialog(Design& design, QWidget* parent = nullptr);

private:
    void dress();
    void listFiles(const QString& folder);
    void pick();
    void showPreview(const PixelSurface& picture);
    void exportPicture();

    Design& design_;
    FolderLists* folders_;
};

} // namespace kaart
