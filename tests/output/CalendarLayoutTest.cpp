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
        lines << QString::asprintf("Print %d %d Arial %d bold %s ", word.place.x(), word.place.y(),
                                   word.size, word.colour) +
                     word.text;
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
        const QStringList lines = recorded(2016, true, 1).filter("Line ");
        const auto box = [](int left, int top, int right, int bottom) {
            const auto line = [](int x, int y, int toX, int toY) {
                return QString::asprintf("Line %d %d %d %d 000000", x, y, toX, toY);
            };
            return QStringList{line(left, top, right, top), line(right, top, right, bottom),
                               line(right, bottom, left, bottom), line(left, bottom, left, top)};
        };
        QCOMPARE(lines.first(4), box(870, 8220, 3180, 10620));
        QCOMPARE(lines[4], "Line 870 8520 2970 8520 000000");
        QCOMPARE(lines.mid(5, 4), box(870, 8520, 1200, 8820));
        QCOMPARE(lines.size(), 12 * (4 + 1 + 4 * 7 + 4 * 42));
        QCOMPARE(lines.last(4), box(10365, 15480, 10695, 15780));
    }
};

KAART_TEST(CalendarLayoutTest)
#include "CalendarLayoutTest.moc"
