#include "design/window/Sliders.h"

#include "controls/ControlTable.h"
#include "controls/Palette.h"
#include "design/session/Algemeen.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include <array>

namespace kaart {

namespace {

/// The three sliders of one colour with the labels of their values.
struct ColourSliders {
    const char* sliders;
    const char* labels;
};

constexpr ColourSliders tekenSliders{"HScroll1", "Label4"};
constexpr ColourSliders vulSliders{"VulScroll", "VulLabel"};

/// One slider for a whole number of the design.
struct ParameterSlider {
    const char* slider;
    const char* label;
    const char* caption; ///< with %1 for the value
    int low;
    int high;
    int Design::*variable;
};

constexpr std::array parameters = {
    ParameterSlider{"HScroll2", "Label10", "Lijndikte (%1)", 1, 10, &Design::LijnDikte},
    ParameterSlider{"HScroll3", "Label11", "Ronde hoeken bij rechthoek (%1)", 10, 100,
                    &Design::RondeHoek},
    ParameterSlider{"HScroll4", "Label12", "Gum Grootte (%1)", 10, 50, &Design::GomGrootte},
    ParameterSlider{"HScroll5", "Label13", "Raster Afstand (%1)", 5, 100, &Design::RasterAfstand},
};

ColorRef read(const QWidget& window, const ColourSliders& row) {
    const auto value = [&](int i) { return control<QScrollBar>(window, row.sliders, i).value(); };
    return RGB(value(0), value(1), value(2));
}

void show(const QWidget& window, const ColourSliders& row, ColorRef colour) {
    const std::array parts = {redOf(colour), greenOf(colour), blueOf(colour)};
    const std::array letters = {'R', 'G', 'B'};
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto& slider = control<QScrollBar>(window, row.sliders, i);
        const QSignalBlocker quiet(slider);
        slider.setValue(parts.at(at));
        control<QLabel>(window, row.labels, i)
            .setText(QStringLiteral("%1 (%2)").arg(parts.at(at)).arg(QLatin1Char(letters.at(at))));
    }
}

void showColours(const QWidget& window, const Design& design) {
    const ColorRef teken = design.Tekenkleur;
    show(window, tekenSliders, teken);
    show(window, vulSliders, design.Vulkleur);
    setBackColor(control<QLabel>(window, "Label3"), teken);
    setBackColor(control<QLabel>(window, "Label18"), design.Vulkleur);
    const QString hex = HexKleur(QString::number(redOf(teken)), QString::number(greenOf(teken)),
                                 QString::number(blueOf(teken)));
    control<QLabel>(window, "HexLabel").setText(QStringLiteral("Heximaal (#%1)").arg(hex));
}

} // namespace

void connectColourSliders(QWidget& window, Design& design) {
    for (int i = 0; i < 3; ++i) {
        QObject::connect(&control<QScrollBar>(window, tekenSliders.sliders, i),
                         &QScrollBar::valueChanged, &window,
                         [&] { design.setTekenkleur(read(window, tekenSliders)); });
        QObject::connect(&control<QScrollBar>(window, vulSliders.sliders, i),
                         &QScrollBar::valueChanged, &window,
                         [&] { design.setVulkleur(read(window, vulSliders)); });
    }
    QObject::connect(&design, &Design::coloursChanged, &window,
                     [&] { showColours(window, design); });
    showColours(window, design);
}

void connectParameterSliders(QWidget& window, Design& design) {
    for (const ParameterSlider& row : parameters) {
        auto& slider = control<QScrollBar>(window, row.slider);
        slider.setRange(row.low, row.high);
        control<QLabel>(window, row.label).setBuddy(&slider);
        const auto take = [&window, &design, &row](int value) {
            design.*row.variable = value;
            control<QLabel>(window, row.label).setText(QString::fromUtf8(row.caption).arg(value));
        };
        QObject::connect(&slider, &QScrollBar::valueChanged, &window, take);
        slider.setValue(design.*row.variable);
        take(slider.value());
    }
}

} // namespace kaart
