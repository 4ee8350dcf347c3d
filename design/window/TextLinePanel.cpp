#include "design/window/TextLinePanel.h"

#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/VistaButton.h"
#include "design/tools/TextPlacing.h"
#include "design/window/TextMark.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace kaart {

TextLinePanel::TextLinePanel(QWidget& window, Design& design)
    : QObject(&window), window_(window), design_(design) {
    auto* label = new TextMark(design, design.TextLabel, 0, &control<QWidget>(window, "Pic"));
    label->setObjectName(QStringLiteral("TextLabel"));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);

    connect(&control<QLineEdit>(window, "Text1"), &QLineEdit::textChanged, this,
            &TextLinePanel::takeStyle);
    for (const char* name : {"Combo1", "Combo2", "Combo3"}) {
        connect(&control<QComboBox>(window, name), &QComboBox::currentTextChanged, this,
                &TextLinePanel::takeStyle);
    }
    for (const char* name : {"BoldCheck", "ItalicCheck", "UnderlineCheck", "OpenCheck",
                             "SchaduwCheck", "DiagonalCheck"}) {
        connect(&control<QCheckBox>(window, name), &QCheckBox::toggled, this,
                &TextLinePanel::takeStyle);
    }
    connect(&design, &Design::coloursChanged, this, &TextLinePanel::showPreview);
    connect(&control<VistaButton>(window, "PlaatsKnop"), &QAbstractButton::clicked, this,
            &TextLinePanel::PlaatsKnop);
    takeStyle();
}

void TextLinePanel::takeStyle() {
    const auto chosen = [this](const char* name) {
        return control<QComboBox>(window_, name).currentText();
    };
    const auto isOn = [this](const char* name) {
        return control<QCheckBox>(window_, name).isChecked();
    };
    TextStyle& style = design_.Tekst;
    style.Text = control<QLineEdit>(window_, "Text1").text();
    style.FontName = chosen("Combo1");
    style.FontSize = chosen("Combo2").toDouble();
    style.FontBold = isOn("BoldCheck");
    style.FontItalic = isOn("ItalicCheck");
    style.FontUnderline = isOn("UnderlineCheck");
    style.Open = isOn("OpenCheck");
    style.Schaduw = isOn("SchaduwCheck");
    style.Diagonal = isOn("DiagonalCheck");
    style.Graden = chosen("Combo3").toInt();
    for (const char* name : {"Combo3", "Label20"}) {
        control<QWidget>(window_, name).setEnabled(style.Diagonal);
    }
    for (const char* name : {"OpenCheck", "SchaduwCheck"}) {
        control<QWidget>(window_, name).setEnabled(!style.Diagonal);
    }
    showPreview();
}

void TextLinePanel::showPreview() {
    auto& preview = control<QLabel>(window_, "TextExample");
    preview.setFont(fontOf(design_.Tekst));
    setForeColor(preview, design_.Tekenkleur);
}

void TextLinePanel::PlaatsKnop() {
    if (!hangTextLine(design_)) {
        showMessage(&window_, QStringLiteral("Error"), QStringLiteral("Géén tekst ingevuld..."),
                    QMessageBox::Critical);
    }
}

} // namespace kaart
