// The book as delivered, read as the program reads it.
#include "Lignes.h"

#include "platform/richtext/RichText.h"
#include "store/Programme.h"
#include "store/Vocabulaires.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using platform::database::Recordset;

namespace {

const QString kDelivered = QStringLiteral(BOOK_FOLDER);

/// A lookup table and where a recipe or a line names its rows.
struct Vocabulary {
    QString table;
    QString user;
    int position;
};

const auto kVocabularies = std::to_array<Vocabulary>({
    {u"Categorie"_s, u"Cocktails"_s, 2},
    {u"DureeReal"_s, u"Cocktails"_s, 11},
    {u"Verre"_s, u"Cocktails"_s, 3},
    {u"Realisation"_s, u"Cocktails"_s, 5},
    {u"VIN"_s, u"Cocktails"_s, 10},
    {u"Ingredient"_s, u"Ingre"_s, 1},
    {u"Quantite"_s, u"Ingre"_s, 2},
    {u"Mesure"_s, u"Ingre"_s, 3},
});

} // namespace

class TestLivre : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder; ///< a program folder with a copy, so that the build's own file stays as it is

private Q_SLOTS:

    void initTestCase() {
        store::DefinirDossierProgramme(m_folder.path());
        QVERIFY(QFile::copy(kDelivered + u"/db.mdb", store::CheminBase()));
    }

    void vocabulariesAndWhatNamesThem() {
        auto book = store::OuvrirLivre();
        for (const Vocabulary &vocabulary : kVocabularies) {
            Recordset rows = book.OpenRecordset(u"SELECT * From "_s + vocabulary.table);
            const auto count = rows.RecordCount();
            QSet<QString> texts;
            for (int number = 1; !rows.AtEnd(); ++number, rows.MoveNext()) {
                const QString text = rows.Fields(1).Text();
                QCOMPARE(rows.Fields(0).Number(), number);
                QVERIFY2(text == u" " || (!text.isEmpty() && text == text.simplified()), qPrintable(text));
                QVERIFY2(!text.contains(u'<') && !texts.contains(text.toCaseFolded()), qPrintable(text));
                texts.insert(text.toCaseFolded());
            }
            for (Recordset users = book.OpenRecordset(u"SELECT * From "_s + vocabulary.user); !users.AtEnd();
                 users.MoveNext()) {
                const auto number = users.Fields(vocabulary.position).Number();
                QVERIFY2(number >= 1 && number <= count, qPrintable(vocabulary.table));
            }
        }
    }

    void recipesAreWhole() {
        auto book = store::OuvrirLivre();
        QSet<QString> photos;
        Recordset recipes = book.OpenRecordset(u"SELECT * From Cocktails order by Numero asc"_s);
        QCOMPARE(recipes.RecordCount(), 12);
        for (int number = 1; !recipes.AtEnd(); ++number, recipes.MoveNext()) {
            QCOMPARE(recipes.Fields(0).Number(), number);
            QVERIFY(!store::Cout.at(recipes.Fields(8).Number()).isEmpty());
            QVERIFY(!store::Difficulte.at(recipes.Fields(9).Number()).isEmpty());
            const QString photo = recipes.Fields(u"Photo").Text();
            QImageReader picture(kDelivered + u"/photos/" + photo);
            QVERIFY2(picture.size() == QSize(1000, 600) && !picture.read().isNull(), qPrintable(photo));
            photos.insert(photo);

            const QString lines = u"SELECT * From Ingre where Numero = %1"_s.arg(number);
            const auto count = book.OpenRecordset(lines).RecordCount();
            QVERIFY2(count >= 8 && count <= 16, qPrintable(photo));
        }
        const QStringList files = QDir(kDelivered + u"/photos").entryList(QDir::Files);
        QCOMPARE(QSet<QString>(files.begin(), files.end()), photos);
    }

    void textsAreRichAndLongEnough() {
        auto book = store::OuvrirLivre();
        Recordset recipes = book.OpenRecordset(u"SELECT * From Cocktails"_s);
        for (; !recipes.AtEnd(); recipes.MoveNext()) {
            for (const auto &[column, length] :
                 {std::pair(u"preparation"_s, 900), std::pair(u"Deco"_s, 400)}) {
                const QString stored = recipes.Fields(column).Text();
                const QString text = platform::richtext::plainText(stored);
                QVERIFY2(platform::richtext::isRtf(stored) && text.size() >= length, qPrintable(text));
                // Marks that were left in, and apostrophes of a typewriter.
                QVERIFY2(!text.contains(u'*') && !text.contains(u'\''), qPrintable(text));
                QVERIFY2(!stored.contains(u"\\cf"), "the boxes choose the colours, light on dark");
            }
        }
    }

    void linesOfARecipe() {
        // As a sentence of the engine, which gives the lines in the order in which they were stored.
        const QStringList lines = rowsOf(
            u"SELECT q.Quantite, m.Mesure, i.Ingredient From Ingre l, Quantite q, Mesure m, Ingredient i"
            " where l.Numero in (SELECT Numero From Cocktails where Recette = 'gratin dauphinois (le)')"
            " and q.NQuantite = l.NQuantite and m.NMesure = l.NMesure and i.NIngredient = l.NIngre"
            " order by l.rowid desc"_s,
            3);
        QCOMPARE(lines.first(), u"1,2|kg de|pommes de terre à chair fondante"_s);
        QCOMPARE(lines.last(), u" | |poivre du moulin"_s);
    }
};

QTEST_GUILESS_MAIN(TestLivre)
#include "TestLivre.moc"
