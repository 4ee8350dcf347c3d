#include "app/Windows.h"

#include "addresses/window/AdresForm.h"
#include "design/session/Design.h"
#include "generators/window/BallonForm.h"
#include "generators/window/BlokkenForm.h"
#include "generators/window/PolyGonForm.h"
#include "generators/window/WaveTextForm.h"
#include "libraries/window/ArrowForm.h"
#include "libraries/window/BlackForm.h"
#include "libraries/window/BorderForm.h"
#include "libraries/window/ClipartForm.h"
#include "output/window/AfdrukForm.h"
#include "output/window/OpenForm.h"
#include "output/window/SaveForm.h"
#include "packs/window/UnzipForm.h"
#include "pictures/window/CaptureForm.h"
#include "pictures/window/CopyDialog.h"
#include "pictures/window/Dialogform.h"
#include "puzzle/window/PuzzelForm.h"
#include "puzzle/window/ScoreForm.h"

#include <array>

namespace kaart {

namespace {

template <typename Form>
void open(Design& design, QWidget* parent) {
    Form(design, parent).exec();
}

void openScores(Design& design, QWidget* parent) {
    ScoreForm(design, design.Puzzel, parent).exec();
}

template <int kind>
void openLibrary(Design& design, QWidget* parent) {
    design.RandSoort = kind;
    open<BorderForm>(design, parent);
}

constexpr std::array table = {
    WindowRow{"FileOpen", open<OpenForm>},
    WindowRow{"FileSave", open<SaveForm>},
    WindowRow{"FilePrint", open<AfdrukForm>},
    WindowRow{"ToolsFoto", open<Dialogform>},
    WindowRow{"GereedschapCapture", open<CaptureForm>},
    WindowRow{"ToolsBorders(1)", openLibrary<1>},
    WindowRow{"ToolsBorders(2)", openLibrary<2>},
    WindowRow{"ToolsBorders(3)", openLibrary<3>},
    WindowRow{"ToolsBorders(4)", openLibrary<4>},
    WindowRow{"TekenKnop(10)", open<ArrowForm>},
    WindowRow{"GereedschapAdressen", open<AdresForm>},
    WindowRow{"GereedschapUnzippen", open<UnzipForm>},
    WindowRow{"ToolsZwartWit", open<BlackForm>},
    WindowRow{"ToolsCliparts", open<ClipartForm>},
    WindowRow{"SelectieCopy(7)", open<CopyDialog>},
    WindowRow{"StartKnop", open<PuzzelForm>},
    WindowRow{"ScoreKnop", openScores},
    WindowRow{"TekenKnop(7)", open<WaveTextForm>},
    WindowRow{"GereedschapTekstBallon", open<BallonForm>},
    WindowRow{"GereedschapRotatie", open<BlokkenForm>},
    WindowRow{"GereedschapPolygon", open<PolyGonForm>},
};

} // namespace

WindowTable windowTable() {
    return table;
}

} // namespace kaart
