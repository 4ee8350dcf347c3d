#include "output/CalendarLayout.h"

#include <algorithm>
#include <array>

namespace kaart {

namespace {

// All lengths are twips.
constexpr int cellWidth = 330;
constexpr int cellHeight = 300;
constexpr int cellsEnd = 2300; // a cell beyond it begins the next row
constexpr int cells = 42;
constexpr QSize block(2310, 2400);
constexpr QSize pitch(2505, 2580);

struct CalendarSheet {
    int orientation;
    QPoint heading;
    QRect picture;
    QPoint firstBlock;
    int wrap; ///< a block beyond it begins the next row
};

constexpr CalendarSheet lyingDesign{1, {5220, 450}, {885, 1050, 9785, 6600}, {870, 8220}, 10000};
constexpr CalendarSheet uprightDesign{2, {7800, 450}, {8700, 1200, 7140, 10140}, {900, 1200}, 7500};

struct Month {
    const char* name; ///< its blanks centre it in the block
    int days;
};

using Months = std::array<Month, 12>;

constexpr Months plainMonths{{{"  Januari", 31},
                              {" Februari", 28},
                              {"    Maart", 31},
                              {"    April", 30},
                              {"      Mei", 31},
                              {"     Juni", 30},
                              {"     Juli", 31},
                              {" Augustus", 31},
                              {"September", 30},
                              {"  Oktober", 31},
                              {" November", 30},
                              {" December", 31}}};

constexpr const char* weekdays[] = {"Zo", "Ma", "Di", "Wo", "Do", "Vr", "Za"};

struct Year {
    int year;
    int Start; ///< empty cells before 1 January, 0 for a Sunday
    int daysOfFebruary;
};

constexpr Year years[] = {{2008, 2, 29}, {2009, 4, 28}, {2010, 5, 28}, {2011, 6, 28}, {2012, 0, 29},
                          {2013, 2, 28}, {2014, 3, 28}, {2015, 4, 28}, {2016, 5, 29}, {2017, 0, 28},
                          {2018, 1, 28}, {2019, 2, 28}, {2020, 3, 29}};

/// A number as the printer writes it: a blank or the sign before it, a blank behind it.
QString numberText(int number) {
    return (number < 0 ? QString() : QStringLiteral(" ")) + QString::number(number) +
           QLatin1Char(' ');
}

/// Draws one copy after another; the weekday chain runs on through all of them.
class Calendar {
public:
    Calendar(PrinterObject& printer, const PrintOrder& order, const CalendarSheet& sheet)
        : printer_(printer), order_(order), sheet_(sheet) {}

    void drawPage() {
        startYear();
        printer_.FontName = QStringLiteral("Arial");
        printer_.FontBold = true;
        printer_.FontSize = 20;
        write(sheet_.heading, black, numberText(order_.year));
        const QRect& picture = sheet_.picture;
        printPicture(printer_, order_.picture, picture.x(), picture.y(), picture.width(),
                     picture.height());
        QPoint place = sheet_.firstBlock;
        for (const Month& month : months_) {
            drawBlock(place, month);
            place.rx() += pitch.width();
            if (place.x() > sheet_.wrap) {
                place = {sheet_.firstBlock.x(), place.y() + pitch.height()};
            }
        }
    }

private:
    void startYear() {
        const auto* year = std::find_if(std::begin(years), std::end(years),
                                        [&](const Year& row) { return row.year == order_.year; });
        if (year != std::end(years)) {
            Start = year->Start;
            months_[1].days = year->daysOfFebruary;
        }
    }

    void drawBlock(const QPoint& place, const Month& month) {
        drawBox(QRect(place, block));
        printer_.FontSize = 10;
        write(place + QPoint(630, 30), RGB(32, 32, 32), QString::fromLatin1(month.name));
        // Kept: it ends short of the block.
        printer_.Line(place.x(), place.y() + 300, place.x() + 2100, place.y() + 300, black);
        QRect cell(place + QPoint(0, 300), QSize(cellWidth, cellHeight));
        printer_.FontSize = 8;
        for (const char* weekday : weekdays) {
            drawBox(cell);
            write(cell.topLeft() + QPoint(60, 60), RGB(0, 0, 200), QString::fromLatin1(weekday));
            cell.translate(cellWidth, 0);
        }
        const QPoint firstCell = place + QPoint(0, 600);
        forEachCell(firstCell, [&](int, const QPoint& corner) {
            drawBox(QRect(corner, QSize(cellWidth, cellHeight)));
        });
        drawDates(firstCell, month.days);
    }

    void drawDates(const QPoint& firstCell, int days) {
        const int MonthStart = Start;
        forEachCell(firstCell, [&](int n, const QPoint& corner) {
            if (n > MonthStart && n < MonthStart + days + 1) {
                const bool weekend = n % 7 < 2;
                write(corner + QPoint(30, 45), weekend ? RGB(190, 0, 0) : RGB(100, 100, 100),
                      numberText(n - MonthStart));
                Start = n % 7;
            }
        });
    }

    /// Calls `visit` with the number, from 1, and the corner of each cell of a block.
    template <class Visit>
    static void forEachCell(const QPoint& firstCell, const Visit& visit) {
        QPoint offset;
        for (int n = 1; n <= cells; ++n) {
            visit(n, firstCell + offset);
            offset.rx() += cellWidth;
            if (offset.x() > cellsEnd) {
                offset = {0, offset.y() + cellHeight};
            }
        }
    }

    /// Top, right, bottom, left, each from where the one before it ended.
    void drawBox(const QRect& box) {
        const int right = box.x() + box.width();
        const int bottom = box.y() + box.height();
        printer_.Line(box.x(), box.y(), right, box.y(), black);
        printer_.Line(right, box.y(), right, bottom, black);
        printer_.Line(right, bottom, box.x(), bottom, black);
        printer_.Line(box.x(), bottom, box.x(), box.y(), black);
    }

    void write(const QPoint& place, ColorRef colour, const QString& text) {
        printer_.ForeColor = colour;
        printer_.CurrentX = place.x();
        printer_.CurrentY = place.y();
        printer_.Print(text);
    }

    PrinterObject& printer_;
    const PrintOrder& order_;
    const CalendarSheet& sheet_;
    Months months_ = plainMonths;
    int Start = 0; ///< empty cells before the next month's first day
};

bool printSheets(PrinterObject& printer, const PrintOrder& order, const CalendarSheet& sheet) {
    Calendar calendar(printer, order, sheet);
    return printCopies(printer, sheet.orientation, order.copies, [&] { calendar.drawPage(); });
}

} // namespace

bool PrintJaarkalenderLiggend(PrinterObject& printer, const PrintOrder& order) {
    return printSheets(printer, order, lyingDesign);
}

bool PrintJaarkalenderStaand(PrinterObject& printer, const PrintOrder& order) {
    return printSheets(printer, order, uprightDesign);
}

bool printCalendar(PrinterObject& printer, const PrintOrder& order) {
    return order.landscape ? PrintJaarkalenderLiggend(printer, order)
                           : PrintJaarkalenderStaand(printer, order);
}

} // namespace kaart
