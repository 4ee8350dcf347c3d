#include "design/window/StartValues.h"

#include "controls/ChoiceLists.h"
#include "controls/ControlTable.h"
#include "controls/Labels.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <array>

namespace kaart {

namespace {

struct NumberRow {
    const char* name;
    int value;
};

constexpr std::array sliders = {
    NumberRow{"HScroll1(0)", 60},   NumberRow{"HScroll1(1)", 60},   NumberRow{"HScroll1(2)", 60},
    NumberRow{"VulScroll(0)", 200}, NumberRow{"VulScroll(1)", 250}, NumberRow{"VulScroll(2)", 0},
    NumberRow{"HScroll2", 2},       NumberRow{"HScroll3", 30},      NumberRow{"HScroll4", 20},
    NumberRow{"HScroll5", 10},      NumberRow{"LoepScroll", 0},
};

struct ChoiceRow {
    const char* name;
    const char* text;
};

constexpr std::array choices = {
    ChoiceRow{"Combo1", "Arial"}, ChoiceRow{"Combo2", "12"}, ChoiceRow{"Combo3", "90"},
    ChoiceRow{"Combo4", "3"},     ChoiceRow{"Combo5", "3"},  ChoiceRow{"Combo6", "S"},
};

constexpr std::array checks = {"BoldCheck",    "ItalicCheck",   "UnderlineCheck", "OpenCheck",
                               "SchaduwCheck", "DiagonalCheck", "Check1",         "Check2",
                               "Check3",       "Check4",        "Check5"};

void setStartValues(QWidget& window, const QString& textLine) {
    for (const NumberRow& row : sliders) {
        control<QAbstractSlider>(window, row.name).setValue(row.value);
    }
    for (const ChoiceRow& row : choices) {
        control<QComboBox>(window, row.name).setCurrentText(QString::fromUtf8(row.text));
    }
    for (const char* name : checks) {
        control<QCheckBox>(window, name).setChecked(false);
    }
    control<QLineEdit>(window, "Text1").setText(textLine);
    control<QPlainTextEdit>(window, "Text2")
        .setPlainText(QStringLiteral("Op 12 april wordt ik 8 jaar\nKom je ook op mijn\n"
                                     "verjaardag\nHet begint om 15.00 uur."));
}

} // namespace

void fillControls(QWidget& window) {
    const auto fill = [&window](const char* name, const QStringList& items) {
        control<QComboBox>(window, name).addItems(items);
    };
    fill("Combo1", fontList());
    fill("Combo2", numberList(8, 150, 2));
    fill("Combo3", numberList(0, 360, 15));
    fill("Combo4", numberList(3, 6));
    fill("Combo5", numberList(3, 6));
    fill("Combo6", {QStringLiteral("G"), QStringLiteral("S"), QStringLiteral("M")});
    nameByLabels(window, {{"Combo1", "Label14"},
                          {"Combo2", "Label15"},
                          {"Combo3", "Label20"},
                          {"Combo4", "Label23"},
                          {"Combo5", "Label24"},
                          {"Combo6", "Label26"}});
    setStartValues(window, QStringLiteral("Mijn tekst"));
}

void resetControls(QWidget& window) {
    setStartValues(window, QStringLiteral("Mijn Tekst"));
}

} // namespace kaart
