#include "output/PrintPreview.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QPainter>

using namespace kaart;

namespace {

using Rects = QList<QRect>;

} // namespace

class PrintPreviewTest : public QObject {
    Q_OBJECT

private slots:
    void PreviewShowsTheLayout_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QSize>("sheet"); // all in pixels
        QTest::addColumn<Rects>("boxes");
        QTest::addColumn<Rects>("pictures");
        const QSize up(110, 160);
        const QSize down(160, 110);
        QTest::newRow("A4, upright") << 0 << false << up << Rects() << Rects{{0, 0, 110, 160}};
        QTest::newRow("A4, lying") << 0 << true << down << Rects() << Rects{{0, 0, 160, 110}};
        QTest::newRow("card, upright")
            << 1 << false << down << Rects{{34, 20, 47, 71}, {80, 20, 47, 71}}
            << Rects{{36, 22, 43, 67}};
        QTest::newRow("card, lying") << 1 << true << up << Rects{{20, 34, 71, 47}, {20, 80, 71, 47}}
                                     << Rects{{22, 36, 67, 43}};
        QTest::newRow("postcards, upright")
            << 2 << false << up << Rects()
            << Rects{{4, 4, 48, 74}, {57, 4, 48, 74}, {4, 82, 48, 74}, {57, 82, 48, 74}};
        QTest::newRow("postcards, lying")
            << 2 << true << down << Rects()
            << Rects{{4, 4, 74, 50}, {82, 4, 74, 50}, {4, 57, 74, 50}, {82, 57, 74, 50}};
        QTest::newRow("calendar, upright")
            << 3 << false << down << Rects() << Rects{{90, 8, 64, 96}};
        QTest::newRow("calendar, lying") << 3 << true << up << Rects() << Rects{{7, 11, 94, 60}};
    }
    void PreviewShowsTheLayout() {
        QFETCH(int, option);
        QFETCH(bool, landscape);
        QFETCH(QSize, sheet);
        QFETCH(Rects, boxes);
        QFETCH(Rects, pictures);
        QImage design(landscape ? QSize(640, 440) : QSize(440, 640), QImage::Format_RGB32);
        design.fill(Qt::red);
        QImage calendar(sheet, QImage::Format_RGB32);
        calendar.fill(Qt::yellow);
        PixelSurface preview(5, 5, RGB(0, 0, 99)); // of another preview
        preview.BackColor = white;
        preview.setPicture(calendar);
        drawPreview(preview, static_cast<PrintOption>(option), landscape, design, calendar);

        QImage expected(sheet, QImage::Format_RGB32);
        expected.fill(option == 3 ? Qt::yellow : Qt::white);
        QPainter painter(&expected);
        for (const QRect& box : boxes) {
            painter.fillRect(box, Qt::black);
            painter.fillRect(box.adjusted(1, 1, -1, -1), QColor(240, 240, 240));
        }
        for (const QRect& picture : pictures) {
            painter.fillRect(picture, Qt::red);
        }
        painter.end();
        comparePictures(preview.Image(), expected);
    }

    void WholeDesignFitsInThePreview() {
        QImage design(440, 640, QImage::Format_RGB32);
        design.fill(Qt::white);
        QPainter(&design).fillRect(220, 320, 220, 320, Qt::blue); // the lower right quarter
        PixelSurface preview;
        drawPreview(preview, PrintOption::A4, false, design, {});
        QCOMPARE(preview.Point(54 * 15, 159 * 15), white);
        QCOMPARE(preview.Point(55 * 15, 79 * 15), white);
        QCOMPARE(preview.Point(55 * 15, 80 * 15), RGB(0, 0, 255));
        QCOMPARE(preview.Point(109 * 15, 159 * 15), RGB(0, 0, 255));
    }
};

KAART_TEST(PrintPreviewTest)
#include "PrintPreviewTest.moc"
