#pragma once

#include "output/DesignFile.h"

#include <QDialog>

namespace kaart {

class Design;
class SurfaceView;

/// "Ontwerp Opslaan": asks for a name and writes the design and its JPEG copy, then shows progress
/// for some three seconds and closes. A refused name or a failed write gives a message and keeps
/// the window open and Gewijzigd as it was. The written files don't depend on the progress run,
/// which may be cut short by closing the window.
class SaveForm : public QDialog {
    Q_OBJECT

public:
    explicit SaveForm(Design& design, QWidget* parent = nullptr);

    double progressPause = 0.02; ///< seconds after each of the 151 steps
    double closingPause = 0.5;   ///< seconds at 100%

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save();
    void runProgress();
    void showProgress(int step);

    Design& design_;
    const DesignFolders folders_;
};

} // namespace kaart
