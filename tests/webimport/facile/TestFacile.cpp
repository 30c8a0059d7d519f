// The window of the import over a browser without a web: what it reads, keeps and stores.
#include "LivreEssai.h"
#include "Reponse.h"

#include "pictures/EnregistrerPhoto.h"
#include "platform/webview/Engine.h"
#include "webimport/facile/Facile.h"

#include <QBuffer>
#include <QUrl>

using webimport::facile::Facile;
using namespace platform::webview;

namespace {

/// The pages of a browser that has none: each is the text that its script gives.
class VueEssai : public View {
public:
    VueEssai(QWidget &parent, Events evenements_)
        : evenements(std::move(evenements_)), m_controle(std::make_unique<QWidget>(&parent)) {}

    /// Another page comes; its text stands when the browser is asked.
    void charger(const std::optional<QString> &texte) {
        evenements.began();
        m_texte = texte;
        evenements.complete();
    }

    QWidget &widget() override { return *m_controle; }

    void navigate(const QUrl & /*adresse*/) override {}

    void back() override {}

    void forward() override {}

    QUrl address() const override { return QUrl(u"http://www.latablededemain.example/r"_qs); }

    void runScript(const QString & /*source*/, Result resultat) override {
        if (retenir) {
            retenue = resultat;
        } else {
            resultat(m_texte);
        }
    }

    Events evenements;
    bool retenir = false; ///< the answer waits until it is called
    Result retenue;

private:
    std::unique_ptr<QWidget> m_controle;
    std::optional<QString> m_texte;
};

class MoteurEssai : public Engine {
public:
    QString obstacle() const override { return {}; }

    std::unique_ptr<View> makeView(QWidget &parent, const QString & /*dossier*/, Events evenements) override {
        auto nouvelle = std::make_unique<VueEssai>(parent, std::move(evenements));
        vue = nouvelle.get();
        return nouvelle;
    }

    std::optional<QByteArray> openUrl(const QUrl & /*adresse*/, const QString & /*dossier*/) override {
        pendant();
        return reponse;
    }

    VueEssai *vue = nullptr;
    std::optional<QByteArray> reponse;
    std::function<void()> pendant = [] {};
};

QByteArray photo(int largeur) {
    QImage image(largeur, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QByteArray octets;
    QBuffer fichier(&octets);
    image.save(&fichier, "PNG");
    return octets;
}

/// A page of the commented layout.
struct PageEssai {
    QString titre = u"Tarte"_qs, cuisson = u"30 min"_qs, vin = {}, photo = {};
    QString ingredients = u"250 g de farine\r\n <LI>3 oeufs\r\n <LI>sel"_qs;
    QString preparation = u"1 h"_qs;

    QString texte() const {
        return u"<!-- TITRE RECETTE -->"_qs + titre + u"</TD>\r\n<!-- IMAGES RECETTE -->" +
               (photo.isEmpty() ? QString() : u"<IMG src=\"%1\">"_qs.arg(photo)) +
               u"<!-- FIN IMAGES RECETTE -->\r\n<!-- Préparation -->" + preparation +
               u"<!-- fin durée préparation -->\r\n<!--Cuisson -->" + cuisson +
               u"<!-- fin Cuisson -->\r\n<!-- CONSEIL VIN -->" + vin +
               u"<!-- FIN CONSEIL VIN -->\r\n<!-- debut ingredient -->\r\n<UL>\r\n<LI>" + ingredients +
               u"</LI></UL><!-- fin ingredient -->\r\n<IMG src=\"puce.gif\">Cuire <B>bien</B> fort.<BR>"
               "<!-- FIN RECETTE -->\r\n";
    }
};

} // namespace

class TestFacile : public QObject {
    Q_OBJECT

private:
    void lire(const PageEssai &page) {
        m_moteur.vue->charger(page.texte());
        m_fenetre->Analyse.SetValue(true);
    }

