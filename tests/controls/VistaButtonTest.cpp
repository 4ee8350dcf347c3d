#include "controls/VistaButton.h"
#include "tests/support/Test.h"

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
    void OneClickPerPress() {
        for (const bool enabled : {true, false}) {
            for (const Qt::Key key :
                 {Qt::Key(), Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A}) {
                VistaButton button;
                button.resize(80, 24);
                button.setEnabled(enabled);
                QSignalSpy clicked(&button, &VistaButton::clicked);
                if (key == Qt::Key()) {
                    QTest::mouseClick(&button, Qt::LeftButton);
                    QTest::mouseClick(&button, Qt::RightButton);
                } else {
                    QTest::keyClick(&button, key);
                }
                QCOMPARE(clicked.size(), enabled && key != Qt::Key_A ? 1 : 0);
            }
        }
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

    void AccessibleNameIsCaptionOrTrimmedToolTip() {
        for (const QString caption : {"", "Export"}) {
            VistaButton button;
            button.setText(caption);
            button.setToolTip("not yet");
            button.setToolTip(" Spiegelbeeld ");
            QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&button);
            QVERIFY(seen != nullptr);
            QCOMPARE(seen->text(QAccessible::Name), caption.isEmpty() ? "Spiegelbeeld" : caption);
            QCOMPARE(seen->role(), QAccessible::PushButton);
        }
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
        plain.setText("Verwijderen");
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

    void PictureIsCentredAndKeepsInside() {
        // As large as asked, what fits, and no room at all.
        for (const auto& [size, picture] : {std::pair(QSize(60, 40), QRect(18, 8, 24, 24)),
                                            {QSize(60, 20), QRect(24, 4, 12, 12)},
                                            {QSize(6, 6), QRect()}}) {
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
            QCOMPARE(red, picture);
        }
    }
};

KAART_TEST(VistaButtonTest)
#include "VistaButtonTest.moc"
