#include "controls/PaperPrinter.h"
#include "tests/support/PdfFile.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

class PaperPrinterTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QString path_;

    std::unique_ptr<PaperPrinter> printer() const { return PaperPrinter::forPdf("PDF", path_); }

private slots:
    void initTestCase() {
        if (!PdfFile::canBeRead()) {
            QSKIP("poppler-utils is missing: no PDF file was looked at");
        }
    }

    void init() {
        path_ = folder_.filePath("kaart.pdf");
        QFile::remove(path_);
    }

    void PictureComesBackToTheBit() {
        std::mt19937 random(11);
        const QImage design = randomPicture(440, 640, random);
        const auto paper = printer();
        paper->PaintPicture(design, 0, 0, 11910, 16845, 0, 0, 440, 640);
        paper->NewPage();
        QVERIFY(paper->EndDoc());
        comparePictures(PdfFile(path_).picture(0).convertToFormat(QImage::Format_RGB32), design);
    }

    void EmptySheetsAreDroppedAndEachHasItsOrientation() {
        const auto paper = printer();
        paper->NewPage();
        paper->Line(0, 0, 5000, 5000, black);
        paper->Orientation = 2; // counts from the next sheet
        paper->Line(0, 0, 500, 500, black);
        paper->NewPage();
        paper->NewPage();
        paper->Line(0, 0, 5000, 5000, black);
        paper->NewPage();
        QVERIFY(paper->EndDoc());
        QCOMPARE(PdfFile(path_).pages(), QStringList({"595 x 842 pts (A4)", "842 x 595 pts (A4)"}));
    }

    void DrawingStandsWhereTwipsPutIt() {
        const auto paper = printer();
        paper->Orientation = 2;
        paper->FillStyle = Fill::Solid;
        paper->FillColor = RGB(240, 240, 240);
        paper->PaintPicture(pictureOf({"23"}), 1440, 1440, 2880, 1440, 0, 0, 2, 1);
        paper->PaintPicture(pictureOf({"1234"}), 7200, 1440, -1440, 1440, 1, 0, 2, 1);
        paper->Line(1440, 5760, 2880, 7200, RGB(0, 0, 255), LineMode::Box);
        paper->Line(4320, 5760, 5760, 7200, RGB(0, 0, 255), LineMode::FilledBox);
        QVERIFY(paper->EndDoc());
        const QImage page = PdfFile(path_).rendered(1, 72);
        QCOMPARE(page.size(), QSize(842, 595));
        const QList<std::pair<QPoint, QRgb>> samples{
            {{70, 100}, 0xFFFFFFFF},  {{74, 74}, 0xFFFF0000},   {{141, 141}, 0xFFFF0000},
            {{147, 100}, 0xFF00FF00}, {{213, 141}, 0xFF00FF00}, {{219, 100}, 0xFFFFFFFF},
            {{100, 69}, 0xFFFFFFFF},  {{100, 147}, 0xFFFFFFFF}, {{290, 100}, 0xFF00FF00},
            {{356, 100}, 0xFFFF0000}, {{100, 288}, 0xFF0000FF}, {{100, 320}, 0xFFF0F0F0},
            {{250, 320}, 0xFF0000FF}, {{294, 320}, 0xFFFFFFFF}};
        for (const auto& [place, colour] : samples) {
            if (place == QPoint(100, 288)) { // half a point wide: the colour is mixed with others
                QVERIFY(qRed(page.pixel(place)) < 180 && qBlue(page.pixel(place)) > 230);
                continue;
            }
            QVERIFY2(page.pixel(place) == colour, qPrintable(QStringLiteral("(%1, %2) is %3")
                                                                 .arg(place.x())
                                                                 .arg(place.y())
                                                                 .arg(page.pixel(place), 8, 16)));
        }
    }

    void TextStandsBelowItsPlaceAndMovesOn() {
        const auto paper = printer();
        paper->FontSize = 72;
        paper->CurrentX = 1440;
        paper->CurrentY = 1440;
        const double line = paper->TextHeight("H");
        QVERIFY(line > 72 * 20 && line < 72 * 20 * 1.3);
        paper->Print("HHH");
        QCOMPARE(paper->CurrentY, 1440 + line);
        QVERIFY(paper->EndDoc());
        const auto words = PdfFile(path_).words(1);
        QCOMPARE(words.size(), 1);
        QVERIFY((words[0].place - QPointF(72, 72)).manhattanLength() < 0.5);
    }

    void UnwritableFileIsToldAtTheEnd() {
        path_ = folder_.filePath("nergens/kaart.pdf");
        const auto paper = printer();
        paper->Line(0, 0, 500, 500, black);
        paper->NewPage();
        paper->Line(0, 0, 500, 500, black);
        QVERIFY(!paper->EndDoc());
        // The next job is judged by itself.
        QVERIFY(QDir(folder_.path()).mkdir("nergens"));
        paper->Line(0, 0, 500, 500, black);
        QVERIFY(paper->EndDoc());
        QCOMPARE(PdfFile(path_).pages().size(), 1);
    }

    void UnfinishedOrEmptyJobLeavesTheOldFile() {
        QFile old(path_);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("oud") == 3);
        old.close();
        printer()->Line(0, 0, 500, 500, black);
        QVERIFY(printer()->EndDoc());
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("oud"));
    }

    void WildNumbersDrawNothing() {
        const auto paper = printer();
        const double infinite = std::numeric_limits<double>::infinity();
        const QImage design(44, 64, QImage::Format_RGB32);
        paper->PaintPicture(design, infinite, 0, 100, 100, 0, 0, 44, 64);
        paper->PaintPicture(design, 0, 0, 1e300, 100, 0, 0, 44, 64);
        paper->PaintPicture(design, 0, 0, 100, 100, 0, 0, 45, 64);
        paper->Line(0, 0, std::nan(""), 5, black);
        QVERIFY(paper->EndDoc());
        QVERIFY(!QFile::exists(path_));
    }
};

KAART_TEST(PaperPrinterTest)
#include "PaperPrinterTest.moc"
