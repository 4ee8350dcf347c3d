#include "output/CalendarLayout.h"
#include "design/surface/RecordingPrinter.h"
#include "tests/support/PrintJobs.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// What a calendar writes, in the recorder's words.
QStringList written(const QList<CalendarWord>& words) {
    QStringList lines;
    for (const CalendarWord& word : words) {
        lines << QStringLiteral("Print %1 %2 Arial %3 bold ")
                         .arg(word.place.x())
                         .arg(word.place.y())
                         .arg(word.size) +
                     word.colour + ' ' + word.text;
    }
    return lines;
}

QStringList recorded(int year, bool landscape, int copies) {
    RecordingPrinter printer;
    const QImage design(landscape ? QSize(640, 440) : QSize(440, 640), QImage::Format_RGB32);
    printCalendar(printer, {design, landscape, copies, {}, year});
    return printer.Log;
}

} // namespace

class CalendarLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void EveryYearOfTheTableHasItsTrueDates_data() {
        QTest::addColumn<int>("year");
        for (int year = 2008; year <= 2020; ++year) {
            QTest::addRow("%d", year) << year;
        }
    }
    void EveryYearOfTheTableHasItsTrueDates() {
        QFETCH(int, year);
        const bool landscape = year % 3 == 0; // so both designs have leap years and plain ones
        const QStringList page = written(trueCalendar(year, landscape));
        QCOMPARE(recorded(year, landscape, 2).filter("Print "), page + page);
    }

    void WeekdaysRunOnOverTheCopiesOfAnotherYear_data() {
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("heading");
        QTest::newRow("after the table") << 2021 << " 2021 ";
        QTest::newRow("leap year, taken for a plain one") << 2024 << " 2024 ";
        QTest::newRow("before our time") << -5 << "-5 ";
    }
    void WeekdaysRunOnOverTheCopiesOfAnotherYear() {
        QFETCH(int, year);
        QFETCH(QString, heading);
        QStringList pages;
        for (const int alike : {2017, 2018, 2019}) { // from Sunday, from Monday, from Tuesday
            QList<CalendarWord> words = trueCalendar(alike, true);
            words[0].text = heading;
            pages += written(words);
        }
        QCOMPARE(recorded(year, true, 3).filter("Print "), pages);
    }

    void SheetIsDrawnLineByLine() {
        const QStringList log = recorded(2016, true, 1);
        const QStringList begin{"Sheet 1",
                                "Print 5220 450 Arial 20 bold 000000  2016 ",
                                "PaintPicture 885 1050 9785 6600 from 0 0 640 440",
                                "Line 870 8220 3180 8220 000000",
                                "Line 3180 8220 3180 10620 000000",
                                "Line 3180 10620 870 10620 000000",
                                "Line 870 10620 870 8220 000000",
                                "Print 1500 8250 Arial 10 bold 202020   Januari",
                                "Line 870 8520 2970 8520 000000",
                                "Line 870 8520 1200 8520 000000",
                                "Line 1200 8520 1200 8820 000000",
                                "Line 1200 8820 870 8820 000000",
                                "Line 870 8820 870 8520 000000",
                                "Print 930 8580 Arial 8 bold 0000C8 Zo"};
        QCOMPARE(log.mid(0, begin.size()), begin);
        const QStringList lines = log.filter("Line ");
        QCOMPARE(lines.size(), 12 * (4 + 1 + 4 * 7 + 4 * 42));
        QCOMPARE(lines.mid(lines.size() - 4), QStringList({"Line 10365 15480 10695 15480 000000",
                                                           "Line 10695 15480 10695 15780 000000",
                                                           "Line 10695 15780 10365 15780 000000",
                                                           "Line 10365 15780 10365 15480 000000"}));
    }
};

KAART_TEST(CalendarLayoutTest)
#include "CalendarLayoutTest.moc"
