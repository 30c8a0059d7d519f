#include "LivreEssai.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>

#include <array>
#include <memory>

using namespace browser;
using platform::controls::List;

class TestVues : public QObject {
    Q_OBJECT

private:
    void fill() {
        LivreEssai::addTarte();
        LivreEssai::execute({
            u"INSERT INTO Realisation VALUES (2, 'Dessert')"_qs,
            u"INSERT INTO Ingredient VALUES (2, 'Sel</FONT>'), (3, NULL), (4, 'Eau')"_qs,
            u"UPDATE Cocktails SET Nreal = 2, preparation = 'Cuire'"_qs,
            u"INSERT INTO Cocktails VALUES (2, 'Bisque', 1, 1, NULL, 1, 'Mixer', '', 2, 2, NULL, 1)"_qs,
            u"INSERT INTO Cocktails VALUES (3, 'Éclair', 2, NULL, NULL, NULL, '', '', 0, 0, NULL, NULL)"_qs,
            // Beurre on two lines of Tarte, and on one of a recipe that is gone.
            u"INSERT INTO Ingre VALUES (1, 1, 1, 1), (1, 4, 1, 1), (1, 1, 2, 2), (2, 1, 1, 1), (99, 1, 1, 1)"_qs,
        });
    }

    Frmmain &opened(int view) {
        m_window = std::make_unique<Frmmain>();
        openView(*m_window, view);
        return *m_window;
    }

    static bool recipeShown(const Frmmain &frm) {
        return frm.Scroll(0).isVisible() && frm.Outils(2).isVisible() && frm.LBtn(2).isVisible();
    }

    static QLineEdit *editor(const List &list) { return list.viewport()->findChild<QLineEdit *>(); }

    static void type(const List &list, const QString &text) {
        QTRY_VERIFY(editor(list) != nullptr);
        editor(list)->setText(text);
        QTest::keyClick(editor(list), Qt::Key_Return);
        QTRY_VERIFY(editor(list) == nullptr);
    }

    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<Frmmain> m_window;

private Q_SLOTS:

    void initTestCase() { QApplication::setDoubleClickInterval(20); }

    void init() { m_book = std::make_unique<LivreEssai>(); }

    void cleanup() { m_window.reset(); }

    void recordsWithoutATextAreCountedButNotShown() {
        const auto rows = std::to_array<std::pair<int, QString>>({{0, u"Cocktails (Numero) VALUES (5)"_qs},
                                                                  {1, u"Categorie VALUES (5, NULL)"_qs},
                                                                  {6, u"Ingredient VALUES (5, '</B>')"_qs},
                                                                  {7, u"DureeReal VALUES (5, NULL)"_qs}});
        for (const auto &[view, row] : rows) {
            LivreEssai::execute({u"INSERT INTO "_qs + row});
            const Frmmain &frm = opened(view);
            QVERIFY2(frm.LBGauche.Caption().startsWith(u'1'), qPrintable(row));
            QCOMPARE(frm.Liste.Count(), 0);
            QVERIFY(!frm.Scroll(0).isVisible());
        }
    }

    void recipesAreOrderedAndTheFirstIsShown() {
        fill();
        Frmmain &frm = opened(0);
        QCOMPARE(texts(frm.Liste), u"Bisque, Éclair, Tarte"_qs);
        QCOMPARE(frm.Liste.Key(3), u"N 1"_qs);
        QCOMPARE(frm.Liste.SelectedIndex(), 1);
        QCOMPARE(frm.LTDroit.Caption(), u"Bisque"_qs);
        QVERIFY(recipeShown(frm));
        QVERIFY(!frm.LFilms.isVisible());
        QCOMPARE(frm.Outils(2).Tag(), kHaut);
        QCOMPARE(frm.Saisie(0).Text(), u"Mixer"_qs);
    }

    void groupShowsItsRecipes() {
        fill();
        const QString both = u"Bisque, Tarte"_qs; // the newest first

        struct Case {
            int view;
            QString groups;
            int row;
            QString recipes;
        };

        const auto cases = std::to_array<Case>({
            {1, u"1 heure, 10 mn"_qs, 2, both},
            {2, u"4 personnes"_qs, 1, both},
            {3, u"Sans Commentaire, Peu Cher, Moyen, Cher, Très Cher"_qs, 2, u"Tarte"_qs},
            {4, u"Sans Commentaire, Très Facile, Facile, Moyen, Difficile, Très Difficile"_qs, 3, both},
            {5, u"Dessert, Entrée"_qs, 2, u"Bisque"_qs},
            {6, u"Beurre, Eau"_qs, 1, both},
            {7, u"20 mn"_qs, 1, both},
        });

        for (const auto &[view, groups, row, recipes] : cases) {
            Frmmain &frm = opened(0);
            QTest::mouseClick(&frm.Bouton(view), Qt::LeftButton);
            QCOMPARE(texts(frm.Liste), groups);
            QVERIFY(!frm.Scroll(0).isVisible());
            QVERIFY(!frm.Outils(2).isVisible());

            clickRow(frm.Liste, row);
            QCOMPARE(texts(frm.LFilms), recipes);
            clickRow(frm.LFilms, 1);
            QVERIFY(recipeShown(frm));
            QCOMPARE(frm.Outils(2).Tag(), kBas);
            QCOMPARE(frm.LTDroit.Caption(), recipes.section(u',', 0, 0));
        }
    }

