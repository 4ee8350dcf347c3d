#include "design/session/Design.h"

namespace kaart {

namespace {

constexpr int longSide = 640;
constexpr int shortSide = 440;
const QString portrait = QStringLiteral("Staand");
const QString landscape = QStringLiteral("Liggend");

} // namespace

Design::Design(ProgramFolders folders, QObject* parent)
    : QObject(parent),
      Folders(std::move(folders)),
      OrgineelPic(shortSide, longSide),
      LijstPic(80, 80),
      OntwerpRichting(portrait),
      pictureFolder(Folders.pictures),
      pic_(shortSide, longSide),
      undoPic_(shortSide, longSide) {
    ClipPic.AutoSize = true;
    ClipPic.Visible = false;
}

void Design::Refresh() {
    const QRect changed = pic_.Refresh();
    if (!changed.isEmpty()) {
        emit picChanged(changed);
    }
}

void Design::change(const Change& change) {
    takeUndo();
    changeFurther(change);
}

void Design::changeFurther(const Change& change) {
    change(pic_);
    Gewijzigd = true;
    Refresh();
}

void Design::takeUndo() {
    undoPic_.setPicture(pic_.Image());
}

void Design::EditUndo() {
    changeFurther([this](PixelSurface& pic) { pic.setPicture(undoPic_.Image()); });
}

void Design::FileNew() {
    pic_.setPicture({});
    OntwerpNaam.clear();
    Refresh();
}

void Design::replace(const QImage& picture, int kind) {
    const QImage before = pic_.Image(); // ZetRichting clears the undo copy too
    ZetRichting(kind);
    undoPic_.setPicture(before);
    changeFurther([&picture](PixelSurface& pic) {
        pic.PaintPicture(picture, 0, 0, pic.ScaleWidth(), pic.ScaleHeight(), 0, 0, picture.width(),
                         picture.height());
    });
}

void Design::open(const QImage& picture, const QString& name) {
    pic_.setPicture(picture);
    undoPic_.setPicture(picture);
    OntwerpNaam = name;
    Gewijzigd = false;
    Refresh();
}

void Design::ZetRichting(int kind) {
    OntwerpRichting = kind == 1 ? portrait : landscape;
    for (PixelSurface* surface : {&pic_, &undoPic_}) {
        surface->setPicture({});
        surface->setSize(isLandscape() ? longSide : shortSide,
                         isLandscape() ? shortSide : longSide);
    }
    Gewijzigd = true;
    emit orientationChanged();
    Refresh();
}

bool Design::isLandscape() const {
    return OntwerpRichting == landscape;
}

void Design::ToonInfo(const QString& text, int red, int green, int blue) {
    emit hintChanged(text, RGB(red, green, blue));
}

void Design::ToonInfo() {
    ToonInfo(QStringLiteral("Informatie..."), 0, 90, 0);
}

void Design::setTekenModus(int mode) {
    TekenModus = mode;
    emit toolChanged();
}

void Design::setTekenkleur(ColorRef colour) {
    Tekenkleur = colour;
    emit coloursChanged();
}

void Design::setVulkleur(ColorRef colour) {
    Vulkleur = colour;
    emit coloursChanged();
}

} // namespace kaart
