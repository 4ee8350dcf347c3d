#include "controls/TextLines.h"
#include "tests/support/Answer.h"
#include "tests/support/MainDesk.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// A random picture on the canvas.
struct Desk : MainDesk {
    Desk() {
        std::mt19937 random(5);
        design.open(randomPicture(440, 640, random), QString());
    }
    QImage seen() { return toSurfaceFormat(pic().grab().toImage()); }
    QString hint() { return text("InfoLabel"); }
    /// Saves under a name, given in the input box; returns what the box proposed.
    QString save(const QString& name) {
        QString proposed;
        QTimer::singleShot(0, &window, [&] {
            auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            QCOMPARE(box->windowTitle() + box->labelText(),
                     "OpslaanGeef een naam voor deze tekst...");
            proposed = box->textValue();
            box->setTextValue(name);
            box->accept();
        });
        click("AlignKnop(4)");
        return proposed;
    }
};

} // namespace

class TextPanelsTest : public QObject {
    Q_OBJECT

private slots:
    void ATextLineIsPlacedWhereItIsSeen() {
        Desk desk;
        desk.at<QLineEdit>("Text1").setText("Op && <b>af</b>!");
        desk.at<QComboBox>("Combo2").setCurrentText("30");
        desk.at<QCheckBox>("ItalicCheck").click();
        desk.click("PlaatsKnop");
        QCOMPARE(desk.hint(), "Linkermuisknop is plaatsen van de tekst op het ontwerp.");
        auto& pic = desk.pic();
        QTest::mouseMove(&pic, QPoint(60, 300));
        QVERIFY(desk.shown("TextLabel"));
        const QImage seen = desk.seen();
        QVERIFY(seen != desk.design.Pic().Image());
        QTest::mouseClick(&pic, Qt::LeftButton, {}, QPoint(60, 300));
        QVERIFY(!desk.shown("TextLabel"));
        comparePictures(desk.design.Pic().Image(), seen);
        QCOMPARE(desk.hint(), "Informatie...");
    }

    void AnEmptyLineIsAnError() {
        Desk desk;
        desk.at<QLineEdit>("Text1").setText("  ");
        Answer answer;
        answer.press(QMessageBox::Ok);
        desk.click("PlaatsKnop");
        QCOMPARE(answer.seen(), QStringList("Error|Géén tekst ingevuld..."));
        QVERIFY(!desk.design.TekstHangt);
    }

    void ThePreviewAndTheChecksFollowTheStyle() {
        Desk desk;
        const auto example = [&] { return desk.at<QLabel>("TextExample").font(); };
        QCOMPARE(example().pixelSize(), 16);
        desk.at<QComboBox>("Combo2").setCurrentText("20");
        desk.at<QCheckBox>("BoldCheck").click();
        QCOMPARE(example().pixelSize(), 27);
        QVERIFY(example().bold() && !example().italic());
        desk.design.setTekenkleur(RGB(1, 2, 3));
        QCOMPARE(desk.at<QLabel>("TextExample").palette().color(QPalette::WindowText),
                 QColor(1, 2, 3));
        for (bool on : {true, false}) {
            desk.at<QCheckBox>("DiagonalCheck").setChecked(on);
            for (const char* name : {"Combo3", "Label20", "OpenCheck", "SchaduwCheck"}) {
                const bool sloping = name[0] == 'C' || name[0] == 'L';
                QCOMPARE(desk.at<QWidget>(name).isEnabled(), sloping == on);
            }
        }
    }

