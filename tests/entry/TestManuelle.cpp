#include "Lignes.h"
#include "LivreEssai.h"
#include "Reponse.h"

#include "entry/CreerRecette.h"
#include "entry/Listes.h"
#include "entry/Manuelle.h"

#include <QApplication>
#include <QListView>

#include <algorithm>
#include <memory>

using entry::Manuelle;
using namespace platform::controls;

class TestManuelle : public QObject {
    Q_OBJECT

private:
    /// The control that has the keyboard, or gets it with the window; the opened list, where one lies over the field.
    QString focus() const {
        const QWidget *control = m_entry->focusWidget();
        return control != nullptr ? control->objectName() : QString();
    }

    /// Types into whatever has the keyboard.
    void type(const QString &text) { QTest::keyClicks(m_entry->focusWidget(), text); }

    void press(Qt::Key key) { QTest::keyClick(m_entry->focusWidget(), key); }

    /// The proposals that are shown.
    const QListView *proposing() const {
        const auto lists = m_entry->findChildren<QListView *>(u"Proposals"_qs);
        const auto shown = std::ranges::find_if(lists, &QWidget::isVisible);
        return shown == lists.end() ? nullptr : *shown;
    }

    /// The lists that are open.
    QString open() const {
        QStringList names;
        for (const DropList *list : m_entry->Listes()) {
            if (list->isVisible()) {
                names += list->objectName();
            }
        }
        return names.join(u' ');
    }

    /// Presses the button and gives what the message says that follows.
    QString create() {
        const Reponse ok(u"OK"_qs);
        m_entry->Creer.SetValue(true);
        return ok.question();
    }

