#include "controls/VistaButton.h"
#include "tests/support/Test.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace kaart;

namespace {

QIcon redPicture() {
    QPixmap picture(24, 24);
    picture.fill(Qt::red);
    return QIcon(picture);
}

} // namespace

class VistaButtonTest : public QObject {
    Q_OBJECT

private slots:
    void OneClickPerPress_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("clicks");
        for (const int key : {0, int(Qt::Key_Space), int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            QTest::addRow("key %x", static_cast<unsigned>(key)) << key << true << 1;
            QTest::addRow("key %x, disabled", static_cast<unsigned>(key)) << key << false << 0;
        }
        QTest::newRow("a key that is no press") << int(Qt::Key_A) << true << 0;
    }
    void OneClickPerPress() {
        QFETCH(int, key);
        QFETCH(bool, enabled);
        VistaButton button;
        button.resize(80, 24);
        button.setEnabled(enabled);
        QSignalSpy clicked(&button, &VistaButton::clicked);
        if (key == 0) {
            QTest::mouseClick(&button, Qt::LeftButton);
            QTest::mouseClick(&button, Qt::RightButton);
        } else {
            QTest::keyClick(&button, static_cast<Qt::Key>(key));
        }
        QTEST(int(clicked.size()), "clicks");
    }

    void HeldEnterClicksOnce() {
        VistaButton button;
        QSignalSpy clicked(&button, &VistaButton::clicked);
        for (const bool repeated : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, repeated);
            QApplication::sendEvent(&button, &press);
        }
        QCOMPARE(clicked.size(), 1);
    }

    void AccessibleNameIsCaptionOrTrimmedToolTip_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("name");
        QTest::newRow("picture only") << ""
                                      << " Spiegelbeeld "
                                      << "Spiegelbeeld";
        QTest::newRow("caption") << "Export"
                                 << " Plaatsen "
                                 << "Export";
    }
    void AccessibleNameIsCaptionOrTrimmedToolTip() {
        QFETCH(QString, caption);
        QFETCH(QString, toolTip);
        VistaButton button;
        button.setText(caption);
        button.setToolTip(QStringLiteral("not yet"));
        button.setToolTip(toolTip);
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&button);
        QVERIFY(seen != nullptr);
        QTEST(seen->text(QAccessible::Name), "name");
        QCOMPARE(seen->role(), QAccessible::PushButton);
    }

    void EveryStateCanBeSeen() {
        VistaButton button;
        button.setCheckable(true);
        button.resize(60, 30);
        QList<QImage> looks{button.grab().toImage()};
        const auto look = [&] {
            const QImage seen = button.grab().toImage();
            QVERIFY(!looks.contains(seen));
            looks << seen;
        };
        button.setDown(true);
        look();
        button.setDown(false);
        button.setAttribute(Qt::WA_UnderMouse);
        look();
        button.setAttribute(Qt::WA_UnderMouse, false);
        button.setChecked(true);
        look();
        button.setEnabled(false);
        look();
        button.setChecked(false);
        look();
    }

    void KeyboardFocusHasARing() {
        QWidget window;
        VistaButton button(&window);
        button.resize(60, 30);
        VistaButton other(&window);
        window.show();
        QApplication::setActiveWindow(&window);
        other.setFocus();
        const QImage without = button.grab().toImage();
        QTest::keyClick(&other, Qt::Key_Tab);
        QVERIFY(button.hasFocus());
        QVERIFY(button.grab().toImage() != without);
    }

    void CaptionStaysWhereThePictureDoesNotFit() {
        VistaButton plain;
        plain.setText(QStringLiteral("Verwijderen"));
        VistaButton pictured;
        pictured.setText(plain.text());
        pictured.setIcon(redPicture());
        for (const bool fits : {false, true}) {
            const QSize size = fits ? pictured.sizeHint() : plain.sizeHint();
            plain.resize(size);
            pictured.resize(size);
            QCOMPARE(pictured.grab().toImage() != plain.grab().toImage(), fits);
        }
    }

    void PictureIsCentredAndKeepsInside_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("picture");
        QTest::newRow("as large as asked") << QSize(60, 40) << QRect(18, 8, 24, 24);
        QTest::newRow("what fits") << QSize(60, 20) << QRect(24, 4, 12, 12);
        QTest::newRow("no room at all") << QSize(6, 6) << QRect();
    }
    void PictureIsCentredAndKeepsInside() {
        QFETCH(QSize, size);
        VistaButton button;
        button.setIcon(redPicture());
        button.resize(size);
        const QImage seen = button.grab().toImage();
        QRect red;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                red |= seen.pixelColor(x, y) == Qt::red ? QRect(x, y, 1, 1) : QRect();
            }
        }
        QTEST(red, "picture");
    }
};

KAART_TEST(VistaButtonTest)
#include "VistaButtonTest.moc"
