#pragma once

#include "libraries/ArrowSheet.h"

#include <QDialog>

namespace kaart {

class Design;

/// "Pijlen, Vlaggen en Pins": leafs through the sheet Data/Arrows.arr row by row, picks one of the
/// four pictures shown with the mouse or Ctrl+1 to Ctrl+4, turns and mirrors it, and hands it over
/// in one of two sizes to float above the canvas. A sheet that can't be read gives a message and an
/// empty window; with nothing picked ExportKnop only closes.
class ArrowForm : public QDialog {
    Q_OBJECT

public:
    explicit ArrowForm(Design& design, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dress();
    void connectControls();
    void loadSheet();
    void pick(int x);
    void exportPicture();
    void refresh();

    Design& design_;
    ArrowSheet sheet_;
};

} // namespace kaart