    void fill() {
        m_entry->TitreRecette.SetText(u"Le Riz"_qs);
        m_entry->Liste(3).SetText(u"10 mn"_qs);
    }

    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<browser::Frmmain> m_main;
    std::unique_ptr<Manuelle> m_entry;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreEssai>();
        LivreEssai::execute({
            u"INSERT INTO Categorie VALUES (1, '10 mn'), (2, '1 heure')"_qs,
            u"INSERT INTO Realisation VALUES (1, 'Entrée')"_qs,
            u"INSERT INTO Ingredient VALUES (1, 'Beurre'), (2, 'Blé'), (3, '<B>Pâte</B>'), (4, 'Sel')"_qs,
            u"INSERT INTO Quantite VALUES (1, '100'), (2, '200')"_qs,
            u"INSERT INTO Cocktails VALUES (1, 'Tarte', 1, 1, NULL, 1, '', '', 1, 2, 1, 1)"_qs,
        });
        m_main = std::make_unique<browser::Frmmain>();
        openView(*m_main, 0);
        m_main->hide();
        m_entry = std::make_unique<Manuelle>(*m_main);
        m_entry->move(1, 1);
        m_entry->show();
        QVERIFY(QTest::qWaitForWindowActive(m_entry.get()));
    }

    void cleanup() {
        m_entry.reset();
        m_main.reset();
    }

    void aFieldEnteredWithTheMouseIsCoveredByItsList() {
        QTest::mouseClick(&m_entry->Ingre(2), Qt::LeftButton);
        QCOMPARE(open(), u"LIngre"_qs);
        QTest::mouseClick(&m_entry->Qte(10), Qt::LeftButton);
        QCOMPARE(open(), u"LQte"_qs);
        QCOMPARE(focus(), u"LQte"_qs);
        type(u"3/4"_qs);
        // The text of one line is not carried to the next.
        QTest::mouseClick(&m_entry->Qte(9), Qt::LeftButton);
        QCOMPARE(m_entry->LQte.Text(), QString());
        QCOMPARE(m_entry->Qte(9).Text(), QString());
        QCOMPARE(m_entry->Qte(10).Text(), u"3/4"_qs);

        QTest::mouseClick(&m_entry->Liste(5), Qt::LeftButton);
        m_entry->Saisie(1).setFocus(); // hides the lists of the lines alone
        QCOMPARE(open(), u"LPlat"_qs);
        m_entry->Liste(5).SetText(u"Dessert"_qs); // beneath the list, which stays
        QCOMPARE(m_entry->LPlat.Text(), u"Dessert"_qs);
        QTest::mouseClick(m_entry->Scroll.Content(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(open(), QString());
    }

    void typingInALineProposes() {
        m_entry->Ingre(0).setFocus(Qt::TabFocusReason);
        type(u"b"_qs);
        const QListView *proposals = proposing();
        QVERIFY(proposals != nullptr);
        QCOMPARE(proposals->model()->rowCount(), 2);
        QCOMPARE(m_entry->Ingre(0).Text(), u"b"_qs);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QVERIFY(proposing() == nullptr);
        QCOMPARE(m_entry->Ingre(0).Text(), u"Beurre"_qs);
        QCOMPARE(focus(), u"LIngre"_qs);

        QTest::keyClick(m_entry->LIngre.lineEdit(), Qt::Key_A, Qt::ControlModifier);
        type(u"s"_qs);
        QVERIFY(proposing() != nullptr);
        QVERIFY2(QApplication::activePopupWidget() == nullptr, "the proposals take what is meant for others");
        press(Qt::Key_Tab);
        QVERIFY(proposing() == nullptr);
        QCOMPARE(m_entry->Ingre(0).Text(), u"s"_qs);
        QCOMPARE(focus(), u"LQte"_qs);
    }

    void whatIsMissingIsTold() {
        m_entry->TitreRecette.SetText(u"  "_qs);
        m_entry->Liste(3).SetText(u"10 mn"_qs);
        const QByteArray before = LivreEssai::bytes();
        QCOMPARE(create(), u"Veuillez d'abord saisir le nom de la recette !"_qs);
        QCOMPARE(focus(), u"TitreRecette"_qs);
        QCOMPARE(m_entry->Liste(3).Text(), u"10 mn"_qs);

        m_entry->TitreRecette.SetText(u"Riz"_qs);
        m_entry->Liste(3).SetText(u" "_qs);
        QCOMPARE(create(), u"Veuillez d'abord saisir une durée de cuisson !"_qs);
        QCOMPARE(focus(), u"Liste(3)"_qs);
        QVERIFY(!m_entry->creationFaite);
        QVERIFY(!m_entry->Creer.Value());
        QCOMPARE(LivreEssai::bytes(), before);
    }

    void severalRecipesInOneOpening() {
        fill();
        m_entry->DReal.SetText(u"5 mn"_qs);
        m_entry->Liste(5).SetText(u"Dessert"_qs);
        m_entry->Saisie(0).setFocus();
        type(u"Remuer"_qs);
        m_entry->Photo.SetPicture(QImage(40, 30, QImage::Format_RGB32));
        m_entry->Qte(0).setFocus();
        type(u"2"_qs);
        m_entry->Ingre(0).SetText(u"Riz"_qs);
        QCOMPARE(create(), u"Création réussie ! "_qs);
        QVERIFY(!m_entry->Creer.Value());
        const QString rtf =
            LivreEssai::text(u"SELECT Numero, preparation From Cocktails where Numero = 2"_qs);
        QVERIFY(rtf.contains(u"\\red0\\green255\\blue255"_qs));
        QVERIFY(rtf.contains(u"Remuer"_qs));

        QCOMPARE(m_entry->DReal.Text(), u"5 mn"_qs);
        for (const TextBox *field : m_entry->findChildren<TextBox *>()) {
            QVERIFY2(field == &m_entry->DReal || field->Text().isEmpty(), qPrintable(field->objectName()));
        }
        QCOMPARE(m_entry->Saisie(0).Text(), QString());
        QVERIFY(m_entry->Photo.Picture().isNull());

        // The lists of the lines know the new texts, those of the values do not.
        QVERIFY(m_entry->LIngre.findText(u"Riz"_qs) >= 0);
        QVERIFY(m_entry->LPlat.findText(u"Dessert"_qs) < 0);
        fill();
        QCOMPARE(create(), u"Création réussie ! "_qs);
        QCOMPARE(rowsOf(u"SELECT Recette, NDureeReal, Photo From Cocktails where Numero > 1"_qs, 3),
                 QStringList(2, u"Riz (Le)|1|Le Riz.jpg"_qs));
    }

    void theMainListFollowsAtTheEnd() {
        fill();
        create();
        QCOMPARE(m_main->Liste.Count(), 1);
        create(); // without a title: the last press decides, and the list is not loaded
        m_entry->Quit.SetValue(true);
        QCOMPARE(m_main->Liste.Count(), 1);

        fill();
        create();
        m_entry->Quit.SetValue(true);
        QCOMPARE(texts(m_main->Liste), u"Riz (Le), Riz (Le), Tarte"_qs);
        QVERIFY(!m_entry->isVisible());
        QVERIFY(!m_entry->Quit.Value());
    }
};

QTEST_MAIN(TestManuelle)
#include "TestManuelle.moc"
