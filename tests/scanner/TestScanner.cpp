#include "TestBackend.h"

#include "platform/scanner/Scanner.h"

#include <QElapsedTimer>
#include <QTest>

#include <array>
#include <optional>
#include <utility>

using namespace platform::scanner;

namespace {

const QString kDevice = QStringLiteral("test:0");

/// Half of a centimetre each way at 50 dots per inch: white of the grid, beside black.
ScanSettings small(const QString &mode) {
    ScanSettings settings;
    settings.mode = mode;
    settings.resolution = 100;
    settings.area = QRectF(0, 0, 0.2, 0.1);
    return settings;
}

/// How many pixels of a picture have a value, 0 being black and 255 white; without one, how many have none of the two.
int count(const QImage &picture, std::optional<int> value = {}) {
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const bool plain = pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255);
            found += value ? pixel == qRgb(*value, *value, *value) : !plain;
        }
    }
    return found;
}

} // namespace

class TestScanner : public QObject {
    Q_OBJECT

private:
    TestBackend m_backend;

private Q_SLOTS:

    void init() { m_backend.configure(); }

    void devicesAndTheirOptions() {
        Scanner scanner;
        QCOMPARE(scanner.devices().result().size(), 2);
        const ScanOptions options = scanner.options(kDevice).result();
        QCOMPARE(options.modes, QStringList({u"Gray"_qs, u"Color"_qs}));
        QCOMPARE(options.sources, QStringList({u"Flatbed"_qs, u"Automatic Document Feeder"_qs}));
        QCOMPARE(options.resolutions, QList<double>({75, 100, 150, 200, 300, 400, 600, 1200}));
        QCOMPARE(options.glass, QSizeF(200, 200));
        QVERIFY_THROWS_EXCEPTION(ScannerError, scanner.options(u"test:9"_qs).result());
    }

    void kindsOfPictures() {
        const auto kinds = std::to_array<std::pair<QByteArray, QString>>({
            {"", u"Gray"_qs},
            {"", u"Color"_qs},
            {"depth 16\n", u"Gray"_qs},
            {"depth 16\n", u"Color"_qs},
            {"depth 1\n", u"Gray"_qs}, // line art
            {"depth 1\n", u"Color"_qs},
            {"read-limit true\nread-limit-size 7\n", u"Color"_qs}, // bytes in small pieces
            {"ppl-loss 5\n", u"Gray"_qs},                          // lines longer than their pixels
            {"fuzzy-parameters true\n", u"Gray"_qs},               // guessed before the start
        });
        for (const auto &[settings, mode] : kinds) {
            m_backend.configure(settings);
            const QImage picture = Scanner().scan(kDevice, small(mode)).result();
            QCOMPARE(picture.format() == QImage::Format_Grayscale8, mode == u"Gray");
            // 40 by 20 millimetres at 100 dots per inch.
            QVERIFY2(qAbs(picture.width() - 157) <= 6, settings);
            QVERIFY2(qAbs(picture.height() - 78) <= 1, settings);
            // A grid of squares of 10 millimetres: as much black as white, and nothing between.
            const int half = picture.width() * picture.height() / 2;
            QVERIFY2(count(picture) == 0, settings);
            QVERIFY2(qAbs(count(picture, 0) - half) < half / 8, settings);
        }
    }

    void coloursStayInTheirOrder() {
        m_backend.configure("test-picture \"Color pattern\"\n");
        Scanner scanner;
        const QImage one = scanner.scan(kDevice, small(u"Color"_qs)).result();
        m_backend.configure("test-picture \"Color pattern\"\nthree-pass true\nthree-pass-order BGR\n");
        QCOMPARE(scanner.scan(kDevice, small(u"Color"_qs)).result(), one);
        QVERIFY(count(one) > 0);
    }

    void errorComesWithItsTextAndFreesTheDevice() {
        m_backend.configure("read-status-code \"SANE_STATUS_COVER_OPEN\"\n");
        Scanner scanner;
        auto future = scanner.scan(kDevice, small(u"Gray"_qs));
        try {
            future.waitForFinished();
            QFAIL("no error");
        } catch (const ScannerError &error) {
            QCOMPARE(error.what(), "Scanner cover is open");
            QCOMPARE(error.sentence(), u"Le couvercle du scanner est ouvert."_qs);
        }
        QVERIFY(!scanner.options(kDevice).result().modes.isEmpty());
    }

    void pictureTooLargeIsRefused() {
        ScanSettings settings;
        settings.resolution = 1200;
        settings.mode = u"Gray"_qs;
        m_backend.configure("geometry_max 1000.0\n");
        Scanner scanner;
        QVERIFY_THROWS_EXCEPTION(ScannerError, scanner.scan(kDevice, settings).result());
    }

    void endsWhileScanning() {
        m_backend.configure("read-delay true\nread-delay-duration 100000\n");
        QElapsedTimer clock;
        QFuture<QImage> future;
        QFuture<ScanOptions> behind;
        {
            Scanner scanner;
            ScanSettings whole;
            whole.resolution = 300;
            future = scanner.scan(kDevice, whole);
            behind = scanner.options(kDevice);
            QTRY_VERIFY(future.progressValue() > 0);
            clock.start();
        }
        QVERIFY(clock.elapsed() < 3000);
        future.waitForFinished();
        behind.waitForFinished();
        QCOMPARE(future.resultCount(), 0);
        QVERIFY(behind.isCanceled());
    }
};

QTEST_GUILESS_MAIN(TestScanner)
#include "TestScanner.moc"
