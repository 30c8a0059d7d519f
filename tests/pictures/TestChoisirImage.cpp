#include "pictures/ChoisirImage.h"
#include "store/Programme.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <optional>

using namespace pictures;
using platform::controls::ControlRow;
using platform::controls::Extent;
using platform::controls::Image;
using platform::controls::Twips;

namespace {

constexpr Extent kCadre{Twips(6000), Twips(3600)};

void ecrire(const QString &chemin, const QByteArray &octets) {
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    QCOMPARE(fichier.write(octets), octets.size());
}

// Two frames of one pixel, red and then green.
const QByteArray kGif = QByteArray::fromHex("47494638396101000100800000ff000000ff00"
                                            "2c000000000100010000020244010"
                                            "02c00000000010001000002024c01003b");

} // namespace

class TestChoisirImage : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dossier;
    QWidget m_fenetre;
    std::optional<Image> m_photo, m_imageTemp;
    QString m_depart, m_message;

    QString chemin(const QString &nom) const { return m_dossier.filePath(nom); }

    CadreImage cadre() { return {m_fenetre, kCadre, *m_photo, *m_imageTemp}; }

    Choix poser(const QString &nom) { return PoserImage(cadre(), chemin(nom)); }

    /// Runs the choice; the cook takes the file of that path, or cancels when it is empty.
    Choix choisir(const QString &fichier, QString &dossier) {
        QTimer cuisinier;
        connect(&cuisinier, &QTimer::timeout, this, [&] {
            if (auto *dialogue = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                m_depart = dialogue->directory().path();
                dialogue->selectFile(fichier);
                fichier.isEmpty() ? dialogue->reject() : static_cast<QDialog *>(dialogue)->accept();
            }
        });
        cuisinier.start(10);
        return ChoisirImage(cadre(), dossier);
    }

private Q_SLOTS:

    void initTestCase() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, chemin(u"reglages"_qs));
        QVERIFY(QDir(m_dossier.path()).mkpath(u"Savorel/image"_qs));
        QVERIFY(QDir(m_dossier.path()).mkpath(u"ailleurs"_qs));
        store::DefinirDossierProgramme(chemin(u"Savorel"_qs));
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(chemin(u"ailleurs/L'ÉTÉ \"d'or\".JPG"_qs), "JPG"));
        QVERIFY(image.save(chemin(u"ailleurs/entiere.bmp"_qs)));
        ecrire(chemin(u"ailleurs/animee.gif"_qs), kGif);
        ecrire(chemin(u"ailleurs/vide.jpg"_qs), {});
        ecrire(chemin(u"ailleurs/texte.jpg"_qs), "Tarte aux pommes");
        ecrire(chemin(u"ailleurs/tronquee.jpg"_qs), QByteArray::fromHex("ffd8ffe000104a4649460001"));
        // The header of a bitmap of 60000 by 60000.
        ecrire(chemin(u"ailleurs/immense.bmp"_qs),
               QByteArray::fromHex("424d00000000000000003600000028000000"
                                   "60ea000060ea00000100180000000000000000000000000000000000") +
                   QByteArray(16, '\0'));
    }

    void init() {
        const ControlRow ligne{"Photo", 0, 0, 0, 0};
        m_photo.emplace(&m_fenetre, ligne);
        m_imageTemp.emplace(&m_fenetre, ligne);
        QCOMPARE(poser(u"ailleurs/entiere.bmp"_qs), Choix::Faite);
    }

    void imageSeMontre() {
        QCOMPARE(poser(u"ailleurs/L'ÉTÉ \"d'or\".JPG"_qs), Choix::Faite);
        QCOMPARE(m_photo->Tag(), QDir::toNativeSeparators(chemin(u"ailleurs/L'ÉTÉ \"d'or\".JPG"_qs)));
        QCOMPARE(m_imageTemp->Picture(), m_photo->Picture());
        QCOMPARE(m_photo->Left(), Twips(1200));
        QVERIFY(!m_photo->isHidden());
    }

    void premiereImageDUnGif() {
        QCOMPARE(poser(u"ailleurs/animee.gif"_qs), Choix::Faite);
        QCOMPARE(m_photo->Picture().pixelColor(0, 0), QColor(Qt::red));
    }

    void fichierIllisibleNeChangeRien_data() {
        QTest::addColumn<QString>("nom");
        for (const char *nom : {"vide.jpg", "texte.jpg", "tronquee.jpg", "immense.bmp", "absente.jpg", "."}) {
            QTest::newRow(nom) << u"ailleurs/"_qs + QString::fromLatin1(nom);
        }
    }

    void fichierIllisibleNeChangeRien() {
        QFETCH(QString, nom);
        const QImage avant = m_photo->Picture();
        QTimer cuisinier;
        connect(&cuisinier, &QTimer::timeout, this, [this] {
            if (auto *message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                m_message = message->windowTitle() + QString::number(message->icon());
                message->accept();
            }
        });
        cuisinier.start(10);
        QCOMPARE(poser(nom), Choix::Illisible);
        QCOMPARE(m_message, u"Savorel"_qs + QString::number(QMessageBox::Warning));
        QCOMPARE(m_photo->Tag(), QDir::toNativeSeparators(chemin(u"ailleurs/entiere.bmp"_qs)));
        QCOMPARE(m_photo->Picture(), avant);
        QCOMPARE(m_imageTemp->Picture(), avant);
        QVERIFY(!m_photo->isHidden());
    }

    void choixSuitLeDossier() {
        QString dossier;
        QCOMPARE(choisir({}, dossier), Choix::Abandonnee);
        QCOMPARE(m_depart, chemin(u"Savorel/image"_qs));
        QCOMPARE(dossier, QString());
        QCOMPARE(m_photo->Tag(), QDir::toNativeSeparators(chemin(u"ailleurs/entiere.bmp"_qs)));

        QCOMPARE(choisir(chemin(u"ailleurs/animee.gif"_qs), dossier), Choix::Faite);
        QCOMPARE(m_photo->Tag(), QDir::toNativeSeparators(chemin(u"ailleurs/animee.gif"_qs)));
        choisir({}, dossier);
        QCOMPARE(m_depart, chemin(u"ailleurs"_qs));

        QVERIFY(QDir(chemin(u"Savorel"_qs)).rmdir(u"image"_qs));
        dossier = chemin(u"parti"_qs);
        choisir({}, dossier);
        QCOMPARE(m_depart, chemin(u"Savorel"_qs));
    }
};

QTEST_MAIN(TestChoisirImage)
#include "TestChoisirImage.moc"
