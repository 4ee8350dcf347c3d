#include "addresses/window/AdresForm.h"
#include "controls/Printers.h"
#include "design/session/Design.h"
#include "tests/support/Answer.h"
#include "tests/support/Test.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

using namespace kaart;

class AdresFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<AdresForm> form_;
    QString flashed_;

    /// Notes which field turns green; the window goes at the third.
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* field = qobject_cast<QLineEdit*>(watched); // null while it is destroyed
        if (field != nullptr && event->type() == QEvent::PaletteChange &&
            field->palette().color(QPalette::Text) == QColor(0, 255, 0)) {
            flashed_ += field->objectName().right(3);
            if (flashed_.endsWith("(2)")) {
                QMetaObject::invokeMethod(
                    this, [this] { form_.reset(); }, Qt::QueuedConnection);
            }
        }
        return false;
    }

    QString path() const { return root_->filePath("Data/Adressen.col"); }
    template <typename T>
    T* part(const QString& name) const {
        return form_->findChild<T*>(name);
    }
    QLineEdit* input(int field) const {
        return part<QLineEdit>(QStringLiteral("Text1(%1)").arg(field));
    }
    QString position() const { return part<QLabel>("Label7")->text(); }
    void press(const QString& button) { part<QAbstractButton>(button)->click(); }
    void type(const QStringList& fields) {
        for (int field = 0; field < addressFields; ++field) {
            input(field)->setText(fields.value(field));
        }
    }
    QString shown() const {
        QString text;
        for (int field = 0; field < addressFields; ++field) {
            text += input(field)->text() + '/';
        }
        return text;
    }
    /// The first fields in the hidden list.
    QString names() const {
        QString text;
        const auto* store = part<QTreeView>("ListView1")->model();
        for (int row = 0; row < store->rowCount(); ++row) {
            text += store->index(row, 0).data().toString();
        }
        return text;
    }
    void open(const QString& letters) {
        Addresses addresses;
        for (const QChar letter : letters) {
            addresses << QStringList{letter, "s", "p", "w", "t", "e", "l", "o"};
        }
        writeAddresses(path(), addresses);
        form_ = std::make_unique<AdresForm>(*design_);
        form_->flashPause = 0;
        form_->show();
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
    }
    void cleanup() { form_.reset(); }

    void ScrollBarStepsThroughTheAddresses() {
        open("ABC");
        auto* bar = part<QScrollBar>("HScroll1");
        QCOMPARE(position() + shown(), QString("1 / 3A/s/p/w/t/e/l/o/"));
        QCOMPARE(bar->minimum() * 10 + bar->maximum(), 13);
        QTest::keyClick(bar, Qt::Key_End);
        QCOMPARE(position() + shown(), QString("3 / 3C/s/p/w/t/e/l/o/"));
    }

    void AddingAsksForFourFields() {
        open("A");
        const QStringList names{"Voor en Achternaam", "Adres", "Postcode", "Plaatsnaam"};
        for (int field = 0; field < requiredForAdding; ++field) {
            type(QStringList{"N", "s", "p"}.mid(0, field) << "  ");
            Answer answer;
            press("Knop(0)");
            QCOMPARE(answer.seen(), QStringList('|' + names[field] + " invullen a.u.b."));
            QCOMPARE(form_->focusWidget(), input(field));
        }
        QCOMPARE(position(), QString("1 / 1"));
    }

    void AddedAddressGoesToTheEndAndIntoTheFile() {
        open("AB");
        type({" N ", "s", "p", "w", "", " ", "", ""});
        press("Knop(0)");
        QCOMPARE(names() + position() + shown(), QString("AB N 3 / 3////////"));
        QCOMPARE(part<QScrollBar>("HScroll1")->value(), 1);
        part<QScrollBar>("HScroll1")->setValue(3);
        QCOMPARE(shown(), QString(" N /s/p/w/-/-/-/-/"));
        QCOMPARE(readAddresses(path()).size(), 2);
        press("SaveKnop");
        QVERIFY(!form_->isVisible());
        QCOMPARE(readAddresses(path()).value(2).join('/'), QString("N/s/p/w/-/-/-/-"));
    }

    void ChangingAfterAddingComplainsAndThenNeedsOnlyAName() {
        open("AB");
        type({"C", "s", "p", "w"});
        press("Knop(0)");
        Answer answer;
        press("Knop(1)");
        QCOMPARE(answer.seen(), QStringList("|Voor en Achternaam invullen a.u.b."));
        type({"D"});
        press("Knop(1)");
        QCOMPARE(names() + shown(), QString("ABDD/-/-/-/-/-/-/-/"));
        press("CancelKnop");
        QCOMPARE(readAddresses(path()).size(), 2);
    }

    void DeletingAsksAndShowsTheFirst() {
        open("ABC");
        auto* bar = part<QScrollBar>("HScroll1");
        bar->setValue(3);
        Answer answer;
        answer.press(QMessageBox::No).press(QMessageBox::Yes).press(QMessageBox::Yes);
        press("Knop(2)");
        QCOMPARE(answer.seen(), QStringList(" Delete|Wilt je (C) verwijderen uit de lijst?"));
        QCOMPARE(names() + position() + input(0)->text(), QString("ABC3 / 3C"));
        press("Knop(2)");
        QCOMPARE(names() + position() + input(0)->text(), QString("AB1 / 2A"));
        QCOMPARE(bar->value() * 10 + bar->maximum(), 12);
        press("Knop(2)");
        QCOMPARE(names() + position() + input(0)->text(), QString("B1 / 1B"));
    }

    void DeletingRightAfterAddingLeavesAnAddressOnView() {
        open("A");
        type({"B", "s", "p", "w"});
        Answer answer;
        answer.press(QMessageBox::Yes);
        press("Knop(0)");
        press("Knop(2)");
        QCOMPARE(names() + position() + input(0)->text(), QString("A1 / 1A"));
        press("Knop(1)");
        QCOMPARE(names(), QString("A"));
    }

    void EmptyListHasNothingToChangeDeleteOrPrint() {
        open("");
        QCOMPARE(position(), QString("1 / 0")); // kept
        open("A");
        Answer answer;
        answer.press(QMessageBox::Yes);
        for (const char* button : {"Knop(2)", "Knop(1)", "Knop(2)", "Knop(3)"}) {
            press(button);
        }
        QCOMPARE(answer.seen().size(), 1);
        QCOMPARE(position() + shown(), QString("0 / 0////////"));
    }

    void FieldsFlashOneByOneUntilTheWindowGoes() {
        open("A");
        for (int field = 0; field < addressFields; ++field) {
            input(field)->installEventFilter(this);
        }
        press("Knop(1)");
        QCOMPARE(flashed_, QString("(0)(1)(2)"));
        QVERIFY(!form_);
    }

    void PrintGoesToTheChosenFile() {
        open("ABC");
        pickPrinter(findPrinters().DeviceNames.last());
        Answer answer;
        answer.choose(root_->filePath("lijst.pdf")).choose(root_->filePath("nergens/x.pdf"));
        press("Knop(3)");
        QVERIFY(QFile::exists(root_->filePath("lijst.pdf")));
        press("Knop(3)");
        QCOMPARE(answer.seen(),
                 QStringList({"Afdrukken naar PDF", "Afdrukken naar PDF",
                              "Afdrukken|Het PDF-bestand kon niet worden geschreven."}));
        QVERIFY(form_->isVisible());
    }
};

KAART_TEST(AdresFormTest)
#include "AdresFormTest.moc"
