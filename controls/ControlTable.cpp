#include "controls/ControlTable.h"

#include "controls/Fader.h"
#include "controls/Icons.h"
#include "controls/Mnemonics.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/TitledFrame.h"
#include "controls/VistaButton.h"
#include "design/surface/Numbers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTreeView>

namespace kaart {

namespace {

QWidget* makeLabel(const QString& caption, QFrame::Shape shape) {
    auto* label = new QLabel(caption);
    label->setTextFormat(Qt::PlainText);
    label->setFrameShape(shape);
    if (shape != QFrame::NoFrame) {
        label->setFrameShadow(QFrame::Sunken);
        label->setAutoFillBackground(true);
    }
    return label;
}

QWidget* makeCombo(bool editable) {
    auto* combo = new QComboBox;
    combo->setEditable(editable);
    combo->setInsertPolicy(QComboBox::NoInsert);
    return combo;
}

QWidget* makeListView() {
    auto* list = new QTreeView;
    list->setRootIsDecorated(false);
    list->setItemsExpandable(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    return list;
}

QWidget* makeScroll() {
    auto* scroll = new QScrollBar(Qt::Horizontal);
    scroll->setRange(0, 255);
    // It sets a value here: the right arrow and the wheel turned up add.
    scroll->setInvertedControls(false);
    scroll->setFocusPolicy(Qt::StrongFocus);
    return scroll;
}

QWidget* makeButton(const QString& caption) {
    auto* button = new VistaButton;
    button->setText(caption);
    return button;
}

QWidget* makeControl(ControlKind kind, const QString& caption) {
    switch (kind) {
    case ControlKind::Frame:
        return new TitledFrame(caption);
    case ControlKind::Panel:
        return new QWidget;
    case ControlKind::Label:
        return makeLabel(caption, QFrame::NoFrame);
    case ControlKind::Value:
    case ControlKind::Swatch:
        return makeLabel(caption, QFrame::Panel);
    case ControlKind::Check:
        return new QCheckBox(caption);
    case ControlKind::Option:
        return new QRadioButton(caption);
    case ControlKind::Combo:
        return makeCombo(false);
    case ControlKind::EditCombo:
        return makeCombo(true);
    case ControlKind::List:
        return new QListWidget;
    case ControlKind::ListView:
        return makeListView();
    case ControlKind::Text:
        return new QLineEdit(caption);
    case ControlKind::Memo:
        return new QPlainTextEdit(caption);
    case ControlKind::Scroll:
        return makeScroll();
    case ControlKind::Fader:
        return new Fader;
    case ControlKind::Button:
        return makeButton(caption);
    case ControlKind::Surface:
        return new SurfaceView;
    }
    return nullptr;
}

void dress(VistaButton& button, const ControlRow& row) {
    constexpr int room = 12; // above and below the icon together
    button.setIcon(icon(QString::fromUtf8(row.icon)));
    button.tellKeys(QString::fromUtf8(row.keys));
    constexpr int smallest = 16;
    const int side = qMax(smallest, button.height() - room);
    button.setIconSize(QSize(side, side));
}

} // namespace

void buildControls(QWidget& window, std::span<const ControlRow> rows) {
    for (const ControlRow& row : rows) {
        const bool inWindow = *row.parent == '\0';
        QWidget* parent = inWindow ? &window : &control<QWidget>(window, row.parent);
        QWidget* made = makeControl(row.kind, QString::fromUtf8(row.caption));
        made->setParent(parent);
        made->setObjectName(QString::fromUtf8(row.name));
        made->setToolTip(QString::fromUtf8(row.toolTip));
        if (*row.caption == '\0') {
            made->setAccessibleName(made->toolTip().trimmed());
        }
        place(*made, row.left, row.top, row.width, row.height);
        if (auto* button = qobject_cast<VistaButton*>(made)) {
            dress(*button, row);
        }
    }
    giveMnemonics(window);
}

void place(QWidget& control, int left, int top) {
    control.move(pixels(left), pixels(top));
}

void place(QWidget& control, int left, int top, int width, int height) {
    control.setGeometry(pixels(left), pixels(top), pixels(width), pixels(height));
}

} // namespace kaart
