#include "Files.h"

#include "platform/images/LoadPicture.h"
#include "platform/metafile/Metafile.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <initializer_list>

using namespace platform::metafile;
using platform::images::LoadPicture;
using platform::images::PictureError;

namespace {

QByteArray words(std::initializer_list<int> values) {
    QByteArray bytes;
    for (const int value : values) {
        bytes.append(static_cast<char>(value & 0xFF));
        bytes.append(static_cast<char>(value >> 8 & 0xFF));
    }
    return bytes;
}

QByteArray record(int function, std::initializer_list<int> parameters) {
    return words({static_cast<int>(parameters.size()) + 3, 0, function}) + words(parameters);
}

/// A metafile of records in a coordinate system of 1440 by 720.
QByteArray metafile(const QByteArray &records) {
    const QByteArray all =
        record(0x103, {8}) + record(0x20B, {0, 0}) + record(0x20C, {720, 1440}) + records + record(0, {});
    const auto length = static_cast<int>(9 + all.size() / 2);
    return words({1, 9, 0x300, length & 0xFFFF, length >> 16, 4, 100, 0, 0}) + all;
}

/// With the header that tells its size.
QByteArray placeable(const QByteArray &content, int width, int height, int perInch) {
    QByteArray header = words({0xCDD7, 0x9AC6, 0, 0, 0, width, height, perInch, 0, 0});
    int sum = 0;
    for (qsizetype at = 0; at < header.size(); at += 2) {
        sum ^= qFromLittleEndian<quint16>(header.constData() + at);
    }
    return header + words({sum}) + content;
}

/// The left half red.
QByteArray redHalf() {
    return record(0x2FC, {0, 0x00FF, 0, 0}) + record(0x12D, {0}) + record(0x41B, {720, 720, 0, 0});
}

} // namespace

class TestMetafile : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString file(const QString &name, const QByteArray &content) const {
        return writeFile(m_folder.filePath(name), content);
    }

private Q_SLOTS:

    void naturalSizeAndColours() {
        const QImage picture = readMetafile(placeable(metafile(redHalf()), 1440, 720, 1440));
        QCOMPARE(picture.size(), QSize(96, 48)); // an inch by half of one
        QCOMPARE(picture.pixelColor(20, 24), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(80, 24), QColor(Qt::white));
        // The red half stands right of the origin of a picture that begins 720 left of it.
        QByteArray shifted = placeable(metafile(redHalf()), 720, 720, 1440);
        shifted.replace(6, 2, words({-720 & 0xFFFF}));
        QCOMPARE(readMetafile(shifted).pixelColor(72, 24), QColor(Qt::red));
    }

    void hostileFilesOnlyFail_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("nothing but a header") << metafile({}).left(18);
        QTest::newRow("cut off in a record") << placeable(metafile(redHalf()), 1440, 720, 1440).left(70);
        QTest::newRow("no unit") << placeable(metafile(redHalf()), 1440, 720, 0);
        QTest::newRow("absurd size") << placeable(metafile(redHalf()), 32767, 32767, 1);
        QTest::newRow("polygon of more points than the record has")
            << metafile(record(0x324, {65535, 1, 2, 3, 4}));
        QTest::newRow("polygons without end") << metafile(record(0x538, {2, 65535, 65535, 1, 2}));
        QTest::newRow("object that does not exist") << metafile(record(0x12D, {65535}));
        QTest::newRow("record without length") << metafile(words({0, 0, 0x41B, 1, 1, 0, 0}));
        QTest::newRow("bitmap larger than the file")
            << metafile(record(0xF43, {0x20, 0xCC, 0,  100, 100, 0, 0, 100, 100, 0, 0, 40, 0, 30000, 0, 30000,
                                       0,    1,    24, 0,   0,   0, 0, 0,   0,   0, 0, 0,  0, 0,     0}));
    }

    void hostileFilesOnlyFail() {
        QFETCH(QByteArray, content);
        QElapsedTimer clock;
        clock.start();
        try {
            const QImage picture = readMetafile(content);
            // The library may have passed over the fault.
            QVERIFY(!picture.isNull());
            QVERIFY(std::max(picture.width(), picture.height()) <= 2048);
        } catch (const MetafileError &) {
        }
        QVERIFY(clock.elapsed() < 12'000);
    }

    void picturesOfAllKindsAreLoaded() {
        const QImage drawn =
            LoadPicture(file(u"dessin.jpg"_qs, placeable(metafile(redHalf()), 1440, 720, 1440)));
        QCOMPARE(drawn.size(), QSize(96, 48));
        QVERIFY_THROWS_EXCEPTION(PictureError, LoadPicture(file(u"casse.wmf"_qs, metafile({}).left(20))));

        // Two frames of one pixel, the first red and the second blue.
        const QByteArray gif =
            QByteArray::fromHex("47494638396101000100f00000ff000000000021f904000a00000021ff0b4e45545343"
                                "415045322e3003010000002c000000000100010000020244010021f904000a0000002c"
                                "0000000001000100800000ff00000002024401003b");
        QCOMPARE(LoadPicture(file(u"anime.gif"_qs, gif)).pixelColor(0, 0), QColor(Qt::red));
    }
};

QTEST_MAIN(TestMetafile)
#include "TestMetafile.moc"
