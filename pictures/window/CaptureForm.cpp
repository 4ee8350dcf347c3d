#include "pictures/window/CaptureForm.h"

#include "controls/DialogMenu.h"
#include "controls/KeyPointer.h"
#include "controls/OverlayShape.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "design/session/Algemeen.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"
#include "pictures/CaptureCut.h"

#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWindow>

namespace kaart {

namespace {

const QString instructions = QStringLiteral(
    "1. Klik op het menu-item 'Capture' om het scherm (Bureaublad) te copyeren.\n"
    "2. Maak dan het scherm groter om een totaal overzicht te krijgen van de afbeelding.\n"
    "3. Maak met ingedrukte linkermuisknop een rechthoek om het te copyeren object.\n"
    "4. Klik daarna op 'Export' om het object te exporteren naar het ontwerp.");

const QString refusal = QStringLiteral(
    "Het scherm is niet gecopyeerd: het bureaublad gaf geen toestemming of geen antwoord.\n"
    "Klik nogmaals op 'Capture' en geef toestemming als het bureaublad daarom vraagt.\n"
    "Lukt dat niet, maak dan een schermafdruk met de toets Print Screen,\n"
    "bewaar die als .jpg en kies daarna 'Eigen Afbeelding' in het menu 'Invoegen'.");

const QString hint = QStringLiteral("Beweeg de afbeelding met de muis, rechterknop is plaatsen");

constexpr int labelLeft = 140;
constexpr int labelTop = 170;
constexpr int labelGap = 240;

} // namespace

CaptureForm::CaptureForm(Design& design, QWidget* parent, std::unique_ptr<ScreenGrab> screen,
                         double settle)
    : QDialog(parent, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      design_(design),
      screen_(std::move(screen)),
      settle_(settle) {
    setObjectName(QStringLiteral("CaptureForm"));
    setWindowTitle(QStringLiteral("Schermafdruk"));
    resize(pixels(12000), pixels(7500));
    setBackColor(*this, windowColor);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAccessibleName(QStringLiteral("Schermafdruk"));
    scroll->setWidgetResizable(true);
    scroll->setWidget(buildSheet());
    layout->addWidget(scroll);
    buildMenu();
    connect(screen_.get(), &ScreenGrab::frozen, this, &CaptureForm::takePicture);
    connect(screen_.get(), &ScreenGrab::refused, this, &CaptureForm::refuse);
    enter(Stage::Waiting);
}

void CaptureForm::buildMenu() {
    auto* bar = new QMenuBar;
    layout()->setMenuBar(bar);
    addEntry(*bar, "FileExit", QStringLiteral("Annuleren"), [this] { reject(); });
    addEntry(*bar, "Afdruk", QStringLiteral("Capture"), [this] { capture(); });
    addEntry(*bar, "Export", QStringLiteral("Export"), [this] { exportCut(); });
}

QWidget* CaptureForm::buildSheet() {
    auto* sheet = new QWidget;
    setBackColor(*sheet, windowColor);
    label1_ = addText(sheet, "Label1");
    label1_->setText(instructions);
    label1_->adjustSize();
    label1_->move(pixels(labelLeft), pixels(labelTop));
    label2_ = addText(sheet, "Label2");
    setForeColor(*label2_, RGB(170, 0, 0));
    label2_->move(label1_->x(), label1_->geometry().bottom() + pixels(labelGap));
    pic_ = new SurfaceView(sheet);
    pic_->setObjectName(QStringLiteral("Pic"));
    pic_->surface().BackColor = RGB(250, 240, 210);
    pic_->surface().AutoSize = true;
    pic_->installEventFilter(this);
    pic_->setAccessibleName(QStringLiteral("Beeldscherm"));
    new KeyPointer(*pic_);
    picture1_ = new SurfaceView(sheet);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->surface().AutoSize = true;
    layer_ = new OverlayShape(OverlayShape::Kind::Rectangle, pic_);
    layer_->setObjectName(QStringLiteral("Layer"));
    return sheet;
}

QLabel* CaptureForm::addText(QWidget* sheet, const char* name) {
    auto* label = new QLabel(sheet);
    label->setObjectName(QString::fromUtf8(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

void CaptureForm::enter(Stage stage) {
    pic_->setVisible(stage == Stage::Selecting);
    picture1_->setVisible(stage == Stage::Cut);
    label1_->setVisible(stage == Stage::Waiting);
    // Room to scroll in, where the window is smaller than the desktop.
    pic_->parentWidget()->setMinimumSize(stage == Stage::Waiting ? QSize(0, 0) : pic_->size());
}

void CaptureForm::leaveScreen() {
    away_ = true;
    place_ = pos();
    // Not minimised: not every desktop lets a program take that back. Hiding the dialog itself
    // would end it.
    for (QWidget* window : {static_cast<QWidget*>(this), parentWidget()}) {
        if (window != nullptr && window->window()->windowHandle() != nullptr) {
            window->window()->windowHandle()->hide();
        }
    }
}

void CaptureForm::returnToScreen() {
    if (!away_) {
        return;
    }
    away_ = false;
    for (QWidget* window : {parentWidget(), static_cast<QWidget*>(this)}) {
        if (window != nullptr && window->window()->windowHandle() != nullptr) {
            window->window()->windowHandle()->show();
        }
    }
    move(place_); // not every window manager remembers it
    raise();
    activateWindow();
}

void CaptureForm::done(int result) {
    screen_->stop();
    returnToScreen();
    QDialog::done(result);
}

void CaptureForm::capture() {
    if (away_) {
        return;
    }
    label2_->clear();
    layer_->hide();
    const QPointer<CaptureForm> self = this;
    leaveScreen();
    Wacht(settle_);
    if (!self || !away_) {
        return;
    }
    screen_->start();
    if (screen_->isLive()) {
        takePicture();
    }
}

void CaptureForm::takePicture() {
    const QImage seen = screen_->grab(screen_->desktop());
    if (seen.isNull()) {
        refuse();
        return;
    }
    screen_->stop();
    pic_->resize(seen.size());
    pic_->surface().setPicture(seen);
    enter(Stage::Selecting);
    returnToScreen();
}

void CaptureForm::refuse() {
    screen_->stop();
    label2_->setText(refusal);
    label2_->adjustSize();
    enter(Stage::Waiting);
    returnToScreen();
}

bool CaptureForm::eventFilter(QObject* watched, QEvent* event) {
    const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
    if (mouse == nullptr) {
        return QDialog::eventFilter(watched, event);
    }
    const QPoint at = pixelAt(*mouse);
    if (event->type() == QEvent::MouseButtonPress) {
        press(at, mouse->button());
    } else if (event->type() == QEvent::MouseMove && mouse->buttons().testFlag(Qt::LeftButton)) {
        drag(at);
    } else if (event->type() == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton) {
        cut();
    }
    return true;
}

void CaptureForm::press(const QPoint& at, Qt::MouseButton button) {
    // Kept: any button moves the start.
    design_.BeginX = at.x();
    design_.BeginY = at.y();
    if (button == Qt::LeftButton) {
        layer_->setGeometry(QRect(at, QSize(0, 0)));
        layer_->show();
    }
}

void CaptureForm::drag(const QPoint& at) {
    const QPoint start(roundEven(design_.BeginX), roundEven(design_.BeginY));
    layer_->setGeometry(captureBand(start, at, pic_->size()));
}

void CaptureForm::cut() {
    if (layer_->size().isEmpty()) {
        return; // a press without a move has marked nothing
    }
    const QImage part = captureCut(pic_->Image(), layer_->geometry());
    picture1_->resize(part.size());
    picture1_->surface().setPicture(part);
    enter(Stage::Cut);
    picture1_->Refresh();
}

void CaptureForm::exportCut() {
    if (!picture1_->isVisible()) {
        return;
    }
    handOver(design_, picture1_->surface().Picture(), hint, false);
    accept();
}

} // namespace kaart
