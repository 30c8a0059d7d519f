#include "LivreEssai.h"

#include "search/FrmFind.h"
#include "store/AccesBase.h"

#include <QApplication>

#include <array>
#include <memory>
#include <stdexcept>

using namespace browser;
using search::FrmFind;

class TestSearch : public QObject {
    Q_OBJECT

private:
    static void fill() {
        LivreEssai::execute({
            u"INSERT INTO Categorie VALUES (5, '10 mn'), (6, '1 heure')"_qs,
            u"INSERT INTO DureeReal VALUES (7, '20 mn')"_qs,
            u"INSERT INTO Verre (NVerre, Verre) VALUES (8, '4 personnes')"_qs,
            u"INSERT INTO Ingredient VALUES (1, 'Beurre'), (2, 'Sel</FONT>'), (3, 'Œufs'), (4, 'Eau')"_qs,
            u"INSERT INTO Cocktails (Numero, Recette, NCategorie, Cout, difficulte) VALUES (1, 'Tarte', 5, "
            u"1, 1), "
            u"(2, 'Pâté en croûte', 5, 2, 1), (3, 'Éclair', 6, 1, 2), (5, 'Tarte<B>x</B>', 5, 1, 1), "
            u"(6, 'Straße', 5, 4, 4)"_qs,
        });
    }

    /// Opens both windows as the toolbar does, on a view.
    void open(int view) {
        m_find.reset();
        m_main = std::make_unique<Frmmain>();
        openView(*m_main, view);
        m_find = std::make_unique<FrmFind>(*m_main);
        m_find->show();
        QVERIFY(QTest::qWaitForWindowActive(m_find.get()));
    }

    /// What a search finds, as the cook makes it: an option, a way to match, a text and Enter.
    QString found(int option, bool prefix, const QString &text) {
        QTest::mouseClick(&m_find->Opt_Liste(option), Qt::LeftButton);
        QTest::mouseClick(&m_find->Choix(prefix ? 0 : 1), Qt::LeftButton);
        m_find->Saisie.SetText(text);
        QTest::keyClick(&m_find->Saisie, Qt::Key_Return);
        return texts(m_find->Liste);
    }

    static void doubleClick(platform::controls::List &list, int index) {
        const QPoint place = list.visualRect(list.model()->index(index - 1, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }

    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<Frmmain> m_main;
    std::unique_ptr<FrmFind> m_find;

private Q_SLOTS:

    void initTestCase() { QApplication::setDoubleClickInterval(20); }

    void init() {
        m_book = std::make_unique<LivreEssai>();
        fill();
        open(0);
    }

    void cleanup() {
        m_find.reset();
        m_main.reset();
    }

    void matchesTheTextInUpperCase() {
        struct Search {
            int option;
            bool prefix;
            QString text, expected;
        };

        const auto searches = std::to_array<Search>({
            {0, true, u""_qs, u"Straße, Éclair, Pâté en croûte, Tarte"_qs}, // newest first, none with markup
            {0, true, u"pate"_qs, u""_qs},
            {0, false, u"CROÛ"_qs, u"Pâté en croûte"_qs},
            {0, false, u"strasse"_qs, u"Straße"_qs}, // a letter of two capitals
            {1, true, u"1"_qs, u"1 heure, 10 mn"_qs},
        });
        for (const auto &[option, prefix, text, expected] : searches) {
            QCOMPARE(found(option, prefix, text), expected);
        }
    }

    void restrictsRecipesAloneByCostAndDifficulty() {
        QTest::mouseClick(&m_find->Chk(0), Qt::LeftButton);
        clickRow(m_find->LChk(0), 2);
        found(0, true, {});
        QCOMPARE(m_find->LNombre.Caption(), u"2 résultats"_qs);
        clickRow(m_find->LChk(1), 3);
        QTest::mouseClick(&m_find->Chk(1), Qt::LeftButton);
        QCOMPARE(found(0, true, {}), u"Éclair"_qs);
        QCOMPARE(m_find->LNombre.Caption(), u"1 résultat"_qs);
        QCOMPARE(found(3, true, {}), u"Beurre, Eau, Œufs"_qs);
    }

    void bringsUpARowInItsView() {
        struct Row {
            int before, option;
            QString text;
            int view;
        };

        const auto rows = std::to_array<Row>({
            {3, 0, u"Tarte"_qs, 0},
            {1, 1, u"10 mn"_qs, 1}, // chosen in the main window too
            {0, 3, u"Œufs"_qs, 6},
        });
        for (const auto &[before, option, text, view] : rows) {
            open(before);
            QCOMPARE(found(option, true, text), text);
            // The rows belong to what was searched, whatever is chosen afterwards.
            QTest::mouseClick(&m_find->Opt_Liste((option + 1) % 5), Qt::LeftButton);
            doubleClick(m_find->Liste, 1);
            QCOMPARE(m_main->Liste.Text(m_main->Liste.SelectedIndex()), text);
            QCOMPARE(m_main->LTDroit.Caption(), text);
            QCOMPARE(VueCourante(), view);
        }
    }

    void recipeWithTheKeyOfTheShownGroupIsShown() {
        LivreEssai::execute({u"INSERT INTO Cocktails (Numero, Recette) VALUES (9, 'Abricots')"_qs,
                             u"INSERT INTO Categorie VALUES (9, '0 mn')"_qs});
        open(1);
        QCOMPARE(m_main->LTDroit.Caption(), u"0 mn"_qs);
        found(0, true, u"Abri"_qs);
        doubleClick(m_find->Liste, 1);
        QCOMPARE(m_main->LTDroit.Caption(), u"Abricots"_qs);
    }

    void resultGoneMeanwhileEndsWithTheErrorOfTheList() {
        found(0, true, u"Tarte"_qs);
        store::SupprimerFiches(store::kCocktails, 1);
        TrierListe(*m_main, 0);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, doubleClick(m_find->Liste, 1));
        found(0, true, u"nothing"_qs);
        doubleClick(m_find->Liste, 1); // beside the rows: nothing
    }
};

QTEST_MAIN(TestSearch)
#include "TestSearch.moc"
