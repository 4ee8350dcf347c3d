#pragma once

#include <QDialog>

namespace kaart {

class Design;
class SelectView;
class SurfaceView;
struct CurveFrame;

/// "Golvend en circel tekst": a line of text along one of four curves, each with a frame of sliders
/// of its own; the slider moved last chooses the curve. The text can be coloured with a pattern,
/// and a part of it is handed over as a floating picture. Kept: text, font and size come to show at
/// the next move of a slider.
class WaveTextForm : public QDialog {
    Q_OBJECT

public:
    explicit WaveTextForm(Design& design, QWidget* parent = nullptr);

private:
    void buildPictures();
    void buildFrame(const CurveFrame& frame);
    void orderTabs();
    void buildMenu();
    void dress();
    void connectControls();
    void takeFont();
    void draw(const CurveFrame& frame);
    void ColorText();
    void exportText();

    Design& design_;
    SelectView* Pic_ = nullptr;
    SurfaceView* BackPic_ = nullptr;
};

} // namespace kaart
