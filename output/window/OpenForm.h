#pragma once

#include "design/surface/PixelSurface.h"
#include "output/DesignFile.h"

#include <QDialog>

#include <optional>

namespace kaart {

class Design;

/// "Openen van een Ontwerp": lists the designs by name, shows the one clicked as a thumbnail and
/// opens it as the unchanged design. A file that can't be read leaves the design as it is. Kept: a
/// click sets OntwerpRichting by the picture's size; a picture that is no design gives a message,
/// yet OK opens it all the same.
class OpenForm : public QDialog {
    Q_OBJECT

public:
    explicit OpenForm(Design& design, QWidget* parent = nullptr);

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildList();
    void fillList();
    void connectControls();
    std::optional<QString> selectedName() const;
    void pick();
    void showThumbnail(const QImage& picture, bool landscape);
    void openDesign();

    Design& design_;
    const DesignFolders folders_;
    const QString richtingBefore_;
    PixelSurface thumbnail_;
    bool mouseIsDown_ = false;
};

} // namespace kaart
