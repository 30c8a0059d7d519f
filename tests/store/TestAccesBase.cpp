#include "Lignes.h"

#include "store/AccesBase.h"
#include "store/Programme.h"
#include "store/Textes.h"

#include "platform/database/DatabaseError.h"

#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <memory>

using namespace store;
using platform::database::DatabaseError;

class TestAccesBase : public QObject {
    Q_OBJECT

private:
    static void executer(const QString &sql) { OuvrirLivre().Execute(sql); }

    std::unique_ptr<QTemporaryDir> m_dossier;

private Q_SLOTS:

    void init() {
        m_dossier = std::make_unique<QTemporaryDir>();
        DefinirDossierProgramme(m_dossier->path());
        CreerLivre(CheminBase());
    }

    void choicesAreTrimmedTextsInOrderAndTheDots() {
        QCOMPARE(ChargerCombo(kIngredient), QStringList());

        executer(u"INSERT INTO Ingredient VALUES (1, ' '), (2, NULL), (3, ''), (4, 'Sel '), (5, 'épice'), "
                 "(6, '<B>Pâte :</B>'), (7, 'x<I>'), (8, 'farine'), (9, '<b>eau')"_qs);
        QCOMPARE(ChargerCombo(kIngredient), (QStringList{u"<b>eau"_qs, u"épice"_qs, u"farine"_qs, u"Sel"_qs,
                                                         LignePointillee.toString()}));
    }

    void simpleListKeepsBlankRows() {
        executer(u"INSERT INTO Mesure VALUES (1, 'cl'), (2, ' '), (3, NULL), (4, '</B>'), (5, ' g ')"_qs);
        QCOMPARE(ChargerListeSimple(kMesure), (QStringList{u""_qs, u""_qs, u"g"_qs, u"cl"_qs}));
    }

    void resultsByFilter() {
        executer(
            u"INSERT INTO Ingredient VALUES (1, 'Sel'), (2, '<B>Sel</B>'), (3, 'Épinard'), (5, 'Gros sel')"_qs);
        const auto resultats = [](bool enTete, const QString &filtre) {
            QStringList cles;
            for (const Resultat &ligne : ChargerResultats(
                     u"Select * From Ingredient where NIngredient > 0    order by NIngredient asc "_qs,
                     enTete, filtre)) {
                cles.append(ligne.cle);
            }
            return cles;
        };
        QCOMPARE(resultats(true, u"ép"_qs), QStringList{u"N 3"_qs});
        QCOMPARE(resultats(false, u"S"_qs), (QStringList{u"N 1"_qs, u"N 5"_qs}));
        QCOMPARE(resultats(true, {}), (QStringList{u"N 1"_qs, u"N 3"_qs, u"N 5"_qs}));
        QCOMPARE(resultats(false, {}), QStringList());
        QCOMPARE(resultats(true, u"sel de mer"_qs), QStringList());
    }

