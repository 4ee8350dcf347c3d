#include "controls/Icons.h"
#include "tests/support/Test.h"

using namespace kaart;

class IconsTest : public QObject {
    Q_OBJECT

private slots:
    void EveryPictureIsDrawnAtEverySize() {
        const QDir drawn(qEnvironmentVariable("KAART_SOURCE") + "/data/icons");
        const QFileInfoList files = drawn.entryInfoList({"*.svg"});
        QVERIFY(!files.isEmpty());
        for (const QFileInfo& file : files) {
            const QIcon found = icon(file.baseName());
            const QImage single = found.pixmap(QSize(24, 24), 1).toImage();
            const QImage twice = found.pixmap(QSize(24, 24), 2).toImage();
            QImage blank(single.size(), single.format());
            blank.fill(Qt::transparent);
            QVERIFY2(single != blank, qPrintable(file.baseName()));
            QVERIFY2(single.size() == QSize(24, 24), qPrintable(file.baseName()));
            QVERIFY2(twice.size() == QSize(48, 48), qPrintable(file.baseName()));
            // Merely enlarged pixels would survive the way down and up again.
            QVERIFY2(twice.scaled(24, 24).scaled(48, 48) != twice, qPrintable(file.baseName()));
        }
    }

    void DisabledPictureIsFaded() {
        const QIcon found = icon("annuleren");
        const QColor normal = found.pixmap(QSize(24, 24), 1).toImage().pixelColor(12, 12);
        const QColor faded =
            found.pixmap(QSize(24, 24), 1, QIcon::Disabled).toImage().pixelColor(12, 12);
        QVERIFY(normal.saturation() > 150);
        QVERIFY(faded.saturation() < 80);
        QVERIFY(faded.alpha() > 0);
    }

    void UnknownNameGivesNoPicture() { QVERIFY(icon("bestaat-niet").isNull()); }
};

KAART_TEST(IconsTest)
#include "IconsTest.moc"
