#include "Reponse.h"

#include "pictures/AjusterPhoto.h"
#include "pictures/CheminPhoto.h"
#include "pictures/ChoisirImage.h"
#include "store/Programme.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <stdexcept>

using namespace pictures;
using platform::controls::ControlRow;
using platform::controls::Extent;
using platform::controls::Image;
using platform::controls::Rectangle;
using platform::controls::Twips;

namespace {

void makeFile(const QString &path, const QByteArray &content = {}) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QWidget m_window;
    const ControlRow m_nowhere{"Photo", 0, 0, 0, 0};
    Image m_photo{&m_window, m_nowhere}, m_natural{&m_window, m_nowhere};
    const CadreImage m_frame{m_window, {Twips(6000), Twips(3600)}, m_photo, m_natural};
    QString m_start; // of the last file dialog

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Runs the choice; the cook takes that file, or cancels when it is empty.
    Choix choose(const QString &file, QString &folder) {
        QTimer cook;
        connect(&cook, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                m_start = dialog->directory().path();
                dialog->selectFile(file);
                file.isEmpty() ? dialog->reject() : static_cast<QDialog *>(dialog)->accept();
            }
        });
        cook.start(10);
        return ChoisirImage(m_frame, folder);
    }

private Q_SLOTS:

    void initTestCase() {
        for (const QString &folder : {u"Savorel/photos/été"_qs, u"Savorel/image"_qs, u"ailleurs"_qs}) {
            QVERIFY(QDir(m_folder.path()).mkpath(folder));
        }
        store::DefinirDossierProgramme(path(u"Savorel"_qs));
        for (const QString &name :
             {u"photos/tarte.jpg"_qs, u"photos/été/melon.jpg"_qs, u"dehors.jpg"_qs, u"photos/a\\b.jpg"_qs}) {
            makeFile(path(u"Savorel/"_qs + name));
        }
    }

    void pictureFits_data() {
        QTest::addColumn<int>("fit");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRectF>("place");
        // In the frame, relative to it.
        QTest::newRow("taller: margin in the height, width from the whole height")
            << 0 << QSize(3000, 3000) << QRectF(1200, 200, 3600, 3200);
        QTest::newRow("wider: both from the reduced width")
            << 0 << QSize(8000, 4000) << QRectF(200, 400, 5600, 2800);
        QTest::newRow("equal ratios: by the width") << 0 << QSize(5000, 3000) << QRectF(200, 120, 5600, 3360);
        QTest::newRow("one pixel is enlarged") << 0 << QSize(15, 15) << QRectF(1200, 200, 3600, 3200);
        QTest::newRow("odd rest is truncated") << 0 << QSize(3001, 3000) << QRectF(1199, 200, 3601.2, 3200);
        // Over the frame, beside which the picture lies.
        QTest::newRow("workshop, taller") << 1 << QSize(3000, 3000) << QRectF(1300, 225, 3600, 3550);
        QTest::newRow("workshop, wider") << 1 << QSize(8000, 4000) << QRectF(125, 512, 5950, 2975);
        QTest::newRow("scanned, taller") << 2 << QSize(3000, 3000) << QRectF(1300, 200, 3600, 3600);
        QTest::newRow("scanned, wider") << 2 << QSize(8000, 4000) << QRectF(105, 502, 5990, 2995);
    }

    void pictureFits() {
        QFETCH(int, fit);
        QFETCH(QSize, size);
        QFETCH(QRectF, place);
        const Rectangle frame{Twips(100), Twips(200), Twips(6000), Twips(3600)};
        const Extent natural{Twips(size.width()), Twips(size.height())};
        const Rectangle fitted = fit == 0   ? PlaceDansCadre({frame.width, frame.height}, natural)
                                 : fit == 1 ? PlacePhotoScan(frame, natural)
                                            : PlaceNumerisation(frame, natural);
        QCOMPARE(fitted.left.value(), static_cast<float>(place.left()));
        QCOMPARE(fitted.top.value(), static_cast<float>(place.top()));
        QCOMPARE(fitted.width.value(), static_cast<float>(place.width()));
        QCOMPARE(fitted.height.value(), static_cast<float>(place.height()));
        QVERIFY_THROWS_EXCEPTION(std::domain_error, PlacePhotoScan(frame, {}));
    }

    void valueNamesAFile_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("file"); // in the temporary folder; empty: no file
        QTest::newRow("plain name") << u"tarte.jpg"_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("blanks around") << u"  tarte.jpg "_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("line breaks of an import")
            << u"tar<BR>te.jpg<BR>"_qs << u"Savorel/photos/tarte.jpg"_qs;
        QTest::newRow("subfolder") << u"été/melon.jpg"_qs << u"Savorel/photos/été/melon.jpg"_qs;
        QTest::newRow("out and in again") << u"../photos/tarte.jpg"_qs << u"Savorel/photos/tarte.jpg"_qs;
        const QString outside = u"Savorel/dehors.jpg"_qs;
        QTest::newRow("whole path") << path(outside) << outside;
        QTest::newRow("whole path of nothing") << path(u"absente.jpg"_qs) << QString();
        QTest::newRow("blank") << u"   "_qs << QString();
        QTest::newRow("missing") << u"absente.jpg"_qs << QString();
        QTest::newRow("leaves the folder") << u"../dehors.jpg"_qs << QString();
        QTest::newRow("the photo folder itself") << u"."_qs << QString();
        QTest::newRow("path of another platform") << u"C:\\photos\\tarte.jpg"_qs << QString();
        QTest::newRow("never from the photo folder with a \\") << u"a\\b.jpg"_qs << QString();
    }

    void valueNamesAFile() {
        QFETCH(QString, value);
        QFETCH(QString, file);
        QCOMPARE(CheminPhoto(value), file.isEmpty() ? QString() : path(file));
    }

    void imageIsChosen() {
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QString summer = path(u"ailleurs/L'ÉTÉ.JPG"_qs);
        QVERIFY(image.save(summer));
        QString folder;
        QCOMPARE(choose({}, folder), Choix::Abandonnee);
        QCOMPARE(m_start, path(u"Savorel/image"_qs));
        QCOMPARE(folder + m_photo.Tag(), QString());

        QCOMPARE(choose(summer, folder), Choix::Faite);
        QCOMPARE(m_photo.Tag(), QDir::toNativeSeparators(summer));
        QCOMPARE(m_natural.Picture(), m_photo.Picture());
        QCOMPARE(m_photo.Left(), Twips(1200));
        choose({}, folder);
        QCOMPARE(m_start, path(u"ailleurs"_qs));

        QVERIFY(QDir(path(u"Savorel"_qs)).rmdir(u"image"_qs));
        folder = path(u"parti"_qs);
        choose({}, folder);
        QCOMPARE(m_start, path(u"Savorel"_qs));
    }

    void unreadableFileChangesNothing() {
        makeFile(path(u"texte.jpg"_qs), "Tarte aux pommes");
        makeFile(path(u"tronquee.jpg"_qs), QByteArray::fromHex("ffd8ffe000104a4649460001"));
        // The header of a bitmap of 60000 by 60000.
        makeFile(path(u"immense.bmp"_qs),
                 QByteArray::fromHex("424d00000000000000003600000028000000"
                                     "60ea000060ea00000100180000000000000000000000000000000000") +
                     QByteArray(16, '\0'));
        const QImage before = m_photo.Picture();
        QVERIFY(!before.isNull());
        for (const QString &name :
             {u"texte.jpg"_qs, u"tronquee.jpg"_qs, u"immense.bmp"_qs, u"absente.jpg"_qs, u"."_qs}) {
            const Reponse message(u"OK"_qs);
            QCOMPARE(PoserImage(m_frame, path(name)), Choix::Illisible);
            QVERIFY2(message.asked(), qPrintable(name));
            QVERIFY(m_photo.Tag().endsWith(u"L'ÉTÉ.JPG"_qs));
            QCOMPARE(m_photo.Picture(), before);
            QCOMPARE(m_natural.Picture(), before);
            QVERIFY(!m_photo.isHidden());
        }
    }
};

QTEST_MAIN(TestPictures)
#include "TestPictures.moc"
