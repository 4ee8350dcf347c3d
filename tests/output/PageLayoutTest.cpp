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
    return printer.Log.join(QStringLiteral("; "));
}

QImage designOf(bool landscape) {
    return {landscape ? QSize(640, 440) : QSize(440, 640), QImage::Format_RGB32};
}

} // namespace

class PageLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void A4PictureGoesWhereTheMarginsPutIt_data() {
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QList<double>>("margins");
        QTest::addColumn<QString>("target");
        QTest::newRow("upright") << false << QList<double>{0, 0, 0, 0} << "0 0 11910 16845";
        QTest::newRow("lying") << true << QList<double>{0, 0, 0, 0} << "0 0 16845 11910";
        QTest::newRow("shift is no cut")
            << false << QList<double>{10, 20, 0, 0} << "300 600 11910 16845";
        QTest::newRow("cut is no shift") << true << QList<double>{0, 0, 10, 99} << "0 0 16545 8940";
        QTest::newRow("off the sheet")
            << false << QList<double>{-99, -1.5, 10, 1} << "-2970 -45 11610 16815";
    }
    void A4PictureGoesWhereTheMarginsPutIt() {
        QFETCH(bool, landscape);
        QFETCH(QList<double>, margins);
        QFETCH(QString, target);
        PrintOrder order{designOf(landscape), landscape};
        order.margins = {margins[0], margins[1], margins[2], static_cast<int>(margins[3])};
        QCOMPARE(
            printed(printA4, order),
            QStringLiteral("Sheet %1; PaintPicture %2 from 0 0 %3; NewPage; EndDoc")
                .arg(landscape ? 2 : 1)
                .arg(target, landscape ? QStringLiteral("640 440") : QStringLiteral("440 640")));
    }

    void A4TakesAllOfALargerPicture() {
        PrintOrder order;
        order.picture = QImage(880, 1280, QImage::Format_RGB32);
        QCOMPARE(printed(printA4, order),
                 QStringLiteral("Sheet 1; PaintPicture 0 0 11910 16845 from 0 0 880 1280; NewPage; "
                                "EndDoc"));
    }

    void PicturesAndBoxesStandInTheirPlaces_data() { printJobRows(); }
    void PicturesAndBoxesStandInTheirPlaces() {
        QFETCH(PrintJob, job);
        QStringList sheet{QStringLiteral("Sheet %1").arg(job.orientation)};
        for (const QRect& place : job.pictures) {
            sheet << QStringLiteral("PaintPicture %1 %2 %3 %4 from 0 0 ")
                             .arg(place.x())
                             .arg(place.y())
                             .arg(place.width())
                             .arg(place.height()) +
                         (job.landscape ? "640 440" : "440 640");
        }
        if (const QRect& box = job.box; !box.isEmpty()) {
            sheet << QStringLiteral("Line %1 %2 %3 %4 000000 B fill F0F0F0")
                         .arg(box.x())
                         .arg(box.y())
                         .arg(box.x() + box.width())
                         .arg(box.y() + box.height());
        }
        sheet << QStringLiteral("NewPage");
        RecordingPrinter printer;
        job.layout(printer, orderOf(job));
        // The calendar's words and lines have a test of their own.
        static const QRegularExpression others(QStringLiteral("^(Print|Line [^B]*$)"));
        printer.Log.removeIf([](const QString& line) { return line.contains(others); });
        QCOMPARE(printer.Log, sheet + sheet + QStringList(QStringLiteral("EndDoc")));
    }

    void NoCopiesOnlyEndTheJobAndManyHaveAnEnd() {
        PrintOrder order{designOf(false), false, 0};
        QCOMPARE(printed(printA4, order), QStringLiteral("EndDoc"));
        order.copies = -3;
        QCOMPARE(printed(printFoldedCard, order), QStringLiteral("EndDoc"));
        order.copies = 2000000000;
        QCOMPARE(printed(printA4, order).count(QStringLiteral("NewPage")), mostCopies);
    }

    void FailedJobIsTold() {
        RecordingPrinter printer;
        printer.Fails = true;
        QVERIFY(!printA4(printer, {designOf(false)}));
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