    /// Presses Creer and answers what it says.
    QString creer() {
        Reponse reponse(u"OK"_qs);
        m_fenetre->Creer.SetValue(true);
        return reponse.question();
    }

    QList<QStringList> lignes() const {
        QList<QStringList> textes;
        for (int n = 0; n < m_fenetre->Ingre.Count(); ++n) {
            textes.append({m_fenetre->Qte(n).Text(), m_fenetre->Qte2(n).Text(), m_fenetre->Ingre(n).Text()});
        }
        return textes;
    }

    static int recettes() {
        auto livre = store::OuvrirLivre();
        return livre.OpenRecordset(u"SELECT * From Cocktails"_qs).RecordCount();
    }

    std::unique_ptr<LivreEssai> m_livre;
    std::unique_ptr<browser::Frmmain> m_principale;
    MoteurEssai m_moteur;
    std::unique_ptr<Facile> m_fenetre;

private Q_SLOTS:

    void init() {
        m_livre = std::make_unique<LivreEssai>();
        m_principale = std::make_unique<browser::Frmmain>();
        m_moteur = MoteurEssai();
        m_fenetre = std::make_unique<Facile>(*m_principale, m_moteur);
        m_fenetre->show();
    }

    void cleanup() { m_fenetre.reset(); }

    void analysisIsOfferedForRecipesOnly() {
        m_moteur.vue->charger(u"<BODY>Bonjour</BODY>"_qs);
        QVERIFY(!m_fenetre->Analyse.isVisible());
        m_moteur.vue->charger(PageEssai().texte());
        QVERIFY(m_fenetre->Analyse.isVisible());
        // A late answer of the page before counts no more.
        m_moteur.vue->retenir = true;
        m_moteur.vue->charger(PageEssai().texte());
        m_moteur.vue->evenements.began();
        m_moteur.vue->retenue(PageEssai().texte());
        QVERIFY(!m_fenetre->Analyse.isVisible());
    }

    void pageBecomesARecipe() {
        m_moteur.reponse = photo(40);
        lire({.titre = u"Pommes/poires"_qs, .vin = u"Vin d'Alsace"_qs, .photo = u"p.jpg"_qs});
        QVERIFY(m_fenetre->Fond.isVisible());
        QCOMPARE(lignes(), (QList<QStringList>{{u"250 "_qs, u"g de "_qs, u"farine"_qs},
                                               {u"3 "_qs, QString(), u"oeufs"_qs},
                                               {QString(), QString(), u"sel"_qs}}));
        QCOMPARE(m_fenetre->Saisie(0).Text(), u"- Cuire bien fort."_qs);
        QCOMPARE(QDir(m_livre->path({})).entryList(QDir::Files), QStringList(u"db.mdb"_qs));

        QCOMPARE(creer(), u"Création réussie ! "_qs);
        QCOMPARE(LivreEssai::text(u"SELECT Numero, Recette From Cocktails"_qs), u"Pommes poires"_qs);
        QCOMPARE(LivreEssai::text(u"SELECT NVIN, VIN From VIN"_qs), u"Vin dAlsace"_qs);
        QCOMPARE(QImage(m_livre->path(u"photos/Pommes poires.jpg"_qs)).width(), 40);
        QCOMPARE(LivreEssai::text(u"SELECT NQuantite, Quantite From Quantite"_qs),
                 u"3 "_qs); // last line first
        QVERIFY(!m_fenetre->Fond.isVisible());
        QVERIFY(!m_fenetre->Creer.Value());
    }

