#include "app/Program.h"
#include "app/Windows.h"
#include "controls/VistaButton.h"
#include "design/tools/ToolTable.h"
#include "design/window/Main.h"
#include "tests/support/Controls.h"
#include "tests/support/Test.h"

#include <QtWidgets>

using namespace kaart;

namespace {

/// The thumbnails of Dialogform: its list offers the same to the keyboard.
const QString mouseOnly("Dialogform.Picture1");
/// All their letters are those of other entries of their menus.
const QStringList letterless{"Dodge", "RGB --> RBG", "RGB --> GRB"};

/// What a screen reader says of a control, beside its value.
QString spokenName(QWidget& control) {
    QAccessibleInterface& seen = *QAccessible::queryAccessibleInterface(&control);
    if (!isAny<QComboBox>(control)) {
        // What has no name takes over that of the frame around it.
        const QString name = seen.text(QAccessible::Name).trimmed();
        const auto* frame = qobject_cast<QGroupBox*>(control.parentWidget());
        return frame != nullptr && frame->title() == name ? QString() : name;
    }
    // The name of a list of choices is what it shows: its label counts, or else its description.
    for (const auto& [label, kind] : seen.relations(QAccessible::Label)) {
        if (isAny<QLabel>(*label->object())) {
            return label->text(QAccessible::Name);
        }
    }
    return seen.text(QAccessible::Description).trimmed();
}

bool takesMouse(QWidget& control) {
    bool taken = isInput(control);
    control.setAttribute(Qt::WA_NoMousePropagation);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        // The middle button means nothing to any control; only who takes it matters.
        QMouseEvent event(type, {}, control.mapToGlobal(QPointF()), Qt::MiddleButton, {}, {});
        taken = taken || (QApplication::sendEvent(&control, &event) && event.isAccepted());
    }
    control.setAttribute(Qt::WA_NoMousePropagation, false);
    return taken && !control.testAttribute(Qt::WA_TransparentForMouseEvents);
}

bool isCut(const QWidget& control) {
    int flags = 0;
    QSize room = control.size() - QSize(4, 4);
    QString text = isAny<QLineEdit>(control) ? QString() : control.property("text").toString();
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        room = label->contentsRect().size();
        flags = label->wordWrap() ? Qt::TextWordWrap : 0;
    } else if (isAny<QCheckBox, QRadioButton, QComboBox, QGroupBox>(control)) {
        room.rwidth() -= 20; // mark, arrow or corners
        text += control.property("currentText").toString() + control.property("title").toString();
    }
    const QRect column(0, 0, room.width(), QWIDGETSIZE_MAX);
    const QSize needed = control.fontMetrics().boundingRect(column, flags, text).size();
    return !text.isEmpty() && needed != needed.boundedTo(room);
}

/// Whether one lies behind or above the other by intent: a mark that lets the mouse through, or an
/// empty frame or label as the ground of what it encloses.
bool isLayer(const QWidget& one, const QWidget& other) {
    const bool ground = isAny<QFrame>(one) && one.property("text").toString().isEmpty();
    return one.testAttribute(Qt::WA_TransparentForMouseEvents) ||
           (ground && !isInput(one) && one.geometry().contains(other.geometry()));
}

/// The captions, of menus and buttons, that have no letter of their own among each other.
QStringList letterFaults(const QList<QWidget*>& owners) {
    QStringList faults;
    QStringList used;
    const auto use = [&](const QString& caption, const QString& letter) {
        if (!letterless.contains(caption) && (letter.isEmpty() || used.contains(letter))) {
            faults << caption + " has no letter of its own";
        }
        used << letter;
    };
    for (const QWidget* owner : owners) {
        const auto* button = qobject_cast<const VistaButton*>(owner);
        if (button != nullptr && !button->text().isEmpty()) {
            use(button->text(), button->shortcut().toString());
        }
        for (const QAction* entry : owner->actions()) {
            if (!entry->isSeparator()) {
                use(entry->text(), QKeySequence::mnemonic(entry->text()).toString());
            }
        }
    }
    return faults;
}

QStringList faultsOf(const QWidget& window) {
    const QList<QWidget*> controls = controlsIn(window);
    QList<QWidget*> lettered = controls;
    for (QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        lettered << bar;
    }
    QStringList faults = letterFaults(lettered);
    for (QMenu* menu : window.findChildren<QMenu*>()) {
        faults << letterFaults({menu});
    }
    for (QWidget* control : controls) {
        const QString name = window.objectName() + '.' + control->objectName();
        const bool keyboard = control->focusPolicy() & Qt::TabFocus;
        const QString spoken = keyboard || isInput(*control) ? spokenName(*control) : name;
        if (spoken.isEmpty() || spoken.contains('&') || spoken.contains("Ctrl+")) {
            faults << name + " has no plain name for a screen reader";
        }
        if (!keyboard && name != mouseOnly && takesMouse(*control)) {
            faults << name + " is out of the keyboard's reach";
        }
        if (isCut(*control)) {
            faults << name + " is cut off";
        }
        for (const QWidget* other : controls) {
            if (control < other && control->parent() == other->parent() &&
                control->geometry().intersects(other->geometry()) && !isLayer(*control, *other) &&
                !isLayer(*other, *control)) {
                faults << name + " overlaps " + other->objectName();
            }
        }
    }
    return faults;
}

/// The faults of a window as it opens, with each option chosen and with all sliders at their ends.
QStringList allFaultsOf(QWidget& window) {
    QStringList faults = faultsOf(window);
    for (auto* option : window.findChildren<QRadioButton*>()) {
        option->click();
        faults << faultsOf(window);
    }
    for (auto* slider : window.findChildren<QAbstractSlider*>()) {
        slider->setValue(slider->maximum());
    }
    return faults + faultsOf(window);
}

} // namespace

/// Walks through all windows as they open, and asks of every control what everyone needs: that it
/// can be heard, reached, told from its neighbours and read.
class AccessTest : public QObject {
    Q_OBJECT

private slots:
    void EveryWindowIsForEveryone() {
        prepareApplication(*qApp);
        const QTemporaryDir folder;
        seedFolders(qEnvironmentVariable("KAART_SOURCE") + "/data", folder.path());
        Design design({folder.path(), folder.path()});
        Main window(design, windowTable());
        window.show();
        QStringList faults;
        int opened = 0;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                ++opened;
                faults << allFaultsOf(*dialog);
                dialog->reject();
            }
        });
        look.start(0);
        const auto click = [&window](const QString& name) {
            auto* entry = window.findChild<QAction*>(name);
            entry != nullptr ? entry->trigger() : window.findChild<VistaButton*>(name)->click();
        };
        click("AboutKnop");
        for (const WindowRow& row : windowTable()) {
            click(row.opener);
        }
        QCOMPARE(opened, 1 + int(windowTable().size()));
        for (const ToolRow& row : toolTable()) {
            for (const char* turn : {"Richting(1)", "Richting(2)"}) {
                click(turn);
                if (row.click == ToolClick::ShowPanel) {
                    click(QString("TekenKnop(%1)").arg(row.index));
                    faults << allFaultsOf(window);
                }
            }
        }
        faults.removeDuplicates();
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

KAART_TEST(AccessTest)
#include "AccessTest.moc"
