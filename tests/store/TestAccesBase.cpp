#include "store/AccesBase.h"
#include "store/Livre.h"
#include "store/Programme.h"
#include "store/Textes.h"

#include "platform/database/DatabaseError.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace store;
using platform::database::Database;
using platform::database::DatabaseError;
using platform::database::Recordset;

namespace {

/// A list as a control offers it.
struct Liste {
    QStringList lignes;

    void Clear() { lignes.clear(); }

    void AddItems(const QStringList &textes) { lignes.append(textes); }

    void AddItem(const QString &cle, const QString &texte, int icone) {
        lignes.append(cle + u'/' + texte + u'/' + QString::number(icone));
    }
};

} // namespace

class TestAccesBase : public QObject {
    Q_OBJECT

private:
    static void executer(const QString &sql) { OuvrirLivre().Execute(sql); }

    /// All columns of the rows of a query; Null as "-".
    static QStringList lire(const QString &sql, int colonnes) {
        Database base = OuvrirLivre();
        Recordset fiches = base.OpenRecordset(sql);
        QStringList lignes;
        for (; !fiches.AtEnd(); fiches.MoveNext()) {
            QStringList ligne;
            for (int i = 0; i < colonnes; ++i) {
                ligne.append(fiches.Fields(i).IsNull() ? u"-"_qs : fiches.Fields(i).Text());
            }
            lignes.append(ligne.join(u'|'));
        }
        return lignes;
    }

    static QStringList ingredients() { return lire(u"SELECT * From Ingredient"_qs, 2); }

    static QStringList lignesDeRecette() {
        return lire(u"SELECT * From Ingre where Numero = 7 order by Numero desc"_qs, 4);
    }

    std::unique_ptr<QTemporaryDir> m_dossier;

private Q_SLOTS:

    void init() {
        m_dossier = std::make_unique<QTemporaryDir>();
        DefinirDossierProgramme(m_dossier->path());
        CreerLivre(CheminBase());
    }

    void listKeys() {
        QCOMPARE(CleDeListe(12), u"N 12"_qs);
        QCOMPARE(NumeroDeCle(u"N 12"), 12);
        QCOMPARE(NumeroDeCle(u""), 0);
        QCOMPARE(LignePointillee.size(), 855);
    }

    void columnsStandInTheirPlaces_data() {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("columns");
        QTest::newRow("recipes")
            << u"Cocktails"_qs
            << u"Numero Recette NCategorie Nverre Photo Nreal preparation Deco Cout difficulte "
               "Teneur NDureeReal"_qs;
        QTest::newRow("lines") << u"Ingre"_qs << u"Numero NIngre NQuantite NMesure"_qs;
        QTest::newRow("persons") << u"verre"_qs << u"Nverre VERRE Verre2 Verre3 Verre4"_qs;
        for (const QString &table : {u"Categorie"_qs, u"DureeReal"_qs, u"Realisation"_qs, u"Vin"_qs,
                                     u"Ingredient"_qs, u"Quantite"_qs, u"Mesure"_qs}) {
            QTest::newRow(qPrintable(table)) << table << QString(u'N' + table + u' ' + table);
        }
    }

    void columnsStandInTheirPlaces() {
        QFETCH(const QString, table);
        QFETCH(const QString, columns);
        const QStringList names = columns.split(u' ');
        Database base = OuvrirLivre();
        Recordset rows = base.OpenRecordset(u"SELECT * From " + table);
        rows.AddNew();
        for (int i = 0; i < names.size(); ++i) {
            rows.Fields(QStringView(names[i])) = i;
        }
        rows.Update();
        rows.SetBookmark(rows.LastModified());
        for (int i = 0; i < names.size(); ++i) {
            QCOMPARE(rows.Fields(i).Number(), i);
        }
        QVERIFY_EXCEPTION_THROWN(rows.Fields(int(names.size())).IsNull(), DatabaseError);
    }

