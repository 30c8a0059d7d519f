#include "SmallFilesOnly.h"

#include "pictures/AjusterPhoto.h"
#include "pictures/FichierBmp.h"
#include "pictures/Miroirs.h"
#include "pictures/Rotation.h"
#include "platform/controls/Picture.h"
#include "store/Programme.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <stdexcept>
#include <vector>

using namespace pictures;
using platform::controls::PictureError;
using platform::controls::Rectangle;
using platform::controls::Twips;
using platform::surface::kNoPoint;
using platform::surface::Surface;

namespace {

const SuiviRotation kNobody{[](double) {}, [] {}};

Surface randomSurface(int width, int height, quint32 seed) {
    QRandomGenerator random(seed);
    Surface surface;
    surface.clear(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            surface.SetPixel(x, y, random.bounded(0x1000000));
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
            float a = 0;
            if (i == 0) {
                a = static_cast<float>(3.14159265359 / 2);
            } else {
                a = static_cast<float>(std::atan(static_cast<double>(j) / static_cast<double>(i)));
            }
            const std::int16_t r = short16(std::sqrt(static_cast<double>(j * j + i * i)));
            const double whole = static_cast<double>(a) + static_cast<double>(angle);
            const std::int16_t x = short16(r * std::cos(whole));
            const std::int16_t y = short16(r * std::sin(whole));
            const auto read = [&source](int px, int py) { return source.GetPixel(short16(px), short16(py)); };
            const auto c0 = read(cx + x, cy + y);
            const auto c1 = read(cx - x, cy - y);
            const auto c2 = read(cx + y, cy - x);
            const auto c3 = read(cx - y, cy + x);
            const auto write = [&destination](int px, int py, int colour) {
                if (colour != kNoPoint) {
                    destination.SetPixel(short16(px), short16(py), colour);
                }
            };
            write(dx + i, dy + j, c0);
            write(dx - i, dy - j, c1);
            write(dx + j, dy - i, c2);
            write(dx - j, dy + i, c3);
        }
        told.finDePas();
    }
}

} // namespace

