#include "pictures/Miroirs.h"
#include "pictures/Rotation.h"

#include <QRandomGenerator>
#include <QTest>

#include <stdexcept>
#include <vector>

using namespace pictures;
using platform::surface::Surface;

namespace {

Surface noise(int width, int height) {
    QRandomGenerator random(7);
    QImage picture(width, height, QImage::Format_RGB32);
    for (int point = 0; point < width * height; ++point) {
        picture.setPixel(point % width, point / width, 0xff000000U | random.generate());
    }
    Surface surface;
    surface.setPicture(picture);
    return surface;
}

} // namespace

class TestPixels : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void backgroundShinesThrough() {
        QImage icon(2, 1, QImage::Format_ARGB32);
        icon.fill(Qt::transparent);
        icon.setPixelColor(0, 0, Qt::blue);
        Surface surface;
        surface.setPicture(icon);
        QCOMPARE(surface.picture().pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(surface.picture().pixelColor(1, 0), QColor(Qt::white));
    }

    /// The sums are those of the turn calculated point by point, as it is defined: each product in double precision,
    /// each coordinate rounded to the even neighbour.
    void turnFollowsItsArithmetic_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<float>("angle");
        QTest::addColumn<int>("sum");
        QTest::newRow("a quarter") << QSize(64, 31) << QSize(31, 64) << kQuartDroite << 10821;
        QTest::newRow("large enough for every way to round")
            << QSize(1401, 700) << QSize(700, 1401) << kQuartGauche << 23257;
        QTest::newRow("beyond a full turn") << QSize(201, 199) << QSize(199, 201) << 7.F << 33980;
        QTest::newRow("into a larger surface") << QSize(20, 10) << QSize(60, 50) << 0.7F << 8909;
        QTest::newRow("into a smaller surface") << QSize(60, 50) << QSize(9, 14) << -2.5F << 56733;
        QTest::newRow("from a surface without points") << QSize(0, 0) << QSize(9, 14) << 0.7F << 5322;
    }

    void turnFollowsItsArithmetic() {
        QFETCH(QSize, size);
        QFETCH(QSize, target);
        QFETCH(float, angle);
        Surface turned;
        turned.clear(target.width(), target.height());
        std::vector<double> progress;
        Rotation(noise(size.width(), size.height()), turned, angle,
                 {[&](double part) { progress.push_back(part); }, [] { return true; }});
        const QByteArrayView points(turned.picture().constBits(), turned.picture().sizeInBytes());
        QTEST(int(qChecksum(points)), "sum");
        QCOMPARE(progress.front(), 0.);
        QCOMPARE(progress.back(), 1.);
    }

    void tooSmallOrTooLarge() {
        const SuiviRotation nobody{[](double) {}, [] { return true; }};
        Surface turned;
        QVERIFY_THROWS_EXCEPTION(std::domain_error,
                                 TournerUnQuart(noise(2, 2), turned, kQuartGauche, nobody));
        TournerUnQuart(noise(1, 1), turned, kQuartGauche, nobody);
        QCOMPARE(turned.picture().pixelColor(0, 0), QColor(Qt::white));

        Surface wide;
        wide.clear(40'000, 1);
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, TournerUnQuart(wide, turned, kQuartGauche, nobody));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, MiroirHorizontal(wide, turned));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, MiroirVertical(wide, turned));
        // The sides fit in 16 bits, but the diagonal from the centre leads beyond.
        wide.clear(32'767, 1);
        turned.clear(32'767, 1);
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, Rotation(wide, turned, -1.55F, nobody));
    }

    void mirrorsExchangeSides() {
        const Surface source = noise(5, 3);
        Surface mirrored;
        MiroirHorizontal(source, mirrored);
        QCOMPARE(mirrored.picture(), source.picture().mirrored(true, false));
        MiroirVertical(source, mirrored);
        QCOMPARE(mirrored.picture(), source.picture().mirrored(false, true));
    }
};

QTEST_MAIN(TestPixels)
#include "TestPixels.moc"
