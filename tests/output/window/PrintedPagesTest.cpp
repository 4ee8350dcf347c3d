#include "controls/PaperPrinter.h"
#include "tests/support/PdfFile.h"
#include "tests/support/PrintJobs.h"
#include "tests/support/Test.h"

#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

using namespace kaart;

namespace {

constexpr int dotsPerInch = 288; // a quarter of a point each
constexpr int twipsPerDot = 1440 / dotsPerInch;
constexpr int near = 2; // dots: half a point

bool isGrey(QRgb pixel) {
    return std::abs(qRed(pixel) - qGreen(pixel)) < 8 && std::abs(qGreen(pixel) - qBlue(pixel)) < 8;
}

QByteArray at(const char* what, const QPoint& dot) {
    return QStringLiteral("%1 at dot (%2, %3)").arg(what).arg(dot.x()).arg(dot.y()).toUtf8();
}

} // namespace

class PrintedPagesTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    PdfFile printed(const PrintJob& job) const {
        const QString path = folder_.filePath("blad.pdf");
        job.layout(*PaperPrinter::forPdf("PDF", path), orderOf(job));
        return PdfFile(path);
    }

private slots:
    void initTestCase() {
        if (!PdfFile::canBeRead()) {
            QSKIP("poppler-utils is missing: no PDF file was looked at");
        }
    }

    void PicturesAreOnPaperToHalfAPoint_data() { printJobRows(); }
    void PicturesAreOnPaperToHalfAPoint() {
        QFETCH(PrintJob, job);
        const PdfFile file = printed(job);
        const QString sheet = job.orientation == 1 ? "595 x 842 pts (A4)" : "842 x 595 pts (A4)";
        QCOMPARE(file.pages(), QStringList({sheet, sheet})); // none for the sheet after the last
        const QString size = job.landscape ? " 640x440 " : " 440x640 ";
        QCOMPARE(file.pictures().filter("1" + size).size(), job.pictures.size());
        QCOMPARE(file.pictures().filter("2" + size).size(), job.pictures.size());
        const QImage page = file.rendered(2, dotsPerInch);
        for (const QRect& place : job.pictures) {
            const QRect dots(place.topLeft() / twipsPerDot, place.size() / twipsPerDot);
            const QRect inner = dots.adjusted(near, near, -near, -near);
            const QPoint corners[] = {inner.topLeft(), inner.topRight(), inner.bottomLeft(),
                                      inner.bottomRight()};
            for (int corner = 0; corner < 4; ++corner) {
                const QPoint dot = corners[corner];
                QVERIFY2(page.pixel(dot) == quarters[corner], at("wrong quarter", dot));
            }
            const QRect outer = dots.adjusted(-near - 1, -near - 1, near + 1, near + 1);
            const QPoint middle = outer.center();
            for (const QPoint dot : {QPoint(outer.left(), middle.y()),
                                     {outer.right(), middle.y()},
                                     {middle.x(), outer.top()},
                                     {middle.x(), outer.bottom()}}) {
                QVERIFY2(isGrey(page.pixel(dot)), at("picture too wide", dot));
            }
        }
    }

    void CalendarTextIsOnPaperToHalfAPoint_data() {
        QTest::addColumn<PrintJob>("job");
        for (const PrintJob& job : printJobs()) {
            if (job.layout == printCalendar) {
                QTest::newRow(job.name) << job;
            }
        }
    }
    void CalendarTextIsOnPaperToHalfAPoint() {
        QFETCH(PrintJob, job);
        constexpr double blank = 0.278; // of the font's size
        const QList<PdfFile::Word> words = printed(job).words(2);
        const QList<CalendarWord> expected = trueCalendar(2016, job.landscape);
        QCOMPARE(words.size(), expected.size());
        for (const CalendarWord& one : expected) {
            const QString text = one.text.trimmed();
            const QPointF place =
                QPointF(one.place) / 20 +
                QPointF(static_cast<double>(one.text.indexOf(text)) * blank * one.size, 0);
            const bool found = std::any_of(words.begin(), words.end(), [&](const auto& word) {
                const QPointF off = word.place - place;
                return word.text == text && std::fabs(off.x()) <= 0.5 && std::fabs(off.y()) <= 0.5;
            });
            QVERIFY2(found, at(qPrintable(text), place.toPoint()));
        }
    }
};

KAART_TEST(PrintedPagesTest)
#include "PrintedPagesTest.moc"
