#pragma once

#include "design/surface/PixelSurface.h"

#include <QDialog>

namespace kaart {

class Design;

/// One window for the four libraries of pictures *.jpg beside the program; the design's RandSoort
/// says which: 1 "Frames", 2 "Templates", 3 "Achtergronden", 4 "Maskers" (another counts as the
/// nearest). Shows them one by one, deletes files, and applies the picture shown: 1 to 3 take the
/// design's place and orientation, a mask whitens parts of it. Kept: a picture that was looked at
/// leaves its orientation in OntwerpRichting, a cancelled one too. A file that can't be read gives
/// a message and leaves the picture before it; with none at all ExportKnop is disabled.
class BorderForm : public QDialog {
    Q_OBJECT

public:
    explicit BorderForm(Design& design, QWidget* parent = nullptr);

    /// Does nothing while a mask is being applied.
    void reject() override;

private:
    void dress();
    void connectControls();
    void openLibrary();
    bool load(const QString& name);
    void showPreview();
    void browse(int position);
    void pick();
    void removePicture();
    void exportPicture();
    void exportMask(const QImage& picture);
    void showCount();
    void report(const QString& text);

    Design& design_;
    const int kind_;
    const QString folder_;
    PixelSurface back_;
    PixelSurface preview_;
    int shownRow_ = -1; ///< line of File1, -1 for none of them
};

} // namespace kaart
