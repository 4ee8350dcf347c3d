#include "design/window/PanelTable.h"

#include <QGroupBox>
#include <QLabel>

#include <array>

namespace kaart {

namespace {

using enum ControlKind;

constexpr std::array table = {
    ControlRow{Swatch, "", "Label1", 6300, 135, 6750, 9735},

    ControlRow{Frame, "", "Frame1", 105, 30, 6090, 4980, "Kleuren en maten"},
    ControlRow{Scroll, "Frame1", "HScroll1(0)", 150, 330, 3600, 240, "",
               " Rood van de tekenkleur "},
    ControlRow{Scroll, "Frame1", "HScroll1(1)", 150, 630, 3600, 240, "",
               " Groen van de tekenkleur "},
    ControlRow{Scroll, "Frame1", "HScroll1(2)", 150, 930, 3600, 240, "",
               " Blauw van de tekenkleur "},
    ControlRow{Label, "Frame1", "Label4(0)", 3840, 330, 810, 240},
    ControlRow{Label, "Frame1", "Label4(1)", 3840, 630, 810, 240},
    ControlRow{Label, "Frame1", "Label4(2)", 3840, 930, 810, 240},
    ControlRow{Swatch, "Frame1", "Label3", 4740, 330, 1200, 840, "", " Tekenkleur "},
    ControlRow{Label, "Frame1", "HexLabel", 150, 1230, 3600, 240},
    ControlRow{Label, "Frame1", "Label2", 4740, 1230, 1200, 240, "Tekenkleur"},
    ControlRow{Label, "Frame1", "Label10", 150, 1620, 2910, 240},
    ControlRow{Scroll, "Frame1", "HScroll2", 3090, 1620, 2850, 240, "", " Lijndikte "},
    ControlRow{Label, "Frame1", "Label11", 150, 2100, 2910, 240},
    ControlRow{Scroll, "Frame1", "HScroll3", 3090, 2100, 2850, 240, "", " Ronde hoeken "},
    ControlRow{Label, "Frame1", "Label12", 150, 2580, 2910, 240},
    ControlRow{Scroll, "Frame1", "HScroll4", 3090, 2580, 2850, 240, "", " Gum Grootte "},
    ControlRow{Label, "Frame1", "Label13", 150, 3060, 2910, 240},
    ControlRow{Scroll, "Frame1", "HScroll5", 3090, 3060, 2850, 240, "", " Raster Afstand "},
    ControlRow{Label, "Frame1", "Label17", 4740, 3705, 1200, 240, "Vulkleur"},
    ControlRow{Scroll, "Frame1", "VulScroll(0)", 150, 3990, 3600, 240, "",
               " Rood van de vulkleur "},
    ControlRow{Scroll, "Frame1", "VulScroll(1)", 150, 4290, 3600, 240, "",
               " Groen van de vulkleur "},
    ControlRow{Scroll, "Frame1", "VulScroll(2)", 150, 4590, 3600, 240, "",
               " Blauw van de vulkleur "},
    ControlRow{Label, "Frame1", "VulLabel(0)", 3840, 3990, 810, 240},
    ControlRow{Label, "Frame1", "VulLabel(1)", 3840, 4290, 810, 240},
    ControlRow{Label, "Frame1", "VulLabel(2)", 3840, 4590, 810, 240},
    ControlRow{Swatch, "Frame1", "Label18", 4740, 3990, 1200, 840, "", " Vulkleur "},

    ControlRow{Frame, "", "Frame4", 105, 5070, 6090, 4815, "Tekstregel"},
    ControlRow{Text, "Frame4", "Text1", 150, 330, 5790, 390, "", " Tekst van één regel "},
    ControlRow{Label, "Frame4", "Label14", 150, 810, 3900, 240, "Lettertype"},
    ControlRow{Combo, "Frame4", "Combo1", 150, 1065, 3900, 390, "", " Lettertype "},
    ControlRow{Label, "Frame4", "Label15", 4200, 810, 1740, 240, "Grootte"},
    ControlRow{Combo, "Frame4", "Combo2", 4200, 1065, 1740, 390, "", " Lettergrootte "},
    ControlRow{Check, "Frame4", "BoldCheck", 150, 1620, 1800, 300, "Bold"},
    ControlRow{Check, "Frame4", "ItalicCheck", 2100, 1620, 1800, 300, "Italic"},
    ControlRow{Check, "Frame4", "UnderlineCheck", 4050, 1620, 1890, 300, "Onderstreept"},
    ControlRow{Check, "Frame4", "OpenCheck", 150, 2010, 1800, 300, "Open Tekst"},
    ControlRow{Check, "Frame4", "SchaduwCheck", 2100, 2010, 1890, 300, "Schaduw Tekst"},
    ControlRow{Check, "Frame4", "DiagonalCheck", 150, 2400, 2700, 300, "Diagonaal / Vertikaal"},
    ControlRow{Label, "Frame4", "Label20", 3210, 2400, 900, 300, "Graden"},
    ControlRow{Combo, "Frame4", "Combo3", 4200, 2355, 1740, 390, "", " Graden "},
    ControlRow{Value, "Frame4", "TextExample", 150, 2880, 5790, 1140, "Voorbeeld"},
    ControlRow{Button, "Frame4", "PlaatsKnop", 3660, 4140, 2280, 540, "Plaatsen",
               " Plaats de tekst op het ontwerp ", "plaatsen"},

    ControlRow{Frame, "", "Frame7", 105, 5070, 6090, 4815, "Lange tekst"},
    ControlRow{Memo, "Frame7", "Text2", 150, 330, 3750, 2550, "", " Tekst van meer regels "},
    ControlRow{List, "Frame7", "List1", 4020, 330, 1920, 2220, "", " Dubbelklik is tekst inladen "},
    ControlRow{Value, "Frame7", "Label22", 4020, 2595, 1920, 285, " Default"},
    ControlRow{Button, "Frame7", "AlignKnop(0)", 450, 3000, 540, 480, "", " Links uitlijnen ",
               "links-uitlijnen"},
    ControlRow{Button, "Frame7", "AlignKnop(1)", 1605, 3000, 540, 480, "", " Centreren ",
               "centreren"},
    ControlRow{Button, "Frame7", "AlignKnop(2)", 2760, 3000, 540, 480, "", " Rechts uitlijnen ",
               "rechts-uitlijnen"},
    ControlRow{Button, "Frame7", "AlignKnop(3)", 3915, 3000, 540, 480, "", " Openen tekst ",
               "tekst-openen"},
    ControlRow{Button, "Frame7", "AlignKnop(4)", 5070, 3000, 540, 480, "", " Tekst opslaan ",
               "tekst-opslaan"},
    ControlRow{Label, "Frame7", "AlignLabel(0)", 150, 3525, 1140, 480, "Links uitlijnen"},
    ControlRow{Label, "Frame7", "AlignLabel(1)", 1305, 3525, 1140, 480, "Centreren"},
    ControlRow{Label, "Frame7", "AlignLabel(2)", 2460, 3525, 1140, 480, "Rechts uitlijnen"},
    ControlRow{Label, "Frame7", "AlignLabel(3)", 3615, 3525, 1140, 480, "Openen tekst"},
    ControlRow{Label, "Frame7", "AlignLabel(4)", 4770, 3525, 1140, 480, "Tekst opslaan"},
    ControlRow{Button, "Frame7", "PlaatsKnop2", 3660, 4140, 2280, 540, "Plaatsen",
               " Plaats de tekst op het ontwerp ", "plaatsen"},

    ControlRow{Frame, "", "Frame2", 13215, 30, 2820, 2955, "Tekenopties"},
    ControlRow{Check, "Frame2", "Check1", 150, 420, 2580, 300, "Tekenkruis Uit"},
    ControlRow{Check, "Frame2", "Check5", 150, 900, 2580, 300, "Lineaal Uit"},
    ControlRow{Check, "Frame2", "Check2", 150, 1380, 2580, 300, "Vorm knippen"},
    ControlRow{Check, "Frame2", "Check3", 150, 1860, 2580, 300, "Gummen in vulkleur"},
    ControlRow{Check, "Frame2", "Check4", 150, 2340, 2580, 300, "Tekst transparant maken"},

    ControlRow{Frame, "", "Frame8", 13215, 3030, 2820, 2955, "Loep"},
    ControlRow{Surface, "Frame8", "LoepPic", 210, 270, 2400, 2040},
    ControlRow{Fader, "Frame8", "LoepScroll", 120, 2325, 2580, 345, "", " Vergroting van de loep "},
    ControlRow{Label, "Frame8", "Label25", 210, 2670, 2550, 240, "RGB :"},

    ControlRow{Frame, "", "Frame9", 13215, 6030, 2820, 3855, "Puzzel"},
    ControlRow{Panel, "Frame9", "Frame9Inhoud", 0, 270, 2820, 2640},
    ControlRow{Label, "Frame9Inhoud", "Label23", 150, 105, 1440, 300, "Stukken breed"},
    ControlRow{Combo, "Frame9Inhoud", "Combo4", 1680, 60, 990, 390, "", " Stukken naast elkaar "},
    ControlRow{Label, "Frame9Inhoud", "Label24", 150, 555, 1440, 300, "Stukken hoog"},
    ControlRow{Combo, "Frame9Inhoud", "Combo5", 1680, 510, 990, 390, "", " Stukken onder elkaar "},
    ControlRow{Label, "Frame9Inhoud", "Label26", 150, 1005, 1440, 300, "Niveau"},
    ControlRow{Combo, "Frame9Inhoud", "Combo6", 1680, 960, 990, 390, "",
               " G = Gemakkelijk / S = Standaard / M = Moeilijk "},
    ControlRow{Button, "Frame9Inhoud", "StartKnop", 150, 1500, 2520, 480, "Start",
               " Start de puzzel ", "start"},
    ControlRow{Button, "Frame9Inhoud", "ScoreKnop", 150, 2070, 2520, 480, "Scorelijst",
               " Bekijk de scorelijst ", "score"},

    ControlRow{Frame, "", "Frame10", 13215, 6030, 2820, 3855, "Schilderij lijst"},
    ControlRow{Panel, "Frame10", "Frame10Inhoud", 0, 270, 2820, 2640},
    ControlRow{Surface, "Frame10Inhoud", "LijstPic", 150, 90, 1200, 1200},
    ControlRow{Label, "Frame10Inhoud", "Label28", 1500, 90, 1170, 300, "1 / 0"},
    ControlRow{Button, "Frame10Inhoud", "LijstKnop", 1500, 450, 1170, 570, "",
               " Teken de lijst om het ontwerp ", "lijst"},
    ControlRow{Label, "Frame10Inhoud", "Label29", 1500, 1050, 1170, 240, "Lijst"},
    ControlRow{Fader, "Frame10Inhoud", "LijstScroll", 120, 1500, 2580, 390, "", " Kies een lijst "},

    ControlRow{Label, "", "Banier", 16140, 60, 1560, 8100},
    ControlRow{Button, "", "ResetKnop", 16140, 8310, 1560, 720, "",
               " Reset wijzigingen naar beginwaarden ", "reset"},
    ControlRow{Button, "", "AboutKnop", 16140, 9165, 1560, 720, " About Me "},

    ControlRow{Panel, "", "Frame5", 8475, 9960, 9225, 780},
    ControlRow{Label, "Frame5", "InfoLabel", 0, 60, 6300, 300, "Informatie..."},
    ControlRow{Surface, "Frame5", "Bar", 0, 450, 5700, 270},
    ControlRow{Label, "Frame5", "BarLabel", 5775, 450, 600, 270, "0%"},
    ControlRow{Label, "Frame5", "CoorLabel", 6375, 60, 2850, 300, "X : 0 / Y : 0"},
    ControlRow{Label, "Frame5", "KlokLabel", 6375, 435, 2850, 300, "00:00:00"},
};

/// Where a panel stands in each orientation, twips.
struct PanelPlace {
    const char* name;
    QRect staand;
    QRect liggend;
};

const std::array places = {
    PanelPlace{"Label1", {6300, 135, 6750, 9735}, {6300, 135, 9735, 6750}},
    PanelPlace{"Frame2", {13215, 30, 2820, 2955}, {6300, 6930, 2820, 2955}},
    PanelPlace{"Frame8", {13215, 3030, 2820, 2955}, {9270, 6930, 2820, 2955}},
    PanelPlace{"Frame9", {13215, 6030, 2820, 3855}, {12240, 6930, 3810, 2955}},
    PanelPlace{"Frame10", {13215, 6030, 2820, 3855}, {12240, 6930, 3810, 2955}},
    PanelPlace{"Frame9Inhoud", {0, 600, 2820, 2640}, {495, 270, 2820, 2640}},
    PanelPlace{"Frame10Inhoud", {0, 600, 2820, 2640}, {495, 600, 2820, 2640}},
};

} // namespace

std::span<const ControlRow> panelTable() {
    return table;
}

void placePanels(QWidget& window, bool landscape) {
    for (const PanelPlace& row : places) {
        const QRect& at = landscape ? row.liggend : row.staand;
        place(control<QWidget>(window, row.name), at.left(), at.top(), at.width(), at.height());
    }
}

} // namespace kaart
