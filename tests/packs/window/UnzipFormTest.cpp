#include "packs/window/UnzipForm.h"
#include "controls/ControlTable.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "packs/window/UnzipBoxes.h"
#include "tests/packs/Archives.h"
#include "tests/support/Answer.h"

#include <QApplication>
#include <QDir>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QTemporaryDir>

using namespace kaart;

class UnzipFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<UnzipForm> form_;

    QListWidget& list(const char* name) const { return control<QListWidget>(*form_, name); }
    QString label() const { return control<QLabel>(*form_, "Label2").text(); }
    void pick(QListWidget& list, const QString& name) const {
        auto* item = list.findItems(name, Qt::MatchExactly).value(0);
        QVERIFY(item != nullptr);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
    }
    void press(const char* button) const {
        QTest::mouseClick(&control<VistaButton>(*form_, button), Qt::LeftButton);
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(root_->path()).mkdir("Frames"));
        const QString picture = root_->filePath("rood.bmp");
        QImage red(4, 3, QImage::Format_RGB32);
        red.fill(0xFFFF0000);
        QVERIFY(SavePicture(red, picture));
        QFile file(picture);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const Packed packed{"Extra/rood.bmp", file.readAll()};
        QVERIFY(file.remove());
        writeZip(root_->filePath("Kaders.ZIP"), {packed});
        writeZip(root_->filePath("anders.zip"), {{"x", "xx", ZIP_EM_AES_256}});
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
        form_ = std::make_unique<UnzipForm>(*design_);
        form_->show();
    }
    void cleanup() { form_.reset(); }

    void PickedPackUnpacksBesideItself() {
        QCOMPARE(list("List1").count(), 2);
        QVERIFY(!list("File1").isVisible());
        QCOMPARE(label(), "Naam Zip-Bestand");
        press("UnzipKnop"); // no such file: silent
        pick(list("List1"), "Kaders.ZIP");
        QCOMPARE(label(), "Kaders.ZIP");
        press("UnzipKnop");
        const auto picture = LoadPicture(root_->filePath("Extra/rood.bmp"));
        QVERIFY(picture && picture->pixel(3, 2) == 0xFFFF0000);
        QVERIFY(form_->isVisible() && !form_->findChild<QWidget*>("Bar")->isVisible());
        press("CancelKnop");
        QVERIFY(!form_->isVisible());
    }

    void FoldersListTheirPacks() {
        pick(list("List1"), "anders.zip");
        pick(list("Dir1"), "Frames");
        QTest::keyClick(&list("Dir1"), Qt::Key_Return);
        QCOMPARE(list("List1").count() + list("File1").count(), 0);
        QCOMPARE(label(), "anders.zip"); // kept
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
        pick(list("List1"), "anders.zip");
        press("UnzipKnop");
        QCOMPARE(seen, QStringList(2, "Please Enter The Password!"));
        QCOMPARE(QFileInfo(root_->filePath("x")).size(), 2);
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
