#include "Lignes.h"
#include "LivreEssai.h"

#include "browser/Fiche.h"
#include "browser/TableDesValeurs.h"
#include "browser/Valeurs.h"
#include "store/Textes.h"
#include "store/Vocabulaires.h"

#include <QLineEdit>
#include <QListView>

#include <memory>
#include <stdexcept>

using namespace browser;
using namespace platform::controls;

namespace {

const QString kDots = store::LignePointillee.toString();

/// Text of every kind that a cook may type into a field of one line.
const QString kDifficult = u"L'« œuf » \"dur\" <B>à l'eau</B> & 50 % \U0001F373 "_qs + QString(10'000, u'é');

} // namespace

class TestModifications : public QObject {
    Q_OBJECT

private:
    /// The row that a list offers is chosen, as by a click on it.
    static void choose(DropList &list, const QString &text) {
        const int row = list.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
        QVERIFY2(row >= 0, qPrintable(text));
        list.setCurrentIndex(row);
        Q_EMIT list.activated(row);
    }

    static void typeInto(DropList &list, const QString &text) {
        list.lineEdit()->selectAll();
        list.lineEdit()->insert(text);
    }

    DropList &open(int data, DropList &list) {
        m_window->Data(data).SetValue(true);
        return list;
    }

    static QString stored(const QString &column, int recipe = 1) {
        return rowsOf(u"SELECT %1 From Cocktails where Numero = %2"_qs.arg(column).arg(recipe), 1).value(0);
    }

    /// The lines of recipe 1 as they are displayed, the newest first: recipe, ingredient, quantity, measure.
    static QStringList lines() {
        return rowsOf(u"SELECT * From Ingre where Numero = 1 order by Numero desc"_qs, 4);
    }

    static qsizetype count(const QString &query) { return rowsOf(query, 1).size(); }

    void show() { ChargerRecette(*m_window, 1); }

    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<Frmmain> m_window;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreEssai>();
        LivreEssai::addTarte();
        LivreEssai::execute({
            u"INSERT INTO VIN VALUES (2, 'Cidre')"_qs,
            u"INSERT INTO Ingredient VALUES (2, 'Eau'), (3, 'Farine')"_qs,
            u"INSERT INTO Quantite VALUES (2, '200')"_qs,
            u"INSERT INTO Mesure VALUES (2, 'ml')"_qs,
            u"INSERT INTO Ingre VALUES (1, 1, 1, 1), (1, 2, 2, 2)"_qs,
        });
        m_window = std::make_unique<Frmmain>();
        openView(*m_window, 0);
    }

    void cleanup() { m_window.reset(); }

    void aChosenValueIsStoredAtOnce() {
        DropList &list = open(6, m_window->LCategorie);
        QVERIFY(list.hasFocus());
        QCOMPARE(list.Text(), u"10 mn"_qs);
        choose(list, u"1 heure"_qs);
        QCOMPARE(stored(u"NCategorie"_qs), u"2"_qs);
        QCOMPARE(m_window->Data(6).Caption(), u"1 heure"_qs);
        QVERIFY(!list.isVisible());
        QVERIFY(m_window->Data(6).hasFocus());
    }

    void theLowerListNamesTheRecipe() {
        LivreEssai::execute({
            u"INSERT INTO Cocktails VALUES (2, 'Bisque', 2, 1, NULL, 1, '', '', 1, 2, 1, 1)"_qs,
        });
        m_window->Bouton(1).SetValue(true); // 1 heure, which is number 2 as Bisque is
        clickRow(m_window->Liste, 2);       // 10 mn, number 1
        clickRow(m_window->LFilms, 1);
        choose(open(6, m_window->LCategorie), u"1 heure"_qs);
        QCOMPARE(stored(u"NCategorie"_qs), u"2"_qs);
        clickRow(m_window->Liste, 1);
        clickRow(m_window->LFilms, 1);
        m_window->Saisie(0).insertPlainText(u"Mixer"_qs);
        QCOMPARE(stored(u"preparation"_qs, 2).contains(u"Mixer"_qs),
                 !stored(u"preparation"_qs).contains(u"Mixer"_qs));
    }

    void enterTakesWhatIsTypedButNotInTheVocabularies() {
        const std::array typed{std::pair(0, &m_window->LVerre), std::pair(1, &m_window->LMateriel),
                               std::pair(4, &m_window->LTeneur), std::pair(5, &m_window->LDureeReal),
                               std::pair(6, &m_window->LCategorie)};
        for (const auto &[data, list] : typed) {
            typeInto(open(data, *list), kDifficult);
            QTest::keyClick(list, Qt::Key_Return);
            QVERIFY(!list->isVisible());
        }
        show();
        for (const auto &[data, list] : typed) {
            QCOMPARE(m_window->Data(data).Caption(), kDifficult);
        }
        typeInto(open(2, m_window->LCout), u"Très Cher"_qs);
        QTest::keyClick(&m_window->LCout, Qt::Key_Return);
        QCOMPARE(stored(u"Cout"_qs), u"1"_qs);
        QVERIFY(m_window->LCout.isVisible());
    }

