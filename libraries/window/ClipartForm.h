#pragma once

#include "libraries/Sticker.h"

#include <QDialog>

namespace kaart {

class Design;

/// "Stickers Plakken": picks one of the five stickers of a sheet of the folder Stickers, with the
/// mouse or Ctrl+1 to Ctrl+5, resizes it, mirrors it, turns it black and white, and hands it over
/// to float above the canvas. A file that is no sheet gives a message and leaves what is shown.
class ClipartForm : public QDialog {
    Q_OBJECT

public:
    explicit ClipartForm(Design& design, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dress();
    void connectControls();
    void fillList();
    void openSheet(const QString& name);
    void pick(QPoint at);
    void resizeSticker(int width);
    void mirror();
    void removeColours();
    void showSticker();
    void exportSticker();

    Design& design_;
    Sticker sticker_;
};

} // namespace kaart
