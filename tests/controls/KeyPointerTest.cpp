#include "controls/KeyPointer.h"
#include "controls/FocusRing.h"
#include "controls/SurfaceView.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// Writes down what the mouse does.
struct Diary : SurfaceView {
    explicit Diary(QWidget* parent) : SurfaceView(parent) {}

    bool event(QEvent* event) override {
        if (auto* mouse = dynamic_cast<QMouseEvent*>(event)) {
            const QPoint at = pixelAt(*mouse);
            lines << QString("%1 %2,%3 %4")
                         .arg(event->type())
                         .arg(at.x())
                         .arg(at.y())
                         .arg(int(mouse->buttons()));
            return true;
        }
        return SurfaceView::event(event);
    }

    QStringList lines;
};

} // namespace

class KeyPointerTest : public QObject {
    Q_OBJECT

private slots:
    void KeysDoWhatTheMouseDoes() {
        QWidget window;
        Diary view(&window);
        view.resize(41, 21);
        new KeyPointer(view);
        QWidget above(&view);
        window.show();
        QApplication::setActiveWindow(&window);
        above.setFocus();
        QTest::keyClick(&above, Qt::Key_Space); // not for the view, though it is passed on
        view.setFocus();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down,
                                  Qt::Key_Space, Qt::Key_F10}) {
            QTest::keyClick(&view, key, key < Qt::Key_Down ? Qt::NoModifier : Qt::ShiftModifier);
        }
        QCOMPARE(view.lines.join("|"),
                 QString("2 20,10 1|5 21,10 1|5 21,20 1|5 21,20 1|5 21,20 1|3 21,20 0|2 21,20 2|"
                         "3 21,20 0"));
    }

    void ARingStandsRoundTheViewThatTheKeysActOn() {
        const FocusRing rings(*qApp);
        QWidget window;
        window.resize(100, 100);
        QLineEdit field(&window);
        Diary view(&window);
        view.setGeometry(20, 30, 40, 50);
        new KeyPointer(view);
        window.show();
        QApplication::setActiveWindow(&window);
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_Tab);
        const auto* ring = window.findChild<QWidget*>("FocusRing");
        QVERIFY(ring != nullptr && ring->isVisible());
        view.move(25, 30);
        QCOMPARE(ring->geometry(), QRect(22, 27, 46, 56));
        QVERIFY(!ring->mask().intersects(QRect(3, 3, 40, 50)));
        QTest::keyClick(&view, Qt::Key_Tab);
        QVERIFY(window.findChild<QWidget*>("FocusRing") == nullptr);
    }

    void APixelIsABlockOnAMagnifiedScreen() {
        constexpr double ratio = 1.5;
        SurfaceView view;
        view.resize(40, 1);
        view.surface().setSize(40, 1);
        for (int x = 0; x < 40; ++x) {
            view.surface().PSet(x, 0, RGB(x, 0, 0));
        }
        view.Refresh();
        QImage seen(60, 1, QImage::Format_RGB32);
        seen.setDevicePixelRatio(ratio);
        view.render(&seen, {}, QRect(0, 0, 20, 1));
        view.render(&seen, {20, 0}, QRect(20, 0, 20, 1)); // as after a change of a part
        for (int x = 0; x < 60; ++x) {
            QMouseEvent mouse(QEvent::MouseMove, QPointF(x / ratio, 0), QPointF(), {}, {}, {});
            QCOMPARE(pixelAt(mouse), QPoint(qRed(seen.pixel(x, 0)), 0));
        }
    }
};

KAART_TEST(KeyPointerTest)
#include "KeyPointerTest.moc"
