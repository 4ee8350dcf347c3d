#include "design/tools/ToolTable.h"

#include <array>

namespace kaart {

namespace {

constexpr int none = -1;

constexpr std::array table = {
    ToolRow{0, 0, " Losse hand tekenen ", "losse-hand", ToolClick::Tool, 0,
            "Tekenen van kromme lijnen uit de vrij hand.", "", none},
    ToolRow{1, 1, " Rechte lijnen tekenen ", "rechte-lijn", ToolClick::Tool, 1,
            "Tekenen van rechte lijnen.", "", none},
    ToolRow{2, 2, " Verschillende vormen tekenen ", "vormen", ToolClick::PopUp, none,
            "Tekenen van verschillende vormen.", "Shapes", none, true},
    ToolRow{3, 3, " Vullen met de vulkleur ", "vullen", ToolClick::Tool, 18,
            "Vullen van objecten met de tekenkleur.", "", none},
    ToolRow{4, 4, " Gedeelte uit ontwerp uitgummen ", "gum", ToolClick::Tool, 19,
            "Beweeg de muis met ingedrukte linkermuisknop.", "", none},
    ToolRow{5, 5, " Copyeer gedeelte uit het ontwerp ", "selectie", ToolClick::Tool, 20,
            "Teken met ingedrukte linkermuisknop een rechthoek.", "", none},
    ToolRow{6, 6, " Lange tekst plaatsen op ontwerp ", "lange-tekst", ToolClick::ShowPanel, none,
            "Lange teksten plaatsen met meer regels, b.v. gedichten.", "Frame7", 66},
    ToolRow{66, 6, " Tekstregel plaatsen op ontwerp ", "tekstregel", ToolClick::ShowPanel, none,
            "Korte tekst plaatsen van één regel.", "Frame4", 6},
    ToolRow{7, 7, " Golvend en circel tekst ", "golftekst", ToolClick::Window, none, "", "", none},
    ToolRow{8, 8, " Verloopkleuren ", "verloop", ToolClick::PopUp, none,
            "Verloopkleuren van Tekenkleur tot Vulkleur.", "Gradientkleur", none},
    ToolRow{9, 9, " Schilderij Lijsten ", "lijst", ToolClick::ShowPanel, none, "", "Frame10", 55},
    ToolRow{55, 9, " Schuifpuzzel ", "puzzel", ToolClick::ShowPanel, none, "", "Frame9", 9},
    ToolRow{10, 10, " Pijlen, Vlaggen en Pins ", "pijlen", ToolClick::Window, none, "", "", none},
};

} // namespace

std::span<const ToolRow> toolTable() {
    return table;
}

} // namespace kaart
