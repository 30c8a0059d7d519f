#include "LivreEssai.h"

#include "browser/Fiche.h"
#include "store/Textes.h"

#include <QImage>
#include <QSignalSpy>

#include <memory>
#include <stdexcept>

using namespace browser;
using platform::controls::Ribbon;

namespace {

const QString kDots = store::LignePointillee.toString();

} // namespace

class TestFiche : public QObject {
    Q_OBJECT

private:
    /// Sets columns of recipe 1 and shows it.
    void show(const QString &columns = u"Photo = NULL"_qs) {
        LivreEssai::execute({u"UPDATE Cocktails SET "_qs + columns + u" WHERE Numero = 1"_qs});
        ChargerRecette(*m_window, 1);
    }

    /// Adds lines of recipe 1, the oldest first: "ingredient, quantity, measure" as they stand in a
    /// statement.
    static void addLines(const QStringList &lines) {
        for (const QString &line : lines) {
            LivreEssai::execute({u"INSERT INTO Ingre VALUES (1, "_qs + line + u")"_qs});
        }
    }

    /// What the row of buttons shows; a hidden one as "-".
    QString line(int i) const {
        QStringList captions;
        for (const Ribbon *button : {&m_window->Quantite(i), &m_window->Mesure(i), &m_window->Ingre(i)}) {
            const QString caption = button->Caption() == kDots ? u"..."_qs : button->Caption();
            captions += button->isVisible() ? caption : u"-"_qs;
        }
        return captions.join(u'|');
    }

    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<Frmmain> m_window;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreEssai>();
        LivreEssai::addTarte();
        LivreEssai::execute({
            u"UPDATE Categorie SET Categorie = ' 10 mn ' where NCategorie = 1"_qs,
            u"UPDATE Categorie SET Categorie = '   ' where NCategorie = 2"_qs,
            u"INSERT INTO Ingredient VALUES (2, 'Pour la pâte : '), (4, 'Sauce:'), (5, ' ')"_qs,
            u"INSERT INTO Ingredient VALUES (3, '<B>Farine</B> <I>T55</I>')"_qs,
            u"INSERT INTO Quantite VALUES (2, '  ')"_qs,
        });
        m_window = std::make_unique<Frmmain>();
        openView(*m_window, 0);
    }

    void cleanup() { m_window.reset(); }

    void absentValuesAreDotted() {
        for (const QString &key : {u"NULL"_qs, u"9"_qs}) { // 9 dangles
            show(u"NCategorie = %1, NDureeReal = %1, Nverre = %1, Nreal = %1, Teneur = %1"_qs.arg(key));
            for (const int i : {0, 1, 4, 5, 6}) {
                QCOMPARE(m_window->Data(i).Caption(), kDots);
            }
        }
        show(
            u"NCategorie = 2, NDureeReal = 1, Nverre = 1, Nreal = 1, Teneur = 1, Cout = 1"_qs); // 2 is a blank text
        const QStringList expected{u"4 personnes"_qs, u"Entrée"_qs, u"Peu Cher"_qs, u"Facile"_qs,
                                   u"Chinon"_qs,      u"20 mn"_qs,  kDots};
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(m_window->Data(i).Caption(), expected[i]);
        }
    }

    void classesOutsideTheirVocabulary() {
        show(u"Cout = 5"_qs);
        QCOMPARE(m_window->Data(2).Caption(), QString());
        for (const QString &columns : {u"Cout = 6"_qs, u"Cout = -1"_qs, u"Cout = 0, difficulte = 6"_qs}) {
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, show(columns));
        }
        show(u"difficulte = 5"_qs); // the book was left closed
        QCOMPARE(m_window->Data(3).Caption(), u"Très Difficile"_qs);
    }

    void newestLineComesFirstAndADottedOneLast() {
        addLines({u"1, 1, 1"_qs, u"3, 2, 9"_qs, u"NULL, 1, NULL"_qs});
        show();
        QCOMPARE(line(0), u"100|...|..."_qs);
        QCOMPARE(line(1), u"...|...|Farine <I>T55</I>"_qs);
        QCOMPARE(line(2), u"100|g|Beurre"_qs);
        QCOMPARE(line(3), u"...|...|..."_qs);
    }

    void headingsAreUnderlined() {
        addLines({u"1, 1, 1"_qs, u"4, 9, 9"_qs, u"2, 9, 9"_qs});
        show();
        QCOMPARE(m_window->Ingre(0).Caption(), u"Pour la pâte :"_qs);
        QVERIFY(m_window->Ingre(1).font().underline());
        QVERIFY(!m_window->Ingre(3).font().underline());

        // The rows shrink with the recipe, and the button of the first one is used again.
        LivreEssai::execute({u"DELETE * FROM Ingre"_qs});
        addLines({u"1, 1, 1"_qs});
        show();
        QVERIFY(!m_window->Ingre(0).font().underline());
        QCOMPARE(m_window->Ingre.Count(), 2);
        QCOMPARE(m_window->Quantite.Count(), 2);
    }

    void photoIsShownOrMissing() {
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString path = m_book->path(u"photos/tarte.jpg"_qs);
        QVERIFY(picture.save(path, "PNG")); // whatever its ending says
        writeFile(m_book->path(u"photos/faux.jpg"_qs), "recette");
        for (const QString &value :
             {u"NULL"_qs, u"'absente.jpg'"_qs, u"'C:\\tarte.jpg'"_qs, u"'faux.jpg'"_qs}) {
            for (const QString &photo : {u"' tarte<BR>.jpg '"_qs, value}) { // the break of an import
                show(u"preparation = 'Cuire', Photo = "_qs + photo);
                const bool found = photo != value;
                QCOMPARE(m_window->CadrePhoto.Caption(), found ? QString() : u"Pas de photo"_qs);
                QCOMPARE(m_window->CadrePhoto.Tag(), found ? path : QString());
                QCOMPARE(m_window->Photo.Picture().isNull(), !found);
            }
        }
        QCOMPARE(m_window->Saisie(0).Text(), u"Cuire"_qs);
    }

    void textsAreLoadedTrimmed() {
        QSignalSpy changes(&m_window->Saisie(1), &Frmmain::RichTextBox::Change);
        show(u"preparation = '  {\\rtf1\\ansi M\\''e9langer}  ', Deco = ' Servir '"_qs);
        QCOMPARE(m_window->Saisie(0).Text(), u"Mélanger"_qs);
        QCOMPARE(m_window->Saisie(0).Tag(), u"{\\rtf1\\ansi M\\'e9langer}"_qs);
        QCOMPARE(m_window->Saisie(1).Text(), u"Servir"_qs);
        show(u"preparation = NULL"_qs);
        QCOMPARE(m_window->Saisie(0).Text(), QString());
        QCOMPARE(m_window->Saisie(0).Tag(), QString());
        QCOMPARE(changes.count(), 0);
    }

    void notesBegunInAnEmptyBoxAreWhite() {
        const QSignalSpy changes(&m_window->Saisie(1), &Frmmain::RichTextBox::Change);
        for (const QString &stored : {u"NULL"_qs, u"'  '"_qs, u"'{\\rtf1\\ansi\\pard\\par}'"_qs}) {
            show(u"Deco = '{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\cf1 Rouge}'"_qs);
            show(u"Deco = "_qs + stored);
            QTest::keyClicks(&m_window->Saisie(1), u"Servir"_qs);
            m_window->Saisie(1).Select(0, 6);
            QCOMPARE(m_window->Saisie(1).SelColor(), QColor(Qt::white));
        }
        QCOMPARE(changes.count(), 18);
    }

    void undoNeverBringsBackAnotherRecipe() {
        show(u"preparation = 'Autre recette', Deco = 'Autres notes'"_qs);
        show(u"preparation = 'Cuire', Deco = ' '"_qs);
        const QSignalSpy method(&m_window->Saisie(0), &Frmmain::RichTextBox::Change);
        QTest::keyClick(&m_window->Saisie(0), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_window->Saisie(0).Text(), u"Cuire"_qs);
        QCOMPARE(method.count(), 0);
    }
};

QTEST_MAIN(TestFiche)
#include "TestFiche.moc"
