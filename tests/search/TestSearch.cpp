#include "LivreEssai.h"

#include "search/FrmFind.h"
#include "store/AccesBase.h"

#include <QApplication>

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

    /// Ticks a restriction and chooses the class of that code.
    void restrict(int index, int code) {
        QTest::mouseClick(&m_find->Chk(index), Qt::LeftButton);
        clickRow(m_find->LChk(index), code + 1);
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

    void matchesTheTextInUpperCase_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("prefix");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, int option, bool prefix, const QString &text,
                            const QString &expected) {
            QTest::newRow(name) << option << prefix << text << expected;
        };
        row("all, newest first, without markup", 0, true, u""_qs,
            u"Straße, Éclair, Pâté en croûte, Tarte"_qs);
        row("none contains nothing", 0, false, u""_qs, u""_qs);
        row("capital with an accent", 0, true, u"éc"_qs, u"Éclair"_qs);
        row("accents count", 0, true, u"pate"_qs, u""_qs);
        row("in the middle only", 0, false, u"CROÛ"_qs, u"Pâté en croûte"_qs);
        row("not at the beginning", 0, true, u"croû"_qs, u""_qs);
        row("a letter of two capitals", 0, false, u"strasse"_qs, u"Straße"_qs);
        row("quote", 0, false, u"l'"_qs, u""_qs);
        row("cooking times in order", 1, true, u"1"_qs, u"1 heure, 10 mn"_qs);
        row("persons", 2, false, u"PERS"_qs, u"4 personnes"_qs);
        row("ligature", 3, true, u"œuf"_qs, u"Œufs"_qs);
        row("ingredients without markup", 3, false, u"e"_qs, u"Beurre, Eau"_qs);
        row("preparation times", 4, true, u"20"_qs, u"20 mn"_qs);
    }

    void matchesTheTextInUpperCase() {
        QFETCH(const int, option);
        QFETCH(const bool, prefix);
        QFETCH(const QString, text);
        QFETCH(const QString, expected);
        QCOMPARE(found(option, prefix, text), expected);
        QVERIFY(!m_find->Creer.Value());
    }

    void restrictsRecipesByCostAndDifficulty() {
        restrict(0, 1);
        QCOMPARE(found(0, true, u""_qs), u"Éclair, Tarte"_qs);
        QCOMPARE(m_find->LNombre.Caption(), u"2 résultats"_qs);
        restrict(1, 2);
        QCOMPARE(found(0, true, u""_qs), u"Éclair"_qs);
        QCOMPARE(m_find->LNombre.Caption(), u"1 résultat"_qs);
        clickRow(m_find->LChk(0), 6);
        QCOMPARE(m_find->LChk(0).Text(6), QString());
        QCOMPARE(found(0, true, u""_qs), QString());
        QCOMPARE(m_find->LNombre.Caption(), u"Aucun résultat"_qs);
    }

    void restrictsNothingButRecipes() {
        restrict(0, 5);
        QCOMPARE(found(3, true, u"b"_qs), u"Beurre"_qs);
        for (int index = 0; index < 2; ++index) {
            QVERIFY(!m_find->Chk(index).isEnabled() && !m_find->LChk(index).isEnabled());
        }
        found(0, true, {});
        QVERIFY(m_find->Chk(0).isEnabled() && m_find->LChk(1).isEnabled());
    }

    void tickChoosesTheFirstClassUnlessOneIsChosen() {
        QTest::mouseClick(&m_find->Chk(0), Qt::LeftButton);
        QCOMPARE(m_find->LChk(0).SelectedIndex(), 1);
        clickRow(m_find->LChk(1), 3);
        QTest::mouseClick(&m_find->Chk(1), Qt::LeftButton);
        QCOMPARE(m_find->LChk(1).SelectedIndex(), 3);
    }

    void twoGroupsOfOptionsLeaveEachOtherAlone() {
        QTest::mouseClick(&m_find->Choix(1), Qt::LeftButton);
        QVERIFY(!m_find->Choix(0).Value() && m_find->Opt_Liste(0).Value());
        QTest::mouseClick(&m_find->Opt_Liste(4), Qt::LeftButton);
        QVERIFY(m_find->Choix(1).Value() && !m_find->Opt_Liste(0).Value());
    }

    void bringsUpARowInItsView_data() {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("view");
        const auto row = [](const char *name, int before, int option, const QString &text, int view) {
            QTest::newRow(name) << before << option << text << view;
        };
        row("recipe from costs", 3, 0, u"Tarte"_qs, 0);
        row("recipe from recipes", 0, 0, u"Éclair"_qs, 0);
        // Row 5 is chosen in the main window too, as a cooking time.
        row("cooking time", 1, 1, u"10 mn"_qs, 1);
        row("persons", 0, 2, u"4 personnes"_qs, 2);
        row("ingredient", 0, 3, u"Œufs"_qs, 6);
        row("preparation time", 5, 4, u"20 mn"_qs, 7);
    }

    void bringsUpARowInItsView() {
        QFETCH(const int, before);
        QFETCH(const int, option);
        QFETCH(const QString, text);
        QFETCH(const int, view);
        open(before);
        QCOMPARE(found(option, true, text), text);
        QCOMPARE(m_find->Liste.SmallIcon(1), view + 1);
        // The rows belong to what was searched, whatever is chosen afterwards.
        QTest::mouseClick(&m_find->Opt_Liste((option + 1) % 5), Qt::LeftButton);
        doubleClick(m_find->Liste, 1);

        QCOMPARE(m_main->Liste.Text(m_main->Liste.SelectedIndex()), text);
        QCOMPARE(m_main->LTDroit.Caption(), text);
        QCOMPARE(m_main->Liste.Tag(), QString::number(view));
        QCOMPARE(VueCourante(), view);
        for (int index = 0; index < kNombreDeVues; ++index) {
            QCOMPARE(m_main->Bouton(index).ForeColor() == Qt::black, index == view);
        }
        QVERIFY(m_find->isVisible());
    }

    void recipeWithTheKeyOfTheShownGroupIsShown() {
        LivreEssai::execute({u"INSERT INTO Cocktails (Numero, Recette) VALUES (9, 'Abricots')"_qs,
                             u"INSERT INTO Categorie VALUES (9, '0 mn')"_qs});
        open(1);
        QCOMPARE(m_main->LTDroit.Caption(), u"0 mn"_qs);
        found(0, true, u"Abri"_qs);
        doubleClick(m_find->Liste, 1);
        QCOMPARE(m_main->LTDroit.Caption(), u"Abricots"_qs);
        QVERIFY(!m_main->Cadre(1).isVisible());
    }

    void searchAndChoiceByTheKeyboardAlone() {
        QVERIFY(m_find->Saisie.hasFocus());
        QTest::keyClick(&m_find->Saisie, Qt::Key_Down);
        QVERIFY(m_find->Saisie.hasFocus());
        QTest::keyClicks(&m_find->Saisie, u"t"_qs);
        QTest::keyClick(&m_find->Saisie, Qt::Key_Enter);
        QCOMPARE(texts(m_find->Liste), u"Tarte"_qs);
        QTest::keyClick(&m_find->Saisie, Qt::Key_Down);
        QVERIFY(m_find->Liste.hasFocus());
        QTest::keyClick(&m_find->Liste, Qt::Key_Return);
        QCOMPARE(m_main->LTDroit.Caption(), u"Tarte"_qs);
        // Elsewhere Enter does not search.
        m_find->Saisie.SetText(u"É"_qs);
        QTest::keyClick(&m_find->Choix(0), Qt::Key_Return);
        QCOMPARE(texts(m_find->Liste), u"Tarte"_qs);
    }

    void resultGoneMeanwhileEndsWithTheErrorOfTheList() {
        found(0, true, u"Tarte"_qs);
        store::SupprimerFiches(u"Cocktails"_qs, 1, u"Numero"_qs);
        TrierListe(*m_main, 0);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, doubleClick(m_find->Liste, 1));
        found(0, true, u"nothing"_qs);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, doubleClick(m_find->Liste, 1));
    }

    void emptiesTheListWhenTheBookCannotBeRead() {
        found(0, true, u"Tarte"_qs);
        QVERIFY(QFile::remove(store::CheminBase()));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, found(0, true, u"Tarte"_qs));
        QCOMPARE(m_find->Liste.Count(), 0);
    }
};

QTEST_MAIN(TestSearch)
#include "TestSearch.moc"
