#include "design/window/FramePanel.h"

#include "controls/ControlTable.h"
#include "controls/VistaButton.h"
#include "design/surface/FileList.h"
#include "design/surface/Numbers.h"
#include "design/surface/PictureGate.h"
#include "design/tools/FrameRings.h"

namespace kaart {

FramePanel::FramePanel(QWidget& window, Design& design)
    : QObject(&window),
      design_(design),
      list_(*new QListWidget(&control<QWidget>(window, "Frame10Inhoud"))),
      slider_(control<Fader>(window, "LijstScroll")),
      pic_(control<SurfaceView>(window, "LijstPic")),
      label_(control<QLabel>(window, "Label28")) {
    pic_.show(design.LijstPic);
    fillList();
    load(QStringLiteral("Lijst-001.fra"));
    connect(&slider_, &Fader::valueChanged, this, &FramePanel::choose);
    connect(&control<VistaButton>(window, "LijstKnop"), &QAbstractButton::clicked, this,
            &FramePanel::drawRoundDesign);
}

void FramePanel::fillList() {
    list_.setObjectName(QStringLiteral("FileLijst"));
    list_.hide();
    list_.addItems(
        fileNames(design_.Folders.in(QStringLiteral("Lijsten")), {QStringLiteral("*.fra")}));
    slider_.setRange(1, std::max(1, list_.count()));
    slider_.setPageStep(1);
    label_.setText(QStringLiteral("1 / %1").arg(list_.count()));
}

void FramePanel::choose(int position) {
    list_.setCurrentRow(position - 1);
    if (const QListWidgetItem* file = list_.currentItem()) {
        load(file->text());
    }
    label_.setText(QStringLiteral("%1 / %2").arg(position).arg(list_.count()));
}

void FramePanel::load(const QString& fileName) {
    const QString folder = design_.Folders.in(QStringLiteral("Lijsten/"));
    if (const std::optional<QImage> picture = LoadPicture(folder + fileName)) {
        design_.LijstPic.setPicture(*picture);
        pic_.update();
    }
}

void FramePanel::drawRoundDesign() {
    design_.change([this](PixelSurface& pic) {
        TekenLijst(pic, design_.LijstPic, 0, 0, roundEven(pic.ScaleWidth()),
                   roundEven(pic.ScaleHeight()));
    });
}

} // namespace kaart
