#include "Facile.h"

#include "Analyse.h"
#include "CreerRecette.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "entry/ChampsDeCreation.h"
#include "pictures/AjusterPhoto.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/WhenPressed.h"
#include "platform/images/ResourcePicture.h"
#include "platform/webview/Engine.h"
#include "store/Configuration.h"
#include "store/Programme.h"
#include "webimport/Marquage.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <array>

namespace webimport::facile {

namespace {

using namespace platform::controls;

// Places in twips; those from Libelle to Saisie are inside Fond, the rows of ingredients inside Scroll(1).
constexpr std::array kControles{
    ControlRow{"Navi(0)", 150, 675, 1350, 540, u"", u"Précédent"},
    ControlRow{"Navi(1)", 1521, 675, 1350, 540, u"", u"Suivant"},
    ControlRow{"GotO1", 2892, 675, 1350, 540, u"", u"Visiter le site " SAVOREL_PARTENAIRE_ACCUEIL},
    ControlRow{"Analyse", 6180, 675, 3000, 540, u"", u"Récupérer la recette affichée"},
    ControlRow{"LBtn(0)", 150, 1215, 1350, 345, u"Précédent"},
    ControlRow{"LBtn(1)", 1521, 1215, 1350, 345, u"Suivant"},
    ControlRow{"LBtn(2)", 2892, 1215, 1350, 345, u"Le site"},
    ControlRow{"LBtn(3)", 6180, 1215, 3000, 345, u"Récupérer la recette affichée"},
    ControlRow{"WebBrowser1", 200, 1630, 14960, 8330, u"", u"", u"Page du web"},
    ControlRow{"Pb", 150, 10350, 15060, 420},
    ControlRow{"LPB", 150, 75, 4500, 270, u"Analyse en cours ..."},
    ControlRow{"Status", 150, 10350, 15060, 420},

    ControlRow{"Fond", 75, 1630, 15210, 8630},
    ControlRow{"Libelle(0)", 165, 120, 8000, 255, u"Recette *"},
    ControlRow{"TitreRecette", 165, 375, 11130, 375, u"", u"", u"Recette"},
    ControlRow{"calorie", 165, 780, 11130, 285},
    ControlRow{"Revenir", 11490, 105, 1740, 585, u"", u"Retour au Navigateur"},
    ControlRow{"Creer", 13305, 105, 1740, 585, u"", u"Créer la recette"},
    ControlRow{"LFiche(0)", 11490, 690, 1740, 345, u"Retour au navigateur"},
    ControlRow{"LFiche(1)", 13305, 690, 1740, 345, u"Créer la recette"},
    ControlRow{"Libelle(1)", 165, 1110, 3600, 255, u"Durée Réalisation"},
    ControlRow{"DReal", 165, 1365, 3600, 375, u"", u"", u"Durée Réalisation"},
    ControlRow{"Libelle(2)", 3930, 1110, 3600, 255, u"Durée Cuisson *"},
    ControlRow{"Liste(3)", 3930, 1365, 3600, 375, u"", u"", u"Durée Cuisson"},
    ControlRow{"Libelle(3)", 7695, 1110, 3600, 255, u"Nombre de Personnes"},
    ControlRow{"Liste(4)", 7695, 1365, 3600, 375, u"", u"", u"Nombre de Personnes"},
    ControlRow{"Libelle(4)", 11460, 1110, 3585, 255, u"Type de Plat"},
    ControlRow{"Liste(5)", 11460, 1365, 3585, 375, u"", u"", u"Type de Plat"},
    ControlRow{"Libelle(5)", 165, 1860, 3600, 255, u"Coût"},
    ControlRow{"Liste(0)", 165, 2115, 3600, 375, u"", u"", u"Coût"},
    ControlRow{"Libelle(6)", 3930, 1860, 3600, 255, u"Difficulté"},
    ControlRow{"Liste(1)", 3930, 2115, 3600, 375, u"", u"", u"Difficulté"},
    ControlRow{"Libelle(7)", 7695, 1860, 7350, 255, u"Conseil Vin"},
    ControlRow{"Liste(2)", 7695, 2115, 7350, 375, u"", u"", u"Conseil Vin"},
    ControlRow{"Libelle(8)", 165, 2610, 5100, 255, u"Photo"},
    ControlRow{"CadrePhoto", 165, 2865, 5100, 2775, u"Pas de photo"},
    ControlRow{"Photo", 200, 200, 4700, 2375},
    ControlRow{"NomPhoto", 165, 5700, 5100, 375, u"", u"Adresse de la photo sur le web",
               u"Adresse de la photo"},
    ControlRow{"Libelle(9)", 5580, 2610, 1350, 255, u"Quantité"},
    ControlRow{"Libelle(10)", 6990, 2610, 2700, 255, u"Mesure"},
    ControlRow{"Libelle(11)", 9750, 2610, 4000, 255, u"Ingrédient"},
    ControlRow{"Scroll(1)", 5430, 2865, 9615, 3210, u"", u"", u"Ingrédients"},
    ControlRow{"Qte(0)", 150, 105, 1350, 375, u"", u"", u"Quantité"},
    ControlRow{"Qte2(0)", 1560, 105, 2700, 375, u"", u"", u"Mesure"},
    ControlRow{"Ingre(0)", 4320, 105, 4900, 375, u"", u"", u"Ingrédient"},
    ControlRow{"Libelle(12)", 165, 6165, 9000, 255, u"Préparation"},
    ControlRow{"Saisie(0)", 165, 6420, 9525, 2100, u"", u"", u"Préparation"},
    ControlRow{"Libelle(13)", 9855, 6165, 5190, 255, u"Compléments"},
    ControlRow{"Saisie(1)", 9855, 6420, 5190, 2100, u"", u"", u"Compléments"},
    ControlRow{"LQte", 0, 0, 15, 15},
    ControlRow{"LQte2", 0, 0, 15, 15},
    ControlRow{"LIngre", 0, 0, 15, 15},
};

constexpr Rectangle kBarreOutils{Twips(90), Twips(645), Twips(15180), Twips(945)};

/// A site in a folder opens by its index, as a server has it.
QUrl AdresseDuPartenaire() {
    QUrl adresse(store::AdresseComplete(store::PartnerSiteHome));
    if (adresse.isLocalFile() && QFileInfo(adresse.toLocalFile()).isDir()) {
        adresse.setPath(adresse.path() + QStringLiteral("/index.htm"));
    }
    return adresse;
}

void PeindreOutil(Ribbon &outil, Panel &panneau, const char *dessin) {
    outil.SetLook(Look::Tool);
    outil.SetPicture(
        platform::images::resourcePicture(QStringLiteral(":/icones/%1.argb").arg(QLatin1String(dessin))));
    outil.SetPressedPicture(outil.Picture());
    panneau.setFont(interfaceFont(Face::SansSerif, 8.25));
    panneau.SetForeColor(Qt::blue);
    panneau.setToolTip(outil.toolTip());
    QObject::connect(&panneau, &Panel::Clicked, &outil, [&outil] { outil.SetValue(true); });
    const auto entrer = [&panneau] { panneau.SetForeColor(Qt::black); };
    const auto sortir = [&panneau] { panneau.SetForeColor(Qt::blue); };
    QObject::connect(&outil, &Ribbon::Entered, &panneau, entrer);
    QObject::connect(&outil, &Ribbon::Exited, &panneau, sortir);
    QObject::connect(&panneau, &Panel::Entered, &panneau, entrer);
    QObject::connect(&panneau, &Panel::Exited, &panneau, sortir);
}

} // namespace

Facile::Facile(browser::Frmmain &frm, platform::webview::Engine &moteur)
    : ToolWindow(QStringLiteral("Facile"), kWindowSize),
      Principale(frm),
      Moteur(moteur),
      Navi(this, kControles, "Navi"),
      GotO1(this, rowNamed(kControles, "GotO1")),
      Analyse(this, rowNamed(kControles, "Analyse")),
      LBtn(this, kControles, "LBtn"),
      Pb(this, rowNamed(kControles, "Pb")),
      LPB(&Pb, rowNamed(kControles, "LPB")),
      Status(this, rowNamed(kControles, "Status")),
      Fond(this, rowNamed(kControles, "Fond")),
      Libelle(&Fond, kControles, "Libelle"),
      TitreRecette(&Fond, rowNamed(kControles, "TitreRecette")),
      calorie(&Fond, rowNamed(kControles, "calorie")),
      Revenir(&Fond, rowNamed(kControles, "Revenir")),
      Creer(&Fond, rowNamed(kControles, "Creer")),
      LFiche(&Fond, kControles, "LFiche"),
      DReal(&Fond, rowNamed(kControles, "DReal")),
      Liste(&Fond, kControles, "Liste"),
      CadrePhoto(&Fond, rowNamed(kControles, "CadrePhoto")),
      Photo(&CadrePhoto, rowNamed(kControles, "Photo")),
      NomPhoto(&Fond, rowNamed(kControles, "NomPhoto")),
      Scroll(&Fond, kControles, "Scroll"),
      Qte(Scroll(1).Content(), kControles, "Qte"),
      Qte2(Scroll(1).Content(), kControles, "Qte2"),
      Ingre(Scroll(1).Content(), kControles, "Ingre"),
      Saisie(&Fond, kControles, "Saisie"),
      LQte(&Fond, rowNamed(kControles, "LQte")),
      LQte2(&Fond, rowNamed(kControles, "LQte2")),
      LIngre(&Fond, rowNamed(kControles, "LIngre")) {
    SetHeading(QStringLiteral("Création facile"));
    Peindre();
    PeindreFiche();
    OrdonnerFiche();
    Brancher();
    OuvrirNavigateur();
    // The photos of the recipes that are made here go there.
    QDir(store::DossierProgramme()).mkdir(QStringLiteral("photos"));
}

Facile::~Facile() = default;

/// From field to field as they lie, and to the two buttons from the last of them.
void Facile::OrdonnerFiche() {
    QWidget *avant = &TitreRecette;
    for (QWidget *suivant : std::initializer_list<QWidget *>{
             &DReal, &Liste(3), &Liste(4), &Liste(5), &Liste(0), &Liste(1), &Liste(2), &NomPhoto, &Qte(0),
             &Qte2(0), &Ingre(0), &Saisie(0), &Saisie(1), &Revenir, &Creer}) {
        setTabOrder(avant, suivant);
        avant = suivant;
    }
}

void Facile::Peindre() {
    SetStrips({kBarreOutils});
    PeindreOutil(Navi(0), LBtn(0), "facile-precedent");
    PeindreOutil(Navi(1), LBtn(1), "facile-suivant");
    PeindreOutil(GotO1, LBtn(2), "facile-site");
    PeindreOutil(Analyse, LBtn(3), "facile-analyse");
    PeindreOutil(Revenir, LFiche(0), "facile-revenir");
    PeindreOutil(Creer, LFiche(1), "facile-creer");
    for (int index = 0; index < Navi.Count(); ++index) {
        Navi(index).setEnabled(false);
        LBtn(index).setEnabled(false);
    }
    MontrerAnalyse(false);
    for (Panel *bande : {&Pb, &Status}) {
        bande->SetBackColor(kLightGround);
        bande->SetForeColor(kInk);
        bande->setFont(interfaceFont(Face::Verdana, 8.25));
    }
    // Progress shows when the analysis takes this away.
    Status.SetSquare();
    LPB.setFont(interfaceFont(Face::Verdana, 8.25));
    LPB.SetForeColor(kInk);
    NameQuit(QStringLiteral("Revenir au menu principal"));
}

void Facile::PeindreFiche() {
    const QFont titre = interfaceFont(Face::Verdana, 8.25, true);
    Fond.SetBackColor(kListGround);
    Fond.hide();
    Libelle.ForEach([&titre](Label &libelle) {
        libelle.setFont(titre);
        libelle.SetForeColor(kInk);
    });
    calorie.setFont(interfaceFont(Face::Verdana, 8.25));
    calorie.SetForeColor(kInk);
    CadrePhoto.setFont(titre);
    CadrePhoto.SetForeColor(kInk);
    CadrePhoto.SetBackColor(kLightGround);
    Photo.hide();
    Scroll(1).SetBackColor(kLightGround);
    Saisie(0).SetDefaultColor(QColor(kCouleursMethode.ordinaire));
    Saisie(1).SetDefaultColor(QColor(kCouleursComplements.ordinaire));
    for (DropList *liste : {&LQte, &LQte2, &LIngre}) {
        liste->hide();
    }
}

void Facile::OuvrirNavigateur() {
    Navigateur = Moteur.makeView(
        *this, store::DossierProgramme(),
        {.began =
             [this] {
                 ++m_page;
                 MontrerAnalyse(false);
                 DireEtatDeLaPage(QStringLiteral("Chargement de la page ..."));
             },
         .complete =
             [this] {
                 DireEtatDeLaPage(QStringLiteral("Terminé"));
                 ReconnaitrePage();
             },
         .history =
             [this](bool precedente, bool suivante) {
                 Navi(0).setEnabled(precedente);
                 LBtn(0).setEnabled(precedente);
                 Navi(1).setEnabled(suivante);
                 LBtn(1).setEnabled(suivante);
             },
         .hovered = [this](const QString &adresse) { EcrireStatut(adresse.isEmpty() ? m_etat : adresse); }});
    QWidget &page = Navigateur->widget();
    applyRow(page, rowNamed(kControles, "WebBrowser1"));
    page.setGeometry(rowNamed(kControles, "WebBrowser1").place().pixels());
    page.show();
    page.setFocus();
    Navigateur->navigate(
        QUrl::fromLocalFile(store::DossierProgramme() + QStringLiteral("/facile/facile.htm")));
}

void Facile::Brancher() {
    whenPressed(GotO1, [this] { Navigateur->navigate(AdresseDuPartenaire()); });
    for (int index = 0; index < Navi.Count(); ++index) {
        whenPressed(Navi(index), [this, index] {
            if (index != 0) {
                Navigateur->forward();
            } else {
                Navigateur->back();
            }
            MontrerAnalyse(false);
        });
    }
    whenPressed(Analyse, [this] { PresserAnalyse(*this); });
    // Where the recipe is refused, the button stays down.
    whenPressed(
        Creer, [this] { PresserCreer(*this); }, Release::ByAction);
    whenPressed(Revenir, [this] { PresserRevenir(); });
    connect(this, &SkinnedWindow::CloseRequested, this, &Facile::Quitter);
}

/// A page that cannot be read counts as a recipe.
void Facile::ReconnaitrePage() {
    Navigateur->runScript(QStringLiteral("document.documentElement.innerHTML"),
                          [this, page = m_page](const std::optional<QString> &texte) {
                              if (page == m_page) {
                                  MontrerAnalyse(!texte || EstPageDeRecette(*texte));
                              }
                          });
}

void Facile::DireEtatDeLaPage(const QString &etat) {
    m_etat = etat;
    EcrireStatut(etat);
}

void Facile::EcrireStatut(const QString &texte) {
    constexpr Twips kMarges{300};
    const int place = (Status.Width() - kMarges).pixels();
    Status.SetCaption(Status.fontMetrics().elidedText(texte, Qt::ElideMiddle, place));
}

void Facile::ChargerLigne(Twips haut) {
    const int index = Ingre.Count();
    const auto charger = [haut, index](Array<TextBox> &colonne, ControlRow rangee) -> TextBox & {
        rangee.top = static_cast<int>(haut.value());
        TextBox &champ = colonne.Load(rangee);
        champ.setAccessibleName(QStringLiteral("%1, ligne %2").arg(champ.accessibleName()).arg(index + 1));
        champ.show();
        return champ;
    };
    TextBox &quantite = charger(Qte, rowNamed(kControles, "Qte(0)"));
    TextBox &mesure = charger(Qte2, rowNamed(kControles, "Qte2(0)"));
    TextBox &ingredient = charger(Ingre, rowNamed(kControles, "Ingre(0)"));
    setTabOrder(&Ingre(index - 1), &quantite);
    setTabOrder(&quantite, &mesure);
    setTabOrder(&mesure, &ingredient);
}

void Facile::ViderTextes() {
    Saisie.ForEach([](RichTextBox &saisie) { saisie.SetTextRTF({}); });
    for (Array<TextBox> *champs : {&Liste, &Qte, &Qte2, &Ingre}) {
        champs->ForEach([](TextBox &champ) { champ.SetText({}); });
    }
    TitreRecette.SetText({});
}

void Facile::MontrerPhoto(const QImage &image) {
    CadrePhoto.SetCaption(image.isNull() ? QStringLiteral("Pas de photo") : QString());
    if (image.isNull()) {
        Photo.SetPicture({});
        Photo.hide();
    } else {
        Principale.ImageTemp.SetPicture(image);
        pictures::MontrerPhoto({CadrePhoto.Width(), CadrePhoto.Height()}, Photo, image);
    }
}

void Facile::MontrerNavigation(bool visible) {
    for (QWidget *controle : std::initializer_list<QWidget *>{&Status, &Navi(0), &Navi(1), &GotO1, &LBtn(0),
                                                              &LBtn(1), &LBtn(2)}) {
        controle->setVisible(visible);
    }
}

void Facile::MontrerAnalyse(bool visible) {
    Analyse.setVisible(visible);
    LBtn(3).setVisible(visible);
}

void Facile::MontrerFiche() {
    m_lue = entry::LireChamps(*this);
    Navigateur->widget().hide();
    Fond.show();
    TitreRecette.setFocus();
}

void Facile::MontrerNavigateur() {
    Navigateur->widget().show();
    Fond.hide();
    Navigateur->widget().setFocus();
}

void Facile::PresserRevenir() {
    MontrerNavigation(true);
    ViderTextes();
    MontrerNavigateur();
    MontrerAnalyse(true);
}

bool Facile::MayEscape() {
    return Fond.isHidden() || entry::LireChamps(*this) == m_lue || entry::ConfirmerAbandon(*this);
}

void Facile::Quitter() {
    if (RecetteCreee) {
        browser::TrierListe(Principale, browser::VueCourante());
    }
    Unload();
}

} // namespace webimport::facile
