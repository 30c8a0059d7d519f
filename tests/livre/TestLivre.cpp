// The book as delivered, read as the program reads it.
#include "Rows.h"

#include "platform/richtext/RichText.h"
#include "store/Programme.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestLivre : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder; ///< a program folder with a copy, so that the build's own file stays as it is

private Q_SLOTS:

    void initTestCase() {
        store::DefinirDossierProgramme(m_folder.path());
        QVERIFY(QFile::copy(QStringLiteral(BOOK_FOLDER "/db.mdb"), store::CheminBase()));
    }

    /// As sentences of the engine, which give the lines in the order in which they were stored.
    void theTextsOfARecipe() {
        const QString gratin =
            u"c.Numero in (SELECT Numero From Cocktails where Recette = 'gratin dauphinois (le)')"_s;
        QCOMPARE(
            rowsOf(u"SELECT c.Cout, c.difficulte, a.Categorie, d.DureeReal, v.Verre, r.Realisation, w.VIN"
                   " From Cocktails c, Categorie a, DureeReal d, Verre v, Realisation r, VIN w where "_s +
                       gratin +
                       u" and a.NCategorie = c.NCategorie and d.NDureeReal = c.NDureeReal"
                       " and v.NVerre = c.Nverre and r.NRealisation = c.Nreal and w.NVIN = c.Teneur",
                   7),
            QStringList{u"1|2|1 heure 15|25 minutes|6 personnes|Accompagnements|Savoie blanc vif"_s});
        const QStringList lines = rowsOf(
            u"SELECT q.Quantite, m.Mesure, i.Ingredient From Ingre c, Quantite q, Mesure m, Ingredient i where "_s +
                gratin +
                u" and q.NQuantite = c.NQuantite and m.NMesure = c.NMesure and i.NIngredient = c.NIngre"
                " order by c.rowid desc",
            3);
        QCOMPARE(lines.value(0), u"1,2|kg de|pommes de terre à chair fondante"_s);
        QCOMPARE(lines.value(8), u" | |poivre du moulin"_s);
        QCOMPARE(lines.size(), 9);
    }

    void picturesAndRichTexts() {
        auto book = store::OuvrirLivre();
        QStringList photos;
        for (auto recipes = book.OpenRecordset(u"SELECT * From Cocktails"_s); !recipes.AtEnd();
             recipes.MoveNext()) {
            photos += recipes.Fields(u"Photo").Text();
            QVERIFY2(!QImage(QStringLiteral(BOOK_FOLDER "/photos/") + photos.last()).isNull(),
                     qPrintable(photos.last()));
            for (const QString &column : {u"preparation"_s, u"Deco"_s}) {
                const QString stored = recipes.Fields(column).Text();
                const QString text = platform::richtext::plainText(stored);
                QVERIFY2(platform::richtext::isRtf(stored), qPrintable(stored));
                QVERIFY2(!text.contains(u'*'), qPrintable(text)); // a mark that was left in
                QVERIFY2(!stored.contains(u"\\cf"), "the boxes choose the colours, light on dark");
            }
        }
        photos.sort();
        QCOMPARE(photos, QDir(QStringLiteral(BOOK_FOLDER "/photos")).entryList(QDir::Files, QDir::Name));
    }
};

QTEST_GUILESS_MAIN(TestLivre)
#include "TestLivre.moc"
