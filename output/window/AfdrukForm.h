#pragma once

#include "controls/Printers.h"
#include "design/surface/PixelSurface.h"
#include "output/PageLayout.h"
#include "output/PrintPreview.h"

#include <QDialog>

namespace kaart {

class Design;

/// "Afdrukken": printer, layout, copies, margins and a preview; prints the design and closes. Asks
/// the system for its printers when it is made. Of print errors only a PDF file that could not be
/// written is reported. The margins typed are taken over when printing starts, the left one at
/// every change.
class AfdrukForm : public QDialog {
    Q_OBJECT

public:
    explicit AfdrukForm(Design& design, QWidget* parent = nullptr);

    /// 1 gives the preview and its frame the upright size, any other number the lying one.
    void SizePreview(int kind);

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillLists();
    void fillMargins();
    void colourControls();
    void showArt();
    void connectControls();
    PrintOption option() const;
    void pickOption();
    void pickPrinter(int index);
    void print();
    void takeMargins();
    PrintOrder order() const;
    bool optimise(QImage& picture);

    Design& design_;
    const Printers printers_;
    PixelSurface preview_;
    PixelSurface dstPicture_;
    bool closed_ = false;
};

} // namespace kaart
