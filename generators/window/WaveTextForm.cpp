#include "generators/window/WaveTextForm.h"

#include "controls/ChoiceLists.h"
#include "controls/ControlTable.h"
#include "controls/Fader.h"
#include "controls/Labels.h"
#include "controls/Messages.h"
#include "controls/Mnemonics.h"
#include "controls/Palette.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"
#include "generators/TextColours.h"
#include "generators/window/CurveFrames.h"
#include "generators/window/SelectView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>

namespace kaart {

namespace {

constexpr QSize pictureSize(685, 340);

const ControlRow controls[] = {
    {ControlKind::Value, "", "Layer", 105, 105, 10305, 5130},
    {ControlKind::Label, "", "Label13", 120, 5370, 1080, 390, "Tekst"},
    {ControlKind::Text, "", "Text1", 1200, 5370, 9195, 390, "Voorbeeld Tekst "},
    {ControlKind::Label, "", "Label19", 120, 5880, 1080, 390, "Lettertype"},
    {ControlKind::Combo, "", "Combo1", 1200, 5880, 3300, 390},
    {ControlKind::Label, "", "Label20", 4680, 5880, 1080, 390, "Lettergrootte"},
    {ControlKind::Combo, "", "Combo2", 5790, 5880, 1050, 390},
    {ControlKind::Check, "", "BoldCheck", 7050, 5880, 900, 390, "Bold"},
    {ControlKind::Button, "", "KleurKnop", 8190, 5850, 2205, 450, "Tekst inkleuren", "", "kleur"},
    {ControlKind::Label, "", "Label22", 120, 6510, 6300, 510,
     "Selecteer een rechthoek om de tekst dat je wilt copyeren.\n"
     "Klik vervolgens op de 'Export' knop."},
    {ControlKind::Button, "", "ExportKnop", 6600, 6510, 1830, 510, "Export", "", "plaatsen"},
    {ControlKind::Button, "", "CancelKnop", 8565, 6510, 1830, 510, "Annuleren", "", "annuleren",
     "Esc"},
};

constexpr const char* palettes[] = {"Grijs", "Rood", "Groen", "Blauw", "Paars", "Geel"};

/// The mouse pointer is the hourglass while this lives.
class Hourglass {
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace

WaveTextForm::WaveTextForm(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("WaveTextForm"));
    setWindowTitle(QStringLiteral("Golvend en circel tekst"));
    setFixedSize(pixels(14520), pixels(7140));
    setBackColor(*this, windowColor);
    buildControls(*this, controls);
    buildPictures();
    for (const CurveFrame& curve : curveFrames()) {
        buildFrame(curve);
    }
    orderTabs();
    buildMenu();
    dress();
    connectControls();
    takeFont();
}

void WaveTextForm::buildPictures() {
    Pic_ = new SelectView(design_, SelectView::Frame::Free, pictureSize, this);
    Pic_->setObjectName(QStringLiteral("Pic"));
    Pic_->setAccessibleName(QStringLiteral("Gebogen tekst"));
    place(*Pic_, 120, 120);
    BackPic_ = new SurfaceView(this);
    BackPic_->setObjectName(QStringLiteral("BackPic"));
    BackPic_->resize(pictureSize);
    BackPic_->hide();
    BackPic_->surface().BackColor = black;
    BackPic_->surface().setSize(pictureSize.width(), pictureSize.height());
    BackPic_->surface().Cls();
}

void WaveTextForm::buildFrame(const CurveFrame& curve) {
    constexpr int firstTop = 300;
    constexpr int step = 390;
    std::vector<ControlRow> rows{
        {ControlKind::Frame, "", curve.name, 10605, curve.top, 3795, curve.height, curve.caption}};
    int top = firstTop;
    for (const SliderRow& row : curve.sliders) {
        rows.push_back(
            {ControlKind::Label, curve.name, row.labelName, 150, top, 750, 360, row.label});
        rows.push_back({ControlKind::Fader, curve.name, row.name, 900, top, 2745, 360});
        top += step;
    }
    buildControls(*this, rows);
    setBackColor(control<QWidget>(*this, curve.name), windowColor);
    for (const SliderRow& row : curve.sliders) {
        auto& slider = control<Fader>(*this, row.name);
        slider.setAccessibleName(QString::fromUtf8(curve.caption).trimmed() + QLatin1Char(' ') +
                                 QString::fromUtf8(row.label));
        control<QLabel>(*this, row.labelName).setBuddy(&slider);
        slider.setRange(row.low, row.high);
        slider.setValue(row.start);
        connect(&slider, &Fader::valueChanged, this, [this, &curve] { draw(curve); });
    }
}

/// The picture comes first, and the buttons that close the window come after all sliders.
void WaveTextForm::orderTabs() {
    QWidget* before = Pic_;
    for (const char* name : {"Text1", "Combo1", "Combo2", "BoldCheck", "KleurKnop"}) {
        auto& next = control<QWidget>(*this, name);
        setTabOrder(before, &next);
        before = &next;
    }
    auto& last = control<QWidget>(*this, curveFrames().back().sliders.back().name);
    auto& exportKnop = control<QWidget>(*this, "ExportKnop");
    setTabOrder(&last, &exportKnop);
    setTabOrder(&exportKnop, &control<QWidget>(*this, "CancelKnop"));
    control<QWidget>(*this, "Text1").setFocus();
}

void WaveTextForm::buildMenu() {
    auto* menu = new QMenu(QStringLiteral("Colors"), this);
    menu->setObjectName(QStringLiteral("KleurenPalet"));
    int index = 0;
    for (const char* caption : palettes) {
        QAction* entry = menu->addAction(QString::fromUtf8(caption));
        entry->setObjectName(QStringLiteral("Kleurtje(%1)").arg(index));
        connect(entry, &QAction::triggered, this, [this, index] {
            FillPalette(BackPic_->surface(), index);
            ColorText();
        });
        ++index;
    }
    giveMnemonics(*menu);
    auto& button = control<VistaButton>(*this, "KleurKnop");
    connect(&button, &VistaButton::clicked, menu,
            [&button, menu] { menu->popup(button.mapToGlobal(button.rect().bottomLeft())); });
}

void WaveTextForm::dress() {
    auto& fonts = control<QComboBox>(*this, "Combo1");
    fonts.addItems(fontList());
    fonts.setCurrentText(QStringLiteral("Arial"));
    auto& sizes = control<QComboBox>(*this, "Combo2");
    sizes.addItems(numberList(8, 150, 2));
    sizes.setCurrentIndex(7);
    const std::pair<const char*, ColorRef> fields[] = {{"Text1", RGB(250, 250, 240)},
                                                       {"Combo1", RGB(220, 220, 250)},
                                                       {"Combo2", RGB(220, 220, 250)}};
    for (const auto& [name, back] : fields) {
        setForeColor(control<QWidget>(*this, name), RGB(0, 0, 40));
        setBackColor(control<QWidget>(*this, name), back);
    }
    setForeColor(control<QLabel>(*this, "Label22"), RGB(100, 100, 120));
    nameByLabels(*this, {{"Text1", "Label13"}, {"Combo1", "Label19"}, {"Combo2", "Label20"}});
}

void WaveTextForm::connectControls() {
    for (const char* name : {"Combo1", "Combo2"}) {
        connect(&control<QComboBox>(*this, name), &QComboBox::currentTextChanged, this,
                &WaveTextForm::takeFont);
    }
    connect(&control<QCheckBox>(*this, "BoldCheck"), &QCheckBox::toggled, this,
            &WaveTextForm::takeFont);
    connect(&control<VistaButton>(*this, "ExportKnop"), &VistaButton::clicked, this,
            &WaveTextForm::exportText);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &WaveTextForm::reject);
}

void WaveTextForm::takeFont() {
    PixelSurface& pic = Pic_->surface();
    pic.FontName = control<QComboBox>(*this, "Combo1").currentText();
    pic.FontSize = control<QComboBox>(*this, "Combo2").currentText().toDouble();
    pic.FontBold = control<QCheckBox>(*this, "BoldCheck").isChecked();
}

void WaveTextForm::draw(const CurveFrame& curve) {
    std::vector<int> values;
    for (const SliderRow& row : curve.sliders) {
        values.push_back(control<Fader>(*this, row.name).value());
    }
    curve.draw(Pic_->surface(), control<QLineEdit>(*this, "Text1").text(), values);
    Pic_->Refresh();
}

void WaveTextForm::ColorText() {
    const QPointer<WaveTextForm> self = this;
    const Hourglass hourglass;
    FrameClock clock;
    const PixelSurface& pattern = BackPic_->surface();
    for (int y = 0; y < pictureSize.height(); ++y) {
        ColorTextRow(Pic_->surface().writePixels(QRect(0, y, pictureSize.width(), 1)),
                     pattern.pixels(), y);
        if (clock.isDue()) {
            Pic_->Refresh();
        }
        DoEvents();
        if (!self || !isVisible()) {
            return;
        }
    }
    Pic_->Refresh();
}

void WaveTextForm::exportText() {
    const QImage picture = Pic_->selection();
    if (picture.isNull()) {
        showMessage(this, windowTitle(),
                    QStringLiteral("Selecteer met ingedrukte linkermuisknop een rechthoek\n"
                                   "om de tekst dat je wilt copyeren, of klik op Annuleren."));
        return;
    }
    handOver(design_, picture,
             QStringLiteral("Beweeg de tekst met de muis, rechts klikken is plaatsen."), false);
    accept();
}

} // namespace kaart