    void keyboardGoesThroughTheFieldsBeforeTheButtons() {
        m_fenetre->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_fenetre.get()));
        lire({.ingredients = u"ail\r\n <LI>sel"_qs});
        QStringList noms;
        for (QString nom = m_fenetre->focusWidget()->objectName(); !noms.contains(nom);
             nom = m_fenetre->focusWidget()->objectName()) {
            noms += nom;
            QTest::keyClick(m_fenetre->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(noms.mid(0, 18),
                 (QStringList{u"TitreRecette"_qs, u"DReal"_qs, u"Liste(3)"_qs, u"Liste(4)"_qs, u"Liste(5)"_qs,
                              u"Liste(0)"_qs, u"Liste(1)"_qs, u"Liste(2)"_qs, u"NomPhoto"_qs, u"Qte(0)"_qs,
                              u"Qte2(0)"_qs, u"Ingre(0)"_qs, u"Qte(1)"_qs, u"Qte2(1)"_qs, u"Ingre(1)"_qs,
                              u"Saisie(0)"_qs, u"Saisie(1)"_qs, u"Revenir"_qs}));
    }

    void refusedSaveLeavesTheButtonDown() {
        lire({.cuisson = {}});
        QCOMPARE(creer(), u"Veuillez d'abord saisir une durée de cuisson !"_qs);
        QVERIFY(m_fenetre->Creer.Value());
        m_fenetre->Liste(3).SetText(u"20 min"_qs);
        m_fenetre->Creer.click(); // releases it, no more
        QCOMPARE(recettes(), 0);
        QCOMPARE(creer(), u"Création réussie ! "_qs);
        QCOMPARE(recettes(), 1);
    }

    void pageThatDoesNotAnswerChangesNothing() {
        lire({});
        m_fenetre->MontrerNavigateur();
        m_moteur.vue->charger(std::nullopt);
        Reponse reponse(u"OK"_qs);
        m_fenetre->Analyse.SetValue(true);
        QCOMPARE(reponse.question(), u"La page affichée ne répond pas."_qs);
        QVERIFY(!m_fenetre->Analyse.Value());
        QCOMPARE(m_fenetre->TitreRecette.Text(), u"Tarte"_qs);
    }

    void whatStaysFromPageToPage() {
        m_moteur.reponse = photo(40);
        lire({.photo = u"p.jpg"_qs});
        m_fenetre->Revenir.SetValue(true);
        QCOMPARE(m_fenetre->TitreRecette.Text(), QString());
        QCOMPARE(lignes(), QList<QStringList>(3, {QString(), QString(), QString()}));
        QCOMPARE(m_fenetre->DReal.Text(), u"1 h"_qs);

        m_moteur.reponse = std::nullopt;
        lire({.titre = u"Soupe"_qs, .ingredients = u"sel"_qs, .preparation = {}});
        QCOMPARE(lignes(), QList<QStringList>(1, {QString(), QString(), u"sel"_qs}));
        QCOMPARE(m_fenetre->DReal.Text(), QString());
        QCOMPARE(m_fenetre->Photo.Picture().width(), 40); // that of the page before

        m_moteur.reponse = QByteArrayLiteral("<html>404</html>");
        lire({});
        QVERIFY(m_fenetre->Photo.Picture().isNull());
    }

    void pictureThatCannotBeWrittenStoresNoRecipe() {
        m_moteur.reponse = photo(40);
        lire({.titre = QString(300, u'a'), .photo = u"p.jpg"_qs});
        QVERIFY_THROWS_EXCEPTION(pictures::PhotoError, m_fenetre->Creer.SetValue(true));
        QCOMPARE(recettes(), 0);
    }

    void nothingIsTakenFromTheUserDuringAnAnalysis() {
        bool fermee = false;
        m_moteur.pendant = [this] {
            QTest::mouseClick(&m_fenetre->Quit, Qt::LeftButton);
            m_fenetre->close();
        };
        connect(m_fenetre.get(), &Facile::CloseRequested, m_fenetre.get(), [&fermee] { fermee = true; });
        lire({});
        QVERIFY(!fermee);
        m_fenetre->close();
        QVERIFY(fermee);
    }
};

QTEST_MAIN(TestFacile)
#include "TestFacile.moc"
