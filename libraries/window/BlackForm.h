#pragma once

#include "libraries/LineDrawing.h"

#include <QDialog>

class QMouseEvent;

namespace kaart {

class Design;
class OverlayShape;

/// "Vector Plaatjes": shows the line drawings of the folder Vectors, cuts a rectangle out of one,
/// lets the user erase in it, and hands it over to float above the canvas. A choice from the list,
/// also of the drawing in hand, brings the whole drawing back. Kept: a click without a drag cuts
/// out nothing; without a cut-out nothing is handed over.
class BlackForm : public QDialog {
    Q_OBJECT

public:
    explicit BlackForm(Design& design, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dress();
    void connectControls();
    void fillList();
    void showDrawing();
    void setUpBars();
    void scroll();
    void showPart();
    void select(const QMouseEvent& mouse);
    void makeCut();
    void erase(const QMouseEvent& mouse);
    void exportCut();

    Design& design_;
    LineDrawing drawing_;
    OverlayShape* layer_; ///< the rubber band above Pic
    OverlayShape* gum_;   ///< the eraser's cursor above CopyPic
    int loadedRow_ = -1;  ///< of List1: the drawing in hand
};

} // namespace kaart
