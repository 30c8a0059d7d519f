#include "pictures/Miroirs.h"
#include "pictures/Rotation.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <optional>
#include <stdexcept>
#include <vector>

using namespace pictures;
using platform::surface::Surface;

namespace {

const SuiviRotation kNobody{[](double) {}, [] { return true; }};

/// Where a point of a surface is held; null for one that it does not have.
template <class AnySurface>
auto *pointOf(AnySurface &surface, int x, int y) {
    return surface.picture().valid(x, y) ? surface.points() + std::ptrdiff_t{y} * surface.width() + x
                                         : nullptr;
}

Surface randomSurface(int width, int height, quint32 seed) {
    QRandomGenerator random(seed);
    Surface surface;
    surface.clear(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            *pointOf(surface, x, y) = 0xFF000000U | random.bounded(0x1000000U);
        }
    }
    return surface;
}

Surface surfaceOf(const QImage &picture) {
    Surface surface;
    surface.setPicture(picture);
    return surface;
}

std::int16_t short16(double value) {
    const double rounded = std::nearbyint(value);
    if (rounded < -32768 || rounded > 32767) {
        throw std::overflow_error("16 bits");
    }
    return static_cast<std::int16_t>(rounded);
}

/// The turn as it is defined, point by point.
void plainTurn(const Surface &source, Surface &destination, float angle, const SuiviRotation &told) {
    const int cx = short16(source.width()) / 2;
    const int cy = short16(source.height()) / 2;
    const int dx = short16(destination.width()) / 2;
    const int dy = short16(destination.height()) / 2;
    const int m = (dx > dy ? dx : dy) - 1;
    for (int i = 0; i <= m; ++i) {
        told.avancement(static_cast<double>(i) / m);
        for (int j = 0; j <= m; ++j) {
            const auto a =
                static_cast<float>(i == 0 ? 3.14159265359 / 2 : std::atan(static_cast<double>(j) / i));
            const std::int16_t r = short16(std::sqrt(static_cast<double>(j * j + i * i)));
            const double whole = static_cast<double>(a) + static_cast<double>(angle);
            const std::int16_t x = short16(r * std::cos(whole));
            const std::int16_t y = short16(r * std::sin(whole));
            const auto read = [&source](int px, int py) {
                const QRgb *point = pointOf(source, short16(px), short16(py));
                return point != nullptr ? std::optional(*point) : std::nullopt;
            };
            const auto write = [&destination](int px, int py, std::optional<QRgb> colour) {
                QRgb *point = colour ? pointOf(destination, short16(px), short16(py)) : nullptr;
                if (point != nullptr) {
                    *point = *colour;
                }
            };
            const auto c0 = read(cx + x, cy + y);
            const auto c1 = read(cx - x, cy - y);
            const auto c2 = read(cx + y, cy - x);
            const auto c3 = read(cx - y, cy + x);
            write(dx + i, dy + j, c0);
            write(dx - i, dy - j, c1);
            write(dx + j, dy - i, c2);
            write(dx - j, dy + i, c3);
        }
    }
}

} // namespace

class TestPixels : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void backgroundShinesThrough() {
        QImage icon(2, 1, QImage::Format_ARGB32);
        icon.fill(Qt::transparent);
        icon.setPixelColor(0, 0, Qt::blue);
        const Surface surface = surfaceOf(icon);
        QCOMPARE(surface.picture().pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(surface.picture().pixelColor(1, 0), QColor(Qt::white));
    }

    void turnFollowsItsArithmetic_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<float>("angle");
        for (const QSize size :
             {QSize(1, 1), QSize(4, 4), QSize(5, 5), QSize(4, 9), QSize(64, 31), QSize(201, 199)}) {
            for (const float angle : {kQuartGauche, kQuartDroite, 0.F, 0.3F, -2.5F, 7.F}) {
                QTest::addRow("%dx%d by %g", size.width(), size.height(), static_cast<double>(angle))
                    << size << size.transposed() << angle;
            }
        }
        QTest::newRow("large enough for every way to round")
            << QSize(1401, 700) << QSize(700, 1401) << kQuartGauche;
        QTest::newRow("into a larger surface") << QSize(20, 10) << QSize(60, 50) << 0.7F;
        QTest::newRow("into a smaller surface") << QSize(60, 50) << QSize(9, 14) << 0.7F;
        QTest::newRow("from a surface without points") << QSize(0, 0) << QSize(9, 14) << 0.7F;
    }

    void turnFollowsItsArithmetic() {
        QFETCH(QSize, size);
        QFETCH(QSize, target);
        QFETCH(float, angle);
        const Surface source = randomSurface(size.width(), size.height(), 7);
        Surface expected;
        expected.clear(target.width(), target.height());
        std::vector<double> expectedProgress;
        plainTurn(source, expected, angle,
                  {[&](double part) { expectedProgress.push_back(part); }, [] { return true; }});
        Surface turned;
        turned.clear(target.width(), target.height());
        std::vector<double> progress;
        Rotation(source, turned, angle,
                 {[&](double part) { progress.push_back(part); }, [] { return true; }});
        QCOMPARE(turned.picture(), expected.picture());
        QCOMPARE(progress, expectedProgress);
    }

    void tooSmallOrTooLarge() {
        Surface turned;
        const auto turn = [&turned](const Surface &source) {
            TournerUnQuart(source, turned, kQuartGauche, kNobody);
        };
        for (const int side : {2, 3}) {
            QVERIFY_THROWS_EXCEPTION(std::domain_error, turn(randomSurface(side, side, 1)));
        }
        turn(randomSurface(1, 1, 1));
        QCOMPARE(turned.picture().pixelColor(0, 0), QColor(Qt::white));

        Surface wide;
        wide.clear(40'000, 1);
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, turn(wide));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, MiroirHorizontal(wide, turned));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, MiroirVertical(wide, turned));
        // The sides fit in 16 bits, but the diagonal from the centre leads beyond.
        wide.clear(32'767, 1);
        turned.clear(32'767, 1);
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, Rotation(wide, turned, -1.55F, kNobody));
    }

    void mirrorsExchangeSides() {
        const Surface source = randomSurface(5, 3, 9);
        Surface horizontal;
        Surface vertical;
        MiroirHorizontal(source, horizontal);
        MiroirVertical(source, vertical);
        QCOMPARE(horizontal.picture().size(), QSize(5, 3));
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 5; ++x) {
                QCOMPARE(horizontal.picture().pixel(x, y), source.picture().pixel(4 - x, y));
                QCOMPARE(vertical.picture().pixel(x, y), source.picture().pixel(x, 2 - y));
            }
        }
    }
};

QTEST_MAIN(TestPixels)
#include "TestPixels.moc"
