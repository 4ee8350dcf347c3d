#include "design/window/Main.h"

#include "controls/Art.h"
#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/VistaButton.h"
#include "design/session/SettingsFile.h"
#include "design/surface/Numbers.h"
#include "design/tools/Clock.h"
#include "design/window/AboutForm.h"
#include "design/window/Canvas.h"
#include "design/window/CanvasMenu.h"
#include "design/window/FilterMenu.h"
#include "design/window/FloatPanel.h"
#include "design/window/FramePanel.h"
#include "design/window/LongTextPanel.h"
#include "design/window/Magnifier.h"
#include "design/window/MenuTable.h"
#include "design/window/PanelTable.h"
#include "design/window/PuzzlePanel.h"
#include "design/window/SelectionMenu.h"
#include "design/window/ShapeMenu.h"
#include "design/window/Sliders.h"
#include "design/window/StartValues.h"
#include "design/window/TextLinePanel.h"
#include "design/window/ToolButtons.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>

#include <array>

namespace kaart {

namespace {

constexpr int clockInterval = 1000; // ms
constexpr int canvasLeft = 6375;
constexpr int canvasTop = 210;

/// Checks that only certain tools switch on.
constexpr std::array toolChecks = {"Check2", "Check3", "Check4"};

/// Has a check say whether it is on: "Lineaal Aan", "Lineaal Uit".
void showState(QCheckBox& check, const QString& caption) {
    QObject::connect(&check, &QCheckBox::toggled, &check, [&check, caption](bool on) {
        check.setText(caption + (on ? QStringLiteral(" Aan") : QStringLiteral(" Uit")));
    });
}

} // namespace

const std::span<const Main::Command> Main::commands = [] {
    static constexpr std::array table = {
        Command{"FileNew", [](Main& window) { window.FileNew(); }},
        Command{"FileExit", [](Main& window) { window.close(); }},
        Command{"EditUndo", [](Main& window) { window.design_.EditUndo(); }},
        Command{"Richting(1)", [](Main& window) { window.design_.ZetRichting(1); }},
        Command{"Richting(2)", [](Main& window) { window.design_.ZetRichting(2); }},
    };
    return std::span<const Command>(table);
}();

Main::Main(Design& design, WindowTable windows) : design_(design), inside_(new QWidget) {
    setObjectName(QStringLiteral("Main"));
    setWindowTitle(QStringLiteral("Mijn Kaartwerkje"));
    setBackColor(*this, windowColor);
    inside_->setObjectName(QStringLiteral("Inhoud"));
    setCentralWidget(inside_);
    buildMenus(*this);
    new SelectionMenu(*this, design_);
    connectMenus(windows);
    buildPanels();
    new ShapeMenu(*this, design_);
    new CanvasMenu(*this, design_, *canvas_);
    new ToolButtons(*this, design_, windows);
    connectControls();
    new FramePanel(*this, design_);
    new Magnifier(*this, design_);
    new TextLinePanel(*this, design_);
    new LongTextPanel(*this, design_);
    new FloatPanel(*this, design_);
    new FilterMenu(*this, design_);
    new PuzzlePanel(*this, design_, windows);
    fillControls(*inside_);
    showOrientation();
    loadSettings();
    orderTabs();
    canvas_->setFocus();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void Main::buildPanels() {
    inside_->setFixedSize(pixels(mainWidth), pixels(mainHeight));
    buildControls(*inside_, panelTable());
    canvas_ = new Canvas(design_, inside_);
    place(*canvas_, canvasLeft, canvasTop);
    setBackColor(control<QLabel>(*inside_, "Label1"), RGB(235, 235, 235));
    for (const char* hidden : {"Frame7", "Frame10", "Bar"}) {
        control<QWidget>(*inside_, hidden).hide();
    }
    for (const char* name : toolChecks) {
        control<QCheckBox>(*inside_, name).setEnabled(false);
    }
    for (const char* name : {"Combo3", "Label20"}) {
        control<QWidget>(*inside_, name).setEnabled(false);
    }
    for (const char* name : {"AlignLabel(0)", "AlignLabel(1)", "AlignLabel(2)", "AlignLabel(3)",
                             "AlignLabel(4)", "Label29", "Label2", "Label17"}) {
        auto& label = control<QLabel>(*inside_, name);
        label.setWordWrap(true);
        label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    for (const char* name : {"CoorLabel", "KlokLabel"}) {
        control<QLabel>(*inside_, name).setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    control<QLabel>(*inside_, "TextExample").setAlignment(Qt::AlignCenter);
    for (const char* field : {"TextExample", "Label22"}) {
        setBackColor(control<QLabel>(*inside_, field), RGB(255, 255, 248));
    }
    showArt(control<QLabel>(*inside_, "Banier"), QStringLiteral("Banier"));
}

/// From the panels on the left over the canvas, and what may hang above it, to those on the right.
void Main::orderTabs() {
    setTabOrder(&control<QWidget>(*inside_, "PlaatsKnop2"), canvas_);
    setTabOrder(canvas_, &control<QWidget>(*inside_, "ClipPic"));
    setTabOrder(&control<QWidget>(*inside_, "ClipPic"), &control<QWidget>(*inside_, "TextLabel2"));
}

void Main::connectControls() {
    connectColourSliders(*inside_, design_);
    connectParameterSliders(*inside_, design_);
    showState(control<QCheckBox>(*inside_, "Check1"), QStringLiteral("Tekenkruis"));
    showState(control<QCheckBox>(*inside_, "Check5"), QStringLiteral("Lineaal"));
    connect(&control<QCheckBox>(*inside_, "Check1"), &QCheckBox::toggled, canvas_,
            &Canvas::showCrossHair);
    connect(&control<QCheckBox>(*inside_, "Check5"), &QCheckBox::toggled, canvas_,
            &Canvas::showRulers);
    connect(&control<QCheckBox>(*inside_, "Check2"), &QCheckBox::toggled, this,
            [this](bool on) { design_.VormKnippen = on; });
    connect(&control<QCheckBox>(*inside_, "Check3"), &QCheckBox::toggled, this,
            [this](bool on) { design_.GummenInVulkleur = on; });
    connect(&control<VistaButton>(*inside_, "ResetKnop"), &QAbstractButton::clicked, this,
            &Main::ResetKnop);
    connect(&control<VistaButton>(*inside_, "AboutKnop"), &QAbstractButton::clicked, this,
            [this] { AboutForm(this).exec(); });
    connect(canvas_, &Canvas::mouseMoved, this, &Main::showMouse);
    connect(&design_, &Design::orientationChanged, this, &Main::showOrientation);
    connect(&design_, &Design::hintChanged, this, [this](const QString& text, ColorRef colour) {
        auto& label = control<QLabel>(*inside_, "InfoLabel");
        label.setText(text);
        setForeColor(label, colour);
    });
    design_.ToonInfo();
    timer1_.setObjectName(QStringLiteral("Timer1"));
    connect(&timer1_, &QTimer::timeout, this, &Main::tickClock);
    timer1_.start(clockInterval);
}

void Main::connectMenus(WindowTable windows) {
    // A shortcut must not cut into a drag on the canvas.
    const auto guarded = [this](const auto& run) {
        return [this, run] {
            if (!canvas_->dragging()) {
                run();
            }
        };
    };
    for (const Command& command : commands) {
        enableEntry(*this, QString::fromUtf8(command.entry),
                    guarded([this, &command] { command.run(*this); }));
    }
    for (const MenuRow& row : menuTable()) {
        const QString name = fullName(row.name, row.index);
        if (const WindowRow* window = findWindow(windows, name)) {
            enableEntry(*this, name, guarded([this, window] { window->open(design_, this); }));
        }
    }
}

void Main::loadSettings() {
    const QString path = design_.Folders.in(QStringLiteral("Kaartwerkje.ini"));
    if (const std::optional<Margins> margins = readSettings(path)) {
        design_.MargeLinks = margins->left;
        design_.MargeBoven = margins->top;
        design_.MargeRechts = margins->right;
        design_.MargeOnder = margins->bottom;
    } else {
        saveSettings();
    }
}

bool Main::saveSettings() const {
    return writeSettings(
        design_.Folders.in(QStringLiteral("Kaartwerkje.ini")),
        {design_.MargeLinks, design_.MargeBoven, design_.MargeRechts, design_.MargeOnder});
}

void Main::FileNew() {
    if (askYesNo(this, QStringLiteral("Nieuw"),
                 QStringLiteral("Wil je een nieuw ontwerp maken?"))) {
        design_.FileNew();
    }
}

void Main::ResetKnop() {
    if (askYesNo(this, QStringLiteral("Resetten"),
                 QStringLiteral("Wil je alle knoppen weer in de beginstand zetten?"))) {
        resetControls(*inside_);
        design_.ToonInfo();
    }
}

void Main::closeEvent(QCloseEvent* event) {
    if (!design_.Gewijzigd) {
        // Kept: margins reach the file only with the closing of a changed design.
        event->accept();
        return;
    }
    const bool sure = askYesNo(this, QStringLiteral("Afsluiten"),
                               QStringLiteral("Ontwerp is gewijzigd, wil je toch afsluiten?"));
    event->setAccepted(sure);
    if (sure && !saveSettings()) {
        showMessage(this, QStringLiteral("Afsluiten"),
                    QStringLiteral("De instellingen konden niet worden opgeslagen."),
                    QMessageBox::Warning);
    }
}

void Main::showOrientation() {
    const bool landscape = design_.isLandscape();
    placePanels(*inside_, landscape);
    control<QAction>(*this, "Richting", 1).setChecked(!landscape);
    control<QAction>(*this, "Richting", 2).setChecked(landscape);
}

void Main::showMouse(const QPoint& at) {
    control<QLabel>(*inside_, "CoorLabel")
        .setText(QStringLiteral("X : %1 / Y : %2").arg(at.x()).arg(at.y()));
}

void Main::tickClock() {
    control<QLabel>(*inside_, "KlokLabel").setText(clockText(QDateTime::currentDateTime()));
}

} // namespace kaart
