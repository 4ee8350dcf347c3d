#pragma once

#include "controls/platform/ScreenGrab.h"

#include <QDialog>

#include <memory>

class QLabel;

namespace kaart {

class Design;
class OverlayShape;
class SurfaceView;

/// "Schermafdruk": pictures the whole desktop without the program's own windows, lets the user drag
/// a rectangle over it and lets that part float above the design. Where no picture of the screen
/// can be had, the window comes back and says what to do.
class CaptureForm : public QDialog {
    Q_OBJECT

public:
    /// `settle` is how long the desktop gets to repaint itself without the windows, in seconds.
    explicit CaptureForm(Design& design, QWidget* parent = nullptr,
                         std::unique_ptr<ScreenGrab> screen = makeScreenGrab(),
                         double settle = 0.5);

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Stage { Waiting, Selecting, Cut };

    void buildMenu();
    QWidget* buildSheet();
    QLabel* addText(QWidget* sheet, const char* name);
    void enter(Stage stage);
    void capture();
    void takePicture();
    void refuse();
    void leaveScreen();
    void returnToScreen();
    void press(const QPoint& at, Qt::MouseButton button);
    void drag(const QPoint& at);
    void cut();
    void exportCut();

    Design& design_;
    std::unique_ptr<ScreenGrab> screen_;
    const double settle_;
    bool away_ = false; ///< the windows are off the screen
    QPoint place_;      ///< where the window stood before
    SurfaceView* pic_ = nullptr;
    SurfaceView* picture1_ = nullptr;
    OverlayShape* layer_ = nullptr;
    QLabel* label1_ = nullptr;
    QLabel* label2_ = nullptr;
};

} // namespace kaart
