#include "Lignes.h"
#include "LivreEssai.h"

#include "pictures/CheminPhoto.h"
#include "pictures/EnregistrerPhoto.h"
#include "platform/database/DatabaseError.h"
#include "store/CreationRecette.h"

#include <QImage>

#include <memory>

using platform::database::DatabaseError;
using store::RecetteSaisie;

class TestCreation : public QObject {
    Q_OBJECT

private:
    static RecetteSaisie soup() {
        RecetteSaisie recipe;
        recipe.titre = u"Soupe"_qs;
        recipe.dureeCuisson = u"10 mn"_qs;
        return recipe;
    }

    static store::TextesNouveaux save(RecetteSaisie &recipe, const QImage &picture = {}) {
        return store::EnregistrerRecette(recipe, store::kSaisieManuelle, [&picture](const QString &name) {
            return pictures::EnregistrerPhoto(picture, name);
        });
    }

    static QString recipe(int number, const QString &columns, int count) {
        return rowsOf(u"SELECT %1 From Cocktails where Numero = %2"_qs.arg(columns).arg(number), count)
            .value(0);
    }

    QStringList photos() const {
        return QDir(m_book->path(u"photos"_qs)).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<LivreEssai> m_book;

private Q_SLOTS:

    void init() { m_book = std::make_unique<LivreEssai>(); }

    void everyFieldGoesToItsColumn() {
        LivreEssai::execute(
            {u"INSERT INTO Cocktails (Numero, Recette) VALUES (4, 'Tarte')"_qs,
             u"INSERT INTO Categorie VALUES (7, '35 MN')"_qs, u"INSERT INTO Quantite VALUES (3, '200')"_qs,
             u"INSERT INTO Ingre VALUES (5, 1, 1, 1), (4, 1, 1, 1)"_qs}); // 5: left by a deleted recipe
        RecetteSaisie saisie{.titre = u"Poulet"_qs,
                             .cout = u"très cher"_qs,
                             .difficulte = u"Moyen"_qs,
                             .vin = u"Chinon"_qs,
                             .dureeCuisson = u"35 mn"_qs,
                             .personnes = u"4 personnes"_qs,
                             .plat = u"Plat"_qs,
                             .dureeReal = u"<B>20</B> mn"_qs,
                             .preparation = u"{\\rtf1 Cuire}"_qs,
                             .complements = u"{\\rtf1 Servir}"_qs,
                             .lignes = {{u"200"_qs, u"g"_qs, u"Riz"_qs},
                                        {},
                                        {{}, {}, u"Sel"_qs},
                                        {u"200"_qs, u"g"_qs, u"Sel"_qs},
                                        {u" "_qs, {}, {}}}};
        const store::TextesNouveaux added = save(saisie);
        QCOMPARE(recipe(5, u"*"_qs, 12),
                 u"5|Poulet|7|1|Poulet.jpg|1|{\\rtf1 Cuire}|{\\rtf1 Servir}|4|3|1|1"_qs);
        QCOMPARE(tableOf(u"DureeReal"_qs), u"1| 20  mn"_qs);
        QCOMPARE(rowsOf(u"SELECT * From Verre"_qs, 5), QStringList(u"1|4 personnes|-|-|-"_qs));
        QCOMPARE(tableOf(u"Realisation"_qs), u"1|Plat"_qs);
        QCOMPARE(tableOf(u"VIN"_qs), u"1|Chinon"_qs);
        // Last line first, so that the newest row is the first line; a blank makes a row, an empty line does not.
        QCOMPARE(tableOf(u"Quantite"_qs), u"3|200, 4| "_qs);
        QCOMPARE(tableOf(u"Mesure"_qs), u"1|g"_qs);
        QCOMPARE(tableOf(u"Ingredient"_qs), u"1|Sel, 2|Riz"_qs);
        QCOMPARE(rowsOf(u"SELECT * From Ingre where Numero = 5 order by Numero desc"_qs, 4),
                 QStringList({u"5|2|3|1"_qs, u"5|1|0|0"_qs, u"5|1|3|1"_qs, u"5|0|4|0"_qs}));
        QCOMPARE(rowsOf(u"SELECT * From Ingre where Numero = 4"_qs, 1).size(), 1);
        QCOMPARE(added.quantites, QStringList{u" "_qs});
        QCOMPARE(added.mesures, QStringList{u"g"_qs});
        QCOMPARE(added.ingredients, QStringList({u"Sel"_qs, u"Riz"_qs}));
    }

    /// Six tables store apostrophes doubled and never find such a row again; two store them as typed.
    void apostrophes() {
        const QString text = u"d'A"_qs;
        for (int turn = 0; turn < 2; ++turn) {
            RecetteSaisie saisie = soup();
            saisie.vin = saisie.dureeCuisson = saisie.personnes = saisie.plat = saisie.dureeReal = text;
            saisie.lignes = {{text, text, text}};
            QCOMPARE(save(saisie).quantites, QStringList(text));
        }
        for (const QString &table :
             {u"Categorie"_qs, u"DureeReal"_qs, u"Verre"_qs, u"Realisation"_qs, u"VIN"_qs, u"Quantite"_qs}) {
            QCOMPARE(tableOf(table), u"1|d''A, 2|d''A"_qs);
        }
        QCOMPARE(tableOf(u"Mesure"_qs), u"1|d'A"_qs);
        QCOMPARE(tableOf(u"Ingredient"_qs), u"1|d'A"_qs);
    }

    /// What is stored of a title, and that its picture is found again by the name stored.
    void titles() {
        const struct {
            QString typed, stored, photo;
        } titles[]{
            {u"Le Poulet"_qs, u"Poulet (Le)"_qs, u"Le Poulet.jpg"_qs},
            {u"le  poulet "_qs, u"poulet (Le)"_qs, u"le  poulet.jpg"_qs},
            {u"Le"_qs, u"Le"_qs, u"Le.jpg"_qs},
            {u" Le riz"_qs, u" Le riz"_qs, u"Le riz.jpg"_qs},
            {u"Les La L'"_qs, u"Les La L'"_qs, u"Les La L'.jpg"_qs},
            {u"\"Le\" \"riz\""_qs, u"riz (Le)"_qs, u"Le riz (2).jpg"_qs},
            {u"Riz<BR>au lait"_qs, u"Riz<BR>au lait"_qs, u"Rizau lait.jpg"_qs},
        };

        int number = 0;
        for (const auto &title : titles) {
            RecetteSaisie saisie = soup();
            saisie.titre = title.typed;
            save(saisie, QImage(4, 3, QImage::Format_RGB32));
            QCOMPARE(recipe(++number, u"Recette, Photo"_qs, 2), QString(title.stored + u"|" + title.photo));
            QCOMPARE(pictures::CheminPhoto(title.photo), m_book->path(u"photos/"_qs + title.photo));
        }
    }

    void thePictureIsAJpegInItsNaturalSize() {
        QImage picture(1200, 700, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        RecetteSaisie saisie = soup();
        save(saisie, picture);
        QCOMPARE(photos(), QStringList(u"Soupe.jpg"_qs));
        const QString file = pictures::CheminPhoto(recipe(1, u"Photo"_qs, 1));
        QImage read;
        QVERIFY(read.load(file, "JPG"));
        QCOMPARE(read.size(), picture.size());
        QVERIFY(read.pixelColor(600, 350).lightness() > 250); // transparent is white, as on the screen

        // A further recipe of that title has a picture of its own.
        save(saisie, picture.copy(0, 0, 30, 20));
        save(saisie, picture.copy(0, 0, 40, 20));
        QCOMPARE(QImage(file).size(), picture.size());
        QCOMPARE(recipe(2, u"Photo"_qs, 1), u"Soupe (2).jpg"_qs);
        QCOMPARE(QImage(pictures::CheminPhoto(recipe(3, u"Photo"_qs, 1))).size(), QSize(40, 20));
        QVERIFY(QFile(file).permissions() & QFile::ReadOther);
    }

    void aRefusedNameLeavesNoFileAnywhere() {
        const QImage picture(20, 20, QImage::Format_RGB32);
        QVERIFY(QFile::link(m_book->path(u"dehors.jpg"_qs), m_book->path(u"photos/lien.jpg"_qs)));
        const QString tooLong(252, u'x');
        for (const QString &title :
             {u"Riz/lait"_qs, u"../evade"_qs, u"a\\b"_qs, tooLong, m_book->path(u"absolu"_qs)}) {
            RecetteSaisie saisie = soup();
            saisie.titre = title;
            save(saisie, picture);
            QCOMPARE(recipe(1, u"Photo"_qs, 1), title + u".jpg"_qs);
            LivreEssai::execute({u"DELETE FROM Cocktails"_qs});
        }
        QCOMPARE(photos(), QStringList());

        // Nothing is written through a link that leads nowhere yet.
        RecetteSaisie linked = soup();
        linked.titre = u"lien"_qs;
        save(linked, picture);
        QCOMPARE(photos(), QStringList(u"lien (2).jpg"_qs));
        QCOMPARE(QDir(m_book->path({})).entryList(QDir::Files), QStringList(u"db.mdb"_qs));
    }

    /// From the picture on, what fails is left out, and only that.
    void failuresBehindThePictureAreLeftOut() {
        LivreEssai::execute(
            {u"CREATE TRIGGER m BEFORE INSERT ON Mesure BEGIN SELECT RAISE(ABORT, 'm'); END"_qs,
             u"CREATE TRIGGER v BEFORE INSERT ON VIN BEGIN SELECT RAISE(ABORT, 'v'); END"_qs,
             u"CREATE TRIGGER i BEFORE INSERT ON Ingre WHEN NEW.NIngre = 1 BEGIN SELECT RAISE(ABORT, 'i'); END"_qs,
             u"DROP TABLE Cocktails"_qs,
             u"CREATE TABLE Cocktails (Numero INTEGER PRIMARY KEY, Recette, NCategorie, Nverre, Photo, Nreal,"
             " preparation, Cout, difficulte, Teneur, NDureeReal)"_qs}); // without Deco
        RecetteSaisie saisie = soup();
        saisie.vin = u"Chinon"_qs;
        saisie.difficulte = u"Facile"_qs;
        saisie.lignes = {{u"1"_qs, u"g"_qs, u"Riz"_qs}, {u"2"_qs, {}, u"Sel"_qs}};
        save(saisie);
        QCOMPARE(recipe(1, u"Recette, Photo, difficulte"_qs, 3), u"Soupe|Soupe.jpg|2"_qs);
        QCOMPARE(tableOf(u"VIN"_qs), QString());
        QCOMPARE(tableOf(u"Mesure"_qs), QString());
        QCOMPARE(tableOf(u"Ingredient"_qs), u"1|Sel, 2|Riz"_qs);
        QCOMPARE(rowsOf(u"SELECT Numero, NIngre, NQuantite From Ingre"_qs, 3), QStringList(u"1|2|2"_qs));
    }

    void failuresBeforeThePictureEndTheSave() {
        LivreEssai::execute(
            {u"CREATE TRIGGER r BEFORE INSERT ON Realisation BEGIN SELECT RAISE(ABORT, 'r'); END"_qs});
        RecetteSaisie saisie = soup();
        saisie.plat = u"Entrée"_qs;
        QVERIFY_THROWS_EXCEPTION(DatabaseError, save(saisie));
        QCOMPARE(tableOf(u"Cocktails"_qs), QString()); // and the book is closed again
        QCOMPARE(tableOf(u"Categorie"_qs), u"1|10 mn"_qs);
    }

    void anImportedRecipeDiffersInItsWay() {
        LivreEssai::execute(
            {u"CREATE TRIGGER i BEFORE INSERT ON Ingre BEGIN SELECT RAISE(ABORT, 'i'); END"_qs});
        RecetteSaisie saisie = soup();
        saisie.dureeReal = u"<B>5 mn"_qs;
        saisie.lignes = {{{}, {}, u"Sel"_qs}};
        QVERIFY_THROWS_EXCEPTION(
            DatabaseError,
            store::EnregistrerRecette(saisie, store::kImport, [](const QString &name) { return name; }));
        QCOMPARE(tableOf(u"DureeReal"_qs), u"1|<B>5 mn"_qs);
    }
};

QTEST_GUILESS_MAIN(TestCreation)
#include "TestCreation.moc"
