#include "Lignes.h"
#include "LivreEssai.h"
#include "Reponse.h"

#include "browser/Operations.h"
#include "browser/Pop.h"

#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>

#include <memory>

using namespace browser;
using namespace platform::controls;

class TestOperations : public QObject {
    Q_OBJECT

private:
    Frmmain &opened(int view) {
        m_menus.reset();
        m_window = std::make_unique<Frmmain>();
        m_menus = std::make_unique<Pop>(*m_window);
        openView(*m_window, view);
        return *m_window;
    }

    /// Right click on a row, then an entry of the menu that opens.
    void pick(List &list, int row, QAction &entry) {
        clickRow(list, row, Qt::RightButton);
        QTRY_VERIFY(m_menus->Menu1.isVisible());
        m_menus->Menu1.close();
        entry.trigger();
    }

    static qsizetype count(const QString &query) { return rowsOf(query, 1).size(); }

    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<Frmmain> m_window;
    std::unique_ptr<Pop> m_menus;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreEssai>();
        LivreEssai::addTarte();
        LivreEssai::execute({
            u"INSERT INTO Categorie VALUES (3, '2 heures')"_qs,
            u"INSERT INTO Cocktails VALUES (2, 'Bisque', 1, 1, NULL, 1, '', '', 1, 2, 1, 1)"_qs,
            u"INSERT INTO Cocktails VALUES (3, 'Vacherin', 2, 1, NULL, 1, '', '', 1, 2, 1, 1)"_qs,
            u"INSERT INTO Ingre VALUES (1, 1, 1, 1), (2, 1, 1, 1)"_qs,
        });
    }

    void cleanup() {
        m_menus.reset();
        m_window.reset();
    }

    void theMenuBelongsToTheRowUnderThePointer() {
        Frmmain &frm = opened(0);
        clickRow(frm.Liste, 2, Qt::RightButton);
        m_menus->Menu1.close();
        QCOMPARE(frm.LTDroit.Caption(), u"Tarte"_qs); // shown before anything acts on it

        Frmmain &times = opened(1);
        clickRow(times.LFilms, 1, Qt::RightButton);
        m_menus->Menu1.close();
        QCOMPARE(times.Outils(2).Tag(), kBas);
        // The recipe of a group is put away before its row stands for the group.
        clickRow(times.Liste, 1, Qt::RightButton);
        m_menus->Menu1.close();
        QVERIFY(!times.Scroll(0).isVisible());

        clickRow(times.Liste, 3); // 2 heures has no recipe, so there is no row to act on
        QTest::mouseClick(times.LFilms.viewport(), Qt::RightButton);
        QVERIFY(!m_menus->Modifier.isEnabled());
        QVERIFY(!m_menus->Supprimer.isEnabled());
        m_menus->Menu1.close();

        clickRow(opened(3).Liste, 1, Qt::RightButton);
        QVERIFY(!m_menus->Menu1.isVisible()); // nothing to do in a fixed vocabulary
    }

    void aNewValueIsListed() {
        Frmmain &frm = opened(6);
        const Reponse answer(u"OK"_qs, u"Crème d'Isigny "_qs);
        pick(frm.Liste, 1, m_menus->Ajouter);
        QCOMPARE(answer.title(), u"Création d'un nouvel ingrédient"_qs);
        QCOMPARE(texts(frm.Liste), u"Beurre, Crème d'Isigny "_qs);
        QCOMPARE(frm.LBGauche.Caption(), u"2 Ingredient(s) ..."_qs); // without the accent of the view
        QCOMPARE(frm.LFilms.Count(), 2);                             // Beurre keeps its recipes

        const Reponse nothing(u"OK"_qs, u"  "_qs);
        AjouterRangee(frm);
        QCOMPARE(frm.Liste.Count(), 2);
    }

    void aDeletedRecipeTakesItsLinesAlongFromAboveOnly() {
        Frmmain &frm = opened(0);
        {
            const Reponse no(u"Non"_qs);
            pick(frm.Liste, 2, m_menus->Supprimer);
            QCOMPARE(no.question(), u"Voulez-vous réellement supprimer Tarte ?"_qs);
        }
        QCOMPARE(count(u"SELECT * From Cocktails"_qs), 3);
        const Reponse yes(u"Oui"_qs);
        pick(frm.Liste, 2, m_menus->Supprimer);
        QCOMPARE(texts(frm.Liste), u"Bisque, Vacherin"_qs);
        QCOMPARE(frm.LTDroit.Caption(), u"Vacherin"_qs);
        QCOMPARE(frm.LBGauche.Caption(), u"3 Recette(s) ..."_qs); // counted before the row goes
        QCOMPARE(count(u"SELECT * From Ingre where Numero = 1"_qs), 0);

        Frmmain &groups = opened(1); // 1 heure, 10 mn, 2 heures
        clickRow(groups.Liste, 2);
        const Reponse below(u"Oui"_qs);
        pick(groups.LFilms, 1, m_menus->Supprimer);
        QCOMPARE(groups.LFilms.Count(), 0);
        QVERIFY(!groups.Scroll(0).isVisible());
        QVERIFY(!groups.Outils(2).isVisible());
        QCOMPARE(groups.LTDroit.Caption(), u"10 mn"_qs);
        QCOMPARE(count(u"SELECT * From Cocktails"_qs), 1);
        QCOMPARE(count(u"SELECT * From Ingre where Numero = 2"_qs), 1);

        Frmmain &last = opened(0);
        const Reponse agreed(u"Oui"_qs);
        pick(last.Liste, 1, m_menus->Supprimer);
        QVERIFY(!last.Scroll(0).isVisible());
        QVERIFY(!last.LBtn(2).isVisible());
        QCOMPARE(last.LTDroit.Caption(), QString());

        // The number of the deleted recipe is the next one.
        LivreEssai::execute(
            {u"INSERT INTO Cocktails VALUES (3, 'Riz', 1, 1, NULL, 1, 'Laver', '', 1, 2, 1, 1)"_qs});
        TrierListe(last, 0);
        QCOMPARE(last.Saisie(0).Text(), u"Laver"_qs);
    }

    void aValueInUseStays() {
        Frmmain &frm = opened(1);
        for (const int row : {1, 3}) { // 1 heure has a recipe, 2 heures has none
            const Reponse yes(u"Oui"_qs);
            pick(frm.Liste, row, m_menus->Supprimer);
        }
        QCOMPARE(texts(frm.Liste), u"1 heure, 10 mn"_qs);
        QCOMPARE(count(u"SELECT * From Categorie"_qs), 2);
        QCOMPARE(frm.LBGauche.Caption(), u"2 Recette(s) ..."_qs); // of the group that took the place
    }

    void aPhotoIsReplacedAndRemoved() {
        Frmmain &frm = opened(0);
        const QString photo = m_book->path(u"l'été.PNG"_qs);
        QImage(40, 30, QImage::Format_RGB32).save(photo);
        auto file = std::make_unique<QMimeData>();
        file->setUrls({QUrl::fromLocalFile(photo)});
        const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(QPoint(5, 5), possible, file.get(), Qt::LeftButton, {});
        QApplication::sendEvent(&frm.Photo, &enter);
        QDropEvent drop(QPointF(5, 5), possible, file.get(), Qt::LeftButton, Qt::ShiftModifier);
        drop.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&frm.Photo, &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction); // the cook's file stays where it is
        QTRY_VERIFY(frm.Photo.isVisible());
        QCOMPARE(frm.CadrePhoto.Caption(), QString());
        QCOMPARE(frm.ImageTemp.Picture(), frm.Photo.Picture());
        QCOMPARE(LivreEssai::text(u"SELECT Numero, Photo From Cocktails where Numero = 2"_qs), photo);

        clickRow(frm.Liste, 2);
        {
            const Reponse unreadable(u"OK"_qs);
            DeposerPhoto(frm, store::CheminBase()); // no picture: nothing changes
            QVERIFY(unreadable.asked());
        }
        QCOMPARE(LivreEssai::text(u"SELECT Numero, Photo From Cocktails where Numero = 1"_qs), QString());

        clickRow(frm.Liste, 1);
        const Reponse yes(u"Oui"_qs);
        SupprimerPhoto(frm);
        QCOMPARE(yes.question(), u"Etes-vous sûr de vouloir supprimer cette photo ?"_qs);
        QCOMPARE(LivreEssai::text(u"SELECT Numero, Photo From Cocktails where Numero = 2"_qs), u" "_qs);
        QCOMPARE(frm.CadrePhoto.Caption(), u"Pas de photo"_qs);
        QVERIFY(QFile::exists(photo));
    }
};

QTEST_MAIN(TestOperations)
#include "TestOperations.moc"
