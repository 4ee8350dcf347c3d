#pragma once

#include <QDialog>

namespace kaart {

class ColourSwatch;
class Design;
class SelectView;

/// "Polygon Maker": draws regular polygons into a scratch picture, one over the other, each fitted
/// into a square that the left mouse button drags out; a right click fills what black lines
/// surround. The part in the last square is handed over as a floating picture.
class PolyGonForm : public QDialog {
    Q_OBJECT

public:
    explicit PolyGonForm(Design& design, QWidget* parent = nullptr);

private:
    void buildSwatches();
    void fillLists();
    void connectControls();
    void showSize();
    void drawPolygon();
    void fill(QPoint at);
    void reset();
    void exportPolygon();

    Design& design_;
    SelectView* Picture1_;
    ColourSwatch* fillColour_ = nullptr;
};

} // namespace kaart