    void nothingIsLoadedTwice() {
        fill();
        Frmmain &frm = opened(0);
        LivreEssai::execute(
            {u"UPDATE Cocktails SET Recette = 'Potage', preparation = 'Passer' WHERE Numero = 2"_qs});
        clickRow(frm.Liste, 1);
        QTest::mouseClick(&frm.Bouton(0), Qt::LeftButton);
        QCOMPARE(frm.Liste.Text(1), u"Bisque"_qs);
        QCOMPARE(frm.Saisie(0).Text(), u"Mixer"_qs);
        clickRow(frm.Liste, 2);
        clickRow(frm.Liste, 1);
        QCOMPARE(frm.Saisie(0).Text(), u"Passer"_qs);

        QTest::mouseClick(&frm.Bouton(3), Qt::LeftButton);
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"3"_qs);
        QTest::mouseClick(&frm.Bouton(0), Qt::LeftButton);
        QCOMPARE(texts(frm.Liste), u"Éclair, Potage, Tarte"_qs);
    }

    void aReloadForgetsTheRowOfBefore() {
        fill();
        Frmmain &frm = opened(1);
        clickRow(frm.LFilms, 1);
        TrierListe(frm, 1); // as after a creation
        QCOMPARE(texts(frm.LFilms), u"Éclair"_qs);
        QVERIFY(!frm.Outils(2).isVisible());
        QCOMPARE(frm.LTDroit.Caption(), u"1 heure"_qs);

        clickRow(frm.LFilms, 1);
        LivreEssai::execute({u"DELETE From Verre"_qs});
        QTest::mouseClick(&frm.Bouton(2), Qt::LeftButton);
        QVERIFY(!frm.Scroll(0).isVisible());
        QVERIFY(!frm.LBtn(2).isVisible());
        QVERIFY(frm.Cadre(1).isVisible());
        QCOMPARE(frm.LTDroit.Caption(), QString());
    }

    void arrowsMoveTheRecipe() {
        fill();
        Frmmain &frm = opened(0);
        QTest::keyClick(&frm.Liste, Qt::Key_Down);
        QTest::keyClick(&frm.Liste, Qt::Key_Down);
        QCOMPARE(frm.LTDroit.Caption(), u"Tarte"_qs);
        QCOMPARE(frm.Saisie(0).Text(), u"Cuire"_qs);

        QTest::mouseClick(&frm.Bouton(1), Qt::LeftButton);
        QTest::keyClick(&frm.Liste, Qt::Key_Down);
        clickRow(frm.LFilms, 1);
        QTest::keyClick(&frm.LFilms, Qt::Key_Down);
        QCOMPARE(frm.LTDroit.Caption(), u"Tarte"_qs);
    }

    void secondClickRenamesInTheTable() {
        fill();
        const auto views =
            std::to_array<std::pair<int, QString>>({{0, u"Cocktails where Numero = 2"_qs},
                                                    {1, u"Categorie where NCategorie = 2"_qs},
                                                    {2, u"Verre where NVerre = 1"_qs},
                                                    {5, u"Realisation where NRealisation = 2"_qs},
                                                    {6, u"Ingredient where NIngredient = 1"_qs},
                                                    {7, u"DureeReal where NDureeReal = 1"_qs}});
        for (const auto &[view, row] : views) {
            Frmmain &frm = opened(view);
            clickRow(frm.Liste, 1);
            clickRow(frm.Liste, 1);
            type(frm.Liste, u"L'œuf nouveau"_qs);
            QCOMPARE(LivreEssai::text(u"SELECT * From "_qs + row), u"L'œuf nouveau"_qs);
            QCOMPARE(frm.Liste.Text(1), u"L'œuf nouveau"_qs);
        }
        Frmmain &costs = opened(3);
        clickRow(costs.Liste, 2);
        clickRow(costs.LFilms, 1);
        costs.LFilms.StartLabelEdit();
        type(costs.LFilms, u"Tourte"_qs);
        QCOMPARE(LivreEssai::text(u"SELECT * From Cocktails where Numero = 1"_qs), u"Tourte"_qs);
    }

    void classesAndUnchangedTextsAreNotWritten() {
        fill();
        const QByteArray before = LivreEssai::bytes();
        for (const auto &[view, text] : {std::pair(3, u"Gratuit"_qs), std::pair(0, u"Bisque"_qs)}) {
            Frmmain &frm = opened(view);
            clickRow(frm.Liste, 1);
            frm.Liste.StartLabelEdit();
            type(frm.Liste, text);
        }
        QVERIFY(LivreEssai::bytes() == before);
    }

    void browsingWritesNothing() {
        fill();
        const QByteArray before = LivreEssai::bytes();
        Frmmain &frm = opened(0);
        QSignalSpy method(&frm.Saisie(0), &Frmmain::RichTextBox::Change);
        QSignalSpy notes(&frm.Saisie(1), &Frmmain::RichTextBox::Change);
        for (int view = kNombreDeVues - 1; view >= 0; --view) {
            QTest::mouseClick(&frm.Bouton(view), Qt::LeftButton);
            for (int row = 1; row <= frm.Liste.Count(); ++row) {
                clickRow(frm.Liste, row);
                if (view > 0 && frm.LFilms.Count() > 0) {
                    clickRow(frm.LFilms, frm.LFilms.Count());
                }
            }
        }
        QCOMPARE(method.count(), 0);
        QCOMPARE(notes.count(), 0);
        QVERIFY(LivreEssai::bytes() == before);
    }
};

QTEST_MAIN(TestVues)
#include "TestVues.moc"