    void comboShowsTrimmedTextsInOrderAndTheDots() {
        Liste liste{{u"ancien"_qs}};
        ChargerCombo(liste, u"Ingredient"_qs, u"Ingredient"_qs);
        QVERIFY(liste.lignes.isEmpty());

        executer(u"INSERT INTO Ingredient VALUES (1, ' '), (2, NULL), (3, '')"_qs);
        ChargerCombo(liste, u"Ingredient"_qs, u"Ingredient"_qs);
        QCOMPARE(liste.lignes, QStringList{LignePointillee.toString()});

        executer(
            u"INSERT INTO Ingredient VALUES (4, 'Sel '), (5, 'épice'), (6, '<B>Pâte :</B>'), (7, 'x<I>'),"
            "(8, 'farine'), (9, '<b>eau')"_qs);
        ChargerCombo(liste, u"Ingredient"_qs, u"ingredient"_qs);
        QCOMPARE(liste.lignes, (QStringList{u"<b>eau"_qs, u"épice"_qs, u"farine"_qs, u"Sel"_qs,
                                            LignePointillee.toString()}));
    }

    void simpleListKeepsBlankRowsAndAddsUp() {
        executer(u"INSERT INTO Mesure VALUES (1, 'cl'), (2, ' '), (3, NULL), (4, '</B>'), (5, ' g ')"_qs);
        Liste liste;
        for (int tour = 1; tour <= 2; ++tour) {
            ChargerListeSimple(u"Mesure"_qs, u"NMesure"_qs, 1, liste);
            QCOMPARE(liste.lignes.size(), 4 * tour);
        }
        QCOMPARE(liste.lignes.mid(4), (QStringList{u"cl"_qs, u""_qs, u""_qs, u"g"_qs}));
    }

    void resultsByFilter_data() {
        QTest::addColumn<bool>("enTete");
        QTest::addColumn<QString>("filtre");
        QTest::addColumn<QString>("attendu");
        QTest::newRow("beginning, whatever the case") << true << u"ép"_qs << u"N 3/Épinard/9"_qs;
        QTest::newRow("anywhere") << false << u"S"_qs << u"N 1/Sel/9 N 5/Gros sel/9"_qs;
        QTest::newRow("empty, beginning: all")
            << true << QString() << u"N 1/Sel/9 N 3/Épinard/9 N 5/Gros sel/9"_qs;
        QTest::newRow("empty, anywhere: none") << false << QString() << QString();
        QTest::newRow("longer than the text") << true << u"sel de mer"_qs << QString();
    }

    void resultsByFilter() {
        QFETCH(const bool, enTete);
        QFETCH(const QString, filtre);
        QFETCH(const QString, attendu);
        executer(
            u"INSERT INTO Ingredient VALUES (1, 'Sel'), (2, '<B>Sel</B>'), (3, 'Épinard'), (5, 'Gros sel')"_qs);
        Liste liste{{u"ancien"_qs}};
        ChargerResultats(u"Select * From Ingredient where NIngredient > 0    order by NIngredient asc "_qs,
                         liste, 9, enTete, filtre);
        QCOMPARE(liste.lignes.join(u' '), attendu);
    }

    void relabelKeepsTheRestOfTheRow() {
        executer(u"INSERT INTO Verre VALUES (4, 'quatre', 'a', 'b', NULL)"_qs);
        ModifierLibelle(u"Verre"_qs, 4, u"l'hôte"_qs, u"NVerre"_qs);
        QCOMPARE(lire(u"SELECT * From Verre"_qs, 5), QStringList{u"4|l'hôte|a|b|-"_qs});
        QVERIFY_EXCEPTION_THROWN(ModifierLibelle(u"Verre"_qs, 5, u"x"_qs, u"NVerre"_qs), DatabaseError);
        OuvrirLivre();
    }