    void ALongTextIsDraggedAndPlacedWhereItIsSeen() {
        Desk desk;
        desk.click("TekenKnop(6)");
        desk.click("AlignKnop(1)");
        desk.click("PlaatsKnop2");
        QCOMPARE(desk.hint(), "Beweeg de tekst met de muis, rechts klikken is plaatsen.");
        auto& label = desk.at<QLabel>("TextLabel2");
        QCOMPARE(label.pos(), QPoint(0, 0));
        QCOMPARE(label.text(), desk.at<QPlainTextEdit>("Text2").toPlainText());
        QVERIFY(label.alignment().testFlag(Qt::AlignHCenter));
        QCOMPARE(toColorRef(desk.seen().pixel(0, 0)), white);
        desk.at<QCheckBox>("Check4").click();

        QTest::mousePress(&label, Qt::LeftButton, {}, QPoint(9, 9));
        moveHeld(label, {60, 89});
        QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(9, 9));
        QCOMPARE(label.pos(), QPoint(51, 80));
        QVERIFY(label.isVisible() && desk.design.TekstHangt);
        const QImage seen = desk.seen();
        QVERIFY(seen != desk.design.Pic().Image());
        QTest::mouseClick(&label, Qt::RightButton, {}, QPoint(20, 3));
        QVERIFY(!label.isVisible());
        comparePictures(desk.design.Pic().Image(), seen);

        desk.click("PlaatsKnop2");
        QTest::keyClick(&label, Qt::Key_Down);
        QTest::keyClick(&label, Qt::Key_Right);
        QCOMPARE(label.pos(), QPoint(1, 1));
        QTest::keyClick(&label, Qt::Key_Return);
        QVERIFY(!label.isVisible() && desk.design.Pic().Image() != seen);
    }

    void LinesAreThoseOnTheScreen() {
        Desk desk;
        desk.click("TekenKnop(6)");
        auto& box = desk.at<QPlainTextEdit>("Text2");
        QCOMPARE(HaalRegels(box).size(), 4);
        const QString text =
            QStringLiteral("Roosjes zijn rood en viooltjes zijn blauw maar ").repeated(2);
        box.setPlainText(text + "\n\neinde\u2028zacht");
        const QStringList lines = HaalRegels(box);
        QVERIFY(lines.size() >= 6 && lines.size() <= 8);
        QCOMPARE(lines.mid(lines.size() - 3).join(QLatin1Char('|')), "|einde|zacht");
        QCOMPARE(lines.mid(0, lines.size() - 3).join(QString()), text);
    }

    void ATextIsSavedAskedAboutAndLoaded() {
        Desk desk;
        desk.click("TekenKnop(6)");
        auto& box = desk.at<QPlainTextEdit>("Text2");
        auto& list = desk.at<QListWidget>("List1");
        box.setPlainText("een\ntwee");
        QCOMPARE(desk.save("b vers"), "Default");
        QCOMPARE(desk.text("Label22"), " b vers");
        desk.save("C");
        desk.save("A");
        for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
            box.setPlainText("drie");
            Answer answer;
            answer.press(button);
            desk.save("b vers");
            QCOMPARE(answer.seen().value(0), "File Exists|Bestandsnaam bestaat al, wil je deze "
                                             "overschrijven?");
            QVERIFY(!list.isEnabled());
            desk.click("AlignKnop(3)");
            QCOMPARE(list.count(), 3);
            QCOMPARE(list.item(1)->text(), "b vers.txt");
            const QPoint row = list.visualItemRect(list.item(1)).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row);
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
            QCOMPARE(box.toPlainText(), button == QMessageBox::No ? "een\ntwee\n" : "drie\n");
        }
    }

    void FailuresAreToldAndTheNameShownStays() {
        Desk desk;
        desk.click("TekenKnop(6)");
        desk.save("weg");
        desk.click("AlignKnop(3)");
        QVERIFY(QFile::remove(desk.design.Folders.in("Data/weg.txt")));
        Answer answer;
        answer.press(QMessageBox::Ok).press(QMessageBox::Ok);
        desk.save("a/b");
        QVERIFY(answer.seen().value(0).endsWith("|Fout bij het opslaan van de tekst!"));
        desk.at<QLabel>("Label22").setText(" oud");
        emit desk.at<QListWidget>("List1").itemActivated(desk.at<QListWidget>("List1").item(0));
        QVERIFY(answer.seen().value(1).endsWith("|Fout bij het laden van de tekst!"));
        QCOMPARE(desk.text("Label22"), " oud");
    }
};

KAART_TEST(TextPanelsTest)
#include "TextPanelsTest.moc"