    void relabelKeepsTheRestOfTheRow() {
        executer(u"INSERT INTO Verre VALUES (4, 'quatre', 'a', 'b', NULL)"_qs);
        ModifierLibelle(kVerre, 4, u"l'hôte"_qs);
        QCOMPARE(rowsOf(u"SELECT * From Verre"_qs, 5), QStringList{u"4|l'hôte|a|b|-"_qs});
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ModifierLibelle(kVerre, 5, u"x"_qs));
        OuvrirLivre();
    }

    void emptyValueBecomesABlankUnlessGuarded() {
        executer(u"INSERT INTO Cocktails (Numero, Photo, Cout) VALUES (3, 'a.jpg', 1)"_qs);
        const auto photoEtCout = [] { return rowsOf(u"SELECT Photo, Cout From Cocktails"_qs, 2).value(0); };
        ModifierSiRenseigne(3, ChampRecette::Photo, {});
        QCOMPARE(photoEtCout(), u"a.jpg|1"_qs);
        ModifierChamp(3, ChampRecette::Photo, QString());
        ModifierChamp(3, ChampRecette::Cout, 0);
        QCOMPARE(photoEtCout(), u" |0"_qs);
    }

    void replacedLineComesFirst() {
        struct Cas {
            LigneIngre ancienne, nouvelle;
            QStringList attendu;
        };

        const QString deux = u"7|20|2|2"_qs;
        const QString trois = u"7|30|3|3"_qs;

        const auto cas = std::to_array<Cas>({
            {{1, 1, 10}, {5, 1, 10}, {u"7|10|5|1"_qs, trois, deux, deux}},
            {{1, 1, 10}, {1, 1, 10}, {u"7|10|1|1"_qs, trois, deux, deux}}, // moves up
            // One of two equal lines goes, the other is enough.
            {{2, 2, 20}, {2, 2, 20}, {trois, deux, u"7|10|1|1"_qs}},
            {{1, 1, 10}, {3, 3, 30}, {trois, deux, deux}}, // merged into another
            // No such line: only added.
            {{9, 9, 90}, {4, 4, 40}, {u"7|40|4|4"_qs, trois, deux, deux, u"7|10|1|1"_qs}},
        });

        for (const auto &[ancienne, nouvelle, attendu] : cas) {
            SupprimerFiches(kIngre, 7);
            executer(
                u"INSERT INTO Ingre VALUES (7, 10, 1, 1), (7, 20, 2, 2), (7, 20, 2, 2), (7, 30, 3, 3), (8, 1, 1, 1)"_qs);
            RemplacerLigneIngre(7, ancienne, nouvelle);
            QCOMPARE(rowsOf(u"SELECT * From Ingre where Numero = 7 order by Numero desc"_qs, 4), attendu);
        }
        QCOMPARE(rowsOf(u"SELECT * From Ingre where Numero = 8"_qs, 1).size(), 5);
    }

    void addedRowsTakeTheNextNumber() {
        AjouterFiche(u"Sel"_qs, kIngredient);
        AjouterFiche(u"Sel"_qs, kIngredient);
        QCOMPARE(tableOf(u"Ingredient"_qs), u"1|Sel, 2|Sel"_qs);
        // The number of a deleted last row is given again.
        SupprimerFiches(kIngredient, 2);
        AjouterFiche(u"l'ail"_qs, kIngredient);
        QCOMPARE(tableOf(u"Ingredient"_qs), u"1|Sel, 2|l'ail"_qs);

        AjouterFiche(u"2"_qs, kVerre);
        QCOMPARE(RechercherNumero(u"4"_qs, kVerre), 2);
        QCOMPARE(rowsOf(u"SELECT * From Verre"_qs, 5), (QStringList{u"1|2| | | "_qs, u"2|4|-|-|-"_qs}));
    }

    void numberIsFoundOrMade() {
        struct Cas {
            QString texte;
            qint64 numero;
            QString ajoutee;
        };

        const auto cas = std::to_array<Cas>({
            {u"ÉPICE D'ÉTÉ"_qs, 2, {}},
            {u"sel"_qs, 1, {}}, // of equal texts the oldest
            {u"epice d'été"_qs, 10, u"10|epice d'été"_qs},
            {u"sel "_qs, 10, u"10|sel "_qs},
            {u"l'\"ail\"; --"_qs, 10, u"10|l'\"ail\"; --"_qs},
            {LignePointillee.toString(), 10, u"10| "_qs},
            {u" "_qs, 9, {}},
            {{}, -5, {}}, // no number
        });

        executer(u"INSERT INTO Ingredient VALUES (1, 'Sel'), (2, 'épice d''été'), (5, 'SEL'), (9, ' ')"_qs);
        for (const auto &[texte, numero, ajoutee] : cas) {
            QCOMPARE(RechercherNumero(texte, kIngredient).value_or(-5), numero);
            QCOMPARE(rowsOf(u"SELECT * From Ingredient"_qs, 2).value(4), ajoutee);
            SupprimerFiches(kIngredient, 10);
        }
    }

    /// Lists and searches over many recipes must not read the pages of the long texts.
    void listsWalkTheNarrowIndex() {
        for (const QString &tail :
             {QString(), u" WHERE NCategorie = 3 ORDER BY NCategorie DESC, rowid DESC"_qs,
              u" WHERE difficulte = 3 ORDER BY difficulte DESC, rowid DESC"_qs,
              u" WHERE Numero > 0 and Cout = 1 ORDER BY Numero DESC, rowid DESC"_qs}) {
            const QString plan =
                rowsOf(u"EXPLAIN QUERY PLAN SELECT rowid, Numero, Recette FROM Cocktails" + tail, 4)
                    .join(u' ');
            QVERIFY2(plan.contains(u"COVERING INDEX"), qPrintable(plan));
        }
    }
};

QTEST_GUILESS_MAIN(TestAccesBase)
#include "TestAccesBase.moc"