    void emptyValueBecomesABlankForTheCallerToo() {
        executer(u"INSERT INTO Cocktails (Numero, Photo, Cout) VALUES (3, 'a.jpg', 1)"_qs);
        QVariant valeur = QString();
        ModifierChamp(u"Cocktails"_qs, 3, valeur, u"Numero"_qs, 4);
        QCOMPARE(valeur.toString(), u" "_qs);
        QVariant code = 0;
        ModifierChamp(u"Cocktails"_qs, 3, code, u"Numero"_qs, 8);
        QCOMPARE(lire(u"SELECT Photo, Cout From Cocktails"_qs, 2), QStringList{u" |0"_qs});
    }

    void guardedChangePassesOverTheEmptyText() {
        executer(u"INSERT INTO Cocktails (Numero, Photo) VALUES (3, 'a.jpg')"_qs);
        QVariant vide = QString();
        ModifierSiRenseigne(vide, u"Cocktails"_qs, 3, 4);
        QCOMPARE(lire(u"SELECT Photo From Cocktails"_qs, 1), QStringList{u"a.jpg"_qs});
        QVariant blanc = u" "_qs;
        ModifierSiRenseigne(blanc, u"Cocktails"_qs, 3, 4);
        QCOMPARE(lire(u"SELECT Photo From Cocktails"_qs, 1), QStringList{u" "_qs});
        // Any other spelling of the table takes the other key, which this one does not have.
        QVERIFY_EXCEPTION_THROWN(ModifierSiRenseigne(blanc, u"Categorie"_qs, 3, 1), DatabaseError);
    }

    void replacedLineComesFirst_data() {
        QTest::addColumn<LigneIngre>("ancienne");
        QTest::addColumn<LigneIngre>("nouvelle");
        QTest::addColumn<QString>("attendu");
        QTest::newRow("another quantity")
            << LigneIngre{1, 1, 10} << LigneIngre{5, 1, 10} << u"7|10|5|1 7|30|3|3 7|20|2|2 7|20|2|2"_qs;
        QTest::newRow("the same line moves up")
            << LigneIngre{1, 1, 10} << LigneIngre{1, 1, 10} << u"7|10|1|1 7|30|3|3 7|20|2|2 7|20|2|2"_qs;
        QTest::newRow("one of two equal lines goes, the other is enough")
            << LigneIngre{2, 2, 20} << LigneIngre{2, 2, 20} << u"7|30|3|3 7|20|2|2 7|10|1|1"_qs;
        QTest::newRow("merged into another line")
            << LigneIngre{1, 1, 10} << LigneIngre{3, 3, 30} << u"7|30|3|3 7|20|2|2 7|20|2|2"_qs;
        QTest::newRow("no such line: only added") << LigneIngre{9, 9, 90} << LigneIngre{4, 4, 40}
                                                  << u"7|40|4|4 7|30|3|3 7|20|2|2 7|20|2|2 7|10|1|1"_qs;
    }

    void replacedLineComesFirst() {
        QFETCH(const LigneIngre, ancienne);
        QFETCH(const LigneIngre, nouvelle);
        QFETCH(const QString, attendu);
        executer(
            u"INSERT INTO Ingre VALUES (7, 10, 1, 1), (7, 20, 2, 2), (8, 10, 1, 1), (7, 20, 2, 2), (7, 30, 3, 3)"_qs);
        RemplacerLigneIngre(7, ancienne, nouvelle);
        QCOMPARE(lignesDeRecette().join(u' '), attendu);
        QCOMPARE(lire(u"SELECT * From Ingre where Numero = 8"_qs, 4), QStringList{u"8|10|1|1"_qs});
    }

    void deletesEveryRowOfAValue() {
        executer(u"INSERT INTO Ingre VALUES (7, 10, 1, 1), (7, 20, 2, 2), (8, 10, 1, 1)"_qs);
        SupprimerFiches(u"Ingre"_qs, 9, u"Numero"_qs);
        SupprimerFiches(u"Ingre"_qs, 7, u"Numero"_qs);
        QCOMPARE(lire(u"SELECT * From Ingre"_qs, 4), QStringList{u"8|10|1|1"_qs});
    }

