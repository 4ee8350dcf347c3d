#include "addresses/window/AdresForm.h"
#include "controls/Printers.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class AdresFormTest : public FormTest<AdresForm> {
    Q_OBJECT

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

    QString file() const { return path("Data/Adressen.col"); }
    QLineEdit& input(int field) const { return part<QLineEdit>("Text1", field); }
    QString position() const { return text("Label7"); }
    QScrollBar& bar() const { return part<QScrollBar>("HScroll1"); }
    void type(const QStringList& fields) {
        for (int field = 0; field < addressFields; ++field) {
            input(field).setText(fields.value(field));
        }
    }
    QString shown() const {
        QString text;
        for (int field = 0; field < addressFields; ++field) {
            text += input(field).text() + '/';
        }
        return text;
    }
    /// The first fields in the hidden list.
    QString names() const {
        QString text;
        const auto* store = part<QTreeView>("ListView1").model();
        for (int row = 0; row < store->rowCount(); ++row) {
            text += store->index(row, 0).data().toString();
        }
        return text;
    }
    void openWith(const QString& letters) {
        Addresses addresses;
        for (const QChar letter : letters) {
            addresses << QStringList{letter, "s", "p", "w", "t", "e", "l", "o"};
        }
        writeAddresses(file(), addresses);
        open();
        form_->flashPause = 0;
    }

private slots:
    void init() { begin(); }

    void ScrollBarStepsThroughTheAddresses() {
        openWith("ABC");
        QCOMPARE(position() + shown(), QString("1 / 3A/s/p/w/t/e/l/o/"));
        QCOMPARE(bar().minimum() * 10 + bar().maximum(), 13);
        QTest::keyClick(&bar(), Qt::Key_End);
        QCOMPARE(position() + shown(), QString("3 / 3C/s/p/w/t/e/l/o/"));
    }

    void AddingAsksForFourFields() {
        openWith("A");
        const QStringList names{"Voor en Achternaam", "Adres", "Postcode", "Plaatsnaam"};
        for (int field = 0; field < requiredForAdding; ++field) {
            type(QStringList{"N", "s", "p"}.mid(0, field) << "  ");
            Answer answer;
            press("Knop(0)");
            QCOMPARE(answer.seen(), QStringList('|' + names[field] + " invullen a.u.b."));
            QCOMPARE(form_->focusWidget(), &input(field));
        }
        QCOMPARE(position(), QString("1 / 1"));
    }

    void AddedAddressGoesToTheEndAndIntoTheFile() {
        openWith("AB");
        type({" N ", "s", "p", "w", "", " ", "", ""});
        press("Knop(0)");
        QCOMPARE(names() + position() + shown(), QString("AB N 3 / 3////////"));
        QCOMPARE(bar().value(), 1);
        bar().setValue(3);
        QCOMPARE(shown(), QString(" N /s/p/w/-/-/-/-/"));
        QCOMPARE(readAddresses(file()).size(), 2);
        press("SaveKnop");
        QVERIFY(!form_->isVisible());
        QCOMPARE(readAddresses(file()).value(2).join('/'), QString("N/s/p/w/-/-/-/-"));
    }

    void ChangingAfterAddingComplainsAndThenNeedsOnlyAName() {
        openWith("AB");
        type({"C", "s", "p", "w"});
        press("Knop(0)");
        Answer answer;
        press("Knop(1)");
        QCOMPARE(answer.seen(), QStringList("|Voor en Achternaam invullen a.u.b."));
        type({"D"});
        press("Knop(1)");
        QCOMPARE(names() + shown(), QString("ABDD/-/-/-/-/-/-/-/"));
        press("CancelKnop");
        QCOMPARE(readAddresses(file()).size(), 2);
    }

    void DeletingAsksAndShowsTheFirst() {
        openWith("ABC");
        bar().setValue(3);
        Answer answer;
        answer.press(QMessageBox::No).press(QMessageBox::Yes).press(QMessageBox::Yes);
        press("Knop(2)");
        QCOMPARE(answer.seen(), QStringList(" Delete|Wilt je (C) verwijderen uit de lijst?"));
        QCOMPARE(names() + position() + input(0).text(), QString("ABC3 / 3C"));
        press("Knop(2)");
        QCOMPARE(names() + position() + input(0).text(), QString("AB1 / 2A"));
        QCOMPARE(bar().value() * 10 + bar().maximum(), 12);
        press("Knop(2)");
        QCOMPARE(names() + position() + input(0).text(), QString("B1 / 1B"));
    }

    void DeletingRightAfterAddingLeavesAnAddressOnView() {
        openWith("A");
        type({"B", "s", "p", "w"});
        Answer answer;
        answer.press(QMessageBox::Yes);
        press("Knop(0)");
        press("Knop(2)");
        QCOMPARE(names() + position() + input(0).text(), QString("A1 / 1A"));
        press("Knop(1)");
        QCOMPARE(names(), QString("A"));
    }

    void EmptyListHasNothingToChangeDeleteOrPrint() {
        openWith("");
        QCOMPARE(position(), QString("1 / 0")); // kept
        openWith("A");
        Answer answer;
        answer.press(QMessageBox::Yes);
        for (const char* button : {"Knop(2)", "Knop(1)", "Knop(2)", "Knop(3)"}) {
            press(button);
        }
        QCOMPARE(answer.seen().size(), 1);
        QCOMPARE(position() + shown(), QString("0 / 0////////"));
    }

    void FieldsFlashOneByOneUntilTheWindowGoes() {
        openWith("A");
        for (int field = 0; field < addressFields; ++field) {
            input(field).installEventFilter(this);
        }
        part<QAbstractButton>("Knop(1)").click();
        QCOMPARE(flashed_, QString("(0)(1)(2)"));
        QVERIFY(!form_);
    }

    void PrintGoesToTheChosenFile() {
        openWith("ABC");
        pickPrinter(findPrinters().DeviceNames.last());
        Answer answer;
        answer.choose(path("lijst.pdf")).choose(path("nergens/x.pdf"));
        press("Knop(3)");
        QVERIFY(QFile::exists(path("lijst.pdf")));
        press("Knop(3)");
        QCOMPARE(answer.seen(),
                 QStringList({"Afdrukken naar PDF", "Afdrukken naar PDF",
                              "Afdrukken|Het PDF-bestand kon niet worden geschreven."}));
        QVERIFY(form_->isVisible());
    }
};

KAART_TEST(AdresFormTest)
#include "AdresFormTest.moc"
