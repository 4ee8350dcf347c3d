#include "design/surface/RecordingPrinter.h"
#include "output/TypedNumber.h"
#include "tests/support/PrintJobs.h"
#include "tests/support/Test.h"

#include <QRegularExpression>

using namespace kaart;

namespace {

QString printed(PageLayout layout, const PrintOrder& order) {
    RecordingPrinter printer;
    layout(printer, order);
    return printer.Log.join("; ");
}

} // namespace

class PageLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void A4TakesAnyMarginsAndAllOfALargerPicture() {
        PrintOrder order{QImage(880, 1280, QImage::Format_RGB32), false};
        order.margins = {-99, -1.5, 10, 1};
        QCOMPARE(printed(printA4, order),
                 "Sheet 1; PaintPicture -2970 -45 11610 16815 from 0 0 880 1280; NewPage; EndDoc");
    }

    void PicturesAndBoxesStandInTheirPlaces_data() { printJobRows(); }
    void PicturesAndBoxesStandInTheirPlaces() {
        QFETCH(PrintJob, job);
        const auto numbers = [](const QRect& place, int right, int bottom) {
            return QString::asprintf("%d %d %d %d", place.x(), place.y(), right, bottom);
        };
        QStringList sheet{QString("Sheet %1").arg(job.orientation)};
        for (const QRect& place : job.pictures) {
            sheet << "PaintPicture " + numbers(place, place.width(), place.height()) +
                         (job.landscape ? " from 0 0 640 440" : " from 0 0 440 640");
        }
        if (const QRect& box = job.box; !box.isEmpty()) {
            sheet << "Line " + numbers(box, box.x() + box.width(), box.y() + box.height()) +
                         " 000000 B fill F0F0F0";
        }
        sheet << "NewPage";
        RecordingPrinter printer;
        job.layout(printer, orderOf(job));
        // The calendar's words and lines have a test of their own.
        static const QRegularExpression others("^(Print|Line [^B]*$)");
        printer.Log.removeIf([](const QString& line) { return line.contains(others); });
        QCOMPARE(printer.Log, sheet + sheet + QStringList("EndDoc"));
    }

    void NoCopiesOnlyEndTheJobAndManyHaveAnEnd() {
        PrintOrder order = orderOf(printJobs().first());
        order.copies = 0;
        QCOMPARE(printed(printA4, order), "EndDoc");
        order.copies = -3;
        QCOMPARE(printed(printFoldedCard, order), "EndDoc");
        order.copies = 2000000000;
        QCOMPARE(printed(printA4, order).count("NewPage"), mostCopies);
    }

    void FailedJobIsTold() {
        RecordingPrinter printer;
        printer.Fails = true;
        QVERIFY(!printA4(printer, orderOf(printJobs().first())));
    }

    void TypedTextIsANumberOrNothing_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("whole");
        QTest::newRow("plain") << "-99" << -99.0 << -99;
        QTest::newRow("comma") << " 2,5 " << 2.5 << 2;
        QTest::newRow("point") << "3.5" << 3.5 << 4;
        QTest::newRow("empty") << "" << 0.0 << 0;
        QTest::newRow("word") << "veel" << 0.0 << 0;
        QTest::newRow("tail") << "12abc" << 0.0 << 0;
        QTest::newRow("not finite") << "inf" << 0.0 << 0;
        QTest::newRow("no number") << "nan" << 0.0 << 0;
        QTest::newRow("beyond") << "1e300" << 1e300 << 2147483647;
    }
    void TypedTextIsANumberOrNothing() {
        QFETCH(QString, text);
        QFETCH(double, number);
        QFETCH(int, whole);
        QCOMPARE(typedNumber(text), number);
        QCOMPARE(typedWholeNumber(text), whole);
    }
};

KAART_TEST(PageLayoutTest)
#include "PageLayoutTest.moc"