class TestPixels : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:

    void init() { store::DefinirDossierProgramme(m_folder.path()); }

    void pointsOutsideGiveMinusOneAndTakeNothing() {
        Surface surface = randomSurface(3, 2, 1);
        const QImage before = surface.picture().copy();
        for (const QPoint point : {QPoint(-1, 0), QPoint(0, -1), QPoint(3, 0), QPoint(0, 2)}) {
            QCOMPARE(surface.GetPixel(point.x(), point.y()), -1);
            surface.SetPixel(point.x(), point.y(), 0);
        }
        QCOMPARE(surface.picture(), before);
        surface.SetPixel(2, 1, 0x0000FF);
        QCOMPARE(surface.picture().pixelColor(2, 1), QColor(Qt::red));
        surface.SetPixel(2, 1, 0xFFFFFF);
        QCOMPARE(surface.GetPixel(2, 1), 0xFFFFFF);
    }

    void transparentPictureLiesOnTheBackground() {
        QImage icon(2, 1, QImage::Format_ARGB32);
        icon.fill(Qt::transparent);
        icon.setPixelColor(0, 0, Qt::blue);
        const Surface surface = surfaceOf(icon);
        QCOMPARE(surface.GetPixel(0, 0), 0xFF0000);
        QCOMPARE(surface.GetPixel(1, 0), 0xFFFFFF);
    }

    void turnFollowsItsArithmetic_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<float>("angle");
        const std::vector<QSize> sizes{{1, 1}, {4, 4},   {5, 5},    {7, 4},
                                       {4, 9}, {64, 31}, {33, 140}, {201, 199}};
        const std::vector<float> angles{kQuartGauche, kQuartDroite, 0.F, 0.3F, -2.5F, 3.14159F, 7.F};
        for (const QSize size : sizes) {
            for (const float angle : angles) {
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
        plainTurn(source, expected, angle, {[&](double part) { expectedProgress.push_back(part); }, [] {}});
        Surface turned;
        turned.clear(target.width(), target.height());
        std::vector<double> progress;
        Rotation(source, turned, angle, {[&](double part) { progress.push_back(part); }, [] {}});
        QCOMPARE(turned.picture(), expected.picture());
        QCOMPARE(progress, expectedProgress);
    }

    void leftTurnIsCounterClockwise() {
        // Red in the middle of the right edge, green in that of the lower one.
        Surface source;
        source.clear(60, 40);
        for (int k = -4; k <= 4; ++k) {
            for (int depth = 1; depth < 9; ++depth) {
                source.SetPixel(60 - depth, 20 + k, 0x0000FF);
                source.SetPixel(30 + k, 40 - depth, 0x00FF00);
            }
        }
        Surface left;
        TournerUnQuart(source, left, kQuartGauche, kNobody);
        QCOMPARE(left.picture().size(), QSize(40, 60));
        QCOMPARE(left.GetPixel(20, 4), 0x0000FF);
        QCOMPARE(left.GetPixel(36, 30), 0x00FF00);
        Surface right;
        TournerUnQuart(source, right, kQuartDroite, kNobody);
        QCOMPARE(right.GetPixel(20, 56), 0x0000FF);
        QCOMPARE(right.GetPixel(4, 30), 0x00FF00);
    }

    /// The events between two steps may open another picture, whose points lie elsewhere.
    void surfacesMayChangeWhileTurning() {
        const auto turn = [](auto operation) {
            Surface source = randomSurface(40, 30, 3);
            Surface destination;
            destination.clear(30, 40);
            int step = 0;
            operation(source, destination, 1.57F,
                      SuiviRotation{[](double) {},
                                    [&] {
                                        if (++step == 5) {
                                            source = randomSurface(6, 50, 4);
                                            destination.clear(12, 8);
                                        }
                                    }});
            return destination.picture();
        };
        QCOMPARE(turn(Rotation), turn(plainTurn));
    }

    void tooSmallOrTooLargeToTurn() {
        Surface turned;
        for (const int side : {2, 3}) {
            QVERIFY_THROWS_EXCEPTION(std::domain_error, TournerUnQuart(randomSurface(side, side, 1), turned,
                                                                       kQuartGauche, kNobody));
        }
        TournerUnQuart(randomSurface(1, 1, 1), turned, kQuartGauche, kNobody);
        QCOMPARE(turned.GetPixel(0, 0), 0xFFFFFF);

        Surface wide;
        wide.clear(40'000, 1);
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, TournerUnQuart(wide, turned, kQuartGauche, kNobody));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, MiroirHorizontal(wide, turned));
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, MiroirVertical(wide, turned));
    }

    /// The sides fit in 16 bits, but the diagonal from the centre leads beyond.
    void coordinateOverflowsOnTheWay() {
        Surface wide;
        wide.clear(32'767, 1);
        Surface target;
        target.clear(32'767, 1);
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, Rotation(wide, target, -1.55F, kNobody));
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
                QCOMPARE(horizontal.GetPixel(x, y), source.GetPixel(4 - x, y));
                QCOMPARE(vertical.GetPixel(x, y), source.GetPixel(x, 2 - y));
            }
        }
    }

    void bitmapGoesThroughTheFile() {
        const Surface drawn = randomSurface(7, 5, 2);
        Surface read;
        PasserParTempBmp(drawn, read);
        QCOMPARE(read.picture(), drawn.picture());
        QFile file(m_folder.filePath(u"temp.bmp"_qs));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.startsWith("BM"));
        QCOMPARE(bytes.size(), 54 + 5 * 24); // rows of 21 bytes, filled to 24
    }

    void fileThatCannotBeWritten() {
        Surface read = randomSurface(2, 2, 5);
        const QImage before = read.picture().copy();
        store::DefinirDossierProgramme(m_folder.filePath(u"absent"_qs));
        QVERIFY_THROWS_EXCEPTION(PictureError, PasserParTempBmp(randomSurface(3, 3, 1), read));
        QCOMPARE(read.picture(), before);
        QVERIFY_THROWS_EXCEPTION(PictureError, EcrireBmp(randomSurface(3, 3, 1), m_folder.path()));
        QVERIFY_THROWS_EXCEPTION(PictureError, EcrireBmp(Surface(), m_folder.filePath(u"vide.bmp"_qs)));
        QVERIFY(!QFile::exists(m_folder.filePath(u"vide.bmp"_qs)));
    }

    void fullDiskLeavesTheFileThatWasThere() {
        const QString path = m_folder.filePath(u"plein.bmp"_qs);
        const Surface before = randomSurface(4, 4, 1);
        EcrireBmp(before, path);
        {
            const SmallFilesOnly full;
            QVERIFY_THROWS_EXCEPTION(PictureError, EcrireBmp(randomSurface(300, 300, 1), path));
        }
        QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32), before.picture());
        QCOMPARE(QDir(m_folder.path()).entryList({u"plein*"_qs}).size(), 1);
    }

    void pictureFitsOverTheFrame_data() {
        QTest::addColumn<bool>("scanned");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRectF>("place");
        // Frame of 600 by 400 at (100, 200).
        QTest::newRow("taller") << false << QSize(300, 300) << QRectF(200, 225, 400, 350);
        QTest::newRow("wider") << false << QSize(800, 400) << QRectF(125, 262, 550, 275);
        QTest::newRow("equal ratios") << false << QSize(300, 200) << QRectF(125, 216, 550, 366.66666);
        QTest::newRow("tiny") << false << QSize(15, 15) << QRectF(200, 225, 400, 350);
        QTest::newRow("taller, scanned") << true << QSize(300, 300) << QRectF(200, 200, 400, 400);
        QTest::newRow("wider, scanned") << true << QSize(800, 400) << QRectF(105, 252, 590, 295);
    }

    void pictureFitsOverTheFrame() {
        QFETCH(bool, scanned);
        QFETCH(QSize, size);
        QFETCH(QRectF, place);
        const Rectangle frame{Twips(100), Twips(200), Twips(600), Twips(400)};
        const Rectangle fit = (scanned ? PlaceNumerisation
                                       : PlacePhotoScan)(frame, {Twips(size.width()), Twips(size.height())});
        QCOMPARE(fit.left.value(), static_cast<float>(place.left()));
        QCOMPARE(fit.top.value(), static_cast<float>(place.top()));
        QCOMPARE(fit.width.value(), static_cast<float>(place.width()));
        QCOMPARE(fit.height.value(), static_cast<float>(place.height()));
        QVERIFY_THROWS_EXCEPTION(std::domain_error, PlacePhotoScan(frame, {}));
    }
};

QTEST_MAIN(TestPixels)
#include "TestPixels.moc"
