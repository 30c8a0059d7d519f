#include "pictures/AjusterPhoto.h"
#include "pictures/CheminPhoto.h"
#include "store/Programme.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

using namespace pictures;
using platform::controls::Extent;
using platform::controls::Rectangle;
using platform::controls::Twips;

namespace {

void makeFile(const QString &path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:

    void initTestCase() {
        QVERIFY(QDir(m_folder.path()).mkpath(u"Savorel/photos/été"_qs));
        store::DefinirDossierProgramme(m_folder.filePath(u"Savorel"_qs));
        makeFile(m_folder.filePath(u"Savorel/photos/tarte.jpg"_qs));
        makeFile(m_folder.filePath(u"Savorel/photos/été/melon.jpg"_qs));
        makeFile(m_folder.filePath(u"Savorel/dehors.jpg"_qs));
        makeFile(m_folder.filePath(u"Savorel/photos/a\\b.jpg"_qs));
    }

    void pictureFitsTheFrame_data() {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QRectF>("place");
        // Frame of 6000 by 3600.
        QTest::newRow("taller: margin in the height, width from the whole height")
            << 3000 << 3000 << QRectF(1200, 200, 3600, 3200);
        QTest::newRow("wider: both from the reduced width") << 8000 << 4000 << QRectF(200, 400, 5600, 2800);
        QTest::newRow("equal ratios: by the width") << 5000 << 3000 << QRectF(200, 120, 5600, 3360);
        QTest::newRow("one pixel is enlarged") << 15 << 15 << QRectF(1200, 200, 3600, 3200);
        QTest::newRow("odd rest is truncated") << 3001 << 3000 << QRectF(1199, 200, 3601.2, 3200);
    }

    void pictureFitsTheFrame() {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QRectF, place);
        const Rectangle fit = PlaceDansCadre({Twips(6000), Twips(3600)}, {Twips(width), Twips(height)});
        QCOMPARE(fit.left.value(), static_cast<float>(place.left()));
        QCOMPARE(fit.top.value(), static_cast<float>(place.top()));
        QCOMPARE(fit.width.value(), static_cast<float>(place.width()));
        QCOMPARE(fit.height.value(), static_cast<float>(place.height()));
    }

    void pictureWithoutSizeIsAnError() {
        QVERIFY_THROWS_EXCEPTION(std::domain_error, PlaceDansCadre({Twips(6000), Twips(3600)}, Extent{}));
    }

    void valueNamesAFile_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("path"); // in the temporary folder; empty: no file
        QTest::newRow("plain name") << u"tarte.jpg"_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("blanks around") << u"  tarte.jpg "_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("line breaks of an import")
            << u"tar<BR>te.jpg<BR>"_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("subfolder") << u"été/melon.jpg"_qs << u"Savorel/photos/été/melon.jpg"_qs;
        QTest::newRow("out and in again") << u"../photos/tarte.jpg"_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("blank") << u"   "_qs << QString();
        QTest::newRow("nothing but a line break") << u"<BR>"_qs << QString();
        QTest::newRow("missing") << u"absente.jpg"_qs << QString();
        QTest::newRow("leaves the folder") << u"../dehors.jpg"_qs << QString();
        QTest::newRow("leaves it further down") << u"été/../../dehors.jpg"_qs << QString();
        QTest::newRow("the photo folder itself") << u"."_qs << QString();
        QTest::newRow("a folder") << u"été"_qs << QString();
        QTest::newRow("path of another platform") << u"C:\\photos\\tarte.jpg"_qs << QString();
        QTest::newRow("never from the photo folder with a \\") << u"a\\b.jpg"_qs << QString();
    }

    void valueNamesAFile() {
        QFETCH(QString, value);
        QFETCH(QString, path);
        QCOMPARE(CheminPhoto(value), path.isEmpty() ? QString() : m_folder.filePath(path));
    }

    void absolutePathStandsForItself() {
        const QString outside = m_folder.filePath(u"Savorel/dehors.jpg"_qs);
        QCOMPARE(CheminPhoto(outside), outside);
        QCOMPARE(CheminPhoto(outside + u".absent"_qs), QString());
    }
};

QTEST_MAIN(TestPictures)
#include "TestPictures.moc"
