#include "generators/Polygon.h"
#include "design/surface/GraphicsCalls.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <numbers>

using namespace kaart;

namespace {

bool near(const QPointF& got, const QPointF& expected) {
    return (got - expected).manhattanLength() < 0.001;
}

} // namespace

class PolygonTest : public QObject {
    Q_OBJECT

    using Corners = Rows<double, double, float, QList<QPointF>>; // round (0, 0)

private slots:
    void CornersLieOnTheirCircle_data() {
        const Corners row; // rotation, aspect and radius
        row("triangle", 0, 1, 20, {{-20, 0}, {10, -17.3205}, {10, 17.3205}});
        row("square", 0, 1, 20, {{-20, 0}, {0, -20}, {20, 0}, {0, 20}});
        row("turned by a third", std::numbers::pi / 3, 1, 20, {{-10, -17.3205}, {10, 17.3205}});
        row("negative radius", 0, 1, -2, {{2, 0}, {0, 2}, {-2, 0}, {0, -2}});
        row("high", 0, 2, 20, {{-20, 0}, {0, -40}, {20, 0}, {0, 40}});
        row("flat", 0, 0.5, 20, {{-20, 0}, {0, -10}, {20, 0}, {0, 10}});
    }
    void CornersLieOnTheirCircle() {
        const auto [before, aspect, radius, corners] = Corners::now();
        auto rotation = static_cast<float>(before);
        const auto got = polygonCorners(rotation, static_cast<float>(aspect), 0, 0, radius,
                                        static_cast<int>(corners.size()));
        QCOMPARE(got.size(), static_cast<std::size_t>(corners.size()));
        for (int i = 0; i < corners.size(); ++i) {
            QVERIFY2(near(got[static_cast<std::size_t>(i)], corners[i]),
                     qPrintable(QString::number(i)));
        }
        QVERIFY(std::abs(rotation - before - 2 * std::numbers::pi) < 1e-5);
    }

    void APointStraightBelowIsTurnedBySlope() {
        float x = 0;
        float y = 0;
        float r = 0;
        RPoint(0, 5, 5, 5, 15, x, y, r, 1);
        QVERIFY(near({x, y}, {5.03316, 14.99995})); // kept: the slope there is a fixed number
        QCOMPARE(r, 10.0F);
        RPoint(0, 5, 5, 5, -5, x, y, r, 1);
        QVERIFY(near({x, y}, {4.96684, -4.99995}));
        RPoint(1, 5, 6, 5, 6, x, y, r, 1);
        QVERIFY(near({x, y}, {5, 6}) && r == 0);
    }

    void EveryPolygonIsClosed() {
        for (int sides = 3; sides <= 20; ++sides) {
            PixelSurface surface(101, 101);
            float rotation = 0.3F;
            RPolygoneRegulier(surface, rotation, 1, 50, 50, 40, sides, black);
            QVERIFY(FloodFill(surface, 50, 50, black));
            QCOMPARE(surface.Point(0, 0), white);
        }
    }
};

KAART_TEST(PolygonTest)
#include "PolygonTest.moc"
