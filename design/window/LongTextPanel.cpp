#include "design/window/LongTextPanel.h"

#include "controls/ArrowStep.h"
#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/SurfaceView.h"
#include "controls/TextLines.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/tools/TextLibrary.h"
#include "design/tools/TextPlacing.h"
#include "design/window/TextMark.h"

#include <QCheckBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextOption>

namespace kaart {

namespace {

constexpr int alignKnops = 5;
constexpr int extension = 4; // ".txt"

void highlight(QLabel& label, bool on) {
    label.setAutoFillBackground(on);
    label.setBackgroundRole(on ? QPalette::Highlight : QPalette::NoRole);
    label.setForegroundRole(on ? QPalette::HighlightedText : QPalette::NoRole);
}

} // namespace

LongTextPanel::LongTextPanel(QWidget& window, Design& design)
    : QObject(&window), window_(window), design_(design) {
    auto* label =
        new TextMark(design, design.TextLabel2, longTextInset, &control<QWidget>(window, "Pic"));
    label->setObjectName(QStringLiteral("TextLabel2"));
    label->setCursor(Qt::SizeAllCursor);
    label->installEventFilter(this);
    label->setFocusPolicy(Qt::StrongFocus);
    label->setAccessibleName(QStringLiteral("Zwevende tekst"));

    for (int i = 0; i < alignKnops; ++i) {
        connect(&control<VistaButton>(window, "AlignKnop", i), &QAbstractButton::clicked, this,
                [this, i] { AlignKnop(i); });
    }
    auto& list = control<QListWidget>(window, "List1");
    list.setEnabled(false);
    connect(&list, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { load(item->text()); });
    connect(&control<VistaButton>(window, "PlaatsKnop2"), &QAbstractButton::clicked, this,
            &LongTextPanel::PlaatsKnop2);
    const auto& transparent = control<QCheckBox>(window, "Check4");
    design.TextLabel2.Opaque = !transparent.isChecked();
    connect(&transparent, &QCheckBox::toggled, this, [this](bool on) {
        design_.TextLabel2.Opaque = !on;
        design_.showOverlays();
    });
}

void LongTextPanel::AlignKnop(int index) {
    for (int i = 0; i < alignKnops; ++i) {
        highlight(control<QLabel>(window_, "AlignLabel", i), i == index);
    }
    switch (index) {
    case 0:
        return align(TextAlignment::Left);
    case 1:
        return align(TextAlignment::Center);
    case 2:
        return align(TextAlignment::Right);
    case 3:
        return listTexts();
    default:
        return askName();
    }
}

void LongTextPanel::align(TextAlignment alignment) {
    auto& document = *control<QPlainTextEdit>(window_, "Text2").document();
    QTextOption option = document.defaultTextOption();
    option.setAlignment(sideOf(alignment));
    document.setDefaultTextOption(option);
    design_.Tekst.Alignment = alignment;
    design_.TextLabel2.Style.Alignment = alignment;
    design_.showOverlays();
}

void LongTextPanel::listTexts() {
    auto& list = control<QListWidget>(window_, "List1");
    list.clear();
    list.addItems(textFileNames(design_.Folders));
    list.setEnabled(true);
}

void LongTextPanel::load(const QString& file) {
    auto& box = control<QPlainTextEdit>(window_, "Text2");
    box.clear();
    design_.TekstNaam = file.chopped(extension);
    if (const auto text = LaadTekst(design_.Folders, file)) {
        box.setPlainText(*text);
        showName();
    } else {
        showMessage(&window_, QString(), QStringLiteral("Fout bij het laden van de tekst!"));
    }
    control<QListWidget>(window_, "List1").setEnabled(false);
}

void LongTextPanel::askName() {
    const QString name = QInputDialog::getText(&window_, QStringLiteral("Opslaan"),
                                               QStringLiteral("Geef een naam voor deze tekst..."),
                                               QLineEdit::Normal, design_.TekstNaam);
    if (!name.isEmpty()) {
        design_.TekstNaam = name;
        BewaarTekst(name);
    }
}

void LongTextPanel::BewaarTekst(const QString& name) {
    const auto path = textPath(design_.Folders, name);
    if (path && BestandBestaat(*path) &&
        !askYesNo(&window_, QStringLiteral("File Exists"),
                  QStringLiteral("Bestandsnaam bestaat al, wil je deze overschrijven?"))) {
        return;
    }
    if (kaart::BewaarTekst(design_.Folders, name,
                           HaalRegels(control<QPlainTextEdit>(window_, "Text2")))) {
        showName();
    } else {
        showMessage(&window_, QString(), QStringLiteral("Fout bij het opslaan van de tekst!"));
    }
}

void LongTextPanel::showName() {
    control<QLabel>(window_, "Label22").setText(QLatin1Char(' ') + design_.TekstNaam);
}

void LongTextPanel::PlaatsKnop2() {
    hangLongText(design_, HaalRegels(control<QPlainTextEdit>(window_, "Text2")));
    auto& label = control<QLabel>(window_, "TextLabel2");
    label.raise();
    label.setFocus();
}

void LongTextPanel::placeText() {
    // Or the focus would go to the next control by itself, which may be a text field.
    control<QWidget>(window_, "Pic").setFocus();
    placeLongText(design_, HaalRegels(control<QPlainTextEdit>(window_, "Text2")));
}

/// Moves the hanging text with the arrow keys and places it with Enter.
bool LongTextPanel::pressKey(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        placeText();
        return true;
    }
    const auto step = arrowStep(key);
    if (step) {
        grabLongText(design_, {});
        dragLongText(design_, *step);
    }
    return step.has_value();
}

bool LongTextPanel::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        return pressKey(static_cast<const QKeyEvent*>(event)->key());
    }
    const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
    if (mouse == nullptr) {
        return false;
    }
    const QPoint at = pixelAt(*mouse);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        grabLongText(design_, at);
        break;
    case QEvent::MouseMove:
        if (mouse->buttons().testFlag(Qt::LeftButton)) {
            dragLongText(design_, at);
        }
        break;
    case QEvent::MouseButtonRelease:
        if (mouse->button() == Qt::RightButton) {
            dragLongText(design_, at);
            placeText();
        }
        break;
    default:
        break;
    }
    event->accept();
    return true; // else the canvas would take it for its own
}

} // namespace kaart
