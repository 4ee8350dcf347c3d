#include "packs/window/UnzipForm.h"
#include "packs/window/UnzipBoxes.h"
#include "tests/packs/Archives.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class UnzipFormTest : public FormTest<UnzipForm> {
    Q_OBJECT

private slots:
    void init() {
        begin();
        QVERIFY(QDir(root_->path()).mkdir("Frames"));
        write("rood.bmp", plain(4, 3, RGB(255, 0, 0)));
        QFile file(path("rood.bmp"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        writeZip(path("Kaders.ZIP"), {{"Extra/rood.bmp", file.readAll()}});
        QVERIFY(file.remove());
        writeZip(path("anders.zip"), {{"x", "xx", ZIP_EM_AES_256}});
        open();
    }

    void PickedPackUnpacksBesideItself() {
        QCOMPARE(lines("List1").size(), 2);
        QVERIFY(!part("File1").isVisible());
        QCOMPARE(text("Label2"), "Naam Zip-Bestand");
        press("UnzipKnop"); // no such file: silent
        clickLine("List1", "Kaders.ZIP");
        QCOMPARE(text("Label2"), "Kaders.ZIP");
        press("UnzipKnop");
        comparePictures(LoadPicture(path("Extra/rood.bmp")).value_or(QImage()),
                        plain(4, 3, RGB(255, 0, 0)));
        QVERIFY(form_->isVisible() && !part("Bar").isVisible());
        press("CancelKnop");
        QVERIFY(!form_->isVisible());
    }

    void FoldersListTheirPacks() {
        clickLine("List1", "anders.zip");
        clickLine("Dir1", "Frames");
        QTest::keyClick(&part("Dir1"), Qt::Key_Return);
        QCOMPARE(lines("List1") + lines("File1"), QStringList());
        QCOMPARE(text("Label2"), "anders.zip"); // kept
    }

    void ProtectedPackAsksForItsPassword() {
        QTimer timer;
        QStringList seen;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
                seen << box->labelText();
                box->setTextValue(seen.size() == 1 ? "mis" : "geheim");
                box->accept();
            }
        });
        timer.start(0);
        clickLine("List1", "anders.zip");
        press("UnzipKnop");
        QCOMPARE(seen, QStringList(2, "Please Enter The Password!"));
        QCOMPARE(QFileInfo(path("x")).size(), 2);
    }

    void ReplaceBoxHasThreeAnswersAndClosingStops() {
        QProgressBar bar;
        UnzipBoxes boxes(*form_, bar);
        Answer answer;
        answer.press(QMessageBox::Yes).press(QMessageBox::No).press(QMessageBox::Cancel);
        QCOMPARE(boxes.replace("<b>.bmp"), ReplaceAnswer::Yes);
        QCOMPARE(boxes.replace("c"), ReplaceAnswer::No);
        QCOMPARE(boxes.replace("c"), ReplaceAnswer::None);
        QCOMPARE(answer.seen()[0], "Reribebin - File Already Exists!|Overwrite <b>.bmp?");
        QVERIFY(boxes.service(1, 2));
        form_->close();
        QVERIFY(!boxes.service(1, 2));
    }
};

KAART_TEST(UnzipFormTest)
#include "UnzipFormTest.moc"