    void addedRowsTakeTheNextNumber() {
        AjouterFiche(u"Sel"_qs, u"Ingredient"_qs, u"NIngredient"_qs);
        AjouterFiche(u"Sel"_qs, u"Ingredient"_qs, u"NIngredient"_qs);
        QCOMPARE(ingredients(), (QStringList{u"1|Sel"_qs, u"2|Sel"_qs}));
        // The number of a deleted last row is given again.
        SupprimerFiches(u"Ingredient"_qs, 2, u"NIngredient"_qs);
        AjouterFiche(u"l'ail"_qs, u"Ingredient"_qs, u"NIngredient"_qs);
        QCOMPARE(ingredients(), (QStringList{u"1|Sel"_qs, u"2|l'ail"_qs}));

        AjouterFiche(u"2"_qs, u"Verre"_qs, u"NVerre"_qs);
        qint64 numero = 0;
        RechercherNumero(u"4"_qs, numero, u"Verre"_qs, u"NVerre"_qs);
        QCOMPARE(lire(u"SELECT * From Verre"_qs, 5), (QStringList{u"1|2| | | "_qs, u"2|4|-|-|-"_qs}));
    }

    void numberIsFoundOrMade_data() {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<int>("numero");
        QTest::addColumn<QString>("ajoutee");
        QTest::newRow("whatever the case") << u"ÉPICE D'ÉTÉ"_qs << 2 << QString();
        QTest::newRow("of equal texts the oldest") << u"sel"_qs << 1 << QString();
        QTest::newRow("another accent is another text") << u"epice d'été"_qs << 10 << u"10|epice d'été"_qs;
        QTest::newRow("a trailing blank too") << u"sel "_qs << 10 << u"10|sel "_qs;
        QTest::newRow("quotes stored single") << u"l'\"ail\"; --"_qs << 10 << u"10|l'\"ail\"; --"_qs;
        QTest::newRow("dots never found") << LignePointillee.toString() << 10 << u"10| "_qs;
        QTest::newRow("a blank is found") << u" "_qs << 9 << QString();
        QTest::newRow("empty changes nothing") << QString() << -5 << QString();
    }

    void numberIsFoundOrMade() {
        QFETCH(const QString, texte);
        QFETCH(const int, numero);
        QFETCH(const QString, ajoutee);
        executer(u"INSERT INTO Ingredient VALUES (1, 'Sel'), (2, 'épice d''été'), (5, 'SEL'), (9, ' ')"_qs);
        qint64 trouve = -5;
        RechercherNumero(texte, trouve, u"Ingredient"_qs, u"NIngredient"_qs);
        QCOMPARE(trouve, numero);
        QCOMPARE(ingredients().mid(4).join(u' '), ajoutee);
    }

    /// Lists and searches over many recipes must not read the pages of the long texts.
    void listsWalkTheNarrowIndex_data() {
        QTest::addColumn<QString>("tail");
        QTest::newRow("all titles") << QString();
        QTest::newRow("a group") << u" WHERE NCategorie = 3 ORDER BY NCategorie DESC, rowid DESC"_qs;
        QTest::newRow("a class") << u" WHERE difficulte = 3 ORDER BY difficulte DESC, rowid DESC"_qs;
        QTest::newRow("search") << u" WHERE Numero > 0 and Cout = 1 ORDER BY Numero DESC, rowid DESC"_qs;
    }

    void listsWalkTheNarrowIndex() {
        QFETCH(const QString, tail);
        Database base = OuvrirLivre();
        const QString plan =
            base.OpenRecordset(u"EXPLAIN QUERY PLAN SELECT rowid, Numero, Recette FROM Cocktails" + tail)
                .Fields(u"detail")
                .Text();
        QVERIFY2(plan.contains(u"COVERING INDEX"), qPrintable(plan));
    }
};

QTEST_GUILESS_MAIN(TestAccesBase)
#include "TestAccesBase.moc"
