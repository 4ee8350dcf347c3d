#include "output/window/OpenForm.h"

#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/PictureGate.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>

namespace kaart {

namespace {

constexpr int extensionLength = 4;  // ".bmp"
constexpr int thumbnailLong = 2400; // twips
constexpr int thumbnailShort = 1650;
constexpr int frameWidth = 75; // both sides together

const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 0, 0},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::List, "", "List1", 180, 180, 3120, 3480},
    {ControlKind::Label, "", "Label2", 180, 3735, 3120, 270},
    {ControlKind::Value, "", "Label1", 3480, 180, 2475, 1725},
    {ControlKind::Surface, "", "Pic1", 3510, 210, thumbnailLong, thumbnailShort},
    {ControlKind::Button, "", "OkKnop", 3480, 2895, 2475, 480, "OK", "", "openen", "Enter"},
    {ControlKind::Button, "", "CancelKnop", 3480, 3480, 2475, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

} // namespace

OpenForm::OpenForm(Design& design, QWidget* parent)
    : QDialog(parent),
      design_(design),
      folders_{design.Folders.program, design.Folders.pictures},
      richtingBefore_(design.OntwerpRichting) {
    setObjectName(QStringLiteral("OpenForm"));
    setWindowTitle(QStringLiteral("Openen van een Ontwerp"));
    setFixedSize(pixels(6150), pixels(4170));
    setBackColor(*this, RGB(220, 220, 190));
    buildControls(*this, controls);
    auto& back = control<SurfaceView>(*this, "BackPic");
    back.surface().AutoSize = true;
    back.hide();
    thumbnail_.ParentUnit = ScaleUnit::Twips;
    thumbnail_.ScaleMode = ScaleUnit::Twips;
    thumbnail_.BackColor = RGB(200, 220, 220);
    showThumbnail({}, true);
    buildList();
    fillList();
    connectControls();
}

void OpenForm::buildList() {
    control<QListWidget>(*this, "File1").hide();
    auto& list = control<QListWidget>(*this, "List1");
    setForeColor(list, RGB(60, 60, 60));
    setBackColor(list, RGB(200, 220, 220));
    list.setSpacing(1);
    list.setAccessibleName(QStringLiteral("Ontwerpen"));
    list.viewport()->installEventFilter(this);
    list.setFocus();
}

void OpenForm::fillList() {
    const QStringList fileNames = designFileNames(folders_);
    control<QListWidget>(*this, "File1").addItems(fileNames);
    for (const QString& fileName : fileNames) {
        control<QListWidget>(*this, "List1").addItem(fileName.chopped(extensionLength));
    }
    control<QLabel>(*this, "Label2").setText(QStringLiteral("%1 Ontwerpen").arg(fileNames.size()));
}

void OpenForm::connectControls() {
    auto& list = control<QListWidget>(*this, "List1");
    connect(&list, &QListWidget::itemSelectionChanged, this, [this] {
        if (!mouseIsDown_) {
            pick();
        }
    });
    connect(&list, &QListWidget::itemDoubleClicked, this, &OpenForm::openDesign);
    connect(&control<VistaButton>(*this, "OkKnop"), &VistaButton::clicked, this,
            &OpenForm::openDesign);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &OpenForm::reject);
}

void OpenForm::reject() {
    // A click has set it for a picture that isn't opened after all.
    design_.OntwerpRichting = richtingBefore_;
    design_.ToonInfo();
    QDialog::reject();
}

bool OpenForm::eventFilter(QObject* watched, QEvent* event) {
    // With the mouse a line is picked at the release, also when it was selected before.
    if (event->type() == QEvent::MouseButtonPress) {
        mouseIsDown_ = true;
    } else if (event->type() == QEvent::MouseButtonRelease && mouseIsDown_) {
        mouseIsDown_ = false;
        pick();
    }
    return QDialog::eventFilter(watched, event);
}

void OpenForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        openDesign();
        return;
    }
    QDialog::keyPressEvent(event);
}

/// The selected line. The current one may be so only because the list has the focus.
std::optional<QString> OpenForm::selectedName() const {
    const auto selected = control<QListWidget>(*this, "List1").selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional(selected.first()->text());
}

void OpenForm::pick() {
    const auto name = selectedName();
    if (!name) {
        return;
    }
    design_.OntwerpPad = designPath(folders_, *name);
    PixelSurface& back = control<SurfaceView>(*this, "BackPic").surface();
    if (const auto picture = LoadPicture(design_.OntwerpPad)) {
        back.setPicture(*picture);
    }
    // Kept: after a file that can't be read the test is made on the picture before it.
    const auto orientation = designOrientation(back.bounds().size());
    if (!orientation) {
        showMessage(this, QStringLiteral("Foute Afbeelding"),
                    QStringLiteral("Dit is géén orgineel ontwerp!"), QMessageBox::Critical);
        return;
    }
    design_.OntwerpRichting = *orientation;
    showThumbnail(back.Image(), design_.isLandscape());
}

void OpenForm::showThumbnail(const QImage& picture, bool landscape) {
    const int width = landscape ? thumbnailLong : thumbnailShort;
    const int height = landscape ? thumbnailShort : thumbnailLong;
    const auto& frame = control<QLabel>(*this, "Label1");
    const int left = frame.x() * twipsPerPixel;
    place(control<QWidget>(*this, "Label1"), left, frame.y() * twipsPerPixel, width + frameWidth,
          height + frameWidth);
    thumbnail_.setSize(width, height);
    thumbnail_.Cls();
    if (!picture.isNull()) {
        thumbnail_.PaintPicture(picture, 0, 0, width, height, 0, 0, picture.width() * twipsPerPixel,
                                picture.height() * twipsPerPixel);
    }
    control<SurfaceView>(*this, "Pic1").show(thumbnail_);
}

void OpenForm::openDesign() {
    const QString name = selectedName().value_or(QString());
    design_.OntwerpPad = designPath(folders_, name);
    // Read before the canvas is cleared, so that a damaged file costs no one their design.
    if (const auto picture = LoadPicture(design_.OntwerpPad)) {
        design_.ZetRichting(design_.isLandscape() ? 2 : 1);
        design_.open(*picture, name);
        design_.ToonInfo();
    } else {
        design_.OntwerpRichting = richtingBefore_;
    }
    accept();
}

} // namespace kaart
