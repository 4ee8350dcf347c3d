#pragma once

#include "output/A4Layout.h"
#include "output/CalendarLayout.h"
#include "output/FoldedCardLayout.h"
#include "output/PostcardsLayout.h"

#include <QDate>
#include <QPainter>
#include <QtTest>

// What the layouts are to print, worked out apart from them. Places are twips on their sheets.

struct PrintJob {
    const char* name;
    kaart::PageLayout layout;
    bool landscape;  ///< the design
    int orientation; ///< the sheet: 1 portrait, 2 landscape
    QList<QRect> pictures;
    QRect box = {}; ///< the grey half of a folded card
};

Q_DECLARE_METATYPE(PrintJob)

/// Each layout with both designs; where margins count, they are those of orderOf.
inline const QList<PrintJob>& printJobs() {
    static const QList<PrintJob> jobs{
        {"A4, upright", kaart::printA4, false, 1, {{300, 600, 11010, 15645}}},
        {"A4, lying", kaart::printA4, true, 2, {{300, 600, 15945, 10710}}},
        {"card, upright",
         kaart::printFoldedCard,
         false,
         2,
         {{2400, 1410, 6000, 9180}},
         {8400, 1410, 6000, 9180}},
        {"card, lying",
         kaart::printFoldedCard,
         true,
         1,
         {{1410, 2400, 9180, 6000}},
         {1410, 8400, 9180, 6000}},
        {"postcards, upright",
         kaart::printPostcards,
         false,
         1,
         {{600, 600, 5100, 7500},
          {6150, 600, 5100, 7500},
          {600, 8400, 5100, 7500},
          {6150, 8400, 5100, 7500}}},
        {"postcards, lying",
         kaart::printPostcards,
         true,
         2,
         {{600, 600, 7500, 5100},
          {8400, 600, 7500, 5100},
          {600, 6150, 7500, 5100},
          {8400, 6150, 7500, 5100}}},
        {"calendar, upright", kaart::printCalendar, false, 2, {{8700, 1200, 7140, 10140}}},
        {"calendar, lying", kaart::printCalendar, true, 1, {{885, 1050, 9785, 6600}}}};
    return jobs;
}

/// A test's rows: each job in the column "job".
inline void printJobRows() {
    QTest::addColumn<PrintJob>("job");
    for (const PrintJob& job : printJobs()) {
        QTest::newRow(job.name) << job;
    }
}

/// The colours of a printed design's quarters, from left to right and down.
inline constexpr QRgb quarters[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFF00};

/// Two copies of a design of four colours, with margins that keep it on the sheet, for 2016.
inline kaart::PrintOrder orderOf(const PrintJob& job) {
    QImage design(job.landscape ? QSize(640, 440) : QSize(440, 640), QImage::Format_RGB32);
    const int width = design.width() / 2;
    const int height = design.height() / 2;
    for (int quarter = 0; quarter < 4; ++quarter) {
        QPainter(&design).fillRect(quarter % 2 * width, quarter / 2 * height, width, height,
                                   QColor(quarters[quarter]));
    }
    return {design, job.landscape, 2, {10, 20, 30, 40}, 2016};
}

struct CalendarWord {
    QPoint place;
    int size;
    const char* colour;
    QString text;
};

/// What stands on a calendar, by the true dates of a year and in the order of writing.
inline QList<CalendarWord> trueCalendar(int year, bool landscape) {
    constexpr const char* months[] = {"  Januari", " Februari", "    Maart", "    April",
                                      "      Mei", "     Juni", "     Juli", " Augustus",
                                      "September", "  Oktober", " November", " December"};
    constexpr const char* weekdays[] = {"Zo", "Ma", "Di", "Wo", "Do", "Vr", "Za"};
    const int columns = landscape ? 4 : 3;
    const QPoint first = landscape ? QPoint(870, 8220) : QPoint(900, 1200);
    QList<CalendarWord> words{{landscape ? QPoint(5220, 450) : QPoint(7800, 450), 20, "000000",
                               QStringLiteral(" %1 ").arg(year)}};
    for (int month = 0; month < 12; ++month) {
        const QPoint block = first + QPoint(month % columns * 2505, month / columns * 2580);
        words << CalendarWord{block + QPoint(630, 30), 10, "202020", months[month]};
        for (int day = 0; day < 7; ++day) {
            words << CalendarWord{block + QPoint(60 + 330 * day, 360), 8, "0000C8", weekdays[day]};
        }
        int week = 0;
        for (QDate date(year, month + 1, 1); date.month() == month + 1; date = date.addDays(1)) {
            const int column = date.dayOfWeek() % 7; // from Sunday on
            week += column == 0 && date.day() > 1 ? 1 : 0;
            words << CalendarWord{block + QPoint(30 + 330 * column, 645 + 300 * week), 8,
                                  column % 6 == 0 ? "BE0000" : "646464",
                                  QStringLiteral(" %1 ").arg(date.day())};
        }
    }
    return words;
}
