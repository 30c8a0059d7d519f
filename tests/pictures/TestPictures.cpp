#include "Files.h"
#include "Meanwhile.h"
#include "Reponse.h"

#include "pictures/AjusterPhoto.h"
#include "pictures/CheminPhoto.h"
#include "pictures/ChoisirImage.h"
#include "pictures/LecteurPhoto.h"
#include "store/Programme.h"

#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <stdexcept>
#include <utility>

using namespace pictures;
using platform::controls::ControlRow;
using platform::controls::Extent;
using platform::controls::Image;
using platform::controls::Rectangle;
using platform::controls::Twips;

class TestPictures : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QWidget m_window;
    const ControlRow m_nowhere{"Photo", 0, 0, 0, 0};
    Image m_photo{&m_window, m_nowhere};
    const CadreImage m_frame{m_window, {Twips(6000), Twips(3600)}, m_photo};
    QString m_start; // of the last file dialog

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Runs the choice; the cook takes that file, or cancels when it is empty.
    ChoixImage choose(const QString &file, QString &folder) {
        const auto cook = in<QFileDialog>([&](QFileDialog &dialog) {
            m_start = dialog.directory().path();
            chooseIn(dialog, file);
            return true;
        });
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
            writeFile(path(u"Savorel/"_qs + name), {});
        }
    }

    void pictureFits() {
        struct Case {
            Rectangle (*fit)(const Rectangle &frame, Extent natural);
            float width, height;
            std::array<float, 4> place;
        };

        // In the frame, relative to it.
        const auto inside = [](const Rectangle &frame, Extent natural) {
            return PlaceDansCadre({frame.width, frame.height}, natural);
        };
        const auto cases = std::to_array<Case>({
            {inside, 3000, 3000, {1200, 200, 3600, 3200}},    // the width from the whole height
            {inside, 8000, 4000, {200, 400, 5600, 2800}},     // both from the reduced one
            {inside, 3001, 3000, {1199, 200, 3601.2F, 3200}}, // an odd rest is truncated
            // Over the frame, beside which the picture lies.
            {PlacePhotoScan, 3000, 3000, {1300, 225, 3600, 3550}},
            {PlacePhotoScan, 8000, 4000, {125, 512, 5950, 2975}},
            {PlaceNumerisation, 3000, 3000, {1300, 200, 3600, 3600}},
            {PlaceNumerisation, 8000, 4000, {105, 502, 5990, 2995}},
        });
        const Rectangle frame{Twips(100), Twips(200), Twips(6000), Twips(3600)};
        for (const auto &[fit, width, height, place] : cases) {
            const Rectangle fitted = fit(frame, {Twips(width), Twips(height)});
            QCOMPARE((std::array{fitted.left.value(), fitted.top.value(), fitted.width.value(),
                                 fitted.height.value()}),
                     place);
        }
        QVERIFY_THROWS_EXCEPTION(std::domain_error, PlacePhotoScan(frame, {}));
    }

    void valueNamesAFile() {
        const QString tart = u"Savorel/photos/tarte.jpg"_qs;
        const QString outside = u"Savorel/dehors.jpg"_qs;
        const auto files = std::to_array<std::pair<QString, QString>>({
            {u"  tarte.jpg "_qs, tart},
            {u"tar<BR>te.jpg<BR>"_qs, tart}, // line breaks of an import
            {u"été/melon.jpg"_qs, u"Savorel/photos/été/melon.jpg"_qs},
            {u"../photos/tarte.jpg"_qs, tart}, // out and in again
            {path(outside), outside},
            {u"   "_qs, {}},
            {u"absente.jpg"_qs, {}},
            {u"../dehors.jpg"_qs, {}}, // leaves the folder
            {u"C:\\photos\\tarte.jpg"_qs, {}},
            {u"a\\b.jpg"_qs, {}}, // never from the photo folder with a backslash
        });
        for (const auto &[value, file] : files) {
            QCOMPARE(CheminPhoto(value), file.isEmpty() ? QString() : path(file));
        }
    }

    void imageIsChosen() {
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QString summer = path(u"ailleurs/L'ÉTÉ.JPG"_qs);
        QVERIFY(image.save(summer));
        QString folder;
        QCOMPARE(choose({}, folder), ChoixImage::Abandonnee);
        QCOMPARE(m_start, path(u"Savorel/image"_qs));
        QCOMPARE(choose(summer, folder), ChoixImage::Faite);
        QCOMPARE(m_photo.Tag(), summer);
        choose({}, folder);
        QCOMPARE(m_start, path(u"ailleurs"_qs));
        folder = path(u"parti"_qs);
        choose({}, folder);
        QVERIFY(m_start != folder);
    }

    void unreadableFileChangesNothing() {
        writeFile(path(u"texte.jpg"_qs), "Tarte aux pommes");
        // The header of a bitmap of 60000 by 60000.
        writeFile(path(u"immense.bmp"_qs),
                  QByteArray::fromHex("424d00000000000000003600000028000000"
                                      "60ea000060ea00000100180000000000000000000000000000000000") +
                      QByteArray(16, '\0'));
        const QImage before = m_photo.Picture();
        QVERIFY(!before.isNull());
        for (const QString &name : {u"texte.jpg"_qs, u"immense.bmp"_qs, u"."_qs}) {
            const Reponse message(u"OK"_qs);
            QCOMPARE(PoserImage(m_frame, path(name)), ChoixImage::Illisible);
            QVERIFY2(message.asked(), qPrintable(name));
            QVERIFY(m_photo.Tag().endsWith(u"L'ÉTÉ.JPG"_qs));
            QCOMPARE(m_photo.Picture(), before);
        }
    }

    void slowPictureComesWhenItIsReady() {
        // Instead of drawing a metafile: two pixels each way, of which the reader makes one, after a while.
        writeScript(QCoreApplication::applicationDirPath() + u"/lecteur-wmf"_qs,
                    "cat >/dev/null; sleep 0.8; printf '\\2\\0\\0\\0\\2\\0\\0\\0aaaabbbbccccdddd'");
        const QString slow =
            writeFile(path(u"lente.wmf"_qs), QByteArray::fromHex("d7cdc69a") + QByteArray(40, '\0'));
        const QString quick = path(u"vite.png"_qs);
        QVERIFY(QImage(40, 20, QImage::Format_RGB32).save(quick));
        QList<int> widths;
        const auto take = [&widths](const QImage &picture) { widths += picture.width(); };
        {
            LecteurPhoto reader;
            QVERIFY(!reader.Lire(slow, take));
            QCOMPARE(widths, QList<int>());
            QTRY_COMPARE(widths, QList<int>{1});
            reader.Lire(slow, take); // in vain, as the next one is asked for
            reader.Lire(quick, take);
            reader.Attendre();
            reader.Lire(slow, take);
            reader.Attendre();
            reader.Lire(slow, take); // in vain, as nobody is there
        }
        QCoreApplication::processEvents();
        QCOMPARE(widths, (QList<int>{1, 40, 1}));
    }
};

QTEST_MAIN(TestPictures)
#include "TestPictures.moc"