    void whatIsNotConfirmedIsDropped() {
        DropList &list = open(6, m_window->LCategorie);
        typeInto(list, u"1 heure"_qs); // a row of the list, but not chosen
        m_window->Liste.setFocus();
        QVERIFY(!list.isVisible());
        typeInto(open(6, list), u"2 heures"_qs);
        QTest::keyClick(&list, Qt::Key_Escape);
        QVERIFY(!list.isVisible());
        QVERIFY(m_window->Data(6).hasFocus());
        typeInto(open(6, list), u"  "_qs);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(stored(u"NCategorie"_qs), u"1"_qs);
        QCOMPARE(count(u"SELECT NCategorie From Categorie"_qs), 2);
    }

    void aListOffersWhatTheBookHoldsWhenItOpens() {
        DropList &times = open(6, m_window->LCategorie);
        times.showPopup();
        times.hidePopup();
        LivreEssai::execute({u"INSERT INTO Categorie VALUES (3, '2 heures')"_qs, u"DELETE From Verre"_qs});
        open(6, times).showPopup();
        const QModelIndex added = times.model()->index(times.findText(u"2 heures"_qs), 0);
        QVERIFY(!times.view()->visualRect(added).isEmpty());
        choose(times, u"2 heures"_qs);
        QCOMPARE(stored(u"NCategorie"_qs), u"3"_qs);

        // Over an empty table it keeps its place and its text.
        DropList &persons = m_window->LVerre;
        persons.SetLeft(Twips(75));
        typeInto(persons, u"12"_qs);
        QCOMPARE(open(0, persons).Count(), 0);
        QCOMPARE(persons.Left().value(), 75.0F);
        QCOMPARE(persons.Text(), u"12"_qs);
    }

    void dotsAddABlankRowEachTime() {
        for (const QString &key : {u"3"_qs, u"4"_qs}) {
            choose(open(6, m_window->LCategorie), kDots);
            QCOMPARE(stored(u"NCategorie"_qs), key);
            choose(open(6, m_window->LCategorie), u"10 mn"_qs);
        }
    }

    void theRowsPlaceIsTheCode() {
        choose(open(2, m_window->LCout), store::Cout[4].toString());
        LivreEssai::execute({u"UPDATE Cocktails SET Cout = 0"_qs});
        choose(open(2, m_window->LCout), store::Cout[4].toString()); // stored although it was shown
        QCOMPARE(stored(u"Cout"_qs), u"4"_qs);
        choose(open(3, m_window->LDiff), store::Difficulte[5].toString());
        QCOMPARE(stored(u"difficulte"_qs), u"5"_qs);
    }

    void withoutARecipe() {
        LivreEssai::execute({u"DELETE From Cocktails"_qs});
        TrierListe(*m_window, 0);
        choose(m_window->LCout, store::Cout[4].toString()); // shown, not stored, not told
        QCOMPARE(m_window->Data(2).Caption(), store::Cout[4].toString());
        typeInto(m_window->LCategorie, u"3 heures"_qs);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range,
                                 ChoisirValeur(*m_window, ValeurDe(store::ChampRecette::NCategorie)));
        QCOMPARE(count(u"SELECT * From Categorie where Categorie = '3 heures'"_qs), 1);
    }

    void textsAreStoredAsTheyAreTyped() {
        m_window->Saisie(0).setFocus();
        QTest::keyClicks(&m_window->Saisie(0), u"Cuire l'oeuf."_qs);
        QVERIFY(stored(u"preparation"_qs).startsWith(u"{\\rtf"));
        m_window->Saisie(1).insertPlainText(kDifficult);
        show();
        QCOMPARE(m_window->Saisie(0).Text(), u"Cuire l'oeuf."_qs);
        QCOMPARE(m_window->Saisie(1).Text(), kDifficult);
    }

    void theDottedRowAddsALine() {
        m_window->Ingre(2).SetValue(true);
        DropList &list = m_window->LIngre;
        typeInto(list, kDifficult);
        QTest::keyClick(&list, Qt::Key_Return); // only a click takes the value
        QCOMPARE(lines(), QStringList({u"1|2|2|2"_qs, u"1|1|1|1"_qs}));
        // The typed text stands on top of the opened list.
        QTest::keyClick(&list, Qt::Key_Down);
        QVERIFY(list.view()->isVisible());
        QTest::keyClick(list.view(), Qt::Key_Return);
        QTRY_VERIFY(!list.isVisible());
        QCOMPARE(m_window->Ingre(2).Caption(), kDifficult);
        // Absent parts of the line have become rows with a blank.
        QCOMPARE(lines(), QStringList({u"1|5|3|3"_qs, u"1|2|2|2"_qs, u"1|1|1|1"_qs}));
        QCOMPARE(LivreEssai::text(u"SELECT * From Ingredient where NIngredient = 5"_qs), kDifficult);
        QCOMPARE(LivreEssai::text(u"SELECT * From Mesure where NMesure = 3"_qs), u" "_qs);
    }
};

QTEST_MAIN(TestModifications)
#include "TestModifications.moc"
